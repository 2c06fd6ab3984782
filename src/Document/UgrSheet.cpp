#include "Document/UgrSheet.hpp"

#include <array>
#include <cstddef>
#include <optional>

#include "Document/PolarCurve.hpp"
#include "Document/SheetText.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/PrintedValue.hpp"

// All lengths in mm of paper. The table has its maker's data sheet proportions: rows of 6, columns
// of 13 behind two of 11 for the room, in a frame of 152.
namespace Merivane::Document {
namespace {

using Drawing::Area;
using Drawing::Color;
using Drawing::HorizontalAnchor;
using Drawing::Layer;
using Drawing::Polyline;
using Drawing::TextRun;
using Drawing::TextWeight;
using Drawing::VerticalAnchor;
using Simulation::FormatDecimal;
using Simulation::FormatUgr;
using Simulation::ReflectanceSet;
using Simulation::ReflectanceSets;
using Simulation::StandardRooms;

constexpr double PaperWidth = 210.0;
constexpr double PaperHeight = 297.0;
constexpr double FrameWidth = 152.0;
constexpr double Left = 0.5 * (PaperWidth - FrameWidth);
constexpr double Right = Left + FrameWidth;
constexpr double Top = PaperHeight - 14.0;

constexpr double RowPitch = 6.0;
constexpr double ColumnPitch = 13.0;
constexpr double LabelColumns = 22.0; // X and Y
constexpr double HeadRows = 4.0;      // three reflectances, one of headings
constexpr double CellText = 2.2;
constexpr double SmallText = 1.9;
constexpr double TableTop = Top - 31.5;
constexpr double TableBottom =
    TableTop - (HeadRows + static_cast<double>(StandardRooms.size())) * RowPitch;
constexpr double ReferenceBottom = TableBottom - 11.0;
constexpr double CurveTop = ReferenceBottom - 5.0;
constexpr double CurveBottom = 38.0;
constexpr double NotesTop = 33.0;
constexpr double FiguresLeft = Left + 84.0;

constexpr Color HeadFill{0.925, 0.933, 0.945, 1.0};
constexpr Color GroupFill{0.970, 0.974, 0.980, 1.0};
constexpr Color Rule{0.62, 0.63, 0.66, 1.0};
constexpr Color Alarm{0.72, 0.10, 0.10, 1.0};

void AddFill(Layer& layer, const Drawing::Box& box, const Color& color) {
    layer.elements.emplace_back(Area{{{{box.left, box.bottom},
                                       {box.right, box.bottom},
                                       {box.right, box.top},
                                       {box.left, box.top}}},
                                     color,
                                     0.0});
}

void AddLine(Layer& layer, Drawing::Point from, Drawing::Point to, double width = 0.13,
             const Color& color = Rule) {
    layer.elements.emplace_back(Polyline{{from, to}, false, {width, color, {}}});
}

/// A text about a point, at most `width` wide.
TextRun CenteredText(std::string_view text, double x, double y, double width,
                     TextWeight weight = TextWeight::Normal) {
    TextRun run = FittingText(text, x, y, width, {CellText, 1.2}, weight);
    run.horizontal = HorizontalAnchor::Center;
    run.vertical = VerticalAnchor::Middle;
    return run;
}

/// Middle of the column of a value; `group` 0 is crosswise, 1 lengthwise.
double ColumnMiddle(std::size_t group, std::size_t set) {
    const auto column = static_cast<double>(group * ReflectanceSets.size() + set);
    return Left + LabelColumns + (column + 0.5) * ColumnPitch;
}

/// Middle of a row of the table, those of the head counted first.
double RowMiddle(double row) {
    return TableTop - (row + 0.5) * RowPitch;
}

/// First rows of the rooms of equal X, and the row after the last.
std::vector<std::size_t> GroupStarts() {
    std::vector<std::size_t> starts = {0};
    for (std::size_t room = 1; room < StandardRooms.size(); ++room) {
        if (StandardRooms[room].x != StandardRooms[room - 1].x) {
            starts.push_back(room);
        }
    }
    starts.push_back(StandardRooms.size());
    return starts;
}

double RoomTop(std::size_t room) {
    return TableTop - (HeadRows + static_cast<double>(room)) * RowPitch;
}

void AddGrid(Layer& layer) {
    const double headBottom = RoomTop(0);
    AddFill(layer, {Left, headBottom, Right, TableTop}, HeadFill);
    const std::vector<std::size_t> starts = GroupStarts();
    for (std::size_t group = 1; group + 1 < starts.size(); group += 2) {
        AddFill(layer, {Left, RoomTop(starts[group + 1]), Right, RoomTop(starts[group])},
                GroupFill);
    }
    for (std::size_t room = 1; room < StandardRooms.size(); ++room) {
        AddLine(layer, {Left, RoomTop(room)}, {Right, RoomTop(room)}, 0.07);
    }
    for (const std::size_t start : starts) {
        AddLine(layer, {Left, RoomTop(start)}, {Right, RoomTop(start)}, 0.18);
    }
    AddLine(layer, {Left + LabelColumns, headBottom + RowPitch}, {Right, headBottom + RowPitch});
    for (const double x : {LabelColumns, LabelColumns + 5.0 * ColumnPitch}) {
        AddLine(layer, {Left + x, TableBottom}, {Left + x, TableTop}, 0.18);
    }
    layer.elements.emplace_back(
        Polyline{{{Left, TableBottom}, {Right, TableBottom}, {Right, TableTop}, {Left, TableTop}},
                 true,
                 {0.35, Drawing::Black, {}}});
}

void AddHead(Layer& layer) {
    struct HeadRow {
        const char* name;
        double ReflectanceSet::*part;
    };
    constexpr std::array<HeadRow, 3> rows = {{{"Teto", &ReflectanceSet::ceiling},
                                              {"Paredes", &ReflectanceSet::walls},
                                              {"Piso", &ReflectanceSet::floor}}};
    TextRun title = CenteredText("Refletâncias", Left + 3.0, RowMiddle(1.0), 3.0 * RowPitch - 1.0);
    title.rotation = 90.0;
    title.color = Muted;
    layer.elements.emplace_back(title);
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const double y = RowMiddle(static_cast<double>(k));
        TextRun name = CenteredText(rows[k].name, Left + LabelColumns - 2.0, y, 15.0);
        name.horizontal = HorizontalAnchor::Right;
        layer.elements.emplace_back(name);
        for (std::size_t group = 0; group < 2; ++group) {
            for (std::size_t set = 0; set < ReflectanceSets.size(); ++set) {
                layer.elements.emplace_back(
                    CenteredText(FormatDecimal(ReflectanceSets[set].*rows[k].part, 1),
                                 ColumnMiddle(group, set), y, ColumnPitch));
            }
        }
    }
    const double y = RowMiddle(3.0);
    layer.elements.emplace_back(CenteredText("X", Left + 5.5, y, 9.0, TextWeight::Bold));
    layer.elements.emplace_back(CenteredText("Y", Left + 16.5, y, 9.0, TextWeight::Bold));
    constexpr double groupWidth = 5.0 * ColumnPitch - 2.0;
    layer.elements.emplace_back(CenteredText("Visada transversal ao eixo da lâmpada",
                                             ColumnMiddle(0, 2), y, groupWidth, TextWeight::Bold));
    layer.elements.emplace_back(CenteredText("Visada ao longo do eixo da lâmpada",
                                             ColumnMiddle(1, 2), y, groupWidth, TextWeight::Bold));
}

void AddValues(Layer& layer, const Simulation::UgrTableValues& table) {
    for (std::size_t room = 0; room < StandardRooms.size(); ++room) {
        const double y = RowMiddle(HeadRows + static_cast<double>(room));
        layer.elements.emplace_back(
            CenteredText(FormatDecimal(StandardRooms[room].x, 0) + "H", Left + 5.5, y, 10.0));
        layer.elements.emplace_back(
            CenteredText(FormatDecimal(StandardRooms[room].y, 0) + "H", Left + 16.5, y, 10.0));
        for (std::size_t set = 0; set < ReflectanceSets.size(); ++set) {
            layer.elements.emplace_back(CenteredText(FormatUgr(table.crosswise[room][set]),
                                                     ColumnMiddle(0, set), y, ColumnPitch - 1.0));
            layer.elements.emplace_back(CenteredText(FormatUgr(table.lengthwise[room][set]),
                                                     ColumnMiddle(1, set), y, ColumnPitch - 1.0));
        }
    }
}

void AddTitle(Layer& layer, const UgrReport& report) {
    double y = Top - 4.2;
    layer.elements.emplace_back(
        FittingText(report.luminaire, Left, y, FrameWidth, {4.2, 2.6}, TextWeight::Bold));
    y -= 5.0;
    TextRun product = FittingText(report.product, Left, y, FrameWidth, {2.2, 1.7});
    product.color = Muted;
    layer.elements.emplace_back(product);
    AddLine(layer, {Left, y - 3.4}, {Right, y - 3.4}, 0.35, Drawing::Black);
    layer.elements.emplace_back(SheetText("Tabela UGR (método tabular, CIE 117)", Left,
                                          TableTop + 10.0, 3.0, TextWeight::Bold));
    layer.elements.emplace_back(FittingText(
        "H = " + FormatDecimal(report.height, 2) +
            " m (luminárias acima do olho a 1,20 m)   |   espaçamento 0,25 H   |   fluxo inicial " +
            FormatDecimal(report.flux, 0) + " lm",
        Left, TableTop + 4.0, FrameWidth, {CellText, 1.5}));
}

void AddReference(Layer& layer, const UgrReport& report) {
    AddFill(layer, {Left, ReferenceBottom, Right, ReferenceBottom + 8.0}, HeadFill);
    const double y = ReferenceBottom + 4.0;
    TextRun text = FittingText(
        "Sala de referência 4H x 8H (0,7 / 0,5 / 0,2), pior observador e sentido:", Left + 3.0, y,
        FrameWidth - 36.0, {CellText, 1.6});
    text.vertical = VerticalAnchor::Middle;
    layer.elements.emplace_back(text);
    TextRun value =
        SheetText("UGR " + FormatUgr(report.referenceUgr), Right - 3.0, y, 3.2, TextWeight::Bold);
    value.horizontal = HorizontalAnchor::Right;
    value.vertical = VerticalAnchor::Middle;
    layer.elements.emplace_back(value);
}

/// A quantity of the luminaire with its name.
struct Figure {
    const char* name;
    std::string value;
};

std::vector<Figure> LuminaireFigures(const UgrReport& report) {
    const Photometry::IesFile& file = report.photometry;
    const std::optional<double> halfAngle = Photometry::FindBeamHalfAngle(file);
    std::vector<Figure> figures = {
        {"Fluxo inicial", FormatDecimal(report.flux, 0) + " lm"},
        {"Intensidade máxima", FormatDecimal(Photometry::PeakCandela(file), 0) + " cd"},
        {"Semiângulo do facho", halfAngle ? FormatDecimal(*halfAngle, 1) + "°" : "não se aplica"},
        {"Luz para cima", FormatDecimal(100.0 * report.upwardFlux, 0) + " %"}};
    if (file.inputWatts > 0.0) {
        figures.push_back({"Potência", FormatDecimal(file.inputWatts, 1) + " W"});
        figures.push_back(
            {"Eficiência luminosa", FormatDecimal(report.flux / file.inputWatts, 0) + " lm/W"});
    }
    return figures;
}

void AddFigures(Layer& layer, const UgrReport& report) {
    double y = CurveTop - 2.6;
    layer.elements.emplace_back(
        SheetText("Luminária", FiguresLeft, y, CellText + 0.2, TextWeight::Bold));
    const auto add = [&layer, &y](const char* name, const std::string& value) {
        y -= RowPitch;
        TextRun label = SheetText(name, FiguresLeft, y, CellText);
        label.color = Muted;
        layer.elements.emplace_back(label);
        TextRun text = FittingText(value, Right, y, 36.0, {CellText, 1.4});
        text.horizontal = HorizontalAnchor::Right;
        layer.elements.emplace_back(text);
        AddLine(layer, {FiguresLeft, y - 1.9}, {Right, y - 1.9}, 0.07);
    };
    for (const Figure& figure : LuminaireFigures(report)) {
        add(figure.name, figure.value);
    }
    y -= RowPitch;
    TextRun opening = SheetText("Abertura luminosa", FiguresLeft, y, CellText);
    opening.color = Muted;
    layer.elements.emplace_back(opening);
    for (const std::string& line :
         WrapText(OpeningText(report.photometry), Right - FiguresLeft, CellText)) {
        y -= 4.2;
        layer.elements.emplace_back(SheetText(line, FiguresLeft, y, CellText));
    }
}

void AddCurve(Layer& layer, const UgrReport& report) {
    layer.elements.emplace_back(SheetText("Curva de distribuição (cd)", Left, CurveTop - 2.6,
                                          CellText + 0.2, TextWeight::Bold));
    std::string error; // a luminaire with a table has light and type C, so it has a curve
    AppendPolarPlot(report.photometry, {Left, CurveBottom, FiguresLeft - 8.0, CurveTop - 5.0},
                    layer, error);
}

void AddNotes(Layer& layer, const UgrReport& report) {
    struct Note {
        std::string text;
        Color color;
    };
    const Note notes[] = {
        {UpwardWarning(report.upwardFlux), Alarm},
        {"X: dimensão da sala atravessando a linha de visão; Y: ao longo dela (múltiplos de H). "
         "Observadores no meio das paredes, olho a 1,20 m. Fundo (Lb) por radiosidade na "
         "sala padrão.",
         Muted},
        {SmallSourceNote(report), Muted}};
    AddLine(layer, {Left, NotesTop}, {Right, NotesTop}, 0.18);
    double y = NotesTop - 1.6;
    for (const Note& note : notes) {
        if (note.text.empty()) {
            continue;
        }
        for (const std::string& line : WrapText(note.text, FrameWidth, SmallText)) {
            y -= 3.3;
            TextRun run = SheetText(line, Left, y, SmallText);
            run.color = note.color;
            layer.elements.emplace_back(run);
        }
        y -= 0.9;
    }
}

} // namespace

Drawing::DisplayList BuildUgrSheet(const UgrReport& report) {
    Layer table{"Tabela UGR", {}};
    Layer luminaire{"Luminária", {}};
    Layer texts{"Textos", {}};
    AddGrid(table);
    AddHead(table);
    AddValues(table, report.table);
    AddCurve(luminaire, report);
    AddFigures(luminaire, report);
    AddTitle(texts, report);
    AddReference(texts, report);
    AddNotes(texts, report);
    return {"Tabela UGR - " + report.luminaire,
            PaperWidth,
            PaperHeight,
            {std::move(table), std::move(luminaire), std::move(texts)}};
}

} // namespace Merivane::Document
