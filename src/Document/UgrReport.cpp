#include "Document/UgrReport.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <utility>

#include "Document/JsonParts.hpp"
#include "Document/TextColumns.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/RoomBackground.hpp"
#include "Simulation/Glare/UpwardFlux.hpp"
#include "Simulation/LuminousOpening.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;
using Simulation::FormatDecimal;
using Simulation::FormatUgr;
using Simulation::ReflectanceSet;
using Simulation::ReflectanceSets;
using Simulation::StandardRooms;
using Simulation::UgrRoomSize;

constexpr int TypeC = 1;
constexpr std::size_t LabelWidth = 12; // of the text's first column [characters]
constexpr std::size_t ValueWidth = 7;  // of its other columns
constexpr std::size_t GroupGap = 4;    // between crosswise and lengthwise

/// Why a file has no table; empty when it has one.
std::string Refusal(const IesReport& file) {
    if (!file.ok) {
        return file.error;
    }
    if (file.file.photometricType != TypeC) {
        return "o método UGR precisa de fotometria do tipo C; a do arquivo é do tipo " +
               std::string(file.file.photometricType == 2 ? "B" : "A");
    }
    if (!(file.flux > 0.0) || !std::isfinite(file.flux)) {
        return "a tabela de candela não tem luz: sem fluxo, sem UGR";
    }
    const double area = Simulation::DownwardArea(Simulation::DeclaredOpening(file.file));
    if (!(area > 0.0)) {
        return "o IES não informa a abertura luminosa (largura x comprimento): sem luminância, "
               "sem UGR";
    }
    return "";
}

/// Warnings of the file without those of how Radiance would build it: it plays no part here.
std::vector<std::string> GlareWarnings(const IesReport& file) {
    std::vector<std::string> warnings = file.warnings;
    std::string ofRadiance;
    Photometry::WithKnownOpening(file.file, ofRadiance);
    std::erase(warnings, ofRadiance);
    return warnings;
}

std::string ProductText(const IesReport& file) {
    std::string product;
    for (const std::string& part : {Photometry::FindKeyword(file.file, "MANUFAC"),
                                    Photometry::FindKeyword(file.file, "LUMCAT"),
                                    std::filesystem::path(file.fileName).filename().string()}) {
        product += (part.empty() || product.empty() ? "" : " · ") + Text::ShownText(part);
    }
    return product;
}

void Calculate(UgrReport& report) {
    const Simulation::SceneLuminaire luminaire = UgrLuminaire(report);
    const Simulation::GlareOptions options = TableOptions();
    report.table = Simulation::UgrTable(luminaire, report.height, options);
    report.referenceUgr = Simulation::ReferenceRoomUgr(luminaire, report.height, options);
    report.upwardFlux = Simulation::UpwardFluxFraction(report.photometry);
    report.isSmall = Simulation::DownwardArea(Simulation::DeclaredOpening(report.photometry)) <
                     Simulation::SmallSourceArea;
    if (report.isSmall) {
        Simulation::GlareOptions small = options;
        small.smallSourceTerm = true;
        report.smallSourceUgr = Simulation::ReferenceRoomUgr(luminaire, report.height, small);
    }
}

/// A room explained: all observers over the same luminaires, the sight told against C0.
ExplainedRoom ExplainRoom(const Simulation::SceneLuminaire& luminaire, double height,
                          bool crosswise) {
    const Simulation::UgrRoom room = Simulation::ReferenceRoom(height, crosswise);
    const Simulation::StandardRoom standard = Simulation::BuildStandardRoom(luminaire, room);
    const std::vector<Simulation::PlacedLuminaire> placed =
        Simulation::PlaceLuminaires(standard.scene.luminaires);
    const std::array<double, 4> background = Simulation::RoomBackground(room, luminaire);
    ExplainedRoom explained;
    explained.title =
        std::string("Sala de referência 4H x 8H, plano C0 ao longo de ") + (crosswise ? "Y" : "X");
    for (const Simulation::PlacedLuminaire& light : placed) {
        explained.lights.push_back({luminaire.displayName, light.center});
    }
    for (std::size_t k = 0; k < standard.observers.size(); ++k) {
        ExplainedObserver seen;
        seen.observer = standard.observers[k];
        seen.result = Simulation::ObserverGlare(seen.observer, placed, background[k],
                                                TableOptions(), &seen.terms);
        const bool alongY = seen.observer.dx == 0.0;
        seen.observer.label += alongY == crosswise ? " (visada transversal)" : " (visada ao longo)";
        explained.observers.push_back(std::move(seen));
    }
    return explained;
}

// Text for a person.

std::string HeadRow(const std::string& label, double ReflectanceSet::*part) {
    std::string row = PadRight(label, LabelWidth);
    for (int group = 0; group < 2; ++group) {
        row += std::string(GroupGap, ' ');
        for (const ReflectanceSet& set : ReflectanceSets) {
            row += PadLeft(FormatDecimal(set.*part, 1), ValueWidth);
        }
    }
    return row;
}

std::string GroupRow() {
    constexpr std::size_t group = GroupGap + ValueWidth * ReflectanceSets.size();
    return std::string(LabelWidth, ' ') + PadLeft("visada transversal ao eixo da lâmpada", group) +
           PadLeft("visada ao longo do eixo da lâmpada", group);
}

std::string RoomLabel(const UgrRoomSize& room) {
    return PadLeft(FormatDecimal(room.x, 0) + "H", 4) + PadLeft(FormatDecimal(room.y, 0) + "H", 6);
}

std::string ValueRow(const UgrReport& report, std::size_t room) {
    std::string row = PadRight(RoomLabel(StandardRooms[room]), LabelWidth);
    for (const auto& values : {report.table.crosswise[room], report.table.lengthwise[room]}) {
        row += std::string(GroupGap, ' ');
        for (const double value : values) {
            row += PadLeft(FormatUgr(value), ValueWidth);
        }
    }
    return row;
}

// JSON.

template <typename Rows> JsonValue NumberRows(const Rows& rows) {
    JsonValue list = JsonValue::MakeArray();
    for (const auto& row : rows) {
        list.items.push_back(Numbers({row.begin(), row.end()}));
    }
    return list;
}

JsonValue RoomsJson() {
    JsonValue list = JsonValue::MakeArray();
    for (const UgrRoomSize& room : StandardRooms) {
        list.items.push_back(Numbers({room.x, room.y}));
    }
    return list;
}

JsonValue ReflectancesJson() {
    JsonValue list = JsonValue::MakeArray();
    for (const ReflectanceSet& set : ReflectanceSets) {
        list.items.push_back(Numbers({set.ceiling, set.walls, set.floor}));
    }
    return list;
}

void SetTable(const UgrReport& report, JsonValue& json) {
    json.Set("luminaria", JsonValue::MakeString(report.luminaire));
    json.Set("altura", JsonValue::MakeNumber(report.height));
    json.Set("fluxo", JsonValue::MakeNumber(report.flux));
    json.Set("luzParaCima", JsonValue::MakeNumber(report.upwardFlux));
    json.Set("salas", RoomsJson());
    json.Set("refletancias", ReflectancesJson());
    json.Set("transversal", NumberRows(report.table.crosswise));
    json.Set("longitudinal", NumberRows(report.table.lengthwise));
    json.Set("referencia", JsonValue::MakeNumber(report.referenceUgr));
    json.Set("fontePequena", NumberOrNull(report.isSmall, report.smallSourceUgr));
}

} // namespace

Simulation::GlareOptions TableOptions() {
    Simulation::GlareOptions options;
    options.tableFieldLimit = true;
    return options;
}

Simulation::SceneLuminaire UgrLuminaire(const UgrReport& report) {
    Simulation::SceneLuminaire luminaire;
    luminaire.id = "L1";
    luminaire.displayName = report.luminaire;
    luminaire.photometry = report.photometry;
    return luminaire;
}

UgrReport BuildUgrReport(const IesReport& file, double height) {
    UgrReport report;
    report.fileName = file.fileName;
    report.warnings = GlareWarnings(file);
    report.error = Refusal(file);
    report.ok = report.error.empty();
    if (!report.ok) {
        return report;
    }
    report.photometry = file.file;
    report.luminaire = Text::ShownText(Photometry::FindKeyword(file.file, "LUMINAIRE"));
    if (report.luminaire.empty()) {
        report.luminaire = Text::ShownText(std::filesystem::path(file.fileName).stem().string());
    }
    report.product = ProductText(file);
    report.height = height;
    report.flux = file.flux;
    Calculate(report);
    const std::string upward = UpwardWarning(report.upwardFlux);
    if (!upward.empty()) {
        report.warnings.push_back(upward);
    }
    return report;
}

std::string UpwardWarning(double upwardFlux) {
    if (!(upwardFlux > Simulation::MostUpwardFlux)) {
        return "";
    }
    return FormatDecimal(100.0 * upwardFlux, 0) +
           "% da luz para cima - o método UGR não vale acima de 65%";
}

std::string SmallSourceNote(const UgrReport& report) {
    if (!report.isSmall) {
        return "";
    }
    return "Fonte pequena (abertura luminosa menor que 0,005 m²): pela CIE 147 a sala de "
           "referência daria UGR " +
           FormatUgr(report.smallSourceUgr) +
           " - só informativo; a tabela segue a CIE 117, como as dos fabricantes.";
}

std::vector<ExplainedRoom> ExplainReferenceRoom(const UgrReport& report) {
    const Simulation::SceneLuminaire luminaire = UgrLuminaire(report);
    std::vector<ExplainedRoom> rooms;
    for (const bool crosswise : {true, false}) {
        rooms.push_back(ExplainRoom(luminaire, report.height, crosswise));
    }
    return rooms;
}

std::vector<std::string> UgrReportLines(const UgrReport& report) {
    std::vector<std::string> lines = {
        "Tabela UGR (método tabular, CIE 117): " + report.luminaire,
        "H = " + FormatDecimal(report.height, 2) +
            " m (luminárias acima do olho a 1,20 m), espaçamento 0,25 H, fluxo inicial " +
            FormatDecimal(report.flux, 0) + " lm",
        "",
        GroupRow(),
        HeadRow("teto", &ReflectanceSet::ceiling),
        HeadRow("paredes", &ReflectanceSet::walls),
        HeadRow("piso", &ReflectanceSet::floor),
        "   X     Y"};
    for (std::size_t room = 0; room < StandardRooms.size(); ++room) {
        lines.push_back(ValueRow(report, room));
    }
    lines.emplace_back();
    lines.push_back(
        "Sala de referência 4H x 8H (0,7 / 0,5 / 0,2), pior observador e sentido: UGR " +
        FormatUgr(report.referenceUgr));
    if (report.isSmall) {
        lines.push_back(SmallSourceNote(report));
    }
    for (const std::string& warning : report.warnings) {
        lines.push_back("Aviso: " + warning);
    }
    return lines;
}

JsonValue UgrReportJson(const UgrReport& report) {
    JsonValue json;
    json.Set("arquivo", JsonValue::MakeString(report.fileName));
    json.Set("ok", JsonValue::MakeBool(report.ok));
    json.Set("erro", report.ok ? JsonValue() : JsonValue::MakeString(report.error));
    json.Set("avisos", Texts(report.warnings));
    if (report.ok) {
        SetTable(report, json);
    }
    return json;
}

std::string WriteUgrTable(const UgrReport& report) {
    std::string text = "\xEF\xBB\xBFX/H;Y/H";
    for (const char* sight : {"transversal", "ao longo"}) {
        for (const ReflectanceSet& set : ReflectanceSets) {
            text += std::string(";") + sight + " " + FormatDecimal(set.ceiling, 1) + "/" +
                    FormatDecimal(set.walls, 1) + "/" + FormatDecimal(set.floor, 1);
        }
    }
    text += "\r\n";
    for (std::size_t room = 0; room < StandardRooms.size(); ++room) {
        text +=
            FormatDecimal(StandardRooms[room].x, 0) + ";" + FormatDecimal(StandardRooms[room].y, 0);
        for (const auto& values : {report.table.crosswise[room], report.table.lengthwise[room]}) {
            for (const double value : values) {
                text += ";" + FormatDecimal(value, 2);
            }
        }
        text += "\r\n";
    }
    return text;
}

} // namespace Merivane::Document
