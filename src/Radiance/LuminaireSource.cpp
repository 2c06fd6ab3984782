#include "Radiance/LuminaireSource.hpp"

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <numbers>
#include <string_view>

#include "Photometry/PhotometricQuantities.hpp"
#include "Radiance/RadianceNumber.hpp"
#include "Simulation/LengthScale.hpp"

namespace Merivane::Radiance {

namespace {

using Arguments = std::vector<std::string>;

constexpr int ArgumentDecimals = 6;

// The source stands this far under the plane of the opening [m], so that the body of the object,
// which closes the opening, never shades it.
constexpr double OpeningGap = 0.0005;

void Append(Arguments& arguments, std::string_view option, std::initializer_list<double> values) {
    arguments.emplace_back(option);
    for (const double value : values) {
        arguments.push_back(FormatNumber(value, ArgumentDecimals));
    }
}

// The photometric origin is the middle of the luminous body: it sinks by half its height [m].
double Sinking(const Photometry::IesFile& photometry) {
    const double halfHeight = std::abs(photometry.height) / 2.0;
    return Photometry::UnitsToMetres(photometry.unitsType) * halfHeight + OpeningGap;
}

void AppendArray(Arguments& arguments, std::int32_t count, const std::string& stepX,
                 const std::string& stepY) {
    if (count > 1) {
        arguments.insert(arguments.end(), {"-a", std::to_string(count), "-t", stepX, stepY, "0"});
    }
}

} // namespace

Photometry::IesFile ScaledPhotometry(const Simulation::SceneLuminaire& luminaire) {
    Photometry::IesFile scaled = luminaire.photometry;
    const double scale = Simulation::AppliedLengthScale(luminaire);
    scaled.candelaMultiplier *= scale;
    Simulation::ScaleLongerSide(scaled.width, scaled.length, scale);
    return scaled;
}

Arguments Ies2RadArguments(const Simulation::SceneLuminaire& luminaire, const std::string& name) {
    const double multiplier = luminaire.dimming * luminaire.contract.maintenanceFactor;
    return {"-dm", "-c", "1",          "1", "1", "-m", FormatNumber(multiplier, ArgumentDecimals),
            "-o",  name, name + ".ies"};
}

Arguments XformArguments(const Simulation::SceneLuminaire& luminaire,
                         const std::string& sourceFile) {
    const Photometry::LuminaireSettings& aiming = luminaire.contract;
    Arguments arguments = {"-t", "0", "0",
                           FormatNumber(-Sinking(luminaire.photometry), ArgumentDecimals)};
    Append(arguments, "-rz", {aiming.c0Rotation - aiming.tiltDirection});
    Append(arguments, "-ry", {-aiming.tiltAngle});
    Append(arguments, "-rz", {aiming.tiltDirection});
    Append(arguments, "-t", {aiming.centerX, aiming.centerY, aiming.centerZ});
    if (luminaire.mirrored) {
        Append(arguments, "-mx", {});
    }
    Append(arguments, "-rz", {luminaire.rotation * 180.0 / std::numbers::pi});
    Append(arguments, "-t", {luminaire.x, luminaire.y, luminaire.z});
    AppendArray(arguments, luminaire.arrayCountX,
                FormatNumber(luminaire.arrayStepX, ArgumentDecimals), "0");
    AppendArray(arguments, luminaire.arrayCountY, "0",
                FormatNumber(luminaire.arrayStepY, ArgumentDecimals));
    arguments.push_back(sourceFile);
    return arguments;
}

} // namespace Merivane::Radiance
