#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "Support/Places.hpp"
#include "Workbench/Script/ScriptFunctions.hpp"
#include "Workbench/Script/ScriptStatements.hpp"
#include "Workbench/Script/ShapeTable.hpp"

// The page of the script language, held to the interpreter's tables. With VANTORO_REWRITE_GDL set
// its tables are made anew.
namespace Merivane::Workbench {
namespace {

std::string Row(std::string_view name, std::string_view does) {
    return "| `" + std::string(name) + "` | " + std::string(does) + " |\n";
}

constexpr std::string_view StatementHead = "| Statement | |\n|---|---|\n";

std::string StatementTable(std::span<const StatementEntry> entries) {
    std::string table(StatementHead);
    for (const StatementEntry& entry : entries) {
        table += Row(entry.name, entry.does);
    }
    return table;
}

std::string FunctionTable(std::span<const FunctionEntry> entries) {
    std::string table = "| Function | |\n|---|---|\n";
    for (const FunctionEntry& entry : entries) {
        table += Row(entry.name, entry.does);
    }
    return table;
}

std::string ControlTable() {
    std::string table(StatementHead);
    for (const ControlWord& word : ControlWords()) {
        table += Row(word.name, word.does);
    }
    return table;
}

std::string ShapeTable() {
    std::string table(StatementHead);
    for (const ShapeStatement& shape : ShapeStatements()) {
        table += Row(shape.keyword, shape.does);
    }
    return table;
}

/// Holds the table behind its mark, up to the next blank line, or makes it anew.
void HoldTable(const std::string& name, const std::string& table) {
    SCOPED_TRACE(name);
    const std::filesystem::path file = Tests::SourceFolder() / "docs" / "gdl.md";
    std::string page = Tests::ReadBytes(file);
    const std::string mark = "<!-- " + name + " -->\n";
    const std::size_t found = page.find(mark);
    ASSERT_NE(found, std::string::npos);
    const std::size_t begin = found + mark.size();
    const std::size_t end = std::min(page.find("\n\n", begin), page.size() - 1) + 1;
    if (std::getenv("VANTORO_REWRITE_GDL") != nullptr) {
        Tests::WriteBytes(file, page.replace(begin, end - begin, table));
        return;
    }
    EXPECT_EQ(page.substr(begin, end - begin), table);
}

TEST(ScriptPage, TellsEveryStatementAndFunction) {
    HoldTable("control", ControlTable());
    HoldTable("transformations", StatementTable(TransformStatements()));
    HoldTable("attributes", StatementTable(AttributeStatements()));
    HoldTable("plan", StatementTable(PlanStatements()));
    HoldTable("polygons", StatementTable(PlanPolygonStatements()));
    HoldTable("model", StatementTable(ModelControlStatements()));
    HoldTable("shapes", ShapeTable());
    HoldTable("parameters", StatementTable(ParameterStatements()));
    HoldTable("quiet", StatementTable(QuietStatements()));
    HoldTable("numbers", FunctionTable(NumberFunctions()));
    HoldTable("texts", FunctionTable(TextFunctions()));
    HoldTable("machine", FunctionTable(MachineFunctions()));
}

} // namespace
} // namespace Merivane::Workbench
