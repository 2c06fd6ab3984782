#pragma once

namespace Merivane::Examples {

/// A luminous intensity distribution in relative units: `vertical` from nadir [0..180 deg],
/// `horizontal` from C0 [0..360 deg]; at least 0.
using Distribution = double (*)(double vertical, double horizontal);

/// Recessed downlight with a reflector: full to about 40 degrees, dark from 65 on. Rotational.
double Downlight(double vertical, double horizontal);

/// Recessed panel with a prismatic diffuser: nearly cosine, held back from 65 degrees on, a little
/// wider along C0.
double Panel(double vertical, double horizontal);

/// Recessed panel behind a cellular louvre: cosine to about 50 degrees, dark from 65 on, so that it
/// does not mirror in screens.
double LouvredPanel(double vertical, double horizontal);

/// Linear luminaire with two wings across its length (C90), for aisles and continuous rows.
double Batwing(double vertical, double horizontal);

/// Wall washer: its beam leans 35 degrees towards C90, where the wall is.
double Wallwasher(double vertical, double horizontal);

/// Spot with an oval beam, 12 by 20 degrees to half of the peak, turned by 25 degrees: no symmetry
/// but that of half a turn.
double Spot(double vertical, double horizontal);

/// Pendant that lights the ceiling alone, widest across its length (C90).
double Indirect(double vertical, double horizontal);

/// Pendant that sends 55 % of its light to the ceiling.
double DirectIndirect(double vertical, double horizontal);

/// Open reflector for high rooms, rotational.
double HighBay(double vertical, double horizontal);

/// Opal globe on a wall or ceiling: the same in all directions below, fading above.
double Opal(double vertical, double horizontal);

} // namespace Merivane::Examples
