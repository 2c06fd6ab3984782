#include "Document/IesReport.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "Document/JsonParts.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/FileBytes.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;
using Photometry::IesFile;
using Simulation::FormatDecimal;

constexpr int TypeC = 1;

std::string EditionName(int formatVersion) {
    constexpr std::array<const char*, 5> names = {"LM-63-1986", "LM-63-1991", "LM-63-1995",
                                                  "LM-63-2002", "LM-63-2019"};
    return names.at(static_cast<std::size_t>(formatVersion));
}

std::string TypeName(int photometricType) {
    constexpr std::array<const char*, 4> names = {"", "C", "B", "A"};
    return names.at(static_cast<std::size_t>(photometricType));
}

/// A number in its shortest form with a decimal comma.
std::string Shown(double value) {
    std::string text = Text::FormatGeneral(value, 10);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

/// The lines of a header value, each fit to be shown, still parted by '\n'.
std::string ShownLines(std::string_view value) {
    std::string shown;
    for (std::size_t start = 0; start <= value.size();) {
        const std::size_t end = std::min(value.find('\n', start), value.size());
        shown += (start > 0 ? "\n" : "") + Text::ShownText(value.substr(start, end - start));
        start = end + 1;
    }
    return shown;
}

std::string Decoded(std::string_view text) {
    return ShownLines(Photometry::NormaliseIesText(text));
}

/// Header texts as they are shown; keys too, since they can hold any byte.
void DecodeHeader(IesFile& file) {
    for (auto& [key, value] : file.keywords) {
        key = Decoded(key);
        value = Decoded(value);
    }
    for (std::string& line : file.otherLines) {
        line = Decoded(line);
    }
    file.tiltFile = Decoded(file.tiltFile);
}

void Derive(IesReport& report) {
    report.flux = Photometry::TotalFlux(report.file);
    report.peak = Photometry::PeakCandela(report.file);
    report.halfAngle = report.file.photometricType == TypeC
                           ? Photometry::FindBeamHalfAngle(report.file).value_or(-1.0)
                           : -1.0;
    std::string warning;
    Photometry::WithKnownOpening(report.file, warning);
    if (!warning.empty()) {
        report.warnings.push_back(warning);
    }
}

std::string AnglesText(const std::vector<double>& angles) {
    if (angles.size() == 1) {
        return "1 (" + Shown(angles.front()) + "°)";
    }
    return std::to_string(angles.size()) + " (" + Shown(angles.front()) + "° a " +
           Shown(angles.back()) + "°)";
}

std::string TiltText(const IesFile& file) {
    if (file.tiltMode == 2) {
        return "arquivo " + Text::QuotedText(file.tiltFile);
    }
    return file.tiltMode == 0 ? "nenhum"
                              : std::to_string(file.tiltAngles.size()) + " ângulos no arquivo";
}

std::string LampText(const IesFile& file) {
    const std::string count = std::to_string(file.lampCount);
    return file.lumensPerLamp == -1.0 ? count + ", fotometria absoluta"
                                      : count + " de " + Shown(file.lumensPerLamp) + " lm";
}

/// A label in a column of its own, then the value.
std::string Row(const std::string& label, const std::string& value) {
    constexpr std::size_t column = 22; // characters
    const auto characters =
        static_cast<std::size_t>(std::count_if(label.begin(), label.end(), [](char c) {
            return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
        }));
    return "  " + label + std::string(column - std::min(column - 1, characters), ' ') + value;
}

void AppendQuantities(const IesReport& report, std::vector<std::string>& lines) {
    const IesFile& file = report.file;
    lines.push_back(Row("Fluxo", report.flux == -1.0 ? "não calculado"
                                                     : FormatDecimal(report.flux, 1) + " lm"));
    lines.push_back(Row("Intensidade máxima", FormatDecimal(report.peak, 1) + " cd"));
    lines.push_back(Row("Semiângulo do facho", report.halfAngle < 0.0
                                                   ? "não se aplica"
                                                   : FormatDecimal(report.halfAngle, 1) + "°"));
    lines.push_back(Row("Abertura luminosa", OpeningText(file)));
    lines.push_back(Row("Potência", Shown(file.inputWatts) + " W"));
}

void AppendHeader(const IesReport& report, std::vector<std::string>& lines) {
    const IesFile& file = report.file;
    lines.push_back(Row("Formato", EditionName(file.formatVersion)));
    lines.push_back(Row("Fotometria", "tipo " + TypeName(file.photometricType)));
    lines.push_back(Row("Lâmpadas", LampText(file)));
    lines.push_back(Row("Multiplicador", Shown(file.candelaMultiplier)));
    lines.push_back(Row("Fator de reator", Shown(file.ballastFactor)));
    lines.push_back(Row("TILT", TiltText(file)));
    lines.push_back(Row("Ângulos verticais", AnglesText(file.verticalAngles)));
    lines.push_back(Row("Ângulos horizontais", AnglesText(file.horizontalAngles)));
    for (const auto& [key, value] : file.keywords) {
        std::string line = value;
        std::replace(line.begin(), line.end(), '\n', ' ');
        lines.push_back(Row("[" + key + "]", line));
    }
    for (const std::string& line : file.otherLines) {
        lines.push_back(Row("Texto", line));
    }
}

JsonValue KeywordsJson(const IesFile& file) {
    JsonValue list = JsonValue::MakeArray();
    for (const auto& [key, value] : file.keywords) { // a list, since keys repeat
        JsonValue entry;
        entry.Set("chave", JsonValue::MakeString(key));
        entry.Set("valor", JsonValue::MakeString(value));
        list.items.push_back(std::move(entry));
    }
    return list;
}

JsonValue TiltJson(const IesFile& file) {
    if (file.tiltMode == 0) {
        return JsonValue::MakeString("NONE");
    }
    if (file.tiltMode == 2) {
        return JsonValue::MakeString(file.tiltFile);
    }
    JsonValue json;
    json.Set("geometria", JsonValue::MakeNumber(file.tiltGeometry));
    json.Set("angulos", Numbers(file.tiltAngles));
    json.Set("fatores", Numbers(file.tiltFactors));
    return json;
}

void SetHeader(const IesFile& file, JsonValue& json) {
    json.Set("formato", JsonValue::MakeString(EditionName(file.formatVersion)));
    json.Set("palavrasChave", KeywordsJson(file));
    json.Set("outrasLinhas", Texts(file.otherLines));
    json.Set("tilt", TiltJson(file));
    json.Set("lampadas", JsonValue::MakeNumber(file.lampCount));
    json.Set("lumensPorLampada", JsonValue::MakeNumber(file.lumensPerLamp));
    json.Set("multiplicador", JsonValue::MakeNumber(file.candelaMultiplier));
    json.Set("tipoFotometrico", JsonValue::MakeString(TypeName(file.photometricType)));
    json.Set("unidade", JsonValue::MakeString(file.unitsType == 1 ? "pés" : "metros"));
    json.Set("largura", JsonValue::MakeNumber(file.width));
    json.Set("comprimento", JsonValue::MakeNumber(file.length));
    json.Set("altura", JsonValue::MakeNumber(file.height));
    json.Set("abertura", JsonValue::MakeString(OpeningText(file)));
    json.Set("fatorDeReator", JsonValue::MakeNumber(file.ballastFactor));
    json.Set("campoReservado", JsonValue::MakeNumber(file.futureUse));
    json.Set("potencia", JsonValue::MakeNumber(file.inputWatts));
    json.Set("angulosVerticais", Numbers(file.verticalAngles));
    json.Set("angulosHorizontais", Numbers(file.horizontalAngles));
}

/// A quantity that a file can be without, which then is -1.
JsonValue Quantity(double value) {
    return value == -1.0 ? JsonValue() : JsonValue::MakeNumber(value);
}

} // namespace

IesReport BuildIesReport(const std::string& fileName, std::string_view bytes) {
    IesReport report;
    report.fileName = fileName;
    const Photometry::IesReadResult read = Photometry::ReadIes(bytes, report.file);
    report.ok = read.ok;
    report.error = Decoded(read.error);
    for (const std::string& warning : read.warnings) {
        report.warnings.push_back(Decoded(warning));
    }
    if (report.ok) {
        DecodeHeader(report.file);
        Derive(report);
    }
    return report;
}

IesReport ReadIesReport(const std::string& fileName) {
    std::string bytes;
    if (!Text::ReadFileBytes(Text::Widen(fileName), bytes)) {
        IesReport report;
        report.fileName = fileName;
        report.error = "o arquivo não existe ou não pode ser lido";
        return report;
    }
    return BuildIesReport(fileName, bytes);
}

std::string OpeningText(const IesFile& file) {
    std::string warning;
    const IesFile known = Photometry::WithKnownOpening(file, warning);
    const double metres = Photometry::UnitsToMetres(file.unitsType);
    const auto side = [metres](double value) { return FormatDecimal(value * metres, 3); };
    const bool round = known.width < 0.0;
    if (round && known.height < 0.0) {
        return "esfera, diâmetro " + side(-known.width) + " m";
    }
    if (round) {
        const std::string disk = "diâmetro " + side(-known.width) + " m";
        return known.height > 0.0 ? "cilindro, " + disk + ", altura " + side(known.height) + " m"
                                  : "disco, " + disk;
    }
    if (known.width == 0.0 && known.length == 0.0 && known.height == 0.0) {
        return "ponto";
    }
    // The length of LM-63 lies along C0, the width along C90.
    const std::string floor = side(known.length) + " x " + side(known.width);
    return known.height > 0.0 ? "caixa, " + floor + " x " + side(known.height) + " m"
                              : "retângulo, " + floor + " m";
}

std::vector<std::string> IesReportLines(const IesReport& report) {
    std::vector<std::string> lines = {report.fileName};
    if (report.ok) {
        AppendQuantities(report, lines);
        AppendHeader(report, lines);
    } else {
        lines.push_back(Row("Recusado", report.error));
    }
    for (const std::string& warning : report.warnings) {
        lines.push_back(Row("Aviso", warning));
    }
    return lines;
}

JsonValue IesReportJson(const IesReport& report) {
    JsonValue json;
    json.Set("arquivo", JsonValue::MakeString(report.fileName));
    json.Set("ok", JsonValue::MakeBool(report.ok));
    json.Set("erro", report.ok ? JsonValue() : JsonValue::MakeString(report.error));
    json.Set("avisos", Texts(report.warnings));
    if (report.ok) {
        json.Set("fluxo", Quantity(report.flux));
        json.Set("pico", JsonValue::MakeNumber(report.peak));
        json.Set("semiangulo", Quantity(report.halfAngle));
        SetHeader(report.file, json);
    }
    return json;
}

} // namespace Merivane::Document
