#include <algorithm>
#include <array>

#include "Document/SceneFields.hpp"
#include "Document/SurfacePlane.hpp"
#include "Simulation/GlassTransmissivity.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Document {

namespace {

using Simulation::SceneMaterial;

constexpr NumberRange Fraction = {0.0, 1.0};

/// The kinds of material, in the order of the names that `tipo` takes.
enum MaterialKind : std::size_t { Opaque = 0, Glass = 1, GlassWithReflectances = 2 };

void SetChannels(SceneMaterial& material, const std::array<double, 3>& channels) {
    material.red = channels[0];
    material.green = channels[1];
    material.blue = channels[2];
}

bool ReadOpaque(const Place& place, const Field& name, const Field& kind, SceneMaterial& material,
                std::string& error) {
    std::array<double, 3> reflectance{};
    if (!ReadObject(place,
                    {name, kind, Required("refletancia", IntoChannels(reflectance, Fraction))},
                    error, "num material \"opaco\"")) {
        return false;
    }
    SetChannels(material, reflectance);
    return true;
}

bool ReadGlass(const Place& place, const Field& name, const Field& kind, SceneMaterial& material,
               std::string& error) {
    std::array<double, 3> channels{};
    if (!ReadObject(place,
                    {name, kind, Optional("transmissividade", IntoChannels(channels, Fraction)),
                     Optional("transmitancia", IntoChannels(channels, Fraction))},
                    error, "num material \"vidro\"")) {
        return false;
    }
    const bool hasTransmittance = place.value->Find("transmitancia") != nullptr;
    if (hasTransmittance == (place.value->Find("transmissividade") != nullptr)) {
        return Refuse(place, "espera-se \"transmitancia\" ou \"transmissividade\", só uma das duas",
                      error);
    }
    if (hasTransmittance) {
        std::transform(channels.begin(), channels.end(), channels.begin(),
                       Simulation::GlassTransmissivity);
    }
    SetChannels(material, channels);
    material.isGlass = true;
    return true;
}

bool ReadGlassWithReflectances(const Place& place, const Field& name, const Field& kind,
                               SceneMaterial& material, std::string& error) {
    std::array<double, 3> transmittance{};
    if (!ReadObject(place,
                    {name, kind, Required("transmitancia", IntoChannels(transmittance, Fraction)),
                     Required("refletanciaInterna", Into(material.reflectanceInside, Fraction)),
                     Required("refletanciaExterna", Into(material.reflectanceOutside, Fraction))},
                    error, "num material \"vidro com refletancias\"")) {
        return false;
    }
    const double most = *std::max_element(transmittance.begin(), transmittance.end()) +
                        std::max(material.reflectanceInside, material.reflectanceOutside);
    if (most > 1.0 + 1e-9) {
        return Refuse(place,
                      "transmitância e refletância somam " + NumberText(most) +
                          "; espera-se no máximo 1",
                      error);
    }
    SetChannels(material, transmittance);
    material.isGlass = true;
    return true;
}

bool CheckFlatness(const Place& place, const std::vector<Simulation::Point3D>& vertices,
                   std::string& error) {
    const Place list{place.value->Find("vertices"), &place, "vertices", 0};
    const SurfaceFlatness flatness = MeasureFlatness(vertices);
    if (flatness.area < SmallestSurface) {
        return Refuse(list, "o polígono tem área nula", error);
    }
    if (flatness.deviation > flatness.tolerance) {
        const Place vertex{
            &list.value->items[flatness.worstVertex], &list, {}, flatness.worstVertex};
        return Refuse(vertex,
                      "o vértice está a " + Text::FormatFixed(flatness.deviation * 1000.0, 1) +
                          " mm do plano do polígono; espera-se no máximo " +
                          Text::FormatFixed(flatness.tolerance * 1000.0, 1) + " mm",
                      error);
    }
    return true;
}

} // namespace

bool ReadMaterial(const Place& place, SceneMaterial& material, std::string& error) {
    const Catalog::JsonValue* kindValue = place.value->Find("tipo");
    std::size_t kind = Opaque;
    const FieldReader readKind = IntoChoice(kind, {"opaco", "vidro", "vidro com refletancias"});
    // Which keys there may be depends on the kind, so it is read ahead of them.
    if (kindValue != nullptr && !readKind(Place{kindValue, &place, "tipo", 0}, error)) {
        return false;
    }
    const Field name = Required("nome", Into(material.name));
    const Field kindField = Optional("tipo", readKind);
    if (kind == Glass) {
        return ReadGlass(place, name, kindField, material, error);
    }
    if (kind == GlassWithReflectances) {
        return ReadGlassWithReflectances(place, name, kindField, material, error);
    }
    return ReadOpaque(place, name, kindField, material, error);
}

bool NameMaterials(const Place& materialList, const std::vector<SceneMaterial>& materials,
                   MaterialNames& names, std::string& error) {
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const auto [entry, isNew] = names.emplace(materials[i].name, i);
        if (!isNew) {
            const Place material{&materialList.value->items[i], &materialList, {}, i};
            const Place name{material.value->Find("nome"), &material, "nome", 0};
            return Refuse(name,
                          "o nome " + Text::QuotedText(materials[i].name) +
                              " já é o de materiais[" + std::to_string(entry->second) + "]",
                          error);
        }
    }
    return true;
}

bool ReadSurface(const Place& place, const MaterialNames& names, Simulation::SceneSurface& surface,
                 std::string& error) {
    std::string material;
    const auto readVertex = [](const Place& item, Simulation::Point3D& vertex, std::string& text) {
        return Into(vertex, CoordinateRange)(item, text);
    };
    if (!ReadObject(place,
                    {Required("material", Into(material)),
                     Required("vertices", IntoList(surface.vertices, {3, 0, "pontos"}, readVertex)),
                     Optional("faceExterna", Into(surface.exteriorFace))},
                    error)) {
        return false;
    }
    const auto found = names.find(material);
    if (found == names.end()) {
        const Place name{place.value->Find("material"), &place, "material", 0};
        return Refuse(name, "nenhum material tem o nome " + Text::QuotedText(material), error);
    }
    surface.materialIndex = static_cast<std::int32_t>(found->second);
    return CheckFlatness(place, surface.vertices, error);
}

} // namespace Merivane::Document
