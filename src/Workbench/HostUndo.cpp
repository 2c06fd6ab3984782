#include "Host/Elements.hpp"
#include "Workbench/Project/UndoHistory.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::Session;

ErrorCode RunGuarded(const std::function<ErrorCode()>& change) {
    try {
        return change();
    } catch (...) {
        return CommandFailed;
    }
}

} // namespace

ErrorCode CallUndoable(std::string_view name, const std::function<ErrorCode()>& change) {
    if (const ErrorCode code = Workbench::CountProjectCall("CallUndoable")) {
        return code;
    }
    Session& session = CurrentSession();
    if (session.undo.open) {
        return RefusedCommand;
    }
    if (!change) {
        return BadParameters;
    }
    Workbench::BeginStep(session.undo, session.project, name);
    const ErrorCode code = RunGuarded(change);
    if (!session.undo.open) {
        return code; // a test opened another project from inside
    }
    if (code != NoError) {
        Workbench::RollBackStep(session.undo, session.project, session.index);
        return code;
    }
    if (!session.undo.open->touches) {
        session.undo.open.reset();
        return NothingToUndo;
    }
    Workbench::CommitStep(session.undo, session.project, session.index);
    session.projectChanged = true;
    return NoError;
}

} // namespace Merivane::Host
