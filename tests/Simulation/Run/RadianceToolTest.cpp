#include <gtest/gtest.h>

#include "Simulation/Run/RadianceTool.hpp"

namespace Merivane::Simulation {
namespace {

TEST(RayPathOf, PutsTheWorkFolderFirst) {
    EXPECT_EQ(RayPathOf(L"/tmp/calculo", L"/opt/lib"), L"/tmp/calculo:/opt/lib");
}

TEST(RayPathOf, TellsAFolderThatHoldsTheSeparatorByItsPlace) {
    EXPECT_EQ(RayPathOf(L"/tmp/a:b", L"/opt/lib"), L".:/opt/lib");
}

TEST(FirstLine, EndsAtTheFirstLineBreakOfAnyKind) {
    EXPECT_EQ(FirstLine(""), "");
    EXPECT_EQ(FirstLine("a"), "a");
    EXPECT_EQ(FirstLine("a\nb"), "a");
    EXPECT_EQ(FirstLine("a\r\nb"), "a");
    EXPECT_EQ(FirstLine("a\rb\nc"), "a");
    EXPECT_EQ(FirstLine("\nb"), "");
}

TEST(ToolJob, RunsInTheWorkFolder) {
    ProcessTarget target;
    target.radianceBinFolder = L"/opt/bin";
    target.workFolder = L"/tmp/calculo é";
    target.rayPath = L".:/opt/lib";
    const Radiance::ProcessJob job =
        ToolJob(target, "oconv", {"materials.rad", "ç"}, "", "scene.oct");
    EXPECT_EQ(job.program, L"/opt/bin/oconv");
    EXPECT_EQ(job.arguments, (std::vector<std::wstring>{L"materials.rad", L"ç"}));
    EXPECT_EQ(job.workingFolder, L"/tmp/calculo é");
    EXPECT_EQ(job.stdinPath, L"");
    EXPECT_EQ(job.stdoutPath, L"/tmp/calculo é/scene.oct");
    EXPECT_EQ(job.rayPath, L".:/opt/lib");
}

} // namespace
} // namespace Merivane::Simulation
