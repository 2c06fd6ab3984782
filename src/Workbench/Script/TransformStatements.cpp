#include <algorithm>
#include <cmath>

#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

bool Push(ScriptMachine& machine, const ScriptFrame& entry) {
    constexpr std::size_t most = 100'000;
    if (machine.transforms.entries.size() >= most) {
        return Fail(machine, "transformações demais");
    }
    return PushTransform(machine.transforms, entry) ||
           Fail(machine, "as transformações levam longe demais");
}

double At(const ScriptMachine& machine, std::size_t place) {
    return machine.arguments[place].number;
}

template <int Axis> bool MoveAlong(ScriptMachine& machine) {
    const double by = At(machine, 0);
    return AllNumbers(machine) &&
           Push(machine,
                MoveFrame(Axis == 0 ? by : 0.0, Axis == 1 ? by : 0.0, Axis == 2 ? by : 0.0));
}

template <int Axis> bool ScaleAlong(ScriptMachine& machine) {
    const double by = At(machine, 0);
    return AllNumbers(machine) &&
           Push(machine,
                ScaleFrame(Axis == 0 ? by : 1.0, Axis == 1 ? by : 1.0, Axis == 2 ? by : 1.0));
}

template <int Axis> bool TurnAround(ScriptMachine& machine) {
    return AllNumbers(machine) &&
           Push(machine, TurnFrame(Axis == 0 ? 1.0 : 0.0, Axis == 1 ? 1.0 : 0.0,
                                   Axis == 2 ? 1.0 : 0.0, At(machine, 0)));
}

bool Move(ScriptMachine& machine) {
    return AllNumbers(machine) &&
           Push(machine, MoveFrame(At(machine, 0), At(machine, 1), At(machine, 2)));
}

bool Scale(ScriptMachine& machine) {
    return AllNumbers(machine) &&
           Push(machine, ScaleFrame(At(machine, 0), At(machine, 1), At(machine, 2)));
}

bool Turn(ScriptMachine& machine) {
    if (!AllNumbers(machine)) {
        return false;
    }
    const double x = At(machine, 0);
    const double y = At(machine, 1);
    const double z = At(machine, 2);
    const double length = std::hypot(x, y, z);
    return length > 0.0 && std::isfinite(length)
               ? Push(machine, TurnFrame(x, y, z, At(machine, 3)))
               : Fail(machine, "o eixo da rotação não tem comprimento");
}

bool MovePlan(ScriptMachine& machine) {
    return AllNumbers(machine) && Push(machine, MoveFrame(At(machine, 0), At(machine, 1), 0.0));
}

bool ScalePlan(ScriptMachine& machine) {
    return AllNumbers(machine) && Push(machine, ScaleFrame(At(machine, 0), At(machine, 1), 1.0));
}

bool GivenFrame(ScriptMachine& machine) {
    if (!AllNumbers(machine)) {
        return false;
    }
    ScriptFrame frame = {};
    for (std::size_t i = 0; i < frame.size(); ++i) {
        frame[i] = At(machine, i);
    }
    return Push(machine, frame);
}

/// DEL n takes the last n, DEL n, first takes n from that one on (counted from 1), backwards where
/// n is below 0. More than this script has added are never taken.
bool Delete(ScriptMachine& machine) {
    const std::size_t base = machine.frame->transformBase;
    const auto own = static_cast<std::int64_t>(machine.transforms.entries.size() - base);
    if (IsWord(machine.arguments[0], "TOP")) {
        EraseTransforms(machine.transforms, base, static_cast<std::size_t>(own));
        return true;
    }
    std::int32_t count = 0;
    std::int32_t from = 0;
    if (!IntegerArgument(machine, 0, count) || !IntegerArgument(machine, 1, from)) {
        return false;
    }
    std::int64_t begin = std::max<std::int64_t>(0, own - count);
    std::int64_t end = own;
    if (machine.argumentCount > 1) {
        begin = count >= 0 ? std::int64_t{from} - 1 : std::int64_t{from} + count;
        end = begin + std::abs(std::int64_t{count});
        begin = std::clamp<std::int64_t>(begin, 0, own);
        end = std::clamp<std::int64_t>(end, begin, own);
    } else if (count < 0) {
        return Fail(machine, "DEL leva quantas transformações desfazer");
    }
    EraseTransforms(machine.transforms, base + static_cast<std::size_t>(begin),
                    static_cast<std::size_t>(end - begin));
    return Charge(machine, static_cast<std::size_t>(own - begin) / 4);
}

constexpr StatementShape Values = StatementShape::Values;
constexpr StatementScope All = StatementScope::All;

constexpr StatementEntry Entries[] = {
    {"ADDX", 1, 1, MoveAlong<0>, Values, All, "moves along x"},
    {"ADDY", 1, 1, MoveAlong<1>, Values, All, "moves along y"},
    {"ADDZ", 1, 1, MoveAlong<2>, Values, All, "moves along z"},
    {"ADD", 3, 3, Move, Values, All, "moves"},
    {"MULX", 1, 1, ScaleAlong<0>, Values, All, "scales along x, below 0 mirrors"},
    {"MULY", 1, 1, ScaleAlong<1>, Values, All, "scales along y"},
    {"MULZ", 1, 1, ScaleAlong<2>, Values, All, "scales along z"},
    {"MUL", 3, 3, Scale, Values, All, "scales"},
    {"ROTX", 1, 1, TurnAround<0>, Values, All, "turns around x"},
    {"ROTY", 1, 1, TurnAround<1>, Values, All, "turns around y"},
    {"ROTZ", 1, 1, TurnAround<2>, Values, All, "turns around z"},
    {"ROT", 4, 4, Turn, Values, All, "turns around an axis through the origin"},
    {"XFORM", 12, 12, GivenFrame, Values, All, "a whole frame, row after row"},
    {"ADD2", 2, 2, MovePlan, Values, All, "moves in plan"},
    {"MUL2", 2, 2, ScalePlan, Values, All, "scales in plan"},
    {"ROT2", 1, 1, TurnAround<2>, Values, All, "turns in plan"},
    {"DEL", 1, 2, Delete, StatementShape::Words, All,
     "takes transformations back: the last ones, some from a place on, or all (TOP)"},
};

} // namespace

std::span<const StatementEntry> TransformStatements() {
    return Entries;
}

} // namespace Merivane::Workbench
