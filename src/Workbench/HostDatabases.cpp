#include <algorithm>
#include <string>
#include <vector>

#include "Host/Stories.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Project/WindowRules.hpp"
#include "Workbench/Session.hpp"

// Windows of the project and the databases behind them.
namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::ProjectDatabase;
using Workbench::Session;

constexpr double WorksheetScale = 50.0;

bool IsWholeProject(WindowType type) {
    return type == WindowType::FloorPlan || type == WindowType::Model3D;
}

ProjectDatabase* FindDatabase(Session& session, const Window& wanted) {
    auto& databases = session.project.databases;
    const auto found = std::find_if(databases.begin(), databases.end(),
                                    [&wanted](const ProjectDatabase& database) {
                                        return database.window.type == wanted.type &&
                                               database.window.database == wanted.database;
                                    });
    return found == databases.end() ? nullptr : &*found;
}

// The whole record of a window that is told by its type and database; false when there is none.
bool FindWindow(Session& session, const Window& wanted, Window& window) {
    if (IsWholeProject(wanted.type)) {
        window = {};
        window.type = wanted.type;
        return true;
    }
    const ProjectDatabase* const database = FindDatabase(session, wanted);
    if (database) {
        window = database->window;
    }
    return database != nullptr;
}

// Where the scale of the current database stands; null for the 3D window, which has none.
double* FindScale(Session& session) {
    if (session.database.type == WindowType::FloorPlan) {
        return &session.project.planScale;
    }
    ProjectDatabase* const database = FindDatabase(session, session.database);
    return database ? &database->scale : nullptr;
}

} // namespace

ErrorCode GetCurrentWindow(Window& window) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetCurrentWindow")) {
        return code;
    }
    Session& session = CurrentSession();
    return FindWindow(session, session.project.window, window) ? NoError : BadWindow;
}

ErrorCode ChangeWindow(const Window& window) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeWindow")) {
        return code;
    }
    Session& session = CurrentSession();
    Window found;
    if (!FindWindow(session, window, found)) {
        return BadWindow;
    }
    session.projectChanged = session.projectChanged || found != session.project.window;
    session.project.window = found;
    session.database = found;
    session.visitedDatabases.insert(found.database);
    return NoError;
}

ErrorCode GetCurrentDatabase(Window& database) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetCurrentDatabase")) {
        return code;
    }
    Session& session = CurrentSession();
    return FindWindow(session, session.database, database) ? NoError : BadDatabase;
}

ErrorCode ChangeCurrentDatabase(const Window& database) {
    if (const ErrorCode code = Workbench::CountProjectCall("ChangeCurrentDatabase")) {
        return code;
    }
    Session& session = CurrentSession();
    Window found;
    if (!FindWindow(session, database, found)) {
        return BadDatabase;
    }
    session.database = found;
    return NoError;
}

ErrorCode ListWorksheets(std::vector<Window>& worksheets) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListWorksheets")) {
        return code;
    }
    const Session& session = CurrentSession();
    worksheets.clear();
    for (const ProjectDatabase& database : session.project.databases) {
        if (database.window.type == WindowType::Worksheet) {
            worksheets.push_back(database.window);
        }
    }
    return NoError;
}

ErrorCode CreateWorksheet(std::string_view name, std::string_view reference, Window& worksheet) {
    if (const ErrorCode code = Workbench::CountProjectCall("CreateWorksheet")) {
        return code;
    }
    Session& session = CurrentSession();
    if (session.undo.open) {
        return RefusedCommand;
    }
    if (!Workbench::IsWindowName(name) ||
        (!reference.empty() && !Workbench::IsWindowName(reference))) {
        return BadParameters;
    }
    const auto& databases = session.project.databases;
    if (std::any_of(databases.begin(), databases.end(), [name](const ProjectDatabase& database) {
            return database.window.type == WindowType::Worksheet && database.window.name == name;
        })) {
        return NameInUse;
    }
    ProjectDatabase made;
    made.window.type = WindowType::Worksheet;
    made.window.database = Workbench::FreshGuid();
    made.window.name = name;
    made.window.reference = reference;
    made.scale = WorksheetScale;
    worksheet = made.window;
    session.project.databases.push_back(std::move(made));
    session.projectChanged = true;
    return NoError;
}

ErrorCode GetDrawingScale(double& scale) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetDrawingScale")) {
        return code;
    }
    Session& session = CurrentSession();
    const double* const found = FindScale(session);
    if (!found) {
        return BadDatabase;
    }
    scale = *found;
    return NoError;
}

ErrorCode ChangeDrawingScale(double scale) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeDrawingScale")) {
        return code;
    }
    Session& session = CurrentSession();
    double* const found = FindScale(session);
    if (!found) {
        return BadDatabase;
    }
    if (!Workbench::IsScale(scale)) {
        return BadParameters;
    }
    session.projectChanged = session.projectChanged || *found != scale;
    *found = scale;
    return NoError;
}

} // namespace Merivane::Host
