#pragma once

#include <string>
#include <string_view>

#include "Host/Types.hpp"

/// The host's dialogs in which the user points at a file. Defined by whichever host is linked;
/// nothing throws. Main thread only.
namespace Merivane::Host {

/// The files that can be chosen.
struct FileFilter {
    std::string text;      ///< what the user reads: "Imagens (*.png)", UTF-8
    std::string extension; ///< without the point; its case does not matter

    bool operator==(const FileFilter&) const = default;
};

/// Asks for one file that exists. Cancelled, leaving `path` as it was, when the user chooses none.
ErrorCode ChooseFile(std::string_view title, const FileFilter& filter, std::wstring& path);

} // namespace Merivane::Host
