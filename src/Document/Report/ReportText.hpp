#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Document/Report/Report.hpp"
#include "Simulation/Geometry.hpp"

/// Numbers and lists as a report tells them. Portuguese, decimal comma.
namespace Merivane::Document {

/// What stands where there is no value.
inline constexpr const char* NoValue = "–";

/// "2,60 m".
std::string MetresText(double metres);

/// "70 %" of a share [0..1].
std::string PercentText(double share);

/// "1 Zona", "12 Zonas".
std::string CountText(std::size_t count, const std::string& one, const std::string& many);

/// "A", "A e B", "A, B e C".
std::string ListText(const std::vector<std::string>& names);

/// Values of several things of one kind.
struct ValueRange {
    bool any = false;
    double least = 0.0;
    double most = 0.0;
};

/// Takes one more value into a range.
void Include(ValueRange& range, double value);

/// "600", or "600 a 1200" where the printed values differ; `NoValue` without any.
std::string RangeText(const ValueRange& range, int decimals);

/// Area of a polygon without its holes [m2].
double AreaOf(const Simulation::Polygon2D& polygon);

/// A cell of plain text.
ReportCell Cell(std::string text, ReportTone tone = ReportTone::Plain, bool bold = false);

/// The row of one cell that heads the rows below it.
ReportRow GroupRow(std::string text);

} // namespace Merivane::Document
