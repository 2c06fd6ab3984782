#include <gtest/gtest.h>

#include "Simulation/Verification/TaskSearch.hpp"
#include "Simulation/Verification/ZoneRequirementTexts.hpp"

namespace Merivane::Simulation {
namespace {

TEST(ZoneRequirementTexts, NameTheStandardsAndWhereTheyHold) {
    EXPECT_EQ(StandardEntry(ReferenceStandard::Brazilian), "ABNT NBR ISO/CIE 8995-1:2013 (Brasil)");
    EXPECT_EQ(StandardEntry(ReferenceStandard::International),
              "ISO/CIE 8995-1:2002 (internacional)");
}

TEST(ZoneRequirementTexts, NameSectionsAndActivities) {
    EXPECT_EQ(SectionEntry(22, "Escritórios"), "22. Escritórios");
    EXPECT_EQ(ActivityEntry(*FindTask("s10.1")), "Cabeleireiro  (500 lx)");
    EXPECT_EQ(ActivityEntry(*FindTask("s17.5")), "Gravação em aço e cobre  (2000 lx)");
}

TEST(ZoneRequirementTexts, TellTheActivityOfAZone) {
    struct Case {
        std::string taskId;
        bool suggested;
        std::string cell;
    };
    const Case cases[] = {
        {"s10.1", false, "10. Cabeleireiro"},
        {"s10.1", true, "10. Cabeleireiro (sugerida pelo nome)"},
        {"", false, "(não verificar)"},
        {"s99.9", false, "(não verificar)"}, // of a table that is not ours
        {"s99.9", true, "(não verificar)"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ActivityCell({{}, {c.taskId}, c.suggested}), c.cell) << c.taskId;
    }
}

TEST(ZoneRequirementTexts, TellWhatIsRequired) {
    EXPECT_EQ(IlluminanceCell({"s10.1", 500.0}), "500 lx");
    EXPECT_EQ(IlluminanceCell({"s10.1", 499.6}), "500 lx");
    EXPECT_EQ(IlluminanceCell({}), "0 lx");
    EXPECT_EQ(UniformityCell({"s10.1", 500.0, 0.7}), "0.70");
    EXPECT_EQ(UniformityCell({"s10.1", 500.0, 0.666}), "0.67");
}

TEST(ZoneRequirementTexts, TellWhatAutomaticScreensComeTo) {
    const std::string with = "Automático (pela atividade: telas classes I e II)";
    const std::string without = "Automático (pela atividade: sem telas)";
    EXPECT_EQ(AutomaticScreensEntry({"s22.4"}), with); // CAD
    EXPECT_EQ(AutomaticScreensEntry({"s10.1"}), without);
    EXPECT_EQ(AutomaticScreensEntry({}), without);
    // What is chosen for the Zone does not count here.
    EXPECT_EQ(AutomaticScreensEntry({"s22.4", 500.0, 0.7, ScreensNone}), with);
    EXPECT_EQ(AutomaticScreensEntry({"s10.1", 500.0, 0.7, ScreensClass3}), without);
}

TEST(ZoneRequirementTexts, TellWhatTheTableHoldsOfAnActivity) {
    struct Case {
        std::string taskId;
        std::string note;
    };
    const Case cases[] = {
        {"s10.1", "Tabela da norma: Em 500 lx, UGRL 19, Ra 90"},
        {"s22.5", "Tabela da norma: Em 500 lx, UGRL 19, Ra 80.  Observações: Recomenda-se que a "
                  "iluminação seja controlável."},
        {"s6.1", "Tabela da norma: Em 50 lx, UGRL -, Ra 20.  Observações: As cores para segurança "
                 "devem ser reconhecíveis."},
        {"", ""},
        {"s99.9", ""},
    };
    for (const Case& c : cases) {
        // The Zone's own values are not the table's.
        EXPECT_EQ(ActivityNote({c.taskId, 123.0, 0.1}), c.note) << c.taskId;
    }
}

} // namespace
} // namespace Merivane::Simulation
