#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Session.hpp"
#include "Host/Storage.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

using Tests::TemporaryFolder;

TEST(Session, AnswersWithThePlacesItWasOpenedWith) {
    OpenSession({.ownLocation = L"/lugar/Vantoro.apx", .temporaryFolder = L"/outra/pasta"});
    std::wstring path;
    EXPECT_EQ(Host::GetOwnLocation(path), Host::NoError);
    EXPECT_EQ(path, L"/lugar/Vantoro.apx");
    EXPECT_EQ(Host::GetTemporaryFolder(path), Host::NoError);
    EXPECT_EQ(path, L"/outra/pasta");
}

TEST(Session, RemembersReportLinesAsTheUserReadsThem) {
    OpenSession({});
    Host::WriteReport("Vantoro: 50%% feito", false);
    Host::WriteReport("Vantoro: %%%%", true);
    ASSERT_EQ(CurrentSession().reportLines.size(), 2U);
    EXPECT_EQ(CurrentSession().reportLines[0].text, "Vantoro: 50% feito");
    EXPECT_FALSE(CurrentSession().reportLines[0].alert);
    EXPECT_EQ(CurrentSession().reportLines[1].text, "Vantoro: %%");
    EXPECT_TRUE(CurrentSession().reportLines[1].alert);
}

// A percent sign that nobody doubled would make the real host read an argument that is not there.
TEST(Session, ShowsAPercentSignThatWasNotDoubled) {
    OpenSession({});
    Host::WriteReport("50% feito", false);
    Host::WriteReport("%%%", false);
    EXPECT_EQ(CurrentSession().reportLines[0].text, "50(?) feito");
    EXPECT_EQ(CurrentSession().reportLines[1].text, "%(?)");
}

TEST(Session, PassesReportLinesOn) {
    std::vector<std::string> told;
    OpenSession({.onReport = [&told](const ReportLine& line) {
        told.push_back((line.alert ? "!" : "") + line.text);
    }});
    Host::WriteReport("um", false);
    Host::WriteReport("dois", true);
    EXPECT_EQ(told, (std::vector<std::string>{"um", "!dois"}));
    OpenSession({});
}

TEST(Session, BeginsFreshWhenOpenedAgain) {
    OpenSession({});
    Host::WriteReport("um", false);
    ASSERT_EQ(Host::SetPreferences(3, "bloco"), Host::NoError);
    FailCall("GetOwnLocation", 1, Host::GeneralError);
    OpenSession({});
    EXPECT_TRUE(CurrentSession().reportLines.empty());
    std::wstring path;
    EXPECT_EQ(Host::GetOwnLocation(path), Host::NoError);
    std::int32_t version = -1;
    std::string block = "antes";
    EXPECT_EQ(Host::GetPreferences(version, block), Host::NoError);
    EXPECT_EQ(version, 0);
    EXPECT_EQ(block, "");
}

TEST(Session, FailsTheCallThatATestAsksFor) {
    OpenSession({.ownLocation = L"/a", .temporaryFolder = L"/b"});
    FailCall("GetTemporaryFolder", 2, Host::ReadOnly);
    std::wstring path = L"antes";
    EXPECT_EQ(Host::GetOwnLocation(path), Host::NoError); // another operation does not count
    EXPECT_EQ(Host::GetTemporaryFolder(path), Host::NoError);
    path = L"antes";
    EXPECT_EQ(Host::GetTemporaryFolder(path), Host::ReadOnly);
    EXPECT_EQ(path, L"antes");
    EXPECT_EQ(Host::GetTemporaryFolder(path), Host::NoError);
}

TEST(Session, FailsEveryOperationThatCanFail) {
    OpenSession({});
    std::wstring path = L"antes";
    std::int32_t version = 5;
    std::string block = "antes";
    ASSERT_EQ(Host::SetPreferences(1, "um"), Host::NoError);
    for (const char* operation :
         {"GetOwnLocation", "GetTemporaryFolder", "SetPreferences", "GetPreferences"}) {
        FailCall(operation, 1, Host::OutOfMemory);
    }
    EXPECT_EQ(Host::GetOwnLocation(path), Host::OutOfMemory);
    EXPECT_EQ(Host::GetTemporaryFolder(path), Host::OutOfMemory);
    EXPECT_EQ(Host::SetPreferences(2, "dois"), Host::OutOfMemory);
    EXPECT_EQ(Host::GetPreferences(version, block), Host::OutOfMemory);
    EXPECT_EQ(path, L"antes");
    EXPECT_EQ(version, 5);
    EXPECT_EQ(block, "antes");
    EXPECT_EQ(Host::GetPreferences(version, block), Host::NoError);
    EXPECT_EQ(block, "um"); // the call that failed changed nothing
}

TEST(Session, FailsTwoCallsInARow) {
    OpenSession({});
    FailCall("GetOwnLocation", 1, Host::ReadOnly);
    FailCall("GetOwnLocation", 2, Host::BadId);
    std::wstring path;
    EXPECT_EQ(Host::GetOwnLocation(path), Host::ReadOnly);
    EXPECT_EQ(Host::GetOwnLocation(path), Host::BadId);
    EXPECT_EQ(Host::GetOwnLocation(path), Host::NoError);
}

TEST(Session, KeepsPreferencesInItsFileForTheNextSession) {
    const TemporaryFolder folder;
    const std::wstring file = Text::WidePath(folder.Path() / "vantoro" / "preferencias");
    OpenSession({.preferencesFile = file});
    std::int32_t version = -1;
    std::string block = "antes";
    EXPECT_EQ(Host::GetPreferences(version, block), Host::NoError);
    EXPECT_EQ(version, 0);
    EXPECT_EQ(block, "");
    ASSERT_EQ(Host::SetPreferences(4, std::string("a\0\xFF", 3)), Host::NoError);
    OpenSession({.preferencesFile = file});
    EXPECT_EQ(Host::GetPreferences(version, block), Host::NoError);
    EXPECT_EQ(version, 4);
    EXPECT_EQ(block, std::string("a\0\xFF", 3));
    EXPECT_EQ(Tests::ReadBytes(Text::NativePath(file)),
              "{\n\t\"formato\": 1,\n\t\"versao\": 4,\n\t\"bloco\": \"6100ff\"\n}\n");
}

TEST(Session, RefusesABrokenPreferencesFileAndLeavesItAlone) {
    const TemporaryFolder folder;
    const auto file = folder.Path() / "preferencias";
    Tests::WriteBytes(file, "{\"formato\": 2}");
    OpenSession({.preferencesFile = Text::WidePath(file)});
    std::int32_t version = 9;
    std::string block = "antes";
    EXPECT_EQ(Host::GetPreferences(version, block), Host::GeneralError);
    EXPECT_EQ(version, 9);
    EXPECT_EQ(block, "antes");
    EXPECT_EQ(Host::SetPreferences(1, "x"), Host::GeneralError);
    EXPECT_EQ(Tests::ReadBytes(file), "{\"formato\": 2}");
}

TEST(Session, TellsWhenPreferencesCanNotBeWritten) {
    const TemporaryFolder folder;
    Tests::WriteBytes(folder.Path() / "arquivo", "");
    OpenSession(
        {.preferencesFile = Text::WidePath(folder.Path() / "arquivo" / "sob" / "preferencias")});
    EXPECT_EQ(Host::SetPreferences(1, "x"), Host::GeneralError);
    OpenSession({});
}

} // namespace
} // namespace Merivane::Workbench
