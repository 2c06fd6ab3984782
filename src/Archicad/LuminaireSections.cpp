#include "Archicad/LuminaireSections.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/LibraryPartWriting.hpp"
#include "Gdl/GeneratedBlock.hpp"
#include "Gdl/LuminaireScripts.hpp"
#include "Gdl/ScriptNames.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;

constexpr std::string_view DrawStoredPlan = "FRAGMENT2 ALL, 0\r\n";

constexpr std::array<std::string_view, 4> ScriptSections = {
    MasterScriptSection, ModelScriptSection, PlanScriptSection, ParameterScriptSection};

/// What a copy does not take over: the comment tells of another part, the parameters are written
/// anew, and head, ancestry and type the host writes itself for every part.
constexpr std::array<std::string_view, 5> SectionsOfThePartItself = {
    CommentSection, ParameterListSection, "HEAD", "ANCS", "TYPE"};

bool IsCopied(const Host::PartSection& section) {
    return std::find(SectionsOfThePartItself.begin(), SectionsOfThePartItself.end(),
                     section.type) == SectionsOfThePartItself.end();
}

/// The part's own section of a type, not one of several further ones; null when there is none.
CopiedSection* FindSection(std::vector<CopiedSection>& sections, std::string_view type) {
    const auto found =
        std::find_if(sections.begin(), sections.end(), [type](const CopiedSection& section) {
            return section.section.type == type && section.section.subIdent == 0;
        });
    return found == sections.end() ? nullptr : &*found;
}

bool HasSection(const std::vector<CopiedSection>& sections, std::string_view type) {
    return std::any_of(sections.begin(), sections.end(), [type](const CopiedSection& section) {
        return section.section.type == type;
    });
}

void SetSection(std::vector<CopiedSection>& sections, std::string_view type, std::string bytes) {
    if (CopiedSection* const section = FindSection(sections, type)) {
        section->bytes = std::move(bytes);
    } else {
        sections.push_back({{std::string(type), 0}, std::move(bytes)});
    }
}

} // namespace

ErrorCode CopySections(std::int32_t index, std::vector<CopiedSection>& sections,
                       std::vector<std::string>& warnings) {
    std::vector<Host::PartSection> listed;
    if (const ErrorCode code = Host::ListSections(index, listed)) {
        return code;
    }
    for (const Host::PartSection& section : listed) {
        if (!IsCopied(section)) {
            continue;
        }
        std::string bytes;
        if (const ErrorCode code = Host::ReadSection(index, section, bytes)) {
            warnings.push_back("secao " + section.type + " nao pode ser lida (" +
                               Commands::ErrorName(code) + ") e nao foi copiada");
        } else {
            sections.push_back({section, std::move(bytes)});
        }
    }
    return Host::NoError;
}

void AddModelBlock(std::vector<CopiedSection>& sections, std::vector<std::string>& warnings) {
    if (CopiedSection* const script = FindSection(sections, ModelScriptSection)) {
        script->bytes = Photometry::Script3DWithBlock(script->bytes);
        return;
    }
    SetSection(sections, ModelScriptSection, Photometry::Script3DWithBlock(""));
    warnings.push_back("a peca de origem nao tinha script 3D; foi criado um so com a fonte de luz");
}

void AddPlanBlock(std::vector<CopiedSection>& sections, std::vector<std::string>& warnings) {
    CopiedSection* const script = FindSection(sections, PlanScriptSection);
    const std::string own =
        script == nullptr ? std::string() : Photometry::RemoveGeneratedBlock(script->bytes);
    if (!Text::Trim(own).empty()) {
        script->bytes = Photometry::Script2DWithBlock(own);
    } else if (HasSection(sections, PlanDrawingSection)) {
        SetSection(sections, PlanScriptSection, Photometry::Script2DWithBlock(DrawStoredPlan));
    } else {
        warnings.push_back("a peca de origem desenha a planta sem script 2D: o marcador do centro "
                           "e o texto do circuito nao aparecem");
    }
}

void AddParameterBlock(std::vector<CopiedSection>& sections,
                       const std::vector<std::string>& hiddenNames) {
    if (FindSection(sections, ParameterScriptSection) == nullptr) {
        sections.push_back({{ParameterScriptSection, 0}, ""});
    }
    for (CopiedSection& section : sections) {
        if (section.section == Host::PartSection{ParameterScriptSection, 0}) {
            section.bytes = Photometry::MasterScriptWithBlock(section.bytes, hiddenNames, "");
        }
    }
}

bool UseParameter(const std::vector<CopiedSection>& sections, std::string_view name) {
    return std::any_of(sections.begin(), sections.end(), [name](const CopiedSection& section) {
        const bool isScript = std::find(ScriptSections.begin(), ScriptSections.end(),
                                        section.section.type) != ScriptSections.end();
        return isScript && (Photometry::ScriptNames(section.bytes, name) ||
                            (Photometry::ScriptNames(section.bytes, "PARAMETERS") &&
                             Photometry::ScriptNames(section.bytes, "ALL")));
    });
}

} // namespace Merivane::Archicad
