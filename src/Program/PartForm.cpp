#include "Program/PartForm.hpp"

namespace Merivane::Program {

namespace {

void AddPartFile(CLI::App& command, std::string& file) {
    command.add_option("PECA", file, "Peça de biblioteca (.gsm)")->required()->type_name("");
}

} // namespace

void AddShowPartOptions(CLI::App& command, ShowPartArguments& arguments) {
    AddPartFile(command, arguments.file);
}

Judgement AddExportPartOptions(CLI::App& command, ExportPartArguments& arguments) {
    AddPartFile(command, arguments.file);
    command
        .add_option("--hsf", arguments.folder,
                    "Faz nesta pasta a pasta da peça: scripts, parâmetros e imagens em arquivos")
        ->type_name("PASTA");
    command
        .add_option("--xml", arguments.xmlFile,
                    "Grava a peça como um documento XML; as imagens, numa pasta ao lado")
        ->type_name("ARQUIVO");
    return [&command, &arguments](std::string& error) {
        if (command.parsed() && arguments.folder.empty() && arguments.xmlFile.empty()) {
            error = "falta --hsf ou --xml";
            return false;
        }
        return true;
    };
}

} // namespace Merivane::Program
