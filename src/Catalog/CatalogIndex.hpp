#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Catalog/CatalogProduct.hpp"
#include "Catalog/Json.hpp"

namespace Merivane::Catalog {

/// The format that is written, and the highest one that is understood.
inline constexpr int CatalogFormat = 1;

/// Most JSON values that an index may hold, about 200,000 products: a file of the size that may be
/// fetched could fill the memory a dozen times over.
inline constexpr std::size_t MostIndexValues = 8000000;

/// Keys of the preference store, both UTF-8 without header or terminator: the folder of the last
/// export, and the address of the last catalogue that loaded, normalised.
inline constexpr std::string_view CatalogRootKey = "MVCATR01";
inline constexpr std::string_view CatalogAddressKey = "MVCATS01";

/// What an index holds.
struct CatalogIndex {
    bool ok = false;
    std::string error;                    ///< one Portuguese sentence without accents when not `ok`
    std::string updated;                  ///< day of the last build, YYYY-MM-DD
    std::vector<CatalogProduct> products; ///< in the order of the file
    std::size_t incomplete = 0; ///< entries left out: not readable, or a part without its SHA-256
};

/// Reads the bytes of a `catalogo.json`.
CatalogIndex ParseCatalogIndex(std::string_view bytes);

/// The JSON of an index of that day (YYYY-MM-DD), its products sorted by manufacturer, name, lamp
/// and address.
JsonValue BuildCatalogIndex(std::vector<CatalogProduct> products, std::string_view date);

} // namespace Merivane::Catalog
