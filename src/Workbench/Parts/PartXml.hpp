#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Parts/PartDocument.hpp"

/// The XML document of a library part, as the host's converter reads it, and our own part files,
/// which are the same document. Beside what the converter knows it holds
///
/// - in a comment at the beginning what has no element: the revision and the kind of part;
/// - in our own files, as base64 inside their elements, the pictures, for which the converter wants
///   files, and the custom sections, which it does not know.
namespace Merivane::Workbench::Parts {

/// Who the document is for.
enum class XmlUse {
    OwnFile,  ///< `.gsm`: pictures and custom sections inside
    Converter ///< pictures by their file names, custom sections left out
};

/// The document in UTF-8 with a byte order mark; lines end with LF. The same part always gives the
/// same bytes, and what `ReadPartXml` reads out of them gives them again. Characters that XML can't
/// hold are replaced as in `Text::ShownLines`.
std::string WritePartXml(const PartDocument& document, XmlUse use = XmlUse::OwnFile);

/// Reads a part. Sections that are not known, and dictionaries, are kept as they stand; of other
/// things that are not known `notes` tells line and name, one Portuguese sentence each, but for
/// comments and `Meaning`, which are passed over. On the first thing that can't be a part's returns
/// false with `error` one Portuguese sentence that begins with the line; `document` is then as it
/// was.
bool ReadPartXml(std::string_view bytes, PartDocument& document, std::vector<std::string>& notes,
                 std::string& error);

/// The parameter section alone, as its element: the host's own form of a list of parameters.
std::string WriteParameterXml(const ParameterSection& section);
bool ReadParameterXml(std::string_view xml, ParameterSection& section, std::string& error);

/// The list of called macros alone, as its element.
std::string WriteMacrosXml(const std::vector<CalledMacro>& macros);
bool ReadMacrosXml(std::string_view xml, std::vector<CalledMacro>& macros, std::string& error);

/// Name of a picture's file where pictures are files: "Picture_0.png".
std::string PictureFileName(const PictureSection& picture);

} // namespace Merivane::Workbench::Parts
