#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "Text/Ascii.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptFunctions.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// Functions that ask what is around the script, or what it holds itself.
namespace Merivane::Workbench {

namespace {

bool Give(FunctionCall& call, double number) {
    call.result = NumberValue(number);
    return true;
}

/// A value of the buffer, taken out or looked at: inside an expression just one.
bool OneOfBuffer(ScriptMachine& machine, FunctionCall& call, bool keep) {
    PartFrame& frame = *machine.frame;
    if (call.values[0].isText || std::round(call.values[0].number) != 1.0) {
        return Fail(machine, "GET e USE dão mais de um valor só em listas de argumentos");
    }
    const std::size_t before = machine.argumentCount;
    if (BufferSize(frame) == 0 || !SpreadBuffer(machine, call.values[0], keep)) {
        return Fail(machine, "GET e USE pedem mais valores do que PUT guardou (0)");
    }
    call.result = machine.arguments[before];
    machine.argumentCount = before;
    return true;
}

bool Get(ScriptMachine& machine, FunctionCall& call) {
    return OneOfBuffer(machine, call, false);
}

bool Use(ScriptMachine& machine, FunctionCall& call) {
    return OneOfBuffer(machine, call, true);
}

bool BufferCount(ScriptMachine& machine, FunctionCall& call) {
    return Give(call, static_cast<double>(BufferSize(*machine.frame)));
}

bool TransformCount(ScriptMachine& machine, FunctionCall& call) {
    return Give(call, static_cast<double>(machine.transforms.entries.size() -
                                          machine.frame->transformBase));
}

const ScriptVariable& TableAt(const ScriptMachine& machine, const FunctionCall& call) {
    return machine.frame->variables[static_cast<std::size_t>(call.places[0].variable)].table;
}

bool Rows(ScriptMachine& machine, FunctionCall& call) {
    return Give(call, static_cast<double>(TableAt(machine, call).rows));
}

bool Columns(ScriptMachine& machine, FunctionCall& call) {
    return Give(call, static_cast<double>(TableAt(machine, call).columns));
}

bool ValueType(ScriptMachine&, FunctionCall& call) {
    return Give(call, call.values[0].isText ? 2.0 : 1.0);
}

/// Number of an attribute or of a definition of the script: IND (FILL, "name").
bool AttributeIndex(ScriptMachine& machine, FunctionCall& call) {
    const std::string& kind = call.values[0].text;
    const ScriptValue& name = call.values[1];
    if (kind == "MATERIAL") {
        return Give(call, MaterialNumber(machine, name));
    }
    if (kind == "FILL" || kind == "LINE_TYPE") {
        return Give(call, AttributeNumber(machine,
                                          kind == "FILL" ? ScriptAttribute::Fill
                                                         : ScriptAttribute::LineType,
                                          name));
    }
    if (kind == "STYLE" || kind == "TEXTURE" || kind == "BUILDING_MATERIAL" || kind == "PROFILE") {
        return Give(call, 0.0);
    }
    return Fail(machine, "IND não conhece " + Text::QuotedText(kind));
}

/// (object, variable, place): 1 with the value in the place, 0 where there is none.
bool LibraryGlobal(ScriptMachine& machine, FunctionCall& call) {
    if (!call.values[0].isText || !call.values[1].isText) {
        return Fail(machine, "falta um texto, há um número");
    }
    const auto& ask = machine.environment->libraryGlobal;
    const std::optional<ScriptValue> answer =
        ask ? ask(call.values[0].text, call.values[1].text) : std::nullopt;
    return Give(call, answer ? 1.0 : 0.0) &&
           (!answer || WritePlace(machine, call.places[0], *answer));
}

/// (question, name, places): the number of values that the answer has.
bool Request(ScriptMachine& machine, FunctionCall& call) {
    if (!call.values[0].isText) {
        return Fail(machine, "falta um texto, há um número");
    }
    const auto& requests = machine.environment->requests;
    const auto answer = requests.find(Text::ToUpper(call.values[0].text));
    if (answer == requests.end()) {
        return Give(call, 0.0);
    }
    const std::size_t count = std::min(answer->second.size(), call.placeCount);
    for (std::size_t i = 0; i < count; ++i) {
        if (!WritePlace(machine, call.places[i], answer->second[i])) {
            return false;
        }
    }
    return Give(call, static_cast<double>(answer->second.size()));
}

bool ShortRequest(ScriptMachine& machine, FunctionCall& call) {
    if (!call.values[0].isText) {
        return Fail(machine, "falta um texto, há um número");
    }
    const auto& requests = machine.environment->requests;
    const auto answer = requests.find(Text::ToUpper(call.values[0].text));
    const bool told = answer != requests.end() && !answer->second.empty();
    call.result = told ? answer->second.front() : NumberValue(0.0);
    return true;
}

bool Nothing(ScriptMachine&, FunctionCall& call) {
    return Give(call, 0.0);
}

/// A file that can't be opened or read.
bool NoFile(ScriptMachine&, FunctionCall& call) {
    return Give(call, -1.0);
}

bool NoText(ScriptMachine&, FunctionCall& call) {
    call.result = TextValue("");
    return true;
}

/// The group that an argument names; null, with `failure` set, where there is none.
const ShapeGroup* GroupOf(ScriptMachine& machine, const ScriptValue& name) {
    const auto found = machine.groups.find(ShownValue(name));
    if (found == machine.groups.end()) {
        Fail(machine, "o grupo " + Text::QuotedText(ShownValue(name)) + " não existe");
        return nullptr;
    }
    return &found->second;
}

/// The second group as the forms with a material want it: (first, second, pen of the new edges,
/// material of the new faces, its colour, status). Without a material, and with bit 2 of the
/// status, new faces keep the look that they have in the second group.
ShapeGroup WithNewFaces(const ScriptMachine& machine, const FunctionCall& call, ShapeGroup group) {
    constexpr std::size_t material = 3;
    constexpr std::size_t status = 5;
    constexpr std::int32_t keepsLook = 2;
    const std::int32_t surface =
        call.valueCount > material ? MaterialNumber(machine, call.values[material]) : 0;
    const bool keeps =
        call.valueCount > status && (WholeNumber(call.values[status].number) & keepsLook) != 0;
    if (surface <= 0 || keeps) {
        return group;
    }
    for (FacedBody& body : group.bodies) {
        for (ContouredFace& face : body.faces) {
            face.surface = surface;
        }
    }
    return group;
}

bool CountGroup(ScriptMachine& machine, const ShapeGroup& group) {
    std::size_t vertices = 2 * group.wires.size();
    for (const FacedBody& body : group.bodies) {
        vertices += body.vertices.size();
        machine.shapes += body.faces.size();
    }
    return CountShape(machine, vertices);
}

/// Two groups as a new one.
bool MakeGroup(ScriptMachine& machine, FunctionCall& call, BodyOperation operation) {
    const ShapeGroup* const first = GroupOf(machine, call.values[0]);
    const ShapeGroup* const second = first == nullptr ? nullptr : GroupOf(machine, call.values[1]);
    if (second == nullptr) {
        return false;
    }
    constexpr std::size_t most = 10'000;
    if (machine.groups.size() >= most) {
        return Fail(machine, "grupos demais");
    }
    const bool hasNewFaces = operation != BodyOperation::Union;
    std::optional<ShapeGroup> made =
        CombineGroups(*first, hasNewFaces ? WithNewFaces(machine, call, *second) : *second,
                      operation, machine.model.solidBudget);
    if (!made) {
        return Fail(machine, SolidsTakeTooMuch);
    }
    if (!CountGroup(machine, *made)) {
        return false;
    }
    const std::string name = "#" + std::to_string(++machine.madeGroups);
    machine.groups[name] = std::move(*made);
    call.result = TextValue(name);
    return true;
}

bool AddGroups(ScriptMachine& machine, FunctionCall& call) {
    return MakeGroup(machine, call, BodyOperation::Union);
}

bool SubtractGroups(ScriptMachine& machine, FunctionCall& call) {
    return MakeGroup(machine, call, BodyOperation::Difference);
}

bool IntersectGroups(ScriptMachine& machine, FunctionCall& call) {
    return MakeGroup(machine, call, BodyOperation::Intersection);
}

constexpr std::int32_t Any = 1000;

constexpr FunctionEntry Entries[] = {
    {"GET", 1, 1, Get, -1, false, "values taken out of the parameter buffer"},
    {"USE", 1, 1, Use, -1, false, "the same, and they stay"},
    {"NSP", 0, 0, BufferCount, -1, false, "values in the parameter buffer"},
    {"NTR", 0, 0, TransformCount, -1, false, "transformations of this script"},
    {"VARDIM1", 1, 1, Rows, 0, false, "rows of a table, 0 for a plain variable"},
    {"VARDIM2", 1, 1, Columns, 0, false, "columns, 0 where it has one dimension"},
    {"VARTYPE", 1, 1, ValueType, -1, false, "1 number, 2 text"},
    {"IND", 2, 3, AttributeIndex, -1, true,
     "(MATERIAL, FILL or LINE_TYPE, name): the number; 0 for STYLE and TEXTURE"},
    {"LIBRARYGLOBAL", 3, 3, LibraryGlobal, 2, false,
     "(object, name, variable): 1 and the value, or 0"},
    {"REQUEST", 2, Any, Request, 2, false,
     "(question, name, variables): how many values the host answers with; 0 = none"},
    {"REQUEST{2}", 2, Any, Request, 3, false, "the same with one argument more"},
    {"REQUEST{3}", 2, Any, Request, 3, false, "the same"},
    {"REQ", 1, 1, ShortRequest, -1, false, "the first value of an answer"},
    {"APPLICATION_QUERY", 1, Any, Nothing, 2, false, "0: not answered"},
    {"TEXTBLOCK_INFO", 1, Any, Nothing, 1, false, "0: not answered"},
    {"PARVALUE_DESCRIPTION", 1, 2, NoText, 0, false, "an empty text"},
    {"OPEN", 1, Any, NoFile, -1, false, "-1: there are no files"},
    {"INPUT", 1, Any, NoFile, 3, false, "-1: there are no files"},
    {"ADDGROUP", 2, 2, AddGroups, -1, false, "both groups as one, bodies that meet united"},
    {"ADDGROUP{2}", 2, Any, AddGroups, -1, false, "the same"},
    {"ADDGROUP{3}", 2, Any, AddGroups, -1, false, "the same"},
    {"SUBGROUP", 2, 2, SubtractGroups, -1, false, "the first group less the second"},
    {"SUBGROUP{2}", 2, Any, SubtractGroups, -1, false, "the same, new faces of a material"},
    {"SUBGROUP{3}", 2, Any, SubtractGroups, -1, false, "the same"},
    {"ISECTGROUP", 2, 2, IntersectGroups, -1, false, "what two groups have in common"},
    {"ISECTGROUP{2}", 2, Any, IntersectGroups, -1, false,
     "the same, faces of the second of a material"},
    {"ISECTGROUP{3}", 2, Any, IntersectGroups, -1, false, "the same"},
};

} // namespace

std::span<const FunctionEntry> MachineFunctions() {
    return Entries;
}

} // namespace Merivane::Workbench
