#pragma once

#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Project/ModelGeometry.hpp"

/// Walls, and what stands in their openings. Heights count from the wall's story.
namespace Merivane::Workbench {

/// A stretch of a wall that an opening takes away: what of the opening lies in the wall.
struct WallCut {
    double begin = 0.0; ///< along the wall's line [m]
    double end = 0.0;
    double low = 0.0; ///< above the wall's bottom [m]
    double high = 0.0;
};

/// Length of a wall's line [m]; of a bent one along the arc.
double WallLength(const WallGeometry& wall);

/// False for a wall that cannot stand: no length, thickness or height, a whole circle or more, or
/// bent so tightly that its inner side folds.
bool IsSoundWall(const WallGeometry& wall);

/// What an opening takes from its wall; false when it lies outside of the wall.
bool CutOfOpening(const WallGeometry& wall, const OpeningGeometry& opening, WallCut& cut);

/// The body of a wall with its openings cut through, square to its line. Ends are butt; an arc is
/// in chords, and openings that overlap are one hole. Empty for a wall that is not sound.
FacedBody BuildWallBody(const WallGeometry& wall, const std::vector<OpeningGeometry>& openings);

/// Frame and pane of an opening as one closed body in the middle of the wall's thickness. The pane
/// fills the frame: it has two faces, `depth` apart, and no others; in a bent wall both follow its
/// chords. Where the opening reaches the wall's bottom the frame has no member. Empty for an empty
/// opening and for one outside of its wall.
FacedBody BuildOpeningBody(const WallGeometry& wall, const OpeningGeometry& opening);

/// The room that an opening takes through the wall, as a body, whether empty or not.
FacedBody BuildOpeningRoom(const WallGeometry& wall, const OpeningGeometry& opening);

} // namespace Merivane::Workbench
