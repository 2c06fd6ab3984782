#include "Workbench/DialogRun.hpp"

#include <algorithm>
#include <functional>
#include <utility>

#include "Workbench/Interface/DialogAnswering.hpp"
#include "Workbench/Session.hpp"
#include "Workbench/SessionResources.hpp"

namespace Merivane::Workbench {

namespace {

using Host::DialogId;

UserInterface& Interface() {
    return CurrentSession().userInterface;
}

/// The dialogs of a session stay where they are while others open and close.
OpenDialog* Find(DialogId dialog) {
    const auto found = Interface().open.find(dialog);
    return found == Interface().open.end() ? nullptr : &found->second;
}

bool Refuse(std::string reason) {
    if (Interface().refusal.empty()) {
        Interface().refusal = std::move(reason);
    }
    return false;
}

void AskToClose(DialogId dialog, bool accept) {
    OpenDialog* const open = Find(dialog);
    if (!open || open->closed) {
        return;
    }
    const std::function<bool(DialogId, bool)> asked = open->events.closeRequested;
    if (!asked || asked(dialog, accept)) {
        open->closed = true;
        open->accepted = accept;
    }
}

/// Closes a dialog whose closing was asked for in the event that has just ended.
void Settle(DialogId dialog) {
    OpenDialog* const open = Find(dialog);
    if (open && open->closeAsked) {
        open->closeAsked = false;
        AskToClose(dialog, open->accepted);
    }
}

bool IsOpen(DialogId dialog) {
    const OpenDialog* const open = Find(dialog);
    return open && !open->closed;
}

/// Each movement by itself: one of them may close the dialog.
void TellMouse(DialogId dialog, const DialogEvent& event) {
    for (const Host::MouseEvent& each : event.mouse) {
        if (!IsOpen(dialog)) {
            return;
        }
        if (const auto running = Find(dialog)->events.mouseUsed) {
            running(dialog, event.item, each);
        }
        Settle(dialog);
    }
}

void Tell(DialogId dialog, const DialogEvent& event) {
    if (event.kind == DialogEventKind::MouseUsed) {
        TellMouse(dialog, event);
        return;
    }
    const OpenDialog* const open = Find(dialog);
    using Handler = std::function<void(DialogId, std::int16_t)>;
    const std::pair<DialogEventKind, const Handler*> handlers[] = {
        {DialogEventKind::ButtonClicked, &open->events.buttonClicked},
        {DialogEventKind::Changed, &open->events.changed},
        {DialogEventKind::ListSelected, &open->events.listSelected},
        {DialogEventKind::ListDoubleClicked, &open->events.listDoubleClicked},
    };
    for (const auto& [kind, handler] : handlers) {
        if (kind == event.kind && *handler) {
            const Handler running = *handler; // a palette can destroy itself in its own event
            running(dialog, event.item);
        }
    }
    Settle(dialog);
}

bool DoSteps(DialogId dialog, const ItemAnswer& answer, std::string& error) {
    for (const ItemAnswer& step : AnswerSteps(answer)) {
        OpenDialog* const open = Find(dialog);
        if (!open || open->closed) {
            error = "o diálogo fechou antes da resposta ao item " + std::to_string(step.item);
            return false;
        }
        DialogEvent event;
        if (!ApplyAnswer(open->state, step, event, error)) {
            return false;
        }
        if (event.kind != DialogEventKind::None) {
            Tell(dialog, event);
        }
    }
    return true;
}

bool PressButton(DialogId dialog, const NumberOrText& button) {
    std::int16_t item = 0;
    std::string error;
    if (!FindButton(Find(dialog)->state, button, item, error)) {
        return Refuse(std::move(error));
    }
    Tell(dialog, {DialogEventKind::ButtonClicked, item});
    return true;
}

bool PressDefault(DialogId dialog) {
    const std::int16_t item = DefaultButton(Find(dialog)->state);
    if (item == 0) {
        return Refuse(DialogName(Find(dialog)->state) + ": não há botão");
    }
    return PressButton(dialog, {item, {}});
}

/// One answer of the script, whole.
bool CarryOut(DialogId dialog, const DialogAnswer& answer) {
    for (const ItemAnswer& item : answer.items) {
        std::string error;
        if (!DoSteps(dialog, item, error)) {
            return Refuse(std::move(error));
        }
    }
    if (!Interface().refusal.empty()) {
        return false; // of a dialog that one of the events opened
    }
    if (!IsOpen(dialog)) {
        return !answer.button ||
               Refuse(DialogName(Find(dialog)->state) + ": fechou antes de se apertar o botão");
    }
    if (answer.close) {
        AskToClose(dialog, false);
        return true;
    }
    return answer.button ? PressButton(dialog, *answer.button) : PressDefault(dialog);
}

/// Behind its last answer a dialog has to be closed.
bool AnswerUnasked(DialogId dialog) {
    if (Interface().unanswered == Unanswered::Cancel) {
        AskToClose(dialog, false);
    } else if (!PressDefault(dialog)) {
        return false;
    }
    return !IsOpen(dialog) || !Interface().refusal.empty() ||
           Refuse(DialogName(Find(dialog)->state) + ": continua aberto depois de respondido");
}

void AnswerDialog(DialogId dialog) {
    UserInterface& state = Interface();
    bool answered = false;
    while (IsOpen(dialog) && state.refusal.empty()) {
        if (state.nextAnswer >= state.answers.size()) {
            if (answered) {
                Refuse(DialogName(Find(dialog)->state) + ": continua aberto depois de respondido");
            } else {
                AnswerUnasked(dialog);
            }
            return;
        }
        const DialogAnswer answer = state.answers[state.nextAnswer];
        if (!IsAnswerTo(answer, Find(dialog)->state)) {
            Refuse("a resposta " + std::to_string(state.nextAnswer + 1) + " é para " +
                   AnswerName(answer) + ", mas está aberto o " + DialogName(Find(dialog)->state));
            return;
        }
        ++state.nextAnswer;
        answered = true;
        CarryOut(dialog, answer);
    }
}

bool IsAnswerTo(const DialogAnswer& answer, const ShownAlert& alert) {
    return answer.kind == AnswerKind::Alert &&
           (alert.largeText.find(answer.dialog.text) != std::string::npos ||
            alert.smallText.find(answer.dialog.text) != std::string::npos);
}

/// The button that an answer presses; 0 where the alert does not have it.
std::int16_t FindAlertButton(const ShownAlert& alert, const NumberOrText& button) {
    const auto found =
        button.number != 0
            ? alert.buttons.begin() +
                  std::min<std::ptrdiff_t>(button.number - 1, std::ssize(alert.buttons))
            : std::find(alert.buttons.begin(), alert.buttons.end(), button.text);
    return found == alert.buttons.end()
               ? std::int16_t{0}
               : static_cast<std::int16_t>(found - alert.buttons.begin() + 1);
}

std::int16_t ChooseAlertButton(const ShownAlert& alert) {
    UserInterface& state = Interface();
    const auto last = static_cast<std::int16_t>(alert.buttons.size());
    if (!state.refusal.empty()) {
        return last;
    }
    if (state.nextAnswer >= state.answers.size() ||
        !IsAnswerTo(state.answers[state.nextAnswer], alert)) {
        return 1;
    }
    const DialogAnswer& answer = state.answers[state.nextAnswer++];
    const std::int16_t button =
        answer.button ? FindAlertButton(alert, *answer.button) : std::int16_t{1};
    if (button == 0) {
        Refuse("alerta \"" + alert.largeText + "\": não há o botão " +
               (answer.button->number != 0 ? std::to_string(answer.button->number)
                                           : '"' + answer.button->text + '"'));
        return last;
    }
    return button;
}

} // namespace

DialogId OpenFromResource(std::int16_t resource, DialogKind kind,
                          const Host::DialogEvents& events) {
    const DialogResource* const found = FindDialog(resource);
    if (!found || found->kind != kind) {
        return 0;
    }
    const DialogId dialog = ++Interface().latest;
    Interface().open[dialog] = {MakeDialog(resource, *found, FindDialogHelp(resource)), events};
    return dialog;
}

bool RunToItsEnd(DialogId dialog) {
    UserInterface& state = Interface();
    OpenDialog& open = *Find(dialog);
    state.modals.push_back(dialog);
    if (open.events.opened) {
        open.events.opened(dialog);
        Settle(dialog);
    }
    AnswerDialog(dialog);
    const bool accepted = open.closed && open.accepted;
    state.shownDialogs.push_back({std::move(open.state), accepted});
    std::erase(state.modals, dialog);
    state.open.erase(dialog);
    return accepted;
}

bool AnswerItem(DialogId dialog, const ItemAnswer& answer, std::string& error) {
    if (!IsOpen(dialog)) {
        error = "não há um diálogo aberto com este número";
        return false;
    }
    return DoSteps(dialog, answer, error);
}

bool ClickItem(DialogId dialog, std::int16_t item, std::string& error) {
    ItemAnswer answer;
    answer.item = item;
    answer.click = true;
    return AnswerItem(dialog, answer, error);
}

std::int16_t AnswerAlert(ShownAlert alert) {
    alert.pressed = ChooseAlertButton(alert);
    Interface().shownAlerts.push_back(std::move(alert));
    return Interface().shownAlerts.back().pressed;
}

bool AllAnswersUsed(std::string& error) {
    const UserInterface& state = Interface();
    if (!state.refusal.empty()) {
        error = state.refusal;
        return false;
    }
    if (state.nextAnswer < state.answers.size()) {
        error = "a resposta " + std::to_string(state.nextAnswer + 1) + ", para " +
                AnswerName(state.answers[state.nextAnswer]) + ", não foi pedida";
        return false;
    }
    return true;
}

} // namespace Merivane::Workbench
