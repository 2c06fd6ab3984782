#include "Program/SampleProject.hpp"

#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "Archicad/ModelSample.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Tests {

namespace {

void AddNumberedZone(Workbench::Project& project, std::uint32_t guid, const std::string& name,
                     const std::string& number, double x) {
    Workbench::ProjectElement& zone =
        AddZone(project, guid, name, {PlanRectangle(x, 0.0, 3.0, 2.0)});
    std::get<Host::ZoneData>(zone.element.data).number = number;
}

} // namespace

Workbench::Project SmallProject() {
    Workbench::Project project = SampleProject();
    AddNumberedZone(project, 1, "Sala", "01", 0.0);
    AddNumberedZone(project, 2, "Depósito", "02", 4.0);
    AddNumberedZone(project, 3, "Sala", "11", 0.0);
    project.elements.back().element.header.floorIndex = 1;
    AddSlab(project, 4, {PlanRectangle(-0.2, -0.2, 7.6, 2.4)}, 0.0, 0.2);
    AddSlab(project, 5, {PlanRectangle(-0.2, -0.2, 7.6, 2.4)}, 3.2, 0.2);
    AddWall(project, 10, {0.0, 0.0}, {3.0, 0.0});
    AddWall(project, 11, {3.0, 0.0}, {3.0, 2.0});
    AddWall(project, 12, {3.0, 2.0}, {0.0, 2.0});
    AddWall(project, 13, {0.0, 2.0}, {0.0, 0.0});
    const std::int32_t part = AddLampPart(project, "Plafon");
    AddLamp(project, 20, part, {0.8, 1.0});
    AddLamp(project, 21, part, {2.2, 1.0});
    return project;
}

void SaveSample(const std::filesystem::path& path, const Workbench::Project& project) {
    std::string error;
    EXPECT_TRUE(Workbench::SaveProject(Text::WidePath(path), project, error)) << error;
}

} // namespace Merivane::Tests
