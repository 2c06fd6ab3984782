#include <cstdint>
#include <ctime>
#include <filesystem>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AddOn/RunLog/RunLog.hpp"
#include "Support/Places.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;

class RunLog : public ::testing::Test {
protected:
    RunLog() {
        Workbench::SessionOptions options;
        options.temporaryFolder = Text::WidePath(folder.Path());
        Workbench::OpenSession(options);
    }
    ~RunLog() override { Workbench::OpenSession({}); }

    std::filesystem::path LogFolder() const { return folder.Path() / "Vantoro"; }

    /// The texts of a log file's lines behind the time; none where there is no file.
    Lines LinesOf(std::string_view name) const {
        Lines lines;
        if (!std::filesystem::exists(LogFolder() / name)) {
            return lines;
        }
        const std::string bytes = Tests::ReadBytes(LogFolder() / name);
        EXPECT_TRUE(bytes.ends_with('\n'));
        const std::regex time("[0-2][0-9]:[0-5][0-9]:[0-6][0-9]  ");
        std::istringstream stream(bytes);
        for (std::string line; std::getline(stream, line);) {
            EXPECT_TRUE(std::regex_match(line.substr(0, 10), time)) << line;
            lines.push_back(line.substr(10));
        }
        return lines;
    }

    /// What stands in the report window, an alert with "!" before it.
    static Lines ReportWindow() {
        Lines lines;
        for (const Workbench::ReportLine& line : Workbench::CurrentSession().reportLines) {
            lines.push_back((line.alert ? "!" : "") + line.text);
        }
        return lines;
    }

    /// A time of UTC as the log writes times.
    static std::string ClockAt(std::time_t time) {
        char text[9] = {};
        std::strftime(text, sizeof text, "%H:%M:%S", std::gmtime(&time));
        return text;
    }

    Tests::TemporaryFolder folder;
};

TEST_F(RunLog, MakesItsFolderOnTheFirstLine) {
    EXPECT_FALSE(std::filesystem::exists(LogFolder()));
    AppendLog("a.txt", "um", false);
    EXPECT_EQ(LinesOf("a.txt"), Lines{"um"});
}

TEST_F(RunLog, AppendsOrBeginsAnew) {
    AppendLog("a.txt", "um", false);
    AppendLog("a.txt", "dois", false);
    EXPECT_EQ(LinesOf("a.txt"), (Lines{"um", "dois"}));
    AppendLog("a.txt", "três", true);
    EXPECT_EQ(LinesOf("a.txt"), Lines{"três"});
}

TEST_F(RunLog, WritesTheBytesOfATextAsTheyAre) {
    AppendLog("a.txt", "", false);
    AppendLog("a.txt", "luminária \xF0\x9F\x98\x80 \xFF 100% \t", false);
    EXPECT_EQ(LinesOf("a.txt"), (Lines{"", "luminária \xF0\x9F\x98\x80 \xFF 100% \t"}));
}

TEST_F(RunLog, TellsTheLocalTime) {
    struct Zone {
        const char* name;
        int seconds; // ahead of UTC
    };
    for (const Zone& zone : {Zone{"AAA-05:30", 19800}, Zone{"BBB+03", -10800}}) {
        const Tests::Variable here("TZ", zone.name);
        ::tzset();
        const std::string before = ClockAt(std::time(nullptr) + zone.seconds);
        AppendLog("a.txt", "um", true);
        const std::string after = ClockAt(std::time(nullptr) + zone.seconds);
        const std::string bytes = Tests::ReadBytes(LogFolder() / "a.txt");
        EXPECT_TRUE(bytes == before + "  um\n" || bytes == after + "  um\n") << bytes;
    }
    ::tzset();
}

TEST_F(RunLog, BeginsTheFilesOfACommandAnewAndGoesOnWithTheHistory) {
    BeginLog("Primeiro");
    Progress("passo");
    ReportLine("feito");
    BeginLog("Segundo");
    EXPECT_EQ(LinesOf("progresso.txt"), Lines{"=== Segundo"});
    EXPECT_EQ(LinesOf("relatorio.txt"), Lines{"=== Segundo"});
    EXPECT_EQ(LinesOf("historico.txt"), (Lines{"=== Primeiro", "feito", "=== Segundo"}));
}

TEST_F(RunLog, TellsTheReportWindowNothingOfTitlesAndProgress) {
    BeginLog("Título");
    Progress("passo");
    EXPECT_EQ(ReportWindow(), Lines{});
    EXPECT_EQ(LinesOf("progresso.txt"), (Lines{"=== Título", "passo"}));
    EXPECT_EQ(LinesOf("relatorio.txt"), Lines{"=== Título"});
}

TEST_F(RunLog, ReportsToTheWindowTheReportAndTheHistory) {
    Report("um", false);
    Report("dois", true);
    EXPECT_EQ(ReportWindow(), (Lines{"Vantoro: um", "!Vantoro: dois"}));
    EXPECT_EQ(LinesOf("relatorio.txt"), (Lines{"um", "dois"}));
    EXPECT_EQ(LinesOf("historico.txt"), (Lines{"um", "dois"}));
    EXPECT_EQ(LinesOf("progresso.txt"), Lines{});
}

TEST_F(RunLog, AlertsAreReportsWithADialogAndLinesAreReportsWithout) {
    ReportLine("um");
    Alert("dois");
    EXPECT_EQ(ReportWindow(), (Lines{"Vantoro: um", "!Vantoro: dois"}));
    EXPECT_EQ(LinesOf("relatorio.txt"), (Lines{"um", "dois"}));
}

TEST_F(RunLog, ShowsOnePercentSignInTheWindowAndOneInTheFiles) {
    ReportLine("50% de 100%% %s");
    EXPECT_EQ(ReportWindow(), Lines{"Vantoro: 50% de 100%% %s"});
    EXPECT_EQ(LinesOf("relatorio.txt"), Lines{"50% de 100%% %s"});
    EXPECT_EQ(LinesOf("historico.txt"), Lines{"50% de 100%% %s"});
}

TEST_F(RunLog, WritesNothingWithoutATemporaryFolder) {
    Workbench::FailCall("GetTemporaryFolder", 1, Host::GeneralError);
    AppendLog("a.txt", "um", false);
    EXPECT_FALSE(std::filesystem::exists(LogFolder()));
    AppendLog("a.txt", "dois", false);
    EXPECT_EQ(LinesOf("a.txt"), Lines{"dois"});
}

TEST_F(RunLog, ReportsToTheWindowAlsoWithoutATemporaryFolder) {
    Workbench::FailCall("GetTemporaryFolder", 1, Host::GeneralError);
    Workbench::FailCall("GetTemporaryFolder", 2, Host::GeneralError);
    ReportLine("um");
    EXPECT_EQ(ReportWindow(), Lines{"Vantoro: um"});
    EXPECT_FALSE(std::filesystem::exists(LogFolder()));
}

TEST_F(RunLog, IsSilentWhereTheFolderCanNotBeMade) {
    Tests::WriteBytes(LogFolder(), "um arquivo no lugar da pasta");
    AppendLog("a.txt", "um", true);
    ReportLine("dois");
    EXPECT_EQ(Tests::ReadBytes(LogFolder()), "um arquivo no lugar da pasta");
    EXPECT_EQ(ReportWindow(), Lines{"Vantoro: dois"});
}

TEST_F(RunLog, IsSilentWhereAFileCanNotBeOpened) {
    std::filesystem::create_directories(LogFolder() / "relatorio.txt");
    ReportLine("um");
    EXPECT_EQ(LinesOf("historico.txt"), Lines{"um"});
    EXPECT_TRUE(std::filesystem::is_directory(LogFolder() / "relatorio.txt"));
}

TEST(ErrorName, NamesTheCodesOfTheHost) {
    struct Case {
        std::uint32_t code;
        const char* name;
    };
    const Case cases[] = {
        {0x00000000, "NoError"},
        {0x81060001, "APIERR_GENERAL"},
        {0x81060002, "APIERR_MEMFULL"},
        {0x81060003, "APIERR_CANCEL"},
        {0x81060065, "APIERR_BADID"},
        {0x81060066, "APIERR_BADINDEX"},
        {0x81060068, "APIERR_BADPARS"},
        {0x81060069, "APIERR_BADPOLY"},
        {0x8106006A, "APIERR_BADDATABASE"},
        {0x810600CB, "APIERR_NOPLAN"},
        {0x81060132, "APIERR_NOTMINE"},
        {0x81060388, "APIERR_REFUSEDCMD"},
        {0x8106038A, "APIERR_READONLY"},
        {0x8106038D, "APIERR_NEEDSUNDOSCOPE"},
        {0x81060000, "unknown error 0x81060000"},
        {0x81060004, "unknown error 0x81060004"},
        {0x81060067, "unknown error 0x81060067"},
        {0x8106ABCD, "unknown error 0x8106ABCD"},
        {0x0000000A, "unknown error 0xA"}, // no leading zeros
        {0xFFFFFFFF, "unknown error 0xFFFFFFFF"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ErrorName(static_cast<Host::ErrorCode>(c.code)), c.name);
    }
}

TEST_F(RunLog, ReportsAFailedCallWithNameAndCode) {
    EXPECT_EQ(CheckError("Criar hachura", Host::NeedsUndoScope), Host::NeedsUndoScope);
    EXPECT_EQ(CheckError("50%", 10), 10);
    const Lines lines = {
        "Criar hachura failed: APIERR_NEEDSUNDOSCOPE (0x8106038D)",
        "50% failed: unknown error 0xA (0xA)",
    };
    EXPECT_EQ(LinesOf("relatorio.txt"), lines);
    EXPECT_EQ(LinesOf("historico.txt"), lines);
    EXPECT_EQ(ReportWindow(), (Lines{"Vantoro: " + lines[0], "Vantoro: " + lines[1]}));
}

TEST_F(RunLog, KnowsUntilTheNextCommandThatSomethingDidNotGo) {
    BeginLog("primeiro");
    ReportLine("uma linha");
    CheckError("Criar hachura", Host::NoError);
    EXPECT_FALSE(FailureTold());
    CheckError("Criar hachura", Host::NeedsUndoScope);
    EXPECT_TRUE(FailureTold());
    BeginLog("segundo");
    EXPECT_FALSE(FailureTold());
    Alert("Nenhuma Zona");
    EXPECT_TRUE(FailureTold());
    BeginLog("terceiro");
    EXPECT_FALSE(FailureTold());
}

TEST_F(RunLog, SaysNothingOfACallThatSucceeded) {
    EXPECT_EQ(CheckError("Criar hachura", Host::NoError), Host::NoError);
    EXPECT_EQ(ReportWindow(), Lines{});
    EXPECT_FALSE(std::filesystem::exists(LogFolder()));
}

} // namespace
} // namespace Merivane::Commands
