#include <algorithm>
#include <string>
#include <vector>

#include "AddOn/AddIesSession.hpp"
#include "AddOn/CommandTable.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/ContractConversion.hpp"
#include "Archicad/ModelSample.hpp"
#include "Host/Elements.hpp"
#include "Host/Library.hpp"
#include "Photometry/ContractReading.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;

const Lines SourceWarnings = {
    "Vantoro: a peca de origem desenha a planta sem script 2D: o marcador do centro e o texto do "
    "circuito nao aparecem",
    "Vantoro: a peca de origem nao tinha script 3D; foi criado um so com a fonte de luz"};

class AddIesCommand : public Tests::AddIesSession {
protected:
    AddIesCommand() : spot(WriteIes("LX-200.ies", Tests::SpotIes())) {}

    /// Runs the command on the selected elements, by its number.
    static void Run() { ExecuteCommand(32503); }

    static const Workbench::UserInterface& Interface() {
        return Workbench::CurrentSession().userInterface;
    }

    static Host::Element ElementOf(std::uint32_t number) {
        Host::Element element;
        EXPECT_EQ(Host::GetElement(Tests::NumberedGuid(number), element), Host::NoError);
        return element;
    }

    static bool Exists(const Host::Guid& guid) {
        Host::Element element;
        return Host::GetElement(guid, element) == Host::NoError;
    }

    static std::vector<Host::Guid> Listed(Host::ElementType type) {
        std::vector<Host::Guid> guids;
        EXPECT_EQ(Host::ListElements(type, Host::ElementFilter::None, guids), Host::NoError);
        return guids;
    }

    static std::string PartName(const Host::Element& element) {
        Host::LibraryPart part;
        EXPECT_EQ(Host::GetLibraryPart(std::get<Host::ObjectData>(element.data).libraryIndex, part),
                  Host::NoError);
        return part.name;
    }

    static std::vector<Host::LibraryParameter> ParametersOf(const Host::Guid& guid) {
        Host::ElementMemo memo;
        EXPECT_EQ(Host::GetMemo(guid, Host::MemoParts::Parameters, memo), Host::NoError);
        return memo.parameters;
    }

    static Host::LibraryParameter ParameterOf(const Host::Guid& guid, const std::string& name) {
        const auto parameters = ParametersOf(guid);
        const auto found = std::find_if(parameters.begin(), parameters.end(),
                                        [&](const auto& each) { return each.name == name; });
        EXPECT_NE(found, parameters.end()) << name;
        return found == parameters.end() ? Host::LibraryParameter() : *found;
    }

    std::string PathOf(const std::string& part) const {
        return (Folder() / "Documentos" / "Vantoro Library" / (part + ".gsm")).string();
    }

    /// What the command tells of the part that it has made.
    Lines MadePart(const std::string& name) const {
        Lines lines = SourceWarnings;
        lines.push_back("Vantoro: peca criada: \"" + name + "\" em " + PathOf(name));
        lines.emplace_back("Vantoro: fotometria: 228 lm (da tabela), fator de manutencao 0,80");
        return lines;
    }

    std::string spot;
};

TEST_F(AddIesCommand, RefusesASelectionBeforeItAsksForAFile) {
    struct Case {
        std::vector<std::uint32_t> selected;
        std::string text;
    };
    const Case cases[] = {
        {{}, "Selecione um objeto de luminaria (Objeto ou Iluminacao) antes de rodar o comando."},
        {{Tests::WallToSelect}, "Nenhum Objeto ou objeto de Iluminacao na selecao."},
        {{Tests::LampToSelect, Tests::ObjectToSelect},
         "Selecione apenas UM objeto - cada luminaria recebe o seu proprio arquivo IES."},
    };
    for (const Case& c : cases) {
        Select(c.selected);
        Run();
        EXPECT_EQ(Tests::ReportWindow(), Lines{"!Vantoro: " + c.text});
        EXPECT_TRUE(Interface().shownFileChoices.empty());
        Tests::ExpectAnswered();
    }
}

TEST_F(AddIesCommand, RefusesALockedObjectBeforeItAsksForAFile) {
    Select({Tests::LampToSelect});
    for (Workbench::ProjectElement& element : Workbench::CurrentSession().project.elements) {
        element.element.header.locked = true;
    }
    Run();
    EXPECT_EQ(Tests::ReportWindow(),
              Lines{"!Vantoro: O objeto selecionado está bloqueado. Desbloqueie-o antes de rodar o "
                    "comando."});
    EXPECT_TRUE(Interface().shownFileChoices.empty());
}

TEST_F(AddIesCommand, SwapsALampThatStaysTheSameElement) {
    Select({Tests::LampToSelect, Tests::WallToSelect});
    PrepareBoth(spot, "");
    Run();
    Tests::ExpectAnswered();
    Lines expected = MadePart("LX-200");
    expected.emplace_back("Vantoro: objeto colocado trocado pela luminaria (mesmo elemento).");
    EXPECT_EQ(Tests::ReportWindow(), expected);
    EXPECT_EQ(PartName(ElementOf(Tests::LampToSelect)), "LX-200");
    EXPECT_EQ(Listed(Host::ElementType::Lamp).size(), 1U);
}

TEST_F(AddIesCommand, PutsALampInThePlaceOfAnObject) {
    Select({Tests::ObjectToSelect});
    const Host::Element before = ElementOf(Tests::ObjectToSelect);
    PrepareBoth(spot, "");
    Run();
    Lines expected = MadePart("LX-200");
    expected.emplace_back(
        "Vantoro: objeto colocado substituido por uma luminaria no mesmo lugar (Ctrl+Z desfaz).");
    EXPECT_EQ(Tests::ReportWindow(), expected);
    EXPECT_FALSE(Exists(before.header.guid));
    std::vector<Host::Guid> lamps = Listed(Host::ElementType::Lamp);
    std::erase(lamps, Tests::NumberedGuid(Tests::LampToSelect));
    ASSERT_EQ(lamps.size(), 1U);
    Host::Element lamp;
    ASSERT_EQ(Host::GetElement(lamps[0], lamp), Host::NoError);
    EXPECT_EQ(PartName(lamp), "LX-200");
    EXPECT_EQ(std::get<Host::ObjectData>(lamp.data).position,
              std::get<Host::ObjectData>(before.data).position);
    EXPECT_EQ(ParameterOf(lamps[0], "espessura").number, 0.02);
}

TEST_F(AddIesCommand, IsUndoneInOneStep) {
    Select({Tests::ObjectToSelect});
    PrepareBoth(spot, "");
    Run();
    EXPECT_EQ(Workbench::UndoNames().back(), "Vantoro: adicionar fotometria IES");
    EXPECT_TRUE(Workbench::Undo());
    EXPECT_EQ(PartName(ElementOf(Tests::ObjectToSelect)), "Caixa");
    EXPECT_EQ(Listed(Host::ElementType::Lamp).size(), 1U);
}

TEST_F(AddIesCommand, PutsThePhotometryAsItWasAimedIntoTheElement) {
    Select({Tests::LampToSelect});
    PrepareBoth(spot, R"({"item": 19, "texto": "LX 7"}, {"item": 25, "valor": 0},
        {"item": 27, "texto": " Spot novo "}, {"item": 29, "valor": 0.65},
        {"item": 32, "valor": 12}, {"item": 34, "valor": -7}, {"item": 36, "valor": 5},
        {"item": 43, "valor": 15}, {"item": 45, "valor": 30}, {"item": 47, "valor": 90})");
    Run();
    Tests::ExpectAnswered();
    const auto parameters =
        Archicad::FromAddPars(ParametersOf(Tests::NumberedGuid(Tests::LampToSelect)));
    Photometry::IesFile file;
    ASSERT_TRUE(Photometry::ReadContract(parameters, file).ok);
    EXPECT_EQ(Photometry::FindKeyword(file, "LUMCAT"), "LX 7");
    EXPECT_EQ(Photometry::FindKeyword(file, "LUMINAIRE"), "Spot 20°");
    EXPECT_EQ(Photometry::FindKeyword(file, "_RA"), "");
    EXPECT_EQ(file.inputWatts, 10.0);
    const Photometry::LuminaireSettings settings = Photometry::ReadLuminaireSettings(parameters);
    EXPECT_EQ(settings.iesFileName, "LX-200.ies");
    EXPECT_NEAR(settings.centerX, 0.12, 1e-12);
    EXPECT_NEAR(settings.centerY, -0.07, 1e-12);
    EXPECT_NEAR(settings.centerZ, 0.05, 1e-12);
    EXPECT_NEAR(settings.c0Rotation, 15.0, 1e-9);
    EXPECT_NEAR(settings.tiltAngle, 30.0, 1e-9);
    EXPECT_NEAR(settings.tiltDirection, 90.0, 1e-9);
    EXPECT_EQ(settings.maintenanceFactor, 0.65);
    EXPECT_EQ(PartName(ElementOf(Tests::LampToSelect)), "Spot novo");
}

TEST_F(AddIesCommand, WritesTheColourRenderingIntoTheHeader) {
    Select({Tests::LampToSelect});
    PrepareBoth(spot, R"({"item": 25, "valor": 92.4})");
    Run();
    Photometry::IesFile file;
    ASSERT_TRUE(
        Photometry::ReadContract(
            Archicad::FromAddPars(ParametersOf(Tests::NumberedGuid(Tests::LampToSelect))), file)
            .ok);
    EXPECT_EQ(Photometry::FindKeyword(file, "_RA"), "92");
}

TEST_F(AddIesCommand, KeepsTheCircuitButNotTheFlux) {
    Select({Tests::LampToSelect});
    const Host::Guid lamp = Tests::NumberedGuid(Tests::LampToSelect);
    Host::ElementMemo memo;
    memo.parameters = ParametersOf(lamp);
    Tests::SetText(memo.parameters, "mvCircuit", "a1");
    Tests::SetNumber(memo.parameters, "mvCircuitX", 0.25);
    Tests::SetNumber(memo.parameters, "mvLuminousFlux", 4321.0);
    ASSERT_EQ(Host::CallUndoable("prova",
                                 [&] {
                                     return Host::ChangeElement(ElementOf(Tests::LampToSelect),
                                                                memo, Host::MemoParts::Parameters);
                                 }),
              Host::NoError);
    PrepareBoth(spot, "");
    Run();
    EXPECT_EQ(ParameterOf(lamp, "mvCircuit").text, "a1");
    EXPECT_EQ(ParameterOf(lamp, "mvCircuitX").number, 0.25);
    EXPECT_NEAR(ParameterOf(lamp, "mvLuminousFlux").number, 228.3, 0.1);
}

TEST_F(AddIesCommand, LeavesTheSourcePartAsItWas) {
    Select({Tests::LampToSelect});
    const Workbench::ProjectPart before = Workbench::CurrentSession().project.parts.at(0);
    PrepareBoth(spot, R"({"item": 27, "texto": "Plafon"})");
    Run();
    EXPECT_EQ(Workbench::CurrentSession().project.parts.at(0), before);
    EXPECT_TRUE(std::filesystem::exists(Text::NativePath(Text::Widen(PathOf("Plafon_2")))));
}

TEST_F(AddIesCommand, ShowsTheObjectInItsDialog) {
    Select({Tests::ObjectToSelect});
    PrepareBoth(spot, "", 2);
    Run();
    EXPECT_EQ(Tests::LastItem(4).text, "Caixa");
    EXPECT_EQ(Tests::LastItem(5).text, "Objeto, 20,0 x 20,0 x 10,0 cm");
    EXPECT_EQ(Tests::LastItem(36).value, 0.0);
    Select({Tests::LampToSelect});
    PrepareBoth(spot, "", 2);
    Run();
    EXPECT_EQ(Tests::LastItem(5).text, "Iluminação, 20,0 x 20,0 x 10,0 cm");
}

TEST_F(AddIesCommand, GoesOnWithoutGeometry) {
    Select({Tests::LampToSelect});
    Workbench::FailCall("GetBodies", 1, Host::NoBody);
    PrepareBoth(spot, "", 2);
    Run();
    Tests::ExpectAnswered();
    EXPECT_EQ(Tests::ReportWindow(),
              Lines{"Vantoro: previa: nao foi possivel ler a geometria do objeto - o dialogo "
                    "mostra so a fotometria."});
    EXPECT_EQ(Tests::LastItem(5).text, "Iluminação");
    EXPECT_FALSE(Tests::LastItem(37).enabled);
}

TEST_F(AddIesCommand, ChangesNothingWhereTheUserCancels) {
    const std::string none =
        R"([{"arquivo": "Escolha o arquivo IES da luminaria", "cancelar": true}])";
    for (const std::string& script :
         {none, "[" + ChooseFile(spot) + ", " + AnswerDialog("", 2) + "]"}) {
        Select({Tests::LampToSelect});
        const Workbench::Project before = Workbench::CurrentSession().project;
        Tests::PrepareAnswers(script);
        Run();
        Tests::ExpectAnswered();
        EXPECT_EQ(Workbench::CurrentSession().project, before);
        EXPECT_EQ(Tests::ReportWindow(), Lines());
        EXPECT_FALSE(std::filesystem::exists(Folder() / "Documentos"));
    }
}

TEST_F(AddIesCommand, EndsAtAFileThatIsRefused) {
    Select({Tests::LampToSelect});
    Tests::PrepareAnswers("[" + ChooseFile(WriteIes("ruim.ies", "TILT=NONE\n1")) + "]");
    Run();
    Tests::ExpectAnswered();
    EXPECT_EQ(Tests::ReportWindow(), Lines{"!Vantoro: O arquivo IES foi recusado: arquivo termina "
                                           "antes de lumens por lampada"});
    EXPECT_TRUE(Interface().shownDialogs.empty());
}

TEST_F(AddIesCommand, TellsThatThePartCouldNotBeMade) {
    Select({Tests::LampToSelect});
    Workbench::FailCall("CreatePart", 1, Host::ReadOnly);
    PrepareBoth(spot, "");
    Run();
    Lines expected = SourceWarnings;
    expected.emplace_back("Vantoro: Criar a peca da luminaria failed: " +
                          ErrorName(Host::ReadOnly) + " (0x8106038A)");
    EXPECT_EQ(Tests::ReportWindow(), expected);
    EXPECT_EQ(PartName(ElementOf(Tests::LampToSelect)), "Plafon");
}

TEST_F(AddIesCommand, KeepsThePartWhereTheSwapFails) {
    Select({Tests::LampToSelect});
    Workbench::FailCall("ChangeElement", 1, Host::LockedLayer);
    PrepareBoth(spot, "");
    Run();
    Lines expected = MadePart("LX-200");
    expected.emplace_back("Vantoro: Trocar o objeto colocado pela luminaria failed: " +
                          ErrorName(Host::LockedLayer) + " (0x8106012F)");
    expected.emplace_back("Vantoro: a peca foi criada e esta na biblioteca Vantoro; o objeto "
                          "colocado nao foi trocado.");
    EXPECT_EQ(Tests::ReportWindow(), expected);
    EXPECT_EQ(PartName(ElementOf(Tests::LampToSelect)), "Plafon");
    Host::LibraryPart part;
    EXPECT_EQ(Host::FindLibraryPart("LX-200", part), Host::NoError);
}

TEST_F(AddIesCommand, TakesAFileOfTypeB) {
    Select({Tests::LampToSelect});
    std::string text = Tests::SpotIes();
    text.replace(text.find("3 1 1 2"), 7, "3 1 2 2"); // vertical, horizontal, type, units
    PrepareBoth(WriteIes("b.ies", text), "");
    Run();
    Tests::ExpectAnswered();
    const Lines lines = Tests::ReportWindow();
    EXPECT_EQ(lines.at(0), "Vantoro: aviso do IES: fotometria tipo A/B (projetores/automotiva): o "
                           "calculo de fluxo so cobre o tipo C");
    EXPECT_EQ(lines.at(4), "Vantoro: fotometria: 0 lm (da tabela), fator de manutencao 0,80");
    EXPECT_EQ(PartName(ElementOf(Tests::LampToSelect)), "b");
}

TEST_F(AddIesCommand, BeginsItsOwnSectionOfTheLog) {
    Select({});
    Run();
    const std::string report = Tests::ReadBytes(Folder() / "Vantoro" / std::string(ReportFile));
    EXPECT_NE(report.find("=== adicionar fotometria IES ao objeto selecionado\n"),
              std::string::npos)
        << report;
}

} // namespace
} // namespace Merivane::Commands
