#pragma once

#include <vector>

#include "Host/LibraryParameter.hpp"
#include "Host/Types.hpp"

/// Parameters of placed library parts: an element keeps only the values that differ from its
/// part's.
namespace Merivane::Workbench {

using Parameters = std::vector<Host::LibraryParameter>;

/// True when both have the same type, and both one value or an array.
bool IsSameKind(const Host::LibraryParameter& a, const Host::LibraryParameter& b);

/// True when two of the same kind hold the same. Fields that the kind does not use may hold
/// anything, and one column is as good as none.
bool IsSameValue(const Host::LibraryParameter& a, const Host::LibraryParameter& b);

/// All parameters of the part in the part's order, with an element's own values laid over. Values
/// whose name or kind the part does not know are passed over.
Parameters MergeParameters(const Parameters& part, const Parameters& own);

/// Takes from `given` what the part knows, by name without regard to case, and keeps in `own` what
/// differs from the part. BadParameters, with `own` as it was, for a value of another type, an
/// array against a single value, an array whose size does not match its dimensions, a number that
/// is not finite, and a text of more than 255 units of UTF-16.
Host::ErrorCode TakeParameters(const Parameters& part, const Parameters& given, Parameters& own);

} // namespace Merivane::Workbench
