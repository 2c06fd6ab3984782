#include <string>

#include <gtest/gtest.h>

#include "Catalog/JsonPlainText.hpp"

namespace Merivane::Catalog {
namespace {

TEST(PlainLength, EndsAtEachByteThatNeedsAnEscapeAndAtNoOther) {
    for (int byte = 0; byte < 256; ++byte) {
        const bool plain = byte >= 32 && byte != '"' && byte != '\\';
        for (std::size_t place = 0; place < 20; ++place) {
            SCOPED_TRACE(std::to_string(byte) + " at " + std::to_string(place));
            std::string text(20, place % 2 == 0 ? '!' : '\x80');
            text[place] = static_cast<char>(byte);
            EXPECT_EQ(PlainLength(text), plain ? text.size() : place);
        }
    }
}

TEST(PlainLength, IsTheWholeTextWhenNothingNeedsAnEscape) {
    for (std::size_t length = 0; length < 40; ++length) {
        EXPECT_EQ(PlainLength(std::string(length, '#')), length);
    }
}

} // namespace
} // namespace Merivane::Catalog
