#include <string>

#include <gtest/gtest.h>

#include "Workbench/Interface/DialogText.hpp"

namespace Merivane::Workbench {
namespace {

DialogItem Item(ItemKind kind, const std::string& text = {}) {
    DialogItem item;
    item.resource.kind = kind;
    item.text = text;
    return item;
}

Dialog MakeProva() {
    Dialog dialog;
    dialog.resource = 100;
    dialog.title = "Prova";
    dialog.width = 300;
    dialog.height = 200;
    dialog.items = {Item(ItemKind::LeftText, "uma\nduas"),
                    Item(ItemKind::IntEdit),
                    Item(ItemKind::RealEdit),
                    Item(ItemKind::CheckBox, "Caixa"),
                    Item(ItemKind::PopupControl),
                    Item(ItemKind::SingleSelList),
                    Item(ItemKind::Button, "OK"),
                    Item(ItemKind::IconButton),
                    Item(ItemKind::Separator),
                    Item(ItemKind::PopupControl)};
    SetLimits(dialog.items[1], 64.0, 8192.0);
    SetNumber(dialog.items[2], 0.002);
    dialog.items[2].enabled = false;
    SetChecked(dialog, 4, true);
    AppendEntry(dialog.items[4], "Estudo");
    AppendEntry(dialog.items[4], "Projeto");
    SelectEntry(dialog.items[4], 2);
    dialog.items[4].enabled = false;
    SetColumns(dialog.items[5], {{"Superfície", 0, 50, Host::ColumnAlignment::Left},
                                 {"Área", 50, 90, Host::ColumnAlignment::Right}});
    AppendRow(dialog.items[5]);
    SetCell(dialog.items[5], 1, 1, "Tijolo");
    SetCell(dialog.items[5], 1, 2, "123.45");
    SelectRow(dialog.items[5], 1);
    dialog.items[6].visible = false;
    dialog.items[7].icon = 10006;
    dialog.items[7].tooltip = "Calcular";
    return dialog;
}

std::string WithBody(std::string head) {
    head += R"(   1  texto          uma
                     duas
   2  número         64  (64 a 8192)
   3  número         0.002  [desabilitado]
   4  caixa          [x] Caixa
   5  seleção        Projeto  [desabilitado]
                       1  Estudo
                     > 2  Projeto
   6  lista          1 linha
                       Superfície    Área
                     > Tijolo      123.45
   7  botão          OK  [oculto]
   8  botão de ícone 10006  Calcular
   9  separador
  10  seleção        (nenhuma)
)";
    return head;
}

TEST(DialogText, TellsEachItemOfADialog) {
    EXPECT_EQ(DialogText(MakeProva()), WithBody("Diálogo \"Prova\" (100), 300 x 200\n"));
}

TEST(DialogText, TellsHowADialogWasClosed) {
    EXPECT_EQ(DialogText(ShownDialog{MakeProva(), true}),
              WithBody("Diálogo \"Prova\" (100), 300 x 200, aceito\n"));
    EXPECT_EQ(DialogText(ShownDialog{MakeProva(), false}),
              WithBody("Diálogo \"Prova\" (100), 300 x 200, cancelado\n"));
}

TEST(DialogText, TellsAPaletteThatIsHidden) {
    Dialog dialog;
    dialog.kind = DialogKind::Palette;
    dialog.title = "Vantoro";
    dialog.visible = false;
    EXPECT_EQ(DialogText(dialog), "Paleta \"Vantoro\" (0), 0 x 0, oculta\n");
}

TEST(DialogText, TellsAnAlertAndTheButtonPressed) {
    EXPECT_EQ(
        AlertText(
            {Host::AlertKind::Warning, "Nada a calcular", "Escolha uma Zona.", {"OK", "Ajuda"}, 2}),
        "Atenção \"Nada a calcular\"\n      Escolha uma Zona.\n      [OK]\n    > [Ajuda]\n");
    EXPECT_EQ(AlertText({Host::AlertKind::Error, "Falhou", "", {"OK"}, 1}),
              "Erro \"Falhou\"\n    > [OK]\n");
}

} // namespace
} // namespace Merivane::Workbench
