#include "Simulation/LinearLuminaire.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string_view>

#include "Photometry/ContractReading.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

using Photometry::ContractParameter;
using Parameters = std::vector<ContractParameter>;
using Kind = Photometry::ContractParameterType;

constexpr double LatestVersion = 1.000000001; // a number of the host, not always whole
constexpr double ShortestPiece = 0.01;        // m
constexpr double MostPieces = 100'000.0;      // far beyond any building
constexpr double NoOpening = 1e-6;            // m
constexpr double Coinciding = 1e-9;           // m, also between directions
constexpr double DegreesPerRadian = 180.0 / std::numbers::pi;

double NumberOf(const Parameters& parameters, std::string_view name, double absent) {
    const ContractParameter* const found = Photometry::FindParameter(parameters, name);
    const bool isNumber = found != nullptr && found->type != Kind::String &&
                          found->type != Kind::RealArray && found->type != Kind::StringArray &&
                          std::isfinite(found->number);
    return isNumber ? found->number : absent;
}

LinearMounting MountingOf(double number) {
    for (const LinearMounting mounting :
         {LinearMounting::Cove, LinearMounting::Lateral, LinearMounting::Pendant}) {
        if (std::round(number) == static_cast<double>(mounting)) {
            return mounting;
        }
    }
    return LinearMounting::Recessed;
}

/// Fills `path`, or tells why it can't be.
std::string PathError(const Parameters& parameters, LinearPath& path) {
    constexpr std::string_view unreadable = "percurso da luminaria linear ilegivel";
    const ContractParameter* const table = Photometry::FindParameter(parameters, "mvLinearPath");
    const double count = std::round(NumberOf(parameters, "mvLinearCount", -1.0));
    if (table == nullptr || table->type != Kind::RealArray || table->dim2 != 2 || count < 0.0 ||
        2.0 * count > static_cast<double>(table->numbers.size())) {
        return std::string(unreadable);
    }
    if (count < 2.0) {
        return "percurso da luminaria linear com menos de 2 pontos";
    }
    for (std::size_t i = 0; i < 2 * static_cast<std::size_t>(count); i += 2) {
        path.push_back({table->numbers[i], table->numbers[i + 1]});
        if (!std::isfinite(path.back().x) || !std::isfinite(path.back().y)) {
            return std::string(unreadable);
        }
    }
    return {};
}

/// Adds the rest of a stretch to the last piece where that lies in its direction.
void MergeRest(double rest, Point2D direction, double length, std::vector<LinearPiece>& pieces) {
    if (pieces.empty() || std::abs(pieces.back().direction.x - direction.x) > Coinciding ||
        std::abs(pieces.back().direction.y - direction.y) > Coinciding) {
        return;
    }
    LinearPiece& last = pieces.back();
    last.length += rest;
    last.fraction = last.length / length;
    last.center.x += direction.x * rest / 2.0;
    last.center.y += direction.y * rest / 2.0;
}

void SplitStretch(Point2D from, Point2D to, double length, double minimumPiece,
                  std::vector<LinearPiece>& pieces) {
    const double stretch = std::hypot(to.x - from.x, to.y - from.y);
    if (!(stretch > Coinciding)) {
        return;
    }
    const Point2D direction{(to.x - from.x) / stretch, (to.y - from.y) / stretch};
    for (double offset = 0.0; stretch - Coinciding > offset;) {
        const double piece = std::min(stretch - offset, length);
        if (piece < minimumPiece) {
            MergeRest(piece, direction, length, pieces);
            return;
        }
        const double middle = offset + piece / 2.0;
        pieces.push_back({{from.x + direction.x * middle, from.y + direction.y * middle},
                          direction,
                          piece,
                          piece / length});
        offset += piece;
    }
}

double LengthOf(const LinearPath& path) {
    double length = 0.0;
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        length += std::hypot(path[i + 1].x - path[i].x, path[i + 1].y - path[i].y);
    }
    return length;
}

/// Moves the luminaire to a place relative to its origin, which is mirrored and turned with it.
void MoveTo(Point2D place, SceneLuminaire& luminaire) {
    const double x = luminaire.mirrored ? -place.x : place.x;
    const double c = std::cos(luminaire.rotation);
    const double s = std::sin(luminaire.rotation);
    luminaire.x += c * x - s * place.y;
    luminaire.y += s * x + c * place.y;
}

SceneLuminaire PieceOf(const SceneLuminaire& luminaire, const LinearPiece& piece,
                       const LinearSpec& spec, bool alongC0) {
    SceneLuminaire made = luminaire;
    const double angle = std::atan2(piece.direction.y, piece.direction.x) * DegreesPerRadian;
    made.lengthScale = piece.fraction;
    made.contract.c0Rotation = angle - (alongC0 ? 0.0 : 90.0);
    made.contract.tiltAngle = 0.0;
    made.contract.tiltDirection = angle;
    double aside = 0.0;
    if (spec.mounting == LinearMounting::Cove) {
        made.contract.tiltAngle = 180.0;
        made.z += spec.profileHeight;
    } else if (spec.mounting == LinearMounting::Lateral) {
        made.contract.tiltAngle = spec.tilt;
        made.contract.tiltDirection = angle + (spec.lightLeft ? 90.0 : -90.0);
        made.z += spec.profileHeight / 2.0;
        aside = (spec.lightLeft ? spec.profileWidth : -spec.profileWidth) / 2.0;
    }
    MoveTo({piece.center.x - aside * piece.direction.y, piece.center.y + aside * piece.direction.x},
           made);
    return made;
}

} // namespace

bool ReadLinearContract(const Parameters& parameters, LinearSpec& spec, LinearPath& path,
                        std::string& error) {
    spec = {};
    path.clear();
    error.clear();
    if (Photometry::FindParameter(parameters, "mvLinearVersion") == nullptr) {
        return false;
    }
    const double version = NumberOf(parameters, "mvLinearVersion", 0.0);
    if (version > LatestVersion) {
        error = "luminaria linear de versao mais nova (" + Text::FormatShortest(version) + ")";
        return false;
    }
    error = PathError(parameters, path);
    spec.mounting = MountingOf(NumberOf(parameters, "mvLinearMounting", 0.0));
    spec.tilt = NumberOf(parameters, "mvLinearTilt", spec.tilt);
    spec.lightLeft = NumberOf(parameters, "mvLinearLightLeft", 1.0) != 0.0;
    spec.profileWidth = NumberOf(parameters, "mvLinearProfileW", spec.profileWidth);
    spec.profileHeight = NumberOf(parameters, "mvLinearProfileH", spec.profileHeight);
    return error.empty();
}

MeasuredLength MeasuredLengthOf(const Photometry::IesFile& file) {
    const double unit = Photometry::UnitsToMetres(file.unitsType);
    const double width = std::max(file.width * unit, 0.0);
    const double length = std::max(file.length * unit, 0.0);
    if (!(std::max(width, length) > NoOpening)) {
        return {};
    }
    return {std::max(width, length), length >= width, true};
}

std::vector<LinearPiece> SplitPath(const LinearPath& path, double length, double minimumPiece) {
    std::vector<LinearPiece> pieces;
    if (!(length > 0.0)) {
        return pieces;
    }
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        SplitStretch(path[i], path[i + 1], length, minimumPiece, pieces);
    }
    return pieces;
}

std::vector<SceneLuminaire> ExpandLinear(const SceneLuminaire& luminaire, const LinearPath& path,
                                         const LinearSpec& spec) {
    std::vector<SceneLuminaire> made;
    const MeasuredLength measured = MeasuredLengthOf(luminaire.photometry);
    if (!(LengthOf(path) <= MostPieces * measured.length)) {
        return made;
    }
    for (const LinearPiece& piece : SplitPath(path, measured.length, ShortestPiece)) {
        made.push_back(PieceOf(luminaire, piece, spec, measured.alongC0));
        made.back().id += "_p" + std::to_string(made.size());
    }
    return made;
}

} // namespace Merivane::Simulation
