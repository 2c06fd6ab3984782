#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Photometry/IesFile.hpp"

/// What the dialog that gives a part its photometry says of the IES file.
namespace Merivane::Simulation {

/// Maker and catalogue number as the file tells them.
std::string FileIdentityLine(const Photometry::IesFile& file);

/// Flux of the table and peak, the power and the efficacy where they are known.
std::string FluxLine(const Photometry::IesFile& file);

/// Numbers of horizontal and of vertical angles, declared opening [mm], number of the reader's
/// warnings where there are any.
std::string TableLine(const Photometry::IesFile& file, std::size_t warningCount);

/// What the colours of the previews stand for and what the mouse does there.
std::string PreviewLegend(const Photometry::IesFile& file);

/// What the photometric centre is counted from, with and without the object's geometry.
inline constexpr std::string_view CenterHint =
    "O centro fotometrico e o centro da abertura luminosa. Ajuste ate o retangulo azul ficar sobre "
    "a face de onde a luz sai (num embutido, a face de baixo).";
inline constexpr std::string_view CenterHintWithoutGeometry =
    "Geometria do objeto nao lida - a previa mostra so a fotometria. O centro e medido a partir da "
    "origem do objeto.";

/// A name for the part that is made from a part and an IES file: the file's, told apart where the
/// part has it already.
std::string ProposePartName(std::string_view sourceName, std::string_view baseName);

} // namespace Merivane::Simulation
