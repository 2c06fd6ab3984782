#include "Program/CalculationFiles.hpp"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>
#include <utility>

#include "Document/Report/ReportFiles.hpp"
#include "Document/ResultDocument.hpp"
#include "Program/Clock.hpp"
#include "Program/ResultFiles.hpp"
#include "Program/Version.hpp"
#include "Program/WindowPictures.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

using Workbench::CurrentSession;

constexpr const char* ReportName = "relatorio";

std::set<std::int32_t> CalculatedFloors(const Commands::Calculation& calculation) {
    std::set<std::int32_t> floors;
    for (const Archicad::ZoneRecord& zone : calculation.zones) {
        floors.insert(zone.floorIndex);
    }
    return floors;
}

Document::RunRecord RecordOf(const Commands::Calculation& calculation) {
    Document::RunRecord record;
    record.programVersion = Version;
    record.radianceVersion = calculation.installation.version;
    record.seconds = calculation.seconds;
    record.notices = calculation.notices;
    record.explained = true;
    return record;
}

/// The plans of the floors that were calculated; the plans come first among the pictures.
std::vector<Document::ReportPicture> PlansWithResults(const Commands::Calculation& calculation,
                                                      const std::vector<WindowPicture>& pictures) {
    const std::set<std::int32_t> floors = CalculatedFloors(calculation);
    const std::vector<Host::Story>& stories = CurrentSession().project.stories;
    std::vector<Document::ReportPicture> plans;
    for (std::size_t i = 0; i < stories.size(); ++i) {
        if (floors.contains(stories[i].index)) {
            plans.push_back({pictures[i].title, pictures[i].list});
        }
    }
    return plans;
}

std::vector<std::string> LogLines() {
    constexpr std::string_view product = "Vantoro: ";
    std::vector<std::string> lines;
    for (const Workbench::ReportLine& line : CurrentSession().reportLines) {
        lines.push_back(line.text.starts_with(product) ? line.text.substr(product.size())
                                                       : line.text);
    }
    return lines;
}

bool AddReport(const Commands::Calculation& calculation, bool repeatable,
               const std::vector<WindowPicture>& pictures, std::vector<OutputFile>& files,
               std::string& error) {
    Document::RunRecord record = RecordOf(calculation);
    if (repeatable) {
        record.seconds = 0.0;
    }
    const Moment moment = CurrentMoment();
    Document::ReportInput input{calculation.study, calculation.built, calculation.result,
                                calculation.analyses, record};
    input.settings = calculation.settings;
    input.reflectances = calculation.reflectances;
    input.ceilings = calculation.ceilings;
    input.pictures = PlansWithResults(calculation, pictures);
    input.log = LogLines();
    input.moment = MomentText(moment);
    input.creationTime = moment.seconds;
    Document::ReportFiles report;
    if (!Document::BuildReportFiles(input, report, error)) {
        error.insert(0, "relatório: ");
        return false;
    }
    files.push_back({std::string(ReportName) + ".pdf", std::move(report.pdf)});
    files.push_back({std::string(ReportName) + ".html", std::move(report.html)});
    return true;
}

} // namespace

bool BuildCalculationFiles(const Commands::Calculation& calculation, bool repeatable,
                           std::vector<OutputFile>& files, std::string& error) {
    files.push_back({"resultado.json", Document::WriteResultDocument(
                                           calculation.study, calculation.built, calculation.result,
                                           calculation.analyses, RecordOf(calculation))});
    BuildTables(calculation.built, calculation.result, "", files);
    const std::vector<WindowPicture> pictures = DrawWindows(CurrentSession().project, 0.0);
    return AddReport(calculation, repeatable, pictures, files, error) &&
           WritePictures(pictures, {ReportName}, files, error);
}

std::vector<std::string> FilesToOpen(const Commands::Calculation& calculation,
                                     const std::vector<OutputFile>& files) {
    std::vector<std::string> names = {std::string(ReportName) + ".pdf"};
    const std::set<std::int32_t> floors = CalculatedFloors(calculation);
    const std::vector<Host::Story>& stories = CurrentSession().project.stories;
    std::size_t picture = 0; // the plans come first, in the order of the stories
    for (const OutputFile& file : files) {
        if (file.name.ends_with(".png") && picture < stories.size()) {
            if (floors.contains(stories[picture].index)) {
                names.push_back(file.name);
            }
            ++picture;
        }
    }
    return names;
}

} // namespace Merivane::Program
