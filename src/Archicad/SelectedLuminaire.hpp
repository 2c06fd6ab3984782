#pragma once

#include <string>

#include "Host/Elements.hpp"

namespace Merivane::Archicad {

/// The one Object or Lamp that is selected, or that the selected element of a section shows; other
/// kinds of elements in the selection do not count. Returns false, with one Portuguese sentence in
/// `errorText`, for none and for several; `element` is then as it was.
bool FindSelectedLuminaireObject(Host::Element& element, std::string& errorText);

/// True unless the user has locked the element or its layer, which the host would refuse to change
/// only after all the work; then false, with one Portuguese sentence in `errorText`.
bool CanBeReplaced(const Host::Element& element, std::string& errorText);

} // namespace Merivane::Archicad
