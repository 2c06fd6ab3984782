#include "Program/OutputFiles.hpp"

#include "Text/FileBytes.hpp"
#include "Text/FileSync.hpp"
#include "Text/Utf8.hpp"

#include <filesystem>
#include <system_error>

namespace Merivane::Program {

namespace {

std::wstring PlaceOf(const std::wstring& folder, const OutputFile& file) {
    return folder + L"/" + Text::Widen(file.name);
}

std::wstring BesidePlaceOf(const std::wstring& folder, const OutputFile& file) {
    return PlaceOf(folder, file) + L".parcial";
}

std::string CannotWrite(const std::wstring& path) {
    return "não foi possível gravar \"" + Text::Narrow(path) +
           "\" (disco cheio ou sem permissão); nada foi gravado";
}

} // namespace

bool PrepareOutputFolder(const std::wstring& folder, std::string& error) {
    const std::filesystem::path path(Text::Narrow(folder));
    std::error_code code;
    std::filesystem::create_directories(path, code);
    if (!std::filesystem::is_directory(path, code)) {
        error = "não foi possível criar a pasta \"" + Text::Narrow(folder) + "\"";
        return false;
    }
    const std::wstring probe = folder + L"/.vantoro-teste.parcial";
    const bool writable = Text::WriteFileBytes(probe, "");
    Text::RemoveFile(probe);
    if (!writable) {
        error = "não é possível gravar na pasta \"" + Text::Narrow(folder) + "\"";
    }
    return writable;
}

bool WriteOutputFiles(const std::wstring& folder, const std::vector<OutputFile>& files,
                      std::string& error) {
    bool written = true;
    for (const OutputFile& file : files) {
        const std::wstring beside = BesidePlaceOf(folder, file);
        if (std::filesystem::is_directory(Text::Narrow(PlaceOf(folder, file))) ||
            !Text::WriteFileFlushed(beside, file.bytes)) {
            error = CannotWrite(PlaceOf(folder, file));
            written = false;
            break;
        }
    }
    for (const OutputFile& file : files) {
        if (written && !Text::RenameOver(BesidePlaceOf(folder, file), PlaceOf(folder, file))) {
            error = CannotWrite(PlaceOf(folder, file));
            written = false;
        }
        if (!written) {
            Text::RemoveFile(BesidePlaceOf(folder, file));
        }
    }
    return written;
}

} // namespace Merivane::Program
