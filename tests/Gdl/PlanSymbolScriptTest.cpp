#include "Gdl/PlanSymbolScript.hpp"

#include <gtest/gtest.h>

namespace Merivane::Photometry {
namespace {

TEST(PlanSymbolScript2D, DrawsTheRowsOfTheSymbolAndEndsTheScript) {
    EXPECT_EQ(PlanSymbolScript2D(),
              "! Simbolo tecnico no lugar da planta do modelo, quando a OVM pede simbolo de "
              "iluminacao.\n"
              "mvSymbolShown = mvPlanSymbol\n"
              "IF mvSymbolShown > 0 THEN\n"
              "\tmvMvoRep = 3\n"
              "\tmvMvoOk = LIBRARYGLOBAL (\"Objects_MVOSettings\", \"iFixtureSymbol\", mvMvoRep)\n"
              "\tIF mvMvoOk = 0 OR mvMvoRep = 3 THEN mvSymbolShown = 0\n"
              "ENDIF\n"
              "IF mvSymbolShown > 0 THEN\n"
              "\tPEN mvSymbolPen\n"
              "\tmvSymbolFrame = 5\n"
              "\tIF mvSymbolFill > 0 THEN\n"
              "\t\tSET FILL mvSymbolFill\n"
              "\t\tmvSymbolFrame = 7\n"
              "\tENDIF\n"
              "\tmvSymbolScale = mvPlanSymbolSize * GLOB_SCALE / 2000\n"
              "\tADD2 mvCenterX, mvCenterY\n"
              "\tMUL2 mvSymbolScale, mvSymbolScale\n"
              "\tHOTSPOT2 0, 0\n"
              "\tHOTSPOT2 1, 0\n"
              "\tHOTSPOT2 0, 1\n"
              "\tHOTSPOT2 -1, 0\n"
              "\tHOTSPOT2 0, -1\n"
              "\tmvRow = 1\n"
              "\tWHILE mvRow <= mvSymbolCount DO\n"
              "\t\tmvKind = mvSymbolData[mvRow][1]\n"
              "\t\tIF mvKind = 1 THEN LINE2 mvSymbolData[mvRow][2], mvSymbolData[mvRow][3], "
              "mvSymbolData[mvRow][4], mvSymbolData[mvRow][5]\n"
              "\t\tIF mvKind = 2 THEN CIRCLE2 mvSymbolData[mvRow][2], mvSymbolData[mvRow][3], "
              "mvSymbolData[mvRow][4]\n"
              "\t\tIF mvKind = 3 THEN ARC2 mvSymbolData[mvRow][2], mvSymbolData[mvRow][3], "
              "mvSymbolData[mvRow][4], mvSymbolData[mvRow][5], mvSymbolData[mvRow][6]\n"
              "\t\tIF mvKind = 4 THEN\n"
              "\t\t\tmvPoints = mvSymbolData[mvRow][2]\n"
              "\t\t\tFOR mvPoint = 1 TO mvPoints\n"
              "\t\t\t\tPUT mvSymbolData[mvRow + mvPoint][2], mvSymbolData[mvRow + mvPoint][3], 1\n"
              "\t\t\tNEXT mvPoint\n"
              "\t\t\tPOLY2_B mvPoints, mvSymbolFrame, mvSymbolPen, 0, GET (NSP)\n"
              "\t\t\tmvRow = mvRow + mvPoints\n"
              "\t\tENDIF\n"
              "\t\tmvRow = mvRow + 1\n"
              "\tENDWHILE\n"
              "\tDEL 2\n"
              "\tEND\n"
              "ENDIF\n");
}

TEST(PlanSymbolSizeRange, IsOneLine) {
    EXPECT_EQ(PlanSymbolSizeRange(), "VALUES \"mvPlanSymbolSize\" RANGE [0.5, 50]\n");
}

} // namespace
} // namespace Merivane::Photometry
