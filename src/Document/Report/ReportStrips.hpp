#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Document/Report/Report.hpp"
#include "Drawing/DisplayList.hpp"

/// A report on its way to pages: cut into strips that no page breaks. All lengths in mm of paper.
namespace Merivane::Document {

/// Width of the text of a page.
inline constexpr double TextWidth = 174.0;

/// What stands together on a page. Coordinates from the strip's upper left corner, y upwards, so
/// that everything lies between 0 and -`height`.
struct ReportStrip {
    double space = 0.0; ///< above it, dropped at the head of a page
    double height = 0.0;
    bool keepWithNext = false; ///< stands on the page of the next strip
    std::vector<Drawing::Element> elements;
    std::vector<Drawing::Element> head; ///< repeated above it at the head of a page
    double headHeight = 0.0;
    /// Shown on a page of its own, not owned; the strip then holds no elements but the room for a
    /// line that tells which page.
    const Drawing::DisplayList* drawing = nullptr;
    std::string drawingName;
    std::optional<std::string> bookmark; ///< the outline's entry that leads here
    bool bookmarkUnderLast = false;
};

/// Cuts the whole report, its title first. `report` must outlive the strips.
std::vector<ReportStrip> CutReport(const Report& report);

} // namespace Merivane::Document
