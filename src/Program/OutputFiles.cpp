#include "Program/OutputFiles.hpp"

#include <filesystem>
#include <system_error>

#include "Text/FileBytes.hpp"
#include "Text/NativeFile.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Program {

namespace {

std::wstring PlaceOf(const std::wstring& folder, const OutputFile& file) {
    return folder + L"/" + Text::Widen(file.name);
}

std::wstring BesidePlaceOf(const std::wstring& folder, const OutputFile& file) {
    return PlaceOf(folder, file) + L".parcial";
}

bool IsFolder(const std::wstring& path) {
    std::error_code ignored; // a name that the system refuses is no folder either
    return std::filesystem::is_directory(Text::Narrow(path), ignored);
}

std::string CannotWrite(const std::wstring& path, bool someStand) {
    return "não foi possível gravar \"" + Text::Narrow(path) +
           "\" (disco cheio ou sem permissão); " +
           (someStand ? "só parte dos resultados foi gravada" : "nada foi gravado");
}

} // namespace

bool PrepareOutputFolder(const std::wstring& folder, std::string& error) {
    const std::filesystem::path path(Text::Narrow(folder));
    std::error_code code;
    std::filesystem::create_directories(path, code);
    if (!IsFolder(folder)) {
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
        if (IsFolder(PlaceOf(folder, file)) || !Text::WriteFileFlushed(beside, file.bytes)) {
            error = CannotWrite(PlaceOf(folder, file), false);
            written = false;
            break;
        }
    }
    for (const OutputFile& file : files) {
        if (written && !Text::RenameOver(BesidePlaceOf(folder, file), PlaceOf(folder, file))) {
            error = CannotWrite(PlaceOf(folder, file), &file != &files.front());
            written = false;
        }
        if (!written) {
            Text::RemoveFile(BesidePlaceOf(folder, file));
        }
    }
    return written;
}

} // namespace Merivane::Program
