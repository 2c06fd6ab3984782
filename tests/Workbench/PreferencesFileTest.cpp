#include <string>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/PreferencesFile.hpp"

namespace Merivane::Workbench {
namespace {

TEST(PreferencesFile, ReadsBackWhatItWrites) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte.push_back(static_cast<char>(byte));
    }
    for (const Preferences& written :
         {Preferences{}, Preferences{-1, "x"}, Preferences{2147483647, everyByte}}) {
        Preferences read{5, "antes"};
        ASSERT_TRUE(ParsePreferences(FormatPreferences(written), read));
        EXPECT_EQ(read.version, written.version);
        EXPECT_EQ(read.block, written.block);
    }
}

TEST(PreferencesFile, RefusesEveryOtherForm) {
    for (const char* text : {
             "",
             "[]",
             "{}",
             R"({"formato": 1})",
             R"({"formato": 1, "versao": 1})",
             R"({"formato": 1, "bloco": "00"})",
             R"({"formato": 2, "versao": 1, "bloco": "00"})",
             R"({"formato": "1", "versao": 1, "bloco": "00"})",
             R"({"formato": 1, "versao": "1", "bloco": "00"})",
             R"({"formato": 1, "versao": 1.5, "bloco": "00"})",
             R"({"formato": 1, "versao": 2147483648, "bloco": "00"})",
             R"({"formato": 1, "versao": -2147483649, "bloco": "00"})",
             R"({"formato": 1, "versao": 1, "bloco": 0})",
             R"({"formato": 1, "versao": 1, "bloco": "0"})",
             R"({"formato": 1, "versao": 1, "bloco": "0g"})",
             R"({"formato": 1, "versao": 1, "bloco": "0A"})",
         }) {
        SCOPED_TRACE(text);
        Preferences read{5, "antes"};
        EXPECT_FALSE(ParsePreferences(text, read));
        EXPECT_EQ(read.version, 5);
        EXPECT_EQ(read.block, "antes");
    }
}

TEST(PreferencesFile, RefusesATextCutAtAnyPlace) {
    const std::string text = FormatPreferences({3, "bloco"});
    for (std::size_t length = 0; length + 1 < text.size(); ++length) { // "\n" at the end
        Preferences read;
        EXPECT_FALSE(ParsePreferences(text.substr(0, length), read)) << length;
    }
}

TEST(PreferencesFile, RefusesAFolderInItsPlace) {
    const Tests::TemporaryFolder folder;
    const std::wstring path = Text::WidePath(folder.Path());
    Preferences read{5, "antes"};
    EXPECT_FALSE(LoadPreferences(path, read));
    EXPECT_FALSE(SavePreferences(path, {1, "x"}));
}

} // namespace
} // namespace Merivane::Workbench
