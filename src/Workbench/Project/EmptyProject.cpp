#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

namespace {

/// Usual colours with the share of light that such a finish throws back.
AttributeTable<Host::ModelSurface> UsualSurfaces() {
    return {
        {1, {"Pintura branca", {0.93, 0.93, 0.92}, 0.85, 0.0}},
        {2, {"Pintura cinza clara", {0.75, 0.75, 0.74}, 0.60, 0.0}},
        {3, {"Concreto", {0.60, 0.59, 0.57}, 0.35, 0.0}},
        {4, {"Madeira", {0.62, 0.45, 0.30}, 0.40, 0.0}},
        {5, {"Piso cerâmico", {0.70, 0.66, 0.60}, 0.45, 0.0}},
        {6, {"Metal", {0.66, 0.67, 0.68}, 0.50, 0.0}},
        {7, {"Vidro", {0.80, 0.90, 0.88}, 0.10, 0.80}},
    };
}

} // namespace

Project MakeEmptyProject() {
    Project project;
    project.name = "Sem título";
    project.stories = {{0, 0.0, 3.0, "Térreo"}};
    project.layers = {{1, {"Camada principal", false, false}}};
    project.lineTypes = {{1, {"Linha contínua", {}}}};
    project.fills = {{1, {"Preenchimento sólido", Host::FillKind::Solid}},
                     {2, {"Preenchimento vazio", Host::FillKind::Empty}}};
    project.surfaces = UsualSurfaces();
    return project;
}

} // namespace Merivane::Workbench
