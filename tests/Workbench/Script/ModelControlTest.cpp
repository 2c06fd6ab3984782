#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "Host/Model3D.hpp"
#include "ScriptRuns.hpp"

namespace Merivane {
namespace {

using namespace Workbench;

PartModel Build(const std::string& script, const ScriptEnvironment& environment = {}) {
    SCOPED_TRACE(script);
    return Tests::BuildModel(Tests::ModelPart(script), environment);
}

/// Lowest and highest z of all vertices.
std::pair<double, double> Heights(const PartModel& model) {
    std::pair<double, double> range = {1e9, -1e9};
    for (const FacedBody& body : model.bodies) {
        for (const Host::Coordinate3D& vertex : body.vertices) {
            range.first = std::min(range.first, vertex.z);
            range.second = std::max(range.second, vertex.z);
        }
    }
    return range;
}

TEST(ModelControl, MarksLightsInTheirFrame) {
    const PartModel model = Build("ADD 1, 2, 3\nROTY 90\nLIGHT 1, 0.5, 0.25, 1, 0.1, 20, 40, 2, 3, "
                                  "4, 5, ADDITIONAL_DATA nome = 1, outro = \"x\"");
    ASSERT_EQ(model.lights.size(), 1U);
    const PartLight& light = model.lights[0];
    EXPECT_EQ(light.position, (Host::Coordinate3D{1, 2, 3}));
    EXPECT_NEAR(light.direction.z, -1, 1e-12);
    EXPECT_EQ(light.colour, (Host::Colour{1, 0.5, 0.25}));
    EXPECT_TRUE(light.shadow);
    EXPECT_EQ(light.radius, 0.1);
    EXPECT_EQ(light.coneInner, 20);
    EXPECT_EQ(light.coneOuter, 40);
    EXPECT_EQ(light.angleFalloff, 2);
    EXPECT_EQ(light.distanceBegin, 3);
    EXPECT_EQ(light.distanceEnd, 4);
    EXPECT_EQ(light.distanceFalloff, 5);
}

TEST(ModelControl, DrawsLinesHotspotsAndTexts) {
    const PartModel model = Build("PEN 4\nADDX 1\nLIN_ 0, 0, 0, 0, 0, 1\n"
                                  "HOTSPOT 0, 0, 1, 8, Altura, 2\n"
                                  "DEFINE STYLE \"s\" \"Arial\", 5, 1, 0\nSET STYLE \"s\"\n"
                                  "TEXT 0.1, 0, 12");
    const PartWire wire = {{1, 0, 0}, {1, 0, 1}, 4};
    EXPECT_EQ(model.wires, std::vector<PartWire>{wire});
    const PartHotspot hotspot = {{1, 0, 1}, 8, "Altura", 2};
    EXPECT_EQ(model.hotspots, std::vector<PartHotspot>{hotspot});
    ASSERT_EQ(model.texts.size(), 1U);
    EXPECT_EQ(model.texts[0].text, "12");
    EXPECT_EQ(model.texts[0].height, 0.5); // 5 mm at 1:100
    EXPECT_EQ(model.texts[0].frame[3], 1);
}

TEST(ModelControl, GivesShapesTheMaterialInForce) {
    ScriptEnvironment environment;
    environment.findAttribute = [](ScriptAttribute kind, std::string_view name) {
        return kind == ScriptAttribute::Surface && name == "Madeira" ? 12 : 0;
    };
    const PartModel model =
        Build("DEFINE MATERIAL \"meu\" 0, 1, 0.5, 0, 0.2, 0.7, 0.1, 0.3, 50, 1, 1, 1, 1, 0, 0, 0, "
              "0\nDEFINE MATERIAL \"vidro\" 5, 0, 0, 1\n"
              "DEFINE MATERIAL \"claro\" BASED_ON \"meu\" PARAMETERS gs_mat_surface_r = 0.25\n"
              "DEFINE MATERIAL \"tabua\", BASED_ON \"Madeira\"\n"
              "BRICK 1, 1, 1\nMATERIAL \"Madeira\"\nBRICK 1, 1, 1\nMATERIAL \"meu\"\n"
              "BRICK 1, 1, 1\nMATERIAL -2\nBRICK 1, 1, 1\nMATERIAL \"nada\"\nBRICK 1, 1, 1\n"
              "MATERIAL IND (MATERIAL, \"claro\")\nBRICK 1, 1, 1\nMATERIAL \"tabua\"\n"
              "BRICK 1, 1, 1\nMATERIAL -9\nBRICK 1, 1, 1",
              environment);
    ASSERT_EQ(model.surfaces.size(), 3U);
    EXPECT_EQ(model.surfaces[0].name, "meu");
    EXPECT_EQ(model.surfaces[0].colour, (Host::Colour{1, 0.5, 0}));
    EXPECT_EQ(model.surfaces[0].diffuse, 0.7);
    EXPECT_EQ(model.surfaces[0].transparency, 0.3);
    EXPECT_EQ(model.surfaces[1].transparency, 0.8);
    EXPECT_EQ(model.surfaces[2].colour, (Host::Colour{0.25, 0.5, 0}));
    const std::int32_t own = Host::FirstScriptSurface;
    const std::int32_t expected[] = {-1, 12, own, own + 1, -1, own + 2, 12, -1};
    ASSERT_EQ(model.bodies.size(), std::size(expected));
    for (std::size_t i = 0; i < model.bodies.size(); ++i) {
        EXPECT_EQ(model.bodies[i].faces[0].surface, expected[i]) << i;
    }
}

TEST(ModelControl, CutsWhatLiesAbovePlanes) {
    struct Row {
        std::string cut;
        double lowest;
        double highest;
    };
    const Row rows[] = {
        {"CUTPLANE 0, 0, 0.4", 0, 0.4},
        {"CUTPLANE 0, 0, 0.4, 1", 0.4, 1},
        {"ADDZ 0.25\nCUTPLANE\nDEL 1", 0, 0.25},
        {"ADDZ 0.25\nCUTPLANE 180\nDEL 1", 0.25, 1},
        {"MULZ -1\nCUTPLANE 0, 0, -0.75\nDEL 1", 0.75, 1},
        {"CUTPLANE 0, 0, 0.4\nCUTPLANE 0, 0, 0.1, 1", 0.1, 0.4},
        {"CUTPLANE 0, 0, 0.4\nCUTPOLY 3, 0, 0, 1, 0, 1, 1\nCUTEND", 0, 0.4},
        {"CUTPLANE 0, 0, 0.4\nCUTEND", 0, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.cut);
        const auto range = Heights(Build(row.cut + "\nBRICK 1, 1, 1"));
        EXPECT_NEAR(range.first, row.lowest, 1e-9);
        EXPECT_NEAR(range.second, row.highest, 1e-9);
    }
}

TEST(ModelControl, PlacesGroupsWhereTheyAreWanted) {
    const PartModel model = Build("ADDZ 5\nGROUP \"g\"\nADDX 1\nBRICK 1, 1, 1\nLIN_ 0, 0, 0, 1, 0, "
                                  "0\nDEL 1\nENDGROUP\nDEL 1\nPLACEGROUP \"g\"\nADDZ 2\n"
                                  "x = ADDGROUP (\"g\", \"g\")\nPLACEGROUP x\nKILLGROUP \"g\"");
    ASSERT_EQ(model.bodies.size(), 2U);
    EXPECT_EQ(model.wires.size(), 3U);
    EXPECT_NEAR(Heights({{model.bodies[0]}, {}, {}, {}, {}, {}}).first, 0, 1e-12);
    EXPECT_NEAR(Heights({{model.bodies[1]}, {}, {}, {}, {}, {}}).first, 2, 1e-12);
    EXPECT_NEAR(model.wires[0].begin.x, 1, 1e-12);
    EXPECT_TRUE(Build("GROUP \"g\"\nBRICK 1, 1, 1").bodies.empty());
}

TEST(ModelControl, AcceptsWhatCannotBeSeen) {
    EXPECT_EQ(Build("SHADOW OFF\nSHADOW ON, OFF\nSECT_FILL 1, 2, 3, 4\nMODEL SURFACE\nTOLER 0.01\n"
                    "RADIUS 0.1, 1\nDEFINE TEXTURE \"t\" \"x.png\", 1, 1, 1, 0\nBRICK 1, 1, 1")
                  .bodies.size(),
              1U);
}

TEST(ModelControl, NamesWhatIsWrong) {
    const auto expect = [](const std::string& script, const std::string& reason) {
        EXPECT_EQ(Tests::ModelError(script),
                  "A peça \"Peca\" parou no script 3D, linha 1, instrução " + reason);
    };
    expect("ENDGROUP", "ENDGROUP: ENDGROUP sem GROUP.");
    expect("PLACEGROUP \"x\"", "PLACEGROUP: o grupo \"x\" não existe.");
    expect("GROUP \"a\": GROUP \"b\"", "GROUP: um grupo não começa dentro de outro.");
    expect("GROUP \"\"", "GROUP: o grupo não tem nome.");
    expect("MULX 0: GROUP \"a\"", "GROUP: as transformações não deixam volume ao grupo.");
    expect("LINE2 0, 0, 1, 1", "LINE2: só vale no script 2D.");
    expect("FOR i = 1 TO 10001: GROUP STR (i, 1, 0): ENDGROUP: NEXT i", "GROUP: grupos demais.");
    expect("DEFINE MATERIAL \"a\" 9, 1, 1, 1", "DEFINE MATERIAL: o tipo de material 9 não existe.");
    expect("MUL 0, 0, 0: CUTPLANE", "CUTPLANE: o plano de corte não tem direção.");
}

TEST(ModelControl, BuildsALotOfPolygons) {
    const PartModel model = Build("FOR i = 1 TO 16700\nADDX 1\nBRICK 1, 1, 1\nDEL 1\nNEXT i");
    EXPECT_EQ(model.bodies.size(), 16700U); // over 100,000 faces
}

} // namespace
} // namespace Merivane
