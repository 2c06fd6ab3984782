#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <vector>

#include "Gdl/LuminaireScripts.hpp"
#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/LuminaireRotation.hpp"
#include "Photometry/SymbolRows.hpp"
#include "Photometry/UserSymbols.hpp"
#include "ScriptRuns.hpp"

// The marks that a luminaire's scripts draw, end for end.
namespace Merivane {
namespace {

using namespace Workbench;
using Host::ParameterType;

constexpr double RadiansPerDegree = std::numbers::pi / 180.0;

struct Value {
    const char* name;
    double number;
    ParameterType type = ParameterType::Real;
};

ScriptPart MarkedLuminaire(const std::vector<Value>& values) {
    ScriptPart part;
    part.name = "Luminaria";
    part.plan = Photometry::Script2DWithBlock("");
    part.model = Photometry::Script3DWithBlock("");
    part.parameters = {Tests::NumberParameter("mvSymbolPen", 5),
                       Tests::TextParameter("mvCircuit", "")};
    for (const Value& value : values) {
        const bool isAngle = value.type == ParameterType::Angle;
        part.parameters.push_back(Tests::NumberParameter(
            value.name, isAngle ? value.number * RadiansPerDegree : value.number, value.type));
    }
    return part;
}

void ExpectLine(const PlanShape& shape, const Host::Coordinate& begin,
                const Host::Coordinate& end) {
    const auto& line = std::get<PlanLine>(shape);
    EXPECT_NEAR(line.begin.x, begin.x, 1e-12);
    EXPECT_NEAR(line.begin.y, begin.y, 1e-12);
    EXPECT_NEAR(line.end.x, end.x, 1e-12);
    EXPECT_NEAR(line.end.y, end.y, 1e-12);
    EXPECT_EQ(line.look.pen, 5);
}

TEST(GeneratedPlanMarks, CrossTheCircleOfTheCentre) {
    const auto drawing = Tests::DrawPlan(
        MarkedLuminaire({{"showAxis", 1}, {"mvCenterX", 1.5}, {"mvCenterY", -0.5}}));
    ASSERT_EQ(drawing.shapes.size(), 3U);
    const auto& circle = std::get<PlanArc>(drawing.shapes[0]);
    EXPECT_TRUE(circle.whole);
    EXPECT_EQ(circle.center, (Host::Coordinate{1.5, -0.5}));
    EXPECT_EQ(circle.radius, 0.015);
    EXPECT_EQ(circle.look.pen, 5);
    ExpectLine(drawing.shapes[1], {1.4, -0.5}, {1.6, -0.5});
    ExpectLine(drawing.shapes[2], {1.5, -0.6}, {1.5, -0.4});
}

TEST(GeneratedPlanMarks, EndTheBeamInBarbsOnBothSides) {
    const auto drawing =
        Tests::DrawPlan(MarkedLuminaire({{"mvShowPhotometry", 1},
                                         {"mvCenterX", 1.0},
                                         {"mvCenterY", 2.0},
                                         {"mvTiltAngle", 30, ParameterType::Angle},
                                         {"mvTiltDirection", 90, ParameterType::Angle}}));
    ASSERT_EQ(drawing.shapes.size(), 4U);
    EXPECT_EQ(std::get<PlanHotspot>(drawing.shapes[0]).position, (Host::Coordinate{1, 2}));
    ExpectLine(drawing.shapes[1], {1.0, 2.0}, {1.0, 2.2});
    ExpectLine(drawing.shapes[2], {1.0, 2.2}, {1.0 - 0.015, 2.17});
    ExpectLine(drawing.shapes[3], {1.0, 2.2}, {1.0 + 0.015, 2.17});
}

TEST(GeneratedPlanMarks, ShowABeamFromATiltAboveAHundredthOfADegree) {
    for (const auto& [tilt, lines] :
         {std::pair(0.0, 0U), std::pair(0.0099, 0U), std::pair(0.0101, 3U), std::pair(-30.0, 0U)}) {
        const auto drawing = Tests::DrawPlan(MarkedLuminaire(
            {{"mvShowPhotometry", 1}, {"mvTiltAngle", tilt, ParameterType::Angle}}));
        EXPECT_EQ(Tests::ShapesOf<PlanLine>(drawing).size(), lines) << tilt;
        EXPECT_EQ(Tests::ShapesOf<PlanHotspot>(drawing).size(), 1U) << tilt;
    }
}

/// The symbol's numbers as a luminaire carries them.
ScriptPart WithSymbol(const Photometry::PlanSymbol& symbol) {
    const auto rows = Photometry::BuildSymbolRows(symbol);
    EXPECT_TRUE(rows.ok) << rows.error;
    ScriptPart part = MarkedLuminaire({{"mvCenterX", 0.25},
                                       {"mvCenterY", -0.5},
                                       {"mvPlanSymbolSize", 8.0},
                                       {"mvPlanSymbol", static_cast<double>(symbol.id)},
                                       {"mvSymbolCount", static_cast<double>(rows.rows.size())}});
    Host::LibraryParameter data;
    data.name = "mvSymbolData";
    data.isArray = true;
    data.dim1 = Photometry::SymbolDataRows;
    data.dim2 = Photometry::SymbolDataColumns;
    data.numbers = Photometry::SymbolData(rows.rows);
    part.parameters.push_back(data);
    return part;
}

ScriptEnvironment ShowingSymbols() {
    ScriptEnvironment environment;
    environment.scale = 50.0; // a symbol of 8 mm is 0.4 m across
    environment.libraryGlobal = [](std::string_view, std::string_view) {
        return std::optional<ScriptValue>(NumberValue(1));
    };
    return environment;
}

TEST(GeneratedPlanMarks, HaveHotspotsInTheMiddleAndAtFourEndsOfASymbol) {
    const auto hotspots = Tests::ShapesOf<PlanHotspot>(
        Tests::DrawPlan(WithSymbol(Photometry::BuiltInSymbol(5)), ShowingSymbols()));
    const Host::Coordinate expected[] = {
        {0.25, -0.5}, {0.45, -0.5}, {0.25, -0.3}, {0.05, -0.5}, {0.25, -0.7}};
    ASSERT_EQ(hotspots.size(), std::size(expected));
    for (std::size_t i = 0; i < hotspots.size(); ++i) {
        EXPECT_NEAR(hotspots[i].position.x, expected[i].x, 1e-12) << i;
        EXPECT_NEAR(hotspots[i].position.y, expected[i].y, 1e-12) << i;
        EXPECT_EQ(hotspots[i].parameter, "");
    }
}

TEST(GeneratedPlanMarks, StayThoseOfAUsersSymbolThatWasDeleted) {
    using Kind = Photometry::SymbolStrokeKind;
    Photometry::UserSymbols symbols;
    symbols.nextId = 1001;
    Photometry::PlanSymbol own;
    own.id = 1000;
    own.name = "Minha";
    own.strokes = {
        {.kind = Kind::Line, .points = {{-1, 0}, {1, 0.5}}},
        {.kind = Kind::Polygon, .points = {{0, 0}, {1, 0}, {0, 1}}, .filled = true},
        {.kind = Kind::Arc, .points = {{0, 0}}, .radius = 0.5, .beginAngle = 0, .endAngle = 90}};
    symbols.symbols = {own};
    const ScriptPart luminaire = WithSymbol(own);
    const PlanSymbolDrawing before = Tests::DrawPlan(luminaire, ShowingSymbols());
    EXPECT_EQ(before.shapes.size(), 8U); // five hotspots, three strokes
    symbols.symbols[0].hidden = true;
    symbols = Photometry::ParseUserSymbols(Photometry::FormatUserSymbols(symbols));
    ASSERT_TRUE(symbols.symbols.empty());
    EXPECT_EQ(symbols.nextId, 1001); // no other symbol takes its number
    EXPECT_EQ(Tests::DrawPlan(luminaire, ShowingSymbols()), before);
    const auto lines = Tests::ShapesOf<PlanLine>(before);
    ASSERT_EQ(lines.size(), 1U);
    ExpectLine(lines[0], {0.05, -0.5}, {0.45, -0.4});
}

TEST(GeneratedModelMarks, AreEightLinesInTheFrameOfTheAiming) {
    Photometry::LuminaireSettings settings;
    settings.tiltAngle = 35.0;
    settings.tiltDirection = 25.0;
    settings.c0Rotation = 70.0;
    const ScriptPart part =
        MarkedLuminaire({{"mvShowPhotometry", 1},
                         {"mvCenterX", 0.5},
                         {"mvCenterY", -1.0},
                         {"mvCenterZ", 2.0},
                         {"mvFlangeDepth", 0.25},
                         {"mvTiltAngle", settings.tiltAngle, ParameterType::Angle},
                         {"mvTiltDirection", settings.tiltDirection, ParameterType::Angle},
                         {"mvC0Rotation", settings.c0Rotation, ParameterType::Angle}});
    ScriptEnvironment space;
    space.viewType = 3;
    // Axes, the head at the end of C0, the arrow to the nadir and its head [m].
    const std::array<std::array<double, 6>, 8> lines = {{{-0.10, 0, 0, 0.10, 0, 0},
                                                         {0, -0.10, 0, 0, 0.10, 0},
                                                         {0, 0, -0.10, 0, 0, 0.10},
                                                         {0.10, 0, 0, 0.08, 0.012, 0},
                                                         {0.10, 0, 0, 0.08, -0.012, 0},
                                                         {0, 0, 0, 0, 0, -0.25},
                                                         {0, 0, -0.25, 0.015, 0, -0.22},
                                                         {0, 0, -0.25, -0.015, 0, -0.22}}};
    const Photometry::RotationMatrix r = Photometry::LuminaireRotation(settings);
    const auto expectAt = [&r](const Host::Coordinate3D& point, double x, double y, double z) {
        EXPECT_NEAR(point.x, 0.5 + r[0] * x + r[1] * y + r[2] * z, 1e-12);
        EXPECT_NEAR(point.y, -1.0 + r[3] * x + r[4] * y + r[5] * z, 1e-12);
        EXPECT_NEAR(point.z, 1.75 + r[6] * x + r[7] * y + r[8] * z, 1e-12);
    };
    const PartModel model = Tests::BuildModel(part, space);
    ASSERT_EQ(model.wires.size(), lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(i);
        expectAt(model.wires[i].begin, lines[i][0], lines[i][1], lines[i][2]);
        expectAt(model.wires[i].end, lines[i][3], lines[i][4], lines[i][5]);
        EXPECT_EQ(model.wires[i].pen, 5);
    }
    EXPECT_TRUE(model.lights.empty());
}

TEST(GeneratedParameterRules, LimitTheSizeOfTheSymbolOnPaper) {
    ScriptPart part = MarkedLuminaire({{"mvPlanSymbolSize", 4.0}});
    part.parameter = Photometry::MasterScriptWithBlock("", {}, "");
    ParameterRules rules;
    const auto error = RunParameterScript(part, {}, rules);
    ASSERT_FALSE(error.has_value()) << DescribeScriptError(*error);
    const ParameterRange millimetres = {0.5, 50.0, true, true, {}, {}};
    EXPECT_EQ(rules.values["mvPlanSymbolSize"].ranges, std::vector<ParameterRange>{millimetres});
}

} // namespace
} // namespace Merivane
