#include <filesystem>

#include <gtest/gtest.h>

#include "ContractSupport.hpp"
#include "Host/Session.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Host {
namespace {

TEST(SessionContract, TellsTheFileOfTheAddOn) {
    std::wstring path;
    ASSERT_EQ(GetOwnLocation(path), NoError);
    EXPECT_TRUE(std::filesystem::is_regular_file(Text::NativePath(path)));
    EXPECT_TRUE(Text::NativePath(path).is_absolute());
}

TEST(SessionContract, TellsATemporaryFolderWithoutASeparatorAtItsEnd) {
    std::wstring path;
    ASSERT_EQ(GetTemporaryFolder(path), NoError);
    EXPECT_TRUE(std::filesystem::is_directory(Text::NativePath(path)));
    EXPECT_TRUE(Text::NativePath(path).is_absolute());
    EXPECT_NE(path.back(), L'/');
    EXPECT_NE(path.back(), L'\\');
}

TEST(SessionContract, TakesReportLinesOfAnyText) {
    WriteReport("", false);
    WriteReport("Vantoro: 100%% de luminárias", false);
    WriteReport("\xFF\x80", false);
}

class ProcessWindowContract : public ProjectContract {
protected:
    void TearDown() override { CloseProcessWindow(); }
};

TEST_F(ProcessWindowContract, GoesThroughItsPhases) {
    ASSERT_EQ(OpenProcessWindow("Vantoro: calcular", 2), NoError);
    ASSERT_EQ(BeginProcessPhase("Geometria", 100), NoError);
    for (const std::int32_t value : {0, 50, 100, -1, 101}) { // the last two are held at the ends
        EXPECT_EQ(SetProcessValue(value), NoError);
    }
    ASSERT_EQ(BeginProcessPhase("Luz", 0), NoError);
    EXPECT_EQ(BeginProcessPhase("demais", 1), BadParameters);
    EXPECT_EQ(CloseProcessWindow(), NoError);
}

TEST_F(ProcessWindowContract, TellsOnceTheUserWantsToStop) {
    ASSERT_EQ(OpenProcessWindow("Vantoro: calcular", 1), NoError);
    EXPECT_EQ(CheckProcessCancelled(), NoError);
    CancelByUser();
    EXPECT_EQ(CheckProcessCancelled(), Cancelled);
    EXPECT_EQ(CheckProcessCancelled(), Cancelled); // it stays so
    ASSERT_EQ(CloseProcessWindow(), NoError);
    ASSERT_EQ(OpenProcessWindow("Vantoro: outra vez", 1), NoError);
    EXPECT_EQ(CheckProcessCancelled(), NoError);
}

TEST_F(ProcessWindowContract, NeedsToBeOpened) {
    EXPECT_EQ(BeginProcessPhase("Geometria", 100), NotInitialised);
    EXPECT_EQ(SetProcessValue(1), NotInitialised);
    EXPECT_EQ(CheckProcessCancelled(), NoError);
    EXPECT_EQ(CloseProcessWindow(), NotInitialised);
    ASSERT_EQ(OpenProcessWindow("Vantoro", 1), NoError);
    EXPECT_EQ(SetProcessValue(1), NotInitialised); // no phase yet
    EXPECT_EQ(OpenProcessWindow("Vantoro", 1), Nesting);
}

TEST_F(ProcessWindowContract, RefusesPhasesThatMakeNoSense) {
    EXPECT_EQ(OpenProcessWindow("Vantoro", 0), BadParameters);
    ASSERT_EQ(OpenProcessWindow("Vantoro", 1), NoError);
    EXPECT_EQ(BeginProcessPhase("Geometria", -1), BadParameters);
}

TEST(SessionContract, RefusesToShowAFolderThatThereIsNot) {
    std::wstring folder;
    ASSERT_EQ(GetTemporaryFolder(folder), NoError);
    EXPECT_EQ(OpenFolder(folder + L"/pasta que não existe"), GeneralError);
}

} // namespace
} // namespace Merivane::Host
