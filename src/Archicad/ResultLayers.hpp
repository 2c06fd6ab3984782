#pragma once

#include <array>
#include <string_view>

#include "Host/Attributes.hpp"

/// The layers and line types that the add-on draws with, found or made by name. Attributes of an
/// earlier version are taken over under their new names. No undo step may run; what is made stays
/// when a later step is undone. On failure each gives the host's code.
namespace Merivane::Archicad {

/// Layers of a calculation's results, in this order.
struct ResultLayers {
    Host::AttributeIndex isolux;
    Host::AttributeIndex falseColor;
    Host::AttributeIndex values;
    Host::AttributeIndex legend;
    Host::AttributeIndex falseColor3D;
    Host::AttributeIndex workPlane3D;

    bool operator==(const ResultLayers&) const = default;
};

inline constexpr std::array<std::string_view, 6> ResultLayerNames = {
    "Vantoro - Isolux",  "Vantoro - Cor falsa",    "Vantoro - Valores",
    "Vantoro - Legenda", "Vantoro - Cor falsa 3D", "Vantoro - Cor falsa 3D plano de trabalho"};

/// Layers of the project drawing, in this order.
struct ProjectLayers {
    Host::AttributeIndex circuits;
    Host::AttributeIndex dimensions;
    Host::AttributeIndex luminaireLegend;

    bool operator==(const ProjectLayers&) const = default;
};

inline constexpr std::array<std::string_view, 3> ProjectLayerNames = {
    "Vantoro - Circuitos", "Vantoro - Cotas", "Vantoro - Legenda de luminarias"};

/// The layers of a record in its order.
std::array<Host::AttributeIndex, 6> ListLayers(const ResultLayers& layers);
std::array<Host::AttributeIndex, 3> ListLayers(const ProjectLayers& layers);

/// The layer of this name, made where it is missing and shown where it is hidden; a lock stays.
Host::ErrorCode EnsureLayer(std::string_view name, Host::AttributeIndex& index);

/// All layers of a record, one after the other up to the first that fails; those behind it are then
/// none.
Host::ErrorCode EnsureResultLayers(ResultLayers& layers);
Host::ErrorCode EnsureProjectLayers(ProjectLayers& layers);

/// The add-on's own line types.
Host::LineType DashDotLineType();
Host::LineType DashedLineType();

/// The line type of this name, made where it is missing; one that stands keeps its dashes.
Host::ErrorCode EnsureLineType(const Host::LineType& lineType, Host::AttributeIndex& index);

} // namespace Merivane::Archicad
