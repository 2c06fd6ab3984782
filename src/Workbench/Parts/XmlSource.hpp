#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "Host/Types.hpp"

/// An XML text while it is read: its nodes, what was said of it, and the text itself, of which
/// pieces are kept as they stand.
namespace Merivane::Workbench::Parts {

struct XmlSource {
    std::string_view text; ///< without byte order mark
    pugi::xml_document document;
    std::vector<std::string> notes;
    std::string error;           ///< of the first refusal
    std::size_t arrayValues = 0; ///< values of all arrays so far
};

/// Parses the text, which must outlive `source`. Returns false with the error for anything that is
/// no XML document of one element with that name.
bool ParseXml(std::string_view text, std::string_view rootName, XmlSource& source);

/// Sets the error, "linha 12: " and `what`; always false.
bool RefuseNode(XmlSource& source, const pugi::xml_node& node, const std::string& what);

/// The same as a note; there are at most 50 of them.
void NoteNode(XmlSource& source, const pugi::xml_node& node, const std::string& what);

/// Notes an element that is not known, but for comments.
void NoteUnknown(XmlSource& source, const pugi::xml_node& node);

/// Notes the attributes that are none of `known`.
void NoteAttributes(XmlSource& source, const pugi::xml_node& node,
                    const std::vector<std::string_view>& known);

/// The element as it stands in the text, from its first "<" to its last ">".
std::string_view ElementText(const XmlSource& source, const pugi::xml_node& node);

/// The text inside an element: CDATA as it stands, other text without white space at its ends.
std::string InnerText(const pugi::xml_node& node);

/// The text of a string, without the quotation marks around it.
std::string InnerString(const pugi::xml_node& node);

/// The attribute as a whole number of 0 to 65535, 0 where there is none; false with the error for
/// anything else.
bool ReadSubIdent(XmlSource& source, const pugi::xml_node& node, std::int32_t& number);

/// An element's text as a guid, with or without braces; false with the error.
bool ReadGuidElement(XmlSource& source, const pugi::xml_node& node, Host::Guid& guid);

} // namespace Merivane::Workbench::Parts
