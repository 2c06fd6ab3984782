#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "Host/GuidText.hpp"
#include "Text/Ascii.hpp"
#include "Text/Base64.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Parts/XmlPieces.hpp"
#include "Workbench/Parts/XmlReading.hpp"

namespace Merivane::Workbench::Parts {

namespace {

using pugi::xml_node;

bool ReadTruth(XmlSource& source, const xml_node& node, const char* name, bool& value) {
    const pugi::xml_attribute attribute = node.attribute(name);
    const std::string_view text = attribute.value();
    if (attribute && text != "true" && text != "false") {
        return RefuseNode(source, node,
                          "o atributo \"" + std::string(name) + "\" é " + Text::QuotedText(text) +
                              ", e não true ou false");
    }
    value = attribute ? text == "true" : value;
    return true;
}

bool ReadWhole(XmlSource& source, const xml_node& node, const char* name, std::int64_t& value) {
    constexpr double highest = 4294967295.0;
    const pugi::xml_attribute attribute = node.attribute(name);
    double read = static_cast<double>(value);
    if (attribute && (!Text::ReadEntireNumber(attribute.value(), read) || !(read >= 0.0) ||
                      read > highest || read != std::floor(read))) {
        return RefuseNode(source, node,
                          "o atributo \"" + std::string(name) + "\" é " +
                              Text::QuotedText(attribute.value()) + ", e não um número inteiro");
    }
    value = static_cast<std::int64_t>(read);
    return true;
}

bool ReadSymbol(XmlSource& source, const xml_node& root, PartDocument& document) {
    const std::string guid = root.attribute("MainGUID").value();
    if (!Host::ParseGuid(guid, document.mainGuid) || document.mainGuid == Host::Guid()) {
        return RefuseNode(source, root,
                          "o atributo \"MainGUID\" é " + Text::QuotedText(guid) +
                              ", e não um GUID");
    }
    NoteAttributes(source, root,
                   {"IsArchivable", "IsPlaceable", "MainGUID", "MigrationValue", "Owner",
                    "Signature", "Version"});
    const pugi::xml_attribute migration = root.attribute("MigrationValue");
    document.migration = migration ? migration.value() : "Normal";
    return ReadTruth(source, root, "IsArchivable", document.isArchivable) &&
           ReadTruth(source, root, "IsPlaceable", document.isPlaceable) &&
           ReadWhole(source, root, "Owner", document.owner) &&
           ReadWhole(source, root, "Signature", document.signature) &&
           ReadWhole(source, root, "Version", document.version);
}

/// What stands in quotation marks behind `name` in our own comment.
std::string_view CommentValue(std::string_view comment, std::string_view name) {
    const std::size_t at = comment.find(name);
    if (at == std::string_view::npos) {
        return {};
    }
    comment.remove_prefix(at + name.size());
    return comment.substr(0, comment.find('"'));
}

bool ReadOwnComment(std::string_view comment, PartDocument& document) {
    if (!comment.starts_with(" vantoro ")) {
        return false;
    }
    double type = 0.0;
    const bool good = Host::ParseGuid(CommentValue(comment, "revision=\""), document.revision) &&
                      Text::ReadEntireNumber(CommentValue(comment, "type=\""), type) &&
                      type >= 0.0 && type <= static_cast<double>(Host::PartType::Skylight) &&
                      type == std::floor(type);
    document.type =
        good ? static_cast<Host::PartType>(static_cast<std::int32_t>(type)) : document.type;
    return good;
}

bool ReadAncestry(XmlSource& source, const xml_node& node, PartDocument& document) {
    for (const xml_node& child : node.children()) {
        if (child.name() != std::string_view("MainGUID")) {
            NoteUnknown(source, child);
            continue;
        }
        document.ancestry.emplace_back();
        if (!ReadGuidElement(source, child, document.ancestry.back())) {
            return false;
        }
    }
    return ReadTruth(source, node, "Template", document.isTemplate);
}

bool ReadMacros(XmlSource& source, const xml_node& node, std::vector<CalledMacro>& macros) {
    for (const xml_node& child : node.children()) {
        if (child.name() != std::string_view("Macro")) {
            NoteUnknown(source, child);
            continue;
        }
        CalledMacro macro;
        for (const xml_node& field : child.children()) {
            const std::string_view name = field.name();
            if (name == "MName") {
                macro.name = InnerString(field);
            } else if (name != "MainGUID") {
                NoteUnknown(source, field);
            } else if (!ReadGuidElement(source, field, macro.mainGuid)) {
                return false;
            }
        }
        macros.push_back(std::move(macro));
    }
    return true;
}

void ReadCopyright(XmlSource& source, const xml_node& node, Copyright& copyright) {
    for (const xml_node& child : node.children()) {
        const std::string_view name = child.name();
        if (name == "Author") {
            copyright.author = InnerText(child);
        } else if (name == "License") {
            copyright.licence = InnerText(child.child("Type"));
            copyright.licenceVersion = InnerText(child.child("Version"));
        } else {
            NoteUnknown(source, child);
        }
    }
}

bool ReadText(XmlSource& source, const xml_node& node, const TextSectionKind& kind,
              PartDocument& document) {
    TextSection section;
    section.type = kind.type;
    section.text = InnerText(node);
    if (!ReadSubIdent(source, node, section.subIdent)) {
        return false;
    }
    const bool isTaken = std::any_of(
        document.texts.begin(), document.texts.end(), [&section](const TextSection& other) {
            return other.type == section.type && other.subIdent == section.subIdent;
        });
    if (isTaken) {
        return RefuseNode(source, node,
                          "a seção " + Text::QuotedText(node.name()) + " aparece duas vezes");
    }
    document.texts.push_back(std::move(section));
    return true;
}

bool ReadPicture(XmlSource& source, const xml_node& node, PartDocument& document) {
    PictureSection picture;
    picture.isPreview = node.name() == std::string_view("Picture");
    picture.mime = node.attribute("MIME").value();
    picture.path = node.attribute("path").value();
    if (!Text::FromBase64(InnerText(node), picture.bytes)) {
        return RefuseNode(source, node, "a imagem não está em base64");
    }
    NoteAttributes(source, node, {"MIME", "path", "SectVersion", "SectionFlags", "SubIdent"});
    if (!ReadSubIdent(source, node, picture.subIdent)) {
        return false;
    }
    picture.path = picture.bytes.empty() ? picture.path : std::string();
    document.pictures.push_back(std::move(picture));
    return true;
}

bool ReadCustom(XmlSource& source, const xml_node& node, PartDocument& document) {
    CustomSection section;
    section.type = node.attribute("Type").value();
    constexpr std::size_t letters = 4;
    if (section.type.size() != letters || !Text::IsPlainText(section.type)) {
        return RefuseNode(source, node, Text::QuotedText(section.type) + " não é um tipo de seção");
    }
    if (!Text::FromBase64(InnerText(node), section.bytes)) {
        return RefuseNode(source, node, "a seção não está em base64");
    }
    if (!ReadSubIdent(source, node, section.subIdent)) {
        return false;
    }
    document.custom.push_back(std::move(section));
    return true;
}

bool ReadSection(XmlSource& source, const xml_node& node, PartDocument& document) {
    const std::string_view name = node.name();
    const auto& kinds = TextSectionKinds();
    const auto kind =
        std::find_if(kinds.begin(), kinds.end(),
                     [name](const TextSectionKind& known) { return known.element == name; });
    if (kind != kinds.end()) {
        return ReadText(source, node, *kind, document);
    }
    if (name == "Ancestry") {
        return ReadAncestry(source, node, document);
    }
    if (name == "CalledMacros") {
        return ReadMacros(source, node, document.macros);
    }
    if (name == "ParamSection") {
        document.hasParameters = true;
        return ReadParameterSection(source, node, document.parameters);
    }
    if (name == "Copyright") {
        document.hasCopyright = true;
        ReadCopyright(source, node, document.copyright);
        return true;
    }
    if (name == "Picture" || name == "GDLPict") {
        return ReadPicture(source, node, document);
    }
    if (name == "CustomSection") {
        return ReadCustom(source, node, document);
    }
    document.kept.emplace_back(ElementText(source, node));
    return true;
}

bool IsSingle(std::string_view name) {
    return name == "Ancestry" || name == "CalledMacros" || name == "ParamSection" ||
           name == "Copyright";
}

bool ReadSections(XmlSource& source, const xml_node& root, PartDocument& document) {
    bool hasType = false;
    for (const xml_node& child : root.children()) {
        if (child.type() == pugi::node_comment) {
            hasType = ReadOwnComment(child.value(), document) || hasType;
        }
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
            return RefuseNode(source, child, "há texto entre as seções");
        }
        if (child.type() != pugi::node_element) {
            continue;
        }
        if (IsSingle(child.name()) && root.child(child.name()) != child) {
            return RefuseNode(source, child,
                              "a seção " + Text::QuotedText(child.name()) + " aparece duas vezes");
        }
        if (!ReadSection(source, child, document)) {
            return false;
        }
    }
    document.type = hasType ? document.type : TypeByAncestry(document.ancestry);
    return true;
}

} // namespace

bool ReadPartXml(std::string_view bytes, PartDocument& document, std::vector<std::string>& notes,
                 std::string& error) {
    if (bytes.starts_with(ByteOrderMark)) {
        bytes.remove_prefix(ByteOrderMark.size());
    }
    XmlSource source;
    PartDocument read;
    read.hasParameters = false;
    const bool good = ParseXml(bytes, "Symbol", source);
    const xml_node root = source.document.document_element();
    if (!good || !ReadSymbol(source, root, read) || !ReadSections(source, root, read)) {
        error = source.error;
        return false;
    }
    SortSections(read);
    document = std::move(read);
    notes = std::move(source.notes);
    return true;
}

bool ReadMacrosXml(std::string_view xml, std::vector<CalledMacro>& macros, std::string& error) {
    XmlSource source;
    std::vector<CalledMacro> read;
    if (!ParseXml(xml, "CalledMacros", source) ||
        !ReadMacros(source, source.document.document_element(), read)) {
        error = source.error;
        return false;
    }
    macros = std::move(read);
    return true;
}

} // namespace Merivane::Workbench::Parts
