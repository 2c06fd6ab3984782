#include "Gdl/CircuitScript.hpp"

namespace Merivane::Photometry {

namespace {

// The mirror is undone first, then the turn: what is left is the sheet's own frame.
constexpr std::string_view CircuitText =
    R"gdl(! Circuito: texto em pe na planta, movido pelo ponto quente.
IF mvCircuit <> "" THEN
	DEFINE STYLE "mvCircuitStyle" "Arial", mvCircuitSize, 5, 0
	SET STYLE "mvCircuitStyle"
	PEN mvCircuitPen
	mvCircuitMirror = 1
	IF SYMB_MIRRORED THEN mvCircuitMirror = -1
	ADD2 mvCircuitX, mvCircuitY
	MUL2 mvCircuitMirror, 1
	ROT2 0 - SYMB_ROTANGLE
	TEXT2 0, 0, mvCircuit
	DEL 3
	PEN mvSymbolPen
)gdl";

// A moving length takes three hotspots: its base, a reference on the line's other side, and the
// one that the user takes hold of.
constexpr std::string_view HiddenBase = "1 + 128";
constexpr std::string_view Moving = "2";
constexpr std::string_view Reference = "3";

constexpr std::string_view CircuitX = "mvCircuitX";
constexpr std::string_view CircuitY = "mvCircuitY";

} // namespace

std::string CircuitScript2D() {
    std::string script(CircuitText);
    script += Hotspot2Line("0", CircuitY, 19001, CircuitX, HiddenBase);
    script += Hotspot2Line("-1", CircuitY, 19002, CircuitX, Reference);
    script += Hotspot2Line(CircuitX, CircuitY, 19003, CircuitX, Moving);
    script += Hotspot2Line(CircuitX, "0", 19004, CircuitY, HiddenBase);
    script += Hotspot2Line(CircuitX, "-1", 19005, CircuitY, Reference);
    script += Hotspot2Line(CircuitX, CircuitY, 19006, CircuitY, Moving);
    return script += "ENDIF\n";
}

std::string Hotspot2Line(std::string_view x, std::string_view y, int id, std::string_view parameter,
                         std::string_view flags) {
    std::string line = "\tHOTSPOT2 ";
    line.append(x).append(", ").append(y).append(", ").append(std::to_string(id));
    return line.append(", ").append(parameter).append(", ").append(flags).append("\n");
}

} // namespace Merivane::Photometry
