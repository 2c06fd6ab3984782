#include <algorithm>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Slug.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Catalog {
namespace {

/// Random text: mostly letters that fold, separators and characters of two to four bytes.
std::string RandomText(std::mt19937& random) {
    const auto codeIn = [&random](unsigned first, unsigned count) {
        return static_cast<char32_t>(first + random() % count);
    };
    std::string text;
    for (std::size_t count = random() % 60; count > 0; --count) {
        switch (random() % 5) {
        case 0:
            text += static_cast<char>(random() % 128);
            break;
        case 1:
            text += "-_ ./\\"[random() % 6];
            break;
        case 2:
            Text::AppendUtf8(text, codeIn(0xC0, 64));
            break;
        case 3:
            Text::AppendUtf8(text, codeIn(0, 0xD800));
            break;
        default:
            Text::AppendUtf8(text, codeIn(0x10000, 0x100000));
            break;
        }
    }
    return text;
}

bool IsSlug(const std::string& text) {
    const bool onlyItsCharacters = std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
    });
    return onlyItsCharacters && !text.starts_with('-') && !text.ends_with('-') &&
           text.find("--") == std::string::npos;
}

} // namespace

TEST(Slug, FoldsWhatPeopleType) {
    struct Case {
        std::string text;
        std::size_t maximumBytes;
        std::string slug;
    };
    const Case cases[] = {
        {"Luminária Ótima 60W / Cozinha", 50, "luminaria-otima-60w-cozinha"},
        {"", 50, ""},
        {"---", 40, ""},
        {" .,;!? ", 50, ""},
        {"  a  b  ", 50, "a-b"},
        {"ABC-123", 50, "abc-123"},
        {"a_b", 50, "a-b"},
        {"abc-def", 4, "abc"},   // the cut ends on the dash, which goes
        {"abc-def", 5, "abc-d"}, // and one byte more does not
        {"abc-def", 3, "abc"},
        {"abc", 0, ""},
        {"maß", 3, "mas"},      // a cut inside what one letter folded to
        {"a×b÷c", 50, "a-b-c"}, // signs among the letters
        {"a–b", 50, "a-b"},     // three bytes
        {"a💡b", 50, "a-b"},     // four bytes
        {"Łódź", 50, "od"},     // letters beyond Latin-1 separate
        {"a\xCC\x81", 50, "a"}, // a combining accent
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Slugify(c.text, c.maximumBytes), c.slug) << c.text;
    }
}

TEST(Slug, FoldsEachLatinLetterByTheTable) {
    struct Case {
        std::string letters;
        std::string folded;
    };
    const Case cases[] = {
        {"ÀÁÂÃÄÅàáâãäå", "aaaaaaaaaaaa"},
        {"Ææ", "aeae"},
        {"Çç", "cc"},
        {"ÈÉÊËèéêë", "eeeeeeee"},
        {"ÌÍÎÏìíîï", "iiiiiiii"},
        {"Ðð", "dd"},
        {"Ññ", "nn"},
        {"ÒÓÔÕÖØòóôõöø", "oooooooooooo"},
        {"ÙÚÛÜùúûü", "uuuuuuuu"},
        {"Ýýÿ", "yyy"},
        {"Þþ", "thth"},
        {"ß", "ss"},
    };
    std::size_t letters = 0;
    for (const Case& c : cases) {
        EXPECT_EQ(Slugify(c.letters, 50), c.folded) << c.letters;
        letters += c.letters.size() / 2;
    }
    EXPECT_EQ(letters, 62U); // with the two signs, all of U+00C0 to U+00FF
}

TEST(Slug, TakesBytesThatAreNoUtf8ForSeparators) {
    struct Case {
        std::string text;
        std::string slug;
    };
    const Case cases[] = {
        {"a\xC3", "a"},         // cut at the end of the text
        {"a\xE2\x80", "a"},     //
        {"a\xF0\x9F\x92", "a"}, //
        {"a\x80"
         "b",
         "a-b"}, // a continuation alone
        {"a\xFF"
         "b",
         "a-b"}, // never a lead
        {"a\xC3"
         "bc",
         "a-c"}, // the sequence is passed as a whole
        {"a\xE2"
         "bcd",
         "a-d"}, //
        {"a\xF0"
         "bcde",
         "a-e"},                         //
        {"\xC4\x80z", "z"},              // two bytes, another lead
        {std::string("a\0b", 3), "a-b"}, // a zero byte
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Slugify(c.text, 50), c.slug) << c.text;
    }
}

TEST(Slug, IsASafeWordWhateverTheText) {
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        const std::string text = RandomText(random);
        const std::size_t maximum = random() % 80;
        const std::string slug = Slugify(text, maximum);
        ASSERT_TRUE(IsSlug(slug)) << slug;
        ASSERT_LE(slug.size(), maximum);
        ASSERT_EQ(Slugify(slug, maximum), slug) << "not stable";
        ASSERT_TRUE(Slugify(text, 2000).starts_with(slug)) << "a shorter one is no beginning";
        ASSERT_EQ(Slugify("  " + text + "\xE2\x80\x94", maximum), slug) << "edges count";
    }
}

} // namespace Merivane::Catalog
