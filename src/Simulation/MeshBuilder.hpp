#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "Simulation/CellSegments.hpp"
#include "Simulation/ContourMesh.hpp"

namespace Merivane::Simulation {

/// What a cell of the row at hand has to lay.
enum CellWork : std::uint8_t {
    Nothing, ///< no level runs through it
    Inner,   ///< crossings on its right and top edges only
    Outer    ///< more: it stands on the edge of the area that has values
};

/// Working state of one `BuildContourMesh`. A cell needs the numbers of crossings on its own four
/// edges only, so two rows of horizontal edges and two vertical ones are kept, and nothing is
/// looked up by key.
struct MeshBuilder {
    const std::vector<double>& values;
    const LevelList& levels;
    bool border;
    std::size_t columns;
    std::size_t rows;
    ContourMesh mesh{};
    std::vector<double> xs{}; ///< of the columns [m]
    std::vector<double> ys{}; ///< of the rows [m]
    /// Cells with four values, with one cell of nothing all round: (columns + 1) x (rows + 1).
    std::vector<std::uint8_t> valid{};
    std::vector<std::uint8_t> work{}; ///< `CellWork` of the cells of the row at hand
    /// Vertex numbers by column and level on the bottom and top edges of the row at hand, by level
    /// on the left and right edges of the cell at hand, and by node on the bottom and top.
    std::vector<std::uint32_t> bottom{}, top{}, left{}, right{};
    std::vector<std::uint32_t> bottomNodes{}, topNodes{};
};

/// Vertex numbers on the edges of a cell, by level; those of levels that do not cross an edge mean
/// nothing.
struct EdgeNumbers {
    std::uint32_t* bottom;
    std::uint32_t* right;
    std::uint32_t* top;
    std::uint32_t* left;
};

inline EdgeNumbers NumbersAt(MeshBuilder& b, std::size_t i) {
    const std::size_t stripe = i * b.levels.size();
    EdgeNumbers ids{b.bottom.data() + stripe, b.right.data(), b.top.data() + stripe, b.left.data()};
    // The right edge of a cell is the left edge of the next.
    if ((i & 1U) != 0) {
        std::swap(ids.left, ids.right);
    }
    return ids;
}

/// Lays and links everything of one cell of kind `Outer` [0 <= i < columns - 1, 0 <= j < rows - 1],
/// its border included where it is wanted.
void AddOuterCell(MeshBuilder& b, std::size_t i, std::size_t j);

/// The pieces of curve of a cell from falling to rising edge, by the corners above. The two
/// last are the saddles with the centre above.
struct DirectedSegments {
    std::uint8_t count = 0;
    std::array<std::uint8_t, 2> falling{};
    std::array<std::uint8_t, 2> rising{};
};

constexpr std::array<DirectedSegments, 18> DirectSegments() {
    std::array<DirectedSegments, 18> table{};
    for (unsigned k = 0; k < table.size(); ++k) {
        const unsigned above = k == 16 ? SaddleUpwards : k == 17 ? SaddleDownwards : k;
        const CellSegmentList list = SegmentsOfCase(above, k >= 16);
        table[k].count = static_cast<std::uint8_t>(list.count);
        for (std::size_t s = 0; s < list.count; ++s) {
            const auto [first, second] = list.pairs[s];
            // Walking the perimeter, an edge falls when the corner that begins it lies above.
            const bool firstFalls = ((above >> first) & 1U) != 0;
            table[k].falling[s] = firstFalls ? first : second;
            table[k].rising[s] = firstFalls ? second : first;
        }
    }
    return table;
}

inline constexpr std::array<DirectedSegments, 18> Directed = DirectSegments();

/// Where in `Directed` the segments of a cell with these corners above [1..14] stand.
inline unsigned SegmentsEntry(unsigned above, const std::array<double, 4>& v, double level) {
    if (above != SaddleUpwards && above != SaddleDownwards) {
        return above;
    }
    const bool centreAbove = (v[0] + v[1] + v[2] + v[3]) * 0.25 >= level;
    return !centreAbove ? above : above == SaddleUpwards ? 16 : 17;
}

/// Links a falling crossing with a rising one of the same level in the same cell.
inline void LinkCrossings(MeshLinks* links, std::uint32_t falling, std::uint32_t rising) {
    links[falling][HighOnLeft] = 2 * rising + HighOnLeft;
    links[rising][LowOnLeft] = 2 * falling + LowOnLeft;
}

} // namespace Merivane::Simulation
