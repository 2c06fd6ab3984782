#include "Archicad/FloorViews.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "Archicad/FloorPlanDatabase.hpp"
#include "Archicad/LayerCombinations.hpp"
#include "Archicad/OlderNames.hpp"
#include "Host/Views.hpp"
#include "Text/Utf16Length.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;
using Host::View;

constexpr std::size_t LongestName = 255; // units of UTF-16

std::string StoryName(const std::vector<Host::Story>& stories, std::int16_t floorIndex) {
    const auto found =
        std::find_if(stories.begin(), stories.end(),
                     [floorIndex](const Host::Story& story) { return story.index == floorIndex; });
    return found != stories.end() ? found->name : std::string();
}

// The views but for those of stories that share this one's name, and so the names of its views.
// Stories that the host does not tell share none.
std::vector<View> WithoutNamesakes(const std::vector<View>& views, std::int16_t floorIndex) {
    std::vector<Host::Story> stories;
    std::int16_t activeFloor = 0;
    Host::GetStories(stories, activeFloor);
    const std::string name = StoryName(stories, floorIndex);
    std::vector<View> left;
    std::copy_if(views.begin(), views.end(), std::back_inserter(left), [&](const View& view) {
        return view.floorIndex == floorIndex || name.empty() ||
               StoryName(stories, view.floorIndex) != name;
    });
    return left;
}

// Of several views the floor's own comes first.
const View* FindFloorView(const std::vector<View>& views, std::int16_t floorIndex,
                          std::string_view name) {
    const View* found = nullptr;
    for (const View& view : views) {
        if (view.kind != Host::ViewKind::FloorPlan || view.name != name) {
            continue;
        }
        if (view.floorIndex == floorIndex) {
            return &view;
        }
        found = found ? found : &view;
    }
    return found;
}

const View* FindFloorView(const std::vector<View>& views, std::int16_t floorIndex,
                          std::string_view name, const std::vector<std::string>& formerNames) {
    const View* found = FindFloorView(views, floorIndex, name);
    for (const std::string& formerName : formerNames) {
        found =
            found ? found
                  : FindFloorView(views, floorIndex, Text::TruncateUtf16(formerName, LongestName));
    }
    return found;
}

// What is drawn for the plan's scale is best seen at it; 0 where the host does not tell.
double PlanScale() {
    const FloorPlanDatabase plan;
    double scale = 0.0;
    return Host::GetDrawingScale(scale) == Host::NoError ? scale : 0.0;
}

} // namespace

ErrorCode EnsureFloorView(std::int16_t floorIndex, std::string_view name,
                          const std::vector<std::string>& formerNames,
                          std::string_view combinationName, bool& created) {
    created = false;
    std::vector<View> views;
    if (const ErrorCode code = Host::ListViews(views)) {
        return code;
    }
    views = WithoutNamesakes(views, floorIndex);
    const std::string cutName = Text::TruncateUtf16(name, LongestName);
    const View* const found = FindFloorView(views, floorIndex, cutName, formerNames);
    View view = found ? *found : View();
    view.name = cutName;
    view.floorIndex = floorIndex;
    view.layerCombination = CutAttributeName(combinationName);
    if (found) {
        return Host::ChangeView(view);
    }
    view.scale = PlanScale();
    const ErrorCode code = Host::CreateView(view);
    created = code == Host::NoError;
    return code;
}

ErrorCode EnsureSimulationView(const Host::Story& story, bool& created) {
    return EnsureFloorView(story.index, "Luminotécnico Simulação - " + story.name,
                           {"Luminotécnico - " + story.name, "Luminotecnico - " + story.name},
                           SimulationCombination, created);
}

ErrorCode EnsureProjectView(const Host::Story& story, bool& created) {
    return EnsureFloorView(story.index, "Luminotécnico Projeto - " + story.name, {},
                           ProjectCombination, created);
}

} // namespace Merivane::Archicad
