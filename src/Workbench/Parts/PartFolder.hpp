#pragma once

#include <string>
#include <vector>

#include "Workbench/Parts/PartDocument.hpp"

/// A part as a folder of files: scripts as texts, parameters as XML, pictures as they are. The
/// host's converter takes this form too, and it is the one to keep under version control.
namespace Merivane::Workbench::Parts {

/// A file of that folder.
struct PartFile {
    std::string path; ///< in the folder, with "/"
    std::string bytes;

    bool operator==(const PartFile&) const = default;
};

/// The files of a part, `libpartdata.xml` first.
std::vector<PartFile> MakePartFiles(const PartDocument& document);

/// What a part has that the converter's forms have no place for, each as the user knows it: "a
/// seção MVIE", "o elemento MigrationTable".
std::vector<std::string> LeftOutOfFolder(const PartDocument& document);
std::vector<std::string> LeftOutOfXml(const PartDocument& document);

/// Writes the folder whole or not at all; its name is the part's. One that stands there is replaced
/// where it holds a part. Returns false with one Portuguese sentence that names the folder, which
/// is then as it was.
bool WritePartFolder(const PartDocument& document, const std::wstring& folder, std::string& error);

} // namespace Merivane::Workbench::Parts
