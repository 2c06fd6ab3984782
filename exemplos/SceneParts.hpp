#pragma once

#include <string>
#include <vector>

#include "Catalog/Json.hpp"
#include "exemplos/RoomModel.hpp"

namespace Merivane::Examples {

/// Records of a scene document, each as its JSON object. Reflectances and transmittances are
/// fractions, lengths metres, angles degrees.
Catalog::JsonValue OpaqueMaterial(const std::string& name, double reflectance);

/// Plain glass; `transmittance` is that of one face.
Catalog::JsonValue PlainGlass(const std::string& name, double transmittance);

/// Glass with reflectances of its own; all three are those of one face.
Catalog::JsonValue CoatedGlass(const std::string& name, double transmittance, double inside,
                               double outside);

/// A luminaire with a file of the folder `ies`.
Catalog::JsonValue Luminaire(const std::string& name, const std::string& iesFile, Vertex position,
                             double rotation = 0.0);

/// The luminaire with a colour rendering index that its file does not tell.
Catalog::JsonValue WithColourRendering(Catalog::JsonValue luminaire, double index);

/// A Zone from the floor z = 0 up, its activity suggested by its name.
Catalog::JsonValue Zone(const std::string& name, const std::vector<Point>& outline, double height);

/// A document of this name; its lists are to be set, in the order in which they shall stand.
Catalog::JsonValue BeginDocument(const std::string& name);

/// Sets the profile of the engine ("rapido", "projeto" or "final") and the levels [lux], which
/// stand last.
void EndDocument(Catalog::JsonValue& document, const char* profile,
                 const std::vector<double>& levels);

} // namespace Merivane::Examples
