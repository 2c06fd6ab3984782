#include "Workbench/Script/ScriptValue.hpp"

#include <utility>

namespace Merivane::Workbench {

ScriptValue NumberValue(double number) {
    return {false, number, {}};
}

ScriptValue TextValue(std::string text) {
    return {true, 0.0, std::move(text)};
}

} // namespace Merivane::Workbench
