#include "Program/CatalogForm.hpp"

namespace Merivane::Program {

namespace {

void AddAddress(CLI::App& command, std::string& address) {
    command.add_option("PASTA|ENDEREÇO", address, "Pasta do catálogo, ou seu endereço na internet")
        ->required()
        ->type_name("");
}

void AddJson(CLI::App& command, bool& json) {
    command.add_flag("--json", json, "Escreve em JSON na saída padrão");
}

} // namespace

void AddCheckCatalogOptions(CLI::App& command, CheckCatalogArguments& arguments) {
    AddAddress(command, arguments.address);
    AddJson(command, arguments.json);
}

void AddListCatalogOptions(CLI::App& command, ListCatalogArguments& arguments) {
    AddAddress(command, arguments.address);
    command
        .add_option("TEXTO", arguments.words,
                    "Palavras procuradas, em qualquer ordem, sem acentos ou com eles")
        ->type_name("");
    command
        .add_option("--fabricante", arguments.manufacturer,
                    "Só os deste fabricante; \"(sem fabricante)\" para os de nenhum")
        ->type_name("NOME");
    AddJson(command, arguments.json);
}

} // namespace Merivane::Program
