#include "Simulation/Study/SummaryTexts.hpp"

#include <algorithm>
#include <iterator>

namespace Merivane::Simulation {

std::string VerificationHeading(const std::string& standard) {
    return "Verificação  —  " + standard;
}

std::string ZoneTitle(const std::string& name, const std::string& activity) {
    return activity.empty() ? name : name + "  —  " + activity;
}

std::string GlareWarningText(const std::string& warning) {
    return "Atenção (UGR): " + warning;
}

std::vector<VerificationRow> RowsOfKind(const std::vector<VerificationRow>& rows,
                                        VerificationKind kind) {
    std::vector<VerificationRow> chosen;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(chosen),
                 [kind](const VerificationRow& row) { return row.kind == kind; });
    return chosen;
}

bool PassesWithMissingData(const std::vector<VerificationRow>& rows) {
    return VerificationPasses(rows) &&
           std::any_of(rows.begin(), rows.end(), [](const VerificationRow& row) {
               return row.kind == VerificationKind::Requirement && !row.hasData;
           });
}

} // namespace Merivane::Simulation
