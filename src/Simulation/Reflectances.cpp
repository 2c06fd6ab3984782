#include "Simulation/Reflectances.hpp"

#include <algorithm>

#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double LeastGlassTransparency = 0.2;
constexpr double LowestReflectance = 0.02;
constexpr double HighestReflectance = 0.9;
constexpr double LowestTransmittance = 0.05;
constexpr double HighestTransmittance = 0.95;
constexpr double HighestGlassReflectance = 0.6;

void TakeStored(SurfaceReflectance& record, const StoredReflectance& stored) {
    record.reflectance = std::clamp(stored.reflectance, LowestReflectance, HighestReflectance);
    record.glass = stored.glass;
    record.transmittance =
        stored.glass ? std::clamp(stored.transmittance, LowestTransmittance, HighestTransmittance)
                     : 0.0;
    record.reflectanceInside = std::clamp(stored.reflectanceInside, 0.0, HighestGlassReflectance);
    record.reflectanceOutside = std::clamp(stored.reflectanceOutside, 0.0, HighestGlassReflectance);
    record.source = ReflectanceSource::CorrectedBefore;
    record.loadedSource = ReflectanceSource::CorrectedBefore;
}

std::string_view LogWord(ReflectanceSource source) {
    switch (source) {
    case ReflectanceSource::Colour:
        return "estimada";
    case ReflectanceSource::Orientation:
        return "padrao";
    case ReflectanceSource::CorrectedBefore:
        return "corrigida antes";
    case ReflectanceSource::CorrectedNow:
        break;
    }
    return "corrigida agora";
}

std::string Percent(double share) {
    return Text::FormatFixed(share * 100.0, 0) + "%";
}

} // namespace

SurfaceReflectance MakeFromColour(std::string_view key, std::string_view name,
                                  const SurfaceColour& colour) {
    SurfaceReflectance record;
    record.key = key;
    record.name = name;
    record.hasColour = true;
    record.red = colour.red;
    record.green = colour.green;
    record.blue = colour.blue;
    record.diffuse = colour.diffuse;
    record.transparency = colour.transparency;
    record.estimatedReflectance = EstimateReflectance(colour.red, colour.green, colour.blue);
    record.estimatedGlass = colour.transparency >= LeastGlassTransparency;
    record.estimatedTransmittance =
        record.estimatedGlass
            ? std::clamp(colour.transparency, LowestTransmittance, HighestTransmittance)
            : 0.0;
    ResetToEstimate(record);
    record.loadedSource = record.source;
    return record;
}

SurfaceReflectance MakeFromOrientation(std::string_view key, std::string_view name,
                                       double reflectance) {
    SurfaceReflectance record;
    record.key = key;
    record.name = name;
    record.estimatedReflectance = reflectance;
    ResetToEstimate(record);
    record.loadedSource = record.source;
    return record;
}

SurfaceReflectance MakeFloorReflectance() {
    return MakeFromOrientation(FloorKey, "(sem Superficie) piso", FloorReflectance);
}

SurfaceReflectance MakeWallReflectance() {
    return MakeFromOrientation(WallKey, "(sem Superficie) parede", WallReflectance);
}

SurfaceReflectance MakeCeilingReflectance() {
    return MakeFromOrientation(CeilingKey, "(sem Superficie) teto", CeilingReflectance);
}

std::size_t AddOrFindReflectance(std::vector<SurfaceReflectance>& records,
                                 const SurfaceReflectance& record) {
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i].key == record.key) {
            return i;
        }
    }
    records.push_back(record);
    return records.size() - 1;
}

void ResetToEstimate(SurfaceReflectance& record) {
    record.reflectance = record.estimatedReflectance;
    record.glass = record.estimatedGlass;
    record.transmittance = record.estimatedTransmittance;
    record.reflectanceInside = record.estimatedInside;
    record.reflectanceOutside = record.estimatedOutside;
    record.source = record.hasColour ? ReflectanceSource::Colour : ReflectanceSource::Orientation;
}

void ApplyStored(std::vector<SurfaceReflectance>& records, const ReflectanceStore& store) {
    for (SurfaceReflectance& record : records) {
        const auto found = store.find(record.key);
        if (found != store.end()) {
            TakeStored(record, found->second);
        }
    }
}

void MergeIntoStore(const std::vector<SurfaceReflectance>& records, ReflectanceStore& store) {
    for (const SurfaceReflectance& record : records) {
        if (record.source == ReflectanceSource::CorrectedNow) {
            store[record.key] = {record.reflectance, record.glass, record.transmittance,
                                 record.reflectanceInside, record.reflectanceOutside};
        } else if (record.source != ReflectanceSource::CorrectedBefore) {
            store.erase(record.key);
        }
    }
}

std::string ReflectanceLogLine(const SurfaceReflectance& record) {
    std::string line = record.name + " (" + std::string(LogWord(record.source)) + "): ";
    if (record.glass) {
        line += "vidro, TL " + Percent(record.transmittance) + ", RL interna " +
                Percent(record.reflectanceInside) + ", RL externa " +
                Percent(record.reflectanceOutside);
    } else {
        line += "refletancia " + Percent(record.reflectance);
    }
    return line + ", " + Text::FormatFixed(record.area, 2) + " m2";
}

} // namespace Merivane::Simulation
