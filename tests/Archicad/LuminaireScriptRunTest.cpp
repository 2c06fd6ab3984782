// What the scripts of a luminaire's part draw when the host runs them.

#include <algorithm>
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include "Archicad/LibraryParameters.hpp"
#include "Archicad/LuminairePart.hpp"
#include "LibrarySession.hpp"
#include "ModelSample.hpp"
#include "Photometry/IesSamples.hpp"
#include "Photometry/LuminaireRotation.hpp"
#include "Workbench/Model/PartRuns.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

class LuminaireScripts : public Tests::LibrarySession {
protected:
    void SetUp() override {
        Tests::SourcePart source;
        source.sections = {{{"2DSC", 0}, "LINE2 0, 0, A, B\r\n"},
                           {{"3DSC", 0}, "BLOCK 0.6, 0.3, 0.1\r\n"}};
        sourceIndex = MakePart(source);
    }

    /// Makes and places a luminaire of these settings.
    void Place(const Photometry::LuminaireSettings& settings,
               const std::vector<std::pair<std::string, double>>& overrides = {}) {
        AddBlockRequest request;
        request.sourceIndex = sourceIndex;
        request.file = Tests::MakeTable({0, 90}, {0}, [](double, double) { return 100.0; });
        request.settings = settings;
        request.newName = "Plafon";
        request.overrides = overrides;
        AddBlockResult result;
        ASSERT_EQ(AddLuminaireBlockToPart(request, result), Host::NoError);
        Host::Element lamp;
        lamp.header.type = Host::ElementType::Lamp;
        lamp.header.layer = {1};
        Host::ObjectData object;
        object.libraryIndex = result.index;
        object.sizeA = 0.6;
        object.sizeB = 0.3;
        lamp.data = object;
        Host::ElementMemo memo;
        memo.parameters = Tests::ParametersOf(result.index);
        FindAddPar(memo.parameters, "mvCircuit")->text = "C7";
        ASSERT_EQ(Host::CallUndoable("step", [&] { return Host::CreateElement(lamp, memo); }),
                  Host::NoError);
    }

    static const Workbench::Project& Project() { return Workbench::CurrentSession().project; }
    static const Workbench::PartModel& Model() {
        return Workbench::ModelOfObject(Project(), Project().parts.back(),
                                        Project().elements.back());
    }
    static const Workbench::PlanSymbolDrawing& Plan() {
        return Workbench::SymbolOfObject(Project(), Project().parts.back(),
                                         Project().elements.back(), 50.0);
    }

    std::int32_t sourceIndex = 0;
};

TEST_F(LuminaireScripts, PutTheLightAtTheCentreInTheFrameOfTheAiming) {
    std::mt19937_64 random(82);
    std::uniform_real_distribution<double> angle(-180.0, 180.0);
    std::uniform_real_distribution<double> place(-1.0, 1.0);
    for (int i = 0; i < 20; ++i) {
        Photometry::LuminaireSettings settings;
        settings.centerX = place(random);
        settings.centerY = place(random);
        settings.centerZ = place(random);
        settings.flangeDepth = place(random) / 10.0;
        settings.c0Rotation = angle(random);
        settings.tiltAngle = angle(random);
        settings.tiltDirection = angle(random);
        std::filesystem::remove_all(SourceFolder() / "Fonte.gsm");
        std::filesystem::remove_all(OwnFolder());
        Open();
        SetUp();
        Place(settings);
        const Workbench::PartModel& model = Model();
        ASSERT_EQ(model.lights.size(), 1U);
        const Workbench::PartLight& light = model.lights[0];
        EXPECT_NEAR(light.position.x, settings.centerX, 1e-9);
        EXPECT_NEAR(light.position.y, settings.centerY, 1e-9);
        EXPECT_NEAR(light.position.z, settings.centerZ - settings.flangeDepth, 1e-9);
        const Photometry::RotationMatrix expected = Photometry::LuminaireRotation(settings);
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                EXPECT_NEAR(light.frame[4 * row + column], expected[3 * row + column], 1e-9);
            }
        }
        EXPECT_EQ(Workbench::ScriptComplaints(Project()), std::vector<std::string>{});
    }
}

TEST_F(LuminaireScripts, LowerTheBodyByTheFlange) {
    Photometry::LuminaireSettings settings;
    settings.flangeDepth = 0.04;
    Place(settings);
    ASSERT_EQ(Model().bodies.size(), 1U);
    double lowest = 1.0;
    double highest = -1.0;
    for (const Host::Coordinate3D& vertex : Model().bodies[0].vertices) {
        lowest = std::min(lowest, vertex.z);
        highest = std::max(highest, vertex.z);
    }
    EXPECT_NEAR(lowest, -0.04, 1e-12);
    EXPECT_NEAR(highest, 0.06, 1e-12);
}

TEST_F(LuminaireScripts, LeaveTheLightOutWhereItIsSwitchedOff) {
    Place({}, {{"mvLightOn", 0.0}});
    EXPECT_TRUE(Model().lights.empty());
    EXPECT_EQ(Model().bodies.size(), 1U);
}

TEST_F(LuminaireScripts, DrawThePlanWithoutAComplaint) {
    Place({});
    Plan();
    EXPECT_EQ(Workbench::ScriptComplaints(Project()), std::vector<std::string>{});
}

} // namespace
} // namespace Merivane::Archicad
