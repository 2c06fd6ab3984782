#include "Simulation/ReflectanceEditing.hpp"

#include <cmath>

namespace Merivane::Simulation {

namespace {

// A tenth of a percent rounds by 0.0005 at most.
constexpr double LeastChange = 0.0006;
constexpr double UsualTransmittance = 0.8;
constexpr double ClearGlassReflectance = 0.08;

double ToField(double share) {
    return std::round(share * 1000.0) / 10.0;
}

bool Take(double& value, double percent) {
    const double share = percent / 100.0;
    if (!(std::abs(share - value) >= LeastChange)) {
        return false;
    }
    value = share;
    return true;
}

} // namespace

EditableFields EditableFieldsOf(const SurfaceReflectance& record) {
    return {!record.glass, record.glass};
}

ReflectanceFields FieldsOf(const SurfaceReflectance& record) {
    return {ToField(record.reflectance), ToField(record.transmittance),
            ToField(record.reflectanceInside), ToField(record.reflectanceOutside)};
}

bool TakeFields(SurfaceReflectance& record, const ReflectanceFields& fields) {
    const EditableFields editable = EditableFieldsOf(record);
    bool changed = false;
    if (editable.reflectance) {
        changed = Take(record.reflectance, fields.reflectance);
    }
    if (editable.glass) {
        changed = Take(record.transmittance, fields.transmittance);
        changed = Take(record.reflectanceInside, fields.inside) || changed;
        changed = Take(record.reflectanceOutside, fields.outside) || changed;
    }
    if (changed) {
        record.source = ReflectanceSource::CorrectedNow;
    }
    return changed;
}

void SetGlass(SurfaceReflectance& record, bool glass) {
    record.glass = glass;
    record.source = ReflectanceSource::CorrectedNow;
    if (!glass) {
        return;
    }
    if (!(record.transmittance > 0.0)) {
        record.transmittance =
            record.estimatedGlass ? record.estimatedTransmittance : UsualTransmittance;
    }
    if (!record.estimatedGlass) {
        record.reflectanceInside = ClearGlassReflectance;
        record.reflectanceOutside = ClearGlassReflectance;
    }
}

} // namespace Merivane::Simulation
