// What stands on one floor of a tower (100 storeys, 2,000 Zones, 20,000 luminaires of 40 types,
// each with a table of 37 x 24; walls round each Zone, a slab under and over each storey), as a
// calculation collects it through the embedded host. Prints the processor's seconds and the most
// memory that the process held.
//   CollectBench

#include <cmath>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "Archicad/ContractConversion.hpp"
#include "Archicad/ModelReadingGeometry.hpp"
#include "Archicad/ModelReadingLuminaires.hpp"
#include "Archicad/ModelReadingZones.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Photometry/IesFile.hpp"
#include "Workbench/Project/GuidSource.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

using namespace Merivane;
using namespace Merivane::Workbench;

namespace {

constexpr int Storeys = 100;
constexpr int ZonesOnEach = 20;
constexpr int LuminairesInEach = 10;
constexpr int Types = 40;
constexpr double RoomWidth = 12.0; // m
constexpr double RoomDepth = 10.0; // m
constexpr double WallHeight = 2.8; // m
constexpr double WorkPlane = 0.75; // m

struct Tower {
    Project project = MakeEmptyProject();
    GuidSource guids = MakeGuidSource(7);
};

Photometry::IesFile Panel(int type) {
    Photometry::IesFile file;
    file.keywords = {{"MANUFAC", "Exemplo"}, {"LUMINAIRE", "Painel " + std::to_string(type)}};
    file.inputWatts = 20.0;
    file.width = 0.6;
    file.length = 0.6;
    for (int row = 0; row < 37; ++row) {
        file.verticalAngles.push_back(row * 2.5);
    }
    for (int column = 0; column < 24; ++column) {
        file.horizontalAngles.push_back(column * 360.0 / 23.0);
        std::vector<double>& plane = file.candela.emplace_back();
        for (const double angle : file.verticalAngles) {
            plane.push_back((300.0 + type) * std::cos(angle * 3.141592653589793 / 180.0));
        }
    }
    return file;
}

void AddType(Tower& tower, int type) {
    ProjectPart part;
    part.name = "Painel " + std::to_string(type);
    part.isLamp = true;
    part.mainGuid = NextGuid(tower.guids);
    for (const Photometry::ContractParameter& parameter :
         Photometry::BuildContract(Panel(type), {})) {
        Archicad::ToAddPar(parameter, part.parameters.emplace_back());
    }
    tower.project.parts.push_back(std::move(part));
}

ProjectElement& AddElement(Tower& tower, int storey, Host::ElementType type) {
    ProjectElement& element = tower.project.elements.emplace_back();
    element.element.header.type = type;
    element.element.header.guid = NextGuid(tower.guids);
    element.element.header.floorIndex = static_cast<std::int16_t>(storey);
    element.element.header.layer = {1};
    element.element.header.stamp = ++tower.project.lastStamp;
    return element;
}

void AddRoom(Tower& tower, int storey, int place) {
    const double x = place % 5 * RoomWidth;
    const int roomRow = place / 5;
    const double y = roomRow * RoomDepth;
    const Host::Coordinate corners[] = {{x + 0.1, y + 0.1},
                                        {x + RoomWidth - 0.1, y + 0.1},
                                        {x + RoomWidth - 0.1, y + RoomDepth - 0.1},
                                        {x + 0.1, y + RoomDepth - 0.1}};
    ProjectElement& zone = AddElement(tower, storey, Host::ElementType::Zone);
    zone.element.data =
        Host::ZoneData{"Sala " + std::to_string(place + 1), "", 0.0, WallHeight, {x + 1, y + 1}};
    zone.memo.polygon = {{{corners[0], corners[1], corners[2], corners[3]}, {}}};
    for (int i = 0; i < 4; ++i) {
        AddElement(tower, storey, Host::ElementType::Wall).geometry = WallGeometry{
            corners[i], corners[(i + 1) % 4], 0.0, 0.1, 0.0, WallHeight, {1}, {1}, {1}};
    }
    for (int i = 0; i < LuminairesInEach; ++i) {
        const int row = i / 5;
        Host::ObjectData lamp;
        lamp.libraryIndex = (place * LuminairesInEach + i) % Types + 1;
        lamp.position = {x + 1.5 + i % 5 * 2.2, y + 2.5 + row * 5.0};
        lamp.level = 2.75;
        AddElement(tower, storey, Host::ElementType::Lamp).element.data = lamp;
    }
}

Project MakeTower() {
    Tower tower;
    tower.project.stories.clear();
    for (int type = 0; type < Types; ++type) {
        AddType(tower, type);
    }
    const Host::Contour plate = {{{0, 0}, {60, 0}, {60, 40}, {0, 40}}, {}};
    for (int storey = 0; storey < Storeys; ++storey) {
        tower.project.stories.push_back({static_cast<std::int16_t>(storey), 3.0 * storey, 3.0,
                                         "Pavimento " + std::to_string(storey)});
        AddElement(tower, storey, Host::ElementType::Slab).geometry =
            SlabGeometry{{plate}, 0.0, 0.2, {1}, {1}, {1}};
        for (int place = 0; place < ZonesOnEach; ++place) {
            AddRoom(tower, storey, place);
        }
    }
    return tower.project;
}

double CpuSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double Tell(const char* work, double start) {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const double now = CpuSeconds();
    // Linux counts KiB.
    std::printf("%-20s %8.2f s %8ld MiB at most\n", work, now - start, usage.ru_maxrss / 1024);
    return CpuSeconds();
}

} // namespace

int main() {
    double start = CpuSeconds();
    OpenSession({});
    OpenProject(MakeTower());
    std::printf("%zu elements\n", CurrentSession().project.elements.size());
    start = Tell("make and open", start);
    const double collecting = start;

    std::vector<std::string> log;
    const std::vector<Archicad::ZoneRecord> zones = Archicad::CollectZones(log);
    start = Tell("collect Zones", start);

    Simulation::Scene scene;
    std::vector<Host::Guid> guids;
    scene.luminaires = Archicad::CollectLuminaires({0}, guids, log);
    start = Tell("collect luminaires", start);

    std::vector<Simulation::SurfaceReflectance> reflectances;
    Archicad::CollectGeometry(zones, guids, WorkPlane, scene, reflectances, log);
    Tell("collect geometry", start);
    Tell("one floor in all", collecting);
    std::printf("%zu Zones, %zu luminaires, %zu surfaces\n", zones.size(), scene.luminaires.size(),
                scene.surfaces.size());
    for (const std::string& line : log) {
        std::printf("%s\n", line.c_str());
    }
    return 0;
}
