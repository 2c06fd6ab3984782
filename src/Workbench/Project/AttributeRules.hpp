#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Host/Attributes.hpp"
#include "Workbench/Project/Project.hpp"

/// What attributes may be.
namespace Merivane::Workbench {

/// The first layer always is, visible and unlocked.
inline constexpr std::int32_t FirstLayer = 1;

/// BadParameters unless 1 to 255 bytes of UTF-8 without zeros.
Host::ErrorCode CheckAttributeName(std::string_view name);

/// BadIndex for a number never used, Deleted for one no longer in use.
template <typename Record>
Host::ErrorCode CheckAttributeIndex(const AttributeTable<Record>& table,
                                    Host::AttributeIndex index) {
    if (table.contains(index.value)) {
        return Host::NoError;
    }
    const bool wasUsed = index.value >= 1 && !table.empty() && index.value < table.rbegin()->first;
    return wasUsed ? Host::Deleted : Host::BadIndex;
}

/// The number of the attribute of this name, 0 when there is none.
template <typename Record>
std::int32_t FindAttributeName(const AttributeTable<Record>& table, std::string_view name) {
    for (const auto& [index, record] : table) {
        if (record.name == name) {
            return index;
        }
    }
    return 0;
}

/// The number that a new attribute gets.
template <typename Record> std::int32_t NextAttributeIndex(const AttributeTable<Record>& table) {
    return table.empty() ? 1 : table.rbegin()->first + 1;
}

/// BadParameters unless the dashes are an even number of lengths from 0 up, with one above 0.
Host::ErrorCode CheckLineType(const Host::LineType& lineType);

/// BadParameters unless the channels and shares lie in [0..1].
Host::ErrorCode CheckSurface(const Host::ModelSurface& surface);

/// BadParameters unless every layer has exactly one state, RefusedParameters where the first layer
/// is hidden or locked.
Host::ErrorCode CheckCombination(const Project& project, const Host::LayerCombination& combination);

/// Gives a new layer its state in every combination: visible and unlocked.
void ShowInCombinations(Project& project, Host::AttributeIndex layer);

/// Takes a layer combination's new name over into the views that have it.
void RenameInViews(Project& project, std::string_view oldName, const std::string& newName);

} // namespace Merivane::Workbench
