#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "Host/Storage.hpp"

namespace Merivane::Host {
namespace {

TEST(StorageContract, GivesThePreferencesBackAsTheyWereSet) {
    struct Case {
        std::int32_t version;
        std::string block;
    };
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte.push_back(static_cast<char>(byte));
    }
    const Case cases[] = {
        {1, "texto"},
        {7, everyByte},
        {std::numeric_limits<std::int32_t>::max(), std::string(100000, '\0')},
        {2, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.version);
        ASSERT_EQ(SetPreferences(c.version, c.block), NoError);
        std::int32_t version = -1;
        std::string block = "antes";
        ASSERT_EQ(GetPreferences(version, block), NoError);
        EXPECT_EQ(version, c.version);
        EXPECT_EQ(block, c.block);
    }
}

TEST(StorageContract, KeepsOneBlockAlone) {
    ASSERT_EQ(SetPreferences(1, "a longer first block"), NoError);
    ASSERT_EQ(SetPreferences(2, "b"), NoError);
    std::int32_t version = 0;
    std::string block;
    ASSERT_EQ(GetPreferences(version, block), NoError);
    EXPECT_EQ(version, 2);
    EXPECT_EQ(block, "b");
}

} // namespace
} // namespace Merivane::Host
