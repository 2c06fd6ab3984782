#include "Program/CalculateForm.hpp"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Simulation/Verification/TaskSearch.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Program {

namespace {

/// Values of the line that are judged once it is split.
struct RawValues {
    std::string profile;
    std::string scale;
    std::string levels;
    std::string workPlaneHeight;
    std::string wallOffset;
    std::string borderBand;
    std::string valueSpacing;
    std::string palette;
    std::string standard;
    std::string zones;
    std::vector<std::string> activities;
};

void AddFiles(CLI::App& command, CalculateArguments& arguments) {
    command.add_option("PROJETO", arguments.projectFile, "Projeto (.vantoro)")
        ->required()
        ->type_name("");
    command
        .add_option("--saida", arguments.outputFolder,
                    "Pasta dos resultados (PROJETO-resultado, ao lado do projeto gravado)")
        ->type_name("PASTA");
    command
        .add_option("--salvar-como", arguments.saveAs,
                    "Grava o projeto neste arquivo, e não no seu")
        ->type_name("ARQUIVO");
    command
        .add_option("--pasta-de-trabalho", arguments.workFolder,
                    "Pasta dos arquivos do Radiance (a do usuário, na pasta temporária)")
        ->type_name("PASTA");
    command
        .add_option("--respostas", arguments.answerFile,
                    "Outras respostas aos diálogos (JSON); as opções valem mais")
        ->type_name("ARQUIVO");
}

void AddQuestions(CLI::App& command, RawValues& raw) {
    command
        .add_option("--zonas", raw.zones,
                    "Zonas por nome ou número, separadas por \";\"; \"*\" são todas (as "
                    "selecionadas no projeto, ou as do pavimento mostrado)")
        ->type_name("NOMES");
    command
        .add_option("--perfil", raw.profile,
                    "Perfil do motor só nesta vez: rapido, projeto ou final")
        ->type_name("NOME");
    command
        .add_option("--atividade", raw.activities,
                    "Atividade de uma Zona: \"Sala 1=s22.2\", ou \"Sala 1=nenhuma\"; pode se "
                    "repetir")
        ->type_name("ZONA=ID")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false);
    command.add_option("--norma", raw.standard, "Norma da verificação: nbr ou iso")
        ->type_name("NOME");
    command.add_option("--plano", raw.workPlaneHeight, "Altura do plano de trabalho em metros")
        ->type_name("N");
    command.add_option("--afastamento", raw.wallOffset, "Dos pontos à parede em metros")
        ->type_name("N");
    command.add_option("--faixa", raw.borderBand, "Faixa de borda fora das estatísticas em metros")
        ->type_name("N");
}

void AddDrawing(CLI::App& command, CalculationChoices& choices, RawValues& raw) {
    command.add_option("--escala", raw.scale, "Escala da planta: 50 para 1:50 (a do projeto)")
        ->type_name("N");
    command
        .add_option("--niveis", raw.levels,
                    "Níveis das curvas e das cores em lux: \"50; 100; 300\"")
        ->type_name("LISTA");
    command.add_option("--paleta", raw.palette, "Cores das faixas: espectro, calor ou cinza")
        ->type_name("NOME");
    command.add_option("--valores", raw.valueSpacing, "Escreve os valores a cada N metros")
        ->type_name("N");
    command.add_flag("--sem-mapa", choices.noFills, "Sem mapa de cor falsa (faixas preenchidas)");
    command.add_flag("--sem-curvas", choices.noCurves, "Sem curvas isolux");
    command.add_flag("--sem-rotulos", choices.noLabels, "Sem o valor escrito em cada curva");
    command.add_flag("--sem-legenda", choices.noLegend, "Sem a legenda de cores");
}

void AddOmissions(CLI::App& command, CalculationChoices& choices) {
    command.add_flag("--sem-verificacao", choices.noVerification,
                     "Sem verificar as Zonas contra as suas atividades");
    command.add_flag("--sem-superficies", choices.noSurfaces, "Sem calcular também paredes e teto");
    command.add_flag("--sem-ugr", choices.noGlare, "Sem calcular o ofuscamento");
    command.add_flag("--sem-cor", choices.noColour,
                     "Sem a cor das superfícies na luz refletida: reflexão cinza");
}

void AddReport(CLI::App& command, CalculateArguments& arguments) {
    command.add_flag("--verificar", arguments.verify,
                     "Termina com o estado 3 se uma Zona não atende a um requisito da norma");
    command.add_flag("--repetivel", arguments.repeatable,
                     "Um só processo e sorteio fixo: os mesmos arquivos a cada vez");
    command.add_flag("--silencioso", arguments.silent, "Só escreve os erros");
    command.add_flag("--json", arguments.json, "Escreve resultado.json na saída padrão");
}

/// "Sala 1=s22.2": the last sign of equality parts, as a Zone's name may hold one.
bool ReadActivity(const std::string& text, ZoneActivity& activity, std::string& error) {
    const std::size_t sign = text.rfind('=');
    if (sign == std::string::npos || sign == 0) {
        error = "--atividade: \"" + text + "\" não tem a forma \"Zona=atividade\"";
        return false;
    }
    activity.zone = text.substr(0, sign);
    const std::string id = text.substr(sign + 1);
    if (id == "nenhuma") {
        return true;
    }
    const Simulation::TaskRow* const task = Simulation::FindTask(id);
    if (!task) {
        error = "--atividade: não há a atividade \"" + id + "\" (veja \"vantoro atividades\")";
        return false;
    }
    activity.taskId = task->id;
    return true;
}

bool JudgeActivities(const RawValues& raw, CalculateArguments& arguments, std::string& error) {
    for (const std::string& text : raw.activities) {
        ZoneActivity activity;
        if (!ReadActivity(text, activity, error)) {
            return false;
        }
        arguments.activities.push_back(activity);
    }
    return true;
}

std::vector<std::string> SplitNames(const std::string& text) {
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(';', begin), text.size());
        const std::string name(Text::Trim(text.substr(begin, end - begin)));
        if (!name.empty()) {
            names.push_back(name);
        }
        begin = end + 1;
    }
    return names;
}

bool JudgeZones(const RawValues& raw, CalculateArguments& arguments, std::string& error) {
    arguments.zones = SplitNames(raw.zones);
    if (arguments.zones.empty() && !raw.zones.empty()) {
        error = "--zonas: \"" + raw.zones + "\" não diz nenhuma Zona";
        return false;
    }
    return true;
}

bool JudgeAgreement(const CalculateArguments& arguments, std::string& error) {
    if (!arguments.choices.noVerification) {
        return true;
    }
    for (const auto& [given, option] : {std::pair{!arguments.activities.empty(), "--atividade"},
                                        std::pair{arguments.standard.has_value(), "--norma"},
                                        std::pair{arguments.verify, "--verificar"}}) {
        if (given) {
            error = std::string(option) + " não vai junto com --sem-verificacao";
            return false;
        }
    }
    return true;
}

bool Judge(const RawValues& raw, CalculateArguments& arguments, std::string& error) {
    CalculationChoices& choices = arguments.choices;
    if (!raw.levels.empty()) {
        choices.levels = raw.levels;
    }
    // The ranges are those of the dialog's fields.
    return JudgeScale(raw.scale, arguments.scale, error) &&
           JudgeNumber("--plano", raw.workPlaneHeight, 0.0, 100.0, choices.workPlaneHeight,
                       error) &&
           JudgeNumber("--afastamento", raw.wallOffset, 0.0, 5.0, choices.wallOffset, error) &&
           JudgeNumber("--faixa", raw.borderBand, 0.0, 10.0, choices.borderBand, error) &&
           JudgeNumber("--valores", raw.valueSpacing, 0.05, 100.0, choices.valueSpacing, error) &&
           JudgeWord("--perfil", raw.profile, {"rapido", "projeto", "final"}, arguments.profile,
                     error) &&
           JudgeWord("--paleta", raw.palette, {"espectro", "calor", "cinza"}, choices.colorScale,
                     error) &&
           JudgeStandard(raw.standard, arguments.standard, error) &&
           JudgeActivities(raw, arguments, error) && JudgeZones(raw, arguments, error) &&
           JudgeAgreement(arguments, error);
}

} // namespace

Judgement AddCalculateOptions(CLI::App& command, CalculateArguments& arguments) {
    const auto raw = std::make_shared<RawValues>();
    AddFiles(command, arguments);
    AddQuestions(command, *raw);
    AddOmissions(command, arguments.choices);
    AddDrawing(command, arguments.choices, *raw);
    AddReport(command, arguments);
    return [raw, &arguments](std::string& error) { return Judge(*raw, arguments, error); };
}

} // namespace Merivane::Program
