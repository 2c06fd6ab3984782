#include "AddOn/Commands/PickIesFile.hpp"

#include <filesystem>
#include <utility>

#include "AddOn/RunLog/RunLog.hpp"
#include "Host/FileChooser.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Commands {

namespace {

bool ChooseLocation(std::wstring& location) {
    const Host::ErrorCode code = Host::ChooseFile("Escolha o arquivo IES da luminaria",
                                                  {"Fotometria IES (*.ies)", "ies"}, location);
    if (code != Host::NoError && code != Host::Cancelled) {
        CheckError("Escolher o arquivo IES", code);
    }
    return code == Host::NoError;
}

std::string Utf8Name(const std::filesystem::path& name) {
    return Text::Narrow(Text::WidePath(name));
}

void NormaliseTexts(Photometry::IesFile& file) {
    for (auto& [key, value] : file.keywords) {
        value = Photometry::NormaliseIesText(value);
    }
    for (std::string& line : file.otherLines) {
        line = Photometry::NormaliseIesText(line);
    }
}

bool ReadPicked(PickedIes& picked) {
    std::string bytes;
    if (!Text::ReadFileBytes(picked.location, bytes) || bytes.empty()) {
        Alert("Nao foi possivel ler o arquivo IES.");
        return false;
    }
    Photometry::IesReadResult read = Photometry::ReadIes(bytes, picked.file);
    if (!read.ok) {
        Alert("O arquivo IES foi recusado: " + read.error);
        return false;
    }
    picked.warnings = std::move(read.warnings);
    return true;
}

} // namespace

bool PickIesFile(PickedIes& picked) {
    PickedIes chosen;
    if (!ChooseLocation(chosen.location)) {
        return false;
    }
    const std::filesystem::path path = Text::NativePath(chosen.location);
    chosen.fileName = Utf8Name(path.filename());
    chosen.baseName = Utf8Name(path.stem());
    if (!ReadPicked(chosen)) {
        return false;
    }
    for (const std::string& warning : chosen.warnings) {
        ReportLine("aviso do IES: " + warning);
    }
    NormaliseTexts(chosen.file);
    picked = std::move(chosen);
    return true;
}

} // namespace Merivane::Commands
