#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Workbench/Interface/DialogLayout.hpp"
#include "Workbench/Interface/IconImage.hpp"
#include "Workbench/Interface/MenuText.hpp"
#include "Workbench/Interface/OwnResources.hpp"

// What stands in the folder `resources`, held against what the add-on's code expects of it.
namespace Merivane::Workbench {
namespace {

const std::string Marks = " ^E3 ^ES ^EE ^EI ^ED ^ET ^";

const DialogResource& DialogOf(int number) {
    return OwnResources().dialogs.at(number);
}

std::string Tooltip(int dialog, int item) {
    return OwnResources().dialogHelps.at(dialog).tooltips.at(item);
}

/// The kinds of all items in their order, one letter each.
std::string Kinds(int dialog) {
    std::string kinds;
    for (const ItemResource& item : DialogOf(dialog).items) {
        kinds += std::string(ItemKindName(item.kind)) + ' ';
    }
    kinds.pop_back();
    return kinds;
}

TEST(OwnResources, AreTheFilesOfTheSourceTree) {
    const std::filesystem::path root = Tests::SourceFolder() / "resources";
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        files += entry.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(EmbeddedFiles().size(), files);
    for (const EmbeddedFile& file : EmbeddedFiles()) {
        EXPECT_EQ(Tests::ReadBytes(root / file.path), file.bytes) << file.path;
    }
}

TEST(OwnResources, AreReadWhole) {
    ResourceScript script;
    std::size_t scripts = 0;
    for (const EmbeddedFile& file : EmbeddedFiles()) {
        if (file.path.ends_with(".grc")) {
            std::string error;
            EXPECT_TRUE(file.bytes.starts_with("\xEF\xBB\xBF")) << file.path;
            EXPECT_TRUE(ParseResourceScript(file.bytes, script, error))
                << file.path << ": " << error;
            ++scripts;
        }
    }
    EXPECT_EQ(scripts, 9U);
    EXPECT_EQ(script, OwnResources());
    EXPECT_TRUE(script.others.empty());
    EXPECT_EQ(script.identities.count(32500), 1U);
}

TEST(OwnResources, NameTheAddOn) {
    const std::vector<std::string> expected = {
        "Vantoro", "Simulacao de iluminacao com Radiance e curvas isolux na Planta Baixa"};
    EXPECT_EQ(OwnResources().stringLists.at(32000), expected);
}

TEST(OwnResources, HoldTheSevenMenusByTextAndIcon) {
    struct Item {
        std::string text;
        int icon;
    };
    struct Menu {
        int resource;
        std::string group;
        std::vector<Item> items;
    };
    const Menu menus[] = {
        {32531,
         "1. Catalogo de luminarias",
         {{"Catalogo online de luminarias...", 10022},
          {"Exportar luminarias selecionadas para o catalogo...", 10021}}},
        {32530,
         "2. Novas fontes de luz",
         {{"Importar luminaria (SketchUp + IES)...", 10002},
          {"Adicionar fotometria IES ao objeto selecionado...", 10003},
          {"Converter polilinha / spline em luminaria linear (fita de LED)...", 10005},
          {"Embutir operador de corte na luminaria (Laje selecionada)", 10004}}},
        {32532, "3. Distribuicao", {{"Distribuir luminarias na Zona...", 10023}}},
        {32533,
         "4. Calculo",
         {{"Calcular iluminacao (Zonas selecionadas ou do pavimento)", 10006},
          {"Calcular plano vertical (Corte ativo)", 10007},
          {"Calcular paredes (Elevacao Interior ativa)", 10008},
          {"Inserir observador UGR (posicao de trabalho)", 10009},
          {"Configuracoes do motor de simulacao...", 10012}}},
        {32536,
         "5. Documentacao",
         {{"Simbolos em planta...", 10020},
          {"Circuitos e interruptores...", 10018},
          {"Cotas de luminotecnico...", 10017}}},
        {32534,
         "6. Analise e tabelas",
         {{"Quadro de luminarias (Folha de Trabalho)", 10010},
          {"Tabela UGR das luminarias selecionadas", 10011},
          {"Gerar vistas (Simulacao e Projeto)", 10019}}},
        {32535,
         "Barra de ferramentas e diagnosticos",
         {{"Mostrar / ocultar a barra de ferramentas", 10025},
          {"Diagnostico: luminarias selecionadas", 10013},
          {"Diagnostico: criar camada de teste", 10014},
          {"Verificar instalacao do Radiance...", 10015},
          {"Diagnostico: coordenadas do corte ativo", 10016}}},
    };
    for (const Menu& menu : menus) {
        for (const int dark : {0, 1}) {
            std::vector<std::string> expected = {"Vantoro", menu.group};
            for (const Item& item : menu.items) {
                expected.push_back(item.text + Marks + std::to_string(item.icon + 100 * dark));
            }
            EXPECT_EQ(OwnResources().stringLists.at(menu.resource + 1000 * dark), expected);
        }
    }
    EXPECT_EQ(OwnResources().stringLists.size(), 1U + 2U * 7U);
}

TEST(OwnResources, HaveADrawnIconForEachNumberAndForItsDarkOne) {
    std::set<int> light;
    for (const auto& [number, name] : OwnResources().icons) {
        IconImage image;
        std::string error;
        EXPECT_TRUE(ParseIconImage(OwnIconImage(name), image, error)) << name << ": " << error;
        EXPECT_EQ(image.width, 18.0);
        EXPECT_EQ(image.height, 18.0);
        EXPECT_FALSE(image.shapes.empty()) << name;
        for (const IconShape& shape : image.shapes) {
            EXPECT_TRUE(shape.fill || shape.stroke) << name;
            for (const Drawing::Point& point : shape.points) {
                EXPECT_TRUE(point.x >= 0.0 && point.x <= 18.0 && point.y >= 0.0 && point.y <= 18.0)
                    << name << ' ' << point.x << ' ' << point.y;
            }
        }
        if (number < 10100) {
            light.insert(number);
        }
    }
    for (const int number : light) {
        const std::string name = OwnResources().icons.at(number);
        ASSERT_EQ(OwnResources().icons.count(number + 100), 1U) << number;
        EXPECT_EQ(OwnResources().icons.at(number + 100), name + "Dark");
    }
    EXPECT_EQ(OwnResources().icons.count(10203), 1U);
    EXPECT_EQ(OwnResources().icons.size(), 2 * light.size() + 1);
}

TEST(OwnResources, HaveTheIconOfEveryMenuAndButton) {
    std::set<int> icons;
    for (const auto& [number, strings] : OwnResources().stringLists) {
        if (number != 32000) {
            for (const MenuItemText& item : ReadMenuTexts(strings).items) {
                icons.insert(item.icon);
            }
        }
    }
    for (const ItemResource& item : DialogOf(32750).items) {
        if (ShowsIcon(item.kind)) {
            icons.insert(item.icon);
        }
    }
    EXPECT_EQ(icons.size(), 2U * 23U + 1U);
    for (const int icon : icons) {
        EXPECT_EQ(OwnResources().icons.count(icon), 1U) << icon;
    }
}

TEST(OwnResources, HaveAHelpLineForEachItemOfEachDialog) {
    EXPECT_EQ(OwnResources().dialogs.size(), 7U);
    EXPECT_EQ(OwnResources().dialogHelps.size(), 7U);
    for (const auto& [number, dialog] : OwnResources().dialogs) {
        const auto& tooltips = OwnResources().dialogHelps.at(number).tooltips;
        ASSERT_EQ(tooltips.size(), dialog.items.size()) << number;
        EXPECT_EQ(tooltips.begin()->first, 1);
        EXPECT_EQ(tooltips.rbegin()->first, static_cast<int>(dialog.items.size()));
    }
}

TEST(OwnResources, LayOutTheEngineDialogAsItsCodeMovesIt) {
    EXPECT_EQ(DialogOf(32650).title, "Vantoro: configurações do motor de simulação (Radiance)");
    std::string kinds = "Separator GroupBox LeftText PopupControl LeftText LeftText CheckBox ";
    const std::string fields[] = {"IntEdit",  "IntEdit",  "IntEdit", "IntEdit",
                                  "RealEdit", "RealEdit", "IntEdit"};
    for (const std::string& field : fields) {
        kinds += "LeftText " + field + " LeftText ";
    }
    EXPECT_EQ(Kinds(32650), kinds + "LeftText Button Button Button");
    const DialogResource& dialog = DialogOf(32650);
    EXPECT_EQ(dialog.place.height, 544);
    EXPECT_EQ(dialog.items[28].place.top, 456);
    for (const std::size_t button : {29U, 30U, 31U}) {
        EXPECT_EQ(dialog.items[button].place.top, 510);
    }
}

TEST(OwnResources, QuoteTheTextsOfTheEngineDialog) {
    struct Row {
        std::string label;
        std::string lowest;
        std::string highest;
        std::string help;
    };
    const Row rows[] = {
        {"Reflexões da luz:", "0", "8",
         "Quantas vezes a luz rebate nas superfícies. 2 = interiores comuns; 0 = só luz direta. É "
         "o que mais pesa no tempo"},
        {"Raios por ponto:", "64", "8192",
         "Raios que estimam a luz refletida. Mais raios = menos manchas; o tempo cresce junto."},
        {"Raios extras nas transições:", "0", "4096",
         "Refina onde a luz muda rápido: cantos, sombras, bordas de fachos."},
        {"Resolução da luz refletida:", "16", "2048",
         "Detalhe da luz refletida; importa em salas grandes."},
        {"Tolerância de interpolação:", "0.05", "0.5",
         "Quanto a luz refletida é reaproveitada entre pontos vizinhos. Menor = mais preciso e "
         "mais lento."},
        {"Limite de contribuição:", "0.0001", "0.05",
         "Raios que contribuem menos que isso são descartados. Raramente precisa mudar."},
        {"Processos em paralelo:", "0", "64",
         "0 = automático (núcleos do computador menos 2). O resultado não muda, só o tempo."},
    };
    const std::vector<ItemResource>& items = DialogOf(32650).items;
    EXPECT_EQ(items[2].text, "Perfil de cálculo:");
    EXPECT_EQ(items[6].text, "Mostrar parâmetros avançados");
    std::size_t item = 7;
    for (const Row& row : rows) {
        EXPECT_EQ(items[item].text, row.label);
        EXPECT_EQ(items[item + 1].lowest, row.lowest);
        EXPECT_EQ(items[item + 1].highest, row.highest);
        EXPECT_EQ(items[item + 2].text, row.help);
        item += 3;
    }
    EXPECT_EQ(items[29].text, "Voltar ao perfil");
    EXPECT_EQ(items[31].text, "Cancelar");
}

TEST(OwnResources, QuoteTheTextsOfTheOtherDialogs) {
    struct Case {
        int dialog;
        std::size_t item; ///< 0 = the title
        std::string text;
    };
    const Case cases[] = {
        {32760, 0, "Vantoro: instalação do Radiance"},
        {32760, 1, "Fechar"},
        {32760, 9, "Testar de novo"},
        {32760, 10, "Abrir pasta"},
        {32630, 0, "Vantoro: refletancias das superficies"},
        {32630, 1, "Calcular"},
        {32630, 2, "Cancelar"},
        {32630, 6, "Refletancia usada (%):"},
        {32630, 8, "Usar a estimada"},
        {32630, 9, "Vidro (transparente)"},
        {32630, 10, "TL / Tvis (%):"},
        {32630, 12, "RL interna (%):"},
        {32630, 14, "RL externa (%):"},
        {32630, 17,
         "Vidro: valores LUMINOSOS do catalogo, incidencia normal - TL = Tvis = VT; RL = Rvis = "
         "VR. Nao use Ts, g, FS nem SHGC (sao energeticos). RL interna: luz vinda do ambiente; "
         "externa: vinda de fora. RL 8 % nos dois lados = vidro incolor (reflexao fisica do "
         "Radiance, cresce em angulo rasante)."},
        {32630, 18, "Guardar as correcoes para os proximos calculos (vale para todos os projetos)"},
        {32640, 0, "Vantoro: verificação pela NBR ISO/CIE 8995-1 / ISO/CIE 8995-1"},
        {32640, 1, "Continuar"},
        {32640, 2, "Cancelar"},
        {32640, 3, "Norma:"},
        {32640, 6, "Seção:"},
        {32640, 9, "Em minima (lx):"},
        {32640, 11, "U0 minima:"},
        {32640, 13, "Telas:"},
        {32640, 15, "Usar em todas as Zonas"},
        {32640, 17,
         "Atividade de cada Zona, da tabela da seção 5 da norma. A norma e as escolhas ficam "
         "salvas no projeto."},
        {32750, 0, "Vantoro"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.item == 0 ? DialogOf(c.dialog).title
                              : DialogOf(c.dialog).items[c.item - 1].text,
                  c.text);
    }
}

TEST(OwnResources, GiveTheFieldsTheirLimits) {
    struct Case {
        int dialog;
        std::size_t item;
        std::string lowest;
        std::string highest;
    };
    const Case cases[] = {{32630, 7, "1", "95"},  {32630, 11, "5", "95"},    {32630, 13, "0", "60"},
                          {32630, 15, "0", "60"}, {32640, 10, "0", "10000"}, {32640, 12, "0", "1"}};
    for (const Case& c : cases) {
        const ItemResource& item = DialogOf(c.dialog).items[c.item - 1];
        EXPECT_EQ(item.kind, ItemKind::RealEdit);
        EXPECT_EQ(item.lowest, c.lowest);
        EXPECT_EQ(item.highest, c.highest);
    }
}

TEST(OwnResources, HaveTheItemKindsThatTheDialogsCodeExpects) {
    EXPECT_EQ(Kinds(32760), "Button LeftText GroupBox MultiLineEdit GroupBox LeftText GroupBox "
                            "MultiLineEdit Button Button");
    EXPECT_EQ(Kinds(32630),
              "Button Button LeftText SingleSelList LeftText LeftText RealEdit Button "
              "CheckBox LeftText RealEdit LeftText RealEdit LeftText RealEdit "
              "LeftText LeftText CheckBox Separator");
    EXPECT_EQ(Kinds(32640), "Button Button LeftText PopupControl SingleSelList LeftText "
                            "PopupControl PopupControl LeftText RealEdit LeftText RealEdit "
                            "LeftText PopupControl Button LeftText LeftText");
}

TEST(OwnResources, QuoteTheTooltipsOfTheZonesDialog) {
    const std::map<int, std::string> tooltips = {
        {1, "Segue para o calculo."},
        {2, "Fecha sem calcular."},
        {4, "Norma de referencia do projeto: NBR (Brasil) ou ISO (internacional) - mesmos "
            "valores."},
        {7, "Secao da tabela da norma onde esta a atividade."},
        {15, "Aplica a atividade e os valores desta Zona a todas."},
    };
    for (int item = 1; item <= 17; ++item) {
        const auto found = tooltips.find(item);
        EXPECT_EQ(Tooltip(32640, item), found == tooltips.end() ? "" : found->second) << item;
    }
}

TEST(OwnResources, LayOutTheToolbarByItemIconAndTooltip) {
    struct Button {
        std::size_t item;
        int icon;
        std::string tooltip;
    };
    const Button buttons[] = {
        {3, 10022, "Catalogo online de luminarias"},
        {4, 10021, "Exportar luminarias selecionadas para o catalogo"},
        {6, 10002, "Importar luminaria (SketchUp + IES)"},
        {7, 10003, "Adicionar fotometria IES ao objeto selecionado"},
        {8, 10005, "Converter polilinha / spline em luminaria linear (fita de LED)"},
        {9, 10004, "Embutir operador de corte na luminaria (Laje selecionada)"},
        {11, 10023, "Distribuir luminarias na Zona"},
        {13, 10006, "Calcular iluminacao (Zonas selecionadas ou do pavimento)"},
        {14, 10007, "Calcular plano vertical (Corte ativo)"},
        {15, 10008, "Calcular paredes (Elevacao Interior ativa)"},
        {16, 10009, "Inserir observador UGR (posicao de trabalho)"},
        {17, 10012, "Configuracoes do motor de simulacao"},
        {19, 10020, "Simbolos em planta"},
        {20, 10018, "Circuitos e interruptores"},
        {21, 10017, "Cotas de luminotecnico"},
        {23, 10010, "Quadro de luminarias (Folha de Trabalho)"},
        {24, 10011, "Tabela UGR das luminarias selecionadas"},
        {25, 10019, "Gerar vistas (Simulacao e Projeto)"},
    };
    const DialogResource& toolbar = DialogOf(32750);
    EXPECT_EQ(toolbar.kind, DialogKind::Palette);
    ASSERT_EQ(toolbar.items.size(), 25U);
    for (const Button& button : buttons) {
        EXPECT_EQ(toolbar.items[button.item - 1].kind, ItemKind::IconButton);
        EXPECT_EQ(toolbar.items[button.item - 1].icon, button.icon);
        EXPECT_EQ(Tooltip(32750, static_cast<int>(button.item)), button.tooltip);
    }
    for (const std::size_t separator : {5U, 10U, 12U, 18U, 22U}) {
        EXPECT_EQ(toolbar.items[separator - 1].kind, ItemKind::Separator);
    }
}

TEST(OwnResources, LeaveEveryTextItsRoomAndNoItemOnAnother) {
    for (const auto& [number, resource] : OwnResources().dialogs) {
        SCOPED_TRACE(number);
        const Dialog dialog = MakeDialog(static_cast<std::int16_t>(number), resource, nullptr);
        EXPECT_EQ(ItemsWithCutText(dialog), std::vector<std::int16_t>());
        EXPECT_EQ(FindMisplaced(dialog), std::vector<Misplaced>());
    }
}

TEST(OwnResources, LeaveTheCornerOfModalDialogsToTheSignOfTheDarkInterface) {
    for (const auto& [number, resource] : OwnResources().dialogs) {
        if (resource.kind == DialogKind::Modal) {
            Dialog dialog = MakeDialog(static_cast<std::int16_t>(number), resource, nullptr);
            AppendIcon(dialog, 10203);
            EXPECT_EQ(FindMisplaced(dialog), std::vector<Misplaced>()) << number;
        }
    }
}

TEST(OwnResources, LeaveTheLongestTextsOfTheEngineDialogTheirRoom) {
    Dialog dialog = MakeDialog(32650, DialogOf(32650), nullptr);
    SetText(
        dialog.items[4],
        "Para testar posições de luminárias e ver tendências. Cerca de 10 vezes mais rápido que "
        "o Projeto; os valores podem variar alguns por cento.");
    SetText(dialog.items[5],
            "Tempo: ~12345.6x o perfil Projeto. O último cálculo (1234567890 pontos) levou 1234567 "
            "s; com esta configuração levaria ~1234567890 s.");
    SetText(dialog.items[28],
            "⚠ Sem reflexões: só a luz direta das luminárias. Paredes e teto não devolvem luz e o "
            "ambiente fica bem mais escuro que na realidade.\n"
            "⚠ Poucos raios por ponto: a luz refletida fica manchada (ruído).\n"
            "⚠ Tolerância alta: a luz refletida é muito suavizada e detalhes somem.\n"
            "⚠ Configuração pesada: o cálculo deve levar mais de 6 vezes o perfil Projeto.");
    EXPECT_EQ(ItemsWithCutText(dialog), std::vector<std::int16_t>());
}

} // namespace
} // namespace Merivane::Workbench
