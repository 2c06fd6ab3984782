#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ReviewReflectances.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Simulation/SceneMaterials.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Simulation;
using Records = std::vector<SurfaceReflectance>;
using Lines = std::vector<std::string>;

class ReviewOfReflectances : public testing::Test {
protected:
    ReviewOfReflectances() {
        Workbench::SessionOptions options;
        options.temporaryFolder = Text::WidePath(folder.Path());
        Workbench::OpenSession(options);
    }
    ~ReviewOfReflectances() override { Workbench::OpenSession({}); }

    /// A dialog that corrects the first record to this reflectance and closes as told.
    ReflectanceDialog Correcting(double reflectance, bool accept, bool remember) {
        return [=, this](Records& shown, bool& keep) {
            ++dialogs;
            EXPECT_TRUE(keep); // the check box starts set
            shown[0].reflectance = reflectance;
            shown[0].source = ReflectanceSource::CorrectedNow;
            keep = remember;
            return accept;
        };
    }

    bool Run(const ReflectanceDialog& dialog) {
        return ReviewReflectances(records, settings, dialog, materials, logLines);
    }

    static Lines ReportWindow() {
        Lines lines;
        for (const Workbench::ReportLine& line : Workbench::CurrentSession().reportLines) {
            lines.push_back(line.text);
        }
        return lines;
    }

    Tests::TemporaryFolder folder;
    Records records = {MakeFloorReflectance(),
                       MakeFromColour("sup:Pintura", "Pintura", {0.8, 0.5, 0.2})};
    CalculationSettings settings;
    std::vector<SceneMaterial> materials;
    Lines logLines = {"antes"};
    int dialogs = 0;
};

TEST_F(ReviewOfReflectances, TakesOverWhatWasRememberedAndMakesTheMaterials) {
    settings.reviewReflectances = false;
    SaveReflectances({{"orientacao:piso", {0.3}}, {"sup:Outra", {0.4}}});
    EXPECT_TRUE(Run(Correcting(0.6, true, true)));
    EXPECT_EQ(dialogs, 0);
    EXPECT_EQ(records[0].source, ReflectanceSource::CorrectedBefore);
    ASSERT_EQ(materials.size(), 2U);
    EXPECT_EQ(materials[0].red, 0.3);
    EXPECT_EQ(materials[1].name, "Pintura");
    EXPECT_EQ(logLines,
              (Lines{"antes", "(sem Superficie) piso (corrigida antes): refletancia 30%, 0.00 m2",
                     "Pintura (estimada): refletancia 28%, 0.00 m2"}));
    EXPECT_EQ(LoadReflectances().size(), 2U);
}

TEST_F(ReviewOfReflectances, TakesOverAndRemembersWhatTheUserCorrects) {
    SaveReflectances({{"sup:Outra", {0.4}}});
    EXPECT_TRUE(Run(Correcting(0.6, true, true)));
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(records[0].reflectance, 0.6);
    EXPECT_EQ(materials[0].red, 0.6);
    EXPECT_EQ(logLines[1], "(sem Superficie) piso (corrigida agora): refletancia 60%, 0.00 m2");
    EXPECT_EQ(LoadReflectances(),
              (ReflectanceStore{{"orientacao:piso", {0.6}}, {"sup:Outra", {0.4}}}));
    EXPECT_EQ(ReportWindow(), Lines{});
}

TEST_F(ReviewOfReflectances, RemembersNothingWithTheCheckBoxCleared) {
    EXPECT_TRUE(Run(Correcting(0.6, true, false)));
    EXPECT_EQ(materials[0].red, 0.6);
    EXPECT_TRUE(LoadReflectances().empty());
}

TEST_F(ReviewOfReflectances, LeavesAllAsItWasWhenTheUserCancels) {
    const ReflectanceStore store = {{"orientacao:piso", {0.3}}};
    SaveReflectances(store);
    EXPECT_FALSE(Run(Correcting(0.6, false, true)));
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(records[0].reflectance, 0.3);
    EXPECT_TRUE(materials.empty());
    EXPECT_EQ(logLines, Lines{"antes"});
    EXPECT_EQ(LoadReflectances(), store);
}

TEST_F(ReviewOfReflectances, ForgetsACorrectionThatWentBackToTheEstimate) {
    SaveReflectances({{"orientacao:piso", {0.3}}, {"sup:Outra", {0.4}}});
    EXPECT_TRUE(Run([](Records& shown, bool&) {
        ResetToEstimate(shown[0]);
        return true;
    }));
    EXPECT_EQ(materials[0].red, 0.2);
    EXPECT_EQ(LoadReflectances(), (ReflectanceStore{{"sup:Outra", {0.4}}}));
}

TEST_F(ReviewOfReflectances, ShowsNothingWithoutSurfaces) {
    records.clear();
    EXPECT_TRUE(Run(Correcting(0.6, true, true)));
    EXPECT_EQ(dialogs, 0);
    EXPECT_TRUE(materials.empty());
    EXPECT_EQ(logLines, Lines{"antes"});
}

TEST_F(ReviewOfReflectances, ColoursTheReflectionWhereItIsAskedFor) {
    settings.reviewReflectances = false;
    for (const bool coloured : {true, false}) {
        settings.colouredReflection = coloured;
        EXPECT_TRUE(Run({}));
        EXPECT_EQ(materials[1].red, BuildSceneMaterials(records, coloured)[1].red);
    }
    EXPECT_EQ(materials[1].red, materials[1].blue);
}

TEST_F(ReviewOfReflectances, WritesNothingOverAStoreThatTheHostDidNotGive) {
    const ReflectanceStore store = {{"sup:Pintura", {0.3}}};
    SaveReflectances(store);
    Workbench::FailCall("GetPreferences", 1, Host::OutOfMemory);
    EXPECT_TRUE(Run(Correcting(0.6, true, true)));
    EXPECT_EQ(materials[0].red, 0.6);
    EXPECT_EQ(LoadReflectances(), store);
    EXPECT_EQ(ReportWindow(), Lines{"Vantoro: Ler as refletancias corrigidas failed: "
                                    "APIERR_MEMFULL (0x81060002)"});
}

TEST_F(ReviewOfReflectances, GoesOnWhenCorrectionsCanNotBeSaved) {
    Workbench::FailCall("SetPreferences", 1, Host::ReadOnly);
    EXPECT_TRUE(Run(Correcting(0.6, true, true)));
    EXPECT_EQ(materials[0].red, 0.6);
    EXPECT_EQ(ReportWindow(), Lines{"Vantoro: Guardar as refletancias corrigidas failed: "
                                    "APIERR_READONLY (0x8106038A)"});
}

} // namespace
} // namespace Merivane::Archicad
