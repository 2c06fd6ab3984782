#pragma once

namespace Merivane::Program {

/// Version of this program, as `--versao` and the results tell it.
inline constexpr const char* Version = "0.1.0";

} // namespace Merivane::Program
