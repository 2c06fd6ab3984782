#include <gtest/gtest.h>

#include <string>

#include "ScriptRuns.hpp"

namespace Merivane {
namespace {

using namespace Workbench;

struct Row {
    std::string script;
    std::string written; ///< texts, parted by " | "
};

/// Runs rows whose scripts write texts.
void ExpectWritten(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.script);
        EXPECT_EQ(Tests::WrittenTexts(row.script), row.written);
    }
}

/// Rows that are one expression each.
void ExpectValues(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.script);
        EXPECT_EQ(Tests::WrittenTexts("TEXT2 0, 0, " + row.script), row.written);
    }
}

TEST(ScriptExpression, FollowsThePrecedenceOfOperators) {
    ExpectValues({
        {"2 + 3 * 4", "14"},   {"(2 + 3) * 4", "20"},  {"2 * 3 ^ 2", "18"},
        {"2 ** 3 ** 2", "64"}, // left to right
        {"-2 ^ 2", "-4"},      {"2 ^ -1", "0.5"},      {"-3 - -2", "-1"},
        {"10 - 4 - 3", "3"},   {"7 / 2", "3.5"},       {"-7 MOD 3", "2"}, // x - y * INT (x / y)
        {"7 % -3", "-2"},      {"1 + 1 = 2", "1"},     {"1 < 2 AND 2 < 1", "0"},
        {"1 OR 0 AND 0", "1"}, {"1 | 0 & 0", "1"},     {"1 EXOR 1", "0"},
        {"1 @ 0", "1"},        {"1 OR 1 EXOR 1", "0"}, // EXOR comes last
        {"3 <> 3", "0"},       {"3 # 4", "1"},         {"3 >= 3", "1"},
        {"3 <= 2", "0"},       {"NOT (3 = 3)", "0"},   {"1e3 + .5", "1000.5"},
        {"1.5E-1", "0.15"},
    });
}

TEST(ScriptExpression, ComparesAndJoinsTexts) {
    ExpectValues({
        {"\"a\" + 'b' + `c`", "abc"},
        {"\"a\" = \"A\"", "0"},
        {"\"a\" < \"b\"", "1"},
        {"\"\" <> \"x\"", "1"},
        {"\"1\\n2\\t3\\\\\"", "1\n2\t3\\"},
        {"\"C:\\dir\"", "C:\\dir"}, // no escape: the backslash stays
        {"\"it's\"", "it's"},
    });
}

TEST(ScriptFunction, WorksNumbersOut) {
    ExpectValues({
        {"ABS (-2.5)", "2.5"},     {"CEIL (1.2)", "2"},      {"INT (-1.23)", "-2"},
        {"FRA (-1.23)", "0.77"},   {"ROUND_INT (2.5)", "3"}, {"SGN (-4)", "-1"},
        {"SQR (9)", "3"},          {"SIN (30)", "0.5"},      {"COS (60)", "0.5"},
        {"COS (90)", "0"},         {"SIN (180)", "0"},       {"TAN (45)", "1"},
        {"ASN (1)", "90"},         {"ACS (0)", "90"},        {"ATN (1)", "45"},
        {"PI", "3.141593"},        {"EXP (0)", "1"},         {"LGT (1000)", "3"},
        {"LOG (EXP (2))", "2"},    {"MIN (3, 1, 2)", "1"},   {"MAX (3, 1, 2)", "3"},
        {"BITTEST (5, 2)", "1"},   {"BITTEST (5, 1)", "0"},  {"BITSET (5, 1)", "7"},
        {"BITSET (7, 0, 0)", "6"}, {"RND (0)", "0"},         {"VARTYPE (\"a\")", "2"},
        {"VARTYPE (1)", "1"},
    });
}

TEST(ScriptFunction, WorksTextsOut) {
    ExpectValues({
        {"STR (4.5, 8, 2)", "    4.50"},
        {"STR (-12.345, 2, 1)", "-12.3"},
        {"STR (\"%.2m\", 1.5)", "1.50"},
        {"STR (\"%8.1cm\", 1.5)", "   150.0"},
        {"STR (\"%-8.0mm\", 1.5) + \"|\"", "1500    |"},
        {"STR (\"%+.2m\", 1)", "+1.00"},
        {"STR (\"% .2m\", 1)", " 1.00"},
        {"STR (\"%#.3m\", 1.5)", "1.5"},
        {"STR (\"%.2e\", 1234)", "1.23e+03"},
        {"STR (\"%.2di\", 0.0254)", "1.00"},
        {"STR (\"%.1df\", 0.6096)", "2.0"},
        {"STR (\"%.1sqm\", 2)", "2.0"},
        {"STR (\"%.1dd\", 45)", "45.0"},
        {"STR (\"%.2dms\", 10.5)", "10°30'0\""},
        {"STR (\"%.0dms\", -10.25)", "-10°15'"},
        {"STR (\"%.3rad\", 180)", "3.142"},
        {"STR (\"%.0gr\", 90)", "100"},
        {"STR (\"outro\", 2.5)", "2.5"},
        {"STR{2} (\"%.1m\", 2)", "2.0"},
        {"STRLEN (\"luminária\")", "9"},
        {"STRSTR (\"luminária\", \"ria\")", "7"},
        {"STRSTR (\"abc\", \"B\")", "0"},
        {"STRSTR (\"abc\", \"B\", 1)", "2"},
        {"STRSUB (\"luminária\", 6, 2)", "ár"},
        {"STRSUB (\"abc\", 3, 10)", "c"},
        {"STRTOUPPER (\"ab1\")", "AB1"},
        {"STRTOLOWER (\"AB1\")", "ab1"},
    });
}

TEST(ScriptFunction, SplitsTexts) {
    ExpectWritten({
        {"n = SPLIT (\"3 vigas 2x5 de aço\", \"%n vigas %nx%n %s\", a1, b1, c1, d1)\n"
         "TEXT2 0, 0, n\nTEXT2 0, 0, a1 + b1 + c1\nTEXT2 0, 0, d1",
         "4 | 10 | de aço"},
        {"n = SPLIT (\"a;b\", \"%s;%s\", x, y)\nTEXT2 0, 0, x + y + STR (n, 1, 0)", "ab2"},
        {"x = 7\nn = SPLIT (\"abc\", \"%n\", x)\nTEXT2 0, 0, n\nTEXT2 0, 0, x", "0 | 7"},
    });
}

TEST(ScriptFunction, MeasuresTextsByTheStyle) {
    const std::string script =
        "DEFINE STYLE \"a\" \"Arial\", 3, 1, 0\nDEFINE STYLE \"b\" \"Arial\", "
        "6, 1, 0\nSTYLE \"a\"\nx = STW (\"Texto\")\nSTYLE \"b\"\n"
        "TEXT2 0, 0, STW (\"Texto\") / x\nTEXT2 0, 0, x > 5 AND x < 15";
    EXPECT_EQ(Tests::WrittenTexts(script), "2 | 1");
}

TEST(ScriptVariable, IsFoundWithoutRegardToCaseAndBeginsAtZero) {
    ExpectWritten({
        {"Total = 3\nTEXT2 0, 0, tOTAL + nova", "3"},
        {"LET x = 2: y = x * 2: TEXT2 0, 0, y", "4"},
        {"x = 1 : x = \"agora texto\"\nTEXT2 0, 0, x", "agora texto"},
    });
}

TEST(ScriptVariable, HoldsTables) {
    ExpectWritten({
        {"DIM a[3], b[2][2]\na[2] = 5\nb[2][1] = \"t\"\nTEXT2 0, 0, a[1] + a[2]\n"
         "TEXT2 0, 0, b[2][1]",
         "5 | t"},
        {"DIM c[]\nc[4] = 1\nTEXT2 0, 0, VARDIM1 (c)\nTEXT2 0, 0, VARDIM2 (c)", "4 | 0"},
        {"DIM d[][]\nd[2][3] = 7\nd[3][1] = 1\nTEXT2 0, 0, VARDIM1 (d)\n"
         "TEXT2 0, 0, VARDIM2 (d)\nTEXT2 0, 0, d[2][3]",
         "3 | 3 | 7"},
        {"DIM d[][]\nd[1][1] = 1\nd[2][1] = 2\nd[2][2] = 3\nTEXT2 0, 0, d[1][1]\n"
         "TEXT2 0, 0, d[2][1]\nTEXT2 0, 0, d[2][2]",
         "1 | 2 | 3"},
        {"DIM a[2]\na[1] = 4\nb1 = a\nTEXT2 0, 0, b1[1] + VARDIM1 (b1)", "6"},
        {"TEXT2 0, 0, VARDIM1 (x)", "0"},
    });
}

TEST(ScriptVariable, HoldsTheTablesOfParameters) {
    ScriptPart part = Tests::PlanPart("TEXT2 0, 0, Dados[2][3]\nTEXT2 0, 0, VARDIM1 (dados)\n"
                                      "dados[3][1] = 9\nTEXT2 0, 0, VARDIM1 (dados)\n"
                                      "TEXT2 0, 0, lista[2]\nTEXT2 0, 0, lista[2][1]");
    Host::LibraryParameter table = Tests::NumberParameter("dados", 0);
    table.isArray = true;
    table.dim1 = 2;
    table.dim2 = 3;
    table.numbers = {1, 2, 3, 4, 5, 6};
    Host::LibraryParameter list = Tests::TextParameter("lista", "");
    list.isArray = true;
    list.dim1 = 2;
    list.dim2 = 1;
    list.texts = {"um", "dois"};
    part.parameters = {table, list};
    std::string texts;
    for (const PlanText& text : Tests::ShapesOf<PlanText>(Tests::DrawPlan(part))) {
        texts += text.text + " ";
    }
    EXPECT_EQ(texts, "6 2 3 dois dois ");
}

TEST(ScriptBuffer, HandsItsValuesOutInOrder) {
    ExpectWritten({
        {"PUT 1, 2, \"c\"\nTEXT2 0, 0, NSP\nTEXT2 0, 0, GET (1)\nTEXT2 0, 0, USE (1)\n"
         "TEXT2 0, 0, NSP\nx = GET (1)\nTEXT2 0, 0, GET (1)\nTEXT2 0, 0, x + NSP",
         "3 | 1 | 2 | 2 | c | 2"},
        {"PUT 1, 2\nPUT USE (NSP), 9\nTEXT2 0, 0, NSP", "5"},
        {"DIM a[2]\na[1] = 1\na[2] = 2\nPUT a\nTEXT2 0, 0, NSP", "2"},
        {"PUT 5, 6, \"z\"\nTEXT2 GET (NSP)", "z"},
    });
}

TEST(ScriptLines, AreJoinedPartedAndCommented) {
    ExpectWritten({
        {"TEXT2 0, ! comentário\n 0,\n\n \"a\"", "a"},
        {"x = 1 + \\ ! mais\n 2\nTEXT2 0, 0, x", "3"},
        {"TEXT2 0, 0, \"a ! b\" ! fim", "a ! b"},
        {"TEXT2 0, 0, 1: TEXT2 0, 0, 2", "1 | 2"},
        {"text2 0, 0, \"x\"\r\nTEXT2 0, 0, \"y\"\rTEXT2 0, 0, \"z\"", "x | y | z"},
        {"TEXT2 0, 0, \"um \\\ndois\"", "um dois"},
    });
}

TEST(ScriptControl, BranchesAndLoops) {
    ExpectWritten({
        {"IF 1 THEN TEXT2 0, 0, \"s\" ELSE TEXT2 0, 0, \"n\"", "s"},
        {"IF 0 THEN TEXT2 0, 0, \"s\" ELSE TEXT2 0, 0, \"n\"", "n"},
        {"IF 0 THEN x = 1: TEXT2 0, 0, \"depois\"", "depois"}, // one statement only
        {"IF 0 THEN\nTEXT2 0, 0, 1\nELSE\nTEXT2 0, 0, 2\nENDIF\nTEXT2 0, 0, 3", "2 | 3"},
        {"IF 1 THEN IF 0 THEN TEXT2 0, 0, 1 ELSE TEXT2 0, 0, 2", "2"},
        {"IF 0 THEN\nELSE IF 1 THEN\nTEXT2 0, 0, 5\nENDIF\nENDIF", "5"},
        {"FOR i = 1 TO 3\nTEXT2 0, 0, i\nNEXT i", "1 | 2 | 3"},
        {"FOR i = 3 TO 1 STEP -1: TEXT2 0, 0, i: NEXT i", "3 | 2 | 1"},
        {"FOR i = 2 TO 1\nTEXT2 0, 0, i\nNEXT i\nTEXT2 0, 0, i", "2"},
        {"FOR i = 0 TO 1 STEP 0.5\nNEXT i\nTEXT2 0, 0, i", "1.5"},
        {"i = 0\nWHILE i < 2 DO\ni = i + 1\nTEXT2 0, 0, i\nENDWHILE", "1 | 2"},
        {"i = 5\nDO\ni = i + 1\nWHILE i < 3\nTEXT2 0, 0, i", "6"},
        {"i = 0\nREPEAT\ni = i + 1\nUNTIL i >= 4\nTEXT2 0, 0, i", "4"},
        {"DO\nWHILE j < 2 DO\nj = j + 1\nENDWHILE\ni = i + 1\nWHILE i < 2\nTEXT2 0, 0, i + j", "4"},
        {"TEXT2 0, 0, 1\nEND\nTEXT2 0, 0, 2", "1"},
        {"IF 1 THEN EXIT\nTEXT2 0, 0, 2", ""},
    });
}

TEST(ScriptControl, JumpsToLabels) {
    ExpectWritten({
        {"GOTO 20\nTEXT2 0, 0, 1\n20: TEXT2 0, 0, 2", "2"},
        {"GOSUB \"parte\"\nTEXT2 0, 0, 2\nEND\n\"parte\":\nTEXT2 0, 0, 1\nRETURN", "1 | 2"},
        {"n = 10\nGOTO n * 2\n20:\nTEXT2 0, 0, \"computado\"", "computado"},
        {"nome = \"b\"\nGOSUB nome\nEND\n\"a\":\nTEXT2 0, 0, 1\nRETURN\n\"b\":\nTEXT2 0, 0, 2\n"
         "RETURN",
         "2"},
        {"IF 1 THEN 30\nTEXT2 0, 0, 1\n30: TEXT2 0, 0, 3", "3"},
        {"IF 1 GOTO 30\nTEXT2 0, 0, 1\n30:", ""},
        {"FOR i = 1 TO 9\nIF i = 3 THEN GOTO \"fora\"\nNEXT i\n\"fora\":\nTEXT2 0, 0, i", "3"},
    });
}

TEST(MasterScript, LeavesItsVariablesToTheNextAndCanEndIt) {
    ScriptPart part = Tests::PlanPart("TEXT2 0, 0, x", "x = 3\nLIN_ 0, 0, 0, 1, 1, 1");
    EXPECT_EQ(Tests::ShapesOf<PlanText>(Tests::DrawPlan(part))[0].text, "3");
    part.master = "IF GLOB_SCRIPT_TYPE = 2 THEN END";
    EXPECT_TRUE(Tests::DrawPlan(part).shapes.empty());
}

TEST(ScriptGlobal, TellsWhatIsAround) {
    ScriptEnvironment environment;
    environment.scale = 50;
    environment.symbolRotation = 30;
    environment.symbolMirrored = true;
    environment.symbolPosition = {1, 2, 3};
    environment.storyElevation = 4.5;
    ScriptPart part = Tests::PlanPart(
        "TEXT2 0, 0, GLOB_SCALE\nTEXT2 0, 0, GLOB_VIEW_TYPE\nTEXT2 0, 0, SYMB_ROTANGLE\n"
        "TEXT2 0, 0, SYMB_MIRRORED\nTEXT2 0, 0, SYMB_POS_Z\nTEXT2 0, 0, GLOB_ELEVATION\n"
        "TEXT2 0, 0, A + B\nTEXT2 0, 0, angulo\nTEXT2 0, 0, GLOB_MODPAR_NAME = \"\"");
    part.sizeA = 0.5;
    part.sizeB = 0.25;
    part.parameters = {
        Tests::NumberParameter("angulo", 0.5235987755982988, Host::ParameterType::Angle)};
    std::string texts;
    for (const PlanText& text : Tests::ShapesOf<PlanText>(Tests::DrawPlan(part, environment))) {
        texts += text.text + " ";
    }
    EXPECT_EQ(texts, "50 2 30 1 3 4.5 0.75 30 1 ");
}

TEST(ScriptRequest, AnswersWhatTheHostKnows) {
    ScriptEnvironment environment;
    environment.requests["NAME_OF_PLAN"] = {TextValue("Térreo")};
    environment.findAttribute = [](ScriptAttribute kind, std::string_view name) {
        return kind == ScriptAttribute::Fill && name == "Areia" ? 7 : 0;
    };
    const ScriptPart part = Tests::PlanPart(
        "n = REQUEST (\"Name_of_plan\", \"\", nome)\nTEXT2 0, 0, nome\nTEXT2 0, 0, n\n"
        "TEXT2 0, 0, REQUEST (\"outra\", \"\", nome)\nTEXT2 0, 0, REQ (\"Name_of_plan\")\n"
        "TEXT2 0, 0, IND (FILL, \"Areia\")\nTEXT2 0, 0, IND (MATERIAL, \"Areia\")\n"
        "TEXT2 0, 0, LIBRARYGLOBAL (\"o\", \"v\", nome)");
    std::string texts;
    for (const PlanText& text : Tests::ShapesOf<PlanText>(Tests::DrawPlan(part, environment))) {
        texts += text.text + " ";
    }
    EXPECT_EQ(texts, "Térreo 1 0 Térreo 7 0 0 ");
}

} // namespace
} // namespace Merivane
