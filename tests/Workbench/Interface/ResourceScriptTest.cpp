#include <string>

#include <gtest/gtest.h>

#include "Workbench/Interface/ResourceScript.hpp"

namespace Merivane::Workbench {
namespace {

ResourceScript Read(const std::string& text) {
    ResourceScript script;
    std::string error;
    EXPECT_TRUE(ParseResourceScript(text, script, error)) << error;
    return script;
}

TEST(ResourceScript, ReadsStringListsWithTheirEscapesBehindAByteOrderMark) {
    const ResourceScript script = Read(
        "\xEF\xBB\xBF/* a\ncomment */ 'STR#' 200 \"menu\" { \"á\\n\\t\\\"\\\\\" // end\n \"\" }");
    const std::vector<std::string> expected = {"á\n\t\"\\", ""};
    EXPECT_EQ(script.stringLists.at(200), expected);
}

TEST(ResourceScript, ReadsIconsAndTheIdentity) {
    const ResourceScript script =
        Read("'GICN' 10006 \"n\" { \"Calculate\" } 'MDID' 32500 \"m\" { 1198731108 -7 }");
    EXPECT_EQ(script.icons.at(10006), "Calculate");
    EXPECT_EQ(script.identities.at(32500), (IdentityResource{1198731108, -7}));
}

TEST(ResourceScript, ReadsADialogWithItsItemsByNumber) {
    const ResourceScript script =
        Read(R"('GDLG' 32650 Modal | grow | noCaption 1 -2 720 544 "Título" {
/* [  1] */ Separator 1 2 3 4
/* [  2] */ LeftText 10 20 30 40 SmallBold vTop | truncEnd "Perfil:"
/* [  3] */ RealEdit 1 1 1 1 LargePlain frame "0.05" ""
/* [  4] */ IconButton 1 1 18 18 10006 frame SquaredEdge
/* [  5] */ SingleSelList 1 1 9 9 LargePlain NoPartialItems | VScroll 20 HasHeader 22 HasFrame
/* [  6] */ PopupControl 1 1 9 9 200 20 NoIcon "um" 10006 "dois"
/* [  7] */ RadioButton 1 1 9 9 ExtraSmallPlain 2 "opção"
/* [  8] */ TextEdit 1 1 9 9 LargePlain noFrame readOnly 31
})");
    const DialogResource& dialog = script.dialogs.at(32650);
    EXPECT_EQ(dialog.kind, DialogKind::Modal);
    EXPECT_EQ(dialog.styles, (std::vector<std::string>{"grow", "noCaption"}));
    EXPECT_EQ(dialog.place, (PixelBox{1, -2, 720, 544}));
    EXPECT_EQ(dialog.title, "Título");
    ASSERT_EQ(dialog.items.size(), 8U);
    EXPECT_EQ(dialog.items[0].kind, ItemKind::Separator);
    EXPECT_EQ(dialog.items[0].place, (PixelBox{1, 2, 3, 4}));
    EXPECT_EQ(dialog.items[1].text, "Perfil:");
    EXPECT_EQ(dialog.items[1].fontSize, FontSize::Small);
    EXPECT_TRUE(dialog.items[1].bold);
    EXPECT_TRUE(HasStyle(dialog.items[1], "vTop"));
    EXPECT_TRUE(HasStyle(dialog.items[1], "truncEnd"));
    EXPECT_FALSE(HasStyle(dialog.items[1], "vCenter"));
    EXPECT_EQ(dialog.items[2].lowest, "0.05");
    EXPECT_EQ(dialog.items[2].highest, "");
    EXPECT_EQ(dialog.items[3].icon, 10006);
    EXPECT_EQ(dialog.items[4].numbers, (std::vector<int>{20, 22}));
    EXPECT_TRUE(HasStyle(dialog.items[4], "HasFrame"));
    EXPECT_EQ(dialog.items[5].texts, (std::vector<std::string>{"um", "dois"}));
    EXPECT_EQ(dialog.items[6].group, 2);
    EXPECT_EQ(dialog.items[6].fontSize, FontSize::ExtraSmall);
    EXPECT_EQ(dialog.items[7].maximumLength, 31);
}

TEST(ResourceScript, ReadsTooltipsByItemNumber) {
    const ResourceScript script = Read("'DLGH' 7 Anchor { 3 \"dica\" Button_3 1 \"\" Other }");
    EXPECT_EQ(script.dialogHelps.at(7).anchor, "Anchor");
    EXPECT_EQ(script.dialogHelps.at(7).tooltips,
              (std::map<int, std::string>{{1, ""}, {3, "dica"}}));
}

TEST(ResourceScript, ReadsAnAlertAndLeavesOutButtonsWithoutText) {
    const ResourceScript script =
        Read("'GALR' 9 \"n\" { DG_WARNING \"grande\" \"pequeno\" \"OK\" \"\" \"Não\" }");
    const AlertResource expected{AlertResourceKind::Warning, "grande", "pequeno", {"OK", "Não"}};
    EXPECT_EQ(script.alerts.at(9), expected);
}

TEST(ResourceScript, PassesOverTypesThatAreOfNoUse) {
    const ResourceScript script = Read("'FILE' 5 \"n\" { \"a.gsm\" { 1 | x } } 'TEXT' 6 { }");
    EXPECT_EQ(script.others.at("FILE"), std::vector<int>{5});
    EXPECT_EQ(script.others.at("TEXT"), std::vector<int>{6});
}

TEST(ResourceScript, ReadsBehindWhatIsThereAlready) {
    ResourceScript script = Read("'STR#' 1 \"a\" { \"um\" }");
    std::string error;
    EXPECT_TRUE(ParseResourceScript("'STR#' 65535 \"b\" { }", script, error));
    EXPECT_EQ(script.stringLists.size(), 2U);
    EXPECT_FALSE(ParseResourceScript("'STR#' 3 \"c\" { } 'STR#' 1 \"d\" { }", script, error));
    EXPECT_EQ(error, "linha 1: o recurso 1 deste tipo já existe");
    EXPECT_EQ(script.stringLists.size(), 2U);
}

TEST(ResourceScript, RefusesWithLineAndReason) {
    struct Case {
        std::string text;
        std::string error;
    };
    const Case cases[] = {
        {"\n/* x", "linha 2: comentário sem fim"},
        {"'STR#' 1 \"n\" {\n\"a", "linha 2: texto sem aspas no fim"},
        {"'STR#' 1 \"n\" {\n\"a\n\" }", "linha 2: texto sem aspas no fim"},
        {"'STR#' 1 \"\\q\"", "linha 1: sequência com barra invertida desconhecida em um texto"},
        {"'STR#' 1 \"\\", "linha 1: sequência com barra invertida desconhecida em um texto"},
        {"'STR' 1", "linha 1: o tipo de um recurso tem quatro caracteres entre apóstrofos"},
        {"'STR#", "linha 1: o tipo de um recurso tem quatro caracteres entre apóstrofos"},
        {"#include \"a.h\"", "linha 1: diretivas do pré-processador não são lidas"},
        {"'STR#' 1 \"n\" ( }", "linha 1: caractere inesperado"},
        {"a\n\n\xC3(", "linha 3: não é texto em UTF-8"},
        {std::string("a\n\0", 3), "linha 2: não é texto em UTF-8"},
        {"'STR#' 12a", "linha 1: número inválido"},
        {"'STR#' 1.5", "linha 1: número inválido"},
        {"'STR#' -", "linha 1: número inválido"},
        {"'STR#' 99999999999", "linha 1: número inválido"},
        {"STR", "linha 1: esperava o tipo de um recurso, encontrei STR"},
        {"'STR#' \"n\"", "linha 1: esperava um número, encontrei \"n\""},
        {"'STR#' 0 \"n\" { }", "linha 1: o número de um recurso vai de 1 a 65535"},
        {"'STR#' 65536 \"n\" { }", "linha 1: o número de um recurso vai de 1 a 65535"},
        {"'STR#' 1 \"n\" { 5 }", "linha 1: esperava um texto entre aspas, encontrei 5"},
        {"'STR#' 1 \"n\" \"a\" }", "linha 1: esperava '{', encontrei \"a\""},
        {"'STR#' 1 \"n\" {", "linha 1: esperava um texto entre aspas, encontrei o fim do arquivo"},
        {"'GICN' 1 \"n\" { \"a\" \"b\" }", "linha 1: esperava '}', encontrei \"b\""},
        {"'FILE' 1 {\n { }", "linha 2: esperava '}', encontrei o fim do arquivo"},
        {"'FILE' 1 { } 'FILE' 1 { }", "linha 1: o recurso 1 deste tipo já existe"},
        {"'GDLG' 1 Window 0 0 1 1 \"t\" { }", "linha 1: tipo de diálogo desconhecido: Window"},
        {"'GDLG' 1 Modal | big 0 0 1 1 \"t\" { }", "linha 1: estilo de diálogo desconhecido: big"},
        {"'GDLG' 1 Modal 0 0 -1 1 \"t\" { }", "linha 1: tamanho negativo"},
        {"'GDLG' 1 Modal 0 0 32768 1 \"t\" { }", "linha 1: o número 32768 não cabe em 16 bits"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { Knob 0 0 1 1 }",
         "linha 1: tipo de item desconhecido: Knob"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { Button 0 0 1 1 Large \"OK\" }",
         "linha 1: fonte desconhecida: Large"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { Button 0 0 1 1 LargePlain round \"OK\" }",
         "linha 1: estilo de item desconhecido: round"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { IconButton 0 0 1 1 MyIcon }",
         "linha 1: ícone desconhecido: MyIcon"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { RealEdit 0 0 1 1 LargePlain \"a\" \"\" }",
         "linha 1: o limite \"a\" não é um número"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { RealEdit 0 0 1 1 LargePlain \"inf\" \"\" }",
         "linha 1: o limite \"inf\" não é um número"},
        {"'GDLG' 1 Modal 0 0 1 1 \"t\" { Separator 0 0 1 1 } 'DLGH' 1 A { 2 \"\" B }",
         "linha 1: a ajuda fala de um item que o diálogo 1 não tem"},
        {"'DLGH' 1 A { 0 \"\" B }", "linha 1: o item 0 da ajuda não existe ou se repete"},
        {"'DLGH' 1 A { 1 \"\" B 1 \"\" C }", "linha 1: o item 1 da ajuda não existe ou se repete"},
        {"'GALR' 1 \"n\" { DG_STOP \"a\" \"b\" \"c\" }",
         "linha 1: tipo de alerta desconhecido: DG_STOP"},
        {"'GALR' 1 \"n\" { DG_ERROR \"a\" \"b\" \"\" }",
         "linha 1: um alerta tem de um a três botões"},
        {"'GALR' 1 \"n\" { DG_ERROR \"a\" \"b\" \"1\" \"2\" \"3\" \"4\" }",
         "linha 1: um alerta tem de um a três botões"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        ResourceScript script;
        std::string error;
        EXPECT_FALSE(ParseResourceScript(c.text, script, error));
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(script, ResourceScript());
    }
}

TEST(ResourceScript, CutAtAnyLengthEndsInARecordOrOneSentence) {
    const std::string text =
        "'GDLG' 1 Modal | grow 0 0 9 9 \"t\" { Button 1 1 2 2 LargePlain \"á\" "
        "PopupControl 1 1 2 2 9 9 NoIcon \"a\" } 'DLGH' 1 A { 1 \"x\" B }";
    for (std::size_t length = 0; length < text.size(); ++length) {
        ResourceScript script;
        std::string error;
        const bool read = ParseResourceScript(text.substr(0, length), script, error);
        EXPECT_EQ(read, error.empty()) << length;
    }
}

} // namespace
} // namespace Merivane::Workbench
