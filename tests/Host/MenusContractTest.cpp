#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ContractInterface.hpp"
#include "Host/Menus.hpp"

namespace Merivane::Host {
namespace {

// Handlers are plain functions: what they are told stands here.
std::vector<std::string> told;

ErrorCode TakeItem(std::int16_t resource, std::int16_t item) {
    told.push_back(std::to_string(resource) + '/' + std::to_string(item));
    return Cancelled;
}

ErrorCode TakeEvent(std::int32_t event) {
    told.push_back("event " + std::to_string(event));
    return NoError;
}

ErrorCode TakeMessage(PaletteMessage message, bool& visible) {
    told.push_back("palette " + std::to_string(static_cast<int>(message)));
    visible = message == PaletteMessage::IsVisible;
    return NoError;
}

Guid MakeGuid(std::uint8_t number) {
    Guid guid;
    guid.bytes[15] = number;
    return guid;
}

class MenusContract : public testing::Test {
protected:
    void SetUp() override {
        told.clear();
        OpenContractInterface();
    }
    void TearDown() override { CloseContractInterface(); }
};

using Told = std::vector<std::string>;

TEST_F(MenusContract, GivesTheStringsOfAResourceFromOne) {
    EXPECT_EQ(ResourceString(ContractMenu, 1), "Menu");
    EXPECT_EQ(ResourceString(ContractMenu, 3), "um ^E3");
    EXPECT_EQ(ResourceString(ContractMenu, 4), "dois");
    EXPECT_EQ(ResourceString(ContractMenu, 0), "");
    EXPECT_EQ(ResourceString(ContractMenu, 5), "");
    EXPECT_EQ(ResourceString(ContractMenu, -1), "");
    EXPECT_EQ(ResourceString(NoSuchResource, 1), "");
    EXPECT_EQ(ResourceString(ContractDialog, 1), "");
}

TEST_F(MenusContract, RefusesAMenuThatHasNoStringsOrStandsAlready) {
    EXPECT_EQ(RegisterMenu(NoSuchResource, false), BadId);
    EXPECT_EQ(RegisterMenu(ContractEmptyList, false), BadId);
    EXPECT_EQ(RegisterMenu(ContractMenu, true), NoError);
    EXPECT_EQ(RegisterMenu(ContractMenu, true), BadId);
}

TEST_F(MenusContract, SendsItemsFromOneToTheHandlerOfTheirMenu) {
    EXPECT_EQ(InstallMenuHandler(ContractMenu, TakeItem), BadId); // not registered yet
    ASSERT_EQ(RegisterMenu(ContractMenu, false), NoError);
    ASSERT_EQ(InstallMenuHandler(ContractMenu, TakeItem), NoError);
    EXPECT_EQ(ChooseByUser(ContractMenu, 1), Cancelled); // the handler's answer
    EXPECT_EQ(ChooseByUser(ContractMenu, 2), Cancelled); // titles are not counted
    EXPECT_EQ(told, (Told{"32112/1", "32112/2"}));
}

TEST_F(MenusContract, NamesResourcesAbove32767ByTheirBits) {
    const auto dark = static_cast<std::int16_t>(33533);
    EXPECT_EQ(ResourceString(dark, 1), "Vantoro");
    ASSERT_EQ(RegisterMenu(dark, false), NoError);
    ASSERT_EQ(InstallMenuHandler(dark, TakeItem), NoError);
    EXPECT_EQ(ChooseByUser(dark, 5), Cancelled);
    EXPECT_EQ(told, Told{"-32003/5"});
}

TEST_F(MenusContract, TellsTheProjectEventsThatWereAskedFor) {
    ASSERT_EQ(CatchProjectEvents(ProjectNew | ProjectOpen, TakeEvent), NoError);
    OpenProjectByUser();
    NewProjectByUser();
    EXPECT_EQ(told, (Told{"event 4", "event 1"}));
    told.clear();
    ASSERT_EQ(CatchProjectEvents(ProjectNew, TakeEvent), NoError); // in place of the one before
    OpenProjectByUser();
    NewProjectByUser();
    EXPECT_EQ(told, Told{"event 1"});
    told.clear();
    ASSERT_EQ(CatchProjectEvents(ProjectNew, nullptr), NoError);
    NewProjectByUser();
    EXPECT_TRUE(told.empty());
}

TEST_F(MenusContract, RegistersAPaletteOnce) {
    EXPECT_EQ(UnregisterPalette(MakeGuid(1)), BadId);
    EXPECT_EQ(RegisterPalette(MakeGuid(1), TakeMessage, PaletteEverywhere), NoError);
    EXPECT_EQ(RegisterPalette(MakeGuid(1), TakeMessage, PaletteEverywhere), BadId);
    EXPECT_EQ(RegisterPalette(MakeGuid(2), TakeMessage, PaletteEverywhere), NoError);
    EXPECT_EQ(UnregisterPalette(MakeGuid(1)), NoError);
    EXPECT_EQ(UnregisterPalette(MakeGuid(1)), BadId);
    EXPECT_EQ(RegisterPalette(MakeGuid(1), TakeMessage, PaletteEverywhere), NoError);
}

TEST_F(MenusContract, SpeaksToARegisteredPalette) {
    ASSERT_EQ(RegisterPalette(MakeGuid(1), TakeMessage, PaletteEverywhere), NoError);
    bool visible = false;
    EXPECT_EQ(TellPalette(MakeGuid(1), PaletteMessage::Close, visible), NoError);
    EXPECT_FALSE(visible);
    EXPECT_EQ(TellPalette(MakeGuid(1), PaletteMessage::IsVisible, visible), NoError);
    EXPECT_TRUE(visible);
    EXPECT_EQ(told, (Told{"palette 1", "palette 7"}));
}

TEST_F(MenusContract, IsLightWhereTheUserChoseSo) {
    EXPECT_FALSE(IsDarkMode());
    KeepInMemory();
}

} // namespace
} // namespace Merivane::Host
