#include <string>
#include <vector>

#include "AddOn/AddIesSession.hpp"
#include "AddOn/Commands/PickIesFile.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;

class IesFileChoice : public Tests::AddIesSession {
protected:
    /// Chooses a file of this text.
    bool Pick(const std::string& text, const std::string& name = "LX-200.spot.ies") {
        Tests::PrepareAnswers("[" + ChooseFile(WriteIes(name, text)) + "]");
        const bool done = PickIesFile(picked);
        Tests::ExpectAnswered();
        return done;
    }

    PickedIes picked;
};

TEST_F(IesFileChoice, AsksForAnIesFile) {
    EXPECT_TRUE(Pick(Tests::SpotIes()));
    const auto& shown = Workbench::CurrentSession().userInterface.shownFileChoices.at(0);
    EXPECT_EQ(shown.title, "Escolha o arquivo IES da luminaria");
    EXPECT_EQ(shown.filter.text, "Fotometria IES (*.ies)");
    EXPECT_EQ(shown.filter.extension, "ies");
}

TEST_F(IesFileChoice, GivesPlaceNamesAndPhotometry) {
    ASSERT_TRUE(Pick(Tests::SpotIes()));
    EXPECT_EQ(picked.location, Text::WidePath(Folder() / "LX-200.spot.ies"));
    EXPECT_EQ(picked.fileName, "LX-200.spot.ies");
    EXPECT_EQ(picked.baseName, "LX-200.spot");
    EXPECT_EQ(picked.file.inputWatts, 10.0);
    EXPECT_EQ(picked.file.candela.size(), 1U);
    EXPECT_TRUE(picked.warnings.empty());
    EXPECT_EQ(Tests::ReportWindow(), Lines());
}

TEST_F(IesFileChoice, GivesHeaderTextsAsUtf8) {
    std::string text = Tests::SpotIes();
    text.insert(text.find("[MANUFAC]"), "luz de 20\xA1\xE3\r\n");
    ASSERT_TRUE(Pick(text));
    EXPECT_EQ(Photometry::FindKeyword(picked.file, "LUMINAIRE"), "Spot 20°");
    EXPECT_EQ(picked.file.otherLines, Lines{"luz de 20°"});
}

TEST_F(IesFileChoice, TellsTheWarningsInTheRunLog) {
    std::string text = Tests::SpotIes() + "7 8\n";
    text.replace(text.find("TILT=NONE"), 9, "TILT=x.tlt");
    ASSERT_TRUE(Pick(text));
    EXPECT_EQ(picked.warnings, (Lines{"TILT aponta para arquivo externo (x.tlt), que nao e lido",
                                      "2 valor(es) depois da tabela de candela, ignorado(s)"}));
    EXPECT_EQ(Tests::ReportWindow(),
              (Lines{"Vantoro: aviso do IES: TILT aponta para arquivo externo (x.tlt), que nao e "
                     "lido",
                     "Vantoro: aviso do IES: 2 valor(es) depois da tabela de candela, "
                     "ignorado(s)"}));
}

TEST_F(IesFileChoice, SaysNothingWhereTheUserCancels) {
    Tests::PrepareAnswers(
        R"([{"arquivo": "Escolha o arquivo IES da luminaria", "cancelar": true}])");
    picked.fileName = "antes";
    EXPECT_FALSE(PickIesFile(picked));
    EXPECT_EQ(picked.fileName, "antes");
    EXPECT_EQ(Tests::ReportWindow(), Lines());
}

TEST_F(IesFileChoice, AlertsOfAFileThatCanNotBeRead) {
    picked.fileName = "antes";
    EXPECT_FALSE(Pick(""));
    EXPECT_EQ(Tests::ReportWindow(), Lines{"!Vantoro: Nao foi possivel ler o arquivo IES."});
    EXPECT_EQ(picked.fileName, "antes");
}

TEST_F(IesFileChoice, AlertsOfAFileThatIsRefused) {
    EXPECT_FALSE(Pick("qualquer coisa"));
    EXPECT_EQ(Tests::ReportWindow(),
              Lines{"!Vantoro: O arquivo IES foi recusado: linha TILT= nao encontrada - nao parece "
                    "um arquivo IES"});
    EXPECT_TRUE(picked.fileName.empty());
}

TEST_F(IesFileChoice, ReportsAHostThatCanNotAsk) {
    Workbench::FailCall("ChooseFile", 1, Host::OutOfMemory);
    EXPECT_FALSE(PickIesFile(picked));
    EXPECT_EQ(Tests::ReportWindow(),
              Lines{"Vantoro: Escolher o arquivo IES failed: APIERR_MEMFULL (0x81060002)"});
}

} // namespace
} // namespace Merivane::Commands
