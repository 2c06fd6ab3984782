#include "Radiance/BoundedText.hpp"

#include <gtest/gtest.h>

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
        Append(bounded, std::string_view(text).substr(begin, pieceLength));
    }
    return JoinedText(bounded);
}

std::string Shortened(const std::string& text) {
    return text.substr(0, BoundedText::HeadLimit) + Gap +
           text.substr(text.size() - BoundedText::TailLimit);
}

} // namespace

TEST(BoundedText, KeepsATextUpToTheLimitWhole) {
    for (const std::size_t length : {std::size_t(0), std::size_t(1), BoundedText::HeadLimit,
                                     BoundedText::HeadLimit + 1, Limit - 1, Limit}) {
        SCOPED_TRACE(length);
        EXPECT_TRUE(Bounded(Numbered(length), 512) == Numbered(length));
    }
}

TEST(BoundedText, KeepsBeginningAndEndOfALongerText) {
    for (const std::size_t length : {Limit + 1, Limit + BoundedText::TailLimit,
                                     Limit + BoundedText::TailLimit + 1, std::size_t(1) << 20U}) {
        SCOPED_TRACE(length);
        EXPECT_TRUE(Bounded(Numbered(length), 512) == Shortened(Numbered(length)));
    }
}

TEST(BoundedText, DoesNotDependOnThePiecesItCameIn) {
    const std::string text = Numbered(200000);
    for (const std::size_t piece : {1, 7, 512, 4096, 65536, 200000}) {
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
