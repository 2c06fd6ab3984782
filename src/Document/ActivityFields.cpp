#include <array>
#include <cmath>
#include <utility>

#include "Document/SceneFields.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Document {

namespace {

constexpr const char* TableHint = " (veja \"vantoro atividades\")";

/// The word that asks for the activity that the Zone's name suggests.
constexpr std::string_view ByName = "auto";

} // namespace

FieldReader IntoActivity(Simulation::StudyZone& zone) {
    return [&zone](const Place& place, std::string& error) {
        std::string id;
        if (!Into(id)(place, error)) {
            return false;
        }
        zone.task.byName = id == ByName;
        if (zone.task.byName) {
            id = Simulation::SuggestTaskId(zone.name);
        } else if (Simulation::FindTask(id) == nullptr) {
            return Refuse(place, "a norma não tem a atividade " + Text::QuotedText(id) + TableHint,
                          error);
        }
        zone.task.requirement = Simulation::RequirementFromTask(id);
        return true;
    };
}

FieldReader IntoScreens(std::int32_t& screens) {
    return [&screens](const Place& place, std::string& error) {
        constexpr std::array<std::int32_t, 4> classes = {
            Simulation::ScreensAutomatic, Simulation::ScreensNone, Simulation::ScreensClass1And2,
            Simulation::ScreensClass3};
        std::size_t choice = 0;
        if (!IntoChoice(choice, {"automatico", "nenhuma", "classes I e II", "classe III"})(place,
                                                                                           error)) {
            return false;
        }
        screens = classes[choice];
        return true;
    };
}

bool CheckActivity(const Place& zonePlace, std::string& error) {
    if (zonePlace.value->Find("atividade") != nullptr) {
        return true;
    }
    for (const char* key : {"em", "u0", "telas"}) {
        const Catalog::JsonValue* value = zonePlace.value->Find(key);
        if (value != nullptr) {
            return Refuse(Place{value, &zonePlace, key, 0},
                          "só vale numa Zona que tem a chave \"atividade\"", error);
        }
    }
    return true;
}

std::vector<std::string> ActivityWarnings(const std::vector<Simulation::StudyZone>& zones) {
    std::vector<std::string> warnings;
    for (const Simulation::StudyZone& zone : zones) {
        if (zone.task.byName && zone.task.requirement.taskId.empty()) {
            warnings.push_back("A Zona \"" + zone.name +
                               "\" não é verificada: seu nome não sugere nenhuma atividade" +
                               TableHint + ".");
        }
    }
    return warnings;
}

bool ReadStandard(const Place& place, Simulation::ReferenceStandard& standard, std::string& error) {
    std::size_t choice = 0;
    if (!IntoChoice(choice, {"nbr", "iso"})(place, error)) {
        return false;
    }
    standard = choice == 1 ? Simulation::ReferenceStandard::International
                           : Simulation::ReferenceStandard::Brazilian;
    return true;
}

bool ReadObserver(const Place& place, Simulation::UgrObserver& observer, std::string& error) {
    Simulation::Point3D eye;
    Simulation::Point2D sight;
    observer.label = "Observador " + std::to_string(place.index + 1);
    if (!ReadObject(place,
                    {Optional("nome", Into(observer.label)),
                     Required("posicao", Into(eye, CoordinateRange)),
                     Required("direcao", Into(sight, CoordinateRange))},
                    error)) {
        return false;
    }
    const double length = std::hypot(sight.x, sight.y);
    if (length < 1e-6) {
        const Place value{place.value->Find("direcao"), &place, "direcao", 0};
        return Refuse(value, "a direção tem comprimento nulo", error);
    }
    observer.x = eye.x;
    observer.y = eye.y;
    observer.z = eye.z;
    observer.dx = sight.x / length;
    observer.dy = sight.y / length;
    return true;
}

} // namespace Merivane::Document
