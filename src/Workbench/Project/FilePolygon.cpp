#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <set>
#include <utility>

#include "Workbench/Project/FileValues.hpp"
#include "Workbench/Project/PolygonRules.hpp"

namespace Merivane::Workbench {

namespace {

bool ReadArc(const Place& place, Host::PolygonArc& arc, std::string& error) {
    std::array<double, 2> numbers{};
    if (!Catalog::ReadNumbers(place, numbers, Coordinates, "um arco [vértice, ângulo]", error)) {
        return false;
    }
    const Place from{&place.value->items[0], &place, {}, 0};
    std::int32_t vertex = 0;
    if (!Into(vertex, NumberRange{0.0, 1e9})(from, error)) {
        return false;
    }
    const double angle = std::abs(numbers[1]);
    if (angle == 0.0 || angle >= 2.0 * std::numbers::pi) {
        return RefuseValue(Place{&place.value->items[1], &place, {}, 1},
                           "um ângulo de menos de uma volta e que não seja 0", error);
    }
    arc = {static_cast<std::size_t>(vertex), numbers[1]};
    return true;
}

bool ReadContour(const Place& place, Host::Contour& contour, PolygonRule rule, std::string& error) {
    const auto readArcs = [&contour](const Place& arcs, std::string& text) {
        if (!Catalog::IntoList(contour.arcs, {0, 0, "arcos"}, ReadArc)(arcs, text)) {
            return false;
        }
        std::set<std::size_t> bent;
        for (std::size_t i = 0; i < contour.arcs.size(); ++i) {
            const std::size_t from = contour.arcs[i].from;
            if (from >= contour.vertices.size() || !bent.insert(from).second) {
                return Refuse(
                    Place{&arcs.value->items[i], &arcs, {}, i},
                    "o vértice " + std::to_string(from) +
                        (from < contour.vertices.size() ? " já tem um arco" : " não existe"),
                    text);
            }
        }
        return true;
    };
    const PointRule points{rule.isLine ? 2U : 3U};
    return Catalog::ReadObject(place,
                               {Catalog::Required("vertices", Into(contour.vertices, points)),
                                Catalog::Optional("arcos", readArcs)},
                               error);
}

JsonValue StoredArc(const Host::PolygonArc& arc) {
    JsonValue list = JsonValue::MakeArray();
    list.items.push_back(JsonValue::MakeNumber(static_cast<double>(arc.from)));
    list.items.push_back(JsonValue::MakeNumber(arc.angle));
    return list;
}

} // namespace

FieldReader Into(Host::Polygon& target, PolygonRule rule) {
    return [&target, rule](const Place& place, std::string& error) {
        const auto readContour = [rule](const Place& item, Host::Contour& contour,
                                        std::string& text) {
            return ReadContour(item, contour, rule, text);
        };
        const Catalog::ListSize size{1, rule.isLine ? 1U : 0U, "contornos"};
        if (!Catalog::IntoList(target, size, readContour)(place, error)) {
            return false;
        }
        return rule.isLine || CheckPolygon(target) == Host::NoError ||
               Refuse(place,
                      "os contornos se cruzam ou se sobrepõem, não têm área, ou um furo está fora "
                      "do primeiro contorno ou dentro de outro furo",
                      error);
    };
}

JsonValue Stored(const Host::Polygon& value) {
    JsonValue list = JsonValue::MakeArray();
    for (const Host::Contour& contour : value) {
        JsonValue item;
        item.Set("vertices", Stored(contour.vertices));
        if (!contour.arcs.empty()) {
            JsonValue arcs = JsonValue::MakeArray();
            for (const Host::PolygonArc& arc : contour.arcs) {
                arcs.items.push_back(StoredArc(arc));
            }
            item.Set("arcos", std::move(arcs));
        }
        list.items.push_back(std::move(item));
    }
    return list;
}

} // namespace Merivane::Workbench
