// The main command on a floor of 60 Zones and 1,200 luminaires at "Estudo rápido", through the
// embedded host: CPU seconds of Radiance's programs against our own, before and after them.
//   FloorBench RADIANCE_FOLDER [ZONES] [REFLECTIONS]   the folder that holds "Vantoro Radiance"
// The whole floor keeps Radiance busy for more than an hour; without reflections, minutes, and our
// own seconds are the same.

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <sys/resource.h>

#include "AddOn/Commands/CalculateLighting.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "Archicad/ContractConversion.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Host/Elements.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Photometry/IesFile.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/GuidSource.hpp"
#include "Workbench/Session.hpp"

using namespace Merivane;
using namespace Merivane::Workbench;

namespace {

constexpr double RoomWidth = 5.0;  // m
constexpr double RoomDepth = 4.0;  // m
constexpr double RoomHeight = 3.0; // m
constexpr int RoomsInARow = 10;
constexpr int LampsAlong = 5;
constexpr int LampsAcross = 4;

/// A panel of 0.6 m x 0.6 m that shines as the cosine, with a table of 37 x 24.
Photometry::IesFile Panel() {
    Photometry::IesFile file;
    file.keywords = {{"MANUFAC", "Exemplo"}, {"LUMINAIRE", "Painel"}};
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
            plane.push_back(300.0 * std::cos(angle * 3.141592653589793 / 180.0));
        }
    }
    return file;
}

struct FloorMaker {
    Project project = MakeEmptyProject();
    GuidSource guids = MakeGuidSource(5);
};

ProjectElement& AddElement(FloorMaker& floor, Host::ElementType type) {
    ProjectElement& element = floor.project.elements.emplace_back();
    element.element.header.type = type;
    element.element.header.guid = NextGuid(floor.guids);
    element.element.header.layer = {1};
    element.element.header.stamp = ++floor.project.lastStamp;
    return element;
}

Host::Contour Rectangle(double x, double y, double width, double depth) {
    return {{{x, y}, {x + width, y}, {x + width, y + depth}, {x, y + depth}}, {}};
}

void AddPart(FloorMaker& floor) {
    ProjectPart part;
    part.name = "Painel";
    part.isLamp = true;
    part.mainGuid = NextGuid(floor.guids);
    for (const Photometry::ContractParameter& parameter : Photometry::BuildContract(Panel(), {})) {
        Archicad::ToAddPar(parameter, part.parameters.emplace_back());
    }
    floor.project.parts.push_back(std::move(part));
}

void AddWall(FloorMaker& floor, Host::Coordinate begin, Host::Coordinate end) {
    AddElement(floor, Host::ElementType::Wall).geometry =
        WallGeometry{begin, end, 0.0, 0.1, 0.0, RoomHeight, {1}, {1}, {1}};
}

void AddRoom(FloorMaker& floor, int place) {
    const double x = place % RoomsInARow * (RoomWidth + 0.1);
    const int row = place / RoomsInARow;
    const double y = row * (RoomDepth + 0.1);
    ProjectElement& zone = AddElement(floor, Host::ElementType::Zone);
    zone.element.data =
        Host::ZoneData{"Sala " + std::to_string(place + 1), "", 0.0, RoomHeight, {x, y}};
    zone.memo.polygon = {Rectangle(x, y, RoomWidth, RoomDepth)};
    AddWall(floor, {x, y}, {x + RoomWidth, y});
    AddWall(floor, {x + RoomWidth, y}, {x + RoomWidth, y + RoomDepth});
    AddWall(floor, {x + RoomWidth, y + RoomDepth}, {x, y + RoomDepth});
    AddWall(floor, {x, y + RoomDepth}, {x, y});
    for (int lamp = 0; lamp < LampsAlong * LampsAcross; ++lamp) {
        const int line = lamp / LampsAlong;
        Host::ObjectData object;
        object.libraryIndex = 1;
        object.position = {x + (lamp % LampsAlong + 0.5) * RoomWidth / LampsAlong,
                           y + (line + 0.5) * RoomDepth / LampsAcross};
        object.level = RoomHeight - 0.05;
        AddElement(floor, Host::ElementType::Lamp).element.data = object;
    }
}

Project MakeFloor(int zones) {
    FloorMaker floor;
    AddPart(floor);
    for (int place = 0; place < zones; ++place) {
        AddRoom(floor, place);
    }
    const double width = RoomsInARow * (RoomWidth + 0.1);
    const double depth = std::ceil(zones * 1.0 / RoomsInARow) * (RoomDepth + 0.1);
    const Host::Contour all = Rectangle(-0.1, -0.1, width + 0.2, depth + 0.2);
    AddElement(floor, Host::ElementType::Slab).geometry =
        SlabGeometry{{all}, 0.0, 0.2, {1}, {1}, {1}};
    AddElement(floor, Host::ElementType::Slab).geometry =
        SlabGeometry{{all}, RoomHeight + 0.2, 0.2, {1}, {1}, {1}};
    return floor.project;
}

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

/// CPU seconds of this process (RUSAGE_SELF) or of its ended children (RUSAGE_CHILDREN).
double CpuSeconds(int who) {
    rusage usage{};
    ::getrusage(who, &usage);
    return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

/// When the process window over Radiance opened and closed, in CPU seconds of our own.
struct Marks {
    double opened = -1.0;
    double closed = -1.0;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::printf("usage: FloorBench RADIANCE_FOLDER [ZONES] [REFLECTIONS]\n");
        return 2;
    }
    Marks marks;
    SessionOptions options;
    options.ownLocation = Text::WidePath(std::filesystem::absolute(argv[1]) / "Vantoro.apx");
    options.onProgress = [&marks](const ProcessWindow& window) {
        if (marks.opened < 0.0) {
            marks.opened = CpuSeconds(RUSAGE_SELF);
        }
        if (!window.open) {
            marks.closed = CpuSeconds(RUSAGE_SELF);
        }
    };
    OpenSession(options);
    const int zones = argc > 2 ? std::atoi(argv[2]) : 60;
    OpenProject(MakeFloor(zones));
    Simulation::EngineSettings engine = Simulation::ProfileSettings(0);
    engine.bounces = argc > 3 ? std::atoi(argv[3]) : engine.bounces;
    Archicad::SaveEngineSettings(engine);

    const double start = CpuSeconds(RUSAGE_SELF);
    const Commands::Calculation calculation = Commands::RunCalculation();
    const double end = CpuSeconds(RUSAGE_SELF);
    const double radiance = CpuSeconds(RUSAGE_CHILDREN);
    const double before = marks.opened - start;
    const double during = marks.closed - marks.opened;
    const double after = end - marks.closed;
    const double own = before + during + after;
    std::printf("%zu Zones, %zu luminaires, %zu planes, %zu elements drawn into the project\n",
                calculation.zones.size(), calculation.study.luminaires.size(),
                calculation.built.planes.size(), CurrentSession().project.elements.size());
    std::printf(
        "Radiance %.1f s; ours before %.2f s, beside %.2f s, after %.2f s: %.2f %% of all\n",
        radiance, before, during, after, 100.0 * own / (own + radiance));
    std::printf("most memory: %ld MiB\n", [] {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss / 1024;
    }());
    FreeData();
    return calculation.end == Commands::CalculationEnd::Done ? 0 : 1;
}
