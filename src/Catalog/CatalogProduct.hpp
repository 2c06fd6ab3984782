#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {

/// One published file.
struct CatalogFile {
    std::string path;      ///< from the catalogue's root, with "/"; empty = not published
    std::int64_t size = 0; ///< [bytes]; below 1 = unknown
    std::string hash;      ///< SHA-256, 64 small hexadecimal digits; empty = unknown

    bool operator==(const CatalogFile&) const = default;
};

/// One luminaire of a catalogue, the same in `produto.json` and in the index. Texts are UTF-8 as
/// they were typed.
struct CatalogProduct {
    std::string id;           ///< see `ProductAddress`
    std::int32_t version = 1; ///< rises with each change of the library part
    std::string updated;      ///< YYYY-MM-DD, local time
    std::string manufacturer;
    std::string code;        ///< of the manufacturer
    std::string description; ///< the luminaire's name
    std::string lamp;
    double colourRendering = 0.0;  ///< Ra; not above 0 = unknown
    double flux = 0.0;             ///< [lm]
    double power = 0.0;            ///< [W]
    double width = 0.0;            ///< of the luminous opening [m]
    double length = 0.0;           ///< [m]
    double height = 0.0;           ///< [m]
    std::string block;             ///< name of the library part in the host
    std::int32_t hostVersion = 29; ///< major version of the host that wrote the part
    CatalogFile part;              ///< .gsm
    CatalogFile ies;
    CatalogFile curve;               ///< picture of the polar curve
    CatalogFile image;               ///< not every product has one
    std::vector<std::string> macros; ///< called by the part, not in the package

    bool operator==(const CatalogProduct&) const = default;
};

/// Most JSON values that the file of a product may hold, its list of macros included.
inline constexpr std::size_t MostProductValues = 100000;

/// Reads a product. Members that are missing or of a wrong type get the defaults, numbers beyond a
/// field's range its nearest end. Returns false for what is no object, has no `id` or does not name
/// the file of its library part; `product` then holds what could be read.
bool ReadCatalogProduct(const JsonValue& value, CatalogProduct& product);

/// The JSON of a product, its members in their published order. The flux is rounded to 1 decimal,
/// the power to 3; the efficacy [lm/W], the largest number where it is larger than any, is written
/// for readers and never read back. A product whose numbers are finite has no `null` in it.
JsonValue WriteCatalogProduct(const CatalogProduct& product);

/// The version for a new export: 1 for a product that was never published, one more than
/// `previous` when the library part's bytes have changed. Never fails; the highest version of all
/// stays.
std::int32_t NextProductVersion(const std::optional<CatalogProduct>& previous,
                                std::string_view partHash);

/// The block's name without the counts that saving again puts behind it: "Spot_1_2" to "Spot".
/// Empty for one of blanks alone.
std::string CleanBlockName(std::string_view text);

/// The file name of a product's part in a library, with ".gsm" behind it: the block's name, or that
/// of its address where nothing of it can stand in a file name. Never a path; ".gsm" alone for a
/// product that has neither.
std::string LibraryFileName(const CatalogProduct& product);

/// The product's name as lists show it: code and name, or what there is of them, or the block's.
std::string ProductDisplayName(const CatalogProduct& product);

} // namespace Merivane::Catalog
