#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Simulation/ContourRecords.hpp"

namespace Merivane::Simulation {

/// Where the levels of curves are written.
struct CurveLabels {
    std::vector<std::optional<Point2D>> positions; ///< one for each curve, same order [m]
    std::uint64_t unlabelled = 0;                  ///< curves without a label
};

/// True where the label of a curve may stand with its middle at a point [m].
using LabelFilter = std::function<bool(const IsoCurve&, Point2D)>;

/// Places at most one label on each curve, clear of all others: each goes to the curve's point
/// that is farthest from the labels already placed, the first of equals. Labels keep 0.35 m from
/// each other, or `labelWidth` where that is more: the width of the widest label in the drawing's
/// scale [m], so that no two cover each other. A curve of fewer than 6 points, or without a point
/// that far from every label, gets none.
///
/// `wishes` say where a label should stand beside that, the most demanding first: a curve that has
/// no place by one of them is tried by the next, and without a place by the last gets none. With no
/// wishes every point will do.
CurveLabels PlaceCurveLabels(const std::vector<IsoCurve>& curves, double labelWidth = 0.0,
                             const std::vector<LabelFilter>& wishes = {});

/// What is written at the limit of the task area.
inline constexpr const char* TaskLimitText = "Limite da área de tarefa";

/// The topmost point of all curves, of tops equal within 1e-9 m the leftmost: where the limit of
/// the task area is named. None without points.
std::optional<Point2D> TopmostPoint(const std::vector<IsoCurve>& curves);

/// One line for the log on curves without a label: "3 curva(s) sem rotulo (...)".
std::string UnlabelledCurvesText(std::uint64_t count);

} // namespace Merivane::Simulation
