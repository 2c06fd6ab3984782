#include <cmath>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"
#include "ScriptRuns.hpp"

// Cuts by solids and operations with groups, as scripts ask for them.
namespace Merivane::Workbench {
namespace {

PartModel ScriptModel(const std::string& script) {
    return Tests::BuildModel(Tests::ModelPart(script));
}

/// Volume of all bodies; fails the test for an open one.
double VolumeOfAll(const PartModel& model) {
    double volume = 0.0;
    for (const FacedBody& body : model.bodies) {
        EXPECT_TRUE(Tests::IsClosed(Tests::Unplaced(body)));
        volume += Tests::Volume(Tests::Unplaced(body));
    }
    return volume;
}

double AreaOfAll(const PartModel& model, std::int32_t surface) {
    double area = 0.0;
    for (const FacedBody& body : model.bodies) {
        area += Tests::SurfaceArea(Tests::Unplaced(body), surface);
    }
    return area;
}

/// Area of a circle of radius 1 in so many chords.
double CircleArea(int chords) {
    return chords / 2.0 * std::sin(2.0 * std::numbers::pi / chords);
}

TEST(SolidCuts, TakeOffWhatLiesInThem) {
    const struct {
        std::string script;
        double volume;
    } rows[] = {
        {"CUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\nBRICK 3, 3, 3", 24},
        {"CUTPOLY 4, 1, 1, 1, 2, 2, 2, 2, 1\nBRICK 3, 3, 3", 24},                // clockwise
        {"ADDZ 9\nCUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\nDEL 1\nBRICK 3, 3, 3", 24}, // endless
        {"CUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2, 1, 0, 1\nBRICK 5, 3, 2", 28},       // slanting
        {"CUTPOLY 3, 5, 5, 6, 5, 6, 6\nBRICK 3, 3, 3", 27},
        {"CUTPOLY 3, -9, -9, 9, -9, 0, 9\nBRICK 1, 1, 1", 0},
        {"CUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\nCUTEND\nBRICK 3, 3, 3", 27},
        {"MULX -1\nCUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\nBRICK 3, 3, 3", 24},
        {"ROTY 90\nCUTPOLY 4, -2, 1, -1, 1, -1, 2, -2, 2\nDEL 1\nBRICK 3, 3, 3", 24},
        {"CUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\nCUTPLANE 0, 0, 2\nBRICK 3, 3, 3", 16},
        {"CUTPOLYA 5, 1, 0, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15, 1, 1, -1\nBRICK 3, 3, 3", 24},
        {"CUTPOLYA 4, 1, 2.5, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\nBRICK 3, 3, 3", 26.5},
        {"CUTPOLYA 4, 1, 1, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15, 0, 0, -1\nADDZ -3\n"
         "BRICK 3, 3, 3",
         25},
        {"CUTPOLYA 4, 1, 3, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\nBRICK 3, 3, 3", 27},
        // Its hole keeps a core.
        {"CUTPOLYA 10, 1, 0, 0.5, 0.5, 15, 2.5, 0.5, 15, 2.5, 2.5, 15, 0.5, 2.5, 15, 0.5, 0.5, "
         "-1, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15, 1, 1, -1\nBRICK 3, 3, 3",
         18},
        {"CUTPOLYA 2, 1, 0, 0, 0, 915, 0.5, 360, 4015\nCYLIND 2, 1", 1.5 * CircleArea(36)},
        {"CUTFORM 4, 1, 1, 0, 0, 1, 2, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\nBRICK 3, 3, 3", 25},
        {"CUTFORM 4, 1, 25, 0, 0, 1, 2, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\nBRICK 3, 3, 3", 24},
        {"CUTFORM 4, 1, 17, 0, 0, 1, 2, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\nBRICK 3, 3, 3", 25},
        {"ADDZ 1\nCUTFORM 4, 1, 17, 0, 0, -1, 0.5, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\n"
         "DEL 1\nBRICK 3, 3, 3",
         24.5},
        {"CUTFORM 4, 1, 33, 0, 0, 1, 2, 1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\nBRICK 3, 3, 3", 2},
        {"CUTFORM 4, 1, 33, 0, 0, 1, 2, 5, 5, 15, 6, 5, 15, 6, 6, 15, 5, 6, 15\nBRICK 3, 3, 3", 0},
        {"CUTFORM 4, 2, 1, 1, 1, 3, 0, 0, 0, 15, 2, 0, 15, 2, 2, 15, 0, 2, 15\nBRICK 3, 3, 3", 23},
        {"CUTFORM 4, 3, 1, 1, 0, 3, 0, 0, 0, 15, 2, 0, 15, 2, 2, 15, 0, 2, 15\nBRICK 3, 3, 3", 21},
        {"CUTFORM{2} 4, 1, 0, 0, 0, 1, 2, 1, 1, 15, 5, 2, 1, 15, 5, 2, 2, 15, 5, 1, 2, 15, 5\n"
         "BRICK 3, 3, 3",
         25},
        {"CUTSHAPE 1\nBRICK 3, 3, 3\nCUTEND", 27},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script);
        EXPECT_NEAR(VolumeOfAll(ScriptModel(row.script)), row.volume, 1e-9);
    }
}

TEST(SolidCuts, EndOneByOneAndWithTheirMacro) {
    const std::string poly = "CUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\n";
    const std::string other = "CUTPOLY 4, 0, 0, 1, 0, 1, 1, 0, 1\n";
    EXPECT_NEAR(VolumeOfAll(ScriptModel(poly + other + "BRICK 3, 3, 1")), 7, 1e-9);
    EXPECT_NEAR(
        VolumeOfAll(ScriptModel(poly + "CUTPLANE 0, 0, 0.5\n" + other +
                                "CUTEND\nBRICK 3, 3, 1\nCUTEND\nADDX 9\nDEL 1\nBRICK 3, 3, 1\n"
                                "CUTEND\nBRICK 3, 3, 1")),
        4 + 8 + 9, 1e-9);
    ScriptEnvironment environment;
    const ScriptPart macro = Tests::ModelPart(poly + "BRICK 3, 3, 1");
    environment.findMacro = [&](std::string_view) { return &macro; };
    EXPECT_NEAR(VolumeOfAll(Tests::BuildModel(Tests::ModelPart("CALL \"macro\"\nBRICK 3, 3, 1"),
                                              environment)),
                8 + 9, 1e-9);
}

TEST(SolidCuts, GiveTheirFacesTheBodysLookOrTheirOwn) {
    const std::string rows = "1, 1, 15, 2, 1, 15, 2, 2, 15, 1, 2, 15\n";
    const std::string brick = "MATERIAL 4\nBRICK 3, 3, 3";
    PartModel model = ScriptModel("MATERIAL 9\nCUTPOLYA 4, 0, 0, " + rows + brick);
    EXPECT_NEAR(AreaOfAll(model, 9), 12, 1e-9);
    EXPECT_NEAR(AreaOfAll(model, 4), 52, 1e-9);
    model = ScriptModel("MATERIAL 9\nCUTPOLYA 4, 1, 0, " + rows + brick);
    EXPECT_NEAR(AreaOfAll(model, 4), 64, 1e-9);
    model = ScriptModel(
        "MATERIAL 9\nCUTFORM{2} 4, 1, 0, 0, 0, 1, 2, 1, 1, 15, 5, 2, 1, 15, 6, 2, 2, 15, "
        "5, 1, 2, 15, 6\n" +
        brick);
    EXPECT_NEAR(AreaOfAll(model, 5), 4, 1e-9);
    EXPECT_NEAR(AreaOfAll(model, 6), 4, 1e-9);
    EXPECT_NEAR(AreaOfAll(model, 9), 1, 1e-9);
}

TEST(SolidCuts, LeaveSurfacesOpenAndCutLines) {
    const std::string cut = "CUTPOLY 4, 1, 1, 2, 1, 2, 2, 1, 2\n";
    EXPECT_NEAR(AreaOfAll(ScriptModel(cut + "MODEL SURFACE\nMATERIAL 4\nBRICK 3, 3, 3"), 4), 52,
                1e-9);
    EXPECT_NEAR(AreaOfAll(ScriptModel(cut + "MATERIAL 4\nRECT 3, 3"), 4), 8, 1e-9);
    EXPECT_EQ(ScriptModel(cut + "MODEL WIRE\nBRICK 3, 3, 3").wires.size(), 24U);
}

// A recessed downlight: a plate with a round opening, and a can hollowed out from below.
TEST(SolidCuts, HollowOutADownlight) {
    const PartModel model = ScriptModel(
        "RESOL 72\nMATERIAL 3\nADDZ 0.002\nCUTPOLYA 2, 0, 0, 0, 0, 901, 0.07, 360, 4001\nDEL 1\n"
        "CYLIND 0.004, 0.09\nCUTEND\nMATERIAL 8\nADDZ 0.1\nCUTPOLYA 2, 0, 0.002, 0, 0, 901, "
        "0.07, 360, 4001, 0, 0, -1\nDEL 1\nMATERIAL 3\nADDZ 0.004\nCYLIND 0.1, 0.075\nDEL 1\n"
        "CUTEND");
    ASSERT_EQ(model.bodies.size(), 2U);
    const double circle = CircleArea(72);
    EXPECT_NEAR(VolumeOfAll(model),
                circle * (0.004 * (0.0081 - 0.0049) + 0.1 * 0.075 * 0.075 - 0.094 * 0.0049), 1e-12);
    // The reflector inside: wall and ceiling.
    const double side = 2.0 * 0.07 * std::sin(std::numbers::pi / 72.0);
    EXPECT_NEAR(AreaOfAll(model, 8), 72.0 * side * 0.094 + circle * 0.0049, 1e-9);
}

TEST(GroupOperations, AreThoseOfTheirSolids) {
    const std::string groups = "GROUP \"a\"\nMATERIAL 4\nBRICK 2, 2, 2\nLIN_ -1, 0.5, 0.5, 4, 0.5, "
                               "0.5\nENDGROUP\nGROUP \"b\"\nMATERIAL 9\nADD 1, 0, 0\n"
                               "BRICK 2, 2, 1\nDEL 1\nENDGROUP\n";
    const auto made = [&](const std::string& call) {
        return ScriptModel(groups + "x = " + call + "\nPLACEGROUP x");
    };
    const PartModel both = made("ADDGROUP (\"a\", \"b\")");
    EXPECT_EQ(both.bodies.size(), 1U);
    EXPECT_NEAR(VolumeOfAll(both), 10, 1e-9);
    const PartModel less = made("SUBGROUP (\"a\", \"b\")");
    EXPECT_NEAR(VolumeOfAll(less), 6, 1e-9);
    EXPECT_NEAR(AreaOfAll(less, 9), 2 + 2, 1e-9);
    ASSERT_EQ(less.wires.size(), 2U);
    EXPECT_NEAR(less.wires[0].end.x, 1, 1e-12);
    EXPECT_NEAR(less.wires[1].begin.x, 3, 1e-12);
    const PartModel common = made("ISECTGROUP (\"a\", \"b\")");
    EXPECT_NEAR(VolumeOfAll(common), 2, 1e-9);
    ASSERT_EQ(common.wires.size(), 1U);
    EXPECT_NEAR(common.wires[0].begin.x, 1, 1e-12);
    EXPECT_NEAR(common.wires[0].end.x, 3, 1e-12);
    EXPECT_TRUE(made("SUBGROUP (\"a\", \"a\")").bodies.empty());
    EXPECT_NEAR(AreaOfAll(made("SUBGROUP{2} (\"a\", \"b\", 1, 5, 0)"), 5), 4, 1e-9);
    EXPECT_NEAR(AreaOfAll(made("SUBGROUP{2} (\"a\", \"b\", 1, 5, 0, 2)"), 9), 4, 1e-9);
    EXPECT_NEAR(AreaOfAll(made("SUBGROUP{3} (\"a\", \"b\", 1, 0, 3)"), 9), 4, 1e-9);
}

TEST(GroupOperations, TakeSeveralBodiesAndNestedCalls) {
    const std::string groups =
        "GROUP \"a\"\nBRICK 4, 1, 1\nADDY 2\nBRICK 4, 1, 1\nDEL 1\nENDGROUP\n"
        "GROUP \"b\"\nFOR i = 0 TO 1\nADD 1 + i * 2, -1, -1\n"
        "BRICK 1, 9, 3\nDEL 1\nNEXT i\nADD 1.5, -1, -1\nBRICK 1, 9, 3\n"
        "DEL 1\nENDGROUP\n";
    EXPECT_NEAR(VolumeOfAll(ScriptModel(groups + "PLACEGROUP SUBGROUP (\"a\", \"b\")")), 3, 1e-9);
    EXPECT_NEAR(VolumeOfAll(ScriptModel(groups + "PLACEGROUP ISECTGROUP (\"a\", \"b\")")), 5, 1e-9);
    EXPECT_NEAR(
        VolumeOfAll(ScriptModel(groups + "PLACEGROUP SUBGROUP (\"a\", SUBGROUP (\"a\", \"b\"))")),
        5, 1e-9);
    EXPECT_NEAR(VolumeOfAll(ScriptModel(groups + "x = ISECTGROUP (\"a\", \"b\")\nKILLGROUP \"a\"\n"
                                                 "y = ADDGROUP (x, \"b\")\nPLACEGROUP x")),
                5, 1e-9);
}

TEST(GroupOperations, AreCutWhereTheyArePlaced) {
    EXPECT_NEAR(VolumeOfAll(ScriptModel("GROUP \"a\"\nBRICK 3, 3, 3\nENDGROUP\nADDX 1\n"
                                        "CUTPLANE 0, 0, 1\nCUTPOLY 4, 0, 0, 1, 0, 1, 1, 0, 1\n"
                                        "PLACEGROUP \"a\"\nCUTEND\nCUTEND\nPLACEGROUP \"a\"")),
                8 + 27, 1e-9);
}

TEST(SolidCuts, NameWhatIsWrong) {
    const auto expect = [](const std::string& script, const std::string& reason) {
        EXPECT_EQ(Tests::ModelError(script),
                  "A peça \"Peca\" parou no script 3D, linha 1, instrução " + reason);
    };
    expect("CUTPOLY 3, 0, 0, 1, 0, 2, 0", "CUTPOLY: o polígono de corte não tem área.");
    expect("CUTPOLY 3, 0, 0, 1, 0, 1, 1, 1, 0, 0",
           "CUTPOLY: o corte não se afasta do plano do polígono.");
    expect("CUTPOLY 3, 0, 0, 1, 0, 1, 1, 1", "CUTPOLY: pede 7 argumentos e tem 8.");
    expect("CUTPOLY 2, 0, 0, 1, 0, 1, 1",
           "CUTPOLY: o número de pontos deve ser inteiro e pelo menos 3.");
    expect("CUTPOLYA 3, 1, 0, 0, 0, 15, 1, 0, 15", "CUTPOLYA: pede 12 argumentos e tem 9.");
    expect("CUTFORM 3, 4, 1, 0, 0, 1, 1, 0, 0, 15, 1, 0, 15, 1, 1, 15",
           "CUTFORM: o método de corte deve ser 1, 2 ou 3.");
    expect("FOR i = 1 TO 1001: CUTPOLY 3, 0, 0, 1, 0, 1, 1: NEXT i",
           "CUTPOLY: cortes demais, um dentro do outro.");
    expect("x = SUBGROUP (\"a\", \"b\")", "x: o grupo \"a\" não existe.");
}

TEST(SolidCuts, EndInAnErrorWhereTheyTakeTooMuch) {
    ScriptEnvironment environment;
    environment.limits.solidWork = 100'000;
    PartModel model;
    const auto error = RunModelScript(
        Tests::ModelPart("FOR i = 1 TO 500\nCUTPOLYA 2, 1, 0, i / 300, 0, 915, 1, 360, 4015\n"
                         "NEXT i\nSPHERE 3"),
        environment, model);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(DescribeScriptError(*error),
              "A peça \"Peca\" parou no script 3D, linha 4, instrução "
              "SPHERE: as operações com sólidos pedem trabalho demais.");
}

} // namespace
} // namespace Merivane::Workbench
