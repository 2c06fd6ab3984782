#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Dialog.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/Session.hpp"

// How prepared answers drive dialogs; what every host must keep to stands in tests/Host.
namespace Merivane::Workbench {
namespace {

using Host::DialogId;

const char* const Resources = R"(
'GDLG' 100 Modal 0 0 300 200 "Prova" {
    Button 0 0 9 9 LargePlain "OK"
    Button 0 0 9 9 LargePlain "Cancelar"
    IntEdit 0 0 9 9 LargePlain frame "0" "8"
    CheckBox 0 0 9 9 LargePlain "Caixa"
    Button 0 0 9 9 LargePlain "Mais..."
}
'GDLG' 101 Modal 0 0 300 200 "Outra" {
    Button 0 0 9 9 LargePlain "Fechar"
}
'GDLG' 102 Palette 0 0 300 200 "Paleta" { Button 0 0 9 9 LargePlain "Sair" })";

class DialogRun : public testing::Test {
protected:
    void SetUp() override {
        SessionOptions options;
        options.resourceScripts = {Resources};
        OpenSession(options);
    }

    void TearDown() override { OpenSession({}); }

    static UserInterface& Interface() { return CurrentSession().userInterface; }

    static void Answer(const std::string& json) {
        std::string error;
        ASSERT_TRUE(ParseAnswerScript(json, Interface().answers, error)) << error;
    }

    static std::string Error() {
        std::string error;
        AllAnswersUsed(error);
        return error;
    }

    /// A dialog whose buttons close it as their texts say; "Mais..." opens the other one.
    bool Run() {
        Host::DialogEvents events;
        events.opened = [this](DialogId) { told.push_back("opened"); };
        events.changed = [this](DialogId, std::int16_t item) {
            told.push_back("changed " + std::to_string(item));
        };
        events.buttonClicked = [this](DialogId dialog, std::int16_t item) {
            told.push_back("clicked " + std::to_string(item));
            if (item == 5) {
                RunOther();
            } else {
                Host::CloseDialog(dialog, item == 1);
            }
        };
        events.closeRequested = [this](DialogId, bool accept) {
            told.push_back(accept ? "accept?" : "cancel?");
            return closes;
        };
        bool accepted = true;
        EXPECT_EQ(Host::RunDialog(100, events, accepted), Host::NoError);
        return accepted;
    }

    void RunOther() {
        Host::DialogEvents events;
        events.buttonClicked = [](DialogId dialog, std::int16_t) {
            Host::CloseDialog(dialog, true);
        };
        bool accepted = false;
        EXPECT_EQ(Host::RunDialog(101, events, accepted), Host::NoError);
        told.push_back(accepted ? "other accepted" : "other cancelled");
    }

    std::vector<std::string> told;
    bool closes = true;
};

using Told = std::vector<std::string>;

TEST_F(DialogRun, AcceptsAsItStandsWithoutAnswers) {
    EXPECT_TRUE(Run());
    EXPECT_EQ(told, (Told{"opened", "clicked 1", "accept?"}));
    ASSERT_EQ(Interface().shownDialogs.size(), 1U);
    EXPECT_TRUE(Interface().shownDialogs[0].accepted);
    EXPECT_EQ(Error(), "");
}

TEST_F(DialogRun, CancelsByTheFrameWhereTheSessionSaysSo) {
    Interface().unanswered = Unanswered::Cancel;
    EXPECT_FALSE(Run());
    EXPECT_EQ(told, (Told{"opened", "cancel?"}));
    EXPECT_EQ(Error(), "");
}

TEST_F(DialogRun, CarriesAnAnswerOutInItsOrder) {
    Answer(R"([{"dialogo": "Prova", "botao": "OK",
                "itens": [{"item": 3, "valor": 5}, {"item": 4, "clicar": true}]}])");
    EXPECT_TRUE(Run());
    EXPECT_EQ(told, (Told{"opened", "changed 3", "changed 4", "clicked 1", "accept?"}));
    const Dialog& last = Interface().shownDialogs[0].state;
    EXPECT_EQ(last.items[2].value, 5.0);
    EXPECT_TRUE(last.items[3].checked);
    EXPECT_EQ(Error(), "");
}

TEST_F(DialogRun, ClosesByTheFrameOrAnyButton) {
    Answer(R"([{"dialogo": 100, "fechar": true}, {"dialogo": 100, "botao": 2}])");
    EXPECT_FALSE(Run());
    EXPECT_EQ(told, (Told{"opened", "cancel?"}));
    told.clear();
    EXPECT_FALSE(Run());
    EXPECT_EQ(told, (Told{"opened", "clicked 2", "cancel?"}));
    EXPECT_EQ(Error(), "");
}

TEST_F(DialogRun, AnswersADialogThatOpensInsideAnother) {
    Answer(R"([{"dialogo": 100, "itens": [{"item": 5, "clicar": true}, {"item": 3, "valor": 1}]},
               {"dialogo": "Outra"}])");
    EXPECT_TRUE(Run());
    EXPECT_EQ(told,
              (Told{"opened", "clicked 5", "other accepted", "changed 3", "clicked 1", "accept?"}));
    EXPECT_EQ(Interface().shownDialogs.size(), 2U);
    EXPECT_EQ(Error(), "");
}

TEST_F(DialogRun, CancelsWhatCannotBeAnsweredAndAllThatFollows) {
    struct Case {
        std::string answers;
        std::string error;
    };
    const Case cases[] = {
        {R"([{"dialogo": 100, "itens": [{"item": 3, "valor": 9}]}])",
         "diálogo \"Prova\" (100), item 3: o valor 9 está fora dos limites (de 0 a 8)"},
        {R"([{"dialogo": 100, "itens": [{"item": 4, "entrada": 1}]}])",
         "diálogo \"Prova\" (100), item 4 (\"Caixa\"): não é uma lista de opções"},
        {R"([{"dialogo": 100, "botao": "Sim"}])",
         "diálogo \"Prova\" (100): não há o botão \"Sim\""},
        {R"([{"dialogo": "Outra"}])",
         "a resposta 1 é para o diálogo \"Outra\", mas está aberto o diálogo \"Prova\" (100)"},
        {R"([{"alerta": "x"}])",
         "a resposta 1 é para o alerta \"x\", mas está aberto o diálogo \"Prova\" (100)"},
        {R"([{"dialogo": 100, "botao": 5}, {"dialogo": 101}])",
         "diálogo \"Prova\" (100): continua aberto depois de respondido"},
        {R"([{"dialogo": 100, "itens": [{"item": 1, "clicar": true}, {"item": 3, "valor": 1}]}])",
         "o diálogo fechou antes da resposta ao item 3"},
        {R"([{"dialogo": 100, "itens": [{"item": 1, "clicar": true}], "botao": 1}])",
         "diálogo \"Prova\" (100): fechou antes de se apertar o botão"},
        {R"([{"dialogo": 100, "botao": 5}, {"dialogo": 101, "botao": "Sim"}])",
         "diálogo \"Outra\" (101): não há o botão \"Sim\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.answers);
        SetUp();
        Answer(c.answers);
        Run();
        EXPECT_EQ(Error(), c.error);
        told.clear();
        EXPECT_FALSE(Run());
        EXPECT_EQ(told, Told{"opened"});
        EXPECT_EQ(Host::ShowAlert(Host::AlertKind::Warning, "a", "", {"Sim", "Não"}), 2);
        EXPECT_EQ(Error(), c.error);
    }
}

TEST_F(DialogRun, EndsADialogThatRefusesToClose) {
    closes = false;
    EXPECT_FALSE(Run());
    EXPECT_EQ(Error(), "diálogo \"Prova\" (100): continua aberto depois de respondido");
    EXPECT_TRUE(Interface().open.empty());
}

TEST_F(DialogRun, TriesAgainWithTheNextAnswerToADialogThatStaysOpen) {
    closes = false;
    Answer(R"([{"dialogo": 100}, {"dialogo": 100, "itens": [{"item": 3, "valor": 2}]}])");
    Run();
    EXPECT_EQ(told, (Told{"opened", "clicked 1", "accept?", "changed 3", "clicked 1", "accept?"}));
}

TEST_F(DialogRun, AnswersAlerts) {
    Answer(R"([{"alerta": "Zona", "botao": "Não"}, {"alerta": "Zona", "botao": 3},
               {"alerta": "Zona"}, {"alerta": "Zona", "botao": 4}])");
    const std::vector<std::string> buttons = {"Sim", "Não", "Ajuda"};
    const auto show = [&](const char* large, const char* small) {
        return Host::ShowAlert(Host::AlertKind::Information, large, small, buttons);
    };
    EXPECT_EQ(show("outra coisa", ""), 1); // the answer waits for its alert
    EXPECT_EQ(show("Nenhuma Zona", ""), 2);
    EXPECT_EQ(show("", "Zona sem nome"), 3);
    EXPECT_EQ(show("Zona", ""), 1);
    EXPECT_EQ(Error(), "a resposta 4, para o alerta \"Zona\", não foi pedida");
    EXPECT_EQ(show("Zona", ""), 3);
    EXPECT_EQ(Error(), "alerta \"Zona\": não há o botão 4");
    EXPECT_EQ(Interface().shownAlerts.size(), 5U);
    EXPECT_EQ(Interface().shownAlerts[1].pressed, 2);
}

TEST_F(DialogRun, ClicksOnAPaletteThatIsShown) {
    Host::DialogEvents events;
    events.buttonClicked = [this](DialogId palette, std::int16_t item) {
        told.push_back("clicked " + std::to_string(item));
        Host::DestroyPalette(palette); // in its own event
    };
    DialogId palette = 0;
    ASSERT_EQ(Host::CreatePalette(102, events, palette), Host::NoError);
    std::string error;
    EXPECT_FALSE(ClickItem(palette, 1, error));
    EXPECT_EQ(error, "diálogo \"Paleta\" (102), item 1 (\"Sair\"): está oculto");
    Host::ShowPalette(palette);
    EXPECT_TRUE(ClickItem(palette, 1, error));
    EXPECT_EQ(told, Told{"clicked 1"});
    EXPECT_FALSE(ClickItem(palette, 1, error));
    EXPECT_EQ(error, "não há um diálogo aberto com este número");
}

TEST_F(DialogRun, FailsOnDemand) {
    bool accepted = false;
    FailCall("RunDialog", 1, Host::GeneralError);
    EXPECT_EQ(Host::RunDialog(100, {}, accepted), Host::GeneralError);
    FailCall("SetItemNumber", 2, Host::GeneralError);
    FailCall("ItemNumber", 1, Host::GeneralError);
    Host::DialogEvents events;
    events.opened = [](DialogId dialog) {
        Host::SetItemNumber(dialog, 3, 4.0);
        Host::SetItemNumber(dialog, 3, 5.0); // nothing
        EXPECT_EQ(Host::ItemNumber(dialog, 3), 0.0);
        EXPECT_EQ(Host::ItemNumber(dialog, 3), 4.0);
        Host::CloseDialog(dialog, false);
    };
    EXPECT_EQ(Host::RunDialog(100, events, accepted), Host::NoError);
    FailCall("CreatePalette", 1, Host::OutOfMemory);
    DialogId palette = 7;
    EXPECT_EQ(Host::CreatePalette(102, {}, palette), Host::OutOfMemory);
    EXPECT_EQ(palette, 7);
}

TEST_F(DialogRun, TellsOfAResourceScriptThatCannotBeRead) {
    SessionOptions options;
    options.resourceScripts = {"'STR#' 1", "'STR#' 2 \"n\" { \"a\" }"};
    OpenSession(options);
    ASSERT_EQ(CurrentSession().reportLines.size(), 1U);
    EXPECT_EQ(CurrentSession().reportLines[0].text,
              "Recursos: linha 1: esperava um texto entre aspas, encontrei o fim do arquivo");
    EXPECT_EQ(Interface().resources.stringLists.size(), 1U);
}

} // namespace
} // namespace Merivane::Workbench
