#pragma once

#include "Host/Elements.hpp"
#include "Host/Stories.hpp"
#include "Host/Types.hpp"
#include "Workbench/Project/Project.hpp"

/// What an element may be, and where: what the real host refuses is refused here with its codes.
namespace Merivane::Workbench {

/// Lines, arcs, splines, hatches, texts, labels, dimensions, hotspots: what lies on a drawing.
bool IsDrawnType(Host::ElementType type);

/// Parts that only exist inside another element: segments, frames, panels, treads.
bool IsPartType(Host::ElementType type);

/// The floor plan, worksheets, sections and elevations: all but the 3D window hold elements.
bool HoldsElements(Host::WindowType type);

/// NoSuchLayer, HiddenLayer, LockedLayer.
Host::ErrorCode CheckLayer(const Project& project, Host::AttributeIndex layer);

/// InvalidStory.
Host::ErrorCode CheckStory(const Project& project, std::int16_t floorIndex);

/// NotSupported for types that are not made through the port, RefusedParameters where the window
/// cannot hold the type.
Host::ErrorCode CheckPlace(Host::ElementType type, Host::WindowType window);

/// The element's own record: BadParameters where the record is not the type's or a number makes no
/// sense, BadIndex for a pen, an attribute or a part that does not exist, RefusedParameters for a
/// lamp's part on an object or the other way round. `libraryIndex` is a place in `Project::parts`
/// counted from 1.
Host::ErrorCode CheckElementData(const Project& project, const Host::Element& element);

/// What hangs on the element, as far as its type has it: BadPolygon, IrregularPolygon,
/// BadParagraphs, BadIndex. Parameters are checked where they are taken.
Host::ErrorCode CheckMemo(const Project& project, const Host::Element& element,
                          const Host::ElementMemo& memo);

/// The parts of a memo that elements of this type have.
Host::MemoParts MemoPartsOf(Host::ElementType type);

/// True when `parts` holds `part`.
bool Holds(Host::MemoParts parts, Host::MemoParts part);

/// Copies the given parts of a memo over those of another.
void CopyMemo(const Host::ElementMemo& from, Host::MemoParts parts, Host::ElementMemo& to);

/// Takes over what elements of this type have in a memo, but for parameters.
void TakeMemo(Host::ElementType type, const Host::ElementMemo& from, Host::ElementMemo& to);

/// True when a text may be changed so: its position and width; anything else needs a new one.
bool IsTextChange(const Host::ElementData& before, const Host::ElementData& after);

/// True when an element of this type passes the filters (its bits together).
bool PassesFilter(const Project& project, const Host::ElementHeader& header,
                  Host::ElementFilter filter);

} // namespace Merivane::Workbench
