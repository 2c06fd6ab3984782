// A large project made through its records (100 storeys, 2,000 Zones, 20,000 luminaires of 40
// types, each type with a candela table of 37 x 24), saved and loaded. Prints seconds, the size of
// the file and the most memory that the process held.
//   ProjectBench [FOLDER]   the file stays in FOLDER; without one, in the temporary folder

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

#include <sys/resource.h>

#include "Text/NativePath.hpp"
#include "Workbench/Project/ElementIndex.hpp"
#include "Workbench/Project/GuidSource.hpp"
#include "Workbench/Project/ProjectFile.hpp"

using namespace Merivane;
using namespace Merivane::Workbench;

namespace {

using Clock = std::chrono::steady_clock;
using Host::ElementType;
using Host::ParameterType;

constexpr int Storeys = 100;
constexpr int ZonesOnEach = 20;
constexpr int LuminairesInEach = 10;
constexpr int Types = 40;
constexpr int VerticalAngles = 37;
constexpr int HorizontalAngles = 24;

Host::LibraryParameter Number(const std::string& name, double number) {
    Host::LibraryParameter parameter;
    parameter.name = name;
    parameter.description = "Valor de " + name;
    parameter.number = number;
    return parameter;
}

Host::LibraryParameter Label(const std::string& name, const std::string& text) {
    Host::LibraryParameter parameter;
    parameter.name = name;
    parameter.type = ParameterType::String;
    parameter.text = text;
    return parameter;
}

Host::LibraryParameter Candelas(int type) {
    Host::LibraryParameter table = Number("mvCandelas", 0.0);
    table.isArray = true;
    table.dim1 = HorizontalAngles;
    table.dim2 = VerticalAngles;
    for (int column = 0; column < HorizontalAngles; ++column) {
        for (int row = 0; row < VerticalAngles; ++row) {
            const double angle = row * 2.5 * 3.141592653589793 / 180.0;
            table.numbers.push_back(1000.0 * std::pow(std::cos(angle), 1.0 + type * 0.1) +
                                    column * 0.37);
        }
    }
    return table;
}

ProjectPart MakeType(int type, GuidSource& guids) {
    ProjectPart part;
    part.name = "Luminária " + std::to_string(type + 1);
    part.mainGuid = NextGuid(guids);
    part.isLamp = true;
    part.parameters = {Label("mvContrato", "Vantoro"), Label("mvFabricante", "Exemplo"),
                       Label("mvIdentificacao", "L" + std::to_string(type + 1)), Candelas(type)};
    for (int i = 0; i < 40; ++i) {
        part.parameters.push_back(Number("mvNumero" + std::to_string(i), i * 1.25));
    }
    return part;
}

ProjectElement MakeElement(ElementType type, int storey, Project& project, GuidSource& guids) {
    ProjectElement element;
    element.element.header.type = type;
    element.element.header.guid = NextGuid(guids);
    element.element.header.floorIndex = static_cast<std::int16_t>(storey);
    element.element.header.layer = {1};
    element.element.header.stamp = ++project.lastStamp;
    return element;
}

void AddZone(int storey, int place, Project& project, GuidSource& guids) {
    const int row = place / 5;
    const double x = (place % 5) * 12.0;
    const double y = row * 10.0;
    ProjectElement zone = MakeElement(ElementType::Zone, storey, project, guids);
    zone.element.data =
        Host::ZoneData{"Sala " + std::to_string(place + 1), "", 0.0, 2.8, {x + 1.0, y + 1.0}};
    zone.memo.polygon = {{{{x, y}, {x + 11.5, y}, {x + 11.5, y + 9.5}, {x, y + 9.5}}, {}}};
    project.elements.push_back(std::move(zone));
    for (int i = 0; i < LuminairesInEach; ++i) {
        const int line = i / 5;
        const int type = static_cast<int>(project.elements.size()) % Types;
        ProjectElement lamp = MakeElement(ElementType::Lamp, storey, project, guids);
        lamp.element.data = Host::ObjectData{
            type + 1, {x + 1.0 + i % 5 * 2.2, y + 2.0 + line * 4.5}, 2.75, 0.1 * i, false, 0.6,
            0.6};
        const std::vector<Host::LibraryParameter>& parameters =
            project.parts[static_cast<std::size_t>(type)].parameters;
        lamp.memo.parameters = {parameters[2], parameters[10], parameters[20]};
        lamp.memo.parameters[0].text += " " + std::to_string(i);
        lamp.memo.parameters[1].number += i + 0.5;
        lamp.memo.parameters[2].number += i + 0.5;
        project.elements.push_back(std::move(lamp));
    }
}

Project MakeProject() {
    GuidSource guids = MakeGuidSource(7);
    Project project = MakeEmptyProject();
    project.name = "Torre";
    project.stories.clear();
    for (int type = 0; type < Types; ++type) {
        project.parts.push_back(MakeType(type, guids));
    }
    for (int storey = 0; storey < Storeys; ++storey) {
        project.stories.push_back({static_cast<std::int16_t>(storey), 3.0 * storey, 3.0,
                                   "Pavimento " + std::to_string(storey)});
        for (int place = 0; place < ZonesOnEach; ++place) {
            AddZone(storey, place, project, guids);
        }
    }
    return project;
}

double Seconds(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double PeakMebibytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0; // Linux counts KiB
}

void Tell(const char* work, double seconds) {
    std::printf("%-28s %8.2f s %8.0f MiB at most\n", work, seconds, PeakMebibytes());
}

} // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder =
        argc > 1 ? std::filesystem::path(argv[1]) : std::filesystem::temp_directory_path();
    const std::wstring path = Text::WidePath(folder / "torre.vantoro");
    std::string error;

    Clock::time_point start = Clock::now();
    const Project project = MakeProject();
    Tell("make", Seconds(start));

    start = Clock::now();
    const std::string bytes = WriteProject(project);
    Tell("write to text", Seconds(start));

    start = Clock::now();
    if (!SaveProject(path, project, error)) {
        std::printf("%s\n", error.c_str());
        return 1;
    }
    Tell("save (written, read, flushed)", Seconds(start));

    start = Clock::now();
    Project loaded;
    if (!ReadProject(path, loaded, error)) {
        std::printf("%s\n", error.c_str());
        return 1;
    }
    Tell("load", Seconds(start));
    const bool same = loaded == project && WriteProject(loaded) == bytes;
    std::printf("%zu elements, %.1f MiB, read back %s\n", project.elements.size(),
                static_cast<double>(bytes.size()) / 1048576.0, same ? "the same" : "DIFFERENT");
    if (argc < 2) {
        std::filesystem::remove(Text::NativePath(path));
    }
    return same ? 0 : 1;
}
