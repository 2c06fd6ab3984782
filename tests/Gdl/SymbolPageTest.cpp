#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Sha256.hpp"
#include "Drawing/PngWriter.hpp"
#include "Gdl/SymbolSheet.hpp"
#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/SymbolRows.hpp"
#include "Support/Places.hpp"
#include "Text/Number.hpp"

// The page of the plan symbols, held to their drawings. With VANTORO_REWRITE_SYMBOLS set its table
// and picture are made anew.
namespace Merivane {
namespace {

const std::string Picture = "simbolos.png";

std::filesystem::path DocumentsFolder() {
    return Tests::SourceFolder() / "docs";
}

std::string SymbolTable() {
    std::string table = "| Símbolo | Nome | Linhas de dados |\n|---|---|---|\n";
    for (const Photometry::PlanSymbol& symbol : Photometry::BuiltInSymbols()) {
        const std::size_t rows = Photometry::BuildSymbolRows(symbol).rows.size();
        table += "| " + std::to_string(symbol.id) + " | " + symbol.name + " | " +
                 std::to_string(rows) + " |\n";
    }
    return table;
}

/// Tells one drawing of all symbols from another, so that the picture is not left behind.
std::string DrawingDigest() {
    std::string numbers;
    for (const Photometry::PlanSymbol& symbol : Photometry::BuiltInSymbols()) {
        for (const Photometry::SymbolRow& row : Photometry::BuildSymbolRows(symbol).rows) {
            for (const double number : row) {
                // A sine may differ in its last digits; 0 has no sign.
                numbers += Text::FormatFixed(std::round(number * 1e6) + 0.0, 0) + " ";
            }
        }
    }
    return Catalog::Sha256Hex(numbers).substr(0, 16);
}

std::string PageEnd() {
    return DrawingDigest() + " -->\n" + SymbolTable();
}

TEST(SymbolPage, ShowsEverySymbol) {
    const std::string mark = "<!-- symbols ";
    const std::filesystem::path file = DocumentsFolder() / "simbolos.md";
    std::string page = Tests::ReadBytes(file);
    const std::size_t found = page.find(mark);
    ASSERT_NE(found, std::string::npos);
    const std::size_t begin = found + mark.size();
    std::string png;
    std::string error;
    ASSERT_TRUE(Drawing::WritePng(Tests::BuildSymbolSheet(), png, error)) << error;
    if (std::getenv("VANTORO_REWRITE_SYMBOLS") != nullptr) {
        Tests::WriteBytes(DocumentsFolder() / Picture, png);
        Tests::WriteBytes(file, page.substr(0, begin) + PageEnd());
        return;
    }
    EXPECT_EQ(page.substr(begin), PageEnd());
    EXPECT_NE(page.find("](" + Picture + ")"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(DocumentsFolder() / Picture));
}

} // namespace
} // namespace Merivane
