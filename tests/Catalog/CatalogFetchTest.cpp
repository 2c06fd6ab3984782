#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "Catalog/CatalogCache.hpp"
#include "Catalog/CatalogFetch.hpp"
#include "Catalog/CatalogSamples.hpp"
#include "Catalog/InnerPath.hpp"
#include "Support/Places.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Catalog {
namespace {

namespace fs = std::filesystem;

const std::string Address = "https://luz.example/cat/";
constexpr const char* OtherBytes =
    " nao confere com o catalogo (SHA-256 diferente): o arquivo foi trocado sem reexportar o "
    "catalogo";

/// A cache of its own, and a web that always answers the same and counts how often it is asked.
class CatalogFetch : public testing::Test {
protected:
    FetchResult Fetch(const CatalogFile& file) {
        return FetchVerifiedFile(Address, file, [this](const std::string& url, std::uint64_t most) {
            asked.push_back(url);
            askedMost = most;
            return answer;
        });
    }

    /// The copy of a file in the cache; "-" when there is none.
    static std::string Cached(const std::string& path) {
        std::string bytes;
        return ReadCached(CatalogCacheFolder(Address), path, bytes) ? bytes : "-";
    }

    /// How many files stand below the test's folder.
    std::ptrdiff_t FileCount() const {
        const fs::recursive_directory_iterator all(folder.Path());
        return std::count_if(begin(all), end(all), [](const fs::directory_entry& entry) {
            return entry.symlink_status().type() == fs::file_type::regular;
        });
    }

    const Tests::TemporaryFolder folder;
    const Tests::Variable cacheHome{"XDG_CACHE_HOME", (folder.Path() / "cache").string()};
    HttpResult answer{true, 200, "bytes", ""};
    std::vector<std::string> asked;
    std::uint64_t askedMost = 0;
};

TEST_F(CatalogFetch, TakesTheWebsAnswerAsItStands) {
    const FetchResult result = FetchCatalogFile(
        Address, "//pacotes/a b.ies", [this](const std::string& url, std::uint64_t most) {
            asked.push_back(url);
            askedMost = most;
            return HttpResult{false, 404, "nada aqui", "arquivo nao encontrado no servidor (404)"};
        });
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.bytes, "nada aqui");
    EXPECT_EQ(result.error, "arquivo nao encontrado no servidor (404)");
    EXPECT_EQ(asked, (std::vector<std::string>{"https://luz.example/cat/pacotes/a%20b.ies"}));
    EXPECT_EQ(askedMost, 268435456U);
}

TEST_F(CatalogFetch, KeepsAVerifiedFileAndAsksNoMore) {
    const CatalogFile file = TrueFile("pacotes/luz/a/a.gsm", "bytes");
    for (int round = 0; round < 2; ++round) {
        const FetchResult result = Fetch(file);
        EXPECT_TRUE(result.ok);
        EXPECT_EQ(result.bytes, "bytes");
        EXPECT_EQ(result.error, "");
    }
    EXPECT_EQ(asked, (std::vector<std::string>{Address + "pacotes/luz/a/a.gsm"}));
    EXPECT_EQ(askedMost, 268435456U);
    EXPECT_EQ(Cached("pacotes/luz/a/a.gsm"), "bytes");
    EXPECT_EQ(FileCount(), 1);
}

TEST_F(CatalogFetch, TakesTheCopyWhoseDigestIsListedWhateverItsSize) {
    CatalogFile file = TrueFile("a.gsm", "bytes");
    ASSERT_TRUE(StoreCached(CatalogCacheFolder(Address), "a.gsm", "bytes"));
    file.size = 99;
    answer = {false, 0, "", "sem rede"};
    EXPECT_TRUE(Fetch(file).ok);
    EXPECT_TRUE(asked.empty());
}

TEST_F(CatalogFetch, ReplacesACopyOfAnotherVersion) {
    ASSERT_TRUE(StoreCached(CatalogCacheFolder(Address), "a.gsm", "velho"));
    EXPECT_EQ(Fetch(TrueFile("a.gsm", "bytes")).bytes, "bytes");
    EXPECT_EQ(asked.size(), 1U);
    EXPECT_EQ(Cached("a.gsm"), "bytes");
}

TEST_F(CatalogFetch, TrustsNoCopyOfAFileWithoutADigest) {
    ASSERT_TRUE(StoreCached(CatalogCacheFolder(Address), "a.png", "velho"));
    const FetchResult result = Fetch({"a.png", 0, ""});
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.bytes, "bytes");
    EXPECT_EQ(Cached("a.png"), "bytes");
}

TEST_F(CatalogFetch, RefusesWhatIsNotAsListedAndKeepsNothing) {
    const std::string digest = TrueFile("", "bytes").hash;
    std::string upper = digest;
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 32) : c; });
    ASSERT_NE(upper, digest);
    struct Case {
        CatalogFile file;
        std::string error;
    };
    const Case cases[] = {
        {{"", 5, digest}, "o catalogo nao lista este arquivo"},
        {{"a.gsm", 6, digest},
         "a.gsm veio com 5 bytes, o catalogo diz 6 (download incompleto, ou o catalogo nao foi "
         "atualizado junto)"},
        {{"a.gsm", 4, "outro"}, // the size is told first
         "a.gsm veio com 5 bytes, o catalogo diz 4 (download incompleto, ou o catalogo nao foi "
         "atualizado junto)"},
        {{"a.gsm", 1, ""},
         "a.gsm veio com 5 bytes, o catalogo diz 1 (download incompleto, ou o catalogo nao foi "
         "atualizado junto)"},
        {{"a.gsm", 5, TrueFile("", "outros").hash}, std::string("a.gsm") + OtherBytes},
        {{"a.gsm", 0, upper}, std::string("a.gsm") + OtherBytes},
        {{"a.gsm", 5, digest.substr(0, 63)}, std::string("a.gsm") + OtherBytes},
        {{"a.gsm", 5, digest + " "}, std::string("a.gsm") + OtherBytes},
    };
    for (const Case& c : cases) {
        const FetchResult result = Fetch(c.file);
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.error, c.error);
        EXPECT_EQ(result.bytes, "") << "bytes that did not pass are given on";
        EXPECT_EQ(FileCount(), 0);
    }
}

TEST_F(CatalogFetch, ComparesNoSizeBelow1) {
    for (const std::int64_t size : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{-5}}) {
        EXPECT_TRUE(Fetch({"a.gsm", size, TrueFile("", "bytes").hash}).ok) << size;
    }
    answer.body = "";
    EXPECT_TRUE(Fetch({"b.gsm", 0, TrueFile("", "").hash}).ok);
    EXPECT_FALSE(Fetch({"b.gsm", 1, ""}).ok);
}

TEST_F(CatalogFetch, PassesOnWhyAFileCouldNotBeFetched) {
    answer = {false, 200, "comeco", "arquivo grande demais (mais de 256 MB)"};
    const FetchResult result = Fetch(TrueFile("a.gsm", "comeco"));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.error, "arquivo grande demais (mais de 256 MB)");
    EXPECT_EQ(result.bytes, "");
    EXPECT_EQ(FileCount(), 0);
}

TEST_F(CatalogFetch, GivesTheFileWhereItCannotBeKept) {
    Tests::WriteBytes(folder.Path() / "cache", "a file where the cache should be");
    EXPECT_TRUE(Fetch(TrueFile("a.gsm", "bytes")).ok);
    const Tests::Variable noCache("XDG_CACHE_HOME", std::nullopt);
    const Tests::Variable noHome("HOME", std::nullopt);
    EXPECT_TRUE(Fetch(TrueFile("a.gsm", "bytes")).ok);
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(CatalogFetch, KeepsNothingOfAPathThatLeavesTheCache) {
    for (const std::string path :
         {"../../../fora.gsm", "/fora.gsm", "a\\b.gsm", "C:/fora.gsm", "nul", "a/../../b"}) {
        const FetchResult result = Fetch(TrueFile(path, "bytes"));
        EXPECT_TRUE(result.ok) << path; // the web is asked as ever
        EXPECT_EQ(FileCount(), 0) << path;
    }
    EXPECT_EQ(asked.size(), 6U);
}

TEST_F(CatalogFetch, ReadsTheFilesOfAFolder) {
    const CatalogProduct product = WriteSampleCatalog(folder.Path());
    const std::string base = folder.Path().string();
    const FetchResult result = FetchCatalogFile(base, product.part.path);
    EXPECT_TRUE(result.ok) << result.error;
    EXPECT_EQ(result.bytes, "bytes do bloco");
    EXPECT_TRUE(FetchCatalogFile(base + "/", "/" + product.ies.path).ok);
    EXPECT_TRUE(FetchVerifiedFile(base, product.curve).ok);
    const FetchResult missing = FetchCatalogFile(base, "pacotes/falta.gsm");
    EXPECT_FALSE(missing.ok);
    EXPECT_EQ(missing.error, "arquivo nao encontrado: " + base + "/pacotes/falta.gsm");
    const FetchResult isFolder = FetchCatalogFile(base, "pacotes");
    EXPECT_EQ(isFolder.error, "arquivo nao encontrado: " + base + "/pacotes");
}

TEST_F(CatalogFetch, ReadsNothingOutsideTheFolder) {
    const fs::path base = folder.Path() / "base";
    fs::create_directories(base / "a");
    fs::create_directories(folder.Path() / "fora");
    Tests::WriteBytes(folder.Path() / "fora/segredo", "segredo");
    fs::create_symlink("../fora/segredo", base / "elo");
    fs::create_directory_symlink(folder.Path() / "fora", base / "pasta");
    fs::create_symlink("/dev/zero", base / "sem-fim");
    Tests::WriteBytes(base / "nul", "");
    Tests::WriteBytes(base / "dentro", "a");
    fs::create_symlink("dentro", base / "para-dentro");
    struct Case {
        std::string path;
        PathFault fault;
    };
    const Case cases[] = {
        {"../fora/segredo", PathFault::LeadsOut},
        {"a/../../fora/segredo", PathFault::LeadsOut},
        {"elo", PathFault::LinkLeadsOut},
        {"pasta/segredo", PathFault::LinkLeadsOut},
        {"a\\x", PathFault::BackSlash},
        {"C:x", PathFault::Colon},
        {"nul", PathFault::DeviceName},
        {"", PathFault::NoFileName},
        {"a/", PathFault::NoFileName},
        {".", PathFault::NoFileName},
    };
    for (const Case& c : cases) {
        const FetchResult result = FetchCatalogFile(base.string(), c.path);
        EXPECT_FALSE(result.ok) << c.path;
        EXPECT_EQ(result.bytes, "");
        EXPECT_EQ(result.error, RefusedPath(c.fault, c.path));
        FileDigest digest;
        std::string error;
        EXPECT_FALSE(DigestCatalogFile(base.string(), c.path, digest, error));
        EXPECT_EQ(error, result.error);
        EXPECT_FALSE(FetchVerifiedFile(base.string(), {c.path, 0, ""}).ok);
    }
    EXPECT_EQ(FetchCatalogFile(base.string(), "sem-fim").error,
              "arquivo nao encontrado: " + base.string() + "/sem-fim");
    EXPECT_EQ(FetchCatalogFile(base.string(), "para-dentro").bytes, "a");
    EXPECT_EQ(FileCount(), 3);
}

TEST_F(CatalogFetch, WaitsForNoPipe) {
    ASSERT_EQ(::mkfifo((folder.Path() / "fila").c_str(), 0600), 0);
    const FetchResult result = FetchCatalogFile(folder.Path().string(), "fila");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.error, "arquivo nao encontrado: " + folder.Path().string() + "/fila");
}

TEST_F(CatalogFetch, FollowsALinkThatStaysInside) {
    const CatalogProduct product = WriteSampleCatalog(folder.Path() / "cat");
    fs::create_directory_symlink("pacotes", folder.Path() / "cat/outro");
    EXPECT_TRUE(FetchCatalogFile((folder.Path() / "cat").string(), "outro/luz/ab-12/ab-12.gsm").ok);
}

TEST_F(CatalogFetch, DigestsAFileOfAFolderAndOfTheWeb) {
    Tests::WriteBytes(folder.Path() / "a", "bytes");
    FileDigest local;
    FileDigest remote;
    std::string error;
    ASSERT_TRUE(DigestCatalogFile(folder.Path().string(), "a", local, error));
    ASSERT_TRUE(DigestCatalogFile(Address, "a", remote, error,
                                  [this](const std::string&, std::uint64_t) { return answer; }));
    EXPECT_EQ(local.size, 5U);
    EXPECT_EQ(local.sha256, TrueFile("", "bytes").hash);
    EXPECT_EQ(remote.size, local.size);
    EXPECT_EQ(remote.sha256, local.sha256);
    EXPECT_EQ(error, "");
    EXPECT_FALSE(DigestCatalogFile(folder.Path().string(), "b", local, error));
    EXPECT_EQ(error, "arquivo nao encontrado: " + folder.Path().string() + "/b");
    EXPECT_EQ(local.size, 5U) << "the digest must stay as it was";
    answer = {false, 404, "nada", "arquivo nao encontrado no servidor (404)"};
    EXPECT_FALSE(DigestCatalogFile(Address, "a", remote, error,
                                   [this](const std::string&, std::uint64_t) { return answer; }));
    EXPECT_EQ(error, "arquivo nao encontrado no servidor (404)");
    EXPECT_EQ(remote.sha256, local.sha256) << "the digest must stay as it was";
}

TEST_F(CatalogFetch, DigestsAFileInParts) {
    for (const std::size_t size : {0UL, 1UL, 131071UL, 131072UL, 131073UL, 1000000UL}) {
        const std::string bytes(size, 'x');
        Tests::WriteBytes(folder.Path() / "arquivo", bytes);
        FileDigest digest;
        std::string error;
        ASSERT_TRUE(DigestCatalogFile(folder.Path().string(), "arquivo", digest, error));
        EXPECT_EQ(digest.size, size);
        EXPECT_EQ(digest.sha256, Sha256Hex(bytes));
    }
}

TEST_F(CatalogFetch, StopsADigestBetweenTwoBlocks) {
    Tests::WriteBytes(folder.Path() / "arquivo", std::string(1000000, 'x'));
    FileDigest digest;
    std::string error;
    int questions = 0;
    EXPECT_FALSE(DigestCatalogFile(folder.Path().string(), "arquivo", digest, error, HttpGet,
                                   [&questions] { return ++questions == 3; }));
    EXPECT_EQ(questions, 3);
    EXPECT_EQ(error, "a busca foi interrompida");
    EXPECT_EQ(digest.sha256, "");
}

TEST_F(CatalogFetch, HoldsTheFilesOfAFolderToTheSameLimit) {
    Tests::WriteBytes(folder.Path() / "enorme", "");
    fs::resize_file(folder.Path() / "enorme", LargestCatalogFile + 1); // takes no place on the disk
    const std::string base = folder.Path().string();
    const FetchResult result = FetchCatalogFile(base, "enorme");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.bytes, "");
    EXPECT_EQ(result.error, "arquivo grande demais (mais de 256 MB)");
    FileDigest digest;
    std::string error;
    EXPECT_FALSE(DigestCatalogFile(base, "enorme", digest, error));
    EXPECT_EQ(error, "arquivo grande demais (mais de 256 MB)");
    fs::resize_file(folder.Path() / "enorme", LargestCatalogFile);
    EXPECT_TRUE(DigestCatalogFile(base, "enorme", digest, error));
    EXPECT_EQ(digest.size, LargestCatalogFile);
}

TEST_F(CatalogFetch, KeepsACopyOfAFolderToo) {
    const fs::path place = folder.Path() / "cat";
    const CatalogProduct product = WriteSampleCatalog(place);
    EXPECT_TRUE(FetchVerifiedFile(place.string(), product.part).ok);
    std::string copy;
    EXPECT_TRUE(ReadCached(CatalogCacheFolder(place.string()), product.part.path, copy));
    EXPECT_EQ(copy, "bytes do bloco");
    fs::remove_all(place);
    const FetchResult kept = FetchVerifiedFile(place.string(), product.part);
    EXPECT_TRUE(kept.ok) << kept.error;
    EXPECT_EQ(kept.bytes, "bytes do bloco");
    const FetchResult gone = FetchVerifiedFile(place.string(), product.ies);
    EXPECT_FALSE(gone.ok);
    EXPECT_EQ(gone.error, "arquivo nao encontrado: " + place.string() + "/" + product.ies.path);
}

} // namespace
} // namespace Merivane::Catalog
