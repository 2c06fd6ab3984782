// Feeds any bytes to the IES reader and everything that takes what it read. What is accepted must
// survive a round through the writer.

#include <cstdint>
#include <cstdlib>

#include "Photometry/CandelaLookup.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Photometry/IesWriter.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Text/Utf8.hpp"

using namespace Merivane;

namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void Evaluate(const Photometry::IesFile& file) {
    Photometry::TotalFlux(file);
    Photometry::PeakCandela(file);
    Photometry::BeamHalfAngle(file);
    for (const double angle : {-1e300, -90.0, 0.0, 33.3, 90.0000001, 180.0, 359.9, 1e18}) {
        Photometry::CandelaAt(file, angle, angle);
        Photometry::CandelaAt(file, 45.0, angle);
    }
    for (const auto& [key, value] : file.keywords) {
        Require(Text::IsUtf8(Photometry::NormaliseIesText(value)));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Photometry::IesFile file;
    const Photometry::IesReadResult result = Photometry::ReadIes(text, file);
    Require(result.ok == result.error.empty());
    if (!result.ok) {
        return 0;
    }
    Evaluate(file);

    // Free header lines become keywords when written; from then on the text stays the same.
    const std::string written = Photometry::WriteIes(file);
    Photometry::IesFile back;
    Require(Photometry::ReadIes(written, back).ok);
    Require(Photometry::WriteIes(back) == written);
    Require(back.candela.size() == file.candela.size());

    std::string warning;
    const Photometry::IesFile known = Photometry::WithKnownOpening(file, warning);
    const std::string once = Photometry::WriteIes(known);
    Require(Photometry::WriteIes(Photometry::WithKnownOpening(known, warning)) == once);
    Require(warning.empty());
    return 0;
}
