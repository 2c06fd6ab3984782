#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "Host/Library.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Model/PartRuns.hpp"
#include "Workbench/PartInMaking.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Session.hpp"

// The making of parts.
namespace Merivane::Host {

namespace {

using namespace Workbench::Parts;
using Workbench::CurrentSession;
using Workbench::PartInMaking;

constexpr std::int32_t HighestSubIdent = 65535;

bool IsFileName(const std::string& name) {
    constexpr std::size_t longest = 251; // bytes, 255 with the ending
    return !name.empty() && name.size() <= longest && Text::IsPlainText(name) &&
           name.find_first_of("/\\:*?\"<>|") == std::string::npos && name.front() != '.' &&
           name.back() != '.' && name.front() != ' ' && name.back() != ' ';
}

std::wstring FileOf(const NewLibraryPart& part) {
    const std::wstring name = Text::Widen(part.name) + std::wstring(Workbench::PartFileEnding);
    return Text::WidePath(Text::NativePath(part.folder) / Text::NativePath(name));
}

ErrorCode CheckFolder(const std::wstring& folder) {
    const Workbench::Session& session = CurrentSession();
    for (const Workbench::ProjectLibrary& library : session.project.libraries) {
        const std::wstring path = Workbench::FolderOfLibrary(library, session.projectPath);
        std::error_code code;
        const bool available =
            library.embedded || std::filesystem::is_directory(Text::NativePath(path), code);
        if (available && Workbench::IsInsideFolder(folder, path)) {
            return Workbench::IsReadOnlyFolder(path) || Workbench::IsReadOnlyFolder(folder)
                       ? ReadOnly
                       : NoError;
        }
    }
    return NoLibrary;
}

/// A file of this name stands in the folder, or a part of the project has the name: then the new
/// one would be left out when the libraries are read again.
bool IsNameInUse(const NewLibraryPart& part) {
    std::error_code code;
    const auto& parts = CurrentSession().project.parts;
    return std::filesystem::exists(Text::NativePath(FileOf(part)), code) ||
           std::any_of(parts.begin(), parts.end(), [&part](const Workbench::ProjectPart& other) {
               return other.name == part.name && other.source != Workbench::PartSource::Missing;
           });
}

ErrorCode CheckNewPart(const NewLibraryPart& part) {
    Guid parent;
    if (!IsFileName(part.name)) {
        return BadParameters;
    }
    if (!ParseUniqueId(part.parentId, parent) || parent == Guid()) {
        return BadId;
    }
    if (const ErrorCode code = CheckFolder(part.folder)) {
        return code;
    }
    return IsNameInUse(part) ? NameInUse : NoError;
}

std::vector<Guid> AncestryOf(const NewLibraryPart& part) {
    Guid parent;
    ParseUniqueId(part.parentId, parent);
    return Workbench::AncestryBelow(CurrentSession().project, parent);
}

/// The section that is begun, null for none.
PartInMaking* PartWithSection() {
    std::optional<PartInMaking>& making = CurrentSession().partInMaking;
    return making && making->section ? &*making : nullptr;
}

/// Puts a section in the place of one of the same kind and number, else behind the others.
template <typename Section, typename IsSame>
void PutSection(std::vector<Section>& sections, Section section, IsSame isSame) {
    const auto found = std::find_if(sections.begin(), sections.end(), isSame);
    if (found == sections.end()) {
        sections.push_back(std::move(section));
    } else {
        *found = std::move(section);
    }
}

ErrorCode TakePicture(PartDocument& document, const PartSection& section,
                      const std::string& bytes) {
    const std::size_t end = bytes.find('\0');
    if (end == std::string::npos) {
        return GeneralError;
    }
    PictureSection picture;
    picture.isPreview = section.type == "PICT";
    picture.subIdent = section.subIdent;
    picture.mime = Text::ShownText(bytes.substr(0, end));
    picture.bytes = bytes.substr(end + 1);
    PutSection(document.pictures, picture, [&picture](const PictureSection& other) {
        return other.isPreview == picture.isPreview && other.subIdent == picture.subIdent;
    });
    return NoError;
}

ErrorCode TakeSection(PartDocument& document, const PartSection& section,
                      const std::string& bytes) {
    std::string ignored;
    const auto isSame = [&section](const auto& other) {
        return other.type == section.type && other.subIdent == section.subIdent;
    };
    if (section.type == "PARD") {
        document.hasParameters = ReadParameterXml(bytes, document.parameters, ignored);
        return document.hasParameters ? NoError : GeneralError;
    }
    if (section.type == "MCRS") {
        return ReadMacrosXml(bytes, document.macros, ignored) ? NoError : GeneralError;
    }
    if (section.type == "PICT" || section.type == "GDLP") {
        return TakePicture(document, section, bytes);
    }
    if (section.type == "CPYR") {
        document.hasCopyright = true;
        document.copyright.author = Text::ShownText(bytes);
    } else if (FindTextSectionKind(section.type)) {
        PutSection(document.texts,
                   TextSection{section.type, section.subIdent, Text::ShownLines(bytes)}, isSame);
    } else {
        PutSection(document.custom, CustomSection{section.type, section.subIdent, bytes}, isSame);
    }
    return NoError;
}

/// What only the host writes.
bool IsHostsOwn(const std::string& type) {
    return type == "HEAD" || type == "ANCS" || type == "TYPE";
}

bool IsSectionType(const std::string& type) {
    constexpr std::size_t letters = 4;
    return type.size() == letters &&
           std::all_of(type.begin(), type.end(), [](char c) { return c > ' ' && c < '\x7F'; });
}

/// The document as it was told by then, with the identity of a new part.
PartDocument FinishDocument(PartInMaking& making) {
    PartDocument document = std::move(making.document);
    document.mainGuid = Workbench::FreshGuid();
    document.revision = Workbench::FreshGuid();
    document.type = making.part.type;
    document.isPlaceable = making.part.isPlaceable;
    document.isTemplate = making.part.isTemplate;
    document.ancestry = AncestryOf(making.part);
    SortSections(document);
    return document;
}

ErrorCode WritePartFile(const PartInMaking& making, const PartDocument& document) {
    if (const ErrorCode code = CheckFolder(making.part.folder)) {
        return code;
    }
    std::error_code failure;
    std::filesystem::create_directories(Text::NativePath(making.part.folder), failure);
    return Text::ReplaceFile(making.file, WritePartXml(document)) ? NoError : GeneralError;
}

} // namespace

ErrorCode CreatePart(const NewLibraryPart& part) {
    if (const ErrorCode code = Workbench::CountStructureCall("CreatePart")) {
        return code;
    }
    std::optional<PartInMaking>& making = CurrentSession().partInMaking;
    if (making) {
        return Nesting;
    }
    if (const ErrorCode code = CheckNewPart(part)) {
        return code;
    }
    making.emplace();
    making->part = part;
    making->file = FileOf(part);
    making->document.hasParameters = false;
    return NoError;
}

ErrorCode NewSection(const PartSection& section) {
    if (const ErrorCode code = Workbench::CountProjectCall("NewSection")) {
        return code;
    }
    std::optional<PartInMaking>& making = CurrentSession().partInMaking;
    if (!making) {
        return NotInitialised;
    }
    if (making->section) {
        return Nesting;
    }
    if (!IsSectionType(section.type) || section.subIdent < 0 ||
        section.subIdent > HighestSubIdent) {
        return BadParameters;
    }
    if (IsHostsOwn(section.type)) {
        return NotSupported;
    }
    making->section = section;
    making->bytes.clear();
    return NoError;
}

ErrorCode WriteSection(std::string_view bytes) {
    if (const ErrorCode code = Workbench::CountProjectCall("WriteSection")) {
        return code;
    }
    PartInMaking* const making = PartWithSection();
    if (!making) {
        return NotInitialised;
    }
    making->bytes += bytes;
    return NoError;
}

ErrorCode EndSection() {
    const ErrorCode code = Workbench::CountProjectCall("EndSection");
    PartInMaking* const making = PartWithSection();
    if (!making) {
        return code != NoError ? code : NotInitialised;
    }
    const PartSection section = *std::exchange(making->section, std::nullopt);
    const std::string bytes = std::exchange(making->bytes, {});
    return code != NoError ? code : TakeSection(making->document, section, bytes);
}

ErrorCode SavePart(LibraryPart& part) {
    const ErrorCode code = Workbench::CountStructureCall("SavePart");
    Workbench::Session& session = CurrentSession();
    std::optional<PartInMaking> making = std::exchange(session.partInMaking, std::nullopt);
    if (code != NoError || !making) {
        return code != NoError ? code : NotInitialised;
    }
    PartDocument document = FinishDocument(*making);
    if (const ErrorCode failure = WritePartFile(*making, document)) {
        return failure;
    }
    auto& parts = session.project.parts;
    parts.push_back(
        Workbench::MakeLibraryPart(making->part.name, making->file, std::move(document)));
    Workbench::ForgetPartRuns(session.project); // scripts may have called it before it was there
    return GetLibraryPart(Workbench::LibraryIndexOf(parts.size() - 1), part);
}

} // namespace Merivane::Host
