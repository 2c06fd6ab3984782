#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Document/TaskReport.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Document {

using Catalog::JsonKind;
using Catalog::JsonValue;
using Simulation::SearchTasks;
using Simulation::TaskRow;

namespace {

std::string Report(const char* text) {
    std::string report;
    for (const std::string& line : TaskReportLines(SearchTasks(text))) {
        report += line + "\n";
    }
    return report;
}

std::size_t Columns(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace

TEST(TaskReport, WritesRowsUnderTheirSectionsWithAlignedNumbers) {
    EXPECT_EQ(
        Report("recepção"),
        R"(22. Escritórios                                                                Em lx    U0  UGRL  Ra
  s22.6   Recepção                                                               300  0,70    22  80

24. Restaurantes e hotéis                                                      Em lx    U0  UGRL  Ra
  s24.1   Recepção/caixa/portaria                                                300  0,70    22  80
)");
}

TEST(TaskReport, WritesTheNoteBelowAndADashWithoutGlareLimit) {
    EXPECT_EQ(
        Report("s29.31"),
        R"(29. Locais de assistência médica                                               Em lx    U0  UGRL  Ra
  s29.31  Dentistas: cavidade cirúrgica                                         5000  0,70     -  90
            Obs.: Valores maiores que 5 000 lux podem ser necessários.
)");
}

TEST(TaskReport, WrapsLongTextsInTheirColumn) {
    EXPECT_EQ(
        Report("s5.4"),
        R"(5. Indústria de cerâmica e vidro                                               Em lx    U0  UGRL  Ra
  s5.4    Polimento, moagem, gravação, polimento do vidro, moldagem de peças     750  0,70    19  80
          de precisão, fabricação de instrumentos de vidro
            Obs.: Para montagem alta: ver também 4.6.2.
)");
    EXPECT_EQ(
        Report("s31.1"),
        R"(31. Locais para celebrações e cultos religiosos (igrejas, mosteiros,           Em lx    U0  UGRL  Ra
    sinagogas, templos etc.)
  s31.1   Corpo do local                                                         100  0,70    25  80
)");
}

TEST(TaskReport, IsReadableAtAHundredColumns) {
    const std::vector<std::string> lines = TaskReportLines(SearchTasks(""));
    int rows = 0;
    for (const std::string& line : lines) {
        EXPECT_LE(Columns(line), 100U) << line;
        EXPECT_TRUE(line.empty() || line.back() != ' ') << line;
        rows += line.starts_with("  s") ? 1 : 0;
    }
    EXPECT_EQ(rows, 259);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), ""), 30); // between 31 sections
}

TEST(TaskReport, LosesNoWordOfTheTable) {
    for (const TaskRow& row : Simulation::TaskTable()) {
        std::string joined;
        for (const std::string& line : TaskReportLines({&row})) {
            const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
            joined += line.substr(start) + " ";
        }
        // The numbers stand behind the first line of the activity.
        const std::string activity = row.activity.substr(0, row.activity.find(' '));
        EXPECT_NE(joined.find(row.id), std::string::npos);
        EXPECT_NE(joined.find(activity), std::string::npos) << joined;
        EXPECT_NE(joined.find(row.activity.substr(row.activity.rfind(' ') + 1)), std::string::npos)
            << joined;
        EXPECT_NE(joined.find(row.note), std::string::npos) << joined;
    }
}

TEST(TaskReport, HasNoLinesWithoutRows) {
    EXPECT_TRUE(TaskReportLines({}).empty());
    EXPECT_EQ(Catalog::JsonWrite(TaskReportJson({})), "[]\n");
}

TEST(TaskReport, WritesEachRowForAProgram) {
    const JsonValue json = TaskReportJson(SearchTasks("s29.31"));
    ASSERT_EQ(json.items.size(), 1U);
    EXPECT_EQ(Catalog::JsonWrite(json.items[0]),
              "{\n\t\"id\": \"s29.31\",\n\t\"secao\": 29,\n"
              "\t\"nomeDaSecao\": \"Locais de assistência médica\",\n"
              "\t\"atividade\": \"Dentistas: cavidade cirúrgica\",\n\t\"Em\": 5000,\n"
              "\t\"U0\": 0.7,\n\t\"UGRL\": null,\n\t\"Ra\": 90,\n"
              "\t\"observacao\": \"Valores maiores que 5 000 lux podem ser necessários.\"\n}\n");
    const JsonValue plain = TaskReportJson(SearchTasks("s22.6"));
    EXPECT_EQ(plain.items.at(0).NumberOr("UGRL", 0), 22.0);
    EXPECT_EQ(plain.items.at(0).Find("observacao")->kind, JsonKind::Null);
    EXPECT_EQ(TaskReportJson(SearchTasks("")).items.size(), 259U);
}

} // namespace Merivane::Document
