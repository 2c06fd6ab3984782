#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/SurfaceColour.hpp"

/// The reflectance of every surface that a model shows: guessed from its colour, or from the way a
/// face looks where it has no surface, or corrected by the user and remembered by name.
namespace Merivane::Simulation {

/// Where the values in use come from.
enum class ReflectanceSource : std::uint32_t {
    Colour = 0,          ///< estimated from the surface's colour
    Orientation = 1,     ///< usual for the way a face without surface looks
    CorrectedBefore = 2, ///< a correction that was remembered
    CorrectedNow = 3,    ///< a correction that is to be remembered
};

/// Begin of the keys of ordinary surfaces, and of those that a library part defines on its own. The
/// surface's name follows.
inline constexpr std::string_view SurfaceKeyPrefix = "sup:";
inline constexpr std::string_view ScriptSurfaceKeyPrefix = "gdl:";

/// Keys of the faces without surface.
inline constexpr std::string_view FloorKey = "orientacao:piso";
inline constexpr std::string_view WallKey = "orientacao:parede";
inline constexpr std::string_view CeilingKey = "orientacao:teto";

/// What those are taken to reflect [0..1].
inline constexpr double FloorReflectance = 0.2;
inline constexpr double WallReflectance = 0.5;
inline constexpr double CeilingReflectance = 0.7;

/// One surface of the scene, with two sets of the same five values: the estimate, and those in use.
/// Shares [0..1]. The glass reflects light as told to either side of its panes.
struct SurfaceReflectance {
    std::string key;  ///< identity, begins as told above
    std::string name; ///< as the user sees it, UTF-8

    bool hasColour = false; ///< comes from a surface with a colour; without, the next five are idle
    double red = 0.8;       ///< sRGB
    double green = 0.8;
    double blue = 0.8;
    double diffuse = 1.0; ///< kept, not used
    double transparency = 0.0;
    double area = 0.0; ///< met in the model [m2]

    double estimatedReflectance = 0.5;
    bool estimatedGlass = false;
    double estimatedTransmittance = 0.0; ///< TL, at normal incidence
    double estimatedInside = 0.08;       ///< RL towards the room
    double estimatedOutside = 0.08;      ///< RL towards outdoors

    double reflectance = 0.5; ///< of an opaque surface
    bool glass = false;
    double transmittance = 0.0;       ///< of a glass
    double reflectanceInside = 0.08;  ///< of a glass
    double reflectanceOutside = 0.08; ///< of a glass

    ReflectanceSource source = ReflectanceSource::Colour;
    ReflectanceSource loadedSource = ReflectanceSource::Colour; ///< when the table was made

    bool operator==(const SurfaceReflectance&) const = default;
};

/// One remembered correction; values as in `SurfaceReflectance`.
struct StoredReflectance {
    double reflectance = 0.5;
    bool glass = false;
    double transmittance = 0.0;
    double reflectanceInside = 0.08;
    double reflectanceOutside = 0.08;

    bool operator==(const StoredReflectance&) const = default;
};

/// Corrections by the surface's key. They belong to the user and outlive projects.
using ReflectanceStore = std::map<std::string, StoredReflectance, std::less<>>;

/// A surface with a colour. From a transparency of 0.2 up it is estimated to be glass.
SurfaceReflectance MakeFromColour(std::string_view key, std::string_view name,
                                  const SurfaceColour& colour);

/// The faces without surface that look one way.
SurfaceReflectance MakeFromOrientation(std::string_view key, std::string_view name,
                                       double reflectance);

/// The records of floors, walls and ceilings without surface, with their names.
SurfaceReflectance MakeFloorReflectance();
SurfaceReflectance MakeWallReflectance();
SurfaceReflectance MakeCeilingReflectance();

/// Index of the record with this one's key; the record is added when there is none. A record found
/// stays as it is: of two surfaces with one name the first one's colour counts.
std::size_t AddOrFindReflectance(std::vector<SurfaceReflectance>& records,
                                 const SurfaceReflectance& record);

/// The estimate into use again. `loadedSource` stays.
void ResetToEstimate(SurfaceReflectance& record);

/// Takes remembered corrections over, each value within what a surface can have.
void ApplyStored(std::vector<SurfaceReflectance>& records, const ReflectanceStore& store);

/// Remembers what was corrected now and forgets what went back to the estimate. Entries of other
/// surfaces stay.
void MergeIntoStore(const std::vector<SurfaceReflectance>& records, ReflectanceStore& store);

/// One line of the run log: name, source, values in percent, area.
std::string ReflectanceLogLine(const SurfaceReflectance& record);

} // namespace Merivane::Simulation
