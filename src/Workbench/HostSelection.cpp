#include <algorithm>
#include <set>

#include "Host/Elements.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

using Workbench::CurrentSession;
using Workbench::Session;

ErrorCode GetSelection(std::vector<Guid>& guids) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetSelection")) {
        return code;
    }
    guids = CurrentSession().project.selection;
    return guids.empty() ? NoSelection : NoError;
}

ErrorCode SetSelection(const std::vector<Guid>& guids) {
    if (const ErrorCode code = Workbench::CountProjectCall("SetSelection")) {
        return code;
    }
    Session& session = CurrentSession();
    std::vector<Guid> selection;
    std::set<Guid> seen;
    for (const Guid& guid : guids) {
        if (!session.index.places.contains(guid)) {
            return BadId;
        }
        if (seen.insert(guid).second) {
            selection.push_back(guid);
        }
    }
    session.projectChanged = session.projectChanged || selection != session.project.selection;
    session.project.selection = std::move(selection);
    return NoError;
}

} // namespace Merivane::Host
