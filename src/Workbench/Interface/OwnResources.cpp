#include "Workbench/Interface/OwnResources.hpp"

#include <algorithm>

namespace Merivane::Workbench {

const ResourceScript& OwnResources() {
    static const ResourceScript Script = [] {
        ResourceScript script;
        std::string ignored;
        for (const EmbeddedFile& file : EmbeddedFiles()) {
            if (file.path.ends_with(".grc")) {
                ParseResourceScript(file.bytes, script, ignored);
            }
        }
        return script;
    }();
    return Script;
}

std::string_view OwnIconImage(const std::string& name) {
    const std::string path = "RFIX/Images/" + name + "_18x18.svg";
    const std::vector<EmbeddedFile>& files = EmbeddedFiles();
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&](const EmbeddedFile& file) { return file.path == path; });
    return found == files.end() ? std::string_view() : found->bytes;
}

} // namespace Merivane::Workbench
