#include "Document/Report/ReportText.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Simulation::FormatDecimal;

double RingArea(const std::vector<Simulation::Point2D>& ring) {
    double twice = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Simulation::Point2D& a = ring[i];
        const Simulation::Point2D& b = ring[(i + 1) % ring.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return 0.5 * std::abs(twice);
}

} // namespace

std::string MetresText(double metres) {
    return FormatDecimal(metres, 2) + " m";
}

std::string PercentText(double share) {
    return FormatDecimal(share * 100.0, 0) + " %";
}

std::string CountText(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string ListText(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) {
            text += i + 1 == names.size() ? " e " : ", ";
        }
        text += names[i];
    }
    return text;
}

void Include(ValueRange& range, double value) {
    range.least = range.any ? std::min(range.least, value) : value;
    range.most = range.any ? std::max(range.most, value) : value;
    range.any = true;
}

std::string RangeText(const ValueRange& range, int decimals) {
    if (!range.any) {
        return NoValue;
    }
    const std::string least = FormatDecimal(range.least, decimals);
    const std::string most = FormatDecimal(range.most, decimals);
    return least == most ? least : least + " a " + most;
}

double AreaOf(const Simulation::Polygon2D& polygon) {
    double area = RingArea(polygon.outer);
    for (const std::vector<Simulation::Point2D>& hole : polygon.holes) {
        area -= RingArea(hole);
    }
    return area;
}

ReportCell Cell(std::string text, ReportTone tone, bool bold) {
    return {std::move(text), tone, bold};
}

ReportRow GroupRow(std::string text) {
    return {Cell(std::move(text), ReportTone::Plain, true)};
}

} // namespace Merivane::Document
