#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Menus.hpp"
#include "Host/Stories.hpp"
#include "Host/Types.hpp"
#include "Workbench/Interface/UserInterface.hpp"
#include "Workbench/PartInMaking.hpp"
#include "Workbench/Project/ElementIndex.hpp"
#include "Workbench/Project/GuidSource.hpp"
#include "Workbench/Project/Project.hpp"
#include "Workbench/Project/UndoHistory.hpp"

/// The embedded host: it defines the functions of the port, and keeps what a host keeps in one
/// session that a test or the program opens and looks into.
namespace Merivane::Workbench {

/// One line of the report window.
struct ReportLine {
    std::string text;   ///< as the user reads it, UTF-8
    bool alert = false; ///< shown in an alert too
};

/// One phase of a process window.
struct ProcessPhase {
    std::string title;
    std::int32_t highest = 0;
    std::vector<std::int32_t> values; ///< as they were shown, in their order
};

/// What a process window has shown.
struct ProcessWindow {
    std::string title;
    std::int32_t phaseCount = 0; ///< as announced
    std::vector<ProcessPhase> phases;
    bool open = true;
    bool cancelled = false; ///< the user has pressed its button; set by a test, too
};

/// Who is told of project events.
struct ProjectEventCatcher {
    std::int32_t events = 0;
    Host::ProjectEventHandler handler = nullptr;
};

/// What a session is opened with. Paths are full ones.
struct SessionOptions {
    std::wstring ownLocation = {};     ///< of the add-on; empty = the running program's file
    std::wstring temporaryFolder = {}; ///< empty = the system's
    std::wstring documentsFolder = {}; ///< empty = the user's
    std::wstring preferencesFile = {}; ///< empty = the preferences live as long as the session
    std::function<void(const ReportLine&)> onReport = {}; ///< told of each report line, if given
    std::function<void(const ProcessWindow&)> onProgress = {}; ///< told of each change, if given
    std::function<bool()> cancelAsked = {}; ///< true once the user wants to stop, if given
    std::function<bool(const std::wstring&)> showFolder = {}; ///< shows a folder; false = can't
    std::uint64_t guidSeed = 0; ///< same seed, same guids; 0 = unlike any other session
    bool darkMode = false;      ///< of the interface
    std::vector<std::string> resourceScripts = {}; ///< further ones, in front of the add-on's own
};

/// The add-on's block of preferences as the host keeps it.
struct Preferences {
    std::int32_t version = 0; ///< 0 = never written
    std::string block;        ///< any bytes
};

/// A failure asked for by a test.
struct Fault {
    std::string operation; ///< name of the port's function: "GetTemporaryFolder"
    int callsLeft = 1;     ///< 1 = the next call fails
    Host::ErrorCode code = Host::GeneralError;
};

/// All that the embedded host remembers.
struct Session {
    SessionOptions options;
    std::vector<ReportLine> reportLines;           ///< oldest first
    Preferences preferences;                       ///< where there is no preferences file
    std::vector<Fault> faults;                     ///< those still to come
    std::map<std::string, int, std::less<>> calls; ///< of the port's functions, by their names
    UserInterface userInterface;                   ///< dialogs, palettes, menus

    bool projectOpen = false;
    Project project;
    std::wstring projectPath;    ///< empty = never saved
    bool projectChanged = false; ///< since it was opened or saved
    ElementIndex index;          ///< of the project's elements
    UndoHistory undo;
    Host::Window database;                 ///< the current one
    std::set<Host::Guid> visitedDatabases; ///< those whose window was in front in this session
    GuidSource guids;
    std::int32_t libraryGeneration = 0; ///< how often the list of libraries changed
    std::optional<PartInMaking> partInMaking;

    std::vector<ProjectEventCatcher> eventCatchers;
    std::vector<ProcessWindow> processWindows; ///< latest last
    std::vector<std::wstring> shownFolders;
};

/// The session that the port's functions work on. Before the first `OpenSession` it is one with
/// empty options.
Session& CurrentSession();

/// Replaces the session by a fresh one: no report lines, no faults, no preferences but those in the
/// file.
void OpenSession(SessionOptions options);

/// Opens a project that was read or built, and tells the add-on. `path` is empty for one that was
/// never saved. A project that was open is closed without saving it.
void OpenProject(Project project, std::wstring path = {}, std::int32_t event = Host::ProjectOpen);

/// Opens an empty project and tells the add-on of a new one.
void NewProject();

/// Closes the open project without saving it.
void CloseProject();

/// Undoes the latest step, or does the one again that was undone last; false when there is none or
/// a step runs.
bool Undo();
bool Redo();

/// Names of the steps that can be undone, latest last, and of those that can be done again, first
/// one last.
std::vector<std::string> UndoNames();
std::vector<std::string> RedoNames();

/// Makes every index of a library part that was given out so far stale, as a change of the
/// libraries does.
void RenewLibraryIndices();

/// Index of the part at `place` in `Project::parts` as commands see it now, and back; -1 for a
/// stale or unknown one.
std::int32_t LibraryIndexOf(std::size_t place);
std::int32_t LibraryPlaceOf(std::int32_t index);

/// False for a section, elevation or interior elevation whose window was not in front yet in this
/// session: what it shows is made then.
bool HasContent(const Session& session, const Host::Window& database);

/// A guid that no element, part, database or view of the open project has.
Host::Guid FreshGuid();

/// Makes the `nth` call of a port's function from now on (1 = the next one) fail with `code`. The
/// calls before and after it work as ever.
void FailCall(std::string_view operation, int nth, Host::ErrorCode code);

/// For the definitions of the port: counts this call of `operation`, and gives the code it has to
/// fail with, 0 for none.
Host::ErrorCode CountCall(std::string_view operation);

/// The same for an operation on the project: NoPlan where none is open.
Host::ErrorCode CountProjectCall(std::string_view operation);

/// The same for one that changes the project outside undo: UndoScopeMisuse inside a step.
Host::ErrorCode CountStructureCall(std::string_view operation);

} // namespace Merivane::Workbench
