#include <gtest/gtest.h>

#include "Radiance/CommandLine.hpp"
#include "Radiance/ProcessRunner.hpp"
#include "Radiance/Scripts.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

using namespace Merivane;
using namespace Merivane::Radiance;
using namespace Merivane::Tests;

namespace {

constexpr std::uint32_t Ample = 20000; // ms

class CommandOutput : public testing::Test {
protected:
    /// The command line of a script with this body; "$1" is the temporary folder.
    std::wstring Script(const std::string& body) const {
        return JoinCommandLine(WriteScript(folder.Path(), "um script", body),
                               {Text::WidePath(folder.Path())});
    }

    /// Runs a program that does not end by itself, with `limit` ms, or more where the machine is so
    /// busy that the program did not come to write anything.
    void RunToItsLimit(const std::wstring& line, std::uint32_t limit) {
        for (;; limit *= 4) {
            output.clear();
            bool inTime = true;
            const double time =
                Milliseconds([&] { inTime = CaptureCommandOutput(line, output, L"", limit); });
            EXPECT_FALSE(inTime);
            EXPECT_GE(time, limit);
            EXPECT_LT(time, limit + 5000.0);
            if (!output.empty() || limit > Ample) {
                return;
            }
        }
    }

    TemporaryFolder folder;
    std::string output;
};

} // namespace

TEST_F(CommandOutput, HoldsBothStreamsInTheOrderWritten) {
    const std::wstring line = Script("echo one; echo two >&2; echo three; exit 5");
    EXPECT_TRUE(CaptureCommandOutput(line, output, L"", Ample)); // whatever the exit status
    EXPECT_EQ(output, "one\ntwo\nthree\n");
}

TEST_F(CommandOutput, IsAppended) {
    output = "before ";
    EXPECT_TRUE(CaptureCommandOutput(Script("echo after"), output, L"", Ample));
    EXPECT_EQ(output, "before after\n");
}

TEST_F(CommandOutput, ComesFromAProgramWithoutInput) {
    EXPECT_TRUE(CaptureCommandOutput(L"/bin/cat", output, L"", Ample));
    EXPECT_EQ(output, "");
}

TEST_F(CommandOutput, ComesFromAProgramWithTheGivenRayPath) {
    EXPECT_TRUE(CaptureCommandOutput(Script("printf '%s' \"$RAYPATH\""), output, L"/a b", Ample));
    EXPECT_EQ(output, "/a b");
}

TEST_F(CommandOutput, FailsWhenThereIsNothingToStart) {
    for (const wchar_t* line : {L"", L"  ", L"/missing -version", L"\"/a b/rtrace\" -version"}) {
        EXPECT_FALSE(CaptureCommandOutput(line, output, L"", Ample));
        EXPECT_EQ(output, "");
    }
}

TEST_F(CommandOutput, StopsAProgramThatHangs) {
    const std::wstring line =
        Script("sleep 60 & echo $! >\"$1/grandchild\"; echo $$ >\"$1/id\"; echo begun; wait");
    RunToItsLimit(line, 500);
    EXPECT_EQ(output, "begun\n");
    EXPECT_FALSE(IsRunning(AwaitNumber(folder.Path() / "id")));
    EXPECT_TRUE(EndsSoon(AwaitNumber(folder.Path() / "grandchild")));
}

TEST_F(CommandOutput, StopsAProgramThatHangsWithItsOutputClosed) {
    const std::wstring line = Script("echo closing; exec >&- 2>&-; exec sleep 60");
    RunToItsLimit(line, 500);
    EXPECT_EQ(output, "closing\n");
}

TEST_F(CommandOutput, StopsAProgramThatWritesForEver) {
    const std::wstring line = Script("exec yes vantoro");
    RunToItsLimit(line, 500);
    EXPECT_TRUE(output.starts_with("vantoro\nvantoro\n"));
    EXPECT_LE(output.size(), MaximumErrorText + 7);
}

TEST_F(CommandOutput, DoesNotWaitForWhoeverElseKeepsTheOutputOpen) {
    const std::wstring line = Script("sleep 60 & echo said");
    bool inTime = false;
    EXPECT_LT(Milliseconds([&] { inTime = CaptureCommandOutput(line, output, L"", Ample); }),
              5000.0);
    EXPECT_TRUE(inTime);
    EXPECT_EQ(output, "said\n");
}

TEST_F(CommandOutput, MustComeAtOnceWithoutATimeLimit) {
    EXPECT_FALSE(CaptureCommandOutput(L"/bin/sleep 60", output, L"", 0));
}
