#include "Program/PartReport.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "Archicad/ContractConversion.hpp"
#include "Document/IesReport.hpp"
#include "Document/TextColumns.hpp"
#include "Host/GuidText.hpp"
#include "Photometry/ContractReading.hpp"
#include "Photometry/IesWriter.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Project/FileWords.hpp"

namespace Merivane::Program {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;
using Workbench::Parts::PartDocument;

constexpr std::size_t LongestShown = 48; // bytes of a text in a table

using Lines = std::vector<std::string>;

std::string Row(std::string_view label, std::string_view value) {
    constexpr std::size_t column = 18;
    return "  " + Document::PadRight(label, column) + std::string(value);
}

std::string Shortened(std::string_view text) {
    const std::string shown = Text::ShownText(text);
    return shown.size() <= LongestShown ? shown : Text::TruncateUtf8(shown, LongestShown) + "...";
}

std::string_view TypeName(Host::PartType type) {
    constexpr std::array<std::string_view, 14> names = {
        "desconhecido", "desconhecido",    "janela",      "porta",           "objeto",
        "luminária",    "carimbo de Zona", "propriedade", "sinal de planta", "etiqueta",
        "macro",        "imagem",          "lista",       "claraboia"};
    const auto number = static_cast<std::size_t>(type);
    return number < names.size() ? names[number] : names[0];
}

std::string SubtypeText(const PartDocument& document) {
    if (document.ancestry.empty()) {
        return "nenhum";
    }
    const Host::Guid& parent = document.ancestry.back();
    const std::string name = Workbench::Parts::NameOfSubtype(parent);
    return name.empty() ? Host::GuidText(parent) : name + ' ' + Host::GuidText(parent);
}

std::string YesOrNo(bool value) {
    return value ? "sim" : "não";
}

void AppendIdentity(const Workbench::ProjectPart& part, const PartDocument& document,
                    Lines& lines) {
    lines.push_back(part.name);
    lines.push_back(Row("Tipo", TypeName(document.type)));
    lines.push_back(Row("Subtipo", SubtypeText(document)));
    lines.push_back(Row("GUID", Host::GuidText(document.mainGuid)));
    if (document.revision != Host::Guid()) {
        lines.push_back(Row("Revisão", Host::GuidText(document.revision)));
    }
    lines.push_back(Row("Colocável", YesOrNo(document.isPlaceable)));
    lines.push_back(Row("Tamanho A x B", Document::FormatSignificant(part.sizeA) + " x " +
                                             Document::FormatSignificant(part.sizeB) + " m"));
    for (const auto& [type, label] :
         {std::pair<std::string_view, std::string_view>{"CTXT", "Comentário"},
          {"KWRD", "Palavras-chave"}}) {
        if (const std::string* const text = Workbench::Parts::FindText(document, type)) {
            lines.push_back(Row(label, Text::ShownText(*text)));
        }
    }
    if (document.hasCopyright) {
        lines.push_back(Row("Direitos", Text::ShownText(document.copyright.author + ' ' +
                                                        document.copyright.licence + ' ' +
                                                        document.copyright.licenceVersion)));
    }
}

std::string ValueText(const LibraryParameter& parameter) {
    if (parameter.isArray) {
        const std::string rows = std::to_string(parameter.dim1);
        return parameter.dim2 > 1 ? "matriz " + rows + " x " + std::to_string(parameter.dim2)
                                  : "lista de " + rows;
    }
    switch (parameter.type) {
    case ParameterType::String:
        return '"' + Shortened(parameter.text) + '"';
    case ParameterType::Title:
    case ParameterType::Separator:
    case ParameterType::Dictionary:
        return "";
    case ParameterType::Boolean:
        return YesOrNo(parameter.number != 0.0);
    case ParameterType::Length:
        return Document::FormatSignificant(parameter.number) + " m";
    case ParameterType::Angle:
        return Document::FormatSignificant(parameter.number) + "°";
    default:
        return Document::FormatSignificant(parameter.number);
    }
}

std::string FlagsText(std::int32_t flags) {
    std::string text;
    for (const auto& [flag, word] :
         {std::pair<std::int32_t, std::string_view>{Host::ParameterFixed, "do subtipo"},
          {Host::ParameterHidden, "oculto"},
          {Host::ParameterUnique, "único"},
          {Host::ParameterDisabled, "desativado"}}) {
        if ((flags & flag) != 0) {
            text += (text.empty() ? "" : ", ") + std::string(word);
        }
    }
    return text;
}

/// Cells as columns, each as wide as its widest.
void AppendTable(const std::vector<std::array<std::string, 5>>& rows, Lines& lines) {
    std::array<std::size_t, 5> widths = {};
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], Document::CharacterCount(row[i]));
        }
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += "  " + Document::PadRight(row[i], widths[i]);
        }
        lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
    }
}

void AppendParameters(const PartDocument& document, Lines& lines) {
    if (!document.hasParameters) {
        lines.insert(lines.end(), {"", "Sem parâmetros"});
        return;
    }
    const auto& parameters = document.parameters.parameters;
    lines.insert(lines.end(), {"", "Parâmetros: " + std::to_string(parameters.size())});
    std::vector<std::array<std::string, 5>> rows;
    for (const Workbench::Parts::PartParameter& parameter : parameters) {
        const LibraryParameter& value = parameter.value;
        rows.push_back({value.name,
                        std::string(WordOf(Workbench::ParameterTypeWords(), value.type)),
                        ValueText(value), Shortened(value.description), FlagsText(value.flags)});
    }
    AppendTable(rows, lines);
}

std::string CountText(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

std::string ScriptName(std::string_view type) {
    for (const auto& [known, name] : {std::pair<std::string_view, std::string_view>{"3DSC", "3D"},
                                      {"2DSC", "2D"},
                                      {"1DSC", "mestre"},
                                      {"VLSC", "parâmetros"},
                                      {"UISC", "interface"},
                                      {"PRSC", "propriedades"},
                                      {"FMSC", "migração para a frente"},
                                      {"BMSC", "migração para trás"}}) {
        if (known == type) {
            return std::string(name);
        }
    }
    return {};
}

void AppendScripts(const PartDocument& document, Lines& lines) {
    lines.insert(lines.end(), {"", "Scripts"});
    for (const Workbench::Parts::TextSection& section : document.texts) {
        const std::string name = ScriptName(section.type);
        const std::string& text = section.text;
        const auto ends = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
        const std::size_t count = ends + (text.empty() || text.ends_with('\n') ? 0U : 1U);
        if (!name.empty()) {
            lines.push_back(Row(name, CountText(count, "linha", "linhas")));
        }
    }
}

void AppendPictures(const PartDocument& document, Lines& lines) {
    if (!document.pictures.empty()) {
        lines.insert(lines.end(), {"", "Imagens"});
    }
    for (const Workbench::Parts::PictureSection& picture : document.pictures) {
        const std::string name =
            picture.isPreview ? "prévia" : "imagem " + std::to_string(picture.subIdent);
        lines.push_back(Row(name, picture.mime + ", " +
                                      (picture.bytes.empty()
                                           ? "fora da peça: " + picture.path
                                           : CountText(picture.bytes.size(), "byte", "bytes"))));
    }
    if (!document.custom.empty()) {
        lines.insert(lines.end(), {"", "Outras seções"});
    }
    for (const Workbench::Parts::CustomSection& section : document.custom) {
        lines.push_back(Row(section.type, CountText(section.bytes.size(), "byte", "bytes")));
    }
}

void AppendPhotometry(const Workbench::ProjectPart& part, Lines& lines) {
    const auto contract = Archicad::FromAddPars(part.parameters);
    if (!Photometry::FindParameter(contract, "mvContractVersion")) {
        return;
    }
    Photometry::IesFile file;
    const Photometry::ContractReadResult read = Photometry::ReadContract(contract, file);
    lines.insert(lines.end(), {"", "Fotometria"});
    if (!read.ok) {
        lines.push_back("  " + read.error);
        return;
    }
    const std::string name = Photometry::ReadLuminaireSettings(contract).iesFileName;
    const Document::IesReport report = Document::BuildIesReport(name, Photometry::WriteIes(file));
    const Lines told = Document::IesReportLines(report);
    lines.insert(lines.end(), told.begin(), told.end());
}

} // namespace

std::vector<std::string> PartReportLines(const Workbench::ProjectPart& part) {
    Lines lines;
    if (!part.document) {
        return lines;
    }
    AppendIdentity(part, *part.document, lines);
    AppendParameters(*part.document, lines);
    AppendScripts(*part.document, lines);
    AppendPictures(*part.document, lines);
    AppendPhotometry(part, lines);
    return lines;
}

} // namespace Merivane::Program
