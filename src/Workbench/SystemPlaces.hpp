#pragma once

#include <string>

namespace Merivane::Workbench {

/// Full path of the running program's file; empty when the system does not tell.
std::wstring ExecutablePath();

/// The system's folder for temporary files, without a separator at its end; empty when the system
/// has none.
std::wstring SystemTemporaryFolder();

/// The user's folder for documents, without a separator at its end; it may not be there. Empty when
/// the user has none.
std::wstring UserDocumentsFolder();

/// The file that keeps the user's preferences, in the user's configuration folder: there may be no
/// such file yet, nor its folder. Empty when the user has no configuration folder.
std::wstring UserPreferencesFile();

} // namespace Merivane::Workbench
