#include "Photometry/IesFile.hpp"

#include <algorithm>

namespace Merivane::Photometry {

std::string FindKeyword(const IesFile& file, std::string_view key) {
    for (const auto& [name, value] : file.keywords) {
        if (name == key) {
            return value;
        }
    }
    return {};
}

void SetKeyword(IesFile& file, std::string_view key, std::string_view value) {
    const auto hasKey = [key](const auto& entry) { return entry.first == key; };
    const auto first = std::find_if(file.keywords.begin(), file.keywords.end(), hasKey);
    if (first == file.keywords.end()) {
        if (!value.empty()) {
            file.keywords.emplace_back(key, value);
        }
        return;
    }
    first->second = value;
    file.keywords.erase(std::remove_if(first + 1, file.keywords.end(), hasKey),
                        file.keywords.end());
}

} // namespace Merivane::Photometry
