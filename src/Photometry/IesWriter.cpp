#include "Photometry/IesWriter.hpp"

#include <initializer_list>
#include <string_view>

#include "Text/Number.hpp"

namespace Merivane::Photometry {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t NumbersOnALine = 10; // common tables keep to 132 characters (LM-63-1995)

void AppendKeywordLine(std::string& text, std::string_view key, std::string_view value) {
    text += '[';
    text += key;
    text += ']';
    if (!value.empty()) {
        text += ' ';
        text += value;
    }
    text += LineEnd;
}

void AppendKeyword(std::string& text, std::string_view key, std::string_view value) {
    std::size_t end = value.find('\n');
    AppendKeywordLine(text, key, value.substr(0, end));
    while (end != std::string_view::npos) {
        value.remove_prefix(end + 1);
        end = value.find('\n');
        AppendKeywordLine(text, "MORE", value.substr(0, end));
    }
}

void AppendNumberList(std::string& text, const std::vector<double>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool lineEnds = (i + 1) % NumbersOnALine == 0 || i + 1 == values.size();
        text += Text::FormatShortest(values[i]);
        text += lineEnds ? LineEnd : std::string_view(" ");
    }
}

void AppendValuesLine(std::string& text, std::initializer_list<std::string> values) {
    std::string_view separator;
    for (const std::string& value : values) {
        text += separator;
        text += value;
        separator = " ";
    }
    text += LineEnd;
}

void AppendTilt(std::string& text, const IesFile& file) {
    if (file.tiltMode == 0) {
        AppendValuesLine(text, {"TILT=NONE"});
    } else if (file.tiltMode == 1) {
        AppendValuesLine(text, {"TILT=INCLUDE"});
        AppendValuesLine(text, {std::to_string(file.tiltGeometry)});
        AppendValuesLine(text, {std::to_string(file.tiltAngles.size())});
        AppendNumberList(text, file.tiltAngles);
        AppendNumberList(text, file.tiltFactors);
    } else {
        AppendValuesLine(text, {"TILT=" + file.tiltFile});
    }
}

void AppendHeaderNumbers(std::string& text, const IesFile& file) {
    const auto real = [](double value) { return Text::FormatShortest(value); };
    const auto whole = [](auto value) { return std::to_string(value); };
    AppendValuesLine(text,
                     {whole(file.lampCount), real(file.lumensPerLamp), real(file.candelaMultiplier),
                      whole(file.verticalAngles.size()), whole(file.horizontalAngles.size()),
                      whole(file.photometricType), whole(file.unitsType), real(file.width),
                      real(file.length), real(file.height)});
    AppendValuesLine(text, {real(file.ballastFactor), real(file.futureUse), real(file.inputWatts)});
}

} // namespace

std::string WriteIes(const IesFile& file) {
    std::string text = "IESNA:LM-63-2002\r\n";
    for (const auto& [key, value] : file.keywords) {
        AppendKeyword(text, key, value);
    }
    for (const std::string& line : file.otherLines) {
        text += "[OTHER] " + line;
        text += LineEnd;
    }
    AppendTilt(text, file);
    AppendHeaderNumbers(text, file);
    AppendNumberList(text, file.verticalAngles);
    AppendNumberList(text, file.horizontalAngles);
    for (const std::vector<double>& row : file.candela) {
        AppendNumberList(text, row);
    }
    return text;
}

} // namespace Merivane::Photometry
