#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"

#include <gtest/gtest.h>

namespace Merivane::Tests {

TEST(IesCommand, TellsWhatAFileHolds) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const ProgramEnd end = RunVantoro({"ies", (folder.Path() / "luz.ies").string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_NE(end.output.find("Painel"), std::string::npos) << end.output;
    EXPECT_NE(end.output.find("800"), std::string::npos) << end.output;
}

TEST(IesCommand, GoesOnAfterAFileThatIsRefusedAndFails) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    WriteBytes(folder.Path() / "nada.ies", "");
    const std::string bad = (folder.Path() / "nada.ies").string();
    const ProgramEnd end = RunVantoro({"ies", bad, (folder.Path() / "luz.ies").string()});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: \"" + bad +
                             "\": linha TILT= nao encontrada - nao parece um arquivo IES.\n");
    EXPECT_NE(end.output.find("Painel"), std::string::npos);
}

TEST(IesCommand, GivesOneJsonEntryForEachFile) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const std::string good = (folder.Path() / "luz.ies").string();
    const std::string missing = (folder.Path() / "falta.ies").string();
    const ProgramEnd end = RunVantoro({"ies", "--json", good, missing});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "");
    Catalog::JsonValue entries;
    ASSERT_TRUE(Catalog::JsonParse(end.output, entries).ok) << end.output;
    ASSERT_EQ(entries.items.size(), 2U);
    EXPECT_EQ(entries.items[0].StringOr("arquivo", ""), good);
    EXPECT_EQ(entries.items[0].NumberOr("pico", 0), 800.0);
    ASSERT_NE(entries.items[1].Find("ok"), nullptr);
    EXPECT_EQ(entries.items[1].Find("ok")->boolean, 0);
    EXPECT_NE(entries.items[1].StringOr("erro", ""), "");
}

TEST(IesCommand, WritesThePolarCurveAsPng) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const ProgramEnd end = RunVantoro({"ies", "--curva", (folder.Path() / "luz.ies").string(),
                                       "--saida", (folder.Path() / "curvas").string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(ReadBytes(folder.Path() / "curvas" / "luz-curva.png").substr(0, 8),
              "\x89PNG\r\n\x1a\n");
}

TEST(IesCommand, SaysThatAFileHasNoCurve) {
    const TemporaryFolder folder;
    std::string typeB = SampleIesText();
    typeB.replace(typeB.find("5 1 1 2"), 7, "5 1 2 2");
    WriteBytes(folder.Path() / "b.ies", typeB);
    const ProgramEnd end = RunVantoro(
        {"ies", "--curva", (folder.Path() / "b.ies").string(), "--saida", folder.Path().string()});
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("b.ies"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "b-curva.png"));
}

} // namespace Merivane::Tests
