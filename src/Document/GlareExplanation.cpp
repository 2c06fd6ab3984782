#include "Document/GlareExplanation.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "Document/JsonParts.hpp"
#include "Document/TextColumns.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;
using Simulation::FormatDecimal;
using Simulation::GlareOmission;
using Simulation::GlareTerm;

constexpr const char* NotReached = "–";

/// How far a light source was looked at before it entered the sum or was left out.
enum class Stage { Place, Field, Light, Sum };

Stage LastStage(GlareOmission omission) {
    switch (omission) {
    case GlareOmission::AtTheEye:
    case GlareOmission::NotAhead:
        return Stage::Place;
    case GlareOmission::NotAbove:
    case GlareOmission::OutOfField:
        return Stage::Field;
    case GlareOmission::NoArea:
    case GlareOmission::NoIntensity:
        return Stage::Light;
    case GlareOmission::None:
        break;
    }
    return Stage::Sum;
}

/// A quantity of a row: its names and its value.
struct Column {
    const char* head;  ///< of the text
    const char* cell;  ///< of the spreadsheet
    const char* key;   ///< of the JSON
    std::size_t width; ///< in the text [characters]
    double GlareTerm::*value;
    int decimals; ///< below 0: six significant digits
    Stage stage;  ///< at which it is known
};

constexpr std::array<Column, 11> Columns = {{
    {"r (m)", "r (m)", "distancia", 8, &GlareTerm::distance, 3, Stage::Place},
    {"H/R", "H/R", "HR", 7, &GlareTerm::heightRatio, 3, Stage::Field},
    {"T/R", "T/R", "TR", 7, &GlareTerm::sideRatio, 3, Stage::Field},
    {"σ (°)", "sigma (graus)", "sigma", 7, &GlareTerm::sigma, 2, Stage::Sum},
    {"τ (°)", "tau (graus)", "tau", 7, &GlareTerm::tau, 2, Stage::Sum},
    {"I (cd)", "I (cd)", "intensidade", 11, &GlareTerm::intensity, -1, Stage::Light},
    {"A (m²)", "A (m2)", "areaAparente", 12, &GlareTerm::apparentArea, -1, Stage::Light},
    {"L (cd/m²)", "L (cd/m2)", "luminancia", 11, &GlareTerm::luminance, -1, Stage::Sum},
    {"ω (sr)", "w (sr)", "anguloSolido", 12, &GlareTerm::solidAngle, -1, Stage::Sum},
    {"p", "p", "indiceDePosicao", 9, &GlareTerm::positionIndex, -1, Stage::Sum},
    {"termo", "termo (cd2/m4)", "termo", 12, &GlareTerm::term, -1, Stage::Sum},
}};

constexpr std::size_t NumberWidth = 5;
constexpr std::size_t PlaceWidth = 9;
constexpr std::size_t ShareWidth = 8;

/// The value of a column, nothing where the light source was left out before it was reached.
std::optional<double> Reached(const GlareTerm& term, const Column& column) {
    if (column.stage > LastStage(term.omission)) {
        return std::nullopt;
    }
    return term.*column.value;
}

std::string Format(double value, const Column& column) {
    return column.decimals < 0 ? FormatSignificant(value) : FormatDecimal(value, column.decimals);
}

double ShareOf(const GlareTerm& term, double sum) {
    return sum > 0.0 ? term.term / sum : 0.0;
}

const ExplainedLight& LightOf(const ExplainedRoom& room, const GlareTerm& term) {
    static const ExplainedLight Unknown;
    return term.luminaire < room.lights.size() ? room.lights[term.luminaire] : Unknown;
}

/// What the last column says.
std::string Remark(const GlareTerm& term) {
    return term.smallSource ? "fonte pequena (CIE 147)" : GlareOmissionText(term.omission);
}

/// Width of the column of names, 0 where names tell nothing apart.
std::size_t NameWidth(const ExplainedRoom& room) {
    std::size_t width = CharacterCount("luminária");
    bool differ = false;
    for (const ExplainedLight& light : room.lights) {
        width = std::max(width, CharacterCount(light.name));
        differ = differ || light.name != room.lights.front().name;
    }
    return differ ? width + 2 : 0;
}

std::string HeadLine(std::size_t nameWidth) {
    std::string line = PadLeft("nº", NumberWidth);
    line += nameWidth > 0 ? "  " + PadRight("luminária", nameWidth - 2) : "";
    for (const char* axis : {"x (m)", "y (m)", "z (m)"}) {
        line += PadLeft(axis, PlaceWidth);
    }
    for (const Column& column : Columns) {
        line += PadLeft(column.head, column.width);
    }
    return line + PadLeft("%", ShareWidth);
}

std::string RowLine(const ExplainedLight& light, const GlareTerm& term, double sum,
                    std::size_t nameWidth) {
    std::string line = PadLeft(std::to_string(term.luminaire + 1), NumberWidth);
    line += nameWidth > 0 ? "  " + PadRight(light.name, nameWidth - 2) : "";
    for (const double place : {light.center.x, light.center.y, light.center.z}) {
        line += PadLeft(FormatDecimal(place, 3), PlaceWidth);
    }
    for (const Column& column : Columns) {
        const std::optional<double> value = Reached(term, column);
        line += PadLeft(value ? Format(*value, column) : NotReached, column.width);
    }
    const bool counts = term.omission == GlareOmission::None;
    line += PadLeft(counts ? FormatDecimal(100.0 * ShareOf(term, sum), 2) : NotReached, ShareWidth);
    const std::string remark = Remark(term);
    return remark.empty() ? line : line + "  " + remark;
}

/// Rows as a person reads them: who dazzles most comes first, who was left out last.
std::vector<GlareTerm> OrderedTerms(const std::vector<GlareTerm>& terms) {
    std::vector<GlareTerm> ordered = terms;
    std::stable_sort(ordered.begin(), ordered.end(), [](const GlareTerm& a, const GlareTerm& b) {
        const bool aCounts = a.omission == GlareOmission::None;
        const bool bCounts = b.omission == GlareOmission::None;
        return aCounts != bCounts ? aCounts : a.term > b.term;
    });
    return ordered;
}

std::string PlaceLine(const Simulation::UgrObserver& observer) {
    return "  olho em (" + FormatDecimal(observer.x, 3) + "; " + FormatDecimal(observer.y, 3) +
           "; " + FormatDecimal(observer.z, 3) + ") m, visada (" + FormatDecimal(observer.dx, 3) +
           "; " + FormatDecimal(observer.dy, 3) + ")";
}

std::string ValueLine(const Simulation::GlareResult& result, double sum) {
    if (!result.valid) {
        return "  sem luminância de fundo, sem UGR";
    }
    const std::string background = FormatSignificant(result.background);
    if (!(sum > 0.0)) {
        return "  UGR 0,000: nenhuma luminária na soma (Lb " + background + " cd/m²)";
    }
    return "  UGR " + FormatDecimal(result.ugr, 3) + " = 8 log10(0,25 / Lb x soma), Lb " +
           background + " cd/m², soma " + FormatSignificant(sum) + " cd²/m⁴";
}

std::string CountLine(const ExplainedObserver& seen) {
    const Simulation::GlareResult& result = seen.result;
    const auto summed = static_cast<std::size_t>(std::max(result.sources, 0));
    const std::size_t total = std::max(seen.terms.size(), summed);
    std::string line = "  " + std::to_string(summed) + " luminária(s) na soma, " +
                       std::to_string(total - summed) + " de fora";
    if (result.smallSources > 0) {
        line += ", " + std::to_string(result.smallSources) + " como fonte pequena";
    }
    if (result.largeSources > 0) {
        line += ", " + std::to_string(result.largeSources) +
                " acima de 1 sr (grande demais para o método)";
    }
    return line;
}

void AppendObserver(const ExplainedRoom& room, const ExplainedObserver& seen, std::size_t nameWidth,
                    std::vector<std::string>& lines) {
    const double sum = TermSum(seen.terms);
    lines.emplace_back();
    lines.push_back("Observador: " + seen.observer.label);
    lines.push_back(PlaceLine(seen.observer));
    lines.push_back(ValueLine(seen.result, sum));
    lines.push_back(CountLine(seen));
    if (seen.terms.empty()) {
        return;
    }
    lines.push_back(HeadLine(nameWidth));
    for (const GlareTerm& term : OrderedTerms(seen.terms)) {
        lines.push_back(RowLine(LightOf(room, term), term, sum, nameWidth));
    }
}

JsonValue RowJson(const ExplainedLight& light, const GlareTerm& term, double sum) {
    JsonValue json;
    json.Set("luminaria", JsonValue::MakeNumber(static_cast<double>(term.luminaire + 1)));
    json.Set("nome", JsonValue::MakeString(light.name));
    json.Set("posicao", Numbers({light.center.x, light.center.y, light.center.z}));
    for (const Column& column : Columns) {
        const std::optional<double> value = Reached(term, column);
        json.Set(column.key, value ? JsonValue::MakeNumber(*value) : JsonValue());
    }
    const bool counts = term.omission == GlareOmission::None;
    json.Set("parte", NumberOrNull(counts, ShareOf(term, sum)));
    json.Set("fontePequena", JsonValue::MakeBool(term.smallSource));
    json.Set("motivo",
             counts ? JsonValue() : JsonValue::MakeString(GlareOmissionText(term.omission)));
    return json;
}

JsonValue ObserverJson(const ExplainedRoom& room, const ExplainedObserver& seen) {
    const Simulation::GlareResult& result = seen.result;
    const Simulation::UgrObserver& observer = seen.observer;
    const double sum = TermSum(seen.terms);
    JsonValue json;
    json.Set("nome", JsonValue::MakeString(observer.label));
    json.Set("posicao", Numbers({observer.x, observer.y, observer.z}));
    json.Set("visada", Numbers({observer.dx, observer.dy}));
    json.Set("UGR", NumberOrNull(result.valid, result.ugr));
    json.Set("Lb", NumberOrNull(result.valid, result.background));
    json.Set("soma", JsonValue::MakeNumber(sum));
    json.Set("naSoma", Integer(result.sources));
    json.Set("fontesPequenas", Integer(result.smallSources));
    json.Set("fontesGrandes", Integer(result.largeSources));
    json.Set("semArea", Integer(result.withoutArea));
    json.Set("foraDoCampo", Integer(result.outOfField));
    JsonValue rows = JsonValue::MakeArray();
    for (const GlareTerm& term : seen.terms) {
        rows.items.push_back(RowJson(LightOf(room, term), term, sum));
    }
    json.Set("linhas", std::move(rows));
    return json;
}

std::string TableHead() {
    std::string line = "sala;observador;UGR;Lb (cd/m2);luminária;nome;x (m);y (m);z (m)";
    for (const Column& column : Columns) {
        line += std::string(";") + column.cell;
    }
    return line + ";parte (%);observação\r\n";
}

std::string TableRow(const ExplainedLight& light, const GlareTerm& term, double sum) {
    std::string row = ";" + std::to_string(term.luminaire + 1) + ";" + TableCell(light.name);
    for (const double place : {light.center.x, light.center.y, light.center.z}) {
        row += ";" + FormatDecimal(place, 3);
    }
    for (const Column& column : Columns) {
        const std::optional<double> value = Reached(term, column);
        row += ";" + (value ? Format(*value, column) : "");
    }
    const bool counts = term.omission == GlareOmission::None;
    row += ";" + (counts ? FormatDecimal(100.0 * ShareOf(term, sum), 2) : "");
    return row + ";" + TableCell(Remark(term)) + "\r\n";
}

} // namespace

double TermSum(const std::vector<GlareTerm>& terms) {
    double sum = 0.0;
    for (const GlareTerm& term : terms) {
        sum += term.omission == GlareOmission::None ? term.term : 0.0;
    }
    return sum;
}

std::string GlareOmissionText(GlareOmission omission) {
    switch (omission) {
    case GlareOmission::None:
        return "";
    case GlareOmission::AtTheEye:
        return "fica no lugar do olho";
    case GlareOmission::NotAhead:
        return "fica ao lado ou atrás do olho";
    case GlareOmission::NotAbove:
        return "não fica acima do olho";
    case GlareOmission::OutOfField:
        return "fora da tabela do índice de posição (H/R até 1,9, T/R até 3)";
    case GlareOmission::NoArea:
        return "não mostra área luminosa";
    case GlareOmission::NoIntensity:
        return "não emite luz na direção do olho";
    }
    return "";
}

std::vector<std::string> GlareExplanationLines(const ExplainedRoom& room) {
    std::vector<std::string> lines = {room.title};
    const std::size_t nameWidth = NameWidth(room);
    for (const ExplainedObserver& seen : room.observers) {
        AppendObserver(room, seen, nameWidth, lines);
    }
    if (room.observers.empty()) {
        lines.emplace_back("  nada a explicar: sem luminárias ou sem observadores");
    }
    return lines;
}

JsonValue GlareExplanationJson(const ExplainedRoom& room) {
    JsonValue json;
    json.Set("sala", JsonValue::MakeString(room.title));
    JsonValue observers = JsonValue::MakeArray();
    for (const ExplainedObserver& seen : room.observers) {
        observers.items.push_back(ObserverJson(room, seen));
    }
    json.Set("observadores", std::move(observers));
    return json;
}

std::string WriteGlareExplanationTable(const std::vector<ExplainedRoom>& rooms) {
    std::string text = "\xEF\xBB\xBF" + TableHead();
    for (const ExplainedRoom& room : rooms) {
        for (const ExplainedObserver& seen : room.observers) {
            const bool valid = seen.result.valid;
            const std::string start = TableCell(room.title) + ";" + TableCell(seen.observer.label) +
                                      ";" + (valid ? FormatDecimal(seen.result.ugr, 3) : "") + ";" +
                                      (valid ? FormatSignificant(seen.result.background) : "");
            const double sum = TermSum(seen.terms);
            for (const GlareTerm& term : seen.terms) {
                text += start + TableRow(LightOf(room, term), term, sum);
            }
        }
    }
    return text;
}

} // namespace Merivane::Document
