#include <cstdio>
#include <filesystem>

#include "Catalog/Json.hpp"
#include "Document/IesReport.hpp"
#include "Document/PolarCurve.hpp"
#include "Document/ResultTable.hpp"
#include "Drawing/PngWriter.hpp"
#include "Program/Commands.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Program {

namespace {

std::string JoinParts(const std::vector<std::string>& parts) {
    std::string joined;
    for (const std::string& part : parts) {
        joined += part.empty() || joined.empty() ? part : " · " + part;
    }
    return joined;
}

/// A name for the curve of each file: two files of the same name in different folders must not
/// share one.
std::vector<std::string> CurveNames(const std::vector<std::string>& files) {
    std::vector<std::string> titles;
    titles.reserve(files.size());
    for (const std::string& file : files) {
        titles.push_back(std::filesystem::path(file).stem().string());
    }
    return Document::UniqueFileNames(titles, "-curva.png");
}

/// The curve of one file as a PNG. False with the reason when it has none.
bool DrawCurve(const Document::IesReport& report, OutputFile& output, std::string& error) {
    const std::filesystem::path path(report.fileName);
    const std::string luminaire = Photometry::FindKeyword(report.file, "LUMINAIRE");
    Document::PolarCurveStyle style;
    style.title = luminaire.empty() ? path.stem().string() : luminaire;
    style.subtitle =
        JoinParts({Photometry::FindKeyword(report.file, "MANUFAC"),
                   Photometry::FindKeyword(report.file, "LUMCAT"), path.filename().string()});
    Drawing::DisplayList list;
    return Document::BuildPolarCurve(report.file, style, list, error) &&
           Drawing::WritePng(list, output.bytes, error);
}

/// Writes the curve under this name, and tells where unless a program reads the answer. False when
/// it could not.
bool SaveCurve(const Document::IesReport& report, const std::string& name,
               const IesArguments& arguments) {
    OutputFile curve{name, ""};
    std::string error;
    const std::wstring folder = Text::Widen(arguments.outputFolder);
    if (!DrawCurve(report, curve, error)) {
        TellError("\"" + report.fileName + "\": " + error);
        return false;
    }
    if (!PrepareOutputFolder(folder, error) || !WriteOutputFiles(folder, {curve}, error)) {
        TellError(error);
        return false;
    }
    if (!arguments.json) {
        TellLine("Curva: " + (std::filesystem::path(arguments.outputFolder) / curve.name).string());
    }
    return true;
}

/// Tells a person what a file holds, one blank line after the report before it.
void TellReport(const Document::IesReport& report, bool& isFirst) {
    if (!report.ok) {
        TellError("\"" + report.fileName + "\": " + report.error);
        return;
    }
    if (!isFirst) {
        TellLine("");
    }
    isFirst = false;
    for (const std::string& line : Document::IesReportLines(report)) {
        TellLine(line);
    }
}

} // namespace

int IesCommand(const IesArguments& arguments) {
    CatchInterrupts();
    bool allDone = true;
    bool isFirst = true;
    const std::vector<std::string> curveNames = CurveNames(arguments.files);
    Catalog::JsonValue reports = Catalog::JsonValue::MakeArray();
    for (std::size_t i = 0; i < arguments.files.size(); ++i) {
        if (Interrupted()) {
            TellError("leitura cancelada");
            return StatusCancelled;
        }
        const Document::IesReport report = Document::ReadIesReport(arguments.files[i]);
        allDone = allDone && report.ok;
        if (arguments.json) {
            reports.items.push_back(Document::IesReportJson(report));
        } else {
            TellReport(report, isFirst);
        }
        if (report.ok && arguments.curve) {
            allDone = SaveCurve(report, curveNames[i], arguments) && allDone;
        }
    }
    if (arguments.json) {
        std::fputs(Catalog::JsonWrite(reports).c_str(), stdout);
    }
    return allDone ? StatusDone : StatusFailed;
}

} // namespace Merivane::Program
