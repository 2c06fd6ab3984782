#pragma once

#include <string>
#include <string_view>

#include "Host/Types.hpp"

/// The trace that a command leaves: three text files in the folder "Vantoro" of the system's
/// temporary folder, and the host's report window. Each file is opened, written and closed for
/// every line, so that a crash loses nothing. What can't be written is passed over in silence: a
/// log must not stop the work. Main thread only. All text is UTF-8.
namespace Merivane::Commands {

/// Begun anew by every command: fine steps, to see where a command stopped.
inline constexpr std::string_view ProgressFile = "progresso.txt";
/// Begun anew by every command: what it reported.
inline constexpr std::string_view ReportFile = "relatorio.txt";
/// The reports of all commands; nothing ever trims it.
inline constexpr std::string_view HistoryFile = "historico.txt";

/// Writes one line, "HH:MM:SS  text" in local time, into a file of the log's folder, which is made
/// where it is missing; `truncate` empties the file first.
void AppendLog(std::string_view fileName, std::string_view text, bool truncate);

/// Begins a command's log: "=== " and the title as the first line of the two files of this command,
/// and as one more line of the history.
void BeginLog(std::string_view title);

/// One line in the progress file.
void Progress(std::string_view text);

/// "Vantoro: " and the text in the report window, in an alert too when `showDialog` is set; the
/// text in the report file and the history.
void Report(std::string_view text, bool showDialog);

/// `Report` without an alert.
void ReportLine(std::string_view text);

/// `Report` with an alert, for what did not go.
void Alert(std::string_view text);

/// The host's name of an error code, "unknown error 0x..." for one that the log does not know.
std::string ErrorName(Host::ErrorCode code);

/// Reports "`what` failed: NAME (0xCODE)" unless `code` is 0. Returns `code`.
Host::ErrorCode CheckError(std::string_view what, Host::ErrorCode code);

/// Whether the command has told by `Alert` or `CheckError`, since its `BeginLog`, that something
/// did not go.
bool FailureTold();

} // namespace Merivane::Commands
