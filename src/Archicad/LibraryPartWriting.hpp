#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Library.hpp"

/// Thin layers over the host's writing of library parts.
namespace Merivane::Archicad {

/// Letters of a part's sections.
inline constexpr const char* MasterScriptSection = "1DSC";
inline constexpr const char* PlanScriptSection = "2DSC";
inline constexpr const char* ModelScriptSection = "3DSC";
inline constexpr const char* ParameterScriptSection = "VLSC";
inline constexpr const char* PlanDrawingSection = "2DDR"; ///< lines instead of a script
inline constexpr const char* ParameterListSection = "PARD";
inline constexpr const char* CommentSection = "CTXT";
inline constexpr const char* KeywordSection = "KWRD";
inline constexpr const char* CopyrightSection = "CPYR";
inline constexpr const char* PictureSection = "GDLP"; ///< numbered from 1

/// Number of the host's own subtype of light sources.
inline constexpr std::int32_t LightSubtype = 118;

/// A text section of a part, its first one of this type. The host's codes; `text` is then as it
/// was.
Host::ErrorCode ReadScriptSection(std::int32_t index, std::string_view type, std::string& text);

/// Writes a whole section of the part that is being made. The first code that the host gives; the
/// section is ended on every path.
Host::ErrorCode WriteSection(const Host::PartSection& section, std::string_view bytes);

/// `name`, or with "_2", "_3" up to "_1000" behind it, the first that neither a part's file in
/// `folder` nor a part of the project has; the last of these where all are taken.
std::string FreePartName(const std::wstring& folder, std::string_view name);

/// The identifier of one of the host's own subtypes, as a part names what it derives from.
/// BadParameters for a number without one.
Host::ErrorCode BuiltInParent(std::int32_t number, std::string& parentId);

/// The host's own form of the parameters, written as the part's section. `listCode` tells whether
/// they could be brought into that form, the result whether the section could be written, too.
/// `details` are those of a part that this one is made from, empty for one from scratch.
Host::ErrorCode WriteParameterSection(const Host::NewLibraryPart& part, double sizeA, double sizeB,
                                      const std::vector<Host::LibraryParameter>& parameters,
                                      Host::ErrorCode& listCode, std::string_view details = {});

/// A part that is being made: the host wants it saved whatever happens after it was begun. One that
/// is not finished when this goes is saved, its file removed and the libraries read anew, so that
/// no half-made part stays; indices of parts given out before are void then.
class PartInMaking {
public:
    PartInMaking() = default;
    ~PartInMaking();
    PartInMaking(const PartInMaking&) = delete;
    PartInMaking& operator=(const PartInMaking&) = delete;

    /// To be called once; on failure there is nothing to finish.
    Host::ErrorCode Begin(const Host::NewLibraryPart& part);

    /// Saves the part; on failure its file is removed.
    Host::ErrorCode Finish(Host::LibraryPart& saved);

private:
    std::wstring file; ///< empty = nothing to save
};

} // namespace Merivane::Archicad
