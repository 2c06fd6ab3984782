#include "AddOn/AddOnSession.hpp"

#include "AddOn/Entry/EntryPoints.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/Interface/AnswerScript.hpp"

namespace Merivane::Tests {

AddOnSession::AddOnSession() {
    Open(false);
}

AddOnSession::~AddOnSession() {
    FreeData();
    Workbench::OpenSession({});
}

void AddOnSession::Open(bool darkMode) {
    FreeData();
    Workbench::SessionOptions options;
    options.temporaryFolder = Text::WidePath(Folder());
    options.documentsFolder = Text::WidePath(Folder() / "Documentos");
    options.darkMode = darkMode;
    Workbench::OpenSession(options);
}

void PrepareAnswers(std::string_view script) {
    std::string error;
    Workbench::UserInterface& interface = Workbench::CurrentSession().userInterface;
    EXPECT_TRUE(Workbench::ParseAnswerScript(script, interface.answers, error)) << error;
    interface.nextAnswer = 0;
}

void PrepareAnswer(std::int16_t dialog, std::string_view items, std::int16_t button) {
    PrepareAnswers(R"([{"dialogo": )" + std::to_string(dialog) + R"(, "itens": [)" +
                   std::string(items) + R"(], "botao": )" + std::to_string(button) + "}]");
}

void ExpectAnswered() {
    std::string error;
    EXPECT_TRUE(Workbench::AllAnswersUsed(error)) << error;
}

const Workbench::Dialog& LastDialog() {
    static const Workbench::Dialog None;
    const auto& shown = Workbench::CurrentSession().userInterface.shownDialogs;
    EXPECT_FALSE(shown.empty());
    return shown.empty() ? None : shown.back().state;
}

bool LastAccepted() {
    const auto& shown = Workbench::CurrentSession().userInterface.shownDialogs;
    return !shown.empty() && shown.back().accepted;
}

const Workbench::DialogItem& LastItem(std::int16_t item) {
    static const Workbench::DialogItem None;
    const Workbench::DialogItem* const found = Workbench::FindItem(LastDialog(), item);
    EXPECT_TRUE(found) << item;
    return found ? *found : None;
}

std::vector<std::int16_t> UsableItems(const std::vector<std::int16_t>& items) {
    std::vector<std::int16_t> usable;
    for (const std::int16_t item : items) {
        if (LastItem(item).visible && LastItem(item).enabled) {
            usable.push_back(item);
        }
    }
    return usable;
}

std::vector<std::string> ReportWindow() {
    std::vector<std::string> lines;
    for (const Workbench::ReportLine& line : Workbench::CurrentSession().reportLines) {
        lines.push_back((line.alert ? "!" : "") + line.text);
    }
    return lines;
}

} // namespace Merivane::Tests
