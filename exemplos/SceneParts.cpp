#include "exemplos/SceneParts.hpp"

namespace Merivane::Examples {

namespace {

using Catalog::JsonValue;

JsonValue Named(const std::string& name) {
    JsonValue object;
    object.Set("nome", JsonValue::MakeString(name));
    return object;
}

} // namespace

JsonValue OpaqueMaterial(const std::string& name, double reflectance) {
    JsonValue material = Named(name);
    material.Set("refletancia", JsonValue::MakeNumber(reflectance));
    return material;
}

JsonValue PlainGlass(const std::string& name, double transmittance) {
    JsonValue material = Named(name);
    material.Set("tipo", JsonValue::MakeString("vidro"));
    material.Set("transmitancia", JsonValue::MakeNumber(transmittance));
    return material;
}

JsonValue CoatedGlass(const std::string& name, double transmittance, double inside,
                      double outside) {
    JsonValue material = Named(name);
    material.Set("tipo", JsonValue::MakeString("vidro com refletancias"));
    material.Set("transmitancia", JsonValue::MakeNumber(transmittance));
    material.Set("refletanciaInterna", JsonValue::MakeNumber(inside));
    material.Set("refletanciaExterna", JsonValue::MakeNumber(outside));
    return material;
}

JsonValue Luminaire(const std::string& name, const std::string& iesFile, Vertex position,
                    double rotation) {
    JsonValue luminaire = Named(name);
    luminaire.Set("ies", JsonValue::MakeString("../ies/" + iesFile));
    luminaire.Set("posicao", NumberList({position[0], position[1], position[2]}));
    if (rotation != 0.0) {
        luminaire.Set("rotacao", JsonValue::MakeNumber(rotation));
    }
    return luminaire;
}

JsonValue WithColourRendering(JsonValue luminaire, double index) {
    luminaire.Set("indiceDeReproducaoDeCor", JsonValue::MakeNumber(index));
    return luminaire;
}

JsonValue Zone(const std::string& name, const std::vector<Point>& outline, double height) {
    JsonValue zone = Named(name);
    zone.Set("contorno", PointList(outline));
    zone.Set("altura", JsonValue::MakeNumber(height));
    zone.Set("atividade", JsonValue::MakeString("auto"));
    return zone;
}

JsonValue BeginDocument(const std::string& name) {
    JsonValue document;
    document.Set("formato", JsonValue::MakeNumber(1.0));
    document.Set("nome", JsonValue::MakeString(name));
    return document;
}

void EndDocument(JsonValue& document, const char* profile, const std::vector<double>& levels) {
    JsonValue engine;
    engine.Set("perfil", JsonValue::MakeString(profile));
    document.Set("motor", std::move(engine));
    document.Set("niveis", NumberList(levels));
}

} // namespace Merivane::Examples
