#pragma once

#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Photometry {

/// Identity of the product as the header of its file tells it.
LuminaireIdentity IdentityFromIes(const IesFile& file);

/// Writes an identity into a file's header, its texts trimmed. A colour rendering that rounds to 1
/// to 100 becomes the keyword `_RA`; any other removes it.
void ApplyIdentityToIes(const LuminaireIdentity& identity, IesFile& file);

/// General colour rendering index that a file declares: its keyword `_RA`, otherwise the first
/// "CRI", "IRC" or "Ra" with a number of 20 to 100 in its header texts; 0 = unknown.
double ColourRenderingFromIes(const IesFile& file);

} // namespace Merivane::Photometry
