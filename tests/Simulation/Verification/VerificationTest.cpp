#include <cstdint>
#include <cstdlib>
#include <random>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/Verification.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {
namespace {

constexpr auto Recommendation = VerificationKind::Recommendation;

/// Writing and typing: 500 lx, UGRL 19, Ra 80, screens by its words.
VerificationInput Office() {
    VerificationInput input;
    input.requirement = {.taskId = "s22.2", .em = 500.0, .u0 = 0.7, .screens = -1};
    input.statistics = {
        .count = 100, .mean = 520.0, .minimum = 390.0, .maximum = 600.0, .uniformity = 0.75};
    return input;
}

/// The row of a criterion in the verification of `input`; a row without name where there is none.
VerificationRow RowOf(const VerificationInput& input, const std::string& criterion) {
    for (const VerificationRow& row : VerifyZone(input)) {
        if (row.criterion == criterion) {
            return row;
        }
    }
    return {};
}

std::vector<std::string> Criteria(const VerificationInput& input) {
    std::vector<std::string> criteria;
    for (const VerificationRow& row : VerifyZone(input)) {
        criteria.push_back(row.criterion);
    }
    return criteria;
}

TEST(VerifyZone, PrintsEveryRowInItsOrder) {
    VerificationInput input = Office();
    input.hasSurround = true;
    input.surround = {
        .count = 10, .mean = 310.2, .minimum = 150.0, .maximum = 400.0, .uniformity = 0.482};
    input.hasUgr = true;
    input.ugr = 18.25;
    input.ugrLimit = 19;
    input.luminaireCount = 4;
    input.raCount = 4;
    input.raMinimum = 83.0;
    input.luminanceCount = 4;
    input.luminanceMaximum = 2345.5;
    input.ceilingReflectance = 0.7;
    input.wallReflectance = 0.5;
    input.floorReflectance = 0.55;
    input.maintenanceFactor = 0.8;
    const std::vector<VerificationRow> rows = {
        {"Iluminância Em", "520 lx", "≥ 500 lx", true, true, {}},
        {"Uniformidade U0", "0,75", "≥ 0,70", true, true, {}},
        {"Entorno imediato Em", "310 lx", "≥ 300 lx", true, true, {}},
        {"Entorno imediato U0", "0,48", "≥ 0,50", true, false, {}},
        {"Ofuscamento UGR", "18,3", "≤ 19", true, true, {}},
        {"Reprodução Ra (IRC)", "83", "≥ 80", true, true, {}},
        {"Luminância (telas)", "2346 cd/m²", "≤ 1000 cd/m²", true, false, {}},
        {"Refletância teto", "0,70", "0,60 a 0,90", true, true, Recommendation},
        {"Refletância paredes", "0,50", "0,30 a 0,80", true, true, Recommendation},
        {"Refletância piso", "0,55", "0,10 a 0,50", true, false, Recommendation},
        {"Fator de manutenção", "0,80", "≥ 0,70", true, true, Recommendation},
    };
    EXPECT_EQ(VerifyZone(input), rows);
}

TEST(VerifyZone, HasNoRowsWithoutActivityOrPoints) {
    EXPECT_FALSE(VerifyZone(Office()).empty());
    for (const char* id : {"", "s99.1", "S22.2", " s22.2"}) {
        VerificationInput input = Office();
        input.requirement.taskId = id;
        EXPECT_TRUE(VerifyZone(input).empty()) << id;
    }
    VerificationInput input = Office();
    input.statistics.count = 0;
    EXPECT_TRUE(VerifyZone(input).empty());
}

TEST(VerifyZone, KnowsTheOldKeysOfActivities) {
    VerificationInput input = Office();
    input.requirement.taskId = "escritorio";
    EXPECT_EQ(VerifyZone(input), VerifyZone(Office()));
}

TEST(VerifyZone, ComparesIlluminanceAsPrinted) {
    struct Case {
        double mean, em;
        std::string calculated, required;
        bool passes;
    };
    const Case cases[] = {
        {499.6, 500.0, "500 lx", "≥ 500 lx", true},
        {499.5, 500.0, "500 lx", "≥ 500 lx", true},
        {499.49, 500.0, "499 lx", "≥ 500 lx", false},
        {299.5, 300.0, "300 lx", "≥ 300 lx", true},
        {0.0, 0.0, "0 lx", "≥ 0 lx", true},
        {449.6, 449.6, "450 lx", "≥ 450 lx", true},
        {449.0, 449.4, "449 lx", "≥ 449 lx", true}, // the limit as printed
        {448.4, 449.4, "448 lx", "≥ 449 lx", false},
        {12345.0, 500.0, "12345 lx", "≥ 500 lx", true},
    };
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.statistics.mean = c.mean;
        input.requirement.em = c.em;
        EXPECT_EQ(RowOf(input, "Iluminância Em"),
                  (VerificationRow{"Iluminância Em", c.calculated, c.required, true, c.passes, {}}))
            << c.mean;
    }
}

TEST(VerifyZone, ComparesUniformityAsPrinted) {
    struct Case {
        double uniformity, u0;
        std::string calculated, required;
        bool passes;
    };
    const Case cases[] = {
        {0.696, 0.7, "0,70", "≥ 0,70", true},  {0.695, 0.7, "0,70", "≥ 0,70", true},
        {0.694, 0.7, "0,69", "≥ 0,70", false}, {0.6, 0.6, "0,60", "≥ 0,60", true},
        {0.70, 0.704, "0,70", "≥ 0,70", true}, // the limit as printed
    };
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.statistics.uniformity = c.uniformity;
        input.requirement.u0 = c.u0;
        EXPECT_EQ(
            RowOf(input, "Uniformidade U0"),
            (VerificationRow{"Uniformidade U0", c.calculated, c.required, true, c.passes, {}}))
            << c.uniformity;
    }
}

TEST(VerifyZone, AsksOfTheSurroundWhatItsTaskGives) {
    struct Case {
        double em, mean, uniformity;
        std::string required;
        bool emPasses, u0Passes;
    };
    const Case cases[] = {
        {750, 499.5, 0.5, "≥ 500 lx", true, true},
        {500, 299.4, 0.495, "≥ 300 lx", false, true},
        {300, 200.0, 0.494, "≥ 200 lx", true, false},
        {200, 199.4, 1.0, "≥ 200 lx", false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.em);
        VerificationInput input = Office();
        input.hasSurround = true;
        input.requirement.em = c.em;
        input.surround.mean = c.mean;
        input.surround.uniformity = c.uniformity;
        const VerificationRow em = RowOf(input, "Entorno imediato Em");
        const VerificationRow u0 = RowOf(input, "Entorno imediato U0");
        EXPECT_EQ(em.required, c.required);
        EXPECT_EQ(em.passes, c.emPasses);
        EXPECT_EQ(u0.required, "≥ 0,50");
        EXPECT_EQ(u0.passes, c.u0Passes);
    }
}

TEST(VerifyZone, ComparesGlareAsPrinted) {
    struct Case {
        double ugr;
        std::string calculated;
        bool passes;
    };
    const Case cases[] = {
        {19.0, "19,0", true},  {19.04, "19,0", true},  {19.05, "19,1", false},
        {19.1, "19,1", false}, {18.949, "18,9", true}, {7.31, "7,3", true},
        {0.0, "0,0", true},
    };
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.hasUgr = true;
        input.ugr = c.ugr;
        input.ugrLimit = 19;
        EXPECT_EQ(RowOf(input, "Ofuscamento UGR"),
                  (VerificationRow{"Ofuscamento UGR", c.calculated, "≤ 19", true, c.passes, {}}))
            << c.ugr;
    }
}

TEST(VerifyZone, LeavesGlareOutWithoutAValueOrALimit) {
    VerificationInput input = Office();
    input.ugr = 25.0;
    input.ugrLimit = 19;
    EXPECT_EQ(RowOf(input, "Ofuscamento UGR").criterion, "");
    input.hasUgr = true;
    input.ugrLimit = 0;
    EXPECT_EQ(RowOf(input, "Ofuscamento UGR").criterion, "");
    input.ugrLimit = 1;
    EXPECT_EQ(RowOf(input, "Ofuscamento UGR").required, "≤ 1");
}

TEST(VerifyZone, TellsTheSmallestColourRendering) {
    struct Case {
        std::int32_t luminaires, known;
        double minimum;
        std::string calculated;
        bool hasData, passes;
    };
    const Case cases[] = {
        {2, 2, 90.0, "90", true, true},   {2, 1, 90.0, "90*", true, true},
        {2, 1, 79.0, "79*", true, false}, {2, 2, 79.5, "80", true, true},
        {2, 2, 79.49, "79", true, false}, {2, 0, 0.0, "-", false, false},
    };
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.luminaireCount = c.luminaires;
        input.raCount = c.known;
        input.raMinimum = c.minimum;
        EXPECT_EQ(
            RowOf(input, "Reprodução Ra (IRC)"),
            (VerificationRow{"Reprodução Ra (IRC)", c.calculated, "≥ 80", c.hasData, c.passes, {}}))
            << c.calculated;
    }
}

TEST(VerifyZone, AsksForTheColourRenderingOfTheActivity) {
    const std::vector<std::pair<std::string, std::string>> required = {
        {"s6.1", "≥ 20"}, {"s1.3", "≥ 40"}, {"s10.1", "≥ 90"}, {"s30.11", "≥ 88"}};
    for (const auto& [id, text] : required) {
        VerificationInput input = Office();
        input.requirement.taskId = id;
        input.luminaireCount = input.raCount = 1;
        input.raMinimum = 50.0;
        EXPECT_EQ(RowOf(input, "Reprodução Ra (IRC)").required, text) << id;
    }
}

TEST(VerifyZone, AMissingColourRenderingDoesNotFailTheZone) {
    VerificationInput input = Office();
    input.luminaireCount = 3;
    EXPECT_EQ(RowState(RowOf(input, "Reprodução Ra (IRC)")), "SEM DADO");
    EXPECT_EQ(RowState(RowOf(input, "Luminância (telas)")), "SEM DADO");
    EXPECT_TRUE(VerificationPasses(VerifyZone(input)));
}

TEST(VerifyZone, ComparesTheLuminanceForScreensAsPrinted) {
    struct Case {
        std::int32_t screens, known;
        double luminance;
        VerificationRow row;
    };
    const std::string name = "Luminância (telas)";
    const std::string class2 = "≤ 1000 cd/m²";
    const std::string class3 = "≤ 200 cd/m²";
    const Case cases[] = {
        {-1, 2, 1000.49, {name, "1000 cd/m²", class2, true, true, {}}},
        {-1, 2, 1000.5, {name, "1001 cd/m²", class2, true, false, {}}},
        {2, 1, 10.0, {name, "10 cd/m²", class2, true, true, {}}},
        {3, 2, 200.4, {name, "200 cd/m²", class3, true, true, {}}},
        {3, 2, 201.0, {name, "201 cd/m²", class3, true, false, {}}},
        {1, 0, 0.0, {name, "-", class2, false, false, {}}},
        {0, 2, 9000.0, {}},
    };
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.requirement.screens = c.screens;
        input.luminaireCount = 2;
        input.luminanceCount = c.known;
        input.luminanceMaximum = c.luminance;
        EXPECT_EQ(RowOf(input, name), c.row) << c.screens << " " << c.luminance;
    }
}

TEST(VerifyZone, AZoneWithoutLuminairesIsAskedOnlyWhatItsPointsTell) {
    VerificationInput input = Office();
    input.requirement.screens = 1;
    EXPECT_EQ(Criteria(input), (std::vector<std::string>{"Iluminância Em", "Uniformidade U0"}));
    input.hasUgr = true;
    input.ugrLimit = 19;
    EXPECT_EQ(Criteria(input),
              (std::vector<std::string>{"Iluminância Em", "Uniformidade U0", "Ofuscamento UGR"}));
}

TEST(VerifyZone, RecommendsRangesOfReflectances) {
    struct Case {
        std::string criterion;
        double VerificationInput::*field;
        double value;
        std::string calculated, required;
        bool passes;
    };
    using Input = VerificationInput;
    const std::string ceiling = "Refletância teto";
    const std::string walls = "Refletância paredes";
    const std::string floor = "Refletância piso";
    const Case cases[] = {
        {ceiling, &Input::ceilingReflectance, 0.6, "0,60", "0,60 a 0,90", true},
        {ceiling, &Input::ceilingReflectance, 0.595, "0,60", "0,60 a 0,90", true},
        {ceiling, &Input::ceilingReflectance, 0.594, "0,59", "0,60 a 0,90", false},
        {ceiling, &Input::ceilingReflectance, 0.904, "0,90", "0,60 a 0,90", true},
        {ceiling, &Input::ceilingReflectance, 0.906, "0,91", "0,60 a 0,90", false},
        {walls, &Input::wallReflectance, 0.3, "0,30", "0,30 a 0,80", true},
        {walls, &Input::wallReflectance, 0.29, "0,29", "0,30 a 0,80", false},
        {walls, &Input::wallReflectance, 0.8, "0,80", "0,30 a 0,80", true},
        {walls, &Input::wallReflectance, 0.81, "0,81", "0,30 a 0,80", false},
        {floor, &Input::floorReflectance, 0.1, "0,10", "0,10 a 0,50", true},
        {floor, &Input::floorReflectance, 0.0, "0,00", "0,10 a 0,50", false},
        {floor, &Input::floorReflectance, 0.5, "0,50", "0,10 a 0,50", true},
        {floor, &Input::floorReflectance, 0.51, "0,51", "0,10 a 0,50", false},
    };
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.*c.field = c.value;
        EXPECT_EQ(RowOf(input, c.criterion), (VerificationRow{c.criterion, c.calculated, c.required,
                                                              true, c.passes, Recommendation}));
        input.*c.field = -1.0;
        EXPECT_EQ(RowOf(input, c.criterion).criterion, "");
    }
}

TEST(VerifyZone, RecommendsAMaintenanceFactor) {
    struct Case {
        double factor;
        std::string calculated;
        bool passes;
    };
    const Case cases[] = {{0.7, "0,70", true}, {0.695, "0,70", true}, {0.694, "0,69", false}};
    const std::string name = "Fator de manutenção";
    for (const Case& c : cases) {
        VerificationInput input = Office();
        input.maintenanceFactor = c.factor;
        EXPECT_EQ(RowOf(input, name),
                  (VerificationRow{name, c.calculated, "≥ 0,70", true, c.passes, Recommendation}));
    }
    EXPECT_EQ(RowOf(Office(), name).criterion, "");
}

TEST(VerificationPasses, OnlyARequirementWithDataFails) {
    const VerificationRow passing = {"a", "1", "≥ 1", true, true, {}};
    const VerificationRow failing = {"a", "0", "≥ 1", true, false, {}};
    const VerificationRow withoutData = {"a", "-", "≥ 1", false, false, {}};
    const VerificationRow recommended = {"a", "0", "≥ 1", true, false, Recommendation};
    EXPECT_TRUE(VerificationPasses({}));
    EXPECT_TRUE(VerificationPasses({passing, withoutData, recommended}));
    EXPECT_FALSE(VerificationPasses({passing, failing}));
    EXPECT_FALSE(VerificationPasses({failing, passing}));
}

TEST(RowState, IsToldOnTheSheetAndInTheLog) {
    struct Case {
        VerificationRow row;
        std::string state, line;
    };
    const Case cases[] = {
        {{"Iluminância Em", "520 lx", "≥ 500 lx", true, true, {}},
         "ATENDE",
         "  Iluminância Em: 520 lx / ≥ 500 lx - atende"},
        {{"Ofuscamento UGR", "19,1", "≤ 19", true, false, {}},
         "NÃO ATENDE",
         "  Ofuscamento UGR: 19,1 / ≤ 19 - NAO ATENDE"},
        {{"Reprodução Ra (IRC)", "-", "≥ 80", false, true, {}},
         "SEM DADO",
         "  Reprodução Ra (IRC): - / ≥ 80 - SEM DADO"},
        {{"Refletância piso", "0,55", "0,10 a 0,50", true, false, Recommendation},
         "NÃO ATENDE",
         "  (recomendacao) Refletância piso: 0,55 / 0,10 a 0,50 - NAO ATENDE"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(RowState(c.row), c.state);
        EXPECT_EQ(RowLogLine(c.row), c.line);
    }
}

TEST(SurroundIlluminance, StepsDownFromTheTask) {
    struct Case {
        double em, surround;
    };
    const Case cases[] = {
        {2000, 500},
        {750, 500},
        {749.9999999995, 500},
        {749.99999, 300},
        {500, 300},
        {499.9999999995, 300},
        {499.99999, 200},
        {300, 200},
        {299.9999999995, 200},
        {299.99999, 299.99999},
        {200, 200},
        {50, 50},
        {0, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(SurroundIlluminance(c.em), c.surround) << c.em;
    }
}

TEST(ReferenceSurfaceValues, AskMoreOfOfficesSchoolsAndHospitals) {
    for (const auto& [number, name] : TaskSections()) {
        SCOPED_TRACE(name);
        const bool demanding = number == 22 || number == 28 || number == 29;
        const ReferenceSurfaces reference = ReferenceSurfaceValues(name);
        EXPECT_EQ(reference.wallEm, demanding ? 75.0 : 50.0);
        EXPECT_EQ(reference.ceilingEm, demanding ? 50.0 : 30.0);
        EXPECT_EQ(reference.u0, 0.1);
    }
    EXPECT_EQ(ReferenceSurfaceValues("").wallEm, 50.0);
}

// What a reader of the sheet makes of it, with nothing but the printed texts.

/// The number that a text begins with, a decimal comma in it.
double NumberAt(std::string_view text) {
    std::string point(text);
    for (char& c : point) {
        c = c == ',' ? '.' : c;
    }
    double number = -1.0;
    EXPECT_GT(Text::ReadNumber(point, number), 0U) << text;
    return number;
}

bool ReaderSaysItPasses(const VerificationRow& row) {
    constexpr std::string_view atLeast = "≥ ";
    constexpr std::string_view atMost = "≤ ";
    constexpr std::string_view to = " a ";
    const std::string_view required = row.required;
    const double value = NumberAt(row.calculated);
    if (required.starts_with(atLeast)) {
        return value >= NumberAt(required.substr(atLeast.size()));
    }
    if (required.starts_with(atMost)) {
        return value <= NumberAt(required.substr(atMost.size()));
    }
    const std::size_t middle = required.find(to);
    EXPECT_NE(middle, std::string_view::npos) << row.required;
    return value >= NumberAt(required.substr(0, middle)) &&
           value <= NumberAt(required.substr(middle + to.size()));
}

/// Numbers of which many stand at or beside a limit, or where rounding turns.
class RandomValues {
public:
    int Whole(int lowest, int highest) {
        return std::uniform_int_distribution<int>(lowest, highest)(generator);
    }
    double Near(double middle, double step) {
        const double halves = middle + 0.5 * step * Whole(-6, 6);
        return Whole(0, 2) == 0 ? halves + step * 1e-4 * Whole(-3, 3) : halves;
    }

private:
    std::mt19937 generator{20130321};
};

VerificationInput RandomInput(RandomValues& random) {
    const std::vector<TaskRow>& table = TaskTable();
    const TaskRow& task =
        table[static_cast<std::size_t>(random.Whole(0, static_cast<int>(table.size()) - 1))];
    VerificationInput input;
    input.requirement = {.taskId = task.id,
                         .em = random.Near(task.em, 1.0),
                         .u0 = random.Near(0.6, 0.01),
                         .screens = random.Whole(-1, 3)};
    input.statistics.count = 1;
    input.statistics.mean = random.Near(input.requirement.em, 1.0);
    input.statistics.uniformity = random.Near(input.requirement.u0, 0.01);
    input.hasSurround = random.Whole(0, 1) == 1;
    input.surround.mean = random.Near(SurroundIlluminance(input.requirement.em), 1.0);
    input.surround.uniformity = random.Near(0.5, 0.01);
    input.hasUgr = random.Whole(0, 3) > 0;
    input.ugrLimit = task.ugrLimit;
    input.ugr = random.Near(task.ugrLimit, 0.1);
    input.luminaireCount = random.Whole(0, 3);
    input.raCount = random.Whole(0, input.luminaireCount);
    input.raMinimum = random.Near(task.ra, 1.0);
    input.luminanceCount = random.Whole(0, input.luminaireCount);
    input.luminanceMaximum = random.Near(random.Whole(0, 1) == 0 ? 200.0 : 1000.0, 1.0);
    input.ceilingReflectance = random.Near(random.Whole(0, 1) == 0 ? 0.6 : 0.9, 0.01);
    input.wallReflectance = random.Near(random.Whole(0, 1) == 0 ? 0.3 : 0.8, 0.01);
    input.floorReflectance = random.Near(random.Whole(0, 1) == 0 ? 0.1 : 0.5, 0.01);
    input.maintenanceFactor = random.Near(0.7, 0.01);
    return input;
}

TEST(VerifyZone, SaysWhatItsPrintedTextsSay) {
    RandomValues random;
    std::size_t passed = 0;
    std::size_t failed = 0;
    for (int i = 0; i < 20000; ++i) {
        const VerificationInput input = RandomInput(random);
        bool readerPasses = true;
        const std::vector<VerificationRow> rows = VerifyZone(input);
        for (const VerificationRow& row : rows) {
            if (!row.hasData) {
                ASSERT_EQ(row.calculated, "-");
                continue;
            }
            ASSERT_EQ(row.passes, ReaderSaysItPasses(row)) << RowLogLine(row);
            readerPasses = readerPasses && (row.passes || row.kind == Recommendation);
            ++(row.passes ? passed : failed);
        }
        ASSERT_EQ(VerificationPasses(rows), readerPasses);
    }
    EXPECT_GT(passed, 50000U);
    EXPECT_GT(failed, 20000U);
}

} // namespace
} // namespace Merivane::Simulation
