#pragma once

#include <string>
#include <string_view>

#include "Host/Types.hpp"

/// The running host and this add-on in it. Defined by whichever host is linked; nothing throws.
/// Called on the main thread only.
namespace Merivane::Host {

/// Full path of the add-on's own file; what the add-on brings along stands in that file's folder.
/// On failure a code, and `path` is left as it was.
ErrorCode GetOwnLocation(std::wstring& path);

/// Full path of the system's temporary folder, without a separator at its end. On failure a code,
/// and `path` is left as it was.
ErrorCode GetTemporaryFolder(std::wstring& path);

/// Writes one line into the host's report window; when `withDialog` is set an alert shows it too.
/// `format` is a printf format without arguments, in UTF-8: a percent sign is written "%%".
void WriteReport(std::string_view format, bool withDialog);

} // namespace Merivane::Host
