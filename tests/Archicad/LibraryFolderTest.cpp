#include "Archicad/LibraryFolder.hpp"

#include <filesystem>

#include <gtest/gtest.h>

#include "LibrarySession.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Tests::FilesIn;

class LibraryFolder : public Tests::LibrarySession {
protected:
    std::vector<std::wstring> LibraryPaths() const {
        std::vector<Host::Library> libraries;
        std::int32_t embedded = -1;
        EXPECT_EQ(Host::GetLibraries(libraries, embedded), Host::NoError);
        std::vector<std::wstring> paths;
        paths.reserve(libraries.size());
        for (const Host::Library& library : libraries) {
            paths.push_back(library.path);
        }
        return paths;
    }

    std::wstring found = L"antes";
};

TEST_F(LibraryFolder, StandsAmongTheUsersDocuments) {
    EXPECT_EQ(DefaultLibraryFolder(found), Host::NoError);
    EXPECT_EQ(found, Text::WidePath(OwnFolder()));
    EXPECT_FALSE(std::filesystem::exists(OwnFolder()));
    Workbench::FailCall("GetSpecialFolder", 1, Host::BadParameters);
    std::wstring kept = L"antes";
    EXPECT_EQ(DefaultLibraryFolder(kept), Host::BadParameters);
    EXPECT_EQ(kept, L"antes");
}

TEST_F(LibraryFolder, IsMadeAndAddedToTheProjectOnce) {
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(EnsureLibraryFolderInProject(found), Host::NoError);
        EXPECT_EQ(found, Text::WidePath(OwnFolder()));
        EXPECT_TRUE(std::filesystem::is_directory(OwnFolder()));
        EXPECT_EQ(LibraryPaths(), (std::vector<std::wstring>{Text::WidePath(SourceFolder()),
                                                             Text::WidePath(OwnFolder())}));
    }
    EXPECT_EQ(Workbench::CurrentSession().calls["AddLibrary"], 2); // one is the session's own
}

TEST_F(LibraryFolder, IsRefusedWhereNothingCanBeWritten) {
    std::filesystem::create_directory(OwnFolder());
    std::filesystem::permissions(OwnFolder(), std::filesystem::perms::owner_read |
                                                  std::filesystem::perms::owner_exec);
    EXPECT_EQ(EnsureLibraryFolderInProject(found), Host::GeneralError);
    EXPECT_EQ(found, L"antes");
    EXPECT_EQ(LibraryPaths().size(), 1U);
    std::filesystem::permissions(OwnFolder(), std::filesystem::perms::owner_all);
    EXPECT_EQ(EnsureLibraryFolderInProject(found), Host::NoError);
}

TEST_F(LibraryFolder, IsRefusedWhereAFileStandsInItsPlace) {
    Tests::WriteBytes(OwnFolder(), "");
    EXPECT_EQ(EnsureLibraryFolderInProject(found), Host::GeneralError);
    EXPECT_EQ(LibraryPaths().size(), 1U);
}

TEST_F(LibraryFolder, PassesTheHostsCodesUp) {
    for (const char* operation : {"GetSpecialFolder", "GetLibraries", "AddLibrary"}) {
        Workbench::FailCall(operation, 1, Host::NotMine);
        EXPECT_EQ(EnsureLibraryFolderInProject(found), Host::NotMine) << operation;
        EXPECT_EQ(found, L"antes");
    }
}

TEST(IsSameFolder, SeesThroughSpellings) {
    EXPECT_TRUE(IsSameFolder(L"/a/b", L"/a/b"));
    EXPECT_TRUE(IsSameFolder(L"/a/b/", L"/a/b"));
    EXPECT_TRUE(IsSameFolder(L"/a/./c/../b", L"/a/b"));
    EXPECT_FALSE(IsSameFolder(L"/a/b", L"/a/bc"));
    EXPECT_FALSE(IsSameFolder(L"/a/b", L"/a"));
    EXPECT_FALSE(IsSameFolder(L"", L"/a"));
}

TEST(IsSameFolder, IgnoresCaseWhereTheSystemDoes) {
    struct Case {
        const wchar_t* a;
        const wchar_t* b;
        bool same; // where case is ignored
    };
    const Case cases[] = {
        {L"/Documentos/Vantoro Library", L"/documentos/VANTORO LIBRARY/", true},
        {L"/Jo\u00C3o/\u00CDcaro", L"/JO\u00E3O/\u00EDCARO", true},
        {L"/a/\u00D7", L"/a/\u00F7", false}, // the signs of multiplication and division
        {L"/Joao", L"/Jo\u00E3o", false},
        {L"/a@", L"/a`", false},
        {L"/a[", L"/a{", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(Text::Narrow(c.a));
        EXPECT_EQ(IsSameFolder(c.a, c.b, true), c.same);
        EXPECT_FALSE(IsSameFolder(c.a, c.b, false));
    }
    EXPECT_EQ(IsSameFolder(L"/a", L"/A"), Text::PathsAreWide);
}

} // namespace
} // namespace Merivane::Archicad
