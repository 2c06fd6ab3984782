#include "Workbench/Parts/ParameterTags.hpp"

#include <algorithm>
#include <array>

namespace Merivane::Workbench::Parts {

namespace {

using Host::ParameterType;

struct TypeTag {
    ParameterType type = ParameterType::Real;
    std::string_view tag;
};

constexpr std::array<TypeTag, 18> TypeTags = {{
    {ParameterType::Integer, "Integer"},
    {ParameterType::Length, "Length"},
    {ParameterType::Angle, "Angle"},
    {ParameterType::Real, "RealNum"},
    {ParameterType::LightSwitch, "LightSwitch"},
    {ParameterType::Colour, "ColorRGB"},
    {ParameterType::Intensity, "Intensity"},
    {ParameterType::LineType, "LineType"},
    {ParameterType::Surface, "Material"},
    {ParameterType::FillPattern, "FillPattern"},
    {ParameterType::Pen, "PenColor"},
    {ParameterType::String, "String"},
    {ParameterType::Boolean, "Boolean"},
    {ParameterType::Separator, "Separator"},
    {ParameterType::Title, "Title"},
    {ParameterType::BuildingMaterial, "BuildingMaterial"},
    {ParameterType::Profile, "Profile"},
    {ParameterType::Dictionary, "Dictionary"},
}};

constexpr std::int32_t HiddenFromScripts = 0x10;

constexpr std::array<ParameterFlag, 7> Flags = {{
    {Host::ParameterChild, "ParFlg_Child"},
    {Host::ParameterBoldName, "ParFlg_BoldName"},
    {Host::ParameterUnique, "ParFlg_Unique"},
    {HiddenFromScripts, "ParFlg_SHidden"},
    {Host::ParameterOpen, "ParFlg_Open"},
    {Host::ParameterDisabled, "ParFlg_Disabled"},
    {Host::ParameterHidden, "ParFlg_Hidden"},
}};

} // namespace

std::string_view TagOf(ParameterType type) {
    const auto* const found =
        std::find_if(TypeTags.begin(), TypeTags.end(),
                     [type](const TypeTag& entry) { return entry.type == type; });
    return found == TypeTags.end() ? "RealNum" : found->tag;
}

bool FindParameterType(std::string_view tag, ParameterType& type) {
    const auto* const found = std::find_if(
        TypeTags.begin(), TypeTags.end(), [tag](const TypeTag& entry) { return entry.tag == tag; });
    if (found == TypeTags.end()) {
        return false;
    }
    type = found->type;
    return true;
}

std::span<const ParameterFlag> ParameterFlags() {
    return Flags;
}

} // namespace Merivane::Workbench::Parts
