#pragma once

#include <string>
#include <vector>

#include "Catalog/Json.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/Glare/GlareRecords.hpp"

/// How a glare value came about: for each observer a row for each light source that entered the
/// sum or was left out. UGR = 8 log10(0,25 / Lb x sum of the terms) can be worked out again from
/// the rows as they are printed, to 0.01.
namespace Merivane::Document {

/// A light source as the rows name it.
struct ExplainedLight {
    std::string name;           ///< of the luminaire, fit to be shown; may be empty
    Simulation::Point3D center; ///< photometric centre [m]
};

/// One observer with what it sees.
struct ExplainedObserver {
    Simulation::UgrObserver observer;
    Simulation::GlareResult result;
    std::vector<Simulation::GlareTerm> terms; ///< `luminaire` is an index into the room's lights
};

/// The observers of one room, or of one case of it, who all look at the same light sources.
struct ExplainedRoom {
    std::string title; ///< "Sala de referência 4H x 8H, visada transversal"
    std::vector<ExplainedLight> lights;
    std::vector<ExplainedObserver> observers;
};

/// The terms' sum [cd2/m4].
double TermSum(const std::vector<Simulation::GlareTerm>& terms);

/// Why a light source is not in the sum, in Portuguese; empty for one that is.
std::string GlareOmissionText(Simulation::GlareOmission omission);

/// The explanation as aligned lines of text for a person, without line ends: the title, then for
/// each observer its value and its rows, the largest share first, then what was left out. "–"
/// stands for values that were not reached before a light source was left out. The column of names
/// is there only where lights have different names.
std::vector<std::string> GlareExplanationLines(const ExplainedRoom& room);

/// The explanation for a program: `sala` and `observadores`, each with `nome`, `posicao` [m],
/// `visada`, `UGR` and `Lb` [cd/m2] (null without background), `soma` [cd2/m4], the counts of
/// `GlareResult`, and `linhas` in the lights' order: `luminaria` (counted from 1), `nome`,
/// `posicao`, `distancia` [m], `HR`, `TR`, `sigma`, `tau` [deg], `intensidade` [cd], `areaAparente`
/// [m2], `luminancia` [cd/m2], `anguloSolido` [sr], `indiceDePosicao`, `termo` [cd2/m4], `parte`
/// [0..1], `fontePequena`, `motivo` (null in the sum). Numbers unrounded, null where not reached.
Catalog::JsonValue GlareExplanationJson(const ExplainedRoom& room);

/// The explanation of several rooms as one table for a spreadsheet: UTF-8 with a byte order mark,
/// columns parted by ";", decimal comma, lines ended by CR LF, a row for each observer and light
/// source in the lights' order. Values that were not reached are empty.
std::string WriteGlareExplanationTable(const std::vector<ExplainedRoom>& rooms);

} // namespace Merivane::Document
