#include <algorithm>
#include <cmath>
#include <utility>

#include "Workbench/Script/ScriptFunctions.hpp"
#include "Workbench/Script/ScriptMachine.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// Postfix operations on a stack whose cells are reused: a number is written without touching the
// text that the cell held before, which is why `isText` alone tells what a cell holds.
namespace Merivane::Workbench {

namespace {

constexpr std::size_t TextPiece = 64; ///< bytes of text whose handling counts as a statement

struct Evaluation {
    ScriptMachine& machine;
    const ScriptProgram& program;
    std::size_t top = 0;
};

ScriptValue& Push(Evaluation& run) {
    std::vector<ScriptValue>& stack = run.machine.stack;
    if (run.top == stack.size()) {
        stack.resize(stack.size() + stack.size() / 2 + 16);
    }
    return stack[run.top++];
}

void SetNumber(ScriptValue& cell, double number) {
    cell.isText = false;
    cell.number = number;
}

void SetText(ScriptValue& cell, const std::string& text) {
    cell.isText = true;
    cell.number = 0.0;
    cell.text = text;
}

void SetCell(ScriptValue& cell, const ScriptValue& value) {
    if (value.isText) {
        SetText(cell, value.text);
    } else {
        SetNumber(cell, value.number);
    }
}

bool SetResult(Evaluation& run, ScriptValue& cell, double number) {
    if (!std::isfinite(number)) {
        return Fail(run.machine, "o resultado é grande demais");
    }
    SetNumber(cell, number);
    return true;
}

bool Join(Evaluation& run, ScriptValue& left, const ScriptValue& right) {
    const std::size_t size = left.text.size() + right.text.size();
    if (size > run.machine.environment->limits.textBytes) {
        return Fail(run.machine, "o texto fica longo demais");
    }
    left.text += right.text;
    return Charge(run.machine, size / TextPiece);
}

double Compare(const ScriptValue& left, const ScriptValue& right) {
    return left.isText ? left.text.compare(right.text)
                       : (left.number < right.number ? -1.0 : left.number > right.number);
}

bool Truth(OperationCode code, double order) {
    switch (code) {
    case OperationCode::Equal:
        return order == 0.0;
    case OperationCode::NotEqual:
        return order != 0.0;
    case OperationCode::Less:
        return order < 0.0;
    case OperationCode::Greater:
        return order > 0.0;
    case OperationCode::LessOrEqual:
        return order <= 0.0;
    default:
        return order >= 0.0;
    }
}

bool IsComparison(OperationCode code) {
    return code >= OperationCode::Equal && code <= OperationCode::GreaterOrEqual;
}

bool Divide(Evaluation& run, ScriptValue& left, double right, bool modulo) {
    if (right == 0.0) {
        return Fail(run.machine, "divisão por zero");
    }
    const double quotient = left.number / right;
    return SetResult(run, left, modulo ? left.number - right * std::floor(quotient) : quotient);
}

bool Calculate(Evaluation& run, OperationCode code, ScriptValue& left, double right) {
    const double number = left.number;
    switch (code) {
    case OperationCode::Power:
        return SetResult(run, left, std::pow(number, right));
    case OperationCode::Multiply:
        return SetResult(run, left, number * right);
    case OperationCode::Divide:
        return Divide(run, left, right, false);
    case OperationCode::Modulo:
        return Divide(run, left, right, true);
    case OperationCode::Add:
        return SetResult(run, left, number + right);
    case OperationCode::Subtract:
        return SetResult(run, left, number - right);
    case OperationCode::And:
        SetNumber(left, number != 0.0 && right != 0.0 ? 1.0 : 0.0);
        return true;
    case OperationCode::Or:
        SetNumber(left, number != 0.0 || right != 0.0 ? 1.0 : 0.0);
        return true;
    default:
        SetNumber(left, (number != 0.0) != (right != 0.0) ? 1.0 : 0.0);
        return true;
    }
}

bool Binary(Evaluation& run, OperationCode code) {
    ScriptValue& right = run.machine.stack[run.top - 1];
    ScriptValue& left = run.machine.stack[run.top - 2];
    --run.top;
    if (left.isText != right.isText) {
        return Fail(run.machine, "um texto e um número não se combinam");
    }
    if (IsComparison(code)) {
        SetNumber(left, Truth(code, Compare(left, right)) ? 1.0 : 0.0);
        return true;
    }
    if (!left.isText) {
        return Calculate(run, code, left, right.number);
    }
    return code == OperationCode::Add ? Join(run, left, right)
                                      : Fail(run.machine, "falta um número, há um texto");
}

bool Negate(Evaluation& run) {
    ScriptValue& cell = run.machine.stack[run.top - 1];
    if (cell.isText) {
        return Fail(run.machine, "falta um número, há um texto");
    }
    cell.number = -cell.number;
    return true;
}

bool Load(Evaluation& run, std::int32_t variable) {
    const RunningVariable& from = run.machine.frame->variables[static_cast<std::size_t>(variable)];
    if (from.table.isArray) {
        return Fail(run.machine, "falta o índice da tabela " + PlaceName(run.machine, {variable}));
    }
    SetCell(Push(run), from.value);
    return !from.value.isText || Charge(run.machine, from.value.text.size() / TextPiece);
}

bool LoadElement(Evaluation& run, const Operation& operation) {
    run.top -= operation.count;
    const ScriptValue* indices = &run.machine.stack[run.top];
    ScriptValue value;
    if (!ReadElement(run.machine, operation.index, indices, operation.count, value)) {
        return false;
    }
    SetCell(Push(run), value);
    return true;
}

bool PushPlace(Evaluation& run, const Operation& operation) {
    run.top -= operation.count;
    VariablePlace place;
    const ScriptValue* indices = run.machine.stack.data() + run.top;
    if (!MakePlace(run.machine, operation.index, indices, operation.count, place)) {
        return false;
    }
    run.machine.stackPlaces.push_back(place);
    return true;
}

bool CallFunction(Evaluation& run, const Operation& operation) {
    const FunctionEntry& function = FunctionAt(operation.index);
    FunctionCall call;
    call.valueCount = operation.count;
    if (function.placesFrom >= 0 && operation.count > function.placesFrom) {
        call.valueCount = static_cast<std::size_t>(function.placesFrom);
        call.placeCount = operation.count - call.valueCount;
    }
    run.top -= call.valueCount;
    std::vector<VariablePlace>& places = run.machine.stackPlaces;
    const std::vector<VariablePlace> own(
        places.end() - static_cast<std::ptrdiff_t>(call.placeCount), places.end());
    places.resize(places.size() - call.placeCount);
    call.places = own.data();
    call.values = run.machine.stack.data() + run.top;
    if (!function.run(run.machine, call)) {
        return false;
    }
    ScriptValue& cell = Push(run);
    SetCell(cell, call.result);
    return !cell.isText || Charge(run.machine, cell.text.size() / TextPiece);
}

bool Step(Evaluation& run, const Operation& operation) {
    switch (operation.code) {
    case OperationCode::Number:
        SetNumber(Push(run), operation.number);
        return true;
    case OperationCode::Text:
        SetText(Push(run), run.program.texts[static_cast<std::size_t>(operation.index)]);
        return true;
    case OperationCode::Load:
        return Load(run, operation.index);
    case OperationCode::Element:
        return LoadElement(run, operation);
    case OperationCode::Reference:
        return PushPlace(run, operation);
    case OperationCode::Negate:
        return Negate(run);
    case OperationCode::Call:
        return CallFunction(run, operation);
    default:
        return Binary(run, operation.code);
    }
}

/// The operations that an argument spans; what they leave is at the stack's bottom.
bool RunOperations(ScriptMachine& machine, const ScriptProgram& program,
                   const ScriptArgument& argument) {
    Evaluation run{machine, program};
    machine.stackPlaces.clear();
    for (std::int32_t i = argument.begin; i < argument.end; ++i) {
        if (!Step(run, program.operations[static_cast<std::size_t>(i)])) {
            return false;
        }
    }
    return true;
}

ScriptValue& NextArgument(ScriptMachine& machine) {
    if (machine.argumentCount == machine.arguments.size()) {
        machine.arguments.resize(machine.argumentCount + machine.argumentCount / 2 + 16);
    }
    return machine.arguments[machine.argumentCount++];
}

bool AddTableArguments(ScriptMachine& machine, std::int32_t variable) {
    const RunningVariable& from = machine.frame->variables[static_cast<std::size_t>(variable)];
    if (!from.table.isArray) {
        SetCell(NextArgument(machine), from.value);
        return true;
    }
    const std::size_t count = machine.argumentCount + from.table.values.size();
    if (count > machine.environment->limits.values) {
        return Fail(machine, "argumentos demais");
    }
    for (const ScriptValue& value : from.table.values) {
        SetCell(NextArgument(machine), value);
    }
    return Charge(machine, from.table.values.size());
}

bool AddPlaceArgument(ScriptMachine& machine, const ScriptProgram& program,
                      const ScriptArgument& argument) {
    VariablePlace place;
    if (!EvaluatePlace(machine, program, argument, place)) {
        return false;
    }
    machine.places.push_back({machine.argumentCount, place});
    SetText(NextArgument(machine), PlaceName(machine, place));
    return true;
}

bool EvaluateArgument(ScriptMachine& machine, const ScriptProgram& program,
                      const ScriptArgument& argument) {
    switch (argument.kind) {
    case ArgumentKind::Value:
        if (!RunOperations(machine, program, argument)) {
            return false;
        }
        SetCell(NextArgument(machine), machine.stack.front());
        return true;
    case ArgumentKind::TakenOut:
    case ArgumentKind::Used: {
        if (!RunOperations(machine, program, argument)) {
            return false;
        }
        const ScriptValue count = machine.stack.front();
        return SpreadBuffer(machine, count, argument.kind == ArgumentKind::Used);
    }
    case ArgumentKind::Variable:
        return AddTableArguments(machine, argument.index);
    case ArgumentKind::Place:
        return AddPlaceArgument(machine, program, argument);
    case ArgumentKind::Word: {
        ScriptValue& word = NextArgument(machine);
        SetText(word, program.texts[static_cast<std::size_t>(argument.index)]);
        word.number = 1.0;
        return true;
    }
    }
    return true;
}

} // namespace

bool Fail(ScriptMachine& machine, std::string explanation) {
    machine.failure = std::move(explanation);
    return false;
}

bool Charge(ScriptMachine& machine, std::size_t work) {
    machine.statements += static_cast<std::int64_t>(work);
    return machine.statements <= machine.environment->limits.statements ||
           Fail(machine, "o script executa instruções demais");
}

bool IsWord(const ScriptValue& argument, std::string_view word) {
    return argument.isText && argument.number != 0.0 && argument.text == word;
}

bool Evaluate(ScriptMachine& machine, const ScriptProgram& program, const ScriptArgument& argument,
              ScriptValue& value) {
    if (!RunOperations(machine, program, argument)) {
        return false;
    }
    SetCell(value, machine.stack.front());
    return true;
}

bool EvaluatePlace(ScriptMachine& machine, const ScriptProgram& program,
                   const ScriptArgument& argument, VariablePlace& place) {
    if (!RunOperations(machine, program, argument)) {
        return false;
    }
    place = machine.stackPlaces.back();
    return true;
}

bool EvaluateArguments(ScriptMachine& machine, const ScriptProgram& program,
                       const Instruction& instruction) {
    machine.argumentCount = 0;
    machine.places.clear();
    const std::int32_t end = instruction.firstArgument + instruction.argumentCount;
    for (std::int32_t i = instruction.firstArgument; i < end; ++i) {
        if (!EvaluateArgument(machine, program, program.arguments[static_cast<std::size_t>(i)])) {
            return false;
        }
    }
    constexpr std::size_t argumentsPerStatement = 4;
    return Charge(machine, machine.argumentCount / argumentsPerStatement);
}

} // namespace Merivane::Workbench
