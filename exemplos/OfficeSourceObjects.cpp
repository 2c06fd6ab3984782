#include "exemplos/OfficeSourceObjects.hpp"

#include <string_view>

namespace Merivane::Examples {

namespace {

constexpr std::string_view Surfaces =
    R"gdl(DEFINE MATERIAL "Difusor opalino" 1, 0.98, 0.97, 0.93, 0.7, 0.7, 0, 0, 0, 0
DEFINE MATERIAL "Chapa branca" 1, 0.92, 0.92, 0.92, 0.8, 0.8, 0, 0, 0, 0
)gdl";

// A recessed panel: a frame under the ceiling around its diffuser, the box above.
constexpr std::string_view PanelModel = R"gdl(aba = 0.02
ADD -A / 2, -B / 2, -0.005
MATERIAL "Chapa branca"
PRISM_ 10, 0.005,
	0, 0, 15,
	A, 0, 15,
	A, B, 15,
	0, B, 15,
	0, 0, -1,
	aba, aba, 15,
	A - aba, aba, 15,
	A - aba, B - aba, 15,
	aba, B - aba, 15,
	aba, aba, -1
ADD aba, aba, 0
CPRISM_ "Chapa branca", "Difusor opalino", "Chapa branca",
	4, 0.065,
	0, 0, 15,
	A - 2 * aba, 0, 15,
	A - 2 * aba, B - 2 * aba, 15,
	0, B - 2 * aba, 15
DEL 2
)gdl";

constexpr std::string_view PanelPlan = R"gdl(RECT2 -A / 2, -B / 2, A / 2, B / 2
RECT2 -A / 2 + 0.02, -B / 2 + 0.02, A / 2 - 0.02, B / 2 - 0.02
HOTSPOT2 -A / 2, -B / 2
HOTSPOT2 A / 2, -B / 2
HOTSPOT2 A / 2, B / 2
HOTSPOT2 -A / 2, B / 2
)gdl";

// A round recessed downlight: a ring under the ceiling, the can above.
constexpr std::string_view DownlightModel = R"gdl(RESOL 24
ADDZ -0.003
MATERIAL "Chapa branca"
PRISM_ 4, 0.003,
	0, 0, 915,
	A / 2, 360, 4015,
	0, 0, 915,
	A / 2 - 0.012, 360, 4015
CPRISM_ "Chapa branca", "Difusor opalino", "Chapa branca",
	2, 0.103,
	0, 0, 915,
	A / 2 - 0.012, 360, 4015
DEL 1
)gdl";

constexpr std::string_view DownlightPlan = R"gdl(CIRCLE2 0, 0, A / 2
CIRCLE2 0, 0, A / 2 - 0.012
FOR i = 0 TO 3
	HOTSPOT2 A / 2 * COS(90 * i), A / 2 * SIN(90 * i)
NEXT i
)gdl";

// A line of light: the profile's section, drawn out along X.
constexpr std::string_view LinearModel = R"gdl(ADD -A / 2, -B / 2, 0
CPRISM_ "Chapa branca", "Difusor opalino", "Chapa branca",
	4, 0.08,
	0, 0, 15,
	A, 0, 15,
	A, B, 15,
	0, B, 15
DEL 1
)gdl";

constexpr std::string_view LinearPlan = R"gdl(RECT2 -A / 2, -B / 2, A / 2, B / 2
LINE2 -A / 2, 0, A / 2, 0
HOTSPOT2 -A / 2, 0
HOTSPOT2 A / 2, 0
)gdl";

// A pendant: a slim box on two cables, which the modeller can shorten.
constexpr std::string_view PendantModel = R"gdl(ADD -A / 2, -B / 2, 0
CPRISM_ "Chapa branca", "Difusor opalino", "Chapa branca",
	4, 0.06,
	0, 0, 15,
	A, 0, 15,
	A, B, 15,
	0, B, 15
DEL 1
IF comprimentoCabo > 0 THEN
	LIN_ -A / 3, 0, 0.06, -A / 3, 0, 0.06 + comprimentoCabo
	LIN_ A / 3, 0, 0.06, A / 3, 0, 0.06 + comprimentoCabo
ENDIF
)gdl";

constexpr std::string_view PendantPlan = R"gdl(RECT2 -A / 2, -B / 2, A / 2, B / 2
CIRCLE2 -A / 3, 0, 0.015
CIRCLE2 A / 3, 0, 0.015
HOTSPOT2 -A / 2, 0
HOTSPOT2 A / 2, 0
)gdl";

// A wall washer: a box whose side towards the wall is marked in plan.
constexpr std::string_view WasherModel = R"gdl(ADD -A / 2, -B / 2, 0
CPRISM_ "Chapa branca", "Difusor opalino", "Chapa branca",
	4, 0.08,
	0, 0, 15,
	A, 0, 15,
	A, B, 15,
	0, B, 15
DEL 1
)gdl";

constexpr std::string_view WasherPlan = R"gdl(RECT2 -A / 2, -B / 2, A / 2, B / 2
POLY2 3, 5,
	-0.05, B / 2,
	0.05, B / 2,
	0, B / 2 + 0.06
HOTSPOT2 -A / 2, 0
HOTSPOT2 A / 2, 0
)gdl";

SourceObject Object(const char* name, double sizeA, double sizeB, std::string_view model,
                    std::string_view plan, double cable = 0.0) {
    return {name, sizeA, sizeB, cable, std::string(Surfaces).append(model), std::string(plan)};
}

} // namespace

std::vector<SourceLuminaire> OfficeSourceLuminaires() {
    return {
        {Object("Corpo painel 600", 0.6, 0.6, PanelModel, PanelPlan), "painel-antiofuscante-34.ies",
         0.0},
        {Object("Corpo redondo 170", 0.17, 0.17, DownlightModel, DownlightPlan), "downlight.ies",
         0.0},
        {Object("Corpo linear 1200", 1.2, 0.07, LinearModel, LinearPlan), "linear-asa.ies", 80.0},
        {Object("Corpo pendente 1500", 1.5, 0.1, PendantModel, PendantPlan, 0.4),
         "pendente-duplo.ies", 0.0},
        {Object("Corpo lavador 600", 0.6, 0.08, WasherModel, WasherPlan), "lavador.ies", 80.0},
    };
}

} // namespace Merivane::Examples
