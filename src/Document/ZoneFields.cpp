#include <cmath>
#include <string>

#include "Document/OutlineCheck.hpp"
#include "Document/SceneFields.hpp"
#include "Text/Number.hpp"

namespace Merivane::Document {

namespace {

using Simulation::Point2D;
using Ring = std::vector<Point2D>;

constexpr std::size_t MostVertices = 10000; // crossings are sought in time that grows by the square

bool ReadRing(const Place& place, Ring& ring, std::string& error) {
    const auto readPoint = [](const Place& item, Point2D& point, std::string& text) {
        return Into(point, CoordinateRange)(item, text);
    };
    if (!IntoList(ring, {3, MostVertices, "pontos"}, readPoint)(place, error)) {
        return false;
    }
    ring = WithoutRepeats(ring);
    return ring.size() >= 3 || Refuse(place, "o contorno tem área nula", error);
}

std::string PointText(Point2D point) {
    const auto centimetres = [](double value) { return Text::FormatFixed(value, 2); };
    return "[" + centimetres(point.x) + ", " + centimetres(point.y) + "]";
}

bool RefuseOutline(const Place& place, const OutlineJudgement& judgement, std::string& error) {
    const Place outline{place.value->Find("contorno"), &place, "contorno", 0};
    const Place holes{place.value->Find("furos"), &place, "furos", 0};
    const Place hole{nullptr, &holes, {}, static_cast<std::size_t>(judgement.ring)};
    const Place& ring = judgement.ring < 0 ? outline : hole;
    switch (judgement.fault) {
    case OutlineFault::None:
        return true;
    case OutlineFault::NoArea:
        return Refuse(ring, "o contorno tem área nula", error);
    case OutlineFault::SelfCrossing:
        return Refuse(ring, "o contorno cruza a si mesmo em " + PointText(judgement.place), error);
    case OutlineFault::HoleCrossing:
        return Refuse(ring, "o furo cruza outro contorno em " + PointText(judgement.place), error);
    case OutlineFault::HoleOutside:
        return Refuse(ring, "o furo sai do contorno da Zona em " + PointText(judgement.place),
                      error);
    }
    return true;
}

bool CheckOutline(const Place& place, const Simulation::Polygon2D& outline, std::string& error) {
    std::size_t count = outline.outer.size();
    for (const Ring& hole : outline.holes) {
        count += hole.size();
    }
    if (count > MostVertices) {
        return Refuse(place,
                      "contorno e furos têm " + std::to_string(count) +
                          " pontos; espera-se no máximo " + std::to_string(MostVertices),
                      error);
    }
    return RefuseOutline(place, JudgeOutline(outline), error);
}

bool CheckHeights(const Place& place, const Simulation::StudyZone& zone, std::string& error) {
    if (zone.grid.workPlaneHeight < zone.height) {
        return true;
    }
    const Place height{place.value->Find("planoDeTrabalho"), &place, "planoDeTrabalho", 0};
    return Refuse(height,
                  "espera-se menos que a altura da Zona (" + NumberText(zone.height) +
                      "), mas há " + NumberText(zone.grid.workPlaneHeight),
                  error);
}

bool CheckSpacing(const Place& place, double spacing, std::string& error) {
    constexpr double smallest = 0.01;
    if (spacing == 0.0 || spacing >= smallest) {
        return true;
    }
    const Place value{place.value->Find("espacamento"), &place, "espacamento", 0};
    return RefuseValue(value, "0 ou um número de 0.01 a 100", error);
}

} // namespace

bool ReadZone(const Place& place, Simulation::StudyZone& zone, std::string& error) {
    const FieldReader readOutline = [&zone](const Place& item, std::string& text) {
        return ReadRing(item, zone.outline.outer, text);
    };
    Simulation::GridSettings& grid = zone.grid;
    return ReadObject(place,
                      {Required("nome", Into(zone.name)), Required("contorno", readOutline),
                       Optional("furos", IntoList(zone.outline.holes, {0, 0, "furos"}, ReadRing)),
                       Optional("piso", Into(zone.floorLevel, CoordinateRange)),
                       Required("altura", Into(zone.height, {0.01, 1000.0})),
                       Optional("planoDeTrabalho", Into(grid.workPlaneHeight, {0.0, 1000.0})),
                       Optional("afastamento", Into(grid.wallOffset, {0.0, 100.0})),
                       Optional("faixa", Into(grid.borderBand, {0.0, 100.0})),
                       Optional("espacamento", Into(grid.spacing, {0.0, 100.0})),
                       Optional("calcularParedes", Into(zone.calculateWalls)),
                       Optional("calcularTeto", Into(zone.calculateCeiling)),
                       Optional("calcularPiso", Into(zone.calculateFloor)),
                       Optional("atividade", IntoActivity(zone)),
                       Optional("em", Into(zone.task.requirement.em, {0.0, 10000.0})),
                       Optional("u0", Into(zone.task.requirement.u0, {0.0, 1.0})),
                       Optional("telas", IntoScreens(zone.task.requirement.screens))},
                      error) &&
           CheckActivity(place, error) && CheckOutline(place, zone.outline, error) &&
           CheckHeights(place, zone, error) && CheckSpacing(place, grid.spacing, error);
}

bool ReadPoint(const Place& place, Simulation::ScenePoint& point, std::string& error) {
    Simulation::Point3D position;
    Simulation::Point3D direction = {0.0, 0.0, 1.0};
    if (!ReadObject(place,
                    {Required("posicao", Into(position, CoordinateRange)),
                     Optional("direcao", Into(direction, CoordinateRange))},
                    error)) {
        return false;
    }
    const double length = std::hypot(direction.x, direction.y, direction.z);
    if (length < 1e-6) {
        const Place value{place.value->Find("direcao"), &place, "direcao", 0};
        return Refuse(value, "a direção tem comprimento nulo", error);
    }
    point = {position.x,           position.y,           position.z,
             direction.x / length, direction.y / length, direction.z / length};
    return true;
}

} // namespace Merivane::Document
