#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Script/PartModel.hpp"
#include "Workbench/Script/ScriptValue.hpp"
#include "Workbench/Script/SolidBudget.hpp"

/// The statements of model scripts that build bodies. The interpreter evaluates their arguments and
/// keeps the transformations; here they become faces.
namespace Merivane::Workbench {

/// What is in force while a model script runs; the interpreter changes it between statements.
struct ModelLook {
    ScriptFrame frame = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
    std::int32_t pen = 1;
    std::int32_t surface = -1;  ///< as the faces of `PartModel::bodies` name it
    std::int32_t segments = 36; ///< chords of a whole circle (RESOL)
    double tolerance = 0.0;     ///< of a chord from its arc [m] (TOLER); 0 = by `segments`
    double radiusLowest = 0.0;  ///< circles up to this get 6 chords (RADIUS) [m]; 0 = unused
    double radiusHighest = 0.0; ///< and from this one up 36
    enum class Detail { Wire, Surface, Solid } detail = Detail::Solid; ///< MODEL
};

/// The low-level body that VERT, EDGE, PGON and their kind are adding to, since BASE.
struct OpenBody {
    struct Edge {
        std::int32_t from = 0;
        std::int32_t to = 0;
        bool visible = true;
    };
    struct Face {
        std::vector<std::int32_t> edges; ///< signed, from 1; 0 parts a hole
        std::int32_t surface = -1;
    };
    std::vector<Host::Coordinate3D> vertices; ///< in the part's frame
    std::size_t vectorCount = 0;
    std::vector<Edge> edges;
    std::vector<Face> faces;
    std::size_t sideCount = 0;  ///< of all faces since BASE
    std::size_t endedEdges = 0; ///< that stood when BODY ended a body: they are no lines any more
};

/// A plane that CUTPLANE set, in the part's frame; what lies on its positive side goes.
struct CuttingPlane {
    Host::Coordinate3D point;
    Host::Coordinate3D normal;
};

struct CuttingForm;

/// The model while its script runs.
struct ModelBuild {
    PartModel model;
    ModelLook look;
    OpenBody open;
    std::vector<CuttingPlane> cuts;                        ///< innermost last
    std::vector<std::shared_ptr<const CuttingForm>> forms; ///< the same
    SolidBudget solidBudget;                               ///< from `ScriptLimits`
    std::size_t shapeLimit = 0;                            ///< from `ScriptLimits`
    std::size_t vertexLimit = 0;
    std::size_t shapeCount = 0;
    std::size_t vertexCount = 0;
};

/// True for a statement that `BuildModelShape` knows; `keyword` is in upper case, with its number
/// in braces where it has one: "CPRISM_", "BPRISM_{2}".
bool IsModelShape(std::string_view keyword);

/// Carries out one such statement. Returns an empty text, or why it can't be done, in Portuguese,
/// without the place; then nothing was added. Texts that name surfaces must have become numbers;
/// these are as in the language: 0 the pen's colour, below 0 the surfaces that scripts define.
std::string BuildModelShape(ModelBuild& build, std::string_view keyword,
                            const std::vector<ScriptValue>& arguments);

/// Ends the low-level body that is open, if any, as BASE and the script's end do; wanted also
/// before `cuts` changes, since a body is cut where it ends.
void CloseOpenBody(ModelBuild& build);

} // namespace Merivane::Workbench
