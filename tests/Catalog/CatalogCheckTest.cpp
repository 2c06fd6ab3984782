#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogCheck.hpp"
#include "Catalog/CatalogSamples.hpp"
#include "Catalog/InnerPath.hpp"
#include "Catalog/ProductAddress.hpp"
#include "Support/Places.hpp"

namespace Merivane::Catalog {
namespace {

namespace fs = std::filesystem;

void GoOn(std::size_t /*done*/, std::size_t /*all*/) {}

/// A true catalogue in a folder, to be made a liar.
class CatalogCheckOfAFolder : public testing::Test {
protected:
    CatalogCheck Check() const {
        CatalogIndex index;
        index.ok = true;
        index.products = products;
        index.incomplete = incomplete;
        return CheckCatalog(folder.Path().string(), index, GoOn);
    }

    /// The findings' texts; all must be about the first product.
    std::vector<std::string> Findings() const {
        std::vector<std::string> texts;
        for (const CatalogFinding& finding : Check().findings) {
            EXPECT_EQ(finding.product, products.front().id);
            texts.push_back(finding.text);
        }
        return texts;
    }

    fs::path Package() const { return folder.Path() / "pacotes/luz/ab-12"; }

    const Tests::TemporaryFolder folder;
    std::vector<CatalogProduct> products = {WriteSampleCatalog(folder.Path())};
    std::size_t incomplete = 0;
};

using Texts = std::vector<std::string>;

TEST_F(CatalogCheckOfAFolder, FindsNothingInATrueOne) {
    const CatalogCheck check = Check();
    EXPECT_TRUE(check.findings.empty());
    EXPECT_EQ(check.files, 4U); // the package's record, part, IES file and curve
    EXPECT_EQ(check.withoutHash, 0U);
    EXPECT_FALSE(check.stopped);
}

TEST_F(CatalogCheckOfAFolder, TellsOfFilesThatAreNotAsListed) {
    Tests::WriteBytes(Package() / "ab-12.gsm", "bytes");
    Tests::WriteBytes(Package() / "ab-12.ies", "IESNA:LM-63-1995\n");
    fs::remove(Package() / "curva.png");
    EXPECT_EQ(Findings(),
              (Texts{"pacotes/luz/ab-12/ab-12.gsm veio com 5 bytes, o catalogo diz 14 (download "
                     "incompleto, ou o catalogo nao foi atualizado junto)",
                     "pacotes/luz/ab-12/ab-12.ies nao confere com o catalogo (SHA-256 diferente): "
                     "o arquivo foi trocado sem reexportar o catalogo",
                     "arquivo nao encontrado: " + (Package() / "curva.png").string()}));
    EXPECT_EQ(Check().files, 1U);
}

TEST_F(CatalogCheckOfAFolder, TellsOfFilesThatAreNotListed) {
    products[0].ies = {};
    products[0].curve = {};
    Tests::WriteBytes(Package() / "produto.json", JsonWrite(WriteCatalogProduct(products[0])));
    EXPECT_EQ(Findings(), (Texts{"ies: o catalogo nao lista este arquivo",
                                 "curva: o catalogo nao lista este arquivo"}));
}

TEST_F(CatalogCheckOfAFolder, ChecksTheImageOfAProductThatHasOne) {
    products[0].image = TrueFile("pacotes/luz/ab-12/imagem.png", "imagem");
    Tests::WriteBytes(Package() / "produto.json", JsonWrite(WriteCatalogProduct(products[0])));
    EXPECT_EQ(Findings(),
              (Texts{"arquivo nao encontrado: " + (Package() / "imagem.png").string()}));
    Tests::WriteBytes(Package() / "imagem.png", "imagem");
    EXPECT_EQ(Findings(), Texts{});
    EXPECT_EQ(Check().files, 5U);
}

TEST_F(CatalogCheckOfAFolder, CountsFilesWithoutADigest) {
    products[0].curve.hash = "";
    products[0].curve.size = 0;
    Tests::WriteBytes(Package() / "produto.json", JsonWrite(WriteCatalogProduct(products[0])));
    const CatalogCheck check = Check();
    EXPECT_TRUE(check.findings.empty());
    EXPECT_EQ(check.files, 4U);
    EXPECT_EQ(check.withoutHash, 1U);
}

TEST_F(CatalogCheckOfAFolder, HoldsThePackagesRecordToTheIndex) {
    const std::string different =
        "produto.json difere do catalogo.json: o catalogo nao foi refeito depois da ultima mudanca";
    struct Case {
        std::string text;
        std::string finding;
    };
    CatalogProduct newer = products[0];
    newer.version = 4;
    const Case cases[] = {
        {"{", "produto.json invalido: esperava o nome de um membro (byte 1)"},
        {"[]", "produto.json incompleto"},
        {R"({"id": "luz/ab-12"})", "produto.json incompleto"},
        {JsonWrite(WriteCatalogProduct(newer)), different},
    };
    for (const Case& c : cases) {
        Tests::WriteBytes(Package() / "produto.json", c.text);
        EXPECT_EQ(Findings(), Texts{c.finding}) << c.text;
    }
    fs::remove(Package() / "produto.json");
    EXPECT_EQ(Findings(),
              (Texts{"arquivo nao encontrado: " + (Package() / "produto.json").string()}));
}

TEST_F(CatalogCheckOfAFolder, TellsOfAddressesThatAreNone) {
    products[0].id = "../ab-12";
    EXPECT_EQ(Findings(), Texts{"endereco de produto invalido"});
    EXPECT_EQ(Check().files, 3U);
}

TEST_F(CatalogCheckOfAFolder, TellsOfAnAddressThatComesAgain) {
    products.push_back(products[0]);
    EXPECT_EQ(Findings(), Texts{"endereco repetido no catalogo"});
    EXPECT_EQ(Check().files, 7U) << "its files are checked, its record is that of the first";
    products[1].part.size = 1;
    EXPECT_EQ(Findings(), (Texts{"endereco repetido no catalogo",
                                 "pacotes/luz/ab-12/ab-12.gsm veio com 14 bytes, o catalogo diz 1 "
                                 "(download incompleto, ou o catalogo nao foi atualizado junto)"}));
}

TEST_F(CatalogCheckOfAFolder, TellsOfAFolderThatWindowsDoesNotTake) {
    products[0].id = ProductAddress("Aux", "AB-12", "", "", "");
    ASSERT_TRUE(IsValidProductAddress(products[0].id));
    EXPECT_EQ(Findings(),
              Texts{"o Windows nao aceita a pasta \"pacotes/aux/ab-12\": um dos nomes e "
                    "reservado para dispositivos"});
    EXPECT_EQ(Check().files, 3U);
}

TEST_F(CatalogCheckOfAFolder, RefusesARecordOfTooManyValues) {
    std::string zeros = "[0";
    for (std::size_t i = 2; i < MostProductValues + 1; ++i) {
        zeros += ",0";
    }
    Tests::WriteBytes(Package() / "produto.json", zeros + "]");
    EXPECT_EQ(Findings(), Texts{"produto.json invalido: valores demais (byte 199999)"});
}

TEST_F(CatalogCheckOfAFolder, TellsOfEntriesThatWereLeftOut) {
    incomplete = 2;
    EXPECT_EQ(Check().findings,
              (std::vector<CatalogFinding>{{"", "2 entrada(s) incompleta(s) ignorada(s)"}}));
}

TEST_F(CatalogCheckOfAFolder, ReadsNothingOutsideIt) {
    Tests::WriteBytes(folder.Path() / "segredo", "segredo");
    fs::create_symlink("/etc/passwd", Package() / "elo");
    for (const std::string path :
         {"../segredo", "/segredo", "a\\b", "C:x", "nul", "pacotes/luz/ab-12/elo", "pacotes/"}) {
        products[0].curve.path = path;
        Tests::WriteBytes(Package() / "produto.json", JsonWrite(WriteCatalogProduct(products[0])));
        const PathFault fault = FaultOfPath(path);
        EXPECT_EQ(
            Findings(),
            Texts{RefusedPath(fault == PathFault::None ? PathFault::LinkLeadsOut : fault, path)});
    }
}

TEST_F(CatalogCheckOfAFolder, StopsWhereItIsAskedTo) {
    products.push_back(products[0]);
    products.push_back(products[0]);
    CatalogIndex index;
    index.products = products;
    std::vector<std::size_t> told;
    const auto tell = [&told](std::size_t done, std::size_t all) {
        EXPECT_EQ(all, 3U);
        told.push_back(done);
    };
    const CatalogCheck check = CheckCatalog(folder.Path().string(), index, tell, HttpGet,
                                            [&told] { return told.size() == 2; });
    EXPECT_TRUE(check.stopped);
    EXPECT_EQ(check.files, 4U);
    EXPECT_EQ(told, (std::vector<std::size_t>{0, 1}));
    EXPECT_TRUE(check.findings.empty()) << "what was not looked at is no finding";
}

TEST_F(CatalogCheckOfAFolder, StopsBetweenTwoFiles) {
    CatalogIndex index;
    index.products = products;
    std::vector<std::string> asked;
    const auto answer = [&asked](const std::string& url, std::uint64_t /*most*/) {
        asked.push_back(url);
        return HttpResult{false, 0, "", "a busca foi interrompida"};
    };
    const CatalogCheck check = CheckCatalog("https://luz.example/", index, GoOn, answer,
                                            [&asked] { return asked.size() == 2; });
    EXPECT_TRUE(check.stopped);
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(check.findings.size(), 1U) << "of the file before, not of the one that was stopped";
}

TEST_F(CatalogCheckOfAFolder, AsksTheWebForEachFileAndForNothingThatLeaves) {
    products[0].curve.path = "../fora.png";
    CatalogIndex index;
    index.products = products;
    std::vector<std::string> asked;
    const CatalogCheck check = CheckCatalog(
        "https://luz.example/", index, GoOn, [&asked](const std::string& url, std::uint64_t most) {
            EXPECT_EQ(most, LargestCatalogFile);
            asked.push_back(url);
            return HttpResult{false, 404, "nada",
                              "arquivo nao encontrado no servidor (404): " + url};
        });
    const std::string package = "https://luz.example/pacotes/luz/ab-12/";
    EXPECT_EQ(asked, (std::vector<std::string>{package + "produto.json", package + "ab-12.gsm",
                                               package + "ab-12.ies"}));
    ASSERT_EQ(check.findings.size(), 4U);
    EXPECT_EQ(check.findings[1].text,
              "arquivo nao encontrado no servidor (404): " + package + "ab-12.gsm");
    EXPECT_EQ(check.findings[3].text,
              "o catalogo lista um caminho que sai da pasta dele: \"../fora.png\"");
    EXPECT_EQ(check.files, 0U);
}

} // namespace
} // namespace Merivane::Catalog
