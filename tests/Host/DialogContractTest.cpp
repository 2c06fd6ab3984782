#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ContractInterface.hpp"
#include "Host/Dialog.hpp"
#include "Host/FileChooser.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Host {
namespace {

using Told = std::vector<std::string>;

class DialogContract : public testing::Test {
protected:
    void SetUp() override { OpenContractInterface(); }
    void TearDown() override { CloseContractInterface(); }

    /// Events that write down what they are told of; the buttons 1 and 2 close the dialog.
    DialogEvents Recording() {
        const auto write = [this](const std::string& what) {
            return [this, what](DialogId, std::int16_t item) {
                told.push_back(what + ' ' + std::to_string(item));
            };
        };
        DialogEvents events;
        events.opened = [this](DialogId) { told.push_back("opened"); };
        events.changed = write("changed");
        events.listSelected = write("selected");
        events.listDoubleClicked = write("double");
        events.buttonClicked = [this](DialogId dialog, std::int16_t item) {
            told.push_back("clicked " + std::to_string(item));
            if (item <= 2) {
                CloseDialog(dialog, item == 1);
            }
        };
        return events;
    }

    /// Shows the dialog and looks at it before the user does anything.
    void WhileOpen(const std::function<void(DialogId)>& look) {
        DialogEvents events = Recording();
        events.opened = look;
        bool accepted = false;
        ASSERT_EQ(RunDialog(ContractDialog, events, accepted), NoError);
    }

    Told told;
};

TEST_F(DialogContract, RefusesAResourceThatIsNoModalDialog) {
    bool accepted = false;
    EXPECT_EQ(RunDialog(NoSuchResource, Recording(), accepted), BadId);
    EXPECT_EQ(RunDialog(ContractPalette, Recording(), accepted), BadId);
    EXPECT_EQ(RunDialog(ContractMenu, Recording(), accepted), BadId);
    EXPECT_TRUE(told.empty());
}

TEST_F(DialogContract, TellsWhetherItWasAccepted) {
    UserWillDo(R"([{"dialogo": 32110, "botao": 1}, {"dialogo": 32110, "botao": 2}])");
    bool accepted = false;
    EXPECT_EQ(RunDialog(ContractDialog, Recording(), accepted), NoError);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(RunDialog(ContractDialog, Recording(), accepted), NoError);
    EXPECT_FALSE(accepted);
    EXPECT_TRUE(UserHasDoneAll());
}

TEST_F(DialogContract, TellsWhatTheUserDoesInOrder) {
    UserWillDo(R"([{"dialogo": "Prova", "botao": "OK", "itens": [
        {"item": 4, "valor": 5}, {"item": 5, "valor": 0.25}, {"item": 6, "entrada": 2},
        {"item": 7, "linha": 2, "clicarDuasVezes": true}, {"item": 8, "marcado": true},
        {"item": 10, "clicar": true}, {"item": 11, "texto": "á"}, {"item": 13, "clicar": true}]}])");
    DialogEvents events = Recording();
    events.opened = [](DialogId dialog) {
        AppendEntry(dialog, 6, "um");
        AppendEntry(dialog, 6, "dois");
        SetListColumns(dialog, 7, {{"A", 0, 100}});
        AppendRow(dialog, 7);
        AppendRow(dialog, 7);
    };
    events.closeRequested = [this](DialogId dialog, bool accept) {
        told.push_back(accept ? "accept?" : "cancel?");
        EXPECT_EQ(ItemNumber(dialog, 4), 5.0);
        EXPECT_EQ(ItemNumber(dialog, 5), 0.25);
        EXPECT_EQ(SelectedEntry(dialog, 6), 2);
        EXPECT_EQ(SelectedRow(dialog, 7), 2);
        EXPECT_TRUE(IsItemChecked(dialog, 8));
        EXPECT_FALSE(IsItemChecked(dialog, 9));
        EXPECT_TRUE(IsItemChecked(dialog, 10));
        EXPECT_EQ(ItemText(dialog, 11), "á");
        return true;
    };
    bool accepted = false;
    ASSERT_EQ(RunDialog(ContractDialog, events, accepted), NoError);
    EXPECT_TRUE(UserHasDoneAll());
    EXPECT_EQ(told,
              (Told{"changed 4", "changed 5", "changed 6", "selected 7", "double 7", "changed 8",
                    "changed 10", "changed 11", "clicked 13", "clicked 1", "accept?"}));
}

TEST_F(DialogContract, TellsNothingOfWhatTheAddOnChangesItself) {
    WhileOpen([](DialogId dialog) {
        SetItemNumber(dialog, 4, 6.0);
        SetItemText(dialog, 11, "x");
        SetItemChecked(dialog, 8, true);
        SetItemChecked(dialog, 9, true);
        AppendEntry(dialog, 6, "um");
        SelectEntry(dialog, 6, 1);
        SetListColumns(dialog, 7, {{"A", 0, 100}});
        SelectRow(dialog, 7, AppendRow(dialog, 7));
    });
    EXPECT_EQ(told, Told{"clicked 1"});
}

TEST_F(DialogContract, AsksBeforeItClosesAndStaysOpenWhereTheAnswerIsNo) {
    UserWillDo(R"([{"dialogo": 32110, "fechar": true}, {"dialogo": 32110, "botao": 1}])");
    DialogEvents events = Recording();
    events.closeRequested = [this](DialogId, bool accept) {
        told.push_back(accept ? "accept?" : "cancel?");
        return accept;
    };
    bool accepted = false;
    EXPECT_EQ(RunDialog(ContractDialog, events, accepted), NoError);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(told, (Told{"opened", "cancel?", "clicked 1", "accept?"}));
}

TEST_F(DialogContract, ClosesBehindTheRunningEvent) {
    DialogEvents events = Recording();
    events.opened = [this](DialogId dialog) {
        CloseDialog(dialog, true);
        EXPECT_EQ(ItemText(dialog, 3), "texto"); // still there
        told.push_back("end of opened");
    };
    events.closeRequested = [this](DialogId, bool) {
        told.push_back("asked");
        return true;
    };
    bool accepted = false;
    EXPECT_EQ(RunDialog(ContractDialog, events, accepted), NoError);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(told, (Told{"end of opened", "asked"}));
}

TEST_F(DialogContract, RunsADialogInsideAnother) {
    UserWillDo(R"([{"dialogo": 32110, "botao": 1, "itens": [{"item": 13, "clicar": true}]},
                   {"dialogo": 32110, "botao": 2}])");
    DialogEvents events = Recording();
    DialogId outer = 0;
    events.buttonClicked = [this, &outer](DialogId dialog, std::int16_t item) {
        if (item == 13) {
            outer = dialog;
            DialogEvents inner = Recording();
            inner.opened = [&outer](DialogId nested) { EXPECT_NE(nested, outer); };
            bool accepted = true;
            EXPECT_EQ(RunDialog(ContractDialog, inner, accepted), NoError);
            EXPECT_FALSE(accepted);
            EXPECT_EQ(ItemText(dialog, 3), "texto");
        } else {
            CloseDialog(dialog, true);
        }
    };
    bool accepted = false;
    EXPECT_EQ(RunDialog(ContractDialog, events, accepted), NoError);
    EXPECT_TRUE(accepted);
    EXPECT_TRUE(UserHasDoneAll());
}

TEST_F(DialogContract, BeginsAsTheResourceSays) {
    WhileOpen([](DialogId dialog) {
        EXPECT_EQ(ItemCount(dialog), 15);
        std::int16_t width = 0;
        std::int16_t height = 0;
        GetClientSize(dialog, width, height);
        EXPECT_EQ(width, 300);
        EXPECT_EQ(height, 200);
        GetItemPosition(dialog, 3, width, height);
        EXPECT_EQ(width, 10);
        EXPECT_EQ(height, 20);
        EXPECT_EQ(ItemText(dialog, 1), "OK");
        EXPECT_EQ(ItemText(dialog, 12), "Grupo");
        EXPECT_EQ(ItemIcon(dialog, 13), 10006);
        EXPECT_EQ(EntryCount(dialog, 6), 0);
        EXPECT_EQ(RowCount(dialog, 7), 0);
        for (std::int16_t item = 1; item <= 14; ++item) {
            EXPECT_TRUE(IsItemVisible(dialog, item) && IsItemEnabled(dialog, item)) << item;
        }
    });
}

TEST_F(DialogContract, ChangesSizePlaceAndState) {
    WhileOpen([](DialogId dialog) {
        std::int16_t x = 0;
        std::int16_t y = 0;
        SetClientSize(dialog, 320, 284);
        GetClientSize(dialog, x, y);
        EXPECT_EQ(x, 320);
        EXPECT_EQ(y, 284);
        MoveItem(dialog, 12, 7, 250);
        GetItemPosition(dialog, 12, x, y);
        EXPECT_EQ(x, 7);
        EXPECT_EQ(y, 250);
        ShowItem(dialog, 8, false);
        EXPECT_FALSE(IsItemVisible(dialog, 8));
        ShowItem(dialog, 8, true);
        EXPECT_TRUE(IsItemVisible(dialog, 8));
        EnableItem(dialog, 8, false);
        EXPECT_FALSE(IsItemEnabled(dialog, 8));
        SetItemIcon(dialog, 13, 10106);
        EXPECT_EQ(ItemIcon(dialog, 13), 10106);
        EXPECT_EQ(AppendIcon(dialog, 10203), 16);
        EXPECT_EQ(ItemIcon(dialog, 16), 10203);
        EXPECT_EQ(ItemCount(dialog), 16);
    });
}

TEST_F(DialogContract, HoldsNumbersInsideTheirLimits) {
    WhileOpen([](DialogId dialog) {
        struct Case {
            std::int16_t item;
            double value;
            double expected;
        };
        const Case cases[] = {{4, 1.0, 2.0},  {4, 2.0, 2.0},   {4, 8.0, 8.0}, {4, 9.0, 8.0},
                              {5, -0.1, 0.0}, {5, 0.25, 0.25}, {5, 0.51, 0.5}};
        for (const Case& c : cases) {
            SetItemNumber(dialog, c.item, c.value);
            EXPECT_EQ(ItemNumber(dialog, c.item), c.expected) << c.item << ' ' << c.value;
        }
        SetItemLimits(dialog, 4, 64.0, 2048.0);
        EXPECT_EQ(ItemNumber(dialog, 4), 64.0);
        SetItemNumber(dialog, 4, 2048.0);
        EXPECT_EQ(ItemNumber(dialog, 4), 2048.0);
    });
}

TEST_F(DialogContract, CountsEntriesAndRowsFromOne) {
    WhileOpen([](DialogId dialog) {
        for (const char* const entry : {"um", "dois", "três"}) {
            AppendEntry(dialog, 6, entry);
        }
        EXPECT_EQ(EntryCount(dialog, 6), 3);
        SetEntryText(dialog, 6, 2, "II");
        EXPECT_EQ(EntryText(dialog, 6, 2), "II");
        EXPECT_EQ(EntryText(dialog, 6, 0), "");
        EXPECT_EQ(EntryText(dialog, 6, 4), "");
        SelectEntry(dialog, 6, 3);
        SelectEntry(dialog, 6, 4); // there is none
        EXPECT_EQ(SelectedEntry(dialog, 6), 3);
        ClearEntries(dialog, 6);
        EXPECT_EQ(SelectedEntry(dialog, 6), 0);

        SetListColumns(dialog, 7, {{"A", 0, 80}, {"B", 80, 150}});
        EXPECT_EQ(AppendRow(dialog, 7), 1);
        EXPECT_EQ(AppendRow(dialog, 7), 2);
        SetCell(dialog, 7, 2, 2, "x");
        EXPECT_EQ(CellText(dialog, 7, 2, 2), "x");
        EXPECT_EQ(CellText(dialog, 7, 1, 2), "");
        EXPECT_EQ(CellText(dialog, 7, 3, 1), "");
        EXPECT_EQ(CellText(dialog, 7, 2, 3), "");
        EXPECT_EQ(SelectedRow(dialog, 7), 0);
        SelectRow(dialog, 7, 2);
        EXPECT_EQ(SelectedRow(dialog, 7), 2);
        SelectRow(dialog, 7, 0);
        EXPECT_EQ(SelectedRow(dialog, 7), 0);
        SetListColumns(dialog, 7, {{"A", 0, 80}});
        EXPECT_EQ(RowCount(dialog, 7), 0);
    });
}

TEST_F(DialogContract, KeepsOneRadioButtonOfAGroup) {
    WhileOpen([](DialogId dialog) {
        SetItemChecked(dialog, 9, true);
        SetItemChecked(dialog, 10, true);
        EXPECT_FALSE(IsItemChecked(dialog, 9));
        EXPECT_TRUE(IsItemChecked(dialog, 10));
    });
}

TEST_F(DialogContract, GivesAnEmptyAnswerForWhatIsNotThere) {
    WhileOpen([](DialogId dialog) {
        for (const std::int16_t item : {std::int16_t{0}, std::int16_t{16}, std::int16_t{-1}}) {
            ShowItem(dialog, item, false);
            SetItemText(dialog, item, "x");
            EXPECT_EQ(ItemText(dialog, item), "");
            EXPECT_EQ(ItemNumber(dialog, item), 0.0);
            EXPECT_FALSE(IsItemVisible(dialog, item));
            EXPECT_FALSE(IsItemEnabled(dialog, item));
            EXPECT_FALSE(IsItemChecked(dialog, item));
            EXPECT_EQ(EntryCount(dialog, item), 0);
            EXPECT_EQ(AppendRow(dialog, item), 0);
            EXPECT_EQ(ItemIcon(dialog, item), 0);
        }
        // Kinds that do not know the operation.
        SetItemNumber(dialog, 1, 5.0);
        EXPECT_EQ(ItemNumber(dialog, 1), 0.0);
        AppendEntry(dialog, 7, "x");
        EXPECT_EQ(EntryCount(dialog, 7), 0);
        EXPECT_EQ(AppendRow(dialog, 6), 0);
        SetItemChecked(dialog, 1, true);
        EXPECT_FALSE(IsItemChecked(dialog, 1));
    });
    EXPECT_EQ(ItemCount(4711), 0); // no dialog either
    EXPECT_EQ(ItemText(4711, 1), "");
    CloseDialog(4711, true);
}

TEST_F(DialogContract, TellsWhatTheMouseDoesOnAUserItem) {
    using enum MouseAction;
    UserWillDo(R"([{"dialogo": 32110, "botao": 2, "itens": [
        {"item": 15, "roda": {"em": [10, 20], "passos": -2}},
        {"item": 15, "arrastar": {"de": [1, 2], "ate": [50, -3]}},
        {"item": 15, "clicarDuasVezes": true}]}])");
    DialogEvents events = Recording();
    std::vector<MouseEvent> mouse;
    events.mouseUsed = [&](DialogId, std::int16_t item, const MouseEvent& event) {
        EXPECT_EQ(item, 15);
        mouse.push_back(event);
    };
    bool accepted = true;
    ASSERT_EQ(RunDialog(ContractDialog, events, accepted), NoError);
    EXPECT_TRUE(UserHasDoneAll());
    const ItemPoint start = {1.0, 2.0};
    const ItemPoint end = {50.0, -3.0};
    const ItemPoint middle = {20.0, 15.0};
    EXPECT_EQ(mouse, (std::vector<MouseEvent>{{Wheel, {10.0, 20.0}, -1},
                                              {Wheel, {10.0, 20.0}, -1},
                                              {Moved, start},
                                              {Pressed, start},
                                              {Moved, end},
                                              {Released, end},
                                              {Pressed, middle},
                                              {Released, middle},
                                              {DoubleClicked, middle},
                                              {Released, middle}}));
    EXPECT_EQ(told, (Told{"opened", "clicked 2"}));
}

TEST_F(DialogContract, TakesPicturesForUserItemsAlone) {
    WhileOpen([](DialogId dialog) {
        UserPicture picture;
        picture.shapes = {PictureLine{{{0.0, 0.0}, {40.0, 30.0}}, {}, 1.0},
                          PictureText{"á", {1.0, 9.0}, {}}};
        for (const std::int16_t item : {std::int16_t{15}, std::int16_t{3}, std::int16_t{16}}) {
            SetItemPicture(dialog, item, picture);
        }
        EXPECT_EQ(ItemText(dialog, 3), "texto");
    });
}

TEST_F(DialogContract, TellsTheSizeOfAnItem) {
    WhileOpen([](DialogId dialog) {
        std::int16_t width = -1;
        std::int16_t height = -1;
        GetItemSize(dialog, 15, width, height);
        EXPECT_EQ(width, 40);
        EXPECT_EQ(height, 30);
        GetItemSize(dialog, 16, width, height);
        EXPECT_EQ(width, 0);
        EXPECT_EQ(height, 0);
    });
}

TEST_F(DialogContract, GivesTheFileThatTheUserChooses) {
    const FileFilter texts = {"Textos (*.txt)", "TXT"};
    UserWillDo(R"([{"arquivo": "Escolha", "caminho": ")" + Text::Narrow(FileOfTheUser()) +
               R"("}, {"arquivo": "Escolha", "cancelar": true}])");
    std::wstring path = L"antes";
    EXPECT_EQ(ChooseFile("Escolha", texts, path), NoError);
    EXPECT_EQ(path, FileOfTheUser());
    path = L"antes";
    EXPECT_EQ(ChooseFile("Escolha", texts, path), Cancelled);
    EXPECT_EQ(path, L"antes");
    EXPECT_TRUE(UserHasDoneAll());
}

TEST_F(DialogContract, AnswersAnAlertByTheNumberOfItsButton) {
    UserWillDo(R"([{"alerta": "Apagar?", "botao": 3}])");
    EXPECT_EQ(ShowAlert(AlertKind::Warning, "Apagar?", "", {"Sim", "Não", "Cancelar"}), 3);
    EXPECT_EQ(ShowAlert(AlertKind::Information, "Pronto", "x", {"OK"}), 1);
}

TEST_F(DialogContract, MakesPalettesHiddenAndReachesTheirItems) {
    DialogId palette = 0;
    EXPECT_EQ(CreatePalette(NoSuchResource, {}, palette), BadId);
    EXPECT_EQ(CreatePalette(ContractDialog, {}, palette), BadId);
    EXPECT_EQ(palette, 0);
    ASSERT_EQ(CreatePalette(ContractPalette, Recording(), palette), NoError);
    EXPECT_EQ(told, Told{"opened"});
    EXPECT_FALSE(IsPaletteVisible(palette));
    EXPECT_FALSE(ClickByUser(palette, 1));
    ShowPalette(palette);
    EXPECT_TRUE(IsPaletteVisible(palette));
    EXPECT_TRUE(ClickByUser(palette, 1));
    EXPECT_EQ(told, (Told{"opened", "clicked 1"}));
    SetDialogTitle(palette, "Outra");
    SetItemText(palette, 1, "Fora");
    EXPECT_EQ(ItemText(palette, 1), "Fora");
    HidePalette(palette);
    EXPECT_FALSE(IsPaletteVisible(palette));
    EXPECT_EQ(ItemText(palette, 1), "Fora"); // hidden, not gone
    DestroyPalette(palette);
    EXPECT_EQ(ItemCount(palette), 0);
    EXPECT_FALSE(IsPaletteVisible(palette));
}

} // namespace
} // namespace Merivane::Host
