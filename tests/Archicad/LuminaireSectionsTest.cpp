#include "Archicad/LuminaireSections.hpp"

#include <gtest/gtest.h>

#include "Gdl/GeneratedBlock.hpp"
#include "Gdl/LuminaireScripts.hpp"

namespace Merivane::Archicad {
namespace {

using Sections = std::vector<CopiedSection>;
using Strings = std::vector<std::string>;

const std::string NoPlanScript = "a peca de origem desenha a planta sem script 2D: o marcador do "
                                 "centro e o texto do circuito nao aparecem";
const std::string NoModelScript =
    "a peca de origem nao tinha script 3D; foi criado um so com a fonte de luz";

CopiedSection Section(const std::string& type, const std::string& bytes, std::int32_t number = 0) {
    return {{type, number}, bytes};
}

/// The sections after `add`; `warnings` must be these.
template <typename Add> Sections After(Sections sections, Add add, const Strings& expected) {
    Strings warnings;
    add(sections, warnings);
    EXPECT_EQ(warnings, expected);
    return sections;
}

TEST(AddModelBlock, PutsTheBlockInFrontOfThePartsOwnScript) {
    const std::string own = "BLOCK A, B, ZZYZX\r\n";
    const Sections sections = {Section("1DSC", "x = 1\r\n"), Section("3DSC", own),
                               Section("3DSC", "other", 1)};
    const Sections made = After(sections, AddModelBlock, {});
    EXPECT_EQ(made, (Sections{sections[0], Section("3DSC", Photometry::Script3DWithBlock(own)),
                              sections[2]}));
    EXPECT_EQ(After(made, AddModelBlock, {}), made);
}

TEST(AddModelBlock, MakesAScriptOfTheLightAloneAndTellsSo) {
    const Sections sections = {Section("3DSC", "other", 1)};
    EXPECT_EQ(After(sections, AddModelBlock, {NoModelScript}),
              (Sections{sections[0], Section("3DSC", Photometry::Script3DWithBlock(""))}));
}

TEST(AddPlanBlock, PutsTheBlockInFrontOfThePartsOwnScript) {
    const std::string own = "\r\n RECT2 0, 0, A, B \r\n\r\n";
    const Sections made = After({Section("2DSC", own), Section("2DDR", "lines")}, AddPlanBlock, {});
    EXPECT_EQ(made[0].bytes, Photometry::Script2DWithBlock(own));
    EXPECT_EQ(After(made, AddPlanBlock, {}), made);
}

TEST(AddPlanBlock, DrawsStoredLinesWhereThereIsNoScriptOfThePartsOwn) {
    const CopiedSection drawn =
        Section("2DSC", Photometry::Script2DWithBlock("FRAGMENT2 ALL, 0\r\n"));
    const CopiedSection lines = Section("2DDR", "lines");
    const std::string oldBlock = Photometry::Script2DWithBlock("");
    const std::string twoBlocks = std::string(oldBlock).append("\r\n  ").append(oldBlock);
    EXPECT_EQ(After({lines}, AddPlanBlock, {}), (Sections{lines, drawn}));
    for (const std::string& script :
         {std::string(), std::string(" \t\r\n"), oldBlock, twoBlocks, " \r\n" + oldBlock}) {
        EXPECT_EQ(After({Section("2DSC", script), lines}, AddPlanBlock, {}),
                  (Sections{drawn, lines}));
    }
    EXPECT_EQ(After({drawn, lines}, AddPlanBlock, {}), (Sections{drawn, lines}));
}

TEST(AddPlanBlock, LeavesAPlanThatComesFromNowhereAndTellsSo) {
    const std::string oldBlock = Photometry::Script2DWithBlock("");
    for (const Sections& sections :
         {Sections{}, Sections{Section("2DSC", "")}, Sections{Section("2DSC", oldBlock)},
          Sections{Section("2DSC", "RECT2 0, 0, A, B", 1)}}) {
        EXPECT_EQ(After(sections, AddPlanBlock, {NoPlanScript}), sections);
    }
}

TEST(AddParameterBlock, PutsTheBlockInFrontOfEveryParameterScriptOfThePart) {
    Sections sections = {Section("VLSC", "LOCK \"A\"\r\n"), Section("VLSC", "other", 2),
                         Section("VLSC", "VALUES \"B\" 1\r\n")};
    const Strings hidden = {"gs_list", "FM_Type"};
    AddParameterBlock(sections, hidden);
    EXPECT_EQ(
        sections,
        (Sections{
            Section("VLSC", Photometry::MasterScriptWithBlock("LOCK \"A\"\r\n", hidden, "")),
            Section("VLSC", "other", 2),
            Section("VLSC", Photometry::MasterScriptWithBlock("VALUES \"B\" 1\r\n", hidden, ""))}));
}

TEST(AddParameterBlock, MakesAParameterScriptWhereThereIsNone) {
    for (const Sections& before : {Sections{}, Sections{Section("VLSC", "other", 2)}}) {
        Sections sections = before;
        AddParameterBlock(sections, {});
        ASSERT_EQ(sections.size(), before.size() + 1);
        EXPECT_EQ(sections.back(), Section("VLSC", Photometry::MasterScriptWithBlock("", {}, "")));
    }
}

TEST(UseParameter, LooksIntoEveryScript) {
    struct Case {
        const char* type;
        const char* bytes;
        bool uses;
    };
    const Case cases[] = {
        {"3DSC", "MATERIAL mat", true},
        {"1DSC", "body = mat", true},
        {"2DSC", "x = mat", true},
        {"VLSC", "IF mat > 1 THEN", true},
        {"VLSC", "LOCK \"mat\"", false},
        {"2DDR", "mat", false},
        {"3DSC", "MATERIAL mat1", false},
        {"3DSC", "CALL \"m\" PARAMETERS ALL", true},
        {"3DSC", "CALL \"m\" PARAMETERS A=1", false},
        {"2DSC", "FRAGMENT2 ALL, 0", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(UseParameter({Section(c.type, c.bytes)}, "mat"), c.uses) << c.bytes;
    }
}

} // namespace
} // namespace Merivane::Archicad
