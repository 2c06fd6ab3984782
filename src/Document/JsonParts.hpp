#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Catalog/Json.hpp"

/// Values that every result for a program is made of.
namespace Merivane::Document {

Catalog::JsonValue Numbers(const std::vector<double>& values);

Catalog::JsonValue Texts(const std::vector<std::string>& texts);

Catalog::JsonValue Integer(std::int64_t value);

/// The number, or null where there is none.
Catalog::JsonValue NumberOrNull(bool exists, double value);

} // namespace Merivane::Document
