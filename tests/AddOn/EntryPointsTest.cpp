#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/ToolbarPalette.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/MenuTable.hpp"
#include "AddOn/ProjectEvents.hpp"
#include "Workbench/MenuRun.hpp"

namespace Merivane {
namespace {

using Numbers = std::vector<int>;

class EntryPoints : public Tests::AddOnSession {
protected:
    static const std::vector<Workbench::RegisteredMenu>& Menus() {
        return Workbench::CurrentSession().userInterface.menus;
    }

    static Numbers MenuResources() {
        Numbers resources;
        for (const Workbench::RegisteredMenu& menu : Menus()) {
            resources.push_back(static_cast<std::uint16_t>(menu.resource));
        }
        return resources;
    }

    static std::size_t HandlerCount() {
        return static_cast<std::size_t>(
            std::count_if(Menus().begin(), Menus().end(),
                          [](const Workbench::RegisteredMenu& menu) { return menu.handler; }));
    }

    static std::size_t PaletteCount() {
        return Workbench::CurrentSession().userInterface.registeredPalettes.size();
    }
};

const Numbers LightMenus = {32531, 32530, 32532, 32533, 32536, 32534, 32535};
const Numbers DarkMenus = {33531, 33530, 33532, 33533, 33536, 33534, 33535};

TEST_F(EntryPoints, TellNameAndDescriptionOfAnOrdinaryAddOn) {
    Host::AddOnEnvironment environment;
    EXPECT_EQ(CheckEnvironment(environment), Host::AddOnType::Normal);
    EXPECT_EQ(std::string(environment.name), "Vantoro");
    EXPECT_EQ(std::string(environment.description),
              "Simulacao de iluminacao com Radiance e curvas isolux na Planta Baixa");
}

TEST_F(EntryPoints, RegisterTheMenusInTheirOrder) {
    EXPECT_EQ(RegisterInterface(), Host::NoError);
    EXPECT_EQ(MenuResources(), LightMenus);
}

TEST_F(EntryPoints, RegisterTheMenusOfTheDarkInterfaceWhereTheHostIsDark) {
    Open(true);
    EXPECT_EQ(RegisterInterface(), Host::NoError);
    EXPECT_EQ(MenuResources(), DarkMenus);
    EXPECT_EQ(Initialize(), Host::NoError);
    EXPECT_EQ(HandlerCount(), 7U);
}

TEST_F(EntryPoints, PartTheLastGroupAloneFromThoseBeforeIt) {
    RegisterInterface();
    for (const Workbench::RegisteredMenu& menu : Menus()) {
        EXPECT_EQ(menu.separatorBefore, menu.resource == 32535) << menu.resource;
    }
}

TEST_F(EntryPoints, StopAtTheFirstMenuThatTheHostRefusesAndReturnItsError) {
    Workbench::FailCall("RegisterMenu", 3, Host::RefusedCommand);
    EXPECT_EQ(RegisterInterface(), Host::RefusedCommand);
    EXPECT_EQ(MenuResources(), (Numbers{32531, 32530}));
    EXPECT_TRUE(Tests::ReportWindow().empty());
}

TEST_F(EntryPoints, InstallTheHandlerCatchTheEventsAndRegisterThePalette) {
    RegisterInterface();
    EXPECT_EQ(Initialize(), Host::NoError);
    for (const Workbench::RegisteredMenu& menu : Menus()) {
        EXPECT_EQ(menu.handler, Commands::MenuCommandHandler) << menu.resource;
    }
    const auto& catchers = Workbench::CurrentSession().eventCatchers;
    ASSERT_EQ(catchers.size(), 1U);
    EXPECT_EQ(catchers[0].events, 5);
    ASSERT_EQ(PaletteCount(), 1U);
    const auto& palette = Workbench::CurrentSession().userInterface.registeredPalettes[0];
    EXPECT_EQ(palette.guid, Commands::ToolbarGuid);
    EXPECT_EQ(palette.flags, 1015);
}

TEST_F(EntryPoints, StopAtTheFirstErrorOfInitialisingAndReturnIt) {
    struct Case {
        const char* operation;
        int nth;
        std::size_t handlers;
        std::size_t catchers;
    };
    const Case cases[] = {
        {"InstallMenuHandler", 1, 0, 0},
        {"InstallMenuHandler", 7, 6, 0},
        {"CatchProjectEvents", 1, 7, 0},
        {"RegisterPalette", 1, 7, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.operation);
        Open(false);
        RegisterInterface();
        Workbench::FailCall(c.operation, c.nth, Host::BadParameters);
        EXPECT_EQ(Initialize(), Host::BadParameters);
        EXPECT_EQ(HandlerCount(), c.handlers);
        EXPECT_EQ(Workbench::CurrentSession().eventCatchers.size(), c.catchers);
        EXPECT_EQ(PaletteCount(), 0U);
        EXPECT_TRUE(Tests::ReportWindow().empty());
    }
}

TEST_F(EntryPoints, KeepToTheInterfaceThatTheMenusWereRegisteredFor) {
    RegisterInterface();
    Workbench::CurrentSession().options.darkMode = true;
    EXPECT_EQ(Initialize(), Host::NoError);
    EXPECT_EQ(HandlerCount(), 7U);
}

TEST_F(EntryPoints, AskForTheInterfaceWhereTheyWereLoadedAnew) {
    Open(true);
    RegisterInterface();
    CurrentAddOnState() = {}; // as a library that was unloaded
    EXPECT_EQ(Initialize(), Host::NoError);
    EXPECT_EQ(HandlerCount(), 7U);
}

TEST_F(EntryPoints, FreeThePaletteAndItsRegistration) {
    RegisterInterface();
    Initialize();
    Commands::ShowToolbar();
    EXPECT_EQ(FreeData(), Host::NoError);
    EXPECT_EQ(PaletteCount(), 0U);
    EXPECT_TRUE(Workbench::CurrentSession().userInterface.open.empty());
    EXPECT_FALSE(CurrentAddOnState().toolbar.dialog);
}

TEST_F(EntryPoints, FreeNothingWithoutAnError) {
    EXPECT_EQ(FreeData(), Host::NoError);
    EXPECT_EQ(FreeData(), Host::NoError);
}

TEST_F(EntryPoints, CanBeginAgainBehindTheirEnd) {
    RegisterInterface();
    Initialize();
    FreeData();
    EXPECT_EQ(Initialize(), Host::NoError);
    EXPECT_EQ(PaletteCount(), 1U);
}

TEST_F(EntryPoints, TakeNewAndOpenedProjectsWithoutAnError) {
    RegisterInterface();
    Initialize();
    Workbench::NewProject();
    EXPECT_TRUE(Tests::ReportWindow().empty());
    for (const std::int32_t event : {0, 1, 2, 4, 5, 64}) {
        EXPECT_EQ(HandleProjectEvent(event), Host::NoError) << event;
    }
}

std::string jobsDone;

TEST(ProjectJobs, AreDoneInTheirOrderForNewAndOpenedProjectsAlone) {
    constexpr std::array<ProjectJob, 2> Jobs = {[] { jobsDone += 'a'; }, [] { jobsDone += 'b'; }};
    struct Case {
        std::int32_t event;
        std::string done;
    };
    for (const Case& c : {Case{1, "ab"}, Case{4, "ab"}, Case{0, ""}, Case{2, ""}, Case{3, ""},
                          Case{5, ""}, Case{32, ""}}) {
        jobsDone.clear();
        RunProjectJobs(c.event, Jobs);
        EXPECT_EQ(jobsDone, c.done) << c.event;
    }
}

} // namespace
} // namespace Merivane
