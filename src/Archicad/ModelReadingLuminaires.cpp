#include "Archicad/ModelReadingLuminaires.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>
#include <variant>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/ContractConversion.hpp"
#include "Archicad/FloorPlanDatabase.hpp"
#include "Archicad/ModelReadingZones.hpp"
#include "Host/Elements.hpp"
#include "Host/GuidText.hpp"
#include "Host/Stories.hpp"
#include "Photometry/ContractReading.hpp"
#include "Photometry/LuminaireIdentity.hpp"
#include "Photometry/LuminaireTypeKey.hpp"
#include "Simulation/LinearLuminaire.hpp"
#include "Text/Number.hpp"

namespace Merivane::Archicad {

namespace {

using Parameters = std::vector<Photometry::ContractParameter>;

/// What is left out, and what is cut into pieces.
struct LuminaireCounts {
    int switchedOff = 0;
    int unreadable = 0;
    int runs = 0; ///< linear luminaires
    std::size_t pieces = 0;
    double length = 0.0; ///< of those pieces [m]
};

std::string TextOf(const Parameters& parameters, std::string_view name) {
    const auto* const parameter = Photometry::FindParameter(parameters, name);
    return parameter == nullptr ? std::string() : parameter->text;
}

bool IsNumeric(Photometry::ContractParameterType type) {
    return type != Photometry::ContractParameterType::String &&
           type != Photometry::ContractParameterType::RealArray &&
           type != Photometry::ContractParameterType::StringArray;
}

/// A parameter of another kind counts as absent.
double NumberOf(const Parameters& parameters, std::string_view name, double absent) {
    const auto* const parameter = Photometry::FindParameter(parameters, name);
    const bool found =
        parameter != nullptr && IsNumeric(parameter->type) && std::isfinite(parameter->number);
    return found ? parameter->number : absent;
}

/// The first 8 characters of a GUID, behind the brace.
std::string GuidBegin(const Host::Guid& guid) {
    return Host::GuidText(guid).substr(1, 8);
}

/// Manufacturers' files hold degree signs that a foreign code page turned into two letters.
std::string RepairDegreeSigns(std::string text) {
    constexpr std::string_view broken = "\xC2\xA1\xC3\xA3";
    for (std::size_t at = text.find(broken); at != std::string::npos; at = text.find(broken, at)) {
        text.replace(at, broken.size(), "\xC2\xB0");
    }
    return text;
}

/// What the user calls the luminaire, unrepaired.
std::string NameOf(const Parameters& parameters, const Host::Guid& guid) {
    for (const std::string_view name : {"mvCatalog", "mvLuminaire", "mvIesFileName"}) {
        std::string text = TextOf(parameters, name);
        if (!text.empty()) {
            return text;
        }
    }
    return "luminaria " + GuidBegin(guid);
}

void TakeParameters(const Parameters& parameters, const Host::Guid& guid, bool isLinear,
                    Simulation::SceneLuminaire& luminaire) {
    luminaire.id = "lum_" + GuidBegin(guid);
    luminaire.guid = Host::GuidText(guid);
    luminaire.manufacturer = TextOf(parameters, "mvManufacturer");
    luminaire.lamp = TextOf(parameters, "mvLamp");
    luminaire.inputWatts = NumberOf(parameters, "mvInputWatts", luminaire.photometry.inputWatts);
    luminaire.contract = Photometry::ReadLuminaireSettings(parameters);
    if (luminaire.contract.colourRendering == 0.0) { // only parts made earlier have it there
        luminaire.contract.colourRendering =
            Photometry::ColourRenderingFromIes(luminaire.photometry);
    }
    luminaire.dimming = std::clamp(NumberOf(parameters, "mvDimming", 1.0), 0.0, 1.0);
    const std::string name = NameOf(parameters, guid);
    luminaire.typeKey =
        Photometry::LuminaireTypeKey(TextOf(parameters, "mvCatalog"), name, luminaire.lamp,
                                     luminaire.contract.iesFileName, isLinear);
    luminaire.displayName = RepairDegreeSigns(name);
}

void TakePlace(const Host::ObjectData& object, double storyLevel,
               Simulation::SceneLuminaire& luminaire) {
    luminaire.x = object.position.x;
    luminaire.y = object.position.y;
    luminaire.z = storyLevel + object.level - luminaire.contract.flangeDepth;
    luminaire.rotation = object.angle;
    luminaire.mirrored = object.mirrored;
}

class LuminaireCollector {
public:
    LuminaireCollector(const std::vector<std::int32_t>& wanted, std::vector<Host::Guid>& met,
                       std::vector<std::string>& told)
        : floors(wanted), guids(met), log(told) {
        std::int16_t activeFloor = 0;
        Host::GetStories(stories, activeFloor);
    }

    void CollectType(Host::ElementType type) {
        std::vector<Host::Guid> listed;
        Host::ListElements(type, Host::ElementFilter::None, listed);
        for (const Host::Guid& guid : listed) {
            Read(guid);
        }
    }

    std::vector<Simulation::SceneLuminaire> Finish() {
        if (counts.runs > 0) {
            log.push_back(std::to_string(counts.runs) + " fita(s) / linear(es), " +
                          Text::FormatFixed(counts.length * 100.0, 0) + " cm em " +
                          std::to_string(counts.pieces) +
                          " trecho(s) do comprimento medido no IES");
        }
        if (counts.switchedOff > 0) {
            log.push_back(std::to_string(counts.switchedOff) +
                          " luminaria(s) desligada(s) (mvLightOn) fora do calculo");
        }
        if (counts.unreadable > 0) {
            log.push_back(std::to_string(counts.unreadable) +
                          " luminaria(s) com fotometria ilegivel fora do calculo");
        }
        return std::move(luminaires);
    }

private:
    void Read(const Host::Guid& guid) {
        Host::Element element;
        if (Host::GetElement(guid, element) != Host::NoError) {
            return;
        }
        const std::int32_t floor = element.header.floorIndex;
        const auto* const object = std::get_if<Host::ObjectData>(&element.data);
        double storyLevel = 0.0;
        if (object == nullptr || std::find(floors.begin(), floors.end(), floor) == floors.end() ||
            !FindStoryLevel(stories, floor, storyLevel)) {
            return;
        }
        Host::ElementMemo memo;
        if (Commands::CheckError("Ler os parametros do objeto",
                                 Host::GetMemo(guid, Host::MemoParts::Parameters, memo)) !=
            Host::NoError) {
            return; // it may have been a luminaire: its light is missed
        }
        // Most objects are no luminaires: the tables are converted only where they are needed.
        const Parameters marks = FromAddPars(memo.parameters, {"mvContractVersion", "mvLightOn"});
        if (Photometry::FindParameter(marks, "mvContractVersion") == nullptr) {
            return;
        }
        guids.push_back(guid);
        if (NumberOf(marks, "mvLightOn", 1.0) == 0.0) {
            ++counts.switchedOff;
            return;
        }
        const Parameters parameters = FromAddPars(memo.parameters);
        Simulation::SceneLuminaire luminaire;
        const Photometry::ContractReadResult result =
            Photometry::ReadContract(parameters, luminaire.photometry);
        if (!result.ok) {
            ++counts.unreadable;
            log.push_back("luminaria " + Host::GuidText(guid) + " ignorada: " + result.error);
            return;
        }
        Simulation::LinearSpec spec;
        Simulation::LinearPath path;
        std::string pathError;
        const bool hasPath = Simulation::ReadLinearContract(parameters, spec, path, pathError);
        TakeParameters(parameters, guid, hasPath, luminaire);
        TakePlace(*object, storyLevel, luminaire);
        if (hasPath || !pathError.empty()) {
            AddRun(luminaire, spec, path, std::move(pathError));
        } else {
            luminaires.push_back(std::move(luminaire));
        }
    }

    void AddRun(const Simulation::SceneLuminaire& luminaire, const Simulation::LinearSpec& spec,
                const Simulation::LinearPath& path, std::string error) {
        std::vector<Simulation::SceneLuminaire> pieces;
        if (error.empty()) {
            pieces = Simulation::ExpandLinear(luminaire, path, spec);
            error = pieces.empty() ? "percurso da luminaria linear ilegivel" : "";
        }
        if (!error.empty()) {
            ++counts.unreadable;
            log.push_back("luminaria linear " + luminaire.displayName + " ignorada: " + error);
            return;
        }
        ++counts.runs;
        counts.pieces += pieces.size();
        const double measured = Simulation::MeasuredLengthOf(luminaire.photometry).length;
        for (Simulation::SceneLuminaire& piece : pieces) {
            counts.length += piece.lengthScale * measured;
            luminaires.push_back(std::move(piece));
        }
    }

    const std::vector<std::int32_t>& floors;
    std::vector<Host::Guid>& guids;
    std::vector<std::string>& log;
    std::vector<Host::Story> stories;
    std::vector<Simulation::SceneLuminaire> luminaires;
    LuminaireCounts counts;
};

} // namespace

std::vector<Simulation::SceneLuminaire> CollectLuminaires(const std::vector<std::int32_t>& floors,
                                                          std::vector<Host::Guid>& luminaireGuids,
                                                          std::vector<std::string>& log) {
    const FloorPlanDatabase plan;
    LuminaireCollector collector(floors, luminaireGuids, log);
    collector.CollectType(Host::ElementType::Lamp);
    collector.CollectType(Host::ElementType::Object);
    return collector.Finish();
}

} // namespace Merivane::Archicad
