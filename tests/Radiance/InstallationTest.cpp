#include <algorithm>

#include <gtest/gtest.h>

#include "Radiance/Installation.hpp"
#include "Radiance/Scripts.hpp"
#include "Support/Places.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"

using namespace Merivane;
using namespace Merivane::Radiance;
using namespace Merivane::Tests;

namespace {

using Candidates = std::vector<BinFolderCandidate>;
using Names = std::vector<std::string>;

/// An empty folder, and an environment that names no Radiance.
class FindInstallationIn : public testing::Test {
protected:
    std::filesystem::path File(const std::string& name) const { return folder.Path() / name; }
    std::wstring Wide(const std::string& name) const { return Text::WidePath(File(name)); }

    /// A folder with these tools; its `rtrace` tells a version.
    void MakeTools(const std::string& bin, const Names& tools,
                   const std::string& rtrace = "echo 'RADIANCE 6.0.2'") const {
        std::filesystem::create_directories(File(bin));
        for (const std::string& tool : tools) {
            WriteScript(File(bin), tool, tool == "rtrace" ? rtrace : "exit 0");
        }
    }

    void SetUp() override {
        if (std::filesystem::exists("/usr/local/radiance/bin/rtrace")) {
            GTEST_SKIP() << "this machine has a Radiance in the usual place";
        }
    }

    TemporaryFolder folder;
    Variable radiance{"RADIANCE", std::nullopt};
    Variable path{"PATH", "/vantoro-none"};
};

} // namespace

TEST(RequiredTools, AreFourInThisOrder) {
    EXPECT_EQ(RequiredTools(), (Names{"ies2rad", "xform", "oconv", "rtrace"}));
    EXPECT_EQ(&RequiredTools(), &RequiredTools());
}

TEST(ToolPath, IsTheFileOfTheTool) {
    EXPECT_EQ(ToolPath(L"/usr/bin", "rtrace"), L"/usr/bin/rtrace");
    EXPECT_EQ(ToolPath(L"/usr/bin/", "oconv"), L"/usr/bin/oconv");
    EXPECT_EQ(ToolPath(L".", "xform"), L"./xform");
}

TEST(CandidateBinFolders, StandInTheOrderOfTheSearch) {
    const Variable radiance("RADIANCE", "/opt/rad");
    const Variable path("PATH", "/usr/bin:relativo:/a b/bin/");
    EXPECT_EQ(CandidateBinFolders(L"/add on"), (Candidates{{L"/add on/Vantoro Radiance/bin", 1},
                                                           {L"/opt/rad/bin", 2},
                                                           {L"/usr/local/radiance/bin", 2},
                                                           {L"/usr/bin", 2},
                                                           {L"relativo", 2},
                                                           {L"/a b/bin/", 2}}));
}

TEST(CandidateBinFolders, LeaveOutWhatIsNotKnown) {
    const Candidates usual = {{L"/usr/local/radiance/bin", 2}};
    for (const std::optional<std::string>& value : {std::optional<std::string>(), {""}}) {
        const Variable radiance("RADIANCE", value);
        const Variable path("PATH", value);
        EXPECT_EQ(CandidateBinFolders(L""), usual);
    }
}

TEST(CandidateBinFolders, DropEmptyEntriesOfThePath) {
    const Variable radiance("RADIANCE", std::nullopt);
    const Variable path("PATH", "::/a:::/b::");
    EXPECT_EQ(CandidateBinFolders(L""),
              (Candidates{{L"/usr/local/radiance/bin", 2}, {L"/a", 2}, {L"/b", 2}}));
}

TEST(CandidateBinFolders, TakeNamesThatAreNotUtf8) {
    const Variable radiance("RADIANCE", "/r\xE9sum");
    const Candidates candidates = CandidateBinFolders(Text::WidePath("/lumin\xE1ria"));
    EXPECT_EQ(Text::NativePath(candidates[0].folder), "/lumin\xE1ria/Vantoro Radiance/bin");
    EXPECT_EQ(Text::NativePath(candidates[1].folder), "/r\xE9sum/bin");
}

TEST_F(FindInstallationIn, AnEmptySystemFindsNothing) {
    const Installation found = FindInstallation(folder.Path().wstring());
    EXPECT_FALSE(found.complete);
    EXPECT_EQ(found.source, SourceNone);
    EXPECT_EQ(found.binFolder, L"");
    EXPECT_EQ(found.libFolder, L"");
    EXPECT_EQ(found.version, "");
    EXPECT_TRUE(found.missingTools.empty());
    EXPECT_EQ(found.searchedFolders,
              (std::vector<std::wstring>{Wide("Vantoro Radiance/bin"), L"/usr/local/radiance/bin",
                                         L"/vantoro-none"}));
}

TEST_F(FindInstallationIn, TheAddOnsOwnFolderComesFirst) {
    MakeTools("Vantoro Radiance/bin", RequiredTools(), "echo 'RADIANCE own'");
    MakeTools("other/bin", RequiredTools());
    std::filesystem::create_directory(File("Vantoro Radiance/lib"));
    const Variable other("RADIANCE", File("other").string());
    const Installation found = FindInstallation(Wide(""));
    EXPECT_TRUE(found.complete);
    EXPECT_EQ(found.source, SourceAddOn);
    EXPECT_EQ(found.binFolder, Wide("Vantoro Radiance/bin"));
    EXPECT_EQ(found.libFolder, Wide("Vantoro Radiance/lib"));
    EXPECT_EQ(found.version, "RADIANCE own");
    EXPECT_EQ(found.searchedFolders, std::vector<std::wstring>{Wide("Vantoro Radiance/bin")});
}

TEST_F(FindInstallationIn, TheFirstFolderWithRtraceWinsEvenWhenIncomplete) {
    MakeTools("almost/bin", {"ies2rad", "xform", "oconv"}); // no rtrace: not an installation
    MakeTools("first", {"rtrace", "oconv"});
    MakeTools("second", RequiredTools());
    const Variable almost("RADIANCE", File("almost").string());
    const Variable search("PATH", File("first").string() + ":" + File("second").string());
    const Installation found = FindInstallation(L"");
    EXPECT_FALSE(found.complete);
    EXPECT_EQ(found.source, SourceSystem);
    EXPECT_EQ(found.binFolder, Wide("first"));
    EXPECT_EQ(found.missingTools, (Names{"ies2rad", "xform"}));
    EXPECT_EQ(found.version, "RADIANCE 6.0.2");
    EXPECT_EQ(found.searchedFolders.back(), Wide("first"));
}

TEST_F(FindInstallationIn, AFolderOfThatNameIsNoProgram) {
    MakeTools("one/rtrace", {});
    MakeTools("two", {"rtrace"});
    MakeTools("two/oconv", {});
    const Variable search("PATH", File("one").string() + ":" + File("two").string());
    const Installation found = FindInstallation(L"");
    EXPECT_EQ(found.binFolder, Wide("two"));
    EXPECT_EQ(found.missingTools, (Names{"ies2rad", "xform", "oconv"}));
}

TEST_F(FindInstallationIn, TheLibFolderStandsBesideTheBinFolder) {
    MakeTools("rad/bin", RequiredTools());
    for (const char* ending : {"", "/", "//"}) {
        const Variable search("PATH", File("rad/bin").string() + ending);
        EXPECT_EQ(FindInstallation(L"").libFolder, L"");
        EXPECT_TRUE(FindInstallation(L"").complete); // it does without
    }
    WriteBytes(File("rad/lib"), "a file, no folder");
    const Variable search("PATH", File("rad/bin").string());
    EXPECT_EQ(FindInstallation(L"").libFolder, L"");
    std::filesystem::remove(File("rad/lib"));
    std::filesystem::create_directory(File("rad/lib"));
    for (const char* ending : {"", "/", "//"}) {
        const Variable slashes("PATH", File("rad/bin").string() + ending);
        const Installation found = FindInstallation(L"");
        EXPECT_EQ(found.libFolder, Wide("rad/lib")) << ending;
        EXPECT_EQ(found.binFolder, Wide("rad/bin") + Text::WidePath(ending)); // as it stands
        EXPECT_TRUE(found.complete);
    }
}

TEST_F(FindInstallationIn, TheVersionIsTheFirstLineOfWhatRtraceSays) {
    struct Case {
        std::string body;
        std::string version;
    };
    const Case cases[] = {
        {"printf 'RADIANCE 6\\r\\nmore\\n'", "RADIANCE 6"},
        {"printf 'RADIANCE 6\\nmore'", "RADIANCE 6"},
        {"printf 'RADIANCE 6'", "RADIANCE 6"},
        {"echo \"$1 with $RAYPATH\"", "-version with LIB"},
        {"echo 'to standard error' >&2; exit 1", "to standard error"},
        {"exit 0", ""},
        {"printf '\\nsecond'", ""},
    };
    std::filesystem::create_directories(File("rad \"1\"/lib"));
    const Variable search("PATH", File("rad \"1\"/bin").string());
    for (const Case& c : cases) {
        MakeTools("rad \"1\"/bin", {"rtrace"}, c.body);
        std::string expected = c.version;
        if (const auto lib = expected.find("LIB"); lib != std::string::npos) {
            expected.replace(lib, 3, File("rad \"1\"/lib").string());
        }
        EXPECT_EQ(FindInstallation(L"").version, expected) << c.body;
    }
}

TEST_F(FindInstallationIn, AFolderOfThePathStandsAsItIsWritten) {
    MakeTools("rad/bin", RequiredTools());
    std::filesystem::create_directory(File("rad/lib"));
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const Variable search("PATH", "rad/bin");
    const Installation found = FindInstallation(L"");
    std::filesystem::current_path(before);
    EXPECT_TRUE(found.complete);
    EXPECT_EQ(found.binFolder, L"rad/bin");
    EXPECT_EQ(found.libFolder, L"rad/lib");
    EXPECT_EQ(found.version, "RADIANCE 6.0.2");
}

TEST_F(FindInstallationIn, AProgramThatHangsIsGivenTenSecondsAndHasNoVersion) {
    MakeTools("bin", RequiredTools(), "echo 'RADIANCE 6'; exec sleep 60");
    const Variable search("PATH", File("bin").string() + ":/usr/bin:/bin");
    Installation found;
    const double time = Milliseconds([&] { found = FindInstallation(L""); });
    EXPECT_GE(time, 10000.0);
    EXPECT_LT(time, 15000.0);
    EXPECT_EQ(found.version, "");
    EXPECT_TRUE(found.complete);
}

TEST_F(FindInstallationIn, AProgramThatDoesNotStartHasNoVersion) {
    std::filesystem::create_directories(File("bin"));
    WriteBytes(File("bin/rtrace"), "not executable");
    const Variable search("PATH", File("bin").string());
    const Installation found = FindInstallation(L"");
    EXPECT_EQ(found.binFolder, Wide("bin"));
    EXPECT_EQ(found.version, "");
}

TEST(RealInstallation, IsCompleteBesideTheProgram) {
    const Installation found = FindInstallation(Text::WidePath(BuildFolder()));
    EXPECT_TRUE(found.complete);
    EXPECT_EQ(found.source, SourceAddOn);
    EXPECT_TRUE(found.missingTools.empty());
    EXPECT_EQ(found.libFolder, Text::WidePath(BuildFolder() / "Vantoro Radiance" / "lib"));
    EXPECT_TRUE(found.version.starts_with("RADIANCE 6.")) << found.version;
}
