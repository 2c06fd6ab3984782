#pragma once

#include <string>
#include <string_view>

#include "Workbench/Session.hpp"

/// The preferences of the add-on between two sessions: a JSON object with `formato` (1), `versao`
/// and `bloco`, the block's bytes in hexadecimal.
namespace Merivane::Workbench {

/// The text of the file.
std::string FormatPreferences(const Preferences& preferences);

/// Reads the text of the file. Returns false, leaving `preferences` as they were, for a text of any
/// other form or of a newer format.
bool ParsePreferences(std::string_view text, Preferences& preferences);

/// Reads the file. One that does not exist gives preferences never written. Returns false, leaving
/// `preferences` as they were, when it can't be read or is of another form.
bool LoadPreferences(const std::wstring& path, Preferences& preferences);

/// Writes the file whole or not at all, making its folder. Returns false when it can't, or when the
/// file that stands there is of another form or of a newer format, which must not be lost.
bool SavePreferences(const std::wstring& path, const Preferences& preferences);

} // namespace Merivane::Workbench
