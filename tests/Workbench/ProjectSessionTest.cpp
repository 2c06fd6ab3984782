#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Attributes.hpp"
#include "Host/Elements.hpp"
#include "Host/Menus.hpp"
#include "Host/Session.hpp"
#include "Host/Storage.hpp"
#include "Host/Stories.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

// What a session does around the port: projects come and go, steps have names, work is watched.
namespace Merivane::Workbench {
namespace {

std::vector<std::int32_t>& ToldEvents() {
    static std::vector<std::int32_t> events;
    return events;
}

Host::Guid MakeLine(double length = 1.0) {
    Host::Element line;
    line.header.type = Host::ElementType::Line;
    line.header.layer = {1};
    line.data = Host::LineData{{0.0, 0.0}, {length, 0.0}, 1, {}};
    EXPECT_EQ(Host::CreateElement(line, {}), Host::NoError);
    return line.header.guid;
}

Host::Guid MakeLineInStep(const std::string& step, double length = 1.0) {
    Host::Guid guid;
    EXPECT_EQ(Host::CallUndoable(step,
                                 [&] {
                                     guid = MakeLine(length);
                                     return Host::NoError;
                                 }),
              Host::NoError);
    return guid;
}

TEST(ProjectSession, TellsTheAddOnOfProjects) {
    OpenSession({});
    ToldEvents().clear();
    const auto remember = [](std::int32_t event) {
        ToldEvents().push_back(event);
        return Host::NoError;
    };
    ASSERT_EQ(Host::CatchProjectEvents(Host::ProjectNew + Host::ProjectOpen, remember),
              Host::NoError);
    NewProject();
    OpenProject(MakeEmptyProject());
    EXPECT_EQ(ToldEvents(), (std::vector<std::int32_t>{Host::ProjectNew, Host::ProjectOpen}));
    OpenSession({});
}

TEST(ProjectSession, BeginsAProjectWithoutStepsAndClean) {
    OpenSession({});
    NewProject();
    MakeLineInStep("um");
    ASSERT_EQ(Host::SetSelection({}), Host::NoError);
    EXPECT_TRUE(CurrentSession().projectChanged);
    NewProject();
    EXPECT_FALSE(CurrentSession().projectChanged);
    EXPECT_TRUE(UndoNames().empty());
    EXPECT_TRUE(CurrentSession().index.places.empty());
}

TEST(ProjectSession, TellsWhatChangesAProjectAndWhatDoesNot) {
    OpenSession({});
    NewProject();
    const auto changes = [](Host::ErrorCode code) {
        EXPECT_EQ(code, Host::NoError);
        return std::exchange(CurrentSession().projectChanged, false);
    };
    Host::AttributeIndex index;
    Host::Window window;
    double scale = 0.0;
    EXPECT_FALSE(changes(Host::GetDrawingScale(scale)));
    EXPECT_FALSE(changes(Host::ChangeDrawingScale(scale))); // the same again
    EXPECT_TRUE(changes(Host::ChangeDrawingScale(75.0)));
    EXPECT_FALSE(changes(Host::ChangeLayer({1}, CurrentSession().project.layers.at(1))));
    EXPECT_TRUE(changes(Host::CreateLayer({"Prova", false, false}, index)));
    EXPECT_TRUE(changes(Host::CreateWorksheet("Prova", "P", window)));
    EXPECT_TRUE(changes(Host::StoreProjectData("prova", {})));
    EXPECT_FALSE(changes(Host::ChangeCurrentDatabase(window)));
    EXPECT_TRUE(changes(Host::ChangeWindow(window)));
    EXPECT_TRUE(changes(Host::ChangeWindow({})));
    EXPECT_FALSE(changes(Host::ChangeWindow({})));
    EXPECT_FALSE(changes(Host::ChangeActiveFloor(0)));
    MakeLineInStep("um");
    EXPECT_TRUE(changes(Host::NoError));
    EXPECT_TRUE(Undo());
    EXPECT_TRUE(changes(Host::NoError));
}

TEST(ProjectSession, MakesTheSameBytesFromTheSameSeed) {
    std::vector<std::string> files;
    for (const std::uint64_t seed : {5U, 5U, 6U, 0U, 0U}) {
        OpenSession({.guidSeed = seed});
        NewProject();
        MakeLineInStep("um");
        Host::Window window;
        EXPECT_EQ(Host::CreateWorksheet("Prova", "P", window), Host::NoError);
        files.push_back(WriteProject(CurrentSession().project));
    }
    EXPECT_EQ(files[0], files[1]);
    EXPECT_EQ(std::set<std::string>(files.begin(), files.end()).size(), 4U);
}

TEST(ProjectSession, NeverGivesAGuidThatTheProjectHas) {
    OpenSession({.guidSeed = 5});
    NewProject();
    const Host::Guid taken = MakeLineInStep("um");
    CurrentSession().guids = MakeGuidSource(5); // as when a program runs twice on one project
    EXPECT_NE(MakeLineInStep("dois"), taken);
}

TEST(ProjectSession, NamesTheStepsThatCanBeUndoneAndRedone) {
    OpenSession({});
    NewProject();
    MakeLineInStep("um");
    MakeLineInStep("dois");
    MakeLineInStep("três");
    EXPECT_TRUE(Undo());
    EXPECT_TRUE(Undo());
    EXPECT_EQ(UndoNames(), std::vector<std::string>{"um"});
    EXPECT_EQ(RedoNames(), (std::vector<std::string>{"três", "dois"}));
    EXPECT_TRUE(Redo());
    EXPECT_EQ(UndoNames(), (std::vector<std::string>{"um", "dois"}));
}

TEST(ProjectSession, NeitherUndoesNorRedoesWhileAStepRuns) {
    OpenSession({});
    NewProject();
    MakeLineInStep("um");
    EXPECT_EQ(Host::CallUndoable("dois",
                                 [] {
                                     EXPECT_FALSE(Undo());
                                     EXPECT_FALSE(Redo());
                                     return Host::Cancelled;
                                 }),
              Host::Cancelled);
    EXPECT_EQ(UndoNames(), std::vector<std::string>{"um"});
}

TEST(ProjectSession, ForgetsTheOldestStepsBeyondItsLimit) {
    OpenSession({});
    NewProject();
    for (std::size_t i = 0; i <= UndoLimit; ++i) {
        MakeLineInStep(std::to_string(i));
    }
    EXPECT_EQ(UndoNames().size(), UndoLimit);
    EXPECT_EQ(UndoNames().front(), "1");
}

// A value of another kind would be refused when the project is read back.
TEST(ProjectSession, DropsValuesThatDoNotFitThePartThatTakesThePlace) {
    OpenSession({});
    Project project = MakeEmptyProject();
    project.parts.resize(2);
    for (ProjectPart& part : project.parts) {
        part.name = &part == &project.parts[0] ? "um" : "dois";
        part.parameters.resize(2);
        part.parameters[0].name = "mvFlux";
        part.parameters[1].name = "mvName";
    }
    project.parts[0].parameters[1].type = Host::ParameterType::String;
    OpenProject(std::move(project));
    Host::Element object;
    object.header.type = Host::ElementType::Object;
    object.header.layer = {1};
    Host::ObjectData data;
    data.libraryIndex = LibraryIndexOf(0);
    object.data = data;
    Host::ElementMemo memo;
    memo.parameters = CurrentSession().project.parts[0].parameters;
    memo.parameters[0].number = 5.0;
    memo.parameters[1].text = "a";
    const auto& elements = CurrentSession().project.elements;
    ASSERT_EQ(Host::CallUndoable("um", [&] { return Host::CreateElement(object, memo); }),
              Host::NoError);
    EXPECT_EQ(elements.at(0).memo.parameters, memo.parameters);
    std::get<Host::ObjectData>(object.data).libraryIndex = LibraryIndexOf(1);
    ASSERT_EQ(Host::CallUndoable("dois", [&] { return Host::ChangeElement(object, {}, {}); }),
              Host::NoError);
    ASSERT_EQ(elements.at(0).memo.parameters.size(), 1U);
    EXPECT_EQ(elements.at(0).memo.parameters[0].number, 5.0);
}

TEST(ProjectSession, WatchesAProcessWindow) {
    std::vector<std::int32_t> seen;
    OpenSession({.onProgress = [&seen](const ProcessWindow& window) {
        seen.push_back(window.phases.empty() || window.phases.back().values.empty()
                           ? -1
                           : window.phases.back().values.back());
    }});
    EXPECT_EQ(Host::OpenProcessWindow("Vantoro: calcular", 2), Host::NoError);
    EXPECT_EQ(Host::BeginProcessPhase("Geometria", 10), Host::NoError);
    for (const std::int32_t value : {-1, 5, 11}) {
        EXPECT_EQ(Host::SetProcessValue(value), Host::NoError);
    }
    EXPECT_EQ(Host::CloseProcessWindow(), Host::NoError);
    EXPECT_EQ(seen, (std::vector<std::int32_t>{-1, -1, 0, 5, 10, 10}));
    const ProcessWindow& window = CurrentSession().processWindows.at(0);
    EXPECT_EQ(window.title, "Vantoro: calcular");
    EXPECT_EQ(window.phaseCount, 2);
    EXPECT_EQ(window.phases.at(0).title, "Geometria");
    EXPECT_EQ(window.phases.at(0).highest, 10);
    EXPECT_FALSE(window.open);
    OpenSession({});
}

TEST(ProjectSession, StopsWorkWhenTheProgramIsInterrupted) {
    bool interrupted = false;
    OpenSession({.cancelAsked = [&interrupted] { return interrupted; }});
    EXPECT_EQ(Host::OpenProcessWindow("Vantoro: calcular", 1), Host::NoError);
    EXPECT_EQ(Host::CheckProcessCancelled(), Host::NoError);
    interrupted = true;
    EXPECT_EQ(Host::CheckProcessCancelled(), Host::Cancelled);
    interrupted = false;
    EXPECT_EQ(Host::CheckProcessCancelled(), Host::Cancelled);
    OpenSession({});
}

TEST(ProjectSession, StopsWorkWithoutAProcessWindowToo) {
    bool interrupted = false;
    OpenSession({.cancelAsked = [&interrupted] { return interrupted; }});
    EXPECT_EQ(Host::CheckProcessCancelled(), Host::NoError);
    interrupted = true;
    EXPECT_EQ(Host::CheckProcessCancelled(), Host::Cancelled);
    OpenSession({});
}

TEST(ProjectSession, ShowsFolders) {
    const Tests::TemporaryFolder folder;
    const std::wstring path = Text::WidePath(folder.Path());
    std::vector<std::wstring> shown;
    bool works = true;
    OpenSession({.showFolder = [&](const std::wstring& asked) {
        shown.push_back(asked);
        return works;
    }});
    EXPECT_EQ(Host::OpenFolder(path), Host::NoError);
    EXPECT_EQ(Host::OpenFolder(path + L"/nada"), Host::GeneralError);
    works = false;
    EXPECT_EQ(Host::OpenFolder(path), Host::GeneralError);
    EXPECT_EQ(shown, (std::vector<std::wstring>{path, path}));
    EXPECT_EQ(CurrentSession().shownFolders, std::vector<std::wstring>{path});
    OpenSession({});
}

} // namespace
} // namespace Merivane::Workbench
