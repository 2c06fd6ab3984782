#include <filesystem>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "Catalog/InnerPath.hpp"
#include "Support/Places.hpp"

namespace Merivane::Catalog {
namespace {

namespace fs = std::filesystem;

TEST(InnerPath, TakesThePathsOfACatalogue) {
    for (const std::string path :
         {"catalogo.json", "pacotes/luz/ab-12/ab-12.gsm", "a b/ç.png", "./a", "a//b", ".a", "a.",
          "..a", "a..", "a/..b", "console/x", "nula.txt", "com10", "lpt", "acon", "com", "a.con"}) {
        EXPECT_TRUE(IsInnerPath(path)) << path;
    }
}

TEST(InnerPath, RefusesEveryWayOut) {
    struct Case {
        PathFault fault;
        std::vector<std::string> paths;
    };
    const Case cases[] = {
        {PathFault::NoFileName, {"", ".", "./", "a/", "a/.", "a//", "./.", " ", "a/ "}},
        {PathFault::ControlCharacter, {"a\nb", "\x01", std::string("a\0b", 3), "../\t"}},
        {PathFault::LeadsOut, {"..", "../a", "a/../b", "a/..", "a/../../b", "a/../"}},
        // on Windows
        {PathFault::LeadsOut, {".. ", "...", ". .", "a/.. /b", "a/. "}},
        {PathFault::LeadsOut, {"/a", "//a/b", "/"}},
        {PathFault::BackSlash, {"\\a", "a\\b", "..\\a", "\\\\servidor\\a", "c:\\a"}},
        {PathFault::Colon, {"C:/a", "C:a", "a/b:c"}},
        {PathFault::DeviceName,
         {"con", "CON", "a/Nul", "nul.txt", "aux.tar.gz", "prn", "COM1", "lpt9.ies", "com0", "com¹",
          "LPT³.x", "con .txt", "conin$", "CONOUT$", "clock$", "pacotes/aux/a.gsm"}},
    };
    for (const Case& c : cases) {
        for (const std::string& path : c.paths) {
            EXPECT_EQ(FaultOfPath(path), c.fault) << path;
            EXPECT_FALSE(IsInnerPath(path)) << path;
        }
    }
}

TEST(InnerPath, TellsWhyAPathIsRefused) {
    struct Case {
        PathFault fault;
        std::string sentence;
    };
    const Case cases[] = {
        {PathFault::LeadsOut, "o catalogo lista um caminho que sai da pasta dele: \"x y\""},
        {PathFault::LinkLeadsOut,
         "o catalogo lista um caminho que um atalho leva para fora da pasta dele: \"x y\""},
        {PathFault::NoFileName,
         "o catalogo lista um caminho que nao termina no nome de um arquivo: \"x y\""},
        {PathFault::BackSlash, "o catalogo lista um caminho com barra invertida: \"x y\""},
        {PathFault::Colon, "o catalogo lista um caminho com dois-pontos: \"x y\""},
        {PathFault::ControlCharacter,
         "o catalogo lista um caminho com um caractere de controle: \"x y\""},
        {PathFault::DeviceName,
         "o catalogo lista um nome que o Windows reserva para dispositivos: \"x y\""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(RefusedPath(c.fault, "x\ny"), c.sentence);
    }
}

TEST(InnerPath, StaysBelowItsFolderWhateverItIsMadeOf) {
    const std::string pieces[] = {"/", "..", ".", "a", " ", "\\", "C:", "nul", "ç", "//", "b"};
    std::mt19937 random(13);
    int taken = 0;
    for (int round = 0; round < 50000; ++round) {
        std::string path;
        for (std::size_t count = random() % 8; count > 0; --count) {
            path += pieces[random() % std::size(pieces)];
        }
        if (!IsInnerPath(path)) {
            continue;
        }
        ++taken;
        const fs::path place = (fs::path("/base") / path).lexically_normal();
        ASSERT_TRUE(place.string().starts_with("/base/")) << path;
        ASSERT_TRUE(place.has_filename()) << path;
    }
    EXPECT_GT(taken, 1000);
}

TEST(InnerPath, SeesWhetherARealPathStandsBelowAFolder) {
    const Tests::TemporaryFolder folder;
    const fs::path base = folder.Path() / "base";
    fs::create_directories(base / "dentro");
    fs::create_directories(folder.Path() / "base2");
    Tests::WriteBytes(base / "dentro/a", "a");
    Tests::WriteBytes(folder.Path() / "base2/fora", "f");
    fs::create_directory_symlink(base, folder.Path() / "outra-base");
    const fs::path real = fs::canonical(folder.Path());

    EXPECT_TRUE(StandsBelow(base, real / "base/dentro/a"));
    EXPECT_TRUE(StandsBelow(base.string() + "/", real / "base/dentro/a"));
    EXPECT_TRUE(StandsBelow(folder.Path() / "outra-base", real / "base/dentro/a"));
    EXPECT_FALSE(StandsBelow(base, real / "base2/fora")); // a name that only begins alike
    EXPECT_FALSE(StandsBelow(base, real / "base"));
    EXPECT_FALSE(StandsBelow(base, ""));
    EXPECT_FALSE(StandsBelow(folder.Path() / "falta", real / "base/dentro/a"));
}

TEST(InnerPath, SeesALinkOnTheWay) {
    const Tests::TemporaryFolder folder;
    const fs::path base = folder.Path() / "base";
    fs::create_directories(base / "a/b");
    Tests::WriteBytes(base / "a/b/c", "c");
    fs::create_symlink("c", base / "a/b/elo");
    fs::create_directory_symlink("b", base / "a/elo");
    fs::create_symlink("falta", base / "a/partido");
    ASSERT_EQ(::mkfifo((base / "fila").c_str(), 0600), 0);
    fs::create_directory_symlink(base, folder.Path() / "elo-da-base");

    EXPECT_TRUE(IsFreeOfLinks(base, base / "a/b/c"));
    EXPECT_TRUE(IsFreeOfLinks(base, base / "a/b/novo"));
    EXPECT_TRUE(IsFreeOfLinks(base, base / "x/y/z"));
    EXPECT_TRUE(IsFreeOfLinks(folder.Path() / "falta", folder.Path() / "falta/a"));
    EXPECT_TRUE(IsFreeOfLinks(folder.Path() / "elo-da-base", folder.Path() / "elo-da-base/a/b/c"));
    EXPECT_FALSE(IsFreeOfLinks(base, base / "a/b/elo"));
    EXPECT_FALSE(IsFreeOfLinks(base, base / "a/elo/c"));
    EXPECT_FALSE(IsFreeOfLinks(base, base / "a/partido"));
    EXPECT_FALSE(IsFreeOfLinks(base, base / "a/partido/x"));
    EXPECT_FALSE(IsFreeOfLinks(base, base / "fila"));
    EXPECT_FALSE(IsFreeOfLinks(base, base / "a/b"));     // a folder where a file should be
    EXPECT_FALSE(IsFreeOfLinks(base, base / "a/b/c/d")); // a file where a folder should be
}

} // namespace
} // namespace Merivane::Catalog
