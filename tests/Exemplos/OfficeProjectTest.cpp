// The sample project as commands see it.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ModelReadingGeometry.hpp"
#include "Archicad/ModelReadingLuminaires.hpp"
#include "Archicad/ModelReadingZones.hpp"
#include "Archicad/ZoneTaskStorage.hpp"
#include "Drawing/DisplayList.hpp"
#include "Host/GuidText.hpp"
#include "Simulation/CalculationGrid.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Display/WindowDrawing.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Tests {
namespace {

using Archicad::ZoneRecord;
using Host::ElementType;
using Workbench::Project;
using Workbench::ProjectElement;

std::filesystem::path OfficeFile() {
    return SourceFolder() / "exemplos" / "escritorio.vantoro";
}

Project ReadOffice() {
    Project project;
    std::string error;
    EXPECT_TRUE(Workbench::ReadProject(Text::WidePath(OfficeFile()), project, error)) << error;
    return project;
}

void OpenOffice(std::int16_t activeFloor = 0) {
    Project project = ReadOffice();
    project.activeFloor = activeFloor;
    Workbench::OpenSession({});
    Workbench::OpenProject(std::move(project), Text::WidePath(OfficeFile()));
}

std::map<ElementType, int> CountTypes(const Project& project) {
    std::map<ElementType, int> counts;
    for (const ProjectElement& element : project.elements) {
        ++counts[element.element.header.type];
    }
    return counts;
}

TEST(OfficeProject, SavesToTheBytesThatItWasLoadedFrom) {
    const std::string bytes = ReadBytes(OfficeFile());
    EXPECT_TRUE(Workbench::WriteProject(ReadOffice()) == bytes);
    EXPECT_LT(bytes.size(), 2'000'000U);
}

TEST(OfficeProject, HoldsEveryElementTypeThatRoomsAreMadeOf) {
    const std::map<ElementType, int> counts = CountTypes(ReadOffice());
    for (const ElementType type :
         {ElementType::Wall,     ElementType::Window,        ElementType::Door,
          ElementType::Column,   ElementType::Beam,          ElementType::Slab,
          ElementType::Roof,     ElementType::Mesh,          ElementType::Morph,
          ElementType::Object,   ElementType::CurtainWall,   ElementType::Stair,
          ElementType::Railing,  ElementType::Hatch,         ElementType::PolyLine,
          ElementType::Text,     ElementType::Line,          ElementType::Arc,
          ElementType::Circle,   ElementType::Spline,        ElementType::Dimension,
          ElementType::CutPlane, ElementType::SectionElement}) {
        EXPECT_EQ(counts.count(type), 1U) << static_cast<int>(type);
    }
    EXPECT_EQ(counts.at(ElementType::Zone), 5);
    EXPECT_EQ(counts.at(ElementType::Lamp), 40);
}

double Area(const std::vector<Simulation::Point2D>& ring) {
    double twice = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Simulation::Point2D& a = ring[i];
        const Simulation::Point2D& b = ring[(i + 1) % ring.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice) / 2.0;
}

TEST(OfficeProject, HasFiveZonesOnTwoFloors) {
    OpenOffice();
    struct Case {
        std::string name;
        std::int32_t floorIndex;
        double area; // of the outline [m2]
        std::size_t corners;
        std::size_t holes;
        bool narrow;
        std::string task; // by its name
    };
    const Case cases[] = {
        {"Escritório", 0, 11.85 * 9.8 - 5.0 * 3.91, 6, 1, false, "s22.2"},
        {"Sala de reuniões", 0, 4.9 * 3.89, 4, 0, false, "s22.5"},
        {"Circulação", 0, 0.98 * 9.8, 4, 0, true, "s1.3"},
        {"Escritório da diretoria", 1, 12.88 * 4.85, 4, 0, false, "s22.2"},
        {"Sala multiuso", 1, 8.28 * 4.85, 4, 0, false, ""},
    };
    const std::vector<ZoneRecord> zones = Archicad::ReadAllZones();
    ASSERT_EQ(zones.size(), 5U);
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const Case& c = cases[i];
        SCOPED_TRACE(c.name);
        EXPECT_EQ(zones[i].name, c.name);
        EXPECT_EQ(zones[i].floorIndex, c.floorIndex);
        EXPECT_DOUBLE_EQ(zones[i].baseLevel, 3.2 * c.floorIndex);
        EXPECT_DOUBLE_EQ(zones[i].height, 3.0);
        EXPECT_NEAR(Area(zones[i].outline), c.area, 1e-9);
        EXPECT_EQ(zones[i].outline.size(), c.corners);
        EXPECT_EQ(zones[i].holes.size(), c.holes);
        EXPECT_EQ(Simulation::SuggestTaskId(zones[i].name), c.task);
        Simulation::GridSettings settings;
        const Simulation::CalculationGrid grid = Simulation::BuildCalculationGrid(
            {zones[i].outline, zones[i].holes}, zones[i].baseLevel, settings);
        EXPECT_EQ(grid.narrow, c.narrow);
    }
}

TEST(OfficeProject, KeepsTheActivitiesOfItsFirstZones) {
    OpenOffice();
    Simulation::ReferenceStandard standard{};
    const Simulation::ZoneRequirementMap tasks = Archicad::LoadZoneTasks(standard);
    EXPECT_EQ(standard, Simulation::ReferenceStandard::Brazilian);
    ASSERT_EQ(tasks.size(), 2U);
    const std::vector<ZoneRecord> zones = Archicad::ReadAllZones();
    EXPECT_EQ(tasks.at(Archicad::ZoneKey(zones[0].guid)),
              (Simulation::ZoneRequirement{"s22.2", 500.0, 0.6, Simulation::ScreensAutomatic}));
    EXPECT_EQ(tasks.at(Archicad::ZoneKey(zones[1].guid)),
              (Simulation::ZoneRequirement{"s22.5", 300.0, 0.6, Simulation::ScreensNone}));
}

/// The luminaire that has a value of its own for this parameter.
Host::Guid LampWithOwn(const Project& project, const std::string& parameter) {
    Host::Guid found;
    for (const ProjectElement& element : project.elements) {
        for (const Host::LibraryParameter& own : element.memo.parameters) {
            found = own.name == parameter ? element.element.header.guid : found;
        }
    }
    return found;
}

TEST(OfficeProject, HasFortyLuminairesOfWhichThirtySixShine) {
    OpenOffice();
    const Project project = ReadOffice();
    std::vector<Host::Guid> guids;
    std::vector<std::string> log;
    const auto luminaires = Archicad::CollectLuminaires({0, 1}, guids, log);
    EXPECT_EQ(guids.size(), 40U);
    EXPECT_EQ(luminaires.size(), 36U);
    EXPECT_EQ(log, (std::vector<std::string>{
                       "luminaria " + Host::GuidText(LampWithOwn(project, "mvCandela")) +
                           " ignorada: tabela mvCandela com 444 valores, esperados 481",
                       "luminaria " + Host::GuidText(LampWithOwn(project, "mvContractVersion")) +
                           " ignorada: luminaria com versao de contrato 8 (este Vantoro entende "
                           "ate a 7)",
                       "2 luminaria(s) desligada(s) (mvLightOn) fora do calculo",
                       "2 luminaria(s) com fotometria ilegivel fora do calculo"}));
    std::set<std::string> types;
    int dimmed = 0;
    for (const Simulation::SceneLuminaire& luminaire : luminaires) {
        types.insert(luminaire.typeKey);
        dimmed += luminaire.dimming == 0.6 ? 1 : 0;
        EXPECT_TRUE(luminaire.dimming == 1.0 || luminaire.dimming == 0.6);
    }
    EXPECT_EQ(types.size(), 5U);
    EXPECT_EQ(dimmed, 1);
}

TEST(OfficeProject, DeclaresTheColourRenderingOfAllTypesButOne) {
    OpenOffice();
    std::vector<Host::Guid> guids;
    std::vector<std::string> log;
    std::map<std::string, double> declared; // by catalogue code
    for (const auto& luminaire : Archicad::CollectLuminaires({0, 1}, guids, log)) {
        declared[luminaire.displayName] = luminaire.contract.colourRendering;
    }
    EXPECT_EQ(declared, (std::map<std::string, double>{
                            {"PA60A", 90}, {"PD15", 85}, {"LN12", 80}, {"LV06", 80}, {"DL15", 0}}));
}

TEST(OfficeProject, HangsItsPanelsInTheFalseCeilings) {
    OpenOffice();
    std::vector<Host::Guid> guids;
    std::vector<std::string> log;
    int panels = 0;
    for (const auto& luminaire : Archicad::CollectLuminaires({0, 1}, guids, log)) {
        if (luminaire.displayName == "PA60A") {
            ++panels;
            const double level = luminaire.z > 3.2 ? 3.2 : 0.0;
            EXPECT_NEAR(luminaire.z, level + 2.6, 1e-12);
            EXPECT_NEAR(luminaire.contract.centerZ, -0.005, 1e-12); // the frame's lower face
        }
    }
    EXPECT_EQ(panels, 20); // one is off, one of a later contract
}

/// What `CollectGeometry` gives for the Zones of one floor.
struct Model {
    Simulation::Scene scene;
    std::vector<Simulation::SurfaceReflectance> reflectances;
    std::vector<std::string> log;

    double Area(const std::string& key) const {
        for (const Simulation::SurfaceReflectance& record : reflectances) {
            if (record.key == key) {
                return record.area;
            }
        }
        return -1.0;
    }
};

Model CollectFloor(std::int16_t floorIndex) {
    OpenOffice(floorIndex);
    Model model;
    std::vector<std::string> luminaireLog;
    std::vector<Host::Guid> luminaires;
    const std::vector<ZoneRecord> zones = Archicad::CollectZones(model.log);
    Archicad::CollectLuminaires({0, 1}, luminaires, luminaireLog);
    Archicad::CollectGeometry(zones, luminaires, 0.75, model.scene, model.reflectances, model.log);
    return model;
}

TEST(OfficeProject, TellsWhatWasReadOfEachFloor) {
    const std::string byOrientation = " face(s) sem Superficie: refletancia pela orientacao (piso "
                                      "20%, parede 50%, teto 70%)";
    EXPECT_EQ(CollectFloor(0).log,
              (std::vector<std::string>{
                  "nenhuma Zona selecionada: calculando todas as 3 do pavimento atual",
                  "geometria: 107 elemento(s), 1813 face(s) (48 com aberturas), 13 superficie(s)",
                  "1 elemento(s) do proprio Vantoro (camadas \"Vantoro - ...\") fora da cena",
                  "36" + byOrientation,
                  "1 elemento(s) em camada oculta ou travada ficaram fora da cena"}));
    EXPECT_EQ(CollectFloor(1).log,
              (std::vector<std::string>{
                  "nenhuma Zona selecionada: calculando todas as 2 do pavimento atual",
                  "geometria: 65 elemento(s), 959 face(s) (34 com aberturas), 11 superficie(s)",
                  "1 elemento(s) do proprio Vantoro (camadas \"Vantoro - ...\") fora da cena",
                  "18" + byOrientation}));
}

TEST(OfficeProject, SurfacesHaveTheAreasThatItsMeasuresTell) {
    constexpr double Near = 1e-6;
    const Model ground = CollectFloor(0);
    EXPECT_NEAR(ground.Area("sup:Piso cerâmico"), 18.2 * 10.2, Near);

    // Both faces and the edges of the two false ceilings.
    const double office = 11.85 * 9.8 - 5.0 * 3.91 - 1.2 * 1.2;
    const double officeEdge = 2 * (11.85 + 9.8) + 4 * 1.2;
    EXPECT_NEAR(ground.Area("sup:Forro mineral"),
                2 * office + 0.02 * officeEdge + 2 * 0.98 * 9.8 + 0.02 * 2 * (0.98 + 9.8), Near);

    // The outside of both floors' south, north and west walls, less their windows; the east wall
    // stands too far from the Zones.
    const double south = 13.8 * 3.0 - 3 * 2.4 * 1.3;
    const double north = 18.2 * 3.0 - 4 * 1.6 * 1.3;
    const double west = 9.8 * 3.0 - 2 * 2.0 * 1.3;
    EXPECT_NEAR(ground.Area("sup:Pintura areia"), 2 * (south + north + west), Near);

    // The upper slab less the curtain wall's notch, the stair and the shaft; 29 chairs of a seat
    // and a back.
    const double carpet = 18.2 * 10.2 - 4.2 * 0.2 - 1.4 * 5.4 - 1.0 * 1.0;
    const double seat = 2 * 0.46 * 0.46 + 4 * 0.46 * 0.05;
    const double back = 2 * (0.42 * 0.05 + 0.05 * 0.2 + 0.42 * 0.2);
    EXPECT_NEAR(ground.Area("sup:Carpete"), carpet + 29 * (seat + back), Near);

    // Six low cupboards without a surface: three stand on the ground floor, below its work plane.
    EXPECT_NEAR(ground.Area("orientacao:piso"), 6 * 0.8 * 0.45, Near);
    EXPECT_NEAR(ground.Area("orientacao:teto"), 6 * 0.8 * 0.45, Near);
    EXPECT_NEAR(ground.Area("orientacao:parede"), 6 * 2 * (0.8 + 0.45) * 0.7, Near);

    // Two planes of the roof, each 19.2 by 5.6 m in plan.
    const Model upper = CollectFloor(1);
    EXPECT_NEAR(upper.Area("sup:Telha"), 2 * 19.2 * 5.6 / std::cos(0.174533), 1e-4);
    EXPECT_EQ(upper.Area("sup:Piso cerâmico"), -1.0);
}

/// True when a vertical through `point` meets the triangle; `height` is where [m].
bool MeetsVertical(const Simulation::SceneSurface& triangle, const Simulation::Point2D& point,
                   double& height) {
    const auto& a = triangle.vertices[0];
    const auto& b = triangle.vertices[1];
    const auto& c = triangle.vertices[2];
    const double area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    if (std::abs(area) < 1e-12) {
        return false;
    }
    const double s = ((point.x - a.x) * (c.y - a.y) - (c.x - a.x) * (point.y - a.y)) / area;
    const double t = ((b.x - a.x) * (point.y - a.y) - (point.x - a.x) * (b.y - a.y)) / area;
    height = a.z + s * (b.z - a.z) + t * (c.z - a.z);
    return s >= 0.0 && t >= 0.0 && s + t <= 1.0;
}

TEST(OfficeProject, HasNothingOnOrAboveTheWorkPlanesButCeilings) {
    constexpr double Spacing = 0.1;
    for (const std::int16_t floorIndex : {std::int16_t{0}, std::int16_t{1}}) {
        const Model model = CollectFloor(floorIndex);
        std::vector<std::string> log;
        for (const ZoneRecord& zone : Archicad::CollectZones(log)) {
            SCOPED_TRACE(zone.name);
            Simulation::GridSettings settings;
            settings.spacing = Spacing;
            const Simulation::CalculationGrid grid = Simulation::BuildCalculationGrid(
                {zone.outline, zone.holes}, zone.baseLevel, settings);
            int blocked = 0;
            for (const Simulation::Point2D& point : Simulation::ActivePoints(grid)) {
                for (const Simulation::SceneSurface& surface : model.scene.surfaces) {
                    double height = 0.0;
                    blocked += MeetsVertical(surface, point, height) &&
                                       height > zone.baseLevel + 0.73 &&
                                       height < zone.baseLevel + 2.55
                                   ? 1
                                   : 0;
                }
            }
            EXPECT_EQ(blocked, 0);
        }
    }
}

TEST(OfficeProject, LeavesEarlierResultsAndHiddenLayersOutOfTheModel) {
    const Model ground = CollectFloor(0);
    EXPECT_EQ(ground.Area("sup:Vantoro 500 a 750 lx"), -1.0);
    // A wall of the hidden study would stand at x = 9 in the open office.
    for (const Simulation::SceneSurface& surface : ground.scene.surfaces) {
        const bool isThere =
            std::all_of(surface.vertices.begin(), surface.vertices.end(), [](const auto& vertex) {
                return std::abs(vertex.x - 9.0) < 0.06 && vertex.y < 5.95 && vertex.z > 0.1;
            });
        EXPECT_FALSE(isThere);
    }
}

TEST(OfficeProject, IsDrawnWhole) {
    OpenOffice();
    const Project project = Workbench::CurrentSession().project;
    std::vector<Drawing::DisplayList> lists = {Workbench::DrawPlan(project, 0),
                                               Workbench::DrawPlan(project, 1),
                                               Workbench::DrawAxonometry(project)};
    for (const Workbench::ProjectDatabase& database : project.databases) {
        lists.push_back(database.window.type == Host::WindowType::Worksheet
                            ? Workbench::DrawWorksheet(project, database)
                            : Workbench::DrawSection(project, database));
    }
    ASSERT_EQ(lists.size(), 5U);
    for (const Drawing::DisplayList& list : lists) {
        SCOPED_TRACE(list.title);
        std::string error;
        EXPECT_TRUE(Drawing::CheckDisplayList(list, error)) << error;
        EXPECT_GT(list.layers.size(), 1U);
    }
    EXPECT_EQ(lists[0].width, 420.0); // the ground floor with its ground and legend: an A3
    EXPECT_EQ(lists[1].width, 297.0);
}

} // namespace
} // namespace Merivane::Tests
