#include "Catalog/CatalogIndex.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "Catalog/JsonNumbers.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

CatalogIndex Refused(std::string error) {
    CatalogIndex index;
    index.error = std::move(error);
    return index;
}

/// What a product is sorted by, worked out once.
struct SortedProduct {
    std::array<std::string, 4> keys;
    CatalogProduct product;
};

} // namespace

CatalogIndex ParseCatalogIndex(std::string_view bytes) {
    JsonValue root;
    if (const JsonParseResult parsed = JsonParse(bytes, root, MostIndexValues); !parsed.ok) {
        return Refused("catalogo.json invalido: " + parsed.error);
    }
    const JsonValue* const products = root.Find("produtos");
    if (products == nullptr || products->kind != JsonKind::Array) {
        return Refused("catalogo.json sem a lista de produtos - o endereco aponta mesmo para um "
                       "catalogo do Vantoro?");
    }
    const auto format = WholeNumberOr<std::int64_t>(root, "formato", 0);
    if (format > CatalogFormat) {
        return Refused("este catalogo usa o formato " + std::to_string(format) +
                       ", mais novo que o deste Vantoro (" + std::to_string(CatalogFormat) +
                       "). Atualize o Vantoro.");
    }
    CatalogIndex index;
    index.updated = root.StringOr("atualizado", "");
    // No place is kept for all items: what is no product needs none.
    for (const JsonValue& item : products->items) {
        CatalogProduct product;
        if (ReadCatalogProduct(item, product) && !product.part.hash.empty()) {
            index.products.push_back(std::move(product));
        } else {
            ++index.incomplete;
        }
    }
    index.ok = true;
    return index;
}

JsonValue BuildCatalogIndex(std::vector<CatalogProduct> products, std::string_view date) {
    std::vector<SortedProduct> sorted;
    sorted.reserve(products.size());
    for (CatalogProduct& product : products) {
        sorted.push_back({{Text::ToLower(product.manufacturer), Text::ToLower(product.description),
                           Text::ToLower(product.lamp), product.id},
                          std::move(product)});
    }
    std::stable_sort(
        sorted.begin(), sorted.end(),
        [](const SortedProduct& a, const SortedProduct& b) { return a.keys < b.keys; });

    JsonValue index = JsonValue::MakeObject();
    index.Set("formato", JsonValue::MakeNumber(CatalogFormat));
    index.Set("atualizado", JsonValue::MakeString(std::string(date)));
    JsonValue& list = index.Set("produtos", JsonValue::MakeArray());
    list.items.reserve(sorted.size());
    for (const SortedProduct& entry : sorted) {
        list.items.push_back(WriteCatalogProduct(entry.product));
    }
    return index;
}

} // namespace Merivane::Catalog
