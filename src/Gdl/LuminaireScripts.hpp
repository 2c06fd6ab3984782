#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Photometry {

// The scripts of a luminaire's library part: a generated block that draws from the contract's
// parameters, then the part's own script, of which nothing is touched. Blocks that the script
// holds already are replaced, so that a part can be made anew any number of times.

/// 3D: the light at the photometric centre, in the frame of `LuminaireRotation`, with its axes.
/// What stands below is lowered by the flange's depth.
std::string Script3DWithBlock(std::string_view script);

/// 2D: the photometric centre, the arrow of a tilted beam, the circuit's text and the plan symbol.
/// Where the symbol is drawn, nothing below runs.
std::string Script2DWithBlock(std::string_view script);

/// Parameter script: hides `hiddenNames`, holds the contract's values within their limits.
/// `extraLines`, empty or ended by CR LF, go into the block as they are.
std::string MasterScriptWithBlock(std::string_view script,
                                  const std::vector<std::string>& hiddenNames,
                                  std::string_view extraLines);

} // namespace Merivane::Photometry
