#include "AddOn/CommandTable.hpp"

#include <algorithm>

#include "AddOn/Commands/AddIesToSelectedObject.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "AddOn/Commands/CheckRadianceInstallation.hpp"
#include "AddOn/Commands/ConfigureEngine.hpp"
#include "AddOn/Commands/ToolbarPalette.hpp"

namespace Merivane::Commands {

namespace {

constexpr bool WithoutProject = false;

constexpr CommandRow Rows[] = {
    {32500, "Diagnostico: luminarias selecionadas"},
    {32501, "Diagnostico: criar camada de teste"},
    {32502, "Verificar instalacao do Radiance...", Diagnostics::CheckRadianceInstallation,
     WithoutProject},
    {32503, "Adicionar fotometria IES ao objeto selecionado...", AddIesToSelectedObject},
    {32504, "Importar luminaria (SketchUp + IES)..."},
    {32505, "Calcular iluminacao (Zonas selecionadas ou do pavimento)", CalculateLighting},
    {32506, "Diagnostico: coordenadas do corte ativo"},
    {32507, "Calcular plano vertical (Corte ativo)"},
    {32508, "Configuracoes do motor de simulacao...", ConfigureEngine, WithoutProject},
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
    {32523, "Mostrar / ocultar a barra de ferramentas", ToggleToolbar, WithoutProject},
};

} // namespace

std::span<const CommandRow> CommandTable() {
    return Rows;
}

const CommandRow* FindCommand(std::int16_t number) {
    const CommandRow* const end = std::end(Rows);
    const CommandRow* const found = std::find_if(
        std::begin(Rows), end, [&](const CommandRow& row) { return row.number == number; });
    return found == end ? nullptr : found;
}

void ExecuteCommand(std::int16_t number) {
    const CommandRow* const command = FindCommand(number);
    if (command && command->run) {
        command->run();
    }
}

} // namespace Merivane::Commands
