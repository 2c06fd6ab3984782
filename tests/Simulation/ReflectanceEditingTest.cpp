#include <gtest/gtest.h>

#include "Simulation/ReflectanceEditing.hpp"

namespace Merivane::Simulation {
namespace {

SurfaceReflectance Painted() {
    SurfaceReflectance record = MakeFromColour("sup:a", "a", {0.8, 0.5, 0.2});
    record.reflectance = 0.25;
    return record;
}

SurfaceReflectance Pane() {
    return MakeFromColour("sup:v", "v", {0.8, 0.9, 1.0, 1.0, 0.5});
}

TEST(FieldsOf, ShowATenthOfAPercent) {
    SurfaceReflectance record = Pane();
    record.reflectance = 0.12344;
    record.transmittance = 0.56789;
    record.reflectanceInside = 0.0804;
    record.reflectanceOutside = 0.6;
    EXPECT_EQ(FieldsOf(record), (ReflectanceFields{12.3, 56.8, 8.0, 60.0}));
}

TEST(EditableFieldsOf, AreTheReflectanceOfOpaqueSurfacesAndTheRestOfGlass) {
    EXPECT_EQ(EditableFieldsOf(Painted()), (EditableFields{true, false}));
    EXPECT_EQ(EditableFieldsOf(Pane()), (EditableFields{false, true}));
}

TEST(TakeFields, TakesNothingForACorrectionThatRoundingMade) {
    for (int i = 20; i <= 9000; ++i) {
        SurfaceReflectance record = i % 2 == 0 ? Painted() : Pane();
        record.reflectance = i / 10000.0 + 0.00005;
        record.transmittance = i / 9500.0;
        record.reflectanceInside = i / 15000.0;
        record.reflectanceOutside = i / 15500.0;
        const SurfaceReflectance before = record;
        ASSERT_FALSE(TakeFields(record, FieldsOf(record))) << i;
        ASSERT_EQ(record, before) << i;
    }
}

TEST(TakeFields, IgnoresAChangeUnder6In10000) {
    struct Case {
        double before;
        double percent;
        bool changes;
    };
    const Case cases[] = {
        {0.25, 25.0, false},     {0.25, 25.05, false}, {0.25, 25.059, false},
        {0.25, 24.941, false},   {0.25, 25.061, true}, {0.25, 24.939, true},
        {0.25, 25.1, true},      {0.25, 95.0, true},   {0.0, 0.06, true}, // exactly at the edge
        {0.0, 0.0599999, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.percent);
        SurfaceReflectance record = Painted();
        record.reflectance = c.before;
        EXPECT_EQ(TakeFields(record, {c.percent, 5.0, 0.0, 0.0}), c.changes);
        EXPECT_EQ(record.reflectance, c.changes ? c.percent / 100.0 : c.before);
        EXPECT_EQ(record.source,
                  c.changes ? ReflectanceSource::CorrectedNow : ReflectanceSource::Colour);
    }
}

TEST(TakeFields, OfGlassChangeNothingOnAnOpaqueLine) {
    SurfaceReflectance record = Painted();
    EXPECT_FALSE(TakeFields(record, {25.0, 70.0, 20.0, 30.0}));
    EXPECT_EQ(record, Painted());
}

TEST(TakeFields, TakesTheThreeOfAGlassLine) {
    const struct {
        ReflectanceFields fields;
        double SurfaceReflectance::*value;
        double expected;
    } cases[] = {
        {{90.0, 70.0, 8.0, 8.0}, &SurfaceReflectance::transmittance, 0.7},
        {{90.0, 50.0, 20.0, 8.0}, &SurfaceReflectance::reflectanceInside, 0.2},
        {{90.0, 50.0, 8.0, 30.0}, &SurfaceReflectance::reflectanceOutside, 0.3},
    };
    for (const auto& c : cases) {
        SurfaceReflectance expected = Pane();
        expected.*c.value = c.expected;
        expected.source = ReflectanceSource::CorrectedNow;
        SurfaceReflectance record = Pane();
        EXPECT_TRUE(TakeFields(record, c.fields));
        EXPECT_EQ(record, expected);
    }
}

TEST(TakeFields, KeepsWhenTheTableWasMade) {
    SurfaceReflectance record = Painted();
    record.source = ReflectanceSource::CorrectedBefore;
    record.loadedSource = ReflectanceSource::CorrectedBefore;
    EXPECT_FALSE(TakeFields(record, FieldsOf(record)));
    EXPECT_EQ(record.source, ReflectanceSource::CorrectedBefore);
    EXPECT_TRUE(TakeFields(record, {30.0, 5.0, 0.0, 0.0}));
    EXPECT_EQ(record.source, ReflectanceSource::CorrectedNow);
    EXPECT_EQ(record.loadedSource, ReflectanceSource::CorrectedBefore);
}

TEST(SetGlass, GivesAnOpaqueSurfaceAClearPane) {
    SurfaceReflectance record = Painted();
    record.reflectanceInside = 0.3;
    record.reflectanceOutside = 0.4;
    SurfaceReflectance expected = Painted();
    expected.glass = true;
    expected.transmittance = 0.8;
    expected.source = ReflectanceSource::CorrectedNow;
    SetGlass(record, true);
    EXPECT_EQ(record, expected);
}

TEST(SetGlass, GivesBackTheEstimateOfASurfaceThatWasOne) {
    SurfaceReflectance record = Pane();
    record.glass = false;
    record.transmittance = 0.0; // as a remembered opaque correction leaves it
    record.reflectanceInside = 0.3;
    record.reflectanceOutside = 0.4;
    SetGlass(record, true);
    EXPECT_TRUE(record.glass);
    EXPECT_EQ(record.transmittance, 0.5);
    EXPECT_EQ(record.reflectanceInside, 0.3);
    EXPECT_EQ(record.reflectanceOutside, 0.4);
    EXPECT_EQ(record.source, ReflectanceSource::CorrectedNow);
}

TEST(SetGlass, KeepsATransmittanceAboveZero) {
    for (SurfaceReflectance record : {Painted(), Pane()}) {
        for (const double transmittance : {1e-9, 0.33}) {
            record.glass = false;
            record.transmittance = transmittance;
            SetGlass(record, true);
            EXPECT_EQ(record.transmittance, transmittance);
        }
        record.transmittance = -0.1;
        SetGlass(record, true);
        EXPECT_EQ(record.transmittance, record.estimatedGlass ? 0.5 : 0.8);
    }
}

TEST(SetGlass, ClearedOnlyClearsTheFlag) {
    SurfaceReflectance expected = Pane();
    expected.glass = false;
    expected.source = ReflectanceSource::CorrectedNow;
    SurfaceReflectance record = Pane();
    SetGlass(record, false);
    EXPECT_EQ(record, expected);
}

} // namespace
} // namespace Merivane::Simulation
