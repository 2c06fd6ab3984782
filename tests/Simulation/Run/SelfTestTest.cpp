#include <gtest/gtest.h>

#include "RunScenes.hpp"
#include "Simulation/Run/InstallationReport.hpp"
#include "Simulation/Run/SelfTest.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

using namespace Merivane::Tests;

Radiance::Installation Found(const std::filesystem::path& bin) {
    Radiance::Installation installation;
    installation.complete = true;
    installation.source = Radiance::SourceAddOn;
    installation.binFolder = Text::WidePath(bin);
    installation.libFolder = Text::WidePath(RadianceLibFolder());
    return installation;
}

TEST(RadianceSelfTest, PassesWithTheProgramsOfTheSetUp) {
    const TemporaryFolder folder;
    const SelfTestResult test =
        RadianceSelfTest(Found(RadianceBinFolder()), Text::WidePath(folder.Path() / "teste"), {});
    EXPECT_TRUE(test.ran) << test.message;
    EXPECT_TRUE(test.passed);
    EXPECT_NEAR(test.exact, 8.99038, 1e-5);
    EXPECT_NEAR(test.calculated, test.exact, test.exact * 0.001);
    EXPECT_LT(test.largestDifference, 0.001);
    EXPECT_GT(test.seconds, 0.0);
    RecordProperty("largestDifference", std::to_string(test.largestDifference));
    EXPECT_EQ(LinesOf(folder.Path() / "teste" / "sensors.pts").size(), 6u);
}

TEST(RadianceSelfTest, CatchesAnEngineThatLosesThreePercent) {
    const TemporaryFolder folder;
    const ProgramFolder programs(folder.Path() / "radiance");
    programs.Replace("rtrace", "\"$REAL\" \"$@\" | awk '{print $1*0.97, $2*0.97, $3*0.97}'");
    const SelfTestResult test =
        RadianceSelfTest(Found(programs.Path()), Text::WidePath(folder.Path() / "teste"), {});
    EXPECT_TRUE(test.ran) << test.message;
    EXPECT_FALSE(test.passed);
    EXPECT_NEAR(test.largestDifference, 0.03, 0.001);
    EXPECT_EQ(VerdictLine(Found(programs.Path()), test),
              "⚠  O Radiance calcula, mas o resultado do teste não confere.");
}

TEST(RadianceSelfTest, PassesUpToTwoPercentBothWays) {
    struct Case {
        std::string factor;
        bool passed;
    };
    for (const Case& c :
         {Case{"0.981", true}, {"0.979", false}, {"1.019", true}, {"1.021", false}}) {
        SCOPED_TRACE(c.factor);
        const TemporaryFolder folder;
        const ProgramFolder programs(folder.Path() / "radiance");
        programs.Replace("rtrace",
                         "\"$REAL\" \"$@\" | awk '{f=" + c.factor + "; print $1*f, $2*f, $3*f}'");
        const SelfTestResult test =
            RadianceSelfTest(Found(programs.Path()), Text::WidePath(folder.Path() / "t"), {});
        EXPECT_TRUE(test.ran) << test.message;
        EXPECT_EQ(test.passed, c.passed) << test.largestDifference;
    }
}

TEST(RadianceSelfTest, TellsWhyItCouldNotRun) {
    const TemporaryFolder folder;
    const ProgramFolder programs(folder.Path() / "radiance");
    programs.Replace("oconv", "echo 'oconv: quebrado' >&2; exit 7");
    const SelfTestResult test =
        RadianceSelfTest(Found(programs.Path()), Text::WidePath(folder.Path() / "teste"), {});
    EXPECT_FALSE(test.ran);
    EXPECT_FALSE(test.passed);
    EXPECT_EQ(test.message, "montagem da cena (oconv): oconv terminou com erro 7: oconv: quebrado");
}

TEST(RadianceSelfTest, IsStoppedByTheUser) {
    const TemporaryFolder folder;
    const SelfTestResult test = RadianceSelfTest(
        Found(RadianceBinFolder()), Text::WidePath(folder.Path() / "t"), [] { return true; });
    EXPECT_FALSE(test.ran);
    EXPECT_EQ(test.message, "teste: calculo cancelado");
}

} // namespace
} // namespace Merivane::Simulation
