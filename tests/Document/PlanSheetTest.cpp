#include <gtest/gtest.h>

#include "Document/PlanSheet.hpp"

namespace Merivane::Document {
namespace {

SheetBlock BlockOf(double height) {
    SheetBlock block;
    block.height = height;
    return block;
}

// Legend of eight levels and one summary.
std::vector<SheetBlock> UsualBlocks() {
    return {BlockOf(50), BlockOf(32)};
}

TEST(ArrangeSheet, ChoosesPaperAndScaleThatFit) {
    struct Case {
        double width;  // m
        double height; // m
        double paperWidth;
        double scale;
    };
    const Case cases[] = {
        {1, 1, 297, 20},    {3, 2, 297, 20},    {6, 4, 297, 50},
        {12, 0.9, 297, 75}, {14, 12, 420, 50},  {20, 15, 420, 75},
        {60, 40, 420, 200}, {90, 60, 594, 200}, {210, 140, 1189, 200},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " x " << c.height);
        const PlanSheet sheet = ArrangeSheet({0, 0, c.width, c.height}, UsualBlocks(), 0.0);
        EXPECT_EQ(sheet.width, c.paperWidth);
        EXPECT_EQ(sheet.scale, c.scale);
    }
}

TEST(ArrangeSheet, KeepsAScaleThatIsGivenAndChoosesThePaper) {
    struct Case {
        double scale;
        double paperWidth;
        double paperHeight;
    };
    const Case cases[] = {
        {50, 297, 210},   {25, 420, 297},   {20, 420, 297},  {10, 841, 594},
        {33.3, 297, 210}, {1000, 297, 210}, {2, 3105, 2054}, // no sheet of the series: made to
                                                             // measure
    };
    for (const Case& c : cases) {
        const PlanSheet sheet = ArrangeSheet({0, 0, 6, 4}, UsualBlocks(), c.scale);
        EXPECT_EQ(sheet.scale, c.scale);
        EXPECT_NEAR(sheet.width, c.paperWidth, 1.0) << c.scale;
        EXPECT_NEAR(sheet.height, c.paperHeight, 1.0) << c.scale;
    }
}

TEST(ArrangeSheet, ThePlanLiesInItsAreaWhateverItsSizeAndPlace) {
    for (double size : {0.5, 3.0, 17.0, 80.0, 400.0, 3000.0, 1e7}) {
        for (double ratio : {0.05, 0.7, 1.0, 3.0}) {
            const Drawing::Box bounds{-1e5, 2e5, -1e5 + size, 2e5 + size * ratio};
            const PlanSheet sheet = ArrangeSheet(bounds, UsualBlocks(), 0.0);
            SCOPED_TRACE(testing::Message() << size << " " << ratio);
            const Drawing::Point lower = OnPaper(sheet, {bounds.left, bounds.bottom});
            const Drawing::Point upper = OnPaper(sheet, {bounds.right, bounds.top});
            EXPECT_GT(lower.x, sheet.planArea.left);
            EXPECT_GT(lower.y, sheet.planArea.bottom);
            EXPECT_LT(upper.x, sheet.planArea.right);
            EXPECT_LT(upper.y, sheet.planArea.top);
            EXPECT_LE(sheet.width, 5000.0);
            EXPECT_LE(sheet.height, 5000.0);
            EXPECT_GE(sheet.scale, 20.0);
        }
    }
}

TEST(ArrangeSheet, BlocksStandInColumnsClearOfThePlanAndOfEachOther) {
    for (std::size_t count : {0U, 1U, 3U, 9U, 40U}) {
        const std::vector<SheetBlock> blocks(count, BlockOf(37));
        const PlanSheet sheet = ArrangeSheet({0, 0, 6, 4}, blocks, 0.0);
        ASSERT_EQ(sheet.blocks.size(), count);
        std::vector<Drawing::Box> boxes;
        for (const PlacedBlock& placed : sheet.blocks) {
            boxes.push_back({placed.corner.x, placed.corner.y - blocks[placed.block].height,
                             placed.corner.x + ColumnWidth, placed.corner.y});
            EXPECT_FALSE(BoxesMeet(boxes.back(), sheet.planArea));
            EXPECT_FALSE(BoxesMeet(boxes.back(), sheet.titleArea));
            EXPECT_FALSE(BoxesMeet(boxes.back(), sheet.footArea));
            EXPECT_LE(boxes.back().right, sheet.titleArea.right + 1e-9);
        }
        for (std::size_t k = 0; k < boxes.size(); ++k) {
            for (std::size_t n = k + 1; n < boxes.size(); ++n) {
                EXPECT_FALSE(BoxesMeet(boxes[k], boxes[n]));
            }
        }
    }
}

TEST(ArrangeSheet, AColumnIsAsWideAsItsWidestBlock) {
    std::vector<SheetBlock> blocks = {BlockOf(50), BlockOf(140), BlockOf(140), BlockOf(15)};
    blocks[0].width = 40;
    blocks[1].width = 108; // does not stand below the first on A4
    blocks[2].width = 60;
    blocks[3].width = 70; // stands below the third
    const PlanSheet sheet = ArrangeSheet({0, 0, 1, 1}, blocks, 100.0);
    EXPECT_EQ(sheet.width, 297.0);
    const double right = sheet.titleArea.right;
    const double gap = 7.0;
    ASSERT_EQ(sheet.blocks.size(), 4U);
    EXPECT_NEAR(sheet.blocks[3].corner.x, right - 70.0, 1e-9);
    EXPECT_EQ(sheet.blocks[2].corner.x, sheet.blocks[3].corner.x);
    EXPECT_NEAR(sheet.blocks[1].corner.x, right - 70.0 - gap - 108.0, 1e-9);
    EXPECT_NEAR(sheet.blocks[0].corner.x, right - 70.0 - gap - 108.0 - gap - 40.0, 1e-9);
    EXPECT_NEAR(sheet.planArea.right, sheet.blocks[0].corner.x - gap, 1e-9);
}

TEST(ArrangeSheet, ANoteFillsAColumnThatHasRoomForIt) {
    std::vector<SheetBlock> blocks = {BlockOf(140), BlockOf(163), BlockOf(17), BlockOf(1)};
    blocks[2].fillsGaps = true; // 140 + 7 + 17 is just the 164 mm of A4
    const PlanSheet sheet = ArrangeSheet({0, 0, 1, 1}, blocks, 100.0);
    ASSERT_EQ(sheet.blocks.size(), 4U);
    EXPECT_EQ(sheet.blocks[2].corner.x, sheet.blocks[0].corner.x);
    EXPECT_EQ(sheet.blocks[2].corner.y, sheet.blocks[0].corner.y - 147.0);
    EXPECT_GT(sheet.blocks[3].corner.x, sheet.blocks[1].corner.x); // it keeps the order
    blocks[2].height = 17.1;
    EXPECT_GT(ArrangeSheet({0, 0, 1, 1}, blocks, 100.0).blocks[2].corner.x,
              sheet.blocks[0].corner.x);
}

TEST(ArrangeSheet, ABlockHigherThanASheetGetsAHigherOne) {
    const PlanSheet sheet = ArrangeSheet({0, 0, 6, 4}, {BlockOf(300)}, 0.0);
    EXPECT_EQ(sheet.height, 420.0); // A2
}

TEST(InModel, IsTheInverseOfOnPaper) {
    const PlanSheet sheet = ArrangeSheet({0, 0, 6, 4}, UsualBlocks(), 0.0);
    const Simulation::Point2D place = InModel(sheet, OnPaper(sheet, {1.25, -3.5}));
    EXPECT_NEAR(place.x, 1.25, 1e-12);
    EXPECT_NEAR(place.y, -3.5, 1e-12);
    EXPECT_NEAR(PaperLength(sheet, 1.0), 20.0, 1e-12); // 1:50
}

} // namespace
} // namespace Merivane::Document
