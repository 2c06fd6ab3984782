#include "Gdl/PlanSymbolScript.hpp"

#include <string_view>

#include "Text/Number.hpp"

namespace Merivane::Photometry {

namespace {

// A representation of 3 in the model view's options is the model's own plan. The 5 of a polygon's
// frame is its contour, closed; 7 fills it too.
constexpr std::string_view SymbolText =
    R"gdl(! Simbolo tecnico no lugar da planta do modelo, quando a OVM pede simbolo de iluminacao.
mvSymbolShown = mvPlanSymbol
IF mvSymbolShown > 0 THEN
	mvMvoRep = 3
	mvMvoOk = LIBRARYGLOBAL ("Objects_MVOSettings", "iFixtureSymbol", mvMvoRep)
	IF mvMvoOk = 0 OR mvMvoRep = 3 THEN mvSymbolShown = 0
ENDIF
IF mvSymbolShown > 0 THEN
	PEN mvSymbolPen
	mvSymbolFrame = 5
	IF mvSymbolFill > 0 THEN
		SET FILL mvSymbolFill
		mvSymbolFrame = 7
	ENDIF
	mvSymbolScale = mvPlanSymbolSize * GLOB_SCALE / 2000
	ADD2 mvCenterX, mvCenterY
	MUL2 mvSymbolScale, mvSymbolScale
	HOTSPOT2 0, 0
	HOTSPOT2 1, 0
	HOTSPOT2 0, 1
	HOTSPOT2 -1, 0
	HOTSPOT2 0, -1
	mvRow = 1
	WHILE mvRow <= mvSymbolCount DO
		mvKind = mvSymbolData[mvRow][1]
		IF mvKind = 1 THEN LINE2 mvSymbolData[mvRow][2], mvSymbolData[mvRow][3], mvSymbolData[mvRow][4], mvSymbolData[mvRow][5]
		IF mvKind = 2 THEN CIRCLE2 mvSymbolData[mvRow][2], mvSymbolData[mvRow][3], mvSymbolData[mvRow][4]
		IF mvKind = 3 THEN ARC2 mvSymbolData[mvRow][2], mvSymbolData[mvRow][3], mvSymbolData[mvRow][4], mvSymbolData[mvRow][5], mvSymbolData[mvRow][6]
		IF mvKind = 4 THEN
			mvPoints = mvSymbolData[mvRow][2]
			FOR mvPoint = 1 TO mvPoints
				PUT mvSymbolData[mvRow + mvPoint][2], mvSymbolData[mvRow + mvPoint][3], 1
			NEXT mvPoint
			POLY2_B mvPoints, mvSymbolFrame, mvSymbolPen, 0, GET (NSP)
			mvRow = mvRow + mvPoints
		ENDIF
		mvRow = mvRow + 1
	ENDWHILE
	DEL 2
	END
ENDIF
)gdl";

} // namespace

std::string PlanSymbolSizeRange() {
    return "VALUES \"mvPlanSymbolSize\" RANGE [" + Text::FormatShortest(SmallestPlanSymbol) + ", " +
           Text::FormatShortest(LargestPlanSymbol) + "]\n";
}

std::string PlanSymbolScript2D() {
    return std::string(SymbolText);
}

} // namespace Merivane::Photometry
