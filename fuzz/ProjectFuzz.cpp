// Whatever the bytes of a project file, reading ends without a crash: in one sentence that can be
// shown, or in a project that is written so that it reads back the same, in the same bytes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Text/ShownText.hpp"
#include "Workbench/Project/ProjectFile.hpp"

using namespace Merivane;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Workbench::Project project;
    std::string error;
    if (!Workbench::ParseProject(bytes, project, error)) {
        Require(!error.empty() && Text::IsPlainText(error));
        Require(project == Workbench::Project());
        return 0;
    }
    const std::string written = Workbench::WriteProject(project);
    Workbench::Project back;
    Require(Workbench::ParseProject(written, back, error));
    Require(Workbench::WriteProject(back) == written);
    return 0;
}
