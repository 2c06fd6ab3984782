#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace Merivane::Photometry {

/// Kind of a script parameter of a luminaire's library part.
enum class ContractParameterType : int {
    Integer = 0,
    Real = 1,
    Length = 2, ///< [m]
    Angle = 3,  ///< [deg]; the host stores radians
    Boolean = 4,
    String = 5,
    RealArray = 6,
    StringArray = 7,
    Pen = 8,
    Title = 9, ///< heading of the parameter list
};

/// One parameter of a luminaire's library part. Which value field counts follows from `type`.
struct ContractParameter {
    std::string name; ///< ASCII, at most 31 characters
    ContractParameterType type = ContractParameterType::Integer;
    std::string description; ///< label in the host's parameter list, UTF-8
    bool hidden = false;
    double number = 0.0;            ///< numeric types; angles in degrees
    std::string text;               ///< string
    int dim1 = 0;                   ///< arrays: rows
    int dim2 = 0;                   ///< arrays: columns
    std::vector<double> numbers;    ///< real array, row after row, `dim1` x `dim2`
    std::vector<std::string> texts; ///< string array, `dim1` entries
};

/// Names of parameters, to ask a part for some of its many.
using ParameterNames = std::set<std::string, std::less<>>;

/// What is chosen for a luminaire beside its photometric file.
struct LuminaireSettings {
    std::string iesFileName;
    double centerX = 0.0;           ///< photometric centre from the part's origin [m]
    double centerY = 0.0;           ///< [m]
    double centerZ = 0.0;           ///< [m]
    double c0Rotation = 0.0;        ///< of the plane C0 about the vertical [deg]
    double tiltAngle = 0.0;         ///< of the beam from the vertical [deg]
    double tiltDirection = 0.0;     ///< of the tilt, in plan [deg]
    double flangeDepth = 0.0;       ///< of the flange under the ceiling's face [m]
    double maintenanceFactor = 0.8; ///< [0..1]
    double colourRendering = 0.0;   ///< colour rendering index; 0 = unknown
    int symbolFill = 0;
};

/// A product's identity, as its photometric file and the catalogue see it.
struct LuminaireIdentity {
    std::string manufacturer;
    std::string catalog;
    std::string luminaire;
    std::string lamp;
    double colourRendering = 0.0; ///< 0 = unknown
};

/// How reading a contract back ended.
struct ContractReadResult {
    bool ok = false;
    std::string error; ///< one Portuguese sentence when not `ok`
    int version = 0;   ///< contract version found, also on a refusal
};

} // namespace Merivane::Photometry
