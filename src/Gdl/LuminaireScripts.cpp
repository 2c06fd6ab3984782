#include "Gdl/LuminaireScripts.hpp"

#include <cstddef>

#include "Gdl/CircuitScript.hpp"
#include "Gdl/GeneratedBlock.hpp"
#include "Gdl/PlanSymbolScript.hpp"
#include "Gdl/ScriptLines.hpp"

namespace Merivane::Photometry {

namespace {

// The four transformations of the light's frame are those of LuminaireRotation, in its order, and
// they alone are taken back: the flange's depth goes on to lower the object's body.
constexpr std::string_view Block3D = R"gdl(PEN mvSymbolPen
! Aba abaixo do forro: o bloco inteiro desce, e a origem fica na face do forro.
ADDZ 0 - mvFlangeDepth
! Fonte de luz no centro fotometrico. A fotometria do calculo vem dos parametros mv*.
ADD mvCenterX, mvCenterY, mvCenterZ
ROTz mvTiltDirection
ROTy 0 - mvTiltAngle
ROTz mvC0Rotation - mvTiltDirection
IF mvLightOn THEN
	LIGHT 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0
ENDIF
IF mvShowPhotometry AND GLOB_VIEW_TYPE <> 2 THEN
	! Eixos pelo centro; seta em +X = direcao do C0; seta para baixo = nadir.
	LIN_ -0.10, 0, 0, 0.10, 0, 0
	LIN_ 0, -0.10, 0, 0, 0.10, 0
	LIN_ 0, 0, -0.10, 0, 0, 0.10
	LIN_ 0.10, 0, 0, 0.10 - 0.02, 0.012, 0
	LIN_ 0.10, 0, 0, 0.10 - 0.02, -0.012, 0
	LIN_ 0, 0, 0, 0, 0, -0.25
	LIN_ 0, 0, -0.25, 0.015, 0, -0.25 + 0.03
	LIN_ 0, 0, -0.25, -0.015, 0, -0.25 + 0.03
ENDIF
DEL 4
)gdl";

constexpr std::string_view CenterMark2D = R"gdl(PEN mvSymbolPen
! Centro fotometrico em planta e, com inclinacao, para onde o facho aponta.
ADD2 mvCenterX, mvCenterY
IF showAxis THEN
	CIRCLE2 0, 0, 0.015
	LINE2 -0.10, 0, 0.10, 0
	LINE2 0, -0.10, 0, 0.10
ENDIF
IF mvShowPhotometry THEN
	HOTSPOT2 0, 0
	IF mvTiltAngle > 0.01 THEN
		ROT2 mvTiltDirection
		LINE2 0, 0, 0.20, 0
		LINE2 0.20, 0, 0.20 - 0.03, 0.015
		LINE2 0.20, 0, 0.20 - 0.03, -0.015
		DEL 1
	ENDIF
ENDIF
DEL 1
)gdl";

constexpr std::string_view Limits = R"gdl(LOCK "mvLuminousFlux"
VALUES "mvDimming" RANGE [0, 1]
VALUES "mvMaintenanceFactor" RANGE (0, 1]
VALUES "mvCircuitSize" RANGE [0.5, 20]
)gdl";

constexpr std::size_t NamesOnALine = 8;

/// LF line ends.
std::string HideLines(const std::vector<std::string>& names) {
    std::string lines;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i % NamesOnALine == 0) {
            lines += i == 0 ? "HIDEPARAMETER " : "\nHIDEPARAMETER ";
        } else {
            lines += ", ";
        }
        lines += '"' + names[i] + '"';
    }
    return names.empty() ? lines : lines + '\n';
}

} // namespace

std::string Script3DWithBlock(std::string_view script) {
    return WithGeneratedBlock(WithCrLf(Block3D), script);
}

// The symbol comes last: it ends the script, and what stands before it is drawn with it.
std::string Script2DWithBlock(std::string_view script) {
    const std::string block = std::string(CenterMark2D) + CircuitScript2D() + PlanSymbolScript2D();
    return WithGeneratedBlock(WithCrLf(block), script);
}

std::string MasterScriptWithBlock(std::string_view script,
                                  const std::vector<std::string>& hiddenNames,
                                  std::string_view extraLines) {
    const std::string block = HideLines(hiddenNames) + std::string(Limits) + PlanSymbolSizeRange();
    return WithGeneratedBlock(WithCrLf(block).append(extraLines), script);
}

} // namespace Merivane::Photometry
