#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "exemplos/OfficePlan.hpp"
#include "exemplos/OfficeProject.hpp"

namespace Merivane::Examples {

namespace {

using Host::Coordinate;
using Host::ElementType;
using Workbench::OpeningGeometry;
using Workbench::WallGeometry;

/// Where openings stand along a wall [m].
using Places = std::vector<double>;

struct Shell {
    ProjectBuilder& builder;

    Host::AttributeIndex Surface(const char* name) const { return SurfaceOf(builder, name); }
    Place On(const char* layer, std::int16_t floorIndex) const {
        return {LayerOf(builder, layer), floorIndex};
    }

    Host::Guid OuterWall(std::int16_t floorIndex, Coordinate begin, Coordinate end) const {
        WallGeometry wall{begin,
                          end,
                          0.0,
                          0.2,
                          0.0,
                          RoomHeight,
                          Surface("Pintura branca"),
                          Surface("Pintura areia"),
                          Surface("Pintura branca")};
        return AddGeometry(builder, ElementType::Wall, On("Paredes", floorIndex), wall);
    }

    Host::Guid InnerWall(std::int16_t floorIndex, Coordinate begin, Coordinate end) const {
        WallGeometry wall{begin,
                          end,
                          0.0,
                          0.1,
                          0.0,
                          RoomHeight,
                          Surface("Pintura branca"),
                          Surface("Pintura branca"),
                          Surface("Pintura branca")};
        return AddGeometry(builder, ElementType::Wall, On("Paredes", floorIndex), wall);
    }

    void Windows(std::int16_t floorIndex, const Host::Guid& wall, const Places& places,
                 double width) const {
        for (const double along : places) {
            const OpeningGeometry window{
                wall, along, width, 0.9, 1.3, 0.05, 0.04, Surface("Metal"), Surface("Vidro")};
            AddGeometry(builder, ElementType::Window, On("Esquadrias", floorIndex), window);
        }
    }

    void Door(std::int16_t floorIndex, const Host::Guid& wall, double along,
              const char* leaf = "Madeira") const {
        const OpeningGeometry door{wall,         along, 0.9, 0.0, 2.1, 0.05, 0.04, Surface("Metal"),
                                   Surface(leaf)};
        AddGeometry(builder, ElementType::Door, On("Esquadrias", floorIndex), door);
    }

    void OuterWalls(std::int16_t floorIndex, double southEnd) const {
        // Counter-clockwise: the room lies to the left of each.
        const Host::Guid south = OuterWall(floorIndex, {-0.1, 0.0}, {southEnd, 0.0});
        const Host::Guid east = OuterWall(floorIndex, {18.0, -0.1}, {18.0, 9.9});
        const Host::Guid north = OuterWall(floorIndex, {18.1, 10.0}, {-0.1, 10.0});
        const Host::Guid west = OuterWall(floorIndex, {0.0, 9.9}, {0.0, 0.1});
        Windows(floorIndex, south, {2.3, 5.8, 9.9}, 2.4);
        Windows(floorIndex, north, {3.0, 7.6, 10.2, 14.6}, 1.6);
        Windows(floorIndex, west, {2.4, 6.9}, 2.0);
        Windows(floorIndex, east, {5.5}, 1.6);
        if (floorIndex == 0) {
            Door(floorIndex, east, 8.8, "Vidro");
        }
    }

    void Shaft(std::int16_t floorIndex) const {
        const Coordinate a = {ShaftLow.x, ShaftLow.y + 0.05};
        const Coordinate b = {ShaftHigh.x, ShaftHigh.y - 0.05};
        InnerWall(floorIndex, a, {b.x, a.y});
        InnerWall(floorIndex, {a.x, b.y}, b);
        InnerWall(floorIndex, {a.x + 0.05, a.y + 0.05}, {a.x + 0.05, b.y - 0.05});
        InnerWall(floorIndex, {b.x - 0.05, a.y + 0.05}, {b.x - 0.05, b.y - 0.05});
    }

    void GroundFloorRooms() const {
        const Host::Guid meeting = InnerWall(0, {7.0, 5.99}, {7.0, 9.9});
        Door(0, meeting, 3.2);
        const Host::Guid passage = InnerWall(0, {12.0, 0.1}, {12.0, 9.9});
        Door(0, passage, 2.0);
        const Host::Guid hall = InnerWall(0, {13.08, 0.1}, {13.08, 9.9});
        OpeningGeometry open;
        open.wall = hall;
        open.along = 8.7;
        open.width = 1.2;
        open.height = 2.4;
        open.open = true;
        AddGeometry(builder, ElementType::Door, On("Esquadrias", 0), open);

        WallGeometry pane{
            {7.05, 6.0},      {11.95, 6.0},    0.0, 0.02, 0.0, RoomHeight, Surface("Vidro"),
            Surface("Vidro"), Surface("Metal")};
        const Host::Guid glass = AddGeometry(builder, ElementType::Wall, On("Esquadrias", 0), pane);
        Door(0, glass, 4.2, "Vidro");

        WallGeometry screen{
            {15.9, 8.6},        {17.5, 7.0},        std::numbers::pi / 2.0, 0.12, 0.0, 2.2,
            Surface("Madeira"), Surface("Madeira"), Surface("Madeira")};
        AddGeometry(builder, ElementType::Wall, On("Paredes", 0), screen);
    }

    void UpperFloorRooms() const {
        const Host::Guid middle = InnerWall(1, {0.1, 5.0}, {13.08, 5.0});
        Door(1, middle, 10.4);
        InnerWall(1, {4.65, 5.05}, {4.65, 9.9});
        const Host::Guid south = InnerWall(1, {13.03, 0.1}, {13.03, 4.95});
        Door(1, south, 0.9, "Madeira");
        const Host::Guid north = InnerWall(1, {13.03, 5.05}, {13.03, 9.9});
        Door(1, north, 3.6, "Madeira");
    }

    void Slab(std::int16_t floorIndex, double top, double thickness, Host::Polygon polygon,
              const char* above, const char* below) const {
        Workbench::SlabGeometry slab{std::move(polygon), top,
                                     thickness,          Surface(above),
                                     Surface(below),     Surface("Concreto")};
        AddGeometry(builder, ElementType::Slab, On("Lajes", floorIndex), slab);
    }

    void Slabs() const {
        const Host::Contour outline = Rectangle({-0.1, -0.1}, {18.1, 10.1});
        const Host::Contour shaft =
            Rectangle({ShaftLow.x + 0.1, ShaftLow.y + 0.1}, {ShaftHigh.x - 0.1, ShaftHigh.y - 0.1});
        // The curtain wall passes by the upper slab.
        const Host::Contour notched = Outline({{-0.1, -0.1},
                                               {13.7, -0.1},
                                               {13.7, 0.1},
                                               {17.9, 0.1},
                                               {17.9, -0.1},
                                               {18.1, -0.1},
                                               {18.1, 10.1},
                                               {-0.1, 10.1}});
        // Joints under the inner walls: the floor of each room is its own.
        const Host::Contour office = Outline(
            {{-0.1, -0.1}, {12.0, -0.1}, {12.0, 6.0}, {7.0, 6.0}, {7.0, 10.1}, {-0.1, 10.1}});
        for (const Host::Contour& room :
             {office, Rectangle({7.0, 6.0}, {12.0, 10.1}), Rectangle({12.0, -0.1}, {13.08, 10.1}),
              Rectangle({13.08, -0.1}, {18.1, 10.1})}) {
            Slab(0, 0.0, 0.15, {room}, "Piso cerâmico", "Concreto");
        }
        Slab(1, 0.0, FloorHeight - RoomHeight, {notched, Rectangle(StairLow, StairHigh), shaft},
             "Carpete", "Pintura branca");
        Slab(1, FloorHeight, FloorHeight - RoomHeight, {outline, shaft}, "Concreto",
             "Pintura branca");
    }

    void Ceiling(std::int16_t floorIndex, Host::Polygon polygon) const {
        constexpr double Thickness = 0.02;
        Workbench::SlabGeometry slab{
            std::move(polygon),       CeilingHeight + Thickness, Thickness,
            Surface("Forro mineral"), Surface("Forro mineral"),  Surface("Forro mineral")};
        AddGeometry(builder, ElementType::Slab, On("Forros", floorIndex), slab);
    }

    void Ceilings() const {
        Ceiling(
            0,
            {Outline(
                 {{0.1, 0.1}, {11.95, 0.1}, {11.95, 5.99}, {6.95, 5.99}, {6.95, 9.9}, {0.1, 9.9}}),
             Rectangle(ShaftLow, ShaftHigh)});
        Ceiling(0, {Rectangle({12.05, 0.1}, {13.03, 9.9})});
        Ceiling(1, {Rectangle({4.7, 5.05}, {12.98, 9.9})});
    }

    void Columns() const {
        constexpr double Plinth = 0.15;
        const Coordinate foot = ColumnFoot;
        for (const std::int16_t floorIndex : {std::int16_t{0}, std::int16_t{1}}) {
            std::vector<Workbench::ElementPart> parts;
            parts.push_back(MakePart(
                builder, ElementType::ColumnSegment,
                Workbench::PrismGeometry{
                    {Rectangle({foot.x - 0.22, foot.y - 0.22}, {foot.x + 0.22, foot.y + 0.22})},
                    0.0,
                    Plinth,
                    Surface("Concreto")}));
            parts.push_back(MakePart(
                builder, ElementType::ColumnSegment,
                Workbench::PrismGeometry{
                    {Circle(foot, 0.18)}, Plinth, RoomHeight - Plinth, Surface("Concreto")}));
            AddElement(builder, ElementType::Column, On("Estrutura", floorIndex)).parts =
                std::move(parts);
        }
    }

    void Beam() const {
        std::vector<Workbench::ElementPart> parts;
        const std::vector<std::pair<double, double>> spans = {{0.1, ColumnFoot.y},
                                                              {ColumnFoot.y, 9.9}};
        parts.reserve(spans.size());
        for (const auto& [from, to] : spans) {
            parts.push_back(MakePart(builder, ElementType::BeamSegment,
                                     Workbench::BarGeometry{{ColumnFoot.x, from, RoomHeight},
                                                            {ColumnFoot.x, to, RoomHeight},
                                                            0.2,
                                                            0.35,
                                                            Surface("Concreto")}));
        }
        AddElement(builder, ElementType::Beam, On("Estrutura", 0)).parts = std::move(parts);
    }

    void Roof() const {
        const double slope = 10.0 * std::numbers::pi / 180.0;
        constexpr double Eaves = 0.6;
        constexpr double Rise = 0.17633; // of 10 degrees
        const double level = Rounded(FloorHeight - (Eaves - 0.1) * Rise);
        const Coordinate low = {-Eaves, -Eaves};
        const Coordinate high = {18.0 + Eaves, 10.0 + Eaves};
        const auto addPlane = [&](const Host::Contour& outline, Coordinate begin, Coordinate end) {
            Workbench::RoofGeometry roof{{outline},
                                         begin,
                                         end,
                                         level,
                                         Rounded(slope),
                                         0.12,
                                         Surface("Telha"),
                                         Surface("Madeira"),
                                         Surface("Madeira")};
            AddGeometry(builder, ElementType::Roof, On("Cobertura", 1), roof);
        };
        addPlane(Rectangle(low, {high.x, 5.0}), low, {high.x, low.y});
        addPlane(Rectangle({low.x, 5.0}, high), high, {low.x, high.y});
        const double side = Rounded(level + Eaves * Rise);
        const double ridge = Rounded(level + (5.0 + Eaves) * Rise);
        Gable(-0.1, side, ridge);
        Gable(17.9, side, ridge);
    }

    // The wall between the upper slab and the roof, 0.2 m thick from `x` on.
    void Gable(double x, double side, double ridge) const {
        Host::ElementMemo memo;
        for (const double at : {x, Rounded(x + 0.2)}) {
            memo.body.vertices.insert(memo.body.vertices.end(), {{at, 0.0, FloorHeight},
                                                                 {at, 10.0, FloorHeight},
                                                                 {at, 10.0, side},
                                                                 {at, 5.0, ridge},
                                                                 {at, 0.0, side}});
        }
        memo.body.faces.push_back({{{4, 3, 2, 1, 0}}, {}});
        memo.body.faces.push_back({{{5, 6, 7, 8, 9}}, {}});
        for (std::int32_t i = 0; i < 5; ++i) {
            const std::int32_t next = (i + 1) % 5;
            memo.body.faces.push_back({{{i, next, next + 5, i + 5}}, {}});
        }
        AddData(builder, ElementType::Morph, On("Cobertura", 1),
                Host::MorphData{Surface("Pintura branca"), 0.0}, std::move(memo));
    }

    void Ground() const {
        Workbench::MeshGeometry mesh;
        mesh.outline = {{-3.5, -4.0, -0.55}, {6.0, -4.4, -0.45}, {15.0, -4.2, -0.35},
                        {21.5, -4.0, -0.3},  {21.8, 4.0, -0.25}, {21.5, 13.5, -0.3},
                        {12.0, 13.9, -0.2},  {2.0, 13.5, -0.3},  {-3.5, 13.5, -0.4},
                        {-3.8, 5.0, -0.5}};
        mesh.bottom = -1.5;
        mesh.topSurface = Surface("Grama");
        mesh.edgeSurface = Surface("Concreto");
        AddGeometry(builder, ElementType::Mesh, On("Terreno", 0), mesh);
    }

    // A wall of an earlier design, which must not be seen, and one that nobody may touch.
    void OtherLayers() const {
        WallGeometry wall{{9.0, 0.1},
                          {9.0, 5.9},
                          0.0,
                          0.1,
                          0.0,
                          RoomHeight,
                          Surface("Pintura branca"),
                          Surface("Pintura branca"),
                          Surface("Pintura branca")};
        AddGeometry(builder, ElementType::Wall, On("Estudo anterior", 0), wall);
        WallGeometry fence{
            {-0.8, -0.9},        {12.0, -0.9},       0.0, 0.15, -0.5, 1.4, Surface("Concreto"),
            Surface("Concreto"), Surface("Concreto")};
        AddGeometry(builder, ElementType::Wall, On("Levantamento", 0), fence);
    }
};

} // namespace

void AddOfficeShell(ProjectBuilder& builder) {
    const Shell shell{builder};
    shell.OuterWalls(0, 13.7); // from there on the curtain wall closes the hall
    shell.GroundFloorRooms();
    shell.Shaft(0);
    shell.OuterWalls(1, 13.7);
    shell.UpperFloorRooms();
    shell.Shaft(1);
    shell.Slabs();
    shell.Ceilings();
    shell.Columns();
    shell.Beam();
    shell.Roof();
    shell.Ground();
    shell.OtherLayers();
}

} // namespace Merivane::Examples
