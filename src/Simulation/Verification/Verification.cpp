#include "Simulation/Verification/Verification.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Simulation/PrintedValue.hpp"
#include "Simulation/Verification/ScreenLuminance.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Simulation/Verification/TaskTable.hpp"

namespace Merivane::Simulation {

namespace {

using Rows = std::vector<VerificationRow>;

constexpr double Tolerance = 1e-9; // of limits
constexpr double SurroundUniformity = 0.5;
constexpr double LowestMaintenanceFactor = 0.7;

struct ReflectanceRange {
    double low = 0.0;
    double high = 1.0;
};

bool MeetsMaximum(double value, double limit, int decimals) {
    return limit + Tolerance >= PrintedValue(value, decimals);
}

/// A row "at least `limit`" with `unit` behind both numbers. The limit too is compared as printed:
/// nobody is to read "499 lx" against "≥ 499 lx" as a failure.
VerificationRow MinimumRow(std::string criterion, double value, double limit, int decimals,
                           const std::string& unit) {
    VerificationRow row;
    row.criterion = std::move(criterion);
    row.calculated = FormatDecimal(value, decimals) + unit;
    row.required = "≥ " + FormatDecimal(limit, decimals) + unit;
    row.passes = MeetsMinimum(value, PrintedValue(limit, decimals), decimals);
    return row;
}

VerificationRow MaximumRow(std::string criterion, double value, double limit, int decimals,
                           const std::string& unit) {
    VerificationRow row;
    row.criterion = std::move(criterion);
    row.calculated = FormatDecimal(value, decimals) + unit;
    row.required = "≤ " + FormatDecimal(limit, 0) + unit;
    row.passes = MeetsMaximum(value, limit, decimals);
    return row;
}

void ClearData(VerificationRow& row) {
    row.calculated = "-";
    row.hasData = false;
    row.passes = false;
}

void AppendIlluminance(const VerificationInput& input, Rows& rows) {
    const ZoneRequirement& requirement = input.requirement;
    rows.push_back(MinimumRow("Iluminância Em", input.statistics.mean, requirement.em, 0, " lx"));
    rows.push_back(
        MinimumRow("Uniformidade U0", input.statistics.uniformity, requirement.u0, 2, ""));
    if (input.hasSurround) {
        rows.push_back(MinimumRow("Entorno imediato Em", input.surround.mean,
                                  SurroundIlluminance(requirement.em), 0, " lx"));
        rows.push_back(MinimumRow("Entorno imediato U0", input.surround.uniformity,
                                  SurroundUniformity, 2, ""));
    }
}

void AppendGlare(const VerificationInput& input, Rows& rows) {
    if (input.hasUgr && input.ugrLimit >= 1) {
        rows.push_back(MaximumRow("Ofuscamento UGR", input.ugr, input.ugrLimit, 1, ""));
    }
}

void AppendColourRendering(const VerificationInput& input, std::int32_t required, Rows& rows) {
    if (required < 1 || input.luminaireCount < 1) {
        return;
    }
    VerificationRow row = MinimumRow("Reprodução Ra (IRC)", input.raMinimum, required, 0, "");
    if (input.raCount == 0) {
        ClearData(row);
    } else if (input.raCount < input.luminaireCount) {
        row.calculated += "*";
    }
    rows.push_back(std::move(row));
}

void AppendLuminance(const VerificationInput& input, Rows& rows) {
    const double limit = ScreenLuminanceLimit(ResolveScreens(input.requirement));
    if (!(limit > 0.0) || input.luminaireCount < 1) {
        return;
    }
    VerificationRow row =
        MaximumRow("Luminância (telas)", input.luminanceMaximum, limit, 0, " cd/m²");
    if (input.luminanceCount == 0) {
        ClearData(row);
    }
    rows.push_back(std::move(row));
}

void AppendReflectance(const std::string& surface, double value, ReflectanceRange range,
                       Rows& rows) {
    if (!(value >= 0.0)) {
        return;
    }
    VerificationRow row;
    row.criterion = "Refletância " + surface;
    row.calculated = FormatDecimal(value, 2);
    row.required = FormatDecimal(range.low, 2) + " a " + FormatDecimal(range.high, 2);
    row.passes = MeetsMinimum(value, range.low, 2) && MeetsMaximum(value, range.high, 2);
    row.kind = VerificationKind::Recommendation;
    rows.push_back(std::move(row));
}

void AppendMaintenance(const VerificationInput& input, Rows& rows) {
    if (!(input.maintenanceFactor > 0.0)) {
        return;
    }
    rows.push_back(
        MinimumRow("Fator de manutenção", input.maintenanceFactor, LowestMaintenanceFactor, 2, ""));
    rows.back().kind = VerificationKind::Recommendation;
}

} // namespace

std::vector<VerificationRow> VerifyZone(const VerificationInput& input) {
    const TaskRow* task = FindTask(input.requirement.taskId);
    if (task == nullptr || input.statistics.count == 0) {
        return {};
    }
    Rows rows;
    AppendIlluminance(input, rows);
    AppendGlare(input, rows);
    AppendColourRendering(input, task->ra, rows);
    AppendLuminance(input, rows);
    AppendReflectance("teto", input.ceilingReflectance, {0.6, 0.9}, rows);
    AppendReflectance("paredes", input.wallReflectance, {0.3, 0.8}, rows);
    AppendReflectance("piso", input.floorReflectance, {0.1, 0.5}, rows);
    AppendMaintenance(input, rows);
    return rows;
}

bool VerificationPasses(const std::vector<VerificationRow>& rows) {
    return std::none_of(rows.begin(), rows.end(), [](const VerificationRow& row) {
        return row.kind == VerificationKind::Requirement && row.hasData && !row.passes;
    });
}

std::string RowState(const VerificationRow& row) {
    if (!row.hasData) {
        return "SEM DADO";
    }
    return row.passes ? "ATENDE" : "NÃO ATENDE";
}

std::string RowLogLine(const VerificationRow& row) {
    std::string state = "SEM DADO";
    if (row.hasData) {
        state = row.passes ? "atende" : "NAO ATENDE";
    }
    const bool recommended = row.kind == VerificationKind::Recommendation;
    return std::string("  ") + (recommended ? "(recomendacao) " : "") + row.criterion + ": " +
           row.calculated + " / " + row.required + " - " + state;
}

double SurroundIlluminance(double em) {
    if (em >= 750.0 - Tolerance) {
        return 500.0;
    }
    if (em >= 500.0 - Tolerance) {
        return 300.0;
    }
    if (em >= 300.0 - Tolerance) {
        return 200.0;
    }
    return em;
}

ReferenceSurfaces ReferenceSurfaceValues(std::string_view sectionName) {
    ReferenceSurfaces reference;
    for (const std::string_view demanding :
         {"Escritórios", "Construções educacionais", "Locais de assistência médica"}) {
        if (sectionName == demanding) {
            reference.wallEm = 75.0;
            reference.ceilingEm = 50.0;
        }
    }
    return reference;
}

} // namespace Merivane::Simulation
