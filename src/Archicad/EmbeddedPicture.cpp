#include "Archicad/EmbeddedPicture.hpp"

#include <array>
#include <string_view>
#include <utility>

#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {

namespace {

struct PictureKind {
    std::string_view begin;
    const char* mime;
};

constexpr std::array<PictureKind, 2> PictureKinds = {{
    {"\x89PNG\r\n\x1A\n", "image/png"},
    {"\xFF\xD8\xFF", "image/jpeg"},
}};

} // namespace

bool ReadEmbeddedPicture(const std::wstring& path, EmbeddedPicture& picture) {
    std::string bytes;
    if (!Text::ReadFileBytes(path, bytes)) {
        return false;
    }
    for (const PictureKind& kind : PictureKinds) {
        if (bytes.starts_with(kind.begin)) {
            const std::wstring name = Text::WidePath(Text::NativePath(path).filename());
            picture = {Text::Narrow(name), std::move(bytes), kind.mime};
            return true;
        }
    }
    return false;
}

} // namespace Merivane::Archicad
