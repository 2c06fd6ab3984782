#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Merivane::Photometry {

/// A photometric file (ANSI/IES LM-63) in memory: the one form in which photometry travels.
/// Values are as the file has them: lengths in its own units, candela without the multiplier.
struct IesFile {
    int formatVersion = 3; ///< 0 = LM-63-1986, 1 = 1991, 2 = 1995, 3 = 2002, 4 = 2019
    /// `[KEY] value` lines in file order, repeats kept. Keys are trimmed and upper case; a value
    /// holds '\n' between its `[MORE]` continuations.
    std::vector<std::pair<std::string, std::string>> keywords;
    std::vector<std::string> otherLines; ///< every other line above `TILT=`, trimmed, none empty
    int tiltMode = 0;                    ///< 0 = NONE, 1 = INCLUDE, 2 = a file name
    std::string tiltFile;                ///< mode 2: the name, original case
    int tiltGeometry = 1;                ///< mode 1: lamp-to-luminaire geometry
    std::vector<double> tiltAngles;      ///< mode 1 [deg]
    std::vector<double> tiltFactors;     ///< mode 1, one for each tilt angle
    int lampCount = 1;
    double lumensPerLamp = 1000.0; ///< [lm]; -1 = absolute photometry
    double candelaMultiplier = 1.0;
    int photometricType = 1; ///< 1 = C, 2 = B, 3 = A
    int unitsType = 2;       ///< 1 = feet, 2 = metres
    double width = 0.0;      ///< luminous opening, file units; negative = round (LM-63)
    double length = 0.0;     ///< luminous opening, file units
    double height = 0.0;     ///< luminous opening, file units
    double ballastFactor = 1.0;
    double futureUse = 1.0; ///< reserved header value, kept for writing back
    double inputWatts = 0.0;
    std::vector<double> verticalAngles;       ///< [deg], strictly ascending, 0 = nadir
    std::vector<double> horizontalAngles;     ///< [deg], strictly ascending, 0 = C0
    std::vector<std::vector<double>> candela; ///< [cd], a row for each horizontal angle
};

/// Value of the first keyword that equals `key` exactly (keys are stored in upper case), or the
/// empty string.
std::string FindKeyword(const IesFile& file, std::string_view key);

/// Gives the first entry of `key` the value and removes every later one. Without an entry one is
/// appended, unless the value is empty. An existing entry given an empty value stays.
void SetKeyword(IesFile& file, std::string_view key, std::string_view value);

} // namespace Merivane::Photometry
