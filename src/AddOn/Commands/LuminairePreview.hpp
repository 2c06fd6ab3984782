#pragma once

#include "Archicad/ObjectPreview.hpp"
#include "Host/UserPicture.hpp"
#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"
#include "Simulation/PreviewFrame.hpp"
#include "Simulation/PreviewOutline.hpp"

namespace Merivane::Commands {

/// What the previews of a luminaire in the making show: the object's outline and, aimed as the
/// settings say, the file's photometry.
struct LuminairePreview {
    Archicad::ObjectPreview object;
    Photometry::IesFile file;
    Photometry::LuminaireSettings settings;
};

/// The frame in which a view holds all that is drawn in it, the ceiling's face too.
Simulation::PreviewFrame FrameAll(const LuminairePreview& preview, Simulation::PreviewView view);

/// A view of it as it stands in a frame, with a scale bar; in the colours of the host's light or
/// dark interface.
Host::UserPicture DrawPreview(const LuminairePreview& preview, Simulation::PreviewView view,
                              const Simulation::PreviewFrame& frame, bool dark);

} // namespace Merivane::Commands
