// Objects and lamps whose bodies, lights and plans come from the scripts of their parts.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Elements.hpp"
#include "Host/Model3D.hpp"
#include "Workbench/Display/WindowDrawing.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/PartRuns.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

using Host::ElementType;

constexpr double Near = 1e-9;
constexpr double QuarterTurn = std::numbers::pi / 2.0;

Host::Guid Numbered(int number) {
    Host::Guid guid;
    guid.bytes[0] = static_cast<std::uint8_t>(number);
    return guid;
}

Host::LibraryParameter Parameter(const std::string& name, Host::ParameterType type, double value) {
    Host::LibraryParameter parameter;
    parameter.name = name;
    parameter.type = type;
    parameter.number = value;
    return parameter;
}

/// A part with these scripts, 2 m x 1 m, a length "alto" of 0.5 m and an angle "giro" of 90
/// degrees.
ProjectPart ScriptedPart(const std::string& name, const std::string& model,
                         const std::string& plan = "") {
    ProjectPart part;
    part.name = name;
    part.sizeA = 2.0;
    part.sizeB = 1.0;
    part.parameters = {Parameter("alto", Host::ParameterType::Length, 0.5),
                       Parameter("giro", Host::ParameterType::Angle, QuarterTurn)};
    part.document.emplace();
    if (!model.empty()) {
        part.document->texts.push_back({"3DSC", 0, model});
    }
    if (!plan.empty()) {
        part.document->texts.push_back({"2DSC", 0, plan});
    }
    return part;
}

ProjectElement& AddObject(Project& project, int number, std::int32_t part) {
    ProjectElement& added = project.elements.emplace_back();
    added.element.header.type = ElementType::Object;
    added.element.header.guid = Numbered(number);
    added.element.header.layer = {1};
    Host::ObjectData object;
    object.libraryIndex = part;
    object.sizeA = 2.0;
    object.sizeB = 1.0;
    added.element.data = object;
    return added;
}

Project ProjectOf(std::vector<ProjectPart> parts) {
    Project project = MakeEmptyProject();
    project.parts = std::move(parts);
    return project;
}

Project& Open(Project project) {
    OpenSession({});
    OpenProject(std::move(project));
    return CurrentSession().project;
}

struct Extent {
    Host::Coordinate3D lowest;
    Host::Coordinate3D highest;
};

Extent ExtentOf(int number) {
    std::vector<Host::Body> bodies;
    EXPECT_EQ(Host::GetBodies(Numbered(number), bodies), Host::NoError);
    Extent extent;
    EXPECT_TRUE(BodyBounds(bodies, extent.lowest, extent.highest));
    return extent;
}

double SignedVolume(const Host::Body& body) {
    double six = 0.0;
    for (const Host::BodyFace& face : body.faces) {
        std::vector<Host::Coordinate3D> ring;
        for (const std::int32_t number : face.edges) {
            const Host::BodyEdge& edge = body.edges[static_cast<std::size_t>(std::abs(number)) - 1];
            const auto vertex = static_cast<std::size_t>(number > 0 ? edge.from : edge.to) - 1;
            ring.push_back(body.vertices[vertex]);
        }
        for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
            const Host::Coordinate3D& a = ring[0];
            const Host::Coordinate3D& b = ring[i];
            const Host::Coordinate3D& c = ring[i + 1];
            six += a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) +
                   a.z * (b.x * c.y - b.y * c.x);
        }
    }
    return six / 6.0;
}

std::vector<Drawing::Element> PlanElements(const Project& project) {
    std::vector<Drawing::Element> elements;
    for (const Drawing::Layer& layer : DrawPlan(project, 0, 50.0).layers) {
        elements.insert(elements.end(), layer.elements.begin(), layer.elements.end());
    }
    return elements;
}

template <typename Kind> std::vector<Kind> DrawnOnPlan(const Project& project) {
    std::vector<Kind> found;
    for (const Drawing::Element& element : PlanElements(project)) {
        if (const auto* const kind = std::get_if<Kind>(&element)) {
            found.push_back(*kind);
        }
    }
    return found;
}

TEST(ScriptedParts, BuildTheirBodiesFromTheObjectsSizesAndValues) {
    Project project = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto")});
    ProjectElement& object = AddObject(project, 1, 1);
    std::get<Host::ObjectData>(object.element.data).sizeA = 3.0;
    object.memo.parameters = {Parameter("alto", Host::ParameterType::Length, 0.7)};
    Open(std::move(project));
    const Extent extent = ExtentOf(1);
    EXPECT_NEAR(extent.highest.x, 3.0, Near);
    EXPECT_NEAR(extent.highest.y, 1.0, Near);
    EXPECT_NEAR(extent.highest.z, 0.7, Near);
}

TEST(ScriptedParts, AreMirroredTurnedAndPlacedWithTheirFacesOutside) {
    Project project = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto")});
    auto& object = std::get<Host::ObjectData>(AddObject(project, 1, 1).element.data);
    object.position = {10, 20};
    object.level = 1.5;
    object.angle = QuarterTurn;
    object.mirrored = true;
    Open(std::move(project));
    const Extent extent = ExtentOf(1); // (2, 1) -> (-2, 1) -> (-1, -2)
    EXPECT_NEAR(extent.lowest.x, 9.0, Near);
    EXPECT_NEAR(extent.highest.x, 10.0, Near);
    EXPECT_NEAR(extent.lowest.y, 18.0, Near);
    EXPECT_NEAR(extent.highest.y, 20.0, Near);
    EXPECT_NEAR(extent.lowest.z, 1.5, Near);
    std::vector<Host::Body> bodies;
    ASSERT_EQ(Host::GetBodies(Numbered(1), bodies), Host::NoError);
    ASSERT_EQ(bodies.size(), 1U);
    EXPECT_NEAR(SignedVolume(bodies[0]), 1.0, Near);
}

TEST(ScriptedParts, GiveTheirScriptsAnglesInDegrees) {
    Project project = ProjectOf({ScriptedPart("Bloco", "ROTZ giro\nBLOCK 1, 2, 3")});
    AddObject(project, 1, 1);
    Open(std::move(project));
    EXPECT_NEAR(ExtentOf(1).lowest.x, -2.0, Near);
}

TEST(ScriptedParts, RunOnceForObjectsOfTheSameValues) {
    Project made = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto")});
    AddObject(made, 1, 1);
    std::get<Host::ObjectData>(AddObject(made, 2, 1).element.data).position = {5, 5};
    AddObject(made, 3, 1).memo.parameters = {Parameter("alto", Host::ParameterType::Length, 9.0)};
    const Project& project = Open(std::move(made));
    for (const int number : {1, 2, 3}) {
        ExtentOf(number);
    }
    EXPECT_EQ(project.runs.kept->models.size(), 2U);
}

TEST(ScriptedParts, RunForEachPlaceWhereTheyLookAtIt) {
    Project made = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, 1 + symb_pos_x")});
    AddObject(made, 1, 1);
    std::get<Host::ObjectData>(AddObject(made, 2, 1).element.data).position = {5, 5};
    Open(std::move(made));
    EXPECT_NEAR(ExtentOf(1).highest.z, 1.0, Near);
    EXPECT_NEAR(ExtentOf(2).highest.z, 6.0, Near);
}

TEST(ScriptedParts, NumberTheSurfacesThatTheyDefineBehindThoseOfTheProject) {
    ProjectPart given;
    given.name = "Dada";
    given.surfaces = {{"Vidro", {1, 1, 1}, 0.2, 0.7}};
    const std::string script =
        "DEFINE MATERIAL \"Opala\" 1, 0.9, 0.8, 0.7, 0.6, 0.5, 0, 0.1, 0, 0\n"
        "MATERIAL \"Opala\"\nBLOCK A, B, alto";
    Project project = ProjectOf({given, ScriptedPart("Bloco", script)});
    AddObject(project, 1, 2);
    Open(std::move(project));
    std::vector<Host::Body> bodies;
    ASSERT_EQ(Host::GetBodies(Numbered(1), bodies), Host::NoError);
    ASSERT_EQ(bodies.size(), 1U);
    for (const Host::BodyFace& face : bodies[0].faces) {
        EXPECT_EQ(face.surface, Host::FirstScriptSurface + 1);
    }
    Host::ModelSurface surface;
    ASSERT_EQ(Host::GetScriptSurface(Host::FirstScriptSurface + 1, surface), Host::NoError);
    EXPECT_EQ(surface, (Host::ModelSurface{"Opala", {0.9, 0.8, 0.7}, 0.5, 0.1}));
    EXPECT_EQ(Host::GetScriptSurface(Host::FirstScriptSurface + 2, surface), Host::BadIndex);
}

TEST(ScriptedParts, FindTheSurfacesOfTheProjectByName) {
    Project project = ProjectOf({ScriptedPart("Bloco", "MATERIAL \"Azulejo\"\nBLOCK A, B, alto")});
    project.surfaces[44] = {"Azulejo", {0, 0, 1}, 0.4, 0.0};
    AddObject(project, 1, 1);
    Open(std::move(project));
    std::vector<Host::Body> bodies;
    ASSERT_EQ(Host::GetBodies(Numbered(1), bodies), Host::NoError);
    EXPECT_EQ(bodies.at(0).faces.at(0).surface, 44);
}

TEST(ScriptedParts, GiveTheLightsThatTheyMarkInTheProject) {
    Project project = ProjectOf(
        {ScriptedPart("Luz", "ADD 1, 0, 0.5\nLIGHT 1, 0.5, 0.25, 0, 0, 0, 0, 0, 0, 0, 0\nDEL 1")});
    auto& object = std::get<Host::ObjectData>(AddObject(project, 1, 1).element.data);
    object.position = {10, 20};
    object.level = 2.0;
    object.angle = QuarterTurn;
    object.mirrored = true;
    AddObject(project, 2, 7); // of a part that is not there
    Open(std::move(project));
    std::vector<Host::ModelLight> lights;
    ASSERT_EQ(Host::GetLights(Numbered(1), lights), Host::NoError);
    ASSERT_EQ(lights.size(), 1U); // (1, 0) -> (-1, 0) -> (0, -1)
    EXPECT_NEAR(lights[0].position.x, 10.0, Near);
    EXPECT_NEAR(lights[0].position.y, 19.0, Near);
    EXPECT_NEAR(lights[0].position.z, 2.5, Near);
    EXPECT_NEAR(lights[0].direction.y, -1.0, Near);
    EXPECT_EQ(lights[0].colour, (Host::Colour{1.0, 0.5, 0.25}));
    EXPECT_FALSE(lights[0].shadow);
    ASSERT_EQ(Host::GetLights(Numbered(2), lights), Host::NoError);
    EXPECT_TRUE(lights.empty());
    EXPECT_EQ(Host::GetLights(Numbered(3), lights), Host::BadId);
}

TEST(ScriptedParts, CallOtherPartsOfTheProject) {
    Project project = ProjectOf({ScriptedPart("Bloco", "CALL \"tampa\" PARAMETERS alto = 0.2"),
                                 ScriptedPart("Tampa", "BLOCK 4, 4, alto")});
    AddObject(project, 1, 1);
    Open(std::move(project));
    EXPECT_NEAR(ExtentOf(1).highest.z, 0.2, Near);
}

TEST(ScriptedParts, TellWhyTheyStoppedOnceAndKeepWhatTheyBuilt) {
    Project made = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto\nBLOCO 1, 2, 3")});
    AddObject(made, 1, 1);
    AddObject(made, 2, 1).memo.parameters = {Parameter("alto", Host::ParameterType::Length, 9.0)};
    const Project& project = Open(std::move(made));
    EXPECT_NEAR(ExtentOf(1).highest.z, 0.5, Near);
    EXPECT_NEAR(ExtentOf(2).highest.z, 9.0, Near);
    const std::vector<std::string> complaints = ScriptComplaints(project);
    ASSERT_EQ(complaints.size(), 1U);
    EXPECT_EQ(complaints[0].substr(0, complaints[0].find(':')),
              "A peça \"Bloco\" parou no script 3D, linha 2, instrução BLOCO");
}

TEST(ScriptedParts, ShowNothingOfALoopThatDidNotEnd) {
    Project made = ProjectOf({ScriptedPart("Laço", "WHILE 1 DO\nBLOCK 1, 1, 1\nENDWHILE",
                                           "WHILE 1 DO\nLINE2 0, 0, 1, 1\nENDWHILE")});
    for (int number = 1; number <= 40; ++number) {
        AddObject(made, number, 1);
    }
    const Project& project = Open(std::move(made));
    std::vector<Host::Body> bodies;
    ASSERT_EQ(Host::GetBodies(Numbered(1), bodies), Host::NoError);
    EXPECT_TRUE(bodies.empty());
    EXPECT_TRUE(DrawnOnPlan<Drawing::Polyline>(project).empty());
    EXPECT_EQ(ScriptComplaints(project).size(), 2U);
}

TEST(ScriptedParts, AreRunAnewAfterTheirRunsWereForgotten) {
    Project made = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto")});
    AddObject(made, 1, 1);
    Project& project = Open(std::move(made));
    EXPECT_NEAR(ExtentOf(1).highest.z, 0.5, Near);
    project.parts[0].parameters[0].number = 0.8;
    EXPECT_NEAR(ExtentOf(1).highest.z, 0.5, Near);
    ForgetPartRuns(project);
    EXPECT_NEAR(ExtentOf(1).highest.z, 0.8, Near);
    const Project copy = project; // a copy may be changed: it runs its parts itself
    EXPECT_EQ(copy.runs.kept, nullptr);
}

TEST(ScriptedParts, DrawThePlanThatTheirScriptDrawsInsteadOfTheirBodies) {
    Project project =
        ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto", "CIRCLE2 0, 0, GLOB_SCALE / 100")});
    AddObject(project, 1, 1);
    const auto arcs = DrawnOnPlan<Drawing::Arc>(project);
    ASSERT_EQ(arcs.size(), 1U);
    EXPECT_NEAR(arcs[0].radius, 10.0, Near); // 0.5 m at 1:50
    EXPECT_TRUE(DrawnOnPlan<Drawing::Polyline>(project).empty());
}

TEST(ScriptedParts, DrawTheirPlanThoughTheyHaveNoBody) {
    Project project = ProjectOf({ScriptedPart("Ponto", "", "CIRCLE2 0, 0, 1")});
    AddObject(project, 1, 1);
    EXPECT_EQ(DrawnOnPlan<Drawing::Arc>(project).size(), 1U);
}

TEST(ScriptedParts, ShowTheirBodiesWhereTheScriptAsksForThemOrThereIsNone) {
    for (const char* const plan : {"PROJECT2 3, 270, 2", ""}) {
        SCOPED_TRACE(plan);
        Project project = ProjectOf({ScriptedPart("Bloco", "BLOCK A, B, alto", plan)});
        AddObject(project, 1, 1);
        EXPECT_EQ(DrawnOnPlan<Drawing::Polyline>(project).size(), 4U);
    }
}

TEST(ScriptedParts, ShowTheSymbolOfALuminaireWhereTheProjectAsksForSymbols) {
    const std::string plan =
        "simbolo = 0\n"
        "achou = LIBRARYGLOBAL (\"Objects_MVOSettings\", \"iFixtureSymbol\", simbolo)\n"
        "IF achou = 1 AND simbolo <> 3 THEN\nCIRCLE2 0, 0, 1\nELSE\nLINE2 0, 0, 1, 1\nENDIF";
    Project project = ProjectOf({ScriptedPart("Bloco", "", plan)});
    AddObject(project, 1, 1);
    EXPECT_EQ(DrawnOnPlan<Drawing::Polyline>(project).size(), 1U);
    project.lightingSymbols = true;
    EXPECT_EQ(DrawnOnPlan<Drawing::Arc>(project).size(), 1U);
}

TEST(ScriptedParts, AnswerWhatScriptsAskOfTheProject) {
    const std::string plan = "n = REQUEST (\"Name_of_plan\", \"\", nome)\nTEXT2 0, 0, nome\n"
                             "n = REQUEST (\"Home_story\", \"\", indice, andar)\nTEXT2 0, 1, andar";
    Project project = ProjectOf({ScriptedPart("Bloco", "", plan)});
    project.name = "Casa";
    project.stories[0].name = "Porão";
    AddObject(project, 1, 1);
    std::vector<std::string> texts;
    for (const Drawing::TextRun& run : DrawnOnPlan<Drawing::TextRun>(project)) {
        texts.push_back(run.text);
    }
    EXPECT_NE(std::find(texts.begin(), texts.end(), "Casa"), texts.end());
    EXPECT_NE(std::find(texts.begin(), texts.end(), "Porão"), texts.end());
}

} // namespace
} // namespace Merivane::Workbench
