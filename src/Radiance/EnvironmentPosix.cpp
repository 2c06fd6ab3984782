#include "Radiance/Environment.hpp"

#include <cstdlib>

#include <unistd.h>

#include "Text/Utf8.hpp"

namespace Merivane::Radiance {

std::vector<std::wstring> EnvironmentEntries() {
    std::vector<std::wstring> entries;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        entries.push_back(Text::Widen(*entry));
    }
    return entries;
}

std::optional<std::wstring> EnvironmentValue(const std::wstring& name) {
    const char* value = std::getenv(Text::Narrow(name).c_str());
    if (value == nullptr) {
        return std::nullopt;
    }
    return Text::Widen(value);
}

} // namespace Merivane::Radiance
