#include "Gdl/LuminaireScripts.hpp"

#include <algorithm>
#include <random>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "Gdl/CircuitScript.hpp"
#include "Gdl/GeneratedBlock.hpp"
#include "Gdl/HiddenLightParameters.hpp"
#include "Gdl/PlanSymbolScript.hpp"
#include "Gdl/ScriptLines.hpp"
#include "Photometry/ContractBuilding.hpp"

namespace Merivane::Photometry {
namespace {

using Lines = std::vector<std::string>;

std::string Joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

/// The lines of a script, all of which must end in CR LF.
Lines SplitLines(const std::string& script) {
    Lines lines;
    std::size_t begin = 0;
    for (std::size_t end; (end = script.find("\r\n", begin)) != std::string::npos;
         begin = end + 2) {
        lines.push_back(script.substr(begin, end - begin));
    }
    EXPECT_EQ(begin, script.size());
    return lines;
}

TEST(Script3DWithBlock, DrawsTheLightAndItsAxes) {
    EXPECT_EQ(
        SplitLines(Script3DWithBlock("")),
        (Lines{
            "! ===== Merivane: inicio do bloco gerado (nao editar) =====",
            "PEN mvSymbolPen",
            "! Aba abaixo do forro: o bloco inteiro desce, e a origem fica na face do forro.",
            "ADDZ 0 - mvFlangeDepth",
            "! Fonte de luz no centro fotometrico. A fotometria do calculo vem dos parametros mv*.",
            "ADD mvCenterX, mvCenterY, mvCenterZ",
            "ROTz mvTiltDirection",
            "ROTy 0 - mvTiltAngle",
            "ROTz mvC0Rotation - mvTiltDirection",
            "IF mvLightOn THEN",
            "\tLIGHT 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0",
            "ENDIF",
            "IF mvShowPhotometry AND GLOB_VIEW_TYPE <> 2 THEN",
            "\t! Eixos pelo centro; seta em +X = direcao do C0; seta para baixo = nadir.",
            "\tLIN_ -0.10, 0, 0, 0.10, 0, 0",
            "\tLIN_ 0, -0.10, 0, 0, 0.10, 0",
            "\tLIN_ 0, 0, -0.10, 0, 0, 0.10",
            "\tLIN_ 0.10, 0, 0, 0.10 - 0.02, 0.012, 0",
            "\tLIN_ 0.10, 0, 0, 0.10 - 0.02, -0.012, 0",
            "\tLIN_ 0, 0, 0, 0, 0, -0.25",
            "\tLIN_ 0, 0, -0.25, 0.015, 0, -0.25 + 0.03",
            "\tLIN_ 0, 0, -0.25, -0.015, 0, -0.25 + 0.03",
            "ENDIF",
            "DEL 4",
            "! ===== Merivane: fim do bloco gerado =====",
        }));
}

TEST(Script2DWithBlock, DrawsTheCentreThenTheCircuitThenTheSymbol) {
    const std::string head = Joined({
        "! ===== Merivane: inicio do bloco gerado (nao editar) =====",
        "PEN mvSymbolPen",
        "! Centro fotometrico em planta e, com inclinacao, para onde o facho aponta.",
        "ADD2 mvCenterX, mvCenterY",
        "IF showAxis THEN",
        "\tCIRCLE2 0, 0, 0.015",
        "\tLINE2 -0.10, 0, 0.10, 0",
        "\tLINE2 0, -0.10, 0, 0.10",
        "ENDIF",
        "IF mvShowPhotometry THEN",
        "\tHOTSPOT2 0, 0",
        "\tIF mvTiltAngle > 0.01 THEN",
        "\t\tROT2 mvTiltDirection",
        "\t\tLINE2 0, 0, 0.20, 0",
        "\t\tLINE2 0.20, 0, 0.20 - 0.03, 0.015",
        "\t\tLINE2 0.20, 0, 0.20 - 0.03, -0.015",
        "\t\tDEL 1",
        "\tENDIF",
        "ENDIF",
        "DEL 1",
    });
    EXPECT_EQ(Script2DWithBlock(""), head + WithCrLf(CircuitScript2D()) +
                                         WithCrLf(PlanSymbolScript2D()) +
                                         "! ===== Merivane: fim do bloco gerado =====\r\n");
}

TEST(MasterScriptWithBlock, LocksTheFluxAndLimitsTheValues) {
    EXPECT_EQ(SplitLines(MasterScriptWithBlock("", {}, "")),
              (Lines{
                  "! ===== Merivane: inicio do bloco gerado (nao editar) =====",
                  "LOCK \"mvLuminousFlux\"",
                  "VALUES \"mvDimming\" RANGE [0, 1]",
                  "VALUES \"mvMaintenanceFactor\" RANGE (0, 1]",
                  "VALUES \"mvCircuitSize\" RANGE [0.5, 20]",
                  "VALUES \"mvPlanSymbolSize\" RANGE [0.5, 50]",
                  "! ===== Merivane: fim do bloco gerado =====",
              }));
}

/// The lines of the parameter script that hide names, which stand behind the start marker.
Lines HidingLines(const std::vector<std::string>& names) {
    const Lines all = SplitLines(MasterScriptWithBlock("", names, ""));
    Lines hiding;
    for (const std::string& line : all) {
        if (line.starts_with("HIDEPARAMETER")) {
            hiding.push_back(line);
        }
    }
    EXPECT_TRUE(std::equal(hiding.begin(), hiding.end(), all.begin() + 1));
    EXPECT_EQ(all.size(), hiding.size() + 7);
    return hiding;
}

TEST(MasterScriptWithBlock, HidesEightNamesOnALine) {
    EXPECT_EQ(HidingLines({}), Lines{});
    EXPECT_EQ(HidingLines({"a"}), Lines{"HIDEPARAMETER \"a\""});
    EXPECT_EQ(HidingLines({"a", "b", "c"}), Lines{"HIDEPARAMETER \"a\", \"b\", \"c\""});
    const std::string eight =
        "HIDEPARAMETER \"a\", \"b\", \"c\", \"d\", \"e\", \"f\", \"g\", \"h\"";
    EXPECT_EQ(HidingLines({"a", "b", "c", "d", "e", "f", "g", "h"}), Lines{eight});
    EXPECT_EQ(HidingLines({"a", "b", "c", "d", "e", "f", "g", "h", "i"}),
              (Lines{eight, "HIDEPARAMETER \"i\""}));
    EXPECT_EQ(HidingLines(HiddenLightParameters()).size(), 6U);
}

TEST(MasterScriptWithBlock, HasFurtherLinesAsTheyAreBeforeTheEnd) {
    const std::string extra = "LOCK \"x\"\r\nVALUES \"y\" 1\n";
    const std::string plain = MasterScriptWithBlock("a", {"n"}, "");
    std::string expected = plain;
    expected.insert(expected.find(BlockEndMarker), extra);
    EXPECT_EQ(MasterScriptWithBlock("a", {"n"}, extra), expected);
}

std::string MasterScript(std::string_view script) {
    return MasterScriptWithBlock(script, HiddenLightParameters(), "LOCK \"x\"\r\n");
}

TEST(LuminaireScripts, LeaveThePartsOwnScriptAsItIs) {
    std::mt19937_64 random(811);
    for (const auto make : {Script3DWithBlock, Script2DWithBlock, MasterScript}) {
        const std::string block = make("");
        EXPECT_EQ(RemoveGeneratedBlock(block), "");
        for (int i = 0; i < 500; ++i) {
            std::string script;
            for (std::size_t n = random() % 40; n > 0; --n) {
                script += static_cast<char>(random() % 4 == 0 ? '\n' : random() % 256);
            }
            const std::string once = make(script);
            ASSERT_EQ(once, block + script);
            ASSERT_EQ(RemoveGeneratedBlock(once), script);
            ASSERT_EQ(make(once), once);
        }
    }
}

TEST(LuminaireScripts, ReplaceBlocksOfAnyKind) {
    const std::string stacked = Script2DWithBlock("") + "own\r\n" + Script3DWithBlock("below\n");
    EXPECT_EQ(RemoveGeneratedBlock(stacked), "own\r\nbelow\n");
    EXPECT_EQ(Script3DWithBlock(stacked), Script3DWithBlock("own\r\nbelow\n"));
    EXPECT_EQ(Script2DWithBlock(stacked), Script2DWithBlock("own\r\nbelow\n"));
    EXPECT_EQ(MasterScriptWithBlock(stacked, {}, ""),
              MasterScriptWithBlock("own\r\nbelow\n", {}, ""));
}

TEST(LuminaireScripts, PutANewBlockAheadOfOneThatLostItsEnd) {
    const std::string lost = std::string(BlockStartMarker) + "\r\nPEN 1\r\n";
    for (const auto make : {Script3DWithBlock, Script2DWithBlock, MasterScript}) {
        EXPECT_EQ(make(lost), make("") + lost);
        EXPECT_EQ(make(make(lost)), make(lost));
    }
}

std::set<std::string> WordsThatMatch(const std::string& text, const std::regex& pattern) {
    std::set<std::string> words;
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end;
         ++match) {
        words.insert((*match)[1]);
    }
    return words;
}

// A script that names a parameter which the part lacks reads 0 there, without a word of warning.
TEST(LuminaireScripts, NameParametersOfTheContractAndTheirOwnVariablesAlone) {
    for (const auto make : {Script3DWithBlock, Script2DWithBlock, MasterScript}) {
        const std::string script = make("");
        std::set<std::string> own = WordsThatMatch(script, std::regex("(\\w+) = "));
        own.merge(WordsThatMatch(script, std::regex("FOR (\\w+) = ")));
        own.merge(WordsThatMatch(script, std::regex("STYLE \"(\\w+)\"")));
        for (const std::string& name : WordsThatMatch(script, std::regex("(\\bmv[A-Z]\\w*)"))) {
            const bool isParameter = ContractParameterNames().contains(name);
            EXPECT_TRUE(isParameter || own.contains(name)) << name;
        }
    }
}

TEST(LuminaireScripts, EndEveryGeneratedLineInCrLf) {
    for (const auto make : {Script3DWithBlock, Script2DWithBlock, MasterScript}) {
        for (const std::string& line : SplitLines(make(""))) {
            EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
            EXPECT_FALSE(line.ends_with(' ') || line.ends_with('\t')) << line;
        }
    }
}

} // namespace
} // namespace Merivane::Photometry
