#include "exemplos/SampleFormat.hpp"

#include <string_view>
#include <vector>

#include "Text/Number.hpp"

namespace Merivane::Examples {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t NumbersInALine = 10;

std::string_view EditionLine(int formatVersion) {
    switch (formatVersion) {
    case 1:
        return "IESNA91";
    case 2:
        return "IESNA:LM-63-1995";
    case 3:
        return "IESNA:LM-63-2002";
    case 4:
        return "IES:LM-63-2019";
    default:
        return {}; // LM-63-1986 begins with free text
    }
}

// The letters of Portuguese stand below U+0100, where the code page is the code point itself.
std::string ToWindows1252(std::string_view utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte < 0x80 || i + 1 == utf8.size()) {
            bytes += utf8[i];
        } else {
            const auto next = static_cast<unsigned char>(utf8[++i]);
            bytes += static_cast<char>((byte & 0x03) << 6 | (next & 0x3F));
        }
    }
    return bytes;
}

void AppendNumbers(std::string& text, const std::vector<double>& numbers) {
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0) {
            text += i % NumbersInALine == 0 ? LineEnd : " ";
        }
        Text::AppendShortest(text, numbers[i]);
    }
    text += LineEnd;
}

void AppendHeader(std::string& text, const Photometry::IesFile& file) {
    const std::string_view edition = EditionLine(file.formatVersion);
    if (!edition.empty()) {
        text += edition;
        text += LineEnd;
    }
    for (const std::string& line : file.otherLines) {
        text += line;
        text += LineEnd;
    }
    for (const auto& [key, value] : file.keywords) {
        text.append("[").append(key).append("] ").append(value).append(LineEnd);
    }
}

void AppendTilt(std::string& text, const Photometry::IesFile& file) {
    if (file.tiltMode != 1) {
        text += "TILT=NONE";
        text += LineEnd;
        return;
    }
    text += "TILT=INCLUDE";
    text += LineEnd;
    AppendNumbers(text, {static_cast<double>(file.tiltGeometry)});
    AppendNumbers(text, {static_cast<double>(file.tiltAngles.size())});
    AppendNumbers(text, file.tiltAngles);
    AppendNumbers(text, file.tiltFactors);
}

} // namespace

std::string FormatSample(const SampleLuminaire& sample) {
    const Photometry::IesFile& file = sample.photometry;
    std::string text;
    AppendHeader(text, file);
    if (sample.windows1252) {
        text = ToWindows1252(text);
    }
    AppendTilt(text, file);
    AppendNumbers(text,
                  {static_cast<double>(file.lampCount), file.lumensPerLamp, file.candelaMultiplier,
                   static_cast<double>(file.verticalAngles.size()),
                   static_cast<double>(file.horizontalAngles.size()),
                   static_cast<double>(file.photometricType), static_cast<double>(file.unitsType),
                   file.width, file.length, file.height});
    AppendNumbers(text, {file.ballastFactor, file.futureUse, file.inputWatts});
    AppendNumbers(text, file.verticalAngles);
    AppendNumbers(text, file.horizontalAngles);
    for (const std::vector<double>& row : file.candela) {
        AppendNumbers(text, row);
    }
    return text;
}

} // namespace Merivane::Examples
