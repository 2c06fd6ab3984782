#include "Document/Report/AdoptedValues.hpp"

#include <cmath>
#include <utility>

#include "Document/Report/LuminaireTypes.hpp"
#include "Document/Report/ReflectanceTable.hpp"
#include "Document/Report/ReportText.hpp"
#include "Document/Report/ZoneValues.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Simulation/LuminousOpening.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;

/// "em todas" or "em 3 de 12".
std::string InSome(std::size_t some, std::size_t all) {
    return some == all ? "em todas" : "em " + std::to_string(some) + " de " + std::to_string(all);
}

void TakeOpening(const LuminaireType& type, const std::string& subject,
                 std::vector<AdoptedValue>& values) {
    const Photometry::IesFile& file = type.sample->photometry;
    if (!(Simulation::DownwardArea(Simulation::DeclaredOpening(file)) > 0.0)) {
        values.push_back({subject, "fonte pontual, fora do UGR e da luminância para telas",
                          "o arquivo IES não declara a abertura luminosa"});
        return;
    }
    std::string warning;
    Photometry::WithKnownOpening(file, warning);
    if (!warning.empty()) {
        warning.erase(warning.find_last_not_of('.') + 1);
        values.push_back({subject, "abertura luminosa de forma próxima", warning});
    }
}

AdoptedGroup LuminaireValues(const Simulation::Scene& scene) {
    AdoptedGroup group{"Luminárias", {}};
    for (const LuminaireType& type : CollectLuminaireTypes(scene.luminaires)) {
        const std::string subject = "Luminária " + type.name;
        if (type.withoutColourRendering > 0) {
            group.values.push_back(
                {subject, "sem Ra: o critério fica sem dado",
                 "Ra não declarado " + InSome(type.withoutColourRendering, type.count)});
        }
        if (type.withoutWatts > 0) {
            group.values.push_back(
                {subject, "sem potência: fora das somas de W e W/m²",
                 "potência não declarada " + InSome(type.withoutWatts, type.count)});
        }
        if (type.usualMaintenance > 0) {
            group.values.push_back(
                {subject,
                 "fator de manutenção " +
                     FormatDecimal(Photometry::LuminaireSettings{}.maintenanceFactor, 2),
                 "valor de partida " + InSome(type.usualMaintenance, type.count) +
                     ": confirme com o plano de manutenção"});
        }
        TakeOpening(type, subject, group.values);
    }
    return group;
}

AdoptedGroup SurfaceValues(const ReportInput& input) {
    AdoptedGroup group{"Refletâncias", {}};
    for (const Simulation::SurfaceReflectance& record : input.reflectances) {
        if (record.source == Simulation::ReflectanceSource::Orientation) {
            group.values.push_back({record.name, ReflectanceText(record),
                                    "face sem superfície no modelo: valor usual para piso (20 %), "
                                    "parede (50 %) ou teto (70 %)"});
        } else if (record.source == Simulation::ReflectanceSource::Colour) {
            group.values.push_back({record.name, ReflectanceText(record),
                                    "estimada pela cor da superfície, escolhida para a imagem e "
                                    "não medida"});
        }
    }
    return group;
}

AdoptedGroup CalculationValues(const ReportInput& input) {
    AdoptedGroup group{"Cálculo", {}};
    const Simulation::LightingStudy& study = input.study;
    const std::string kept = "ajuste de partida, mantido";
    if (Simulation::SameSettings(study.engine, Simulation::EngineSettings())) {
        group.values.push_back({"Motor", Simulation::EngineSummary(study.engine), kept});
    }
    if (study.standard == Simulation::LightingStudy().standard) {
        group.values.push_back({"Norma", Simulation::ReferenceStandardName(study.standard), kept});
    }
    if (study.levels == Simulation::DefaultLevels()) {
        group.values.push_back(
            {"Curvas isolux", Simulation::FormatLevels(study.levels) + " lx", kept});
    }
    return group;
}

} // namespace

std::vector<AdoptedGroup> CollectAdoptedValues(const ReportInput& input) {
    std::vector<AdoptedGroup> groups;
    for (AdoptedGroup& group : std::vector<AdoptedGroup>{{"Projeto", input.adopted},
                                                         {"Zonas", CollectZoneValues(input)},
                                                         LuminaireValues(input.built.scene),
                                                         SurfaceValues(input),
                                                         CalculationValues(input)}) {
        if (!group.values.empty()) {
            groups.push_back(std::move(group));
        }
    }
    return groups;
}

} // namespace Merivane::Document
