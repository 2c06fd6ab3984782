#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/CatalogProduct.hpp"
#include "Catalog/CatalogSamples.hpp"

namespace Merivane::Catalog {
namespace {

CatalogProduct Read(const std::string& text) {
    JsonValue value;
    EXPECT_TRUE(JsonParse(text, value).ok) << text;
    CatalogProduct product;
    EXPECT_TRUE(ReadCatalogProduct(value, product)) << text;
    return product;
}

bool IsComplete(const std::string& text) {
    JsonValue value;
    EXPECT_TRUE(JsonParse(text, value).ok) << text;
    CatalogProduct product;
    return ReadCatalogProduct(value, product);
}

/// A product with these members beside the two that it needs.
std::string WithMembers(const std::string& members) {
    return R"({"id": "a/b", "arquivos": {"gsm": {"caminho": "x.gsm"}}, )" + members + "}";
}

} // namespace

TEST(CatalogProduct, IsWrittenInItsPublishedOrder) {
    CatalogProduct product = SampleProduct();
    product.flux = 2999.95;
    product.power = 29.00049;
    product.colourRendering = 80;
    product.image = {"pacotes/luz/ab-12/imagem.png", 7, "ef"};
    product.macros = {"base", "tampa"};
    EXPECT_EQ(JsonWrite(WriteCatalogProduct(product)), R"({
	"id": "luz/ab-12",
	"versao": 3,
	"atualizado": "2026-11-20",
	"fabricante": "Luz",
	"catalogo": "AB-12",
	"descricao": "Painel Ótimo",
	"lampada": "LED",
	"ra": 80,
	"fluxo_lm": 3000,
	"potencia_w": 29,
	"eficacia_lm_w": 103.4,
	"abertura": {
		"largura_m": 0.6,
		"comprimento_m": 1.2,
		"altura_m": 0.123456789
	},
	"bloco": "Painel_1",
	"archicad": 28,
	"arquivos": {
		"gsm": {
			"caminho": "pacotes/luz/ab-12/ab-12.gsm",
			"bytes": 1500,
			"sha256": "ab"
		},
		"ies": {
			"caminho": "pacotes/luz/ab-12/ab-12.ies",
			"bytes": 900,
			"sha256": "cd"
		},
		"curva": {
			"caminho": "pacotes/luz/ab-12/curva.png",
			"bytes": 0,
			"sha256": ""
		},
		"imagem": {
			"caminho": "pacotes/luz/ab-12/imagem.png",
			"bytes": 7,
			"sha256": "ef"
		}
	},
	"macros": [
		"base",
		"tampa"
	]
}
)");
}

TEST(CatalogProduct, LeavesOutAnUnknownColourRenderingAndAMissingImageAlone) {
    CatalogProduct product;
    product.colourRendering = -1;
    EXPECT_EQ(JsonWrite(WriteCatalogProduct(product)), R"({
	"id": "",
	"versao": 1,
	"atualizado": "",
	"fabricante": "",
	"catalogo": "",
	"descricao": "",
	"lampada": "",
	"fluxo_lm": 0,
	"potencia_w": 0,
	"eficacia_lm_w": 0,
	"abertura": {
		"largura_m": 0,
		"comprimento_m": 0,
		"altura_m": 0
	},
	"bloco": "",
	"archicad": 29,
	"arquivos": {
		"gsm": {
			"caminho": "",
			"bytes": 0,
			"sha256": ""
		},
		"ies": {
			"caminho": "",
			"bytes": 0,
			"sha256": ""
		},
		"curva": {
			"caminho": "",
			"bytes": 0,
			"sha256": ""
		}
	},
	"macros": []
}
)");
}

TEST(CatalogProduct, RoundsHalvesAwayFromZero) {
    struct Case {
        double flux, power;
        double writtenFlux, writtenPower, writtenEfficacy;
    };
    const Case cases[] = {
        {0.25, 0.0625, 0.3, 0.063, 4.0},
        {1000.05, 0.0, 1000.1, 0.0, 0.0}, // no power, no efficacy
        {1000.0, -5.0, 1000.0, -5.0, 0.0},
        {-0.25, 2.0, -0.3, 2.0, -0.1}, // -0.125
        {1e308, 1.0, 1e308, 1.0, 1e308},
        {100.0, 0.0004, 100.0, 0.0, 250000.0}, // from the power as it is, not as written
        {1e300, 1e-300, 1e300, 0.0, 1.7976931348623157e308}, // no number holds it: the largest
        {-1e300, 1e-300, -1e300, 0.0, -1.7976931348623157e308},
    };
    for (const Case& c : cases) {
        CatalogProduct product;
        product.flux = c.flux;
        product.power = c.power;
        const JsonValue value = WriteCatalogProduct(product);
        EXPECT_DOUBLE_EQ(value.NumberOr("fluxo_lm", -1), c.writtenFlux);
        EXPECT_DOUBLE_EQ(value.NumberOr("potencia_w", -1), c.writtenPower);
        EXPECT_DOUBLE_EQ(value.NumberOr("eficacia_lm_w", -1), c.writtenEfficacy);
        EXPECT_EQ(JsonWrite(value).find("null"), std::string::npos);
    }
}

TEST(CatalogProduct, ReadsBackWhatIsWritten) {
    const CatalogProduct product = SampleProduct();
    EXPECT_EQ(Read(JsonWrite(WriteCatalogProduct(product))), product);
}

TEST(CatalogProduct, ReadsDefaultsForWhatIsMissing) {
    CatalogProduct expected;
    expected.id = "a/b";
    expected.part.path = "x.gsm";
    EXPECT_EQ(Read(R"({"id": "a/b", "arquivos": {"gsm": {"caminho": "x.gsm"}}})"), expected);
    EXPECT_EQ(expected.version, 1);
    EXPECT_EQ(expected.hostVersion, 29);
    EXPECT_EQ(expected.colourRendering, 0.0);
}

TEST(CatalogProduct, TakesAMemberOfAWrongTypeForAMissingOne) {
    CatalogProduct expected;
    expected.id = "a/b";
    expected.part.path = "x.gsm";
    for (const std::string members : {
             R"("versao": "2")",
             R"("atualizado": 20261120)",
             R"("fabricante": null, "catalogo": [], "descricao": {}, "lampada": true)",
             R"("ra": "80", "fluxo_lm": "1", "potencia_w": [2])",
             R"("abertura": [1, 2, 3])",
             R"("abertura": {"largura_m": "1", "comprimento_m": null})",
             R"("abertura": 3, "bloco": 1, "archicad": "28")",
             R"("macros": "base")",
             R"("macros": {"a": "base"})",
             R"("macros": [1, null, ["base"]])",
             R"("eficacia_lm_w": 99)",
         }) {
        EXPECT_EQ(Read(WithMembers(members)), expected) << members;
    }
    EXPECT_EQ(Read(WithMembers(R"("macros": [1, "base", null, "", "base"])")).macros,
              (std::vector<std::string>{"base", "", "base"}));
    const CatalogProduct files = Read(R"({"id": "a/b", "arquivos":
        {"gsm": {"caminho": "x.gsm", "bytes": "7", "sha256": 9}, "ies": "x.ies", "curva": []}})");
    EXPECT_EQ(files, expected);
}

TEST(CatalogProduct, NeedsAnAddressAndTheFileOfItsPart) {
    EXPECT_TRUE(IsComplete(R"({"id": "a", "arquivos": {"gsm": {"caminho": "x"}}})"));
    for (const std::string incomplete : {
             "null",
             "3",
             R"("a/b")",
             "[]",
             "{}",
             R"({"arquivos": {"gsm": {"caminho": "x"}}})",
             R"({"id": "", "arquivos": {"gsm": {"caminho": "x"}}})",
             R"({"id": 7, "arquivos": {"gsm": {"caminho": "x"}}})",
             R"({"id": "a"})",
             R"({"id": "a", "arquivos": "x"})",
             R"({"id": "a", "arquivos": {"gsm": "x"}})",
             R"({"id": "a", "arquivos": {"ies": {"caminho": "x"}}})",
             R"({"id": "a", "arquivos": {"gsm": {"caminho": ""}}})",
             R"({"id": "a", "arquivos": {"gsm": {"caminho": 1}}})",
         }) {
        EXPECT_FALSE(IsComplete(incomplete)) << incomplete;
    }
}

TEST(CatalogProduct, TruncatesWholeNumbersAndKeepsThemInTheirRange) {
    struct Case {
        std::string number;
        std::int32_t version;
        std::int64_t size;
    };
    constexpr auto Most = std::numeric_limits<std::int32_t>::max();
    constexpr auto Least = std::numeric_limits<std::int32_t>::min();
    const Case cases[] = {
        {"2.9", 2, 2},
        {"-2.9", -2, -2},
        {"0", 0, 0},
        {"2147483647", Most, 2147483647},
        {"2147483648", Most, 2147483648},
        {"-2147483648", Least, -2147483648},
        {"-2147483649", Least, -2147483649},
        {"9223372036854774784", Most, 9223372036854774784}, // the last double below the end
        {"9223372036854775808", Most, std::numeric_limits<std::int64_t>::max()},
        {"1e300", Most, std::numeric_limits<std::int64_t>::max()},
        {"-1e300", Least, std::numeric_limits<std::int64_t>::min()},
    };
    for (const Case& c : cases) {
        const CatalogProduct product =
            Read(R"({"id": "a", "versao": )" + c.number + R"(, "archicad": )" + c.number +
                 R"(, "arquivos": {"gsm": {"caminho": "x", "bytes": )" + c.number + "}}}");
        EXPECT_EQ(product.version, c.version) << c.number;
        EXPECT_EQ(product.hostVersion, c.version) << c.number;
        EXPECT_EQ(product.part.size, c.size) << c.number;
    }
}

TEST(CatalogProduct, ItsVersionRisesOnlyWithThePartsBytes) {
    struct Case {
        std::int32_t previous;
        std::string hash;
        std::int32_t next;
    };
    constexpr auto Most = std::numeric_limits<std::int32_t>::max();
    const Case cases[] = {
        {3, "ab", 3}, {3, "AB", 4},  {3, "", 4},        {0, "ab", 1},       {0, "cd", 2},
        {-7, "x", 2}, {-7, "ab", 1}, {Most, "x", Most}, {Most, "ab", Most},
    };
    for (const Case& c : cases) {
        CatalogProduct previous = SampleProduct();
        previous.version = c.previous;
        EXPECT_EQ(NextProductVersion(previous, c.hash), c.next) << c.previous << " " << c.hash;
    }
    EXPECT_EQ(NextProductVersion(std::nullopt, "ab"), 1);
}

TEST(CatalogProduct, ItsBlocksNameLosesTheCountsBehindIt) {
    struct Case {
        std::string text;
        std::string name;
    };
    const Case cases[] = {
        {"Spot_1", "Spot"},
        {"Spot_1_23", "Spot"},
        {" Spot_1 ", "Spot"},
        {"Spot _1", "Spot"},
        {"Spot_", "Spot_"},
        {"Spot_a", "Spot_a"},
        {"Spot_1a", "Spot_1a"},
        {"Spot_1_", "Spot_1_"},
        {"_12", "_12"},
        {"_12_3", "_12"},
        {"_", "_"},
        {"", ""},
        {"  ", ""},
        {"Spot_a_1", "Spot_a"},
        {"Spot__1", "Spot_"},
        {"60_60", "60"},
        {"Spot_\xD9\xA1", "Spot_\xD9\xA1"}, // digits of other scripts
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CleanBlockName(c.text), c.name) << c.text;
    }
}

TEST(CatalogProduct, ItsPartHasAFileNameThatEverySystemTakes) {
    struct Case {
        std::string block, id;
        std::string file;
    };
    const Case cases[] = {
        {"Painel_2", "luz/ab-12", "Painel.gsm"},
        {"Painel Ótimo", "luz/ab-12", "Painel Ótimo.gsm"},
        {"a<b>c:d\"e/f\\g|h?i*j", "luz/ab-12", "a-b-c-d-e-f-g-h-i-j.gsm"},
        {"a\x01"
         "b\nc",
         "luz/ab-12", "a-b-c.gsm"},
        {"Painel. . .", "luz/ab-12", "Painel.gsm"},
        {"Painel ._1", "luz/ab-12", "Painel.gsm"},
        {"", "luz/ab-12", "ab-12.gsm"},
        {" . . ", "luz/ab-12", "ab-12.gsm"},
        {"", "ab-12", "ab-12.gsm"},
        {"", "luz/ab.", "ab..gsm"},               // of an address each byte counts
        {"...", "luz/...", "....gsm"},            // a block of points names nothing
        {"", "luz/../../fora", "..-..-fora.gsm"}, // no address may lead out of the library
    };
    for (const Case& c : cases) {
        CatalogProduct product;
        product.block = c.block;
        product.id = c.id;
        EXPECT_EQ(LibraryFileName(product), c.file);
    }
}

TEST(CatalogProduct, IsShownByCodeAndName) {
    struct Case {
        std::string code, description, block;
        std::string shown;
    };
    const Case cases[] = {
        {"AB-12", "Painel", "Bloco", "AB-12 - Painel"},
        {"AB-12", "", "Bloco", "AB-12"},
        {"", "Painel", "Bloco", "Painel"},
        {"", "", "Bloco_1", "Bloco"},
        {"", "", "", ""},
    };
    for (const Case& c : cases) {
        CatalogProduct product;
        product.code = c.code;
        product.description = c.description;
        product.block = c.block;
        EXPECT_EQ(ProductDisplayName(product), c.shown);
    }
}

} // namespace Merivane::Catalog
