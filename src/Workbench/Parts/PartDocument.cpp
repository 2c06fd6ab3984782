#include "Workbench/Parts/PartDocument.hpp"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace Merivane::Workbench::Parts {

namespace {

std::size_t RankOf(std::string_view type) {
    const auto& kinds = TextSectionKinds();
    return static_cast<std::size_t>(
        std::find_if(kinds.begin(), kinds.end(),
                     [type](const TextSectionKind& kind) { return kind.type == type; }) -
        kinds.begin());
}

Host::LibraryParameter MakeSize(std::string name, std::string description) {
    Host::LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.description = std::move(description);
    parameter.type = Host::ParameterType::Length;
    parameter.flags = Host::ParameterFixed;
    parameter.number = 1.0;
    return parameter;
}

} // namespace

Host::LibraryParameter MakeSizeA() {
    return MakeSize("A", "Comprimento");
}

Host::LibraryParameter MakeSizeB() {
    return MakeSize("B", "Largura");
}

const std::vector<TextSectionKind>& TextSectionKinds() {
    constexpr std::int32_t script = 20;
    static const std::vector<TextSectionKind> Kinds = {
        {"3DSC", "Script_3D", "3d.gdl", script},
        {"2DSC", "Script_2D", "2d.gdl", script},
        {"1DSC", "Script_1D", "1d.gdl", script},
        {"PRSC", "Script_PR", "pr.gdl", script},
        {"UISC", "Script_UI", "ui.gdl", script},
        {"VLSC", "Script_VL", "vl.gdl", script},
        {"FMSC", "Script_FWM", "fwm.gdl", script},
        {"BMSC", "Script_BWM", "bwm.gdl", script},
        {"KWRD", "Keywords", "", 1},
        {"CTXT", "Comment", "", 20},
    };
    return Kinds;
}

const TextSectionKind* FindTextSectionKind(std::string_view type) {
    const std::size_t rank = RankOf(type);
    return rank < TextSectionKinds().size() ? &TextSectionKinds()[rank] : nullptr;
}

void SortSections(PartDocument& document) {
    std::stable_sort(document.texts.begin(), document.texts.end(),
                     [](const TextSection& a, const TextSection& b) {
                         return std::pair(RankOf(a.type), a.subIdent) <
                                std::pair(RankOf(b.type), b.subIdent);
                     });
    std::stable_sort(document.pictures.begin(), document.pictures.end(),
                     [](const PictureSection& a, const PictureSection& b) {
                         return std::tuple(!a.isPreview, a.subIdent) <
                                std::tuple(!b.isPreview, b.subIdent);
                     });
    std::stable_sort(document.custom.begin(), document.custom.end(),
                     [](const CustomSection& a, const CustomSection& b) {
                         return std::tie(a.type, a.subIdent) < std::tie(b.type, b.subIdent);
                     });
}

const std::string* FindText(const PartDocument& document, std::string_view type) {
    const auto found =
        std::find_if(document.texts.begin(), document.texts.end(),
                     [type](const TextSection& section) { return section.type == type; });
    return found == document.texts.end() ? nullptr : &found->text;
}

bool IsParameterName(std::string_view name) {
    constexpr std::size_t longest = 31; // the host keeps 32 bytes with the NUL
    return !name.empty() && name.size() <= longest &&
           std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c < '\x7F'; });
}

} // namespace Merivane::Workbench::Parts
