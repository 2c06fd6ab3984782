#include <string>

#include <gtest/gtest.h>

#include "Text/Hex.hpp"

namespace Merivane::Text {

TEST(Hex, ReadsBackEveryByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    std::string back;
    EXPECT_TRUE(FromHex(ToHex(all), back));
    EXPECT_EQ(back, all);
    EXPECT_EQ(ToHex(std::string("\0\x1F\xAB", 3)), "001fab");
}

TEST(Hex, RefusesWhatIsNoPairOfSmallDigits) {
    for (const char* hex : {"0", "001", "0g", "AB", " 00", "0x"}) {
        std::string bytes;
        EXPECT_FALSE(FromHex(hex, bytes)) << hex;
    }
}

} // namespace Merivane::Text
