#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/ReflectanceText.hpp"
#include "Support/CommaLocale.hpp"

namespace Merivane::Simulation {
namespace {

const std::string Header = "MerivaneReflectances 4\n";

ReflectanceStore Parsed(const std::string& text) {
    ReflectanceStore store;
    EXPECT_TRUE(ParseReflectances(text, store)) << text;
    return store;
}

TEST(FormatReflectances, WritesOneLineForEachSurfaceInTheOrderOfTheKeys) {
    EXPECT_EQ(FormatReflectances({}), "MerivaneReflectances 4\n");
    EXPECT_EQ(FormatReflectances({{"sup:Vidro", {0.5, true, 0.8, 0.1, 0.25}},
                                  {"gdl:Aço", {0.35, false, 0.7, 0.08, 0.08}},
                                  {"orientacao:piso", {1.0 / 3.0}}}),
              "MerivaneReflectances 4\n"
              "gdl:Aço\t0.35\t-1\t0.08\t0.08\n"
              "orientacao:piso\t0.3333333333333333\t-1\t0.08\t0.08\n"
              "sup:Vidro\t0.5\t0.8\t0.1\t0.25\n");
}

TEST(FormatReflectances, LeavesOutWhatWouldNotReadBack) {
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(FormatReflectances({{"a\tb", {}},
                                  {"a\rb", {}},
                                  {"a\nb", {}},
                                  {"", {}},
                                  {"sup:a", {infinite}},
                                  {"sup:b", {0.5, true, -0.1}},
                                  {"sup:c", {0.5, true, infinite}},
                                  {"sup:d", {0.5, false, 0.0, infinite}},
                                  {"sup:e", {0.5, false, 0.0, 0.08, infinite}}}),
              Header);
}

TEST(ParseReflectances, ReadsBackWhatWasWritten) {
    const ReflectanceStore store = {{"gdl:Aço 304 ", {0.1 + 0.2, false, 0.0, 1e-300, 0.6}},
                                    {"orientacao:teto", {0.7}},
                                    {"sup:Vidro", {0.5, true, 0.0, 0.0, 1.0 / 3.0}}};
    EXPECT_EQ(Parsed(FormatReflectances(store)), store);
}

TEST(ParseReflectances, ReadsEveryVersion) {
    struct Case {
        const char* text;
        ReflectanceStore store;
    };
    const Case cases[] = {
        {"MerivaneReflectances 1\nsup:a\t0.3\n", {{"sup:a", {0.3, false, 0.0, 0.08, 0.08}}}},
        {"MerivaneReflectances 2\nsup:a\t0.3\t0.6\nsup:b\t0.4\t-1\n",
         {{"sup:a", {0.3, true, 0.6, 0.08, 0.08}}, {"sup:b", {0.4, false, 0.0, 0.08, 0.08}}}},
        {"MerivaneReflectances 3\nsup:a\t0.3\t0.6\t0.2\nsup:b\t0.4\t-1\t0.1\n",
         {{"sup:a", {0.3, true, 0.6, 0.2, 0.2}}, {"sup:b", {0.4, false, 0.0, 0.1, 0.1}}}},
        {"MerivaneReflectances 4\nsup:a\t0.3\t0.6\t0.2\t0.4\n",
         {{"sup:a", {0.3, true, 0.6, 0.2, 0.4}}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Parsed(c.text), c.store);
    }
}

TEST(ParseReflectances, RewritesAnOlderVersionAsTheCurrentOne) {
    EXPECT_EQ(FormatReflectances(Parsed("MerivaneReflectances 1\nsup:a\t0.3\n")),
              "MerivaneReflectances 4\nsup:a\t0.3\t-1\t0.08\t0.08\n");
}

TEST(ParseReflectances, RefusesAnyOtherFirstLine) {
    for (const char* const text :
         {"", "\n", "MerivaneReflectances", "MerivaneReflectances 0\n", "MerivaneReflectances 5\n",
          "MerivaneReflectances 4 \n", " MerivaneReflectances 4\n", "MerivaneReflectances 4\r\n",
          "MerivaneReflectances 44\n", "merivaneReflectances 4\n", "\nMerivaneReflectances 4\n"}) {
        ReflectanceStore store = {{"sup:a", {}}};
        EXPECT_FALSE(ParseReflectances(std::string(text) + "sup:b\t0.3\t-1\t0.08\t0.08\n", store))
            << text;
        EXPECT_TRUE(store.empty()) << text;
    }
}

TEST(ParseReflectances, ReadsAFirstLineAlone) {
    EXPECT_TRUE(Parsed("MerivaneReflectances 4").empty());
    EXPECT_TRUE(Parsed("MerivaneReflectances 1\n\n\n").empty());
}

TEST(ParseReflectances, SplitsFromTheRightSoThatAKeyMayHoldATab) {
    EXPECT_EQ(Parsed("MerivaneReflectances 1\nsup:a\tb\t0.3\n"),
              (ReflectanceStore{{"sup:a\tb", {0.3}}}));
    EXPECT_EQ(Parsed("MerivaneReflectances 2\nsup:a\t0.1\t0.3\t0.6\n"),
              (ReflectanceStore{{"sup:a\t0.1", {0.3, true, 0.6}}}));
}

TEST(ParseReflectances, PassesOverALineThatItCanNotRead) {
    for (const char* const line : {
             "",
             "sup:a",
             "sup:a\t0.3",
             "sup:a\t0.3\t-1\t0.08",   // a field short
             "\t0.3\t-1\t0.08\t0.08",  // no key
             "sup:a\t0.3\t-1\t0.08\t", // empty number
             "sup:a\t0.3\t-1\t0.08\t0.08\r",
             "sup:a\t0.3\t-1\t0.08\t0.08x",
             "sup:a\t0,3\t-1\t0.08\t0.08", // a decimal comma
             "sup:a\t0.3\tx\t0.08\t0.08",
             "sup:a\tinf\t-1\t0.08\t0.08",
             "sup:a\t0.3\tnan\t0.08\t0.08",
             "sup:a\t1e999\t-1\t0.08\t0.08",
         }) {
        SCOPED_TRACE(line);
        EXPECT_EQ(Parsed(Header + line + "\nsup:b\t0.4\t-1\t0.08\t0.08"),
                  (ReflectanceStore{{"sup:b", {0.4}}}));
    }
}

TEST(ParseReflectances, TakesATransmittanceOf0ForGlassAndANegativeOneForOpaque) {
    const ReflectanceStore store = Parsed(Header + "sup:a\t0.3\t0\t0.1\t0.2\n"
                                                   "sup:b\t0.3\t-0.001\t0.1\t0.2\n");
    EXPECT_EQ(store.at("sup:a"), (StoredReflectance{0.3, true, 0.0, 0.1, 0.2}));
    EXPECT_EQ(store.at("sup:b"), (StoredReflectance{0.3, false, 0.0, 0.1, 0.2}));
}

TEST(ParseReflectances, LetsTheLastLineOfASurfaceCount) {
    EXPECT_EQ(Parsed(Header + "sup:a\t0.3\t-1\t0.08\t0.08\nsup:a\t0.4\t-1\t0.08\t0.08\n"),
              (ReflectanceStore{{"sup:a", {0.4}}}));
}

TEST(ParseReflectances, DoesNotClampWhatItReads) {
    EXPECT_EQ(Parsed(Header + "sup:a\t1.5\t2\t-1\t7\n"),
              (ReflectanceStore{{"sup:a", {1.5, true, 2.0, -1.0, 7.0}}}));
}

TEST(ParseReflectances, ReadsATextThatIsCutAtAnyLength) {
    const std::string text = Header + "sup:a\t0.25\t-1\t0.08\t0.08\nsup:b\t0.5\t0.75\t0.1\t0.2\n";
    for (std::size_t length = 0; length < text.size(); ++length) {
        ReflectanceStore store;
        EXPECT_EQ(ParseReflectances(text.substr(0, length), store), length + 1 >= Header.size());
        EXPECT_LE(store.size(), 2U);
    }
}

TEST(ReflectanceText, IsTheSameInEveryLocale) {
    const Tests::CommaLocale locale;
    const ReflectanceStore store = {{"sup:a", {0.25, true, 0.75, 0.1, 0.2}}};
    EXPECT_EQ(FormatReflectances(store), Header + "sup:a\t0.25\t0.75\t0.1\t0.2\n");
    EXPECT_EQ(Parsed(FormatReflectances(store)), store);
}

} // namespace
} // namespace Merivane::Simulation
