#include "AddOn/ProjectEvents.hpp"

#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "Workbench/Session.hpp"

namespace Merivane {
namespace {

class ProjectEvents : public Tests::AddOnSession {
protected:
    std::filesystem::path Library(const char* name) const { return Folder() / "Documentos" / name; }
};

TEST_F(ProjectEvents, BringTheLibraryFolderOverFromItsOlderName) {
    const std::function<void()> events[] = {
        [] { Workbench::NewProject(); },
        [] { Workbench::OpenProject(Workbench::MakeEmptyProject()); }};
    for (const auto& happen : events) {
        Open(false);
        std::filesystem::remove_all(Folder() / "Documentos");
        std::filesystem::create_directories(Library("Merivane Library"));
        RegisterInterface();
        EXPECT_EQ(Initialize(), Host::NoError);
        happen();
        EXPECT_FALSE(std::filesystem::exists(Library("Merivane Library")));
        EXPECT_TRUE(std::filesystem::exists(Library("Vantoro Library")));
        EXPECT_EQ(Tests::ReportWindow(),
                  (std::vector<std::string>{
                      "Vantoro: biblioteca: pasta renomeada para Vantoro Library"}));
    }
}

TEST_F(ProjectEvents, TellNothingWhereThereIsNothingToDo) {
    RegisterInterface();
    EXPECT_EQ(Initialize(), Host::NoError);
    Workbench::NewProject();
    EXPECT_EQ(HandleProjectEvent(Host::ProjectOpen), Host::NoError);
    EXPECT_TRUE(Tests::ReportWindow().empty());
    EXPECT_FALSE(std::filesystem::exists(Library("Vantoro Library")));
}

} // namespace
} // namespace Merivane
