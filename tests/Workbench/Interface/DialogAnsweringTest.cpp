#include <string>

#include <gtest/gtest.h>

#include "Workbench/Interface/DialogAnswering.hpp"

namespace Merivane::Workbench {
namespace {

Dialog MakeProva() {
    ResourceScript script;
    std::string error;
    EXPECT_TRUE(ParseResourceScript(R"('GDLG' 100 Modal 0 0 300 200 "Prova" {
        Button 0 0 9 9 LargePlain "OK"
        LeftText 0 0 9 9 LargePlain vCenter "texto"
        IntEdit 0 0 9 9 LargePlain frame "64" "8192"
        RealEdit 0 0 9 9 LargePlain frame "" "0.5"
        PopupControl 0 0 9 9 200 20 NoIcon "um" NoIcon "dois"
        SingleSelList 0 0 9 9 LargePlain NoPartialItems VScroll 20 HasFrame
        CheckBox 0 0 9 9 LargePlain "caixa"
        RadioButton 0 0 9 9 LargePlain 1 "a"
        RadioButton 0 0 9 9 LargePlain 1 "b"
        TextEdit 0 0 9 9 LargePlain frame 3
        MultiLineEdit 0 0 9 9 LargePlain noFrame | readOnly VScroll
        Button 0 0 9 9 LargePlain "Cancelar"
        PopupControl 0 0 9 9 200 20
        UserItem 20 30 100 60 })",
                                    script, error))
        << error;
    Dialog dialog = MakeDialog(100, script.dialogs.at(100), nullptr);
    SetColumns(dialog.items[5], {{"A", 0, 50}, {"B", 50, 90}});
    for (const char* const name : {"sala", "copa"}) {
        SetCell(dialog.items[5], AppendRow(dialog.items[5]), 2, name);
    }
    SetChecked(dialog, 8, true);
    return dialog;
}

ItemAnswer Click(std::int16_t item) {
    ItemAnswer answer;
    answer.item = item;
    answer.click = true;
    return answer;
}

template <typename Value>
ItemAnswer Give(std::int16_t item, std::optional<Value> ItemAnswer::*member, Value value) {
    ItemAnswer answer;
    answer.item = item;
    answer.*member = std::move(value);
    return answer;
}

ItemAnswer GiveValue(std::int16_t item, double value) {
    return Give(item, &ItemAnswer::value, value);
}

ItemAnswer GiveText(std::int16_t item, std::string text) {
    return Give(item, &ItemAnswer::text, std::move(text));
}

ItemAnswer GiveChecked(std::int16_t item, bool checked) {
    return Give(item, &ItemAnswer::checked, checked);
}

ItemAnswer GiveEntry(std::int16_t item, NumberOrText entry) {
    return Give(item, &ItemAnswer::entry, std::move(entry));
}

ItemAnswer GiveRow(std::int16_t item, NumberOrText row) {
    return Give(item, &ItemAnswer::row, std::move(row));
}

ItemAnswer DoubleClick(std::int16_t item) {
    ItemAnswer answer;
    answer.item = item;
    answer.doubleClick = true;
    return answer;
}

ItemAnswer Point(std::int16_t item, double x, double y) {
    return Give(item, &ItemAnswer::point, Host::ItemPoint{x, y});
}

ItemAnswer Turn(std::int16_t item, std::int16_t notches) {
    return Give(item, &ItemAnswer::wheel, WheelTurn{{10.0, 20.0}, notches});
}

ItemAnswer Drag(std::int16_t item, Host::ItemPoint from, Host::ItemPoint to) {
    return Give(item, &ItemAnswer::drag, MouseDrag{from, to});
}

TEST(DialogAnswering, TellsTheEventThatAPersonWouldCause) {
    using enum DialogEventKind;
    struct Case {
        ItemAnswer answer;
        DialogEvent expected;
    };
    const Case cases[] = {
        {Click(1), {ButtonClicked, 1}},
        {GiveValue(3, 64.0), {}}, // stands there already
        {GiveValue(3, 65.0), {Changed, 3}},
        {GiveValue(3, 8192.0), {Changed, 3}},
        {GiveValue(4, 0.5), {Changed, 4}},
        {GiveEntry(5, {2, {}}), {Changed, 5}},
        {GiveEntry(5, {1, {}}), {}},
        {GiveEntry(5, {0, "dois"}), {Changed, 5}},
        {GiveRow(6, {2, {}}), {ListSelected, 6}},
        {GiveRow(6, {0, "copa"}), {ListSelected, 6}},
        {GiveChecked(7, true), {Changed, 7}},
        {GiveChecked(7, false), {}},
        {Click(7), {Changed, 7}},
        {Click(9), {Changed, 9}},
        {Click(8), {}}, // the one of its group that is on
        {GiveChecked(9, true), {Changed, 9}},
        {GiveText(10, "áéí"), {Changed, 10}},
        {GiveText(10, ""), {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.answer.item);
        Dialog dialog = MakeProva();
        DialogEvent event;
        std::string error;
        EXPECT_TRUE(ApplyAnswer(dialog, c.answer, event, error)) << error;
        EXPECT_EQ(event, c.expected);
    }
}

TEST(DialogAnswering, LeavesWhatWasGivenInTheDialog) {
    Dialog dialog = MakeProva();
    DialogEvent event;
    std::string error;
    for (const ItemAnswer& answer :
         {GiveValue(3, 100.0), GiveEntry(5, {0, "dois"}), GiveRow(6, {0, "copa"}), Click(7),
          Click(9), GiveText(10, "abc")}) {
        EXPECT_TRUE(ApplyAnswer(dialog, answer, event, error)) << error;
    }
    EXPECT_EQ(dialog.items[2].value, 100.0);
    EXPECT_EQ(dialog.items[4].selected, 2);
    EXPECT_EQ(dialog.items[5].selected, 2);
    EXPECT_TRUE(dialog.items[6].checked);
    EXPECT_FALSE(dialog.items[7].checked);
    EXPECT_TRUE(dialog.items[8].checked);
    EXPECT_EQ(dialog.items[9].text, "abc");
    EXPECT_TRUE(ApplyAnswer(dialog, DoubleClick(6), event, error));
    EXPECT_EQ(event, (DialogEvent{DialogEventKind::ListDoubleClicked, 6}));
}

TEST(DialogAnswering, RefusesWhatAPersonCouldNotDo) {
    struct Case {
        ItemAnswer answer;
        std::string reason; ///< behind `diálogo "Prova" (100), item `
    };
    const Case cases[] = {
        {Click(15), "15: o diálogo não tem este item"},
        {Click(14), "14: não pode ser clicado"},
        {Point(1, 1.0, 1.0), "1 (\"OK\"): não é um desenho"},
        {Turn(6, 1), "6: não é um desenho"},
        {Drag(3, {}, {}), "3: não é um desenho"},
        {Point(14, 100.5, 60.0), "14: o ponto [100.5, 60] está fora do desenho (100 x 60)"},
        {Point(14, 50.0, -1.0), "14: o ponto [50, -1] está fora do desenho (100 x 60)"},
        {Drag(14, {50.0, 61.0}, {1.0, 1.0}),
         "14: o ponto [50, 61] está fora do desenho (100 x 60)"},
        {Click(2), "2 (\"texto\"): não pode ser clicado"},
        {Click(3), "3: não pode ser clicado"},
        {GiveValue(1, 1.0), "1 (\"OK\"): não é um campo de número"},
        {GiveValue(3, 63.0), "3: o valor 63 está fora dos limites (de 64 a 8192)"},
        {GiveValue(3, 8193.0), "3: o valor 8193 está fora dos limites (de 64 a 8192)"},
        {GiveValue(3, 100.5), "3: o valor 100.5 não é inteiro"},
        {GiveValue(4, 0.6), "4: o valor 0.6 está fora dos limites (até 0.5)"},
        {GiveText(3, "100"), "3: não é um campo de texto"},
        {GiveText(10, "áéíó"), "10: o texto tem mais de 3 caracteres"},
        {GiveText(10, "a\nb"), "10: o texto tem de caber em uma linha"},
        {GiveText(11, "x"), "11: só pode ser lido"},
        {GiveChecked(1, true), "1 (\"OK\"): não pode ser marcado"},
        {GiveChecked(8, false), "8 (\"a\"): um botão de opção só se desmarca ao marcar outro"},
        {GiveEntry(7, {1, {}}), "7 (\"caixa\"): não é uma lista de opções"},
        {GiveEntry(5, {3, {}}), "5: a entrada 3 não existe (1 a 2)"},
        {GiveEntry(5, {0, "três"}), "5: não há a entrada \"três\""},
        {GiveEntry(13, {1, {}}), "13: a entrada 1 não existe (não há nenhuma)"},
        {GiveRow(5, {1, {}}), "5: não é uma lista de linhas"},
        {GiveRow(6, {3, {}}), "6: a linha 3 não existe (1 a 2)"},
        {GiveRow(6, {0, "hall"}), "6: não há uma linha com \"hall\""},
        {DoubleClick(6), "6: não há uma linha selecionada para clicar duas vezes"},
        {DoubleClick(1), "1 (\"OK\"): não há uma linha selecionada para clicar duas vezes"},
    };
    for (const Case& c : cases) {
        Dialog dialog = MakeProva();
        DialogEvent event;
        std::string error;
        EXPECT_FALSE(ApplyAnswer(dialog, c.answer, event, error));
        EXPECT_EQ(error, "diálogo \"Prova\" (100), item " + c.reason);
        EXPECT_EQ(event, DialogEvent());
    }
}

TEST(DialogAnswering, RefusesAnItemThatIsHiddenOrGreyed) {
    Dialog dialog = MakeProva();
    DialogEvent event;
    std::string error;
    dialog.items[2].enabled = false;
    EXPECT_FALSE(ApplyAnswer(dialog, GiveValue(3, 100.0), event, error));
    EXPECT_EQ(error, "diálogo \"Prova\" (100), item 3: está desabilitado");
    EXPECT_EQ(dialog.items[2].value, 64.0);
    dialog.items[2].visible = false;
    EXPECT_FALSE(ApplyAnswer(dialog, GiveValue(3, 100.0), event, error));
    EXPECT_EQ(error, "diálogo \"Prova\" (100), item 3: está oculto");
    dialog.visible = false;
    EXPECT_FALSE(ApplyAnswer(dialog, Click(1), event, error));
    EXPECT_EQ(error, "diálogo \"Prova\" (100), item 1 (\"OK\"): está oculto");
}

TEST(DialogAnswering, FindsButtonsByNumberAndText) {
    Dialog dialog = MakeProva();
    std::int16_t item = 0;
    std::string error;
    EXPECT_TRUE(FindButton(dialog, {0, "Cancelar"}, item, error));
    EXPECT_EQ(item, 12);
    EXPECT_TRUE(FindButton(dialog, {1, {}}, item, error));
    EXPECT_EQ(item, 1);
    EXPECT_FALSE(FindButton(dialog, {0, "Sim"}, item, error));
    EXPECT_EQ(error, "diálogo \"Prova\" (100): não há o botão \"Sim\"");
    EXPECT_FALSE(FindButton(dialog, {7, {}}, item, error));
    EXPECT_EQ(error, "diálogo \"Prova\" (100), item 7 (\"caixa\"): não é um botão");
    dialog.items[0].enabled = false;
    EXPECT_FALSE(FindButton(dialog, {0, "OK"}, item, error));
    EXPECT_EQ(error, "diálogo \"Prova\" (100), item 1 (\"OK\"): está desabilitado");
}

TEST(DialogAnswering, TellsEveryMovementOfTheMouseOnADrawing) {
    using enum Host::MouseAction;
    using Events = std::vector<Host::MouseEvent>;
    struct Case {
        ItemAnswer answer;
        Events expected;
    };
    const Case cases[] = {
        {Point(14, 0.0, 0.0), {{Moved, {0.0, 0.0}}}},
        {Point(14, 100.0, 60.0), {{Moved, {100.0, 60.0}}}},
        {Turn(14, 2), {{Wheel, {10.0, 20.0}, 1}, {Wheel, {10.0, 20.0}, 1}}},
        {Turn(14, -1), {{Wheel, {10.0, 20.0}, -1}}},
        // Held, the mouse can leave the drawing.
        {Drag(14, {5.0, 6.0}, {-50.0, 70.0}),
         {{Moved, {5.0, 6.0}},
          {Pressed, {5.0, 6.0}},
          {Moved, {-50.0, 70.0}},
          {Released, {-50.0, 70.0}}}},
        {DoubleClick(14),
         {{Pressed, {50.0, 30.0}},
          {Released, {50.0, 30.0}},
          {DoubleClicked, {50.0, 30.0}},
          {Released, {50.0, 30.0}}}},
    };
    for (const Case& c : cases) {
        Dialog dialog = MakeProva();
        DialogEvent event;
        std::string error;
        EXPECT_TRUE(ApplyAnswer(dialog, c.answer, event, error)) << error;
        EXPECT_EQ(event.kind, DialogEventKind::MouseUsed);
        EXPECT_EQ(event.item, 14);
        EXPECT_EQ(event.mouse, c.expected);
    }
}

TEST(DialogAnswering, NamesWhatAnAnswerIsMeantFor) {
    DialogAnswer answer;
    answer.dialog.number = 32650;
    EXPECT_EQ(AnswerName(answer), "o diálogo 32650");
    answer.dialog = {0, "Zona"};
    EXPECT_EQ(AnswerName(answer), "o diálogo \"Zona\"");
    answer.kind = AnswerKind::Alert;
    EXPECT_EQ(AnswerName(answer), "o alerta \"Zona\"");
    answer.kind = AnswerKind::File;
    EXPECT_EQ(AnswerName(answer), "a escolha de arquivo \"Zona\"");
}

TEST(DialogAnswering, TakesAnAnswerApartInItsOrder) {
    ItemAnswer answer = GiveRow(6, {1, {}});
    answer.value = 3.0;
    answer.doubleClick = true;
    answer.point = {1.0, 2.0};
    answer.wheel = {{10.0, 20.0}, 3};
    answer.drag = {{1.0, 1.0}, {2.0, 2.0}};
    const std::vector<ItemAnswer> steps = AnswerSteps(answer);
    const std::vector<ItemAnswer> expected = {GiveValue(6, 3.0),
                                              GiveRow(6, {1, {}}),
                                              Point(6, 1.0, 2.0),
                                              Turn(6, 3),
                                              Drag(6, {1.0, 1.0}, {2.0, 2.0}),
                                              DoubleClick(6)};
    EXPECT_EQ(steps, expected);
}

} // namespace
} // namespace Merivane::Workbench
