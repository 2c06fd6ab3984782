#include "Workbench/Script/ScriptTransform.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Merivane::Workbench {

namespace {

constexpr double Degree = std::numbers::pi / 180.0;
constexpr std::size_t Columns = 4;
constexpr std::size_t Rows = 3;
constexpr std::size_t XY = 1;
constexpr std::size_t YX = 4;
constexpr std::size_t YY = 5;

/// Sine and cosine that are exact for quarter turns, as scripts expect them.
double SineOf(double degrees) {
    constexpr double half = 180.0;
    constexpr double turn = 360.0;
    const double angle = std::remainder(degrees, turn);
    if (angle == 0.0 || std::abs(angle) == half) {
        return 0.0;
    }
    return std::sin(angle * Degree);
}

double CosineOf(double degrees) {
    constexpr double quarter = 90.0;
    constexpr double turn = 360.0;
    const double angle = std::remainder(degrees, turn);
    return std::abs(angle) == quarter ? 0.0 : std::cos(angle * Degree);
}

} // namespace

const ScriptFrame& CurrentFrame(const TransformStack& stack) {
    return stack.combined.empty() ? UnmovedFrame : stack.combined.back();
}

ScriptFrame CombineFrames(const ScriptFrame& outer, const ScriptFrame& inner) {
    ScriptFrame frame = {};
    for (std::size_t row = 0; row < Rows; ++row) {
        const double* from = &outer[row * Columns];
        for (std::size_t column = 0; column < Columns; ++column) {
            frame[row * Columns + column] = from[0] * inner[column] +
                                            from[1] * inner[Columns + column] +
                                            from[2] * inner[2 * Columns + column];
        }
        frame[row * Columns + Rows] += from[Rows];
    }
    return frame;
}

bool PushTransform(TransformStack& stack, const ScriptFrame& entry) {
    constexpr double largest = 1e15;
    const ScriptFrame frame = CombineFrames(CurrentFrame(stack), entry);
    const bool countable = std::all_of(frame.begin(), frame.end(),
                                       [](double number) { return std::abs(number) <= largest; });
    if (countable) {
        stack.entries.push_back(entry);
        stack.combined.push_back(frame);
    }
    return countable;
}

void EraseTransforms(TransformStack& stack, std::size_t first, std::size_t count) {
    const auto begin = stack.entries.begin() + static_cast<std::ptrdiff_t>(first);
    stack.entries.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
    stack.combined.resize(first);
    for (std::size_t i = first; i < stack.entries.size(); ++i) {
        stack.combined.push_back(CombineFrames(CurrentFrame(stack), stack.entries[i]));
    }
}

ScriptFrame MoveFrame(double x, double y, double z) {
    return {1, 0, 0, x, 0, 1, 0, y, 0, 0, 1, z};
}

ScriptFrame ScaleFrame(double x, double y, double z) {
    return {x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0};
}

// Rodrigues' formula.
ScriptFrame TurnFrame(double x, double y, double z, double degrees) {
    const double length = std::hypot(x, y, z);
    const double u = x / length;
    const double v = y / length;
    const double w = z / length;
    const double s = SineOf(degrees);
    const double c = CosineOf(degrees);
    const double d = 1.0 - c;
    return {c + u * u * d,     u * v * d - w * s, u * w * d + v * s, 0.0,
            v * u * d + w * s, c + v * v * d,     v * w * d - u * s, 0.0,
            w * u * d - v * s, w * v * d + u * s, c + w * w * d,     0.0};
}

namespace {

/// Rows of the matrix of cofactors of a frame's linear part, and its determinant.
double Cofactors(const ScriptFrame& t, std::array<double, 9>& c) {
    c = {t[5] * t[10] - t[6] * t[9], t[6] * t[8] - t[4] * t[10], t[4] * t[9] - t[5] * t[8],
         t[2] * t[9] - t[1] * t[10], t[0] * t[10] - t[2] * t[8], t[1] * t[8] - t[0] * t[9],
         t[1] * t[6] - t[2] * t[5],  t[2] * t[4] - t[0] * t[6],  t[0] * t[5] - t[1] * t[4]};
    return t[0] * c[0] + t[1] * c[1] + t[2] * c[2];
}

} // namespace

bool InvertFrame(const ScriptFrame& frame, ScriptFrame& inverse) {
    std::array<double, 9> c = {};
    const double volume = Cofactors(frame, c);
    constexpr double smallest = 1e-30;
    if (!(std::abs(volume) > smallest)) {
        return false;
    }
    inverse = {c[0] / volume, c[3] / volume, c[6] / volume, 0.0,
               c[1] / volume, c[4] / volume, c[7] / volume, 0.0,
               c[2] / volume, c[5] / volume, c[8] / volume, 0.0};
    const Host::Coordinate3D moved = FrameDirection(inverse, frame[3], frame[7], frame[11]);
    inverse[3] = -moved.x;
    inverse[7] = -moved.y;
    inverse[11] = -moved.z;
    return true;
}

bool MirrorsSpace(const ScriptFrame& frame) {
    std::array<double, 9> c = {};
    return Cofactors(frame, c) < 0.0;
}

Host::Coordinate3D FramePlace(const ScriptFrame& t, double x, double y, double z) {
    return {t[0] * x + t[1] * y + t[2] * z + t[3], t[4] * x + t[5] * y + t[6] * z + t[7],
            t[8] * x + t[9] * y + t[10] * z + t[11]};
}

Host::Coordinate3D FrameDirection(const ScriptFrame& t, double x, double y, double z) {
    return {t[0] * x + t[1] * y + t[2] * z, t[4] * x + t[5] * y + t[6] * z,
            t[8] * x + t[9] * y + t[10] * z};
}

Host::Coordinate FramePlanPlace(const ScriptFrame& frame, double x, double y) {
    const Host::Coordinate3D place = FramePlace(frame, x, y, 0.0);
    return {place.x, place.y};
}

PlanFrame DescribePlanFrame(const ScriptFrame& frame) {
    constexpr double rounding = 1e-9;
    PlanFrame plan;
    plan.scaleX = std::hypot(frame[0], frame[YX]);
    plan.scaleY = std::hypot(frame[XY], frame[YY]);
    plan.angle = std::atan2(frame[YX], frame[0]) / Degree;
    plan.mirrored = frame[0] * frame[YY] - frame[XY] * frame[YX] < 0.0;
    const double across = frame[0] * frame[XY] + frame[YX] * frame[YY];
    const double size = std::max(plan.scaleX, plan.scaleY);
    plan.conformal = std::abs(plan.scaleX - plan.scaleY) <= rounding * size &&
                     std::abs(across) <= rounding * size * size;
    return plan;
}

} // namespace Merivane::Workbench
