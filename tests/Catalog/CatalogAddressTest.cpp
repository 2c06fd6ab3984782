#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/CatalogAddress.hpp"

namespace Merivane::Catalog {
namespace {

struct AddressCase {
    std::string text;
    std::string expected;
};

/// Pieces of addresses in any order.
std::string RandomAddress(std::mt19937& random) {
    const std::string pieces[] = {
        "http://", "https://",      "HTTP://", "github.com/", "www.", "/",  "tree/", "blob/", "a",
        ".git",    "catalogo.json", "?",       "#",           " ",    "\"", "'",     "\\",    "..",
        "ç",       "%20",           ":",       "main"};
    std::string text = random() % 2 == 0 ? pieces[random() % 3] : "";
    for (std::size_t count = random() % 12; count > 0; --count) {
        text += pieces[random() % std::size(pieces)];
    }
    return text;
}

} // namespace

TEST(CatalogAddress, IsRemoteByItsScheme) {
    for (const std::string remote : {"http://", "https://a", "HTTP://a", "hTtPs://"}) {
        EXPECT_TRUE(IsRemoteAddress(remote)) << remote;
    }
    for (const std::string local :
         {"", "http:/", "http", " http://a", "ftp://a", "httpss://a", "C:\\x", "/x", "//a/b"}) {
        EXPECT_FALSE(IsRemoteAddress(local)) << local;
    }
}

TEST(CatalogAddress, TakesAFolderAsItIsPasted) {
    const AddressCase cases[] = {
        {"", ""},
        {" \t\r\n\"' ", ""},
        {"  \"/dados/catalogo\"\r\n", "/dados/catalogo"},
        {"C:\\x\\", "C:\\x\\"},
        {"/x/", "/x/"},
        {"/x/catalogo.json", "/x"},
        {"C:\\x\\CATALOGO.JSON", "C:\\x"},
        {"C:\\x\\/\\catalogo.json", "C:\\x"}, // all the separators before it go
        {"catalogo.json", "catalogo.json"},   // 13 bytes are not more than 13
        {"/catalogo.json", ""},
        {"meucatalogo.json", "meu"},
        {"/x/catalogo.json/", "/x/catalogo.json/"},
        {"/x/catalogo.jsonx", "/x/catalogo.jsonx"},
        {"/x?y#z", "/x?y#z"}, // signs of a web address mean nothing in a folder
        {"ftp://a/catalogo.json", "ftp://a"},
    };
    for (const AddressCase& c : cases) {
        EXPECT_EQ(NormalizeCatalogAddress(c.text), c.expected) << c.text;
    }
}

TEST(CatalogAddress, TakesAWebAddressWithoutItsTail) {
    const AddressCase cases[] = {
        {"https://luz.example/cat", "https://luz.example/cat/"},
        {"https://luz.example/cat/", "https://luz.example/cat/"},
        {" 'HTTPS://Luz.example/Cat' ", "HTTPS://Luz.example/Cat/"},
        {"https://luz.example/cat/catalogo.json", "https://luz.example/cat/"},
        {"https://luz.example/cat/Catalogo.JSON", "https://luz.example/cat/"},
        {"https://luz.example/cat/catalogo.json?raw=1#x", "https://luz.example/cat/"},
        {"https://luz.example/cat#catalogo.json", "https://luz.example/cat/"},
        {"https://luz.example/meucatalogo.json", "https://luz.example/meucatalogo.json/"},
        {"https://luz.example/cat/catalogo.json/", "https://luz.example/cat/catalogo.json/"},
        {"http://?", "http://"},
        {"http:///catalogo.json", "http:///"},
    };
    for (const AddressCase& c : cases) {
        EXPECT_EQ(NormalizeCatalogAddress(c.text), c.expected) << c.text;
    }
}

TEST(CatalogAddress, TurnsARepositoryPageIntoItsBareFiles) {
    const std::string raw = "https://raw.githubusercontent.com/";
    const AddressCase cases[] = {
        {"https://github.com/luz/cat", raw + "luz/cat/main/"},
        {"http://www.GitHub.com/Luz/Cat/", raw + "Luz/Cat/main/"},
        {"https://github.com/luz/cat.git", raw + "luz/cat/main/"},
        {"https://github.com/luz/cat.GIT", raw + "luz/cat/main/"},
        {"https://github.com/luz/.git", raw + "luz/.git/main/"}, // 4 bytes are not more than 4
        {"https://github.com/luz/a.git", raw + "luz/a/main/"},
        {"https://github.com//luz///cat//", raw + "luz/cat/main/"},
        {"https://github.com/luz/cat/tree/dev/catalogo", raw + "luz/cat/dev/catalogo/"},
        {"https://github.com/luz/cat/tree/dev/a/b/", raw + "luz/cat/dev/a/b/"},
        {"https://github.com/luz/cat/tree/dev", raw + "luz/cat/dev/"},
        {"https://github.com/luz/cat/tree", raw + "luz/cat/main/"}, // no branch behind it
        {"https://github.com/luz/cat/wiki/dev/x", raw + "luz/cat/main/"},
        {"https://github.com/luz/cat/Tree/dev/x", raw + "luz/cat/main/"},
        {"https://github.com/luz/cat/issues?q=tree", raw + "luz/cat/main/"},
        // A link to the index itself becomes a folder, in which no index stands.
        {"https://github.com/luz/cat/blob/main/catalogo.json", raw + "luz/cat/main/catalogo.json/"},
        {"https://github.com/luz", "https://github.com/luz/"},
        {"https://github.com/", "https://github.com/"},
        {"https://github.com", "https://github.com/"},
        {"https://github.com/catalogo.json", "https://github.com/"},
        {"https://github.com.luz.example/a/b", "https://github.com.luz.example/a/b/"},
        {"https://a.github.com/luz/cat", "https://a.github.com/luz/cat/"},
        {"https://luz.example/github.com/a/b", "https://luz.example/github.com/a/b/"},
        {raw + "luz/cat/main/catalogo.json", raw + "luz/cat/main/"},
    };
    for (const AddressCase& c : cases) {
        EXPECT_EQ(NormalizeCatalogAddress(c.text), c.expected) << c.text;
    }
}

TEST(CatalogAddress, OnTheWebIsABaseThatStaysWhatItIs) {
    std::mt19937 random(5);
    int remote = 0;
    for (int round = 0; round < 50000; ++round) {
        const std::string text = RandomAddress(random);
        const std::string address = NormalizeCatalogAddress(text);
        if (!IsRemoteAddress(address)) {
            continue;
        }
        ++remote;
        ASSERT_TRUE(address.ends_with('/')) << text;
        ASSERT_EQ(address.find_first_of("?#"), std::string::npos) << text;
        ASSERT_EQ(NormalizeCatalogAddress(address), address) << text;
    }
    EXPECT_GT(remote, 10000);
}

TEST(CatalogAddress, ResolvesAFileOnTheWeb) {
    struct Resolved {
        std::string base, path, expected;
    };
    const Resolved cases[] = {
        {"https://a/", "catalogo.json", "https://a/catalogo.json"},
        {"https://a", "catalogo.json", "https://a/catalogo.json"},
        {"https://a/", "///pacotes/b c/d  e.ies", "https://a/pacotes/b%20c/d%20%20e.ies"},
        {"https://a b/", "x", "https://a b/x"}, // only the path is escaped
        {"https://a/", "ç%?#&.ies", "https://a/ç%?#&.ies"},
        {"https://a/", "../x\\y", "https://a/../x\\y"},
        {"https://a/", "", "https://a/"},
        {"https://a/", "//", "https://a/"},
    };
    for (const Resolved& c : cases) {
        EXPECT_EQ(ResolveInCatalog(c.base, c.path), c.expected) << c.path;
    }
}

TEST(CatalogAddress, ResolvesAFileInAFolder) {
    struct Resolved {
        std::string base, path, expected;
    };
    // This system's separator is "/".
    const Resolved cases[] = {
        {"/cat", "catalogo.json", "/cat/catalogo.json"},
        {"/cat/", "catalogo.json", "/cat/catalogo.json"},
        {"/cat", "//pacotes/b c/d.ies", "/cat/pacotes/b c/d.ies"},
        {"cat", "a", "cat/a"},
        {"cat\\", "a\\b", "cat\\/a\\b"}, // a back slash is a character like any other here
        {"/cat", "a b%?#.ies", "/cat/a b%?#.ies"},
        {"/", "catalogo.json", "/catalogo.json"},
    };
    for (const Resolved& c : cases) {
        EXPECT_EQ(ResolveInCatalog(c.base, c.path), c.expected) << c.path;
    }
}

} // namespace Merivane::Catalog
