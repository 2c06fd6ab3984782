#pragma once

#include <string>
#include <string_view>

namespace Merivane::Photometry {

/// The lines between which a script's generated part stands. They are compared byte by byte: one
/// that the user changed is no marker any more.
inline constexpr std::string_view BlockStartMarker =
    "! ===== Merivane: inicio do bloco gerado (nao editar) =====";
inline constexpr std::string_view BlockEndMarker = "! ===== Merivane: fim do bloco gerado =====";

/// A script with all its generated blocks taken out, each from its start marker through its end
/// marker and that marker's line end (CR LF, CR or LF). A start marker without an end marker
/// behind it stays, with all that follows it.
std::string RemoveGeneratedBlock(std::string_view script);

/// `script`, its generated blocks taken out, behind a new block that holds `lines`. These end in
/// CR LF, or are none.
std::string WithGeneratedBlock(std::string_view lines, std::string_view script);

} // namespace Merivane::Photometry
