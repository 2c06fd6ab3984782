#include "Workbench/Parts/PartXml.hpp"

#include <string>

#include "Text/Base64.hpp"
#include "Workbench/Parts/XmlPieces.hpp"

namespace Merivane::Workbench::Parts {

namespace {

constexpr std::size_t Base64Line = 76;

/// What has no element of its own.
std::string OwnComment(const PartDocument& document) {
    return "<!-- vantoro revision=\"" + BareGuid(document.revision) + "\" type=\"" +
           std::to_string(static_cast<std::int32_t>(document.type)) + "\" -->\n";
}

std::string SymbolTag(const PartDocument& document) {
    return "<Symbol IsArchivable=\"" + TrueOrFalse(document.isArchivable) + "\" IsPlaceable=\"" +
           TrueOrFalse(document.isPlaceable) + "\" MainGUID=\"" + BareGuid(document.mainGuid) +
           "\" MigrationValue=" + AttributeText(document.migration) + " Owner=\"" +
           std::to_string(document.owner) + "\" Signature=\"" + std::to_string(document.signature) +
           "\" Version=\"" + std::to_string(document.version) + "\">\n";
}

std::string AncestryXml(const PartDocument& document) {
    return "<Ancestry" + SectionAttributes(AncestryVersion, 0) + " Template=\"" +
           TrueOrFalse(document.isTemplate) + "\">\n" + AncestryLines(document) + "</Ancestry>\n";
}

std::string TextsXml(const PartDocument& document, bool scripts) {
    std::string xml;
    for (const TextSection& section : document.texts) {
        const TextSectionKind* const kind = FindTextSectionKind(section.type);
        xml += kind && IsScript(*kind) == scripts ? TextXml(section) : std::string();
    }
    return xml;
}

std::string PictureXml(const PictureSection& picture, XmlUse use) {
    const std::string element = picture.isPreview ? "Picture" : "GDLPict";
    std::string xml = '<' + element + " MIME=" + AttributeText(picture.mime) +
                      SectionAttributes(PictureVersion, picture.subIdent, PictureFlags(picture));
    if (picture.bytes.empty() || use == XmlUse::Converter) {
        const bool outside = picture.bytes.empty() && !picture.path.empty();
        return xml + " path=" + AttributeText(outside ? picture.path : PictureFileName(picture)) +
               "/>\n";
    }
    return xml + ">\n" + Text::ToBase64(picture.bytes, Base64Line) + "\n</" + element + ">\n";
}

std::string CustomXml(const CustomSection& section) {
    return "<CustomSection Type=" + AttributeText(section.type) +
           SectionAttributes(1, section.subIdent) + ">\n" +
           Text::ToBase64(section.bytes, Base64Line) + "\n</CustomSection>\n";
}

} // namespace

std::string WriteMacrosXml(const std::vector<CalledMacro>& macros) {
    return "<CalledMacros" + SectionAttributes(MacrosVersion, 0) + ">\n" + MacroLines(macros) +
           "</CalledMacros>\n";
}

std::string PictureFileName(const PictureSection& picture) {
    const std::string kind = picture.mime.substr(picture.mime.find('/') + 1);
    const std::string_view ending = kind == "jpeg"            ? "jpg"
                                    : kind.starts_with("svg") ? "svg"
                                    : kind == "gif"           ? "gif"
                                                              : "png";
    return (picture.isPreview ? "Picture_" : "GDLPict_") + std::to_string(picture.subIdent) + '.' +
           std::string(ending);
}

std::string WritePartXml(const PartDocument& document, XmlUse use) {
    std::string xml(ByteOrderMark);
    xml += XmlDeclaration;
    xml += SymbolTag(document) + OwnComment(document) + AncestryXml(document);
    xml += document.macros.empty() ? std::string() : WriteMacrosXml(document.macros);
    xml += TextsXml(document, true);
    xml += document.hasParameters ? WriteParameterXml(document.parameters) : std::string();
    xml += document.hasCopyright ? CopyrightXml(document.copyright) : std::string();
    xml += TextsXml(document, false);
    for (const PictureSection& picture : document.pictures) {
        xml += PictureXml(picture, use);
    }
    if (use == XmlUse::OwnFile) {
        for (const CustomSection& section : document.custom) {
            xml += CustomXml(section);
        }
    }
    for (const std::string& section : document.kept) {
        xml += section + '\n';
    }
    return xml + "</Symbol>\n";
}

} // namespace Merivane::Workbench::Parts
