#include "Photometry/IesText.hpp"

#include <array>

#include "Text/Utf8.hpp"

namespace Merivane::Photometry {

namespace {

// Code points of the Windows-1252 bytes 80 to 9F. The five that it leaves undefined stand for
// themselves.
constexpr std::array<char32_t, 32> Windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr std::string_view GbkDegreeSign = "\xA1\xE3";
constexpr char32_t DegreeSign = 0xB0;

} // namespace

std::string NormaliseIesText(std::string_view text) {
    if (Text::IsUtf8(text)) {
        return std::string(text);
    }
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (text.substr(i, 2) == GbkDegreeSign) {
            Text::AppendUtf8(utf8, DegreeSign);
            ++i;
        } else if (byte >= 0x80 && byte <= 0x9F) {
            Text::AppendUtf8(utf8, Windows1252[byte - 0x80U]);
        } else {
            Text::AppendUtf8(utf8, byte);
        }
    }
    return utf8;
}

} // namespace Merivane::Photometry
