#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Types.hpp"

/// Stories, windows and their databases. Defined by whichever host is linked; nothing throws. Main
/// thread only.
namespace Merivane::Host {

/// One story.
struct Story {
    std::int16_t index = 0; ///< floor index; 0 is the ground floor, basements are negative
    double level = 0.0;     ///< of its floor [m]
    double height = 0.0;    ///< up to the next one [m]
    std::string name;       ///< UTF-8

    bool operator==(const Story&) const = default;
};

/// Ascending by index, without gaps; `activeFloor` is the one that the plan shows.
ErrorCode GetStories(std::vector<Story>& stories, std::int16_t& activeFloor);

/// The host's numbers for kinds of windows.
enum class WindowType : std::int32_t {
    FloorPlan = 1,
    Section = 2,
    Model3D = 4,
    Elevation = 10,
    InteriorElevation = 11,
    Worksheet = 12,
};

/// A window or the database behind it.
struct Window {
    WindowType type = WindowType::FloorPlan;
    Guid database;            ///< none for the floor plan and the 3D window
    std::string name;         ///< UTF-8
    std::string reference;    ///< reference id of worksheets and sections
    Guid marker;              ///< sections and elevations: the element on the plan
    std::int32_t segment = 0; ///< interior elevations: which wall of the marker

    bool operator==(const Window&) const = default;
};

/// The front window. NoPlan without a project.
ErrorCode GetCurrentWindow(Window& window);

/// Brings a window to front by its type and database, and makes its database the current one.
/// BadWindow when there is none; UndoScopeMisuse inside an undo step.
ErrorCode ChangeWindow(const Window& window);

/// The database that `ListElements` and `CreateElement` work on; follows the front window.
ErrorCode GetCurrentDatabase(Window& database);

/// Makes another database the current one without touching the front window: restore it on every
/// path. BadDatabase.
ErrorCode ChangeCurrentDatabase(const Window& database);

/// Shows another floor on the plan. InvalidStory; UndoScopeMisuse inside an undo step.
ErrorCode ChangeActiveFloor(std::int16_t floorIndex);

/// The worksheets of the project, in their order.
ErrorCode ListWorksheets(std::vector<Window>& worksheets);

/// Makes a worksheet of this name and reference, at 1:50. RefusedCommand inside an undo step;
/// NameInUse; BadParameters for a name that is empty or longer than 255 units of UTF-16.
ErrorCode CreateWorksheet(std::string_view name, std::string_view reference, Window& worksheet);

/// Scale denominator of the current database: 100 for 1:100. BadDatabase for the 3D window.
ErrorCode GetDrawingScale(double& scale);

/// BadParameters outside 1 to 30000; BadDatabase for the 3D window; refused (UndoScopeMisuse)
/// inside an undo step.
ErrorCode ChangeDrawingScale(double scale);

} // namespace Merivane::Host
