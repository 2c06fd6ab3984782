#pragma once

#include "Simulation/Reflectances.hpp"

/// What the dialog of reflectances changes in a line of its table.
namespace Merivane::Simulation {

/// The four number fields of a line, in percent.
struct ReflectanceFields {
    double reflectance = 0.0;   ///< [1..95]
    double transmittance = 0.0; ///< [5..95]
    double inside = 0.0;        ///< [0..60]
    double outside = 0.0;       ///< [0..60]

    bool operator==(const ReflectanceFields&) const = default;
};

/// Which fields can be edited: the first one on opaque lines, the other three on glass.
struct EditableFields {
    bool reflectance = false;
    bool glass = false;

    bool operator==(const EditableFields&) const = default;
};

EditableFields EditableFieldsOf(const SurfaceReflectance& record);

/// The values in use, rounded to a tenth of a percent.
ReflectanceFields FieldsOf(const SurfaceReflectance& record);

/// Takes over what the editable fields show. A difference under 0.0006 is none: it is what rounding
/// for the field left. Returns whether a value changed; it is then a correction made now.
bool TakeFields(SurfaceReflectance& record, const ReflectanceFields& fields);

/// Makes a surface glass or opaque, which is a correction made now. Glass that has no transmittance
/// yet takes the estimated one, 0.8 where none was estimated; a surface that was not estimated as
/// glass then reflects as clear glass does.
void SetGlass(SurfaceReflectance& record, bool glass);

} // namespace Merivane::Simulation
