#include <algorithm>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/Commands/AddIesDialog.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesSamples.hpp"
#include "Workbench/Interface/DialogLayout.hpp"

namespace Merivane::Commands {
namespace {

namespace Item = ResourceIds::AddIes;

using Items = std::vector<std::int16_t>;
using Numbers = std::vector<double>;
using Tests::LastItem;

PickedIes Spot() {
    PickedIes picked;
    picked.fileName = "LX-200.ies";
    picked.baseName = "LX-200";
    const Photometry::IesReadResult read = Photometry::ReadIes(
        Tests::SmallText("IESNA:LM-63-2002\n[MANUFAC] Lumen\n[LUMCAT] LX 200\n[LUMINAIRE] Spot 20°"
                         "\n[LAMP] LED CRI>80\nTILT=NONE\n"),
        picked.file);
    EXPECT_TRUE(read.ok) << read.error;
    return picked;
}

/// A box from (0.1, 0.2, -0.3) to (0.5, 1.0, 0.1), two of its edges.
Archicad::ObjectPreview Box() {
    Archicad::ObjectPreview object;
    object.lowest = {0.1, 0.2, -0.3};
    object.highest = {0.5, 1.0, 0.1};
    object.geometryRead = true;
    object.edges = {{{0.1, 0.2, -0.3}, {0.5, 0.2, -0.3}}, {{0.1, 0.2, -0.3}, {0.1, 0.2, 0.1}}};
    return object;
}

// Of the light interface.
constexpr Host::Colour Red = {0.83, 0.10, 0.10};
constexpr Host::Colour Blue = {0.10, 0.32, 0.85};
constexpr Host::Colour Green = {0.00, 0.55, 0.18};
constexpr Host::Colour Orange = {0.93, 0.50, 0.00};
constexpr Host::Colour Brown = {0.52, 0.32, 0.12};
constexpr Host::Colour Grey = {0.45, 0.45, 0.45};

class AddIes : public Tests::AddOnSession {
protected:
    void Answer(const std::string& items, std::int16_t button = Item::Accept,
                const PickedIes& picked = Spot(), const Archicad::ObjectPreview& object = Box()) {
        AddIesDialog dialog("Spot branco", picked, object, "Objeto, 40,0 x 80,0 x 40,0 cm");
        Tests::PrepareAnswer(Item::Dialog, items, button);
        accepted = dialog.Invoke();
        Tests::ExpectAnswered();
        result = dialog.Result();
    }

    static std::string Text(std::int16_t item) { return LastItem(item).text; }

    static Numbers Center() {
        return {LastItem(Item::CenterX).value, LastItem(Item::CenterY).value,
                LastItem(Item::CenterZ).value};
    }

    static Items UsableButtons() {
        return Tests::UsableItems({Item::LowerFace, Item::Middle, Item::UpperFace});
    }

    static Host::UserPicture Picture(std::int16_t item) {
        return LastItem(item).picture.value_or(Host::UserPicture());
    }

    /// How many lines of a picture have a colour.
    static std::ptrdiff_t LinesOf(std::int16_t item, const Host::Colour& colour) {
        const Host::UserPicture picture = Picture(item);
        return std::count_if(picture.shapes.begin(), picture.shapes.end(),
                             [&](const Host::PictureShape& shape) {
                                 const auto* const line = std::get_if<Host::PictureLine>(&shape);
                                 return line && line->colour == colour && line->width > 1.0;
                             });
    }

    bool accepted = false;
    AddIesDialogResult result;
};

void ExpectNear(const Numbers& a, const Numbers& b) {
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        EXPECT_NEAR(a[i], b[i], 1e-9) << i;
    }
}

TEST_F(AddIes, TellsTheObjectAndTheFile) {
    Answer("");
    EXPECT_EQ(Tests::LastDialog().title, "Vantoro: adicionar fotometria IES");
    EXPECT_EQ(Text(3), "Objeto de origem:");
    EXPECT_EQ(Text(Item::SourceName), "Spot branco");
    EXPECT_EQ(Text(Item::ObjectInfo), "Objeto, 40,0 x 80,0 x 40,0 cm");
    EXPECT_EQ(Text(6), "Arquivo IES:");
    EXPECT_EQ(Text(Item::FileName), "LX-200.ies");
    EXPECT_EQ(Text(Item::Identity), "No arquivo: fabricante Lumen     catálogo LX 200");
    EXPECT_EQ(Text(Item::Flux), "Fluxo (da tabela): 228 lm     Pico: 100 cd     Potencia: 10.0 W"
                                "     Eficacia: 23 lm/W");
    EXPECT_EQ(Text(Item::Table), "Tabela: 1 x 3 angulos     Abertura declarada: 100 x 200 x 0 mm");
}

TEST_F(AddIes, TellsHowManyWarningsTheFileHas) {
    PickedIes picked = Spot();
    picked.warnings = {"a", "b", "c"};
    Answer("", Item::Accept, picked);
    EXPECT_EQ(Text(Item::Table), "Tabela: 1 x 3 angulos     Abertura declarada: 100 x 200 x 0 mm"
                                 "     Avisos: 3");
}

TEST_F(AddIes, NamesItsFields) {
    Answer("");
    const std::pair<std::int16_t, const char*> labels[] = {
        {18, "Código de catálogo:"}, {20, "Nome da luminária:"}, {22, "Lâmpada:"},
        {24, "Reprodução de cor:"},  {26, "Nome da peça nova:"}, {28, "Fator de manutenção:"},
        {42, "Rotação do C0:"},      {44, "Inclinação:"},        {46, "Direção:"},
    };
    for (const auto& [item, text] : labels) {
        EXPECT_EQ(Text(item), text);
    }
}

TEST_F(AddIes, StartsFromTheFile) {
    Answer("");
    EXPECT_EQ(Text(Item::Catalog), "LX 200");
    EXPECT_EQ(Text(Item::Luminaire), "Spot 20°");
    EXPECT_EQ(Text(Item::Lamp), "LED CRI>80");
    EXPECT_EQ(LastItem(Item::ColourRendering).value, 80.0);
    EXPECT_EQ(Text(Item::PartName), "LX-200");
    EXPECT_EQ(LastItem(Item::MaintenanceFactor).value, 0.8);
    for (const std::int16_t item : {Item::C0Rotation, Item::TiltAngle, Item::TiltDirection}) {
        EXPECT_EQ(LastItem(item).value, 0.0);
    }
}

TEST_F(AddIes, StartsAtTheMiddleOfTheLowerFace) {
    Answer("");
    ExpectNear(Center(), {30.0, 60.0, -30.0});
    EXPECT_EQ(UsableButtons(), (Items{Item::LowerFace, Item::Middle, Item::UpperFace}));
    EXPECT_EQ(Text(Item::Hint),
              "O centro fotometrico e o centro da abertura luminosa. Ajuste ate o retangulo azul "
              "ficar sobre a face de onde a luz sai (num embutido, a face de baixo).");
}

TEST_F(AddIes, StartsAtTheOriginWithoutGeometry) {
    Answer("", Item::Accept, Spot(), {});
    ExpectNear(Center(), {0.0, 0.0, 0.0});
    EXPECT_EQ(UsableButtons(), Items());
    EXPECT_EQ(Text(Item::Hint),
              "Geometria do objeto nao lida - a previa mostra so a fotometria. O centro e medido a "
              "partir da origem do objeto.");
}

TEST_F(AddIes, SetsTheCentreByItsButtons) {
    const std::string away = R"({"item": 32, "valor": 1}, {"item": 34, "valor": 2},
                                {"item": 36, "valor": 3}, )";
    Answer(away + R"({"item": 37, "clicar": true})");
    ExpectNear(Center(), {30.0, 60.0, -30.0});
    Answer(away + R"({"item": 38, "clicar": true})");
    ExpectNear(Center(), {30.0, 60.0, -10.0});
    Answer(away + R"({"item": 39, "clicar": true})");
    ExpectNear(Center(), {30.0, 60.0, 10.0});
    EXPECT_NEAR(result.settings.centerZ, 0.1, 1e-12);
}

TEST_F(AddIes, LimitsItsNumbers) {
    Answer("");
    struct Case {
        std::int16_t item;
        double lowest;
        double highest;
    };
    for (const Case& c :
         {Case{Item::ColourRendering, 0, 100}, Case{Item::MaintenanceFactor, 0.1, 1},
          Case{Item::CenterX, -10000, 10000}, Case{Item::CenterY, -10000, 10000},
          Case{Item::CenterZ, -10000, 10000}, Case{Item::C0Rotation, -360, 360},
          Case{Item::TiltAngle, 0, 180}, Case{Item::TiltDirection, -360, 360}}) {
        EXPECT_EQ(LastItem(c.item).lowest, c.lowest) << c.item;
        EXPECT_EQ(LastItem(c.item).highest, c.highest) << c.item;
    }
}

TEST_F(AddIes, GivesTheSettingsInMetresAndDegrees) {
    Answer(R"({"item": 29, "valor": 0.7}, {"item": 32, "valor": 12.5}, {"item": 34, "valor": -3},
              {"item": 36, "valor": 250}, {"item": 43, "valor": 90}, {"item": 45, "valor": 30},
              {"item": 47, "valor": -45})");
    EXPECT_TRUE(accepted);
    const Photometry::LuminaireSettings& settings = result.settings;
    ExpectNear({settings.centerX, settings.centerY, settings.centerZ}, {0.125, -0.03, 2.5});
    EXPECT_EQ(settings.c0Rotation, 90.0);
    EXPECT_EQ(settings.tiltAngle, 30.0);
    EXPECT_EQ(settings.tiltDirection, -45.0);
    EXPECT_EQ(settings.maintenanceFactor, 0.7);
    EXPECT_EQ(settings.flangeDepth, 0.0);
    EXPECT_EQ(settings.iesFileName, "LX-200.ies");
}

TEST_F(AddIes, GivesTheIdentity) {
    Answer(R"({"item": 19, "texto": "LX 201"}, {"item": 21, "texto": "Spot"},
              {"item": 23, "texto": ""}, {"item": 25, "valor": 92.5})");
    EXPECT_EQ(result.identity.manufacturer, "Lumen");
    EXPECT_EQ(result.identity.catalog, "LX 201");
    EXPECT_EQ(result.identity.luminaire, "Spot");
    EXPECT_EQ(result.identity.lamp, "");
    EXPECT_EQ(result.identity.colourRendering, 92.5);
}

TEST_F(AddIes, TrimsTheNameAndTakesTheFilesForAnEmptyOne) {
    Answer(R"({"item": 27, "texto": "  Spot de teste\t"})");
    EXPECT_EQ(result.newName, "Spot de teste");
    for (const char* const name : {"", "  "}) {
        Answer(R"({"item": 27, "texto": ")" + std::string(name) + R"("})");
        EXPECT_EQ(result.newName, "LX-200");
    }
}

TEST_F(AddIes, MakesANameThatAFileCanHave) {
    Answer(R"({"item": 27, "texto": "Spot 20/30: 5\" ."})");
    EXPECT_EQ(result.newName, "Spot 20-30- 5-");
    Answer(R"({"item": 27, "texto": "../fora"})");
    EXPECT_EQ(result.newName, "_..-fora");
}

TEST_F(AddIes, ProposesANameThatTellsThePartFromItsSource) {
    PickedIes picked = Spot();
    picked.baseName = "Spot branco";
    Answer("", Item::Accept, picked);
    EXPECT_EQ(result.newName, "Spot branco IES");
}

TEST_F(AddIes, GivesNothingWhereTheUserCancels) {
    Answer(R"({"item": 27, "texto": "x"})", Item::Cancel);
    EXPECT_FALSE(accepted);
    EXPECT_EQ(result.newName, "");
    Tests::PrepareAnswers(R"([{"dialogo": 32600, "fechar": true}])");
    EXPECT_FALSE(AddIesDialog("a", Spot(), Box(), "").Invoke());
}

TEST_F(AddIes, AllowsAFileWithoutFlux) {
    PickedIes picked = Spot();
    picked.file.photometricType = 2;
    Answer("", Item::Accept, picked);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(Text(Item::Flux), "Fluxo: nao calculado (fotometria tipo A/B)     Potencia: 10.0 W");
    EXPECT_EQ(LinesOf(Item::FrontView, Red), 0);
}

TEST_F(AddIes, DrawsCurveOpeningAndAxisInEachView) {
    Answer("");
    for (const std::int16_t view : {Item::FrontView, Item::SideView, Item::PlanView}) {
        const bool plan = view == Item::PlanView;
        EXPECT_EQ(LinesOf(view, Red), 1);
        EXPECT_EQ(LinesOf(view, Blue), 1);
        EXPECT_EQ(LinesOf(view, Green), 1);
        EXPECT_EQ(LinesOf(view, Orange), plan ? 1 : 0);
        EXPECT_EQ(LinesOf(view, Brown), plan ? 0 : 1);
    }
    EXPECT_EQ(Picture(Item::FrontView).ground, (Host::Colour{1.0, 1.0, 1.0}));
}

TEST_F(AddIes, DrawsTheObjectsOutlineInEachView) {
    // The box's two edges lie along X and Z; one that a view looks along is a point there.
    Answer("");
    for (const std::int16_t view : {Item::FrontView, Item::SideView, Item::PlanView}) {
        std::vector<Host::PictureLine> edges;
        const Host::UserPicture picture = Picture(view);
        for (const Host::PictureShape& shape : picture.shapes) {
            const auto* const line = std::get_if<Host::PictureLine>(&shape);
            if (line && line->colour == Grey && line->points.size() == 2) {
                edges.push_back(*line);
            }
        }
        ASSERT_EQ(edges.size(), 2U) << view;
        EXPECT_EQ(edges[0].points[0], edges[1].points[0]); // the corner that they share
        const Host::ItemPoint across = edges[0].points[1];
        const Host::ItemPoint upright = edges[1].points[1];
        EXPECT_EQ(across.x > edges[0].points[0].x, view != Item::SideView);
        EXPECT_EQ(across.y, edges[0].points[0].y);
        EXPECT_EQ(upright.x, edges[1].points[0].x);
        EXPECT_EQ(upright.y < edges[1].points[0].y, view != Item::PlanView);
    }
}

TEST_F(AddIes, HasViewsOfTheSizeOfTheirPictures) {
    Answer("");
    for (const std::int16_t view : {Item::FrontView, Item::SideView, Item::PlanView}) {
        EXPECT_EQ(LastItem(view).place.width, 320) << view;
        EXPECT_EQ(LastItem(view).place.height, 210) << view;
    }
}

TEST_F(AddIes, FramesEverythingAndFollowsTheFields) {
    Answer("");
    const Host::UserPicture before = Picture(Item::FrontView);
    for (const Host::PictureShape& shape : before.shapes) {
        if (const auto* const line = std::get_if<Host::PictureLine>(&shape)) {
            for (const Host::ItemPoint& point : line->points) {
                EXPECT_GE(point.x, 0.0);
                EXPECT_LE(point.x, 320.0);
                EXPECT_GE(point.y, 0.0);
                EXPECT_LE(point.y, 210.0);
            }
        }
    }
    Answer(R"({"item": 36, "valor": -300})");
    EXPECT_NE(Picture(Item::FrontView), before);
    EXPECT_EQ(Text(Item::FrontTitle), "Frente (X-Z)   zoom 1.0x");
}

TEST_F(AddIes, ZoomsAtTheCursorWithTheWheel) {
    Answer(R"({"item": 12, "roda": {"em": [200, 50], "passos": 2}})");
    EXPECT_TRUE(Text(Item::FrontTitle).starts_with("Frente (X-Z)   zoom 1.6x   X "))
        << Text(Item::FrontTitle);
    EXPECT_EQ(Text(Item::SideTitle), "Lateral (Y-Z)   zoom 1.0x");
    EXPECT_EQ(Text(Item::PlanTitle), "Planta (X-Y)   zoom 1.0x");
    // The place under the cursor stays: its figures are those before zooming.
    const std::string zoomed = Text(Item::FrontTitle);
    Answer(R"({"item": 12, "apontar": [200, 50]})");
    const std::string pointed = Text(Item::FrontTitle);
    EXPECT_EQ(zoomed.substr(zoomed.find("   X")), pointed.substr(pointed.find("   X")));
    Answer(R"({"item": 12, "roda": {"em": [200, 50], "passos": -100}})");
    EXPECT_TRUE(Text(Item::FrontTitle).starts_with("Frente (X-Z)   zoom 0.5x"));
    Answer(R"({"item": 12, "roda": {"em": [200, 50], "passos": 100}})");
    EXPECT_TRUE(Text(Item::FrontTitle).starts_with("Frente (X-Z)   zoom 200.0x"));
}

TEST_F(AddIes, TellsWhereTheCursorIsInCentimetres) {
    // Along Y all that is drawn in plan lies about the box's middle.
    Answer(R"({"item": 16, "apontar": [160, 105]})");
    EXPECT_TRUE(Text(Item::PlanTitle).starts_with("Planta (X-Y)   zoom 1.0x   X 34,"));
    EXPECT_TRUE(Text(Item::PlanTitle).ends_with(" cm  Y 60,00 cm")) << Text(Item::PlanTitle);
}

TEST_F(AddIes, MovesTheViewThatIsDragged) {
    Answer("");
    const auto axis = [](std::int16_t item) {
        const Host::UserPicture picture = Picture(item);
        const auto circle = std::find_if(
            picture.shapes.begin(), picture.shapes.end(), [](const Host::PictureShape& shape) {
                return std::holds_alternative<Host::PictureCircle>(shape);
            });
        return std::get<Host::PictureCircle>(*circle).center;
    };
    const Host::ItemPoint front = axis(Item::FrontView);
    const Host::ItemPoint side = axis(Item::SideView);
    Answer(R"({"item": 12, "arrastar": {"de": [100, 100], "ate": [130, 80]}},
              {"item": 12, "apontar": [10, 10]})");
    EXPECT_NEAR(axis(Item::FrontView).x, front.x + 30.0, 1e-9);
    EXPECT_NEAR(axis(Item::FrontView).y, front.y - 20.0, 1e-9);
    EXPECT_EQ(axis(Item::SideView), side);
}

TEST_F(AddIes, FramesEverythingAgainOnADoubleClick) {
    Answer("");
    const Host::UserPicture framed = Picture(Item::PlanView);
    Answer(R"({"item": 16, "roda": {"em": [20, 30], "passos": 5}},
              {"item": 16, "arrastar": {"de": [100, 100], "ate": [130, 80]}},
              {"item": 16, "clicarDuasVezes": true})");
    EXPECT_EQ(Picture(Item::PlanView), framed);
    EXPECT_TRUE(Text(Item::PlanTitle).starts_with("Planta (X-Y)   zoom 1.0x"));
}

TEST_F(AddIes, KeepsAViewThatTheUserHasMovedWhenAFieldChanges) {
    Answer(R"({"item": 12, "roda": {"em": [160, 105], "passos": 1}}, {"item": 36, "valor": -100})");
    EXPECT_TRUE(Text(Item::FrontTitle).starts_with("Frente (X-Z)   zoom 1.2x"))
        << Text(Item::FrontTitle);
}

TEST_F(AddIes, HasAScaleBarInEachView) {
    Answer("");
    for (const std::int16_t view : {Item::FrontView, Item::SideView, Item::PlanView}) {
        const Host::PictureShape last = Picture(view).shapes.back();
        ASSERT_TRUE(std::holds_alternative<Host::PictureText>(last));
        EXPECT_TRUE(std::get<Host::PictureText>(last).text.ends_with(" cm"));
    }
}

TEST_F(AddIes, ExplainsTheViews) {
    Answer("");
    EXPECT_TRUE(Text(Item::Legend)
                    .starts_with("Vermelho: curva IES (na planta, a 45 graus do eixo)\nAzul: "
                                 "abertura declarada no IES\n"))
        << Text(Item::Legend);
}

TEST_F(AddIes, CutsNoTextAndOverlapsNothing) {
    for (const bool dark : {false, true}) {
        Open(dark);
        PickedIes picked = Spot();
        picked.warnings = {"a"};
        Answer(R"({"item": 12, "roda": {"em": [1, 209], "passos": -3}})", Item::Accept, picked);
        EXPECT_EQ(Workbench::ItemsWithCutText(Tests::LastDialog()), Items());
        EXPECT_EQ(Workbench::FindMisplaced(Tests::LastDialog()),
                  std::vector<Workbench::Misplaced>());
        Answer("", Item::Accept, picked, {});
        EXPECT_EQ(Workbench::ItemsWithCutText(Tests::LastDialog()), Items());
    }
}

TEST_F(AddIes, IsDarkInTheDarkInterface) {
    Open(true);
    Answer("");
    EXPECT_EQ(LastItem(49).icon, 10203);
    EXPECT_LT(Picture(Item::FrontView).ground.red, 0.2);
}

TEST_F(AddIes, IsNotAcceptedWhereTheHostDoesNotShowIt) {
    Workbench::FailCall("RunDialog", 1, Host::OutOfMemory);
    EXPECT_FALSE(AddIesDialog("a", Spot(), Box(), "").Invoke());
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{
                  "Vantoro: Adicionar fotometria IES failed: APIERR_MEMFULL (0x81060002)"});
}

} // namespace
} // namespace Merivane::Commands
