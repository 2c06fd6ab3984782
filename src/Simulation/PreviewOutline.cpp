#include "Simulation/PreviewOutline.hpp"

#include <array>
#include <cmath>
#include <numbers>

#include "Photometry/CandelaLookup.hpp"
#include "Photometry/LuminaireRotation.hpp"
#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Simulation {

namespace {

using Photometry::IesFile;
using Photometry::LuminaireSettings;
using Photometry::RotationMatrix;
using Vector = std::array<double, 3>;

constexpr int CurveSteps = 144; // of 2.5 degrees
constexpr int RoundChords = 24; // of 15 degrees

constexpr double AngleOf(int step, int steps) {
    return 2.0 * std::numbers::pi * step / steps;
}

Vector Rotate(const RotationMatrix& r, const Vector& v) {
    return {r[0] * v[0] + r[1] * v[1] + r[2] * v[2], r[3] * v[0] + r[4] * v[1] + r[5] * v[2],
            r[6] * v[0] + r[7] * v[1] + r[8] * v[2]};
}

/// The photometric centre moved `length` along a direction of the part's frame.
Point3D FromCenter(const LuminaireSettings& settings, const Vector& direction, double length) {
    return {settings.centerX + direction[0] * length, settings.centerY + direction[1] * length,
            settings.centerZ + direction[2] * length};
}

/// The direction of a step of the curve, in the part's frame.
Vector CurveDirection(const RotationMatrix& rotation, PreviewView view, double beam, double angle) {
    switch (view) {
    case PreviewView::Front:
        return {std::sin(angle), 0.0, -std::cos(angle)};
    case PreviewView::Side:
        return {0.0, std::sin(angle), -std::cos(angle)};
    case PreviewView::Plan:
        break;
    }
    return Rotate(rotation, {std::sin(beam) * std::cos(angle), std::sin(beam) * std::sin(angle),
                             -std::cos(beam)});
}

/// A point of the photometric frame, from its centre, in the part's frame.
Point3D Placed(const LuminaireSettings& settings, const RotationMatrix& rotation,
               const Vector& offset) {
    return FromCenter(settings, Rotate(rotation, offset), 1.0);
}

/// Corners of the declared opening in its own plane; a round one's meet its first again.
std::vector<Point2D> OpeningRing(const IesFile& file) {
    const double unit = Photometry::UnitsToMetres(file.unitsType);
    double alongX = std::abs(file.length) * unit / 2.0;
    double alongY = std::abs(file.width) * unit / 2.0;
    std::vector<Point2D> ring;
    if (file.width < 0.0 || file.length < 0.0) {
        // Editions up to 1995 tell a round opening by one side alone.
        alongX = alongX == 0.0 ? alongY : alongX;
        alongY = alongY == 0.0 ? alongX : alongY;
        for (int step = 0; step <= RoundChords; ++step) {
            const double angle = AngleOf(step % RoundChords, RoundChords);
            ring.push_back({alongX * std::cos(angle), alongY * std::sin(angle)});
        }
    } else {
        ring = {{alongX, alongY}, {-alongX, alongY}, {-alongX, -alongY}, {alongX, -alongY}};
        ring.push_back(ring.front());
    }
    return ring;
}

} // namespace

Point2D OnView(PreviewView view, const Point3D& point) {
    switch (view) {
    case PreviewView::Front:
        return {point.x, point.z};
    case PreviewView::Side:
        return {point.y, point.z};
    case PreviewView::Plan:
        break;
    }
    return {point.x, point.y};
}

PreviewLine IntensityOutline(const IesFile& file, const LuminaireSettings& settings,
                             PreviewView view, double peakLength) {
    const double peak = Photometry::PeakCandela(file);
    const RotationMatrix rotation = Photometry::LuminaireRotation(settings);
    const double beam = Photometry::BeamHalfAngle(file) * Photometry::RadiansInADegree;
    PreviewLine line;
    double longest = 0.0;
    for (int step = 0; step < CurveSteps && peak > 0.0; ++step) {
        const Vector direction = CurveDirection(rotation, view, beam, AngleOf(step, CurveSteps));
        double vertical = 0.0;
        double horizontal = 0.0;
        Photometry::DirectionToIesAngles(rotation, direction, vertical, horizontal);
        const double share = Photometry::CandelaAt(file, vertical, horizontal) / peak;
        longest = std::max(longest, std::abs(share));
        line.push_back(FromCenter(settings, direction, share * peakLength));
    }
    if (longest == 0.0) {
        return {};
    }
    line.push_back(line.front());
    return line;
}

std::vector<PreviewLine> OpeningOutlines(const IesFile& file, const LuminaireSettings& settings) {
    if (file.width == 0.0 && file.length == 0.0 && file.height == 0.0) {
        return {};
    }
    const RotationMatrix rotation = Photometry::LuminaireRotation(settings);
    const double half = std::abs(file.height) * Photometry::UnitsToMetres(file.unitsType) / 2.0;
    const std::vector<Point2D> ring = OpeningRing(file);
    PreviewLine below;
    PreviewLine above;
    for (const Point2D& corner : ring) {
        below.push_back(Placed(settings, rotation, {corner.x, corner.y, -half}));
        above.push_back(Placed(settings, rotation, {corner.x, corner.y, half}));
    }
    if (half == 0.0) {
        return {below};
    }
    // Of a round one a quarter apart: what shows from the front and from the side.
    const std::size_t stride = (ring.size() - 1) / 4;
    std::vector<PreviewLine> lines = {below, above};
    for (std::size_t corner = 0; corner < 4; ++corner) {
        lines.push_back({below[corner * stride], above[corner * stride]});
    }
    return lines;
}

PreviewLine AxisLine(const LuminaireSettings& settings, double length) {
    const Vector axis = Rotate(Photometry::LuminaireRotation(settings), {0.0, 0.0, -1.0});
    return {FromCenter(settings, axis, 0.0), FromCenter(settings, axis, length)};
}

PreviewLine C0Line(const LuminaireSettings& settings, double length) {
    const Vector c0 = Rotate(Photometry::LuminaireRotation(settings), {1.0, 0.0, 0.0});
    return {FromCenter(settings, c0, 0.0), FromCenter(settings, c0, length)};
}

} // namespace Merivane::Simulation
