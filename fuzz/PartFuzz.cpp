#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Parts/PartFolder.hpp"
#include "Workbench/Parts/PartXml.hpp"

/// A part that can be read must be read back from what is written of it, to the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace Merivane::Workbench::Parts;
    const std::string bytes(data, data + size);
    PartDocument part;
    std::vector<std::string> notes;
    std::string error;
    if (!ReadPartXml(bytes, part, notes, error)) {
        if (!error.starts_with("linha ")) {
            std::abort();
        }
        return 0;
    }
    const std::string written = WritePartXml(part);
    PartDocument back;
    if (!ReadPartXml(written, back, notes, error) || WritePartXml(back) != written) {
        std::abort();
    }
    MakePartFiles(part);
    LeftOutOfFolder(part);
    return 0;
}
