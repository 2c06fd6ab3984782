#include "Workbench/Script/CuttingForms.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "Workbench/Script/BodyBooleans.hpp"
#include "Workbench/Script/BodyMending.hpp"
#include "Workbench/Script/PrismParts.hpp"
#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeModel.hpp"
#include "Workbench/Script/ShapeProfile.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr RowLayout PlainRows = {2, 0};
constexpr RowLayout MaskRows = {3, 2};
constexpr RowLayout SurfaceRows = {4, 2}; // x, y, mask, material

constexpr std::int32_t BodyLookBit = 1;
constexpr std::int32_t HalfEndlessBit = 16;
constexpr std::int32_t EndlessBits = 8 + 16;
constexpr std::int32_t KeepsInsideBit = 32;

/// The polygon, and in `direction` the three numbers behind its rows where there are any.
std::string TakePolygon(ShapeInput& input, std::size_t count, const RowLayout& layout,
                        const ModelBuild& build, ShapeProfile& profile, Coordinate3D& direction) {
    constexpr std::size_t components = 3;
    const std::size_t rest = input.numbers.size() - input.at;
    if (rest == count * layout.columns + components) {
        const double* const last = input.numbers.data() + input.numbers.size() - components;
        direction = {last[0], last[1], last[2]};
        input.numbers.resize(input.numbers.size() - components);
    }
    if (std::string refusal = ReadProfile(input, StartSketch(build), count, layout, profile);
        !refusal.empty()) {
        return refusal;
    }
    return CloseProfile(profile) ? std::string{} : "o polígono de corte não tem área";
}

/// Brings the form into the part's frame; `topOf` tells where each point is drawn to.
template <typename TopOf>
std::string PlaceForm(const ModelBuild& build, const ShapeProfile& profile, std::int32_t surface,
                      TopOf topOf, CuttingForm& form) {
    const ScriptFrame& frame = build.look.frame;
    form.surface = surface;
    form.loft = ProfileLoft(profile, surface, true);
    for (const Coordinate& point : ProfilePoints(profile)) {
        form.base.push_back(TransformPlace(frame, {point.x, point.y, 0.0}));
        form.tops.push_back(TransformPlace(frame, topOf(point)));
    }
    const auto direction = [&](std::size_t column) {
        return Coordinate3D{frame[column], frame[column + 4], frame[column + 8]};
    };
    form.normal = Unit(Cross(direction(0), direction(1)));
    const double height = Dot(Difference(form.tops.front(), form.base.front()), form.normal);
    return std::abs(height) > NoShapeLength ? std::string{}
                                            : "o corte não se afasta do plano do polígono";
}

std::string ReadTube(ShapeInput& input, const ModelBuild& build, bool hasMasks, CuttingForm& form) {
    const RowLayout& layout = hasMasks ? MaskRows : PlainRows;
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(layout), count); !refusal.empty()) {
        return refusal;
    }
    double distance = 0.0;
    if (hasMasks) {
        form.bodySurface = HasBits(TakeBits(input), BodyLookBit);
        distance = TakeNumber(input);
    }
    Coordinate3D direction = {0.0, 0.0, 1.0};
    ShapeProfile profile;
    if (std::string refusal = TakePolygon(input, count, layout, build, profile, direction);
        !refusal.empty()) {
        return refusal;
    }
    direction = Unit(direction);
    form.begin = distance;
    form.endlessBegin = distance == 0.0;
    form.endlessEnd = true;
    return PlaceForm(
        build, profile, build.look.surface,
        [&](const Coordinate& point) {
            return Coordinate3D{point.x + direction.x, point.y + direction.y, direction.z};
        },
        form);
}

enum class FormMethod { Prism = 1, Pyramid = 2, Wedge = 3 };

/// Which part of the form cuts.
void SetExtent(std::int32_t status, FormMethod method, double reach, double distance,
               CuttingForm& form) {
    const bool endless = HasBits(status, EndlessBits);
    const bool halfEndless = HasBits(status, HalfEndlessBit);
    const double share = reach > 0.0 ? distance / reach : 0.0;
    form.endlessBegin = halfEndless;
    if (method == FormMethod::Prism) {
        form.endlessEnd = endless;
        form.end = share;
        return;
    }
    // A pyramid and a wedge end at their tops, or before.
    form.end = !endless && share > 0.0 ? std::min(1.0, share) : 1.0;
}

std::string ReadForm(ShapeInput& input, const ModelBuild& build, const RowLayout& layout,
                     CuttingForm& form) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(layout), count); !refusal.empty()) {
        return refusal;
    }
    const std::int32_t number = TakeBits(input);
    if (number < 1 || number > 3) {
        return "o método de corte deve ser 1, 2 ou 3";
    }
    const auto method = static_cast<FormMethod>(number);
    const std::int32_t status = TakeBits(input);
    const Coordinate3D top = TakePlace(input);
    const double distance = TakeNumber(input);
    ShapeProfile profile;
    Coordinate3D unused;
    const std::size_t rest = input.numbers.size() - input.at;
    if (rest != count * layout.columns) {
        return CheckRest(input, count * layout.columns);
    }
    if (std::string refusal = TakePolygon(input, count, layout, build, profile, unused);
        !refusal.empty()) {
        return refusal;
    }
    form.bodySurface = HasBits(status, BodyLookBit);
    form.keepsInside = HasBits(status, KeepsInsideBit);
    SetExtent(status, method, Length(top), distance, form);
    std::string refusal = PlaceForm(
        build, profile, build.look.surface,
        [&](const Coordinate& point) {
            switch (method) {
            case FormMethod::Prism:
                return Coordinate3D{point.x + top.x, point.y + top.y, top.z};
            case FormMethod::Pyramid:
                return top;
            case FormMethod::Wedge:
                return Coordinate3D{top.x, point.y, top.z};
            }
            return top;
        },
        form);
    if (layout.columns == SurfaceRows.columns) {
        SetSideSurfaces(input, profile, 3, form.loft);
    }
    return refusal;
}

/// Behind what a box reaches, a form without end goes on by this share of its own reach.
constexpr double Overhang = 0.25;

/// The shares of a form's lines at which a box begins and ends.
std::pair<double, double> SharesOf(const CuttingForm& form, const SpaceBox& box) {
    const double height = Dot(Difference(form.tops.front(), form.base.front()), form.normal);
    std::pair<double, double> shares = {SpaceBox::Far, -SpaceBox::Far};
    for (const double x : {box.low.x, box.high.x}) {
        for (const double y : {box.low.y, box.high.y}) {
            for (const double z : {box.low.z, box.high.z}) {
                const double share =
                    Dot(Difference({x, y, z}, form.base.front()), form.normal) / height;
                shares = {std::min(shares.first, share), std::max(shares.second, share)};
            }
        }
    }
    return shares;
}

/// What of a form can meet a box, as a closed body; empty where nothing can. False when the budget
/// does not reach.
bool BuildForm(const CuttingForm& form, const SpaceBox& box, SolidBudget& budget, FacedBody& body) {
    auto [low, high] = SharesOf(form, box);
    const double overhang = Overhang * (high - low) + Overhang;
    const double begin = form.endlessBegin ? std::min(low - overhang, form.end) : form.begin;
    const double end = form.endlessEnd ? std::max(high + overhang, form.begin) : form.end;
    const double from = std::min(begin, end);
    const double to = std::max(begin, end);
    if (!Spend(budget, form.base.size())) {
        return false;
    }
    if (to <= low || from >= high) {
        return true;
    }
    PrismEnds ends;
    SpaceBox reach;
    for (std::size_t i = 0; i < form.base.size(); ++i) {
        const Coordinate3D way = Difference(form.tops[i], form.base[i]);
        ends.bottom.push_back(Sum(form.base[i], Scaled(way, from)));
        ends.top.push_back(to == 1.0 ? form.tops[i] : Sum(form.base[i], Scaled(way, to)));
        Enclose(reach, ends.bottom.back());
        Enclose(reach, ends.top.back());
    }
    if (!BoxesMeet(reach, box, SamePlace)) {
        return true;
    }
    ShapeSketch sketch;
    sketch.faceRoom = std::numeric_limits<std::size_t>::max();
    sketch.vertexRoom = sketch.faceRoom;
    AddPrism(sketch, form.loft, ends, {form.surface, form.surface, form.surface});
    OrientOutwards(sketch);
    body = std::move(sketch.body);
    // Tops may be one place or lie on one edge.
    if (to == 1.0 && !JoinVertices(body, budget)) {
        return false;
    }
    FlattenFaces(body);
    return true;
}

SpaceBox SketchBox(const ShapeSketch& sketch) {
    SpaceBox box = BodyBox(sketch.body);
    for (const auto& [begin, end] : sketch.wires) {
        Enclose(box, begin);
        Enclose(box, end);
    }
    return box;
}

/// Faces of a form while they are told apart from the body's own.
constexpr std::int32_t CutFace = std::numeric_limits<std::int32_t>::min();

bool CutByForm(ModelBuild& build, const CuttingForm& form, ShapeSketch& sketch) {
    const SpaceBox box = SketchBox(sketch);
    FacedBody solid;
    if (!BuildForm(form, box, build.solidBudget, solid)) {
        return false;
    }
    if (solid.faces.empty()) {
        if (form.keepsInside) {
            sketch.body = {};
            sketch.wires.clear();
        }
        return true;
    }
    const bool isSolid = build.look.detail != ModelLook::Detail::Surface;
    for (ContouredFace& face : solid.faces) {
        if (!isSolid || form.bodySurface) {
            face.surface = isSolid ? build.look.surface : CutFace;
        }
    }
    const BooleanTool tool = MakeTool(solid);
    const BodyOperation operation =
        form.keepsInside ? BodyOperation::Intersection : BodyOperation::Difference;
    if (!CombineBodies(sketch.body, tool, operation, build.solidBudget)) {
        return false;
    }
    std::erase_if(sketch.body.faces,
                  [](const ContouredFace& face) { return face.surface == CutFace; });
    return ClipLines(sketch.wires, tool, form.keepsInside, build.solidBudget);
}

} // namespace

std::string ReadCuttingForm(std::string_view keyword, const std::vector<ScriptValue>& arguments,
                            const ModelBuild& build, CuttingForm& form) {
    ShapeInput input;
    if (std::string refusal = ReadShapeInput(build, arguments, input); !refusal.empty()) {
        return refusal;
    }
    if (keyword == "CUTFORM" || keyword == "CUTFORM{2}") {
        return ReadForm(input, build, keyword == "CUTFORM" ? MaskRows : SurfaceRows, form);
    }
    return ReadTube(input, build, keyword == "CUTPOLYA", form);
}

std::string CutByForms(ModelBuild& build, ShapeSketch& sketch) {
    for (const std::shared_ptr<const CuttingForm>& form : build.forms) {
        if (sketch.body.faces.empty() && sketch.wires.empty()) {
            break;
        }
        if (!CutByForm(build, *form, sketch)) {
            return SolidsTakeTooMuch;
        }
    }
    return {};
}

} // namespace Merivane::Workbench
