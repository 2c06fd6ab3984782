#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/Reflectances.hpp"

namespace Merivane::Simulation {
namespace {

using Records = std::vector<SurfaceReflectance>;

SurfaceReflectance Painted() {
    return MakeFromColour("sup:Pintura", "Pintura", {0.8, 0.5, 0.2, 0.7, 0.1});
}

SurfaceReflectance Glass() {
    return MakeFromColour("sup:Vidro", "Vidro", {0.8, 0.9, 1.0, 0.2, 0.85});
}

TEST(SurfaceReflectance, BeginsAsAnOpaqueSurfaceOfMiddleReflectance) {
    const SurfaceReflectance record;
    EXPECT_FALSE(record.hasColour);
    EXPECT_EQ(record.red, 0.8);
    EXPECT_EQ(record.diffuse, 1.0);
    EXPECT_EQ(record.transparency, 0.0);
    EXPECT_EQ(record.area, 0.0);
    EXPECT_EQ(record.reflectance, 0.5);
    EXPECT_FALSE(record.glass);
    EXPECT_EQ(record.transmittance, 0.0);
    EXPECT_EQ(record.reflectanceInside, 0.08);
    EXPECT_EQ(record.reflectanceOutside, 0.08);
    EXPECT_EQ(record.source, ReflectanceSource::Colour);
}

TEST(MakeFromColour, KeepsTheSurfaceAndEstimatesItsReflectance) {
    SurfaceReflectance expected;
    expected.key = "sup:Pintura";
    expected.name = "Pintura";
    expected.hasColour = true;
    expected.red = 0.8;
    expected.green = 0.5;
    expected.blue = 0.2;
    expected.diffuse = 0.7;
    expected.transparency = 0.1;
    expected.estimatedReflectance = EstimateReflectance(0.8, 0.5, 0.2);
    expected.reflectance = expected.estimatedReflectance;
    EXPECT_EQ(Painted(), expected);
}

TEST(MakeFromColour, EstimatesGlassFromATransparencyOf20PercentUp) {
    struct Case {
        double transparency;
        bool glass;
        double transmittance;
    };
    const Case cases[] = {
        {0.0, false, 0.0},  {0.19, false, 0.0},  {0.2, true, 0.2},  {0.21, true, 0.21},
        {0.95, true, 0.95}, {0.951, true, 0.95}, {1.0, true, 0.95},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.transparency);
        const SurfaceReflectance record =
            MakeFromColour("sup:x", "x", {0.8, 0.8, 0.8, 1.0, c.transparency});
        EXPECT_EQ(record.estimatedGlass, c.glass);
        EXPECT_EQ(record.glass, c.glass);
        EXPECT_EQ(record.estimatedTransmittance, c.transmittance);
        EXPECT_EQ(record.transmittance, c.transmittance);
        EXPECT_EQ(record.reflectanceInside, 0.08);
        EXPECT_EQ(record.reflectanceOutside, 0.08);
    }
}

TEST(MakeFromOrientation, TakesTheReflectanceThatItIsGiven) {
    SurfaceReflectance expected;
    expected.key = "orientacao:outra";
    expected.name = "outra";
    expected.estimatedReflectance = 0.33;
    expected.reflectance = 0.33;
    expected.source = ReflectanceSource::Orientation;
    expected.loadedSource = ReflectanceSource::Orientation;
    EXPECT_EQ(MakeFromOrientation("orientacao:outra", "outra", 0.33), expected);
}

TEST(MakeFromOrientation, KnowsFloorsWallsAndCeilings) {
    EXPECT_EQ(MakeFloorReflectance(),
              MakeFromOrientation("orientacao:piso", "(sem Superficie) piso", 0.2));
    EXPECT_EQ(MakeWallReflectance(),
              MakeFromOrientation("orientacao:parede", "(sem Superficie) parede", 0.5));
    EXPECT_EQ(MakeCeilingReflectance(),
              MakeFromOrientation("orientacao:teto", "(sem Superficie) teto", 0.7));
}

TEST(AddOrFindReflectance, KeepsOneRecordForEachKey) {
    Records records;
    EXPECT_EQ(AddOrFindReflectance(records, Painted()), 0U);
    records[0].area += 2.0;
    EXPECT_EQ(AddOrFindReflectance(records, Glass()), 1U);
    SurfaceReflectance twin = MakeFromColour("sup:Pintura", "Pintura", {0.1, 0.1, 0.1});
    const std::size_t found = AddOrFindReflectance(records, twin);
    records[found].area += 3.0;
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(found, 0U);
    EXPECT_EQ(records[0].red, 0.8);
    EXPECT_EQ(records[0].area, 5.0);
}

TEST(AddOrFindReflectance, TellsAScriptsSurfaceFromAnOrdinaryOneOfTheSameName) {
    Records records;
    AddOrFindReflectance(records, MakeFromColour("sup:Aco", "Aco", {}));
    EXPECT_EQ(AddOrFindReflectance(records, MakeFromColour("gdl:Aco", "Aco (GDL)", {})), 1U);
}

TEST(ResetToEstimate, TakesTheFiveEstimatesIntoUse) {
    for (const bool hasColour : {true, false}) {
        SurfaceReflectance record = hasColour ? Glass() : MakeFloorReflectance();
        const SurfaceReflectance fresh = record;
        record.reflectance = 0.11;
        record.glass = !record.glass;
        record.transmittance = 0.22;
        record.reflectanceInside = 0.33;
        record.reflectanceOutside = 0.44;
        record.source = ReflectanceSource::CorrectedNow;
        record.loadedSource = ReflectanceSource::CorrectedBefore;
        ResetToEstimate(record);
        EXPECT_EQ(record.loadedSource, ReflectanceSource::CorrectedBefore);
        record.loadedSource = fresh.loadedSource;
        EXPECT_EQ(record, fresh);
    }
}

TEST(ResetToEstimate, TellsInsideFromOutside) {
    SurfaceReflectance record = Glass();
    record.estimatedInside = 0.11;
    record.estimatedOutside = 0.12;
    ResetToEstimate(record);
    EXPECT_EQ(record.reflectanceInside, 0.11);
    EXPECT_EQ(record.reflectanceOutside, 0.12);
}

TEST(ApplyStored, TakesTheCorrectionOfARecordsKey) {
    Records records = {Painted(), MakeFloorReflectance()};
    ApplyStored(records, {{"sup:Pintura", {0.6, true, 0.7, 0.1, 0.2}}, {"sup:Outra", {}}});
    EXPECT_EQ(records[0].reflectance, 0.6);
    EXPECT_TRUE(records[0].glass);
    EXPECT_EQ(records[0].transmittance, 0.7);
    EXPECT_EQ(records[0].reflectanceInside, 0.1);
    EXPECT_EQ(records[0].reflectanceOutside, 0.2);
    EXPECT_EQ(records[0].source, ReflectanceSource::CorrectedBefore);
    EXPECT_EQ(records[0].loadedSource, ReflectanceSource::CorrectedBefore);
    EXPECT_EQ(records[0].estimatedReflectance, Painted().estimatedReflectance);
    EXPECT_EQ(records[1], MakeFloorReflectance());
}

TEST(ApplyStored, ClampsWhatASurfaceCanNotHave) {
    struct Case {
        StoredReflectance stored;
        StoredReflectance used;
    };
    const Case cases[] = {
        {{0.019, false, 0.5, -0.001, 0.601}, {0.02, false, 0.0, 0.0, 0.6}},
        {{0.02, true, 0.049, 0.0, 0.6}, {0.02, true, 0.05, 0.0, 0.6}},
        {{0.9, true, 0.05, 0.001, 0.599}, {0.9, true, 0.05, 0.001, 0.599}},
        {{0.901, true, 0.951, 0.601, -0.001}, {0.9, true, 0.95, 0.6, 0.0}},
        {{0.899, true, 0.95, 0.3, 0.3}, {0.899, true, 0.95, 0.3, 0.3}},
    };
    for (const Case& c : cases) {
        Records records = {Painted()};
        ApplyStored(records, {{"sup:Pintura", c.stored}});
        const SurfaceReflectance& r = records[0];
        EXPECT_EQ((StoredReflectance{r.reflectance, r.glass, r.transmittance, r.reflectanceInside,
                                     r.reflectanceOutside}),
                  c.used);
    }
}

TEST(MergeIntoStore, RemembersWhatWasCorrectedNow) {
    SurfaceReflectance record = Painted();
    record.reflectance = 0.6;
    record.glass = true;
    record.transmittance = 0.7;
    record.reflectanceInside = 0.1;
    record.reflectanceOutside = 0.2;
    record.source = ReflectanceSource::CorrectedNow;
    ReflectanceStore store = {{"sup:Pintura", {}}, {"sup:Outra", {0.4}}};
    MergeIntoStore({record}, store);
    EXPECT_EQ(store, (ReflectanceStore{{"sup:Outra", {0.4}},
                                       {"sup:Pintura", {0.6, true, 0.7, 0.1, 0.2}}}));
}

TEST(MergeIntoStore, ForgetsWhatWentBackToTheEstimate) {
    Records records = {Painted(), MakeFloorReflectance()};
    ReflectanceStore store = {
        {"orientacao:piso", {0.3}}, {"sup:Outra", {0.4}}, {"sup:Pintura", {0.6}}};
    ApplyStored(records, store);
    for (SurfaceReflectance& record : records) {
        ResetToEstimate(record);
    }
    MergeIntoStore(records, store);
    EXPECT_EQ(store, (ReflectanceStore{{"sup:Outra", {0.4}}}));
}

TEST(MergeIntoStore, LeavesWhatWasCorrectedBeforeAsItStands) {
    // 0.95 is used as 0.9, and what is remembered stays 0.95.
    Records records = {Painted()};
    ReflectanceStore store = {{"sup:Pintura", {0.95}}};
    ApplyStored(records, store);
    MergeIntoStore(records, store);
    EXPECT_EQ(store, (ReflectanceStore{{"sup:Pintura", {0.95}}}));
}

TEST(ReflectanceLogLine, TellsAnOpaqueSurface) {
    SurfaceReflectance record = MakeFloorReflectance();
    record.area = 12.345;
    EXPECT_EQ(ReflectanceLogLine(record),
              "(sem Superficie) piso (padrao): refletancia 20%, 12.35 m2");
    record.source = ReflectanceSource::CorrectedNow;
    record.reflectance = 0.604;
    EXPECT_EQ(ReflectanceLogLine(record),
              "(sem Superficie) piso (corrigida agora): refletancia 60%, 12.35 m2");
}

TEST(ReflectanceLogLine, TellsAGlass) {
    SurfaceReflectance record = Glass();
    record.area = 3.0;
    EXPECT_EQ(ReflectanceLogLine(record),
              "Vidro (estimada): vidro, TL 85%, RL interna 8%, RL externa 8%, 3.00 m2");
    record.source = ReflectanceSource::CorrectedBefore;
    record.transmittance = 0.396;
    record.reflectanceInside = 0.0;
    record.reflectanceOutside = 0.6;
    EXPECT_EQ(ReflectanceLogLine(record),
              "Vidro (corrigida antes): vidro, TL 40%, RL interna 0%, RL externa 60%, 3.00 m2");
}

} // namespace
} // namespace Merivane::Simulation
