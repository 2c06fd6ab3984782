#include <string>
#include <utility>
#include <vector>

#include "exemplos/OfficePlan.hpp"
#include "exemplos/OfficeProject.hpp"

namespace Merivane::Examples {

namespace {

using Host::Coordinate3D;
using Host::ElementType;
using Parts = std::vector<Workbench::ElementPart>;

// Twenty risers of 16 cm, nineteen treads of 28 cm, going north.
constexpr int Risers = 20;
constexpr double Riser = FloorHeight / Risers;
constexpr double Going = 0.28;
constexpr double StairBegin = 1.95; // y of the first riser
constexpr double StairWest = 14.0;
constexpr double StairEast = 15.2;

void AddStair(ProjectBuilder& builder) {
    const Host::AttributeIndex wood = SurfaceOf(builder, "Madeira");
    const Host::AttributeIndex metal = SurfaceOf(builder, "Metal");
    Parts parts;
    for (int i = 0; i < Risers; ++i) {
        const double y = Rounded(StairBegin + i * Going);
        const double low = Rounded(i * Riser);
        const double high = Rounded((i + 1) * Riser);
        parts.push_back(MakePart(
            builder, ElementType::Riser,
            Workbench::PrismGeometry{{Rectangle({StairWest, y}, {StairEast, Rounded(y + 0.02)})},
                                     low,
                                     Rounded(high - 0.04 - low),
                                     wood}));
        if (i + 1 < Risers) {
            parts.push_back(MakePart(
                builder, ElementType::Tread,
                Workbench::PrismGeometry{
                    {Rectangle({StairWest, Rounded(y - 0.02)}, {StairEast, Rounded(y + Going)})},
                    Rounded(high - 0.04),
                    0.04,
                    wood}));
        }
    }
    for (const double x : {StairWest - 0.03, StairEast + 0.03}) {
        parts.push_back(
            MakePart(builder, ElementType::StairStructure,
                     Workbench::BarGeometry{
                         {Rounded(x), StairBegin, 0.2},
                         {Rounded(x), Rounded(StairBegin + (Risers - 1) * Going), FloorHeight},
                         0.06,
                         0.3,
                         metal}));
    }
    AddElement(builder, ElementType::Stair, {LayerOf(builder, "Escadas e guarda-corpos"), 0})
        .parts = std::move(parts);
}

// One side of the railing: posts a meter apart, a handrail, a pane between them.
void AddRailingSide(ProjectBuilder& builder, const Host::Coordinate& from,
                    const Host::Coordinate& to, int fields, Parts& parts) {
    constexpr double Height = 1.1;
    const Host::AttributeIndex metal = SurfaceOf(builder, "Metal");
    const auto placeAt = [&](int i, double z) {
        const double share = static_cast<double>(i) / fields;
        return Coordinate3D{Rounded(from.x + share * (to.x - from.x)),
                            Rounded(from.y + share * (to.y - from.y)), z};
    };
    for (int i = 0; i <= fields; ++i) {
        parts.push_back(MakePart(
            builder, ElementType::RailingPart,
            Workbench::BarGeometry{placeAt(i, 0.0), placeAt(i, Height), 0.04, 0.04, metal}));
    }
    parts.push_back(
        MakePart(builder, ElementType::RailingPart,
                 Workbench::BarGeometry{placeAt(0, Height + 0.04), placeAt(fields, Height + 0.04),
                                        0.06, 0.04, metal}));
    parts.push_back(
        MakePart(builder, ElementType::RailingPart,
                 Workbench::BarGeometry{placeAt(0, Height - 0.1), placeAt(fields, Height - 0.1),
                                        0.012, Height - 0.2, SurfaceOf(builder, "Vidro")}));
}

void AddRailing(ProjectBuilder& builder) {
    constexpr double Off = 0.1; // from the hole's edge
    const Host::Coordinate southWest = {StairLow.x - Off, StairLow.y - Off};
    const Host::Coordinate southEast = {StairHigh.x + Off, StairLow.y - Off};
    Parts parts;
    AddRailingSide(builder, {southWest.x, StairHigh.y}, southWest, 5, parts);
    AddRailingSide(builder, southWest, southEast, 2, parts);
    AddRailingSide(builder, southEast, {southEast.x, StairHigh.y}, 5, parts);
    AddElement(builder, ElementType::Railing, {LayerOf(builder, "Escadas e guarda-corpos"), 1})
        .parts = std::move(parts);
}

// Four fields by four over both floors, from the south wall's end to the east wall.
void AddCurtainWall(ProjectBuilder& builder) {
    const std::vector<double> xs = {13.725, 14.775, 15.8, 16.825, 17.875};
    const std::vector<double> zs = {0.025, 1.1, 3.1, 4.3, 6.175};
    constexpr double Depth = 0.12;
    constexpr double Half = 0.025; // of a member's width
    constexpr double Top = 6.2;
    const Host::AttributeIndex metal = SurfaceOf(builder, "Metal");
    const Host::AttributeIndex glass = SurfaceOf(builder, "Vidro");
    Parts parts;
    for (const double x : xs) { // an upright bar has its height along y
        parts.push_back(
            MakePart(builder, ElementType::CurtainWallFrame,
                     Workbench::BarGeometry{
                         {x, Depth / 2.0, 0.0}, {x, Depth / 2.0, Top}, 2.0 * Half, Depth, metal}));
    }
    for (std::size_t column = 0; column + 1 < xs.size(); ++column) {
        const double left = Rounded(xs[column] + Half);
        const double right = Rounded(xs[column + 1] - Half);
        for (const double z : zs) {
            parts.push_back(MakePart(builder, ElementType::CurtainWallFrame,
                                     Workbench::BarGeometry{{left, 0.0, Rounded(z + Half)},
                                                            {right, 0.0, Rounded(z + Half)},
                                                            Depth,
                                                            2.0 * Half,
                                                            metal}));
        }
        for (std::size_t row = 0; row + 1 < zs.size(); ++row) {
            const Box pane = {{left, -0.012, Rounded(zs[row] + Half)},
                              {right, 0.012, Rounded(zs[row + 1] - Half)}};
            parts.push_back(MakePart(builder, ElementType::CurtainWallPanel, BoxBody(pane, glass)));
        }
    }
    AddElement(builder, ElementType::CurtainWall, {LayerOf(builder, "Esquadrias"), 0}).parts =
        std::move(parts);
}

} // namespace

void AddOfficeAssemblies(ProjectBuilder& builder) {
    AddStair(builder);
    AddRailing(builder);
    AddCurtainWall(builder);
}

} // namespace Merivane::Examples
