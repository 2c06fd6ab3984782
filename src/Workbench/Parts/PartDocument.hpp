#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Library.hpp"
#include "Host/LibraryParameter.hpp"
#include "Host/Types.hpp"

/// Library parts as files: one part with everything in it, as plain records.
namespace Merivane::Workbench::Parts {

/// A section that is text: a script, the comment or the keywords.
struct TextSection {
    std::string type; ///< the host's four letters: "3DSC", "CTXT"
    std::int32_t subIdent = 0;
    std::string text; ///< UTF-8, lines end with LF

    bool operator==(const TextSection&) const = default;
};

/// A picture that travels with the part.
struct PictureSection {
    bool isPreview = false; ///< "PICT", shown in dialogs; else "GDLP", drawn by scripts
    std::int32_t subIdent = 0;
    std::string mime;  ///< "image/png"
    std::string bytes; ///< of the file; empty where only `path` is known
    std::string path;  ///< of a picture outside the file, relative; empty = inside

    bool operator==(const PictureSection&) const = default;
};

/// A section that only the add-on that wrote it understands.
struct CustomSection {
    std::string type; ///< four letters
    std::int32_t subIdent = 0;
    std::string bytes;

    bool operator==(const CustomSection&) const = default;
};

/// A part that scripts call.
struct CalledMacro {
    std::string name; ///< UTF-8
    Host::Guid mainGuid;

    bool operator==(const CalledMacro&) const = default;
};

/// Who may do what with the part.
struct Copyright {
    std::string author; ///< UTF-8
    std::string licence;
    std::string licenceVersion;

    bool operator==(const Copyright&) const = default;
};

/// A parameter as its file tells it.
struct PartParameter {
    Host::LibraryParameter value; ///< angles in degrees, as in scripts; one column of an array as 0
    std::string kept;             ///< XML of a dictionary, whose value has no other form

    bool operator==(const PartParameter&) const = default;
};

/// The parameters of the sizes, 1 m each.
Host::LibraryParameter MakeSizeA();
Host::LibraryParameter MakeSizeB();

/// The parameter section: the sizes, and the other parameters in their order.
struct ParameterSection {
    Host::LibraryParameter sizeA = MakeSizeA(); ///< `number` [m]
    Host::LibraryParameter sizeB = MakeSizeB();
    std::vector<PartParameter> parameters;
    std::string header; ///< XML of the section's header as it was read; empty = the usual one

    bool operator==(const ParameterSection&) const = default;
};

/// A part with everything in it but its name, which is its file's.
struct PartDocument {
    Host::Guid mainGuid; ///< through all revisions
    Host::Guid revision; ///< none for a file that was not written here
    Host::PartType type = Host::PartType::Object;
    bool isPlaceable = true;
    bool isArchivable = false;
    bool isTemplate = false;
    std::string migration = "Normal";
    std::int64_t owner = 0;
    std::int64_t signature = 1196644685; ///< of parts that are placed
    std::int64_t version = 46;           ///< of the format
    std::vector<Host::Guid> ancestry;    ///< root first, parent last
    std::vector<CalledMacro> macros;
    std::vector<TextSection> texts; ///< sorted by `SortSections`
    bool hasParameters = true;
    ParameterSection parameters;
    bool hasCopyright = false;
    Copyright copyright;
    std::vector<PictureSection> pictures;
    std::vector<CustomSection> custom;
    std::vector<std::string> kept; ///< XML of sections that have no other place here

    bool operator==(const PartDocument&) const = default;
};

/// The sections that are text, in the order of files: identifier, name of the XML element, file of
/// a part's folder (none for comment and keywords), version of the section's form.
struct TextSectionKind {
    std::string_view type;
    std::string_view element;
    std::string_view file;
    std::int32_t version = 0;
};
const std::vector<TextSectionKind>& TextSectionKinds();

/// The kind of an identifier, null for one that is no text.
const TextSectionKind* FindTextSectionKind(std::string_view type);

/// Brings the sections into the order in which files hold them.
void SortSections(PartDocument& document);

/// The text of a section, null for none.
const std::string* FindText(const PartDocument& document, std::string_view type);

/// True for a name that a parameter can have: ASCII without blanks, 1 to 31 characters.
bool IsParameterName(std::string_view name);

} // namespace Merivane::Workbench::Parts
