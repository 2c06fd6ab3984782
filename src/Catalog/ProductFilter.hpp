#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Catalog/CatalogProduct.hpp"

/// Choosing among the products of a catalogue. Letter case, accents and punctuation play no part.
namespace Merivane::Catalog {

/// What stands for every manufacturer, and for the products that name none.
inline constexpr std::string_view AllManufacturers = "(todos)";
inline constexpr std::string_view NoManufacturer = "(sem fabricante)";

/// The distinct manufacturers, sorted, each in its first spelling; `NoManufacturer` where a product
/// names none.
std::vector<std::string> CatalogManufacturers(const std::vector<CatalogProduct>& products);

/// True when the product is of this manufacturer (`AllManufacturers` or empty: of any) and every
/// word of the query occurs in its texts, in any order, also within a word.
bool ProductMatches(const CatalogProduct& product, std::string_view manufacturer,
                    std::string_view query);

} // namespace Merivane::Catalog
