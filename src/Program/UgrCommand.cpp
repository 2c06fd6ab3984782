#include <cstdio>
#include <filesystem>
#include <utility>

#include "Catalog/Json.hpp"
#include "Document/ResultTable.hpp"
#include "Document/UgrReport.hpp"
#include "Document/UgrSheet.hpp"
#include "Drawing/PdfWriter.hpp"
#include "Drawing/PngWriter.hpp"
#include "Program/Commands.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Program {

namespace {

using Document::ExplainedRoom;
using Document::UgrReport;

/// Adds the sheet of the table as PDF and PNG.
bool AddSheet(const UgrReport& report, const std::string& name, std::vector<OutputFile>& files,
              std::string& error) {
    const Drawing::DisplayList sheet = Document::BuildUgrSheet(report);
    OutputFile pdf{name + ".pdf", ""};
    OutputFile png{name + ".png", ""};
    if (!Drawing::WritePdf(sheet, pdf.bytes, error) ||
        !Drawing::WritePng(sheet, png.bytes, error)) {
        return false;
    }
    files.push_back(std::move(pdf));
    files.push_back(std::move(png));
    return true;
}

/// Writes all files of a table, and tells of each unless a program reads the answer. False with
/// the reason told when they could not be written.
bool SaveTable(const UgrReport& report, const std::vector<ExplainedRoom>& explanation,
               const UgrArguments& arguments) {
    const std::string title = std::filesystem::path(arguments.file).stem().string();
    const std::string name = Document::UniqueFileNames({title}, "-ugr").front();
    std::vector<OutputFile> files = {{name + ".csv", Document::WriteUgrTable(report)}};
    std::string error;
    if (!AddSheet(report, name, files, error)) {
        TellError("\"" + arguments.file + "\": " + error);
        return false;
    }
    if (arguments.explain) {
        files.push_back(
            {name + "-explicacao.csv", Document::WriteGlareExplanationTable(explanation)});
    }
    const std::wstring folder = Text::Widen(arguments.outputFolder);
    if (!PrepareOutputFolder(folder, error) || !WriteOutputFiles(folder, files, error)) {
        TellError(error);
        return false;
    }
    for (const OutputFile& file : files) {
        if (!arguments.json) {
            TellLine("Gravado: " +
                     (std::filesystem::path(arguments.outputFolder) / file.name).string());
        }
    }
    return true;
}

void TellText(const UgrReport& report, const std::vector<ExplainedRoom>& explanation) {
    if (!report.ok) {
        TellError("\"" + report.fileName + "\": " + report.error);
        return;
    }
    for (const std::string& line : Document::UgrReportLines(report)) {
        TellLine(line);
    }
    for (const ExplainedRoom& room : explanation) {
        TellLine("");
        for (const std::string& line : Document::GlareExplanationLines(room)) {
            TellLine(line);
        }
    }
}

void TellJson(const UgrReport& report, const std::vector<ExplainedRoom>& explanation,
              bool explain) {
    Catalog::JsonValue json = Document::UgrReportJson(report);
    if (report.ok && explain) {
        Catalog::JsonValue rooms = Catalog::JsonValue::MakeArray();
        for (const ExplainedRoom& room : explanation) {
            rooms.items.push_back(Document::GlareExplanationJson(room));
        }
        json.Set("explicacao", std::move(rooms));
    }
    Catalog::JsonWriteOptions options;
    options.numberArraysOnOneLine = true;
    std::fputs(Catalog::JsonWrite(json, options).c_str(), stdout);
}

} // namespace

int UgrCommand(const UgrArguments& arguments) {
    const UgrReport report =
        Document::BuildUgrReport(Document::ReadIesReport(arguments.file), arguments.height);
    std::vector<ExplainedRoom> explanation;
    if (report.ok && arguments.explain) {
        explanation = Document::ExplainReferenceRoom(report);
    }
    if (arguments.json) {
        TellJson(report, explanation, arguments.explain);
    } else {
        TellText(report, explanation);
    }
    const bool saved =
        !report.ok || arguments.outputFolder.empty() || SaveTable(report, explanation, arguments);
    return report.ok && saved ? StatusDone : StatusFailed;
}

} // namespace Merivane::Program
