#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <string>

#include "Gdl/LuminaireScripts.hpp"
#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/LuminaireRotation.hpp"
#include "Photometry/SymbolRows.hpp"
#include "ScriptRuns.hpp"

// What our own generators write, carried out.
namespace Merivane {
namespace {

using namespace Workbench;
using Host::ParameterType;

constexpr double Degree = std::numbers::pi / 180.0;

void Set(ScriptPart& part, const std::string& name, double number,
         ParameterType type = ParameterType::Real) {
    for (Host::LibraryParameter& parameter : part.parameters) {
        if (parameter.name == name) {
            parameter.number = type == ParameterType::Angle ? number * Degree : number;
            return;
        }
    }
    part.parameters.push_back(Tests::NumberParameter(
        name, type == ParameterType::Angle ? number * Degree : number, type));
}

/// A luminaire's scripts above a user's own, with all that they read at rest.
ScriptPart Luminaire() {
    ScriptPart part;
    part.name = "Luminaria";
    part.plan = Photometry::Script2DWithBlock("LINE2 7, 7, 8, 8\n");
    part.model = Photometry::Script3DWithBlock("LIN_ 0, 0, 0, 1, 0, 0\n");
    Set(part, "mvSymbolPen", 5);
    Set(part, "mvCircuitPen", 9);
    Set(part, "mvCircuitSize", 2.5);
    Set(part, "mvPlanSymbolSize", 4.0);
    part.parameters.push_back(Tests::TextParameter("mvCircuit", ""));
    return part;
}

void SetSymbol(ScriptPart& part, int id) {
    const Photometry::SymbolRowsResult rows =
        Photometry::BuildSymbolRows(Photometry::BuiltInSymbol(id));
    ASSERT_TRUE(rows.ok) << rows.error;
    Host::LibraryParameter data;
    data.name = "mvSymbolData";
    data.isArray = true;
    data.dim1 = Photometry::SymbolDataRows;
    data.dim2 = Photometry::SymbolDataColumns;
    data.numbers = Photometry::SymbolData(rows.rows);
    part.parameters.push_back(data);
    Set(part, "mvPlanSymbol", id);
    Set(part, "mvSymbolCount", static_cast<double>(rows.rows.size()));
}

/// A host whose model view shows luminaires by this representation.
ScriptEnvironment WithRepresentation(double representation) {
    ScriptEnvironment environment;
    environment.libraryGlobal = [representation](std::string_view object,
                                                 std::string_view variable) {
        EXPECT_EQ(object, "Objects_MVOSettings");
        EXPECT_EQ(variable, "iFixtureSymbol");
        return std::optional<ScriptValue>(NumberValue(representation));
    };
    return environment;
}

/// A row of a symbol's table, as the drawing must show it at `scale` around `center`.
void ExpectRow(const Photometry::SymbolRow& row, const PlanShape& shape, double scale,
               const Host::Coordinate& center) {
    constexpr double rounding = 1e-12;
    const auto at = [&](std::size_t column) { return row[column] * scale; };
    if (row[0] == 1) {
        const auto& line = std::get<PlanLine>(shape);
        EXPECT_NEAR(line.begin.x, center.x + at(1), rounding);
        EXPECT_NEAR(line.begin.y, center.y + at(2), rounding);
        EXPECT_NEAR(line.end.x, center.x + at(3), rounding);
        EXPECT_NEAR(line.end.y, center.y + at(4), rounding);
        EXPECT_EQ(line.look.pen, 5);
        return;
    }
    const auto& arc = std::get<PlanArc>(shape);
    EXPECT_NEAR(arc.center.x, center.x + at(1), rounding);
    EXPECT_NEAR(arc.center.y, center.y + at(2), rounding);
    EXPECT_NEAR(arc.radius, at(3), rounding);
    EXPECT_EQ(arc.whole, row[0] == 2);
    if (row[0] == 3) {
        EXPECT_NEAR(arc.begin, row[4], rounding);
        EXPECT_NEAR(arc.end, row[5], rounding);
    }
}

/// A polygon of a symbol's table: its head and the rows behind it.
void ExpectPolygon(const std::vector<Photometry::SymbolRow>& rows, std::size_t head,
                   const PlanShape& shape, double scale, const Host::Coordinate& center) {
    const auto& polygon = std::get<PlanPolygon>(shape);
    const auto count = static_cast<std::size_t>(rows[head][1]);
    EXPECT_TRUE(polygon.outlined && polygon.closed);
    ASSERT_EQ(polygon.rings.size(), 1U);
    ASSERT_EQ(polygon.rings[0].vertices.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_NEAR(polygon.rings[0].vertices[i].x, center.x + rows[head + 1 + i][1] * scale,
                    1e-12);
        EXPECT_NEAR(polygon.rings[0].vertices[i].y, center.y + rows[head + 1 + i][2] * scale,
                    1e-12);
        EXPECT_TRUE(polygon.rings[0].visible[i]);
    }
}

TEST(GeneratedPlanScript, DrawsEveryBuiltInSymbolByItsRows) {
    const double scale = 4.0 * 50.0 / 2000.0;
    const Host::Coordinate center = {0.25, -0.5};
    ScriptEnvironment environment = WithRepresentation(1);
    environment.scale = 50.0;
    for (int id = 1; id <= 30; ++id) {
        SCOPED_TRACE(id);
        ScriptPart part = Luminaire();
        Set(part, "mvCenterX", center.x);
        Set(part, "mvCenterY", center.y);
        SetSymbol(part, id);
        const auto rows = Photometry::BuildSymbolRows(Photometry::BuiltInSymbol(id)).rows;
        const PlanSymbolDrawing drawing = Tests::DrawPlan(part, environment);
        ASSERT_GE(drawing.shapes.size(), 6U);
        EXPECT_EQ(Tests::ShapesOf<PlanHotspot>(drawing).size(), 5U);
        EXPECT_EQ(std::get<PlanHotspot>(drawing.shapes[1]).position,
                  (Host::Coordinate{center.x + scale, center.y}));
        std::size_t shape = 5;
        for (std::size_t row = 0; row < rows.size(); ++row, ++shape) {
            ASSERT_LT(shape, drawing.shapes.size());
            if (rows[row][0] == 4) {
                ExpectPolygon(rows, row, drawing.shapes[shape], scale, center);
                row += static_cast<std::size_t>(rows[row][1]);
            } else {
                ExpectRow(rows[row], drawing.shapes[shape], scale, center);
            }
        }
        EXPECT_EQ(shape, drawing.shapes.size()) << "END stops the user's script";
    }
}

TEST(GeneratedPlanScript, FillsPolygonsWhereTheLuminaireHasAFill) {
    ScriptPart part = Luminaire();
    SetSymbol(part, Photometry::DefaultPlanSymbol);
    Set(part, "mvSymbolFill", 12);
    const auto polygons =
        Tests::ShapesOf<PlanPolygon>(Tests::DrawPlan(part, WithRepresentation(2)));
    ASSERT_FALSE(polygons.empty());
    EXPECT_TRUE(polygons[0].filled);
    EXPECT_EQ(polygons[0].look.fill, 12);
    EXPECT_EQ(polygons[0].fillPen, 5);
    EXPECT_EQ(polygons[0].backgroundPen, 0);
}

TEST(GeneratedPlanScript, GoesOnToTheUsersScriptWhereNoSymbolIsShown) {
    ScriptPart none = Luminaire();
    SetSymbol(none, Photometry::NoPlanSymbol);
    ScriptPart shown = Luminaire();
    SetSymbol(shown, 3);
    const PlanSymbolDrawing plans[] = {
        Tests::DrawPlan(none, WithRepresentation(1)),  // the luminaire has none
        Tests::DrawPlan(shown, WithRepresentation(3)), // the view asks for the model's plan
        Tests::DrawPlan(shown),                        // the host does not tell
    };
    for (const PlanSymbolDrawing& plan : plans) {
        ASSERT_EQ(plan.shapes.size(), 1U);
        EXPECT_EQ(std::get<PlanLine>(plan.shapes[0]).end, (Host::Coordinate{8, 8}));
    }
}

TEST(GeneratedPlanScript, KeepsTheCircuitUprightHoweverTheLuminaireIsTurned) {
    for (const bool mirrored : {false, true}) {
        for (const double turned : {0.0, 37.0, 90.0, 180.0, 271.5}) {
            SCOPED_TRACE(turned);
            ScriptPart part = Luminaire();
            for (Host::LibraryParameter& parameter : part.parameters) {
                parameter.text = parameter.name == "mvCircuit" ? "C-12" : parameter.text;
            }
            Set(part, "mvCircuitX", 0.3);
            Set(part, "mvCircuitY", 0.2);
            ScriptEnvironment environment;
            environment.symbolRotation = turned;
            environment.symbolMirrored = mirrored;
            const auto texts = Tests::ShapesOf<PlanText>(Tests::DrawPlan(part, environment));
            ASSERT_EQ(texts.size(), 1U);
            EXPECT_EQ(texts[0].text, "C-12");
            EXPECT_EQ(texts[0].position, (Host::Coordinate{0.3, 0.2}));
            EXPECT_EQ(texts[0].font, "Arial");
            EXPECT_EQ(texts[0].size, 2.5);
            EXPECT_EQ(texts[0].anchor, 5);
            EXPECT_EQ(texts[0].look.pen, 9);
            EXPECT_EQ(texts[0].mirrored, mirrored);
            // The symbol is mirrored in x, then turned: so must its text's base line be.
            const double x = std::cos(texts[0].angle * Degree) * (mirrored ? -1.0 : 1.0);
            const double y = std::sin(texts[0].angle * Degree);
            const double c = std::cos(turned * Degree);
            const double s = std::sin(turned * Degree);
            EXPECT_NEAR(c * x - s * y, 1.0, 1e-12);
            EXPECT_NEAR(s * x + c * y, 0.0, 1e-12);
        }
    }
}

TEST(GeneratedPlanScript, MovesTheCircuitByHotspotsOfItsParameters) {
    ScriptPart part = Luminaire();
    for (Host::LibraryParameter& parameter : part.parameters) {
        parameter.text = parameter.name == "mvCircuit" ? "1" : parameter.text;
    }
    Set(part, "mvCircuitX", 0.3);
    Set(part, "mvCircuitY", 0.2);
    const std::vector<PlanHotspot> expected = {
        {{0, 0.2}, 19001, "mvCircuitX", 129, ""}, {{-1, 0.2}, 19002, "mvCircuitX", 3, ""},
        {{0.3, 0.2}, 19003, "mvCircuitX", 2, ""}, {{0.3, 0}, 19004, "mvCircuitY", 129, ""},
        {{0.3, -1}, 19005, "mvCircuitY", 3, ""},  {{0.3, 0.2}, 19006, "mvCircuitY", 2, ""},
    };
    EXPECT_EQ(Tests::ShapesOf<PlanHotspot>(Tests::DrawPlan(part)), expected);
}

TEST(GeneratedPlanScript, MarksTheCentreAndTheTiltedBeam) {
    ScriptPart part = Luminaire();
    Set(part, "showAxis", 1);
    Set(part, "mvShowPhotometry", 1);
    Set(part, "mvCenterX", 1);
    Set(part, "mvTiltAngle", 30, ParameterType::Angle);
    Set(part, "mvTiltDirection", 90, ParameterType::Angle);
    const PlanSymbolDrawing drawing = Tests::DrawPlan(part);
    ASSERT_EQ(drawing.shapes.size(), 8U);
    EXPECT_EQ(std::get<PlanArc>(drawing.shapes[0]).center, (Host::Coordinate{1, 0}));
    EXPECT_EQ(std::get<PlanArc>(drawing.shapes[0]).radius, 0.015);
    EXPECT_EQ(std::get<PlanLine>(drawing.shapes[1]).begin, (Host::Coordinate{0.9, 0}));
    EXPECT_EQ(std::get<PlanHotspot>(drawing.shapes[3]).position, (Host::Coordinate{1, 0}));
    const auto& arrow = std::get<PlanLine>(drawing.shapes[4]);
    EXPECT_NEAR(arrow.end.x, 1.0, 1e-12);
    EXPECT_NEAR(arrow.end.y, 0.20, 1e-12);
}

TEST(GeneratedModelScript, PutsTheLightAtTheCentreInTheFrameOfTheLuminaire) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> angle(-360.0, 360.0);
    std::uniform_real_distribution<double> length(-2.0, 2.0);
    for (int i = 0; i < 1000; ++i) {
        Photometry::LuminaireSettings settings;
        settings.c0Rotation = angle(random);
        settings.tiltAngle = angle(random) / 2.0;
        settings.tiltDirection = angle(random);
        settings.centerX = length(random);
        settings.centerY = length(random);
        settings.centerZ = length(random);
        settings.flangeDepth = length(random);
        ScriptPart part = Luminaire();
        Set(part, "mvLightOn", 1);
        Set(part, "mvCenterX", settings.centerX);
        Set(part, "mvCenterY", settings.centerY);
        Set(part, "mvCenterZ", settings.centerZ);
        Set(part, "mvFlangeDepth", settings.flangeDepth);
        Set(part, "mvTiltAngle", settings.tiltAngle, ParameterType::Angle);
        Set(part, "mvTiltDirection", settings.tiltDirection, ParameterType::Angle);
        Set(part, "mvC0Rotation", settings.c0Rotation, ParameterType::Angle);
        const PartModel model = Tests::BuildModel(part);
        ASSERT_EQ(model.lights.size(), 1U);
        const PartLight& light = model.lights[0];
        EXPECT_NEAR(light.position.x, settings.centerX, 1e-9);
        EXPECT_NEAR(light.position.y, settings.centerY, 1e-9);
        EXPECT_NEAR(light.position.z, settings.centerZ - settings.flangeDepth, 1e-9);
        const Photometry::RotationMatrix rotation = Photometry::LuminaireRotation(settings);
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                EXPECT_NEAR(light.frame[row * 4 + column], rotation[row * 3 + column], 1e-9);
            }
        }
        EXPECT_NEAR(light.direction.x, rotation[0], 1e-9);
    }
}

TEST(GeneratedModelScript, LeavesTheUsersBodyLoweredByTheFlangeAlone) {
    ScriptPart part = Luminaire();
    Set(part, "mvFlangeDepth", 0.03);
    Set(part, "mvCenterX", 0.5);
    Set(part, "mvTiltAngle", 20, ParameterType::Angle);
    const PartModel model = Tests::BuildModel(part);
    EXPECT_TRUE(model.lights.empty()) << "switched off";
    ASSERT_EQ(model.wires.size(), 1U);
    EXPECT_EQ(model.wires[0].begin, (Host::Coordinate3D{0, 0, -0.03}));
    EXPECT_EQ(model.wires[0].end, (Host::Coordinate3D{1, 0, -0.03}));
}

TEST(GeneratedModelScript, ShowsTheAxesInSpaceAndNotInPlan) {
    ScriptPart part = Luminaire();
    Set(part, "mvShowPhotometry", 1);
    ScriptEnvironment space;
    space.viewType = 3;
    EXPECT_EQ(Tests::BuildModel(part, space).wires.size(), 9U);
    EXPECT_EQ(Tests::BuildModel(part).wires.size(), 1U);
}

TEST(GeneratedParameterScript, HidesLocksAndLimits) {
    ScriptPart part = Luminaire();
    part.parameter = Photometry::MasterScriptWithBlock("", {"gs_list", "gs_volts"}, "");
    Set(part, "GS_List", 0);
    Set(part, "mvLuminousFlux", 1000);
    Set(part, "mvDimming", 1);
    Set(part, "mvMaintenanceFactor", 0.8);
    ParameterRules rules;
    const auto error = RunParameterScript(part, {}, rules);
    ASSERT_FALSE(error.has_value()) << DescribeScriptError(*error);
    EXPECT_EQ(rules.hidden, std::vector<std::string>{"GS_List"});
    EXPECT_EQ(rules.locked, std::vector<std::string>{"mvLuminousFlux"});
    ASSERT_EQ(rules.values.size(), 4U);
    const ParameterRange dimming = {0.0, 1.0, true, true, {}, {}};
    const ParameterRange maintenance = {0.0, 1.0, false, true, {}, {}};
    const ParameterRange circuit = {0.5, 20.0, true, true, {}, {}};
    EXPECT_EQ(rules.values["mvDimming"].ranges, std::vector<ParameterRange>{dimming});
    EXPECT_EQ(rules.values["mvMaintenanceFactor"].ranges, std::vector<ParameterRange>{maintenance});
    EXPECT_EQ(rules.values["mvCircuitSize"].ranges, std::vector<ParameterRange>{circuit});
}

} // namespace
} // namespace Merivane
