#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Model3D.hpp"
#include "Host/Types.hpp"

/// The attributes of the open project: shared by all its windows, known to the user by name.
/// Changing them needs no undo step and cannot be undone; inside one it is refused
/// (UndoScopeMisuse). Names are 1 to 255 bytes of UTF-8, else BadParameters; one attribute of each
/// kind has a name. Defined by whichever host is linked; nothing throws. Main thread only.
namespace Merivane::Host {

enum class AttributeType : std::int32_t {
    Layer = 1,
    LineType = 2,
    Fill = 3,
    Surface = 5,
    LayerCombination = 6,
};

/// All attributes of a type, in the project's order. BadParameters for no type.
ErrorCode ListAttributes(AttributeType type, std::vector<AttributeIndex>& indices);

/// The attribute of this name, compared byte for byte. BadName.
ErrorCode FindAttribute(AttributeType type, std::string_view name, AttributeIndex& index);

struct Layer {
    std::string name; ///< UTF-8, at most 255 bytes
    bool hidden = false;
    bool locked = false;

    bool operator==(const Layer&) const = default;
};

/// BadIndex; Deleted for a number no longer in use.
ErrorCode GetLayer(AttributeIndex index, Layer& layer);

/// AttributeExists, with `index` that of the layer of this name. A new layer is visible and
/// unlocked in every combination, whatever its own state.
ErrorCode CreateLayer(const Layer& layer, AttributeIndex& index);

/// RefusedParameters for hiding, locking or renaming the first layer; NameInUse.
ErrorCode ChangeLayer(AttributeIndex index, const Layer& layer);

/// Dashes and gaps in turn [mm on paper].
struct LineType {
    std::string name;
    std::vector<double> dashes; ///< an even number of lengths; empty = solid

    bool operator==(const LineType&) const = default;
};

ErrorCode GetLineType(AttributeIndex index, LineType& lineType);

/// BadParameters for an odd number of lengths, one below 0, or none above 0; AttributeExists.
ErrorCode CreateLineType(const LineType& lineType, AttributeIndex& index);

/// BadParameters as above; NameInUse.
ErrorCode ChangeLineType(AttributeIndex index, const LineType& lineType);

enum class FillKind : std::int32_t { Vector = 0, Symbol = 1, Solid = 2, Empty = 3 };

struct Fill {
    std::string name;
    FillKind kind = FillKind::Solid;

    bool operator==(const Fill&) const = default;
};

ErrorCode GetFill(AttributeIndex index, Fill& fill);

/// A surface; `ModelSurface` tells its colour, its diffuse share and its transparency.
ErrorCode GetSurface(AttributeIndex index, ModelSurface& surface);

/// BadParameters for a channel or share outside [0..1]; AttributeExists.
ErrorCode CreateSurface(const ModelSurface& surface, AttributeIndex& index);

/// State of one layer in a combination.
struct LayerState {
    AttributeIndex layer;
    bool hidden = false;
    bool locked = false;

    bool operator==(const LayerState&) const = default;
};

/// Holds a state for every layer of the project.
struct LayerCombination {
    std::string name;
    std::vector<LayerState> states;

    bool operator==(const LayerCombination&) const = default;
};

ErrorCode GetLayerCombination(AttributeIndex index, LayerCombination& combination);

/// BadParameters unless every layer has exactly one state; RefusedParameters where the first layer
/// is hidden or locked; AttributeExists, and for a change NameInUse. Views of a combination follow
/// its new name.
ErrorCode CreateLayerCombination(const LayerCombination& combination, AttributeIndex& index);
ErrorCode ChangeLayerCombination(AttributeIndex index, const LayerCombination& combination);

} // namespace Merivane::Host
