#pragma once

#include <cstdint>
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

/// The host's special folders, by the numbers that it gives them.
enum class SpecialFolder : std::int32_t { UserDocuments = 6 };

/// Full path of a special folder, without a separator at its end. BadParameters for a number
/// without one; on failure `path` is left as it was.
ErrorCode GetSpecialFolder(SpecialFolder folder, std::wstring& path);

/// Writes one line into the host's report window; when `withDialog` is set an alert shows it too.
/// `format` is a printf format without arguments, in UTF-8: a percent sign is written "%%".
void WriteReport(std::string_view format, bool withDialog);

/// Opens the process window over a long work, with so many phases. Nesting while it is open;
/// BadParameters for less than one phase.
ErrorCode OpenProcessWindow(std::string_view title, std::int32_t phases);

/// Begins the next phase: its title, and the value at which it is done. NotInitialised without a
/// process window; BadParameters for a value below 0 and for more phases than were announced.
ErrorCode BeginProcessPhase(std::string_view title, std::int32_t highest);

/// How far the phase has come, held between 0 and its highest value. NotInitialised without a
/// phase.
ErrorCode SetProcessValue(std::int32_t value);

/// Cancelled once the user has asked to stop, else NoError. Ask often: the window lives by it.
ErrorCode CheckProcessCancelled();

/// NotInitialised when none is open.
ErrorCode CloseProcessWindow();

/// Shows a folder in the system's file manager. GeneralError when it can't.
ErrorCode OpenFolder(const std::wstring& path);

} // namespace Merivane::Host
