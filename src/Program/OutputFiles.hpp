#pragma once

#include <string>
#include <vector>

namespace Merivane::Program {

/// One file to be written: a name in the folder and its bytes.
struct OutputFile {
    std::string name;
    std::string bytes;
};

/// Makes the folder, with its parents, when it is missing. Returns false with one Portuguese
/// sentence that names it when it can't be made, is no folder or can't be written in.
bool PrepareOutputFolder(const std::wstring& folder, std::string& error);

/// Writes all files or none: first each beside its place, brought to the disk, then all are
/// renamed. Files of the same names are replaced, others in the folder are left alone. Returns
/// false with one Portuguese sentence that names the file; what stood there before then stands
/// there still. Only where the system refuses to replace a file after it let others be replaced do
/// those stay new, each of them whole, and the sentence says so.
bool WriteOutputFiles(const std::wstring& folder, const std::vector<OutputFile>& files,
                      std::string& error);

} // namespace Merivane::Program
