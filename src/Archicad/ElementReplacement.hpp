#pragma once

#include <cstdint>

#include "Host/Elements.hpp"

namespace Merivane::Archicad {

/// Puts a luminaire's part in the place of a placed Object's or Lamp's one, inside the caller's
/// undo step. It stays where it is, in its size, and parameters that both parts have keep the
/// placed element's values; unless `keepAll`, those of the contract are the new part's, the circuit
/// alone stays.
///
/// A Lamp stays the same element. An Object can't become one: a Lamp is made in its place, and it
/// is deleted. `newGuid` is that of the element that now stands there. On failure the host's code,
/// which the caller's step has to return so that all of it is taken back.
Host::ErrorCode ReplaceElementLibPart(const Host::Element& element, std::int32_t partIndex,
                                      Host::Guid& newGuid, bool keepAll);

} // namespace Merivane::Archicad
