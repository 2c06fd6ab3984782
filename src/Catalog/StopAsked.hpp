#pragma once

#include <functional>

namespace Merivane::Catalog {

/// Asked again and again by what may take long: true once nobody waits for it any more. Empty =
/// never.
using StopAsked = std::function<bool()>;

inline bool IsStopped(const StopAsked& stopAsked) {
    return stopAsked && stopAsked();
}

} // namespace Merivane::Catalog
