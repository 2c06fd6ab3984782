#pragma once

#include "Host/Types.hpp"

#include <string>
#include <string_view>

/// The running host and this add-on in it. Defined by whichever host is linked; nothing throws.
namespace Merivane::Host {

/// Full path of the add-on's own file. On failure a code, and `path` is left as it was.
ErrorCode GetOwnLocation(std::wstring& path);

/// The system's temporary folder, without a separator at its end. On failure a code, and `path` is
/// left as it was.
ErrorCode GetTemporaryFolder(std::wstring& path);

/// Writes one line into the host's report window, or shows it in an alert when `withDialog` is
/// set. `format` is a printf format without arguments: a percent sign is written "%%".
void WriteReport(std::string_view format, bool withDialog);

} // namespace Merivane::Host
