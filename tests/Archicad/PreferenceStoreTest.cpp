#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "Archicad/PreferenceStore.hpp"
#include "Host/Storage.hpp"
#include "Simulation/PreferenceBlock.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

class PreferenceStore : public testing::Test {
protected:
    PreferenceStore() { Workbench::OpenSession({}); }
    ~PreferenceStore() override { Workbench::OpenSession({}); }

    static std::string Value(std::string_view key) {
        std::string value = "antes";
        EXPECT_EQ(ReadPreference(key, value), Host::NoError);
        return value;
    }

    static const Workbench::Preferences& Kept() { return Workbench::CurrentSession().preferences; }
};

TEST_F(PreferenceStore, GivesBackWhatWasWrittenUnderEachKey) {
    const std::string bytes("\0\n\xFF value", 9);
    EXPECT_EQ(WritePreference("MVTEST02", bytes), Host::NoError);
    EXPECT_EQ(WritePreference("MVTEST01", "um"), Host::NoError);
    EXPECT_EQ(WritePreference("MVTEST03", ""), Host::NoError);
    EXPECT_EQ(Value("MVTEST02"), bytes);
    EXPECT_EQ(Value("MVTEST01"), "um");
    EXPECT_EQ(Value("MVTEST03"), "");
    EXPECT_EQ(WritePreference("MVTEST01", "dois"), Host::NoError);
    EXPECT_EQ(Value("MVTEST01"), "dois");
    EXPECT_EQ(Value("MVTEST02"), bytes);
}

TEST_F(PreferenceStore, IsEmptyBeforeTheFirstValue) {
    EXPECT_EQ(Value("MVTEST01"), "");
}

TEST_F(PreferenceStore, KeepsSortedEntriesUnderTheVersionOfTheBlock) {
    WritePreference("MVTEST02", "b");
    WritePreference("MVTEST01", "a");
    EXPECT_EQ(Kept().version, 2);
    EXPECT_EQ(Kept().block, std::string("MVTEST01\1\0\0\0aMVTEST02\1\0\0\0b", 26));
}

TEST_F(PreferenceStore, DropsAKeyThatIsNot8Long) {
    EXPECT_EQ(WritePreference("MVTEST01", "a"), Host::NoError);
    EXPECT_EQ(WritePreference("MVTEST1", "b"), Host::NoError);
    EXPECT_EQ(WritePreference("MVTEST111", "c"), Host::NoError);
    EXPECT_EQ(Kept().block, std::string("MVTEST01\1\0\0\0a", 13));
}

TEST_F(PreferenceStore, TakesABlockOfAnotherVersionForEmpty) {
    for (const std::int32_t version : {0, 1, 3, -2}) {
        const std::string block = Simulation::FormatPreferenceBlock({{"MVTEST01", "a"}});
        ASSERT_EQ(Host::SetPreferences(version, block), Host::NoError);
        EXPECT_EQ(Value("MVTEST01"), "") << version;
    }
    EXPECT_EQ(WritePreference("MVTEST02", "b"), Host::NoError);
    EXPECT_EQ(Kept().block, std::string("MVTEST02\1\0\0\0b", 13));
}

TEST_F(PreferenceStore, ReadsTheWholeEntriesOfABlockThatIsCut) {
    const std::string block =
        Simulation::FormatPreferenceBlock({{"MVTEST01", "primeiro"}, {"MVTEST02", "segundo"}});
    for (std::size_t length = 0; length <= block.size(); ++length) {
        ASSERT_EQ(Host::SetPreferences(2, block.substr(0, length)), Host::NoError);
        EXPECT_EQ(Value("MVTEST01"), length >= 20 ? "primeiro" : "") << length;
        EXPECT_EQ(Value("MVTEST02"), length == block.size() ? "segundo" : "") << length;
    }
}

TEST_F(PreferenceStore, GivesNothingWhenTheHostDoesNotRead) {
    WritePreference("MVTEST01", "a");
    Workbench::FailCall("GetPreferences", 1, Host::GeneralError);
    std::string value = "antes";
    EXPECT_EQ(ReadPreference("MVTEST01", value), Host::GeneralError);
    EXPECT_EQ(value, "");
    EXPECT_EQ(Value("MVTEST01"), "a");
}

TEST_F(PreferenceStore, DoesNotWriteOverABlockThatItCouldNotRead) {
    WritePreference("MVTEST01", "a");
    const std::string before = Kept().block;
    Workbench::FailCall("GetPreferences", 1, Host::OutOfMemory);
    EXPECT_EQ(WritePreference("MVTEST02", "b"), Host::OutOfMemory);
    EXPECT_EQ(Kept().block, before);
}

TEST_F(PreferenceStore, TellsWhenTheHostDoesNotWrite) {
    WritePreference("MVTEST01", "a");
    const std::string before = Kept().block;
    Workbench::FailCall("SetPreferences", 1, Host::ReadOnly);
    EXPECT_EQ(WritePreference("MVTEST01", "b"), Host::ReadOnly);
    EXPECT_EQ(Kept().block, before);
}

} // namespace
} // namespace Merivane::Archicad
