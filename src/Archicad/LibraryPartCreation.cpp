#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/LibraryFolder.hpp"
#include "Archicad/LibraryParameters.hpp"
#include "Archicad/LibraryPartRequest.hpp"
#include "Archicad/LibraryPartWriting.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;

constexpr double UnitSize = 1.0; // of A and B: scripts scale by them [m]

struct TextSection {
    const char* type;
    std::string text;
};

std::vector<TextSection> TextsOf(const LibraryPartRequest& request) {
    return {{CommentSection, request.commentText},
            {KeywordSection, "Vantoro"},
            {CopyrightSection, "Vantoro Add-On"},
            {MasterScriptSection, ""},
            {ModelScriptSection, request.script3D},
            {PlanScriptSection, request.script2D},
            {ParameterScriptSection, request.parameterScript}};
}

ErrorCode WriteTexts(const LibraryPartRequest& request) {
    for (const TextSection& section : TextsOf(request)) {
        if (const ErrorCode code = WriteSection({section.type, 0}, section.text)) {
            return code;
        }
    }
    return Host::NoError;
}

ErrorCode WritePictures(const std::vector<EmbeddedPicture>& pictures) {
    std::int32_t number = 0;
    for (const EmbeddedPicture& picture : pictures) {
        const std::string bytes = picture.mime + '\0' + picture.bytes;
        if (const ErrorCode code = WriteSection({PictureSection, ++number}, bytes)) {
            return code;
        }
    }
    return Host::NoError;
}

/// A part without parameters still shows its body: its other sections are worth more than a list
/// that the host can't take.
ErrorCode WriteParameters(const LibraryPartRequest& request, const Host::NewLibraryPart& part) {
    std::vector<Host::LibraryParameter> parameters = BuildPartParameters(request);
    ReorderParameters(parameters, request.parameters);
    ErrorCode listCode = Host::NoError;
    const ErrorCode code = WriteParameterSection(part, UnitSize, UnitSize, parameters, listCode);
    if (listCode == Host::NoError) {
        return code;
    }
    Commands::ReportLine("a lista de parametros da peca \"" + part.name +
                         "\" nao pode ser montada (erro " + std::to_string(listCode) +
                         ") - o objeto sera criado sem");
    return Host::NoError;
}

ErrorCode WriteSections(const LibraryPartRequest& request, const Host::NewLibraryPart& part) {
    if (const ErrorCode code = WriteTexts(request)) {
        return code;
    }
    if (const ErrorCode code = WritePictures(request.pictures)) {
        return code;
    }
    return WriteParameters(request, part);
}

ErrorCode FindTargetFolder(const LibraryPartRequest& request, std::wstring& folder) {
    if (request.useFolder) {
        folder = request.folder;
        return Host::NoError;
    }
    return EnsureLibraryFolderInProject(folder); // the host makes no part outside its libraries
}

} // namespace

ErrorCode CreateLibraryPart(const LibraryPartRequest& request, std::int32_t& index) {
    Host::NewLibraryPart part;
    part.type = request.partType;
    if (const ErrorCode code = BuiltInParent(request.parentBuiltIn, part.parentId)) {
        return code;
    }
    if (const ErrorCode code = FindTargetFolder(request, part.folder)) {
        return code;
    }
    part.name = FreePartName(part.folder, request.name);
    PartInMaking making;
    if (const ErrorCode code = making.Begin(part)) {
        return code;
    }
    if (const ErrorCode code = WriteSections(request, part)) {
        return code;
    }
    Host::LibraryPart saved;
    const ErrorCode code = making.Finish(saved);
    if (code == Host::NoError) {
        index = saved.index;
    }
    return code;
}

} // namespace Merivane::Archicad
