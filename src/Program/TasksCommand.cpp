#include <cstdio>
#include <string>
#include <vector>

#include "Catalog/Json.hpp"
#include "Document/TaskReport.hpp"
#include "Program/Commands.hpp"
#include "Program/Message.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Program {

int TasksCommand(const TasksArguments& arguments) {
    const std::vector<const Simulation::TaskRow*> rows = Simulation::SearchTasks(arguments.text);
    if (arguments.json) {
        std::fputs(Catalog::JsonWrite(Document::TaskReportJson(rows)).c_str(), stdout);
    } else {
        for (const std::string& line : Document::TaskReportLines(rows)) {
            TellLine(line);
        }
    }
    if (rows.empty()) {
        TellError("nenhuma atividade da tabela contém " + Text::QuotedText(arguments.text));
        return StatusFailed;
    }
    return StatusDone;
}

} // namespace Merivane::Program
