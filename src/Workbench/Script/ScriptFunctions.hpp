#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "Workbench/Script/ScriptMachine.hpp"

/// The functions of the language: one table, which the parser looks names up in.
namespace Merivane::Workbench {

/// Arguments of one call. Places stand behind the values, in their order.
struct FunctionCall {
    const ScriptValue* values = nullptr;
    std::size_t valueCount = 0;
    const VariablePlace* places = nullptr;
    std::size_t placeCount = 0;
    ScriptValue result;
};

/// Works a function out. False with the machine's `failure` set.
using FunctionHandler = bool (*)(ScriptMachine& machine, FunctionCall& call);

struct FunctionEntry {
    std::string_view name;
    std::int32_t least = 0; ///< arguments
    std::int32_t most = 0;
    FunctionHandler run = nullptr;
    std::int32_t placesFrom = -1; ///< arguments from this one on are places; -1 = none
    bool wordFirst = false;       ///< the first argument is a word: IND (MATERIAL, ...)
    std::string_view does;        ///< for the documentation, in English
};

std::span<const FunctionEntry> NumberFunctions();
std::span<const FunctionEntry> TextFunctions();
std::span<const FunctionEntry> MachineFunctions();

/// Functions counted through, in the order of the tables above; -1 when there is none of this name
/// (upper case).
std::int32_t FindFunction(std::string_view name);
const FunctionEntry& FunctionAt(std::int32_t index);

} // namespace Merivane::Workbench
