#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ModelReadingGeometry.hpp"
#include "Archicad/ModelReadingSurfaces.hpp"
#include "Archicad/ModelReadingZones.hpp"
#include "Host/Attributes.hpp"
#include "ModelSample.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Tests;

using Simulation::Point3D;
using Simulation::SurfaceReflectance;
using Strings = std::vector<std::string>;

struct Collected {
    Simulation::Scene scene;
    std::vector<SurfaceReflectance> reflectances;
    Strings log;
};

/// Reads what stands around all Zones of the open project.
Collected CollectOpen(const std::vector<Host::Guid>& excluded = {}, double margin = 0.75) {
    Collected collected;
    CollectGeometry(ReadAllZones(), excluded, margin, collected.scene, collected.reflectances,
                    collected.log);
    return collected;
}

Collected Collect(Workbench::Project project, const std::vector<Host::Guid>& excluded = {}) {
    OpenSample(std::move(project));
    return CollectOpen(excluded);
}

std::string Counts(int elements, int faces, int withOpenings, int surfaces) {
    return "geometria: " + std::to_string(elements) + " elemento(s), " + std::to_string(faces) +
           " face(s) (" + std::to_string(withOpenings) + " com aberturas), " +
           std::to_string(surfaces) + " superficie(s)";
}

double AreaOf(const Collected& collected, const std::string& key) {
    for (const SurfaceReflectance& record : collected.reflectances) {
        if (record.key == key) {
            return record.area;
        }
    }
    return 0.0;
}

Strings KeysOf(const Collected& collected) {
    Strings keys;
    for (const SurfaceReflectance& record : collected.reflectances) {
        keys.push_back(record.key);
    }
    return keys;
}

/// A project with the Zone 1 from (0, 0) to (4, 5), 3 m high.
Workbench::Project Room() {
    Workbench::Project project = SampleProject();
    AddZone(project, 1, "Sala", {PlanRectangle(0, 0, 4, 5)});
    return project;
}

/// A shell of one face.
void AddFace(Workbench::Project& project, std::uint32_t number,
             const std::vector<Host::Coordinate3D>& contour, std::int32_t surface) {
    Workbench::GivenBody body;
    body.vertices = contour;
    body.faces.resize(1);
    body.faces[0].surface = {surface};
    body.faces[0].contours.resize(1);
    for (std::size_t i = 0; i < contour.size(); ++i) {
        body.faces[0].contours[0].push_back(static_cast<std::int32_t>(i));
    }
    AddElement(project, number, Host::ElementType::Shell).geometry = body;
}

/// An upright square face of 1 m in the plane x, in the middle of the Zone's depth, that looks
/// towards +x or -x.
void AddUpright(Workbench::Project& project, std::uint32_t number, double x, bool forwards,
                std::int32_t surface = 1) {
    std::vector<Host::Coordinate3D> contour = {{x, 2, 1}, {x, 3, 1}, {x, 3, 2}, {x, 2, 2}};
    if (!forwards) {
        std::reverse(contour.begin(), contour.end());
    }
    AddFace(project, number, contour, surface);
}

/// A level square face of 1 m at a height, that looks up or down.
void AddLevel(Workbench::Project& project, std::uint32_t number, double z, bool up,
              std::int32_t surface = 1) {
    std::vector<Host::Coordinate3D> contour = {{1, 1, z}, {2, 1, z}, {2, 2, z}, {1, 2, z}};
    if (!up) {
        std::reverse(contour.begin(), contour.end());
    }
    AddFace(project, number, contour, surface);
}

TEST(CollectGeometry, MeasuresTheSurfacesOfARoom) {
    Workbench::Project project = Room();
    AddSlab(project, 2, {PlanRectangle(0, 0, 4, 5)}, 0.0, 0.2);
    AddWall(project, 3, {0, -0.1}, {4, -0.1});
    auto& door = AddElement(project, 4, Host::ElementType::Door);
    door.geometry =
        Workbench::OpeningGeometry{NumberedGuid(3), 1.0, 0.9, 0.0, 2.1, 0.0, 0.05, {}, {}, true};
    auto& window = AddElement(project, 5, Host::ElementType::Window);
    window.geometry = Workbench::OpeningGeometry{
        NumberedGuid(3), 3.0, 1.2, 0.9, 1.1, 0.05, 0.05, {6}, {7}, false};
    const Collected collected = Collect(std::move(project));
    // Slab: 6 faces. Wall: two sides, 4 ends, 3 of the door's reveals, 4 of the window's; its
    // bottom is in two. Window: frame 2 and 4, pane 2. The empty door counts as an element.
    EXPECT_EQ(collected.log, (Strings{Counts(4, 28, 4, 5)}));
    const double wall = 4.0 * 3.0 - 0.9 * 2.1 - 1.2 * 1.1;
    EXPECT_NEAR(AreaOf(collected, "sup:Pintura branca"), 20.0 + wall, 1e-9);
    EXPECT_NEAR(AreaOf(collected, "sup:Pintura cinza clara"), 20.0 + wall, 1e-9);
    const double edges = 2.0 * 3.0 + 4.0 + (4.0 - 0.9) + 2.0 * 2.1 + 0.9 + 2.0 * (1.2 + 1.1);
    EXPECT_NEAR(AreaOf(collected, "sup:Concreto"), 0.2 * 18.0 + 0.2 * edges, 1e-9);
    EXPECT_NEAR(AreaOf(collected, "sup:Vidro"), 2.0 * 1.1 * 1.0, 1e-9);
    EXPECT_NEAR(AreaOf(collected, "sup:Metal"), 2.0 * (1.32 - 1.1) + 0.05 * 4.6, 1e-9);
}

TEST(CollectGeometry, TellsOfAnEmptyModel) {
    const Collected collected = Collect(Room());
    EXPECT_EQ(collected.log, (Strings{Counts(0, 0, 0, 0)}));
    EXPECT_TRUE(collected.scene.surfaces.empty());
}

TEST(CollectGeometry, ReadsNothingWithoutZones) {
    Workbench::Project project = SampleProject();
    AddWall(project, 2, {0, 0}, {4, 0});
    EXPECT_EQ(Collect(std::move(project)).log, (Strings{Counts(0, 0, 0, 0)}));
}

/// Gives an element a box of one surface as its body, in the way of its type.
void GiveBox(Workbench::Project& project, Workbench::ProjectElement& element,
             std::int32_t surface) {
    using Type = Host::ElementType;
    Workbench::GivenBody body = BoxBody("");
    for (Workbench::GivenFace& face : body.faces) {
        face.surface = {surface};
    }
    const Type type = element.element.header.type;
    if (type == Type::Object || type == Type::Lamp) {
        project.parts.push_back({});
        project.parts.back().bodies = {body};
        Host::ObjectData object;
        object.libraryIndex = static_cast<std::int32_t>(project.parts.size());
        element.element.data = object;
    } else if (type == Type::Morph) {
        element.element.data = Host::MorphData{};
        element.memo.body.vertices = body.vertices;
        for (const Workbench::GivenFace& face : body.faces) {
            element.memo.body.faces.push_back({face.contours, face.surface});
        }
    } else if (type == Type::Column || type == Type::Beam || type == Type::CurtainWall ||
               type == Type::Stair || type == Type::Railing) {
        const auto number = static_cast<std::uint32_t>(surface) + 1000U;
        element.parts = {{NumberedGuid(number), Type::ColumnSegment, body}};
    } else {
        element.geometry = body;
    }
}

TEST(CollectGeometry, ReadsTheTypesInTheirOrder) {
    using Type = Host::ElementType;
    const std::vector<Type> wanted = {
        Type::Wall,    Type::Column, Type::Beam,   Type::Slab,    Type::Roof,        Type::Shell,
        Type::Mesh,    Type::Morph,  Type::Object, Type::Lamp,    Type::CurtainWall, Type::Stair,
        Type::Railing, Type::Window, Type::Door,   Type::Skylight};
    Workbench::Project project = Room();
    project.surfaces.clear();
    Strings keys(wanted.size());
    // In the project they stand the other way round, each with a surface of its own.
    for (std::size_t i = wanted.size(); i-- > 0;) {
        const auto number = static_cast<std::uint32_t>(100 + i);
        const auto surface = static_cast<std::int32_t>(number);
        project.surfaces[surface] = {std::to_string(number), {}, 1.0, 0.0};
        keys[i] = "sup:" + std::to_string(number);
        GiveBox(project, AddElement(project, number, wanted[i]), surface);
    }
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(KeysOf(collected), keys);
    EXPECT_EQ(collected.log, (Strings{Counts(16, 16 * 6, 0, 16)}));
}

TEST(CollectGeometry, LeavesOutExcludedElements) {
    Workbench::Project project = Room();
    AddUpright(project, 2, 3.0, true);
    AddUpright(project, 3, 3.0, true);
    EXPECT_EQ(Collect(project, {NumberedGuid(3)}).log, (Strings{Counts(1, 1, 0, 1)}));
    EXPECT_EQ(Collect(project, {NumberedGuid(3), NumberedGuid(2)}).log,
              (Strings{Counts(0, 0, 0, 0)}));
}

TEST(CollectGeometry, LeavesOutAndCountsItsOwnLayers) {
    Workbench::Project project = Room();
    for (std::int32_t layer = 1; layer <= 6; ++layer) {
        AddUpright(project, 10U + static_cast<std::uint32_t>(layer), 3.0, true);
        project.elements.back().element.header.layer = {layer};
    }
    // Far off: its layer tells before its place does.
    AddUpright(project, 20, 90.0, true);
    project.elements.back().element.header.layer = {4};
    // Of the six one is on a hidden layer, which is not in 3D, and one on a locked one.
    EXPECT_EQ(Collect(std::move(project)).log,
              (Strings{Counts(2, 2, 0, 1),
                       "3 elemento(s) do proprio Vantoro (camadas \"Vantoro - ...\") fora da cena",
                       "1 elemento(s) em camada oculta ou travada ficaram fora da cena"}));
}

TEST(CollectGeometry, CountsElementsWhoseBodyTheHostRefuses) {
    for (const Host::ErrorCode code : {Host::HiddenLayer, Host::LockedLayer, Host::GeneralError}) {
        Workbench::Project project = Room();
        AddUpright(project, 2, 3.0, true);
        AddUpright(project, 3, 3.0, true);
        OpenSample(std::move(project));
        Workbench::FailCall("GetBodies", 1, code);
        EXPECT_EQ(CollectOpen().log,
                  (Strings{Counts(1, 1, 0, 1),
                           "1 elemento(s) em camada oculta ou travada ficaram fora da cena"}));
    }
}

TEST(CollectGeometry, LeavesOutElementsThatCannotBeRead) {
    for (const char* operation : {"GetElement", "GetBounds"}) {
        Workbench::Project project = Room();
        AddUpright(project, 2, 3.0, true);
        AddUpright(project, 3, 3.0, true);
        OpenSample(std::move(project));
        const std::vector<ZoneRecord> zones = ReadAllZones();
        Workbench::FailCall(operation, 1, Host::BadId);
        Collected collected;
        CollectGeometry(zones, {}, 0.0, collected.scene, collected.reflectances, collected.log);
        EXPECT_EQ(collected.log, (Strings{Counts(1, 1, 0, 1)})) << operation;
    }
}

TEST(CollectGeometry, ReadsWhatMeetsTheBoxAroundTheZones) {
    // The Zone from (0, 0) to (4, 5), floor 0, ceiling 3: 1 m around, 0.6 below, 1.5 above.
    struct Case {
        double dx;
        double dy;
        double z;
        bool met;
    };
    constexpr double step = 1e-6;
    const Case cases[] = {
        {5.0, 0.0, 1.0, true},  {5.0 + step, 0.0, 1.0, false},
        {-2.0, 0.0, 1.0, true}, {-2.0 - step, 0.0, 1.0, false},
        {0.0, 6.0, 1.0, true},  {0.0, 6.0 + step, 1.0, false},
        {0.0, -2.0, 1.0, true}, {0.0, -2.0 - step, 1.0, false},
        {0.0, 0.0, 4.5, true},  {0.0, 0.0, 4.5 + step, false},
        {0.0, 0.0, -0.6, true}, {0.0, 0.0, -0.6 - step, false},
    };
    for (const Case& c : cases) {
        Workbench::Project project = Room();
        AddFace(project, 2,
                {{c.dx, c.dy, c.z},
                 {c.dx + 1, c.dy, c.z},
                 {c.dx + 1, c.dy + 1, c.z},
                 {c.dx, c.dy + 1, c.z}},
                1);
        EXPECT_EQ(Collect(std::move(project)).log,
                  (Strings{Counts(c.met ? 1 : 0, c.met ? 1 : 0, 0, c.met ? 1 : 0)}))
            << c.dx << ' ' << c.dy << ' ' << c.z;
    }
}

TEST(CollectGeometry, ReadsNoBodyOutsideOfTheBox) {
    Workbench::Project project = Room();
    AddWall(project, 2, {50, 0}, {54, 0});
    auto& column = AddElement(project, 3, Host::ElementType::Column);
    column.parts = {{NumberedGuid(4), Host::ElementType::ColumnSegment,
                     Workbench::PrismGeometry{{PlanRectangle(60, 0, 1, 1)}, 0.0, 3.0, {1}}}};
    OpenSample(std::move(project));
    Workbench::FailCall("GetBodies", 1, Host::GeneralError);
    EXPECT_EQ(CollectOpen().log, (Strings{Counts(0, 0, 0, 0)}));
    EXPECT_EQ(Workbench::CurrentSession().faults.size(), 1U);
}

TEST(CollectGeometry, SpansTheBoxOverAllZones) {
    Workbench::Project project = Room();
    AddZone(project, 5, "Longe", {PlanRectangle(20, 0, 4, 5)}).element.header.floorIndex = 1;
    AddFace(project, 2, {{12, 0, 7.5}, {13, 0, 7.5}, {13, 1, 7.5}}, 1);
    EXPECT_EQ(Collect(std::move(project)).log, (Strings{Counts(1, 1, 0, 1)}));
}

TEST(CollectGeometry, ReachesSixtyCentimetresUnderTheLowestZone) {
    for (const double z : {2.4, 2.4 - 1e-6}) {
        Workbench::Project project = SampleProject();
        AddZone(project, 1, "Quarto", {PlanRectangle(0, 0, 4, 5)}).element.header.floorIndex = 1;
        AddLevel(project, 2, z, true);
        const int met = z < 2.4 ? 0 : 1;
        EXPECT_EQ(Collect(std::move(project)).log, (Strings{Counts(met, met, 0, met)})) << z;
    }
}

/// A column of two segments of 0.4 by 0.4 by 1.5 m; the second one may stand far off.
Workbench::Project ColumnOfTwo(double secondX) {
    Workbench::Project project = Room();
    auto& column = AddElement(project, 3, Host::ElementType::Column);
    column.parts = {
        {NumberedGuid(4), Host::ElementType::ColumnSegment,
         Workbench::PrismGeometry{{PlanRectangle(2, 2, 0.4, 0.4)}, 0.0, 1.5, {1}}},
        {NumberedGuid(5), Host::ElementType::ColumnSegment,
         Workbench::PrismGeometry{{PlanRectangle(secondX, 2, 0.4, 0.4)}, 1.5, 1.5, {1}}}};
    return project;
}

TEST(CollectGeometry, AsksElementsForTheirParts) {
    const Collected collected = Collect(ColumnOfTwo(2.0));
    EXPECT_EQ(collected.log, (Strings{Counts(1, 12, 0, 1)}));
    EXPECT_NEAR(AreaOf(collected, "sup:Pintura branca"), 4 * 0.16 + 1.6 * 3.0, 1e-12);
}

TEST(CollectGeometry, LeavesPartsOutsideOfTheBox) {
    EXPECT_EQ(Collect(ColumnOfTwo(40.0)).log, (Strings{Counts(1, 6, 0, 1)}));
}

// One to either side: what is between them alone meets the box.
TEST(CollectGeometry, PassesOverAnElementWhosePartsAreAllOutsideOfTheBox) {
    Workbench::Project project = ColumnOfTwo(40.0);
    auto& parts = project.elements.back().parts;
    std::get<Workbench::PrismGeometry>(parts[0].geometry).polygon = {PlanRectangle(-40, 2, 1, 1)};
    EXPECT_EQ(Collect(std::move(project)).log, (Strings{Counts(0, 0, 0, 0)}));
}

TEST(CollectGeometry, CountsAnElementAsRefusedWhenAllOfItsPartsAre) {
    OpenSample(ColumnOfTwo(2.0));
    Workbench::FailCall("GetBodies", 1, Host::LockedLayer);
    EXPECT_EQ(CollectOpen().log, (Strings{Counts(1, 6, 0, 1)}));
    Workbench::FailCall("GetBodies", 1, Host::LockedLayer);
    Workbench::FailCall("GetBodies", 2, Host::LockedLayer);
    EXPECT_EQ(CollectOpen().log,
              (Strings{Counts(0, 0, 0, 0),
                       "1 elemento(s) em camada oculta ou travada ficaram fora da cena"}));
}

TEST(CollectGeometry, AsksTheElementItselfWhereItHasNoParts) {
    OpenSample(ColumnOfTwo(2.0));
    Workbench::FailCall("ListParts", 1, Host::GeneralError);
    EXPECT_EQ(CollectOpen().log,
              (Strings{Counts(0, 0, 0, 0),
                       "1 elemento(s) em camada oculta ou travada ficaram fora da cena"}));
}

TEST(CollectGeometry, CutsHolesIntoTheOutline) {
    Workbench::Project project = Room();
    AddSlab(project, 2, {PlanRectangle(0, 0, 4, 5), PlanRectangle(1, 1, 1, 1)}, 0.0, 0.2);
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.log, (Strings{Counts(1, 10, 2, 3)}));
    EXPECT_NEAR(AreaOf(collected, "sup:Pintura branca"), 19.0, 1e-12);
    EXPECT_EQ(collected.scene.surfaces[0].vertices.size(), 10U);
}

TEST(CollectGeometry, DropsFacesWithoutCornersOrArea) {
    Workbench::Project project = Room();
    AddFace(project, 2, {{1, 1, 1}, {2, 1, 1}}, 1);
    AddFace(project, 3, {{1, 1, 1}, {2, 1, 1}, {3, 1, 1}}, 1);
    AddFace(project, 4, {{1, 1, 1}, {1 + 0.9e-6, 1, 1}, {1, 1 + 1e-6, 1}}, 1);
    AddFace(project, 5, {{1, 1, 1}, {1 + 1.1e-6, 1, 1}, {1, 1 + 1e-6, 1}}, 1);
    EXPECT_EQ(Collect(std::move(project)).log, (Strings{Counts(4, 1, 0, 1)}));
}

TEST(CollectGeometry, TakesTheSurfaceOfAFaceWithoutOneFromItsOrientation) {
    // The lowest Zone's floor is at 0.0, the work plane 0.75 above.
    struct Case {
        double z;
        bool up;
        const char* key;
    };
    const Case cases[] = {{0.0, true, "orientacao:piso"},  {0.0, false, "orientacao:piso"},
                          {0.74, true, "orientacao:piso"}, {0.75, true, "orientacao:teto"},
                          {3.0, false, "orientacao:teto"}, {3.0, true, "orientacao:teto"},
                          {-0.5, false, "orientacao:piso"}};
    for (const Case& c : cases) {
        Workbench::Project project = Room();
        AddLevel(project, 2, c.z, c.up, 0);
        const Collected collected = Collect(std::move(project));
        EXPECT_EQ(KeysOf(collected), (Strings{c.key})) << c.z;
        EXPECT_EQ(collected.log,
                  (Strings{Counts(1, 1, 0, 1),
                           "1 face(s) sem Superficie: refletancia pela orientacao (piso 20%, "
                           "parede 50%, teto 70%)"}));
        EXPECT_EQ(collected.reflectances[0].area, 1.0);
    }
}

TEST(CollectGeometry, ParesLevelFromUprightAtSevenTenths) {
    struct Case {
        double up; // z of the unit normal
        const char* key;
    };
    for (const Case& c : {Case{0.699, "orientacao:parede"}, {0.701, "orientacao:teto"}}) {
        Workbench::Project project = Room();
        const double flat = std::sqrt(1.0 - c.up * c.up);
        AddFace(project, 2,
                {{1, 1, 2}, {1 + c.up, 1, 2 - flat}, {1 + c.up, 2, 2 - flat}, {1, 2, 2}}, 0);
        EXPECT_EQ(KeysOf(Collect(std::move(project))), (Strings{c.key})) << c.up;
    }
}

TEST(CollectGeometry, TakesAHigherStorysFloorForCeiling) {
    Workbench::Project project = Room();
    AddZone(project, 5, "Quarto", {PlanRectangle(0, 0, 4, 5)}).element.header.floorIndex = 1;
    AddLevel(project, 2, 3.0, true, 0);
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(KeysOf(collected), (Strings{"orientacao:teto"}));
    EXPECT_FALSE(collected.scene.surfaces[0].exteriorFace);
}

TEST(CollectGeometry, MeasuresFromTheLowestFloorWhicheverZoneComesFirst) {
    for (const std::int16_t firstFloor : {std::int16_t{0}, std::int16_t{1}}) {
        Workbench::Project project = SampleProject();
        for (const std::int16_t floor : {firstFloor, static_cast<std::int16_t>(1 - firstFloor)}) {
            AddZone(project, 10U + static_cast<std::uint32_t>(floor), "Sala",
                    {PlanRectangle(0, 0, 4, 5)})
                .element.header.floorIndex = floor;
        }
        AddLevel(project, 2, 1.0, true, 0);
        EXPECT_EQ(KeysOf(Collect(std::move(project))), (Strings{"orientacao:teto"}));
    }
}

TEST(CollectGeometry, NumbersFacesByTheirRecord) {
    Workbench::Project project = Room();
    AddLevel(project, 2, 0.0, true, 3);
    AddLevel(project, 3, 3.0, false, 1);
    AddLevel(project, 4, 0.0, true, 3);
    const Collected collected = Collect(std::move(project));
    ASSERT_EQ(collected.scene.surfaces.size(), 3U);
    EXPECT_EQ(KeysOf(collected), (Strings{"sup:Concreto", "sup:Pintura branca"}));
    EXPECT_EQ(collected.scene.surfaces[0].materialIndex, 0);
    EXPECT_EQ(collected.scene.surfaces[1].materialIndex, 1);
    EXPECT_EQ(collected.scene.surfaces[2].materialIndex, 0);
    EXPECT_EQ(collected.reflectances[0].area, 2.0);
    EXPECT_EQ(collected.reflectances[0].name, "Concreto");
    EXPECT_TRUE(collected.reflectances[0].hasColour);
    EXPECT_EQ(collected.reflectances[0].red, 0.60);
    EXPECT_EQ(collected.reflectances[0].diffuse, 0.35);
}

TEST(CollectGeometry, KeepsTheRecordsThatAreThere) {
    Workbench::Project project = Room();
    AddLevel(project, 2, 0.0, true, 3);
    OpenSample(std::move(project));
    Collected collected;
    collected.reflectances.push_back(Simulation::MakeCeilingReflectance());
    CollectGeometry(ReadAllZones(), {}, 0.0, collected.scene, collected.reflectances,
                    collected.log);
    EXPECT_EQ(collected.scene.surfaces[0].materialIndex, 1);
    EXPECT_EQ(collected.log, (Strings{Counts(1, 1, 0, 2)}));
}

TEST(CollectGeometry, AsksUpToOneMetreBeforeAFaceForAZone) {
    struct Case {
        double x;
        bool forwards;
        bool exterior;
    };
    // The Zone begins at x = 0 and ends at x = 4.
    const Case cases[] = {
        {0.0, true, false},
        {0.0, false, true},
        {4.0, false, false},
        {4.0, true, true},
        {-0.2, true, false},
        {-0.2, false, true},
        {-1.0, true, false},
        {-1.001, true, true},
        {2.0, true, false},
        {5.0, false, false},
        {5.001, false, true},
        // What stands within 1 m of the far wall still looks in: the first step is 5 cm.
        {3.96, true, true},
        {3.94, true, false},
    };
    for (const Case& c : cases) {
        Workbench::Project project = Room();
        AddUpright(project, 2, c.x, c.forwards);
        // A second face of the same element reaches into the box around the Zone.
        auto& body = std::get<Workbench::GivenBody>(project.elements.back().geometry);
        body.vertices.push_back({1.5, 2, 1});
        body.faces.push_back({{{0, 1, 4}}, {1}, ""});
        const Collected collected = Collect(std::move(project));
        ASSERT_EQ(collected.scene.surfaces.size(), 2U);
        EXPECT_EQ(collected.scene.surfaces[0].exteriorFace, c.exterior) << c.x << c.forwards;
    }
}

// Neither its first corner nor the mean with its hole lies over the Zone, which begins at x = 0.
TEST(CollectGeometry, LooksFromTheMiddleOfTheOutline) {
    Workbench::Project project = Room();
    AddFace(project, 2, {{-1.5, 1, 0}, {1.7, 1, 0}, {1.7, 2, 0}, {-1.5, 2, 0}}, 1);
    auto& body = std::get<Workbench::GivenBody>(project.elements.back().geometry);
    for (const Host::Coordinate3D& corner : std::vector<Host::Coordinate3D>{
             {-1.4, 1.2, 0}, {-1.4, 1.8, 0}, {-1.0, 1.8, 0}, {-1.0, 1.2, 0}}) {
        body.vertices.push_back(corner);
    }
    body.faces[0].contours.push_back({4, 5, 6, 7});
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.log, (Strings{Counts(1, 1, 1, 1)}));
    EXPECT_FALSE(collected.scene.surfaces.at(0).exteriorFace);
}

TEST(CollectGeometry, TellsBothKindsOfAPaneOfTwoFaces) {
    Workbench::Project project = Room();
    AddUpright(project, 2, -0.10, true, 7);
    AddUpright(project, 3, -0.13, false, 7);
    const Collected collected = Collect(std::move(project));
    EXPECT_FALSE(collected.scene.surfaces.at(0).exteriorFace);
    EXPECT_TRUE(collected.scene.surfaces.at(1).exteriorFace);
}

TEST(CollectGeometry, CountsAWallTowardsANeighbourAsInterior) {
    // The other side of the wall looks at a Zone that begins 0.9 m or 1.1 m beyond.
    for (const double gap : {0.9, 1.1}) {
        Workbench::Project project = Room();
        AddZone(project, 5, "Vizinha", {PlanRectangle(4.2 + gap, 0, 4, 5)});
        AddUpright(project, 2, 4.2, true);
        EXPECT_EQ(Collect(std::move(project)).scene.surfaces.at(0).exteriorFace, gap > 1.0);
    }
}

TEST(CollectGeometry, DoesNotLookIntoTheHoleOfAZone) {
    Workbench::Project project = SampleProject();
    AddZone(project, 1, "Anel", {PlanRectangle(0, 0, 9, 5), PlanRectangle(2, 1, 5, 3)});
    AddUpright(project, 2, 3.0, true); // 4 m of hole before it
    AddUpright(project, 3, 6.5, true); // 0.5 m before the ring
    const Collected collected = Collect(std::move(project));
    EXPECT_TRUE(collected.scene.surfaces.at(0).exteriorFace);
    EXPECT_FALSE(collected.scene.surfaces.at(1).exteriorFace);
}

TEST(CollectGeometry, LooksOneCentimetreUnderFloorsAndOverCeilings) {
    struct Case {
        double z;
        bool up;
        bool exterior;
    };
    // Steps of 5 cm from the face: the last one is 1 m away.
    const Case cases[] = {{3.0, false, false},  {3.0, true, true},     {4.005, false, false},
                          {4.015, false, true}, {-0.005, false, true}, {-0.6, true, false},
                          {2.955, true, false}, {2.965, true, true}};
    for (const Case& c : cases) {
        Workbench::Project project = Room();
        AddLevel(project, 2, c.z, c.up);
        EXPECT_EQ(Collect(std::move(project)).scene.surfaces.at(0).exteriorFace, c.exterior)
            << c.z << c.up;
    }
}

TEST(CollectGeometry, LooksIntoNoRoomUnderAZoneOfAHigherStory) {
    for (const double z : {3.05, 2.9}) {
        Workbench::Project project = SampleProject();
        AddZone(project, 1, "Quarto", {PlanRectangle(0, 0, 4, 5)}).element.header.floorIndex = 1;
        AddLevel(project, 2, z, false);
        EXPECT_EQ(Collect(std::move(project)).scene.surfaces.at(0).exteriorFace, z < 3.0) << z;
    }
}

TEST(CollectGeometry, PlacesTheBodiesOfObjectsWithTheirOwnSurfaces) {
    Workbench::Project project = Room();
    const std::int32_t part = AddLampPart(project, "Plafon");
    auto& lamp = AddLamp(project, 2, part, {2.0, 3.0});
    std::get<Host::ObjectData>(lamp.element.data).mirrored = true;
    std::get<Host::ObjectData>(lamp.element.data).angle = std::numbers::pi / 2.0;
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.log, (Strings{Counts(1, 6, 0, 1)}));
    const SurfaceReflectance& record = collected.reflectances[0];
    EXPECT_EQ(record.key, "gdl:Difusor");
    EXPECT_EQ(record.name, "Difusor (GDL)");
    EXPECT_TRUE(record.estimatedGlass);
    EXPECT_NEAR(record.area, 2 * 0.04 + 4 * 0.02, 1e-12);
    for (const Point3D& vertex : collected.scene.surfaces[0].vertices) {
        EXPECT_NEAR(std::abs(vertex.x - 2.0), 0.1, 1e-12);
        EXPECT_NEAR(std::abs(vertex.y - 3.0), 0.1, 1e-12);
        EXPECT_NEAR(vertex.z, 2.5, 1e-12);
    }
    // The underside looks into the room below it, the top to the ceiling.
    EXPECT_FALSE(collected.scene.surfaces[0].exteriorFace);
}

TEST(CollectGeometry, ReadsThePlanWhateverDatabaseIsCurrent) {
    Workbench::Project project = Room();
    AddUpright(project, 2, 3.0, true);
    Workbench::ProjectDatabase sheet;
    sheet.window.type = Host::WindowType::Worksheet;
    sheet.window.database = NumberedGuid(9);
    project.databases.push_back(sheet);
    OpenSample(std::move(project));
    ASSERT_EQ(Host::ChangeCurrentDatabase(sheet.window), Host::NoError);
    EXPECT_EQ(CollectOpen().log, (Strings{Counts(1, 1, 0, 1)}));
    Host::Window current;
    Host::GetCurrentDatabase(current);
    EXPECT_EQ(current.database, NumberedGuid(9));
}

TEST(SurfaceRecord, KnowsFacesWithoutSurface) {
    OpenSample(Room());
    std::vector<SurfaceReflectance> records;
    SurfaceMapper mapper{&records, {}, {}};
    EXPECT_EQ(SurfaceRecord(mapper, -1), -1);
    EXPECT_EQ(SurfaceRecord(mapper, 0), -1);
    EXPECT_EQ(SurfaceRecord(mapper, 99), -1);
    EXPECT_EQ(SurfaceRecord(mapper, 1'000'000), -1);
    EXPECT_TRUE(records.empty());
}

// The last number of an attribute, and the first of a part's own surface.
TEST(SurfaceRecord, TellsAttributesFromSurfacesOfAPartAtAMillion) {
    Workbench::Project project = Room();
    project.surfaces[999'999] = {"Ultima", {0.5, 0.5, 0.5}, 0.4, 0.3};
    AddLampPart(project, "Plafon");
    OpenSample(std::move(project));
    std::vector<SurfaceReflectance> records;
    SurfaceMapper mapper{&records, {}, {}};
    EXPECT_EQ(SurfaceRecord(mapper, 999'999), 0);
    EXPECT_EQ(SurfaceRecord(mapper, 1'000'000), 1);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0],
              Simulation::MakeFromColour("sup:Ultima", "Ultima", {0.5, 0.5, 0.5, 0.4, 0.3}));
    EXPECT_EQ(records[1], Simulation::MakeFromColour("gdl:Difusor", "Difusor (GDL)",
                                                     {1.0, 1.0, 1.0, 0.9, 0.4}));
}

TEST(SurfaceRecord, ReadsEverySurfaceOnceAlsoOneThatFails) {
    Workbench::Project project = Room();
    AddLampPart(project, "Plafon");
    OpenSample(std::move(project));
    std::vector<SurfaceReflectance> records;
    SurfaceMapper mapper{&records, {}, {}};
    Workbench::FailCall("GetSurface", 1, Host::GeneralError);
    EXPECT_EQ(SurfaceRecord(mapper, 1), -1);
    EXPECT_EQ(SurfaceRecord(mapper, 1), -1);
    EXPECT_EQ(SurfaceRecord(mapper, 2), 0);
    EXPECT_EQ(SurfaceRecord(mapper, 1'000'000), 1);
    Workbench::FailCall("GetSurface", 1, Host::GeneralError);
    Workbench::FailCall("GetScriptSurface", 1, Host::GeneralError);
    EXPECT_EQ(SurfaceRecord(mapper, 2), 0);
    EXPECT_EQ(SurfaceRecord(mapper, 1'000'000), 1);
    EXPECT_EQ(Workbench::CurrentSession().faults.size(), 2U);
}

TEST(SurfaceRecord, SharesTheRecordOfSurfacesOfOneName) {
    Workbench::Project project = Room();
    project.surfaces[50] = {"Pintura branca", {0.1, 0.1, 0.1}, 0.5, 0.0};
    AddLampPart(project, "Um");
    AddLampPart(project, "Outro");
    OpenSample(std::move(project));
    std::vector<SurfaceReflectance> records;
    SurfaceMapper mapper{&records, {}, {}};
    EXPECT_EQ(SurfaceRecord(mapper, 1), 0);
    EXPECT_EQ(SurfaceRecord(mapper, 50), 0);
    EXPECT_EQ(SurfaceRecord(mapper, 1'000'000), 1);
    EXPECT_EQ(SurfaceRecord(mapper, 1'000'001), 1);
    EXPECT_EQ(records.size(), 2U);
}

} // namespace
} // namespace Merivane::Archicad
