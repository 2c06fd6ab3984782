#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>
#include <variant>
#include <vector>

#include "Host/Elements.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Project/ParameterRules.hpp"
#include "Workbench/Project/PolygonRules.hpp"
#include "Workbench/Project/UndoHistory.hpp"
#include "Workbench/Session.hpp"

// What changes elements: each inside an undo step only.
namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::HasContent;
using Workbench::ProjectElement;
using Workbench::Session;

ErrorCode CountChange(std::string_view operation) {
    const ErrorCode code = Workbench::CountProjectCall(operation);
    return code == NoError && !CurrentSession().undo.open ? NeedsUndoScope : code;
}

// The index of a library part as the project stores it, 0 for a stale or unknown one.
void StoreLibraryIndex(Element& element) {
    if (auto* const data = std::get_if<ObjectData>(&element.data)) {
        data->libraryIndex = Workbench::LibraryPlaceOf(data->libraryIndex) + 1;
    }
}

ErrorCode TakeObjectParameters(const Session& session, const ElementMemo& memo,
                               ProjectElement& element) {
    const auto* const data = std::get_if<ObjectData>(&element.element.data);
    if (!data) {
        return NoError;
    }
    const auto& part = session.project.parts[static_cast<std::size_t>(data->libraryIndex) - 1];
    if (part.source != Workbench::PartSource::Missing || !part.parameters.empty()) {
        return Workbench::TakeParameters(part.parameters, memo.parameters, element.memo.parameters);
    }
    // Nothing is known of the part: the element keeps whatever values are good ones.
    Workbench::Parameters none;
    const ErrorCode code = Workbench::TakeParameters(memo.parameters, memo.parameters, none);
    if (code == NoError) {
        element.memo.parameters = memo.parameters;
    }
    return code;
}

// A part whose file has gone can't be placed; what is placed of it can be changed.
bool IsOfMissingPart(const Session& session, const Element& element) {
    const auto* const data = std::get_if<ObjectData>(&element.data);
    return data && session.project.parts[static_cast<std::size_t>(data->libraryIndex) - 1].source ==
                       Workbench::PartSource::Missing;
}

bool IsOnPlan(const ProjectElement& element) {
    return element.database == Guid();
}

// The record that `CreateElement` is asked for, with its own guid but not yet in the project.
ErrorCode MakeElement(const Session& session, const Element& wanted, const ElementMemo& memo,
                      ProjectElement& made) {
    if (!HasContent(session, session.database)) {
        return BadDatabase;
    }
    made.element = wanted;
    made.database = session.database.database;
    ElementHeader& header = made.element.header;
    if (const ErrorCode code = Workbench::CheckPlace(header.type, session.database.type)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckLayer(session.project, header.layer)) {
        return code;
    }
    if (!IsOnPlan(made)) {
        header.floorIndex = 0;
    } else if (const ErrorCode code = Workbench::CheckStory(session.project, header.floorIndex)) {
        return code;
    }
    StoreLibraryIndex(made.element);
    if (const ErrorCode code = Workbench::CheckElementData(session.project, made.element)) {
        return code;
    }
    if (IsOfMissingPart(session, made.element)) {
        return MissingDefinition;
    }
    if (const ErrorCode code = Workbench::CheckMemo(session.project, made.element, memo)) {
        return code;
    }
    Workbench::TakeMemo(header.type, memo, made.memo);
    return TakeObjectParameters(session, memo, made);
}

// An element that may be changed or deleted: neither locked itself nor by its layer, and one that
// the user can take by itself.
ErrorCode CheckEditable(const Session& session, const Guid& guid) {
    const auto place = session.index.places.find(guid);
    if (place == session.index.places.end()) {
        return session.index.parts.contains(guid) ? NotEditable : BadId;
    }
    const ElementHeader& header = session.project.elements[place->second].element.header;
    if (const ErrorCode code = Workbench::CheckLayer(session.project, header.layer)) {
        return code;
    }
    const bool isShown = header.type == ElementType::SectionElement; // only a view of another one
    return header.locked || isShown ? NotEditable : NoError;
}

// The memo parts that a change may take over: no vertex more or less, no other spline.
ErrorCode CheckShape(const ProjectElement& before, const ElementMemo& memo, MemoParts parts) {
    if (!Workbench::Holds(parts, MemoParts::Polygon)) {
        return NoError;
    }
    const ElementType type = before.element.header.type;
    if (type == ElementType::Spline && (before.memo.splinePoints != memo.splinePoints ||
                                        before.memo.splineDirections != memo.splineDirections)) {
        return RefusedParameters;
    }
    const bool hasPolygon = Workbench::MemoPartsOf(type) == MemoParts::Polygon;
    return hasPolygon && !Workbench::HasSameCounts(before.memo.polygon, memo.polygon) ? BadPolygon
                                                                                      : NoError;
}

// Own values that still fit when another part takes the place of the present one.
Workbench::Parameters KeepFitting(const Session& session, const ProjectElement& before,
                                  const ObjectData& data) {
    const auto& part = session.project.parts[static_cast<std::size_t>(data.libraryIndex) - 1];
    Workbench::Parameters kept;
    Workbench::TakeParameters(
        part.parameters, Workbench::MergeParameters(part.parameters, before.memo.parameters), kept);
    return kept;
}

ErrorCode ChangeHeader(const Session& session, const ElementHeader& wanted, ProjectElement& after) {
    ElementHeader& header = after.element.header;
    if (wanted.layer != header.layer) {
        if (const ErrorCode code = Workbench::CheckLayer(session.project, wanted.layer)) {
            return code;
        }
        header.layer = wanted.layer;
    }
    if (IsOnPlan(after) && wanted.floorIndex != header.floorIndex) {
        if (const ErrorCode code = Workbench::CheckStory(session.project, wanted.floorIndex)) {
            return code;
        }
        header.floorIndex = wanted.floorIndex;
    }
    return NoError;
}

ErrorCode ChangeMemo(const Session& session, const ProjectElement& before, const ElementMemo& memo,
                     MemoParts parts, ProjectElement& after) {
    if (const ErrorCode code = CheckShape(before, memo, parts)) {
        return code;
    }
    const ElementType type = after.element.header.type;
    if (Workbench::Holds(parts, Workbench::MemoPartsOf(type))) {
        Workbench::TakeMemo(type, memo, after.memo);
    }
    if (const ErrorCode code = Workbench::CheckMemo(session.project, after.element, after.memo)) {
        return code;
    }
    if (Workbench::Holds(parts, MemoParts::Parameters)) {
        return TakeObjectParameters(session, memo, after);
    }
    const auto* const data = std::get_if<ObjectData>(&after.element.data);
    if (data && data->libraryIndex != std::get<ObjectData>(before.element.data).libraryIndex) {
        after.memo.parameters = KeepFitting(session, before, *data);
    }
    return NoError;
}

// A wall takes its windows and doors along, a roof its skylights.
std::vector<Guid> WithOpenings(const Session& session, const std::vector<Guid>& guids) {
    std::vector<Guid> all;
    std::set<Guid> seen;
    for (const Guid& guid : guids) {
        if (seen.insert(guid).second) {
            all.push_back(guid);
        }
        for (const Guid& opening : Workbench::FindOpenings(session.index, guid)) {
            if (seen.insert(opening).second) {
                all.push_back(opening);
            }
        }
    }
    return all;
}

bool IsMarker(ElementType type) {
    return type == ElementType::CutPlane || type == ElementType::Elevation ||
           type == ElementType::InteriorElevation;
}

ErrorCode CheckDeletable(const Session& session, const Guid& guid) {
    if (const ErrorCode code = CheckEditable(session, guid)) {
        return code;
    }
    // A marker's window would go with it, which no undo brings back.
    const auto* const element = Workbench::FindElement(session.project, session.index, guid);
    return IsMarker(element->element.header.type) ? RefusedParameters : NoError;
}

} // namespace

ErrorCode CreateElement(Element& element, const ElementMemo& memo) {
    if (const ErrorCode code = CountChange("CreateElement")) {
        return code;
    }
    Session& session = CurrentSession();
    ProjectElement made;
    if (const ErrorCode code = MakeElement(session, element, memo, made)) {
        return code;
    }
    ElementHeader& header = made.element.header;
    header.guid = Workbench::FreshGuid();
    header.stamp = ++session.project.lastStamp;
    header.group = {};
    header.locked = false;
    element.header = header;
    Workbench::AddElement(session.undo, session.project, session.index, std::move(made));
    return NoError;
}

ErrorCode ChangeElement(const Element& element, const ElementMemo& memo, MemoParts parts) {
    if (const ErrorCode code = CountChange("ChangeElement")) {
        return code;
    }
    Session& session = CurrentSession();
    const Guid& guid = element.header.guid;
    if (const ErrorCode code = CheckEditable(session, guid)) {
        return code;
    }
    const std::size_t place = session.index.places.at(guid);
    const ProjectElement& before = session.project.elements[place];
    if (element.header.type != before.element.header.type) {
        return BadParameters;
    }
    ProjectElement after = before;
    if (const ErrorCode code = ChangeHeader(session, element.header, after)) {
        return code;
    }
    Element wanted = element;
    StoreLibraryIndex(wanted);
    after.element.data = wanted.data;
    if (const ErrorCode code = Workbench::CheckElementData(session.project, after.element)) {
        return code;
    }
    if (!Workbench::IsTextChange(before.element.data, after.element.data)) {
        return RefusedParameters;
    }
    if (const ErrorCode code = ChangeMemo(session, before, memo, parts, after)) {
        return code;
    }
    after.element.header.stamp = ++session.project.lastStamp;
    Workbench::ReplaceElement(session.undo, session.project, place, std::move(after));
    return NoError;
}

ErrorCode DeleteElements(const std::vector<Guid>& guids) {
    if (const ErrorCode code = CountChange("DeleteElements")) {
        return code;
    }
    Session& session = CurrentSession();
    const std::vector<Guid> all = WithOpenings(session, guids);
    for (const Guid& guid : all) {
        if (const ErrorCode code = CheckDeletable(session, guid)) {
            return code;
        }
    }
    for (const Guid& guid : all) {
        Workbench::RemoveElement(session.undo, session.project, session.index, guid);
    }
    auto& selection = session.project.selection;
    std::erase_if(selection,
                  [&session](const Guid& guid) { return !session.index.places.contains(guid); });
    return NoError;
}

} // namespace Merivane::Host
