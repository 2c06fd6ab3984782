#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/ProductAddress.hpp"

namespace Merivane::Catalog {

TEST(ProductAddress, IsMadeOfManufacturerCodeAndLamp) {
    struct Case {
        std::string manufacturer, code, name, lamp, ies;
        std::string address;
    };
    const Case cases[] = {
        {"Luz & Cia.", "AB-12/60", "Painel", "LED 3000K", "x.ies", "luz-cia/ab-12-60-led-3000k"},
        {"Luz", "AB-12", "Painel", "", "x.ies", "luz/ab-12"},
        {"---", "AB-12", "", "", "", "sem-fabricante/ab-12"},
        {"", "AB-12", "", "", "", "sem-fabricante/ab-12"},
        {"Luz", "", "Painel Ótimo", "", "x.ies", "luz/painel-otimo"},
        {"Luz", " \t ", "Painel", "", "x.ies", "luz/painel"}, // blanks are no code
        {"Luz", "///", "Painel", "", "C:\\ies\\Spot 10.v2.ies", "luz/spot-10-v2"}, // a mute one is
        {"Luz", "", "", "", "/dados/ies/Spot_10.ies", "luz/spot-10"},
        {"Luz", "", "", "", "a/b\\c.ies", "luz/c"},
        {"Luz", "", "", "", ".ies", "luz/ies"}, // a point that stands first ends no stem
        {"Luz", "", "", "", "sem-ponto", "luz/sem-ponto"},
        {"Luz", "", "!", "G13", "?.ies", "luz/luminaria-g13"},
        {"Luz", "", "", "", "", "luz/luminaria"},
    };
    for (const Case& c : cases) {
        const std::string address = ProductAddress(c.manufacturer, c.code, c.name, c.lamp, c.ies);
        EXPECT_EQ(address, c.address);
        EXPECT_TRUE(IsValidProductAddress(address)) << address;
    }
}

TEST(ProductAddress, CutsEachOfItsParts) {
    const std::string address =
        ProductAddress(std::string(41, 'f'), std::string(51, 'c'), "", std::string(31, 'l'), "");
    std::string expected(40, 'f');
    expected.append("/").append(50, 'c').append("-").append(30, 'l');
    EXPECT_EQ(address, expected);
}

TEST(ProductAddress, IsValidWhateverTheTexts) {
    std::mt19937 random(11);
    const auto text = [&random] {
        std::string bytes;
        for (std::size_t count = random() % 12; count > 0; --count) {
            bytes += static_cast<char>(random());
        }
        return bytes;
    };
    for (int round = 0; round < 20000; ++round) {
        const std::string address = ProductAddress(text(), text(), text(), text(), text());
        ASSERT_TRUE(IsValidProductAddress(address)) << address;
    }
}

TEST(ProductAddress, RefusesWhatCouldLeaveTheFolderOfPackages) {
    for (const std::string valid : {"a/b", "A-1.x_2/b.c", "a/...", ".a/b", "a/-"}) {
        EXPECT_TRUE(IsValidProductAddress(valid)) << valid;
    }
    for (const std::string refused : {"",     "a",    "/",     "a/",  "/b",    "a/b/c",   "a//b",
                                      "../b", "a/..", "./b",   "a/.", "a/b c", "a\\b/c",  "a/b\\..",
                                      "a/c:", "a/ç",  "a/b\n", "..",  "/../b", "a/%2e%2e"}) {
        EXPECT_FALSE(IsValidProductAddress(refused)) << refused;
    }
    EXPECT_FALSE(IsValidProductAddress(std::string("a/b\0", 4)));
}

TEST(ProductAddress, NamesThePackagesFolderAndItsLeaf) {
    EXPECT_EQ(ProductPackageFolder("luz/ab-12"), "pacotes/luz/ab-12");
    EXPECT_EQ(ProductLeafName("luz/ab-12"), "ab-12");
    EXPECT_EQ(ProductLeafName("luz/ab/12"), "ab/12");
    EXPECT_EQ(ProductLeafName("ab-12"), "ab-12");
    EXPECT_EQ(ProductLeafName("luz/"), "");
}

} // namespace Merivane::Catalog
