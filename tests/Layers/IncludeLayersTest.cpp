#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Support/Places.hpp"

// The include lines of src read against the table of layers: an edge that points back up fails.
namespace Merivane::Tests {

namespace {

using Folders = std::set<std::string>;

const Folders Everything = {"Text",
                            "Drawing",
                            "Photometry",
                            "Simulation",
                            "Simulation/Run",
                            "Radiance",
                            "Document",
                            "Document/Report",
                            "Gdl",
                            "Simulation/Glare",
                            "Simulation/Verification",
                            "Simulation/Study",
                            "Catalog",
                            "Tools",
                            "Host",
                            "Archicad",
                            "AddOn/RunLog",
                            "AddOn",
                            "Workbench",
                            "Workbench/Parts",
                            "Workbench/Project",
                            "Workbench/Bodies",
                            "Workbench/Script",
                            "Workbench/Model",
                            "Workbench/Interface",
                            "Workbench/Display",
                            "Program"};

/// What each folder may include beside itself.
const std::map<std::string, Folders> Layers = {
    {"Text", {}},
    {"Drawing", {"Text"}},
    {"Photometry", {"Text"}},
    {"Simulation", {"Text", "Photometry"}},
    {"Simulation/Glare", {"Text", "Photometry", "Simulation"}},
    {"Simulation/Verification", {"Text", "Photometry", "Simulation"}},
    {"Simulation/Study",
     {"Text", "Photometry", "Simulation", "Simulation/Glare", "Simulation/Verification"}},
    {"Radiance", {"Text", "Photometry", "Simulation"}},
    {"Simulation/Run", {"Text", "Photometry", "Simulation", "Radiance"}},
    {"Catalog", {"Text", "Photometry"}},
    {"Document",
     {"Text", "Drawing", "Photometry", "Simulation", "Simulation/Glare", "Simulation/Verification",
      "Simulation/Study", "Radiance", "Simulation/Run", "Catalog"}},
    {"Document/Report",
     {"Text", "Drawing", "Photometry", "Simulation", "Simulation/Glare", "Simulation/Verification",
      "Simulation/Study", "Document"}},
    {"Gdl", {"Text", "Photometry", "Simulation"}},
    {"Tools", {"Text", "Photometry", "Simulation"}},
    {"Host", {}},
    {"AddOn/RunLog", {"Host", "Text"}},
    {"Archicad",
     {"Text", "Photometry", "Simulation", "Simulation/Glare", "Simulation/Verification",
      "Simulation/Study", "Radiance", "Simulation/Run", "Catalog", "Gdl", "Tools", "Host",
      "AddOn/RunLog"}},
    {"AddOn",
     {"Text", "Photometry", "Simulation", "Simulation/Glare", "Simulation/Verification",
      "Simulation/Study", "Radiance", "Simulation/Run", "Catalog", "Gdl", "Tools", "Host",
      "Archicad", "AddOn/RunLog"}},
    {"Workbench/Parts", {"Host", "Text"}},
    {"Workbench/Project", {"Host", "Text", "Catalog", "Photometry", "Workbench/Parts"}},
    {"Workbench/Bodies", {"Host", "Text", "Workbench/Project"}},
    {"Workbench/Script", {"Host", "Text", "Workbench/Project", "Workbench/Bodies"}},
    {"Workbench/Model",
     {"Host", "Text", "Workbench/Parts", "Workbench/Project", "Workbench/Bodies",
      "Workbench/Script"}},
    {"Workbench/Interface", {"Host", "Text", "Drawing", "Catalog"}},
    {"Workbench/Display",
     {"Host", "Text", "Drawing", "Workbench/Project", "Workbench/Bodies", "Workbench/Script",
      "Workbench/Model"}},
    {"Workbench",
     {"Host", "Text", "Drawing", "Catalog", "Photometry", "Workbench/Parts", "Workbench/Project",
      "Workbench/Bodies", "Workbench/Script", "Workbench/Model", "Workbench/Interface",
      "Workbench/Display"}},
    {"Program", Everything},
};

/// Folders whose sources use the standard library alone, but for the halves of an operating
/// system or a processor.
const Folders CoreFolders = {"Text",
                             "Photometry",
                             "Simulation",
                             "Radiance",
                             "Simulation/Run",
                             "Catalog",
                             "Gdl",
                             "Tools",
                             "Simulation/Glare",
                             "Simulation/Verification",
                             "Simulation/Study"};

/// The layer of a path under src: the innermost of its folders that the table names, its first
/// folder where there is none.
std::string LayerOf(const std::string& path) {
    for (std::size_t end = path.rfind('/'); end != std::string::npos && end > 0;
         end = path.rfind('/', end - 1)) {
        if (Layers.count(path.substr(0, end)) == 1) {
            return path.substr(0, end);
        }
    }
    return path.substr(0, path.find('/'));
}

bool IsSystemHalf(const std::string& path) {
    const std::string name = path.substr(0, path.find_last_of('.'));
    return name.ends_with("Posix") || name.ends_with("Windows") || name.ends_with("X86");
}

struct Include {
    std::string file; // path under src, '/' between folders
    std::string target;
    bool quoted = false;
};

std::vector<Include> ReadIncludes() {
    const std::regex pattern(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
    std::vector<Include> includes;
    const std::filesystem::path root = SourceFolder() / "src";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".hpp" && extension != ".cpp") {
            continue;
        }
        std::istringstream lines(ReadBytes(entry.path()));
        for (std::string line; std::getline(lines, line);) {
            std::smatch match;
            if (std::regex_search(line, match, pattern)) {
                includes.push_back({entry.path().lexically_relative(root).generic_string(),
                                    match[2].str(), match[1].str() == "\""});
            }
        }
    }
    return includes;
}

} // namespace

TEST(IncludeLayers, EveryFolderOfTheSourceTreeStandsInTheTable) {
    std::size_t seen = 0;
    for (const Include& include : ReadIncludes()) {
        EXPECT_TRUE(Layers.count(LayerOf(include.file)) == 1) << include.file;
        ++seen;
    }
    EXPECT_GT(seen, 100U);
}

TEST(IncludeLayers, NoFolderIncludesOneThatItsLayerMayNotSee) {
    for (const Include& include : ReadIncludes()) {
        if (!include.quoted) {
            continue;
        }
        const std::string from = LayerOf(include.file);
        const std::string to = LayerOf(include.target);
        const bool allowed = from == to || (Layers.count(from) == 1 && Layers.at(from).count(to));
        EXPECT_TRUE(allowed) << include.file << " includes " << include.target;
    }
}

TEST(IncludeLayers, ProjectHeadersAreIncludedFromTheSourceRoot) {
    for (const Include& include : ReadIncludes()) {
        if (include.quoted) {
            EXPECT_TRUE(std::filesystem::exists(SourceFolder() / "src" / include.target))
                << include.file << " includes " << include.target;
        }
    }
}

TEST(IncludeLayers, TheCoreUsesTheStandardLibraryAlone) {
    for (const Include& include : ReadIncludes()) {
        if (include.quoted || IsSystemHalf(include.file) ||
            CoreFolders.count(LayerOf(include.file)) == 0) {
            continue;
        }
        // Headers of the standard library have neither an extension nor a folder.
        EXPECT_EQ(include.target.find_first_of("./"), std::string::npos)
            << include.file << " includes <" << include.target << ">";
    }
}

} // namespace Merivane::Tests
