#include "Archicad/LibraryMigration.hpp"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "LibrarySession.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Strings = std::vector<std::string>;
using Tests::ReportTexts;

class MigrateLibraryFolder : public Tests::LibrarySession {
protected:
    std::filesystem::path OlderFolder() const { return Documents() / "Merivane Library"; }

    static void Make(const std::filesystem::path& path) {
        std::filesystem::create_directories(path);
    }

    static void AddLibrary(const std::filesystem::path& path) {
        EXPECT_EQ(Host::AddLibrary(Text::WidePath(path)), Host::NoError);
    }

    static std::vector<Host::Library> Libraries() {
        std::vector<Host::Library> libraries;
        std::int32_t embedded = -1;
        EXPECT_EQ(Host::GetLibraries(libraries, embedded), Host::NoError);
        return libraries;
    }

    Strings Run() {
        Workbench::CurrentSession().reportLines.clear();
        Archicad::MigrateLibraryFolder();
        return ReportTexts();
    }

    std::string NowUses() const {
        return "Vantoro: biblioteca: o projeto passou a usar " + OwnFolder().string() +
               " no lugar de Merivane Library";
    }

    const std::string renamed = "Vantoro: biblioteca: pasta renomeada para Vantoro Library";
};

TEST_F(MigrateLibraryFolder, RenamesTheFolderAndLetsTheProjectFollow) {
    Make(OlderFolder());
    Tests::WriteBytes(OlderFolder() / "nota.txt", "x");
    AddLibrary(OlderFolder());
    EXPECT_EQ(Run(), (Strings{renamed, NowUses()}));
    EXPECT_FALSE(std::filesystem::exists(OlderFolder()));
    EXPECT_EQ(Tests::FilesIn(OwnFolder()), (Strings{"nota.txt"}));
    const auto libraries = Libraries();
    ASSERT_EQ(libraries.size(), 2U);
    EXPECT_EQ(libraries[0].path, Text::WidePath(SourceFolder()));
    EXPECT_EQ(libraries[1].path, Text::WidePath(OwnFolder()));
    EXPECT_EQ(libraries[1].name, "Vantoro Library");
    EXPECT_TRUE(libraries[1].available);
    EXPECT_EQ(Run(), Strings{});
}

TEST_F(MigrateLibraryFolder, KeepsThePartsOfTheFolderInTheProject) {
    Make(OlderFolder());
    const std::int32_t index = MakePart({});
    std::filesystem::copy_file(SourceFolder() / "Fonte.gsm", OlderFolder() / "Antiga.gsm");
    EXPECT_EQ(Tests::PartOf(index).name, "Fonte");
    AddLibrary(OlderFolder());
    Run();
    Host::LibraryPart part;
    EXPECT_EQ(Host::FindLibraryPart("Antiga", part), Host::NoError);
    EXPECT_EQ(part.path, Text::WidePath(OwnFolder() / "Antiga.gsm"));
}

TEST_F(MigrateLibraryFolder, LeavesAProjectThatDoesNotUseTheFolder) {
    Make(OlderFolder());
    EXPECT_EQ(Run(), (Strings{renamed}));
    EXPECT_EQ(Libraries().size(), 1U);
}

TEST_F(MigrateLibraryFolder, DoesNothingWithoutTheOlderName) {
    EXPECT_EQ(Run(), Strings{});
    Make(OwnFolder());
    AddLibrary(OwnFolder());
    EXPECT_EQ(Run(), Strings{});
    EXPECT_EQ(Libraries().size(), 2U);
}

TEST_F(MigrateLibraryFolder, LeavesBothFoldersWhereBothStand) {
    Make(OlderFolder());
    Make(OwnFolder());
    AddLibrary(OlderFolder());
    EXPECT_EQ(Run(), (Strings{NowUses()}));
    EXPECT_TRUE(std::filesystem::exists(OlderFolder()));
    EXPECT_EQ(Libraries()[1].path, Text::WidePath(OwnFolder()));
}

TEST_F(MigrateLibraryFolder, ListsTheNewFolderOnce) {
    Make(OlderFolder());
    Make(OwnFolder());
    AddLibrary(OwnFolder());
    AddLibrary(OlderFolder());
    EXPECT_EQ(Run(), (Strings{NowUses()}));
    const auto libraries = Libraries();
    ASSERT_EQ(libraries.size(), 2U);
    EXPECT_EQ(libraries[1].path, Text::WidePath(OwnFolder()));
}

// A link that leads nowhere is no folder, and no folder can be renamed over it.
TEST_F(MigrateLibraryFolder, TellsWhyTheFolderCannotBeRenamedAndLeavesTheProject) {
    Make(OlderFolder());
    AddLibrary(OlderFolder());
    std::filesystem::create_symlink(Documents() / "nenhum", OwnFolder());
    EXPECT_EQ(Run(), (Strings{"Vantoro: biblioteca: a pasta Merivane Library nao pode ser "
                              "renomeada (Not a directory)"}));
    EXPECT_EQ(Libraries()[1].path, Text::WidePath(OlderFolder()));
}

TEST_F(MigrateLibraryFolder, TellsTheHostsFailures) {
    Make(OlderFolder());
    AddLibrary(OlderFolder());
    Workbench::FailCall("GetSpecialFolder", 1, Host::GeneralError);
    EXPECT_EQ(Run(), Strings{});
    Workbench::FailCall("SetLibraries", 1, Host::NotMine);
    EXPECT_EQ(Run(), (Strings{renamed, "Vantoro: biblioteca: trocar Merivane Library por Vantoro "
                                       "Library failed: APIERR_NOTMINE (0x81060132)"}));
    Workbench::FailCall("GetLibraries", 1, Host::NotMine);
    EXPECT_EQ(Run(), (Strings{"Vantoro: biblioteca: ler a lista de bibliotecas do projeto failed: "
                              "APIERR_NOTMINE (0x81060132)"}));
    EXPECT_EQ(Run(), (Strings{NowUses()}));
}

} // namespace
} // namespace Merivane::Archicad
