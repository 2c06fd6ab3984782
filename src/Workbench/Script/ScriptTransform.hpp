#pragma once

#include <cstddef>
#include <vector>

#include "Workbench/Script/PartModel.hpp"

/// Transformations of scripts. Each statement adds one entry, whatever it does; a later one works
/// in the frame of those before it.
namespace Merivane::Workbench {

inline constexpr ScriptFrame UnmovedFrame = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};

struct TransformStack {
    std::vector<ScriptFrame> entries;
    std::vector<ScriptFrame> combined; ///< the frame behind each entry
};

/// The frame in force.
const ScriptFrame& CurrentFrame(const TransformStack& stack);

/// `inner` worked in the frame `outer`.
ScriptFrame CombineFrames(const ScriptFrame& outer, const ScriptFrame& inner);

/// Adds an entry. False, with nothing added, when places would get too large to count with.
bool PushTransform(TransformStack& stack, const ScriptFrame& entry);

/// Removes `count` entries from `first` on (counted from 0) and works the frames out anew.
void EraseTransforms(TransformStack& stack, std::size_t first, std::size_t count);

ScriptFrame MoveFrame(double x, double y, double z);
ScriptFrame ScaleFrame(double x, double y, double z);

/// Turns counter-clockwise around an axis through the origin, seen against it [degrees]. The axis
/// must have a length.
ScriptFrame TurnFrame(double x, double y, double z, double degrees);

/// The frame that takes `frame` back. False where it has no volume.
bool InvertFrame(const ScriptFrame& frame, ScriptFrame& inverse);

/// True for a frame that turns left hands into right ones.
bool MirrorsSpace(const ScriptFrame& frame);

/// A place, and a direction, of the frame's own in the part's.
Host::Coordinate3D FramePlace(const ScriptFrame& frame, double x, double y, double z);
Host::Coordinate3D FrameDirection(const ScriptFrame& frame, double x, double y, double z);
Host::Coordinate FramePlanPlace(const ScriptFrame& frame, double x, double y);

/// What a frame does to plan shapes.
struct PlanFrame {
    double scaleX = 1.0; ///< lengths along its x axis
    double scaleY = 1.0;
    double angle = 0.0; ///< of its x axis [degrees]
    bool mirrored = false;
    bool conformal = true; ///< circles stay circles
};

PlanFrame DescribePlanFrame(const ScriptFrame& frame);

} // namespace Merivane::Workbench
