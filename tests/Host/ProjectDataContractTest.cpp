#include <string>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class ProjectDataContract : public ProjectContract {};

TEST_F(ProjectDataContract, GivesBackWhatWasStored) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte.push_back(static_cast<char>(byte));
    }
    for (const ProjectData& data :
         {ProjectData{1, 0x5757, "texto"}, ProjectData{7, 0, everyByte}, ProjectData{-3, 1, ""},
          ProjectData{2, 0x5757, std::string(300000, '\0')}}) {
        ASSERT_EQ(StoreProjectData("Vantoro tarefas", data), NoError);
        ProjectData read;
        ASSERT_EQ(GetProjectData("Vantoro tarefas", read), NoError);
        EXPECT_EQ(read, data);
    }
}

TEST_F(ProjectDataContract, KeepsEachNameForItself) {
    ASSERT_EQ(StoreProjectData("a", {1, 0, "um"}), NoError);
    ASSERT_EQ(StoreProjectData("A", {1, 0, "dois"}), NoError);
    ProjectData read;
    ASSERT_EQ(GetProjectData("a", read), NoError);
    EXPECT_EQ(read.bytes, "um");
}

TEST_F(ProjectDataContract, TellsWhenNothingStandsUnderAName) {
    ProjectData read{9, 9, "como era"};
    EXPECT_EQ(GetProjectData("nada", read), NoProjectData);
    EXPECT_EQ(read, (ProjectData{9, 9, "como era"}));
}

TEST_F(ProjectDataContract, IsNoStepToUndo) {
    ASSERT_EQ(StoreProjectData("a", {1, 0, "um"}), NoError);
    EXPECT_FALSE(UndoByUser());
}

TEST_F(ProjectDataContract, BelongsToTheProject) {
    ASSERT_EQ(StoreProjectData("a", {1, 0, "um"}), NoError);
    OpenContractProject();
    ProjectData read;
    EXPECT_EQ(GetProjectData("a", read), NoProjectData);
    CloseContractProject();
    EXPECT_EQ(GetProjectData("a", read), NoPlan);
    EXPECT_EQ(StoreProjectData("a", {1, 0, "um"}), NoPlan);
}

} // namespace
} // namespace Merivane::Host
