#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "AllocationCount.hpp"
#include "IesSamples.hpp"
#include "Photometry/CandelaLookup.hpp"

namespace Merivane::Photometry {
namespace {

using Tests::MakeTable;
using Tests::Steps;

IesFile Planes(std::vector<double> horizontals) {
    return MakeTable({0, 90}, std::move(horizontals), [](double v, double h) { return v + h; });
}

TEST(FindAngleCell, FindsTheCellAndThePlaceInIt) {
    struct Case {
        std::vector<double> angles;
        double x;
        std::size_t index;
        double fraction;
    };
    const Case cases[] = {
        {{0, 10, 30}, 0, 0, 0.0},
        {{0, 10, 30}, 5, 0, 0.5},
        {{0, 10, 30}, 10, 0, 1.0}, // a value between two cells is the end of the first
        {{0, 10, 30}, 15, 1, 0.25},
        {{0, 10, 30}, 30, 1, 1.0},
        {{0, 10, 30}, -1e-6, 0, 0.0},
        {{0, 10, 30}, 30.000001, 1, 1.0},
        {{0, 10}, 2.5, 0, 0.25},
        {{0, 10}, 10, 0, 1.0},
        {{7}, 7, 0, 0.0},
        {{7}, 7.0000009, 0, 0.0},
        {{5, 5}, 5, 0, 0.0}, // a cell of no width
        {{5, 5, 5}, 5, 0, 0.0},
        {{0, 10, 20, 30, 40}, 35, 3, 0.5},
    };
    for (const Case& c : cases) {
        std::size_t index = 99;
        double fraction = -1.0;
        EXPECT_TRUE(FindAngleCell(c.angles, c.x, index, fraction)) << c.x;
        EXPECT_EQ(index, c.index) << c.x;
        EXPECT_NEAR(fraction, c.fraction, 1e-12) << c.x;
        EXPECT_LE(fraction, 1.0);
        EXPECT_GE(fraction, 0.0);
    }
}

TEST(FindAngleCell, LeavesTheOutputsAloneOutsideTheList) {
    const std::pair<std::vector<double>, double> cases[] = {
        {{}, 0.0}, {{0, 10}, -0.0000011}, {{0, 10}, 10.0000011}, {{7}, 6.99}, {{7}, 7.01}};
    for (const auto& [angles, x] : cases) {
        std::size_t index = 99;
        double fraction = -1.0;
        EXPECT_FALSE(FindAngleCell(angles, x, index, fraction)) << x;
        EXPECT_EQ(index, 99U);
        EXPECT_EQ(fraction, -1.0);
    }
}

TEST(FoldHorizontal, FoldsByTheSymmetryThatTheEndsTell) {
    struct Case {
        std::vector<double> horizontals;
        double angle, folded;
    };
    const Case cases[] = {
        // quadrant
        {{0, 45, 90}, 0, 0},
        {{0, 45, 90}, 90, 90},
        {{0, 45, 90}, 100, 80},
        {{0, 45, 90}, 180, 0},
        {{0, 45, 90}, 190, 10},
        {{0, 45, 90}, 270, 90},
        {{0, 45, 90}, 350, 10},
        {{0, 45, 90}, 360, 0},
        {{0, 45, 90}, -10, 10},
        {{0, 45, 90}, 730, 10},
        // bilateral about C0
        {{0, 180}, 170, 170},
        {{0, 180}, 180, 180},
        {{0, 180}, 190, 170},
        {{0, 180}, 350, 10},
        {{0, 180}, -350, 10},
        // bilateral about C90
        {{90, 270}, 45, 135},
        {{90, 270}, 0, 180},
        {{90, 270}, 90, 90},
        {{90, 270}, 180, 180},
        {{90, 270}, 270, 270},
        {{90, 270}, 300, 240},
        {{90, 270}, 359, 181},
        {{90, 270}, -60, 240},
        // the whole circle and parts of it
        {{0, 180, 360}, 300, 300},
        {{0, 180, 360}, -60, 300},
        {{0, 100, 345}, 350, 345},
        {{10, 50}, 5, 10},
        {{10, 50}, 300, 50},
        {{10, 50}, 30, 30},
        {{0, 270}, 300, 270},
        // the ends are told with the tolerance of all angles
        {{0, 90.0000005}, 100, 80},
        {{0, 90.000002}, 100, 90.000002},
        {{25}, 300, 25},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(FoldHorizontal(Planes(c.horizontals), c.angle), c.folded, 1e-9)
            << ::testing::PrintToString(c.horizontals) << " " << c.angle;
    }
}

TEST(FoldHorizontal, AlwaysEndsInsideTheTable) {
    std::mt19937_64 random(70);
    std::uniform_real_distribution<double> any(-2000.0, 2000.0);
    for (const std::vector<double>& ends :
         {std::vector<double>{0, 90}, {0, 180}, {90, 270}, {0, 360}, {0, 345}, {-90, 90}, {7}}) {
        const IesFile file = Planes(ends);
        for (int i = 0; i < 1000; ++i) {
            const double folded = FoldHorizontal(file, any(random));
            EXPECT_GE(folded, ends.front());
            EXPECT_LE(folded, ends.back());
        }
    }
}

TEST(CandelaAt, InterpolatesLinearlyInBothAngles) {
    const IesFile file = MakeTable({0, 10, 30}, {0, 90, 180, 360},
                                   [](double v, double h) { return 1000 + 3 * v - 2 * h; });
    for (const double v : {0.0, 5.0, 10.0, 17.0, 30.0}) {
        for (const double h : {0.0, 45.0, 90.0, 100.0, 180.0, 300.0, 359.0}) {
            EXPECT_NEAR(CandelaAt(file, v, h), 1000 + 3 * v - 2 * h, 1e-9) << v << " " << h;
        }
    }
}

TEST(CandelaAt, AppliesTheMultiplier) {
    IesFile file = MakeTable({0, 90}, {0}, [](double, double) { return 10.0; });
    file.candelaMultiplier = 2.5;
    EXPECT_EQ(CandelaAt(file, 30, 0), 25.0);
}

TEST(CandelaAt, HasNoLightOutsideTheVerticalRange) {
    const IesFile down = MakeTable({0, 90}, {0}, [](double v, double) { return 100.0 - v; });
    EXPECT_NEAR(CandelaAt(down, 90.0000001, 0), 10.0, 1e-9);
    EXPECT_EQ(CandelaAt(down, 90.00001, 0), 0.0);
    EXPECT_EQ(CandelaAt(down, 91, 0), 0.0);
    EXPECT_EQ(CandelaAt(down, -1, 0), 0.0);
    const IesFile up = MakeTable({90, 180}, {0, 90}, [](double, double) { return 1.0; });
    EXPECT_EQ(CandelaAt(up, 89, 0), 0.0);
    EXPECT_EQ(CandelaAt(up, 90, 0), 1.0);
    EXPECT_EQ(CandelaAt(up, 180, 200), 1.0);
}

TEST(CandelaAt, OfASinglePlaneIsTheSameAllAround) {
    const IesFile file = MakeTable({0, 90}, {35}, [](double v, double) { return v; });
    for (const double h : {0.0, 35.0, 90.0, 180.0, 300.0, -1000.0}) {
        EXPECT_EQ(CandelaAt(file, 40, h), 40.0);
    }
}

TEST(CandelaAt, OfASingleVerticalAngleIsThatAngleAlone) {
    const IesFile file = MakeTable({30}, {0, 90}, [](double, double h) { return 5.0 + h; });
    EXPECT_NEAR(CandelaAt(file, 30, 45), 50.0, 1e-9);
    EXPECT_EQ(CandelaAt(file, 31, 45), 0.0);
}

TEST(CandelaAt, IsZeroForARecordWithoutAWholeTypeCTable) {
    const IesFile whole = MakeTable({0, 90}, {0, 90}, [](double, double) { return 1.0; });
    const auto with = [&whole](const auto& change) {
        IesFile file = whole;
        change(file);
        return CandelaAt(file, 45, 45);
    };
    EXPECT_EQ(CandelaAt(whole, 45, 45), 1.0);
    EXPECT_EQ(with([](IesFile& f) { f.photometricType = 2; }), 0.0);
    EXPECT_EQ(with([](IesFile& f) { f.verticalAngles.clear(); }), 0.0);
    EXPECT_EQ(with([](IesFile& f) { f.horizontalAngles.clear(); }), 0.0);
    EXPECT_EQ(with([](IesFile& f) { f.candela.pop_back(); }), 0.0);
    EXPECT_EQ(with([](IesFile& f) { f.candela = {{}, {}}; }), 0.0);
    EXPECT_EQ(CandelaAt(IesFile{}, 0, 0), 0.0);
}

TEST(CandelaAt, SurvivesAnglesThatAreNoNumbers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const IesFile file = MakeTable({0, 45, 90}, {0, 90, 180}, [](double, double) { return 1.0; });
    for (const double odd : {nan, inf, -inf}) {
        CandelaAt(file, odd, 0);
        CandelaAt(file, 0, odd);
    }
    EXPECT_EQ(CandelaAt(file, inf, 0), 0.0);
}

TEST(CandelaAt, HasTheSymmetryOfItsTable) {
    std::mt19937_64 random(71);
    std::uniform_real_distribution<double> candela(0.0, 1000.0);
    std::uniform_real_distribution<double> angle(0.0, 360.0);
    const auto any = [&](double, double) { return candela(random); };
    const IesFile quadrant = MakeTable(Steps(0, 180, 15), Steps(0, 90, 15), any);
    const IesFile aboutC0 = MakeTable(Steps(0, 180, 15), Steps(0, 180, 15), any);
    const IesFile aboutC90 = MakeTable(Steps(0, 180, 15), Steps(90, 270, 15), any);
    for (int i = 0; i < 2000; ++i) {
        const double v = angle(random) / 2;
        const double h = angle(random);
        EXPECT_NEAR(CandelaAt(quadrant, v, h), CandelaAt(quadrant, v, 180 - h), 1e-9);
        EXPECT_NEAR(CandelaAt(quadrant, v, h), CandelaAt(quadrant, v, -h), 1e-9);
        EXPECT_NEAR(CandelaAt(aboutC0, v, h), CandelaAt(aboutC0, v, -h), 1e-9);
        EXPECT_NEAR(CandelaAt(aboutC90, v, h), CandelaAt(aboutC90, v, 180 - h), 1e-9);
    }
}

TEST(CandelaAt, AllocatesNothing) {
    const IesFile file =
        MakeTable(Steps(0, 180, 2.5), Steps(0, 90, 15), [](double v, double h) { return v + h; });
    const std::size_t before = Tests::AllocationCount();
    double sum = 0.0;
    for (int i = 0; i < 1000; ++i) {
        sum += CandelaAt(file, i * 0.18, i * 0.36);
    }
    EXPECT_EQ(Tests::AllocationCount(), before);
    EXPECT_GT(sum, 0.0);
    const std::vector<double> counted(3); // the count counts
    EXPECT_GT(Tests::AllocationCount(), before);
}

TEST(MeanCandelaAtVertical, IsTheMeanOf36Planes) {
    // One narrow lobe about C0: of the planes 0, 10, ... only 0 meets it.
    const IesFile lobe = MakeTable({0, 90}, {0, 5, 355, 360}, [](double, double h) {
        return h == 0.0 || h == 360.0 ? 36.0 : 0.0;
    });
    EXPECT_NEAR(MeanCandelaAtVertical(lobe, 30), 1.0, 1e-12);
    // A quadrant: 0 and 180 once each, 90 and 270 once each, eight planes four times.
    const IesFile quadrant = Planes(Steps(0, 90, 10));
    EXPECT_NEAR(MeanCandelaAtVertical(quadrant, 0), 45.0, 1e-9);
    EXPECT_EQ(MeanCandelaAtVertical(quadrant, 91), 0.0);
}

} // namespace
} // namespace Merivane::Photometry
