// Our half of the comparison with contourpy (see ContourBench.py, which is what to run). Makes the
// three fields, writes them into the folder that is its argument, and then answers one line for
// each line it is given: "curves 1" or "bands 1" runs field 1 once and gives nanoseconds; with
// "count" before it, what came out.
#include <chrono>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <iostream>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "Simulation/ColorBands.hpp"
#include "Simulation/Isolines.hpp"

using namespace Merivane::Simulation;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Columns = 160;
constexpr int Rows = 125;
constexpr double Step = 0.1; // m
const LevelList Levels{50, 100, 150, 200, 300, 500, 750, 1000};

/// A room of 16 x 12.5 m under twelve downlights, 168 to 1195 lux.
double Downlights(double x, double y) {
    constexpr double height = 2.1;
    double sum = 20;
    for (const double sx : {2.0, 6.0, 10.0, 14.0}) {
        for (const double sy : {2.0, 6.0, 10.5}) {
            const double d2 = (x - sx) * (x - sx) + (y - sy) * (y - sy) + height * height;
            sum += 4200 * height * height / (d2 * d2);
        }
    }
    return sum;
}

/// Two columns, a round shaft and a cut-off corner.
bool InHole(int i, int j, double x, double y) {
    return (i >= 30 && i < 50 && j >= 20 && j < 35) || (i >= 100 && i < 140 && j >= 60 && j < 70) ||
           (x - 5) * (x - 5) + (y - 9) * (y - 9) < 1.2 || (i >= 140 && j >= 100);
}

std::vector<double> MakeField(bool holes, bool noise) {
    std::mt19937 random(1);
    std::normal_distribution<double> normal(0.0, 1.0);
    std::vector<double> values;
    for (int j = 0; j < Rows; ++j) {
        for (int i = 0; i < Columns; ++i) {
            const double x = i * Step;
            const double y = j * Step;
            double value = Downlights(x, y);
            value *= noise ? 1 + 0.2 * normal(random) : 1;
            const bool missing = holes && InHole(i, j, x, y);
            values.push_back(missing ? std::numeric_limits<double>::quiet_NaN() : value);
        }
    }
    return values;
}

template <typename Work> long long Nanoseconds(Work work) {
    const auto start = Clock::now();
    const auto result = work();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - start).count();
}

void CountCurves(const GridField& field) {
    std::size_t points = 0;
    const auto curves = ExtractIsolines(field, Levels);
    for (const IsoCurve& curve : curves) {
        points += curve.points.size();
    }
    std::cout << curves.size() << " curves, " << points << " points" << std::endl;
}

void CountBands(const GridField& field) {
    std::size_t points = 0;
    std::size_t polygons = 0;
    std::size_t holes = 0;
    for (const ColorBand& band : BuildBands(field, Levels)) {
        for (const BandPolygon& polygon : band.polygons) {
            points += polygon.outer.size();
            for (const auto& hole : polygon.holes) {
                points += hole.size();
            }
            holes += polygon.holes.size();
            ++polygons;
        }
    }
    std::cout << polygons << " polygons, " << holes << " holes, " << points << " points"
              << std::endl;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Run bench/ContourBench.py\n";
        return 2;
    }
    CalculationGrid grid;
    grid.stepX = grid.stepY = Step;
    grid.columns = Columns;
    grid.rows = Rows;
    std::vector<GridField> fields;
    for (int f = 0; f < 3; ++f) {
        fields.push_back({&grid, MakeField(f > 0, f > 1)});
        std::ofstream file(std::string(argv[1]) + "/field" + std::to_string(f) + ".bin",
                           std::ios::binary);
        file.write(reinterpret_cast<const char*>(fields.back().values.data()),
                   static_cast<std::streamsize>(fields.back().values.size() * sizeof(double)));
    }
    std::cout << "ready" << std::endl;
    std::string what;
    std::size_t number = 0;
    while (std::cin >> what) {
        const bool count = what == "count";
        if (count) {
            std::cin >> what;
        }
        std::cin >> number;
        const GridField& field = fields[number % fields.size()];
        if (count) {
            what == "curves" ? CountCurves(field) : CountBands(field);
        } else {
            std::cout << (what == "curves"
                              ? Nanoseconds([&] { return ExtractIsolines(field, Levels); })
                              : Nanoseconds([&] { return BuildBands(field, Levels); }))
                      << std::endl;
        }
    }
    return 0;
}
