#pragma once

#include <string>
#include <string_view>

/// The address of a product, "<fabricante>/<nome>": its identity in a catalogue and its folder
/// there. Two blocks of one address are the same product.
namespace Merivane::Catalog {

/// The address of a new product: the slugs of its manufacturer and of its code, or of its name
/// where it has no code, or of its IES file's name where both are mute, with its lamp's behind.
/// Always valid.
std::string ProductAddress(std::string_view manufacturer, std::string_view code,
                           std::string_view name, std::string_view lamp,
                           std::string_view iesFileName);

/// True for two words with one "/" between them, of ASCII letters, digits, "-", "." and "_", none
/// of them "." or "..". Whatever reaches a path from an address in a file must pass this first.
bool IsValidProductAddress(std::string_view text);

/// The folder of a product in its catalogue: "pacotes/<fabricante>/<nome>". The address is taken as
/// it is: a valid one stays below "pacotes", but may be the name of a device on Windows.
std::string ProductPackageFolder(std::string_view address);

/// The address behind its first "/"; the whole of one that has none.
std::string ProductLeafName(std::string_view address);

} // namespace Merivane::Catalog
