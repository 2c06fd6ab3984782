#include <algorithm>
#include <utility>

#include "Text/Ascii.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// What scripts tell of their part's parameters. Names that the part does not have are passed over.
namespace Merivane::Workbench {

namespace {

/// The parameter's name as the part spells it, without an index that may stand behind it; empty
/// where the part has none of this name.
std::string SpelledName(const ScriptMachine& machine, const std::string& name) {
    const std::size_t bracket = std::min(name.find('['), name.size());
    std::string upper = Text::ToUpper(Text::Trim(std::string_view{name}.substr(0, bracket)));
    if (upper == "A" || upper == "B") {
        return upper;
    }
    for (const Host::LibraryParameter& parameter : machine.frame->part->parameters) {
        if (Text::ToUpper(parameter.name) == upper) {
            return parameter.name;
        }
    }
    return {};
}

/// Counts the search for so many names among the part's parameters.
bool ChargeNames(ScriptMachine& machine, std::size_t names) {
    constexpr std::size_t namesInAStatement = 4;
    const std::size_t parameters = machine.frame->part->parameters.size();
    return Charge(machine, names * parameters / namesInAStatement);
}

void AddName(std::vector<std::string>& names, const std::string& name) {
    if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
        names.push_back(name);
    }
}

/// The parameters that stand behind one as its children.
void AddChildren(const ScriptMachine& machine, std::vector<std::string>& names,
                 const std::string& name) {
    bool below = false;
    for (const Host::LibraryParameter& parameter : machine.frame->part->parameters) {
        const bool child = (parameter.flags & Host::ParameterChild) != 0;
        if (below && child) {
            AddName(names, parameter.name);
        }
        below = parameter.name == name || (below && child);
    }
}

/// The parameters that the arguments name, or with ALL those that they do not name.
bool ReadNames(ScriptMachine& machine, std::vector<std::string>& told) {
    const bool all = IsWord(machine.arguments[0], "ALL");
    std::vector<std::string> names;
    if (!ChargeNames(machine, machine.argumentCount)) {
        return false;
    }
    for (std::size_t i = all ? 1 : 0; i < machine.argumentCount; ++i) {
        if (!machine.arguments[i].isText) {
            return Fail(machine, "os nomes dos parâmetros são textos");
        }
        AddName(names, SpelledName(machine, machine.arguments[i].text));
    }
    if (!all) {
        told = std::move(names);
        return true;
    }
    for (const Host::LibraryParameter& parameter : machine.frame->part->parameters) {
        if (std::find(names.begin(), names.end(), parameter.name) == names.end()) {
            told.push_back(parameter.name);
        }
    }
    return true;
}

/// Only the part that is asked for tells rules: a macro's parameters are its own.
bool IsAsked(const ScriptMachine& machine) {
    return machine.kind == ScriptKind::Parameter && machine.outermost == machine.frame;
}

bool Lock(ScriptMachine& machine) {
    std::vector<std::string> names;
    if (!ReadNames(machine, names)) {
        return false;
    }
    for (const std::string& name : names) {
        if (IsAsked(machine)) {
            AddName(machine.rules.locked, name);
        }
    }
    return true;
}

bool Hide(ScriptMachine& machine) {
    const bool all = IsWord(machine.arguments[0], "ALL");
    std::vector<std::string> names;
    if (!ReadNames(machine, names)) {
        return false;
    }
    for (const std::string& name : names) {
        if (IsAsked(machine)) {
            AddName(machine.rules.hidden, name);
            if (!all) {
                AddChildren(machine, machine.rules.hidden, name);
            }
        }
    }
    return true;
}

bool IsAnyWord(const ScriptValue& argument) {
    return argument.isText && argument.number != 0.0;
}

/// A limit of RANGE; none where it is left out.
bool ReadLimit(ScriptMachine& machine, std::size_t place, std::optional<double>& limit) {
    if (IsWord(machine.arguments[place], "")) {
        return true;
    }
    double number = 0.0;
    if (!NumberArgument(machine, place, number)) {
        return false;
    }
    limit = number;
    return true;
}

/// RANGE: word, bracket, limit, limit, bracket, and STEP with two numbers.
bool ReadRange(ScriptMachine& machine, std::size_t& place, ParameterRange& range) {
    const std::size_t lowest = place + 2;
    const std::size_t highest = place + 3;
    range.lowestIncluded = IsWord(machine.arguments[place + 1], "[");
    range.highestIncluded = IsWord(machine.arguments[place + 4], "[");
    if (!ReadLimit(machine, lowest, range.lowest) || !ReadLimit(machine, highest, range.highest)) {
        return false;
    }
    place += 5;
    if (place < machine.argumentCount && IsWord(machine.arguments[place], "STEP")) {
        if (!ReadLimit(machine, place + 1, range.stepStart) ||
            !ReadLimit(machine, place + 2, range.step)) {
            return false;
        }
        place += 3;
    }
    return true;
}

/// Values, ranges and words behind the parameter's name.
bool ReadValues(ScriptMachine& machine, ParameterValues& values) {
    std::size_t place = 1;
    while (place < machine.argumentCount) {
        const ScriptValue& argument = machine.arguments[place];
        if (IsWord(argument, "RANGE")) {
            if (!ReadRange(machine, place, values.ranges.emplace_back())) {
                return false;
            }
        } else if (IsWord(argument, "CUSTOM")) {
            values.allowsOthers = true;
            ++place;
        } else if (IsAnyWord(argument)) {
            // The kinds of fills or profiles that a list offers.
            place += 2;
        } else {
            values.values.push_back(argument.isText ? TextValue(argument.text)
                                                    : NumberValue(argument.number));
            ++place;
        }
    }
    return true;
}

bool KeepValues(ScriptMachine& machine, ParameterValues values) {
    constexpr std::size_t most = 10'000;
    if (values.values.size() + values.ranges.size() > most) {
        return Fail(machine, "valores demais para um parâmetro");
    }
    if (!ChargeNames(machine, 1)) {
        return false;
    }
    const std::string name = SpelledName(machine, machine.arguments[0].text);
    if (IsAsked(machine) && !name.empty()) {
        machine.rules.values[name] = std::move(values);
    }
    return true;
}

bool Values1(ScriptMachine& machine) {
    ParameterValues values;
    if (!machine.arguments[0].isText) {
        return Fail(machine, "o nome do parâmetro é um texto");
    }
    return ReadValues(machine, values) && KeepValues(machine, std::move(values));
}

bool IsPaired(const std::vector<ScriptValue>& values, std::size_t value, std::size_t text) {
    return !values[value].isText && values[text].isText;
}

/// VALUES{2}: numbers and their texts in turn, or a table of numbers before a table of texts.
bool PairValues(ScriptMachine& machine, ParameterValues& values) {
    const std::vector<ScriptValue> all = std::exchange(values.values, {});
    const std::size_t half = all.size() / 2;
    if (all.size() % 2 != 0) {
        return Fail(machine, "VALUES{2} leva um número e um texto de cada vez");
    }
    const bool tables = half > 1 && IsPaired(all, 0, half) && !all[1].isText;
    for (std::size_t i = 0; i < half; ++i) {
        const std::size_t value = tables ? i : 2 * i;
        const std::size_t text = tables ? half + i : 2 * i + 1;
        if (!IsPaired(all, value, text)) {
            return Fail(machine, "VALUES{2} leva um número e um texto de cada vez");
        }
        values.values.push_back(all[value]);
        values.texts.push_back(all[text].text);
    }
    return true;
}

bool Values2(ScriptMachine& machine) {
    ParameterValues values;
    if (!machine.arguments[0].isText) {
        return Fail(machine, "o nome do parâmetro é um texto");
    }
    return ReadValues(machine, values) && PairValues(machine, values) &&
           KeepValues(machine, std::move(values));
}

const VariablePlace* PlaceOfArgument(const ScriptMachine& machine, std::size_t argument) {
    for (const PlacedArgument& placed : machine.places) {
        if (placed.argument == argument) {
            return &placed.place;
        }
    }
    return nullptr;
}

/// The value behind a name of PARAMETERS: a variable whole, a place of a table, or a value.
bool GivenValue(ScriptMachine& machine, std::size_t argument, ScriptVariable& value) {
    const VariablePlace* place = PlaceOfArgument(machine, argument);
    if (place != nullptr) {
        value = VariableOf(machine.frame->variables[static_cast<std::size_t>(place->variable)]);
        return Charge(machine, value.values.size());
    }
    const ScriptValue& given = machine.arguments[argument];
    value.values = {given.isText ? TextValue(given.text) : NumberValue(given.number)};
    return true;
}

/// Sets one place of a table parameter, the others as they are.
bool AssignPlace(ScriptMachine& machine, const VariablePlace& place, const std::string& name,
                 const ScriptValue& value) {
    const auto [entry, isNew] = machine.rules.assigned.try_emplace(name);
    ScriptVariable& table = entry->second;
    if (isNew) {
        table = VariableOf(machine.frame->variables[static_cast<std::size_t>(place.variable)]);
    }
    const std::size_t width = std::max<std::size_t>(1, table.columns);
    const std::int64_t column = std::max<std::int64_t>(1, place.column);
    const auto row = static_cast<std::size_t>(place.row - 1);
    if (!table.isArray || row >= table.rows || static_cast<std::size_t>(column) > width) {
        return Fail(machine, PlaceName(machine, place) + " fica fora da tabela");
    }
    table.values[row * width + static_cast<std::size_t>(column - 1)] = value;
    return true;
}

bool Parameters(ScriptMachine& machine) {
    for (std::size_t i = 0; i + 1 < machine.argumentCount; i += 2) {
        const VariablePlace place = *PlaceOfArgument(machine, i);
        const std::string& named =
            machine.frame->programs->symbols.names[static_cast<std::size_t>(place.variable)];
        const std::string name = SpelledName(machine, named);
        ScriptVariable value;
        if (!GivenValue(machine, i + 1, value) || !ChargeNames(machine, 1)) {
            return false;
        }
        if (name.empty() || !IsAsked(machine)) {
            continue;
        }
        if (place.row == 0) {
            machine.rules.assigned[name] = std::move(value);
        } else if (value.isArray || value.values.empty()) {
            return Fail(machine, "uma tabela não cabe em um lugar de outra");
        } else if (!AssignPlace(machine, place, name, value.values.front())) {
            return false;
        }
    }
    return true;
}

constexpr StatementShape Words = StatementShape::Words;
constexpr StatementScope All = StatementScope::All;

constexpr StatementEntry Entries[] = {
    {"VALUES", 1, -1, Values1, StatementShape::ParameterValues, All,
     "values, RANGE with STEP, CUSTOM; FILLTYPES_MASK and PROFILETYPES_MASK are not read"},
    {"VALUES{2}", 1, -1, Values2, StatementShape::ParameterValues, All,
     "numbers with their texts, in turn or as two tables"},
    {"LOCK", 1, -1, Lock, Words, All, "parameters by name, or ALL but the named ones"},
    {"HIDEPARAMETER", 1, -1, Hide, Words, All, "the same; a parameter's children go with it"},
    {"PARAMETERS", 2, -1, Parameters, StatementShape::ParameterList, All,
     "name = value, in force from the next run"},
};

constexpr StatementShape Skipped = StatementShape::Skipped;

constexpr StatementEntry QuietEntries[] = {
    {"PRINT", 0, -1, nullptr, Skipped, All, "accepted"},
    {"ASSERT", 0, -1, nullptr, Skipped, All, "accepted"},
    {"BREAKPOINT", 0, -1, nullptr, Skipped, All, "accepted"},
    {"FILE_DEPENDENCE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"INITADDONSCOPE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"PREPAREFUNCTION", 0, -1, nullptr, Skipped, All, "accepted"},
    {"CALLFUNCTION", 0, -1, nullptr, Skipped, All, "accepted"},
    {"CLOSEADDONSCOPE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"OUTPUT", 0, -1, nullptr, Skipped, All, "accepted: there are no files"},
    {"CLOSE", 0, -1, nullptr, Skipped, All, "accepted: there are no files"},
    {"PARAGRAPH", 1, -1, nullptr, Skipped, All, "accepted up to ENDPARAGRAPH, not drawn"},
    {"TEXTBLOCK", 0, -1, nullptr, Skipped, All, "accepted"},
    {"TEXTBLOCK_", 0, -1, nullptr, Skipped, All, "accepted"},
    {"RICHTEXT", 0, -1, nullptr, Skipped, All, "accepted, not drawn"},
    {"LINE_PROPERTY", 0, -1, nullptr, Skipped, All, "accepted"},
    {"HOTLINE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"HOTARC", 0, -1, nullptr, Skipped, All, "accepted"},
    {"BINARY", 0, -1, nullptr, Skipped, All, "accepted, not drawn"},
    {"BINARYPROP", 0, -1, nullptr, Skipped, All, "accepted"},
    {"COMPONENT", 0, -1, nullptr, Skipped, All, "accepted"},
    {"DESCRIPTOR", 0, -1, nullptr, Skipped, All, "accepted"},
    {"REF", 0, -1, nullptr, Skipped, All, "accepted"},
    {"SURFACE3D", 0, -1, nullptr, Skipped, All, "accepted"},
    {"VOLUME3D", 0, -1, nullptr, Skipped, All, "accepted"},
    {"DRAWING", 0, -1, nullptr, Skipped, All, "accepted"},
    {"DRAWING2", 0, -1, nullptr, Skipped, All, "accepted, not drawn"},
    {"DRAWING3", 0, -1, nullptr, Skipped, All, "accepted, not drawn"},
    {"WALLHOLE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"WALLHOLE2", 0, -1, nullptr, Skipped, All, "accepted"},
    {"WALLNICHE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"WALLLINE2", 0, -1, nullptr, Skipped, All, "accepted"},
    {"WALLBLOCK2", 0, -1, nullptr, Skipped, All, "accepted"},
    {"VARDIM", 0, -1, nullptr, Skipped, All, "accepted"},
    {"NURBS", 0, -1, nullptr, Skipped, All, "accepted, not drawn"},
    {"PICTURE", 4, 4, nullptr, Skipped, All, "accepted, not drawn"},
    {"UI_DIALOG", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_PAGE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_CURRENT_PAGE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_BUTTON", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_GROUPBOX", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_SEPARATOR", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_PICT", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_STYLE", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_OUTFIELD", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_INFIELD", 0, -1, nullptr, Skipped, All, "accepted"},
    {"UI_RADIOBUTTON", 0, -1, nullptr, Skipped, All, "accepted"},
};

} // namespace

std::span<const StatementEntry> ParameterStatements() {
    return Entries;
}

std::span<const StatementEntry> QuietStatements() {
    return QuietEntries;
}

} // namespace Merivane::Workbench
