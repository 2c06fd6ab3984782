// Whatever the bytes, reading ends without a crash; what is read is written so that it reads back
// and is written the same again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Catalog/Json.hpp"

using namespace Merivane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Catalog::JsonValue value;
    if (!Catalog::JsonParse(text, value).ok) {
        return 0;
    }
    const std::string written = Catalog::JsonWrite(value);
    Catalog::JsonValue back;
    if (!Catalog::JsonParse(written, back).ok || Catalog::JsonWrite(back) != written) {
        std::abort();
    }
    Catalog::JsonValue compact;
    if (!Catalog::JsonParse(Catalog::JsonWrite(value, {true}), compact).ok ||
        Catalog::JsonWrite(compact) != written) {
        std::abort();
    }
    return 0;
}
