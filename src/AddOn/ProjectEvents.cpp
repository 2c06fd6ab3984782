#include "AddOn/ProjectEvents.hpp"

#include <array>

#include "Archicad/LibraryMigration.hpp"
#include "Host/Menus.hpp"

namespace Merivane {

namespace {

constexpr std::array<ProjectJob, 1> OwnJobs = {Archicad::MigrateLibraryFolder};

} // namespace

void RunProjectJobs(std::int32_t event, std::span<const ProjectJob> jobs) {
    if (event != Host::ProjectNew && event != Host::ProjectOpen) {
        return;
    }
    for (const ProjectJob job : jobs) {
        job();
    }
}

Host::ErrorCode HandleProjectEvent(std::int32_t event) {
    RunProjectJobs(event, OwnJobs);
    return Host::NoError;
}

} // namespace Merivane
