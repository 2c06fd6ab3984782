#include <chrono>
#include <filesystem>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "Support/Places.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativeFile.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Text {
namespace {

using Tests::ReadBytes;
using Tests::TemporaryFolder;
using Tests::WriteBytes;

std::wstring Wide(const std::filesystem::path& path) {
    return Widen(path.string());
}

std::ptrdiff_t FileCount(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder),
                         std::filesystem::directory_iterator());
}

TEST(FileBytes, ReadsBackWhatItWroteByteForByte) {
    const TemporaryFolder folder;
    std::string all = "\r\n\n\r\x1A";
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    // Around the size of the reading buffer, and empty.
    for (const std::size_t size : {0U, 1U, 65535U, 65536U, 65537U, 1000000U}) {
        std::string bytes;
        while (bytes.size() < size) {
            bytes += all;
        }
        bytes.resize(size);
        const std::wstring path = Wide(folder.Path() / "a.bin");
        ASSERT_TRUE(WriteFileBytes(path, bytes));
        std::string back = "old";
        ASSERT_TRUE(ReadFileBytes(path, back));
        EXPECT_EQ(back, bytes);
    }
}

TEST(FileBytes, TakesPathsWithAccentsAndWithBytesThatAreNoText) {
    const TemporaryFolder folder;
    for (const std::string& name :
         {std::string("lumin\xC3\xA1ria.ies"), std::string("\xFF\xB0.x")}) {
        const std::wstring path = Widen((folder.Path() / name).string());
        ASSERT_TRUE(WriteFileBytes(path, "1"));
        EXPECT_TRUE(std::filesystem::exists(folder.Path() / name));
        std::string back;
        EXPECT_TRUE(ReadFileBytes(path, back));
        EXPECT_EQ(back, "1");
    }
}

TEST(FileBytes, RefusesToReadWhatIsMissingAndWhatIsAFolder) {
    const TemporaryFolder folder;
    std::string bytes = "old";
    EXPECT_FALSE(ReadFileBytes(Wide(folder.Path() / "none"), bytes));
    EXPECT_EQ(bytes, "");
    EXPECT_FALSE(ReadFileBytes(Wide(folder.Path()), bytes));
    EXPECT_FALSE(ReadFileBytes(L"", bytes));
}

TEST(FileBytes, RefusesToReadADevice) {
    std::string bytes;
    EXPECT_FALSE(ReadFileBytes(L"/dev/zero", bytes));
    EXPECT_EQ(bytes, "");
}

TEST(FileBytes, SaysWhenItCannotWrite) {
    const TemporaryFolder folder;
    EXPECT_FALSE(WriteFileBytes(Wide(folder.Path() / "none" / "a"), "1"));
    EXPECT_FALSE(WriteFileBytes(Wide(folder.Path()), "1"));
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_FALSE(WriteFileBytes(L"/dev/full", "1"));
        EXPECT_FALSE(WriteFileBytes(L"/dev/full", std::string(1000000, 'x')));
    }
}

TEST(WriteFileFlushed, WritesAsWriteFileBytesDoes) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "a.txt";
    WriteBytes(path, "old, longer");
    EXPECT_TRUE(WriteFileFlushed(Wide(path), "new"));
    EXPECT_EQ(ReadBytes(path), "new");
    EXPECT_FALSE(WriteFileFlushed(Wide(folder.Path() / "none" / "a"), "1"));
}

TEST(WriteFileFlushed, SaysWhenTheBytesCannotBeBroughtToADisk) {
    if (!std::filesystem::exists("/dev/null")) {
        GTEST_SKIP() << "no device here that takes bytes and has no disk";
    }
    EXPECT_TRUE(WriteFileBytes(L"/dev/null", "1"));
    EXPECT_FALSE(WriteFileFlushed(L"/dev/null", "1"));
}

TEST(ReplaceFile, WritesTheFileWholeAndLeavesNothingBeside) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "a.txt";
    ASSERT_TRUE(ReplaceFile(Wide(path), "one"));
    EXPECT_EQ(ReadBytes(path), "one");
    ASSERT_TRUE(ReplaceFile(Wide(path), "two, longer"));
    EXPECT_EQ(ReadBytes(path), "two, longer");
    EXPECT_EQ(FileCount(folder.Path()), 1);
}

TEST(ReplaceFile, KeepsALinkAndReplacesTheFileThatItLeadsTo) {
    const TemporaryFolder folder;
    const auto real = folder.Path() / "there" / "real.txt";
    const auto link = folder.Path() / "link.txt";
    std::filesystem::create_directory(real.parent_path());
    WriteBytes(real, "old");
    std::filesystem::create_symlink(real, link);
    ASSERT_TRUE(ReplaceFile(Wide(link), "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadBytes(real), "new");
    EXPECT_EQ(FileCount(folder.Path()), 2);
    EXPECT_EQ(FileCount(real.parent_path()), 1);
}

TEST(ReplaceFile, LeavesEverythingAsItWasWhenItFails) {
    const TemporaryFolder folder;
    // A folder that holds something can't be renamed over.
    const auto place = folder.Path() / "place";
    std::filesystem::create_directory(place);
    WriteBytes(place / "kept", "old");
    EXPECT_FALSE(ReplaceFile(Wide(place), "new"));
    EXPECT_EQ(ReadBytes(place / "kept"), "old");
    EXPECT_EQ(FileCount(folder.Path()), 1);
    EXPECT_FALSE(ReplaceFile(Wide(folder.Path() / "none" / "a"), "new"));
}

TEST(ReplaceFile, KeepsTheOldFileWhenTheNewOneCannotBeWritten) {
    const TemporaryFolder folder;
    // The longest name that a file may have: the file beside can't be made.
    const auto path = folder.Path() / std::string(255, 'n');
    WriteBytes(path, "old");
    EXPECT_FALSE(ReplaceFile(Wide(path), "new"));
    EXPECT_EQ(ReadBytes(path), "old");
    EXPECT_EQ(FileCount(folder.Path()), 1);
}

TEST(ReplaceFile, TakesAwayWhatKilledWritersLeftLongAgo) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    const std::string left = "a.txt.parcial-0123456789abcdef";
    const std::string writing = "a.txt.parcial-fedcba9876543210";
    for (const std::string& name : {left, writing, left + "0", "b.txt" + left.substr(5)}) {
        WriteBytes(folder.Path() / name, "part");
        const auto age = std::chrono::minutes(name == writing ? 9 : 11);
        fs::last_write_time(folder.Path() / name, fs::file_time_type::clock::now() - age);
    }
    ASSERT_TRUE(ReplaceFile(Wide(folder.Path() / "a.txt"), "new"));
    EXPECT_FALSE(fs::exists(folder.Path() / left));
    EXPECT_TRUE(fs::exists(folder.Path() / writing));
    EXPECT_TRUE(fs::exists(folder.Path() / (left + "0")));
    EXPECT_TRUE(fs::exists(folder.Path() / ("b.txt" + left.substr(5))));
}

TEST(ReplaceFile, TouchesNothingThatStandsBeside) {
    const TemporaryFolder folder;
    const auto outside = folder.Path() / "outside";
    WriteBytes(outside, "kept");
    std::filesystem::create_symlink(outside, folder.Path() / "a.txt.parcial");
    ASSERT_TRUE(ReplaceFile(Wide(folder.Path() / "a.txt"), "new"));
    EXPECT_EQ(ReadBytes(folder.Path() / "a.txt"), "new");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.Path() / "a.txt"));
    EXPECT_EQ(ReadBytes(outside), "kept");
    EXPECT_EQ(FileCount(folder.Path()), 3);
}

TEST(OpenFile, CreatesOnlyWhereNothingStands) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "there", "kept");
    std::filesystem::create_symlink("there", folder.Path() / "link");
    std::filesystem::create_symlink("none", folder.Path() / "broken");
    for (const char* name : {"there", "link", "broken"}) {
        const FileHandle file(OpenFile(Wide(folder.Path() / name), FileMode::Create));
        EXPECT_EQ(file, nullptr) << name;
    }
    EXPECT_EQ(ReadBytes(folder.Path() / "there"), "kept");
    EXPECT_NE(FileHandle(OpenFile(Wide(folder.Path() / "new"), FileMode::Create)), nullptr);
    EXPECT_EQ(FileCount(folder.Path()), 4);
}

TEST(OpenPlainFile, OpensNothingElseAndWaitsForNoPipe) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "there", "bytes");
    std::filesystem::create_symlink("there", folder.Path() / "link");
    ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
    for (const char* name : {"there", "link"}) {
        const FileHandle file(OpenPlainFile(Wide(folder.Path() / name)));
        ASSERT_NE(file, nullptr) << name;
        EXPECT_EQ(RealPathOf(file.get()),
                  Wide(std::filesystem::canonical(folder.Path() / "there")));
    }
    for (const auto& path : {folder.Path(), folder.Path() / "pipe", folder.Path() / "none",
                             std::filesystem::path("/dev/zero")}) {
        EXPECT_EQ(FileHandle(OpenPlainFile(Wide(path))), nullptr) << path;
    }
}

TEST(ReadBlocks, StopsWhereNoMoreIsWanted) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "a", std::string(1000000, 'a'));
    const FileHandle file(OpenPlainFile(Wide(folder.Path() / "a")));
    std::size_t taken = 0;
    EXPECT_FALSE(ReadBlocks(file.get(), [&taken](std::string_view block) {
        taken += block.size();
        return taken < 200000;
    }));
    EXPECT_GE(taken, 200000U);
    EXPECT_LT(taken, 1000000U);
}

} // namespace
} // namespace Merivane::Text
