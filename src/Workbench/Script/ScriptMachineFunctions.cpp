#include <algorithm>
#include <cmath>
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

/// Two groups as a new one. What a difference takes away and what an intersection leaves is not
/// worked out: the first group stands for both.
bool JoinGroups(ScriptMachine& machine, FunctionCall& call, bool both) {
    ShapeGroup joined;
    for (std::size_t i = 0; i < 2; ++i) {
        const auto found = machine.groups.find(ShownValue(call.values[i]));
        if (found == machine.groups.end()) {
            return Fail(machine,
                        "o grupo " + Text::QuotedText(ShownValue(call.values[i])) + " não existe");
        }
        const ShapeGroup& group = found->second;
        if (i > 0 && !both) {
            continue;
        }
        for (const FacedBody& body : group.bodies) {
            if (!CountShape(machine, body.vertices.size())) {
                return false;
            }
            joined.bodies.push_back(body);
        }
        if (!CountShape(machine, 2 * group.wires.size())) {
            return false;
        }
        joined.wires.insert(joined.wires.end(), group.wires.begin(), group.wires.end());
    }
    constexpr std::size_t most = 10'000;
    if (machine.groups.size() >= most) {
        return Fail(machine, "grupos demais");
    }
    const std::string name = "#" + std::to_string(machine.groups.size());
    machine.groups[name] = std::move(joined);
    call.result = TextValue(name);
    return true;
}

bool AddGroups(ScriptMachine& machine, FunctionCall& call) {
    return JoinGroups(machine, call, true);
}

bool FirstGroup(ScriptMachine& machine, FunctionCall& call) {
    return JoinGroups(machine, call, false);
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
    {"ADDGROUP", 2, 2, AddGroups, -1, false, "both groups as one"},
    {"ADDGROUP{2}", 2, Any, AddGroups, -1, false, "the same"},
    {"SUBGROUP", 2, 2, FirstGroup, -1, false, "the first group: nothing is taken away from it"},
    {"SUBGROUP{2}", 2, Any, FirstGroup, -1, false, "the same"},
    {"ISECTGROUP", 2, 2, FirstGroup, -1, false, "the first group whole"},
    {"ISECTGROUP{2}", 2, Any, FirstGroup, -1, false, "the same"},
};

} // namespace

std::span<const FunctionEntry> MachineFunctions() {
    return Entries;
}

} // namespace Merivane::Workbench
