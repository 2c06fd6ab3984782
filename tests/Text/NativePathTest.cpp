#include <string>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Text {
namespace {

TEST(NativePath, GivesEveryNameBackEvenOneThatIsNoText) {
    for (const std::string& name : {std::string(""), std::string("a/b.ies"),
                                    std::string("lumin\xC3\xA1ria"), std::string("\xFF\xB0x")}) {
        const std::wstring wide = Widen(name);
        EXPECT_EQ(WidePath(NativePath(wide)), wide);
        EXPECT_EQ(NativePath(wide).string(), name);
    }
}

TEST(NativePath, NamesTheSameFileAsTheWidePath) {
    const Tests::TemporaryFolder folder;
    const auto path = folder.Path() / "\xC3\xA7\xFF";
    ASSERT_TRUE(WriteFileBytes(WidePath(path), "1"));
    EXPECT_EQ(Tests::ReadBytes(path), "1");
    EXPECT_TRUE(std::filesystem::exists(NativePath(WidePath(path))));
}

} // namespace
} // namespace Merivane::Text
