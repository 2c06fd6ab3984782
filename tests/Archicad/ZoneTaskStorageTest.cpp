#include <cstddef>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "Archicad/ZoneTaskStorage.hpp"
#include "Host/Storage.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Simulation::ReferenceStandard;
using Simulation::ZoneRequirementMap;

const ZoneRequirementMap Choices = {{"A", {"s22.2", 500.0, 0.7, -1}}, {"B", {"", 0.0, 0.6, 3}}};

class ZoneTaskStorage : public testing::Test {
protected:
    ZoneTaskStorage() {
        Workbench::OpenSession({});
        Workbench::NewProject();
    }
    ~ZoneTaskStorage() override { Workbench::OpenSession({}); }

    static void StoreText(const std::string& text) {
        ASSERT_EQ(Host::StoreProjectData("MerivaneZoneTasks", {1, 0x5757, text}), Host::NoError);
    }

    static void ExpectDefaults() {
        ReferenceStandard standard = ReferenceStandard::International;
        EXPECT_TRUE(LoadZoneTasks(standard).empty());
        EXPECT_EQ(standard, ReferenceStandard::Brazilian);
    }
};

TEST(ZoneKey, IsTheTextOfTheGuid) {
    Host::Guid guid;
    for (std::size_t i = 0; i < guid.bytes.size(); ++i) {
        guid.bytes[i] = static_cast<std::uint8_t>(0xA0 + i);
    }
    EXPECT_EQ(ZoneKey(guid), "{A0A1A2A3-A4A5-A6A7-A8A9-AAABACADAEAF}");
}

TEST_F(ZoneTaskStorage, GivesBackWhatWasSaved) {
    for (const auto saved : {ReferenceStandard::International, ReferenceStandard::Brazilian}) {
        EXPECT_EQ(SaveZoneTasks(Choices, saved), Host::NoError);
        ReferenceStandard standard = ReferenceStandard::Brazilian;
        EXPECT_EQ(LoadZoneTasks(standard), Choices);
        EXPECT_EQ(standard, saved);
    }
}

TEST_F(ZoneTaskStorage, KeepsTheTextWithItsVersionAndTheSignOfWindows) {
    SaveZoneTasks({{"A", {"s22.2", 500.0, 0.7, 1}}}, ReferenceStandard::International);
    Host::ProjectData data;
    ASSERT_EQ(Host::GetProjectData("MerivaneZoneTasks", data), Host::NoError);
    EXPECT_EQ(data, (Host::ProjectData{
                        1, 0x5757, "MerivaneZoneTasks 2\nnorma\tiso\nA\ts22.2\t500\t0.7\t1\n"}));
}

TEST_F(ZoneTaskStorage, BelongsToTheProject) {
    SaveZoneTasks(Choices, ReferenceStandard::International);
    EXPECT_TRUE(Workbench::CurrentSession().projectChanged);
    Workbench::NewProject();
    ExpectDefaults();
}

TEST_F(ZoneTaskStorage, IsEmptyWithoutStoredData) {
    ExpectDefaults();
    Workbench::CloseProject();
    ExpectDefaults();
}

TEST_F(ZoneTaskStorage, LosesATextThatCanNotBeRead) {
    for (const char* const text :
         {"", "MerivaneZoneTasks 3\nnorma\tiso\nA\ts22.2\t500\t0.7\t1\n",
          "MerivaneZoneTasks 2\nnorma\tdin\nA\ts22.2\t500\t0.7\t1\n",
          "MerivaneZoneTasks 2\nnorma\tiso\nA\ts22.2\t500\t0.7\t1\nB\ts22.2\t500\n", "\xFF"}) {
        SCOPED_TRACE(text);
        StoreText(text);
        ExpectDefaults();
        EXPECT_TRUE(Workbench::CurrentSession().reportLines.empty()); // without a word
    }
}

TEST_F(ZoneTaskStorage, ReadsTheOlderFormAndWritesTheCurrentOne) {
    StoreText("MerivaneZoneTasks 1\nA\tescritorio\t500\t0.7\n");
    ReferenceStandard standard = ReferenceStandard::International;
    const ZoneRequirementMap map = LoadZoneTasks(standard);
    EXPECT_EQ(map, (ZoneRequirementMap{{"A", {"s22.2", 500.0, 0.7, -1}}}));
    EXPECT_EQ(standard, ReferenceStandard::Brazilian);
    SaveZoneTasks(map, standard);
    Host::ProjectData data;
    Host::GetProjectData("MerivaneZoneTasks", data);
    EXPECT_EQ(data.bytes, "MerivaneZoneTasks 2\nnorma\tnbr\nA\ts22.2\t500\t0.7\t-1\n");
}

TEST_F(ZoneTaskStorage, IsEmptyWhenTheHostDoesNotRead) {
    SaveZoneTasks(Choices, ReferenceStandard::International);
    Workbench::FailCall("GetProjectData", 1, Host::OutOfMemory);
    ExpectDefaults();
}

TEST_F(ZoneTaskStorage, GivesTheHostsCodeWhenItDoesNotWrite) {
    SaveZoneTasks(Choices, ReferenceStandard::International);
    Workbench::FailCall("StoreProjectData", 1, Host::OutOfMemory);
    EXPECT_EQ(SaveZoneTasks({}, ReferenceStandard::Brazilian),
              static_cast<Host::ErrorCode>(0x81060002));
    ReferenceStandard standard = ReferenceStandard::Brazilian;
    EXPECT_EQ(LoadZoneTasks(standard), Choices);
    Workbench::CloseProject();
    EXPECT_EQ(SaveZoneTasks(Choices, standard), Host::NoPlan);
}

} // namespace
} // namespace Merivane::Archicad
