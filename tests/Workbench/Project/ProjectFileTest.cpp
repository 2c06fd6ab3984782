#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "RandomProject.hpp"
#include "Support/CommaLocale.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

/// The path of the first field in which two projects differ; empty where they are the same.
std::string FirstDifference(const Project& a, const Project& b) {
#define COMPARE(field)                                                                             \
    if (!(a.field == b.field)) {                                                                   \
        return #field;                                                                             \
    }
    COMPARE(name)
    COMPARE(stories)
    COMPARE(layers)
    COMPARE(combinations)
    COMPARE(lineTypes)
    COMPARE(fills)
    COMPARE(surfaces)
    COMPARE(databases)
    COMPARE(views)
    COMPARE(libraries)
    COMPARE(data)
    COMPARE(selection)
    COMPARE(window)
    COMPARE(activeFloor)
    COMPARE(planScale)
    COMPARE(lastStamp)
#undef COMPARE
    for (std::size_t i = 0; i < std::min(a.parts.size(), b.parts.size()); ++i) {
        if (!(a.parts[i] == b.parts[i])) {
            return "parts[" + std::to_string(i) + "]";
        }
    }
    for (std::size_t i = 0; i < std::min(a.elements.size(), b.elements.size()); ++i) {
        if (!(a.elements[i] == b.elements[i])) {
            return "elements[" + std::to_string(i) + "] of type " +
                   std::to_string(static_cast<int>(a.elements[i].element.header.type));
        }
    }
    return a == b ? "" : "number of parts or elements";
}

Project Parse(const std::string& bytes) {
    Project project;
    std::string error;
    EXPECT_TRUE(ParseProject(bytes, project, error)) << error;
    return project;
}

} // namespace

TEST(ProjectFile, ReadsBackEveryFieldThatItWrote) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        const Project project = MakeRandomProject(seed);
        ASSERT_EQ(FirstDifference(Parse(WriteProject(project)), project), "") << "seed " << seed;
    }
}

TEST(ProjectFile, WritesTheSameBytesAfterReadingThem) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        const std::string bytes = WriteProject(MakeRandomProject(seed));
        ASSERT_EQ(WriteProject(Parse(bytes)), bytes) << "seed " << seed;
    }
}

TEST(ProjectFile, KeepsTheProjectOfABeginner) {
    const Project project = MakeEmptyProject();
    EXPECT_EQ(FirstDifference(Parse(WriteProject(project)), project), "");
}

} // namespace Merivane::Workbench
