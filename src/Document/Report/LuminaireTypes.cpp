#include "Document/Report/LuminaireTypes.hpp"

#include <algorithm>
#include <map>

#include "Photometry/LuminaireTypeKey.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/LengthScale.hpp"
#include "Simulation/PlacedLuminaire.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/StudyScene.hpp"

namespace Merivane::Document {

namespace {

using Simulation::SceneLuminaire;

std::size_t SourceCount(const SceneLuminaire& luminaire) {
    return static_cast<std::size_t>(std::max(luminaire.arrayCountX, 1)) *
           static_cast<std::size_t>(std::max(luminaire.arrayCountY, 1));
}

/// Tells types apart also where a luminaire has no key.
std::string KeyOf(const SceneLuminaire& luminaire) {
    return luminaire.typeKey.empty() ? "\n" + luminaire.displayName : luminaire.typeKey;
}

LuminaireType TypeOf(const SceneLuminaire& luminaire) {
    LuminaireType type;
    type.name = LuminaireTypeName(luminaire);
    type.manufacturer = luminaire.manufacturer;
    type.lamp = luminaire.lamp;
    type.sample = &luminaire;
    return type;
}

void TakeLuminaire(const SceneLuminaire& luminaire, LuminaireType& type) {
    const std::size_t count = SourceCount(luminaire);
    const Photometry::LuminaireSettings& contract = luminaire.contract;
    const double flux = Photometry::TotalFlux(luminaire.photometry);
    const double watts = LuminairePower(luminaire);
    type.count += count;
    if (flux >= 0.0) {
        Include(type.flux, flux * Simulation::AppliedLengthScale(luminaire));
    }
    if (watts > 0.0) {
        Include(type.watts, watts);
        type.totalWatts += watts * static_cast<double>(count);
    } else {
        type.withoutWatts += count;
    }
    if (contract.colourRendering > 0.0) {
        Include(type.colourRendering, contract.colourRendering);
    } else {
        type.withoutColourRendering += count;
    }
    if (contract.maintenanceFactor == Photometry::LuminaireSettings{}.maintenanceFactor) {
        type.usualMaintenance += count;
    }
    Include(type.maintenance, contract.maintenanceFactor);
    Include(type.dimming, luminaire.dimming);
}

} // namespace

std::string LuminaireTypeName(const SceneLuminaire& luminaire) {
    std::string name = Photometry::TypeKeyName(luminaire.typeKey);
    if (!name.empty()) {
        return name;
    }
    return luminaire.displayName.empty() ? luminaire.id : luminaire.displayName;
}

double LuminairePower(const SceneLuminaire& luminaire) {
    return std::max(luminaire.inputWatts, 0.0) * Simulation::AppliedLengthScale(luminaire);
}

std::vector<LuminaireType> CollectLuminaireTypes(const std::vector<SceneLuminaire>& luminaires) {
    std::vector<LuminaireType> types;
    std::map<std::string, std::size_t> places;
    for (const SceneLuminaire& luminaire : luminaires) {
        const auto [place, isNew] = places.emplace(KeyOf(luminaire), types.size());
        if (isNew) {
            types.push_back(TypeOf(luminaire));
        }
        TakeLuminaire(luminaire, types[place->second]);
    }
    return types;
}

std::vector<ZonePower> CollectZonePowers(const Simulation::LightingStudy& study,
                                         const Simulation::Scene& scene) {
    const std::vector<Simulation::PlacedLuminaire> lights =
        Simulation::PlaceLuminaires(scene.luminaires);
    std::vector<ZonePower> powers;
    for (const Simulation::StudyZone& zone : study.zones) {
        const Simulation::ZoneSpace space = Simulation::SpaceOf(zone);
        ZonePower& power = powers.emplace_back();
        power.area = AreaOf(zone.outline);
        for (const Simulation::PlacedLuminaire& light : lights) {
            if (Simulation::HoldsLuminaire(space, light.center)) {
                const double watts = LuminairePower(*light.luminaire);
                power.watts += watts;
                power.withoutWatts += watts > 0.0 ? 0 : 1;
                ++power.count;
            }
        }
    }
    return powers;
}

std::string PowerDensityText(const ZonePower& power) {
    if (power.count == power.withoutWatts || !(power.area > 0.0)) {
        return NoValue;
    }
    return (power.withoutWatts > 0 ? "≥ " : "") +
           Simulation::FormatDecimal(power.watts / power.area, 1) + " W/m²";
}

} // namespace Merivane::Document
