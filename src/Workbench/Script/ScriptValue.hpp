#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Values of the language that library parts are written in.
namespace Merivane::Workbench {

/// A number or a text. Logical values are 0 and 1.
struct ScriptValue {
    bool isText = false;
    double number = 0.0;
    std::string text; ///< UTF-8

    bool operator==(const ScriptValue&) const = default;
};

ScriptValue NumberValue(double number);
ScriptValue TextValue(std::string text);

/// A variable: one value, or a table of them. Rows and columns count from 1 in the language, from 0
/// here.
struct ScriptVariable {
    bool isArray = false;
    bool isDynamic = false;          ///< grows when a place behind its end is written
    std::size_t rows = 0;            ///< arrays
    std::size_t columns = 0;         ///< arrays; 0 = one dimension
    std::vector<ScriptValue> values; ///< row after row; exactly one where it is no array

    bool operator==(const ScriptVariable&) const = default;
};

} // namespace Merivane::Workbench
