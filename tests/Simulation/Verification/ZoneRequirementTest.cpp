#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Simulation {
namespace {

PointStatistics Statistics(double mean, double uniformity, std::uint64_t count = 9) {
    PointStatistics statistics;
    statistics.count = count;
    statistics.mean = mean;
    statistics.uniformity = uniformity;
    return statistics;
}

ZoneRequirement Requirement(const char* id, double em, double u0,
                            std::int32_t screens = ScreensAutomatic) {
    return {id, em, u0, screens};
}

} // namespace

TEST(ReferenceStandardName, NamesTheTwoEditions) {
    EXPECT_EQ(ReferenceStandardName(ReferenceStandard::Brazilian), "ABNT NBR ISO/CIE 8995-1:2013");
    EXPECT_EQ(ReferenceStandardName(ReferenceStandard::International), "ISO/CIE 8995-1:2002");
    EXPECT_EQ(ReferenceStandardName(ReferenceStandard{}), "ABNT NBR ISO/CIE 8995-1:2013");
    EXPECT_EQ(static_cast<std::uint32_t>(ReferenceStandard::International), 1U);
}

TEST(ZoneRequirement, StandsForAZoneThatIsNotVerified) {
    EXPECT_EQ(ZoneRequirement(), Requirement("", 0.0, 0.7, -1));
}

TEST(RequirementFromTask, TakesEmAndUniformityFromTheRow) {
    EXPECT_EQ(RequirementFromTask("s22.3"), Requirement("s22.3", 750.0, 0.7));
    EXPECT_EQ(RequirementFromTask("s29.11"), Requirement("s29.11", 5.0, 0.7));
    EXPECT_EQ(RequirementFromTask("escritorio"), Requirement("s22.2", 500.0, 0.7));
}

TEST(RequirementFromTask, KeepsAnUnknownIdWithoutRequirement) {
    EXPECT_EQ(RequirementFromTask(""), Requirement("", 0.0, 0.7));
    EXPECT_EQ(RequirementFromTask("s99.1"), Requirement("s99.1", 0.0, 0.7));
}

TEST(CheckAgainstTask, IsDefinedWithAnActivityAndPoints) {
    const PointStatistics some = Statistics(500, 0.8, 1);
    EXPECT_TRUE(CheckAgainstTask(some, Requirement("s22.2", 500, 0.7)).defined);
    EXPECT_TRUE(CheckAgainstTask(some, Requirement("s99.9", 500, 0.7)).defined);
    EXPECT_FALSE(CheckAgainstTask(some, Requirement("", 500, 0.7)).defined);
    EXPECT_FALSE(CheckAgainstTask(Statistics(500, 0.8, 0), Requirement("s22.2", 500, 0.7)).defined);
}

TEST(CheckAgainstTask, ComparesTheIlluminanceAsPrinted) {
    struct Case {
        double mean; // lux
        double em;
        bool ok;
    };
    const Case cases[] = {
        {299.5, 300, true}, // prints as 300
        {299.4999, 300, false},
        {300, 300, true},
        {300.49, 300.5, false}, // prints as 300, and the limit as 301
        {300.5, 301, true},
        {299.5, 300.49, true}, // both print as 300
        {299.49, 300.49, false},
        {0, 0, true},
        {0.4, 0.49, true},
        {0.4, 0.5, false},
        {0, -1, true},
        {std::numeric_limits<double>::infinity(), 300, true},
        {std::numeric_limits<double>::quiet_NaN(), 300, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.mean) + " of " + testing::PrintToString(c.em));
        const TaskCheck check =
            CheckAgainstTask(Statistics(c.mean, 0.1), Requirement("s22.2", c.em, 0.7));
        EXPECT_EQ(check.emOk, c.ok);
        EXPECT_FALSE(check.u0Ok);
    }
}

TEST(CheckAgainstTask, ComparesTheUniformityAsPrinted) {
    struct Case {
        double uniformity;
        double u0;
        bool ok;
    };
    const Case cases[] = {
        {0.695, 0.7, true}, // prints as 0,70
        {0.6949, 0.7, false},
        {0.7, 0.7, true},
        {0.704, 0.705, false}, // prints as 0,70, and the
                               // limit as 0,71
        {0.695, 0.7049, true}, // both print as 0,70
        {0.6949, 0.7049, false},
        {0.0, 0.0, true},
        {0.004, 0.01, false},
        {0.005, 0.01, true},
        {1.0, 1.0, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.uniformity) + " of " + testing::PrintToString(c.u0));
        const TaskCheck check =
            CheckAgainstTask(Statistics(10, c.uniformity), Requirement("s22.2", 500, c.u0));
        EXPECT_EQ(check.u0Ok, c.ok);
        EXPECT_FALSE(check.emOk);
    }
}

TEST(PrepareRequirements, TakesWhatIsStoredAndSuggestsTheRestInOrder) {
    const ZoneRequirementMap stored = {
        {"K2", Requirement("s1.3", 150.0, 0.4, ScreensNone)},
        {"K3", Requirement("", 20.0, 0.5)},          // the user chose not to verify it
        {"K5", Requirement("s99.9", 70.0, 0.6)},     // of a table that we do not know
        {"other", Requirement("s22.2", 500.0, 0.7)}, // not in this calculation
    };
    const std::vector<ZoneName> zones = {{"K9", "Sala de Reunião"},
                                         {"K2", "Escritório"},
                                         {"K3", "Escritório"},
                                         {"K4", "ÁREA TÉCNICA"},
                                         {"K5", "Escritório"}};
    const std::vector<ZoneRequirementRow> rows = PrepareRequirements(zones, stored);
    ASSERT_EQ(rows.size(), 5U);
    const ZoneRequirement expected[] = {Requirement("s22.5", 500.0, 0.7), stored.at("K2"),
                                        stored.at("K3"), ZoneRequirement{}, stored.at("K5")};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].zone.key, zones[i].key);
        EXPECT_EQ(rows[i].zone.name, zones[i].name);
        EXPECT_EQ(rows[i].requirement, expected[i]) << i;
        EXPECT_EQ(rows[i].suggested, i == 0) << i;
    }
    EXPECT_TRUE(PrepareRequirements({}, stored).empty());
}

TEST(StoreRequirements, WritesOneEntryForEachRowAndLeavesOtherZones) {
    ZoneRequirementMap stored = {{"A", Requirement("s1.1", 100.0, 0.7)},
                                 {"B", Requirement("s1.2", 200.0, 0.7)}};
    std::vector<ZoneRequirementRow> rows =
        PrepareRequirements({{"B", "Sala"}, {"C", "Hall"}, {"D", "Área"}, {"C", "Escada"}}, stored);
    rows[0].requirement = Requirement("s22.2", 600.0, 0.8, ScreensClass3);
    StoreRequirements(rows, stored);
    const ZoneRequirementMap expected = {{"A", Requirement("s1.1", 100.0, 0.7)},
                                         {"B", Requirement("s22.2", 600.0, 0.8, ScreensClass3)},
                                         {"C", Requirement("s1.4", 150.0, 0.7)}, // the later row
                                         {"D", ZoneRequirement{}}};
    EXPECT_EQ(stored, expected);
}

} // namespace Merivane::Simulation
