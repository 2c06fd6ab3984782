#include "Simulation/Verification/ZoneVerification.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "Simulation/PlacedLuminaire.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/RoomReflectances.hpp"
#include "Simulation/Verification/ScreenLuminance.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Simulation {

namespace {

/// One luminaire of the scene over the Zone: its copies there share everything that counts.
struct LuminaireOverZone {
    const SceneLuminaire* luminaire = nullptr;
    std::int32_t count = 0;
    double luminance = 0.0; ///< largest towards screens [cd/m2]; 0 = none
    double gamma = 0.0;     ///< where [deg]
    double c = 0.0;
};

std::vector<LuminaireOverZone> LuminairesOver(const ZoneSpace& zone, const Scene& scene) {
    const std::vector<PlacedLuminaire> placed = PlaceLuminaires(
        scene.luminaires, [&zone](const Point3D& place) { return HoldsLuminaire(zone, place); });
    std::vector<LuminaireOverZone> luminaires;
    for (const PlacedLuminaire& source : placed) { // copies follow each other
        if (luminaires.empty() || luminaires.back().luminaire != source.luminaire) {
            LuminaireOverZone& first = luminaires.emplace_back();
            first.luminaire = source.luminaire;
            first.luminance = MaximumScreenLuminance(source, first.gamma, first.c);
        }
        ++luminaires.back().count;
    }
    return luminaires;
}

const std::string& NameOf(const SceneLuminaire& luminaire) {
    return luminaire.displayName.empty() ? luminaire.id : luminaire.displayName;
}

void TakeLuminaire(const LuminaireOverZone& over, VerificationInput& input) {
    const Photometry::LuminaireSettings& contract = over.luminaire->contract;
    const bool isFirst = input.luminaireCount == 0;
    input.maintenanceFactor = isFirst
                                  ? contract.maintenanceFactor
                                  : std::min(input.maintenanceFactor, contract.maintenanceFactor);
    input.luminaireCount += over.count;
    if (contract.colourRendering > 0.0) {
        input.raMinimum = input.raCount == 0 ? contract.colourRendering
                                             : std::min(input.raMinimum, contract.colourRendering);
        input.raCount += over.count;
    }
    if (over.luminance > 0.0) {
        input.luminanceMaximum = std::max(input.luminanceMaximum, over.luminance);
        input.luminanceCount += over.count;
    }
}

void TakeReflectances(const RoomReflectances& means, VerificationInput& input) {
    input.ceilingReflectance = means.ceiling;
    input.wallReflectance = means.walls;
    input.floorReflectance = means.floor;
}

void TellMissingColourRendering(const VerificationInput& input, std::vector<std::string>& log) {
    const std::int32_t missing = input.luminaireCount - input.raCount;
    if (missing > 0) {
        log.push_back("  Ra nao informado em " + std::to_string(missing) + " de " +
                      std::to_string(input.luminaireCount) +
                      " luminaria(s): o Ra e dado da luminaria - informe ao criar o bloco ou ao "
                      "exportar para o catalogo");
    }
}

/// The worst of the luminaires and where it shines so.
std::string WorstText(const std::vector<LuminaireOverZone>& luminaires) {
    const LuminaireOverZone& worst =
        *std::max_element(luminaires.begin(), luminaires.end(),
                          [](const auto& a, const auto& b) { return a.luminance < b.luminance; });
    return NameOf(*worst.luminaire) + " (gama " + FormatDecimal(worst.gamma, 0) + ", C " +
           FormatDecimal(worst.c, 0) + ")";
}

// An array of hundreds is one luminaire to its user, and one line.
std::string LuminanceLine(const LuminaireOverZone& over) {
    const std::string count = over.count > 1 ? " (" + std::to_string(over.count) + " un.)" : "";
    return "    " + NameOf(*over.luminaire) + count + ": " + FormatDecimal(over.luminance, 0) +
           " cd/m2";
}

void TellScreens(const std::vector<LuminaireOverZone>& luminaires, ZoneVerification& verification) {
    const VerificationInput& input = verification.input;
    const double limit = ScreenLuminanceLimit(ResolveScreens(input.requirement));
    if (!(limit > 0.0) || input.luminanceCount == 0) {
        return;
    }
    const std::string worst = WorstText(luminaires);
    verification.log.push_back("  luminancia para telas: a maior e de " + worst);
    for (const LuminaireOverZone& over : luminaires) {
        if (over.luminance > 0.0) {
            verification.log.push_back(LuminanceLine(over));
        }
    }
    const std::int32_t without = input.luminaireCount - input.luminanceCount;
    if (without > 0) {
        verification.log.push_back("  luminancia para telas: " + std::to_string(without) +
                                   " luminaria(s) sem abertura luminosa no IES ficaram fora");
    }
    verification.notes.push_back("Luminância para telas (limite " + FormatDecimal(limit, 0) +
                                 " cd/m²): a maior é de " + worst);
}

} // namespace

ZoneVerification VerifyZoneOfScene(const ZoneSpace& zone, const Scene& scene,
                                   const ZoneResults& results) {
    ZoneVerification verification;
    VerificationInput& input = verification.input;
    input.requirement = results.requirement;
    input.statistics = results.statistics;
    input.hasUgr = results.hasUgr;
    input.ugr = results.ugr;
    if (const TaskRow* task = FindTask(results.requirement.taskId)) {
        input.ugrLimit = task->ugrLimit;
    }
    const std::vector<LuminaireOverZone> luminaires = LuminairesOver(zone, scene);
    for (const LuminaireOverZone& over : luminaires) {
        TakeLuminaire(over, input);
    }
    TakeReflectances(MeanSurfaceReflectances(scene, zone, results.workPlaneHeight), input);

    verification.rows = VerifyZone(input);
    verification.passes = VerificationPasses(verification.rows);
    for (const VerificationRow& row : verification.rows) {
        verification.log.push_back(RowLogLine(row));
    }
    if (!verification.rows.empty()) {
        TellMissingColourRendering(input, verification.log);
    }
    TellScreens(luminaires, verification);
    return verification;
}

} // namespace Merivane::Simulation
