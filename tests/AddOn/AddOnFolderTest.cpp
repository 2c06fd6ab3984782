#include <gtest/gtest.h>

#include "Archicad/AddOnFolder.hpp"
#include "Workbench/Session.hpp"

using namespace Merivane;

namespace {

void OpenSessionOf(const std::wstring& ownLocation) {
    Workbench::SessionOptions options;
    options.ownLocation = ownLocation;
    Workbench::OpenSession(options);
}

} // namespace

TEST(AddOnFolder, IsTheFolderOfTheAddOnsOwnFile) {
    struct Case {
        std::wstring ownLocation;
        std::wstring folder;
    };
    const Case cases[] = {
        {L"/opt/Add-Ons/Vantoro.apx", L"/opt/Add-Ons"},
        {L"/opt/luminot\u00e9cnica 1/Vantoro.apx", L"/opt/luminot\u00e9cnica 1"},
        {L"/Vantoro.apx", L"/"},
    };
    for (const Case& c : cases) {
        OpenSessionOf(c.ownLocation);
        EXPECT_EQ(Archicad::AddOnFolder(), c.folder);
    }
}

TEST(AddOnFolder, IsEmptyWhenTheHostDoesNotTell) {
    OpenSessionOf(L"/opt/Add-Ons/Vantoro.apx");
    Workbench::FailCall("GetOwnLocation", 1, Host::GeneralError);
    EXPECT_EQ(Archicad::AddOnFolder(), L"");
    EXPECT_EQ(Archicad::AddOnFolder(), L"/opt/Add-Ons");
}
