#include "Program/ZoneReport.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Document/TextColumns.hpp"
#include "Document/ZoneExplanation.hpp"
#include "Program/Message.hpp"
#include "Simulation/Study/GlareSummary.hpp"
#include "Simulation/Study/SummaryTexts.hpp"

namespace Merivane::Program {

namespace {

using Simulation::VerificationKind;
using Simulation::VerificationRow;
using Simulation::ZoneAnalysis;

using Cells = std::array<std::string, 4>;
using Widths = std::array<std::size_t, 4>;

Cells HeadCells() {
    Cells head;
    std::copy(Simulation::CriteriaColumns.begin(), Simulation::CriteriaColumns.end(), head.begin());
    return head;
}

Cells CellsOf(const VerificationRow& row) {
    return {row.criterion, row.calculated, row.required, Simulation::RowState(row)};
}

void Widen(Widths& widths, const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        widths[i] = std::max(widths[i], Document::CharacterCount(cells[i]));
    }
}

/// The columns of all Zones stand below each other.
Widths ColumnWidths(const std::vector<Simulation::ZoneAnalysis>& analyses) {
    Widths widths{};
    Widen(widths, HeadCells());
    for (const Simulation::ZoneAnalysis& analysis : analyses) {
        for (const VerificationRow& row : analysis.verification.rows) {
            Widen(widths, CellsOf(row));
        }
    }
    return widths;
}

std::string TableLine(const Cells& cells, const Widths& widths) {
    return "  " + Document::PadRight(cells[0], widths[0] + 2) +
           Document::PadLeft(cells[1], widths[1]) + "  " + Document::PadLeft(cells[2], widths[2]) +
           "  " + cells[3];
}

void TellRows(const std::vector<VerificationRow>& rows, VerificationKind kind,
              const Widths& widths) {
    for (const VerificationRow& row : rows) {
        if (row.kind == kind) {
            TellLine(TableLine(CellsOf(row), widths));
        }
    }
}

bool Holds(const std::vector<VerificationRow>& rows, VerificationKind kind) {
    return std::any_of(rows.begin(), rows.end(),
                       [kind](const VerificationRow& row) { return row.kind == kind; });
}

std::string ActivityText(const Simulation::StudyZone& zone, const Simulation::TaskRow& task) {
    return task.activity + " (" + task.id + (zone.task.byName ? ", sugerida pelo nome)" : ")");
}

void TellVerification(const Simulation::ZoneAnalysis& analysis, const Widths& widths) {
    const std::vector<VerificationRow>& rows = analysis.verification.rows;
    TellLine(TableLine(HeadCells(), widths));
    TellRows(rows, VerificationKind::Requirement, widths);
    TellLine("  " + std::string(Simulation::ResultLabel) + ": " +
             Simulation::OverallState(analysis));
    if (Holds(rows, VerificationKind::Recommendation)) {
        TellLine("  Recomendações (não entram no resultado)");
        TellRows(rows, VerificationKind::Recommendation, widths);
    }
}

void TellZone(const Simulation::StudyZone& zone, const Simulation::ZoneAnalysis& analysis,
              const Widths& widths) {
    TellLine("");
    if (analysis.task == nullptr) {
        TellLine(zone.name);
        TellLine(std::string("  ") + Simulation::NotVerifiedText);
    } else {
        TellLine(Simulation::ZoneTitle(zone.name, ActivityText(zone, *analysis.task)));
        TellVerification(analysis, widths);
    }
    for (const std::string& line : Simulation::GlareSummary(analysis)) {
        TellLine("  " + line);
    }
    for (const std::string& note : analysis.verification.notes) {
        TellLine("  " + note);
    }
}

} // namespace

void TellZones(const Simulation::LightingStudy& document,
               const std::vector<Simulation::ZoneAnalysis>& analyses) {
    if (analyses.empty()) {
        return;
    }
    const Widths widths = ColumnWidths(analyses);
    if (AnyVerified(analyses)) {
        TellLine("");
        TellLine(
            Simulation::VerificationHeading(Simulation::ReferenceStandardName(document.standard)));
    }
    for (std::size_t i = 0; i < analyses.size(); ++i) {
        TellZone(document.zones[i], analyses[i], widths);
    }
    TellLine("");
}

void TellExplanations(const Simulation::LightingStudy& document,
                      const Simulation::StudyScene& built,
                      const std::vector<Simulation::ZoneAnalysis>& analyses) {
    for (std::size_t i = 0; i < analyses.size(); ++i) {
        for (const std::string& line : Document::GlareExplanationLines(
                 Document::ExplainZone(document.zones[i].name, analyses[i], built.scene))) {
            TellLine(line);
        }
        TellLine("");
    }
}

std::vector<std::string> AnalysisNotices(const Simulation::LightingStudy& document,
                                         const std::vector<Simulation::ZoneAnalysis>& analyses) {
    std::vector<std::string> notices;
    for (std::size_t i = 0; i < analyses.size(); ++i) {
        for (const std::string& warning : analyses[i].glare.warnings) {
            notices.push_back("Zona \"" + document.zones[i].name + "\": " + warning);
        }
    }
    return notices;
}

bool AnyVerified(const std::vector<Simulation::ZoneAnalysis>& analyses) {
    return std::any_of(analyses.begin(), analyses.end(),
                       [](const Simulation::ZoneAnalysis& analysis) {
                           return !analysis.verification.rows.empty();
                       });
}

std::string FailingZones(const Simulation::LightingStudy& document,
                         const std::vector<Simulation::ZoneAnalysis>& analyses) {
    std::string names;
    for (std::size_t i = 0; i < analyses.size(); ++i) {
        if (!Simulation::MeetsRequirements(analyses[i])) {
            names += (names.empty() ? "\"" : ", \"") + document.zones[i].name + "\"";
        }
    }
    return names;
}

} // namespace Merivane::Program
