// Whatever stands in the preferences file, reading ends without a crash; what is read is written so
// that it reads back the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "Workbench/PreferencesFile.hpp"

using namespace Merivane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Workbench::Preferences read;
    if (!Workbench::ParsePreferences({reinterpret_cast<const char*>(data), size}, read)) {
        return 0;
    }
    Workbench::Preferences back;
    if (!Workbench::ParsePreferences(Workbench::FormatPreferences(read), back) ||
        back.version != read.version || back.block != read.block) {
        std::abort();
    }
    return 0;
}
