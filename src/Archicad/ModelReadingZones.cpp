#include "Archicad/ModelReadingZones.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <variant>

#include "Archicad/FloorPlanDatabase.hpp"
#include "Host/Elements.hpp"
#include "Host/GuidText.hpp"
#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Archicad {

namespace {

std::vector<Simulation::Point2D> Corners(const Host::Contour& contour) {
    std::vector<Simulation::Point2D> corners;
    for (const Host::Coordinate& vertex : contour.vertices) {
        corners.push_back({vertex.x, vertex.y});
    }
    return corners;
}

bool TakePolygon(const Host::Polygon& polygon, ZoneRecord& zone) {
    if (polygon.empty() || polygon[0].vertices.size() < 3) {
        return false;
    }
    zone.outline = Corners(polygon[0]);
    for (std::size_t i = 1; i < polygon.size(); ++i) {
        zone.holes.push_back(Corners(polygon[i]));
    }
    const Simulation::Bounds2D bounds = Simulation::OuterBounds({zone.outline, {}});
    zone.minX = bounds.minimum.x;
    zone.minY = bounds.minimum.y;
    zone.maxX = bounds.maximum.x;
    zone.maxY = bounds.maximum.y;
    return true;
}

std::vector<ZoneRecord> ReadZones(const std::vector<Host::Guid>& guids,
                                  std::vector<std::string>* log) {
    std::vector<ZoneRecord> zones;
    for (const Host::Guid& guid : guids) {
        ZoneRecord zone;
        if (ReadZone(guid, zone)) {
            zones.push_back(std::move(zone));
        } else if (log != nullptr) {
            log->push_back("zona " + Host::GuidText(guid) + " ignorada: poligono nao lido");
        }
    }
    return zones;
}

} // namespace

bool FindStoryLevel(const std::vector<Host::Story>& stories, std::int32_t floorIndex,
                    double& level) {
    const auto story =
        std::find_if(stories.begin(), stories.end(),
                     [&](const Host::Story& candidate) { return candidate.index == floorIndex; });
    if (story == stories.end()) {
        return false;
    }
    level = story->level;
    return true;
}

std::vector<Host::Guid> SelectedZones() {
    std::vector<Host::Guid> selected;
    if (Host::GetSelection(selected) != Host::NoError) {
        return {};
    }
    std::vector<Host::Guid> zones;
    for (Host::Guid guid : selected) {
        Host::Element element;
        if (Host::GetElement(guid, element) != Host::NoError) {
            continue;
        }
        if (const auto* const shown = std::get_if<Host::SectionElementData>(&element.data)) {
            guid = shown->parent;
            if (Host::GetElement(guid, element) != Host::NoError) {
                continue;
            }
        }
        if (element.header.type == Host::ElementType::Zone &&
            std::find(zones.begin(), zones.end(), guid) == zones.end()) {
            zones.push_back(guid);
        }
    }
    return zones;
}

bool ReadZone(const Host::Guid& guid, ZoneRecord& zone) {
    Host::Element element;
    Host::ElementMemo memo;
    std::vector<Host::Story> stories;
    std::int16_t activeFloor = 0;
    if (Host::GetElement(guid, element) != Host::NoError ||
        Host::GetMemo(guid, Host::MemoParts::Polygon, memo) != Host::NoError ||
        Host::GetStories(stories, activeFloor) != Host::NoError) {
        return false;
    }
    const auto* const data = std::get_if<Host::ZoneData>(&element.data);
    ZoneRecord read;
    if (data == nullptr || !TakePolygon(memo.polygon, read) ||
        !FindStoryLevel(stories, element.header.floorIndex, read.baseLevel)) {
        return false;
    }
    read.guid = guid;
    read.name = data->name.empty() ? data->number : data->name;
    read.floorIndex = element.header.floorIndex;
    read.baseLevel += data->baseLevel;
    read.height = data->height;
    zone = std::move(read);
    return true;
}

std::vector<ZoneRecord> CollectZones(std::vector<std::string>& log) {
    std::vector<Host::Guid> guids = SelectedZones();
    if (guids.empty()) {
        const FloorPlanDatabase plan;
        Host::ListElements(Host::ElementType::Zone, Host::ElementFilter::OnActiveFloor, guids);
        log.push_back("nenhuma Zona selecionada: calculando todas as " +
                      std::to_string(guids.size()) + " do pavimento atual");
    }
    return ReadZones(guids, &log);
}

std::vector<ZoneRecord> ReadAllZones() {
    const FloorPlanDatabase plan;
    std::vector<Host::Guid> guids;
    Host::ListElements(Host::ElementType::Zone, Host::ElementFilter::None, guids);
    return ReadZones(guids, nullptr);
}

} // namespace Merivane::Archicad
