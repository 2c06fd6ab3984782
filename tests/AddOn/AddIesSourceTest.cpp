#include <string>
#include <vector>

#include "AddOn/AddIesSession.hpp"
#include "AddOn/CommandTable.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/ContractConversion.hpp"
#include "Archicad/LibraryParameters.hpp"
#include "Archicad/LibraryPartWriting.hpp"
#include "Archicad/ModelSample.hpp"
#include "Host/Elements.hpp"
#include "Host/Library.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Commands {
namespace {

const std::string Header = "<ParamSectHeader><AutoHotspots>true</AutoHotspots><StatBits/>"
                           "</ParamSectHeader>";

/// The command on an object whose part is a file, and where it fails.
class AddIesSource : public Tests::AddIesSession {
protected:
    AddIesSource() : spot(WriteIes("LX-200.ies", Tests::SpotIes())) {}

    /// Writes a part into a library of its own and places the object anew as one of it.
    void PlaceAsPart(const std::vector<Host::LibraryParameter>& parameters) {
        Select({Tests::ObjectToSelect});
        const auto library = Folder() / "Fontes";
        std::filesystem::create_directories(library);
        ASSERT_EQ(Host::AddLibrary(Text::WidePath(library)), Host::NoError);
        Host::NewLibraryPart part;
        part.name = "Mesa";
        part.folder = Text::WidePath(library);
        ASSERT_EQ(Archicad::BuiltInParent(120, part.parentId), Host::NoError);
        ASSERT_EQ(Host::CreatePart(part), Host::NoError);
        EXPECT_EQ(Archicad::WriteSection({"3DSC", 0}, "BLOCK A, B, 0.1\r\n"), Host::NoError);
        EXPECT_EQ(Archicad::WriteSection({"2DSC", 0}, "RECT2 0, 0, A, B\r\n"), Host::NoError);
        Host::ErrorCode listCode = Host::NoError;
        EXPECT_EQ(Archicad::WriteParameterSection(part, 0.6, 0.3, parameters, listCode, Header),
                  Host::NoError);
        Host::LibraryPart saved;
        ASSERT_EQ(Host::SavePart(saved), Host::NoError);
        for (Workbench::ProjectElement& element : Workbench::CurrentSession().project.elements) {
            if (element.element.header.guid == Tests::NumberedGuid(Tests::ObjectToSelect)) {
                std::get<Host::ObjectData>(element.element.data).libraryIndex =
                    static_cast<std::int32_t>(Workbench::CurrentSession().project.parts.size());
                element.memo.parameters.clear();
            }
        }
        Workbench::CurrentSession().project.parts.back().document->custom.push_back(
            {"HEAD", 0, "do programa"});
    }

    std::string MadeFile() const {
        return Tests::ReadBytes(Folder() / "Documentos" / "Vantoro Library" / "LX-200.gsm");
    }

    static void Run() { ExecuteCommand(32503); }

    std::string spot;
};

TEST_F(AddIesSource, HandsOnDictionariesHeaderAndAllButTheHostsOwnSections) {
    Host::LibraryParameter data;
    data.name = "dados";
    data.type = Host::ParameterType::Dictionary;
    data.text = "<Dictionary Name=\"dados\"><String Name=\"a\"><Value><![CDATA[\"" +
                std::string(400, 'x') + "\"]]></Value></String></Dictionary>";
    Host::LibraryParameter height;
    height.name = "altura";
    height.number = 0.75;
    PlaceAsPart({data, height});
    PrepareBoth(spot, "");
    Run();
    Tests::ExpectAnswered();
    const std::vector<std::string> lines = Tests::ReportWindow();
    ASSERT_EQ(lines.size(), 3U); // no warning
    EXPECT_EQ(lines.back(), "Vantoro: objeto colocado substituido por uma luminaria no mesmo lugar "
                            "(Ctrl+Z desfaz).");
    const std::string file = MadeFile();
    EXPECT_NE(file.find(data.text), std::string::npos);
    EXPECT_NE(file.find(Header), std::string::npos);
    EXPECT_EQ(file.find("STBit_FixSize"), std::string::npos);
    EXPECT_EQ(file.find("HEAD"), std::string::npos);
    Host::LibraryPart made;
    ASSERT_EQ(Host::FindLibraryPart("LX-200", made), Host::NoError);
    double size = 0.0;
    std::vector<Host::LibraryParameter> parameters;
    ASSERT_EQ(Host::GetPartParameters(made.index, size, size, parameters), Host::NoError);
    EXPECT_EQ(Archicad::FindAddPar(parameters, "dados")->text, data.text);
    EXPECT_EQ(Archicad::FindAddPar(parameters, "altura")->number, 0.75);
}

TEST_F(AddIesSource, EndsBeforeTheChoiceOfAFileWhereThePartCannotBeRead) {
    Select({Tests::ObjectToSelect});
    const Workbench::Project before = Workbench::CurrentSession().project;
    Workbench::FailCall("GetLibraryPart", 1, Host::MissingDefinition);
    Run();
    Tests::ExpectAnswered();
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{"Vantoro: Ler a peca do objeto failed: " +
                                       ErrorName(Host::MissingDefinition) + " (0x810603EA)"});
    EXPECT_TRUE(Workbench::CurrentSession().userInterface.shownFileChoices.empty());
    EXPECT_EQ(Workbench::CurrentSession().project, before);
}

TEST_F(AddIesSource, SwapsALampThoughTheHostDoesNotTellTheStories) {
    Select({Tests::LampToSelect});
    Workbench::FailCall("GetStories", 1, Host::GeneralError);
    PrepareBoth(spot, "");
    Run();
    Tests::ExpectAnswered();
    const std::vector<std::string> lines = Tests::ReportWindow();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "Vantoro: previa: nao foi possivel ler a geometria do objeto - o "
                             "dialogo mostra so a fotometria.");
    EXPECT_EQ(lines.back(), "Vantoro: objeto colocado trocado pela luminaria (mesmo elemento).");
}

TEST_F(AddIesSource, KeepsTheLampWhereTheNewPartsParametersCannotBeRead) {
    Select({Tests::LampToSelect});
    const auto before = Workbench::CurrentSession().project.elements;
    Workbench::FailCall("GetPartParameters", 2, Host::GeneralError); // the first is the source's
    PrepareBoth(spot, "");
    Run();
    Tests::ExpectAnswered();
    EXPECT_EQ(Tests::ReportWindow().back(),
              "Vantoro: a peca foi criada e esta na biblioteca Vantoro; o objeto colocado nao foi "
              "trocado.");
    EXPECT_TRUE(Workbench::CurrentSession().project.elements == before);
}

TEST_F(AddIesSource, KeepsTheObjectWhereNoLampCanTakeItsPlace) {
    for (const char* operation : {"CreateElement", "DeleteElements"}) {
        PlaceAsPart({});
        const auto before = Workbench::CurrentSession().project.elements;
        Workbench::FailCall(operation, 1, Host::LockedLayer);
        PrepareBoth(spot, "");
        Run();
        Tests::ExpectAnswered();
        const std::string path =
            (Folder() / "Documentos" / "Vantoro Library" / "LX-200.gsm").string();
        EXPECT_EQ(Tests::ReportWindow(),
                  (std::vector<std::string>{
                      "Vantoro: peca criada: \"LX-200\" em " + path,
                      "Vantoro: fotometria: 228 lm (da tabela), fator de manutencao 0,80",
                      "Vantoro: Trocar o objeto colocado pela luminaria failed: " +
                          ErrorName(Host::LockedLayer) + " (0x8106012F)",
                      "Vantoro: a peca foi criada e esta na biblioteca Vantoro; o objeto colocado "
                      "nao foi trocado."}))
            << operation;
        EXPECT_TRUE(Workbench::CurrentSession().project.elements == before) << operation;
        std::filesystem::remove_all(Folder() / "Documentos");
        std::filesystem::remove_all(Folder() / "Fontes");
    }
}

} // namespace
} // namespace Merivane::Commands
