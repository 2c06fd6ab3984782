#include "Host/Views.hpp"

#include <algorithm>
#include <utility>

#include "Workbench/Project/AttributeRules.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Project/WindowRules.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::Project;
using Workbench::ProjectView;
using Workbench::Session;

ViewKind KindOf(const ProjectView& view) {
    if (view.isFolder) {
        return ViewKind::Folder;
    }
    switch (view.window.type) {
    case WindowType::FloorPlan:
        return ViewKind::FloorPlan;
    case WindowType::Section:
        return ViewKind::Section;
    case WindowType::Model3D:
        return ViewKind::Model3D;
    case WindowType::Elevation:
        return ViewKind::Elevation;
    case WindowType::InteriorElevation:
        return ViewKind::InteriorElevation;
    case WindowType::Worksheet:
        return ViewKind::Worksheet;
    }
    return ViewKind::Other;
}

View Describe(const ProjectView& view) {
    return {view.guid, KindOf(view), view.floorIndex, view.name, view.layerCombination, view.scale};
}

ErrorCode CheckView(const Project& project, const View& view) {
    if (!Workbench::IsWindowName(view.name) ||
        !(view.scale == 0.0 || Workbench::IsScale(view.scale))) {
        return BadParameters;
    }
    if (view.kind == ViewKind::FloorPlan) {
        if (const ErrorCode code = Workbench::CheckStory(project, view.floorIndex)) {
            return code;
        }
    }
    const bool stands =
        view.layerCombination.empty() ||
        Workbench::FindAttributeName(project.combinations, view.layerCombination) != 0;
    return stands ? NoError : BadName;
}

void Store(ProjectView& stored, const View& view) {
    ProjectView changed = stored;
    changed.name = view.name;
    if (!stored.isFolder) {
        changed.layerCombination = view.layerCombination;
        changed.scale = view.scale;
        changed.floorIndex = view.kind == ViewKind::FloorPlan ? view.floorIndex : stored.floorIndex;
    }
    Session& session = CurrentSession();
    session.projectChanged = session.projectChanged || !(changed == stored);
    stored = std::move(changed);
}

} // namespace

ErrorCode ListViews(std::vector<View>& views) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListViews")) {
        return code;
    }
    views.clear();
    for (const ProjectView& view : CurrentSession().project.views) {
        views.push_back(Describe(view));
    }
    return NoError;
}

ErrorCode CreateView(View& view) {
    if (const ErrorCode code = Workbench::CountStructureCall("CreateView")) {
        return code;
    }
    if (view.kind != ViewKind::FloorPlan && view.kind != ViewKind::Model3D) {
        return NotSupported;
    }
    Project& project = CurrentSession().project;
    if (const ErrorCode code = CheckView(project, view)) {
        return code;
    }
    ProjectView made;
    made.guid = Workbench::FreshGuid();
    made.window.type =
        view.kind == ViewKind::FloorPlan ? WindowType::FloorPlan : WindowType::Model3D;
    Store(made, view);
    view = Describe(made);
    project.views.push_back(std::move(made));
    CurrentSession().projectChanged = true;
    return NoError;
}

ErrorCode ChangeView(const View& view) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeView")) {
        return code;
    }
    Project& project = CurrentSession().project;
    const auto found =
        std::find_if(project.views.begin(), project.views.end(),
                     [&view](const ProjectView& stored) { return stored.guid == view.guid; });
    if (found == project.views.end()) {
        return BadId;
    }
    if (KindOf(*found) != view.kind) {
        return BadParameters;
    }
    if (const ErrorCode code = CheckView(project, view)) {
        return code;
    }
    Store(*found, view);
    return NoError;
}

} // namespace Merivane::Host
