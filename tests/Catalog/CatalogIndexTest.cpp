#include <algorithm>
#include <ctime>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogIndex.hpp"
#include "Catalog/CatalogSamples.hpp"

namespace Merivane::Catalog {
namespace {

constexpr const char* NoProducts =
    "catalogo.json sem a lista de produtos - o endereco aponta mesmo para um catalogo do Vantoro?";

/// An index of one product whose part lists no digest beside good ones.
std::string Element(const std::string& id, const std::string& part) {
    return R"({"id": ")" + id + R"(", "arquivos": {"gsm": {"caminho": "x", )" + part + "}}}";
}

std::vector<std::string> IdsOf(const JsonValue& index) {
    std::vector<std::string> ids;
    for (const JsonValue& product : index.Find("produtos")->items) {
        ids.push_back(product.StringOr("id", ""));
    }
    return ids;
}

CatalogProduct Named(const std::string& id, const std::string& manufacturer,
                     const std::string& description, const std::string& lamp) {
    CatalogProduct product = SampleProduct();
    product.id = id;
    product.manufacturer = manufacturer;
    product.description = description;
    product.lamp = lamp;
    return product;
}

} // namespace

TEST(CatalogIndex, RefusesWhatIsNoIndexOfAFormatThatItKnows) {
    struct Case {
        std::string text;
        std::string error;
    };
    const Case cases[] = {
        {"", "catalogo.json invalido: fim inesperado (byte 0)"},
        {"<html>", "catalogo.json invalido: valor inesperado (byte 0)"},
        {R"({"produtos": [)", "catalogo.json invalido: fim inesperado (byte 14)"},
        {"[]", NoProducts},
        {"null", NoProducts},
        {"{}", NoProducts},
        {R"({"produtos": {}})", NoProducts},
        {R"({"produtos": null, "formato": 2})", NoProducts}, // told before the format
        {R"({"formato": 2, "produtos": []})",
         "este catalogo usa o formato 2, mais novo que o deste Vantoro (1). Atualize o Vantoro."},
        {R"({"formato": 7.9, "produtos": [3]})",
         "este catalogo usa o formato 7, mais novo que o deste Vantoro (1). Atualize o Vantoro."},
        {R"({"formato": 3000000000, "produtos": []})",
         "este catalogo usa o formato 3000000000, mais novo que o deste Vantoro (1). Atualize o "
         "Vantoro."},
    };
    for (const Case& c : cases) {
        const CatalogIndex index = ParseCatalogIndex(c.text);
        EXPECT_FALSE(index.ok) << c.text;
        EXPECT_EQ(index.error, c.error);
        EXPECT_TRUE(index.products.empty());
    }
}

TEST(CatalogIndex, AcceptsEveryFormatBelow2) {
    for (const std::string format :
         {"", R"("formato": 0, )", R"("formato": 1, )", R"("formato": 1.9, )", R"("formato": -5, )",
          R"("formato": "2", )", R"("formato": [2], )"}) {
        const CatalogIndex index = ParseCatalogIndex("{" + format + R"("produtos": []})");
        EXPECT_TRUE(index.ok) << format << index.error;
        EXPECT_EQ(index.error, "");
    }
}

TEST(CatalogIndex, LeavesOutAndCountsWhatIsIncomplete) {
    const CatalogIndex index = ParseCatalogIndex(
        "\xEF\xBB\xBF{\"atualizado\": \"2026-11-20\", \"produtos\": [" +
        Element("b/2", R"("sha256": "ab")") + "," + Element("a/1", R"("sha256": "")") + "," +
        Element("a/2", R"("bytes": 3)") + "," + Element("a/3", R"("sha256": 5)") + "," +
        Element("", R"("sha256": "ab")") + ", null, [], 3, {}," +
        Element("a/4", R"("sha256": "AB")") + "," + Element("b/2", R"("sha256": "cd")") + "]}");
    ASSERT_TRUE(index.ok) << index.error;
    EXPECT_EQ(index.updated, "2026-11-20");
    EXPECT_EQ(index.incomplete, 8U);
    ASSERT_EQ(index.products.size(), 3U); // in the order of the file, repeated ones too
    EXPECT_EQ(index.products[0].id, "b/2");
    EXPECT_EQ(index.products[1].id, "a/4");
    EXPECT_EQ(index.products[2].id, "b/2");
    EXPECT_EQ(index.products[2].part.hash, "cd");
}

TEST(CatalogIndex, IsBuiltWithItsProductsInOrder) {
    const JsonValue index = BuildCatalogIndex(
        {
            Named("z/9", "luz", "a", "LED"),
            Named("a/2", "Luz", "a", "led"),
            Named("a/1", "LUZ", "B", ""),
            Named("a/0", "Luz", "A", "G13"),
            Named("b/0", "Átrio", "a", ""),
            Named("b/1", "", "z", ""),
            Named("b/2", "ÁTRIO", "", ""),
        },
        "2026-11-21");
    EXPECT_EQ(index.NumberOr("formato", 0), 1.0);
    EXPECT_EQ(index.StringOr("atualizado", ""), "2026-11-21");
    ASSERT_EQ(index.members.size(), 3U);
    EXPECT_EQ(index.members[0].key, "formato");
    EXPECT_EQ(index.members[1].key, "atualizado");
    EXPECT_EQ(index.members[2].key, "produtos");
    // Only ASCII is lowered: "ÁTRIO" becomes "Átrio" but for its first letter, which both share.
    EXPECT_EQ(IdsOf(index),
              (std::vector<std::string>{"b/1", "a/0", "a/2", "z/9", "a/1", "b/2", "b/0"}));
}

TEST(CatalogIndex, HasOneOrderWhateverTheOrderOfItsProducts) {
    std::mt19937 random(3);
    std::vector<CatalogProduct> products;
    for (int i = 0; i < 60; ++i) {
        const auto name = [&random] { return std::string(1, "aAbBÁ"[random() % 4]); };
        products.push_back(Named("p/" + std::to_string(i), name(), name(), name()));
    }
    const std::string built = JsonWrite(BuildCatalogIndex(products, "2026-11-21"));
    for (int round = 0; round < 50; ++round) {
        std::shuffle(products.begin(), products.end(), random);
        ASSERT_EQ(JsonWrite(BuildCatalogIndex(products, "2026-11-21")), built);
    }
    const CatalogIndex index = ParseCatalogIndex(built);
    EXPECT_EQ(JsonWrite(BuildCatalogIndex(index.products, index.updated)), built);
}

TEST(CatalogIndex, AndItsPlacesKeepTheirPublishedNames) {
    EXPECT_EQ(CatalogIndexName, "catalogo.json");
    EXPECT_EQ(CatalogFormat, 1);
    EXPECT_EQ(CatalogRootKey, "MVCATR01");
    EXPECT_EQ(CatalogAddressKey, "MVCATS01");
}

TEST(CatalogIndex, OfNoProductsIsAnIndex) {
    const std::string written = JsonWrite(BuildCatalogIndex({}, "2026-11-21"));
    EXPECT_EQ(written, "{\n\t\"formato\": 1,\n\t\"atualizado\": \"2026-11-21\",\n"
                       "\t\"produtos\": []\n}\n");
    EXPECT_TRUE(ParseCatalogIndex(written).ok);
}

TEST(CatalogIndex, OfAHundredThousandProductsIsReadWhole) {
    std::vector<CatalogProduct> products;
    products.reserve(100000);
    for (int i = 0; i < 100000; ++i) {
        products.push_back(SampleProduct());
        products.back().id = "luz/p-" + std::to_string(i);
    }
    const std::string text = JsonWrite(BuildCatalogIndex(products, "2026-11-21"));
    const std::clock_t start = std::clock();
    const CatalogIndex index = ParseCatalogIndex(text);
    const std::clock_t taken = std::clock() - start; // of the processor, whoever else uses it
    RecordProperty("megabytes", static_cast<int>(text.size() / 1000000));
    RecordProperty("milliseconds", static_cast<int>(taken / (CLOCKS_PER_SEC / 1000)));
    ASSERT_TRUE(index.ok) << index.error;
    ASSERT_EQ(index.products.size(), 100000U);
    EXPECT_EQ(index.incomplete, 0U);
    products.front().id = "luz/p-0";
    EXPECT_EQ(index.products.front(), products.front());
    EXPECT_EQ(index.products.back().id, "luz/p-99999");
}

TEST(CatalogIndex, CutAnywhereIsRefusedInOneSentence) {
    const std::string text = JsonWrite(BuildCatalogIndex({SampleProduct()}, "2026-11-21"));
    for (std::size_t length = 0; length + 2 < text.size(); ++length) {
        const CatalogIndex index = ParseCatalogIndex(text.substr(0, length));
        ASSERT_FALSE(index.ok) << length;
        ASSERT_TRUE(index.error.starts_with("catalogo.json invalido: ")) << index.error;
    }
}

TEST(CatalogIndex, KeepsNoPlaceForWhatIsNoProduct) {
    std::string zeros;
    for (int i = 1; i < 1000000; ++i) {
        zeros += "0,";
    }
    const CatalogIndex index = ParseCatalogIndex(R"({"produtos": [)" + zeros + "0]}");
    EXPECT_TRUE(index.ok);
    EXPECT_EQ(index.incomplete, 1000000U);
    EXPECT_EQ(index.products.capacity(), 0U);
}

TEST(CatalogIndex, OfTooManyValuesIsRefused) {
    std::string zeros;
    zeros.reserve(2 * MostIndexValues);
    for (std::size_t i = 0; i < MostIndexValues; ++i) {
        zeros += "0,";
    }
    const CatalogIndex index = ParseCatalogIndex('[' + zeros + "0]");
    EXPECT_FALSE(index.ok);
    EXPECT_EQ(index.error, "catalogo.json invalido: valores demais (byte 15999999)");
}

TEST(CatalogIndex, ReadsAFormatBeyondEveryNumber) {
    EXPECT_EQ(ParseCatalogIndex(R"({"formato": 1e300, "produtos": []})").error,
              "este catalogo usa o formato 9223372036854775807, mais novo que o deste Vantoro (1). "
              "Atualize o Vantoro.");
    EXPECT_TRUE(ParseCatalogIndex(R"({"formato": -1e300, "produtos": []})").ok);
}

TEST(CatalogIndex, TakesADayOfAnotherTypeAsNone) {
    for (const std::string day : {"20261121", "null", "[\"2026-11-21\"]", "{}", "true"}) {
        const CatalogIndex index =
            ParseCatalogIndex(R"({"atualizado": )" + day + R"(, "produtos": []})");
        EXPECT_TRUE(index.ok) << day;
        EXPECT_EQ(index.updated, "") << day;
    }
}

} // namespace Merivane::Catalog
