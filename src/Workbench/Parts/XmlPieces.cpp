#include "Workbench/Parts/XmlPieces.hpp"

#include "Host/GuidText.hpp"
#include "Text/ShownText.hpp"
#include "Text/XmlText.hpp"

namespace Merivane::Workbench::Parts {

std::string SectionAttributes(std::int32_t version, std::int32_t subIdent, std::int32_t flags) {
    return " SectVersion=\"" + std::to_string(version) + "\" SectionFlags=\"" +
           std::to_string(flags) + "\" SubIdent=\"" + std::to_string(subIdent) + '"';
}

std::string Cdata(std::string_view text) {
    std::string lines = Text::ShownLines(text);
    constexpr std::string_view split = "]]]]><![CDATA[>";
    for (std::size_t at = lines.find("]]>"); at != std::string::npos;
         at = lines.find("]]>", at + split.size())) {
        lines.replace(at, 3, split);
    }
    return "<![CDATA[" + lines + "]]>";
}

std::string QuotedCdata(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return Cdata(quoted + '"');
}

std::string BareGuid(const Host::Guid& guid) {
    return Host::GuidText(guid).substr(1, 36);
}

std::string TrueOrFalse(bool value) {
    return value ? "true" : "false";
}

std::string AncestryLines(const PartDocument& document) {
    std::string lines;
    for (const Host::Guid& guid : document.ancestry) {
        lines += "\t<MainGUID>" + BareGuid(guid) + "</MainGUID>\n";
    }
    return lines;
}

std::string MacroLines(const std::vector<CalledMacro>& macros) {
    std::string lines;
    for (const CalledMacro& macro : macros) {
        lines += "\t<Macro>\n\t\t<MName>" + QuotedCdata(macro.name) + "</MName>\n\t\t<MainGUID>" +
                 BareGuid(macro.mainGuid) + "</MainGUID>\n\t</Macro>\n";
    }
    return lines;
}

bool IsScript(const TextSectionKind& kind) {
    return !kind.file.empty();
}

std::string AttributeText(std::string_view text) {
    return '"' + Text::EscapeXml(Text::ShownText(text)) + '"';
}

std::string TextXml(const TextSection& section) {
    const TextSectionKind* const kind = FindTextSectionKind(section.type);
    if (!kind) {
        return {};
    }
    const std::string element(kind->element);
    const std::string lineEnd = IsScript(*kind) ? "\n" : "";
    return '<' + element + SectionAttributes(kind->version, section.subIdent) + '>' + lineEnd +
           Cdata(section.text) + lineEnd + "</" + element + ">\n";
}

std::string CopyrightXml(const Copyright& copyright) {
    const auto escaped = [](const std::string& text) {
        return Text::EscapeXml(Text::ShownText(text));
    };
    return "<Copyright" + SectionAttributes(CopyrightVersion, 0) + ">\n\t<Author>" +
           escaped(copyright.author) + "</Author>\n\t<License>\n\t\t<Type>" +
           escaped(copyright.licence) + "</Type>\n\t\t<Version>" +
           escaped(copyright.licenceVersion) + "</Version>\n\t</License>\n</Copyright>\n";
}

std::int32_t PictureFlags(const PictureSection& picture) {
    return picture.mime.starts_with("image/svg") ? 1 : 0;
}

} // namespace Merivane::Workbench::Parts
