#pragma once

#include "Simulation/Study/ZoneDrawing.hpp"

namespace Merivane::Tests {

/// A Zone without activity, glare or notes: 96 points of 500 lux on average at 0.75 m.
Simulation::ZoneDrawing PlainDrawing();

/// A model of luminaire with a tabular value.
Simulation::ModelGlare TabularModel(const std::string& name, double ugr);

/// What an observer at mid-wall or a placed one sees.
Simulation::ObserverGlareRecord ObserverOf(const std::string& label, bool placed, double ugr);

/// An office of activity "s22.2" with everything that a summary can hold: a table with every
/// state, recommendations, surfaces, glare of two models, small sources, observers, floor, screens,
/// a warning.
Simulation::ZoneDrawing FullDrawing();

} // namespace Merivane::Tests
