#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Elements.hpp"
#include "Host/GuidText.hpp"
#include "Host/Library.hpp"
#include "Host/Session.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/ProjectSaving.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

namespace fs = std::filesystem;
using Host::LibraryParameter;
using Host::NoError;
using Host::ParameterType;

LibraryParameter MakeParameter(std::string name, ParameterType type, double number) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

/// A lamp with a parameter of each form: a number, an angle, a text and a table.
Parts::PartDocument MakeLampDocument(std::uint8_t number) {
    Parts::PartDocument document;
    document.mainGuid.bytes[15] = number;
    document.revision.bytes[15] = number;
    document.type = Host::PartType::Lamp;
    document.ancestry = Parts::AncestryOfSubtype(Parts::BuiltInSubtype(Parts::LightSubtype));
    document.parameters.sizeA.number = 0.6;
    document.parameters.parameters = {{MakeParameter("mvFlux", ParameterType::Real, 3000.0), {}},
                                      {MakeParameter("mvTilt", ParameterType::Angle, 90.0), {}},
                                      {MakeParameter("mvName", ParameterType::String, 0.0), {}},
                                      {MakeParameter("mvTable", ParameterType::Real, 0.0), {}}};
    LibraryParameter& table = document.parameters.parameters[3].value;
    table.isArray = true;
    table.dim1 = 2;
    table.numbers = {1.0, 2.0};
    return document;
}

/// A project file with a library folder "biblioteca" beside it.
class PartLibraries : public ::testing::Test {
protected:
    void SetUp() override { OpenSession({}); }

    fs::path Library() const { return folder.Path() / "biblioteca"; }
    fs::path File() const { return folder.Path() / "projeto.vantoro"; }

    void WritePart(const std::string& name, const Parts::PartDocument& document) const {
        fs::create_directories((Library() / name).parent_path());
        Tests::WriteBytes(Library() / name, Parts::WritePartXml(document));
    }

    /// Opens an empty project that has the library.
    void OpenWithLibrary(bool embedded = false) const {
        Project project = MakeEmptyProject();
        project.libraries = {{"Biblioteca", "biblioteca", embedded}};
        OpenProject(std::move(project), Text::WidePath(File()));
    }

    /// Saves the open project, forgets the session, and opens the file.
    void SaveAndReopen() const {
        std::string error;
        ASSERT_TRUE(SaveOpenProject(Text::WidePath(File()), error)) << error;
        Reopen();
    }

    void Reopen() const {
        OpenSession({});
        Project project;
        std::string error;
        ASSERT_TRUE(ReadProject(Text::WidePath(File()), project, error)) << error;
        OpenProject(std::move(project), Text::WidePath(File()));
    }

    Tests::TemporaryFolder folder;
};

std::vector<std::string> Told() {
    std::vector<std::string> lines;
    for (const ReportLine& line : CurrentSession().reportLines) {
        lines.push_back(line.text);
    }
    return lines;
}

std::vector<std::string> PartNames() {
    std::vector<std::string> names;
    for (const ProjectPart& part : CurrentSession().project.parts) {
        names.push_back(part.name);
    }
    return names;
}

/// Places a lamp of the part with these own values.
Host::Guid Place(const std::string& part, const std::vector<LibraryParameter>& parameters) {
    Host::LibraryPart found;
    EXPECT_EQ(Host::FindLibraryPart(part, found), NoError);
    Host::Element lamp;
    lamp.header.type = Host::ElementType::Lamp;
    lamp.header.layer = {1};
    Host::ObjectData data;
    data.libraryIndex = found.index;
    data.sizeA = 0.6;
    data.sizeB = 1.0;
    lamp.data = data;
    Host::ElementMemo memo;
    memo.parameters = parameters;
    EXPECT_EQ(Host::CallUndoable("Passo", [&] { return Host::CreateElement(lamp, memo); }),
              NoError);
    return lamp.header.guid;
}

std::vector<LibraryParameter> ParametersOf(const Host::Guid& guid) {
    Host::ElementMemo memo;
    EXPECT_EQ(Host::GetMemo(guid, Host::MemoParts::Parameters, memo), NoError);
    return memo.parameters;
}

std::vector<LibraryParameter> OwnValues() {
    LibraryParameter name = MakeParameter("mvName", ParameterType::String, 0.0);
    name.text = "minha";
    LibraryParameter table = MakeParameter("mvTable", ParameterType::Real, 0.0);
    table.isArray = true;
    table.dim1 = 3;
    table.numbers = {7.0, 8.0, 9.0};
    return {MakeParameter("mvTilt", ParameterType::Angle, 0.5), name, table};
}

TEST_F(PartLibraries, AreReadWithTheirSubfoldersInTheOrderOfTheirPaths) {
    WritePart("b.gsm", MakeLampDocument(1));
    WritePart("a/z.GSM", MakeLampDocument(2));
    WritePart("Peça 100 %.gsm", MakeLampDocument(3));
    Tests::WriteBytes(Library() / "leia.txt", "não é peça");
    OpenWithLibrary();
    EXPECT_EQ(PartNames(), (std::vector<std::string>{"Peça 100 %", "z", "b"}));
    EXPECT_EQ(Told(), std::vector<std::string>());
    const ProjectPart& part = CurrentSession().project.parts[0];
    EXPECT_TRUE(part.isLamp);
    EXPECT_EQ(part.sizeA, 0.6);
    EXPECT_DOUBLE_EQ(part.parameters[1].number, 1.5707963267948966); // radians
    EXPECT_EQ(part.document->parameters.parameters[1].value.number, 90.0);
}

TEST_F(PartLibraries, TellWhatTheyLeaveOut) {
    WritePart("boa.gsm", MakeLampDocument(1));
    WritePart("sub/boa.gsm", MakeLampDocument(2));
    Tests::WriteBytes(Library() / "ruim 100 %.gsm", "GSYM");
    OpenWithLibrary();
    EXPECT_EQ(PartNames(), (std::vector<std::string>{"boa"}));
    EXPECT_EQ(CurrentSession().project.parts[0].mainGuid.bytes[15], 1);
    EXPECT_EQ(Told(), (std::vector<std::string>{
                          "Biblioteca: a peça \"" + (Library() / "ruim 100 %.gsm").string() +
                              "\" ficou de fora: linha 1: não há nenhum elemento",
                          "Biblioteca: a peça \"" + (Library() / "sub/boa.gsm").string() +
                              "\" ficou de fora: já há outra com esse nome"}));
}

TEST_F(PartLibraries, AreToldWhereTheirFolderIsMissing) {
    OpenWithLibrary();
    EXPECT_EQ(Told(), (std::vector<std::string>{"Biblioteca: falta a pasta \"biblioteca\""}));
    OpenSession({});
    OpenWithLibrary(true); // made when the project is saved
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(PartLibraries, GivePlacedPartsBackAfterSavingAndOpening) {
    WritePart("lamp.gsm", MakeLampDocument(1));
    OpenWithLibrary();
    const Host::Guid guid = Place("lamp", OwnValues());
    const std::vector<LibraryParameter> before = ParametersOf(guid);
    SaveAndReopen();
    EXPECT_EQ(Told(), std::vector<std::string>());
    EXPECT_EQ(ParametersOf(guid), before);
    const std::string bytes = Tests::ReadBytes(File());
    EXPECT_EQ(bytes.find("\"pecas\""), std::string::npos);
    EXPECT_NE(bytes.find("\"pecasDeBiblioteca\""), std::string::npos);
    EXPECT_EQ(bytes.find("mvFlux"), std::string::npos); // the library's
    SaveAndReopen();
    EXPECT_EQ(Tests::ReadBytes(File()), bytes);
}

TEST_F(PartLibraries, KeepOwnValuesOfAPartWhoseFileHasGone) {
    WritePart("lamp.gsm", MakeLampDocument(1));
    OpenWithLibrary();
    const Host::Guid guid = Place("lamp", OwnValues());
    const std::vector<LibraryParameter> before = ParametersOf(guid);
    std::string error;
    ASSERT_TRUE(SaveOpenProject(Text::WidePath(File()), error)) << error;
    const std::string bytes = Tests::ReadBytes(File());
    fs::rename(Library() / "lamp.gsm", folder.Path() / "guardada");
    Reopen();
    EXPECT_EQ(Told(), (std::vector<std::string>{"Biblioteca: falta a peça \"lamp\"; o que está "
                                                "colocado dela guarda os seus valores"}));
    Host::Element element;
    ASSERT_EQ(Host::GetElement(guid, element), NoError);
    Host::LibraryPart part;
    EXPECT_EQ(Host::GetLibraryPart(std::get<Host::ObjectData>(element.data).libraryIndex, part),
              Host::MissingDefinition);
    EXPECT_EQ(part.name, "lamp");
    EXPECT_EQ(ParametersOf(guid).size(), 3U);
    EXPECT_EQ(ParametersOf(guid)[1].text, "minha");
    const auto change = [&element] { return Host::ChangeElement(element, {}, {}); };
    EXPECT_EQ(Host::CallUndoable("Passo", change), NoError);
    CurrentSession().project.elements[0].element.header.stamp = 1; // of before the change
    CurrentSession().project.lastStamp = 1;
    SaveAndReopen();
    EXPECT_EQ(Tests::ReadBytes(File()), bytes);
    fs::rename(folder.Path() / "guardada", Library() / "lamp.gsm");
    Reopen();
    EXPECT_EQ(Told(), std::vector<std::string>());
    EXPECT_EQ(ParametersOf(guid), before);
}

TEST_F(PartLibraries, FollowAPartByItsIdentityWhenItsFileIsRenamed) {
    WritePart("lamp.gsm", MakeLampDocument(1));
    OpenWithLibrary();
    const Host::Guid guid = Place("lamp", OwnValues());
    const std::vector<LibraryParameter> before = ParametersOf(guid);
    std::string error;
    ASSERT_TRUE(SaveOpenProject(Text::WidePath(File()), error)) << error;
    fs::rename(Library() / "lamp.gsm", Library() / "outro nome.gsm");
    Reopen();
    EXPECT_EQ(Told(), std::vector<std::string>());
    EXPECT_EQ(PartNames(), (std::vector<std::string>{"outro nome"}));
    EXPECT_EQ(ParametersOf(guid), before);
}

TEST_F(PartLibraries, TellValuesThatDoNotFitAPartAnyMore) {
    WritePart("lamp.gsm", MakeLampDocument(1));
    OpenWithLibrary();
    const Host::Guid guid = Place("lamp", OwnValues());
    std::string error;
    ASSERT_TRUE(SaveOpenProject(Text::WidePath(File()), error)) << error;
    Parts::PartDocument changed = MakeLampDocument(1);
    changed.parameters.parameters.resize(2);
    WritePart("lamp.gsm", changed);
    Reopen();
    EXPECT_EQ(Told(),
              (std::vector<std::string>{"Biblioteca: valores colocados da peça \"lamp\" que "
                                        "não servem mais e ficaram de fora: 2"}));
    EXPECT_EQ(ParametersOf(guid)[1].number, 0.5);
}

TEST_F(PartLibraries, GoAlongWhenTheProjectIsSavedElsewhere) {
    OpenWithLibrary(true);
    Project& project = CurrentSession().project;
    fs::create_directory(folder.Path() / "outra");
    project.libraries.push_back({"Outra", "outra", false});
    std::string error;
    ASSERT_TRUE(SaveOpenProject(Text::WidePath(File()), error)) << error;
    EXPECT_TRUE(fs::is_directory(Library())); // the embedded one
    WritePart("lamp.gsm", MakeLampDocument(1));
    ReadLibraries();
    Place("lamp", {});
    const fs::path elsewhere = folder.Path() / "longe" / "projeto.vantoro";
    fs::create_directory(elsewhere.parent_path());
    ASSERT_TRUE(SaveOpenProject(Text::WidePath(elsewhere), error)) << error;
    EXPECT_TRUE(fs::exists(elsewhere.parent_path() / "biblioteca/lamp.gsm"));
    EXPECT_EQ(project.libraries[0].path, "biblioteca");
    EXPECT_EQ(project.libraries[1].path, (folder.Path() / "outra").string());
    EXPECT_EQ(Text::NativePath(project.parts[0].path),
              elsewhere.parent_path() / "biblioteca/lamp.gsm");
    EXPECT_EQ(CurrentSession().projectPath, Text::WidePath(elsewhere));
}

TEST_F(PartLibraries, AreNamedRelativeToTheProjectWhereTheyLieInItsFolder) {
    fs::create_directories(Library());
    EXPECT_EQ(StoredLibraryPath(Text::WidePath(Library()), Text::WidePath(File())), "biblioteca");
    EXPECT_EQ(StoredLibraryPath(L"/tmp", Text::WidePath(File())), "/tmp");
    EXPECT_EQ(StoredLibraryPath(Text::WidePath(Library()), L""), Library().string());
    EXPECT_EQ(FolderOfLibrary({"", "biblioteca", false}, Text::WidePath(File())),
              Text::WidePath(Library()));
    EXPECT_EQ(FolderOfLibrary({"", "biblioteca", false}, L""), L"");
    EXPECT_TRUE(IsInsideFolder(Text::WidePath(Library()), Text::WidePath(folder.Path())));
    EXPECT_TRUE(IsInsideFolder(Text::WidePath(Library()), Text::WidePath(Library())));
    EXPECT_FALSE(IsInsideFolder(Text::WidePath(folder.Path()), Text::WidePath(Library())));
}

TEST_F(PartLibraries, FailWhereATestAsksForIt) {
    fs::create_directories(Library());
    OpenWithLibrary();
    Host::NewLibraryPart part;
    part.name = "Nova";
    part.folder = Text::WidePath(Library());
    part.parentId = Parts::UniqueId(Parts::BuiltInSubtype(Parts::LightSubtype));
    FailCall("CreatePart", 1, Host::ReadOnly);
    EXPECT_EQ(Host::CreatePart(part), Host::ReadOnly);
    ASSERT_EQ(Host::CreatePart(part), NoError);
    ASSERT_EQ(Host::NewSection({"3DSC", 0}), NoError);
    FailCall("EndSection", 1, Host::GeneralError);
    EXPECT_EQ(Host::EndSection(), Host::GeneralError);
    ASSERT_EQ(Host::NewSection({"3DSC", 0}), NoError); // the failed one is over
    FailCall("SavePart", 1, Host::OutOfMemory);
    Host::LibraryPart saved;
    EXPECT_EQ(Host::SavePart(saved), Host::OutOfMemory);
    EXPECT_TRUE(fs::is_empty(Library()));
    EXPECT_EQ(Host::CreatePart(part), NoError);
}

TEST_F(PartLibraries, SurviveUndo) {
    fs::create_directories(Library());
    OpenWithLibrary();
    Host::NewLibraryPart part;
    part.type = Host::PartType::Lamp;
    part.name = "Nova";
    part.folder = Text::WidePath(Library());
    part.parentId = Parts::UniqueId(Parts::BuiltInSubtype(Parts::LightSubtype));
    ASSERT_EQ(Host::CreatePart(part), NoError);
    Host::LibraryPart saved;
    ASSERT_EQ(Host::SavePart(saved), NoError);
    Place("Nova", {});
    EXPECT_TRUE(Undo());
    EXPECT_EQ(Host::FindLibraryPart("Nova", saved), NoError);
    EXPECT_FALSE(Undo());
}

TEST(SpecialFolder, IsTheUsersDocumentsOrTheSessionsOwn) {
    SessionOptions options;
    options.documentsFolder = L"/documentos";
    OpenSession(options);
    std::wstring path;
    EXPECT_EQ(Host::GetSpecialFolder(Host::SpecialFolder::UserDocuments, path), NoError);
    EXPECT_EQ(path, L"/documentos");
    EXPECT_EQ(Host::GetSpecialFolder(static_cast<Host::SpecialFolder>(5), path),
              Host::BadParameters);
    EXPECT_EQ(path, L"/documentos");
    FailCall("GetSpecialFolder", 1, Host::GeneralError);
    EXPECT_EQ(Host::GetSpecialFolder(Host::SpecialFolder::UserDocuments, path), Host::GeneralError);
}

} // namespace
} // namespace Merivane::Workbench
