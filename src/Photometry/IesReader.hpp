#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// How reading an IES text ended.
struct IesReadResult {
    bool ok = false;
    std::string error;                 ///< the one Portuguese refusal when not `ok`
    std::vector<std::string> warnings; ///< in the order met, also on a refusal
};

/// Reads the bytes of a whole IES file (LM-63 of 1986, 1991, 1995, 2002 or 2019) into `out`.
///
/// Forgiving about form, strict about numbers: what leaves the photometry usable is a warning, what
/// makes the table unreadable ends the reading with one refusal. Numbers have a decimal point in
/// every locale. Header texts stay in the file's own encoding, see `NormaliseIesText`.
///
/// `out` is first reset; after a refusal it holds what had been read so far and must not be used.
IesReadResult ReadIes(std::string_view text, IesFile& out);

} // namespace Merivane::Photometry
