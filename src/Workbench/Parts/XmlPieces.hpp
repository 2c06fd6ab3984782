#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Host/Types.hpp"
#include "Workbench/Parts/PartDocument.hpp"

/// Pieces of part documents as text, shared by the one XML document and the folder of files.
namespace Merivane::Workbench::Parts {

inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
inline constexpr std::string_view XmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// Versions of the sections' forms.
inline constexpr std::int32_t AncestryVersion = 1;
inline constexpr std::int32_t MacrosVersion = 2;
inline constexpr std::int32_t ParametersVersion = 27;
inline constexpr std::int32_t CopyrightVersion = 1;
inline constexpr std::int32_t PictureVersion = 19;

/// ` SectVersion="20" SectionFlags="0" SubIdent="0"`.
std::string SectionAttributes(std::int32_t version, std::int32_t subIdent, std::int32_t flags = 0);

/// A text as CDATA; "]]>" in it is split.
std::string Cdata(std::string_view text);

/// A string's value: the quotation marks stand inside the CDATA, one in the text is doubled, as the
/// language has it.
std::string QuotedCdata(std::string_view text);

/// A guid without braces.
std::string BareGuid(const Host::Guid& guid);

std::string TrueOrFalse(bool value);

/// `<Parameters …>` with all parameters, each on its line; `attributes` of the element itself.
std::string ParameterListXml(const ParameterSection& section, std::string_view attributes);

/// `<ParamSectHeader>` with its lines, indented by one tabulator.
std::string ParameterHeaderXml(const ParameterSection& section);

/// The lines `<MainGUID>` of the ancestry, and `<Macro>` of the macros.
std::string AncestryLines(const PartDocument& document);
std::string MacroLines(const std::vector<CalledMacro>& macros);

/// `<Copyright>` and the element of a text section, each with its line end; empty for a section
/// that is no text.
std::string CopyrightXml(const Copyright& copyright);
std::string TextXml(const TextSection& section);

/// True for the sections that are programs.
bool IsScript(const TextSectionKind& kind);

/// A text in quotation marks, as an attribute's value.
std::string AttributeText(std::string_view text);

/// 1 for pictures that are drawings (SVG), 0 for the others.
std::int32_t PictureFlags(const PictureSection& picture);

} // namespace Merivane::Workbench::Parts
