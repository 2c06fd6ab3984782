#include <utility>

#include "Host/Model3D.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/ElementLights.hpp"
#include "Workbench/Model/ScriptSurfaces.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Session.hpp"

// Bodies of the project's elements.
namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::FoundPart;
using Workbench::ProjectElement;
using Workbench::Session;

Workbench::BodySource SourceOf(const Session& session) {
    return {&session.project, &session.index};
}

} // namespace

ErrorCode GetBodies(const Guid& guid, std::vector<Body>& bodies) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetBodies")) {
        return code;
    }
    const Session& session = CurrentSession();
    const auto* const element = Workbench::FindElement(session.project, session.index, guid);
    const FoundPart found = Workbench::FindElementPart(session.project, session.index, guid);
    const ProjectElement* const whole = element ? element : found.owner;
    if (!whole) {
        return BadId;
    }
    const ElementHeader& header = whole->element.header;
    if (const ErrorCode code = Workbench::CheckLayer(session.project, header.layer)) {
        return code;
    }
    if (!Workbench::HasBody(element ? header.type : found.part->type)) {
        return NoBody;
    }
    std::vector<Body> built;
    const bool made =
        element ? Workbench::BuildElementBodies(SourceOf(session), *element, built)
                : Workbench::BuildPartBodies(SourceOf(session), *found.owner, *found.part, built);
    if (!made) {
        return GeneralError;
    }
    bodies = std::move(built);
    return NoError;
}

ErrorCode GetLights(const Guid& guid, std::vector<ModelLight>& lights) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetLights")) {
        return code;
    }
    const Session& session = CurrentSession();
    const auto* const element = Workbench::FindElement(session.project, session.index, guid);
    if (!element) {
        return BadId;
    }
    const ElementHeader& header = element->element.header;
    if (const ErrorCode code = Workbench::CheckLayer(session.project, header.layer)) {
        return code;
    }
    if (!Workbench::HasBody(header.type)) {
        return NoBody;
    }
    lights = Workbench::BuildElementLights(SourceOf(session), *element);
    return NoError;
}

ErrorCode GetScriptSurface(std::int32_t surface, ModelSurface& model) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetScriptSurface")) {
        return code;
    }
    const ModelSurface* const found =
        Workbench::FindScriptSurface(CurrentSession().project, surface);
    if (!found) {
        return BadIndex;
    }
    model = *found;
    return NoError;
}

} // namespace Merivane::Host
