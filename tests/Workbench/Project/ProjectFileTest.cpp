#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "RandomProject.hpp"
#include "Support/CommaLocale.hpp"
#include "Support/Places.hpp"
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
    COMPARE(lightingSymbols)
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

/// All keys of a document, wherever they stand; not those of values of parameters.
void CollectKeys(const Catalog::JsonValue& value, std::set<std::string>& keys) {
    for (const Catalog::JsonMember& member : value.members) {
        keys.insert(member.key);
        const bool isNamed = member.key == "parametros" && member.value.members.size() > 0;
        if (!isNamed) {
            CollectKeys(member.value, keys);
        }
    }
    for (const Catalog::JsonValue& item : value.items) {
        CollectKeys(item, keys);
    }
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

TEST(ProjectFile, EveryKeyStandsInTheUsersPage) {
    const std::string page = ReadBytes(SourceFolder() / "docs" / "projeto.md");
    std::set<std::string> keys;
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        Catalog::JsonValue document;
        ASSERT_TRUE(Catalog::JsonParse(WriteProject(MakeRandomProject(seed)), document).ok);
        CollectKeys(document, keys);
    }
    EXPECT_GT(keys.size(), 100U);
    for (const std::string& key : keys) {
        EXPECT_NE(page.find('`' + key + '`'), std::string::npos) << key;
    }
}

TEST(ProjectFile, TheExampleOfTheUsersPageIsRead) {
    const std::string page = ReadBytes(SourceFolder() / "docs" / "projeto.md");
    const std::size_t begin = page.find("```json") + 7;
    const Project project = Parse(page.substr(begin, page.find("```", begin) - begin));
    EXPECT_EQ(project.elements.size(), 3U);
    EXPECT_EQ(Parse(WriteProject(project)), project);
}

TEST(ProjectFile, AnElementStoresOnlyValuesThatDifferFromItsParts) {
    Project project = MakeEmptyProject();
    Host::LibraryParameter flux;
    flux.name = "mvFluxo";
    flux.number = 3200.0;
    Host::LibraryParameter table;
    table.name = "mvTabela";
    table.isArray = true;
    table.dim1 = 2;
    table.numbers = {1.0, 2.5};
    ProjectPart& part = project.parts.emplace_back();
    part.name = "Plafon";
    part.mainGuid = {{1}};
    part.isLamp = true;
    part.parameters = {flux, table};
    ProjectElement lamp;
    lamp.element.header = {Host::ElementType::Lamp, {{2}}, 0, {1}, 0, {}, false};
    lamp.element.data = Host::ObjectData{1, {}, 0.0, 0.0, false, 1.0, 1.0};
    lamp.memo.parameters = {flux, table};
    project.elements = {lamp};
    EXPECT_EQ(WriteProject(project).find("\"parametros\": {"), std::string::npos);
    project.elements[0].memo.parameters[1].numbers[1] = 3.0;
    const std::string bytes = WriteProject(project);
    EXPECT_NE(bytes.find("\"parametros\": {\n\t\t\t\t\"mvTabela\": {\n\t\t\t\t\t\"linhas\": "
                         "2,\n\t\t\t\t\t\"valores\": [1, 3]\n\t\t\t\t}\n\t\t\t}"),
              std::string::npos)
        << bytes;
    EXPECT_EQ(Parse(bytes).elements[0].memo.parameters,
              std::vector{project.elements[0].memo.parameters[1]});
}

TEST(ProjectFile, IsTheSameWhateverTheLocale) {
    const Project project = MakeRandomProject(4);
    const std::string bytes = WriteProject(project);
    const CommaLocale locale;
    EXPECT_EQ(WriteProject(project), bytes);
    EXPECT_EQ(Parse(bytes), project);
}

TEST(ProjectFile, KeepsTheProjectOfABeginner) {
    const Project project = MakeEmptyProject();
    EXPECT_EQ(FirstDifference(Parse(WriteProject(project)), project), "");
}

} // namespace Merivane::Workbench
