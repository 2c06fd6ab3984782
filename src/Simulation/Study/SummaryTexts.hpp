#pragma once

#include <array>
#include <string>
#include <vector>

#include "Simulation/Study/ZoneAnalysis.hpp"

/// What every summary of a Zone says in the same words, in a project's plan, in the plan of a scene
/// and on the terminal. Portuguese, UTF-8.
namespace Merivane::Simulation {

inline constexpr const char* NotVerifiedText = "sem atividade definida na Zona: sem verificação";
inline constexpr const char* NarrowZoneText =
    "Zona estreita: sem faixa de borda, todos os pontos entram nas estatísticas  [2]";
inline constexpr const char* MissingDataText =
    "Itens SEM DADO não entram no resultado: complete-os (ver Folha de Trabalho).";
inline constexpr const char* RecommendationsHeading =
    "Recomendações  —  4.2 e 4.8 (não entram no resultado)";
inline constexpr const char* SurfacesHeading = "Superfícies  —  EN 12464-1 (referência)";
inline constexpr const char* ResultLabel = "RESULTADO";

/// Heads of the columns of a table of criteria.
inline constexpr std::array<const char*, 4> CriteriaColumns = {"Critério", "Calculado", "Exigido",
                                                               "Situação"};

/// Head of the table of what is required; `standard` is the name of the edition.
std::string VerificationHeading(const std::string& standard);

/// "Sala 1  —  Escrever, teclar"; the name alone without activity.
std::string ZoneTitle(const std::string& name, const std::string& activity);

/// A warning of a Zone's glare as a note: "Atenção (UGR): ...".
std::string GlareWarningText(const std::string& warning);

/// The rows of one kind, in their order.
std::vector<VerificationRow> RowsOfKind(const std::vector<VerificationRow>& rows,
                                        VerificationKind kind);

/// True where the result is a pass although a required criterion has no data: the reader has to be
/// told.
bool PassesWithMissingData(const std::vector<VerificationRow>& rows);

} // namespace Merivane::Simulation
