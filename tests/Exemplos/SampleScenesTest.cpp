#include <cmath>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"
#include "Simulation/CalculationGrid.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Tests {
namespace {

using Simulation::LightingStudy;
using Simulation::Point2D;
using Simulation::Point3D;
using Simulation::SceneSurface;

Simulation::LightingStudy ReadScene(const std::string& name) {
    Simulation::LightingStudy document;
    std::string error;
    const auto path = SourceFolder() / "exemplos" / name / (name + ".json");
    EXPECT_TRUE(Document::ReadSceneDocument(Text::WidePath(path), document, error)) << error;
    EXPECT_EQ(document.warnings, std::vector<std::string>());
    return document;
}

Simulation::StudyScene Built(const Simulation::LightingStudy& document) {
    Simulation::StudyScene built;
    std::string error;
    EXPECT_TRUE(Document::BuildScene(document, built, error)) << error;
    return built;
}

double Area(const std::vector<Point2D>& ring) {
    double twice = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point2D& a = ring[i];
        const Point2D& b = ring[(i + 1) % ring.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return twice / 2.0;
}

TEST(SampleScenes, TheRoomHasFourDownlights) {
    const Simulation::LightingStudy document = ReadScene("sala");
    EXPECT_EQ(document.luminaires.size(), 4U);
    ASSERT_EQ(document.zones.size(), 1U);
    EXPECT_DOUBLE_EQ(Area(document.zones[0].outline.outer), 24.0);
    EXPECT_DOUBLE_EQ(document.zones[0].height, 2.8);
    EXPECT_EQ(document.points.size(), 2U);
    EXPECT_EQ(Built(document).planes.size(), 6U); // work plane, four walls, ceiling
}

TEST(SampleScenes, TheOfficeHasThreeZonesThreeTypesAndBothKindsOfGlass) {
    const Simulation::LightingStudy document = ReadScene("escritorio");
    ASSERT_EQ(document.zones.size(), 3U);
    EXPECT_EQ(document.zones[0].outline.holes.size(), 1U);
    double area = 0.0;
    for (const Simulation::StudyZone& zone : document.zones) {
        area += Area(zone.outline.outer);
    }
    EXPECT_NEAR(area, 120.0, 1e-9);
    EXPECT_EQ(document.luminaires.size(), 33U);
    std::set<std::string> types;
    for (const Simulation::SceneLuminaire& luminaire : document.luminaires) {
        types.insert(luminaire.typeKey);
    }
    EXPECT_EQ(types.size(), 3U);
    int plain = 0;
    int coated = 0;
    for (const Simulation::SceneMaterial& material : document.materials) {
        plain += material.isGlass && material.reflectanceInside < 0.0 ? 1 : 0;
        coated += material.isGlass && material.reflectanceInside >= 0.0 ? 1 : 0;
    }
    EXPECT_EQ(plain, 1);
    EXPECT_EQ(coated, 1);
}

TEST(SampleScenes, TheCorridorCountsWhole) {
    const Simulation::LightingStudy document = ReadScene("corredor");
    const Simulation::StudyScene built = Built(document);
    ASSERT_EQ(built.scene.sensorPlanes.size(), 1U);
    const Simulation::CalculationGrid& grid = built.scene.sensorPlanes[0].grid;
    EXPECT_TRUE(grid.narrow);
    EXPECT_EQ(grid.task, grid.active);
    ASSERT_EQ(document.luminaires.size(), 1U);
    EXPECT_EQ(document.luminaires[0].arrayCountX, 5);
}

TEST(SampleScenes, EveryZoneHasItsActivity) {
    struct Case {
        std::string scene;
        std::vector<std::string> activities;
        bool byName;
    };
    const Case cases[] = {{"sala", {"s28.6"}, false},
                          {"escritorio", {"s22.2", "s22.5", "s1.3"}, true},
                          {"corredor", {"s1.3"}, true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.scene);
        const Simulation::LightingStudy document = ReadScene(c.scene);
        ASSERT_EQ(document.zones.size(), c.activities.size());
        for (std::size_t i = 0; i < c.activities.size(); ++i) {
            EXPECT_EQ(document.zones[i].task.requirement.taskId, c.activities[i]);
            EXPECT_EQ(document.zones[i].task.byName, c.byName);
        }
    }
}

TEST(SampleScenes, EveryLuminaireTellsItsColourRendering) {
    for (const char* name : {"sala", "escritorio", "corredor"}) {
        for (const Simulation::SceneLuminaire& luminaire : ReadScene(name).luminaires) {
            EXPECT_GE(luminaire.contract.colourRendering, 80.0) << luminaire.displayName;
        }
    }
}

TEST(SampleScenes, TheReaderOfTheRoomIsAnObserver) {
    const Simulation::StudyScene built = Built(ReadScene("sala"));
    EXPECT_EQ(built.notices, std::vector<std::string>());
    EXPECT_EQ(built.observers.size(), 5U);
    EXPECT_TRUE(built.observers.back().placed);
}

double Dot(const Point3D& a, const Point3D& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Point3D Minus(const Point3D& a, const Point3D& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

/// The area vector of a polygon, along its normal (Newell).
Point3D AreaVector(const std::vector<Point3D>& polygon) {
    Point3D sum{};
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point3D& a = polygon[i];
        const Point3D& b = polygon[(i + 1) % polygon.size()];
        sum.x += (a.y - b.y) * (a.z + b.z);
        sum.y += (a.z - b.z) * (a.x + b.x);
        sum.z += (a.x - b.x) * (a.y + b.y);
    }
    return sum;
}

/// True when a point of the polygon's plane lies inside, by crossings seen along the axis that the
/// normal is nearest to.
bool Holds(const std::vector<Point3D>& polygon, const Point3D& normal, const Point3D& point) {
    const double x = std::fabs(normal.x);
    const double y = std::fabs(normal.y);
    const double z = std::fabs(normal.z);
    const auto flat = [&](const Point3D& p) {
        if (z >= x && z >= y) {
            return Point2D{p.x, p.y};
        }
        return x >= y ? Point2D{p.y, p.z} : Point2D{p.x, p.z};
    };
    const Point2D p = flat(point);
    bool inside = false;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point2D a = flat(polygon[i]);
        const Point2D b = flat(polygon[(i + 1) % polygon.size()]);
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside;
}

/// The nearest surface on a ray; null when it leaves the model. `facing` tells whether the surface
/// looks towards the ray's start.
const SceneSurface* FirstHit(const Simulation::LightingStudy& document, const Point3D& start,
                             const Point3D& direction, bool& facing) {
    const SceneSurface* nearest = nullptr;
    double shortest = 1e9;
    for (const SceneSurface& surface : document.surfaces) {
        const Point3D normal = AreaVector(surface.vertices);
        const double slope = Dot(normal, direction);
        const double distance =
            slope == 0.0 ? -1.0 : Dot(normal, Minus(surface.vertices[0], start)) / slope;
        if (distance <= 0.0 || distance >= shortest) {
            continue;
        }
        const Point3D hit = {start.x + distance * direction.x, start.y + distance * direction.y,
                             start.z + distance * direction.z};
        if (Holds(surface.vertices, normal, hit)) {
            nearest = &surface;
            shortest = distance;
            facing = slope < 0.0;
        }
    }
    return nearest;
}

TEST(SampleScenes, RoomsAreClosedAndTheirFacesLookIntoThem) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> even(0.0, 1.0);
    for (const char* name : {"sala", "escritorio", "corredor"}) {
        SCOPED_TRACE(name);
        const Simulation::LightingStudy document = ReadScene(name);
        const Simulation::StudyScene built = Built(document);
        for (std::size_t plane = 0; plane < built.planes.size(); ++plane) {
            if (built.planes[plane].kind != Simulation::PlaneKind::WorkPlane) {
                continue;
            }
            const Simulation::CalculationGrid& grid = built.scene.sensorPlanes[plane].grid;
            for (const Point2D& point : Simulation::ActivePoints(grid)) {
                const double z = 2.0 * even(random) - 1.0;
                const double turn = 6.283185307179586 * even(random);
                const double across = std::sqrt(1.0 - z * z);
                const Point3D direction = {across * std::cos(turn), across * std::sin(turn), z};
                const Point3D start = {point.x, point.y, grid.z + 0.01};
                bool facing = false;
                ASSERT_NE(FirstHit(document, start, direction, facing), nullptr)
                    << "a ray from " << start.x << " " << start.y << " escapes";
                ASSERT_TRUE(facing)
                    << "a ray from " << start.x << " " << start.y << " meets a back";
            }
        }
    }
}

} // namespace
} // namespace Merivane::Tests
