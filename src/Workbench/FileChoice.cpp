#include "Workbench/FileChoice.hpp"

#include <filesystem>
#include <system_error>
#include <utility>

#include "Text/Ascii.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Interface/DialogAnswering.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {

namespace {

std::string ChoiceName(const ShownFileChoice& choice) {
    return "a escolha de arquivo \"" + choice.title + "\"";
}

/// Why a person could not choose a file; empty when one could.
std::string ReasonAgainst(const std::filesystem::path& path, const std::string& shown,
                          const Host::FileFilter& filter) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return "não há o arquivo \"" + shown + "\"";
    }
    const std::string extension = Text::Narrow(Text::WidePath(path.extension()));
    if (Text::ToLower(extension) != "." + Text::ToLower(filter.extension)) {
        return "o arquivo \"" + shown + "\" não é do tipo \"" + filter.text + "\"";
    }
    return {};
}

/// What the session's answers choose. An empty path with an empty reason = cancelled.
std::string TakeAnswer(const ShownFileChoice& choice, std::string& shown, std::wstring& path) {
    UserInterface& state = CurrentSession().userInterface;
    if (state.nextAnswer >= state.answers.size()) {
        return state.unanswered == Unanswered::Cancel ? std::string()
                                                      : ChoiceName(choice) + " não tem resposta";
    }
    const DialogAnswer& answer = state.answers[state.nextAnswer];
    if (answer.kind != AnswerKind::File || answer.dialog.text != choice.title) {
        return "a resposta " + std::to_string(state.nextAnswer + 1) + " é para " +
               AnswerName(answer) + ", mas está aberta " + ChoiceName(choice);
    }
    ++state.nextAnswer;
    if (answer.path.empty()) {
        return {};
    }
    const std::filesystem::path chosen = Text::NativePath(Text::Widen(answer.path));
    if (const std::string reason = ReasonAgainst(chosen, answer.path, choice.filter);
        !reason.empty()) {
        return ChoiceName(choice) + ": " + reason;
    }
    std::error_code error;
    const std::filesystem::path full = std::filesystem::absolute(chosen, error);
    shown = answer.path;
    path = Text::WidePath(error ? chosen : full);
    return {};
}

} // namespace

bool AnswerFileChoice(ShownFileChoice choice, std::wstring& path) {
    UserInterface& state = CurrentSession().userInterface;
    std::wstring chosen;
    if (state.refusal.empty()) {
        state.refusal = TakeAnswer(choice, choice.path, chosen);
    }
    state.shownFileChoices.push_back(std::move(choice));
    if (chosen.empty()) {
        return false;
    }
    path = std::move(chosen);
    return true;
}

} // namespace Merivane::Workbench
