#include "Workbench/Session.hpp"

#include <algorithm>
#include <utility>

#include "Workbench/PartLibraries.hpp"
#include "Workbench/SessionResources.hpp"

namespace Merivane::Workbench {

namespace {

// Indices of parts carry the generation of the library list above this many parts.
constexpr std::int32_t LibraryStride = 100'000;
constexpr std::int32_t LibraryGenerations = 20'000;

void LoadProject(Project project, std::wstring path) {
    Session& session = CurrentSession();
    if (session.projectOpen) {
        RenewLibraryIndices();
    }
    session.projectOpen = true;
    session.project = std::move(project);
    session.projectPath = std::move(path);
    session.projectChanged = false;
    session.index = BuildElementIndex(session.project.elements);
    session.undo = {};
    session.database = session.project.window; // the current one follows the front window
    session.visitedDatabases = {session.project.window.database};
    session.partInMaking.reset();
    ReadLibraries();
}

std::vector<std::string> NamesOf(const std::vector<UndoStep>& steps) {
    std::vector<std::string> names;
    names.reserve(steps.size());
    for (const UndoStep& step : steps) {
        names.push_back(step.name);
    }
    return names;
}

bool IsTaken(const Session& session, const Host::Guid& guid) {
    const auto& databases = session.project.databases;
    const auto& views = session.project.views;
    return session.index.places.contains(guid) || session.index.parts.contains(guid) ||
           std::any_of(databases.begin(), databases.end(),
                       [&guid](const ProjectDatabase& database) {
                           return database.window.database == guid;
                       }) ||
           std::any_of(views.begin(), views.end(),
                       [&guid](const ProjectView& view) { return view.guid == guid; });
}

} // namespace

Session& CurrentSession() {
    static Session session;
    return session;
}

void OpenSession(SessionOptions options) {
    CurrentSession() = Session();
    CurrentSession().options = std::move(options);
    ReadSessionResources();
    CurrentSession().guids = MakeGuidSource(CurrentSession().options.guidSeed);
}

void OpenProject(Project project, std::wstring path, std::int32_t event) {
    LoadProject(std::move(project), std::move(path));
    const std::vector<ProjectEventCatcher> catchers = CurrentSession().eventCatchers;
    for (const ProjectEventCatcher& catcher : catchers) {
        if ((catcher.events & event) != 0 && catcher.handler) {
            catcher.handler(event);
        }
    }
}

void NewProject() {
    OpenProject(MakeEmptyProject(), {}, Host::ProjectNew);
}

void CloseProject() {
    LoadProject({}, {});
    CurrentSession().projectOpen = false;
}

bool Undo() {
    Session& session = CurrentSession();
    const bool done = UndoLatestStep(session.undo, session.project, session.index);
    session.projectChanged = session.projectChanged || done;
    return done;
}

bool Redo() {
    Session& session = CurrentSession();
    const bool done = RedoLatestStep(session.undo, session.project, session.index);
    session.projectChanged = session.projectChanged || done;
    return done;
}

std::vector<std::string> UndoNames() {
    return NamesOf(CurrentSession().undo.done);
}

std::vector<std::string> RedoNames() {
    return NamesOf(CurrentSession().undo.undone);
}

void RenewLibraryIndices() {
    std::int32_t& generation = CurrentSession().libraryGeneration;
    generation = (generation + 1) % LibraryGenerations;
}

std::int32_t LibraryIndexOf(std::size_t place) {
    return CurrentSession().libraryGeneration * LibraryStride + static_cast<std::int32_t>(place) +
           1;
}

std::int32_t LibraryPlaceOf(std::int32_t index) {
    const Session& session = CurrentSession();
    const std::int64_t place =
        std::int64_t{index} - std::int64_t{session.libraryGeneration} * LibraryStride - 1;
    const auto count = static_cast<std::int64_t>(session.project.parts.size());
    return place >= 0 && place < count ? static_cast<std::int32_t>(place) : -1;
}

bool HasContent(const Session& session, const Host::Window& database) {
    const bool isSection = database.type == Host::WindowType::Section ||
                           database.type == Host::WindowType::Elevation ||
                           database.type == Host::WindowType::InteriorElevation;
    return !isSection || session.visitedDatabases.contains(database.database);
}

Host::Guid FreshGuid() {
    Session& session = CurrentSession();
    Host::Guid guid = NextGuid(session.guids);
    while (IsTaken(session, guid)) {
        guid = NextGuid(session.guids);
    }
    return guid;
}

void FailCall(std::string_view operation, int nth, Host::ErrorCode code) {
    CurrentSession().faults.push_back({std::string(operation), nth, code});
}

Host::ErrorCode CountCall(std::string_view operation) {
    ++CurrentSession().calls[std::string(operation)];
    Host::ErrorCode code = Host::NoError;
    std::vector<Fault>& faults = CurrentSession().faults;
    for (Fault& fault : faults) {
        if (fault.operation == operation && --fault.callsLeft == 0 && code == Host::NoError) {
            code = fault.code;
        }
    }
    faults.erase(std::remove_if(faults.begin(), faults.end(),
                                [](const Fault& fault) { return fault.callsLeft <= 0; }),
                 faults.end());
    return code;
}

Host::ErrorCode CountProjectCall(std::string_view operation) {
    const Host::ErrorCode code = CountCall(operation);
    return code == Host::NoError && !CurrentSession().projectOpen ? Host::NoPlan : code;
}

Host::ErrorCode CountStructureCall(std::string_view operation) {
    const Host::ErrorCode code = CountProjectCall(operation);
    return code == Host::NoError && CurrentSession().undo.open ? Host::UndoScopeMisuse : code;
}

} // namespace Merivane::Workbench
