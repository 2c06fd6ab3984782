#include "Photometry/UserSymbols.hpp"

#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/SymbolRows.hpp"

namespace Merivane::Photometry {
namespace {

using Kind = SymbolStrokeKind;

const std::string Stored = "MVSYMBOLS 1\n"
                           "next 1003\n"
                           "hidden 3 17\n"
                           "symbol 1000 Minha luminária\n"
                           "L 0 0.5 -1 1e-06\n"
                           "C 0.25 0 0.75\n"
                           "A 0 0 1 90 270 1\n"
                           "P 0 3 0 0 1 0 0 1\n"
                           "symbol 1002 Outra\n";

PlanSymbol Named(int id, const char* name) {
    PlanSymbol symbol;
    symbol.id = id;
    symbol.name = name;
    return symbol;
}

UserSymbols Sample() {
    UserSymbols symbols;
    symbols.nextId = 1003;
    symbols.hiddenBuiltIns = {17, 3};
    PlanSymbol symbol = Named(1000, "Minha luminária");
    symbol.strokes = {
        {.kind = Kind::Line, .points = {{0, 0.5}, {-1, 1e-6}}},
        {.kind = Kind::Circle, .points = {{0.25, 0}}, .radius = 0.75},
        {.kind = Kind::Arc,
         .points = {{0, 0}},
         .radius = 1,
         .beginAngle = 90,
         .endAngle = 270,
         .filled = true},
        {.kind = Kind::Polygon, .points = {{0, 0}, {1, 0}, {0, 1}}},
    };
    symbols.symbols = {symbol, Named(1002, "Outra")};
    return symbols;
}

std::vector<SymbolStroke> StrokesOf(const std::string& lines) {
    const UserSymbols read = ParseUserSymbols("MVSYMBOLS 1\nsymbol 1000 a\n" + lines);
    return read.symbols.empty() ? std::vector<SymbolStroke>() : read.symbols[0].strokes;
}

TEST(FormatUserSymbols, WritesOneLineForEachStroke) {
    EXPECT_EQ(FormatUserSymbols(Sample()), Stored);
    EXPECT_EQ(FormatUserSymbols({}), "MVSYMBOLS 1\nnext 1000\nhidden \n");
}

TEST(ParseUserSymbols, ReadsWhatIsWritten) {
    EXPECT_EQ(ParseUserSymbols(Stored), Sample());
    EXPECT_EQ(ParseUserSymbols(FormatUserSymbols({})), UserSymbols{});
}

TEST(ParseUserSymbols, GivesNoneForAnotherForm) {
    for (const char* first : {"", "MVSYMBOLS", "MVSYMBOLS 2", "MVSYMBOLS 10", "mvsymbols 1",
                              " MVSYMBOLS 1", "\xEF\xBB\xBFMVSYMBOLS 1"}) {
        SCOPED_TRACE(first);
        EXPECT_EQ(ParseUserSymbols(first + std::string("\nnext 1005\nhidden 1\nsymbol 1001 a\n")),
                  UserSymbols{});
    }
    EXPECT_EQ(ParseUserSymbols("MVSYMBOLS 1 x\nsymbol 1001 a\n").symbols.size(), 1U);
}

TEST(ParseUserSymbols, SkipsLinesThatItDoesNotKnow) {
    std::string text = Stored;
    const std::string unknown[] = {"",
                                   "Z 1 2",
                                   "comment",
                                   "L 0 0 1",
                                   "L 0 0 1 1 1",
                                   "L 0 0 1 x",
                                   "C 0 0",
                                   "C 0 0 0",
                                   "C 0 0 -1",
                                   "C 0 0 inf",
                                   "A 0 0 1 2 3",
                                   "A 0 0 nan 0 90 1",
                                   "P 1 3 0 0 1 0",
                                   "P 1 3 0 0 1 0 0 1 1",
                                   "P 1 3 0 0 1 0 0 1 1 1",
                                   "P 1 2 0 0 1 0",
                                   "P",
                                   "P 1",
                                   "P 1 -1",
                                   "P 1 1e300 0 0",
                                   "L",
                                   "LL 0 0 1 1",
                                   "next",
                                   "next x",
                                   "hidden",
                                   "symbol",
                                   "C0 0 1"};
    for (const std::string& line : unknown) {
        if (line != "symbol") {
            text.insert(text.find("L 0 0.5"), line + "\n");
        }
    }
    EXPECT_EQ(ParseUserSymbols(text), Sample());
}

TEST(ParseUserSymbols, ReadsTextsWithOtherLineEndsAndBlanks) {
    EXPECT_EQ(StrokesOf("L  0 0   1 1 \r\nC 0 0 1\r").size(), 2U);
    EXPECT_EQ(ParseUserSymbols("MVSYMBOLS 1\r\nnext 1004\r\nsymbol 1001  a b \r\n").symbols[0].name,
              " a b ");
    EXPECT_EQ(ParseUserSymbols("MVSYMBOLS 1\r\nnext 1004\r\n").nextId, 1004);
}

TEST(ParseUserSymbols, SkipsASymbolWithoutAGoodIdentifierTogetherWithItsStrokes) {
    for (const char* id :
         {"x", "", "-1", "0", "2", "30", "1000", "1000000000", "99999999999", "1001.5", "+1001"}) {
        SCOPED_TRACE(id);
        const UserSymbols read = ParseUserSymbols("MVSYMBOLS 1\nsymbol 1000 a\nC 0 0 1\nsymbol " +
                                                  std::string(id) + " b\nC 0 0 1\n");
        ASSERT_EQ(read.symbols.size(), 1U);
        EXPECT_EQ(read.symbols[0].strokes.size(), 1U);
        EXPECT_EQ(read.nextId, 1001);
    }
    EXPECT_EQ(ParseUserSymbols("MVSYMBOLS 1\nC 0 0 1\nsymbol 31 a").symbols.size(), 1U);
}

TEST(ParseUserSymbols, NeverGivesAnIdentifierTwice) {
    const auto nextOf = [](const std::string& lines) {
        return ParseUserSymbols("MVSYMBOLS 1\n" + lines).nextId;
    };
    EXPECT_EQ(nextOf(""), 1000);
    EXPECT_EQ(nextOf("next 5\n"), 1000);
    EXPECT_EQ(nextOf("next -7\n"), 1000);
    EXPECT_EQ(nextOf("next 2000\nsymbol 1500 a\n"), 2000);
    EXPECT_EQ(nextOf("next 1001\nsymbol 1500 a\n"), 1501);
    EXPECT_EQ(nextOf("symbol 999999999 a\n"), 1000000000);
    EXPECT_EQ(nextOf("next 2147483647\n"), 1000000000);
}

TEST(ParseUserSymbols, HidesBuiltInSymbolsAlone) {
    EXPECT_EQ(
        ParseUserSymbols("MVSYMBOLS 1\nhidden 30 2 x 0 31 -1  2 1000\nhidden 5\n").hiddenBuiltIns,
        (std::set<int>{2, 5, 30}));
}

TEST(FormatUserSymbols, LeavesOutWhatIsRemovedOrCanNotBeDrawn) {
    UserSymbols symbols;
    symbols.symbols = {Named(1000, "gone"), Named(1001, "a\r\nb")};
    symbols.symbols[0].hidden = true;
    symbols.symbols[1].strokes = {{},
                                  {.kind = Kind::Circle,
                                   .points = {{0, 0}},
                                   .radius = std::numeric_limits<double>::infinity()}};
    EXPECT_EQ(FormatUserSymbols(symbols), "MVSYMBOLS 1\nnext 1000\nhidden \nsymbol 1001 a  b\n");
}

TEST(UserSymbols, DrawTheSameAfterWritingAndReading) {
    std::mt19937_64 random(86);
    std::uniform_real_distribution<double> number(-1.0, 1.0);
    for (int i = 0; i < 500; ++i) {
        PlanSymbol symbol = Named(1000, "a");
        for (std::size_t n = random() % 5; n > 0; --n) {
            SymbolStroke stroke;
            stroke.kind = static_cast<Kind>(random() % 4);
            const bool isRound = stroke.kind == Kind::Circle || stroke.kind == Kind::Arc;
            const std::size_t points = isRound ? 1 : stroke.kind == Kind::Line ? 2 : 4;
            for (std::size_t p = 0; p < points; ++p) {
                stroke.points.push_back({number(random), number(random)});
            }
            stroke.radius = isRound ? number(random) + 1.5 : 0.0;
            if (stroke.kind == Kind::Arc) {
                stroke.beginAngle = 360 * number(random);
                stroke.endAngle = 360 * number(random);
            }
            stroke.filled = random() % 2 == 0;
            symbol.strokes.push_back(stroke);
        }
        UserSymbols symbols;
        symbols.symbols = {symbol};
        const std::string text = FormatUserSymbols(symbols);
        const UserSymbols back = ParseUserSymbols(text);
        ASSERT_EQ(back.symbols.size(), 1U);
        EXPECT_EQ(BuildSymbolRows(back.symbols[0]).rows, BuildSymbolRows(symbol).rows);
        EXPECT_EQ(back.nextId, 1001);
        EXPECT_EQ(ParseUserSymbols(FormatUserSymbols(back)), back);
    }
}

TEST(SymbolLibrary, HoldsTheBuiltInSymbolsThenTheUsersOwn) {
    const std::vector<PlanSymbol> library = SymbolLibrary(Sample());
    ASSERT_EQ(library.size(), 33U);
    for (const PlanSymbol& symbol : library) {
        EXPECT_EQ(symbol.hidden, symbol.id == 3 || symbol.id == 17) << symbol.name;
    }
    EXPECT_EQ(library[0].id, NoPlanSymbol);
    EXPECT_EQ(library[30].name, "Estrela");
    EXPECT_EQ(library[31], Sample().symbols[0]);
    EXPECT_EQ(library[32], Sample().symbols[1]);
}

TEST(SymbolLibrary, IsTheBuiltInOneForATextOfAnotherForm) {
    EXPECT_EQ(SymbolLibrary(ParseUserSymbols("MVSYMBOLS 2\nhidden 1\nsymbol 1001 a\nC 0 0 1\n")),
              BuiltInSymbols());
}

TEST(UserSymbols, AreReadFromATextCutAnywhere) {
    for (std::size_t length = 0; length <= Stored.size(); ++length) {
        const UserSymbols read = ParseUserSymbols(Stored.substr(0, length));
        EXPECT_EQ(ParseUserSymbols(FormatUserSymbols(read)), read) << length;
    }
}

} // namespace
} // namespace Merivane::Photometry
