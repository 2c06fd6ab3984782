#include <cstddef>
#include <cstdint>
#include <utility>

#include "Text/ShownText.hpp"
#include "Workbench/Project/FileGroups.hpp"

namespace Merivane::Workbench {

namespace {

/// Surfaces of scripts are numbered from 1000000 up.
constexpr NumberRange AttributeNumbers = {1.0, Host::FirstScriptSurface - 1.0};

/// An attribute with its number.
template <typename Record> struct Numbered {
    std::int32_t number = 0;
    Record record;
};

/// Takes one attribute of a list into its table and its names; refuses a number or a name that
/// stands above already.
template <typename Record>
bool AddAttribute(const Place& item, Numbered<Record> attribute, AttributeTable<Record>& table,
                  AttributeNames& names, std::string& error) {
    const auto refuse = [&item, &error](std::string_view key, const std::string& what) {
        return Refuse(Place{item.value->Find(key), &item, key, 0},
                      what + " já é de outro item da lista", error);
    };
    const std::string name = attribute.record.name;
    if (!names.numbers.emplace(name, attribute.number).second) {
        return refuse("nome", "o nome " + Text::QuotedText(name));
    }
    return table.emplace(attribute.number, std::move(attribute.record)).second ||
           refuse("numero", "o número " + std::to_string(attribute.number));
}

template <typename Record, typename Describe>
void Table(FieldsToRead& fields, std::string_view key, AttributeTable<Record>& table,
           AttributeNames FileNames::*names, Describe describe) {
    const auto read = [&known = fields.names, &table, names, describe](const Place& place,
                                                                       std::string& error) {
        if (!Catalog::CheckList(place, {}, error)) {
            return false;
        }
        for (std::size_t i = 0; i < place.value->items.size(); ++i) {
            const Place item{&place.value->items[i], &place, {}, i};
            Numbered<Record> attribute;
            FieldsToRead keys(known);
            keys.Must("numero", attribute.number, AttributeNumbers);
            describe(keys, attribute.record);
            if (!keys.Read(item, error) ||
                !AddAttribute(item, std::move(attribute), table, known.*names, error)) {
                return false;
            }
        }
        return true;
    };
    fields.Custom(key, false, read);
}

template <typename Record, typename Describe>
void Table(FieldsToWrite& fields, std::string_view key, const AttributeTable<Record>& table,
           AttributeNames FileNames::* /*names*/, Describe describe) {
    if (table.empty()) {
        return;
    }
    JsonValue list = JsonValue::MakeArray();
    for (const auto& [number, record] : table) {
        FieldsToWrite keys(fields.project, fields.parameterPlaces);
        keys.Must("numero", number);
        describe(keys, record);
        list.items.push_back(keys.Take());
    }
    fields.Set(key, std::move(list));
}

void StoryFields(auto& fields, Is<Host::Story> auto& story) {
    fields.Must("indice", story.index, NumberRange{-1000.0, 1000.0});
    fields.May("nome", story.name, "", ShortText);
    fields.Must("nivel", story.level, Coordinates);
    fields.Must("altura", story.height, Lengths);
}

void LayerFields(auto& fields, Is<Host::Layer> auto& layer) {
    fields.Must("nome", layer.name, NameRule);
    fields.May("oculta", layer.hidden, false);
    fields.May("travada", layer.locked, false);
}

void CombinationFields(auto& fields, Is<Host::LayerCombination> auto& combination) {
    fields.Must("nome", combination.name, NameRule);
    fields.List("estados", combination.states, [](auto& keys, auto& state) {
        keys.Must("camada", state.layer, keys.Layers());
        keys.May("oculta", state.hidden, false);
        keys.May("travada", state.locked, false);
    });
}

void LineTypeFields(auto& fields, Is<Host::LineType> auto& lineType) {
    fields.Must("nome", lineType.name, NameRule);
    fields.May("tracos", lineType.dashes, std::vector<double>(), Lengths);
}

void FillFields(auto& fields, Is<Host::Fill> auto& fill) {
    fields.Must("nome", fill.name, NameRule);
    fields.Must("tipo", fill.kind, FillKindWords());
}

void ModelSurfaceFields(auto& fields, Is<Host::ModelSurface> auto& surface) {
    constexpr NumberRange shares = {0.0, 1.0};
    fields.Must("nome", surface.name, NameRule);
    fields.Must("cor", surface.colour);
    fields.May("difusa", surface.diffuse, 1.0, shares);
    fields.May("transparencia", surface.transparency, 0.0, shares);
}

void AllFields(auto& fields, Is<Project> auto& project) {
    fields.List("pavimentos", project.stories,
                [](auto& keys, auto& story) { StoryFields(keys, story); }, {1, 0, "pavimentos"});
    Table(fields, "camadas", project.layers, &FileNames::layers,
          [](auto& keys, auto& layer) { LayerFields(keys, layer); });
    Table(fields, "combinacoes", project.combinations, &FileNames::combinations,
          [](auto& keys, auto& combination) { CombinationFields(keys, combination); });
    Table(fields, "tiposDeLinha", project.lineTypes, &FileNames::lineTypes,
          [](auto& keys, auto& lineType) { LineTypeFields(keys, lineType); });
    Table(fields, "preenchimentos", project.fills, &FileNames::fills,
          [](auto& keys, auto& fill) { FillFields(keys, fill); });
    Table(fields, "superficies", project.surfaces, &FileNames::surfaces,
          [](auto& keys, auto& surface) { SurfaceFields(keys, surface); });
}

} // namespace

void SurfaceFields(FieldsToRead& fields, Host::ModelSurface& surface) {
    ModelSurfaceFields(fields, surface);
}

void SurfaceFields(FieldsToWrite& fields, const Host::ModelSurface& surface) {
    ModelSurfaceFields(fields, surface);
}

void AttributeFields(FieldsToRead& fields, Project& project) {
    AllFields(fields, project);
}

void AttributeFields(FieldsToWrite& fields, const Project& project) {
    AllFields(fields, project);
}

} // namespace Merivane::Workbench
