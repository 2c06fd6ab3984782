#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "exemplos/OfficePlan.hpp"
#include "exemplos/OfficeProject.hpp"

namespace Merivane::Examples {

namespace {

using Host::ElementType;
using Workbench::GivenBody;

// Furniture in the Zones ends below 0.73 m, so that no point of a work plane at 0.75 m lies in it
// and nobody looks out of a cupboard.
struct Furniture {
    ProjectBuilder& builder;
    Place place{};

    Host::AttributeIndex Surface(const char* name) const { return SurfaceOf(builder, name); }

    std::int32_t Part(const std::string& name, double sizeA, double sizeB,
                      std::vector<GivenBody> bodies) const {
        Workbench::ProjectPart part;
        part.name = name;
        part.mainGuid = Workbench::NextGuid(builder.guids);
        part.sizeA = sizeA;
        part.sizeB = sizeB;
        part.bodies = std::move(bodies);
        builder.project.parts.push_back(std::move(part));
        return static_cast<std::int32_t>(builder.project.parts.size());
    }

    void Put(std::int32_t part, Host::Coordinate position, double angle = 0.0) const {
        const Workbench::ProjectPart& made =
            builder.project.parts[static_cast<std::size_t>(part) - 1];
        Host::ObjectData object;
        object.libraryIndex = part;
        object.position = position;
        object.angle = angle;
        object.sizeA = made.sizeA;
        object.sizeB = made.sizeB;
        AddData(builder, ElementType::Object, place, object);
    }

    std::int32_t Desk() const {
        const Host::AttributeIndex wood = Surface("Madeira");
        const Host::AttributeIndex metal = Surface("Metal");
        return Part("Mesa 160 x 70", 1.6, 0.7,
                    {BoxBody({{-0.8, -0.35, 0.69}, {0.8, 0.35, 0.72}}, wood),
                     BoxBody({{-0.76, -0.3, 0.0}, {-0.72, 0.3, 0.69}}, metal),
                     BoxBody({{0.72, -0.3, 0.0}, {0.76, 0.3, 0.69}}, metal)});
    }

    std::int32_t Chair() const {
        const Host::AttributeIndex fabric = Surface("Carpete");
        return Part("Cadeira", 0.5, 0.5,
                    {BoxBody({{-0.23, -0.23, 0.43}, {0.23, 0.23, 0.48}}, fabric),
                     BoxBody({{-0.21, -0.25, 0.5}, {0.21, -0.2, 0.7}}, fabric),
                     BoxBody({{-0.04, -0.04, 0.0}, {0.04, 0.04, 0.43}}, Surface("Metal"))});
    }

    std::int32_t MeetingTable() const {
        return Part("Mesa de reunião", 2.6, 1.1,
                    {BoxBody({{-1.3, -0.55, 0.68}, {1.3, 0.55, 0.72}}, Surface("Madeira")),
                     BoxBody({{-0.9, -0.1, 0.0}, {0.9, 0.1, 0.68}}, Surface("Metal"))});
    }

    // Nobody has given it a surface.
    std::int32_t Cupboard() const {
        return Part("Armário baixo", 0.8, 0.45,
                    {BoxBody({{-0.4, -0.225, 0.0}, {0.4, 0.225, 0.7}}, Host::AttributeIndex{})});
    }

    std::int32_t Sofa() const {
        const Host::AttributeIndex fabric = Surface("Carpete");
        return Part("Sofá", 1.8, 0.8,
                    {BoxBody({{-0.9, -0.4, 0.0}, {0.9, 0.4, 0.42}}, fabric),
                     BoxBody({{-0.9, 0.22, 0.42}, {0.9, 0.4, 0.8}}, fabric)});
    }

    // A desk with its chair on the south side; turned, both turn.
    void Workplace(std::int32_t desk, std::int32_t chair, Host::Coordinate at, bool turned) const {
        const double side = turned ? 1.0 : -1.0;
        const double angle = turned ? std::numbers::pi : 0.0;
        Put(desk, at, angle);
        Put(chair, {at.x, Rounded(at.y + side * 0.55)}, angle);
    }
};

// The counter of the hall: an L with a raised front, made by hand.
void AddCounter(ProjectBuilder& builder) {
    Host::ElementMemo memo;
    const std::vector<Host::Coordinate> plan = {{16.2, 4.2}, {17.4, 4.2}, {17.4, 4.8},
                                                {16.8, 4.8}, {16.8, 6.2}, {16.2, 6.2}};
    Host::MorphBody::Face lower{{{}}, {}};
    Host::MorphBody::Face upper{{{}}, SurfaceOf(builder, "Concreto")};
    for (const Host::Coordinate& corner : plan) {
        const auto first = static_cast<std::int32_t>(memo.body.vertices.size());
        memo.body.vertices.push_back({corner.x, corner.y, 0.0});
        memo.body.vertices.push_back({corner.x, corner.y, 1.05});
        lower.contours[0].insert(lower.contours[0].begin(), first);
        upper.contours[0].push_back(first + 1);
    }
    memo.body.faces = {lower, upper};
    for (std::int32_t i = 0; i < 6; ++i) {
        const std::int32_t next = (i + 1) % 6;
        memo.body.faces.push_back({{{2 * i, 2 * next, 2 * next + 1, 2 * i + 1}}, {}});
    }
    AddData(builder, ElementType::Morph, {LayerOf(builder, "Mobiliário"), 0},
            Host::MorphData{SurfaceOf(builder, "Madeira"), 0.0}, std::move(memo));
}

} // namespace

void AddOfficeFurniture(ProjectBuilder& builder) {
    Furniture ground{builder, {LayerOf(builder, "Mobiliário"), 0}};
    const std::int32_t desk = ground.Desk();
    const std::int32_t chair = ground.Chair();
    const std::int32_t table = ground.MeetingTable();
    const std::int32_t cupboard = ground.Cupboard();
    const std::int32_t sofa = ground.Sofa();

    for (const double x : {1.6, 3.4, 5.2}) {
        ground.Workplace(desk, chair, {x, 1.65}, false);
        ground.Workplace(desk, chair, {x, 2.4}, true);
    }
    for (const double x : {1.4, 5.8}) {
        ground.Workplace(desk, chair, {x, 7.8}, false);
        ground.Workplace(desk, chair, {x, 8.55}, true);
    }
    for (const double x : {7.8, 8.65, 9.5}) { // they part the desks from the meeting room
        ground.Put(cupboard, {x, 4.3});
    }
    ground.Put(table, {9.5, 8.0});
    for (const double x : {8.7, 9.5, 10.3}) {
        ground.Put(chair, {x, 7.2});
        ground.Put(chair, {x, 8.8}, std::numbers::pi);
    }
    ground.Put(sofa, {16.9, 1.2}, std::numbers::pi);
    AddCounter(builder);

    Furniture upper{builder, {LayerOf(builder, "Mobiliário"), 1}};
    upper.Workplace(desk, chair, {2.6, 2.6}, true);
    upper.Put(table, {8.6, 2.5});
    for (const double x : {7.9, 9.3}) {
        upper.Put(chair, {x, 1.7});
        upper.Put(chair, {x, 3.3}, std::numbers::pi);
    }
    for (const double x : {1.0, 1.85, 2.7}) {
        upper.Put(cupboard, {x, 9.65});
    }
    for (const double x : {6.2, 7.8, 9.4, 11.0}) {
        for (const double y : {6.9, 8.3}) {
            upper.Put(chair, {x, y});
        }
    }

    Furniture earlier{builder, {LayerOf(builder, "Estudo anterior"), 0}};
    earlier.Put(sofa, {8.0, 4.4});
    Furniture survey{builder, {LayerOf(builder, "Levantamento"), 0}};
    survey.Put(cupboard, {15.8, 9.65});
}

} // namespace Merivane::Examples
