#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Sha256.hpp"
#include "Simulation/Verification/TaskTable.hpp"

namespace Merivane::Simulation {
namespace {

TEST(TaskTable, HoldsTheActivitiesByteForByte) {
    std::string text;
    for (const TaskRow& row : TaskTable()) {
        text += row.id + '\t' + std::to_string(row.section) + '\t' + row.sectionName + '\t' +
                row.activity + '\t' + std::to_string(static_cast<int>(row.em)) + '\t' +
                std::to_string(row.ugrLimit) + '\t' + std::to_string(row.ra) + '\t' + row.note +
                '\n';
    }
    EXPECT_EQ(Catalog::Sha256Hex(text),
              "8057166a071a8ef319485086900ec258a3dcf0287ea31cc3bd0b0e64b44bd944");
}

TEST(TaskTable, AddsUpToTheFiguresOfTheStandard) {
    double em = 0.0;
    int ugrLimit = 0;
    int ra = 0;
    int notes = 0;
    for (const TaskRow& row : TaskTable()) {
        em += row.em;
        ugrLimit += row.ugrLimit;
        ra += row.ra;
        notes += row.note.empty() ? 0 : 1;
        EXPECT_EQ(row.u0, 0.7) << row.id;
        EXPECT_FALSE(row.activity.empty()) << row.id;
    }
    EXPECT_EQ(TaskTable().size(), 259U);
    EXPECT_EQ(em, 125950.0);
    EXPECT_EQ(ugrLimit, 5488);
    EXPECT_EQ(ra, 19418);
    EXPECT_EQ(notes, 107);
}

TEST(TaskTable, CountsTheRowsOfEachSection) {
    const std::vector<int> expected = {16, 4, 2,  4, 8, 8, 11, 9, 11, 1, 4, 4,  9,  16, 3, 5,
                                       5,  9, 12, 5, 8, 7, 4,  7, 4,  3, 5, 20, 37, 16, 2};
    std::vector<int> sizes(expected.size());
    for (const TaskRow& row : TaskTable()) {
        ASSERT_TRUE(row.section >= 1 && row.section <= 31) << row.id;
        const int serial = ++sizes[static_cast<std::size_t>(row.section - 1)];
        EXPECT_EQ(row.id, "s" + std::to_string(row.section) + "." + std::to_string(serial));
    }
    EXPECT_EQ(sizes, expected);
}

TEST(TaskTable, KeepsTheSectionsInOrderWithTheNamesOfTheirRows) {
    ASSERT_EQ(TaskSections().size(), 31U);
    for (std::size_t i = 0; i < 31; ++i) {
        EXPECT_EQ(TaskSections()[i].first, static_cast<int>(i + 1));
    }
    for (const TaskRow& row : TaskTable()) {
        EXPECT_EQ(row.sectionName,
                  TaskSections()[static_cast<std::size_t>(row.section - 1)].second);
    }
    EXPECT_TRUE(
        std::is_sorted(TaskTable().begin(), TaskTable().end(),
                       [](const TaskRow& a, const TaskRow& b) { return a.section < b.section; }));
}

TEST(TaskTable, IsBuiltOnce) {
    EXPECT_EQ(&TaskTable(), &TaskTable());
    EXPECT_EQ(&TaskSections(), &TaskSections());
}

TEST(TaskTable, GivesNoGlareLimitToSixActivities) {
    std::set<std::string> without;
    for (const TaskRow& row : TaskTable()) {
        if (row.ugrLimit == 0) {
            without.insert(row.id);
        }
    }
    EXPECT_EQ(without,
              (std::set<std::string>{"s6.1", "s29.14", "s29.30", "s29.31", "s29.32", "s29.37"}));
}

} // namespace
} // namespace Merivane::Simulation
