#include <cstdint>
#include <string_view>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/CommandTable.hpp"
#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/MenuTable.hpp"
#include "Workbench/MenuRun.hpp"

namespace Merivane::Commands {
namespace {

using Numbers = std::vector<std::int16_t>;

/// A resource number as the host passes it: in 16 bits.
std::int16_t AsPassed(int resource) {
    return static_cast<std::int16_t>(resource);
}

TEST(MenuTable, HoldsTheSevenGroupsAndTheirCommands) {
    struct Case {
        std::int16_t resource;
        Numbers commands;
    };
    const Case cases[] = {
        {32531, {32520, 32519}},
        {32530, {32504, 32503, 32513, 32514}},
        {32532, {32521}},
        {32533, {32505, 32507, 32509, 32511, 32508}},
        {32536, {32516, 32517, 32515}},
        {32534, {32512, 32510, 32518}},
        {32535, {32523, 32500, 32501, 32502, 32506}},
    };
    ASSERT_EQ(MenuTable().size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const MenuGroup& group = MenuTable()[i];
        Numbers commands = cases[i].commands;
        EXPECT_EQ(group.resourceId, cases[i].resource);
        EXPECT_EQ(group.itemCount, static_cast<std::int16_t>(commands.size()));
        commands.resize(8, 0); // the places behind the last item are 0
        EXPECT_EQ(Numbers(group.commands.begin(), group.commands.end()), commands);
    }
}

TEST(MenuTable, FindsTheCommandOfAnItem) {
    struct Case {
        int resource; // as the resource scripts number it
        std::int32_t item;
        std::int16_t command;
    };
    const Case cases[] = {
        {32533, 1, 32505}, {32533, 5, 32508}, {32535, 1, 32523},
        {32532, 1, 32521}, {32533, 0, 0}, // items count from 1
        {32533, -1, 0},    {32533, 6, 0},     {32533, 8, 0},
        {32533, 9, 0},     {32532, 2, 0},     {32529, 1, 0}, // no group's resource
        {32537, 1, 0},     {31533, 1, 0},     {0, 1, 0},
        {33533, 1, 32505}, // of the dark interface
        {33535, 4, 32502}, {33530, 1, 32504}, {33533, 6, 0},
        {33529, 1, 0},     {33537, 1, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FindMenuCommand(AsPassed(c.resource), c.item), c.command)
            << c.resource << '/' << c.item;
    }
}

TEST(CommandTable, HoldsEveryCommandOfTheMenuOnce) {
    std::size_t items = 0;
    for (const MenuGroup& group : MenuTable()) {
        for (std::int16_t item = 1; item <= group.itemCount; ++item) {
            EXPECT_TRUE(FindCommand(FindMenuCommand(group.resourceId, item)));
            ++items;
        }
    }
    EXPECT_EQ(items, CommandTable().size());
    for (std::size_t i = 1; i < CommandTable().size(); ++i) {
        EXPECT_LT(CommandTable()[i - 1].number, CommandTable()[i].number);
    }
}

TEST(CommandTable, NamesTheCommandsAsTheMenuTellsThem) {
    struct Case {
        std::int16_t number;
        std::string_view name;
    };
    const Case cases[] = {
        {32500, "Diagnostico: luminarias selecionadas"},
        {32501, "Diagnostico: criar camada de teste"},
        {32502, "Verificar instalacao do Radiance..."},
        {32503, "Adicionar fotometria IES ao objeto selecionado..."},
        {32504, "Importar luminaria (SketchUp + IES)..."},
        {32505, "Calcular iluminacao (Zonas selecionadas ou do pavimento)"},
        {32506, "Diagnostico: coordenadas do corte ativo"},
        {32507, "Calcular plano vertical (Corte ativo)"},
        {32508, "Configuracoes do motor de simulacao..."},
        {32509, "Calcular paredes (Elevacao Interior ativa)"},
        {32510, "Tabela UGR das luminarias selecionadas"},
        {32511, "Inserir observador UGR (posicao de trabalho)"},
        {32512, "Quadro de luminarias (Folha de Trabalho)"},
        {32513, "Converter polilinha / spline em luminaria linear (fita de LED)..."},
        {32514, "Embutir operador de corte na luminaria (Laje selecionada)"},
        {32515, "Cotas de luminotecnico..."},
        {32516, "Simbolos em planta..."},
        {32517, "Circuitos e interruptores..."},
        {32518, "Gerar vistas (Simulacao e Projeto)"},
        {32519, "Exportar luminarias selecionadas para o catalogo..."},
        {32520, "Catalogo online de luminarias..."},
        {32521, "Distribuir luminarias na Zona..."},
        {32523, "Mostrar / ocultar a barra de ferramentas"},
    };
    ASSERT_EQ(CommandTable().size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(CommandTable()[i].number, cases[i].number);
        EXPECT_EQ(CommandTable()[i].name, cases[i].name);
    }
}

TEST(CommandTable, HasNoRowForOtherNumbers) {
    for (const int number : {0, 1, 32499, 32522, 32524, -32500}) {
        EXPECT_FALSE(FindCommand(AsPassed(number))) << number;
    }
}

class MenuCommands : public Tests::AddOnSession {
protected:
    static Numbers ShownDialogs() {
        Numbers shown;
        for (const auto& dialog : Workbench::CurrentSession().userInterface.shownDialogs) {
            shown.push_back(dialog.state.resource);
        }
        return shown;
    }
};

TEST_F(MenuCommands, AreReachedThroughTheHostsMenu) {
    RegisterInterface();
    Initialize();
    EXPECT_EQ(Workbench::ChooseMenuItem(32533, 5), Host::NoError);
    EXPECT_EQ(ShownDialogs(), Numbers{32650});
}

TEST_F(MenuCommands, AreReachedByTheNumbersOfEitherInterfaceWhicheverTheHostHas) {
    for (const bool dark : {false, true}) {
        Open(dark);
        EXPECT_EQ(MenuCommandHandler(32533, 5), Host::NoError);
        EXPECT_EQ(MenuCommandHandler(AsPassed(33533), 5), Host::NoError);
        EXPECT_EQ(ShownDialogs(), (Numbers{32650, 32650}));
    }
}

TEST_F(MenuCommands, DoNothingWithoutAnErrorWhereThereAreNone) {
    EXPECT_EQ(MenuCommandHandler(32533, 0), Host::NoError);
    EXPECT_EQ(MenuCommandHandler(32533, 6), Host::NoError);
    EXPECT_EQ(MenuCommandHandler(1, 1), Host::NoError);
    for (const int number : {0, 32499, 32522, 32524}) {
        ExecuteCommand(AsPassed(number));
    }
    EXPECT_EQ(ShownDialogs(), Numbers());
    EXPECT_TRUE(Tests::ReportWindow().empty());
}

TEST_F(MenuCommands, DoNothingUntilTheyAreBuilt) {
    for (const CommandRow& command : CommandTable()) {
        if (!command.run) {
            ExecuteCommand(command.number);
        }
    }
    EXPECT_EQ(ShownDialogs(), Numbers());
    EXPECT_TRUE(Tests::ReportWindow().empty());
}

class DarkModeIcons : public Tests::AddOnSession {
protected:
    /// The icon behind the last item of a palette of the resource, 0 when there is none.
    static std::int16_t AppendedIcon(std::int16_t resource) {
        Host::DialogId panel = 0;
        EXPECT_EQ(Host::CreatePalette(resource, {}, panel), Host::NoError);
        const std::int16_t before = Host::ItemCount(panel);
        DarkModeIcon(panel);
        const std::int16_t count = Host::ItemCount(panel);
        return count == before ? std::int16_t{0} : Host::ItemIcon(panel, count);
    }
};

TEST_F(DarkModeIcons, GiveADialogTheLightMarkInTheDarkInterface) {
    Open(true);
    EXPECT_EQ(AppendedIcon(32750), 10203);
}

TEST_F(DarkModeIcons, GiveNothingInTheLightInterface) {
    EXPECT_EQ(AppendedIcon(32750), 0);
}

TEST_F(DarkModeIcons, GiveNothingToADialogWithoutItems) {
    Open(true);
    std::string error;
    ASSERT_TRUE(Workbench::ParseResourceScript(
        R"('GDLG' 32100 Palette | noGrow | topCaption | close 0 0 10 10 "Vazio" {})",
        Workbench::CurrentSession().userInterface.resources, error))
        << error;
    EXPECT_EQ(AppendedIcon(32100), 0);
}

} // namespace
} // namespace Merivane::Commands
