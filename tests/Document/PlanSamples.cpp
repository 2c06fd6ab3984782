#include "PlanSamples.hpp"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "Simulation/PointStatistics.hpp"

namespace Merivane::Document {

using Simulation::Point2D;

namespace {

void AddWalls(PlanContents& contents, const std::vector<Point2D>& ring) {
    for (std::size_t k = 0; k < ring.size(); ++k) {
        contents.segments.push_back({k == 1 ? PlanSegmentKind::Glass : PlanSegmentKind::Wall,
                                     ring[k], ring[(k + 1) % ring.size()]});
    }
}

void AddLuminaires(PlanContents& contents, const std::vector<Point2D>& places, bool round) {
    for (const Point2D& place : places) {
        contents.luminaires.push_back({place, 0.0, round ? 0.2 : 1.2, 0.2, round});
    }
}

} // namespace

std::vector<Point2D> Rectangle(double x, double y, double width, double height) {
    return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

PlanZone MakeZone(const std::string& name, const Simulation::Polygon2D& polygon,
                  const std::function<double(Point2D)>& illuminance, double borderBand) {
    PlanZone zone;
    zone.name = name;
    zone.polygon = polygon;
    zone.borderBand = borderBand;
    Simulation::GridSettings settings;
    settings.borderBand = borderBand;
    zone.grid = BuildCalculationGrid(polygon, 0.0, settings);
    for (const Point2D& place : ActivePoints(zone.grid)) {
        zone.values.push_back(illuminance(place));
    }
    zone.statistics = TaskStatistics(zone.grid, zone.values);
    return zone;
}

std::function<double(Point2D)> Downlights(std::vector<Point2D> places, double intensity) {
    return [places = std::move(places), intensity](Point2D place) {
        constexpr double height = 2.0;
        double illuminance = 20.0;
        for (const Point2D& light : places) {
            const double cosine = height / std::hypot(place.x - light.x, place.y - light.y, height);
            illuminance += intensity * cosine * cosine * cosine / (height * height);
        }
        return illuminance;
    };
}

PlanContents SampleRoom() {
    const std::vector<Point2D> lights = {{1.5, 1}, {4.5, 1}, {1.5, 3}, {4.5, 3}};
    PlanContents contents;
    contents.title = "Sala";
    contents.floor = "Térreo";
    contents.levels = Simulation::DefaultLevels();
    contents.zones = {MakeZone("Sala", {Rectangle(0, 0, 6, 4), {}}, Downlights(lights, 1200))};
    AddLuminaires(contents, lights, true);
    AddWalls(contents, Rectangle(0, 0, 6, 4));
    contents.notes = {"Cálculo de teste, sem reflexões."};
    return contents;
}

PlanContents SampleOffice() {
    std::vector<Point2D> lights;
    for (int row = 0; row < 6; ++row) {
        for (int k = 0; k < 2; ++k) {
            lights.push_back({1.5 + 3.0 * k, 1.0 + 2.0 * row});
        }
    }
    for (int row = 0; row < 3; ++row) {
        for (int k = 0; k < 4; ++k) {
            lights.push_back({7.0 + 2.0 * k, 1.0 + 2.0 * row});
        }
    }
    PlanContents contents;
    contents.title = "Escritório";
    contents.levels = Simulation::DefaultLevels();
    const std::vector<Point2D> column = Rectangle(2.8, 5.8, 0.4, 0.4);
    contents.zones = {
        MakeZone("Escritório aberto", {Rectangle(0, 0, 6, 12), {column}}, Downlights(lights, 900)),
        MakeZone("Sala de reunião", {Rectangle(6, 0, 8, 6), {}}, Downlights(lights, 900))};
    AddLuminaires(contents, lights, false);
    AddWalls(contents, Rectangle(0, 0, 6, 12));
    AddWalls(contents, Rectangle(6, 0, 8, 6));
    AddWalls(contents, column);
    return contents;
}

PlanContents SampleCorridor() {
    PlanContents contents;
    contents.title = "Corredor";
    contents.levels = Simulation::DefaultLevels();
    contents.zones = {MakeZone("Corredor", {Rectangle(0, 0, 12, 0.9), {}},
                               Downlights({{2, 0.45}, {6, 0.45}, {10, 0.45}}, 500))};
    AddWalls(contents, Rectangle(0, 0, 12, 0.9));
    return contents;
}

std::vector<std::string> TextsOf(const std::vector<Drawing::TextRun>& runs) {
    std::vector<std::string> texts;
    texts.reserve(runs.size());
    for (const Drawing::TextRun& run : runs) {
        texts.push_back(run.text);
    }
    return texts;
}

std::size_t CountText(const Drawing::DisplayList& list, const std::string& text) {
    const std::vector<std::string> texts = TextsOf(ElementsOf<Drawing::TextRun>(list));
    return static_cast<std::size_t>(std::count(texts.begin(), texts.end(), text));
}

Drawing::TextRun FindText(const Drawing::DisplayList& list, const std::string& text) {
    for (const Drawing::TextRun& run : ElementsOf<Drawing::TextRun>(list)) {
        if (run.text == text) {
            return run;
        }
    }
    ADD_FAILURE() << "no text \"" << text << "\"";
    return {};
}

std::string OverlappingTexts(const Drawing::DisplayList& list) {
    const std::vector<Drawing::TextRun> runs = ElementsOf<Drawing::TextRun>(list);
    std::vector<Drawing::Box> boxes;
    boxes.reserve(runs.size());
    for (const Drawing::TextRun& run : runs) {
        boxes.push_back(TextBounds(run));
    }
    std::string overlaps;
    for (std::size_t k = 0; k < runs.size(); ++k) {
        for (std::size_t n = k + 1; n < runs.size(); ++n) {
            const bool shown = !runs[k].text.empty() && !runs[n].text.empty();
            if (shown && BoxesMeet(boxes[k], boxes[n])) {
                overlaps += runs[k].text + " | " + runs[n].text + "\n";
            }
        }
    }
    return overlaps;
}

} // namespace Merivane::Document
