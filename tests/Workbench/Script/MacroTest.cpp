#include <gtest/gtest.h>

#include <map>
#include <string>

#include "ScriptRuns.hpp"

namespace Merivane {
namespace {

using namespace Workbench;

/// Runs a script that finds these macros.
PlanSymbolDrawing DrawWith(const std::map<std::string, ScriptPart, std::less<>>& macros,
                           const ScriptPart& part) {
    ScriptEnvironment environment;
    environment.findMacro = [&macros](std::string_view name) {
        const auto found = macros.find(name);
        return found == macros.end() ? nullptr : &found->second;
    };
    return Tests::DrawPlan(part, environment);
}

std::string Texts(const PlanSymbolDrawing& drawing) {
    std::string joined;
    for (const PlanText& text : Tests::ShapesOf<PlanText>(drawing)) {
        joined += text.text + " ";
    }
    return joined;
}

TEST(Macro, RunsWithItsOwnParametersAndThoseOfTheCall) {
    ScriptPart macro = Tests::PlanPart("TEXT2 0, 0, lado\nTEXT2 0, 0, nome\nTEXT2 0, 0, x");
    macro.parameters = {Tests::NumberParameter("Lado", 2), Tests::TextParameter("nome", "m")};
    const ScriptPart part =
        Tests::PlanPart("x = 5\nlado = 9\nCALL \"m\" PARAMETERS LADO = 3 nome = \"n\"\nCALL m\n"
                        "qual = \"m\"\nCALL qual\n\"m\" PARAMETERS lado = 4");
    EXPECT_EQ(Texts(DrawWith({{"m", macro}}, part)), "3 n 0 2 m 0 2 m 0 4 m 0 ");
}

TEST(Macro, TakesAllParametersThatBothHave) {
    ScriptPart macro = Tests::PlanPart("TEXT2 0, 0, lado + A\nTEXT2 0, 0, outro\n"
                                       "TEXT2 0, 0, lista[2]");
    Host::LibraryParameter list = Tests::NumberParameter("lista", 0);
    list.isArray = true;
    list.numbers = {1, 2};
    list.dim1 = 2;
    macro.parameters = {Tests::NumberParameter("lado", 2), Tests::NumberParameter("outro", 7),
                        list};
    ScriptPart part = Tests::PlanPart("lado = lado + 1\nlista[2] = 8\n"
                                      "CALL \"m\" PARAMETERS ALL outro = 1\n"
                                      "DIM t[2]\nt[2] = 6\nCALL \"m\" PARAMETERS lista = t");
    part.sizeA = 0.5;
    part.parameters = {Tests::NumberParameter("LADO", 10), list};
    EXPECT_EQ(Texts(DrawWith({{"m", macro}}, part)), "11.5 1 8 3 7 6 ");
}

TEST(Macro, GivesBackWhatItsEndTells) {
    const ScriptPart macro = Tests::PlanPart("IF a > 1 THEN END a * 2, \"fim\"\nEND 0");
    const ScriptPart part =
        Tests::PlanPart("DIM r[2]\nCALL \"m\" PARAMETERS a = 3 RETURNED_PARAMETERS r[1], t\n"
                        "TEXT2 0, 0, r[1]\nTEXT2 0, 0, t\nCALL \"m\", RETURNED_PARAMETERS x, t\n"
                        "TEXT2 0, 0, x\nTEXT2 0, 0, t");
    EXPECT_EQ(Texts(DrawWith({{"m", macro}}, part)), "6 fim 0 fim ");
}

TEST(Macro, LeavesTheCallersFrameAttributesAndBuffer) {
    const ScriptPart macro = Tests::PlanPart("DEL TOP\nADD2 1, 0\nPEN 9\nHOTSPOT2 0, 0\n"
                                             "PUT 1, 2\nTEXT2 0, 0, NSP\nTEXT2 0, 0, NTR ()");
    const ScriptPart part = Tests::PlanPart("ADD2 5, 0\nPEN 2\nPUT 7\nCALL \"m\"\n"
                                            "LINE2 0, 0, 1, 0\nTEXT2 0, 0, NSP\n"
                                            "TEXT2 0, 0, NTR ()");
    const PlanSymbolDrawing drawing = DrawWith({{"m", macro}}, part);
    EXPECT_EQ(Texts(drawing), "2 1 1 1 ");
    EXPECT_EQ(Tests::ShapesOf<PlanHotspot>(drawing)[0].position, (Host::Coordinate{6, 0}));
    EXPECT_EQ(Tests::ShapesOf<PlanLine>(drawing)[0].begin, (Host::Coordinate{5, 0}));
    EXPECT_EQ(Tests::ShapesOf<PlanLine>(drawing)[0].look.pen, 2);
}

TEST(Macro, HasItsMasterScriptAndItsOwnErrors) {
    const ScriptPart macro = Tests::PlanPart("TEXT2 0, 0, x\nVOAR", "x = 4");
    ScriptEnvironment environment;
    environment.findMacro = [&macro](std::string_view) { return &macro; };
    PlanSymbolDrawing drawing;
    ScriptPart part = Tests::PlanPart("CALL \"m\"");
    part.name = "Fora";
    const auto error = RunPlanScript(part, environment, drawing);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(DescribeScriptError(*error), "A peça \"Peca\" parou no script 2D, linha 2, "
                                           "instrução VOAR: a instrução não existe.");
    EXPECT_EQ(Texts(drawing), "4 ");
}

TEST(Macro, ThatCallsItselfEnds) {
    const ScriptPart macro = Tests::PlanPart("CALL \"m\"");
    ScriptEnvironment environment;
    environment.findMacro = [&macro](std::string_view) { return &macro; };
    EXPECT_EQ(Tests::PlanError(macro, environment),
              "A peça \"Peca\" parou no script 2D, linha 1, instrução CALL: sub-rotinas e macros "
              "demais, uma dentro da outra.");
}

} // namespace
} // namespace Merivane
