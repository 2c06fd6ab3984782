#include "Program/CalculationFiles.hpp"

#include <cstdint>
#include <set>

#include "Document/ResultDocument.hpp"
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

} // namespace

bool BuildCalculationFiles(const Commands::Calculation& calculation, bool /*repeatable*/,
                           std::vector<OutputFile>& files, std::string& error) {
    files.push_back({"resultado.json", Document::WriteResultDocument(
                                           calculation.study, calculation.built, calculation.result,
                                           calculation.analyses, RecordOf(calculation))});
    BuildTables(calculation.built, calculation.result, "", files);
    const std::vector<WindowPicture> pictures = DrawWindows(CurrentSession().project, 0.0);
    return WritePictures(pictures, {ReportName}, files, error);
}

std::vector<std::string> FilesToOpen(const Commands::Calculation& calculation,
                                     const std::vector<OutputFile>& files) {
    std::vector<std::string> names;
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
