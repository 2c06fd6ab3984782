#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/CalculationDialog.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Simulation/EngineSettings.hpp"

namespace Merivane {
namespace {

namespace Item = ResourceIds::Calculation;

using Simulation::CalculationSettings;
using Tests::LastItem;

using Items = std::vector<std::int16_t>;
using Texts = std::vector<std::string>;

/// What the calculation is of.
enum class Mode { Plan, Section, Walls };

constexpr Mode Modes[] = {Mode::Plan, Mode::Section, Mode::Walls};

/// None of them as they are at first.
CalculationSettings OtherSettings() {
    CalculationSettings settings;
    settings.workPlaneHeight = 0.85;
    settings.wallOffset = 0.1;
    settings.borderBand = 0.3;
    settings.reviewReflectances = false;
    settings.colouredReflection = false;
    settings.verify = false;
    settings.planeFacesViewer = false;
    settings.surfaces = false;
    settings.ugr = false;
    settings.drawingScale = 50.0;
    settings.fills = false;
    settings.model3D = false;
    settings.colorScale = 2;
    settings.legend = false;
    settings.curves = false;
    settings.curveLabels = false;
    settings.values = true;
    settings.valueSpacing = 1.25;
    settings.levels = {12.5, 300.0};
    return settings;
}

/// The answers that turn the first settings into the other ones, as far as a user can.
const char* const OtherAnswers = R"(
    {"item": 6, "valor": 0.85}, {"item": 8, "valor": 0.1}, {"item": 10, "valor": 0.3},
    {"item": 12, "marcado": false}, {"item": 13, "marcado": false}, {"item": 17, "marcado": false},
    {"item": 19, "marcado": false}, {"item": 20, "marcado": false}, {"item": 22, "marcado": false},
    {"item": 25, "entrada": "Tons de cinza"}, {"item": 26, "marcado": false},
    {"item": 27, "marcado": false}, {"item": 28, "marcado": false}, {"item": 29, "marcado": true},
    {"item": 31, "valor": 1.25}, {"item": 33, "texto": "300; 12,5"})";

class Calculation : public Tests::AddOnSession {
protected:
    /// Shows the dialog and answers it. True when it was accepted; `settings` are then its own.
    bool Answer(std::string_view items = "", std::int16_t button = Item::Accept,
                Mode mode = Mode::Plan) {
        Tests::PrepareAnswer(Item::Dialog, items, button);
        return Show(mode);
    }

    bool Show(Mode mode = Mode::Plan) {
        CalculationDialog dialog("2 zona(s)", mode == Mode::Section, mode == Mode::Walls);
        const bool accepted = dialog.Invoke();
        Tests::ExpectAnswered();
        settings = dialog.Settings();
        return accepted;
    }

    /// What the user is told where "Calcular" is pressed behind these answers. The dialog has to be
    /// there still, to be cancelled.
    std::string Refusal(const std::string& items, Mode mode = Mode::Plan) {
        Tests::PrepareAnswers(R"([{"dialogo": 32620, "itens": [)" + items +
                              R"(], "botao": "Calcular"},
                                 {"dialogo": 32620, "botao": "Cancelar"}])");
        const CalculationSettings before = CurrentAddOnState().calculation;
        Workbench::CurrentSession().reportLines.clear();
        EXPECT_FALSE(Show(mode));
        EXPECT_EQ(settings, before);
        EXPECT_EQ(CurrentAddOnState().calculation, before);
        const Texts told = Tests::ReportWindow();
        EXPECT_EQ(told.size(), 1U);
        return told.empty() ? "" : told.front();
    }

    CalculationSettings settings;
};

TEST_F(Calculation, AsksForWhatIsUsualAtFirst) {
    EXPECT_TRUE(Answer());
    EXPECT_EQ(settings, CalculationSettings());
    EXPECT_EQ(LastItem(Item::Summary).text, "2 zona(s)");
    EXPECT_EQ(LastItem(Item::WorkPlaneHeight).value, 0.75);
    EXPECT_EQ(LastItem(Item::WallOffset).value, 0.05);
    EXPECT_EQ(LastItem(Item::BorderBand).value, 0.5);
    EXPECT_EQ(LastItem(Item::ValueSpacing).value, 0.5);
    EXPECT_EQ(LastItem(Item::Levels).text, "50; 100; 150; 200; 300; 500; 750; 1000");
    EXPECT_EQ(LastItem(Item::ColorScale).entries,
              (Texts{"Espectro (azul a vermelho)", "Calor (violeta a amarelo)", "Tons de cinza"}));
    EXPECT_EQ(LastItem(Item::ColorScale).selected, 1);
}

TEST_F(Calculation, ReadsEveryItemIntoItsSetting) {
    CalculationSettings expected = OtherSettings();
    expected.planeFacesViewer = true; // no user can change these
    expected.model3D = true;
    expected.drawingScale = 0.0;
    EXPECT_TRUE(Answer(OtherAnswers));
    EXPECT_EQ(settings, expected);
}

TEST_F(Calculation, ReadsEachItemAlone) {
    struct Case {
        std::string items;
        void (*change)(CalculationSettings&);
    };
    const Case cases[] = {
        {R"({"item": 6, "valor": 0})", [](auto& s) { s.workPlaneHeight = 0.0; }},
        {R"({"item": 8, "valor": 0.2})", [](auto& s) { s.wallOffset = 0.2; }},
        {R"({"item": 10, "valor": 1})", [](auto& s) { s.borderBand = 1.0; }},
        {R"({"item": 12, "clicar": true})", [](auto& s) { s.reviewReflectances = false; }},
        {R"({"item": 13, "clicar": true})", [](auto& s) { s.colouredReflection = false; }},
        {R"({"item": 17, "clicar": true})", [](auto& s) { s.verify = false; }},
        {R"({"item": 19, "clicar": true})", [](auto& s) { s.surfaces = false; }},
        {R"({"item": 20, "clicar": true})", [](auto& s) { s.ugr = false; }},
        {R"({"item": 22, "clicar": true})", [](auto& s) { s.fills = false; }},
        {R"({"item": 25, "entrada": 2})", [](auto& s) { s.colorScale = 1; }},
        {R"({"item": 26, "clicar": true})", [](auto& s) { s.legend = false; }},
        {R"({"item": 27, "clicar": true})", [](auto& s) { s.curves = false; }},
        {R"({"item": 28, "clicar": true})", [](auto& s) { s.curveLabels = false; }},
        {R"({"item": 29, "clicar": true})", [](auto& s) { s.values = true; }},
        {R"({"item": 31, "valor": 0.05})", [](auto& s) { s.valueSpacing = 0.05; }},
        {R"({"item": 33, "texto": "200"})", [](auto& s) { s.levels = {200.0}; }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.items);
        CurrentAddOnState().calculation = {};
        CalculationSettings expected;
        c.change(expected);
        EXPECT_TRUE(Answer(c.items));
        EXPECT_EQ(settings, expected);
    }
}

TEST_F(Calculation, ShowsTheSettingsLastAccepted) {
    CurrentAddOnState().calculation = OtherSettings();
    for (const Mode mode : Modes) {
        EXPECT_TRUE(Answer("", Item::Accept, mode));
        EXPECT_EQ(settings, OtherSettings());
        EXPECT_EQ(LastItem(Item::WorkPlaneHeight).value, 0.85);
        EXPECT_EQ(LastItem(Item::WallOffset).value, 0.1);
        EXPECT_EQ(LastItem(Item::BorderBand).value, 0.3);
        EXPECT_EQ(LastItem(Item::ValueSpacing).value, 1.25);
        EXPECT_EQ(LastItem(Item::Levels).text, "12,5; 300");
        EXPECT_EQ(LastItem(Item::ColorScale).selected, 3);
        for (std::int16_t item = 1; item <= Item::LevelsNote; ++item) {
            EXPECT_EQ(LastItem(item).checked, item == Item::Values) << item;
        }
    }
}

TEST_F(Calculation, RemembersWhatWasAcceptedAndForgetsWhatWasCancelled) {
    EXPECT_TRUE(Answer(R"({"item": 6, "valor": 0.8})"));
    EXPECT_FALSE(Answer(R"({"item": 6, "valor": 0.9}, {"item": 27, "clicar": true})", 2));
    EXPECT_EQ(settings.workPlaneHeight, 0.8);
    Tests::PrepareAnswers(R"([{"dialogo": 32620, "itens": [{"item": 6, "valor": 0.9}],
                               "fechar": true}])");
    EXPECT_FALSE(Show());
    EXPECT_TRUE(Answer("", Item::Accept, Mode::Walls));
    EXPECT_EQ(LastItem(Item::WorkPlaneHeight).value, 0.8);
    EXPECT_TRUE(LastItem(Item::Curves).checked);
}

TEST_F(Calculation, ForgetsAllWhereTheAddOnIsUnloaded) {
    CurrentAddOnState().calculation = OtherSettings();
    FreeData();
    EXPECT_EQ(CurrentAddOnState().calculation, CalculationSettings());
}

TEST_F(Calculation, IsNamedAfterWhatIsCalculated) {
    const Texts titles = {"Vantoro: calcular iluminacao",
                          "Vantoro: calcular plano vertical (corte ativo)",
                          "Vantoro: calcular paredes (Elevacao Interior ativa)"};
    for (std::size_t i = 0; i < std::size(Modes); ++i) {
        Answer("", Item::Cancel, Modes[i]);
        EXPECT_EQ(Tests::LastDialog().title, titles[i]);
    }
}

/// The greyed ones of all items.
Items GreyedItems() {
    Items greyed;
    for (std::int16_t item = 1; item <= Item::LevelsNote; ++item) {
        EXPECT_TRUE(LastItem(item).visible) << item;
        if (!LastItem(item).enabled) {
            greyed.push_back(item);
        }
    }
    return greyed;
}

TEST_F(Calculation, GreysWhatItsKindOfCalculationDoesNotUse) {
    Answer("", Item::Cancel, Mode::Plan);
    EXPECT_EQ(GreyedItems(), (Items{Item::PlaneFacesViewer, Item::Model3D}));
    for (const Mode mode : {Mode::Section, Mode::Walls}) {
        Answer("", Item::Cancel, mode);
        EXPECT_EQ(GreyedItems(), (Items{Item::WorkPlaneHeight, Item::BorderBand, Item::Verify,
                                        Item::PlaneFacesViewer, Item::Ugr, Item::Model3D}));
    }
}

TEST_F(Calculation, LeavesTheSettingsOfThePlanAloneOnWallsAndSections) {
    for (const Mode mode : {Mode::Section, Mode::Walls}) {
        CurrentAddOnState().calculation = OtherSettings();
        CalculationSettings expected = OtherSettings();
        expected.wallOffset = 0.2;
        expected.surfaces = true;
        expected.levels = {500.0};
        EXPECT_TRUE(Answer(R"({"item": 8, "valor": 0.2}, {"item": 19, "clicar": true},
                              {"item": 33, "texto": "500"})",
                           Item::Accept, mode));
        EXPECT_EQ(settings, expected);
        EXPECT_EQ(CurrentAddOnState().calculation, expected);
    }
}

TEST_F(Calculation, ChecksTheHeightOfThePlanOnWallsToo) {
    CurrentAddOnState().calculation.workPlaneHeight = -0.5; // the greyed field shows 0
    EXPECT_EQ(Refusal("", Mode::Walls),
              "!Vantoro: A altura do plano de trabalho nao pode ser negativa.");
}

TEST_F(Calculation, StaysOpenOnWhatCanNotBeCalculated) {
    struct Case {
        std::string items;
        std::string message;
    };
    const std::string none = R"({"item": 22, "marcado": false}, {"item": 27, "marcado": false})";
    const std::string representation =
        "Escolha ao menos uma representacao: mapa de cor falsa, curvas isolux ou valores.";
    const std::string example = ".\nExemplo: 50; 100; 150; 200; 300; 500; 750; 1000";
    const Case cases[] = {
        {none, representation}, // labels and legend are on
        {none + R"(, {"item": 26, "marcado": false})", representation},
        {none + R"(, {"item": 28, "marcado": false})", representation},
        {R"({"item": 33, "texto": "50; abc"})",
         "Niveis de iluminancia: \"abc\" nao e um nivel valido (use numeros positivos, em lux)" +
             example},
        {R"({"item": 33, "texto": ""})", "Niveis de iluminancia: nenhum nivel informado" + example},
        {R"({"item": 8, "valor": 0.009})",
         "O afastamento dos pontos da parede precisa ser de pelo menos 1 cm."},
        {R"({"item": 8, "valor": 0.3}, {"item": 10, "valor": 0.2})",
         "A faixa de borda das estatisticas nao pode ser menor que o afastamento dos pontos."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.items);
        EXPECT_EQ(Refusal(c.items), "!Vantoro: " + c.message);
    }
}

TEST_F(Calculation, IsAcceptedOnceItCanBeCalculated) {
    Tests::PrepareAnswers(R"([
        {"dialogo": 32620, "botao": 1, "itens": [{"item": 8, "valor": 0}]},
        {"dialogo": 32620, "botao": 1, "itens": [{"item": 8, "valor": 0.01}]}])");
    EXPECT_TRUE(Show());
    EXPECT_EQ(settings.wallOffset, 0.01);
}

TEST_F(Calculation, TakesWhatJustMeetsARule) {
    EXPECT_TRUE(Answer(R"({"item": 8, "valor": 0.01}, {"item": 10, "valor": 0.01})"));
    EXPECT_EQ(settings.borderBand, settings.wallOffset);
    EXPECT_TRUE(Answer(R"({"item": 33, "texto": "50, 100"})"));
    EXPECT_EQ(settings.levels, (Simulation::LevelList{50.0, 100.0}));
    for (const char* const only :
         {R"({"item": 27, "marcado": true})", R"({"item": 22, "marcado": true})",
          R"({"item": 29, "marcado": true})"}) {
        CurrentAddOnState().calculation.fills = false;
        CurrentAddOnState().calculation.curves = false;
        CurrentAddOnState().calculation.values = false;
        EXPECT_TRUE(Answer(only)) << only;
    }
}

TEST_F(Calculation, TellsHowHardTheEngineWorks) {
    Answer();
    EXPECT_EQ(LastItem(Item::EngineSummary).text, "Projeto (reflexões 2, raios 1024)");
}

TEST_F(Calculation, OpensTheEngineAndGoesOn) {
    Tests::PrepareAnswers(R"([
        {"dialogo": 32620, "botao": 1, "itens": [
            {"item": 6, "valor": 0.8}, {"item": 14, "clicar": true}, {"item": 8, "valor": 0.2}]},
        {"dialogo": 32650, "botao": "OK", "itens": [{"item": 4, "entrada": "Estudo rápido"}]}])");
    EXPECT_TRUE(Show());
    EXPECT_EQ(settings.workPlaneHeight, 0.8);
    EXPECT_EQ(settings.wallOffset, 0.2);
    EXPECT_EQ(Archicad::LoadEngineSettings(), Simulation::ProfileSettings(0));
    EXPECT_EQ(LastItem(Item::EngineSummary).text, "Estudo rápido (reflexões 2, raios 256)");
}

TEST_F(Calculation, KeepsTheEngineThatWasAcceptedWhereItIsCancelledItself) {
    Tests::PrepareAnswers(R"([
        {"dialogo": 32620, "botao": 2, "itens": [{"item": 14, "clicar": true}]},
        {"dialogo": 32650, "botao": "OK", "itens": [{"item": 4, "entrada": 1}]}])");
    EXPECT_FALSE(Show());
    EXPECT_EQ(Archicad::LoadEngineSettings(), Simulation::ProfileSettings(0));
}

TEST_F(Calculation, ChangesNothingWhereTheEngineIsCancelled) {
    Tests::PrepareAnswers(R"([
        {"dialogo": 32620, "botao": 1, "itens": [{"item": 14, "clicar": true}]},
        {"dialogo": 32650, "botao": "Cancelar", "itens": [{"item": 4, "entrada": 1}]}])");
    EXPECT_TRUE(Show());
    EXPECT_EQ(Archicad::LoadEngineSettings(), Simulation::ProfileSettings(1));
    EXPECT_EQ(LastItem(Item::EngineSummary).text, "Projeto (reflexões 2, raios 1024)");
}

TEST_F(Calculation, OpensTheEngineInTheLogOfItsCommand) {
    Commands::BeginLog("calculo em planta");
    Tests::PrepareAnswers(R"([
        {"dialogo": 32620, "botao": 1, "itens": [{"item": 14, "clicar": true}]},
        {"dialogo": 32650, "botao": "OK"}])");
    Show();
    std::ifstream report(Folder() / "Vantoro" / Commands::ReportFile);
    std::string text((std::istreambuf_iterator<char>(report)), {});
    EXPECT_NE(text.find("=== calculo em planta"), std::string::npos) << text;
    EXPECT_NE(text.find("Motor: Projeto"), std::string::npos) << text;
}

TEST_F(Calculation, IsNotAcceptedWhereTheHostDoesNotShowIt) {
    Workbench::FailCall("RunDialog", 1, Host::OutOfMemory);
    EXPECT_FALSE(Show());
    EXPECT_EQ(Tests::ReportWindow(),
              Texts{"Vantoro: Dialogo do calculo failed: APIERR_MEMFULL (0x81060002)"});
}

TEST_F(Calculation, HasTheMarkInTheDarkInterface) {
    Open(true);
    Answer();
    EXPECT_EQ(LastItem(35).icon, 10203);
}

} // namespace
} // namespace Merivane
