#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Tests {

/// The photometric files of the field data by their names, as they are chosen: header texts in
/// UTF-8. Empty where the build was not told of any.
std::map<std::string, Photometry::IesFile> ReadFieldFiles();

/// The keywords that a contract gives back: the file's, then its other lines as OTHER.
std::vector<std::pair<std::string, std::string>>
KeywordsOfContract(const Photometry::IesFile& file);

} // namespace Merivane::Tests
