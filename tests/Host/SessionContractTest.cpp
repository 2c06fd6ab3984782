#include <filesystem>

#include <gtest/gtest.h>

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

} // namespace
} // namespace Merivane::Host
