#include "Workbench/Script/LowLevelShapes.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <unordered_map>
#include <utility>

#include "Workbench/Script/FaceTurning.hpp"
#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeModel.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::int32_t InvisibleEdge = 1; ///< bit of EDGE's status

using Numbers = std::vector<double>;

/// A number of something that counts from 1; false for one that does not exist.
bool FindNumber(double given, std::size_t count, std::int32_t& number) {
    if (given != std::floor(given) || !(std::abs(given) <= static_cast<double>(count))) {
        return false;
    }
    number = static_cast<std::int32_t>(given);
    return true;
}

std::string Missing(const char* what, double number) {
    constexpr double most = 1e9;
    return std::string(what) + " " + std::to_string(std::lround(std::clamp(number, -most, most))) +
           " não existe";
}

/// Vertices and edges stay when a body ends; it takes those that its faces need, so that a script
/// can end many.
std::string EndBody(ModelBuild& build) {
    ShapeSketch sketch = StartSketch(build);
    const OpenBody& open = build.open;
    std::unordered_map<std::int32_t, std::int32_t> taken;
    const auto take = [&](std::int32_t vertex) {
        const auto [found, isNew] = taken.try_emplace(vertex, 0);
        if (isNew) {
            found->second = AddVertex(sketch, open.vertices[static_cast<std::size_t>(vertex)]);
        }
        return found->second;
    };
    for (const OpenBody::Face& face : open.faces) {
        std::vector<std::vector<std::int32_t>> contours(1);
        for (const std::int32_t number : face.edges) {
            if (number == 0) {
                contours.emplace_back();
                continue;
            }
            const OpenBody::Edge& edge = open.edges[static_cast<std::size_t>(std::abs(number)) - 1];
            contours.back().push_back(take(number > 0 ? edge.from : edge.to));
        }
        AddFace(sketch, std::move(contours), face.surface);
    }
    for (std::size_t i = open.endedEdges; open.faces.empty() && i < open.edges.size(); ++i) {
        const OpenBody::Edge& edge = open.edges[i];
        if (edge.visible) {
            sketch.wires.push_back({open.vertices[static_cast<std::size_t>(edge.from)],
                                    open.vertices[static_cast<std::size_t>(edge.to)]});
        }
    }
    build.open.faces.clear();
    build.open.endedEdges = open.edges.size();
    AgreeOnOutside(sketch.body);
    return AddToModel(build, sketch);
}

std::string AddOpenVertex(ModelBuild& build, const Numbers& numbers) {
    if (build.open.vertices.size() + build.vertexCount >= build.vertexLimit) {
        return "o modelo passa do limite de vértices";
    }
    build.open.vertices.push_back(
        TransformPlace(build.look.frame, {numbers[0], numbers[1], numbers[2]}));
    return {};
}

std::string AddOpenEdge(ModelBuild& build, const Numbers& numbers) {
    OpenBody& open = build.open;
    if (open.edges.size() >= build.vertexLimit) {
        return "o modelo passa do limite de arestas";
    }
    OpenBody::Edge edge;
    for (const auto& [given, end] :
         {std::pair{numbers[0], &edge.from}, std::pair{numbers[1], &edge.to}}) {
        if (!FindNumber(given, open.vertices.size(), *end) || *end < 1) {
            return Missing("o vértice", given);
        }
        --*end;
    }
    constexpr std::size_t statusAt = 4;
    edge.visible = !HasBits(WholeArgument(numbers[statusAt]), InvisibleEdge);
    open.edges.push_back(edge);
    return {};
}

/// Whether each edge of a contour ends where the next begins.
bool HangsTogether(const OpenBody& open, const std::vector<std::int32_t>& edges) {
    const auto endOf = [&](std::int32_t number, bool second) {
        const OpenBody::Edge& edge = open.edges[static_cast<std::size_t>(std::abs(number)) - 1];
        return (number > 0) == second ? edge.to : edge.from;
    };
    for (auto begin = edges.begin(); begin != edges.end();) {
        const auto end = std::find(begin, edges.end(), 0);
        for (auto at = begin; at != end; ++at) {
            const std::int32_t next = at + 1 == end ? *begin : *(at + 1);
            if (endOf(*at, true) != endOf(next, false)) {
                return false;
            }
        }
        begin = end == edges.end() ? end : end + 1;
    }
    return true;
}

/// The same contours walked the other way.
void TurnContours(std::vector<std::int32_t>& edges) {
    for (auto begin = edges.begin(); begin != edges.end();) {
        const auto end = std::find(begin, edges.end(), 0);
        std::reverse(begin, end);
        std::transform(begin, end, begin, std::negate<>());
        begin = end == edges.end() ? end : end + 1;
    }
}

/// The edges are the last `n` arguments: what stands between them and the status differs by form.
std::string AddOpenFace(ModelBuild& build, const Numbers& numbers) {
    OpenBody& open = build.open;
    constexpr std::size_t head = 3;
    const double count = numbers[0];
    if (!(count >= head) || count != std::floor(count)) {
        return "o número de arestas deve ser inteiro e pelo menos 3";
    }
    if (count > static_cast<double>(numbers.size() - head)) {
        return "pede pelo menos " + std::to_string(WholeArgument(count) + static_cast<int>(head)) +
               " argumentos e tem " + std::to_string(numbers.size());
    }
    const auto sides = static_cast<std::size_t>(count);
    if (open.faces.size() + build.shapeCount >= build.shapeLimit) {
        return "o modelo passa do limite de faces";
    }
    if (open.sideCount + sides > build.vertexLimit) {
        return "o modelo passa do limite de vértices";
    }
    std::int32_t vector = 0;
    if (!FindNumber(numbers[1], open.vectorCount, vector)) {
        return Missing("a normal", std::abs(numbers[1]));
    }
    OpenBody::Face face;
    face.surface = build.look.surface;
    for (std::size_t i = numbers.size() - sides; i < numbers.size(); ++i) {
        std::int32_t edge = 0;
        if (!FindNumber(numbers[i], open.edges.size(), edge)) {
            return Missing("a aresta", std::abs(numbers[i]));
        }
        face.edges.push_back(edge);
    }
    if (!HangsTogether(open, face.edges)) {
        return "as arestas da face não se seguem";
    }
    if (IsMirrored(build.look.frame)) {
        TurnContours(face.edges);
    }
    open.sideCount += sides;
    open.faces.push_back(std::move(face));
    return {};
}

std::string StartOpenBody(ModelBuild& build, const Numbers& /*numbers*/) {
    CloseOpenBody(build);
    return {};
}

std::string EndOpenBody(ModelBuild& build, const Numbers& /*numbers*/) {
    return EndBody(build);
}

std::string AddOpenVector(ModelBuild& build, const Numbers& /*numbers*/) {
    ++build.open.vectorCount;
    return {};
}

/// Textures are not drawn: their axes and pictures only have to name what exists.
std::string PlaceTexture(ModelBuild& build, const Numbers& numbers) {
    constexpr std::size_t axes = 4;
    for (std::size_t i = numbers.size() - axes; i < numbers.size(); ++i) {
        std::int32_t vertex = 0;
        if (!FindNumber(numbers[i], build.open.vertices.size(), vertex)) {
            return Missing("o vértice", std::abs(numbers[i]));
        }
    }
    return {};
}

struct LowLevelStatement {
    std::string_view keyword;
    std::size_t arguments; ///< that must be there; of all but BODY and the faces exactly
    bool more;
    std::size_t skipped; ///< that come first and are no numbers
    std::string (*run)(ModelBuild& build, const Numbers& numbers);
};

constexpr LowLevelStatement Statements[] = {
    {"BASE", 0, false, 0, StartOpenBody}, {"BODY", 0, true, 0, EndOpenBody},
    {"COOR", 5, false, 0, PlaceTexture},  {"EDGE", 5, false, 0, AddOpenEdge},
    {"PGON", 6, true, 0, AddOpenFace},    {"PGON{2}", 6, true, 0, AddOpenFace},
    {"PGON{3}", 6, true, 0, AddOpenFace}, {"PIPG", 6, true, 4, AddOpenFace},
    {"TEVE", 5, false, 0, AddOpenVertex}, {"VECT", 3, false, 0, AddOpenVector},
    {"VERT", 3, false, 0, AddOpenVertex}, {"VERT{2}", 4, false, 0, AddOpenVertex},
};

const LowLevelStatement* FindLowLevelStatement(std::string_view keyword) {
    const auto* const found =
        std::find_if(std::begin(Statements), std::end(Statements),
                     [&](const LowLevelStatement& known) { return known.keyword == keyword; });
    return found != std::end(Statements) ? found : nullptr;
}

} // namespace

bool IsLowLevelStatement(std::string_view keyword) {
    return FindLowLevelStatement(keyword) != nullptr;
}

std::string RunLowLevelStatement(ModelBuild& build, std::string_view keyword,
                                 const std::vector<ScriptValue>& arguments) {
    const LowLevelStatement* const statement = FindLowLevelStatement(keyword);
    if (statement == nullptr) {
        return "não é um corpo que se conheça";
    }
    const std::size_t wanted = statement->skipped + statement->arguments;
    if (arguments.size() < wanted || (!statement->more && arguments.size() > wanted)) {
        return std::string(statement->more ? "pede pelo menos " : "pede ") +
               std::to_string(wanted) + " argumentos e tem " + std::to_string(arguments.size());
    }
    ShapeInput input;
    const std::vector<ScriptValue> rest(
        arguments.begin() + static_cast<std::ptrdiff_t>(statement->skipped), arguments.end());
    if (std::string refusal = ReadNumbers(rest, input.numbers); !refusal.empty()) {
        return refusal;
    }
    return statement->run(build, input.numbers);
}

void CloseOpenBody(ModelBuild& build) {
    if (build.open.vertices.empty() && build.open.vectorCount == 0) {
        return;
    }
    // Its parts were counted as they came; what a cut adds beyond the limits is not drawn.
    EndBody(build);
    build.open = {};
}

} // namespace Merivane::Workbench
