#pragma once

#include <string>

#include "exemplos/SampleLuminaires.hpp"

namespace Merivane::Examples {

/// The bytes of a sample's IES file, in the form of its edition: lines end in CR LF, rows of
/// numbers are broken at ten.
std::string FormatSample(const SampleLuminaire& sample);

} // namespace Merivane::Examples
