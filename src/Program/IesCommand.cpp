#include "Program/Commands.hpp"

#include "Catalog/Json.hpp"
#include "Document/IesReport.hpp"
#include "Document/PolarCurve.hpp"
#include "Drawing/PngWriter.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/Utf8.hpp"

#include <cstdio>
#include <filesystem>

namespace Merivane::Program {

namespace {

std::string JoinParts(const std::vector<std::string>& parts) {
    std::string joined;
    for (const std::string& part : parts) {
        joined += part.empty() || joined.empty() ? part : " · " + part;
    }
    return joined;
}

/// The curve of one file as a PNG, named after the file. False with the reason when it has none.
bool DrawCurve(const Document::IesReport& report, OutputFile& output, std::string& error) {
    const std::filesystem::path path(report.fileName);
    const std::string luminaire = Photometry::FindKeyword(report.file, "LUMINAIRE");
    Document::PolarCurveStyle style;
    style.title = luminaire.empty() ? path.stem().string() : luminaire;
    style.subtitle =
        JoinParts({Photometry::FindKeyword(report.file, "MANUFAC"),
                   Photometry::FindKeyword(report.file, "LUMCAT"), path.filename().string()});
    Drawing::DisplayList list;
    output.name = path.stem().string() + "-curva.png";
    return Document::BuildPolarCurve(report.file, style, list, error) &&
           Drawing::WritePng(list, output.bytes, error);
}

/// Writes the curve and tells where, on standard error in JSON mode. False when it could not.
bool SaveCurve(const Document::IesReport& report, const IesArguments& arguments) {
    OutputFile curve;
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

} // namespace

int IesCommand(const IesArguments& arguments) {
    bool allDone = true;
    Catalog::JsonValue reports = Catalog::JsonValue::MakeArray();
    for (const std::string& name : arguments.files) {
        const Document::IesReport report = Document::ReadIesReport(name);
        allDone = allDone && report.ok;
        if (arguments.json) {
            reports.items.push_back(Document::IesReportJson(report));
        } else if (!report.ok) {
            TellError("\"" + name + "\": " + report.error);
        } else {
            for (const std::string& line : Document::IesReportLines(report)) {
                TellLine(line);
            }
        }
        if (report.ok && arguments.curve) {
            allDone = SaveCurve(report, arguments) && allDone;
        }
        if (!arguments.json && &name != &arguments.files.back()) {
            TellLine("");
        }
    }
    if (arguments.json) {
        std::fputs(Catalog::JsonWrite(reports).c_str(), stdout);
    }
    return allDone ? StatusDone : StatusFailed;
}

} // namespace Merivane::Program
