#include "ShapeRuns.hpp"

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"

namespace Merivane::Tests {

using Workbench::ModelBuild;

ModelBuild EmptyBuild() {
    ModelBuild build;
    build.shapeLimit = 1'000'000;
    build.vertexLimit = 4'000'000;
    build.look.surface = 7;
    return build;
}

std::vector<Workbench::ScriptValue> Arguments(const std::vector<double>& numbers) {
    std::vector<Workbench::ScriptValue> values;
    values.reserve(numbers.size());
    for (const double number : numbers) {
        values.push_back({false, number, {}});
    }
    return values;
}

std::string Build(ModelBuild& build, std::string_view keyword, const std::vector<double>& numbers) {
    return BuildModelShape(build, keyword, Arguments(numbers));
}

std::string Refusal(std::string_view keyword, const std::vector<double>& numbers) {
    ModelBuild build = EmptyBuild();
    std::string refusal = Build(build, keyword, numbers);
    EXPECT_TRUE(build.model.bodies.empty());
    EXPECT_TRUE(build.model.wires.empty());
    return refusal;
}

Host::Body OnlyBody(const ModelBuild& build) {
    EXPECT_EQ(build.model.bodies.size(), 1U);
    return build.model.bodies.empty() ? Host::Body{} : Unplaced(build.model.bodies.front());
}

Host::Body Built(std::string_view keyword, const std::vector<double>& numbers) {
    ModelBuild build = EmptyBuild();
    EXPECT_EQ(Build(build, keyword, numbers), "");
    return OnlyBody(build);
}

void ExpectSolid(const Host::Body& body, double volume) {
    ASSERT_FALSE(body.faces.empty());
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(Volume(body), volume, 1e-9 * std::max(1.0, volume));
    EXPECT_LT(Unevenness(body), 1e-6);
}

int EulerCharacteristic(const Host::Body& body) {
    return static_cast<int>(body.vertices.size()) - static_cast<int>(body.edges.size()) +
           static_cast<int>(body.faces.size());
}

std::vector<double> Extent(const Host::Body& body) {
    constexpr double far = std::numeric_limits<double>::infinity();
    std::vector<double> extent = {far, far, far, -far, -far, -far};
    for (const Host::Coordinate3D& vertex : body.vertices) {
        const double place[] = {vertex.x, vertex.y, vertex.z};
        for (std::size_t i = 0; i < 3; ++i) {
            extent[i] = std::min(extent[i], place[i]);
            extent[i + 3] = std::max(extent[i + 3], place[i]);
        }
    }
    return extent;
}

} // namespace Merivane::Tests
