#include "Host/Stories.hpp"

#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

using Workbench::CurrentSession;
using Workbench::Session;

ErrorCode GetStories(std::vector<Story>& stories, std::int16_t& activeFloor) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetStories")) {
        return code;
    }
    const Session& session = CurrentSession();
    stories = session.project.stories;
    activeFloor = session.project.activeFloor;
    return NoError;
}

ErrorCode ChangeActiveFloor(std::int16_t floorIndex) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeActiveFloor")) {
        return code;
    }
    Session& session = CurrentSession();
    if (const ErrorCode code = Workbench::CheckStory(session.project, floorIndex)) {
        return code;
    }
    session.projectChanged = session.projectChanged || session.project.activeFloor != floorIndex;
    session.project.activeFloor = floorIndex;
    return NoError;
}

} // namespace Merivane::Host
