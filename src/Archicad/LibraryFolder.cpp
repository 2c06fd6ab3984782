#include "Archicad/LibraryFolder.hpp"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <vector>

#include "Host/Library.hpp"
#include "Host/Session.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;
using std::filesystem::perms;

constexpr perms AnyWrite = perms::owner_write | perms::group_write | perms::others_write;

/// By its attributes alone: what the system refuses beyond them the host tells at the first write.
bool IsWriteable(const std::wstring& folder) {
    std::error_code failure;
    const auto status = std::filesystem::status(Text::NativePath(folder), failure);
    return !failure && std::filesystem::is_directory(status) &&
           (status.permissions() & AnyWrite) != perms::none;
}

void MakeFolder(const std::wstring& folder) {
    std::error_code failure; // whoever asks whether it can be written into finds out
    std::filesystem::create_directories(Text::NativePath(folder), failure);
}

std::filesystem::path Plain(const std::wstring& path) {
    const std::filesystem::path plain = Text::NativePath(path).lexically_normal();
    return plain.has_filename() ? plain : plain.parent_path();
}

/// The C library's own lowering leaves accented letters alone in the locale that programs begin in.
wchar_t Lowered(wchar_t letter) {
    constexpr wchar_t toSmall = L'a' - L'A';
    constexpr wchar_t timesSign = 0xD7;
    const bool isCapital = (letter >= L'A' && letter <= L'Z') ||
                           (letter >= 0xC0 && letter <= 0xDE && letter != timesSign);
    return isCapital ? static_cast<wchar_t>(letter + toSmall) : letter;
}

std::wstring LoweredPath(std::wstring path) {
    std::transform(path.begin(), path.end(), path.begin(), Lowered);
    return path;
}

} // namespace

std::wstring PathIn(const std::wstring& folder, std::wstring_view name) {
    return Text::WidePath(Text::NativePath(folder) / Text::NativePath(std::wstring(name)));
}

bool IsSameFolder(const std::wstring& a, const std::wstring& b, bool ignoreCase) {
    return ignoreCase ? Plain(LoweredPath(a)) == Plain(LoweredPath(b)) : Plain(a) == Plain(b);
}

ErrorCode DefaultLibraryFolder(std::wstring& folder) {
    std::wstring documents;
    if (const ErrorCode code =
            Host::GetSpecialFolder(Host::SpecialFolder::UserDocuments, documents)) {
        return code;
    }
    folder = PathIn(documents, LibraryFolderName);
    return Host::NoError;
}

ErrorCode EnsureLibraryFolderInProject(std::wstring& folder) {
    std::wstring wanted;
    if (const ErrorCode code = DefaultLibraryFolder(wanted)) {
        return code;
    }
    MakeFolder(wanted);
    if (!IsWriteable(wanted)) {
        return Host::GeneralError;
    }
    std::vector<Host::Library> libraries;
    std::int32_t embedded = -1;
    if (const ErrorCode code = Host::GetLibraries(libraries, embedded)) {
        return code;
    }
    const auto found =
        std::find_if(libraries.begin(), libraries.end(), [&](const Host::Library& library) {
            return IsSameFolder(library.path, wanted);
        });
    if (found == libraries.end()) {
        if (const ErrorCode code = Host::AddLibrary(wanted)) {
            return code;
        }
    }
    folder = wanted;
    return Host::NoError;
}

} // namespace Merivane::Archicad
