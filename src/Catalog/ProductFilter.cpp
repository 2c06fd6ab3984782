#include "Catalog/ProductFilter.hpp"

#include <algorithm>
#include <cstddef>
#include <map>

#include "Catalog/Slug.hpp"

namespace Merivane::Catalog {

namespace {

constexpr std::size_t LongestManufacturer = 200; // bytes of each slug
constexpr std::size_t LongestTexts = 2000;
constexpr std::size_t LongestQuery = 500;

bool IsOfManufacturer(const CatalogProduct& product, std::string_view manufacturer) {
    if (manufacturer.empty() || manufacturer == AllManufacturers) {
        return true;
    }
    const std::string_view wanted = manufacturer == NoManufacturer ? "" : manufacturer;
    return Slugify(product.manufacturer, LongestManufacturer) ==
           Slugify(wanted, LongestManufacturer);
}

} // namespace

std::vector<std::string> CatalogManufacturers(const std::vector<CatalogProduct>& products) {
    std::map<std::string, std::string> spellings;
    for (const CatalogProduct& product : products) {
        std::string key = Slugify(product.manufacturer, LongestManufacturer);
        const std::string_view shown = key.empty() ? NoManufacturer : product.manufacturer;
        spellings.try_emplace(std::move(key), shown);
    }
    std::vector<std::string> manufacturers;
    manufacturers.reserve(spellings.size());
    for (const auto& [key, spelling] : spellings) {
        manufacturers.push_back(spelling);
    }
    return manufacturers;
}

bool ProductMatches(const CatalogProduct& product, std::string_view manufacturer,
                    std::string_view query) {
    if (!IsOfManufacturer(product, manufacturer)) {
        return false;
    }
    const std::string texts = Slugify(product.manufacturer + " " + product.code + " " +
                                          product.description + " " + product.lamp,
                                      LongestTexts);
    const std::string words = Slugify(query, LongestQuery);
    for (std::size_t start = 0; start < words.size();) {
        const std::size_t end = std::min(words.find('-', start), words.size());
        if (texts.find(words.substr(start, end - start)) == std::string::npos) {
            return false;
        }
        start = end + 1;
    }
    return true;
}

} // namespace Merivane::Catalog
