#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Types.hpp"

/// The View Map of the open project: what the user opens and publishes. Changing it needs no undo
/// step and cannot be undone; inside one it is refused (UndoScopeMisuse). Several views may have
/// one name. Defined by whichever host is linked; nothing throws. Main thread only.
namespace Merivane::Host {

/// The host's numbers for kinds of entries.
enum class ViewKind : std::int32_t {
    Other = 0, ///< details, schedules and whatever else there is
    FloorPlan = 2,
    Section = 3,
    Model3D = 6, ///< axonometry or perspective
    Elevation = 19,
    InteriorElevation = 20,
    Worksheet = 22,
    Folder = 24,
};

/// One entry of the View Map. Folders have a name alone.
struct View {
    Guid guid;
    ViewKind kind = ViewKind::FloorPlan;
    std::int16_t floorIndex = 0;  ///< of a floor plan's view
    std::string name;             ///< 1 to 255 units of UTF-16, as UTF-8
    std::string layerCombination; ///< its name; empty = the layers as they stand
    double scale = 0.0;           ///< denominator, 1 to 30000; 0 = the window's own

    bool operator==(const View&) const = default;
};

/// All entries, those in folders too, in the order of the map. NoPlan without a project.
ErrorCode ListViews(std::vector<View>& views);

/// Makes a view of the floor plan or of the 3D window at the end of the map, outside all folders;
/// its guid comes back in `view`. NotSupported for another kind; BadParameters for the name or the
/// scale; InvalidStory; BadName for a layer combination that there is not.
ErrorCode CreateView(View& view);

/// Gives the entry of `view.guid` this name, floor, layer combination and scale; it keeps its place
/// and kind. BadId; BadParameters for another kind than its own; else as `CreateView`.
ErrorCode ChangeView(const View& view);

} // namespace Merivane::Host
