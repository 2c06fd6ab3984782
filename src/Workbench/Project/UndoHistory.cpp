#include "Workbench/Project/UndoHistory.hpp"

#include <algorithm>
#include <utility>

namespace Merivane::Workbench {

namespace {

using Elements = std::vector<ProjectElement>;

bool IsEmptyPlace(const ProjectElement& element) {
    return element.element.header.guid == Host::Guid();
}

void Remember(OpenStep& step, const Project& project, std::size_t place) {
    step.touches = true;
    if (place < step.firstNew) {
        step.before.try_emplace(place, project.elements[place]);
    }
}

void ForgetInSelection(Project& project, const ElementIndex& index) {
    std::erase_if(project.selection,
                  [&index](const Host::Guid& guid) { return !index.places.contains(guid); });
}

// How many of `deleted`, ordered by place, stand before `place`.
std::size_t CountBefore(const std::vector<PlacedElement>& deleted, std::size_t place) {
    const auto end = std::lower_bound(
        deleted.begin(), deleted.end(), place,
        [](const PlacedElement& placed, std::size_t p) { return placed.place < p; });
    return static_cast<std::size_t>(end - deleted.begin());
}

void ExchangeChanged(UndoStep& step, Elements& elements, bool deletedAreGone) {
    for (PlacedElement& changed : step.changed) {
        const std::size_t gone = deletedAreGone ? CountBefore(step.deleted, changed.place) : 0;
        std::swap(elements[changed.place - gone], changed.element);
    }
}

void InsertDeleted(UndoStep& step, Elements& elements) {
    Elements whole;
    whole.reserve(elements.size() + step.deleted.size());
    auto next = elements.begin();
    for (PlacedElement& deleted : step.deleted) {
        while (whole.size() < deleted.place) {
            whole.push_back(std::move(*next++));
        }
        whole.push_back(std::move(deleted.element));
    }
    std::move(next, elements.end(), std::back_inserter(whole));
    elements = std::move(whole);
}

void TakeDeleted(UndoStep& step, Elements& elements) {
    for (PlacedElement& deleted : step.deleted) {
        deleted.element = std::exchange(elements[deleted.place], {});
    }
    std::erase_if(elements, IsEmptyPlace);
}

void Finish(Project& project, ElementIndex& index) {
    index = BuildElementIndex(project.elements);
    ForgetInSelection(project, index);
}

} // namespace

void BeginStep(UndoHistory& history, const Project& project, std::string_view name) {
    OpenStep step;
    step.name = name;
    step.firstNew = project.elements.size();
    step.selection = project.selection;
    step.lastStamp = project.lastStamp;
    history.open = std::move(step);
}

void AddElement(UndoHistory& history, Project& project, ElementIndex& index,
                ProjectElement element) {
    history.open->touches = true;
    IndexElement(index, element, project.elements.size());
    project.elements.push_back(std::move(element));
}

void ReplaceElement(UndoHistory& history, Project& project, std::size_t place,
                    ProjectElement element) {
    Remember(*history.open, project, place);
    project.elements[place] = std::move(element);
}

void RemoveElement(UndoHistory& history, Project& project, ElementIndex& index,
                   const Host::Guid& guid) {
    const std::size_t place = index.places.at(guid);
    Remember(*history.open, project, place);
    history.open->deletes = true;
    for (const ElementPart& part : project.elements[place].parts) {
        index.parts.erase(part.guid);
    }
    index.places.erase(guid);
    project.elements[place] = {};
}

void CommitStep(UndoHistory& history, Project& project, ElementIndex& index) {
    OpenStep open = std::move(*history.open);
    history.open.reset();
    UndoStep step;
    step.name = std::move(open.name);
    for (auto& [place, element] : open.before) {
        auto& list = IsEmptyPlace(project.elements[place]) ? step.deleted : step.changed;
        list.push_back({place, std::move(element)});
    }
    const std::size_t kept = open.firstNew - step.deleted.size();
    if (open.deletes) {
        std::erase_if(project.elements, IsEmptyPlace);
        Finish(project, index);
    }
    step.createdCount = project.elements.size() - kept;
    history.undone.clear();
    history.done.push_back(std::move(step));
    if (history.done.size() > UndoLimit) {
        history.done.erase(history.done.begin());
    }
}

void RollBackStep(UndoHistory& history, Project& project, ElementIndex& index) {
    OpenStep open = std::move(*history.open);
    history.open.reset();
    project.elements.resize(open.firstNew);
    for (auto& [place, element] : open.before) {
        project.elements[place] = std::move(element);
    }
    project.lastStamp = open.lastStamp;
    project.selection = std::move(open.selection);
    index = BuildElementIndex(project.elements);
}

bool UndoLatestStep(UndoHistory& history, Project& project, ElementIndex& index) {
    if (history.open || history.done.empty()) {
        return false;
    }
    UndoStep step = std::move(history.done.back());
    history.done.pop_back();
    Elements& elements = project.elements;
    const auto firstCreated = elements.end() - static_cast<std::ptrdiff_t>(step.createdCount);
    step.created.assign(std::make_move_iterator(firstCreated),
                        std::make_move_iterator(elements.end()));
    elements.erase(firstCreated, elements.end());
    ExchangeChanged(step, elements, true);
    InsertDeleted(step, elements);
    history.undone.push_back(std::move(step));
    Finish(project, index);
    return true;
}

bool RedoLatestStep(UndoHistory& history, Project& project, ElementIndex& index) {
    if (history.open || history.undone.empty()) {
        return false;
    }
    UndoStep step = std::move(history.undone.back());
    history.undone.pop_back();
    Elements& elements = project.elements;
    ExchangeChanged(step, elements, false);
    TakeDeleted(step, elements);
    std::move(step.created.begin(), step.created.end(), std::back_inserter(elements));
    step.created.clear();
    history.done.push_back(std::move(step));
    Finish(project, index);
    return true;
}

} // namespace Merivane::Workbench
