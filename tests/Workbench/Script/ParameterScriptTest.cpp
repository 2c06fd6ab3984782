#include <gtest/gtest.h>

#include <string>

#include "ScriptRuns.hpp"

namespace Merivane {
namespace {

using namespace Workbench;

/// A part with parameters Lado, Cor (with two children), Modo and the table Tons.
ParameterRules Rules(const std::string& script) {
    ScriptPart part;
    part.name = "Peca";
    part.parameter = script;
    part.parameters = {Tests::NumberParameter("Lado", 1), Tests::NumberParameter("Cor", 2),
                       Tests::NumberParameter("Tom", 3),  Tests::NumberParameter("Brilho", 4),
                       Tests::NumberParameter("Modo", 5), Tests::NumberParameter("Tons", 0)};
    part.parameters[2].flags = Host::ParameterChild;
    part.parameters[3].flags = Host::ParameterChild;
    part.parameters[5].isArray = true;
    part.parameters[5].dim1 = 2;
    part.parameters[5].numbers = {1, 2};
    ParameterRules rules;
    const auto error = RunParameterScript(part, {}, rules);
    EXPECT_FALSE(error.has_value()) << DescribeScriptError(error.value_or(ScriptError()));
    return rules;
}

TEST(ParameterScript, TellsValuesAndRanges) {
    ParameterRules rules = Rules("VALUES \"lado\" 1, 2.5, \"x\", CUSTOM\n"
                                 "VALUES \"MODO\", RANGE [0, 10) STEP 1, 0.5, RANGE (20, ]\n"
                                 "VALUES \"Cor\" RANGE [, 3], 7\nVALUES \"Outro\" 1");
    ASSERT_EQ(rules.values.size(), 3U);
    const ParameterValues& side = rules.values["Lado"];
    EXPECT_EQ(side.values,
              (std::vector<ScriptValue>{NumberValue(1), NumberValue(2.5), TextValue("x")}));
    EXPECT_TRUE(side.allowsOthers);
    const ParameterRange stepped = {0.0, 10.0, true, false, 1.0, 0.5};
    const ParameterRange open = {20.0, {}, false, true, {}, {}};
    EXPECT_EQ(rules.values["Modo"].ranges, (std::vector<ParameterRange>{stepped, open}));
    EXPECT_FALSE(rules.values["Modo"].allowsOthers);
    const ParameterRange below = {{}, 3.0, true, true, {}, {}};
    EXPECT_EQ(rules.values["Cor"].ranges, std::vector<ParameterRange>{below});
    EXPECT_EQ(rules.values["Cor"].values, std::vector<ScriptValue>{NumberValue(7)});
}

TEST(ParameterScript, TellsNumbersWithTheirTexts) {
    const std::string scripts[] = {
        "VALUES{2} \"Modo\" 1, \"um\", 2, \"dois\"",
        "DIM n[2], t[2]\nn[1] = 1\nn[2] = 2\nt[1] = \"um\"\nt[2] = \"dois\"\n"
        "VALUES{2} \"Modo\", n, t",
    };
    for (const std::string& script : scripts) {
        ParameterRules rules = Rules(script);
        EXPECT_EQ(rules.values["Modo"].values,
                  (std::vector<ScriptValue>{NumberValue(1), NumberValue(2)}));
        EXPECT_EQ(rules.values["Modo"].texts, (std::vector<std::string>{"um", "dois"}));
    }
}

TEST(ParameterScript, LocksAndHides) {
    const ParameterRules rules =
        Rules("LOCK \"lado\", \"modo\", \"lado\", \"outro\"\nHIDEPARAMETER \"COR\"");
    EXPECT_EQ(rules.locked, (std::vector<std::string>{"Lado", "Modo"}));
    EXPECT_EQ(rules.hidden, (std::vector<std::string>{"Cor", "Tom", "Brilho"}));
    const ParameterRules all = Rules("LOCK ALL \"lado\", \"cor\"\nHIDEPARAMETER ALL, \"Modo\"");
    EXPECT_EQ(all.locked, (std::vector<std::string>{"Tom", "Brilho", "Modo", "Tons"}));
    EXPECT_EQ(all.hidden, (std::vector<std::string>{"Lado", "Cor", "Tom", "Brilho", "Tons"}));
}

TEST(ParameterScript, AssignsForTheNextRun) {
    ParameterRules rules = Rules("PARAMETERS lado = lado * 2 + A, modo = \"x\"\n"
                                 "IF lado = 1 THEN PARAMETERS cor = 9, tons[2] = 5\n"
                                 "PARAMETERS outro = 1");
    ASSERT_EQ(rules.assigned.size(), 4U);
    EXPECT_EQ(rules.assigned["Lado"].values, std::vector<ScriptValue>{NumberValue(3)});
    EXPECT_EQ(rules.assigned["Modo"].values, std::vector<ScriptValue>{TextValue("x")});
    EXPECT_EQ(rules.assigned["Cor"].values, std::vector<ScriptValue>{NumberValue(9)});
    EXPECT_EQ(rules.assigned["Tons"].values,
              (std::vector<ScriptValue>{NumberValue(1), NumberValue(5)}));
    ParameterRules table = Rules("DIM t[1]\nt[1] = 4\nPARAMETERS tons = t");
    EXPECT_EQ(table.assigned["Tons"].values, std::vector<ScriptValue>{NumberValue(4)});
}

} // namespace
} // namespace Merivane
