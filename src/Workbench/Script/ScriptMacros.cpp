#include <utility>

#include "Text/Ascii.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptGlobals.hpp"
#include "Workbench/Script/ScriptMachine.hpp"

// Macros: other parts whose scripts run inside a script, in its frame and with its attributes.
namespace Merivane::Workbench {

namespace {

const ScriptArgument& ArgumentAt(const ScriptProgram& program, const Instruction& instruction,
                                 std::int32_t place) {
    return program.arguments[static_cast<std::size_t>(instruction.firstArgument) +
                             static_cast<std::size_t>(place)];
}

/// The macro's name: a text, the text that a variable holds, or the word itself.
std::string MacroName(const ScriptMachine& machine, const ScriptProgram& program,
                      const ScriptArgument& argument) {
    if (argument.kind == ArgumentKind::Word) {
        return program.texts[static_cast<std::size_t>(argument.index)];
    }
    const RunningVariable& variable =
        machine.frame->variables[static_cast<std::size_t>(argument.index)];
    return variable.value.isText
               ? variable.value.text
               : machine.frame->programs->symbols.names[static_cast<std::size_t>(argument.index)];
}

/// A value handed over to a macro: a table whole.
bool HandOver(ScriptMachine& machine, const ScriptProgram& program, const ScriptArgument& argument,
              ScriptVariable& to) {
    if (argument.kind == ArgumentKind::Variable) {
        to = VariableOf(machine.frame->variables[static_cast<std::size_t>(argument.index)]);
        return Charge(machine, to.values.size());
    }
    ScriptValue value;
    if (!Evaluate(machine, program, argument, value)) {
        return false;
    }
    to.values = {value.isText ? TextValue(value.text) : NumberValue(value.number)};
    return true;
}

/// ALL: every parameter that both parts have, as the caller's variable stands now.
bool HandOverAll(ScriptMachine& machine, const PartFrame& caller, PartFrame& macro) {
    for (const auto& [name, own] : macro.programs->parameters) {
        const ScriptVariable* value = FindParameter(caller, name);
        if (value == nullptr) {
            continue;
        }
        const auto variable = caller.programs->symbols.places.find(name);
        macro.given[name] =
            variable == caller.programs->symbols.places.end()
                ? *value
                : VariableOf(caller.variables[static_cast<std::size_t>(variable->second)]);
        if (!Charge(machine, macro.given[name].values.size() / 4)) {
            return false;
        }
    }
    return true;
}

bool HandOverNamed(ScriptMachine& machine, const ScriptProgram& program,
                   const Instruction& instruction, PartFrame& macro) {
    const std::int32_t end = instruction.argumentCount - instruction.other;
    for (std::int32_t i = 1; i + 1 < end; i += 2) {
        const ScriptArgument& name = ArgumentAt(program, instruction, i);
        ScriptVariable value;
        if (!HandOver(machine, program, ArgumentAt(program, instruction, i + 1), value)) {
            return false;
        }
        macro.given[program.texts[static_cast<std::size_t>(name.index)]] = std::move(value);
    }
    return true;
}

/// RETURNED_PARAMETERS, in the order of the values that the macro's END told.
bool TakeReturned(ScriptMachine& machine, const ScriptProgram& program,
                  const Instruction& instruction, const PartFrame& macro) {
    const std::int32_t first = instruction.argumentCount - instruction.other;
    for (std::int32_t i = 0; i < instruction.other; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (place >= macro.returned.size()) {
            return true;
        }
        VariablePlace to;
        if (!EvaluatePlace(machine, program, ArgumentAt(program, instruction, first + i), to) ||
            !WritePlace(machine, to, macro.returned[place])) {
            return false;
        }
    }
    return true;
}

/// Runs the macro; its transformations, cuts and attributes end with it.
bool RunMacro(ScriptMachine& machine, PartFrame& macro) {
    const ScriptLook look = machine.look;
    const std::size_t entries = machine.transforms.entries.size();
    const std::vector<OpenCut> cuts = machine.openCuts;
    const std::vector<CuttingPlane> planes = machine.model.cuts;
    const auto forms = machine.model.forms;
    ++machine.depth;
    const bool ran = RunPart(machine, macro);
    --machine.depth;
    if (ran) {
        EraseTransforms(machine.transforms, entries, machine.transforms.entries.size() - entries);
        if (machine.kind == ScriptKind::Model) {
            CloseOpenBody(machine.model);
        }
        machine.openCuts = cuts;
        machine.model.cuts = planes;
        machine.model.forms = forms;
        machine.look = look;
    }
    return ran;
}

} // namespace

const PartPrograms& ProgramsOf(ScriptMachine& machine, const ScriptPart& part) {
    std::unique_ptr<PartPrograms>& programs = machine.programs[&part];
    if (programs == nullptr) {
        programs = std::make_unique<PartPrograms>();
        programs->parameters = BuildParameterMap(part);
        programs->master = ParseScript(part.master, programs->symbols);
        const std::string& script = machine.kind == ScriptKind::Plan    ? part.plan
                                    : machine.kind == ScriptKind::Model ? part.model
                                                                        : part.parameter;
        programs->script = ParseScript(script, programs->symbols);
    }
    return *programs;
}

bool CallMacro(ScriptMachine& machine, const ScriptProgram& program,
               const Instruction& instruction) {
    const ScriptEnvironment& environment = *machine.environment;
    const std::string name = MacroName(machine, program, ArgumentAt(program, instruction, 0));
    const ScriptPart* part = environment.findMacro ? environment.findMacro(name) : nullptr;
    if (part == nullptr) {
        return Fail(machine, "a macro " + Text::QuotedText(name) + " não está nas bibliotecas");
    }
    if (machine.depth >= environment.limits.depth) {
        return Fail(machine, "sub-rotinas e macros demais, uma dentro da outra");
    }
    PartFrame macro;
    macro.part = part;
    macro.programs = &ProgramsOf(machine, *part);
    // The macro's variables are made anew each time.
    if (!Charge(machine,
                macro.programs->parameters.size() + macro.programs->symbols.names.size())) {
        return false;
    }
    if (instruction.flag && !HandOverAll(machine, *machine.frame, macro)) {
        return false;
    }
    return HandOverNamed(machine, program, instruction, macro) && RunMacro(machine, macro) &&
           TakeReturned(machine, program, instruction, macro);
}

} // namespace Merivane::Workbench
