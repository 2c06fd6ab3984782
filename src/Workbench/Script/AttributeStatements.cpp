#include <algorithm>
#include <array>

#include "Host/Model3D.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::size_t MostDefinitions = 100'000; ///< of styles, and of materials

bool Pen(ScriptMachine& machine) {
    constexpr std::int32_t most = 255;
    std::int32_t pen = 0;
    if (!IntegerArgument(machine, 0, pen)) {
        return false;
    }
    if (pen < 1 || pen > most) {
        return Fail(machine, "a caneta " + std::to_string(pen) + " não existe: vão de 1 a 255");
    }
    machine.look.plan.pen = pen;
    return true;
}

/// A line type that nobody has is the solid one.
bool LineType(ScriptMachine& machine) {
    machine.look.plan.lineType =
        std::max(1, AttributeNumber(machine, ScriptAttribute::LineType, machine.arguments[0]));
    return true;
}

bool Fill(ScriptMachine& machine) {
    machine.look.plan.fill = AttributeNumber(machine, ScriptAttribute::Fill, machine.arguments[0]);
    return true;
}

bool Material(ScriptMachine& machine) {
    machine.look.material = MaterialNumber(machine, machine.arguments[0]);
    return true;
}

bool Style(ScriptMachine& machine) {
    const ScriptValue& name = machine.arguments[0];
    if (!name.isText) {
        machine.look.style = {};
        return true;
    }
    const auto style = machine.styles.find(name.text);
    if (style == machine.styles.end()) {
        return Fail(machine, "o estilo " + Text::QuotedText(name.text) + " não foi definido");
    }
    machine.look.style = style->second;
    return true;
}

/// Name, font, size [mm], anchor 1 to 9, face.
bool DefineStyle(ScriptMachine& machine) {
    if (!machine.arguments[0].isText || !machine.arguments[1].isText) {
        return Fail(machine, "o nome e a fonte do estilo são textos");
    }
    constexpr std::int32_t lastAnchor = 9;
    TextStyle style;
    style.font = machine.arguments[1].text;
    if (!NumberArgument(machine, 2, style.size) || !IntegerArgument(machine, 3, style.anchor) ||
        !IntegerArgument(machine, 4, style.face)) {
        return false;
    }
    if (!(style.size > 0.0)) {
        return Fail(machine, "o tamanho do estilo não é maior que 0");
    }
    if (style.anchor < 1 || style.anchor > lastAnchor) {
        return Fail(machine, "a âncora do estilo vai de 1 a 9");
    }
    if (machine.styles.size() >= MostDefinitions) {
        return Fail(machine, "estilos demais");
    }
    constexpr std::int32_t faces = 7;
    style.face = style.face < 0 ? 0 : style.face & faces;
    machine.styles[machine.arguments[0].text] = style;
    return CountText(machine, style.font.size() + machine.arguments[0].text.size());
}

/// Diffuse reflection and transparency of the materials that are told by colour alone: matte,
/// metal, plastic, glass, glowing, constant.
struct PlainMaterial {
    double diffuse;
    double transparency;
};

constexpr PlainMaterial PlainMaterials[] = {
    {1.0, 0.0}, {0.6, 0.0}, {0.9, 0.0}, {0.3, 0.8}, {1.0, 0.0}, {1.0, 0.0},
};

bool AddMaterial(ScriptMachine& machine, const std::string& name, Host::ModelSurface surface) {
    surface.name = name;
    surface.colour = {std::clamp(surface.colour.red, 0.0, 1.0),
                      std::clamp(surface.colour.green, 0.0, 1.0),
                      std::clamp(surface.colour.blue, 0.0, 1.0)};
    surface.diffuse = std::clamp(surface.diffuse, 0.0, 1.0);
    surface.transparency = std::clamp(surface.transparency, 0.0, 1.0);
    std::vector<Host::ModelSurface>& surfaces = machine.model.model.surfaces;
    if (surfaces.size() >= MostDefinitions) {
        return Fail(machine, "materiais demais");
    }
    machine.materials[name] = Host::FirstScriptSurface + static_cast<std::int32_t>(surfaces.size());
    surfaces.push_back(std::move(surface));
    return CountText(machine, 2 * name.size());
}

/// Of a definition on another one, what the arguments "gs_mat_... = value" change.
bool ChangeMaterial(ScriptMachine& machine, Host::ModelSurface& surface) {
    for (std::size_t i = 3; i + 1 < machine.argumentCount; i += 2) {
        const std::string& name = machine.arguments[i].text;
        double value = 0.0;
        double* const changed = name == "GS_MAT_SURFACE_R"   ? &surface.colour.red
                                : name == "GS_MAT_SURFACE_G" ? &surface.colour.green
                                : name == "GS_MAT_SURFACE_B" ? &surface.colour.blue
                                : name == "GS_MAT_DIFFUSE"   ? &surface.diffuse
                                : name == "GS_MAT_TRANSP"    ? &surface.transparency
                                                             : nullptr;
        if (changed == nullptr) {
            continue;
        }
        if (!NumberArgument(machine, i + 1, value)) {
            return false;
        }
        constexpr double percent = 100.0;
        *changed = changed == &surface.diffuse || changed == &surface.transparency ? value / percent
                                                                                   : value;
    }
    return true;
}

/// A material on another one. One on an attribute is that attribute under a new name: its colours
/// are not known here.
bool DefineMaterialOn(ScriptMachine& machine) {
    const std::string name = machine.arguments[0].text;
    const std::int32_t original = MaterialNumber(machine, machine.arguments[2]);
    if (machine.materials.size() >= MostDefinitions) {
        return Fail(machine, "materiais demais");
    }
    if (original < Host::FirstScriptSurface) {
        machine.materials[name] = original;
        return CountText(machine, name.size());
    }
    const auto place = static_cast<std::size_t>(original - Host::FirstScriptSurface);
    if (place >= machine.model.model.surfaces.size()) {
        return Fail(machine, "o material de origem não existe");
    }
    Host::ModelSurface surface = machine.model.model.surfaces[place];
    return ChangeMaterial(machine, surface) && AddMaterial(machine, name, std::move(surface));
}

/// Name, type, red, green, blue, then ambient, diffuse, specular, transparent … by the type.
bool DefineMaterial(ScriptMachine& machine) {
    if (!machine.arguments[0].isText) {
        return Fail(machine, "o nome do material é um texto");
    }
    if (IsWord(machine.arguments[1], "BASED_ON")) {
        return machine.argumentCount > 2 ? DefineMaterialOn(machine)
                                         : Fail(machine, "faltam argumentos");
    }
    std::int32_t type = 0;
    if (!IntegerArgument(machine, 1, type)) {
        return false;
    }
    constexpr std::int32_t withFill = 10;
    constexpr std::int32_t lastWithFill = 27;
    constexpr std::int32_t lastPlain = 7;
    const std::int32_t plain = type % withFill;
    if (type < 0 || type > lastWithFill || plain > lastPlain) {
        return Fail(machine, "o tipo de material " + std::to_string(type) + " não existe");
    }
    Host::ModelSurface surface;
    if (!NumberArgument(machine, 2, surface.colour.red) ||
        !NumberArgument(machine, 3, surface.colour.green) ||
        !NumberArgument(machine, 4, surface.colour.blue)) {
        return false;
    }
    constexpr std::size_t diffuse = 6;
    constexpr std::size_t transparency = 8;
    if (plain < 2) {
        if (machine.argumentCount <= transparency) {
            return Fail(machine, "faltam argumentos");
        }
        if (!NumberArgument(machine, diffuse, surface.diffuse) ||
            !NumberArgument(machine, transparency, surface.transparency)) {
            return false;
        }
    } else {
        const PlainMaterial& look = PlainMaterials[plain - 2];
        surface.diffuse = look.diffuse;
        surface.transparency = look.transparency;
    }
    const std::string name = machine.arguments[0].text;
    return AddMaterial(machine, name, std::move(surface));
}

bool Resolution(ScriptMachine& machine) {
    constexpr std::int32_t fewest = 3;
    constexpr std::int32_t most = 3600;
    std::int32_t segments = 0;
    if (!IntegerArgument(machine, 0, segments)) {
        return false;
    }
    machine.look.curves = {};
    machine.look.curves.segments = std::clamp(segments, fewest, most);
    return true;
}

bool Tolerance(ScriptMachine& machine) {
    double tolerance = 0.0;
    if (!NumberArgument(machine, 0, tolerance)) {
        return false;
    }
    machine.look.curves = {};
    machine.look.curves.tolerance = std::max(0.0, tolerance);
    return true;
}

bool Radius(ScriptMachine& machine) {
    double lowest = 0.0;
    double highest = 0.0;
    if (!NumberArgument(machine, 0, lowest) || !NumberArgument(machine, 1, highest)) {
        return false;
    }
    if (lowest < 0.0 || highest <= lowest) {
        return Fail(machine, "RADIUS leva um raio menor e um maior");
    }
    machine.look.curves = {};
    machine.look.curves.radiusLowest = lowest;
    machine.look.curves.radiusHighest = highest;
    return true;
}

bool Model(ScriptMachine& machine) {
    const ScriptValue& word = machine.arguments[0];
    if (IsWord(word, "WIRE")) {
        machine.look.detail = ModelLook::Detail::Wire;
    } else if (IsWord(word, "SURFACE")) {
        machine.look.detail = ModelLook::Detail::Surface;
    } else if (IsWord(word, "SOLID")) {
        machine.look.detail = ModelLook::Detail::Solid;
    } else {
        return Fail(machine, "MODEL leva WIRE, SURFACE ou SOLID");
    }
    return true;
}

bool DrawingOrder(ScriptMachine& machine) {
    constexpr std::int32_t step = 10;
    constexpr std::int32_t last = 50;
    std::int32_t index = 0;
    if (!IntegerArgument(machine, 0, index)) {
        return false;
    }
    if (index < step || index > last || index % step != 0) {
        return Fail(machine, "DRAWINDEX leva 10, 20, 30, 40 ou 50");
    }
    machine.look.plan.drawIndex = index;
    return true;
}

constexpr StatementShape Values = StatementShape::Values;
constexpr StatementShape Words = StatementShape::Words;
constexpr StatementShape Definition = StatementShape::Definition;
constexpr StatementScope All = StatementScope::All;

constexpr StatementEntry Entries[] = {
    {"PEN", 1, 1, Pen, Values, All, "1 to 255"},
    {"LINE_TYPE", 1, 1, LineType, Values, All, "by number or name; unknown names are solid"},
    {"FILL", 1, 1, Fill, Values, All, "by number or name; 0 and unknown names are empty"},
    {"MATERIAL", 1, 1, Material, Values, All,
     "by number or name; 0 is the pen's colour, below 0 the script's own"},
    {"STYLE", 1, 1, Style, Values, All, "a defined style; 0 is the ordinary one"},
    {"DEFINE STYLE", 5, 5, DefineStyle, Definition, All, "name, font, size in mm, anchor, face"},
    {"DEFINE STYLE{2}", 4, 4, nullptr, Definition, All, "accepted"},
    {"DEFINE MATERIAL", 3, -1, DefineMaterial, Definition, All,
     "colour, diffuse share and transparency are kept; BASED_ON too"},
    {"DEFINE TEXTURE", 6, 6, nullptr, Definition, All, "accepted: faces show their colour"},
    {"DEFINE FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE FILLA", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE SYMBOL_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE SOLID_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE EMPTY_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE LINEAR_GRADIENT_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE RADIAL_GRADIENT_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE TRANSLUCENT_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE IMAGE_FILL", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE LINE_TYPE", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"DEFINE SYMBOL_LINE", 1, -1, nullptr, StatementShape::Skipped, All, "accepted"},
    {"RESOL", 1, 1, Resolution, Values, All, "chords of a whole circle, 3 to 3600"},
    {"TOLER", 1, 1, Tolerance, Values, All, "of a chord from its arc [m]"},
    {"RADIUS", 2, 2, Radius, Values, All, "6 chords up to the first radius, 36 from the second"},
    {"MODEL", 1, 1, Model, Words, All, "WIRE, SURFACE or SOLID"},
    {"DRAWINDEX", 1, 1, DrawingOrder, Values, All, "10 to 50: what lies over what in plan"},
};

} // namespace

std::span<const StatementEntry> AttributeStatements() {
    return Entries;
}

} // namespace Merivane::Workbench
