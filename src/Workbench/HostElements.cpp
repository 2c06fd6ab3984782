#include <utility>
#include <variant>

#include "Host/Elements.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Project/ParameterRules.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::ElementPart;
using Workbench::FoundPart;
using Workbench::ProjectElement;
using Workbench::Session;

ElementHeader HeaderOfPart(const ProjectElement& owner, const ElementPart& part) {
    ElementHeader header = owner.element.header;
    header.type = part.type;
    header.guid = part.guid;
    header.group = {};
    return header;
}

void ListPartsOfType(const ProjectElement& element, ElementType type, ElementFilter filter,
                     std::vector<Guid>& guids) {
    for (const ElementPart& part : element.parts) {
        if (part.type == type &&
            PassesFilter(CurrentSession().project, HeaderOfPart(element, part), filter)) {
            guids.push_back(part.guid);
        }
    }
}

// The libraries' part of a placed one; null where the project lacks it.
const Workbench::ProjectPart* PartOf(const Session& session, const ProjectElement& element) {
    const auto* const data = std::get_if<ObjectData>(&element.element.data);
    const auto& parts = session.project.parts;
    if (!data || data->libraryIndex < 1 ||
        static_cast<std::size_t>(data->libraryIndex) > parts.size()) {
        return nullptr;
    }
    return &parts[static_cast<std::size_t>(data->libraryIndex) - 1];
}

Element AsCommandsSeeIt(const Element& stored) {
    Element element = stored;
    if (auto* const data = std::get_if<ObjectData>(&element.data); data && data->libraryIndex > 0) {
        data->libraryIndex =
            Workbench::LibraryIndexOf(static_cast<std::size_t>(data->libraryIndex) - 1);
    }
    return element;
}

// The element of this guid, or the one that its part belongs to.
const ProjectElement* FindWhole(const Session& session, const Guid& guid) {
    const ProjectElement* const element =
        Workbench::FindElement(session.project, session.index, guid);
    return element ? element
                   : Workbench::FindElementPart(session.project, session.index, guid).owner;
}

} // namespace

ErrorCode ListElements(ElementType type, ElementFilter filter, std::vector<Guid>& guids) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListElements")) {
        return code;
    }
    const Session& session = CurrentSession();
    if (!Workbench::HoldsElements(session.database.type)) {
        return BadDatabase;
    }
    guids.clear();
    if (!Workbench::HasContent(session, session.database)) {
        return NoError;
    }
    const bool isPart = Workbench::IsPartType(type);
    for (const ProjectElement& element : session.project.elements) {
        const ElementHeader& header = element.element.header;
        if (header.guid == Guid() || element.database != session.database.database) {
            continue;
        }
        if (isPart) {
            ListPartsOfType(element, type, filter, guids);
        } else if ((type == ElementType::Any || header.type == type) &&
                   PassesFilter(session.project, header, filter)) {
            guids.push_back(header.guid);
        }
    }
    return NoError;
}

ErrorCode GetElement(const Guid& guid, Element& element) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetElement")) {
        return code;
    }
    const Session& session = CurrentSession();
    if (const auto* const found = Workbench::FindElement(session.project, session.index, guid)) {
        element = AsCommandsSeeIt(found->element);
        return NoError;
    }
    const FoundPart found = Workbench::FindElementPart(session.project, session.index, guid);
    if (!found.part) {
        return BadId;
    }
    element = {HeaderOfPart(*found.owner, *found.part), {}};
    return NoError;
}

ErrorCode GetMemo(const Guid& guid, MemoParts parts, ElementMemo& memo) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetMemo")) {
        return code;
    }
    const Session& session = CurrentSession();
    const ProjectElement* const found =
        Workbench::FindElement(session.project, session.index, guid);
    if (!found && !FindWhole(session, guid)) {
        return BadId;
    }
    memo = {};
    if (!found) {
        return NoError; // a part of another element has no memo
    }
    const Workbench::ProjectPart* const part = PartOf(session, *found);
    Workbench::CopyMemo(found->memo, parts, memo);
    if (part && Workbench::Holds(parts, MemoParts::Parameters)) {
        // Of a part that is missing since before the project was opened only these are known.
        const bool isUnknown =
            part->source == Workbench::PartSource::Missing && part->parameters.empty();
        memo.parameters =
            isUnknown ? found->memo.parameters
                      : Workbench::MergeParameters(part->parameters, found->memo.parameters);
    }
    return NoError;
}

ErrorCode ListParts(const Guid& guid, std::vector<Guid>& parts) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListParts")) {
        return code;
    }
    const Session& session = CurrentSession();
    const ProjectElement* const found =
        Workbench::FindElement(session.project, session.index, guid);
    if (!found && !FindWhole(session, guid)) {
        return BadId;
    }
    parts.clear();
    if (found) {
        for (const ElementPart& part : found->parts) {
            parts.push_back(part.guid);
        }
    }
    return NoError;
}

ErrorCode ListOpenings(const Guid& guid, std::vector<Guid>& openings) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListOpenings")) {
        return code;
    }
    const Session& session = CurrentSession();
    if (!FindWhole(session, guid)) {
        return BadId;
    }
    openings = Workbench::FindOpenings(session.index, guid);
    return NoError;
}

} // namespace Merivane::Host
