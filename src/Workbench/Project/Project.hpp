#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "Host/Attributes.hpp"
#include "Host/Elements.hpp"
#include "Host/Library.hpp"
#include "Host/Storage.hpp"
#include "Host/Stories.hpp"
#include "Workbench/Parts/PartDocument.hpp"
#include "Workbench/Project/ModelGeometry.hpp"

/// The open project of the embedded host, as plain records. What is allowed to happen to it is
/// decided where the port is defined, not here.
namespace Merivane::Workbench {

/// A part of a hierarchical element: segment of a column or beam, frame or panel of a curtain wall,
/// part of a stair or railing.
struct ElementPart {
    Host::Guid guid;
    Host::ElementType type = Host::ElementType::Any;
    ModelGeometry geometry;

    bool operator==(const ElementPart&) const = default;
};

/// One element with everything that hangs on it.
struct ProjectElement {
    Host::Element element;
    Host::ElementMemo memo; ///< of objects and lamps the parameters that differ from their part's
    ModelGeometry geometry;
    std::vector<ElementPart> parts;
    Host::Guid database; ///< none = the model and its floor plan

    bool operator==(const ProjectElement&) const = default;
};

/// Where a library part is kept.
enum class PartSource {
    Project, ///< in the project's own file
    Library, ///< in a file of a library folder
    Missing  ///< in a library's file that is not there any more, or can't be read
};

/// A library part. Stands once; placed elements keep only what differs.
struct ProjectPart {
    std::string name; ///< UTF-8
    Host::Guid mainGuid;
    bool isLamp = false;
    double sizeA = 1.0; ///< [m]
    double sizeB = 1.0;
    std::vector<Host::LibraryParameter> parameters;
    std::vector<Host::ModelSurface> surfaces; ///< of its own, by name
    std::vector<GivenBody> bodies;            ///< for sizes A and B as above
    PartSource source = PartSource::Project;
    std::wstring path;                           ///< full path of a library's file
    std::optional<Parts::PartDocument> document; ///< what that file holds

    bool operator==(const ProjectPart&) const = default;
};

/// A section: its line on the plan, and the window behind it.
struct SectionLine {
    Host::Guid marker; ///< the element
    Host::Coordinate begin;
    Host::Coordinate end;
    double depth = 0.0; ///< to the left of the line [m]; 0 = unlimited

    bool operator==(const SectionLine&) const = default;
};

/// A worksheet, or the window of a section, elevation or wall of an interior elevation.
struct ProjectDatabase {
    Host::Window window;
    double scale = 50.0;
    SectionLine section; ///< sections and elevations only

    bool operator==(const ProjectDatabase&) const = default;
};

/// An attribute of each kind with its number; deleted ones leave gaps.
template <typename Record> using AttributeTable = std::map<std::int32_t, Record>;

/// An entry of the View Map.
struct ProjectView {
    Host::Guid guid;
    std::string name;
    Host::Guid folder; ///< none = at the root
    bool isFolder = false;
    Host::Window window;
    std::int16_t floorIndex = 0;
    std::string layerCombination; ///< name; empty = the layers as they stand
    double scale = 0.0;           ///< 0 = not kept

    bool operator==(const ProjectView&) const = default;
};

/// A library folder of the project.
struct ProjectLibrary {
    std::string name;
    std::string path; ///< UTF-8, relative to the project's folder or full
    bool embedded = false;

    bool operator==(const ProjectLibrary&) const = default;
};

struct PartRuns;

/// What running the parts' scripts gave: kept beside a project, made anew at any time, so never
/// copied with it and never compared.
struct KeptRuns {
    mutable std::shared_ptr<PartRuns> kept;

    KeptRuns() = default;
    KeptRuns(const KeptRuns& /*other*/) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): what is kept may go at any time
    KeptRuns& operator=(const KeptRuns& /*other*/) {
        kept.reset();
        return *this;
    }
    ~KeptRuns() = default;
    bool operator==(const KeptRuns& /*other*/) const { return true; }
};

struct Project {
    std::string name;
    std::vector<Host::Story> stories;
    AttributeTable<Host::Layer> layers;
    AttributeTable<Host::LayerCombination> combinations;
    AttributeTable<Host::LineType> lineTypes;
    AttributeTable<Host::Fill> fills;
    AttributeTable<Host::ModelSurface> surfaces;
    std::vector<ProjectPart> parts;         ///< library index i + 1
    std::vector<ProjectElement> elements;   ///< in order of creation
    std::vector<ProjectDatabase> databases; ///< worksheets, sections, elevations, in order
    std::vector<ProjectView> views;
    std::vector<ProjectLibrary> libraries;
    std::map<std::string, Host::ProjectData> data;
    std::vector<Host::Guid> selection;
    Host::Window window; ///< in front
    std::int16_t activeFloor = 0;
    double planScale = 100.0;
    bool lightingSymbols = false; ///< plans show the symbols of luminaires instead of their shapes
    std::uint64_t lastStamp = 0;  ///< of the latest change of an element
    KeptRuns runs;

    bool operator==(const Project&) const = default;
};

/// The stories, layers, line types, fills and surfaces that a new project of the host has: one
/// story, the first layer, a solid line, a solid and an empty fill, a few surfaces.
Project MakeEmptyProject();

/// Where each element stands in `Project::elements`, by guid.
struct GuidHash {
    std::size_t operator()(const Host::Guid& guid) const;
};
using ElementPlaces = std::unordered_map<Host::Guid, std::size_t, GuidHash>;

} // namespace Merivane::Workbench
