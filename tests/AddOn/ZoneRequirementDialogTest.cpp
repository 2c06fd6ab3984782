#include <cstdint>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/Commands/ZoneRequirementDialog.hpp"
#include "AddOn/Entry/ResourceIds.hpp"

namespace Merivane {
namespace {

namespace Item = ResourceIds::ZoneRequirement;

using Simulation::ReferenceStandard;
using Simulation::RequirementFromTask;
using Simulation::ZoneRequirement;
using Simulation::ZoneRequirementRow;
using Tests::LastItem;

using Items = std::vector<std::int16_t>;
using Cells = std::vector<std::string>;
using Rows = std::vector<ZoneRequirementRow>;

/// One with an accepted activity, one with a suggested one, one without, one with a foreign one.
Rows SampleRows() {
    return {
        {{"{1}", "Salão"}, RequirementFromTask("s10.1"), false},
        {{"{2}", "Sala de Reunião"}, RequirementFromTask("s22.5"), true},
        {{"{3}", "ÁREA TÉCNICA"}, RequirementFromTask(""), false},
        {{"{4}", "Estranha"}, {"s99.9", 321.0, 0.5, 1}, false},
    };
}

class ZoneRequirements : public Tests::AddOnSession {
protected:
    /// Shows the dialog on these rows and answers it.
    void Answer(std::string_view items, std::int16_t button = Item::Accept,
                const Rows& given = SampleRows()) {
        ZoneRequirementDialog dialog(given, ReferenceStandard::Brazilian);
        Tests::PrepareAnswer(Item::Dialog, items, button);
        accepted = dialog.Invoke();
        Tests::ExpectAnswered();
        rows = dialog.Rows();
        standard = dialog.Standard();
    }

    static Cells RowCells(std::size_t row) { return LastItem(Item::Zones).rows.at(row - 1); }

    /// The selected entry of a pop-up; "" for none.
    static std::string Entry(std::int16_t item) {
        const Workbench::DialogItem& found = LastItem(item);
        return found.selected == 0 ? ""
                                   : found.entries[static_cast<std::size_t>(found.selected - 1)];
    }

    static Items Usable() {
        return Tests::UsableItems({Item::Section, Item::Activity, Item::Illuminance,
                                   Item::Uniformity, Item::Screens, Item::UseForAll});
    }

    bool accepted = false;
    Rows rows;
    ReferenceStandard standard = ReferenceStandard::Brazilian;
};

TEST_F(ZoneRequirements, ShowTheZonesWithTheirActivities) {
    Answer("");
    EXPECT_EQ(Tests::LastDialog().title,
              "Vantoro: verificação pela NBR ISO/CIE 8995-1 / ISO/CIE 8995-1");
    EXPECT_EQ(RowCells(1), (Cells{"Salão", "10. Cabeleireiro", "500 lx", "0.70"}));
    EXPECT_EQ(RowCells(2),
              (Cells{"Sala de Reunião", "22. Salas de reunião e conferência (sugerida pelo nome)",
                     "500 lx", "0.70"}));
    EXPECT_EQ(RowCells(3), (Cells{"ÁREA TÉCNICA", "(não verificar)", "0 lx", "0.70"}));
    EXPECT_EQ(RowCells(4), (Cells{"Estranha", "(não verificar)", "321 lx", "0.50"}));
}

TEST_F(ZoneRequirements, ShowTheListInFourColumns) {
    Answer("");
    struct Case {
        std::string header;
        int begin;
        int end;
        Host::ColumnAlignment alignment;
    };
    const Case cases[] = {
        {"Zona", 0, 190, Host::ColumnAlignment::Left},
        {"Atividade", 190, 500, Host::ColumnAlignment::Left},
        {"Em mín.", 500, 575, Host::ColumnAlignment::Right},
        {"U0 mín.", 575, 650, Host::ColumnAlignment::Right},
    };
    const std::vector<Host::ListColumn>& columns = LastItem(Item::Zones).columns;
    ASSERT_EQ(columns.size(), std::size(cases));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        EXPECT_EQ(columns[i].header, cases[i].header);
        EXPECT_EQ(columns[i].begin, cases[i].begin);
        EXPECT_EQ(columns[i].end, cases[i].end);
        EXPECT_EQ(columns[i].alignment, cases[i].alignment);
    }
}

TEST_F(ZoneRequirements, OfferStandardsSectionsAndScreens) {
    Answer("");
    EXPECT_EQ(LastItem(Item::Standard).entries, (Cells{"ABNT NBR ISO/CIE 8995-1:2013 (Brasil)",
                                                       "ISO/CIE 8995-1:2002 (internacional)"}));
    const Cells& sections = LastItem(Item::Section).entries;
    ASSERT_EQ(sections.size(), 31U);
    EXPECT_EQ(sections[0], "1. Áreas gerais da edificação");
    EXPECT_EQ(sections[21], "22. Escritórios");
    EXPECT_EQ(LastItem(Item::Screens).entries,
              (Cells{"Automático (pela atividade: sem telas)", "Não há telas",
                     "Telas classes I e II - luminância até 1000 cd/m²",
                     "Telas classe III - luminância até 200 cd/m²"}));
}

TEST_F(ZoneRequirements, SelectTheFirstZoneWhenTheyOpen) {
    Answer("");
    EXPECT_EQ(LastItem(Item::Zones).selected, 1);
    EXPECT_EQ(Entry(Item::Section), "10. Cabeleireiros");
    EXPECT_EQ(LastItem(Item::Activity).entries,
              (Cells{"Não verificar esta Zona", "Cabeleireiro  (500 lx)"}));
    EXPECT_EQ(Entry(Item::Activity), "Cabeleireiro  (500 lx)");
}

TEST_F(ZoneRequirements, ShowWhatTheSelectedZoneRequires) {
    Answer(R"({"item": 5, "linha": "Sala de Reunião"})");
    EXPECT_EQ(Entry(Item::Section), "22. Escritórios");
    EXPECT_EQ(Entry(Item::Activity), "Salas de reunião e conferência  (500 lx)");
    EXPECT_EQ(LastItem(Item::Activity).entries.size(), 8U);
    EXPECT_EQ(LastItem(Item::Illuminance).value, 500.0);
    EXPECT_EQ(LastItem(Item::Uniformity).value, 0.7);
    EXPECT_EQ(Entry(Item::Screens), "Automático (pela atividade: sem telas)");
    EXPECT_EQ(LastItem(Item::Note).text,
              "Tabela da norma: Em 500 lx, UGRL 19, Ra 80.  Observações: Recomenda-se que a "
              "iluminação seja controlável.");
    EXPECT_EQ(Usable(), (Items{Item::Section, Item::Activity, Item::Illuminance, Item::Uniformity,
                               Item::Screens, Item::UseForAll}));
}

TEST_F(ZoneRequirements, GreyTheValuesOfAZoneWithoutActivity) {
    for (const char* zone : {"ÁREA TÉCNICA", "Estranha"}) {
        SCOPED_TRACE(zone);
        Answer(R"({"item": 5, "linha": ")" + std::string(zone) + R"("})");
        EXPECT_EQ(Entry(Item::Section), "1. Áreas gerais da edificação");
        EXPECT_EQ(LastItem(Item::Activity).entries.size(), 17U);
        EXPECT_EQ(Entry(Item::Activity), "Não verificar esta Zona");
        EXPECT_EQ(LastItem(Item::Note).text, "");
        EXPECT_EQ(Usable(), (Items{Item::Section, Item::Activity, Item::UseForAll}));
    }
}

TEST_F(ZoneRequirements, GreyAllWhereNoZoneIsSelected) {
    Answer("", Item::Accept, {});
    EXPECT_TRUE(accepted);
    EXPECT_EQ(LastItem(Item::Zones).selected, 0);
    EXPECT_EQ(Usable(), Items());
}

TEST_F(ZoneRequirements, TellAutomaticScreensByTheActivity) {
    Answer(R"({"item": 7, "entrada": "22. Escritórios"}, {"item": 8, "entrada": 5})");
    EXPECT_EQ(rows[0].requirement.taskId, "s22.4");
    EXPECT_EQ(Entry(Item::Screens), "Automático (pela atividade: telas classes I e II)");
}

TEST_F(ZoneRequirements, ListTheActivitiesOfAnotherSectionAndChangeNoRequirement) {
    Answer(R"({"item": 7, "entrada": "22. Escritórios"})");
    EXPECT_EQ(LastItem(Item::Activity).entries.size(), 8U);
    EXPECT_EQ(LastItem(Item::Activity).entries[3], "Desenho técnico  (750 lx)");
    EXPECT_EQ(Entry(Item::Activity), ""); // the Zone has none of these
    EXPECT_EQ(rows[0].requirement, SampleRows()[0].requirement);
    EXPECT_EQ(RowCells(1)[1], "10. Cabeleireiro");
}

TEST_F(ZoneRequirements, SelectTheActivityAgainWhereItsSectionComesBack) {
    Answer(R"({"item": 7, "entrada": 1}, {"item": 7, "entrada": 10})");
    EXPECT_EQ(Entry(Item::Activity), "Cabeleireiro  (500 lx)");
}

TEST_F(ZoneRequirements, ListOtherSectionsOfAZoneWithoutActivityAtNone) {
    Answer(R"({"item": 5, "linha": 3}, {"item": 7, "entrada": 22})");
    EXPECT_EQ(Entry(Item::Activity), "Não verificar esta Zona");
    EXPECT_EQ(rows[2].requirement, SampleRows()[2].requirement);
}

TEST_F(ZoneRequirements, TakeTheValuesOfTheActivityThatIsChosen) {
    Rows given = SampleRows();
    given[0].requirement = {"s10.1", 900.0, 0.3, 3};
    Answer(R"({"item": 7, "entrada": 1}, {"item": 8, "entrada": 11})", Item::Accept, given);
    EXPECT_EQ(rows[0].requirement, (ZoneRequirement{"s1.10", 500.0, 0.7, -1}));
    EXPECT_EQ(RowCells(1), (Cells{"Salão", "1. Enfermaria", "500 lx", "0.70"}));
    EXPECT_EQ(LastItem(Item::Illuminance).value, 500.0);
    EXPECT_EQ(LastItem(Item::Uniformity).value, 0.7);
    EXPECT_EQ(LastItem(Item::Screens).selected, 1);
    EXPECT_EQ(LastItem(Item::Note).text, "Tabela da norma: Em 500 lx, UGRL 19, Ra 80");
}

TEST_F(ZoneRequirements, MakeASuggestionAChoiceWhereAnActivityIsChosen) {
    Answer(R"({"item": 5, "linha": 2}, {"item": 8, "entrada": 2}, {"item": 8, "entrada": 6})");
    EXPECT_EQ(rows[1].requirement, RequirementFromTask("s22.5"));
    EXPECT_FALSE(rows[1].suggested);
    EXPECT_EQ(RowCells(2)[1], "22. Salas de reunião e conferência");
}

TEST_F(ZoneRequirements, LetAZoneGoUnverified) {
    Answer(R"({"item": 8, "entrada": 1})");
    EXPECT_EQ(rows[0].requirement, ZoneRequirement());
    EXPECT_EQ(RowCells(1), (Cells{"Salão", "(não verificar)", "0 lx", "0.70"}));
    EXPECT_EQ(LastItem(Item::Note).text, "");
    EXPECT_EQ(Usable(), (Items{Item::Section, Item::Activity, Item::UseForAll}));
}

TEST_F(ZoneRequirements, LetAZoneGoUnverifiedFromAnotherSection) {
    Answer(R"({"item": 7, "entrada": 22}, {"item": 8, "entrada": 1})");
    EXPECT_EQ(rows[0].requirement, ZoneRequirement());
}

TEST_F(ZoneRequirements, VerifyAZoneThatWasNot) {
    Answer(R"({"item": 5, "linha": 3}, {"item": 8, "entrada": 2}, {"item": 10, "valor": 150})");
    EXPECT_EQ(rows[2].requirement, (ZoneRequirement{"s1.1", 150.0, 0.7, -1}));
}

TEST_F(ZoneRequirements, TakeEditedValuesAndEndTheSuggestion) {
    struct Case {
        std::string items;
        ZoneRequirement requirement;
        Cells cells;
    };
    const Case cases[] = {
        {R"({"item": 10, "valor": 750})",
         {"s22.5", 750.0, 0.7, -1},
         {"Sala de Reunião", "22. Salas de reunião e conferência", "750 lx", "0.70"}},
        {R"({"item": 12, "valor": 0.4})",
         {"s22.5", 500.0, 0.4, -1},
         {"Sala de Reunião", "22. Salas de reunião e conferência", "500 lx", "0.40"}},
    };
    for (const Case& c : cases) {
        Answer(R"({"item": 5, "linha": 2}, )" + c.items);
        EXPECT_EQ(rows[1].requirement, c.requirement);
        EXPECT_FALSE(rows[1].suggested);
        EXPECT_EQ(RowCells(2), c.cells);
    }
}

TEST_F(ZoneRequirements, LimitTheValues) {
    Answer("");
    EXPECT_EQ(LastItem(Item::Illuminance).lowest, 0.0);
    EXPECT_EQ(LastItem(Item::Illuminance).highest, 10000.0);
    EXPECT_EQ(LastItem(Item::Uniformity).lowest, 0.0);
    EXPECT_EQ(LastItem(Item::Uniformity).highest, 1.0);
}

TEST_F(ZoneRequirements, TakeTheScreensThatAreChosen) {
    struct Case {
        int entry;
        std::int32_t screens;
    };
    for (const Case& c : {Case{2, 0}, Case{3, 1}, Case{4, 3}}) {
        Answer(R"({"item": 5, "linha": 2}, {"item": 14, "entrada": )" + std::to_string(c.entry) +
               "}");
        EXPECT_EQ(rows[1].requirement.screens, c.screens);
        EXPECT_FALSE(rows[1].suggested);
        EXPECT_EQ(RowCells(2)[1], "22. Salas de reunião e conferência");
    }
    Answer(R"({"item": 14, "entrada": 4}, {"item": 14, "entrada": 1})");
    EXPECT_EQ(rows[0].requirement.screens, -1);
}

TEST_F(ZoneRequirements, ShowTheScreensOfTheSelectedZone) {
    struct Case {
        std::int32_t screens;
        std::int16_t entry;
    };
    for (const Case& c : {Case{-1, 1}, Case{0, 2}, Case{1, 3}, Case{3, 4}, Case{2, 1}}) {
        Rows given = SampleRows();
        given[0].requirement.screens = c.screens;
        Answer("", Item::Accept, given);
        EXPECT_EQ(LastItem(Item::Screens).selected, c.entry) << c.screens;
    }
}

TEST_F(ZoneRequirements, UseOnesValuesForAllZones) {
    Rows given = SampleRows();
    given[0].requirement = {"s10.1", 650.0, 0.6, 3};
    Answer(R"({"item": 15, "clicar": true})", Item::Accept, given);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].requirement, (ZoneRequirement{"s10.1", 650.0, 0.6, 3}));
        EXPECT_FALSE(rows[i].suggested);
        EXPECT_EQ(rows[i].zone.name, given[i].zone.name);
        EXPECT_EQ(RowCells(i + 1),
                  (Cells{given[i].zone.name, "10. Cabeleireiro", "650 lx", "0.60"}));
    }
}

TEST_F(ZoneRequirements, UseASuggestionForAllZonesAsAChoice) {
    Answer(R"({"item": 5, "linha": 2}, {"item": 15, "clicar": true})");
    EXPECT_FALSE(rows[1].suggested);
    EXPECT_EQ(RowCells(2)[1], "22. Salas de reunião e conferência");
    EXPECT_EQ(RowCells(4)[1], "22. Salas de reunião e conferência");
}

TEST_F(ZoneRequirements, TakeTheStandardAtOnce) {
    Answer(R"({"item": 4, "entrada": 2})");
    EXPECT_EQ(standard, ReferenceStandard::International);
    Answer(R"({"item": 4, "entrada": 2}, {"item": 4, "entrada": 1})");
    EXPECT_EQ(standard, ReferenceStandard::Brazilian);
}

TEST_F(ZoneRequirements, ShowTheStandardOfTheProject) {
    ZoneRequirementDialog dialog({}, ReferenceStandard::International);
    dialog.Invoke();
    EXPECT_EQ(Entry(Item::Standard), "ISO/CIE 8995-1:2002 (internacional)");
    EXPECT_EQ(dialog.Standard(), ReferenceStandard::International);
}

TEST_F(ZoneRequirements, TellWhetherTheUserGoesOn) {
    Answer("", Item::Accept);
    EXPECT_TRUE(accepted);
    Answer("", Item::Cancel);
    EXPECT_FALSE(accepted);
}

TEST_F(ZoneRequirements, AreNotAcceptedWhereTheHostDoesNotShowThem) {
    Workbench::FailCall("RunDialog", 1, Host::OutOfMemory);
    ZoneRequirementDialog dialog(SampleRows(), ReferenceStandard::Brazilian);
    EXPECT_FALSE(dialog.Invoke());
    EXPECT_EQ(Tests::ReportWindow(),
              Cells{"Vantoro: Atividades das Zonas failed: APIERR_MEMFULL (0x81060002)"});
}

TEST_F(ZoneRequirements, HaveTheMarkInTheDarkInterface) {
    Open(true);
    Answer("");
    EXPECT_EQ(LastItem(18).icon, 10203);
}

} // namespace
} // namespace Merivane
