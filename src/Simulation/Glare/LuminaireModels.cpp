#include "Simulation/Glare/LuminaireModels.hpp"

#include <cstddef>
#include <string>

#include "Photometry/LuminaireTypeKey.hpp"
#include "Simulation/LengthScale.hpp"

namespace Merivane::Simulation {

namespace {

// A model while its lights are being counted.
struct OpenModel {
    const SceneLuminaire* first = nullptr;
    bool isLine = false;
    bool oneName = true;
    ModelGlare glare; // `height` holds the sum
};

bool Holds(const OpenModel& model, const SceneLuminaire& luminaire, bool isLine) {
    return model.isLine == isLine && SamePhotometry(model.first->photometry, luminaire.photometry);
}

std::size_t FindModel(const PlacedLuminaire& light, std::vector<OpenModel>& models) {
    const SceneLuminaire& luminaire = *light.luminaire;
    const bool isLine = IsContinuousLine(luminaire);
    for (std::size_t i = 0; i < models.size(); ++i) {
        if (Holds(models[i], luminaire, isLine)) {
            models[i].oneName &= luminaire.displayName == models[i].first->displayName;
            return i;
        }
    }
    OpenModel& model = models.emplace_back();
    model.first = &luminaire;
    model.isLine = isLine;
    model.glare.luminaire = light.index;
    return models.size() - 1;
}

// Luminaires of one model are often numbered ("Painel 1"): then none of their names is the model's.
std::string ModelName(const OpenModel& model) {
    const SceneLuminaire& first = *model.first;
    std::string typeName = Photometry::TypeKeyName(first.typeKey);
    if (!typeName.empty() && (!model.oneName || first.displayName.empty())) {
        return typeName;
    }
    return first.displayName.empty() ? first.id : first.displayName;
}

} // namespace

bool SamePhotometry(const Photometry::IesFile& a, const Photometry::IesFile& b) {
    return a.photometricType == b.photometricType && a.unitsType == b.unitsType &&
           a.width == b.width && a.length == b.length && a.height == b.height &&
           a.candelaMultiplier == b.candelaMultiplier && a.verticalAngles == b.verticalAngles &&
           a.horizontalAngles == b.horizontalAngles && a.candela == b.candela;
}

bool IsContinuousLine(const SceneLuminaire& luminaire) {
    return Photometry::IsLinearTypeKey(luminaire.typeKey) || AppliedLengthScale(luminaire) != 1.0;
}

std::vector<ModelGlare> GroupModels(const std::vector<PlacedLuminaire>& lights, double eyeLevel) {
    std::vector<OpenModel> models;
    const SceneLuminaire* last = nullptr;
    std::size_t found = 0;
    for (const PlacedLuminaire& light : lights) {
        if (light.luminaire != last) { // copies of an array follow each other
            found = FindModel(light, models);
            last = light.luminaire;
        }
        ++models[found].glare.count;
        models[found].glare.height += light.center.z - eyeLevel;
    }
    std::vector<ModelGlare> grouped;
    for (OpenModel& model : models) {
        model.glare.name = ModelName(model);
        model.glare.height /= static_cast<double>(model.glare.count);
        grouped.push_back(model.glare);
    }
    return grouped;
}

} // namespace Merivane::Simulation
