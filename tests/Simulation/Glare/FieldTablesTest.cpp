// Glare tables that other programs printed for real luminaires. They are other people's and stand
// outside the project; where the build was not told of them these tests are left out.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <sstream>

#include <gtest/gtest.h>

#include "Photometry/IesReader.hpp"
#include "Simulation/Glare/UgrTable.hpp"
#include "Support/Places.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {
namespace {

constexpr double Height = 2.0; // m

/// A value as printed; "<10.0" is a bound.
struct Cell {
    double value = 0.0;
    bool isBound = false;
};

using Cells = std::vector<std::vector<Cell>>; ///< 19 rows; crosswise, then lengthwise

/// How far our table is from another one.
struct Distance {
    double worst = 0.0;
    double sum = 0.0;
    double signedSum = 0.0;
    int count = 0;

    void Add(double difference) {
        Add({std::abs(difference), std::abs(difference), difference, 1});
    }

    void Add(const Distance& other) {
        worst = std::max(worst, other.worst);
        sum += other.sum;
        signedSum += other.signedSum;
        count += other.count;
    }
};

std::ostream& operator<<(std::ostream& out, const Distance& d) {
    return out << "worst " << d.worst << ", mean " << d.sum / d.count << ", bias "
               << d.signedSum / d.count;
}

struct Comparison {
    Distance bright; ///< 70/50/20
    Distance all;
};

Cells ReadTable(const std::filesystem::path& path) {
    Cells cells;
    std::istringstream lines(Tests::ReadBytes(path));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream columns(line);
        std::vector<Cell>& row = cells.emplace_back();
        for (std::string column; std::getline(columns, column, ',');) {
            Cell& cell = row.emplace_back();
            cell.isBound = column.starts_with('<');
            EXPECT_TRUE(Text::ReadEntireNumber(column.substr(cell.isBound ? 1 : 0), cell.value))
                << path << ": " << column;
        }
    }
    return cells;
}

class FieldTables : public ::testing::Test {
protected:
    void SetUp() override {
        if (Tests::FieldDataFolder().empty()) {
            GTEST_SKIP() << "no field data told to the build";
        }
    }

    static UgrTableValues Ours(const std::string& sample) {
        SceneLuminaire luminaire;
        const auto path = Tests::FieldDataFolder() / "ugr" / ("sample_" + sample + ".ies");
        EXPECT_TRUE(Photometry::ReadIes(Tests::ReadBytes(path), luminaire.photometry).ok) << path;
        return UgrTable(luminaire, Height, {false, true});
    }

    static void Print(const std::string& what, const Comparison& comparison) {
        std::cout << what << ": 70/50/20 " << comparison.bright << "; all cells " << comparison.all
                  << '\n';
    }

    static Comparison Compare(const UgrTableValues& ours, const std::string& sample,
                              const char* other) {
        std::string file = "ugr_table_";
        file.append(sample).append("_").append(other).append(".csv");
        const Cells cells = ReadTable(Tests::FieldDataFolder() / "ugr" / file);
        Comparison comparison;
        EXPECT_EQ(cells.size(), 19U) << file;
        for (std::size_t row = 0; row < cells.size(); ++row) {
            EXPECT_EQ(cells[row].size(), 10U) << file;
            for (std::size_t column = 0; column < cells[row].size(); ++column) {
                const auto& half = column < 5 ? ours.crosswise : ours.lengthwise;
                const double difference = half[row][column % 5] - cells[row][column].value;
                if (cells[row][column].isBound && difference <= 0.0) {
                    continue;
                }
                comparison.all.Add(difference);
                if (column % 5 == 0) {
                    comparison.bright.Add(difference);
                }
            }
        }
        Print(file, comparison);
        return comparison;
    }
};

TEST_F(FieldTables, AgreeWithOtherProgramsWhereLightGoesDown) {
    Comparison together;
    for (const char* sample : {"01", "03", "05", "07", "11"}) {
        const UgrTableValues ours = Ours(sample);
        for (const char* other : {"Dialux", "Relux"}) {
            const Comparison comparison = Compare(ours, sample, other);
            EXPECT_LE(comparison.bright.worst, 0.7) << sample << " " << other;
            EXPECT_LE(comparison.all.worst, 1.3) << sample << " " << other;
            together.bright.Add(comparison.bright);
            together.all.Add(comparison.all);
        }
    }
    Print("all of them", together);
}

// The flux balance puts the light that goes up on floor and walls, where it is reflected less than
// on the ceiling: our background is too dark then.
TEST_F(FieldTables, ReadTooHighForALuminaireThatSendsHalfItsLightUp) {
    const UgrTableValues ours = Ours("09");
    for (const char* other : {"Dialux", "Relux"}) {
        const Comparison comparison = Compare(ours, "09", other);
        EXPECT_GT(comparison.bright.signedSum / comparison.bright.count, 0.0) << other;
    }
}

} // namespace
} // namespace Merivane::Simulation
