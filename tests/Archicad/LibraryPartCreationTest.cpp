#include <algorithm>
#include <filesystem>
#include <utility>

#include <gtest/gtest.h>

#include "Archicad/LibraryPartRequest.hpp"
#include "LibrarySession.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Host::ErrorCode;
using Strings = std::vector<std::string>;
using Tests::FilesIn;
using Tests::ParameterNamesOf;
using Tests::PartOf;
using Tests::ScriptOf;

const std::string LightParent =
    "{51A838E5-0F40-4F6D-A658-CF2845581749}-{00000000-0000-0000-0000-000000000000}";

LibraryPartRequest Request(const std::string& name = "Peca") {
    LibraryPartRequest request;
    request.name = name;
    request.commentText = "Luminaria linear";
    request.script3D = "MATERIAL mat\r\nBLOCK A, B, ZZYZX\r\n";
    request.script2D = "RECT2 0, 0, A, B\r\n";
    request.parameterScript = "VALUES \"ZZYZX\" RANGE (0, ]\r\n";
    request.withHeight = true;
    request.zzyzx = 0.25;
    request.pictures = {{"vista.png", std::string("\x89PNG\0x", 6), "image/png"},
                        {"foto.jpg", "\xFF\xD8\xFF", "image/jpeg"}};
    request.parameters = Photometry::BuildContract({}, {});
    return request;
}

class CreateLibraryPart : public Tests::LibrarySession {
protected:
    std::int32_t Create(const LibraryPartRequest& request) {
        std::int32_t index = 0;
        EXPECT_EQ(Archicad::CreateLibraryPart(request, index), Host::NoError);
        return index;
    }
};

TEST_F(CreateLibraryPart, WritesEverySection) {
    const std::int32_t index = Create(Request());
    EXPECT_EQ(ScriptOf(index, "CTXT"), "Luminaria linear");
    EXPECT_EQ(ScriptOf(index, "KWRD"), "Vantoro");
    EXPECT_EQ(ScriptOf(index, "3DSC"), Request().script3D);
    EXPECT_EQ(ScriptOf(index, "2DSC"), Request().script2D);
    EXPECT_EQ(ScriptOf(index, "VLSC"), Request().parameterScript);
    EXPECT_EQ(ScriptOf(index, "1DSC"), "");
    std::string picture;
    EXPECT_EQ(Host::ReadSection(index, {"GDLP", 1}, picture), Host::NoError);
    EXPECT_EQ(picture, std::string("image/png\0\x89PNG\0x", 16));
    EXPECT_EQ(Host::ReadSection(index, {"GDLP", 2}, picture), Host::NoError);
    EXPECT_EQ(picture, std::string("image/jpeg\0\xFF\xD8\xFF", 14));
    EXPECT_EQ(Host::ReadSection(index, {"GDLP", 3}, picture), Host::NoLibrarySection);
    const auto& document =
        *Workbench::CurrentSession().project.parts.back().document; // the host gives it to nobody
    EXPECT_EQ(document.copyright.author, "Vantoro Add-On");
}

/// The sections of the part that stays where the host does not begin the section of that place and
/// does not read its libraries anew.
Strings SectionsBefore(int failing) {
    Workbench::FailCall("NewSection", failing, Host::NotMine);
    Workbench::FailCall("SetLibraries", 1, Host::NotMine);
    std::int32_t index = 0;
    EXPECT_EQ(Archicad::CreateLibraryPart(Request(), index), Host::NotMine);
    std::vector<Host::PartSection> sections;
    const std::size_t last = Workbench::CurrentSession().project.parts.size() - 1;
    EXPECT_EQ(Host::ListSections(Workbench::LibraryIndexOf(last), sections), Host::NoError);
    Strings names;
    names.reserve(sections.size());
    for (const Host::PartSection& section : sections) {
        names.push_back(section.type + " " + std::to_string(section.subIdent));
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST_F(CreateLibraryPart, HandsTheSectionsToTheHostInTheirOrder) {
    const Strings order = {"CTXT 0", "KWRD 0", "CPYR 0", "1DSC 0", "3DSC 0",
                           "2DSC 0", "VLSC 0", "GDLP 1", "GDLP 2", "PARD 0"};
    for (std::size_t next = 0; next < order.size(); ++next) {
        std::filesystem::remove_all(OwnFolder());
        Open();
        Strings expected(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(next));
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(SectionsBefore(static_cast<int>(next) + 1), expected);
    }
    std::filesystem::remove_all(OwnFolder());
    Open();
    Create(Request());
    EXPECT_EQ(Workbench::CurrentSession().calls["NewSection"], 10);
}

TEST_F(CreateLibraryPart, MakesAPlaceableLampOfTheHostsSubtype) {
    const Host::LibraryPart part = PartOf(Create(Request()));
    EXPECT_EQ(part.name, "Peca");
    EXPECT_EQ(part.type, Host::PartType::Lamp);
    EXPECT_TRUE(part.isPlaceable);
    EXPECT_EQ(part.parentId, LightParent);
    EXPECT_EQ(part.path, Text::WidePath(OwnFolder() / "Peca.gsm"));
    EXPECT_EQ(FilesIn(OwnFolder()), (Strings{"Peca.gsm"}));
}

TEST_F(CreateLibraryPart, OrdersItsParametersForTheUser) {
    LibraryPartRequest request = Request();
    request.surfaces = {"Gesso"};
    Strings names = ParameterNamesOf(Create(request));
    names.erase(names.begin(), names.begin() + 3); // that the host puts in front by itself
    const auto place = [&names](const char* name) {
        return std::find(names.begin(), names.end(), name) - names.begin();
    };
    EXPECT_EQ(place("mvTitleIdentification"), 0);
    EXPECT_LT(place("mvSymbolPen"), place("mat1"));
    EXPECT_LT(place("mat1"), place("mvContractVersion"));
    EXPECT_LT(place("mvCandela"), place("mat"));
    EXPECT_EQ(place("ZZYZX"), place("mat") + 1);
    EXPECT_EQ(names.back(), "ZZYZX");
}

TEST_F(CreateLibraryPart, CountsTheNamesThatAreTaken) {
    EXPECT_EQ(PartOf(Create(Request())).name, "Peca");
    EXPECT_EQ(PartOf(Create(Request())).name, "Peca_2");
    EXPECT_EQ(PartOf(Create(Request())).name, "Peca_3");
    EXPECT_EQ(FilesIn(OwnFolder()), (Strings{"Peca.gsm", "Peca_2.gsm", "Peca_3.gsm"}));
}

TEST_F(CreateLibraryPart, PassesOverTheNameOfAPartInAnotherLibrary) {
    Tests::SourcePart other;
    other.name = "Peca";
    MakePart(other);
    EXPECT_EQ(PartOf(Create(Request())).name, "Peca_2");
}

TEST_F(CreateLibraryPart, TriesAThousandNames) {
    std::filesystem::create_directory(OwnFolder());
    Tests::WriteBytes(OwnFolder() / "Peca.gsm", "");
    for (int n = 2; n < 1000; ++n) {
        Tests::WriteBytes(OwnFolder() / ("Peca_" + std::to_string(n) + ".gsm"), "");
    }
    EXPECT_EQ(PartOf(Create(Request())).name, "Peca_1000");
    std::int32_t index = 0;
    EXPECT_EQ(Archicad::CreateLibraryPart(Request(), index), Host::NameInUse);
    EXPECT_EQ(FilesIn(OwnFolder()).size(), 1000U);
}

TEST_F(CreateLibraryPart, WritesIntoAFolderThatIsTold) {
    LibraryPartRequest request = Request();
    request.folder = Text::WidePath(SourceFolder() / "Fitas");
    std::filesystem::create_directory(SourceFolder() / "Fitas");
    request.useFolder = true;
    EXPECT_EQ(PartOf(Create(request)).path, Text::WidePath(SourceFolder() / "Fitas" / "Peca.gsm"));
    EXPECT_FALSE(std::filesystem::exists(OwnFolder()));
    request.folder = Text::WidePath(Documents());
    std::int32_t index = 0;
    EXPECT_EQ(Archicad::CreateLibraryPart(request, index), Host::NoLibrary);
}

TEST_F(CreateLibraryPart, RefusesASubtypeThatTheHostDoesNotHaveBeforeAnythingElse) {
    LibraryPartRequest request = Request();
    request.parentBuiltIn = 99999;
    std::int32_t index = 0;
    EXPECT_EQ(Archicad::CreateLibraryPart(request, index), Host::BadParameters);
    EXPECT_FALSE(std::filesystem::exists(OwnFolder()));
}

TEST_F(CreateLibraryPart, IsRefusedInAReadOnlyFolderBeforeAnythingIsWritten) {
    std::filesystem::create_directory(OwnFolder());
    std::filesystem::permissions(OwnFolder(), std::filesystem::perms::owner_read |
                                                  std::filesystem::perms::owner_exec);
    std::int32_t index = 0;
    EXPECT_EQ(Archicad::CreateLibraryPart(Request(), index), Host::GeneralError);
    LibraryPartRequest told = Request();
    told.folder = Text::WidePath(SourceFolder());
    told.useFolder = true;
    std::filesystem::permissions(SourceFolder(), std::filesystem::perms::owner_read |
                                                     std::filesystem::perms::owner_exec);
    EXPECT_EQ(Archicad::CreateLibraryPart(told, index), Host::ReadOnly);
    EXPECT_EQ(FilesIn(OwnFolder()), Strings{});
    EXPECT_EQ(FilesIn(SourceFolder()), Strings{});
    for (const auto& made : {OwnFolder(), SourceFolder()}) {
        std::filesystem::permissions(made, std::filesystem::perms::owner_all);
    }
}

TEST_F(CreateLibraryPart, IsMadeWithoutAListOfParametersThatTheHostRefuses) {
    LibraryPartRequest request = Request("Peca \"100%\"");
    request.name = "Peca 100%";
    request.parameters.push_back(request.parameters.front()); // a name twice
    const std::int32_t index = Create(request);
    EXPECT_EQ(Tests::ReportTexts().back(),
              "Vantoro: a lista de parametros da peca \"Peca 100%\" nao pode ser montada (erro "
              "-2130313112) - o objeto sera criado sem");
    EXPECT_EQ(Host::BadParameters, -2130313112);
    EXPECT_EQ(ScriptOf(index, "3DSC"), request.script3D);
    EXPECT_EQ(ParameterNamesOf(index), Strings{});
    EXPECT_EQ(FilesIn(OwnFolder()), (Strings{"Peca 100%.gsm"}));
}

struct Step {
    const char* operation;
    int calls; ///< of a whole creation
};

constexpr Step Steps[] = {{"GetBuiltInPart", 1}, {"GetSpecialFolder", 1}, {"GetLibraries", 1},
                          {"AddLibrary", 1},     {"CreatePart", 1},       {"NewSection", 10},
                          {"WriteSection", 10},  {"EndSection", 10},      {"SavePart", 1}};

TEST_F(CreateLibraryPart, LeavesNoFileOnTheFailureOfAnyHostCall) {
    for (const Step& step : Steps) {
        for (int nth = 1; nth <= step.calls; ++nth) {
            SCOPED_TRACE(step.operation + std::string(" ") + std::to_string(nth));
            std::filesystem::remove_all(OwnFolder());
            Open();
            Workbench::FailCall(step.operation, nth, Host::NotMine);
            std::int32_t index = -7;
            EXPECT_EQ(Archicad::CreateLibraryPart(Request(), index), Host::NotMine);
            EXPECT_EQ(index, -7);
            EXPECT_TRUE(Workbench::CurrentSession().faults.empty());
            EXPECT_EQ(FilesIn(OwnFolder()), Strings{});
            EXPECT_EQ(PartOf(Create(Request())).name, "Peca");
            EXPECT_EQ(FilesIn(OwnFolder()), (Strings{"Peca.gsm"}));
        }
    }
}

TEST_F(CreateLibraryPart, CallsTheHostAsOftenAsTheFaultsAboveKnow) {
    Create(Request());
    for (const Step& step : Steps) {
        const int own = step.operation == std::string("AddLibrary") ? 1 : 0; // the session's own
        EXPECT_EQ(Workbench::CurrentSession().calls[step.operation], step.calls + own)
            << step.operation;
    }
}

} // namespace
} // namespace Merivane::Archicad
