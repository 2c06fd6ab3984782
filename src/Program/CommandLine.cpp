#include "Program/CommandLine.hpp"

#include <algorithm>
#include <functional>
#include <memory>
#include <string_view>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "Program/ArgumentValues.hpp"
#include "Program/CalculateForm.hpp"
#include "Program/CatalogForm.hpp"
#include "Program/CommandChoice.hpp"
#include "Program/PartForm.hpp"
#include "Program/Version.hpp"

namespace Merivane::Program {

namespace {

/// The line as CLI11 splits it; values that are not free text wait in strings.
struct RawLine {
    SimulateArguments simulate;
    IesArguments ies;
    UgrArguments ugr;
    TasksArguments tasks;
    RunArguments run;
    DrawArguments draw;
    CalculateArguments calculate;
    CheckCatalogArguments checkCatalog;
    ListCatalogArguments listCatalog;
    ShowPartArguments showPart;
    ExportPartArguments exportPart;
    std::string scale;
    std::string drawingScale;
    std::string floor;
    std::string palette;
    std::string values;
    std::string height;
    std::vector<std::string> taskWords;
    std::string command;
    std::vector<Judgement> judgements;
};

std::shared_ptr<CLI::Formatter> PortugueseHelp() {
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Uso");
    formatter->label("OPTIONS", "OPÇÕES");
    formatter->label("Positionals", "Argumentos");
    formatter->label("SUBCOMMAND", "COMANDO");
    formatter->label("REQUIRED", "(exigido)"); // columns are counted in bytes: no accent
    formatter->column_width(34);
    return formatter;
}

void Prepare(CLI::App& app) {
    app.set_help_flag("-a,--ajuda,--help", "Mostra esta ajuda");
    app.get_help_ptr()->group("Opções");
    app.option_defaults()->group("Opções");
}

CLI::App* AddSimulate(CLI::App& app, RawLine& line) {
    CLI::App* command =
        app.add_subcommand("simular", "Calcula a luz de uma cena e desenha as plantas");
    Prepare(*command);
    SimulateArguments& arguments = line.simulate;
    command->add_option("CENA", arguments.sceneFile, "Documento da cena (JSON)")
        ->required()
        ->type_name("");
    command->add_option("--saida", arguments.outputFolder, "Pasta dos resultados")
        ->required()
        ->type_name("PASTA");
    command
        ->add_option("--pasta-de-trabalho", arguments.workFolder,
                     "Pasta dos arquivos do Radiance; é mantida")
        ->type_name("PASTA");
    command->add_option("--escala", line.scale, "Escala das plantas: 50 para 1:50")->type_name("N");
    command->add_option("--paleta", line.palette, "Cores das faixas: espectro, calor ou cinza")
        ->type_name("NOME");
    command->add_option("--valores", line.values, "Escreve os valores a cada N metros, onde cabem")
        ->type_name("N");
    command->add_flag("--verificar", arguments.verify,
                      "Termina com o estado 3 se uma Zona não atende a um requisito da norma");
    command->add_flag("--explicar", arguments.explain,
                      "Mostra o ofuscamento de cada observador, luminária por luminária");
    command->add_flag("--repetivel", arguments.repeatable,
                      "Um só processo e sorteio fixo: os mesmos valores e plantas a cada vez");
    command->add_flag("--silencioso", arguments.silent, "Só escreve os erros");
    command->add_flag("--json", arguments.json, "Escreve o resultado em JSON na saída padrão");
    line.judgements.emplace_back([&line](std::string& error) {
        return JudgeScale(line.scale, line.simulate.scale, error) &&
               JudgePositive("--valores", line.values, line.simulate.valueSpacing, error) &&
               JudgePalette(line.palette, line.simulate.colorScale, error);
    });
    return command;
}

CLI::App* AddIes(CLI::App& app, RawLine& line) {
    CLI::App* command = app.add_subcommand("ies", "Mostra o que arquivos IES contêm");
    Prepare(*command);
    command->add_option("ARQUIVO", line.ies.files, "Arquivos IES (LM-63)")
        ->required()
        ->type_name("");
    command->add_flag("--curva", line.ies.curve,
                      "Grava a curva polar de cada arquivo como PNG (NOME-curva.png)");
    command->add_option("--saida", line.ies.outputFolder, "Pasta das curvas (a atual)")
        ->type_name("PASTA");
    command->add_flag("--json", line.ies.json, "Escreve em JSON na saída padrão");
    return command;
}

CLI::App* AddUgr(CLI::App& app, RawLine& line) {
    CLI::App* command =
        app.add_subcommand("ugr", "Calcula a tabela UGR (CIE 117) de uma luminária");
    Prepare(*command);
    UgrArguments& arguments = line.ugr;
    command->add_option("ARQUIVO", arguments.file, "Arquivo IES (LM-63)")
        ->required()
        ->type_name("");
    command
        ->add_option("--altura", line.height,
                     "Metros do olho ao centro fotométrico, H (2,0 se não for dada)")
        ->type_name("H");
    command
        ->add_option("--saida", arguments.outputFolder,
                     "Grava nesta pasta a tabela em CSV e a folha em PDF e PNG")
        ->type_name("PASTA");
    command->add_flag("--explicar", arguments.explain,
                      "Mostra a sala de referência luminária por luminária");
    command->add_flag("--json", arguments.json, "Escreve em JSON na saída padrão");
    line.judgements.emplace_back([&line](std::string& error) {
        return JudgeRange("--altura", line.height, 0.3, 100.0, line.ugr.height, error);
    });
    return command;
}

CLI::App* AddTasks(CLI::App& app, RawLine& line) {
    CLI::App* command = app.add_subcommand("atividades", "Mostra a tabela de atividades da norma");
    Prepare(*command);
    command->add_option("TEXTO", line.taskWords, "Palavras procuradas, sem acentos ou com eles")
        ->type_name("");
    command->add_flag("--json", line.tasks.json, "Escreve em JSON na saída padrão");
    line.judgements.emplace_back([&line](std::string& /*error*/) {
        for (const std::string& word : line.taskWords) {
            line.tasks.text += (line.tasks.text.empty() ? "" : " ") + word;
        }
        return true;
    });
    return command;
}

CLI::App* AddRun(CLI::App& app, RawLine& line) {
    CLI::App* command = app.add_subcommand("executar", "Executa um comando do menu em um projeto");
    Prepare(*command);
    RunArguments& arguments = line.run;
    command->add_option("COMANDO", line.command, "Número do comando, ou parte do seu texto")
        ->required()
        ->type_name("");
    command
        ->add_option("PROJETO", arguments.projectFile,
                     "Projeto (.vantoro); gravado se o comando o mudar")
        ->type_name("");
    command
        ->add_option("--respostas", arguments.answerFile,
                     "Respostas aos diálogos (JSON); sem elas são aceitos como estão")
        ->type_name("ARQUIVO");
    command->add_flag("--mostrar-dialogos", arguments.showDialogs,
                      "Mostra como ficou cada diálogo");
    command
        ->add_option("--imagens", arguments.imageFolder,
                     "Grava nesta pasta uma imagem (PNG) de cada diálogo")
        ->type_name("PASTA");
    command
        ->add_option("--salvar-como", arguments.saveAs,
                     "Grava o projeto neste arquivo, e não no seu")
        ->type_name("ARQUIVO");
    line.judgements.emplace_back([command, &line](std::string& error) {
        if (!command->parsed()) {
            return true;
        }
        if (!line.run.saveAs.empty() && line.run.projectFile.empty()) {
            error = "--salvar-como: falta PROJETO";
            return false;
        }
        return JudgeCommand(line.command, line.run.command, error) &&
               JudgeProjectOf(line.run.command, line.run.projectFile, error);
    });
    return command;
}

CLI::App* AddDraw(CLI::App& app, RawLine& line) {
    CLI::App* command = app.add_subcommand("desenhar", "Desenha as janelas de um projeto");
    Prepare(*command);
    DrawArguments& arguments = line.draw;
    command->add_option("PROJETO", arguments.projectFile, "Projeto (.vantoro)")
        ->required()
        ->type_name("");
    command
        ->add_option("--janela", arguments.window,
                     "Só a folha, o corte ou a elevação com este nome ou esta referência")
        ->type_name("NOME");
    command->add_option("--pavimento", line.floor, "Só a planta do pavimento de índice N")
        ->type_name("N");
    command->add_flag("--axonometria", arguments.axonometry,
                      "Só o modelo em axonometria; com --pavimento, só o desse pavimento");
    command->add_flag("--simbolos", arguments.symbols,
                      "Nas plantas, o símbolo técnico de cada luminária em vez da sua forma");
    command
        ->add_option("--saida", arguments.outputFolder,
                     "Pasta dos desenhos, em SVG, PDF e PNG (a atual)")
        ->type_name("PASTA");
    command->add_option("--escala", line.drawingScale, "Escala: 50 para 1:50 (a de cada janela)")
        ->type_name("N");
    line.judgements.emplace_back([&line](std::string& error) {
        if (!line.draw.window.empty() && (line.draw.axonometry || !line.floor.empty())) {
            error = "--janela não vai junto com --pavimento nem com --axonometria";
            return false;
        }
        if (line.draw.symbols && (line.draw.axonometry || !line.draw.window.empty())) {
            error = "--simbolos só vale nas plantas: não vai junto com --janela nem com "
                    "--axonometria";
            return false;
        }
        return JudgeScale(line.drawingScale, line.draw.scale, error) &&
               JudgeFloor(line.floor, line.draw.floor, error);
    });
    return command;
}

CLI::App* AddCalculate(CLI::App& app, RawLine& line) {
    CLI::App* command = app.add_subcommand(
        "calcular", "Calcula a luz das Zonas de um projeto e desenha nele os resultados");
    Prepare(*command);
    line.judgements.push_back(AddCalculateOptions(*command, line.calculate));
    return command;
}

constexpr const char* CommandGroup = "Comandos";

CLI::App* AddCatalog(CLI::App& app) {
    CLI::App* command =
        app.add_subcommand("catalogo", "Verifica ou lista um catálogo de luminárias");
    Prepare(*command);
    command->require_subcommand(1);
    return command;
}

CLI::App* AddCheckCatalog(CLI::App& catalog, RawLine& line) {
    CLI::App* command = catalog.add_subcommand(
        "verificar", "Confere cada arquivo; termina com o estado 3 se algo não confere");
    command->group(CommandGroup);
    Prepare(*command);
    AddCheckCatalogOptions(*command, line.checkCatalog);
    return command;
}

CLI::App* AddListCatalog(CLI::App& catalog, RawLine& line) {
    CLI::App* command = catalog.add_subcommand("listar", "Mostra os produtos do catálogo");
    command->group(CommandGroup);
    Prepare(*command);
    AddListCatalogOptions(*command, line.listCatalog);
    return command;
}

CLI::App* AddPart(CLI::App& app) {
    CLI::App* command = app.add_subcommand("peca", "Mostra ou exporta uma peça de biblioteca");
    Prepare(*command);
    command->require_subcommand(1);
    return command;
}

CLI::App* AddShowPart(CLI::App& part, RawLine& line) {
    CLI::App* command = part.add_subcommand("mostrar", "Mostra o que a peça contém");
    command->group(CommandGroup);
    Prepare(*command);
    AddShowPartOptions(*command, line.showPart);
    return command;
}

CLI::App* AddExportPart(CLI::App& part, RawLine& line) {
    CLI::App* command =
        part.add_subcommand("exportar", "Grava a peça nas formas que o conversor do Archicad lê");
    command->group(CommandGroup);
    Prepare(*command);
    line.judgements.push_back(AddExportPartOptions(*command, line.exportPart));
    return command;
}

std::string Before(const std::string& text, std::string_view mark) {
    return text.substr(0, text.find(mark));
}

/// What CLI11 refused, in Portuguese. Its messages begin with the name of the option.
std::string Translate(const CLI::ParseError& refusal, const CLI::App& app) {
    const std::string text = refusal.what();
    const std::vector<std::string> remaining = app.remaining(true);
    if (dynamic_cast<const CLI::ExtrasError*>(&refusal) != nullptr && !remaining.empty()) {
        return "argumento desconhecido: " + remaining.front();
    }
    if (dynamic_cast<const CLI::RequiredError*>(&refusal) != nullptr) {
        const std::string name = Before(text, " is required");
        if (name != "A subcommand") {
            return "falta " + name;
        }
        return remaining.empty() ? "falta o comando" : "comando desconhecido: " + remaining.front();
    }
    if (text.find("At Most") != std::string::npos) {
        return Before(text, ":") + ": só pode aparecer uma vez";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&refusal) != nullptr) {
        return Before(text, ":") + ": falta o valor";
    }
    if (dynamic_cast<const CLI::ConversionError*>(&refusal) != nullptr) {
        return "opção sem valor usada com um valor";
    }
    return "linha de comando inválida";
}

/// The name of an option or argument that was given as an empty text, as a variable of a script
/// that was never set makes it; empty when there is none.
std::string NameWithoutValue(const CLI::App& app) {
    for (const CLI::App* command : app.get_subcommands()) {
        for (const CLI::Option* option : command->get_options()) {
            const std::vector<std::string>& values = option->results();
            if (std::find(values.begin(), values.end(), "") != values.end()) {
                return option->get_name();
            }
        }
        if (std::string name = NameWithoutValue(*command); !name.empty()) {
            return name;
        }
    }
    return {};
}

CommandLineResult WrongUse(const std::string& sentence, const CLI::App& app) {
    std::string command;
    for (std::vector<CLI::App*> given = app.get_subcommands(); !given.empty();
         given = given.front()->get_subcommands()) {
        command += given.front()->get_name() + " ";
    }
    CommandLineResult result;
    result.status = StatusWrongUse;
    result.error = "vantoro: " + sentence + ".\nVeja \"vantoro " + command + "--ajuda\".\n";
    return result;
}

/// A command of the program, and what it asks for once the line is read.
struct Form {
    const CLI::App* command = nullptr;
    std::function<Request()> request;
};

/// A command without arguments.
CLI::App* AddPlain(CLI::App& app, const char* name, const char* description) {
    CLI::App* command = app.add_subcommand(name, description);
    Prepare(*command);
    return command;
}

std::vector<Form> AddForms(CLI::App& app, RawLine& line) {
    std::vector<Form> forms = {
        {AddCalculate(app, line), [&line] { return line.calculate; }},
        {AddSimulate(app, line), [&line] { return line.simulate; }},
        {AddIes(app, line), [&line] { return line.ies; }},
        {AddUgr(app, line), [&line] { return line.ugr; }},
        {AddTasks(app, line), [&line] { return line.tasks; }},
        {AddPlain(app, "verificar-radiance",
                  "Verifica a instalação do Radiance com um teste exato"),
         [] { return CheckRadianceArguments{}; }},
        {AddPlain(app, "comandos", "Mostra o menu: grupos, números e textos"),
         [] { return ListCommandsArguments{}; }},
        {AddRun(app, line), [&line] { return line.run; }},
        {AddDraw(app, line), [&line] { return line.draw; }},
    };
    CLI::App& catalog = *AddCatalog(app);
    forms.push_back({AddCheckCatalog(catalog, line), [&line] { return line.checkCatalog; }});
    forms.push_back({AddListCatalog(catalog, line), [&line] { return line.listCatalog; }});
    CLI::App& part = *AddPart(app);
    forms.push_back({AddShowPart(part, line), [&line] { return line.showPart; }});
    forms.push_back({AddExportPart(part, line), [&line] { return line.exportPart; }});
    return forms;
}

} // namespace

CommandLineResult ReadCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app("Vantoro: estudos de iluminação", "vantoro");
    app.formatter(PortugueseHelp());
    Prepare(app);
    app.set_version_flag("--versao,--version", std::string("vantoro ") + Version,
                         "Mostra a versão");
    app.require_subcommand(1);

    RawLine line;
    const std::vector<Form> forms = AddForms(app, line);
    for (CLI::App* command : app.get_subcommands({})) {
        command->group(CommandGroup);
    }

    CommandLineResult result;
    try {
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        reversed.pop_back();
        app.parse(reversed);
    } catch (const CLI::CallForHelp&) {
        result.output = app.help();
        return result;
    } catch (const CLI::CallForVersion&) {
        result.output = std::string("vantoro ") + Version + "\n";
        return result;
    } catch (const CLI::ParseError& refusal) {
        return WrongUse(Translate(refusal, app), app);
    }

    if (const std::string name = NameWithoutValue(app); !name.empty()) {
        return WrongUse(name + ": falta o valor", app);
    }
    for (const Judgement& judge : line.judgements) {
        std::string error;
        if (!judge(error)) {
            return WrongUse(error, app);
        }
    }
    for (const Form& form : forms) {
        if (form.command->parsed()) {
            result.request = form.request();
        }
    }
    return result;
}

} // namespace Merivane::Program
