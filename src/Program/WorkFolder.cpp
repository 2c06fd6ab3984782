#include "Program/WorkFolder.hpp"

#include <filesystem>
#include <system_error>

#include "Host/Session.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Program {

namespace {

constexpr int MostFoldersAtOnce = 10000;

/// Makes "vantoro-N" with the first free N. Making a folder is what tells whether it was free, so
/// that two runs never get the same one. It stands in the temporary folder itself: one below would
/// belong to whoever made it, and lock out every other user of the machine.
bool MakeOwnFolder(const std::filesystem::path& parent, WorkFolder& folder, std::string& error) {
    std::error_code code;
    std::filesystem::create_directories(parent, code);
    for (int number = 1; number <= MostFoldersAtOnce; ++number) {
        const std::filesystem::path path = parent / ("vantoro-" + std::to_string(number));
        if (std::filesystem::create_directory(path, code)) {
            folder = {Text::Widen(path.string()), true};
            return true;
        }
        if (!std::filesystem::exists(path, code)) {
            break;
        }
    }
    error = "não foi possível criar uma pasta de trabalho em \"" + parent.string() + "\"";
    return false;
}

bool FindTemporaryFolder(std::filesystem::path& folder, std::string& error) {
    std::wstring temporary;
    if (Host::GetTemporaryFolder(temporary) != Host::NoError) {
        error = "a pasta temporária do sistema não foi encontrada";
        return false;
    }
    folder = std::filesystem::path(Text::Narrow(temporary));
    return true;
}

} // namespace

bool OpenWorkFolder(const std::string& named, WorkFolder& folder, std::string& error) {
    if (!named.empty()) {
        std::error_code code;
        const std::filesystem::path path = std::filesystem::absolute(named, code);
        folder = {Text::Widen(path.string()), false};
        return PrepareOutputFolder(folder.path, error);
    }
    std::filesystem::path parent;
    return FindTemporaryFolder(parent, error) && MakeOwnFolder(parent, folder, error);
}

bool OpenSharedWorkFolder(const std::string& name, WorkFolder& folder, std::string& error) {
    std::filesystem::path temporary;
    if (!FindTemporaryFolder(temporary, error)) {
        return false;
    }
    folder = {Text::Widen((temporary / "Vantoro" / name).string()), false};
    return PrepareOutputFolder(folder.path, error) || MakeOwnFolder(temporary, folder, error);
}

void RemoveWorkFolder(const WorkFolder& folder) {
    if (folder.own) {
        std::error_code ignored;
        std::filesystem::remove_all(Text::Narrow(folder.path), ignored);
    }
}

} // namespace Merivane::Program
