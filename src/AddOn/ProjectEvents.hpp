#pragma once

#include <cstdint>
#include <span>

#include "Host/Types.hpp"

namespace Merivane {

/// Something to be done whenever a project was made or opened.
using ProjectJob = void (*)();

/// Does the jobs, in their order, where `event` is that of a new or an opened project.
void RunProjectJobs(std::int32_t event, std::span<const ProjectJob> jobs);

/// Called by the host: the add-on's own jobs. Never fails.
Host::ErrorCode HandleProjectEvent(std::int32_t event);

} // namespace Merivane
