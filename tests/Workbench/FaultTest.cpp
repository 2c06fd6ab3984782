#include <filesystem>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Attributes.hpp"
#include "Host/Dialog.hpp"
#include "Host/Elements.hpp"
#include "Host/FileChooser.hpp"
#include "Host/Library.hpp"
#include "Host/Menus.hpp"
#include "Host/Model3D.hpp"
#include "Host/Session.hpp"
#include "Host/Storage.hpp"
#include "Host/Stories.hpp"
#include "Host/Views.hpp"
#include "Support/Places.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

// Every operation of the port can be made to fail, and then changes nothing.
namespace Merivane::Workbench {
namespace {

using Host::ErrorCode;
using Calls = std::map<std::string, std::function<ErrorCode()>>;

Host::Guid WallGuid() {
    Host::Guid guid;
    guid.bytes[0] = 1;
    return guid;
}

/// An empty project with a wall that every call below can be about.
void OpenSmallProject() {
    OpenSession({.guidSeed = 1});
    Project project = MakeEmptyProject();
    ProjectElement wall;
    wall.element.header = {Host::ElementType::Wall, WallGuid(), 0, {1}, 0, {}, false};
    WallGeometry geometry;
    geometry.end = {5.0, 0.0};
    wall.geometry = geometry;
    project.elements = {wall};
    OpenProject(std::move(project));
}

Host::Element MakeLine() {
    Host::Element line;
    line.header.type = Host::ElementType::Line;
    line.header.layer = {1};
    line.data = Host::LineData{{0.0, 0.0}, {1.0, 0.0}, 1, {}};
    return line;
}

// Runs a change of elements where it may run.
ErrorCode InStep(const std::function<ErrorCode()>& change) {
    ErrorCode code = Host::NoError;
    Host::CallUndoable("Prova", [&] { return code = change(); });
    return code;
}

Calls ElementCalls() {
    static std::vector<Host::Guid> guids;
    static Host::Element element;
    static Host::ElementMemo memo;
    static Host::Coordinate3D corner;
    return {
        {"ListElements",
         [] {
             return Host::ListElements(Host::ElementType::Any, Host::ElementFilter::None, guids);
         }},
        {"GetElement", [] { return Host::GetElement(WallGuid(), element); }},
        {"GetMemo", [] { return Host::GetMemo(WallGuid(), Host::MemoParts::All, memo); }},
        {"GetBounds", [] { return Host::GetBounds(WallGuid(), corner, corner); }},
        {"ListParts", [] { return Host::ListParts(WallGuid(), guids); }},
        {"ListOpenings", [] { return Host::ListOpenings(WallGuid(), guids); }},
        {"GetSelection", [] { return Host::GetSelection(guids); }},
        {"SetSelection", [] { return Host::SetSelection({WallGuid()}); }},
        {"CallUndoable",
         [] {
             return Host::CallUndoable("Prova", [] { return Host::DeleteElements({WallGuid()}); });
         }},
        {"CreateElement",
         [] {
             return InStep([] {
                 element = MakeLine();
                 return Host::CreateElement(element, {});
             });
         }},
        {"ChangeElement",
         [] {
             return InStep([] {
                 Host::Element wall;
                 Host::GetElement(WallGuid(), wall);
                 return Host::ChangeElement(wall, {}, {});
             });
         }},
        {"DeleteElements",
         [] { return InStep([] { return Host::DeleteElements({WallGuid()}); }); }},
        {"GetBodies",
         [] {
             std::vector<Host::Body> bodies;
             return Host::GetBodies(WallGuid(), bodies);
         }},
        {"GetLights",
         [] {
             std::vector<Host::ModelLight> lights;
             return Host::GetLights(WallGuid(), lights);
         }},
        {"GetScriptSurface",
         [] {
             Host::ModelSurface surface;
             return Host::GetScriptSurface(Host::FirstScriptSurface, surface);
         }},
    };
}

Calls AttributeCalls() {
    static Host::AttributeIndex index;
    static Host::LayerCombination combination{"Prova", {{{1}, false, false}}};
    return {
        {"ListAttributes",
         [] {
             std::vector<Host::AttributeIndex> indices;
             return Host::ListAttributes(Host::AttributeType::Layer, indices);
         }},
        {"FindAttribute",
         [] { return Host::FindAttribute(Host::AttributeType::Layer, "Prova", index); }},
        {"GetLayer",
         [] {
             Host::Layer layer;
             return Host::GetLayer({1}, layer);
         }},
        {"CreateLayer",
         [] {
             return Host::CreateLayer({"Prova", false, false}, index);
         }},
        {"ChangeLayer",
         [] {
             return Host::ChangeLayer({1}, {"Camada principal", false, false});
         }},
        {"GetLineType",
         [] {
             Host::LineType lineType;
             return Host::GetLineType({1}, lineType);
         }},
        {"CreateLineType",
         [] {
             return Host::CreateLineType({"Prova", {1.0, 1.0}}, index);
         }},
        {"ChangeLineType",
         [] {
             return Host::ChangeLineType({1}, {"Prova", {1.0, 1.0}});
         }},
        {"GetFill",
         [] {
             Host::Fill fill;
             return Host::GetFill({1}, fill);
         }},
        {"GetSurface",
         [] {
             Host::ModelSurface surface;
             return Host::GetSurface({1}, surface);
         }},
        {"CreateSurface",
         [] {
             return Host::CreateSurface({"Prova", {}, 0.5, 0.0}, index);
         }},
        {"GetLayerCombination", [] { return Host::GetLayerCombination({1}, combination); }},
        {"CreateLayerCombination", [] { return Host::CreateLayerCombination(combination, index); }},
        {"ChangeLayerCombination", [] { return Host::ChangeLayerCombination({1}, combination); }},
    };
}

Calls WindowCalls() {
    static Host::Window window;
    static std::vector<Host::Window> windows;
    static std::vector<Host::View> views;
    static Host::View view;
    view.name = "Prova";
    static double scale = 0.0;
    return {
        {"GetStories",
         [] {
             std::vector<Host::Story> stories;
             std::int16_t active = 0;
             return Host::GetStories(stories, active);
         }},
        {"ChangeActiveFloor", [] { return Host::ChangeActiveFloor(0); }},
        {"GetCurrentWindow", [] { return Host::GetCurrentWindow(window); }},
        {"ChangeWindow", [] { return Host::ChangeWindow({}); }},
        {"GetCurrentDatabase", [] { return Host::GetCurrentDatabase(window); }},
        {"ChangeCurrentDatabase", [] { return Host::ChangeCurrentDatabase({}); }},
        {"ListWorksheets", [] { return Host::ListWorksheets(windows); }},
        {"CreateWorksheet", [] { return Host::CreateWorksheet("Prova", "P-01", window); }},
        {"GetDrawingScale", [] { return Host::GetDrawingScale(scale); }},
        {"ChangeDrawingScale", [] { return Host::ChangeDrawingScale(50.0); }},
        {"ListViews", [] { return Host::ListViews(views); }},
        {"CreateView", [] { return Host::CreateView(view); }},
        {"ChangeView", [] { return Host::ChangeView(view); }},
    };
}

Calls StoreCalls() {
    static Host::LibraryPart part;
    static double size = 0.0;
    static std::vector<Host::LibraryParameter> parameters;
    static std::string block;
    static std::int32_t version = 0;
    static Host::ProjectData data;
    return {
        {"GetLibraryPart", [] { return Host::GetLibraryPart(1, part); }},
        {"FindLibraryPart", [] { return Host::FindLibraryPart("Prova", part); }},
        {"GetPartParameters", [] { return Host::GetPartParameters(1, size, size, parameters); }},
        {"GetPartDetails", [] { return Host::GetPartDetails(1, block); }},
        {"SetPreferences", [] { return Host::SetPreferences(1, "bloco"); }},
        {"GetPreferences", [] { return Host::GetPreferences(version, block); }},
        {"StoreProjectData", [] { return Host::StoreProjectData("prova", {}); }},
        {"GetProjectData", [] { return Host::GetProjectData("prova", data); }},
    };
}

Calls SessionCalls() {
    static std::wstring path;
    static const auto HandleMenu = [](std::int16_t, std::int16_t) { return Host::NoError; };
    static const auto HandleEvent = [](std::int32_t) { return Host::NoError; };
    static const auto HandlePalette = [](Host::PaletteMessage, bool&) { return Host::NoError; };
    return {
        {"GetOwnLocation", [] { return Host::GetOwnLocation(path); }},
        {"GetTemporaryFolder", [] { return Host::GetTemporaryFolder(path); }},
        {"GetSpecialFolder",
         [] { return Host::GetSpecialFolder(Host::SpecialFolder::UserDocuments, path); }},
        {"OpenProcessWindow", [] { return Host::OpenProcessWindow("Prova", 1); }},
        {"BeginProcessPhase", [] { return Host::BeginProcessPhase("Prova", 1); }},
        {"SetProcessValue", [] { return Host::SetProcessValue(1); }},
        {"CheckProcessCancelled", [] { return Host::CheckProcessCancelled(); }},
        {"CloseProcessWindow", [] { return Host::CloseProcessWindow(); }},
        {"OpenFolder", [] { return Host::OpenFolder(L"/"); }},
        {"ChooseFile", [] { return Host::ChooseFile("Prova", {}, path); }},
        {"RegisterMenu", [] { return Host::RegisterMenu(32500, false); }},
        {"InstallMenuHandler", [] { return Host::InstallMenuHandler(32500, HandleMenu); }},
        {"CatchProjectEvents",
         [] { return Host::CatchProjectEvents(Host::ProjectNew, HandleEvent); }},
        {"RegisterPalette",
         [] { return Host::RegisterPalette(WallGuid(), HandlePalette, Host::PaletteEverywhere); }},
        {"UnregisterPalette", [] { return Host::UnregisterPalette(WallGuid()); }},
        {"RunDialog",
         [] {
             bool accepted = false;
             return Host::RunDialog(1, {}, accepted);
         }},
        {"CreatePalette",
         [] {
             Host::DialogId palette = 0;
             return Host::CreatePalette(1, {}, palette);
         }},
    };
}

Calls LibraryCalls() {
    static std::vector<std::int32_t> indices;
    static std::vector<Host::Library> libraries;
    static std::vector<Host::PartSection> sections;
    static std::int32_t embedded = 0;
    static std::string bytes;
    static Host::LibraryPart part;
    static Host::Guid guid;
    static const Host::NewLibraryPart Wanted;
    return {
        {"ListLibraryParts", [] { return Host::ListLibraryParts(indices); }},
        {"GetLibraries", [] { return Host::GetLibraries(libraries, embedded); }},
        {"AddLibrary", [] { return Host::AddLibrary(L"/"); }},
        {"SetLibraries", [] { return Host::SetLibraries({}); }},
        {"ListSections", [] { return Host::ListSections(1, sections); }},
        {"ReadSection",
         [] {
             return Host::ReadSection(1, {"3DSC", 0}, bytes);
         }},
        {"CreatePart", [] { return Host::CreatePart(Wanted); }},
        {"NewSection",
         [] {
             return Host::NewSection({"3DSC", 0});
         }},
        {"WriteSection", [] { return Host::WriteSection("x"); }},
        {"EndSection", [] { return Host::EndSection(); }},
        {"MakeParameterSection",
         [] { return Host::MakeParameterSection(Wanted, 1.0, 1.0, {}, bytes); }},
        {"SetPartDetails", [] { return Host::SetPartDetails({}, bytes); }},
        {"SavePart", [] { return Host::SavePart(part); }},
        {"GetBuiltInPart", [] { return Host::GetBuiltInPart(118, guid); }},
    };
}

Calls AllCalls() {
    Calls all = ElementCalls();
    for (const Calls& calls :
         {AttributeCalls(), WindowCalls(), StoreCalls(), LibraryCalls(), SessionCalls()}) {
        all.insert(calls.begin(), calls.end());
    }
    return all;
}

/// The operations that the port's headers declare with an error code.
std::set<std::string> DeclaredOperations() {
    const std::regex declaration(R"(^ErrorCode (\w+)\()");
    std::set<std::string> names;
    const auto folder = Tests::SourceFolder() / "src" / "Host";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".hpp") {
            continue;
        }
        std::istringstream lines(Tests::ReadBytes(entry.path()));
        for (std::string line; std::getline(lines, line);) {
            std::smatch match;
            if (std::regex_search(line, match, declaration)) {
                names.insert(match[1].str());
            }
        }
    }
    return names;
}

TEST(Faults, AreKnownOfEveryOperationOfThePort) {
    std::set<std::string> named;
    for (const auto& call : AllCalls()) {
        named.insert(call.first);
    }
    EXPECT_EQ(named, DeclaredOperations());
}

TEST(Faults, MakeEveryOperationFailAndChangeNothing) {
    for (const auto& [name, call] : AllCalls()) {
        SCOPED_TRACE(name);
        OpenSmallProject();
        const std::string before = WriteProject(CurrentSession().project);
        FailCall(name, 1, Host::OutOfMemory);
        EXPECT_EQ(call(), Host::OutOfMemory);
        EXPECT_EQ(WriteProject(CurrentSession().project), before);
        EXPECT_FALSE(CurrentSession().projectChanged);
        EXPECT_FALSE(CurrentSession().undo.open);
        EXPECT_TRUE(UndoNames().empty());
        EXPECT_TRUE(CurrentSession().faults.empty());
        EXPECT_NE(call(), Host::OutOfMemory); // once alone
    }
    OpenSession({});
}

TEST(Faults, InsideAStepTakeBackWhatCameBefore) {
    OpenSmallProject();
    const std::string before = WriteProject(CurrentSession().project);
    FailCall("CreateElement", 3, Host::GeneralError);
    int made = 0;
    const ErrorCode code = Host::CallUndoable("Prova", [&made] {
        for (; made < 5; ++made) {
            Host::Element line = MakeLine();
            if (const ErrorCode failed = Host::CreateElement(line, {})) {
                return failed;
            }
        }
        return Host::NoError;
    });
    EXPECT_EQ(code, Host::GeneralError);
    EXPECT_EQ(made, 2);
    EXPECT_EQ(WriteProject(CurrentSession().project), before);
    OpenSession({});
}

} // namespace
} // namespace Merivane::Workbench
