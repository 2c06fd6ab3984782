#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/CatalogCache.hpp"
#include "Support/Places.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Catalog {
namespace {

namespace fs = std::filesystem;
using Tests::Variable;

/// Everything below a folder, links by their own name.
std::vector<std::string> Below(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        names.push_back(entry.path().lexically_relative(folder).string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(CatalogCache, StandsInTheUsersFolderForCaches) {

    struct Case {
        std::optional<std::string> cacheHome, home;
        std::wstring folder;
    };
    const std::wstring end = L"/Vantoro/catalogo/220112ae2ca33f37";
    const Case cases[] = {
        {"/c", "/h", L"/c" + end},
        {"/c/", "/h", L"/c" + end},
        {std::nullopt, "/h", L"/h/.cache" + end},
        {"", "/h", L"/h/.cache" + end},
        {"relativa", "/h", L"/h/.cache" + end}, // has no meaning there
        {std::nullopt, std::nullopt, L""},
        {"x", "h", L""},
    };
    for (const Case& c : cases) {
        const Variable cacheHome("XDG_CACHE_HOME", c.cacheHome);
        const Variable home("HOME", c.home);
        EXPECT_EQ(CatalogCacheFolder("https://luz.example/cat/"), c.folder);
    }
}

TEST(CatalogCache, HasAFolderForEachAddress) {
    const Variable cacheHome("XDG_CACHE_HOME", "/c");
    EXPECT_NE(CatalogCacheFolder("https://a/"), CatalogCacheFolder("https://a"));
    EXPECT_NE(CatalogCacheFolder("https://a/"), CatalogCacheFolder("https://A/"));
}

TEST(CatalogCache, KeepsWhatItIsGiven) {
    const Tests::TemporaryFolder folder;
    const std::wstring cache = Text::WidePath(folder.Path() / "ainda/nao");
    std::string bytes;
    EXPECT_FALSE(ReadCached(cache, "a/b.gsm", bytes));
    EXPECT_TRUE(StoreCached(cache, "a/b.gsm", "um"));
    EXPECT_TRUE(ReadCached(cache, "a/b.gsm", bytes));
    EXPECT_EQ(bytes, "um");
    EXPECT_TRUE(StoreCached(cache, "a/b.gsm", std::string("dois\0", 5)));
    EXPECT_TRUE(ReadCached(cache, "a/b.gsm", bytes));
    EXPECT_EQ(bytes, std::string("dois\0", 5));
    EXPECT_EQ(Below(folder.Path()),
              (std::vector<std::string>{"ainda", "ainda/nao", "ainda/nao/a", "ainda/nao/a/b.gsm"}));
}

TEST(CatalogCache, OfNoFolderKeepsNothing) {
    std::string bytes;
    EXPECT_FALSE(StoreCached(L"", "a", "x"));
    EXPECT_FALSE(ReadCached(L"", "a", bytes));
    EXPECT_FALSE(fs::exists("a"));
}

TEST(CatalogCache, WritesAndReadsNothingOutside) {
    const Tests::TemporaryFolder folder;
    const fs::path cache = folder.Path() / "cache";
    const fs::path outside = folder.Path() / "fora";
    fs::create_directories(cache);
    fs::create_directories(outside);
    Tests::WriteBytes(outside / "b", "antes");
    fs::create_directory_symlink(outside, cache / "elo");
    fs::create_symlink(outside / "b", cache / "arquivo");
    fs::create_symlink(outside / "novo", cache / "partido");
    const std::vector<std::string> before = Below(folder.Path());
    for (const std::string path :
         {"../fora/b", "../x", "/x", "elo/b", "elo/novo/x", "arquivo", "partido", "partido/x",
          "a\\b", "C:x", "nul", "", "elo", ".", "a/"}) {
        std::string bytes;
        EXPECT_FALSE(StoreCached(Text::WidePath(cache), path, "depois")) << path;
        EXPECT_FALSE(ReadCached(Text::WidePath(cache), path, bytes)) << path;
    }
    EXPECT_EQ(Below(folder.Path()), before);
    EXPECT_EQ(Tests::ReadBytes(outside / "b"), "antes");
}

TEST(CatalogCache, FollowsNoLinkThatStandsBesideACopy) {
    const Tests::TemporaryFolder folder;
    const fs::path cache = folder.Path() / "cache";
    fs::create_directories(cache);
    Tests::WriteBytes(folder.Path() / "fora", "antes");
    fs::create_symlink(folder.Path() / "fora", cache / "a.gsm.parcial");
    EXPECT_TRUE(StoreCached(Text::WidePath(cache), "a.gsm", "depois"));
    EXPECT_EQ(Tests::ReadBytes(cache / "a.gsm"), "depois");
    EXPECT_EQ(Tests::ReadBytes(folder.Path() / "fora"), "antes");
    EXPECT_EQ(Below(cache), (std::vector<std::string>{"a.gsm", "a.gsm.parcial"}));
}

TEST(CatalogCache, LeavesTheOldCopyWhereItCannotWrite) {
    const Tests::TemporaryFolder folder;
    const std::wstring cache = Text::WidePath(folder.Path());
    EXPECT_TRUE(StoreCached(cache, "a", "um"));
    EXPECT_FALSE(StoreCached(cache, "a/b", "dois")); // a file where a folder should be
    EXPECT_FALSE(StoreCached(cache, std::string(300, 'n'), "dois"));
    EXPECT_EQ(Below(folder.Path()), (std::vector<std::string>{"a"}));
    EXPECT_EQ(Tests::ReadBytes(folder.Path() / "a"), "um");
}

} // namespace
} // namespace Merivane::Catalog
