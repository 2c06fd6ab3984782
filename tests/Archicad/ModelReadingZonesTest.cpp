#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ModelReadingZones.hpp"
#include "Host/Elements.hpp"
#include "Host/GuidText.hpp"
#include "Host/Stories.hpp"
#include "ModelSample.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Tests;

using Strings = std::vector<std::string>;

std::vector<std::string> NamesOf(const std::vector<ZoneRecord>& zones) {
    std::vector<std::string> names;
    names.reserve(zones.size());
    for (const ZoneRecord& zone : zones) {
        names.push_back(zone.name);
    }
    return names;
}

/// Three Zones: 1 and 2 on floor 0, 3 on floor 1; a section 9 with a window that shows Zone 2 as
/// element 8.
Workbench::Project ThreeZones() {
    Workbench::Project project = SampleProject();
    AddZone(project, 1, "Sala", {PlanRectangle(0, 0, 4, 5)});
    AddZone(project, 2, "Copa", {PlanRectangle(4, 0, 2, 2)});
    AddZone(project, 3, "Quarto", {PlanRectangle(0, 0, 4, 5)}).element.header.floorIndex = 1;
    AddWall(project, 4, {0, 0}, {4, 0});
    Workbench::ProjectDatabase section;
    section.window.type = Host::WindowType::Section;
    section.window.database = NumberedGuid(9);
    project.databases.push_back(section);
    auto& shown = AddElement(project, 8, Host::ElementType::SectionElement);
    shown.element.data = Host::SectionElementData{NumberedGuid(2)};
    shown.database = NumberedGuid(9);
    return project;
}

TEST(ReadZone, ReadsThePolygonTheLevelsAndTheName) {
    Workbench::Project project = SampleProject();
    auto& added = AddZone(project, 1, "Sala", {PlanRectangle(-1, 2, 4, 5)});
    added.element.header.floorIndex = 1;
    std::get<Host::ZoneData>(added.element.data).baseLevel = 0.25;
    OpenSample(std::move(project));
    ZoneRecord zone;
    ASSERT_TRUE(ReadZone(NumberedGuid(1), zone));
    EXPECT_EQ(zone.guid, NumberedGuid(1));
    EXPECT_EQ(zone.name, "Sala");
    EXPECT_EQ(zone.floorIndex, 1);
    EXPECT_EQ(zone.baseLevel, 3.25);
    EXPECT_EQ(zone.height, 3.0);
    const std::vector<Simulation::Point2D> outline = {{-1, 2}, {3, 2}, {3, 7}, {-1, 7}};
    EXPECT_EQ(zone.outline, outline);
    EXPECT_TRUE(zone.holes.empty());
    EXPECT_EQ(zone.minX, -1.0);
    EXPECT_EQ(zone.minY, 2.0);
    EXPECT_EQ(zone.maxX, 3.0);
    EXPECT_EQ(zone.maxY, 7.0);
}

TEST(ReadZone, ReadsEveryFurtherContourAsAHole) {
    Workbench::Project project = SampleProject();
    AddZone(project, 1, "Patio",
            {PlanRectangle(0, 0, 9, 9), PlanRectangle(1, 1, 2, 2), PlanRectangle(5, 5, 1, 1)});
    OpenSample(std::move(project));
    ZoneRecord zone;
    ASSERT_TRUE(ReadZone(NumberedGuid(1), zone));
    ASSERT_EQ(zone.holes.size(), 2U);
    const std::vector<Simulation::Point2D> hole = {{1, 1}, {3, 1}, {3, 3}, {1, 3}};
    EXPECT_EQ(zone.holes[0], hole);
    EXPECT_EQ(zone.maxX, 9.0);
}

TEST(ReadZone, TakesTheNumberWhereThereIsNoName) {
    Workbench::Project project = SampleProject();
    auto& added = AddZone(project, 1, "", {PlanRectangle(0, 0, 4, 5)});
    std::get<Host::ZoneData>(added.element.data).number = "101";
    OpenSample(std::move(project));
    ZoneRecord zone;
    ASSERT_TRUE(ReadZone(NumberedGuid(1), zone));
    EXPECT_EQ(zone.name, "101");
}

TEST(ReadZone, TakesATriangle) {
    Workbench::Project project = SampleProject();
    AddZone(project, 1, "Canto", {{{{0, 0}, {1, 0}, {0, 1}}, {}}});
    OpenSample(std::move(project));
    ZoneRecord zone;
    ASSERT_TRUE(ReadZone(NumberedGuid(1), zone));
    EXPECT_EQ(zone.outline.size(), 3U);
}

TEST(ReadZone, RefusesWhatIsNoZoneWithAnOutline) {
    Workbench::Project project = SampleProject();
    AddZone(project, 4, "sem pavimento", {PlanRectangle(0, 0, 1, 1)}).element.header.floorIndex = 7;
    AddZone(project, 1, "sem poligono", {});
    AddZone(project, 2, "linha", {{{{0, 0}, {1, 0}}, {}}});
    AddWall(project, 3, {0, 0}, {4, 0});
    OpenSample(std::move(project));
    ZoneRecord zone;
    zone.name = "antes";
    for (const std::uint32_t number : {1U, 2U, 3U, 4U, 99U}) {
        EXPECT_FALSE(ReadZone(NumberedGuid(number), zone)) << number;
    }
    EXPECT_EQ(zone.name, "antes");
}

TEST(ReadZone, FailsWhereTheHostDoes) {
    for (const char* operation : {"GetElement", "GetMemo", "GetStories"}) {
        OpenSample(ThreeZones());
        Workbench::FailCall(operation, 1, Host::GeneralError);
        ZoneRecord zone;
        EXPECT_FALSE(ReadZone(NumberedGuid(1), zone)) << operation;
        EXPECT_TRUE(ReadZone(NumberedGuid(1), zone)) << operation;
    }
}

TEST(SelectedZones, KeepsZonesAloneInTheirOrder) {
    OpenSample(ThreeZones());
    ASSERT_EQ(Host::SetSelection({NumberedGuid(2), NumberedGuid(4), NumberedGuid(1)}),
              Host::NoError);
    EXPECT_EQ(SelectedZones(), (std::vector<Host::Guid>{NumberedGuid(2), NumberedGuid(1)}));
    ASSERT_EQ(Host::SetSelection({}), Host::NoError);
    EXPECT_TRUE(SelectedZones().empty());
}

TEST(SelectedZones, TakesTheZoneThatASectionShows) {
    OpenSample(ThreeZones());
    Workbench::CurrentSession().project.selection = {NumberedGuid(8), NumberedGuid(2)};
    EXPECT_EQ(SelectedZones(), (std::vector<Host::Guid>{NumberedGuid(2)}));
}

TEST(CollectZones, ReadsTheSelectedOnesWithoutAWord) {
    OpenSample(ThreeZones());
    ASSERT_EQ(Host::SetSelection({NumberedGuid(3), NumberedGuid(1)}), Host::NoError);
    Strings log;
    EXPECT_EQ(NamesOf(CollectZones(log)), (Strings{"Quarto", "Sala"}));
    EXPECT_TRUE(log.empty());
}

TEST(CollectZones, TakesThoseOfTheFloorOnThePlanWhenNoneIsSelected) {
    OpenSample(ThreeZones());
    Strings log;
    EXPECT_EQ(NamesOf(CollectZones(log)), (Strings{"Sala", "Copa"}));
    EXPECT_EQ(log, (Strings{"nenhuma Zona selecionada: calculando todas as 2 do pavimento atual"}));
    log.clear();
    ASSERT_EQ(Host::ChangeActiveFloor(1), Host::NoError);
    EXPECT_EQ(NamesOf(CollectZones(log)), (Strings{"Quarto"}));
    EXPECT_EQ(log, (Strings{"nenhuma Zona selecionada: calculando todas as 1 do pavimento atual"}));
}

// What is selected is no Zone, or a Zone that a section shows of an element that is none.
TEST(CollectZones, TakesThoseOfTheFloorWhenOnlyOtherElementsAreSelected) {
    Workbench::Project project = ThreeZones();
    auto& shown = AddElement(project, 7, Host::ElementType::SectionElement);
    shown.element.data = Host::SectionElementData{NumberedGuid(4)};
    shown.database = NumberedGuid(9);
    OpenSample(std::move(project));
    Workbench::CurrentSession().project.selection = {NumberedGuid(4), NumberedGuid(7)};
    Strings log;
    EXPECT_EQ(NamesOf(CollectZones(log)), (Strings{"Sala", "Copa"}));
    EXPECT_EQ(log, (Strings{"nenhuma Zona selecionada: calculando todas as 2 do pavimento atual"}));
}

TEST(CollectZones, TellsOfASelectedZoneThatCannotBeRead) {
    Workbench::Project project = ThreeZones();
    AddZone(project, 0xABC, "sem poligono", {});
    OpenSample(std::move(project));
    ASSERT_EQ(Host::SetSelection({NumberedGuid(0xABC), NumberedGuid(1)}), Host::NoError);
    Strings log;
    EXPECT_EQ(NamesOf(CollectZones(log)), (Strings{"Sala"}));
    EXPECT_EQ(log, (Strings{"zona {00000ABC-0000-0000-0000-000000000000} ignorada: poligono nao "
                            "lido"}));
}

TEST(CollectZones, TellsOfZonesThatCannotBeRead) {
    Workbench::Project project = ThreeZones();
    AddZone(project, 0xABC, "sem poligono", {});
    OpenSample(std::move(project));
    Strings log;
    EXPECT_EQ(NamesOf(CollectZones(log)), (Strings{"Sala", "Copa"}));
    EXPECT_EQ(log, (Strings{"nenhuma Zona selecionada: calculando todas as 3 do pavimento atual",
                            "zona {00000ABC-0000-0000-0000-000000000000} ignorada: poligono nao "
                            "lido"}));
}

TEST(CollectZones, TellsOfAProjectWithoutZones) {
    OpenSample(SampleProject());
    Strings log;
    EXPECT_TRUE(CollectZones(log).empty());
    EXPECT_EQ(log, (Strings{"nenhuma Zona selecionada: calculando todas as 0 do pavimento atual"}));
}

TEST(CollectZones, ReadsThePlanWhateverDatabaseIsCurrent) {
    OpenSample(ThreeZones());
    Host::Window section;
    section.type = Host::WindowType::Section;
    section.database = NumberedGuid(9);
    ASSERT_EQ(Host::ChangeCurrentDatabase(section), Host::NoError);
    Strings log;
    EXPECT_EQ(CollectZones(log).size(), 2U);
    EXPECT_EQ(ReadAllZones().size(), 3U);
    Host::Window current;
    ASSERT_EQ(Host::GetCurrentDatabase(current), Host::NoError);
    EXPECT_EQ(current.database, NumberedGuid(9));
}

TEST(ReadAllZones, ReadsThoseOfEveryFloorAndLayer) {
    Workbench::Project project = ThreeZones();
    AddZone(project, 5, "Oculta", {PlanRectangle(0, 0, 1, 1)}).element.header.layer = {2};
    AddZone(project, 6, "sem poligono", {});
    OpenSample(std::move(project));
    EXPECT_EQ(NamesOf(ReadAllZones()), (Strings{"Sala", "Copa", "Quarto", "Oculta"}));
}

} // namespace
} // namespace Merivane::Archicad
