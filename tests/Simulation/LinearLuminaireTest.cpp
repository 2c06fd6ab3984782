#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/LinearLuminaire.hpp"
#include "Simulation/PlacedLuminaire.hpp"

namespace Merivane::Simulation {
namespace {

using Photometry::ContractParameter;
using Kind = Photometry::ContractParameterType;
using Parameters = std::vector<ContractParameter>;
using Numbers = std::vector<double>;

ContractParameter Number(const char* name, double number, Kind kind = Kind::Real) {
    ContractParameter parameter;
    parameter.name = name;
    parameter.type = kind;
    parameter.number = number;
    return parameter;
}

ContractParameter PathTable(const Numbers& numbers, int columns = 2) {
    ContractParameter parameter = Number("mvLinearPath", 0.0, Kind::RealArray);
    parameter.dim1 = static_cast<int>(numbers.size()) / 2;
    parameter.dim2 = columns;
    parameter.numbers = numbers;
    return parameter;
}

Parameters Linear(double version = 1.0, double count = 2.0, const Numbers& path = {0, 0, 2.5, 0}) {
    return {Number("mvLinearVersion", version), Number("mvLinearCount", count), PathTable(path)};
}

struct ReadBack {
    bool ok = false;
    LinearSpec spec;
    LinearPath path = {{9, 9}};
    std::string error = "antes";
};

ReadBack Read(const Parameters& parameters) {
    ReadBack back;
    back.ok = ReadLinearContract(parameters, back.spec, back.path, back.error);
    return back;
}

TEST(ReadLinearContract, TakesALuminaireWithoutAVersionForAPoint) {
    Parameters parameters = Linear();
    parameters.erase(parameters.begin());
    const ReadBack back = Read(parameters);
    EXPECT_FALSE(back.ok);
    EXPECT_EQ(back.error, "");
    EXPECT_TRUE(back.path.empty());
}

TEST(ReadLinearContract, TakesTheDefaultsOfWhatIsNotTold) {
    const ReadBack back = Read(Linear());
    EXPECT_TRUE(back.ok);
    EXPECT_EQ(back.error, "");
    EXPECT_EQ(back.path, (LinearPath{{0, 0}, {2.5, 0}}));
    EXPECT_EQ(back.spec.mounting, LinearMounting::Recessed);
    EXPECT_EQ(back.spec.tilt, 90.0);
    EXPECT_TRUE(back.spec.lightLeft);
    EXPECT_EQ(back.spec.profileWidth, 0.02);
    EXPECT_EQ(back.spec.profileHeight, 0.0);
}

TEST(ReadLinearContract, TakesWhatIsTold) {
    Parameters parameters = Linear(1.0, 3.0, {0, 0, 1, 0, 1, 2});
    parameters.push_back(Number("mvLinearMounting", 2.0, Kind::Integer));
    parameters.push_back(Number("mvLinearTilt", 60.0, Kind::Angle));
    parameters.push_back(Number("mvLinearLightLeft", 0.0, Kind::Boolean));
    parameters.push_back(Number("mvLinearProfileW", 0.05));
    parameters.push_back(Number("mvLinearProfileH", 0.03));
    const ReadBack back = Read(parameters);
    EXPECT_TRUE(back.ok);
    EXPECT_EQ(back.path, (LinearPath{{0, 0}, {1, 0}, {1, 2}}));
    EXPECT_EQ(back.spec.mounting, LinearMounting::Lateral);
    EXPECT_EQ(back.spec.tilt, 60.0);
    EXPECT_FALSE(back.spec.lightLeft);
    EXPECT_EQ(back.spec.profileWidth, 0.05);
    EXPECT_EQ(back.spec.profileHeight, 0.03);
}

TEST(ReadLinearContract, RefusesWhatItCanNotRead) {
    const std::string unreadable = "percurso da luminaria linear ilegivel";
    const std::string tooFew = "percurso da luminaria linear com menos de 2 pontos";
    Parameters threeColumns = Linear();
    threeColumns[2].dim2 = 3;
    Parameters noArray = Linear();
    noArray[2].type = Kind::Real;
    Parameters noPath = Linear();
    noPath.pop_back();
    Parameters noCount = Linear();
    noCount.erase(noCount.begin() + 1);
    const std::pair<Parameters, std::string> cases[] = {
        {Linear(1.000000001), ""},
        {Linear(1.00000001), "luminaria linear de versao mais nova (1.00000001)"},
        {Linear(2), "luminaria linear de versao mais nova (2)"},
        {Linear(1, 3), unreadable}, // of three places two are there
        {Linear(1, 1), tooFew},
        {Linear(1, 0, {}), tooFew},
        {Linear(1, -1), unreadable},
        {Linear(1, 1e300), unreadable},
        {Linear(1, 2, {0, 0, std::nan(""), 0}), unreadable},
        {threeColumns, unreadable},
        {noArray, unreadable},
        {noPath, unreadable},
        {noCount, unreadable},
    };
    for (const auto& [parameters, error] : cases) {
        const ReadBack back = Read(parameters);
        EXPECT_EQ(back.error, error);
        EXPECT_EQ(back.ok, error.empty());
    }
}

TEST(MeasuredLengthOf, IsTheLongerSideOfTheOpening) {
    struct Case {
        double width;
        double length;
        int units;
        double measured;
        bool alongC0;
        bool declared;
    };
    const Case cases[] = {
        {0.02, 1.2, 2, 1.2, true, true},       {1.2, 0.02, 2, 1.2, false, true},
        {0.5, 0.5, 2, 0.5, true, true},        {1.0, 2.0, 1, 0.6096, true, true},
        {-0.3, 0.2, 2, 0.2, true, true},       {0.3, -0.5, 2, 0.3, false, true},
        {0.0, 0.0, 2, 1.0, true, false},       {-0.3, -0.3, 2, 1.0, true, false},
        {1.1e-6, 0.0, 2, 1.1e-6, false, true}, {1e-6, 0.0, 2, 1.0, true, false},
    };
    for (const Case& c : cases) {
        Photometry::IesFile file;
        file.width = c.width;
        file.length = c.length;
        file.unitsType = c.units;
        const MeasuredLength measured = MeasuredLengthOf(file);
        EXPECT_DOUBLE_EQ(measured.length, c.measured);
        EXPECT_EQ(measured.alongC0, c.alongC0) << c.width << ' ' << c.length;
        EXPECT_EQ(measured.declared, c.declared) << c.width << ' ' << c.length;
    }
}

void ExpectPieces(const LinearPath& path, const Numbers& lengths, const Numbers& centersX) {
    const std::vector<LinearPiece> pieces = SplitPath(path, 1.0, 0.01);
    ASSERT_EQ(pieces.size(), lengths.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        EXPECT_NEAR(pieces[i].length, lengths[i], 1e-12) << i;
        EXPECT_NEAR(pieces[i].fraction, lengths[i], 1e-12) << i;
        EXPECT_NEAR(pieces[i].center.x, centersX[i], 1e-12) << i;
    }
}

TEST(SplitPath, EndsAStretchWithItsRest) {
    ExpectPieces({{0, 0}, {2.5, 0}}, {1, 1, 0.5}, {0.5, 1.5, 2.25});
    ExpectPieces({{0, 0}, {2, 0}}, {1, 1}, {0.5, 1.5});
    ExpectPieces({{0, 0}, {0.3, 0}}, {0.3}, {0.15});
}

TEST(SplitPath, AddsAShortRestToThePieceBeforeIt) {
    ExpectPieces({{0, 0}, {2.005, 0}}, {1, 1.005}, {0.5, 1.5025});
    ExpectPieces({{0, 0}, {2.0099, 0}}, {1, 1.0099}, {0.5, 1.50495});
    ExpectPieces({{0, 0}, {2.0101, 0}}, {1, 1, 0.0101}, {0.5, 1.5, 2.00505});
    // In the same direction a short stretch is such a rest too; round a corner it is lost.
    ExpectPieces({{0, 0}, {1, 0}, {1.005, 0}}, {1.005}, {0.5025});
    ExpectPieces({{0, 0}, {1, 0}, {1, 0.005}, {2, 0.005}}, {1, 1}, {0.5, 1.5});
    ExpectPieces({{0, 0}, {0.005, 0}}, {}, {});
}

TEST(SplitPath, KeepsAPieceOfTheLeastLength) {
    ExpectPieces({{0, 0}, {0.01, 0}}, {0.01}, {0.005});
    ExpectPieces({{0, 0}, {std::nextafter(0.01, 0.0), 0}}, {}, {});
}

TEST(SplitPath, AddsNoRestOfAnotherDirection) {
    for (const Point2D end : {Point2D{0.603, 0.796}, {0.597, 0.804}, {0.597, 0.796}}) {
        const std::vector<LinearPiece> pieces = SplitPath({{0, 0}, {0.6, 0.8}, end}, 1.0, 0.01);
        ASSERT_EQ(pieces.size(), 1U);
        EXPECT_NEAR(pieces[0].length, 1.0, 1e-12);
    }
    EXPECT_NEAR(SplitPath({{0, 0}, {0.6, 0.8}, {0.603, 0.804}}, 1.0, 0.01).at(0).length, 1.005,
                1e-12);
}

TEST(SplitPath, BeginsANewStretchAtEveryCorner) {
    const std::vector<LinearPiece> pieces = SplitPath({{0, 0}, {1.5, 0}, {1.5, 0.7}}, 1.0, 0.01);
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_NEAR(pieces[1].fraction, 0.5, 1e-12);
    EXPECT_NEAR(pieces[2].fraction, 0.7, 1e-12);
    EXPECT_EQ(pieces[2].direction, (Point2D{0, 1}));
    EXPECT_NEAR(pieces[2].center.y, 0.35, 1e-12);
}

TEST(SplitPath, TakesFractionsOfTheMeasuredLength) {
    const std::vector<LinearPiece> pieces = SplitPath({{0, 0}, {0, -0.9}}, 0.6, 0.01);
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].fraction, 1.0);
    EXPECT_NEAR(pieces[1].fraction, 0.5, 1e-12);
    EXPECT_EQ(pieces[1].direction, (Point2D{0, -1}));
}

TEST(SplitPath, GivesNothingWithoutAPathOrALength) {
    EXPECT_TRUE(SplitPath({}, 1.0, 0.01).empty());
    EXPECT_TRUE(SplitPath({{0, 0}}, 1.0, 0.01).empty());
    EXPECT_TRUE(SplitPath({{0, 0}, {0, 0}}, 1.0, 0.01).empty());
    for (const double length : {0.0, -1.0, std::nan("")}) {
        EXPECT_TRUE(SplitPath({{0, 0}, {1, 0}}, length, 0.01).empty()) << length;
    }
}

/// A strip measured 1 m long, placed at (10, 20, 2.5).
SceneLuminaire Strip() {
    SceneLuminaire strip;
    strip.id = "lum_1";
    strip.photometry.length = 1.0;
    strip.photometry.unitsType = 2;
    strip.x = 10.0;
    strip.y = 20.0;
    strip.z = 2.5;
    return strip;
}

TEST(ExpandLinear, MakesALuminaireOfEachPiece) {
    const std::vector<SceneLuminaire> made = ExpandLinear(Strip(), {{0, 0}, {0, 1.5}}, {});
    ASSERT_EQ(made.size(), 2U);
    EXPECT_EQ(made[0].id, "lum_1_p1");
    EXPECT_EQ(made[1].id, "lum_1_p2");
    EXPECT_EQ(made[0].lengthScale, 1.0);
    EXPECT_EQ(made[1].lengthScale, 0.5);
    EXPECT_NEAR(made[1].x, 10.0, 1e-12);
    EXPECT_NEAR(made[1].y, 21.25, 1e-12);
    EXPECT_EQ(made[1].z, 2.5);
    EXPECT_NEAR(made[1].contract.c0Rotation, 90.0, 1e-12);
    EXPECT_NEAR(made[1].contract.tiltDirection, 90.0, 1e-12);
    EXPECT_EQ(made[1].contract.tiltAngle, 0.0);
}

TEST(ExpandLinear, TurnsAWideOpeningAcross) {
    SceneLuminaire strip = Strip();
    std::swap(strip.photometry.width, strip.photometry.length);
    EXPECT_NEAR(ExpandLinear(strip, {{0, 0}, {0, 1}}, {})[0].contract.c0Rotation, 0.0, 1e-12);
    EXPECT_NEAR(ExpandLinear(strip, {{0, 0}, {1, 0}}, {})[0].contract.c0Rotation, -90.0, 1e-12);
}

TEST(ExpandLinear, PlacesAndAimsByTheMounting) {
    struct Case {
        LinearMounting mounting;
        bool left;
        double y;
        double z;
        double tilt;
        double direction;
    };
    const Case cases[] = {
        {LinearMounting::Recessed, true, 20.0, 2.5, 0.0, 0.0},
        {LinearMounting::Cove, true, 20.0, 2.56, 180.0, 0.0},
        {LinearMounting::Lateral, true, 20.02, 2.53, 70.0, 90.0},
        {LinearMounting::Lateral, false, 19.98, 2.53, 70.0, -90.0},
        {LinearMounting::Pendant, false, 20.0, 2.5, 0.0, 0.0},
    };
    for (const Case& c : cases) {
        const LinearSpec spec{c.mounting, 70.0, c.left, 0.04, 0.06};
        const SceneLuminaire made = ExpandLinear(Strip(), {{0, 0}, {1, 0}}, spec).at(0);
        SCOPED_TRACE(static_cast<int>(c.mounting));
        EXPECT_NEAR(made.x, 10.5, 1e-12);
        EXPECT_NEAR(made.y, c.y, 1e-12);
        EXPECT_NEAR(made.z, c.z, 1e-12);
        EXPECT_EQ(made.contract.tiltAngle, c.tilt);
        EXPECT_NEAR(made.contract.tiltDirection, c.direction, 1e-12);
        EXPECT_NEAR(made.contract.c0Rotation, 0.0, 1e-12);
    }
}

TEST(ExpandLinear, GoesAsideAcrossThePath) {
    for (const bool left : {true, false}) {
        const LinearSpec spec{LinearMounting::Lateral, 90.0, left, 0.04, 0.0};
        const SceneLuminaire made = ExpandLinear(Strip(), {{0, 0}, {0, 1}}, spec).at(0);
        EXPECT_NEAR(made.x, left ? 9.98 : 10.02, 1e-12);
        EXPECT_NEAR(made.y, 20.5, 1e-12);
    }
}

// A part made by hand may have kept the aim of a point luminaire.
TEST(ExpandLinear, AimsByThePathAlone) {
    SceneLuminaire strip = Strip();
    strip.contract.c0Rotation = 11.0;
    strip.contract.tiltAngle = 12.0;
    strip.contract.tiltDirection = 13.0;
    const SceneLuminaire made = ExpandLinear(strip, {{0, 0}, {1, 0}}, {}).at(0);
    EXPECT_EQ(made.contract.c0Rotation, 0.0);
    EXPECT_EQ(made.contract.tiltAngle, 0.0);
    EXPECT_EQ(made.contract.tiltDirection, 0.0);
}

// What the object's own turn does to its profile it does to its light.
TEST(ExpandLinear, TurnsAndMirrorsWithTheObject) {
    SceneLuminaire strip = Strip();
    strip.rotation = std::numbers::pi / 2.0;
    strip.mirrored = true;
    const LinearSpec spec{LinearMounting::Lateral, 90.0, true, 0.04, 0.0};
    const std::vector<SceneLuminaire> made = ExpandLinear(strip, {{0, 0}, {1, 0}}, spec);
    // Along -x once mirrored, so the lit side y > 0 is on the right; turned: along -y, lit at -x.
    const std::vector<PlacedLuminaire> placed = PlaceLuminaires(made);
    ASSERT_EQ(placed.size(), 1U);
    EXPECT_NEAR(placed[0].center.x, 9.98, 1e-12);
    EXPECT_NEAR(placed[0].center.y, 19.5, 1e-12);
    // The beam, straight down in the luminaire's own frame, goes to -x.
    EXPECT_NEAR(-placed[0].frame[2], -1.0, 1e-12);
    EXPECT_NEAR(-placed[0].frame[8], 0.0, 1e-12);
    // Its long side lies along the path.
    EXPECT_NEAR(std::abs(placed[0].frame[3]), 1.0, 1e-12);
}

TEST(ExpandLinear, GivesNoneForAPathThatIsTooShortOrTooLong) {
    EXPECT_TRUE(ExpandLinear(Strip(), {{0, 0}, {0.009, 0}}, {}).empty());
    EXPECT_TRUE(ExpandLinear(Strip(), {{0, 0}, {100'001, 0}}, {}).empty());
    EXPECT_TRUE(ExpandLinear(Strip(), {{-1e308, 0}, {1e308, 0}}, {}).empty());
    EXPECT_EQ(ExpandLinear(Strip(), {{0, 0}, {100'000, 0}}, {}).size(), 100'000U);
}

} // namespace
} // namespace Merivane::Simulation
