// Unified Glare Rating (CIE 117): UGR = 8 log10(0.25 / Lb * sum of L2 w / p2) over the luminaires
// in front of and above the eye, with the luminance L = I / A of an opening that shows the area A,
// its solid angle w = A / r2 and Guth's position index p. A small source has 200 I2 / (r2 p2)
// instead (CIE 147), as if its area were 0.005 m2.
//
// u is the unit direction from the eye to the source; its parts are `ahead` along the line of
// sight, `side` across it and `up`.
#include "Simulation/Glare/ObserverGlare.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Simulation/PrintedValue.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double Pi = std::numbers::pi;
constexpr double HighestIndex = 16.0;
constexpr double LargeAngle = 1.0; // sr
constexpr double HighestHeightRatio = 1.9;
constexpr double HighestSideRatio = 3.0;
// A luminaire that stands on the limit is inside, whatever the last digits of its place.
constexpr double RatioTolerance = 1e-9;
constexpr double LeastShownUgr = 10.0;

double Degrees(double radians) {
    return radians * 180.0 / Pi;
}

// Where a source stands for an observer.
struct Sight {
    double distance = 0.0; // m
    double ahead = 0.0;
    double side = 0.0; // never negative
    double up = 0.0;
};

Sight Look(const UgrObserver& observer, const Point3D& place) {
    const double x = place.x - observer.x;
    const double y = place.y - observer.y;
    const double z = place.z - observer.z;
    Sight sight;
    sight.distance = std::hypot(x, y, z);
    const double scale = sight.distance * std::hypot(observer.dx, observer.dy);
    if (scale > 0.0) {
        sight.ahead = (x * observer.dx + y * observer.dy) / scale;
        sight.side = std::abs(y * observer.dx - x * observer.dy) / scale;
        sight.up = z / sight.distance;
    }
    return sight;
}

GlareOmission Omission(const Sight& sight, const GlareTerm& term, const GlareOptions& options) {
    if (!(sight.distance > 0.0)) {
        return GlareOmission::AtTheEye;
    }
    if (!(sight.ahead > 0.0)) {
        return GlareOmission::NotAhead;
    }
    if (!(sight.up > 0.0)) {
        return GlareOmission::NotAbove;
    }
    const bool inField = term.heightRatio <= HighestHeightRatio + RatioTolerance &&
                         term.sideRatio <= HighestSideRatio + RatioTolerance;
    return options.tableFieldLimit && !inField ? GlareOmission::OutOfField : GlareOmission::None;
}

// What the source sends to the eye; leaves out what has no luminance.
void Measure(const PlacedLuminaire& luminaire, const UgrObserver& observer, GlareTerm& term) {
    term.intensity = LuminousIntensityTowards(luminaire, {observer.x, observer.y, observer.z},
                                              term.apparentArea);
    if (!(term.apparentArea > 0.0)) {
        term.omission = GlareOmission::NoArea;
    } else if (!(term.intensity > 0.0)) {
        term.omission = GlareOmission::NoIntensity;
    }
}

void Rate(const Sight& sight, const GlareOptions& options, GlareTerm& term) {
    const double squaredDistance = sight.distance * sight.distance;
    term.luminance = term.intensity / term.apparentArea;
    term.solidAngle = term.apparentArea / squaredDistance;
    term.sigma = Degrees(std::acos(std::clamp(sight.ahead, -1.0, 1.0)));
    term.tau = Degrees(std::atan2(sight.side, sight.up));
    term.positionIndex = PositionIndex(term.tau, term.sigma);
    const double squaredIndex = term.positionIndex * term.positionIndex;
    term.smallSource = options.smallSourceTerm && term.apparentArea < SmallSourceArea;
    term.term = term.smallSource ? term.intensity * term.intensity /
                                       (SmallSourceArea * squaredDistance * squaredIndex)
                                 : term.luminance * term.luminance * term.solidAngle / squaredIndex;
}

GlareTerm Term(const PlacedLuminaire& luminaire, const UgrObserver& observer,
               const GlareOptions& options) {
    const Sight sight = Look(observer, luminaire.center);
    GlareTerm term;
    term.distance = sight.distance;
    if (sight.ahead > 0.0) {
        term.heightRatio = sight.up / sight.ahead;
        term.sideRatio = sight.side / sight.ahead;
    }
    term.omission = Omission(sight, term, options);
    if (term.omission == GlareOmission::None) {
        Measure(luminaire, observer, term);
    }
    if (term.omission == GlareOmission::None) {
        Rate(sight, options, term);
    }
    return term;
}

void Count(const GlareTerm& term, GlareSum& sum) {
    sum.counts.withoutArea += term.omission == GlareOmission::NoArea;
    sum.counts.outOfField += term.omission == GlareOmission::OutOfField;
    if (term.omission == GlareOmission::None) {
        sum.sum += term.term;
        ++sum.counts.sources;
        sum.counts.smallSources += term.smallSource;
        sum.counts.largeSources += term.solidAngle > LargeAngle;
    }
}

} // namespace

double PositionIndex(double tau, double sigma) {
    const double linear = (35.2 - 0.31889 * tau - 1.22 * std::exp(-2.0 * tau / 9.0)) / 1000.0;
    const double square = (21.0 + 0.26667 * tau - 0.002963 * tau * tau) / 100000.0;
    return std::min(std::exp(linear * sigma + square * sigma * sigma), HighestIndex);
}

GlareSum SumSources(const UgrObserver& observer, const std::vector<PlacedLuminaire>& luminaires,
                    const GlareOptions& options, std::vector<GlareTerm>* terms) {
    GlareSum sum;
    if (terms != nullptr) {
        terms->clear();
        terms->reserve(luminaires.size());
    }
    for (std::size_t i = 0; i < luminaires.size(); ++i) {
        GlareTerm term = Term(luminaires[i], observer, options);
        Count(term, sum);
        if (terms != nullptr) {
            term.luminaire = i;
            terms->push_back(term);
        }
    }
    return sum;
}

GlareResult RateSum(const GlareSum& sum, double verticalIlluminance) {
    GlareResult result = sum.counts;
    result.background = verticalIlluminance / Pi;
    result.valid = result.background > 0.0;
    if (result.valid && sum.sum > 0.0) {
        result.ugr = 8.0 * std::log10(0.25 / result.background * sum.sum);
    }
    return result;
}

GlareResult ObserverGlare(const UgrObserver& observer,
                          const std::vector<PlacedLuminaire>& luminaires,
                          double verticalIlluminance, const GlareOptions& options,
                          std::vector<GlareTerm>* terms) {
    return RateSum(SumSources(observer, luminaires, options, terms), verticalIlluminance);
}

std::string FormatUgr(double value) {
    return value < LeastShownUgr ? "< 10" : FormatDecimal(value, 1);
}

} // namespace Merivane::Simulation
