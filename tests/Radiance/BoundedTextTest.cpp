#include <gtest/gtest.h>

#include "Radiance/BoundedText.hpp"

using namespace Merivane::Radiance;

namespace {

constexpr std::size_t Limit = BoundedText::HeadLimit + BoundedText::TailLimit;
const std::string Gap = "\n[...]\n";

std::string Numbered(std::size_t length) {
    std::string text;
    while (text.size() < length) {
        text += std::to_string(text.size()) + " ";
    }
    return text.substr(0, length);
}

std::string Bounded(const std::string& text, std::size_t pieceLength) {
    BoundedText bounded;
    for (std::size_t begin = 0; begin < text.size(); begin += pieceLength) {
        Append(bounded, std::string_view{text}.substr(begin, pieceLength));
    }
    return JoinedText(bounded);
}

std::string Shortened(const std::string& text) {
    return text.substr(0, BoundedText::HeadLimit) + Gap +
           text.substr(text.size() - BoundedText::TailLimit);
}

} // namespace

TEST(BoundedText, KeepsATextUpToTheLimitWhole) {
    const std::size_t lengths[] = {
        0, 1, BoundedText::HeadLimit, BoundedText::HeadLimit + 1, Limit - 1, Limit};
    for (const std::size_t length : lengths) {
        SCOPED_TRACE(length);
        EXPECT_TRUE(Bounded(Numbered(length), 512) == Numbered(length));
    }
}

TEST(BoundedText, KeepsBeginningAndEndOfALongerText) {
    const std::size_t lengths[] = {Limit + 1, Limit + BoundedText::TailLimit,
                                   Limit + BoundedText::TailLimit + 1, 1048576};
    for (const std::size_t length : lengths) {
        SCOPED_TRACE(length);
        EXPECT_TRUE(Bounded(Numbered(length), 512) == Shortened(Numbered(length)));
    }
}

TEST(BoundedText, DoesNotDependOnThePiecesItCameIn) {
    const std::string text = Numbered(200000);
    for (const unsigned piece : {1U, 7U, 512U, 4096U, 65536U, 200000U}) {
        SCOPED_TRACE(piece);
        EXPECT_TRUE(Bounded(text, piece) == Shortened(text));
    }
}

TEST(BoundedText, HoldsNoMoreThanItsBound) {
    BoundedText bounded;
    const std::string piece(65536, 'x');
    for (int i = 0; i < 100; ++i) {
        Append(bounded, piece);
        ASSERT_LE(bounded.head.size() + bounded.tail.size(),
                  BoundedText::HeadLimit + 2 * BoundedText::TailLimit);
    }
}
