#include <string>

#include <gtest/gtest.h>

#include "Host/FileChooser.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/Interface/DialogText.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

const Host::FileFilter Images = {"Imagens (*.png)", "png"};

class FileChoice : public testing::Test {
protected:
    FileChoice() {
        OpenSession({});
        Tests::WriteBytes(folder.Path() / "foto.PNG", "x");
        Tests::WriteBytes(folder.Path() / "foto.txt", "x");
    }
    ~FileChoice() override { OpenSession({}); }

    std::string PathOf(const std::string& name) const { return (folder.Path() / name).string(); }

    static void Answer(const std::string& json) {
        std::string error;
        ASSERT_TRUE(ParseAnswerScript(json, CurrentSession().userInterface.answers, error))
            << error;
    }

    /// The error, or "" where the answers were carried out.
    std::string Choose() {
        code = Host::ChooseFile("Escolha", Images, path);
        std::string error;
        AllAnswersUsed(error);
        return error;
    }

    Tests::TemporaryFolder folder;
    std::wstring path;
    Host::ErrorCode code = Host::NoError;
};

TEST_F(FileChoice, TakesTheFileOfTheAnswerWhateverTheCaseOfItsExtension) {
    Answer(R"([{"arquivo": "Escolha", "caminho": ")" + PathOf("foto.PNG") + R"("}])");
    EXPECT_EQ(Choose(), "");
    EXPECT_EQ(code, Host::NoError);
    EXPECT_EQ(path, Text::WidePath(folder.Path() / "foto.PNG"));
    const ShownFileChoice& shown = CurrentSession().userInterface.shownFileChoices.at(0);
    EXPECT_EQ(shown.title, "Escolha");
    EXPECT_EQ(shown.filter, Images);
    EXPECT_EQ(FileChoiceText(shown),
              "Arquivo \"Escolha\" [Imagens (*.png)]\n      " + PathOf("foto.PNG") + "\n");
}

TEST_F(FileChoice, IsCancelledByTheAnswer) {
    Answer(R"([{"arquivo": "Escolha", "cancelar": true}])");
    EXPECT_EQ(Choose(), "");
    EXPECT_EQ(code, Host::Cancelled);
    EXPECT_EQ(FileChoiceText(CurrentSession().userInterface.shownFileChoices.at(0)),
              "Arquivo \"Escolha\" [Imagens (*.png)]\n      (cancelado)\n");
}

TEST_F(FileChoice, RefusesWhatAPersonCouldNotChoose) {
    struct Case {
        std::string answer;
        std::string error;
    };
    const std::string choice = "a escolha de arquivo \"Escolha\"";
    const Case cases[] = {
        {R"({"arquivo": "Escolha", "caminho": "nenhum.png"})",
         choice + ": não há o arquivo \"nenhum.png\""},
        {R"({"arquivo": "Escolha", "caminho": ")" + PathOf("") + R"("})",
         choice + ": não há o arquivo \"" + PathOf("") + "\""},
        {R"({"arquivo": "Escolha", "caminho": ")" + PathOf("foto.txt") + R"("})",
         choice + ": o arquivo \"" + PathOf("foto.txt") + "\" não é do tipo \"Imagens (*.png)\""},
        {R"({"arquivo": "Outra", "cancelar": true})",
         "a resposta 1 é para a escolha de arquivo \"Outra\", mas está aberta " + choice},
        {R"({"dialogo": 100})", "a resposta 1 é para o diálogo 100, mas está aberta " + choice},
    };
    for (const Case& c : cases) {
        OpenSession({});
        Answer("[" + c.answer + "]");
        EXPECT_EQ(Choose(), c.error);
        EXPECT_EQ(code, Host::Cancelled);
        EXPECT_EQ(path, L"");
        EXPECT_EQ(Choose(), c.error); // and what follows is cancelled too
    }
}

TEST_F(FileChoice, CanNotBeGuessed) {
    EXPECT_EQ(Choose(), "a escolha de arquivo \"Escolha\" não tem resposta");
    EXPECT_EQ(code, Host::Cancelled);
    OpenSession({});
    CurrentSession().userInterface.unanswered = Unanswered::Cancel;
    EXPECT_EQ(Choose(), "");
    EXPECT_EQ(code, Host::Cancelled);
}

TEST_F(FileChoice, FailsOnDemand) {
    FailCall("ChooseFile", 1, Host::OutOfMemory);
    EXPECT_EQ(Choose(), "");
    EXPECT_EQ(code, Host::OutOfMemory);
    EXPECT_TRUE(CurrentSession().userInterface.shownFileChoices.empty());
}

} // namespace
} // namespace Merivane::Workbench
