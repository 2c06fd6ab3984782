#pragma once

#include <optional>
#include <string>
#include <vector>

/// The environment of this process and the one of its children.
namespace Merivane::Radiance {

/// Every entry of this process's environment, "NAME=value", in the system's order.
std::vector<std::wstring> EnvironmentEntries();

/// The value of one variable, nothing when it is not set. The letter case of the name counts as it
/// counts for the system.
std::optional<std::wstring> EnvironmentValue(const std::wstring& name);

/// The entries of this process's environment with RAYPATH set to `rayPath` in place of every
/// RAYPATH there, whatever its letter case; sorted, small and large ASCII letters alike.
std::vector<std::wstring> EnvironmentEntriesWith(const std::wstring& rayPath);

/// The same entries as one block, as the start of a process takes it on Windows: a NUL behind each
/// entry and one more at the end.
std::wstring EnvironmentBlockWith(const std::wstring& rayPath);

} // namespace Merivane::Radiance
