#include "Document/DocumentFields.hpp"

namespace Merivane::Document {

using Catalog::ReadNumbers;

FieldReader Into(Simulation::Point2D& target, NumberRange range) {
    return [&target, range](const Place& place, std::string& error) {
        std::array<double, 2> numbers{};
        if (!ReadNumbers(place, numbers, range, "um ponto [x, y]", error)) {
            return false;
        }
        target = {numbers[0], numbers[1]};
        return true;
    };
}

FieldReader Into(Simulation::Point3D& target, NumberRange range) {
    return [&target, range](const Place& place, std::string& error) {
        std::array<double, 3> numbers{};
        if (!ReadNumbers(place, numbers, range, "uma lista [x, y, z]", error)) {
            return false;
        }
        target = {numbers[0], numbers[1], numbers[2]};
        return true;
    };
}

FieldReader IntoChannels(std::array<double, 3>& target, NumberRange range) {
    return [&target, range](const Place& place, std::string& error) {
        const Catalog::JsonValue& value = *place.value;
        if (value.kind == Catalog::JsonKind::Number && value.number >= range.lowest &&
            value.number <= range.highest) {
            target.fill(value.number);
            return true;
        }
        const std::string expected =
            "um número " + Catalog::RangeText(range) + " ou uma lista [r, g, b]";
        return ReadNumbers(place, target, range, expected, error);
    };
}

} // namespace Merivane::Document
