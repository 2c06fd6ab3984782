#pragma once

#include <string>
#include <string_view>

namespace Merivane::Photometry {

/// A script fragment with LF line ends as the host stores scripts: a CR goes in front of every LF,
/// whatever stands there already, so only fragments with bare LF may be given.
std::string WithCrLf(std::string_view fragment);

} // namespace Merivane::Photometry
