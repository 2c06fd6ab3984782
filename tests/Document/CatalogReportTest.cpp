#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/CatalogProduct.hpp"
#include "Document/CatalogReport.hpp"
#include "Document/TextColumns.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Document {
namespace {

using Catalog::CatalogProduct;

CatalogProduct Panel() {
    CatalogProduct product;
    product.id = "luz/ab-12";
    product.manufacturer = "Átrio Luz";
    product.code = "AB-12";
    product.description = "Painel Ótimo";
    product.lamp = "LED 3000 K";
    product.flux = 2999.5;
    product.power = 29.25;
    product.part.path = "x.gsm";
    return product;
}

} // namespace

TEST(CatalogReport, ListsProductsInColumns) {
    const CatalogProduct panel = Panel();
    CatalogProduct other;
    other.manufacturer = "Fábrica de Luminárias Compridas";
    other.block = "Bloco_1";
    other.lamp = "a\nb\x1b[31m";
    EXPECT_EQ(
        CatalogListLines({&panel, &other}),
        (std::vector<std::string>{
            "Fabricante            Produto                                     Lâmpada           "
            "     lm        W",
            "Átrio Luz             AB-12 - Painel Ótimo                        LED 3000 K        "
            "   3000     29,3",
            "Fábrica de Luminári…  Bloco                                       a b [31m          "
            "      -        -",
        }));
    other.flux = 1e300;
    other.power = 1e300;
    for (const std::string& line : CatalogListLines({&panel, &other})) {
        EXPECT_LE(CharacterCount(line), 100U);
    }
}

TEST(CatalogReport, SumsUpAnIndexInOneSentence) {
    Catalog::CatalogIndex index;
    EXPECT_EQ(CatalogSummary(index), "0 produto(s) de 0 fabricante(s).");
    index.products = {Panel(), Panel(), CatalogProduct()};
    index.updated = "2026-11-21";
    EXPECT_EQ(CatalogSummary(index), "3 produto(s) de 2 fabricante(s), catálogo de 2026-11-21.");
    index.incomplete = 1;
    EXPECT_EQ(CatalogSummary(index), "3 produto(s) de 2 fabricante(s), catálogo de 2026-11-21; 1 "
                                     "entrada(s) incompleta(s) ignorada(s).");
}

TEST(CatalogReport, TellsEachFindingOnALineThatCanBeShown) {
    Catalog::CatalogCheck check;
    check.files = 4;
    EXPECT_EQ(CatalogCheckLines(check),
              (std::vector<std::string>{"4 arquivo(s) em ordem, nenhum problema."}));
    check.withoutHash = 1;
    check.findings = {{"", "um"}, {"luz/a\x1b\n", "dois"}};
    EXPECT_EQ(CatalogCheckLines(check),
              (std::vector<std::string>{
                  "um", "luz/a  : dois",
                  "4 arquivo(s) em ordem (1 sem SHA-256 no catálogo), 2 problema(s)."}));
}

TEST(CatalogReport, GivesProductsToAProgramAsTheyArePublished) {
    const CatalogProduct panel = Panel();
    const Catalog::JsonValue list = CatalogListJson({&panel});
    ASSERT_EQ(list.items.size(), 1U);
    EXPECT_EQ(Catalog::JsonWrite(list.items[0]),
              Catalog::JsonWrite(Catalog::WriteCatalogProduct(panel)));
    EXPECT_EQ(Catalog::JsonWrite(CatalogListJson({})), "[]\n");
}

TEST(CatalogReport, GivesAProgramTextsThatEveryReaderTakes) {
    const std::string odd = "a\xC2\x9B"
                            "b\x7F"
                            "c\xFF\n d";
    CatalogProduct product;
    for (std::string* text : {&product.id, &product.updated, &product.manufacturer, &product.code,
                              &product.description, &product.lamp, &product.block}) {
        *text = odd;
    }
    for (Catalog::CatalogFile* file :
         {&product.part, &product.ies, &product.curve, &product.image}) {
        *file = {odd, 1, odd};
    }
    product.macros = {odd, " como escrito "};
    const std::string written = Catalog::JsonWrite(CatalogListJson({&product}));
    std::size_t shown = 0;
    const std::string plain = "\"a b c\xEF\xBF\xBD  d\"";
    for (std::size_t at = 0; (at = written.find(plain, at)) != std::string::npos; ++at) {
        ++shown;
    }
    EXPECT_EQ(shown, 16U) << written;
    EXPECT_NE(written.find("\" como escrito \""), std::string::npos);
    EXPECT_EQ(Text::ShownLines(written), written)
        << "no control character, no byte that is not UTF-8";
}

TEST(CatalogReport, GivesACheckToAProgram) {
    Catalog::CatalogIndex index;
    index.updated = "2026-11-21";
    index.products = {Panel()};
    Catalog::CatalogCheck check;
    check.files = 3;
    check.withoutHash = 1;
    check.findings = {{"", "um"}, {"luz/ab-12", "dois"}};
    EXPECT_EQ(Catalog::JsonWrite(CatalogCheckJson("https://a/", index, check)), R"({
	"endereco": "https://a/",
	"atualizado": "2026-11-21",
	"produtos": 1,
	"arquivos": 3,
	"sem_sha256": 1,
	"problemas": [
		{
			"produto": null,
			"texto": "um"
		},
		{
			"produto": "luz/ab-12",
			"texto": "dois"
		}
	]
}
)");
}

} // namespace Merivane::Document
