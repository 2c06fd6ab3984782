// One full glare table (19 rooms, 5 reflectances, 2 directions) at H = 2 m against the plain
// algorithm: seconds of both in one thread, their ratio and the largest difference in UGR. The
// luminaire is the IES file told as argument, else one of the examples; "--fast-only" after the
// file leaves the plain algorithm out, which takes half a minute.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "Photometry/IesReader.hpp"
#include "Simulation/Glare/UgrTable.hpp"
#include "Support/PlainRadiosity/PlainRadiosity.hpp"

using namespace Merivane;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double Height = 2.0; // m
constexpr int Repeats = 7;

template <class Work> double Seconds(int repeats, Simulation::UgrTableValues& table, Work work) {
    double best = 1e9;
    for (int k = 0; k < repeats; ++k) {
        const Clock::time_point start = Clock::now();
        table = work();
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
    }
    return best;
}

double LargestDifference(const Simulation::UgrTableValues& a, const Simulation::UgrTableValues& b) {
    double largest = 0.0;
    for (std::size_t row = 0; row < a.crosswise.size(); ++row) {
        for (std::size_t set = 0; set < a.crosswise[row].size(); ++set) {
            largest = std::max({largest, std::abs(a.crosswise[row][set] - b.crosswise[row][set]),
                                std::abs(a.lengthwise[row][set] - b.lengthwise[row][set])});
        }
    }
    return largest;
}

} // namespace

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : VANTORO_EXAMPLES "/ies/painel-600.ies";
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    Simulation::SceneLuminaire luminaire;
    const Photometry::IesReadResult read = Photometry::ReadIes(bytes, luminaire.photometry);
    if (!read.ok) {
        std::printf("%s: %s\n", path.c_str(), read.error.c_str());
        return 1;
    }
    const Simulation::GlareOptions options{false, true};
    Simulation::UgrTableValues ours;
    Simulation::UgrTableValues plain;
    const double fast =
        Seconds(Repeats, ours, [&] { return Simulation::UgrTable(luminaire, Height, options); });
    std::printf("table: %.3f s (best of %d)\n", fast, Repeats);
    std::printf("4H x 8H at 70/50/20: crosswise %.2f, lengthwise %.2f\n", ours.crosswise[10][0],
                ours.lengthwise[10][0]);
    if (argc > 2 && std::string(argv[2]) == "--fast-only") {
        return 0;
    }
    const double slow =
        Seconds(1, plain, [&] { return Tests::PlainTable(luminaire, Height, options); });
    std::printf("plain algorithm: %.1f s, %.0f times as long\n", slow, slow / fast);
    std::printf("largest difference: %.6f UGR\n", LargestDifference(ours, plain));
    return 0;
}
