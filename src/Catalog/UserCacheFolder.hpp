#pragma once

#include <string>

namespace Merivane::Catalog {

/// The folder for what programs may fetch again, the user's own; empty when there is none.
std::wstring UserCacheFolder();

} // namespace Merivane::Catalog
