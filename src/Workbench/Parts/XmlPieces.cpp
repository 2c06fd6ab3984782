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
        lines += "\t<Macro>\n\t\t<MName>" + Cdata('"' + macro.name + '"') +
                 "</MName>\n\t\t<MainGUID>" + BareGuid(macro.mainGuid) +
                 "</MainGUID>\n\t</Macro>\n";
    }
    return lines;
}

std::string CopyrightLines(const Copyright& copyright) {
    const auto escaped = [](const std::string& text) {
        return Text::EscapeXml(Text::ShownText(text));
    };
    return "\t<Author>" + escaped(copyright.author) + "</Author>\n\t<License>\n\t\t<Type>" +
           escaped(copyright.licence) + "</Type>\n\t\t<Version>" +
           escaped(copyright.licenceVersion) + "</Version>\n\t</License>\n";
}

std::int32_t PictureFlags(const PictureSection& picture) {
    return picture.mime.starts_with("image/svg") ? 1 : 0;
}

} // namespace Merivane::Workbench::Parts
