#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/CatalogSamples.hpp"
#include "Catalog/ProductFilter.hpp"

namespace Merivane::Catalog {
namespace {

CatalogProduct Of(const std::string& manufacturer) {
    CatalogProduct product = SampleProduct();
    product.manufacturer = manufacturer;
    return product;
}

} // namespace

TEST(ProductFilter, FindsWordsInAnyOrderWithoutAccentsOrCase) {
    CatalogProduct product;
    product.manufacturer = "Luz & Cia";
    product.code = "AB-12/60";
    product.description = "Luminária Ótima";
    product.lamp = "LED 60W";
    product.block = "Bloco";
    product.id = "luz-cia/ab-12-60-led-60w";
    struct Case {
        std::string query;
        bool matches;
    };
    const Case cases[] = {
        {"", true},          {" - ", true},     {"ÓTIMA 60w", true},  {"60W otima", true},
        {"lumin", true},     {"INÁRIA", true},  {"cia luz", true},    {"luz&cia", true},
        {"ab 12", true},     {"ab12", false},   {"otima 80w", false}, {"bloco", false},
        {"led, led", true},  {"a b c d", true}, {"z", true},          {"x", false},
        {"60 led 12", true}, {"luzcia", false}, {"ciaab", false}, // no word over two texts
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ProductMatches(product, "", c.query), c.matches) << c.query;
        EXPECT_EQ(ProductMatches(product, "(todos)", c.query), c.matches) << c.query;
        EXPECT_FALSE(ProductMatches(product, "Outra", c.query)) << c.query;
    }
}

TEST(ProductFilter, CutsAQueryAndTextsWhereTheyGrowTooLong) {
    CatalogProduct product;
    product.description = std::string(1990, 'a') + " bcdefghij klm";
    EXPECT_TRUE(ProductMatches(product, "", "bcdefgh"));
    EXPECT_FALSE(ProductMatches(product, "", "bcdefghijk"));
    EXPECT_FALSE(ProductMatches(product, "", "klm"));
    // Of a query only the first 500 bytes count.
    EXPECT_TRUE(ProductMatches(product, "", std::string(499, 'a') + " zinco"));
    EXPECT_FALSE(ProductMatches(product, "", std::string(498, 'a') + " zinco"));
}

TEST(ProductFilter, ComparesManufacturersAsSlugs) {
    EXPECT_TRUE(ProductMatches(Of("Átrio Luz"), "ATRIO-LUZ", ""));
    EXPECT_TRUE(ProductMatches(Of("Átrio Luz"), "(átrio/luz)", ""));
    EXPECT_FALSE(ProductMatches(Of("Átrio Luz"), "Átrio", ""));
    EXPECT_FALSE(ProductMatches(Of("Átrio Luz"), "(sem fabricante)", ""));
    for (const std::string none : {"", "---", " "}) {
        EXPECT_TRUE(ProductMatches(Of(none), "(sem fabricante)", "")) << none;
        EXPECT_TRUE(ProductMatches(Of(none), "", "")) << none;
        EXPECT_FALSE(ProductMatches(Of(none), "Luz", "")) << none;
    }
    const std::string longName(200, 'l');
    EXPECT_TRUE(ProductMatches(Of(longName + "a"), longName + "b", ""));
    EXPECT_FALSE(ProductMatches(Of(longName.substr(1) + "a"), longName.substr(1) + "b", ""));
}

TEST(ProductFilter, ListsEachManufacturerOnceInItsFirstSpelling) {
    EXPECT_EQ(CatalogManufacturers({}), std::vector<std::string>{});
    EXPECT_EQ(CatalogManufacturers({Of("luz"), Of("Átrio"), Of("LUZ"), Of("---"), Of("atrio"),
                                    Of(""), Of("Zênite")}),
              (std::vector<std::string>{"(sem fabricante)", "Átrio", "luz", "Zênite"}));
}

TEST(ProductFilter, EveryWordOfAProductFindsIt) {
    std::mt19937 random(17);
    const std::string words[] = {"Ótima", "LED", "60W", "açaí", "x", "G13", "Pendente"};
    for (int round = 0; round < 2000; ++round) {
        const auto any = [&] { return words[random() % std::size(words)]; };
        CatalogProduct product;
        product.manufacturer = any();
        product.code = any() + "/" + any();
        product.description = any() + " " + any();
        product.lamp = any();
        ASSERT_TRUE(ProductMatches(product, product.manufacturer,
                                   product.lamp + "," + product.code + "," + product.description));
    }
}

} // namespace Merivane::Catalog
