// A script of a library part, whatever its bytes, is given its generated blocks and gives them
// back: nothing else of it changes, and a block that is made anew is the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Gdl/GeneratedBlock.hpp"
#include "Gdl/LuminaireScripts.hpp"

using namespace Merivane::Photometry;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view script(reinterpret_cast<const char*>(data), size);
    const std::string own = RemoveGeneratedBlock(script);
    Require(own.size() <= size && RemoveGeneratedBlock(own) == own);
    const std::string once = Script3DWithBlock(script);
    Require(once.ends_with(own) && RemoveGeneratedBlock(once) == own);
    Require(Script3DWithBlock(once) == once);
    Require(Script2DWithBlock(once) == Script2DWithBlock(own));
    return 0;
}
