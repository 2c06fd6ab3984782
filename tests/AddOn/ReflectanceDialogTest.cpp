#include <cstdint>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/Commands/ReflectanceDialog.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "Archicad/ReviewReflectances.hpp"
#include "Archicad/StoredSettings.hpp"

namespace Merivane {
namespace {

namespace Item = ResourceIds::Reflectance;

using Simulation::ReflectanceSource;
using Simulation::SurfaceReflectance;
using Tests::LastItem;

using Items = std::vector<std::int16_t>;
using Cells = std::vector<std::string>;
using Records = std::vector<SurfaceReflectance>;
using Numbers = std::vector<double>;

/// A painted wall, a glass, the floors without surface, a wall corrected before.
Records SampleRecords() {
    Simulation::SurfaceColour grey;
    grey.red = grey.green = grey.blue = 0.5;
    Simulation::SurfaceColour glass = grey;
    glass.transparency = 0.7;
    Records records = {
        Simulation::MakeFromColour("sup:Pintura", "Pintura", grey),
        Simulation::MakeFromColour("sup:Vidro", "Vidro", glass),
        Simulation::MakeFloorReflectance(),
        Simulation::MakeFromColour("sup:Madeira", "Madeira", grey),
    };
    records[0].area = 12.345;
    records[3].reflectance = 0.45;
    records[3].source = records[3].loadedSource = ReflectanceSource::CorrectedBefore;
    return records;
}

class Reflectances : public Tests::AddOnSession {
protected:
    void Answer(std::string_view items, std::int16_t button = Item::Accept,
                const Records& given = SampleRecords()) {
        ReflectanceDialog dialog(given);
        Tests::PrepareAnswer(Item::Dialog, items, button);
        accepted = dialog.Invoke();
        Tests::ExpectAnswered();
        records = dialog.Records();
        remember = dialog.Remember();
    }

    static Cells RowCells(std::size_t row) { return LastItem(Item::Surfaces).rows.at(row - 1); }

    static Items Usable() {
        return Tests::UsableItems({Item::Used, Item::UseEstimate, Item::Glass, Item::Transmittance,
                                   Item::Inside, Item::Outside});
    }

    static Numbers Values() {
        return {LastItem(Item::Used).value, LastItem(Item::Transmittance).value,
                LastItem(Item::Inside).value, LastItem(Item::Outside).value};
    }

    bool accepted = false;
    bool remember = false;
    Records records;
};

TEST_F(Reflectances, ShowEverySurfaceOfTheScene) {
    Answer("");
    EXPECT_EQ(Tests::LastDialog().title, "Vantoro: refletancias das superficies");
    EXPECT_EQ(LastItem(Item::Head).text,
              "4 superficie(s) na cena. Selecione uma linha para corrigir a refletancia.");
    EXPECT_EQ(RowCells(1), (Cells{"Pintura", "12.35", "21 %", "21 %", "estimada pela cor"}));
    EXPECT_EQ(RowCells(2),
              (Cells{"Vidro", "0.00", "T 70 R 8/8", "T 70 R 8/8", "estimada pela cor"}));
    EXPECT_EQ(RowCells(3),
              (Cells{"(sem Superficie) piso", "0.00", "20 %", "20 %", "padrao (orientacao)"}));
    EXPECT_EQ(RowCells(4), (Cells{"Madeira", "0.00", "21 %", "45 %", "corrigida antes"}));
}

TEST_F(Reflectances, ShowTheListUnderItsHeaders) {
    Answer("");
    Cells headers;
    for (const Host::ListColumn& column : LastItem(Item::Surfaces).columns) {
        headers.push_back(column.header);
    }
    EXPECT_EQ(headers, (Cells{"Superficie", "Area m2", "Estimada", "Usada", "Origem"}));
}

TEST_F(Reflectances, ShowNothingToEditWithoutASelection) {
    Answer("");
    EXPECT_EQ(LastItem(Item::Surfaces).selected, 0);
    EXPECT_EQ(Usable(), Items());
    EXPECT_EQ(LastItem(Item::Name).text, "");
    EXPECT_EQ(LastItem(Item::Explanation).text, "");
    EXPECT_FALSE(LastItem(Item::Glass).checked);
}

TEST_F(Reflectances, ShowAnOpaqueSurface) {
    Answer(R"({"item": 4, "linha": "Pintura"})");
    EXPECT_EQ(LastItem(Item::Name).text, "Pintura");
    EXPECT_EQ(LastItem(Item::Used).value, 21.4); // 21.404 %: to a tenth
    EXPECT_FALSE(LastItem(Item::Glass).checked);
    EXPECT_EQ(LastItem(Item::Explanation).text,
              "Estimativa pela cor RGB 128, 128, 128 (transparencia 0 %) -> refletancia 21 %. A "
              "cor de uma Superficie e escolhida para o render, nao medida: confira com o "
              "fabricante quando puder.");
    EXPECT_EQ(Usable(), (Items{Item::Used, Item::UseEstimate, Item::Glass}));
}

TEST_F(Reflectances, ShowAGlass) {
    Answer(R"({"item": 4, "linha": "Vidro"})");
    EXPECT_TRUE(LastItem(Item::Glass).checked);
    EXPECT_EQ(Values(), (Numbers{21.4, 70.0, 8.0, 8.0}));
    EXPECT_NE(LastItem(Item::Explanation).text.find("-> refletancia 21 %, vidro. A cor"),
              std::string::npos);
    EXPECT_EQ(Usable(), (Items{Item::UseEstimate, Item::Glass, Item::Transmittance, Item::Inside,
                               Item::Outside}));
}

TEST_F(Reflectances, ShowFacesWithoutSurface) {
    Answer(R"({"item": 4, "linha": 3})");
    EXPECT_EQ(LastItem(Item::Explanation).text,
              "Faces sem Superficie no modelo 3D: valor padrao pela orientacao (piso 20 %, parede "
              "50 %, teto 70 %).");
}

TEST_F(Reflectances, TakeACorrection) {
    Answer(R"({"item": 4, "linha": 1}, {"item": 7, "valor": 62.6})");
    EXPECT_EQ(records[0].reflectance, 0.626);
    EXPECT_EQ(records[0].source, ReflectanceSource::CorrectedNow);
    EXPECT_EQ(RowCells(1), (Cells{"Pintura", "12.35", "21 %", "63 %", "corrigida agora"}));
    EXPECT_EQ(records[1], SampleRecords()[1]);
}

TEST_F(Reflectances, TakeNothingOfAChangeThatRoundingMakes) {
    struct Case {
        const char* typed; // of 45 %
        bool corrected;
    };
    for (const Case& c :
         {Case{"45.05", false}, Case{"44.95", false}, Case{"45.07", true}, Case{"44.93", true}}) {
        Answer(R"({"item": 4, "linha": 4}, {"item": 7, "valor": )" + std::string(c.typed) + "}");
        EXPECT_EQ(records[3] == SampleRecords()[3], !c.corrected) << c.typed;
    }
}

TEST_F(Reflectances, AreNotCorrectedByBeingLookedAt) {
    Answer(R"({"item": 4, "linha": 1}, {"item": 4, "linha": 2}, {"item": 4, "linha": 3},
              {"item": 4, "linha": 4})");
    EXPECT_EQ(records, SampleRecords());
}

TEST_F(Reflectances, TakeEachFieldOfAGlass) {
    Answer(R"({"item": 4, "linha": 2}, {"item": 11, "valor": 60}, {"item": 13, "valor": 12},
              {"item": 15, "valor": 25})");
    EXPECT_EQ(records[1].transmittance, 0.6);
    EXPECT_EQ(records[1].reflectanceInside, 0.12);
    EXPECT_EQ(records[1].reflectanceOutside, 0.25);
    EXPECT_EQ(records[1].reflectance, SampleRecords()[1].reflectance);
    EXPECT_EQ(RowCells(2),
              (Cells{"Vidro", "0.00", "T 70 R 8/8", "T 60 R 12/25", "corrigida agora"}));
}

TEST_F(Reflectances, LimitTheFields) {
    Answer("");
    struct Case {
        std::int16_t item;
        double lowest;
        double highest;
    };
    for (const Case& c : {Case{Item::Used, 1, 95}, Case{Item::Transmittance, 5, 95},
                          Case{Item::Inside, 0, 60}, Case{Item::Outside, 0, 60}}) {
        EXPECT_EQ(LastItem(c.item).lowest, c.lowest);
        EXPECT_EQ(LastItem(c.item).highest, c.highest);
    }
}

TEST_F(Reflectances, MakeAnOpaqueSurfaceGlass) {
    Answer(R"({"item": 4, "linha": 1}, {"item": 9, "marcado": true})");
    EXPECT_TRUE(records[0].glass);
    EXPECT_EQ(records[0].transmittance, 0.8);
    EXPECT_EQ(records[0].reflectanceInside, 0.08);
    EXPECT_EQ(records[0].source, ReflectanceSource::CorrectedNow);
    EXPECT_EQ(Values(), (Numbers{21.4, 80.0, 8.0, 8.0}));
    EXPECT_EQ(RowCells(1), (Cells{"Pintura", "12.35", "21 %", "T 80 R 8/8", "corrigida agora"}));
    EXPECT_EQ(Usable(), (Items{Item::UseEstimate, Item::Glass, Item::Transmittance, Item::Inside,
                               Item::Outside}));
}

TEST_F(Reflectances, MakeAGlassOpaque) {
    Answer(R"({"item": 4, "linha": 2}, {"item": 9, "marcado": false})");
    EXPECT_FALSE(records[1].glass);
    EXPECT_EQ(records[1].transmittance, 0.7); // only the flag is cleared
    EXPECT_EQ(records[1].source, ReflectanceSource::CorrectedNow);
    EXPECT_EQ(Usable(), (Items{Item::Used, Item::UseEstimate, Item::Glass}));
    EXPECT_EQ(RowCells(2)[3], "21 %");
}

TEST_F(Reflectances, KeepTheTransmittanceOfAGlassThatWasOpaqueForAWhile) {
    Answer(R"({"item": 4, "linha": 2}, {"item": 11, "valor": 50}, {"item": 9, "clicar": true},
              {"item": 9, "clicar": true})");
    EXPECT_TRUE(records[1].glass);
    EXPECT_EQ(records[1].transmittance, 0.5);
}

TEST_F(Reflectances, GoBackToTheEstimate) {
    Answer(R"({"item": 4, "linha": 4}, {"item": 8, "clicar": true})");
    EXPECT_EQ(records[3].reflectance, records[3].estimatedReflectance);
    EXPECT_EQ(records[3].source, ReflectanceSource::Colour);
    EXPECT_EQ(RowCells(4), (Cells{"Madeira", "0.00", "21 %", "21 %", "estimada pela cor"}));
    EXPECT_EQ(LastItem(Item::Used).value, 21.4);
    Answer(R"({"item": 4, "linha": 3}, {"item": 7, "valor": 30}, {"item": 8, "clicar": true})");
    EXPECT_EQ(records[2], SampleRecords()[2]);
}

TEST_F(Reflectances, AreRememberedUnlessTheUserSaysNo) {
    Answer("");
    EXPECT_TRUE(LastItem(Item::Remember).checked);
    EXPECT_TRUE(remember);
    Answer(R"({"item": 18, "marcado": false})");
    EXPECT_FALSE(remember);
}

TEST_F(Reflectances, TellWhetherTheUserGoesOn) {
    Answer("", Item::Accept);
    EXPECT_TRUE(accepted);
    Answer("", Item::Cancel);
    EXPECT_FALSE(accepted);
}

TEST_F(Reflectances, StayAsTheyWereWhereTheUserCancels) {
    Tests::PrepareAnswer(Item::Dialog,
                         R"({"item": 4, "linha": 1}, {"item": 7, "valor": 90},
                            {"item": 18, "marcado": false})",
                         Item::Cancel);
    Records given = SampleRecords();
    bool kept = true;
    EXPECT_FALSE(ShowReflectanceDialog(given, kept));
    EXPECT_EQ(given, SampleRecords());
    EXPECT_TRUE(kept);
}

TEST_F(Reflectances, AreStoredByTheReviewBeforeACalculation) {
    Simulation::CalculationSettings settings;
    settings.reviewReflectances = true;
    Archicad::SaveReflectances({{"sup:Madeira", {0.45}}});
    Records given = SampleRecords();
    std::vector<Simulation::SceneMaterial> materials;
    Cells log;
    Tests::PrepareAnswer(Item::Dialog,
                         R"({"item": 4, "linha": 1}, {"item": 7, "valor": 60},
                            {"item": 4, "linha": 4}, {"item": 8, "clicar": true})",
                         Item::Accept);
    EXPECT_TRUE(
        Archicad::ReviewReflectances(given, settings, ShowReflectanceDialog, materials, log));
    EXPECT_EQ(materials.size(), 4U);
    EXPECT_EQ(log[0], "Pintura (corrigida agora): refletancia 60%, 12.35 m2");
    const Simulation::ReflectanceStore store = Archicad::LoadReflectances();
    ASSERT_EQ(store.size(), 1U); // back to the estimate is forgotten
    EXPECT_EQ(store.begin()->first, "sup:Pintura");
    EXPECT_EQ(store.begin()->second.reflectance, 0.6);
}

TEST_F(Reflectances, AreNotAcceptedWhereTheHostDoesNotShowThem) {
    Workbench::FailCall("RunDialog", 1, Host::OutOfMemory);
    Records given = SampleRecords();
    bool kept = true;
    EXPECT_FALSE(ShowReflectanceDialog(given, kept));
    EXPECT_EQ(Tests::ReportWindow(),
              Cells{"Vantoro: Refletancias das superficies failed: APIERR_MEMFULL (0x81060002)"});
}

TEST_F(Reflectances, HaveTheMarkInTheDarkInterface) {
    Open(true);
    Answer("");
    EXPECT_EQ(LastItem(20).icon, 10203);
}

} // namespace
} // namespace Merivane
