#include <gtest/gtest.h>

#include "Host/Menus.hpp"
#include "Workbench/MenuRun.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

std::int16_t lastResource = 0; // handlers are plain functions
std::int16_t lastItem = 0;

Host::ErrorCode TakeItem(std::int16_t resource, std::int16_t item) {
    lastResource = resource;
    lastItem = item;
    Host::KeepInMemory();
    return Host::Cancelled;
}

Host::ErrorCode AnswerPalette(Host::PaletteMessage message, bool& visible) {
    visible = message == Host::PaletteMessage::IsVisible;
    return Host::NoError;
}

class MenuRun : public testing::Test {
protected:
    void SetUp() override { OpenSession({}); }
    void TearDown() override { OpenSession({}); }
};

TEST_F(MenuRun, KeepsTheMenusInTheirOrder) {
    EXPECT_EQ(Host::RegisterMenu(32535, true), Host::NoError);
    EXPECT_EQ(Host::RegisterMenu(32531, false), Host::NoError);
    const auto& menus = CurrentSession().userInterface.menus;
    ASSERT_EQ(menus.size(), 2U);
    EXPECT_EQ(menus[0].resource, 32535);
    EXPECT_TRUE(menus[0].separatorBefore);
    EXPECT_EQ(menus[1].resource, 32531);
    EXPECT_FALSE(menus[1].separatorBefore);
}

TEST_F(MenuRun, SendsAnItemToItsHandlerAndGivesBackTheAnswer) {
    ASSERT_EQ(Host::RegisterMenu(32533, false), Host::NoError);
    EXPECT_EQ(ChooseMenuItem(32533, 1), Host::BadId); // no handler yet
    ASSERT_EQ(Host::InstallMenuHandler(32533, TakeItem), Host::NoError);
    EXPECT_EQ(ChooseMenuItem(32533, 5), Host::Cancelled);
    EXPECT_EQ(lastResource, 32533);
    EXPECT_EQ(lastItem, 5);
    EXPECT_TRUE(CurrentSession().userInterface.keepInMemory);
    EXPECT_EQ(ChooseMenuItem(32533, 0), Host::BadIndex);
    EXPECT_EQ(ChooseMenuItem(32533, 6), Host::BadIndex);
    EXPECT_EQ(ChooseMenuItem(32534, 1), Host::BadId);
}

TEST_F(MenuRun, KnowsMenusAbove32767ByTheirBits) {
    const auto dark = static_cast<std::int16_t>(32533 + 1000);
    ASSERT_EQ(Host::RegisterMenu(dark, false), Host::NoError);
    ASSERT_EQ(Host::InstallMenuHandler(dark, TakeItem), Host::NoError);
    EXPECT_EQ(ChooseMenuItem(dark, 1), Host::Cancelled);
    EXPECT_EQ(lastResource, -32003);
}

TEST_F(MenuRun, SendsMessagesToARegisteredPalette) {
    Host::Guid guid;
    guid.bytes[3] = 9;
    bool visible = false;
    EXPECT_EQ(SendPaletteMessage(guid, Host::PaletteMessage::IsVisible, visible), Host::BadId);
    ASSERT_EQ(Host::RegisterPalette(guid, AnswerPalette, Host::PaletteEverywhere), Host::NoError);
    EXPECT_EQ(SendPaletteMessage(guid, Host::PaletteMessage::IsVisible, visible), Host::NoError);
    EXPECT_TRUE(visible);
    EXPECT_EQ(FindRegisteredPalette(guid)->flags, 1015);
}

TEST_F(MenuRun, TellsTheInterfaceThatTheSessionWasOpenedWith) {
    EXPECT_FALSE(Host::IsDarkMode());
    SessionOptions options;
    options.darkMode = true;
    OpenSession(options);
    EXPECT_TRUE(Host::IsDarkMode());
}

TEST_F(MenuRun, FailsOnDemand) {
    FailCall("RegisterMenu", 2, Host::GeneralError);
    EXPECT_EQ(Host::RegisterMenu(32533, false), Host::NoError);
    EXPECT_EQ(Host::RegisterMenu(32534, false), Host::GeneralError);
    EXPECT_EQ(Host::RegisterMenu(32534, false), Host::NoError);
    for (const char* const operation :
         {"InstallMenuHandler", "CatchProjectEvents", "RegisterPalette", "UnregisterPalette"}) {
        FailCall(operation, 1, Host::OutOfMemory);
    }
    Host::Guid guid;
    guid.bytes[0] = 1;
    EXPECT_EQ(Host::InstallMenuHandler(32533, TakeItem), Host::OutOfMemory);
    EXPECT_EQ(Host::CatchProjectEvents(5, nullptr), Host::OutOfMemory);
    EXPECT_EQ(Host::RegisterPalette(guid, AnswerPalette, 0), Host::OutOfMemory);
    EXPECT_EQ(Host::UnregisterPalette(guid), Host::OutOfMemory);
}

} // namespace
} // namespace Merivane::Workbench
