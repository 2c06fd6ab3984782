#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Model3D.hpp"
#include "Workbench/Script/ModelStatements.hpp"

/// Running the statements that build bodies, one at a time.
namespace Merivane::Tests {

/// A model without anything in it, with room for a lot.
Workbench::ModelBuild EmptyBuild();

std::vector<Workbench::ScriptValue> Arguments(const std::vector<double>& numbers);

/// Carries out a statement; what it refuses.
std::string Build(Workbench::ModelBuild& build, std::string_view keyword,
                  const std::vector<double>& numbers);

/// What a statement refuses in an empty model; fails the test where it leaves something there.
std::string Refusal(std::string_view keyword, const std::vector<double>& numbers);

/// The only body that a statement builds, in the port's form; fails the test for a refusal and for
/// any other number of bodies.
Host::Body Built(std::string_view keyword, const std::vector<double>& numbers);

/// The only body of a model.
Host::Body OnlyBody(const Workbench::ModelBuild& build);

/// Expects a closed body with plane faces, of that volume [m3].
void ExpectSolid(const Host::Body& body, double volume);

/// Vertices less edges plus faces: 2 for a body without holes through it whose faces have none.
int EulerCharacteristic(const Host::Body& body);

/// Where the body lies: lowest and highest x, y, z.
std::vector<double> Extent(const Host::Body& body);

} // namespace Merivane::Tests
