#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "Host/Library.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Session.hpp"

// Sections of parts that stand in the project.
namespace Merivane::Host {

namespace {

using namespace Workbench::Parts;
using Workbench::CurrentSession;
using Workbench::ProjectPart;

/// The document of a part; of one that stands in the project's own file its parameters alone.
std::optional<PartDocument> DocumentOf(std::int32_t index) {
    const std::int32_t place = Workbench::LibraryPlaceOf(index);
    if (place < 0) {
        return std::nullopt;
    }
    const ProjectPart& part = CurrentSession().project.parts[static_cast<std::size_t>(place)];
    if (part.document) {
        return part.document;
    }
    PartDocument document;
    document.hasParameters = part.source == Workbench::PartSource::Project;
    document.parameters = Workbench::MakeFileParameters(part.sizeA, part.sizeB, part.parameters);
    return document;
}

std::string WithCarriageReturns(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    for (const char c : text) {
        lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    return lines;
}

template <typename Section>
const Section* FindSection(const std::vector<Section>& sections, const PartSection& wanted) {
    const auto found =
        std::find_if(sections.begin(), sections.end(), [&wanted](const Section& section) {
            return section.type == wanted.type && section.subIdent == wanted.subIdent;
        });
    return found == sections.end() ? nullptr : &*found;
}

const PictureSection* FindPicture(const PartDocument& document, const PartSection& wanted) {
    const bool isPreview = wanted.type == "PICT";
    const auto found = std::find_if(
        document.pictures.begin(), document.pictures.end(), [&](const PictureSection& picture) {
            return picture.isPreview == isPreview && picture.subIdent == wanted.subIdent;
        });
    return found == document.pictures.end() ? nullptr : &*found;
}

/// The bytes of a section; false for one that the part lacks.
bool SectionBytes(const PartDocument& document, const PartSection& wanted, std::string& bytes) {
    if (wanted.type == "PARD" && wanted.subIdent == 0 && document.hasParameters) {
        bytes = WriteParameterXml(document.parameters);
        return true;
    }
    if (wanted.type == "MCRS" && wanted.subIdent == 0 && !document.macros.empty()) {
        bytes = WriteMacrosXml(document.macros);
        return true;
    }
    if (wanted.type == "PICT" || wanted.type == "GDLP") {
        const PictureSection* const picture = FindPicture(document, wanted);
        if (picture) {
            bytes = picture->mime + '\0' + picture->bytes;
        }
        return picture != nullptr;
    }
    if (const TextSection* const section = FindSection(document.texts, wanted)) {
        bytes = WithCarriageReturns(section->text);
        return true;
    }
    const CustomSection* const section = FindSection(document.custom, wanted);
    if (section) {
        bytes = section->bytes;
    }
    return section != nullptr;
}

} // namespace

ErrorCode ListSections(std::int32_t index, std::vector<PartSection>& sections) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListSections")) {
        return code;
    }
    const std::optional<PartDocument> document = DocumentOf(index);
    if (!document) {
        return BadIndex;
    }
    sections.clear();
    if (!document->macros.empty()) {
        sections.push_back({"MCRS", 0});
    }
    for (const TextSection& section : document->texts) {
        sections.push_back({section.type, section.subIdent});
    }
    if (document->hasParameters) {
        sections.push_back({"PARD", 0});
    }
    if (document->hasCopyright) {
        sections.push_back({"CPYR", 0});
    }
    for (const PictureSection& picture : document->pictures) {
        sections.push_back({picture.isPreview ? "PICT" : "GDLP", picture.subIdent});
    }
    for (const CustomSection& section : document->custom) {
        sections.push_back({section.type, section.subIdent});
    }
    return NoError;
}

ErrorCode ReadSection(std::int32_t index, const PartSection& section, std::string& bytes) {
    if (const ErrorCode code = Workbench::CountProjectCall("ReadSection")) {
        return code;
    }
    const std::optional<PartDocument> document = DocumentOf(index);
    if (!document) {
        return BadIndex;
    }
    if (section.type == "CPYR") {
        return document->hasCopyright ? NotSupported : NoLibrarySection;
    }
    std::string read;
    if (!SectionBytes(*document, section, read)) {
        return NoLibrarySection;
    }
    bytes = std::move(read);
    return NoError;
}

} // namespace Merivane::Host
