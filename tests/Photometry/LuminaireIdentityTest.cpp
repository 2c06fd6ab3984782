#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "Photometry/LuminaireIdentity.hpp"
#include "Support/CommaLocale.hpp"

namespace Merivane::Photometry {
namespace {

using Keywords = std::vector<std::pair<std::string, std::string>>;

double ColourRendering(Keywords keywords) {
    IesFile file;
    file.keywords = std::move(keywords);
    return ColourRenderingFromIes(file);
}

TEST(ColourRenderingFromIes, TakesTheNumberThatTheKeywordBeginsWith) {
    struct Case {
        std::string value;
        double index;
    };
    const Case cases[] = {
        {"90", 90.0},   {"90%", 90.0},    {"  82.5 x", 82.5}, {"100", 100.0}, {"1e1", 10.0},
        {"0x50", 80.0}, {"0.5", 0.5},     {"100.01", 0.0},    {"0", 0.0},     {"-90", 0.0},
        {"nan", 0.0},   {"inf", 0.0},     {"", 0.0},          {"alto", 0.0},  {"> 90", 0.0},
        {"82,5", 82.0}, {"90\n80", 90.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(ColourRendering({{"_RA", c.value}}), c.index);
    }
}

TEST(ColourRenderingFromIes, ReadsNumbersWithAPointWhateverTheLocale) {
    const Tests::CommaLocale locale;
    EXPECT_EQ(ColourRendering({{"_RA", "82.5"}}), 82.5);
}

TEST(ColourRenderingFromIes, SearchesTheTextsForItsTags) {
    struct Case {
        std::string value;
        double index;
    };
    const Case cases[] = {
        {"LED CRI>80", 80.0},
        {"RATED 90", 0.0}, // letters follow
        {"ABRA 90", 0.0},  // a letter stands before
        {"IRC: 105", 0.0},
        {"ra 90", 90.0},
        {"Ra=90", 90.0},
        {"(Ra90)", 90.0},
        {"4000K_IRC : 92", 92.0},
        {"2Ra 85", 85.0}, // a digit is no letter
        {"CRI\t85", 85.0},
        {"CRI \xE2\x89\xA5 80", 80.0}, // the sign "at least" in UTF-8
        {"CRI \xB3 80", 80.0},         // and in the encoding of a symbol font
        {"CRI\xA0\x38\x30", 80.0},     // a hard blank in Windows-1252
        {"CRI\xC2\xA0\x38\x30", 80.0},
        {"CRI 19", 0.0},
        {"CRI 20", 20.0},
        {"CRI 100", 100.0},
        {"CRI 101", 0.0},
        {"CRI 080", 80.0},
        {"CRI 0080", 0.0}, // four digits are no index
        {"CRI 9", 0.0},
        {"CRI 8000", 0.0},
        {"CRI 80.5", 80.0},
        {"CRI min 80", 0.0},
        {"CRI\n80", 0.0}, // the next line of the header
        {"CRI < 80", 0.0},
        {"CRI", 0.0},
        {"Ra", 0.0},
        {"", 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(ColourRendering({{"LAMP", c.value}}), c.index);
    }
}

TEST(ColourRenderingFromIes, TakesAccentedLettersForLetters) {
    EXPECT_EQ(ColourRendering({{"LAMP", "p\xC3\xAAra 60"}}), 0.0);     // UTF-8
    EXPECT_EQ(ColourRendering({{"LAMP", "P\xCARA 60"}}), 0.0);         // Windows-1252
    EXPECT_EQ(ColourRendering({{"LAMP", "3\xC3\x97Ra 85"}}), 85.0);    // a sign of multiplication
    EXPECT_EQ(ColourRendering({{"LAMP", "\xE2\x80\xA2Ra 85"}}), 85.0); // a bullet
    EXPECT_EQ(ColourRendering({{"LAMP", "\xB7Ra 85"}}), 85.0);         // a dot in Windows-1252
}

TEST(ColourRenderingFromIes, GoesOnToTheNextOccurrenceTagAndKeyword) {
    struct Case {
        std::string name;
        Keywords keywords;
        double index;
    };
    const Case cases[] = {
        {"the same tag again", {{"LAMP", "CRI 105, CRI 85"}}, 85.0},
        {"a tag inside a word first", {{"LAMP", "Sacri 70 CRI 85"}}, 85.0},
        {"cri before irc before ra", {{"LAMP", "Ra 81 IRC 82 CRI 83"}}, 83.0},
        {"irc before ra", {{"LAMP", "Ra 81 IRC 82"}}, 82.0},
        {"beyond 100, next tag", {{"LAMP", "CRI 105 IRC 82"}}, 82.0},
        {"the first keyword", {{"TEST", "Ra 81"}, {"LAMP", "CRI 90"}}, 81.0},
        {"the next keyword", {{"TEST", "IRC: 105"}, {"LAMP", "CRI 90"}}, 90.0},
        {"its own keyword first", {{"LAMP", "CRI 90"}, {"_RA", "80"}}, 80.0},
        {"its own keyword is no index", {{"LAMP", "CRI 90"}, {"_RA", "180"}}, 90.0},
        {"its own keyword as a text", {{"_RA", "Ra > 85"}}, 85.0},
        {"the first of its own", {{"_RA", "x"}, {"_RA", "85"}}, 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ColourRendering(c.keywords), c.index);
    }
}

TEST(IdentityFromIes, TakesTheKeywordsOfTheHeader) {
    IesFile file;
    file.keywords = {{"LAMP", "LED CRI 85"},
                     {"MANUFAC", "Oficina"},
                     {"LUMCAT", "D-1"},
                     {"LUMINAIRE", "Downlight\nredondo"}};
    const LuminaireIdentity identity = IdentityFromIes(file);
    EXPECT_EQ(identity.manufacturer, "Oficina");
    EXPECT_EQ(identity.catalog, "D-1");
    EXPECT_EQ(identity.luminaire, "Downlight\nredondo");
    EXPECT_EQ(identity.lamp, "LED CRI 85");
    EXPECT_EQ(identity.colourRendering, 85.0);
}

TEST(IdentityFromIes, IsEmptyWithoutKeywords) {
    const LuminaireIdentity identity = IdentityFromIes(IesFile{});
    EXPECT_EQ(identity.manufacturer + identity.catalog + identity.luminaire + identity.lamp, "");
    EXPECT_EQ(identity.colourRendering, 0.0);
}

TEST(ApplyIdentityToIes, WritesTrimmedTextsOverWhatIsThere) {
    IesFile file;
    file.keywords = {{"TEST", "1"}, {"LUMCAT", "old"}, {"MANUFAC", "old"}, {"LUMCAT", "older"}};
    ApplyIdentityToIes({.manufacturer = "",
                        .catalog = " \t\r\nD-1\v \n",
                        .luminaire = "a\n b",
                        .lamp = "\n",
                        .colourRendering = 0.0},
                       file);
    EXPECT_EQ(
        file.keywords,
        (Keywords{{"TEST", "1"}, {"LUMCAT", "D-1\v"}, {"MANUFAC", ""}, {"LUMINAIRE", "a\n b"}}));
}

TEST(ApplyIdentityToIes, WritesARoundedIndexOrNone) {
    struct Case {
        double index;
        Keywords after;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Case cases[] = {
        {90.0, {{"_RA", "90"}}}, {0.5, {{"_RA", "1"}}},      {0.49, {}},  {0.0, {}},   {-5.0, {}},
        {82.5, {{"_RA", "83"}}}, {100.49, {{"_RA", "100"}}}, {100.5, {}}, {1e300, {}}, {nan, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.index);
        LuminaireIdentity identity;
        identity.colourRendering = c.index;
        IesFile file;
        file.keywords = {{"_RA", "70"}, {"_RA", "60"}};
        ApplyIdentityToIes(identity, file);
        EXPECT_EQ(file.keywords, c.after);
    }
}

TEST(ApplyIdentityToIes, ReadsBackWhatItWrote) {
    const LuminaireIdentity identity = {.manufacturer = "Oficina",
                                        .catalog = "D-1",
                                        .luminaire = "Downlight",
                                        .lamp = "LED",
                                        .colourRendering = 92.0};
    IesFile file;
    ApplyIdentityToIes(identity, file);
    const LuminaireIdentity read = IdentityFromIes(file);
    EXPECT_EQ(read.manufacturer, "Oficina");
    EXPECT_EQ(read.catalog, "D-1");
    EXPECT_EQ(read.luminaire, "Downlight");
    EXPECT_EQ(read.lamp, "LED");
    EXPECT_EQ(read.colourRendering, 92.0);
}

} // namespace
} // namespace Merivane::Photometry
