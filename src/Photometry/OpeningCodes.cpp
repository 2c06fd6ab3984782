// LM-63 codes the shape of the luminous opening in the signs of width, length and height. The
// editions up to 1995 tell a circle with one negative side, its diameter, and leave the other
// diameter 0; from 2002 on both are told and negative. `ies2rad` goes by the edition's own table of
// signs, refuses every other combination, and builds only rectangles, boxes, disks, vertical
// cylinders and spheres.

#include "Photometry/OpeningCodes.hpp"

#include <algorithm>
#include <cmath>

#include "Photometry/InertHeader.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Text/Number.hpp"

namespace Merivane::Photometry {

namespace {

constexpr int LastOlderEdition = 2; // LM-63-1995
constexpr int Edition2002 = 3;

/// What `ies2rad` makes of a side of 0 next to another that is not; finer differences between
/// sides don't tell an ellipse from a circle. [m]
constexpr double LeastSide = 0.001;

/// Sides with the signs of a code, in the file's units.
struct Opening {
    double width = 0.0;
    double length = 0.0;
    double height = 0.0;

    bool operator==(const Opening&) const = default;
};

double FiniteOrZero(double side) {
    return std::isfinite(side) ? side : 0.0;
}

bool HasNegativeSide(const Opening& opening) {
    return opening.width < 0.0 || opening.length < 0.0 || opening.height < 0.0;
}

bool IsRound(const Opening& known) {
    return known.width < 0.0;
}

/// Sizes of all sides; a side of 0 that a round code leaves out gets the diameter it tells.
Opening FullSides(const Opening& told) {
    const double diameter = told.width < 0.0    ? -told.width
                            : told.length < 0.0 ? -told.length
                                                : std::max(-told.height, 0.0);
    Opening sides = {std::abs(told.width), std::abs(told.length), std::abs(told.height)};
    // Length and height both negative is a disk that stands upright, of no width (2002).
    const bool standingDisk = told.length < 0.0 && told.height < 0.0;
    if (sides.width == 0.0 && !standingDisk) {
        sides.width = diameter;
    }
    if (sides.length == 0.0) {
        sides.length = diameter;
    }
    return sides;
}

/// Rectangle or box of the sides. A line has no area to shine from: it is made as thin as can be.
Opening BoxOfSides(const Opening& sides, double leastSide) {
    const bool hasArea = (sides.width > 0.0 && sides.length > 0.0) ||
                         (sides.height > 0.0 && sides.width + sides.length > 0.0);
    const bool isPoint = sides == Opening{};
    if (hasArea || isPoint) {
        return sides;
    }
    return {std::max(sides.width, leastSide), std::max(sides.length, leastSide), sides.height};
}

/// The opening as `ies2rad` builds it, in the code of 2002.
Opening KnownForm(const Opening& told, double leastSide) {
    if (!HasNegativeSide(told)) {
        return BoxOfSides(told, leastSide);
    }
    const auto equal = [leastSide](double a, double b) { return std::abs(a - b) <= leastSide; };
    const Opening sides = FullSides(told);
    // A positive side beside a negative height is a cylinder or an ellipsoid that lies.
    const bool lying = told.height < 0.0 && (told.width > 0.0 || told.length > 0.0);
    if (!lying && equal(sides.width, sides.length)) {
        if (told.height >= 0.0) {
            return {-sides.width, -sides.width, sides.height};
        }
        if (equal(sides.width, sides.height)) {
            return {-sides.width, -sides.width, -sides.width};
        }
    }
    return BoxOfSides(sides, leastSide);
}

/// True when the edition's own table has this code for a round shape.
bool IsRoundCode(const Opening& told, int edition) {
    const bool ofAllEditions = told.width < 0.0 && told.length == 0.0 && told.height == 0.0;
    const bool of2002 = told.width < 0.0 && told.length < 0.0;
    return ofAllEditions || of2002 || (edition <= LastOlderEdition && told.width != 0.0);
}

std::string Number(double value) {
    std::string text = Text::FormatGeneral(value);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::string Describe(const Opening& known, const std::string& unit) {
    const std::string diameter = Number(-known.width) + unit + " de diâmetro";
    if (IsRound(known) && known.height < 0.0) {
        return "esfera de " + diameter;
    }
    if (IsRound(known) && known.height > 0.0) {
        return "cilindro vertical de " + diameter + " e " + Number(known.height) + unit +
               " de altura";
    }
    if (IsRound(known)) {
        return "disco de " + diameter;
    }
    if (known == Opening{}) {
        return "ponto";
    }
    const std::string floor = Number(known.width) + " x " + Number(known.length);
    if (known.height > 0.0) {
        return "caixa de " + floor + " x " + Number(known.height) + unit;
    }
    return "retângulo de " + floor + unit;
}

std::string ChangeSentence(const IesFile& file, const Opening& known) {
    const std::string unit = file.unitsType == 1 ? " pés" : " m";
    return "a abertura luminosa de " + Number(file.width) + " x " + Number(file.length) + " x " +
           Number(file.height) + unit +
           " (largura x comprimento x altura) não é uma forma que o Radiance conheça e é "
           "calculada como " +
           Describe(known, unit);
}

} // namespace

IesFile WithKnownOpening(const IesFile& file, std::string& warning) {
    const Opening asRead = {file.width, file.length, file.height};
    const Opening told = {FiniteOrZero(file.width), FiniteOrZero(file.length),
                          FiniteOrZero(file.height)};
    const Opening known = KnownForm(told, LeastSide / UnitsToMetres(file.unitsType));
    const bool sameShape =
        known == asRead || (IsRound(known) && IsRoundCode(told, file.formatVersion));

    IesFile changed = WithInertHeader(file, warning);
    if (!sameShape) {
        warning += (warning.empty() ? "" : "; ") + ChangeSentence(file, known);
    }
    changed.width = known.width;
    changed.length = known.length;
    changed.height = known.height;
    changed.formatVersion = std::max(file.formatVersion, Edition2002);
    return changed;
}

} // namespace Merivane::Photometry
