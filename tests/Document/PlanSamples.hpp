#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Document/ResultPlan.hpp"
#include "Drawing/DisplayList.hpp"
#include "Drawing/TextSize.hpp"

namespace Merivane::Document {

/// The rectangle from (`x`, `y`) of the given sides, counter-clockwise [m].
std::vector<Simulation::Point2D> Rectangle(double x, double y, double width, double height);

/// A Zone over a polygon whose values come from a function of the place.
PlanZone MakeZone(const std::string& name, const Simulation::Polygon2D& polygon,
                  const std::function<double(Simulation::Point2D)>& illuminance,
                  double borderBand = 0.5);

/// Illuminance under downlights of `intensity` cd that hang 2 m over the plane: I cos^3 / h^2.
std::function<double(Simulation::Point2D)> Downlights(std::vector<Simulation::Point2D> places,
                                                      double intensity);

/// A room of 6 x 4 m with four downlights, walls and a window.
PlanContents SampleRoom();

/// Two Zones beside each other, one with a column as a hole.
PlanContents SampleOffice();

/// A corridor so narrow that it has no border band.
PlanContents SampleCorridor();

/// Elements of one kind, in drawing order, of all layers or of the layer named.
template <typename Kind>
std::vector<Kind> ElementsOf(const Drawing::DisplayList& list, const std::string& layer = {}) {
    std::vector<Kind> found;
    for (const Drawing::Layer& candidate : list.layers) {
        for (const Drawing::Element& element : candidate.elements) {
            const Kind* kind = std::get_if<Kind>(&element);
            if (kind != nullptr && (layer.empty() || candidate.name == layer)) {
                found.push_back(*kind);
            }
        }
    }
    return found;
}

/// The texts of a drawing, in drawing order.
std::vector<std::string> TextsOf(const std::vector<Drawing::TextRun>& runs);

/// How many of the texts equal `text`.
std::size_t CountText(const Drawing::DisplayList& list, const std::string& text);

/// The first text that equals `text`; fails the running test when there is none.
Drawing::TextRun FindText(const Drawing::DisplayList& list, const std::string& text);

/// Pairs of texts whose rectangles meet, as one line each; empty when all keep clear.
std::string OverlappingTexts(const Drawing::DisplayList& list);

} // namespace Merivane::Document
