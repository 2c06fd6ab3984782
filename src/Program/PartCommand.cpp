#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "Program/Commands.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Program/PartReport.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/PartFolder.hpp"
#include "Workbench/Parts/PartXml.hpp"

namespace Merivane::Program {

namespace {

namespace fs = std::filesystem;
using Workbench::Parts::PartDocument;

std::string PartName(const std::string& file) {
    return Text::Narrow(Text::WidePath(Text::NativePath(Text::Widen(file)).stem()));
}

/// A sentence about a file, which it names first.
std::string AboutFile(const std::string& file, const std::string& sentence) {
    std::string text = "\"";
    return text.append(file).append("\": ").append(sentence);
}

/// Reads a part; what it does not understand is told as a warning.
bool ReadPart(const std::string& file, PartDocument& document, std::string& error) {
    std::string bytes;
    std::vector<std::string> notes;
    if (!Text::ReadFileBytes(Text::Widen(file), bytes)) {
        error = "não foi possível ler \"" + file + '"';
        return false;
    }
    if (!Workbench::Parts::ReadPartXml(bytes, document, notes, error)) {
        error = AboutFile(file, error);
        return false;
    }
    for (const std::string& note : notes) {
        TellError(AboutFile(file, note));
    }
    return true;
}

void TellLeftOut(const std::vector<std::string>& names, const std::string& target) {
    for (const std::string& name : names) {
        TellError(AboutFile(target, "ficou de fora " + name));
    }
}

bool ExportFolder(const ExportPartArguments& arguments, const PartDocument& document,
                  std::string& error) {
    const std::wstring parent = Text::Widen(arguments.folder);
    const fs::path folder =
        Text::NativePath(parent) / Text::NativePath(Text::Widen(PartName(arguments.file)));
    const std::wstring wide = Text::WidePath(folder);
    if (!PrepareOutputFolder(parent, error) ||
        !Workbench::Parts::WritePartFolder(document, wide, error)) {
        return false;
    }
    TellLeftOut(Workbench::Parts::LeftOutOfFolder(document), Text::Narrow(wide));
    TellLine("Pasta da peça: " + Text::Narrow(wide));
    return true;
}

/// The folder of a document's pictures beside it, as the converter's own option names it.
std::wstring PictureFolder(const std::wstring& xmlFile) {
    fs::path folder = Text::NativePath(xmlFile);
    folder.replace_extension();
    folder += "-img";
    return Text::WidePath(folder);
}

bool ExportXml(const ExportPartArguments& arguments, const PartDocument& document,
               std::string& error) {
    const std::wstring file = Text::Widen(arguments.xmlFile);
    std::vector<OutputFile> pictures;
    for (const Workbench::Parts::PictureSection& picture : document.pictures) {
        if (!picture.bytes.empty()) {
            pictures.push_back({Workbench::Parts::PictureFileName(picture), picture.bytes});
        }
    }
    const std::wstring folder = PictureFolder(file);
    if (!pictures.empty() &&
        (!PrepareOutputFolder(folder, error) || !WriteOutputFiles(folder, pictures, error))) {
        return false;
    }
    const std::string xml =
        Workbench::Parts::WritePartXml(document, Workbench::Parts::XmlUse::Converter);
    if (!Text::ReplaceFile(file, xml)) {
        error = "não foi possível gravar \"" + arguments.xmlFile + '"';
        return false;
    }
    TellLeftOut(Workbench::Parts::LeftOutOfXml(document), arguments.xmlFile);
    TellLine("Documento XML: " + arguments.xmlFile);
    if (!pictures.empty()) {
        TellLine("Imagens: " + Text::Narrow(folder));
    }
    return true;
}

} // namespace

int ShowPartCommand(const ShowPartArguments& arguments) {
    PartDocument document;
    std::string error;
    if (!ReadPart(arguments.file, document, error)) {
        TellError(error);
        return StatusFailed;
    }
    const Workbench::ProjectPart part =
        Workbench::MakeLibraryPart(PartName(arguments.file), {}, std::move(document));
    for (const std::string& line : PartReportLines(part)) {
        TellLine(line);
    }
    return StatusDone;
}

namespace {

/// The part's own file, or one that stands for it, would be lost.
bool IsOwnFile(const std::string& part, const std::string& target) {
    std::error_code ignored; // a target that is not there is another file
    return fs::equivalent(Text::NativePath(Text::Widen(part)),
                          Text::NativePath(Text::Widen(target)), ignored);
}

bool CheckTarget(const ExportPartArguments& arguments, std::string& error) {
    if (!arguments.xmlFile.empty() && IsOwnFile(arguments.file, arguments.xmlFile)) {
        error = "\"" + arguments.xmlFile + "\" é a própria peça: escolha outro arquivo";
        return false;
    }
    return true;
}

} // namespace

int ExportPartCommand(const ExportPartArguments& arguments) {
    PartDocument document;
    std::string error;
    const bool good = CheckTarget(arguments, error) && ReadPart(arguments.file, document, error) &&
                      (arguments.folder.empty() || ExportFolder(arguments, document, error)) &&
                      (arguments.xmlFile.empty() || ExportXml(arguments, document, error));
    if (!good) {
        TellError(error);
    }
    return good ? StatusDone : StatusFailed;
}

} // namespace Merivane::Program
