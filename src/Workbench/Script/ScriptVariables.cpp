#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "Workbench/Script/ScriptMachine.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// Variables, tables and the parameter buffer. What they hold is counted against the limits.
namespace Merivane::Workbench {

namespace {

RunningVariable& VariableAt(ScriptMachine& machine, std::int32_t variable) {
    return machine.frame->variables[static_cast<std::size_t>(variable)];
}

bool CountValues(ScriptMachine& machine, std::size_t more) {
    machine.values += more;
    machine.frame->valueCount += more;
    return machine.values <= machine.environment->limits.values ||
           Fail(machine, "o script guarda valores demais em tabelas");
}

void ReleaseValues(ScriptMachine& machine, std::size_t fewer) {
    machine.values -= fewer;
    machine.frame->valueCount -= fewer;
}

bool Store(ScriptMachine& machine, const ScriptValue& from, ScriptValue& to) {
    const std::size_t before = to.text.size();
    to.isText = from.isText;
    to.number = from.isText ? 0.0 : from.number;
    if (from.isText) {
        to.text = from.text;
    } else {
        to.text.clear();
    }
    if (before > SmallText) {
        machine.storedText -= std::min(machine.storedText, before);
    }
    return CountText(machine, to.text.size());
}

/// An index as a whole number from 1 up.
bool ReadIndex(ScriptMachine& machine, const ScriptValue& value, std::int64_t& index) {
    constexpr double largest = 1e9;
    if (value.isText || !(std::abs(value.number) <= largest)) {
        return Fail(machine, "um índice é um número inteiro a partir de 1");
    }
    index = std::llround(value.number);
    return index >= 1 || Fail(machine, "um índice é um número inteiro a partir de 1");
}

bool RefusePlace(ScriptMachine& machine, const VariablePlace& place) {
    return Fail(machine, PlaceName(machine, place) + " fica fora da tabela");
}

/// A table of one row or column may be indexed either way. Rows and columns of the place as the
/// table has them, from 0.
struct TablePlace {
    std::size_t row = 0;
    std::size_t column = 0;
};

TablePlace PlaceInTable(const ScriptVariable& table, const VariablePlace& place) {
    const auto row = static_cast<std::size_t>(place.row - 1);
    if (place.column > 0) {
        return {row, static_cast<std::size_t>(place.column - 1)};
    }
    const bool oneRow = table.rows == 1 && table.columns > 1;
    return oneRow ? TablePlace{0, row} : TablePlace{row, 0};
}

std::size_t Width(const ScriptVariable& table) {
    return std::max<std::size_t>(1, table.columns);
}

/// Makes a growing table as large as the place needs.
bool Grow(ScriptMachine& machine, ScriptVariable& table, const TablePlace& place, bool plane) {
    const std::size_t rows = std::max(table.rows, place.row + 1);
    const std::size_t oldWidth = Width(table);
    const std::size_t width = std::max(oldWidth, place.column + 1);
    // Both are at most 1e9, so their product fits.
    if (rows * width > machine.environment->limits.values) {
        return Fail(machine, "o script guarda valores demais em tabelas");
    }
    if (!CountValues(machine, rows * width - table.values.size())) {
        return false;
    }
    if (width != oldWidth && !table.values.empty()) {
        std::vector<ScriptValue> values(rows * width);
        for (std::size_t i = 0; i < table.values.size(); ++i) {
            values[i / oldWidth * width + i % oldWidth] = std::move(table.values[i]);
        }
        table.values = std::move(values);
        if (!Charge(machine, table.values.size())) {
            return false;
        }
    } else {
        table.values.resize(rows * width);
    }
    table.rows = rows;
    table.columns = plane ? width : table.columns;
    return true;
}

bool FitsTable(const ScriptVariable& table, const VariablePlace& place) {
    if (place.column > 1 && table.columns == 0 && !(table.isDynamic && table.values.empty())) {
        return false;
    }
    return true;
}

} // namespace

std::string PlaceName(const ScriptMachine& machine, const VariablePlace& place) {
    std::string name =
        machine.frame->programs->symbols.names[static_cast<std::size_t>(place.variable)];
    if (place.row > 0) {
        name += "[" + std::to_string(place.row) + "]";
    }
    if (place.column > 0) {
        name += "[" + std::to_string(place.column) + "]";
    }
    return name;
}

bool MakePlace(ScriptMachine& machine, std::int32_t variable, const ScriptValue* indices,
               std::size_t indexCount, VariablePlace& place) {
    place = {variable};
    return (indexCount < 1 || ReadIndex(machine, indices[0], place.row)) &&
           (indexCount < 2 || ReadIndex(machine, indices[1], place.column));
}

bool ReadElement(ScriptMachine& machine, std::int32_t variable, const ScriptValue* indices,
                 std::size_t indexCount, ScriptValue& value) {
    VariablePlace place;
    if (!MakePlace(machine, variable, indices, indexCount, place)) {
        return false;
    }
    const ScriptVariable& table = VariableAt(machine, variable).table;
    if (!table.isArray) {
        return Fail(machine, PlaceName(machine, {variable}) + " não é uma tabela");
    }
    const TablePlace inTable = PlaceInTable(table, place);
    if (inTable.row >= table.rows || inTable.column >= Width(table)) {
        return RefusePlace(machine, place);
    }
    value = table.values[inTable.row * Width(table) + inTable.column];
    return true;
}

bool WritePlace(ScriptMachine& machine, const VariablePlace& place, const ScriptValue& value) {
    RunningVariable& variable = VariableAt(machine, place.variable);
    ScriptVariable& table = variable.table;
    if (place.row == 0) {
        if (table.isArray) {
            ReleaseValues(machine, table.values.size());
            table = {};
        }
        return Store(machine, value, variable.value);
    }
    if (!table.isArray) {
        return Fail(machine, PlaceName(machine, {place.variable}) + " não é uma tabela");
    }
    if (!FitsTable(table, place)) {
        return RefusePlace(machine, place);
    }
    const TablePlace inTable = PlaceInTable(table, place);
    if (inTable.row >= table.rows || inTable.column >= Width(table)) {
        if (!table.isDynamic) {
            return RefusePlace(machine, place);
        }
        if (!Grow(machine, table, inTable, place.column > 0)) {
            return false;
        }
    }
    return Store(machine, value, table.values[inTable.row * Width(table) + inTable.column]);
}

bool DimensionTable(ScriptMachine& machine, std::int32_t variable, bool dynamic, std::size_t rows,
                    std::size_t columns) {
    RunningVariable& to = VariableAt(machine, variable);
    ReleaseValues(machine, to.table.values.size());
    to = {};
    to.table.isArray = true;
    to.table.isDynamic = dynamic;
    to.table.rows = rows;
    to.table.columns = columns;
    const std::size_t count = rows * std::max<std::size_t>(1, columns);
    if (!CountValues(machine, count) || !Charge(machine, count)) {
        return false;
    }
    to.table.values.resize(count);
    return true;
}

bool CopyTable(ScriptMachine& machine, const ScriptVariable& from, RunningVariable& to) {
    if (&from == &to.table) {
        return true;
    }
    ReleaseValues(machine, to.table.values.size());
    to = {};
    if (!CountValues(machine, from.values.size()) || !Charge(machine, from.values.size())) {
        return false;
    }
    std::size_t bytes = 0;
    for (const ScriptValue& value : from.values) {
        bytes += value.text.size();
    }
    to.table = from;
    return CountText(machine, bytes);
}

ScriptVariable VariableOf(const RunningVariable& variable) {
    if (variable.table.isArray) {
        return variable.table;
    }
    ScriptVariable one;
    one.values = {variable.value};
    return one;
}

std::size_t BufferSize(const PartFrame& frame) {
    return frame.buffer.size() - frame.bufferBegin;
}

bool SpreadBuffer(ScriptMachine& machine, const ScriptValue& count, bool keep) {
    PartFrame& frame = *machine.frame;
    const double wanted = count.isText ? -1.0 : std::round(count.number);
    if (!(wanted >= 0.0) || wanted > static_cast<double>(BufferSize(frame))) {
        return Fail(machine, "GET e USE pedem mais valores do que PUT guardou (" +
                                 std::to_string(BufferSize(frame)) + ")");
    }
    const auto taken = static_cast<std::size_t>(wanted);
    if (machine.argumentCount + taken > machine.environment->limits.values) {
        return Fail(machine, "argumentos demais");
    }
    if (!Charge(machine, taken / 2)) {
        return false;
    }
    machine.arguments.resize(std::max(machine.arguments.size(), machine.argumentCount + taken));
    for (std::size_t i = 0; i < taken; ++i) {
        machine.arguments[machine.argumentCount++] = frame.buffer[frame.bufferBegin + i];
    }
    if (!keep) {
        frame.bufferBegin += taken;
        ReleaseValues(machine, taken);
        if (frame.bufferBegin == frame.buffer.size()) {
            frame.buffer.clear();
            frame.bufferBegin = 0;
        }
    }
    return true;
}

bool PutArguments(ScriptMachine& machine) {
    PartFrame& frame = *machine.frame;
    // Values that were taken out are dropped once they are the larger half.
    if (frame.bufferBegin > BufferSize(frame)) {
        frame.buffer.erase(frame.buffer.begin(),
                           frame.buffer.begin() + static_cast<std::ptrdiff_t>(frame.bufferBegin));
        frame.bufferBegin = 0;
    }
    if (!CountValues(machine, machine.argumentCount)) {
        return false;
    }
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < machine.argumentCount; ++i) {
        const ScriptValue& value = machine.arguments[i];
        frame.buffer.push_back(value.isText ? TextValue(value.text) : NumberValue(value.number));
        bytes += frame.buffer.back().text.size();
    }
    return CountText(machine, bytes);
}

} // namespace Merivane::Workbench
