#include <gtest/gtest.h>

#include "Simulation/Study/ZoneLogLines.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Simulation {
namespace {

ZoneDrawing Drawing(double mean, double uniformity) {
    ZoneDrawing drawing;
    drawing.zone.name = "Sala 1";
    drawing.zone.task.requirement = {"s22.3", 500.0, 0.6, ScreensAutomatic};
    drawing.analysis.task = FindTask("s22.3");
    drawing.analysis.statistics = {96, mean, 300.4, 700.5, uniformity};
    drawing.curves.resize(4);
    return drawing;
}

TEST(PlaneLogLine, GivesEmWithoutAndU0WithTwoDecimals) {
    EXPECT_EQ(PlaneLogLine("Sala parede 1", {10, 49.5, 20.0, 90.0, 0.404}),
              "Sala parede 1: Em 50 lx, U0 0,40");
}

TEST(ZoneFiguresLogLine, GivesAllFiguresPointsAndCurves) {
    EXPECT_EQ(ZoneFiguresLogLine(Drawing(499.5, 0.6)),
              "Sala 1: Em 500 lx, Emin 300 lx, Emax 701 lx, U0 0,60 (96 pontos, 4 curva(s))");
}

TEST(ZoneTaskLogLine, ComparesAsPrinted) {
    const std::string activity = FindTask("s22.3")->activity;
    EXPECT_EQ(ZoneTaskLogLine(Drawing(499.5, 0.595)),
              "Sala 1 (" + activity +
                  "): Em 500 lx / minimo 500 - atende; U0 0,60 / minimo 0,60 - atende");
    EXPECT_EQ(ZoneTaskLogLine(Drawing(499.4, 0.594)),
              "Sala 1 (" + activity +
                  "): Em 499 lx / minimo 500 - NAO ATENDE; U0 0,59 / minimo 0,60 - NAO ATENDE");
}

TEST(ZoneTaskLogLine, IsEmptyForAZoneThatIsNotVerified) {
    ZoneDrawing drawing = Drawing(500.0, 0.6);
    drawing.analysis.task = nullptr;
    EXPECT_EQ(ZoneTaskLogLine(drawing), "");
    drawing = Drawing(500.0, 0.6);
    drawing.analysis.statistics.count = 0;
    EXPECT_EQ(ZoneTaskLogLine(drawing), "");
}

} // namespace
} // namespace Merivane::Simulation
