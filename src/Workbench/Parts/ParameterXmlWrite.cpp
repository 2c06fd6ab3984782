#include <algorithm>
#include <cstddef>
#include <string>

#include "Text/Number.hpp"
#include "Text/ShownText.hpp"
#include "Text/XmlText.hpp"
#include "Workbench/Parts/ParameterTags.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Parts/XmlPieces.hpp"

namespace Merivane::Workbench::Parts {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;

std::string FlagsXml(std::int32_t flags) {
    std::string xml;
    for (const ParameterFlag& flag : ParameterFlags()) {
        if ((flags & flag.bit) != 0) {
            xml += '<' + std::string(flag.tag) + "/>";
        }
    }
    return xml.empty() ? xml : "<Flags>" + xml + "</Flags>";
}

std::string ValueXml(const LibraryParameter& parameter, std::size_t place) {
    const bool isText = parameter.type == ParameterType::String;
    if (!parameter.isArray) {
        return isText ? QuotedCdata(parameter.text) : Text::FormatShortest(parameter.number);
    }
    if (isText) {
        return QuotedCdata(place < parameter.texts.size() ? parameter.texts[place] : "");
    }
    return Text::FormatShortest(place < parameter.numbers.size() ? parameter.numbers[place] : 0.0);
}

std::string ArrayXml(const LibraryParameter& parameter) {
    const bool isTable = parameter.dim2 > 1;
    const std::int32_t columns = std::max(parameter.dim2, 1);
    std::string xml = "\n\t\t\t<ArrayValues FirstDimension=\"" + std::to_string(parameter.dim1) +
                      "\" SecondDimension=\"" + std::to_string(isTable ? parameter.dim2 : 0) +
                      "\">";
    std::size_t place = 0;
    for (std::int32_t row = 1; row <= parameter.dim1; ++row) {
        for (std::int32_t column = 1; column <= columns; ++column) {
            xml += "\n\t\t\t\t<AVal";
            xml += isTable ? " Column=\"" + std::to_string(column) + '"' : std::string();
            xml += " Row=\"" + std::to_string(row) + "\">" + ValueXml(parameter, place) + "</AVal>";
            ++place;
        }
    }
    return xml + "\n\t\t\t</ArrayValues>\n\t\t";
}

bool HasValue(ParameterType type) {
    return type != ParameterType::Separator && type != ParameterType::Title;
}

std::string ParameterXml(const LibraryParameter& parameter) {
    const std::string tag(TagOf(parameter.type));
    std::string xml = "\t\t<" + tag + " Name=\"" + Text::EscapeXml(parameter.name) +
                      "\"><Description>" + QuotedCdata(parameter.description) + "</Description>";
    if ((parameter.flags & Host::ParameterFixed) != 0) {
        xml += "<Fix/>";
    }
    xml += FlagsXml(parameter.flags);
    if (HasValue(parameter.type)) {
        xml += parameter.isArray ? ArrayXml(parameter)
                                 : "<Value>" + ValueXml(parameter, 0) + "</Value>";
    }
    return xml + "</" + tag + ">\n";
}

constexpr std::string_view UsualHeader = "<ParamSectHeader>\n"
                                         "\t\t<AutoHotspots>false</AutoHotspots>\n"
                                         "\t\t<StatBits>\n"
                                         "\t\t\t<STBit_FixSize/>\n"
                                         "\t\t</StatBits>\n"
                                         "\t\t<WDLeftFrame>0</WDLeftFrame>\n"
                                         "\t\t<WDRightFrame>0</WDRightFrame>\n"
                                         "\t\t<WDTopFrame>0</WDTopFrame>\n"
                                         "\t\t<WDBotFrame>0</WDBotFrame>\n"
                                         "\t\t<LayFlags>65535</LayFlags>\n"
                                         "\t\t<WDMirrorThickness>0</WDMirrorThickness>\n"
                                         "\t\t<WDWallInset>0</WDWallInset>\n"
                                         "\t</ParamSectHeader>";

} // namespace

std::string ParameterHeaderXml(const ParameterSection& section) {
    return '\t' + (section.header.empty() ? std::string(UsualHeader) : section.header) + '\n';
}

std::string ParameterListXml(const ParameterSection& section, std::string_view attributes) {
    std::string xml = "\t<Parameters" + std::string(attributes) + ">\n";
    xml += ParameterXml(section.sizeA);
    xml += ParameterXml(section.sizeB);
    for (const PartParameter& parameter : section.parameters) {
        xml +=
            parameter.kept.empty() ? ParameterXml(parameter.value) : "\t\t" + parameter.kept + '\n';
    }
    return xml + "\t</Parameters>\n";
}

std::string WriteParameterXml(const ParameterSection& section) {
    return "<ParamSection" + SectionAttributes(ParametersVersion, 0) + ">\n" +
           ParameterHeaderXml(section) + ParameterListXml(section, "") + "</ParamSection>\n";
}

} // namespace Merivane::Workbench::Parts
