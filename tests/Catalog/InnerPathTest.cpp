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

} // namespace

TEST(InnerPath, TakesThePathsOfACatalogue) {
    for (const std::string path :
         {"catalogo.json", "pacotes/luz/ab-12/ab-12.gsm", "a b/ç.png", "./a", "a//b", ".a", "a.",
          "..a", "a..", "a/..b", "console/x", "nula.txt", "com10", "lpt", "acon", "com", "a.con"}) {
        EXPECT_TRUE(IsInnerPath(path)) << path;
    }
}

TEST(InnerPath, RefusesEveryWayOut) {
    const std::vector<std::string> nowhere = {"", "a\nb", "\x01"};
    const std::vector<std::string> up = {"..", "../a", "a/../b", "a/..", "a/../../b"};
    const std::vector<std::string> upOnWindows = {".. ", "...", ". .", "a/.. /b", "a/. "};
    const std::vector<std::string> fromTheRoot = {"/a", "//a/b", "/"};
    const std::vector<std::string> backSlashes = {"\\a", "a\\b", "..\\a", "\\\\servidor\\a"};
    const std::vector<std::string> drivesAndStreams = {"C:/a", "C:a", "c:\\a", "a/b:c"};
    const std::vector<std::string> devices = {
        "con",  "CON",  "a/Nul",  "nul.txt",  "aux.tar.gz", "prn",     "COM1",  "lpt9.ies",
        "com0", "com¹", "LPT³.x", "con .txt", "conin$",     "CONOUT$", "clock$"};
    for (const auto& paths :
         {nowhere, up, upOnWindows, fromTheRoot, backSlashes, drivesAndStreams, devices}) {
        for (const std::string& path : paths) {
            EXPECT_FALSE(IsInnerPath(path)) << path;
        }
    }
    EXPECT_FALSE(IsInnerPath(std::string("a\0b", 3)));
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
        ASSERT_TRUE(place.string().starts_with("/base")) << path;
    }
    EXPECT_GT(taken, 1000);
}

TEST(InnerPath, FollowsLinksToSeeWhereAFileStands) {
    const Tests::TemporaryFolder folder;
    const fs::path base = folder.Path() / "base";
    fs::create_directories(base / "dentro");
    fs::create_directories(folder.Path() / "base2");
    Tests::WriteBytes(base / "dentro/a", "a");
    Tests::WriteBytes(folder.Path() / "base2/fora", "f");
    fs::create_symlink("dentro/a", base / "para-dentro");
    fs::create_symlink("../base2/fora", base / "para-fora");
    fs::create_directory_symlink(folder.Path() / "base2", base / "pasta-fora");
    fs::create_directory_symlink(base, folder.Path() / "outra-base");

    EXPECT_TRUE(LeadsInside(base, base / "dentro/a"));
    EXPECT_TRUE(LeadsInside(base, base / "para-dentro"));
    EXPECT_TRUE(LeadsInside(folder.Path() / "outra-base", folder.Path() / "outra-base/dentro/a"));
    EXPECT_FALSE(LeadsInside(base, base / "para-fora"));
    EXPECT_FALSE(LeadsInside(base, base / "pasta-fora/fora"));
    EXPECT_FALSE(LeadsInside(base, folder.Path() / "base2/fora")); // a name that only begins alike
    EXPECT_FALSE(LeadsInside(base, base));
    EXPECT_FALSE(LeadsInside(base, base / "falta"));
    EXPECT_FALSE(LeadsInside(folder.Path() / "falta", base / "dentro/a"));
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

} // namespace Merivane::Catalog
