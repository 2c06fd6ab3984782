#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <utility>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf16Length.hpp"
#include "Workbench/Parts/ParameterTags.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Parts/XmlPieces.hpp"
#include "Workbench/Parts/XmlReading.hpp"

namespace Merivane::Workbench::Parts {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;
using pugi::xml_node;

constexpr std::size_t LongestText = 255; // units of UTF-16
constexpr std::size_t MostArrayValues = 1'000'000;

std::string Named(const LibraryParameter& parameter) {
    return "o parâmetro " + Text::QuotedText(parameter.name) + ' ';
}

bool ReadShortText(XmlSource& source, const xml_node& node, const LibraryParameter& parameter,
                   std::string& text) {
    text = InnerString(node);
    return Text::Utf16Length(text) <= LongestText ||
           RefuseNode(source, node, Named(parameter) + "tem um texto de mais de 255 caracteres");
}

bool ReadFiniteNumber(XmlSource& source, const xml_node& node, const LibraryParameter& parameter,
                      double& number) {
    const std::string text = InnerText(node);
    return (Text::ReadEntireNumber(text, number) && std::isfinite(number)) ||
           RefuseNode(source, node,
                      Named(parameter) + "tem " + Text::QuotedText(text) +
                          " onde se espera um número");
}

/// A dimension or a place of an array; false for what is no whole number of `lowest` to the most
/// values that a part can have.
bool ReadCount(const xml_node& node, const char* attribute, double lowest, std::int32_t& count) {
    double read = 0.0;
    if (!Text::ReadEntireNumber(node.attribute(attribute).value(), read) || !(read >= lowest) ||
        read > static_cast<double>(MostArrayValues) || read != std::floor(read)) {
        return false;
    }
    count = static_cast<std::int32_t>(read);
    return true;
}

bool ReadDimensions(XmlSource& source, const xml_node& node, LibraryParameter& parameter) {
    parameter.isArray = true;
    if (!ReadCount(node, "FirstDimension", 1.0, parameter.dim1) ||
        !ReadCount(node, "SecondDimension", 0.0, parameter.dim2)) {
        return RefuseNode(source, node, Named(parameter) + "tem dimensões que não servem");
    }
    parameter.dim2 = parameter.dim2 == 1 ? 0 : parameter.dim2;
    const auto columns = static_cast<std::size_t>(std::max(parameter.dim2, 1));
    const std::size_t count = static_cast<std::size_t>(parameter.dim1) * columns;
    source.arrayValues += count;
    if (source.arrayValues > MostArrayValues) {
        return RefuseNode(source, node,
                          "as matrizes da peça têm mais de " + std::to_string(MostArrayValues) +
                              " valores");
    }
    if (parameter.type == ParameterType::String) {
        parameter.texts.resize(count);
    } else {
        parameter.numbers.resize(count);
    }
    return true;
}

bool ReadArrayValue(XmlSource& source, const xml_node& node, LibraryParameter& parameter) {
    const std::int32_t columns = std::max(parameter.dim2, 1);
    std::int32_t row = 0;
    std::int32_t column = 1;
    const bool hasColumn = node.attribute("Column");
    if (!ReadCount(node, "Row", 1.0, row) || row > parameter.dim1 ||
        (hasColumn && (!ReadCount(node, "Column", 1.0, column) || column > columns))) {
        return RefuseNode(source, node, Named(parameter) + "tem um valor fora da matriz");
    }
    NoteAttributes(source, node, {"Row", "Column", "Meaning"});
    const auto place = static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns) +
                       static_cast<std::size_t>(column - 1);
    return parameter.type == ParameterType::String
               ? ReadShortText(source, node, parameter, parameter.texts[place])
               : ReadFiniteNumber(source, node, parameter, parameter.numbers[place]);
}

bool ReadArray(XmlSource& source, const xml_node& node, LibraryParameter& parameter) {
    if (!ReadDimensions(source, node, parameter)) {
        return false;
    }
    NoteAttributes(source, node, {"FirstDimension", "SecondDimension"});
    for (const xml_node& child : node.children()) {
        if (child.name() != std::string_view("AVal")) {
            NoteUnknown(source, child);
        } else if (!ReadArrayValue(source, child, parameter)) {
            return false;
        }
    }
    return true;
}

void ReadFlags(XmlSource& source, const xml_node& node, std::int32_t& flags) {
    const auto known = ParameterFlags();
    for (const xml_node& child : node.children()) {
        const auto found =
            std::find_if(known.begin(), known.end(),
                         [&child](const ParameterFlag& flag) { return flag.tag == child.name(); });
        if (found == known.end()) {
            NoteUnknown(source, child);
        } else {
            flags |= found->bit;
        }
    }
}

bool ReadParameterChild(XmlSource& source, const xml_node& child, LibraryParameter& parameter) {
    const std::string_view name = child.name();
    const bool hasValue =
        parameter.type != ParameterType::Separator && parameter.type != ParameterType::Title;
    if (name == "Description") {
        return ReadShortText(source, child, parameter, parameter.description);
    }
    if (name == "Fix") {
        parameter.flags |= Host::ParameterFixed;
    } else if (name == "Flags") {
        ReadFlags(source, child, parameter.flags);
    } else if (name == "Value" && hasValue) {
        return parameter.type == ParameterType::String
                   ? ReadShortText(source, child, parameter, parameter.text)
                   : ReadFiniteNumber(source, child, parameter, parameter.number);
    } else if (name == "ArrayValues" && hasValue && !parameter.isArray) {
        return ReadArray(source, child, parameter);
    } else {
        NoteUnknown(source, child);
    }
    return true;
}

bool ReadParameter(XmlSource& source, const xml_node& node, PartParameter& read) {
    LibraryParameter& parameter = read.value;
    if (!FindParameterType(node.name(), parameter.type)) {
        return RefuseNode(source, node,
                          "não há parâmetros do tipo " + Text::QuotedText(node.name()));
    }
    parameter.name = node.attribute("Name").value();
    if (!IsParameterName(parameter.name)) {
        return RefuseNode(source, node,
                          Text::QuotedText(parameter.name) +
                              " não serve de nome de parâmetro: espera-se um nome ASCII sem "
                              "espaços, de no máximo 31 caracteres");
    }
    if (parameter.type == ParameterType::Dictionary) {
        read.kept = ElementText(source, node);
        return true;
    }
    NoteAttributes(source, node, {"Name", "Meaning"});
    for (const xml_node& child : node.children()) {
        if (!ReadParameterChild(source, child, parameter)) {
            return false;
        }
    }
    if (parameter.isArray) {
        parameter.number = 0.0; // of a value beside the array
        parameter.text.clear();
    }
    return true;
}

bool IsSize(const LibraryParameter& parameter, const LibraryParameter& size) {
    return parameter.name == size.name && parameter.type == ParameterType::Length &&
           !parameter.isArray;
}

bool ReadParameterList(XmlSource& source, const xml_node& list, ParameterSection& section) {
    std::set<std::string> names;
    for (const xml_node& child : list.children()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        PartParameter read;
        if (!ReadParameter(source, child, read)) {
            return false;
        }
        if (!names.insert(Text::ToLower(read.value.name)).second) {
            return RefuseNode(source, child,
                              "o nome " + Text::QuotedText(read.value.name) +
                                  " já é de outro parâmetro da peça");
        }
        if (IsSize(read.value, section.sizeA)) {
            section.sizeA = std::move(read.value);
        } else if (IsSize(read.value, section.sizeB)) {
            section.sizeB = std::move(read.value);
        } else {
            section.parameters.push_back(std::move(read));
        }
    }
    return true;
}

} // namespace

bool ReadParameterSection(XmlSource& source, const xml_node& node, ParameterSection& section) {
    section = {};
    for (const xml_node& child : node.children()) {
        const std::string_view name = child.name();
        if (name == "ParamSectHeader") {
            section.header = ElementText(source, child);
            if (ParameterHeaderXml({}) == ParameterHeaderXml(section)) {
                section.header.clear(); // the usual one
            }
        } else if (name != "Parameters") {
            NoteUnknown(source, child);
        } else if (!ReadParameterList(source, child, section)) {
            return false;
        }
    }
    return true;
}

bool ReadParameterXml(std::string_view xml, ParameterSection& section, std::string& error) {
    XmlSource source;
    ParameterSection read;
    if (!ParseXml(xml, "ParamSection", source) ||
        !ReadParameterSection(source, source.document.document_element(), read)) {
        error = source.error;
        return false;
    }
    section = std::move(read);
    return true;
}

} // namespace Merivane::Workbench::Parts
