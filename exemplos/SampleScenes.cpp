#include "exemplos/SampleScenes.hpp"

#include <utility>

#include "exemplos/RoomModel.hpp"
#include "exemplos/SceneParts.hpp"

namespace Merivane::Examples {

namespace {

using Catalog::JsonValue;

constexpr const char* Floor = "Piso";
constexpr const char* WallPaint = "Parede";
constexpr const char* Ceiling = "Teto";
constexpr const char* Wood = "Madeira";

JsonValue List(std::vector<JsonValue> items) {
    JsonValue list = JsonValue::MakeArray();
    list.items = std::move(items);
    return list;
}

std::vector<JsonValue> OpaqueMaterials() {
    return {OpaqueMaterial(Floor, 0.2), OpaqueMaterial(WallPaint, 0.5),
            OpaqueMaterial(Ceiling, 0.7), OpaqueMaterial(Wood, 0.35)};
}

Opening Door(double from) {
    return {Wood, from, from + 0.9, 0.0, 2.1, false};
}

// Walls over all edges of an outline; `openings` for each edge, in the same order.
void AddWalls(RoomModel& model, const std::vector<Point>& outline, double height,
              std::vector<std::vector<Opening>> openings) {
    openings.resize(outline.size());
    for (std::size_t i = 0; i < outline.size(); ++i) {
        model.AddWall({outline[i], outline[(i + 1) % outline.size()], height, WallPaint,
                       std::move(openings[i])});
    }
}

JsonValue LoosePoint(Vertex position, Vertex direction) {
    JsonValue point;
    point.Set("posicao", NumberList({position[0], position[1], position[2]}));
    point.Set("direcao", NumberList({direction[0], direction[1], direction[2]}));
    return point;
}

JsonValue Observer(const char* name, Vertex eye, Point sight) {
    JsonValue observer;
    observer.Set("nome", JsonValue::MakeString(name));
    observer.Set("posicao", NumberList({eye[0], eye[1], eye[2]}));
    observer.Set("direcao", NumberList({sight[0], sight[1]}));
    return observer;
}

// 6 x 4 m, a table, a door, four downlights in the ceiling.
SampleScene SmallRoom() {
    constexpr double Height = 2.8;
    const std::vector<Point> outline = {{0, 0}, {6, 0}, {6, 4}, {0, 4}};
    RoomModel model;
    model.AddFloorAndCeiling(outline, Height, Floor, Ceiling);
    AddWalls(model, outline, Height, {{}, {Door(0.4)}});
    model.AddBox(Wood, {2.2, 1.6}, {3.8, 2.4}, 0.68, 0.72);

    JsonValue zone = Zone("Sala", outline, Height);
    zone.Set("calcularParedes", JsonValue::MakeBool(true));
    zone.Set("calcularTeto", JsonValue::MakeBool(true));
    zone.Set("atividade", JsonValue::MakeString("s28.6")); // reading; "Sala" suggests nothing

    JsonValue document = BeginDocument("Sala de leitura");
    document.Set("materiais", List(OpaqueMaterials()));
    document.Set("superficies", std::move(model.surfaces));
    document.Set("luminarias",
                 List({
                     WithColourRendering(Luminaire("D1", "downlight.ies", {1.5, 1.0, Height}), 80),
                     WithColourRendering(Luminaire("D2", "downlight.ies", {4.5, 1.0, Height}), 80),
                     WithColourRendering(Luminaire("D3", "downlight.ies", {1.5, 3.0, Height}), 80),
                     WithColourRendering(Luminaire("D4", "downlight.ies", {4.5, 3.0, Height}), 80),
                 }));
    document.Set("zonas", List({std::move(zone)}));
    document.Set("pontos", List({
                               LoosePoint({3.0, 2.0, 0.73}, {0, 0, 1}), // on the table
                               LoosePoint({0.02, 2.0, 1.5}, {1, 0, 0}), // on the wall
                           }));
    document.Set("observadores", List({Observer("Leitor", {3.0, 1.3, 1.2}, {0, 1})}));
    EndDocument(document, "projeto", {50, 75, 100, 125, 150, 175, 200, 225});
    return {"sala", std::move(document)};
}

// The office: an L of 120 m2. In its south-east corner a meeting room stands behind glass, a
// passage leads by it to the door; a column stands in the open part.
constexpr double OfficeHeight = 2.8;
constexpr const char* PartitionGlass = "Vidro incolor";
constexpr const char* SolarGlass = "Vidro refletivo";
constexpr Point ColumnLow = {4.8, 2.8};
constexpr Point ColumnHigh = {5.2, 3.2};

// The Zones of the office. Each has its own piece of floor and ceiling, so that the mean of its
// reflectances finds them.
const std::vector<Point> OpenPlan = {{0, 0}, {9.6, 0}, {9.6, 6}, {7.2, 6}, {7.2, 11}, {0, 11}};
const std::vector<Point> MeetingRoom = {{9.6, 0}, {14, 0}, {14, 3.6}, {9.6, 3.6}};
const std::vector<Point> Passage = {{9.6, 3.6}, {14, 3.6}, {14, 6}, {9.6, 6}};

RoomModel OfficeModel() {
    const auto window = [](double from, double to) {
        return Opening{SolarGlass, from, to, 0.9, 2.2, true};
    };
    const std::vector<Point> outline = {{0, 0}, {14, 0}, {14, 6}, {7.2, 6}, {7.2, 11}, {0, 11}};
    RoomModel model;
    for (const std::vector<Point>& room : {OpenPlan, MeetingRoom, Passage}) {
        model.AddFloorAndCeiling(room, OfficeHeight, Floor, Ceiling);
    }
    AddWalls(model, outline, OfficeHeight,
             {{window(1.0, 4.0), window(5.5, 8.5), window(10.6, 13.0)},
              {Door(4.4)},
              {},
              {},
              {window(0.8, 3.2), window(4.0, 6.4)},
              {Door(9.6)}});
    model.AddBox(WallPaint, ColumnLow, ColumnHigh, 0.0, OfficeHeight);
    constexpr double PaneThickness = 0.012;
    model.AddPane(PartitionGlass, {9.6, 0}, {9.6, 3.6}, OfficeHeight, PaneThickness);
    model.AddPane(SolarGlass, {9.6, 3.6}, {13.1, 3.6}, OfficeHeight, PaneThickness);
    model.AddPane(Wood, {13.1, 3.6}, {14, 3.6}, OfficeHeight, PaneThickness);
    return model;
}

// A rectangle of luminaires, named with their number; the first at `first`, row after row.
struct LuminaireField {
    const char* name;
    const char* iesFile;
    Vertex first;
    int columns;
    double stepX;
    int rows;
    double stepY;
    double colourRendering = 0.0; // 0 where the file tells it
};

std::vector<JsonValue> OfficeLuminaires() {
    constexpr double PendantHeight = 2.3; // under the ceiling, which it lights
    const LuminaireField fields[] = {
        {"Painel", "painel-antiofuscante.ies", {0.6, 0.7, OfficeHeight}, 6, 1.68, 3, 2.3},
        {"Painel", "painel-antiofuscante.ies", {0.6, 7.8, OfficeHeight}, 4, 2.0, 2, 2.5},
        {"Downlight", "downlight.ies", {11.1, 4.8, OfficeHeight}, 3, 1.3, 1, 0.0, 80},
        {"Pendente", "pendente-duplo.ies", {10.8, 0.8, PendantHeight}, 2, 2.3, 2, 2.0},
    };
    std::vector<JsonValue> luminaires;
    for (const LuminaireField& field : fields) {
        for (int row = 0; row < field.rows; ++row) {
            for (int column = 0; column < field.columns; ++column) {
                const std::string number = std::to_string(luminaires.size() + 1);
                JsonValue luminaire =
                    Luminaire(std::string(field.name) + " " + number, field.iesFile,
                              {field.first[0] + column * field.stepX,
                               field.first[1] + row * field.stepY, field.first[2]});
                luminaires.push_back(field.colourRendering > 0.0
                                         ? WithColourRendering(luminaire, field.colourRendering)
                                         : luminaire);
            }
        }
    }
    return luminaires;
}

SampleScene Office() {
    JsonValue open = Zone("Escritório", OpenPlan, OfficeHeight);
    open.Set("furos", List({PointList({ColumnLow,
                                       {ColumnHigh[0], ColumnLow[1]},
                                       ColumnHigh,
                                       {ColumnLow[0], ColumnHigh[1]}})}));
    JsonValue meeting = Zone("Sala de reunião", MeetingRoom, OfficeHeight);
    JsonValue passage = Zone("Circulação", Passage, OfficeHeight);
    passage.Set("planoDeTrabalho", JsonValue::MakeNumber(0.1)); // one walks here
    passage.Set("espacamento", JsonValue::MakeNumber(0.25));

    std::vector<JsonValue> materials = OpaqueMaterials();
    // Of each pane's two faces: 0.88 and 0.36 through both.
    materials.push_back(PlainGlass(PartitionGlass, 0.938));
    materials.push_back(CoatedGlass(SolarGlass, 0.6, 0.12, 0.25));

    JsonValue document = BeginDocument("Escritório em L");
    document.Set("materiais", List(std::move(materials)));
    document.Set("superficies", std::move(OfficeModel().surfaces));
    document.Set("luminarias", List(OfficeLuminaires()));
    document.Set("zonas", List({std::move(open), std::move(meeting), std::move(passage)}));
    // "projeto" gives the same means and takes fifteen times as long: rays behind the glass are
    // followed too.
    EndDocument(document, "rapido", {200, 300, 400, 500, 600, 700});
    return {"escritorio", std::move(document)};
}

// 12 m long and 0.9 m wide: every point lies within the border band of 0.5 m, so all of them count.
SampleScene Corridor() {
    constexpr double Height = 2.6;
    const std::vector<Point> outline = {{0, 0}, {12, 0}, {12, 0.9}, {0, 0.9}};
    RoomModel model;
    model.AddFloorAndCeiling(outline, Height, Floor, Ceiling);
    AddWalls(model, outline, Height, {{Door(1.0), Door(5.0), Door(9.0)}, {}, {Door(5.55)}, {}});

    JsonValue luminaire =
        WithColourRendering(Luminaire("D", "downlight-1991.ies", {0.7, 0.45, Height}), 80);
    JsonValue copies;
    copies.Set("x", JsonValue::MakeNumber(5));
    copies.Set("passoX", JsonValue::MakeNumber(2.65));
    luminaire.Set("repeticao", std::move(copies));

    JsonValue zone = Zone("Corredor", outline, Height);
    zone.Set("planoDeTrabalho", JsonValue::MakeNumber(0.1)); // one walks here

    JsonValue document = BeginDocument("Corredor de serviço");
    document.Set("materiais", List(OpaqueMaterials()));
    document.Set("superficies", std::move(model.surfaces));
    document.Set("luminarias", List({std::move(luminaire)}));
    document.Set("zonas", List({std::move(zone)}));
    EndDocument(document, "projeto", {60, 75, 90, 100, 110, 120});
    return {"corredor", std::move(document)};
}

} // namespace

std::vector<SampleScene> BuildSampleScenes() {
    return {SmallRoom(), Office(), Corridor()};
}

} // namespace Merivane::Examples
