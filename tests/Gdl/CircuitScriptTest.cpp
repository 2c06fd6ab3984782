#include "Gdl/CircuitScript.hpp"

#include <gtest/gtest.h>

namespace Merivane::Photometry {
namespace {

TEST(CircuitScript2D, WritesAnUprightTextThatHotspotsMove) {
    EXPECT_EQ(CircuitScript2D(),
              "! Circuito: texto em pe na planta, movido pelo ponto quente.\n"
              "IF mvCircuit <> \"\" THEN\n"
              "\tDEFINE STYLE \"mvCircuitStyle\" \"Arial\", mvCircuitSize, 5, 0\n"
              "\tSET STYLE \"mvCircuitStyle\"\n"
              "\tPEN mvCircuitPen\n"
              "\tmvCircuitMirror = 1\n"
              "\tIF SYMB_MIRRORED THEN mvCircuitMirror = -1\n"
              "\tADD2 mvCircuitX, mvCircuitY\n"
              "\tMUL2 mvCircuitMirror, 1\n"
              "\tROT2 0 - SYMB_ROTANGLE\n"
              "\tTEXT2 0, 0, mvCircuit\n"
              "\tDEL 3\n"
              "\tPEN mvSymbolPen\n"
              "\tHOTSPOT2 0, mvCircuitY, 19001, mvCircuitX, 1 + 128\n"
              "\tHOTSPOT2 -1, mvCircuitY, 19002, mvCircuitX, 3\n"
              "\tHOTSPOT2 mvCircuitX, mvCircuitY, 19003, mvCircuitX, 2\n"
              "\tHOTSPOT2 mvCircuitX, 0, 19004, mvCircuitY, 1 + 128\n"
              "\tHOTSPOT2 mvCircuitX, -1, 19005, mvCircuitY, 3\n"
              "\tHOTSPOT2 mvCircuitX, mvCircuitY, 19006, mvCircuitY, 2\n"
              "ENDIF\n");
}

TEST(Hotspot2Line, SeparatesItsPartsByCommas) {
    EXPECT_EQ(Hotspot2Line("A / 2", "-1", 7, "B", "4 + 256"),
              "\tHOTSPOT2 A / 2, -1, 7, B, 4 + 256\n");
}

} // namespace
} // namespace Merivane::Photometry
