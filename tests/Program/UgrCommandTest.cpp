#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"
#include "Text/Number.hpp"

namespace Merivane::Tests {

namespace {

using Catalog::JsonKind;
using Catalog::JsonValue;

/// The sample luminaire "Painel" as a file of the folder.
std::string WriteSample(const TemporaryFolder& folder) {
    const std::filesystem::path path = folder.Path() / "luz.ies";
    WriteBytes(path, SampleIesText());
    return path.string();
}

/// The sample with `from` replaced, as a file of the folder.
std::string WriteChanged(const TemporaryFolder& folder, const std::string& from,
                         const std::string& to) {
    std::string text = SampleIesText();
    text.replace(text.find(from), from.size(), to);
    const std::filesystem::path path = folder.Path() / "outra.ies";
    WriteBytes(path, text);
    return path.string();
}

JsonValue ParsedJson(const std::string& text) {
    JsonValue json;
    EXPECT_TRUE(Catalog::JsonParse(text, json).ok) << text.substr(0, 500);
    return json;
}

double Number(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    double value = -1.0;
    EXPECT_TRUE(Text::ReadEntireNumber(text, value)) << text;
    return value;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// UGR worked out from the printed rows from `first` on, up to a blank line, and their count.
double PrintedUgr(const std::vector<std::string>& lines, std::size_t first, double background,
                  int& rows) {
    double sum = 0.0;
    for (std::size_t k = first; k < lines.size() && !lines[k].empty(); ++k) {
        const std::vector<std::string> words = Words(lines[k]);
        if (words.at(14) != "–") {
            sum += Number(words[14]);
            ++rows;
        }
    }
    return 8.0 * std::log10(0.25 / background * sum);
}

} // namespace

TEST(UgrCommand, TellsTheTableOfALuminaire) {
    const TemporaryFolder folder;
    const ProgramEnd end = RunVantoro({"ugr", WriteSample(folder)});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.error, "");
    const std::vector<std::string> lines = LinesOf(end.output);
    ASSERT_EQ(lines.size(), 29U) << end.output;
    EXPECT_EQ(lines[0], "Tabela UGR (método tabular, CIE 117): Painel");
    EXPECT_TRUE(lines[1].starts_with(
        "H = 2,00 m (luminárias acima do olho a 1,20 m), espaçamento 0,25 H, fluxo inicial "))
        << lines[1];
    EXPECT_EQ(Words(lines[8]).size(), 12U) << lines[8];
    EXPECT_TRUE(lines[28].starts_with(
        "Sala de referência 4H x 8H (0,7 / 0,5 / 0,2), pior observador e sentido: UGR "))
        << lines[28];
}

TEST(UgrCommand, GivesAProgramTheTableWithEachRowOnALine) {
    const TemporaryFolder folder;
    const ProgramEnd end = RunVantoro({"ugr", "--json", "--altura", "1,5", WriteSample(folder)});
    EXPECT_EQ(end.status, 0) << end.error;
    const JsonValue json = ParsedJson(end.output);
    EXPECT_EQ(json.NumberOr("altura", 0), 1.5);
    EXPECT_EQ(json.StringOr("luminaria", ""), "Painel");
    ASSERT_EQ(json.Find("transversal")->items.size(), 19U);
    ASSERT_EQ(json.Find("longitudinal")->items[18].items.size(), 5U);
    EXPECT_GT(json.NumberOr("referencia", 0), 5.0);
    EXPECT_EQ(json.Find("fontePequena")->kind, JsonKind::Null);
    EXPECT_EQ(json.Find("explicacao"), nullptr);
    EXPECT_NE(end.output.find("\n\t\t[12, 8]\n"), std::string::npos) << end.output;
}

TEST(UgrCommand, TheTextSaysWhatTheJsonSays) {
    const TemporaryFolder folder;
    const std::string file = WriteSample(folder);
    const JsonValue json = ParsedJson(RunVantoro({"ugr", "--json", file}).output);
    const std::vector<std::string> lines = LinesOf(RunVantoro({"ugr", file}).output);
    const std::vector<std::string> words = Words(lines.at(18)); // 4H x 8H
    EXPECT_EQ(words.at(0), "4H");
    EXPECT_EQ(words.at(1), "8H");
    EXPECT_NEAR(Number(words.at(2)), json.Find("transversal")->items[10].items[0].number, 0.0501);
    EXPECT_NEAR(Number(words.at(11)), json.Find("longitudinal")->items[10].items[4].number, 0.0501);
}

TEST(UgrCommand, RefusesInOneSentence) {
    const TemporaryFolder folder;
    const std::string missing = (folder.Path() / "falta.ies").string();
    const auto expect = [](const std::string& file, const std::string& sentence) {
        const ProgramEnd end = RunVantoro({"ugr", file});
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, "vantoro: \"" + file + "\": " + sentence + ".\n");
    };
    expect(missing, "o arquivo não existe ou não pode ser lido");
    expect(WriteChanged(folder, "5 1 1 2", "5 1 2 2"),
           "o método UGR precisa de fotometria do tipo C; a do arquivo é do tipo B");
    expect(
        WriteChanged(folder, "0.3 0.3 0", "0 0 0"),
        "o IES não informa a abertura luminosa (largura x comprimento): sem luminância, sem UGR");
    expect(WriteChanged(folder, "800 700 400 100 0", "0 0 0 0 0"),
           "a tabela de candela não tem luz: sem fluxo, sem UGR");

    const ProgramEnd end = RunVantoro({"ugr", "--json", missing});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(ParsedJson(end.output).StringOr("erro", ""),
              "o arquivo não existe ou não pode ser lido");
}

TEST(UgrCommand, WritesTableAndSheet) {
    const TemporaryFolder folder;
    const std::filesystem::path out = folder.Path() / "ugr";
    const ProgramEnd end = RunVantoro({"ugr", WriteSample(folder), "--saida", out.string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_TRUE(ReadBytes(out / "luz-ugr.csv").starts_with("\xEF\xBB\xBFX/H;Y/H;"));
    EXPECT_TRUE(ReadBytes(out / "luz-ugr.pdf").starts_with("%PDF-"));
    EXPECT_TRUE(ReadBytes(out / "luz-ugr.png").starts_with("\x89PNG\r\n\x1a\n"));
    EXPECT_FALSE(std::filesystem::exists(out / "luz-ugr-explicacao.csv"));
    EXPECT_TRUE(end.output.ends_with("Gravado: " + (out / "luz-ugr.csv").string() +
                                     "\nGravado: " + (out / "luz-ugr.pdf").string() +
                                     "\nGravado: " + (out / "luz-ugr.png").string() + "\n"))
        << end.output;
}

TEST(UgrCommand, WritesNothingOfWhatItRefuses) {
    const TemporaryFolder folder;
    const std::filesystem::path out = folder.Path() / "ugr";
    const ProgramEnd end =
        RunVantoro({"ugr", WriteChanged(folder, "0.3 0.3 0", "0 0 0"), "--saida", out.string()});
    EXPECT_EQ(end.status, 1);
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST(UgrCommand, SaysThatItCannotWrite) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "ocupado", "");
    const std::string out = (folder.Path() / "ocupado").string();
    const ProgramEnd end = RunVantoro({"ugr", "--json", WriteSample(folder), "--saida", out});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.error.starts_with("vantoro: ")) << end.error;
    EXPECT_NE(end.error.find("\"" + out + "\""), std::string::npos) << end.error;
    EXPECT_EQ(ParsedJson(end.output).StringOr("luminaria", ""), "Painel"); // the answer still comes
}

TEST(UgrCommand, EachPrintedTotalComesOutOfThePrintedRows) {
    const TemporaryFolder folder;
    const ProgramEnd end = RunVantoro({"ugr", "--explicar", WriteSample(folder)});
    EXPECT_EQ(end.status, 0) << end.error;
    const std::vector<std::string> lines = LinesOf(end.output);
    int observers = 0;
    double worst = 0.0;
    for (std::size_t k = 0; k + 5 < lines.size(); ++k) {
        if (!lines[k].starts_with("Observador: ")) {
            continue;
        }
        ++observers;
        const std::vector<std::string> value = Words(lines[k + 2]);
        ASSERT_EQ(value.at(0), "UGR") << lines[k + 2];
        int rows = 0;
        EXPECT_NEAR(PrintedUgr(lines, k + 5, Number(value.at(10)), rows), Number(value.at(1)),
                    0.01);
        EXPECT_GT(rows, 100);
        worst = std::max(worst, Number(value.at(1)));
    }
    EXPECT_EQ(observers, 8);
    const JsonValue json = ParsedJson(RunVantoro({"ugr", "--json", WriteSample(folder)}).output);
    EXPECT_NEAR(worst, json.NumberOr("referencia", 0), 0.01);
}

TEST(UgrCommand, ExplainsAsTableAndForAProgramToo) {
    const TemporaryFolder folder;
    const ProgramEnd end = RunVantoro(
        {"ugr", "--explicar", "--json", WriteSample(folder), "--saida", folder.Path().string()});
    EXPECT_EQ(end.status, 0) << end.error;
    const std::string table = ReadBytes(folder.Path() / "luz-ugr-explicacao.csv");
    EXPECT_TRUE(table.starts_with("\xEF\xBB\xBFsala;observador;"));
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 1 + 2 * 4 * 512);
    const JsonValue json = ParsedJson(end.output);
    ASSERT_EQ(json.Find("explicacao")->items.size(), 2U);
    const JsonValue& seen = json.Find("explicacao")->items[0].Find("observadores")->items.at(3);
    double sum = 0.0;
    for (const JsonValue& row : seen.Find("linhas")->items) {
        sum += row.NumberOr("termo", 0.0);
    }
    EXPECT_NEAR(8.0 * std::log10(0.25 / seen.NumberOr("Lb", 1.0) * sum), seen.NumberOr("UGR", 0.0),
                1e-9);
}

TEST(UgrCommand, NamesItsFilesSoThatAnySystemTakesThem) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.Path() / "-a:b.ies";
    WriteBytes(path, SampleIesText());
    const ProgramEnd end =
        RunVantoro({"ugr", path.string(), "--saida", (folder.Path() / "out").string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "out" / "_-a-b-ugr.csv"));
}

} // namespace Merivane::Tests
