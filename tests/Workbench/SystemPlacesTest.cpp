#include "Workbench/SystemPlaces.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "Text/NativePath.hpp"

namespace Merivane::Workbench {
namespace {

/// An environment variable for the length of a test.
class Variable {
public:
    Variable(std::string variableName, const char* value) : name(std::move(variableName)) {
        if (const char* const present = std::getenv(name.c_str())) {
            before = present;
        }
        Set(value);
    }
    ~Variable() { Set(before ? before->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void Set(const char* value) {
        if (value) {
            ::setenv(name.c_str(), value, 1);
        } else {
            ::unsetenv(name.c_str());
        }
    }

    std::string name;
    std::optional<std::string> before;
};

TEST(SystemPlaces, KnowsTheRunningProgram) {
    EXPECT_EQ(Text::NativePath(ExecutablePath()).filename(), "WorkbenchTests");
}

TEST(SystemPlaces, TakesTheTemporaryFolderFromTheEnvironment) {
    struct Case {
        const char* variable;
        const wchar_t* folder;
    };
    const Case cases[] = {
        {nullptr, L"/tmp"},    {"", L"/tmp"},     {"/", L"/tmp"},
        {"relativa", L"/tmp"}, {"/a/b", L"/a/b"}, {"/a/b//", L"/a/b"},
    };
    for (const Case& c : cases) {
        const Variable variable("TMPDIR", c.variable);
        EXPECT_EQ(SystemTemporaryFolder(), c.folder);
    }
}

TEST(SystemPlaces, PutsPreferencesIntoTheConfigurationFolder) {
    struct Case {
        const char* configuration;
        const char* home;
        const wchar_t* file;
    };
    const Case cases[] = {
        {"/c", "/h", L"/c/vantoro/preferencias"},
        {nullptr, "/h", L"/h/.config/vantoro/preferencias"},
        {"", "/h", L"/h/.config/vantoro/preferencias"},
        {"relativa", "/h", L"/h/.config/vantoro/preferencias"},
        {nullptr, nullptr, L""},
        {nullptr, "relativa", L""},
    };
    for (const Case& c : cases) {
        const Variable configuration("XDG_CONFIG_HOME", c.configuration);
        const Variable home("HOME", c.home);
        EXPECT_EQ(UserPreferencesFile(), c.file);
    }
}

} // namespace
} // namespace Merivane::Workbench
