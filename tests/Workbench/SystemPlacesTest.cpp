#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/SystemPlaces.hpp"

namespace Merivane::Workbench {
namespace {

using Tests::Variable;

/// The value of a case; null where the variable is not set.
std::optional<std::string> Value(const char* text) {
    return text ? std::optional<std::string>(text) : std::nullopt;
}

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
        const Variable variable("TMPDIR", Value(c.variable));
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
        const Variable configuration("XDG_CONFIG_HOME", Value(c.configuration));
        const Variable home("HOME", Value(c.home));
        EXPECT_EQ(UserPreferencesFile(), c.file);
    }
}

TEST(SystemPlaces, TakesTheDocumentsFolderFromTheListOfUserFolders) {
    const Tests::TemporaryFolder folder;
    struct Case {
        const char* list; ///< null = there is none
        std::wstring documents;
    };
    const Case cases[] = {
        {nullptr, L"/h/Documents"},
        {"# XDG_DOCUMENTS_DIR=\"/d\"\n", L"/h/Documents"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n", L"/h/Documentos"},
        {"XDG_DOCUMENTS_DIR=\"/dados/textos/\"\n", L"/dados/textos"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", L"/h/Documents"}, // switched off
        {"XDG_DOCUMENTS_DIR=\"relativa\"\n", L"/h/Documents"},
    };
    const Variable configuration("XDG_CONFIG_HOME", folder.Path().string());
    const Variable home("HOME", "/h/");
    for (const Case& c : cases) {
        if (c.list) {
            Tests::WriteBytes(folder.Path() / "user-dirs.dirs", c.list);
        }
        EXPECT_EQ(UserDocumentsFolder(), c.documents);
    }
}

} // namespace
} // namespace Merivane::Workbench
