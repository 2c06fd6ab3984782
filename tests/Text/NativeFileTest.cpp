#include "Text/NativeFile.hpp"

#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#if __has_include(<fcntl.h>) && __has_include(<unistd.h>)
#include <fcntl.h>
#endif

namespace Merivane::Text {
namespace {

using Tests::ReadBytes;
using Tests::TemporaryFolder;
using Tests::WriteBytes;

void WriteOne(const std::wstring& path, FileMode mode, const char* text) {
    std::FILE* const file = OpenFile(path, mode);
    ASSERT_NE(file, nullptr);
    std::fputs(text, file);
    EXPECT_TRUE(std::fflush(file) == 0 && FlushToDisk(file));
    std::fclose(file);
}

TEST(OpenFile, EmptiesOrMakesOrGoesOnAsTheModeSays) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "\xC3\xA7.txt";
    EXPECT_EQ(OpenFile(WidePath(path), FileMode::Read), nullptr);
    WriteOne(WidePath(path), FileMode::Append, "one\n");
    WriteOne(WidePath(path), FileMode::Append, "two\n");
    EXPECT_EQ(ReadBytes(path), "one\ntwo\n");
    WriteOne(WidePath(path), FileMode::Write, "three");
    EXPECT_EQ(ReadBytes(path), "three");
}

#ifdef FD_CLOEXEC
TEST(OpenFile, KeepsTheFileFromChildrenStartedMeanwhile) {
    const TemporaryFolder folder;
    const std::wstring path = WidePath(folder.Path() / "a");
    for (const FileMode mode : {FileMode::Write, FileMode::Append, FileMode::Read}) {
        std::FILE* const file = OpenFile(path, mode);
        ASSERT_NE(file, nullptr);
        EXPECT_NE(::fcntl(::fileno(file), F_GETFD) & FD_CLOEXEC, 0) << static_cast<int>(mode);
        std::fclose(file);
    }
}
#endif

TEST(RenameOver, ReplacesAFileAndSaysWhenItCannot) {
    const TemporaryFolder folder;
    const auto from = folder.Path() / "from";
    const auto to = folder.Path() / "to";
    WriteBytes(from, "new");
    WriteBytes(to, "old");
    EXPECT_TRUE(RenameOver(WidePath(from), WidePath(to)));
    EXPECT_EQ(ReadBytes(to), "new");
    EXPECT_FALSE(std::filesystem::exists(from));
    EXPECT_FALSE(RenameOver(WidePath(from), WidePath(to)));
    EXPECT_EQ(ReadBytes(to), "new");
}

TEST(RemoveFile, IsSilentWhereThereIsNone) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "a";
    WriteBytes(path, "1");
    RemoveFile(WidePath(path));
    EXPECT_FALSE(std::filesystem::exists(path));
    RemoveFile(WidePath(path));
}

} // namespace
} // namespace Merivane::Text
