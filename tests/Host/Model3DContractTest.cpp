#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "ContractSupport.hpp"
#include "Host/Model3D.hpp"

namespace Merivane::Host {
namespace {

class Model3DContract : public ProjectContract {};

std::vector<Body> BodiesOf(const Guid& guid) {
    std::vector<Body> bodies;
    EXPECT_EQ(GetBodies(guid, bodies), NoError);
    return bodies;
}

Coordinate3D PlaceOf(const Body& body, std::int32_t vertex) {
    const Coordinate3D& v = body.vertices.at(static_cast<std::size_t>(vertex - 1));
    const auto& t = body.transform;
    return {t[0] * v.x + t[1] * v.y + t[2] * v.z + t[3],
            t[4] * v.x + t[5] * v.y + t[6] * v.z + t[7],
            t[8] * v.x + t[9] * v.y + t[10] * v.z + t[11]};
}

/// The vertex that each edge of a face begins at; 0 between contours.
std::vector<std::int32_t> WalkedVertices(const Body& body, const BodyFace& face) {
    std::vector<std::int32_t> walked;
    for (const std::int32_t number : face.edges) {
        if (number == 0) {
            walked.push_back(0);
            continue;
        }
        const BodyEdge& edge = body.edges.at(static_cast<std::size_t>(std::abs(number) - 1));
        walked.push_back(number > 0 ? edge.from : edge.to);
    }
    return walked;
}

/// Volume by the divergence theorem [m3].
double Volume(const Body& body) {
    double sum = 0.0;
    for (const BodyFace& face : body.faces) {
        std::vector<std::int32_t> contour;
        std::vector<std::int32_t> walked = WalkedVertices(body, face);
        walked.push_back(0);
        for (const std::int32_t vertex : walked) {
            if (vertex != 0) {
                contour.push_back(vertex);
                continue;
            }
            for (std::size_t i = 1; i + 1 < contour.size(); ++i) {
                const Coordinate3D a = PlaceOf(body, contour[0]);
                const Coordinate3D b = PlaceOf(body, contour[i]);
                const Coordinate3D c = PlaceOf(body, contour[i + 1]);
                sum += a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) +
                       a.z * (b.x * c.y - b.y * c.x);
            }
            contour.clear();
        }
    }
    return sum / 6.0;
}

ErrorCode SetLayer(std::string_view name, bool hidden, bool locked) {
    Layer layer;
    const AttributeIndex index = LayerNamed(name);
    EXPECT_EQ(GetLayer(index, layer), NoError);
    layer.hidden = hidden;
    layer.locked = locked;
    return ChangeLayer(index, layer);
}

TEST_F(Model3DContract, WalksEveryEdgeOfAClosedBodyOnceInEachDirection) {
    for (const Guid& guid : {TheWall(), Listed(ElementType::ColumnSegment).at(0)}) {
        for (const Body& body : BodiesOf(guid)) {
            std::vector<int> walks(2 * body.edges.size());
            for (const BodyFace& face : body.faces) {
                for (const std::int32_t number : face.edges) {
                    if (number != 0) {
                        const auto edge = static_cast<std::size_t>(std::abs(number) - 1);
                        ++walks.at(2 * edge + (number < 0 ? 1U : 0U));
                    }
                }
            }
            EXPECT_TRUE(std::all_of(walks.begin(), walks.end(), [](int n) { return n == 1; }));
        }
    }
}

TEST_F(Model3DContract, TurnsFacesOutside) {
    for (const Guid& guid :
         {TheWall(), Listed(ElementType::ColumnSegment).at(0), Listed(ElementType::Window).at(0)}) {
        for (const Body& body : BodiesOf(guid)) {
            EXPECT_GT(Volume(body), 0.0);
        }
    }
}

TEST_F(Model3DContract, PartsTheHolesOfAFaceByAZero) {
    Sample morph = MakeMorph();
    morph.memo.body.vertices = {{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0},
                                {1, 1, 0}, {1, 2, 0}, {2, 2, 0}, {2, 1, 0}};
    morph.memo.body.faces = {{{{0, 1, 2, 3}, {4, 5, 6, 7}}, {}}};
    const std::vector<Body> bodies = BodiesOf(Created(morph));
    ASSERT_EQ(bodies.size(), 1U);
    ASSERT_EQ(bodies[0].faces.size(), 1U);
    const std::vector<std::int32_t> walked = WalkedVertices(bodies[0], bodies[0].faces[0]);
    ASSERT_EQ(walked.size(), 9U);
    EXPECT_EQ(std::count(walked.begin(), walked.end(), 0), 1);
    EXPECT_EQ(walked[4], 0);
}

TEST_F(Model3DContract, KeepsEveryVertexInsideTheExtent) {
    for (const Guid& guid : {TheWall(), Created(MakeMorph())}) {
        Coordinate3D lowest;
        Coordinate3D highest;
        ASSERT_EQ(GetBounds(guid, lowest, highest), NoError);
        for (const Body& body : BodiesOf(guid)) {
            for (std::size_t i = 1; i <= body.vertices.size(); ++i) {
                const Coordinate3D place = PlaceOf(body, static_cast<std::int32_t>(i));
                EXPECT_GE(place.x, lowest.x - 1e-6);
                EXPECT_LE(place.x, highest.x + 1e-6);
                EXPECT_GE(place.y, lowest.y - 1e-6);
                EXPECT_LE(place.y, highest.y + 1e-6);
                EXPECT_GE(place.z, lowest.z - 1e-6);
                EXPECT_LE(place.z, highest.z + 1e-6);
            }
        }
    }
}

TEST_F(Model3DContract, GivesAMorphsFacesAtItsStory) {
    Sample morph = MakeMorph();
    const MorphBody& made = morph.memo.body;
    double before = 0.0;
    for (const Coordinate3D& vertex : made.vertices) {
        before = std::max(before, vertex.z);
    }
    before += std::get<MorphData>(morph.element.data).level;
    const std::size_t faces = made.faces.size();
    morph.element.header.floorIndex = 1; // at 3 m
    const std::vector<Body> bodies = BodiesOf(Created(morph));
    ASSERT_EQ(bodies.size(), 1U);
    EXPECT_EQ(bodies[0].faces.size(), faces);
    double highest = 0.0;
    for (std::size_t i = 1; i <= bodies[0].vertices.size(); ++i) {
        highest = std::max(highest, PlaceOf(bodies[0], static_cast<std::int32_t>(i)).z);
    }
    EXPECT_NEAR(highest, before + 3.0, 1e-9);
}

TEST_F(Model3DContract, HasNoBodyForAWholeThatIsMadeOfParts) {
    std::vector<Body> bodies;
    EXPECT_EQ(GetBodies(Listed(ElementType::Column).at(0), bodies), NoBody);
    EXPECT_EQ(BodiesOf(Listed(ElementType::ColumnSegment).at(1)).size(), 1U);
}

TEST_F(Model3DContract, HasNoBodyForWhatIsDrawn) {
    std::vector<Body> bodies(2);
    for (Sample& sample : MakeDrawnSamples()) {
        EXPECT_EQ(GetBodies(Created(sample), bodies), NoBody);
    }
    EXPECT_EQ(bodies.size(), 2U);
}

TEST_F(Model3DContract, HidesBodiesWithTheirLayer) {
    const Guid segment = Listed(ElementType::ColumnSegment).at(0);
    const Guid window = Listed(ElementType::Window).at(0);
    std::vector<Body> bodies;
    ASSERT_EQ(SetLayer(FreeLayer, true, false), NoError);
    for (const Guid& guid : {TheWall(), segment, window}) {
        EXPECT_EQ(GetBodies(guid, bodies), HiddenLayer);
    }
    ASSERT_EQ(SetLayer(FreeLayer, false, true), NoError);
    for (const Guid& guid : {TheWall(), segment, window}) {
        EXPECT_EQ(GetBodies(guid, bodies), LockedLayer);
    }
    ASSERT_EQ(SetLayer(FreeLayer, false, false), NoError);
    EXPECT_EQ(GetBodies(TheWall(), bodies), NoError);
}

TEST_F(Model3DContract, NumbersFacesByAttributesOrNotAtAll) {
    for (const Body& body : BodiesOf(Created(MakeMorph()))) {
        for (const BodyFace& face : body.faces) {
            ModelSurface surface;
            EXPECT_TRUE(face.surface == -1 || GetSurface({face.surface}, surface) == NoError);
        }
    }
}

TEST_F(Model3DContract, RefusesUnknownElementsAndSurfaces) {
    std::vector<Body> bodies;
    EXPECT_EQ(GetBodies({}, bodies), BadId);
    const Guid gone = Created(MakeMorph());
    ASSERT_EQ(DeleteInStep({gone}), NoError);
    EXPECT_EQ(GetBodies(gone, bodies), BadId);
    ModelSurface surface;
    EXPECT_EQ(GetScriptSurface(-1, surface), BadIndex);
    EXPECT_EQ(GetScriptSurface(1, surface), BadIndex);
    EXPECT_EQ(GetScriptSurface(FirstScriptSurface + 1'000'000, surface), BadIndex);
}

TEST_F(Model3DContract, AnswersWithNoPlanWithoutAProject) {
    const Guid wall = TheWall();
    CloseContractProject();
    std::vector<Body> bodies;
    ModelSurface surface;
    EXPECT_EQ(GetBodies(wall, bodies), NoPlan);
    EXPECT_EQ(GetScriptSurface(FirstScriptSurface, surface), NoPlan);
}

} // namespace
} // namespace Merivane::Host
