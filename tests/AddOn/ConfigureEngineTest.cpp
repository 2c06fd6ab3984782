#include <cstdint>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/Commands/ConfigureEngine.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "Archicad/StoredSettings.hpp"

namespace Merivane::Commands {
namespace {

namespace Item = ResourceIds::Engine;

using Simulation::EngineSettings;
using Tests::LastItem;
using Numbers = std::vector<double>;

const EngineSettings Quick = Simulation::ProfileSettings(0);
const EngineSettings Project = Simulation::ProfileSettings(1);
const EngineSettings Final = Simulation::ProfileSettings(2);
const EngineSettings Custom = {3, 1, 100, 64, 1024, 0.4, 0.004, 7};

class EngineDialog : public Tests::AddOnSession {
protected:
    /// Runs the command with these answers and ends it with Cancel, so that the dialog stays as it
    /// was left.
    static void Look(std::string_view items = "") { Answer(items, Item::Cancel); }

    static void Accept(std::string_view items = "") { Answer(items, Item::Accept); }

    static void Answer(std::string_view items, std::int16_t button) {
        Tests::PrepareAnswer(Item::Dialog, items, button);
        ConfigureEngine();
        Tests::ExpectAnswered();
    }

    static std::string Profile() {
        const Workbench::DialogItem& item = LastItem(Item::Profile);
        return item.selected == 0 ? "" : item.entries[static_cast<std::size_t>(item.selected - 1)];
    }

    static Numbers Values() {
        Numbers values;
        for (const std::int16_t item :
             {Item::Bounces, Item::Divisions, Item::Supersamples, Item::Resolution, Item::Accuracy,
              Item::LimitWeight, Item::MaxProcesses}) {
            values.push_back(LastItem(item).value);
        }
        return values;
    }

    static bool ShowsAdvanced() { return LastItem(Item::ShowAdvanced).checked; }

    static bool CanGoBack() { return LastItem(Item::BackToProfile).enabled; }
};

TEST_F(EngineDialog, ShowsTheStoredSettings) {
    Look();
    EXPECT_EQ(Tests::LastDialog().title, "Vantoro: configurações do motor de simulação (Radiance)");
    EXPECT_EQ(Profile(), "Projeto");
    EXPECT_EQ(LastItem(Item::Profile).entries,
              (std::vector<std::string>{"Estudo rápido", "Projeto", "Apresentação / final",
                                        "Personalizado"}));
    EXPECT_EQ(LastItem(Item::Description).text,
              "O uso normal (padrão). Duas reflexões da luz, precisão adequada para dimensionar a "
              "iluminação.");
    EXPECT_EQ(Values(), (Numbers{2, 1024, 512, 256, 0.15, 0.002, 0}));
    EXPECT_EQ(LastItem(Item::TimeLine).text, "Tempo: ~1.0x o perfil Projeto.");
    EXPECT_EQ(LastItem(Item::Warnings).text, "");
    EXPECT_FALSE(ShowsAdvanced());
    EXPECT_FALSE(CanGoBack());
}

TEST_F(EngineDialog, OpensTheAdvancedBlockForCustomNumbersAlone) {
    for (const EngineSettings& stored : {Quick, Project, Final, Custom}) {
        Archicad::SaveEngineSettings(stored);
        Look();
        EXPECT_EQ(Profile(), Simulation::ProfileName(stored.profile));
        EXPECT_EQ(ShowsAdvanced(), stored.profile == 3);
        EXPECT_EQ(CanGoBack(), stored.profile == 3);
    }
}

TEST_F(EngineDialog, FoldsTheAdvancedBlockInAndOut) {
    struct Case {
        std::string_view items;
        bool advanced;
        int warningsTop;
        int buttonsTop;
        int height;
    };
    const Case cases[] = {
        {"", false, 196, 250, 284},
        {R"({"item": 7, "marcado": true})", true, 456, 510, 544},
        {R"({"item": 7, "clicar": true}, {"item": 7, "clicar": true})", false, 196, 250, 284},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.items);
        Look(c.items);
        for (std::int16_t item = 1; item <= 32; ++item) {
            const bool advanced = item == 2 || (item >= 8 && item <= 28);
            EXPECT_EQ(LastItem(item).visible, c.advanced || !advanced) << item;
        }
        EXPECT_EQ(LastItem(29).place.top, c.warningsTop);
        for (const std::int16_t button : {Item::BackToProfile, Item::Accept, Item::Cancel}) {
            EXPECT_EQ(LastItem(button).place.top, c.buttonsTop);
        }
        EXPECT_EQ(Tests::LastDialog().height, c.height);
    }
}

TEST_F(EngineDialog, MovesNothingSidewaysAndKeepsItsWidth) {
    Look(R"({"item": 7, "marcado": true})");
    Look();
    const auto& shown = Workbench::CurrentSession().userInterface.shownDialogs;
    ASSERT_EQ(shown.size(), 2U);
    const Workbench::Dialog& open = shown[0].state;
    const Workbench::Dialog& folded = shown[1].state;
    EXPECT_EQ(folded.width, open.width);
    for (std::size_t i = 0; i < open.items.size(); ++i) {
        EXPECT_EQ(folded.items[i].place.left, open.items[i].place.left) << i + 1;
    }
}

TEST_F(EngineDialog, TakesTheNumbersOfAProfileButTheProcesses) {
    EngineSettings stored = Project;
    stored.maxProcesses = 4;
    Archicad::SaveEngineSettings(stored);
    Look(R"({"item": 4, "entrada": "Apresentação / final"})");
    EXPECT_EQ(Profile(), "Apresentação / final");
    EXPECT_EQ(Values(), (Numbers{3, 1024, 512, 256, 0.12, 0.001, 4}));
    EXPECT_EQ(LastItem(Item::Description).text, Simulation::ProfileDescription(2));
    EXPECT_EQ(LastItem(Item::TimeLine).text, "Tempo: ~2.8x o perfil Projeto.");
    EXPECT_FALSE(ShowsAdvanced());
    EXPECT_FALSE(CanGoBack());
}

TEST_F(EngineDialog, ChangesNothingWherePersonalizadoIsChosen) {
    Look(R"({"item": 4, "entrada": 4})");
    EXPECT_EQ(Profile(), "Projeto");
    EXPECT_EQ(Values(), (Numbers{2, 1024, 512, 256, 0.15, 0.002, 0}));
    EXPECT_TRUE(ShowsAdvanced());
    EXPECT_TRUE(LastItem(Item::Bounces).visible);
    EXPECT_EQ(Tests::LastDialog().height, 544);
    EXPECT_FALSE(CanGoBack());
}

/// The items, behind the step that shows the advanced block.
std::string Advanced(std::string_view items) {
    std::string all = R"({"item": 7, "marcado": true}, )";
    all += items;
    return all;
}

TEST_F(EngineDialog, TellsTheProfileThatTheNumbersAre) {
    struct Case {
        std::string items;
        std::string profile;
    };
    const Case cases[] = {
        {R"({"item": 9, "valor": 3})", "Personalizado"},
        {R"({"item": 27, "valor": 4})", "Projeto"}, // processes do not change the light
        {R"({"item": 9, "valor": 3}, {"item": 9, "valor": 2})", "Projeto"},
        {R"({"item": 9, "valor": 3}, {"item": 21, "valor": 0.12}, {"item": 24, "valor": 0.001})",
         "Apresentação / final"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.items);
        Look(Advanced(c.items));
        EXPECT_EQ(Profile(), c.profile);
        EXPECT_EQ(CanGoBack(), c.profile == "Personalizado");
    }
}

TEST_F(EngineDialog, ReadsEveryFieldIntoItsParameter) {
    Accept(Advanced(
        R"({"item": 9, "valor": 4}, {"item": 12, "valor": 2000}, {"item": 15, "valor": 700},
              {"item": 18, "valor": 300}, {"item": 21, "valor": 0.2}, {"item": 24, "valor": 0.01},
              {"item": 27, "valor": 6})"));
    EXPECT_EQ(Archicad::LoadEngineSettings(), (EngineSettings{3, 4, 2000, 700, 300, 0.2, 0.01, 6}));
}

TEST_F(EngineDialog, CutsTheResolutionThatItsFieldTakes) {
    struct Case {
        int typed;
        double shown;
    };
    for (const Case& c : {Case{1023, 1023}, Case{1024, 1024}, Case{1025, 1024}, Case{2048, 1024}}) {
        Look(Advanced(R"({"item": 18, "valor": )" + std::to_string(c.typed) + "}"));
        EXPECT_EQ(LastItem(Item::Resolution).value, c.shown) << c.typed;
    }
}

TEST_F(EngineDialog, TellsTimeAndWarningsWhileANumberIsEdited) {
    Look(Advanced(R"({"item": 9, "valor": 0}, {"item": 12, "valor": 64})"));
    EXPECT_EQ(LastItem(Item::TimeLine).text, "Tempo: ~0.0x o perfil Projeto.");
    EXPECT_EQ(
        LastItem(Item::Warnings).text,
        "⚠ Sem reflexões: só a luz direta das luminárias. Paredes e teto não devolvem luz e o "
        "ambiente fica bem mais escuro que na realidade.\n"
        "⚠ Poucos raios por ponto: a luz refletida fica manchada (ruído).");
    EXPECT_EQ(LastItem(Item::Description).text, "Parâmetros escolhidos à mão (avançado).");
}

TEST_F(EngineDialog, TellsWhatTheLastCalculationTook) {
    Archicad::SaveLastRun({true, 1200, 30.0, 1.0, 1});
    Look(R"({"item": 4, "entrada": 3})");
    EXPECT_EQ(LastItem(Item::TimeLine).text,
              "Tempo: ~2.8x o perfil Projeto. O último cálculo (1200 pontos) levou 30 s; com esta "
              "configuração levaria ~84 s.");
}

TEST_F(EngineDialog, GoesBackToTheProfileThatWasThereLast) {
    struct Case {
        EngineSettings stored;
        std::string items;
        std::string profile;
    };
    const std::string edit = R"({"item": 9, "valor": 8}, {"item": 30, "clicar": true})";
    const Case cases[] = {
        {Quick, Advanced(edit), "Estudo rápido"},
        {Project, Advanced(edit), "Projeto"},
        {Custom, R"({"item": 30, "clicar": true})", "Projeto"},
        {Quick, Advanced(R"({"item": 4, "entrada": 3}, )" + edit), "Apresentação / final"},
        // Numbers that happen to be a profile's are no choice of it.
        {Quick,
         Advanced(R"({"item": 12, "valor": 1024}, {"item": 15, "valor": 512},
                {"item": 18, "valor": 256}, {"item": 21, "valor": 0.15},
                {"item": 24, "valor": 0.002}, )" +
                  edit),
         "Estudo rápido"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.items);
        Archicad::SaveEngineSettings(c.stored);
        Look(c.items);
        EXPECT_EQ(Profile(), c.profile);
        EXPECT_FALSE(CanGoBack());
        EXPECT_EQ(LastItem(Item::MaxProcesses).value, c.stored.maxProcesses);
    }
}

TEST_F(EngineDialog, KeepsTheBlockOpenWhenItGoesBack) {
    Archicad::SaveEngineSettings(Custom);
    Look(R"({"item": 30, "clicar": true})");
    EXPECT_TRUE(ShowsAdvanced());
    EXPECT_EQ(Tests::LastDialog().height, 544);
}

TEST_F(EngineDialog, SavesWhatWasAccepted) {
    Accept(R"({"item": 4, "entrada": "Estudo rápido"})");
    EXPECT_TRUE(Tests::LastAccepted());
    EXPECT_EQ(Archicad::LoadEngineSettings(), Quick);
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{"Vantoro: Motor: Estudo rápido (reflexões 2, raios 256)"});
}

TEST_F(EngineDialog, SavesNothingWhereItIsCancelledOrClosed) {
    Answer(R"({"item": 4, "entrada": 1})", Item::Cancel);
    EXPECT_FALSE(Tests::LastAccepted());
    Tests::PrepareAnswers(R"([{"dialogo": 32650, "itens": [{"item": 4, "entrada": 1}],
                               "fechar": true}])");
    ConfigureEngine();
    EXPECT_EQ(Archicad::LoadEngineSettings(), Project);
    EXPECT_TRUE(Tests::ReportWindow().empty());
}

TEST_F(EngineDialog, ShowsAStoredNumberOutOfItsRangeAtTheNearestOne) {
    EngineSettings stored = Project;
    stored.divisions = 10;
    Archicad::SaveEngineSettings(stored);
    Look();
    EXPECT_EQ(LastItem(Item::Divisions).value, 64);
    EXPECT_EQ(Profile(), "Personalizado");
}

TEST_F(EngineDialog, TellsTheUserWhereTheSettingsCanNotBeSaved) {
    Tests::PrepareAnswer(Item::Dialog, "", Item::Accept);
    Workbench::FailCall("SetPreferences", 1, Host::GeneralError);
    ConfigureEngine();
    EXPECT_EQ(Tests::ReportWindow(),
              (std::vector<std::string>{
                  "Vantoro: Guardar as configuracoes do motor failed: APIERR_GENERAL (0x81060001)",
                  "!Vantoro: As configuracoes do motor nao puderam ser guardadas."}));
}

TEST_F(EngineDialog, IsReportedWhereTheHostDoesNotShowIt) {
    Workbench::FailCall("RunDialog", 1, Host::BadId);
    ConfigureEngine();
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{
                  "Vantoro: Configuracoes do motor failed: APIERR_BADID (0x81060065)"});
}

TEST_F(EngineDialog, HasTheMarkInTheDarkInterface) {
    Open(true);
    Look();
    EXPECT_EQ(Tests::LastDialog().items.size(), 33U);
    EXPECT_EQ(LastItem(33).icon, 10203);
}

} // namespace
} // namespace Merivane::Commands
