#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Types.hpp"
#include "Workbench/Project/ElementIndex.hpp"
#include "Workbench/Project/Project.hpp"

/// Undo and redo of whole steps. A step remembers only the elements that it touched, and where they
/// stood in the order of creation.
namespace Merivane::Workbench {

/// How many steps can be undone; older ones are forgotten.
inline constexpr std::size_t UndoLimit = 100;

/// An element with its place in `Project::elements` before the step.
struct PlacedElement {
    std::size_t place = 0;
    ProjectElement element;
};

/// A step between two states of the project. It holds what the other state has and the present one
/// has not, so that undoing and redoing are exchanges.
struct UndoStep {
    std::string name;
    std::vector<PlacedElement> deleted;  ///< by place; filled while the step is done
    std::vector<PlacedElement> changed;  ///< by place; their content in the other state
    std::vector<ProjectElement> created; ///< at the end; filled while the step is undone
    std::size_t createdCount = 0;
};

/// The step that runs now. Deleted elements leave an empty record at their place until it ends.
struct OpenStep {
    std::string name;
    std::size_t firstNew = 0;                     ///< number of elements when it began
    std::map<std::size_t, ProjectElement> before; ///< touched ones by place, as they were
    std::vector<Host::Guid> selection;            ///< as it was
    std::uint64_t lastStamp = 0;                  ///< as it was
    bool deletes = false;
    bool touches = false; ///< changed anything at all
};

struct UndoHistory {
    std::vector<UndoStep> done; ///< latest last
    std::vector<UndoStep> undone;
    std::optional<OpenStep> open;
};

/// Opens a step. None may be open.
void BeginStep(UndoHistory& history, const Project& project, std::string_view name);

/// The following three change elements inside the open step.
void AddElement(UndoHistory& history, Project& project, ElementIndex& index,
                ProjectElement element);
void ReplaceElement(UndoHistory& history, Project& project, std::size_t place,
                    ProjectElement element);
void RemoveElement(UndoHistory& history, Project& project, ElementIndex& index,
                   const Host::Guid& guid);

/// Ends the open step and keeps it; what was undone before can't be redone any more.
void CommitStep(UndoHistory& history, Project& project, ElementIndex& index);

/// Ends the open step and takes back all that it did, the selection and the stamps too.
void RollBackStep(UndoHistory& history, Project& project, ElementIndex& index);

/// Undoes the latest step, or does the one again that was undone last. Deleted elements leave the
/// selection. False when there is none or a step is open.
bool UndoLatestStep(UndoHistory& history, Project& project, ElementIndex& index);
bool RedoLatestStep(UndoHistory& history, Project& project, ElementIndex& index);

} // namespace Merivane::Workbench
