#include "Drawing/PngWriter.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "Drawing/CairoPainter.hpp"
#include "Text/Number.hpp"

namespace Merivane::Drawing {
namespace {

constexpr double LargestSide = 30000.0; // dots; Cairo's images end at 32767
constexpr double MillimetresPerInch = 25.4;

double Dots(double millimetres, double dotsPerInch) {
    return std::max(std::round(millimetres * dotsPerInch / MillimetresPerInch), 1.0);
}

void AppendBigEndian(std::string& bytes, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
}

// CRC-32 of ISO 3309, as every PNG chunk ends with it.
std::uint32_t Crc32(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (char c : bytes) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc & 1U) != 0U ? (crc >> 1) ^ 0xEDB88320U : crc >> 1;
        }
    }
    return ~crc;
}

// Cairo writes no resolution, and a layout program then places the image at the wrong size. The
// chunk pHYs belongs between the header chunk, which ends at byte 33, and the image data.
void InsertResolution(std::string& png, double dotsPerInch) {
    constexpr std::size_t headerEnd = 33;
    const auto dotsPerMetre =
        static_cast<std::uint32_t>(std::lround(dotsPerInch * 1000.0 / MillimetresPerInch));
    std::string body = "pHYs";
    AppendBigEndian(body, dotsPerMetre);
    AppendBigEndian(body, dotsPerMetre);
    body += '\x01'; // per metre
    std::string chunk;
    AppendBigEndian(chunk, static_cast<std::uint32_t>(body.size() - 4));
    chunk += body;
    AppendBigEndian(chunk, Crc32(body));
    png.insert(headerEnd, chunk);
}

bool CheckSize(double width, double height, double dotsPerInch, std::string& error) {
    if (!(dotsPerInch > 0.0)) {
        error = "A resolução da imagem precisa ficar acima de 0 pontos por polegada.";
        return false;
    }
    if (!(width <= LargestSide && height <= LargestSide)) {
        error = "A imagem teria " + Merivane::Text::FormatFixed(width, 0) + " x " +
                Merivane::Text::FormatFixed(height, 0) +
                " pontos; o limite é de 30000 de cada lado.";
        return false;
    }
    return true;
}

void FillWhite(cairo_surface_t* surface) {
    cairo_t* context = cairo_create(surface);
    cairo_set_source_rgb(context, 1.0, 1.0, 1.0);
    cairo_paint(context);
    cairo_destroy(context);
}

} // namespace

bool WritePng(const DisplayList& list, std::string& bytes, std::string& error,
              const PngOptions& options) {
    const double width = Dots(list.width, options.dotsPerInch);
    const double height = Dots(list.height, options.dotsPerInch);
    if (!CheckDisplayList(list, error) || !CheckSize(width, height, options.dotsPerInch, error)) {
        return false;
    }
    const SurfacePointer surface(cairo_image_surface_create(
        CAIRO_FORMAT_RGB24, static_cast<int>(width), static_cast<int>(height)));
    FillWhite(surface.get());
    if (!PaintDisplayList(list, surface.get(), options.dotsPerInch / MillimetresPerInch,
                          TextForm::Outlines, error)) {
        return false;
    }
    std::string written;
    const cairo_status_t status =
        cairo_surface_write_to_png_stream(surface.get(), AppendToString, &written);
    if (status != CAIRO_STATUS_SUCCESS) {
        error = PaintingError(status);
        return false;
    }
    InsertResolution(written, options.dotsPerInch);
    bytes = std::move(written);
    return true;
}

} // namespace Merivane::Drawing
