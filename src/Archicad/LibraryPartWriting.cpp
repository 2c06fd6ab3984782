#include "Archicad/LibraryPartWriting.hpp"

#include <filesystem>
#include <system_error>
#include <utility>

#include "Archicad/LibraryFolder.hpp"
#include "Host/GuidText.hpp"
#include "Text/NativeFile.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;

constexpr int LastNameTried = 1000;
constexpr const char* PartExtension = ".gsm";

std::wstring PartFile(const std::wstring& folder, const std::string& name) {
    return PathIn(folder, Text::Widen(name + PartExtension));
}

/// Of two parts of one name in a project's libraries the host uses one without telling which.
bool IsTaken(const std::wstring& folder, const std::string& name) {
    std::error_code failure;
    Host::LibraryPart other;
    return std::filesystem::exists(Text::NativePath(PartFile(folder, name)), failure) ||
           Host::FindLibraryPart(name, other) == Host::NoError;
}

/// The host has taken a half-made part among its own when it was saved.
void ForgetRemovedParts() {
    std::vector<Host::Library> libraries;
    std::int32_t embedded = -1;
    if (Host::GetLibraries(libraries, embedded) == Host::NoError) {
        Host::SetLibraries(libraries);
    }
}

} // namespace

ErrorCode ReadScriptSection(std::int32_t index, std::string_view type, std::string& text) {
    return Host::ReadSection(index, {std::string(type), 0}, text);
}

ErrorCode WriteSection(const Host::PartSection& section, std::string_view bytes) {
    if (const ErrorCode code = Host::NewSection(section)) {
        return code;
    }
    const ErrorCode written = Host::WriteSection(bytes);
    const ErrorCode ended = Host::EndSection();
    return written != Host::NoError ? written : ended;
}

std::string FreePartName(const std::wstring& folder, std::string_view name) {
    std::string tried(name);
    for (int n = 2; n <= LastNameTried && IsTaken(folder, tried); ++n) {
        tried = std::string(name) + "_" + std::to_string(n);
    }
    return tried;
}

ErrorCode BuiltInParent(std::int32_t number, std::string& parentId) {
    Host::Guid guid;
    if (const ErrorCode code = Host::GetBuiltInPart(number, guid)) {
        return code;
    }
    if (guid == Host::Guid{}) {
        return Host::BadParameters;
    }
    parentId = Host::GuidText(guid) + "-" + Host::GuidText({});
    return Host::NoError;
}

ErrorCode WriteParameterSection(const Host::NewLibraryPart& part, double sizeA, double sizeB,
                                const std::vector<Host::LibraryParameter>& parameters,
                                ErrorCode& listCode, std::string_view details) {
    std::string bytes;
    listCode = Host::MakeParameterSection(part, sizeA, sizeB, parameters, bytes);
    if (listCode == Host::NoError && !details.empty()) {
        listCode = Host::SetPartDetails(details, bytes);
    }
    if (listCode != Host::NoError) {
        return listCode;
    }
    return WriteSection({ParameterListSection, 0}, bytes);
}

PartInMaking::~PartInMaking() {
    if (!file.empty()) {
        Host::LibraryPart halfMade;
        Host::SavePart(halfMade);
        Text::RemoveFile(file);
        ForgetRemovedParts();
    }
}

ErrorCode PartInMaking::Begin(const Host::NewLibraryPart& part) {
    const ErrorCode code = Host::CreatePart(part);
    if (code == Host::NoError) {
        file = PartFile(part.folder, part.name);
    }
    return code;
}

ErrorCode PartInMaking::Finish(Host::LibraryPart& saved) {
    const std::wstring made = std::exchange(file, {});
    const ErrorCode code = Host::SavePart(saved);
    if (code != Host::NoError) {
        Text::RemoveFile(made);
    }
    return code;
}

} // namespace Merivane::Archicad
