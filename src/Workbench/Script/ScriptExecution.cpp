#include <algorithm>
#include <cmath>
#include <utility>

#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptGlobals.hpp"
#include "Workbench/Script/ScriptMachine.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

/// A program at work. `next` is the instruction to carry out.
struct Execution {
    ScriptMachine& machine;
    const ScriptProgram& program;
    std::size_t next = 0;
};

const ScriptArgument& ArgumentAt(const Execution& run, const Instruction& instruction,
                                 std::int32_t place) {
    return run.program.arguments[static_cast<std::size_t>(instruction.firstArgument) +
                                 static_cast<std::size_t>(place)];
}

RunningVariable& VariableAt(const Execution& run, std::int32_t variable) {
    return run.machine.frame->variables[static_cast<std::size_t>(variable)];
}

bool EvaluateAt(Execution& run, const Instruction& instruction, std::int32_t place,
                ScriptValue& value) {
    return Evaluate(run.machine, run.program, ArgumentAt(run, instruction, place), value);
}

bool Assign(Execution& run, const Instruction& instruction) {
    const ScriptArgument& from = ArgumentAt(run, instruction, 0);
    if (from.kind == ArgumentKind::Variable) {
        const ScriptVariable& table = VariableAt(run, from.index).table;
        if (table.isArray) {
            return CopyTable(run.machine, table, VariableAt(run, instruction.target));
        }
    }
    RunningVariable& to = VariableAt(run, instruction.target);
    ScriptValue value;
    if (!Evaluate(run.machine, run.program, from, value)) {
        return false;
    }
    if (!value.isText && !to.value.isText && !to.table.isArray) {
        to.value.number = value.number;
        return true;
    }
    return WritePlace(run.machine, {instruction.target}, value);
}

bool AssignElement(Execution& run, const Instruction& instruction) {
    ScriptValue value;
    if (!EvaluateAt(run, instruction, 0, value)) {
        return false;
    }
    VariablePlace place;
    return EvaluatePlace(run.machine, run.program, ArgumentAt(run, instruction, 1), place) &&
           WritePlace(run.machine, place, value);
}

bool JumpUnless(Execution& run, const Instruction& instruction) {
    ScriptValue condition;
    if (!EvaluateAt(run, instruction, 0, condition)) {
        return false;
    }
    if (condition.isText) {
        return Fail(run.machine, "a condição é um texto");
    }
    if (condition.number == 0.0) {
        run.next = static_cast<std::size_t>(instruction.target);
    }
    return true;
}

/// To the instruction that a jump leads to, by its label where that is worked out.
bool JumpToLabel(Execution& run, const Instruction& instruction) {
    if (instruction.target >= 0) {
        run.next = static_cast<std::size_t>(instruction.target);
        return true;
    }
    ScriptValue label;
    if (!EvaluateAt(run, instruction, 0, label)) {
        return false;
    }
    const auto found = run.program.labels.find(LabelName(label));
    if (found == run.program.labels.end()) {
        return Fail(run.machine, "o rótulo " + Text::QuotedText(ShownValue(label)) + " não existe");
    }
    run.next = static_cast<std::size_t>(found->second);
    return true;
}

bool Deepen(ScriptMachine& machine) {
    if (machine.depth >= machine.environment->limits.depth) {
        return Fail(machine, "sub-rotinas e macros demais, uma dentro da outra");
    }
    ++machine.depth;
    return true;
}

bool Gosub(Execution& run, const Instruction& instruction) {
    const auto back = static_cast<std::int32_t>(run.next);
    if (!Deepen(run.machine) || !JumpToLabel(run, instruction)) {
        return false;
    }
    run.machine.frame->returns.push_back(back);
    return true;
}

bool Return(Execution& run) {
    std::vector<std::int32_t>& returns = run.machine.frame->returns;
    if (returns.empty()) {
        return Fail(run.machine, "RETURN sem GOSUB");
    }
    run.next = static_cast<std::size_t>(returns.back());
    returns.pop_back();
    --run.machine.depth;
    return true;
}

bool End(Execution& run, const Instruction& instruction) {
    ScriptMachine& machine = run.machine;
    if (!EvaluateArguments(machine, run.program, instruction)) {
        return false;
    }
    machine.frame->returned.assign(machine.arguments.begin(),
                                   machine.arguments.begin() +
                                       static_cast<std::ptrdiff_t>(machine.argumentCount));
    machine.frame->ended = true;
    return true;
}

bool IsNumber(const RunningVariable& variable) {
    return !variable.table.isArray && !variable.value.isText;
}

bool ForTest(Execution& run, const Instruction& instruction) {
    const RunningVariable& counter = VariableAt(run, instruction.variable);
    const RunningVariable& limit = VariableAt(run, instruction.other);
    const RunningVariable& step = VariableAt(run, instruction.other + 1);
    if (!IsNumber(counter) || !IsNumber(limit) || !IsNumber(step)) {
        return Fail(run.machine, "FOR conta com números");
    }
    const bool over = step.value.number >= 0.0 ? counter.value.number > limit.value.number
                                               : counter.value.number < limit.value.number;
    if (over) {
        run.next = static_cast<std::size_t>(instruction.target);
    }
    return true;
}

bool ForNext(Execution& run, const Instruction& instruction) {
    RunningVariable& counter = VariableAt(run, instruction.variable);
    if (!IsNumber(counter)) {
        return Fail(run.machine, "FOR conta com números");
    }
    counter.value.number += VariableAt(run, instruction.other + 1).value.number;
    run.next = static_cast<std::size_t>(instruction.target);
    return std::isfinite(counter.value.number) || Fail(run.machine, "o resultado é grande demais");
}

/// DIM with its sizes; a size that is left out makes the table grow.
bool Dimension(Execution& run, const Instruction& instruction) {
    constexpr double largest = 1e9;
    std::size_t sizes[2] = {0, 0};
    for (std::int32_t i = 0; i < instruction.argumentCount; ++i) {
        ScriptValue size;
        if (!EvaluateAt(run, instruction, i, size)) {
            return false;
        }
        if (size.isText || !(size.number >= 1.0) || !(size.number <= largest)) {
            return Fail(run.machine, "o tamanho de uma tabela é um número inteiro a partir de 1");
        }
        sizes[i] = static_cast<std::size_t>(std::llround(size.number));
    }
    const bool dynamic = instruction.argumentCount < instruction.other;
    if (sizes[0] * std::max<std::size_t>(1, sizes[1]) > run.machine.environment->limits.values) {
        return Fail(run.machine, "o script guarda valores demais em tabelas");
    }
    return DimensionTable(run.machine, instruction.target, dynamic, dynamic ? 0 : sizes[0],
                          dynamic ? 0 : sizes[1]);
}

const char* KindWord(ScriptKind kind) {
    return kind == ScriptKind::Plan ? "2D" : "3D";
}

bool RunStatement(Execution& run, const Instruction& instruction) {
    ScriptMachine& machine = run.machine;
    const StatementEntry& entry = StatementAt(instruction.target);
    if (entry.run == nullptr) {
        return true;
    }
    if (entry.scope != StatementScope::All) {
        const ScriptKind kind =
            entry.scope == StatementScope::Plan ? ScriptKind::Plan : ScriptKind::Model;
        if (machine.current == ScriptKind::Master && machine.kind != kind) {
            return true;
        }
        if (machine.kind != kind) {
            return Fail(machine, std::string("só vale no script ") + KindWord(kind));
        }
    }
    if (!EvaluateArguments(machine, run.program, instruction)) {
        return false;
    }
    const auto count = static_cast<std::int64_t>(machine.argumentCount);
    if (count < entry.least) {
        return Fail(machine, "faltam argumentos");
    }
    if (entry.most >= 0 && count > entry.most) {
        return Fail(machine, "há argumentos demais");
    }
    return entry.run(machine);
}

bool RunShape(Execution& run, const Instruction& instruction) {
    ScriptMachine& machine = run.machine;
    if (machine.kind != ScriptKind::Model) {
        return machine.current == ScriptKind::Master || Fail(machine, "só vale no script 3D");
    }
    if (!EvaluateArguments(machine, run.program, instruction)) {
        return false;
    }
    return BuildShapeStatement(machine,
                               run.program.texts[static_cast<std::size_t>(instruction.word)]);
}

bool Step(Execution& run, const Instruction& instruction) {
    switch (instruction.kind) {
    case InstructionKind::Assign:
        return Assign(run, instruction);
    case InstructionKind::AssignElement:
        return AssignElement(run, instruction);
    case InstructionKind::Jump:
        run.next = static_cast<std::size_t>(instruction.target);
        return true;
    case InstructionKind::JumpUnless:
        return JumpUnless(run, instruction);
    case InstructionKind::Goto:
        return JumpToLabel(run, instruction);
    case InstructionKind::Gosub:
        return Gosub(run, instruction);
    case InstructionKind::Return:
        return Return(run);
    case InstructionKind::End:
        return End(run, instruction);
    case InstructionKind::ForTest:
        return ForTest(run, instruction);
    case InstructionKind::ForNext:
        return ForNext(run, instruction);
    case InstructionKind::Dimension:
        return Dimension(run, instruction);
    case InstructionKind::Put:
        return EvaluateArguments(run.machine, run.program, instruction) &&
               PutArguments(run.machine);
    case InstructionKind::Statement:
        return RunStatement(run, instruction);
    case InstructionKind::Shape:
        return RunShape(run, instruction);
    case InstructionKind::CallMacro:
        return CallMacro(run.machine, run.program, instruction);
    case InstructionKind::Unknown:
        return Fail(run.machine, "a instrução não existe");
    }
    return true;
}

/// Notes where the script stopped, unless a macro inside has told it.
bool TellError(ScriptMachine& machine, std::int32_t line, const std::string& statement) {
    if (machine.error.explanation.empty()) {
        machine.error = {machine.frame->part->name, machine.current, line, statement,
                         machine.failure};
    }
    return false;
}

bool RunProgram(ScriptMachine& machine, const ScriptProgram& program, ScriptKind kind) {
    machine.current = kind;
    if (!program.error.empty()) {
        machine.failure = program.error;
        return TellError(machine, program.errorLine, program.errorStatement);
    }
    Execution run{machine, program};
    const std::size_t base = machine.frame->returns.size();
    while (run.next < program.instructions.size() && !machine.frame->ended) {
        const Instruction& instruction = program.instructions[run.next++];
        if (!Charge(machine, 1) || !Step(run, instruction)) {
            return TellError(machine, instruction.line,
                             program.texts[static_cast<std::size_t>(instruction.word)]);
        }
    }
    // A subroutine that was left by the script's end.
    machine.depth -= static_cast<std::int32_t>(machine.frame->returns.size() - base);
    machine.frame->returns.resize(base);
    return true;
}

/// A parameter of the part, a global, or 0.
bool InitialiseVariables(ScriptMachine& machine, PartFrame& frame) {
    const SymbolTable& symbols = frame.programs->symbols;
    frame.variables.assign(symbols.names.size(), {});
    for (const auto& [name, place] : symbols.places) {
        RunningVariable& variable = frame.variables[static_cast<std::size_t>(place)];
        const ScriptVariable* value = FindParameter(frame, name);
        if (value == nullptr) {
            variable.value = GlobalValue(*machine.environment, machine.kind, name);
        } else if (value->isArray) {
            if (!CopyTable(machine, *value, variable)) {
                return TellError(machine, 1, "");
            }
        } else if (!value->values.empty()) {
            variable.value = value->values.front();
        }
    }
    return true;
}

} // namespace

bool RunPart(ScriptMachine& machine, PartFrame& frame) {
    PartFrame* const caller = machine.frame;
    const ScriptKind callerScript = machine.current;
    machine.frame = &frame;
    machine.current = ScriptKind::Master;
    frame.transformBase = machine.transforms.entries.size();
    bool ran = InitialiseVariables(machine, frame) &&
               RunProgram(machine, frame.programs->master, ScriptKind::Master);
    if (ran && !frame.ended) {
        ran = RunProgram(machine, frame.programs->script, machine.kind);
    }
    machine.values -= frame.valueCount;
    machine.frame = caller;
    machine.current = callerScript;
    return ran;
}

} // namespace Merivane::Workbench
