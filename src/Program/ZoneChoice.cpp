#include "Program/ZoneChoice.hpp"

#include <variant>

#include "AddOn/RunLog/RunLog.hpp"
#include "Host/Elements.hpp"
#include "Text/FoldAccents.hpp"

namespace Merivane::Program {

namespace {

/// A Zone without a name has its number for one.
std::string TitleOf(const NamedZone& zone) {
    return zone.number.empty() || zone.number == zone.name ? zone.name
                                                           : zone.number + " " + zone.name;
}

bool IsMeant(const NamedZone& zone, const std::string& folded) {
    return folded == Text::FoldAccents(zone.name) || folded == Text::FoldAccents(zone.number) ||
           folded == Text::FoldAccents(TitleOf(zone));
}

std::string ListTitles(const std::vector<NamedZone>& zones,
                       const std::vector<std::size_t>& places) {
    std::string list;
    for (const std::size_t place : places) {
        list += (list.empty() ? "\"" : ", \"") + TitleOf(zones[place]) + "\"";
    }
    return list;
}

} // namespace

std::vector<NamedZone> NameZones(const std::vector<Archicad::ZoneRecord>& zones) {
    std::vector<NamedZone> named;
    for (const Archicad::ZoneRecord& zone : zones) {
        Host::Element element;
        const Host::ErrorCode code = Host::GetElement(zone.guid, element);
        const auto* const data = std::get_if<Host::ZoneData>(&element.data);
        named.push_back({zone.guid, zone.name, code == Host::NoError && data ? data->number : ""});
    }
    return named;
}

bool FindZone(const std::vector<NamedZone>& zones, const std::string& text, std::size_t& index,
              std::string& error) {
    const std::string folded = Text::FoldAccents(text);
    std::vector<std::size_t> all;
    std::vector<std::size_t> meant;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        all.push_back(i);
        if (IsMeant(zones[i], folded)) {
            meant.push_back(i);
        }
    }
    if (meant.size() == 1) {
        index = meant.front();
        return true;
    }
    if (meant.empty()) {
        error = "não há a Zona \"" + text + "\"; " +
                (zones.empty() ? "não há nenhuma" : "há " + ListTitles(zones, all));
    } else {
        error = "mais de uma Zona é \"" + text + "\": " + ListTitles(zones, meant);
    }
    return false;
}

bool SelectZones(const std::vector<std::string>& names, std::string& error) {
    if (names.empty()) {
        return true;
    }
    const std::vector<NamedZone> zones = NameZones(Archicad::ReadAllZones());
    std::vector<Host::Guid> chosen;
    for (const std::string& name : names) {
        std::size_t index = 0;
        if (name == "*") {
            for (const NamedZone& zone : zones) {
                chosen.push_back(zone.guid);
            }
        } else if (FindZone(zones, name, index, error)) {
            chosen.push_back(zones[index].guid);
        } else {
            error.insert(0, "--zonas: ");
            return false;
        }
    }
    if (const Host::ErrorCode code = Host::SetSelection(chosen)) {
        error =
            "--zonas: as Zonas não puderam ser selecionadas (" + Commands::ErrorName(code) + ")";
        return false;
    }
    return true;
}

} // namespace Merivane::Program
