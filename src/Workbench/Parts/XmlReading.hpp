#pragma once

#include "Workbench/Parts/PartDocument.hpp"
#include "Workbench/Parts/XmlSource.hpp"

/// Sections read out of an XML text whose other sections are read elsewhere.
namespace Merivane::Workbench::Parts {

/// The parameter section; false with the source's error.
bool ReadParameterSection(XmlSource& source, const pugi::xml_node& node, ParameterSection& section);

} // namespace Merivane::Workbench::Parts
