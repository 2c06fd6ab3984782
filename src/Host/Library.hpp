#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/LibraryParameter.hpp"
#include "Host/Types.hpp"

/// The project's libraries, the parts in them, and the writing of parts. Defined by whichever host
/// is linked; nothing throws. Called on the main thread only.
namespace Merivane::Host {

/// The host's own numbers for the kinds of library parts.
enum class PartType : std::int32_t {
    Unknown = 0,
    Window = 2,
    Door = 3,
    Object = 4,
    Lamp = 5,
    ZoneStamp = 6,
    Property = 7,
    PlanSign = 8,
    Label = 9,
    Macro = 10,
    Picture = 11,
    ListScheme = 12,
    Skylight = 13,
};

/// A library part of the open project.
struct LibraryPart {
    std::int32_t index = 0; ///< of this session, until the list of libraries changes
    std::string name;       ///< UTF-8, without extension
    Guid mainGuid;          ///< what the part is, through all its revisions
    bool isLamp = false;    ///< placed by the Lamp tool, else by the Object tool
    PartType type = PartType::Object;
    Guid revision;           ///< changes each time the part is saved
    std::wstring path;       ///< of its file; empty for a part that stands in no library folder
    std::string parentId;    ///< "{GUID}-{GUID}" of the subtype or part it derives from
    bool isPlaceable = true; ///< false for macros and subtypes
};

/// Number of parts that can be read: their indices need not follow one another.
ErrorCode ListLibraryParts(std::vector<std::int32_t>& indices);

/// Reads a part by its index. BadIndex, also for one of before a change of the libraries;
/// MissingDefinition, with the name filled, when its file has gone.
ErrorCode GetLibraryPart(std::int32_t index, LibraryPart& part);

/// Finds a part by its name. BadName.
ErrorCode FindLibraryPart(std::string_view name, LibraryPart& part);

/// The default sizes [m] and parameters of a part. BadIndex.
ErrorCode GetPartParameters(std::int32_t index, double& sizeA, double& sizeB,
                            std::vector<LibraryParameter>& parameters);

/// How a part treats its parameters (its size fixed or stretchable, hotspots, pages of its
/// settings) in the host's own form, to be handed on to a part made from it. BadIndex.
ErrorCode GetPartDetails(std::int32_t index, std::string& details);

/// The host's own numbers for the kinds of libraries.
enum class LibraryKind : std::int32_t {
    Undefined = 0,
    Local = 1,
    Url = 2,
    BuiltIn = 3,
    Embedded = 4
};

/// One library in the project's list.
struct Library {
    std::string name;  ///< UTF-8
    std::wstring path; ///< full path of its folder
    LibraryKind kind = LibraryKind::Local;
    bool available = true; ///< false when the folder is not there
    bool readOnly = false;

    bool operator==(const Library&) const = default;
};

/// The project's list of libraries, in its order; `embedded` is the place of the embedded one in
/// it, -1 for none.
ErrorCode GetLibraries(std::vector<Library>& libraries, std::int32_t& embedded);

/// Appends a folder to the list and reads its parts; it becomes the folder of new parts. Indices of
/// parts given out before are void. UndoScopeMisuse inside a step; BadParameters for a folder that
/// does not exist; nothing happens for one that is in the list already.
ErrorCode AddLibrary(const std::wstring& folder);

/// Replaces the list, and reads every part anew. Indices of parts given out before are void.
/// UndoScopeMisuse inside a step; BadParameters without the embedded one that the list had.
ErrorCode SetLibraries(const std::vector<Library>& libraries);

/// A section of a part: the host's four letters ("3DSC", "PARD", "PICT"), and a number that tells
/// several of one kind apart.
struct PartSection {
    std::string type;
    std::int32_t subIdent = 0;

    bool operator==(const PartSection&) const = default;
};

/// The sections that a part has, in their order. BadIndex.
ErrorCode ListSections(std::int32_t index, std::vector<PartSection>& sections);

/// A section's bytes: scripts, comment and keywords are UTF-8 with CR LF line ends; a picture
/// begins with its MIME type and a zero; "PARD" is the host's own form. BadIndex; NoLibrarySection;
/// the copyright cannot be read (NotSupported).
ErrorCode ReadSection(std::int32_t index, const PartSection& section, std::string& bytes);

/// What a part is created from.
struct NewLibraryPart {
    PartType type = PartType::Object;
    std::string name;     ///< UTF-8; its file is the name with ".gsm"
    std::wstring folder;  ///< inside one of the project's libraries
    std::string parentId; ///< "{GUID}-{GUID}"; the second may be zero
    bool isPlaceable = true;
    bool isTemplate = false;
};

/// Begins a part: its sections follow, then `SavePart`, which must be called after every success
/// here, whatever happens in between. Nesting while another is begun; BadParameters for an empty
/// name or one that no file can have; BadId for a parent that is no identifier; NoLibrary for a
/// folder outside the project's libraries; ReadOnly; NameInUse when the file stands already;
/// UndoScopeMisuse inside a step.
ErrorCode CreatePart(const NewLibraryPart& part);

/// Begins a section of the part that is being made, adds bytes to it, and ends it. NotInitialised
/// without a part or section begun; Nesting for a section inside another; BadParameters for a type
/// that is not four letters; GeneralError for a "PARD" that is not the host's own form.
ErrorCode NewSection(const PartSection& section);
ErrorCode WriteSection(std::string_view bytes);
ErrorCode EndSection();

/// The host's own form of a list of parameters for a part of this type, for section "PARD": A, B
/// and the subtype's own come by themselves. BadParameters for a name that is no parameter's
/// (empty, over 31 characters, not ASCII, there twice), for an array that does not hold its numbers
/// and for a dictionary without its content. The part is one of fixed size.
ErrorCode MakeParameterSection(const NewLibraryPart& part, double sizeA, double sizeB,
                               const std::vector<LibraryParameter>& parameters, std::string& bytes);

/// Sets in such a list what `GetPartDetails` told of another part. BadParameters, with `bytes` as
/// they were, for what is none of the two.
ErrorCode SetPartDetails(std::string_view details, std::string& bytes);

/// Ends the part that is being made, writes its file in one step and reads it into the project;
/// `part` tells what became of it, with its new index, a new main identity and a new revision.
/// NotInitialised without one; ReadOnly and GeneralError when the file can't be written, and then
/// none stands there.
ErrorCode SavePart(LibraryPart& part);

/// Identity of a subtype that the host brings, by its number (118 = Light, 106 = general object,
/// 120 = model element); all zeros for a number without one.
ErrorCode GetBuiltInPart(std::int32_t number, Guid& guid);

} // namespace Merivane::Host
