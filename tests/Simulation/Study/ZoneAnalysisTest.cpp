#include <gtest/gtest.h>

#include "Simulation/Study/ZoneAnalysis.hpp"
#include "StudySamples.hpp"

namespace Merivane::Simulation {
namespace {

ZoneAnalysis Analyse(const LightingStudy& study) {
    const StudyScene built = BuildStudyScene(study);
    return AnalyseZone(study, built, Tests::SlopedResult(built, 100.0), 0, false);
}

bool HasRow(const ZoneAnalysis& analysis, const std::string& criterion) {
    return std::any_of(analysis.verification.rows.begin(), analysis.verification.rows.end(),
                       [&](const VerificationRow& row) { return row.criterion == criterion; });
}

TEST(AnalyseZone, RatesGlareWhereTheStudyAsksForIt) {
    const ZoneAnalysis analysis = Analyse(Tests::OfficeStudy());
    EXPECT_TRUE(analysis.glareAnalysed);
    EXPECT_TRUE(analysis.glare.hasUgr);
    EXPECT_EQ(analysis.glare.models.size(), 1U);
    EXPECT_EQ(analysis.glare.observers.size(), 5U);
    EXPECT_TRUE(HasRow(analysis, "Ofuscamento UGR"));
}

TEST(AnalyseZone, LeavesGlareOutWhereItIsNotAsked) {
    LightingStudy study = Tests::OfficeStudy();
    study.glare = false;
    const ZoneAnalysis analysis = Analyse(study);
    EXPECT_FALSE(analysis.glareAnalysed);
    EXPECT_FALSE(analysis.glare.hasUgr);
    EXPECT_TRUE(analysis.glare.models.empty());
    EXPECT_TRUE(analysis.glare.observers.empty());
    EXPECT_TRUE(analysis.glare.notes.empty());
    EXPECT_TRUE(analysis.glare.log.empty());
    EXPECT_FALSE(HasRow(analysis, "Ofuscamento UGR"));
    EXPECT_TRUE(HasRow(analysis, "Iluminância Em"));
}

TEST(AnalyseZone, KeepsTheStatisticsOfWorkPlaneAndFloor) {
    LightingStudy study = Tests::OfficeStudy();
    EXPECT_EQ(Analyse(study).floor.count, 0U);
    study.zones[0].calculateFloor = true;
    const ZoneAnalysis analysis = Analyse(study);
    EXPECT_NEAR(analysis.statistics.mean, 400.0, 1e-9); // of the middle of the room
    EXPECT_NEAR(analysis.floor.mean, 400.0, 1e-9);
    EXPECT_GT(analysis.floor.count, analysis.statistics.count); // no band is left out
}

} // namespace
} // namespace Merivane::Simulation
