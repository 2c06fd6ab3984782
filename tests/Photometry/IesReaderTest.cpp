#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "IesSamples.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesWriter.hpp"
#include "Support/CommaLocale.hpp"

namespace Merivane::Photometry {
namespace {

using Tests::SmallText;
using Keywords = std::vector<std::pair<std::string, std::string>>;
using Texts = std::vector<std::string>;

const std::string Header = "IESNA:LM-63-2002\n[TEST] X\nTILT=NONE\n";

struct Reading {
    IesReadResult result;
    IesFile file;
};

Reading Read(const std::string& text) {
    Reading reading;
    reading.result = ReadIes(text, reading.file);
    return reading;
}

/// The thirteen header numbers with one of them replaced, then a table of 3 x 1.
std::string TextWithNumber(std::size_t place, const std::string& number) {
    Texts numbers = {"1", "1000", "1", "3", "1", "1", "2", "0.1", "0.2", "0", "1", "1", "10"};
    numbers[place] = number;
    std::string text = Header;
    for (const std::string& n : numbers) {
        text += n + " ";
    }
    return text + "\n0 45 90\n0\n100 50 0\n";
}

TEST(IesReader, ReadsAWholeFile) {
    const Reading r = Read("IESNA:LM-63-1995\r\n[TEST] 42\r\n[MANUFAC] Luz\r\n[MORE] e Cia\r\n"
                           "free text\r\nTILT=INCLUDE\r\n2\r\n3\r\n0 45 90\r\n1 0.9 0.8\r\n"
                           "2 3150.5 1.5 3 2 1 1 -0.5 0 0.25\r\n0.95 1 36.5\r\n"
                           "0 45 90\r\n0 90\r\n100 50 1e1\r\n90 40 .5\r\n");
    ASSERT_TRUE(r.result.ok) << r.result.error;
    EXPECT_EQ(r.result.error, "");
    EXPECT_EQ(r.result.warnings, Texts{});
    EXPECT_EQ(r.file.formatVersion, 2);
    EXPECT_EQ(r.file.keywords, (Keywords{{"TEST", "42"}, {"MANUFAC", "Luz\ne Cia"}}));
    EXPECT_EQ(r.file.otherLines, Texts{"free text"});
    EXPECT_EQ(r.file.tiltMode, 1);
    EXPECT_EQ(r.file.tiltFile, "");
    EXPECT_EQ(r.file.tiltGeometry, 2);
    EXPECT_EQ(r.file.tiltAngles, (std::vector<double>{0, 45, 90}));
    EXPECT_EQ(r.file.tiltFactors, (std::vector<double>{1, 0.9, 0.8}));
    EXPECT_EQ(r.file.lampCount, 2);
    EXPECT_EQ(r.file.lumensPerLamp, 3150.5);
    EXPECT_EQ(r.file.candelaMultiplier, 1.5);
    EXPECT_EQ(r.file.photometricType, 1);
    EXPECT_EQ(r.file.unitsType, 1);
    EXPECT_EQ(r.file.width, -0.5);
    EXPECT_EQ(r.file.length, 0.0);
    EXPECT_EQ(r.file.height, 0.25);
    EXPECT_EQ(r.file.ballastFactor, 0.95);
    EXPECT_EQ(r.file.futureUse, 1.0);
    EXPECT_EQ(r.file.inputWatts, 36.5);
    EXPECT_EQ(r.file.verticalAngles, (std::vector<double>{0, 45, 90}));
    EXPECT_EQ(r.file.horizontalAngles, (std::vector<double>{0, 90}));
    EXPECT_EQ(r.file.candela, (std::vector<std::vector<double>>{{100, 50, 10}, {90, 40, 0.5}}));
}

TEST(IesReader, GivesTheSameForEveryKindOfLineEnd) {
    const std::string text = SmallText("IESNA:LM-63-2002\n[A] b\n\n \nTILT=NONE\n");
    const auto with = [&text](const std::string& lineEnd) {
        std::string other;
        for (const char c : text) {
            other += c == '\n' ? lineEnd : std::string(1, c);
        }
        return other;
    };
    for (const std::string& lineEnd : {std::string("\n"), std::string("\r\n"), std::string("\r"),
                                       std::string("\n\r"), std::string("\r\r\n")}) {
        const Reading r = Read(with(lineEnd));
        EXPECT_TRUE(r.result.ok) << r.result.error;
        EXPECT_EQ(r.file.keywords, (Keywords{{"A", "b"}}));
        EXPECT_EQ(r.file.candela, (std::vector<std::vector<double>>{{100, 50, 0}}));
    }
}

TEST(IesReader, NeedsNoEndOfTheLastLine) {
    std::string text = SmallText(Header);
    text.pop_back();
    EXPECT_TRUE(Read(text).result.ok);
}

TEST(IesReader, DropsAByteOrderMark) {
    const Reading r = Read("\xEF\xBB\xBF" + SmallText(Header));
    EXPECT_TRUE(r.result.ok);
    EXPECT_EQ(r.result.warnings, Texts{});
    EXPECT_EQ(r.file.formatVersion, 3);
    // Only one, and only a whole one.
    EXPECT_EQ(Read("\xEF\xBB" + SmallText(Header)).file.formatVersion, 0);
    EXPECT_EQ(Read("\xEF\xBB\xBF\xEF\xBB\xBF" + SmallText(Header)).file.formatVersion, 0);
}

TEST(IesReader, KnowsTheEditionByTheBeginningOfTheFirstLine) {
    struct Case {
        std::string line;
        int version;
        std::string warning;
    };
    const auto unknown = [](const std::string& line) {
        return "versao do formato nao reconhecida (" + line + "), lido como LM-63-2002";
    };
    const Case cases[] = {
        {"IESNA:LM-63-1995", 2, ""},
        {"IESNA:LM-63-1995 extra", 2, ""},
        {"iesna:lm-63-1995", 2, ""},
        {"IESNA:LM-63-2002", 3, ""},
        {"iesna:lm-63-2002", 3, ""},
        {" \t IESNA:LM-63-2002 \v\f", 3, ""},
        {"IES:LM-63-2019", 4, ""},
        {"IES:LM-63-2019X", 4, ""},
        {"IESNA91", 1, ""},
        {"IESNA91 x", 1, ""},
        {"IESNA:LM-63-1991", 1, ""},
        {"  Iesna:LM-63-2010 ", 3, unknown("Iesna:LM-63-2010")},
        {"IESNA:LM-63-2019", 3, unknown("IESNA:LM-63-2019")},
        {"IESNA: LM-63-2002", 3, unknown("IESNA: LM-63-2002")},
        {"IESNA95", 3, unknown("IESNA95")},
        {"IESNA", 3, unknown("IESNA")},
        {"IES:LM-63-2020", 3, unknown("IES:LM-63-2020")},
        {"ies:", 3, unknown("ies:")},
        {"IES", 0, ""},
        {"IES86", 0, ""},
        {"iesn", 0, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        const Reading r = Read(SmallText(c.line + "\nTILT=NONE\n"));
        EXPECT_TRUE(r.result.ok) << r.result.error;
        EXPECT_EQ(r.file.formatVersion, c.version);
        EXPECT_EQ(r.result.warnings, c.warning.empty() ? Texts{} : Texts{c.warning});
        EXPECT_EQ(r.file.otherLines, Texts{});
        EXPECT_EQ(r.file.keywords, Keywords{});
    }
}

TEST(IesReader, TakesAnyOtherFirstLineForHeaderText) {
    Reading r = Read(SmallText("[TEST] X\nTILT=NONE\n"));
    EXPECT_EQ(r.file.formatVersion, 0);
    EXPECT_EQ(r.file.keywords, (Keywords{{"TEST", "X"}}));
    EXPECT_EQ(r.result.warnings, Texts{});

    r = Read(SmallText("Report 1\nTILT=NONE\n"));
    EXPECT_EQ(r.file.formatVersion, 0);
    EXPECT_EQ(r.file.otherLines, Texts{"Report 1"});

    r = Read(SmallText("TILT=NONE\n"));
    EXPECT_TRUE(r.result.ok);
    EXPECT_EQ(r.file.formatVersion, 0);
    EXPECT_EQ(r.file.keywords, Keywords{});

    r = Read(SmallText("\nIESNA:LM-63-2002\nTILT=NONE\n")); // the first line is the empty one
    EXPECT_EQ(r.file.formatVersion, 0);
    EXPECT_EQ(r.file.otherLines, Texts{"IESNA:LM-63-2002"});
}

TEST(IesReader, ReadsTheTiltLine) {
    struct Case {
        std::string line;
        int mode;
        std::string file;
    };
    const Case cases[] = {
        {"TILT=NONE", 0, ""},         {"tilt = none", 0, ""},
        {"  TILT=NONE\t", 0, ""},     {"TILT of the lamp =None", 0, ""},
        {"TILTED=NONE", 0, ""},       {"TILT=Abc.tlt", 2, "Abc.tlt"},
        {"TILT= a = b ", 2, "a = b"}, {"TILT=", 2, ""},
        {"TILT=NONE.", 2, "NONE."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        const Reading r = Read(SmallText("IESNA91\n" + c.line + "\n"));
        EXPECT_TRUE(r.result.ok) << r.result.error;
        EXPECT_EQ(r.file.tiltMode, c.mode);
        EXPECT_EQ(r.file.tiltFile, c.file);
        const std::string warning =
            "TILT aponta para arquivo externo (" + c.file + "), que nao e lido";
        EXPECT_EQ(r.result.warnings, c.mode == 2 ? Texts{warning} : Texts{});
    }
}

TEST(IesReader, RefusesAHeaderLineThatBeginsWithTiltButHasNoEqualsSign) {
    for (const char* line : {"TILT", "TILT NONE", "TILTED BOX", " tilt\t"}) {
        const Reading r = Read(SmallText("IESNA91\n" + std::string(line) + "\nTILT=NONE\n"));
        EXPECT_FALSE(r.result.ok);
        EXPECT_EQ(r.result.error, "linha TILT sem \"=\"");
    }
}

TEST(IesReader, RefusesATextWithoutATiltLine) {
    for (const char* text : {"", "\n", "\r\n\r\n", "\xEF\xBB\xBF", "IESNA:LM-63-2002", "TIL=NONE",
                             "IESNA91\n[TILT] x\n1 2 3\n", "\x89PNG\r\n\x1A\n"}) {
        const Reading r = Read(text);
        EXPECT_FALSE(r.result.ok);
        EXPECT_EQ(r.result.error, "linha TILT= nao encontrada - nao parece um arquivo IES");
    }
}

TEST(IesReader, ReadsKeywordsAsTheyStand) {
    const Reading r = Read(SmallText("IESNA91\n"
                                     "[test] one \n"
                                     "  [ Lamp ]  LED [4000K] \n"
                                     "[TEST] two\n"
                                     "[EMPTY]\n"
                                     "[] no key\n"
                                     "[TILT] x\n"
                                     "TILT=NONE\n"));
    EXPECT_TRUE(r.result.ok);
    EXPECT_EQ(r.result.warnings, Texts{});
    EXPECT_EQ(r.file.keywords, (Keywords{{"TEST", "one"},
                                         {"LAMP", "LED [4000K]"},
                                         {"TEST", "two"},
                                         {"EMPTY", ""},
                                         {"", "no key"},
                                         {"TILT", "x"}}));
    EXPECT_EQ(FindKeyword(r.file, "TEST"), "one");
}

TEST(IesReader, AddsMoreLinesToTheKeywordBefore) {
    const Reading r =
        Read(SmallText("IESNA91\n[A] 1\n[more] 2\nfree\n[ MORE ]\n[MORE]3\nTILT=NONE\n"));
    EXPECT_EQ(r.file.keywords, (Keywords{{"A", "1\n2\n\n3"}}));
    EXPECT_EQ(r.file.otherLines, Texts{"free"});
    EXPECT_EQ(r.result.warnings, Texts{});
}

TEST(IesReader, WarnsOfMoreWithoutAKeywordBefore) {
    const Reading r = Read(SmallText("IESNA91\n[MORE] x\n[A] 1\nTILT=NONE\n"));
    EXPECT_TRUE(r.result.ok);
    EXPECT_EQ(r.file.keywords, (Keywords{{"A", "1"}}));
    EXPECT_EQ(r.result.warnings, Texts{"[MORE] sem palavra-chave anterior, ignorado"});
}

TEST(IesReader, KeepsEveryOtherLineTrimmed) {
    const Reading r = Read(SmallText("IESNA91\n  [TEST no end\n\n \t \nx ] y [z]\nTILT=NONE\n"));
    EXPECT_EQ(r.file.otherLines, (Texts{"[TEST no end", "x ] y [z]"}));
    EXPECT_EQ(r.file.keywords, Keywords{});
}

TEST(IesReader, SeparatesNumbersAtWhiteSpaceAndCommas) {
    const Reading r = Read(Header + ",1,,1000 ,1\t3\v1\f1 2,0.1,0.2,0,1,1,10,,\n\n0,45 90\n0,\n"
                                    "1,000,7,\n");
    ASSERT_TRUE(r.result.ok) << r.result.error;
    // A thousands comma is a separator like any other: "1,000" is two numbers.
    EXPECT_EQ(r.file.candela, (std::vector<std::vector<double>>{{1, 0, 7}}));
    EXPECT_EQ(r.result.warnings, Texts{});
}

TEST(IesReader, TakesWhatStrtodTakesForANumber) {
    const Reading r = Read(Header + "1e0 inf 0x2 3 1 1 2 nan -infinity +.5 1 1 1.\n0 45 90\n0\n"
                                    "1E2 .5 5e-324\n");
    ASSERT_TRUE(r.result.ok) << r.result.error;
    EXPECT_EQ(r.file.lampCount, 1);
    EXPECT_TRUE(std::isinf(r.file.lumensPerLamp));
    EXPECT_EQ(r.file.candelaMultiplier, 2.0);
    EXPECT_TRUE(std::isnan(r.file.width));
    EXPECT_EQ(r.file.height, 0.5);
    EXPECT_EQ(r.file.candela, (std::vector<std::vector<double>>{{100, 0.5, 5e-324}}));
}

TEST(IesReader, ReadsNumbersWithAPointUnderALocaleWithAComma) {
    const Tests::CommaLocale locale;
    const Reading r = Read(SmallText(Header));
    ASSERT_TRUE(r.result.ok) << r.result.error;
    EXPECT_EQ(r.file.width, 0.1);
    EXPECT_EQ(r.file.length, 0.2);
}

// Which label goes with which place of the header, and what each kind of number refuses.
TEST(IesReader, NamesTheHeaderNumberThatItCannotRead) {
    struct Case {
        std::size_t place;
        std::string label;
        bool integer;
    };
    const Case cases[] = {
        {0, "numero de lampadas", true},
        {1, "lumens por lampada", false},
        {2, "multiplicador de candela", false},
        {3, "numero de angulos verticais", true},
        {4, "numero de angulos horizontais", true},
        {5, "tipo fotometrico", true},
        {6, "tipo de unidade", true},
        {7, "largura", false},
        {8, "comprimento", false},
        {9, "altura", false},
        {10, "fator de reator", false},
        {11, "campo reservado", false},
        {12, "potencia de entrada", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        EXPECT_EQ(Read(TextWithNumber(c.place, "1O")).result.error,
                  "valor nao numerico \"1O\" em " + c.label);
        const std::string fraction = Read(TextWithNumber(c.place, "1.5")).result.error;
        EXPECT_EQ(fraction, c.integer ? "esperado numero inteiro em " + c.label : "");
        // Cut right before the number.
        std::string text = Header;
        for (std::size_t i = 0; i < c.place; ++i) {
            text += "1 ";
        }
        EXPECT_EQ(Read(text).result.error, "arquivo termina antes de " + c.label);
    }
}

TEST(IesReader, TakesForWholeWhatRoundsToIt) {
    struct Case {
        std::string token;
        bool whole;
    };
    const Case cases[] = {
        {"3.0", true},           {"0.3e1", true},          {"3.00000000099", true},
        {"2.99999999901", true}, {"3.00000000101", false}, {"2.99999999899", false},
        {"3.5", false},          {"2000000000", false},    {"1000000001", false},
        {"-1000000001", false},  {"inf", false},           {"-inf", false},
        {"nan", false},          {"1e300", false},
    };
    for (const Case& c : cases) {
        const Reading r = Read(TextWithNumber(3, c.token));
        EXPECT_EQ(r.result.ok, c.whole) << c.token;
        EXPECT_EQ(r.result.error,
                  c.whole ? "" : "esperado numero inteiro em numero de angulos verticais")
            << c.token;
    }
    EXPECT_EQ(Read(TextWithNumber(0, "1000000000")).file.lampCount, 1000000000);
    EXPECT_EQ(Read(TextWithNumber(0, "-1000000000")).file.lampCount, -1000000000);
    EXPECT_EQ(Read(TextWithNumber(0, "1e2")).file.lampCount, 100);
}

TEST(IesReader, RefusesCountsTypesAndUnitsInTheOrderToldWithTheirNumber) {
    const std::string counts = "numero de angulos verticais/horizontais invalido";
    const auto type = [](const std::string& n) {
        return "tipo fotometrico " + n + " invalido (esperado 1, 2 ou 3)";
    };
    const auto unit = [](const std::string& n) {
        return "tipo de unidade " + n + " invalido (esperado 1 = pes ou 2 = metros)";
    };
    struct Case {
        std::string verticals, horizontals, type, unit;
        std::string error;
    };
    const Case cases[] = {
        {"0", "1", "1", "2", counts},      {"-3", "1", "1", "2", counts},
        {"3", "0", "1", "2", counts},      {"3", "-1", "1", "2", counts},
        {"0", "1", "9", "9", counts},      {"3", "1", "0", "9", type("0")},
        {"3", "1", "4", "2", type("4")},   {"3", "1", "-1", "2", type("-1")},
        {"3", "1", "1", "0", unit("0")},   {"3", "1", "1", "3", unit("3")},
        {"3", "1", "3", "-2", unit("-2")},
    };
    for (const Case& c : cases) {
        const std::string text = Header + "1 1000 1 " + c.verticals + " " + c.horizontals + " " +
                                 c.type + " " + c.unit + " 0 0 0 1 1 0\n";
        // Judged before any table is read: there is none behind these numbers.
        EXPECT_EQ(Read(text).result.error, c.error) << text;
    }
    EXPECT_EQ(Read(Header + "1 1000 1 0 1 9 9 0 0 0 1 1").result.error,
              "arquivo termina antes de potencia de entrada"); // all thirteen are read first
}

TEST(IesReader, NamesTheTableThatEndsEarlyOrHoldsAWord) {
    const std::string numbers = Header + "1 1000 1 3 2 1 2 0 0 0 1 1 0\n";
    struct Case {
        std::string tables;
        std::string error;
    };
    const Case cases[] = {
        {"0 45", "arquivo termina antes de angulos verticais"},
        {"0 45 90 0", "arquivo termina antes de angulos horizontais"},
        {"0 45 90 0 90", "arquivo termina antes de valores de candela"},
        {"0 45 90 0 90 1 2 3 4 5", "arquivo termina antes de valores de candela"},
        {"0 x 90 0 90", "valor nao numerico \"x\" em angulos verticais"},
        {"0 45 90 0 9O", "valor nao numerico \"9O\" em angulos horizontais"},
        {"0 45 90 0 90 1 2 3 4 --5 6", "valor nao numerico \"--5\" em valores de candela"},
        {"0 90 45 0 90 1 2 3 4 5", "arquivo termina antes de valores de candela"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Read(numbers + c.tables).result.error, c.error) << c.tables;
    }
}

TEST(IesReader, RefusesACountThatNoFileHoldsWithoutTakingMemoryForIt) {
    const Reading r = Read(Header + "1 1000 1 1000000000 1000000000 1 2 0 0 0 1 1 0\n0 1 2\n");
    EXPECT_EQ(r.result.error, "arquivo termina antes de angulos verticais");
    EXPECT_LT(r.file.verticalAngles.capacity(), 1000U);
}

TEST(IesReader, RefusesAnglesThatDoNotRise) {
    struct Case {
        std::string verticals, horizontals;
        bool ok;
    };
    const Case cases[] = {
        {"0 45 90", "0 90 180", true},     {"0 45 90", "0 0 90", false},
        {"0 45 90", "0 90 90", false},     {"0 45 90", "90 45 0", false},
        {"0 0 90", "0 90 180", false},     {"90 45 0", "0 90 180", false},
        {"0 nan 90", "0 90 180", false},   {"0 45 90", "0 90 nan", false},
        {"0 1e-300 90", "0 90 180", true},
    };
    for (const Case& c : cases) {
        const Reading r = Read(Header + "1 1000 1 3 3 1 2 0 0 0 1 1 0\n" + c.verticals + "\n" +
                               c.horizontals + "\n1 2 3 4 5 6 7 8 9\n");
        EXPECT_EQ(r.result.ok, c.ok) << c.verticals << " / " << c.horizontals;
        EXPECT_EQ(r.result.error, c.ok ? "" : "angulos fora de ordem crescente");
    }
}

TEST(IesReader, ReadsTiltDataAndNamesWhatIsWrongWithIt) {
    struct Case {
        std::string data;
        std::string error;
    };
    const Case cases[] = {
        {"", "arquivo termina antes de geometria do TILT"},
        {"1.5", "esperado numero inteiro em geometria do TILT"},
        {"x", "valor nao numerico \"x\" em geometria do TILT"},
        {"1", "arquivo termina antes de numero de angulos do TILT"},
        {"1 2.5", "esperado numero inteiro em numero de angulos do TILT"},
        {"1 0", "numero de angulos do TILT invalido"},
        {"1 -2", "numero de angulos do TILT invalido"},
        {"1 2 0", "arquivo termina antes de angulos do TILT"},
        {"1 2 0 z", "valor nao numerico \"z\" em angulos do TILT"},
        {"1 2 0 90 1", "arquivo termina antes de fatores do TILT"},
        {"1 2 0 90 1 f", "valor nao numerico \"f\" em fatores do TILT"},
        {"1 2 0 90 1 0.8", "arquivo termina antes de numero de lampadas"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Read("IESNA91\nTILT=INCLUDE\n" + c.data).result.error, c.error) << c.data;
    }
    const Reading r = Read(SmallText("IESNA91\ntilt = Include\n7\n1\n90 0.5\n"));
    ASSERT_TRUE(r.result.ok) << r.result.error; // the order of tilt angles is not judged
    EXPECT_EQ(r.file.tiltGeometry, 7);
    EXPECT_EQ(r.file.tiltAngles, std::vector<double>{90});
    EXPECT_EQ(r.file.tiltFactors, std::vector<double>{0.5});
}

TEST(IesReader, WarnsOfEveryOddityInTheOrderTold) {
    const Reading r = Read("IESNA99\n[MORE] x\nTILT=a.tlt\n0 1000 0 2 2 1 2 0 0 0 1 1 0\n"
                           "-90 80\n5 10\n-1 2\n-3 4\n7 END 9\n");
    ASSERT_TRUE(r.result.ok) << r.result.error;
    EXPECT_EQ(r.result.warnings,
              (Texts{"versao do formato nao reconhecida (IESNA99), lido como LM-63-2002",
                     "[MORE] sem palavra-chave anterior, ignorado",
                     "TILT aponta para arquivo externo (a.tlt), que nao e lido",
                     "3 valor(es) depois da tabela de candela, ignorado(s)",
                     "numero de lampadas menor que 1", "multiplicador de candela nao positivo",
                     "ha valores de candela negativos",
                     "angulos verticais fora das faixas usuais do tipo C (0-90, 90-180 ou 0-180)",
                     "angulos horizontais fora das simetrias usuais do tipo C"}));
    EXPECT_EQ(r.file.candela, (std::vector<std::vector<double>>{{-1, 2}, {-3, 4}}));
}

TEST(IesReader, JudgesLampCountMultiplierAndCandelaAtZero) {
    struct Case {
        std::size_t place;
        std::string number;
        std::string warning;
    };
    const Case cases[] = {
        {0, "1", ""},
        {0, "0", "numero de lampadas menor que 1"},
        {0, "-1", "numero de lampadas menor que 1"},
        {2, "1e-300", ""},
        {2, "0", "multiplicador de candela nao positivo"},
        {2, "-1", "multiplicador de candela nao positivo"},
        {2, "nan", ""}, // neither zero nor negative
        {1, "-1", ""},
    };
    for (const Case& c : cases) {
        const Reading r = Read(TextWithNumber(c.place, c.number));
        EXPECT_TRUE(r.result.ok);
        EXPECT_EQ(r.result.warnings, c.warning.empty() ? Texts{} : Texts{c.warning}) << c.number;
    }
    const std::string table = "1 1000 1 2 1 1 2 0 0 0 1 1 0\n0 90\n0\n";
    EXPECT_EQ(Read(Header + table + "0 -0").result.warnings, Texts{});
    EXPECT_EQ(Read(Header + table + "0 -1e-300").result.warnings,
              Texts{"ha valores de candela negativos"});
}

TEST(IesReader, DropsWhatStandsBehindTheTable) {
    const Reading r = Read(SmallText(Header) + "55");
    ASSERT_TRUE(r.result.ok);
    EXPECT_EQ(r.result.warnings, Texts{"1 valor(es) depois da tabela de candela, ignorado(s)"});
    EXPECT_EQ(r.file.candela, (std::vector<std::vector<double>>{{100, 50, 0}}));
}

std::string TwoByTwo(int type, const std::string& verticals, const std::string& horizontals) {
    return Header + "1 1000 1 2 2 " + std::to_string(type) + " 2 0 0 0 1 1 0\n" + verticals + "\n" +
           horizontals + "\n1 2 3 4\n";
}

TEST(IesReader, KnowsTheUsualRangesOfTypeC) {
    const std::string verticalWarning =
        "angulos verticais fora das faixas usuais do tipo C (0-90, 90-180 ou 0-180)";
    const std::string horizontalWarning = "angulos horizontais fora das simetrias usuais do tipo C";
    struct Case {
        std::string verticals, horizontals;
        bool verticalOdd, horizontalOdd;
    };
    const Case cases[] = {
        {"0 90", "0 90", false, false},
        {"0 180", "0 180", false, false},
        {"90 180", "0 360", false, false},
        {"0 90", "90 270", false, false},
        {"0.0000009 90.0000009", "0 359.9999991", false, false},
        {"0.000002 90", "0 90.000002", true, true},
        {"-90 90", "0 90", true, false},
        {"0 89", "0 90", true, false},
        {"10 180", "0 90", true, false},
        {"0 90", "0 270", false, true},
        {"0 90", "0 345", false, true},
        {"0 90", "90 180", false, true},
        {"0 90", "90 360", false, true},
        {"0 90", "-90 90", false, true},
        {"5 95", "5 95", true, true},
    };
    for (const Case& c : cases) {
        Texts expected;
        if (c.verticalOdd) {
            expected.push_back(verticalWarning);
        }
        if (c.horizontalOdd) {
            expected.push_back(horizontalWarning);
        }
        EXPECT_EQ(Read(TwoByTwo(1, c.verticals, c.horizontals)).result.warnings, expected)
            << c.verticals << " / " << c.horizontals;
    }
}

TEST(IesReader, NeverWarnsOfASingleHorizontalAngleNorOfVerticalsFrom90To90) {
    for (const char* horizontal : {"0", "17", "-500", "nan"}) {
        const Reading r = Read(Header + "1 1000 1 1 1 1 2 0 0 0 1 1 0\n90\n" + horizontal + "\n7");
        EXPECT_TRUE(r.result.ok) << r.result.error;
        EXPECT_EQ(r.result.warnings, Texts{}) << horizontal;
    }
}

const std::string TypeAOrB =
    "fotometria tipo A/B (projetores/automotiva): o calculo de fluxo so cobre o tipo C";

TEST(IesReader, AcceptsTypesAAndBWithoutARangeCheck) {
    for (const int type : {2, 3}) {
        const Reading r = Read(TwoByTwo(type, "-90 17", "-5 5"));
        EXPECT_TRUE(r.result.ok);
        EXPECT_EQ(r.file.photometricType, type);
        EXPECT_EQ(r.result.warnings, Texts{TypeAOrB});
    }
}

TEST(IesReader, WarnsOfTypesAAndBLastOfAll) {
    const Reading r = Read(Header + "0 1000 -1 2 1 3 2 0 0 0 1 1 0\n-90 90\n0\n-5 6\n7\n");
    ASSERT_TRUE(r.result.ok) << r.result.error;
    EXPECT_EQ(r.result.warnings,
              (Texts{"1 valor(es) depois da tabela de candela, ignorado(s)",
                     "numero de lampadas menor que 1", "multiplicador de candela nao positivo",
                     "ha valores de candela negativos", TypeAOrB}));
}

TEST(IesReader, ResetsWhateverTheRecordHeld) {
    IesFile file;
    ASSERT_TRUE(ReadIes(SmallText("IESNA91\n[A] b\nother\nTILT=INCLUDE\n1 1 0 1\n"), file).ok);
    EXPECT_FALSE(ReadIes("", file).ok);
    EXPECT_EQ(file.formatVersion, 3);
    EXPECT_TRUE(file.keywords.empty() && file.otherLines.empty() && file.tiltAngles.empty());
    EXPECT_TRUE(file.verticalAngles.empty() && file.candela.empty());
    EXPECT_EQ(file.tiltMode, 0);
    EXPECT_EQ(file.lumensPerLamp, 1000.0);
}

TEST(IesReader, KeepsTheWarningsOfARefusedFile) {
    const Reading r = Read("IESNA99\nTILT=NONE\n1 x");
    EXPECT_FALSE(r.result.ok);
    EXPECT_EQ(r.result.error, "valor nao numerico \"x\" em lumens por lampada");
    EXPECT_EQ(r.result.warnings,
              Texts{"versao do formato nao reconhecida (IESNA99), lido como LM-63-2002"});
}

TEST(IesReader, RefusesATextCutAtAnyLength) {
    const std::string text = "IESNA:LM-63-2002\r\n[TEST] X\r\nTILT=INCLUDE\r\n1\r\n2\r\n0 90\r\n"
                             "1 0.5\r\n1 1000 1 3 2 1 2 0.1 0.2 0\r\n1 1 10\r\n0 45 90\r\n0 90\r\n"
                             "100 50 10\r\n90 40 20\r\n";
    const std::size_t lastToken = text.rfind("20");
    for (std::size_t length = 0; length < text.size(); ++length) {
        const Reading r = Read(text.substr(0, length));
        EXPECT_EQ(r.result.ok, length > lastToken) << length;
        EXPECT_EQ(r.result.error.empty(), r.result.ok) << length;
    }
}

TEST(IesReader, SurvivesAnyByteChangedInAFile) {
    std::mt19937_64 random(40);
    const std::string text = SmallText("IESNA:LM-63-2002\n[TEST] X\nTILT=INCLUDE\n1 1\n0\n1\n");
    for (int i = 0; i < 20000; ++i) {
        std::string broken = text;
        for (std::size_t n = 1 + random() % 3; n > 0; --n) {
            broken[random() % broken.size()] = static_cast<char>(random());
        }
        const Reading r = Read(broken);
        EXPECT_EQ(r.result.error.empty(), r.result.ok);
    }
}

TEST(IesReader, ReadsBackWhatTheWriterWrote) {
    std::mt19937_64 random(41);
    for (int i = 0; i < 300; ++i) {
        const IesFile file = Tests::RandomFile(random);
        const Reading r = Read(WriteIes(file));
        ASSERT_TRUE(r.result.ok) << r.result.error << "\n" << WriteIes(file);
        Tests::ExpectSameNumbers(r.file, file);
        EXPECT_EQ(r.file.keywords, file.keywords);
        EXPECT_EQ(r.file.formatVersion, 3);
    }
}

} // namespace
} // namespace Merivane::Photometry
