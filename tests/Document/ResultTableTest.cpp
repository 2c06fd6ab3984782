#include <gtest/gtest.h>

#include "Document/PlanePoints.hpp"
#include "Document/ResultTable.hpp"

namespace Merivane::Document {

namespace {

/// Two columns and one row; the second node alone is in the task area.
Simulation::SensorPlane SmallPlane() {
    Simulation::SensorPlane plane;
    plane.grid.originX = 0.5;
    plane.grid.originY = 1.25;
    plane.grid.stepX = 0.25;
    plane.grid.stepY = 0.25;
    plane.grid.columns = 2;
    plane.grid.rows = 1;
    plane.grid.z = 0.75;
    plane.grid.active = {true, true};
    plane.grid.task = {false, true};
    return plane;
}

} // namespace

TEST(PlanePoints, StandAtTheHeightOfAHorizontalPlane) {
    EXPECT_EQ(PlanePoints(SmallPlane()),
              (std::vector<Simulation::Point3D>{{0.5, 1.25, 0.75}, {0.75, 1.25, 0.75}}));
}

TEST(PlanePoints, RunAlongAVerticalPlane) {
    Simulation::SensorPlane plane = SmallPlane();
    plane.vertical = true;
    plane.originX = 10.0;
    plane.originY = 20.0;
    plane.directionX = 0.0;
    plane.directionY = -1.0;
    EXPECT_EQ(PlanePoints(plane),
              (std::vector<Simulation::Point3D>{{10, 19.5, 1.25}, {10, 19.25, 1.25}}));
}

TEST(PlanePoints, LeaveOutNodesThatAreNoPoints) {
    Simulation::SensorPlane plane = SmallPlane();
    plane.grid.active = {false, true};
    EXPECT_EQ(PlanePoints(plane), (std::vector<Simulation::Point3D>{{0.75, 1.25, 0.75}}));
}

TEST(ResultTable, OpensInABrazilianSpreadsheet) {
    EXPECT_EQ(WritePlaneTable(SmallPlane(), {312.456, 0.0}), "\xEF\xBB\xBFx;y;z;lux;tarefa\r\n"
                                                             "0,500;1,250;0,750;312,46;0\r\n"
                                                             "0,750;1,250;0,750;0,00;1\r\n");
}

TEST(ResultTable, StopsWhereTheValuesRunOut) {
    EXPECT_EQ(WritePlaneTable(SmallPlane(), {1.0}),
              "\xEF\xBB\xBFx;y;z;lux;tarefa\r\n0,500;1,250;0,750;1,00;0\r\n");
    EXPECT_EQ(WritePlaneTable(SmallPlane(), {}), "\xEF\xBB\xBFx;y;z;lux;tarefa\r\n");
}

TEST(UniqueFileNames, AreSafeOnEveryFileSystem) {
    struct Case {
        std::string title;
        std::string name;
    };
    const Case cases[] = {
        {"Sala", "Sala.csv"},
        {"Sala parede 1", "Sala parede 1.csv"},
        {"Recepção", "Recepção.csv"},
        {"../../etc/passwd", "_..-..-etc-passwd.csv"},
        {"a/b\\c:d*e?f\"g<h>i|j", "a-b-c-d-e-f-g-h-i-j.csv"},
        {"Sala 1.", "Sala 1.csv"},
        {".", "_.csv"},
        {"-rf", "_-rf.csv"},
        {"con", "_con.csv"},
        {"NUL.x", "_NUL.x.csv"},
        {"com1", "_com1.csv"},
        {"console", "console.csv"},
        {"com10", "com10.csv"},
        {"", "_.csv"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.title);
        EXPECT_EQ(UniqueFileNames({c.title}, ".csv"), std::vector<std::string>{c.name});
    }
}

TEST(UniqueFileNames, LongTitlesAreCutAtACharacter) {
    std::string title(119, 'a');
    title += "çb"; // the two bytes of the letter are the 120th and the 121st
    EXPECT_EQ(UniqueFileNames({title}, "").front(), title.substr(0, 119));
    title.replace(119, 2, "b");
    EXPECT_EQ(UniqueFileNames({title + title}, "").front(), title.substr(0, 120));
}

TEST(UniqueFileNames, NoTwoAreEqual) {
    EXPECT_EQ(UniqueFileNames({"Sala", "sala", "Sala", "Sala (2)", "a/b", "a:b"}, ".csv"),
              (std::vector<std::string>{"Sala.csv", "sala (2).csv", "Sala (3).csv",
                                        "Sala (2) (2).csv", "a-b.csv", "a-b (2).csv"}));
}

} // namespace Merivane::Document
