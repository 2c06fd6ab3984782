#include "Simulation/SceneMaterials.hpp"

#include <algorithm>
#include <cmath>

#include "Simulation/GlassTransmissivity.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double ClearGlassReflectance = 0.08;
constexpr double ClearGlassTolerance = 0.005; // 8.5 % is no longer clear
constexpr double HighestOpaqueChannel = 0.95;

Channels ValuesOf(const SurfaceReflectance& record, double target, double limit, bool useColour) {
    if (!useColour || !record.hasColour) {
        return {target, target, target};
    }
    return TintedValues({record.red, record.green, record.blue}, target, limit);
}

bool IsClear(double reflectance) {
    return std::abs(reflectance - ClearGlassReflectance) < ClearGlassTolerance;
}

void SetChannels(SceneMaterial& material, const Channels& channels) {
    material.red = channels[0];
    material.green = channels[1];
    material.blue = channels[2];
}

void DescribeGlass(const SurfaceReflectance& record, bool useColour, SceneMaterial& material) {
    const double face = std::sqrt(std::clamp(record.transmittance, 0.05, 0.95));
    Channels channels = ValuesOf(record, face, 1.0, useColour);
    material.isGlass = true;
    if (IsClear(record.reflectanceInside) && IsClear(record.reflectanceOutside)) {
        for (double& channel : channels) {
            channel = GlassTransmissivity(channel);
        }
    } else {
        material.reflectanceInside = std::clamp(record.reflectanceInside, 0.0, 0.6);
        material.reflectanceOutside = std::clamp(record.reflectanceOutside, 0.0, 0.6);
    }
    SetChannels(material, channels);
}

} // namespace

std::vector<SceneMaterial> BuildSceneMaterials(const std::vector<SurfaceReflectance>& records,
                                               bool useColour) {
    std::vector<SceneMaterial> materials;
    materials.reserve(records.size());
    for (const SurfaceReflectance& record : records) {
        SceneMaterial& material = materials.emplace_back();
        material.name = record.name;
        if (record.glass) {
            DescribeGlass(record, useColour, material);
        } else {
            SetChannels(material,
                        ValuesOf(record, record.reflectance, HighestOpaqueChannel, useColour));
        }
    }
    return materials;
}

} // namespace Merivane::Simulation
