#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AddOn/CommandTable.hpp"
#include "AddOn/Commands/ToolbarPalette.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/MenuTable.hpp"
#include "Workbench/Interface/MenuText.hpp"
#include "Workbench/Interface/OwnResources.hpp"

// The folder `resources` and the code's tables and numbers, held together.
namespace Merivane {
namespace {

using Workbench::ItemKind;
using Workbench::OwnResources;

const std::vector<std::string>& Strings(int resource) {
    static const std::vector<std::string> None;
    const auto found = OwnResources().stringLists.find(resource);
    EXPECT_NE(found, OwnResources().stringLists.end()) << resource;
    return found == OwnResources().stringLists.end() ? None : found->second;
}

const Workbench::ItemResource& ItemOf(int dialog, std::int16_t item) {
    return OwnResources().dialogs.at(dialog).items.at(static_cast<std::size_t>(item - 1));
}

std::string Tooltip(int dialog, std::int16_t item) {
    return OwnResources().dialogHelps.at(dialog).tooltips.at(item);
}

TEST(MenuResources, HoldOneTextForEachCommandOfTheMenu) {
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        const auto texts = Workbench::ReadMenuTexts(Strings(group.resourceId));
        ASSERT_EQ(texts.items.size(), static_cast<std::size_t>(group.itemCount));
        for (std::size_t i = 0; i < texts.items.size(); ++i) {
            const Commands::CommandRow* const command = Commands::FindCommand(group.commands[i]);
            ASSERT_TRUE(command) << group.commands[i];
            EXPECT_EQ(texts.items[i].text, command->name);
        }
    }
}

TEST(MenuResources, NameTheGroupsUnderOneMenu) {
    const std::string groups[] = {"1. Catalogo de luminarias",
                                  "2. Novas fontes de luz",
                                  "3. Distribuicao",
                                  "4. Calculo",
                                  "5. Documentacao",
                                  "6. Analise e tabelas",
                                  "Barra de ferramentas e diagnosticos"};
    for (std::size_t i = 0; i < std::size(groups); ++i) {
        const auto texts = Workbench::ReadMenuTexts(Strings(Commands::MenuTable()[i].resourceId));
        EXPECT_EQ(texts.menu, "Vantoro");
        EXPECT_EQ(texts.group, groups[i]);
    }
}

TEST(MenuResources, KeepEveryItemUsableInEveryWindow) {
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        const std::vector<std::string>& strings = Strings(group.resourceId);
        for (std::size_t i = 2; i < strings.size(); ++i) {
            const auto item = Workbench::ReadMenuItem(strings[i]);
            EXPECT_EQ(strings[i],
                      item.text + " ^E3 ^ES ^EE ^EI ^ED ^ET ^" + std::to_string(item.icon));
        }
    }
}

TEST(MenuResources, AreTheSameInTheDarkInterfaceButForTheirIcons) {
    for (const Commands::MenuGroup& group : Commands::MenuTable()) {
        auto light = Workbench::ReadMenuTexts(Strings(group.resourceId));
        for (Workbench::MenuItemText& item : light.items) {
            item.icon = static_cast<std::int16_t>(item.icon + 100);
        }
        EXPECT_EQ(Workbench::ReadMenuTexts(Strings(group.resourceId + Commands::DarkMenuOffset)),
                  light);
    }
}

TEST(MenuResources, HaveTheIconsThatTheyName) {
    for (const int offset : {0, 1000}) {
        for (const Commands::MenuGroup& group : Commands::MenuTable()) {
            for (const auto& item :
                 Workbench::ReadMenuTexts(Strings(group.resourceId + offset)).items) {
                ASSERT_TRUE(OwnResources().icons.contains(item.icon)) << item.icon;
                EXPECT_FALSE(Workbench::OwnIconImage(OwnResources().icons.at(item.icon)).empty());
            }
        }
    }
    EXPECT_TRUE(OwnResources().icons.contains(ResourceIds::LightMarkIcon));
}

TEST(AddOnResources, TellWhatTheAddOnIs) {
    EXPECT_TRUE(OwnResources().identities.contains(32500));
    EXPECT_EQ(Strings(ResourceIds::AddOnStrings).size(), 2U);
}

TEST(ToolbarResources, HaveTheButtonsTheirIconsAndTooltips) {
    std::set<int> buttonItems;
    for (const Commands::ToolbarButton& button : Commands::ToolbarButtons()) {
        const auto& item = ItemOf(ResourceIds::Toolbar, button.item);
        EXPECT_EQ(item.kind, ItemKind::IconButton) << button.item;
        EXPECT_EQ(item.icon, button.icon);
        EXPECT_TRUE(OwnResources().icons.contains(button.icon + 100)) << button.icon;
        // The tooltip is the menu's text without what tells that a dialog follows.
        std::string name(Commands::FindCommand(button.command)->name);
        if (name.ends_with("...")) {
            name.resize(name.size() - 3);
        }
        EXPECT_EQ(Tooltip(ResourceIds::Toolbar, button.item), name);
        buttonItems.insert(button.item);
    }
    for (std::int16_t item = 3; item <= 25; ++item) {
        EXPECT_EQ(ItemOf(ResourceIds::Toolbar, item).kind == ItemKind::Separator,
                  !buttonItems.contains(item))
            << item;
    }
}

TEST(ToolbarResources, ShowTheIconOfTheCommandInTheMenu) {
    for (const Commands::ToolbarButton& button : Commands::ToolbarButtons()) {
        for (const Commands::MenuGroup& group : Commands::MenuTable()) {
            const auto texts = Workbench::ReadMenuTexts(Strings(group.resourceId));
            for (std::size_t i = 0; i < texts.items.size(); ++i) {
                if (group.commands[i] == button.command) {
                    EXPECT_EQ(texts.items[i].icon, button.icon) << button.command;
                }
            }
        }
    }
}

/// What an item's number stands for in the code.
struct ItemUse {
    std::int16_t item;
    ItemKind kind;
    std::string text;
};

void ExpectItems(int dialog, std::size_t count, const std::vector<ItemUse>& uses) {
    ASSERT_TRUE(OwnResources().dialogs.contains(dialog)) << dialog;
    EXPECT_EQ(OwnResources().dialogs.at(dialog).items.size(), count);
    for (const ItemUse& use : uses) {
        SCOPED_TRACE(std::to_string(dialog) + '/' + std::to_string(use.item));
        EXPECT_EQ(ItemOf(dialog, use.item).kind, use.kind);
        EXPECT_EQ(ItemOf(dialog, use.item).text, use.text);
    }
}

TEST(DialogResources, HaveTheItemsOfThePhotometryOfAnObject) {
    namespace Item = ResourceIds::AddIes;
    ExpectItems(Item::Dialog, 48,
                {
                    {Item::Accept, ItemKind::Button, "OK"},
                    {Item::Cancel, ItemKind::Button, "Cancelar"},
                    {3, ItemKind::LeftText, "Objeto de origem:"},
                    {Item::SourceName, ItemKind::LeftText, ""},
                    {Item::ObjectInfo, ItemKind::LeftText, ""},
                    {6, ItemKind::LeftText, "Arquivo IES:"},
                    {Item::FileName, ItemKind::LeftText, ""},
                    {Item::Identity, ItemKind::LeftText, ""},
                    {Item::Flux, ItemKind::LeftText, ""},
                    {Item::Table, ItemKind::LeftText, ""},
                    {Item::FrontTitle, ItemKind::LeftText, ""},
                    {Item::FrontView, ItemKind::UserItem, ""},
                    {Item::SideTitle, ItemKind::LeftText, ""},
                    {Item::SideView, ItemKind::UserItem, ""},
                    {Item::PlanTitle, ItemKind::LeftText, ""},
                    {Item::PlanView, ItemKind::UserItem, ""},
                    {17, ItemKind::GroupBox, "Luminária"},
                    {18, ItemKind::LeftText, "Código de catálogo:"},
                    {Item::Catalog, ItemKind::TextEdit, ""},
                    {20, ItemKind::LeftText, "Nome da luminária:"},
                    {Item::Luminaire, ItemKind::TextEdit, ""},
                    {22, ItemKind::LeftText, "Lâmpada:"},
                    {Item::Lamp, ItemKind::TextEdit, ""},
                    {24, ItemKind::LeftText, "Reprodução de cor:"},
                    {Item::ColourRendering, ItemKind::RealEdit, ""},
                    {26, ItemKind::LeftText, "Nome da peça nova:"},
                    {Item::PartName, ItemKind::TextEdit, ""},
                    {28, ItemKind::LeftText, "Fator de manutenção:"},
                    {Item::MaintenanceFactor, ItemKind::RealEdit, ""},
                    {30, ItemKind::GroupBox, "Centro fotométrico (cm)"},
                    {31, ItemKind::LeftText, "X:"},
                    {Item::CenterX, ItemKind::RealEdit, ""},
                    {33, ItemKind::LeftText, "Y:"},
                    {Item::CenterY, ItemKind::RealEdit, ""},
                    {35, ItemKind::LeftText, "Z:"},
                    {Item::CenterZ, ItemKind::RealEdit, ""},
                    {Item::LowerFace, ItemKind::Button, "Face inferior"},
                    {Item::Middle, ItemKind::Button, "Meio"},
                    {Item::UpperFace, ItemKind::Button, "Face superior"},
                    {Item::Hint, ItemKind::LeftText, ""},
                    {41, ItemKind::GroupBox, "Direção da luz (graus)"},
                    {42, ItemKind::LeftText, "Rotação do C0:"},
                    {Item::C0Rotation, ItemKind::RealEdit, ""},
                    {44, ItemKind::LeftText, "Inclinação:"},
                    {Item::TiltAngle, ItemKind::RealEdit, ""},
                    {46, ItemKind::LeftText, "Direção:"},
                    {Item::TiltDirection, ItemKind::RealEdit, ""},
                    {Item::Legend, ItemKind::LeftText, ""},
                });
}

TEST(DialogResources, HaveTheItemsOfTheCalculation) {
    namespace Item = ResourceIds::Calculation;
    ExpectItems(Item::Dialog, 34,
                {
                    {Item::Accept, ItemKind::Button, "Calcular"},
                    {Item::Cancel, ItemKind::Button, "Cancelar"},
                    {Item::Summary, ItemKind::LeftText, ""},
                    {4, ItemKind::GroupBox, "Malha de calculo"},
                    {5, ItemKind::LeftText, "Altura do plano de trabalho:"},
                    {Item::WorkPlaneHeight, ItemKind::LengthEdit, ""},
                    {7, ItemKind::LeftText, "Afastamento dos pontos da parede:"},
                    {Item::WallOffset, ItemKind::LengthEdit, ""},
                    {9, ItemKind::LeftText, "Faixa de borda fora das estatisticas:"},
                    {Item::BorderBand, ItemKind::LengthEdit, ""},
                    {11, ItemKind::GroupBox, "Simulacao"},
                    {Item::ReviewReflectances, ItemKind::CheckBox,
                     "Revisar as refletancias das superficies antes de calcular"},
                    {Item::ColouredReflection, ItemKind::CheckBox,
                     "Considerar a cor das superficies (reflexao colorida)"},
                    {Item::OpenEngine, ItemKind::Button, "Motor de simulacao..."},
                    {Item::EngineSummary, ItemKind::LeftText, ""},
                    {16, ItemKind::GroupBox, "Verificacao"},
                    {Item::Verify, ItemKind::CheckBox,
                     "Verificar pela NBR ISO/CIE 8995-1 (atividade de cada Zona)"},
                    {Item::PlaneFacesViewer, ItemKind::CheckBox,
                     "Plano vertical: face voltada para quem olha o corte"},
                    {Item::Surfaces, ItemKind::CheckBox,
                     "Calcular tambem paredes e teto (EN 12464-1, mapa 3D)"},
                    {Item::Ugr, ItemKind::CheckBox,
                     "Calcular ofuscamento UGR (metodo tabular e observadores)"},
                    {21, ItemKind::GroupBox, "Representacao no desenho (cada uma em sua camada)"},
                    {Item::Fills, ItemKind::CheckBox,
                     "Mapa de cor falsa (faixas de iluminancia preenchidas)"},
                    {Item::Model3D, ItemKind::CheckBox,
                     "Tambem em 3D (Morph colorido no plano de trabalho)"},
                    {24, ItemKind::LeftText, "Paleta:"},
                    {Item::ColorScale, ItemKind::PopupControl, ""},
                    {Item::Legend, ItemKind::CheckBox, "Legenda de cores"},
                    {Item::Curves, ItemKind::CheckBox, "Curvas isolux"},
                    {Item::CurveLabels, ItemKind::CheckBox, "Rotulos com o valor de cada curva"},
                    {Item::Values, ItemKind::CheckBox, "Valores calculados em malha"},
                    {30, ItemKind::LeftText, "Espacamento:"},
                    {Item::ValueSpacing, ItemKind::LengthEdit, ""},
                    {32, ItemKind::LeftText, "Niveis (lx):"},
                    {Item::Levels, ItemKind::TextEdit, ""},
                    {Item::LevelsNote, ItemKind::LeftText,
                     "Separados por ';'. Definem as curvas e as faixas de cor."},
                });
    EXPECT_EQ(Tooltip(Item::Dialog, Item::Accept), "Roda o calculo e desenha o que foi marcado.");
    EXPECT_EQ(Tooltip(Item::Dialog, Item::Cancel), "Fecha sem calcular.");
}

TEST(DialogResources, LimitTheLengthsOfTheCalculation) {
    namespace Item = ResourceIds::Calculation;
    struct Case {
        std::int16_t item;
        std::string lowest;
        std::string highest;
    };
    const Case cases[] = {
        {Item::WorkPlaneHeight, "0", "100"},
        {Item::WallOffset, "0", "5"},
        {Item::BorderBand, "0", "10"},
        {Item::ValueSpacing, "0.05", "100"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ItemOf(Item::Dialog, c.item).lowest, c.lowest) << c.item;
        EXPECT_EQ(ItemOf(Item::Dialog, c.item).highest, c.highest) << c.item;
    }
}

TEST(DialogResources, HaveTheItemsOfTheEngineDialog) {
    namespace Item = ResourceIds::Engine;
    ExpectItems(
        Item::Dialog, 32,
        {
            {Item::AdvancedBox, ItemKind::GroupBox, "Parâmetros avançados"},
            {3, ItemKind::LeftText, "Perfil de cálculo:"},
            {Item::Profile, ItemKind::PopupControl, ""},
            {Item::Description, ItemKind::LeftText, ""},
            {Item::TimeLine, ItemKind::LeftText, ""},
            {Item::ShowAdvanced, ItemKind::CheckBox, "Mostrar parâmetros avançados"},
            {Item::FirstAdvanced, ItemKind::LeftText, "Reflexões da luz:"},
            {Item::Bounces, ItemKind::IntEdit, ""},
            {10, ItemKind::LeftText,
             "Quantas vezes a luz rebate nas superfícies. 2 = interiores comuns; 0 = só luz "
             "direta. É o que mais pesa no tempo"},
            {11, ItemKind::LeftText, "Raios por ponto:"},
            {Item::Divisions, ItemKind::IntEdit, ""},
            {13, ItemKind::LeftText,
             "Raios que estimam a luz refletida. Mais raios = menos manchas; o tempo cresce "
             "junto."},
            {14, ItemKind::LeftText, "Raios extras nas transições:"},
            {Item::Supersamples, ItemKind::IntEdit, ""},
            {16, ItemKind::LeftText,
             "Refina onde a luz muda rápido: cantos, sombras, bordas de fachos."},
            {17, ItemKind::LeftText, "Resolução da luz refletida:"},
            {Item::Resolution, ItemKind::IntEdit, ""},
            {19, ItemKind::LeftText, "Detalhe da luz refletida; importa em salas grandes."},
            {20, ItemKind::LeftText, "Tolerância de interpolação:"},
            {Item::Accuracy, ItemKind::RealEdit, ""},
            {22, ItemKind::LeftText,
             "Quanto a luz refletida é reaproveitada entre pontos vizinhos. Menor = mais preciso e "
             "mais lento."},
            {23, ItemKind::LeftText, "Limite de contribuição:"},
            {Item::LimitWeight, ItemKind::RealEdit, ""},
            {25, ItemKind::LeftText,
             "Raios que contribuem menos que isso são descartados. Raramente precisa mudar."},
            {26, ItemKind::LeftText, "Processos em paralelo:"},
            {Item::MaxProcesses, ItemKind::IntEdit, ""},
            {Item::LastAdvanced, ItemKind::LeftText,
             "0 = automático (núcleos do computador menos 2). O resultado não muda, só o tempo."},
            {Item::Warnings, ItemKind::LeftText, ""},
            {Item::BackToProfile, ItemKind::Button, "Voltar ao perfil"},
            {Item::Accept, ItemKind::Button, "OK"},
            {Item::Cancel, ItemKind::Button, "Cancelar"},
        });
}

TEST(DialogResources, LimitTheNumbersOfTheEngineDialog) {
    namespace Item = ResourceIds::Engine;
    struct Case {
        std::int16_t item;
        std::string lowest;
        std::string highest;
    };
    const Case cases[] = {
        {Item::Bounces, "0", "8"},         {Item::Divisions, "64", "8192"},
        {Item::Supersamples, "0", "4096"}, {Item::Resolution, "16", "2048"},
        {Item::Accuracy, "0.05", "0.5"},   {Item::LimitWeight, "0.0001", "0.05"},
        {Item::MaxProcesses, "0", "64"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ItemOf(Item::Dialog, c.item).lowest, c.lowest) << c.item;
        EXPECT_EQ(ItemOf(Item::Dialog, c.item).highest, c.highest) << c.item;
    }
}

TEST(DialogResources, HaveTheItemsOfTheRadianceCheck) {
    namespace Item = ResourceIds::RadianceCheck;
    ExpectItems(Item::Dialog, 10,
                {
                    {Item::Close, ItemKind::Button, "Fechar"},
                    {Item::Verdict, ItemKind::LeftText, ""},
                    {Item::InstallationBox, ItemKind::MultiLineEdit, ""},
                    {Item::ToolsBox, ItemKind::LeftText, ""},
                    {Item::TestBox, ItemKind::MultiLineEdit, ""},
                    {Item::TestAgain, ItemKind::Button, "Testar de novo"},
                    {Item::OpenFolder, ItemKind::Button, "Abrir pasta"},
                });
}

TEST(DialogResources, HaveTheItemsOfTheReflectances) {
    namespace Item = ResourceIds::Reflectance;
    ExpectItems(
        Item::Dialog, 19,
        {
            {Item::Accept, ItemKind::Button, "Calcular"},
            {Item::Cancel, ItemKind::Button, "Cancelar"},
            {Item::Head, ItemKind::LeftText, ""},
            {Item::Surfaces, ItemKind::SingleSelList, ""},
            {Item::Name, ItemKind::LeftText, ""},
            {6, ItemKind::LeftText, "Refletancia usada (%):"},
            {Item::Used, ItemKind::RealEdit, ""},
            {Item::UseEstimate, ItemKind::Button, "Usar a estimada"},
            {Item::Glass, ItemKind::CheckBox, "Vidro (transparente)"},
            {10, ItemKind::LeftText, "TL / Tvis (%):"},
            {Item::Transmittance, ItemKind::RealEdit, ""},
            {12, ItemKind::LeftText, "RL interna (%):"},
            {Item::Inside, ItemKind::RealEdit, ""},
            {14, ItemKind::LeftText, "RL externa (%):"},
            {Item::Outside, ItemKind::RealEdit, ""},
            {Item::Explanation, ItemKind::LeftText, ""},
            {Item::GlassNote, ItemKind::LeftText,
             "Vidro: valores LUMINOSOS do catalogo, incidencia normal - TL = Tvis = VT; RL = Rvis "
             "= VR. Nao use Ts, g, FS nem SHGC (sao energeticos). RL interna: luz vinda do "
             "ambiente; externa: vinda de fora. RL 8 % nos dois lados = vidro incolor (reflexao "
             "fisica do Radiance, cresce em angulo rasante)."},
            {Item::Remember, ItemKind::CheckBox,
             "Guardar as correcoes para os proximos calculos (vale para todos os projetos)"},
        });
}

TEST(DialogResources, HaveTheItemsOfTheZoneRequirements) {
    namespace Item = ResourceIds::ZoneRequirement;
    ExpectItems(Item::Dialog, 17,
                {
                    {Item::Accept, ItemKind::Button, "Continuar"},
                    {Item::Cancel, ItemKind::Button, "Cancelar"},
                    {3, ItemKind::LeftText, "Norma:"},
                    {Item::Standard, ItemKind::PopupControl, ""},
                    {Item::Zones, ItemKind::SingleSelList, ""},
                    {6, ItemKind::LeftText, "Seção:"},
                    {Item::Section, ItemKind::PopupControl, ""},
                    {Item::Activity, ItemKind::PopupControl, ""},
                    {9, ItemKind::LeftText, "Em minima (lx):"},
                    {Item::Illuminance, ItemKind::RealEdit, ""},
                    {11, ItemKind::LeftText, "U0 minima:"},
                    {Item::Uniformity, ItemKind::RealEdit, ""},
                    {13, ItemKind::LeftText, "Telas:"},
                    {Item::Screens, ItemKind::PopupControl, ""},
                    {Item::UseForAll, ItemKind::Button, "Usar em todas as Zonas"},
                    {Item::Note, ItemKind::LeftText, ""},
                    {Item::Explanation, ItemKind::LeftText,
                     "Atividade de cada Zona, da tabela da seção 5 da norma. A norma e as escolhas "
                     "ficam salvas no projeto."},
                });
}

TEST(DialogResources, HaveTheTooltipsOfTheZoneRequirements) {
    namespace Item = ResourceIds::ZoneRequirement;
    EXPECT_EQ(Tooltip(Item::Dialog, Item::Standard),
              "Norma de referencia do projeto: NBR (Brasil) ou ISO (internacional) - mesmos "
              "valores.");
    EXPECT_EQ(Tooltip(Item::Dialog, Item::Section),
              "Secao da tabela da norma onde esta a atividade.");
    EXPECT_EQ(Tooltip(Item::Dialog, Item::UseForAll),
              "Aplica a atividade e os valores desta Zona a todas.");
    EXPECT_EQ(Tooltip(Item::Dialog, Item::Accept), "Segue para o calculo.");
    EXPECT_EQ(Tooltip(Item::Dialog, Item::Cancel), "Fecha sem calcular.");
}

} // namespace
} // namespace Merivane
