#include <cstdint>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/AddOnState.hpp"
#include "AddOn/CommandTable.hpp"
#include "AddOn/Commands/ToolbarPalette.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/MenuRun.hpp"

namespace Merivane::Commands {
namespace {

using Host::PaletteMessage;

class Toolbar : public Tests::AddOnSession {
protected:
    static const Workbench::UserInterface& Interface() {
        return Workbench::CurrentSession().userInterface;
    }

    static bool Exists() { return !Interface().open.empty(); }

    static const Workbench::Dialog& Palette() {
        return Interface().open.at(*CurrentAddOnState().toolbar.dialog).state;
    }

    static bool IsVisible() { return Exists() && Palette().visible; }

    static void Send(PaletteMessage message) {
        bool visible = false;
        EXPECT_EQ(ToolbarPaletteCallback(message, visible), Host::NoError);
    }

    static std::size_t EnabledCount() {
        std::size_t count = 0;
        for (const Workbench::DialogItem& item : Palette().items) {
            count += item.enabled ? 1 : 0;
        }
        return count;
    }

    static bool Click(std::int16_t item) {
        std::string error;
        return Workbench::ClickItem(*CurrentAddOnState().toolbar.dialog, item, error);
    }
};

TEST_F(Toolbar, IsMadeWhenItIsFirstShown) {
    RegisterToolbar();
    EXPECT_FALSE(Exists());
    ShowToolbar();
    EXPECT_TRUE(IsVisible());
    EXPECT_EQ(Palette().resource, 32750);
    EXPECT_EQ(Palette().title, "Vantoro");
    ShowToolbar();
    EXPECT_EQ(Interface().open.size(), 1U);
}

TEST_F(Toolbar, AsksTheHostNotToUnloadTheAddOn) {
    EXPECT_FALSE(Interface().keepInMemory);
    ShowToolbar();
    EXPECT_TRUE(Interface().keepInMemory);
}

TEST_F(Toolbar, ComesInFrontOfTheOtherPalettes) {
    ShowToolbar();
    Host::DialogId other = 0;
    Host::CreatePalette(32750, {}, other);
    Host::ShowPalette(other);
    ShowToolbar();
    EXPECT_EQ(Interface().palettes.back(), *CurrentAddOnState().toolbar.dialog);
}

TEST_F(Toolbar, IsHiddenAndStillThereWhenToggledTwice) {
    ExecuteCommand(32523);
    EXPECT_TRUE(IsVisible());
    ExecuteCommand(32523);
    EXPECT_TRUE(Exists());
    EXPECT_FALSE(IsVisible());
    ExecuteCommand(32523);
    EXPECT_TRUE(IsVisible());
}

TEST_F(Toolbar, IsNotShownWhereTheHostDoesNotMakeIt) {
    Workbench::FailCall("CreatePalette", 1, Host::OutOfMemory);
    ShowToolbar();
    EXPECT_FALSE(Exists());
    EXPECT_FALSE(Interface().keepInMemory);
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{
                  "Vantoro: Barra de ferramentas failed: APIERR_MEMFULL (0x81060002)"});
    ShowToolbar();
    EXPECT_TRUE(IsVisible());
}

TEST(ToolbarButtons, CarryTheCommandsOfTheMenu) {
    struct Case {
        std::int16_t item;
        std::int16_t command;
        std::int16_t icon;
    };
    const Case cases[] = {
        {3, 32520, 10022},  {4, 32519, 10021},  {6, 32504, 10002},  {7, 32503, 10003},
        {8, 32513, 10005},  {9, 32514, 10004},  {11, 32521, 10023}, {13, 32505, 10006},
        {14, 32507, 10007}, {15, 32509, 10008}, {16, 32511, 10009}, {17, 32508, 10012},
        {19, 32516, 10020}, {20, 32517, 10018}, {21, 32515, 10017}, {23, 32512, 10010},
        {24, 32510, 10011}, {25, 32518, 10019},
    };
    ASSERT_EQ(ToolbarButtons().size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(ToolbarButtons()[i].item, cases[i].item);
        EXPECT_EQ(ToolbarButtons()[i].command, cases[i].command);
        EXPECT_EQ(ToolbarButtons()[i].icon, cases[i].icon);
    }
}

TEST_F(Toolbar, ShowsTheIconsOfTheHostsInterface) {
    for (const bool dark : {false, true}) {
        Open(dark);
        ShowToolbar();
        for (const ToolbarButton& button : ToolbarButtons()) {
            EXPECT_EQ(Workbench::FindItem(Palette(), button.item)->icon,
                      button.icon + (dark ? 100 : 0))
                << button.item;
        }
    }
}

TEST_F(Toolbar, CarriesOutTheCommandOfTheButtonThatIsClicked) {
    ShowToolbar();
    EXPECT_TRUE(Click(17));
    EXPECT_EQ(Tests::LastDialog().resource, 32650);
}

TEST_F(Toolbar, DoesNothingWhereAnUnknownButtonIsClicked) {
    ShowToolbar();
    const auto clicked = Interface().open.at(*CurrentAddOnState().toolbar.dialog).events;
    for (const auto item : std::vector<std::int16_t>{0, 1, 5, 26}) {
        clicked.buttonClicked(*CurrentAddOnState().toolbar.dialog, item);
    }
    EXPECT_TRUE(Interface().shownDialogs.empty());
}

TEST_F(Toolbar, DoesNotTakeAMessageBeforeItIsMadeButToOpen) {
    for (const int message : {0, 1, 2, 3, 4, 5, 7, 8, 9}) {
        Send(static_cast<PaletteMessage>(message));
        EXPECT_FALSE(Exists()) << message;
    }
    Send(PaletteMessage::Open);
    EXPECT_TRUE(IsVisible());
}

TEST_F(Toolbar, IsHiddenWhenItCloses) {
    ShowToolbar();
    Send(PaletteMessage::Close);
    EXPECT_TRUE(Exists());
    EXPECT_FALSE(IsVisible());
}

TEST_F(Toolbar, IsHiddenWhenItsFrameIsClosed) {
    ShowToolbar();
    const auto& events = Interface().open.at(*CurrentAddOnState().toolbar.dialog).events;
    EXPECT_TRUE(events.closeRequested(*CurrentAddOnState().toolbar.dialog, false));
    EXPECT_TRUE(Exists());
    EXPECT_FALSE(IsVisible());
}

TEST_F(Toolbar, ComesBackWithAllPalettesWhereItWasVisibleBefore) {
    ShowToolbar();
    Send(PaletteMessage::HideAll);
    EXPECT_FALSE(IsVisible());
    Send(PaletteMessage::ShowAll);
    EXPECT_TRUE(IsVisible());
}

TEST_F(Toolbar, StaysHiddenWithAllPalettesWhereItWasHiddenBefore) {
    ShowToolbar();
    ToggleToolbar();
    Send(PaletteMessage::HideAll);
    Send(PaletteMessage::ShowAll);
    EXPECT_FALSE(IsVisible());
}

TEST_F(Toolbar, ForgetsThatItWasVisibleOnceItIsShownAgain) {
    ShowToolbar();
    Send(PaletteMessage::HideAll);
    Send(PaletteMessage::ShowAll);
    ToggleToolbar();
    Send(PaletteMessage::ShowAll);
    EXPECT_FALSE(IsVisible());
}

TEST_F(Toolbar, DisablesAndEnablesAllItemsWhileItIsVisible) {
    ShowToolbar();
    Send(PaletteMessage::Disable);
    EXPECT_EQ(EnabledCount(), 0U);
    Send(PaletteMessage::Enable);
    EXPECT_EQ(EnabledCount(), Palette().items.size());
    ToggleToolbar();
    Send(PaletteMessage::Disable);
    EXPECT_EQ(EnabledCount(), Palette().items.size());
}

TEST_F(Toolbar, TellsTheHostWhetherItIsVisible) {
    RegisterToolbar();
    bool visible = true;
    EXPECT_EQ(Workbench::SendPaletteMessage(ToolbarGuid, PaletteMessage::IsVisible, visible),
              Host::NoError);
    EXPECT_FALSE(visible);
    ShowToolbar();
    Workbench::SendPaletteMessage(ToolbarGuid, PaletteMessage::IsVisible, visible);
    EXPECT_TRUE(visible);
    ToggleToolbar();
    Workbench::SendPaletteMessage(ToolbarGuid, PaletteMessage::IsVisible, visible);
    EXPECT_FALSE(visible);
}

TEST_F(Toolbar, ReturnsTheHostsErrorWhereItIsNotRegistered) {
    EXPECT_EQ(RegisterToolbar(), Host::NoError);
    EXPECT_EQ(RegisterToolbar(), Host::BadId);
}

TEST_F(Toolbar, IsDestroyedAndForgottenAtTheEnd) {
    RegisterToolbar();
    ShowToolbar();
    Send(PaletteMessage::HideAll);
    UnregisterToolbar();
    EXPECT_FALSE(Exists());
    EXPECT_TRUE(Interface().registeredPalettes.empty());
    ShowToolbar();
    ToggleToolbar();
    Send(PaletteMessage::ShowAll);
    EXPECT_FALSE(IsVisible());
}

} // namespace
} // namespace Merivane::Commands
