#include "Photometry/IesReader.hpp"

#include <algorithm>

#include "Photometry/NumberCursor.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Photometry {

namespace {

using Lines = std::vector<std::string_view>;

/// Lines end at CR, LF or CR LF; what follows the last end is a line only if it holds something.
Lines SplitLines(std::string_view text) {
    Lines lines;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    return lines;
}

/// Reads the version line. Returns the index of the first line of the header.
std::size_t ReadVersion(const Lines& lines, IesFile& out, IesReadResult& result) {
    if (lines.empty()) {
        return 0;
    }
    const std::string_view first = Text::Trim(lines[0]);
    const std::string upper = Text::ToUpper(first);
    const auto begins = [&upper](std::string_view prefix) { return upper.starts_with(prefix); };

    out.formatVersion = 0;
    if (begins("IESNA:LM-63-1995")) {
        out.formatVersion = 2;
    } else if (begins("IESNA:LM-63-2002")) {
        out.formatVersion = 3;
    } else if (begins("IES:LM-63-2019")) {
        out.formatVersion = 4;
    } else if (begins("IESNA91") || begins("IESNA:LM-63-1991")) {
        out.formatVersion = 1;
    } else if (begins("IESNA") || begins("IES:")) {
        out.formatVersion = 3;
        result.warnings.push_back("versao do formato nao reconhecida (" + std::string(first) +
                                  "), lido como LM-63-2002");
    } else if (!begins("IES")) {
        return 0; // LM-63-1986 knows no version line: this is header text already
    }
    return 1;
}

bool ReadTiltLine(std::string_view line, IesFile& out, IesReadResult& result) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        result.error = "linha TILT sem \"=\"";
        return false;
    }
    const std::string_view value = Text::Trim(line.substr(equals + 1));
    const std::string upper = Text::ToUpper(value);
    if (upper == "NONE") {
        out.tiltMode = 0;
    } else if (upper == "INCLUDE") {
        out.tiltMode = 1;
    } else {
        out.tiltMode = 2;
        out.tiltFile = value;
        result.warnings.push_back("TILT aponta para arquivo externo (" + out.tiltFile +
                                  "), que nao e lido");
    }
    return true;
}

void ReadKeyword(std::string_view line, std::size_t bracket, IesFile& out, IesReadResult& result) {
    std::string key = Text::ToUpper(Text::Trim(line.substr(1, bracket - 1)));
    std::string value(Text::Trim(line.substr(bracket + 1)));
    if (key != "MORE") {
        out.keywords.emplace_back(std::move(key), std::move(value));
    } else if (!out.keywords.empty()) {
        out.keywords.back().second += "\n" + value;
    } else {
        result.warnings.emplace_back("[MORE] sem palavra-chave anterior, ignorado");
    }
}

/// Reads the header from line `index` on, the TILT line included; `index` ends behind it.
bool ReadHeader(const Lines& lines, std::size_t& index, IesFile& out, IesReadResult& result) {
    while (index < lines.size()) {
        const std::string_view line = Text::Trim(lines[index++]);
        if (Text::ToUpper(line.substr(0, 4)) == "TILT") {
            return ReadTiltLine(line, out, result);
        }
        const bool bracketed = line.starts_with('[');
        const std::size_t bracket = bracketed ? line.find(']') : std::string_view::npos;
        if (bracket != std::string_view::npos) {
            ReadKeyword(line, bracket, out, result);
        } else if (!line.empty()) {
            out.otherLines.emplace_back(line);
        }
    }
    result.error = "linha TILT= nao encontrada - nao parece um arquivo IES";
    return false;
}

bool ReadTiltData(NumberCursor& cursor, IesFile& out) {
    int count = 0;
    if (!ReadInteger(cursor, "geometria do TILT", out.tiltGeometry) ||
        !ReadInteger(cursor, "numero de angulos do TILT", count)) {
        return false;
    }
    if (count < 1) {
        cursor.error = "numero de angulos do TILT invalido";
        return false;
    }
    return ReadRealList(cursor, "angulos do TILT", count, out.tiltAngles) &&
           ReadRealList(cursor, "fatores do TILT", count, out.tiltFactors);
}

struct TableCounts {
    int vertical = 0;
    int horizontal = 0;
};

bool ReadHeaderNumbers(NumberCursor& cursor, IesFile& out, TableCounts& counts) {
    return ReadInteger(cursor, "numero de lampadas", out.lampCount) &&
           ReadReal(cursor, "lumens por lampada", out.lumensPerLamp) &&
           ReadReal(cursor, "multiplicador de candela", out.candelaMultiplier) &&
           ReadInteger(cursor, "numero de angulos verticais", counts.vertical) &&
           ReadInteger(cursor, "numero de angulos horizontais", counts.horizontal) &&
           ReadInteger(cursor, "tipo fotometrico", out.photometricType) &&
           ReadInteger(cursor, "tipo de unidade", out.unitsType) &&
           ReadReal(cursor, "largura", out.width) && ReadReal(cursor, "comprimento", out.length) &&
           ReadReal(cursor, "altura", out.height) &&
           ReadReal(cursor, "fator de reator", out.ballastFactor) &&
           ReadReal(cursor, "campo reservado", out.futureUse) &&
           ReadReal(cursor, "potencia de entrada", out.inputWatts);
}

/// The refusal of header numbers that no table can follow, or the empty string.
std::string JudgeHeaderNumbers(const IesFile& file, const TableCounts& counts) {
    if (counts.vertical < 1 || counts.horizontal < 1) {
        return "numero de angulos verticais/horizontais invalido";
    }
    if (file.photometricType < 1 || file.photometricType > 3) {
        return "tipo fotometrico " + std::to_string(file.photometricType) +
               " invalido (esperado 1, 2 ou 3)";
    }
    if (file.unitsType != 1 && file.unitsType != 2) {
        return "tipo de unidade " + std::to_string(file.unitsType) +
               " invalido (esperado 1 = pes ou 2 = metros)";
    }
    return {};
}

bool IsStrictlyIncreasing(const std::vector<double>& angles) {
    // Asked for "less" so that a NaN is no step upwards.
    const auto noStepUp = [](double a, double b) { return !(a < b); };
    return std::adjacent_find(angles.begin(), angles.end(), noStepUp) == angles.end();
}

bool ReadTables(NumberCursor& cursor, IesFile& out, const TableCounts& counts) {
    if (!ReadRealList(cursor, "angulos verticais", counts.vertical, out.verticalAngles) ||
        !ReadRealList(cursor, "angulos horizontais", counts.horizontal, out.horizontalAngles)) {
        return false;
    }
    for (int row = 0; row < counts.horizontal; ++row) {
        out.candela.emplace_back();
        if (!ReadRealList(cursor, "valores de candela", counts.vertical, out.candela.back())) {
            return false;
        }
    }
    if (!IsStrictlyIncreasing(out.verticalAngles) || !IsStrictlyIncreasing(out.horizontalAngles)) {
        cursor.error = "angulos fora de ordem crescente";
        return false;
    }
    return true;
}

/// The ranges that LM-63 lists for type C: a table with others is read, but its symmetry is not
/// known.
void WarnOfTypeCRanges(const IesFile& file, std::vector<std::string>& warnings) {
    const double top = file.verticalAngles.back();
    const double bottom = file.verticalAngles.front();
    if (!(AnglesEqual(bottom, 0.0) || AnglesEqual(bottom, 90.0)) ||
        !(AnglesEqual(top, 90.0) || AnglesEqual(top, 180.0))) {
        warnings.emplace_back(
            "angulos verticais fora das faixas usuais do tipo C (0-90, 90-180 ou 0-180)");
    }
    if (file.horizontalAngles.size() == 1) {
        return;
    }
    const double first = file.horizontalAngles.front();
    const double last = file.horizontalAngles.back();
    const bool fromC0 =
        AnglesEqual(first, 0.0) &&
        (AnglesEqual(last, 90.0) || AnglesEqual(last, 180.0) || AnglesEqual(last, 360.0));
    const bool fromC90 = AnglesEqual(first, 90.0) && AnglesEqual(last, 270.0);
    if (!fromC0 && !fromC90) {
        warnings.emplace_back("angulos horizontais fora das simetrias usuais do tipo C");
    }
}

bool HasNegativeCandela(const IesFile& file) {
    return std::any_of(file.candela.begin(), file.candela.end(), [](const auto& row) {
        return std::any_of(row.begin(), row.end(), [](double value) { return value < 0.0; });
    });
}

void WarnOfOddities(const IesFile& file, std::size_t leftOver, std::vector<std::string>& warnings) {
    if (leftOver > 0) {
        warnings.push_back(std::to_string(leftOver) +
                           " valor(es) depois da tabela de candela, ignorado(s)");
    }
    if (file.lampCount < 1) {
        warnings.emplace_back("numero de lampadas menor que 1");
    }
    if (file.candelaMultiplier <= 0.0) {
        warnings.emplace_back("multiplicador de candela nao positivo");
    }
    if (HasNegativeCandela(file)) {
        warnings.emplace_back("ha valores de candela negativos");
    }
    if (file.photometricType == 1) {
        WarnOfTypeCRanges(file, warnings);
    } else {
        warnings.emplace_back(
            "fotometria tipo A/B (projetores/automotiva): o calculo de fluxo so cobre o tipo C");
    }
}

/// Everything below the TILT line.
bool ReadNumbers(NumberCursor& cursor, IesFile& out) {
    TableCounts counts;
    if ((out.tiltMode == 1 && !ReadTiltData(cursor, out)) ||
        !ReadHeaderNumbers(cursor, out, counts)) {
        return false;
    }
    cursor.error = JudgeHeaderNumbers(out, counts);
    return cursor.error.empty() && ReadTables(cursor, out, counts);
}

} // namespace

IesReadResult ReadIes(std::string_view text, IesFile& out) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    out = IesFile{};
    IesReadResult result;
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }

    const Lines lines = SplitLines(text);
    std::size_t index = ReadVersion(lines, out, result);
    if (!ReadHeader(lines, index, out, result)) {
        return result;
    }

    NumberCursor cursor;
    for (; index < lines.size(); ++index) {
        AppendTokens(lines[index], cursor.tokens);
    }
    if (!ReadNumbers(cursor, out)) {
        result.error = cursor.error;
        return result;
    }
    WarnOfOddities(out, cursor.tokens.size() - cursor.next, result.warnings);
    result.ok = true;
    return result;
}

} // namespace Merivane::Photometry
