#include <gtest/gtest.h>

#include "Radiance/RtraceOptions.hpp"

namespace Merivane::Radiance {
namespace {

using Arguments = std::vector<std::string>;
using Simulation::SimulationOptions;

SimulationOptions ByQuality(std::uint32_t quality) {
    SimulationOptions options;
    options.useEngineSettings = false;
    options.quality = quality;
    return options;
}

Arguments List(const std::string& text) {
    Arguments list;
    std::string word;
    for (const char c : text + " ") {
        if (c != ' ') {
            word += c;
        } else {
            list.push_back(word);
            word.clear();
        }
    }
    return list;
}

TEST(RtraceOptions, OfTheDefaultOptionsAreTheProfileProjeto) {
    EXPECT_EQ(RtraceOptions({}), List("-h -I+ -dj 0 -lr 8 -ab 2 -ad 1024 -as 512 -ar 256 -aa 0.15 "
                                      "-lw 0.002 scene.oct"));
}

TEST(RtraceOptions, FollowTheTableByQuality) {
    EXPECT_EQ(RtraceOptions(ByQuality(0)), List("-h -I+ -dj 0 -lr 8 -ab 1 -ad 512 -as 128 -ar 64 "
                                                "-aa 0.25 -lw 0.005 scene.oct"));
    EXPECT_EQ(RtraceOptions(ByQuality(1)), List("-h -I+ -dj 0 -lr 8 -ab 2 -ad 1024 -as 512 -ar 256 "
                                                "-aa 0.15 -lw 0.002 scene.oct"));
    EXPECT_EQ(RtraceOptions(ByQuality(2)), List("-h -I+ -dj 0 -lr 8 -ab 3 -ad 2048 -as 1024 -ar "
                                                "512 -aa 0.1 -lw 0.0005 scene.oct"));
    EXPECT_EQ(RtraceOptions(ByQuality(3)), List("-h -I+ -dj 0 -lr 8 scene.oct"));
}

TEST(RtraceOptions, NormaliseTheEngineSettings) {
    SimulationOptions options;
    options.engine = {.bounces = 99,
                      .divisions = 1,
                      .supersamples = -5,
                      .resolution = 100000,
                      .accuracy = 0.0,
                      .limitWeight = 0.00012345678};
    EXPECT_EQ(RtraceOptions(options), List("-h -I+ -dj 0 -lr 8 -ab 8 -ad 64 -as 0 -ar 1024 -aa "
                                           "0.05 -lw 0.000123457 scene.oct"));
}

TEST(RtraceOptions, FixTheSeedJustBeforeTheOctree) {
    SimulationOptions options = ByQuality(3);
    options.repeatable = true;
    EXPECT_EQ(RtraceOptions(options), List("-h -I+ -dj 0 -lr 8 -u- scene.oct"));
    EXPECT_EQ(WithLineFlush(RtraceOptions(options)), List("-h -I+ -dj 0 -lr 8 -u- -x 1 scene.oct"));
    EXPECT_EQ(WithAmbientFile(options, "ambient_3.amb"),
              List("-h -I+ -dj 0 -lr 8 -u- -x 1 -af ambient_3.amb scene.oct"));
}

TEST(WithLineFlush, StandsBeforeTheLastEntry) {
    EXPECT_EQ(WithLineFlush({"a", "b"}), List("a -x 1 b"));
    EXPECT_EQ(WithLineFlush({"b"}), List("-x 1 b"));
}

TEST(WithAmbientFile, AddsFlushAndFile) {
    EXPECT_EQ(WithAmbientFile(ByQuality(3), "ambient.amb"),
              List("-h -I+ -dj 0 -lr 8 -x 1 -af ambient.amb scene.oct"));
}

TEST(WithoutReflections, ReplacesTheNumberOfReflectionsOnly) {
    EXPECT_EQ(WithoutReflections(RtraceOptions(ByQuality(0))),
              List("-h -I+ -dj 0 -lr 8 -ab 0 -ad 512 -as 128 -ar 64 -aa 0.25 -lw 0.005 scene.oct"));
    EXPECT_EQ(WithoutReflections(RtraceOptions(ByQuality(3))), RtraceOptions(ByQuality(3)));
}

TEST(ReflectionCount, IsWhatRtraceIsTold) {
    SimulationOptions options;
    EXPECT_EQ(ReflectionCount(options), 2);
    options.engine.bounces = 20;
    EXPECT_EQ(ReflectionCount(options), 8);
    EXPECT_EQ(ReflectionCount(ByQuality(0)), 1);
    EXPECT_EQ(ReflectionCount(ByQuality(2)), 3);
    EXPECT_EQ(ReflectionCount(ByQuality(3)), 0);
}

} // namespace
} // namespace Merivane::Radiance
