#include "Workbench/Interface/DialogAnswering.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string ValueText(double value) {
    return Text::FormatGeneral(value, 15);
}

/// One step on its way through the checks.
struct Step {
    const Dialog& dialog;
    std::int16_t item = 0;
    std::string& error;

    bool Refuse(const std::string& reason) const {
        error = DialogName(dialog) + ", item " + std::to_string(item);
        const DialogItem* const found = FindItem(dialog, item);
        if (found && !found->text.empty() && found->text.size() < 60) {
            error += " (" + Quoted(found->text) + ")";
        }
        error += ": " + reason;
        return false;
    }
};

bool CheckReachable(const Step& step) {
    const DialogItem* const item = FindItem(step.dialog, step.item);
    if (!item) {
        return step.Refuse("o diálogo não tem este item");
    }
    if (!step.dialog.visible || !item->visible) {
        return step.Refuse("está oculto");
    }
    return item->enabled || step.Refuse("está desabilitado");
}

std::string LimitsText(const DialogItem& item) {
    const bool hasLowest = std::isfinite(item.lowest);
    const bool hasHighest = std::isfinite(item.highest);
    if (hasLowest && hasHighest) {
        return "de " + ValueText(item.lowest) + " a " + ValueText(item.highest);
    }
    return hasLowest ? "a partir de " + ValueText(item.lowest) : "até " + ValueText(item.highest);
}

bool GiveNumber(const Step& step, DialogItem& item, double value, bool& changed) {
    if (!IsNumberField(item.resource.kind)) {
        return step.Refuse("não é um campo de número");
    }
    if (IsIntegerField(item.resource.kind) && value != std::floor(value)) {
        return step.Refuse("o valor " + ValueText(value) + " não é inteiro");
    }
    if (!(value >= item.lowest && value <= item.highest)) {
        return step.Refuse("o valor " + ValueText(value) + " está fora dos limites (" +
                           LimitsText(item) + ")");
    }
    changed = item.value != value;
    item.value = value;
    return true;
}

std::size_t CharacterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

bool GiveText(const Step& step, DialogItem& item, const std::string& text, bool& changed) {
    if (!IsTextField(item.resource.kind)) {
        return step.Refuse("não é um campo de texto");
    }
    if (HasStyle(item.resource, "readOnly") || HasStyle(item.resource, "nonEditable")) {
        return step.Refuse("só pode ser lido");
    }
    if (item.resource.kind == ItemKind::TextEdit &&
        text.find_first_of("\r\n") != std::string::npos) {
        return step.Refuse("o texto tem de caber em uma linha");
    }
    const std::int16_t longest = item.resource.maximumLength;
    if (longest > 0 && CharacterCount(text) > static_cast<std::size_t>(longest)) {
        return step.Refuse("o texto tem mais de " + std::to_string(longest) + " caracteres");
    }
    changed = item.text != text;
    item.text = text;
    return true;
}

bool GiveChecked(const Step& step, Dialog& dialog, bool checked, bool& changed) {
    const DialogItem& item = *FindItem(dialog, step.item);
    const bool isRadio = IsRadio(item.resource.kind);
    if (!isRadio && !IsCheck(item.resource.kind)) {
        return step.Refuse("não pode ser marcado");
    }
    if (isRadio && !checked) {
        return step.Refuse("um botão de opção só se desmarca ao marcar outro");
    }
    changed = item.checked != checked;
    SetChecked(dialog, step.item, checked);
    return true;
}

/// "(1 a 4)", or that there is none.
std::string CountText(std::size_t count) {
    return count == 0 ? " (não há nenhuma)" : " (1 a " + std::to_string(count) + ")";
}

bool GiveEntry(const Step& step, DialogItem& item, const NumberOrText& entry, bool& changed) {
    if (item.resource.kind != ItemKind::PopupControl) {
        return step.Refuse("não é uma lista de opções");
    }
    std::size_t number = static_cast<std::size_t>(entry.number);
    if (number == 0) {
        const auto found = std::find(item.entries.begin(), item.entries.end(), entry.text);
        if (found == item.entries.end()) {
            return step.Refuse("não há a entrada " + Quoted(entry.text));
        }
        number = static_cast<std::size_t>(found - item.entries.begin()) + 1;
    }
    if (number > item.entries.size()) {
        return step.Refuse("a entrada " + std::to_string(number) + " não existe" +
                           CountText(item.entries.size()));
    }
    changed = item.selected != static_cast<std::int16_t>(number);
    item.selected = static_cast<std::int16_t>(number);
    return true;
}

bool GiveRow(const Step& step, DialogItem& item, const NumberOrText& row, bool& changed) {
    if (!IsList(item.resource.kind)) {
        return step.Refuse("não é uma lista de linhas");
    }
    std::size_t number = static_cast<std::size_t>(row.number);
    if (number == 0) {
        const auto found = std::find_if(item.rows.begin(), item.rows.end(), [&](const auto& cells) {
            return std::find(cells.begin(), cells.end(), row.text) != cells.end();
        });
        if (found == item.rows.end()) {
            return step.Refuse("não há uma linha com " + Quoted(row.text));
        }
        number = static_cast<std::size_t>(found - item.rows.begin()) + 1;
    }
    if (number > item.rows.size()) {
        return step.Refuse("a linha " + std::to_string(number) + " não existe" +
                           CountText(item.rows.size()));
    }
    changed = item.selected != static_cast<std::int16_t>(number);
    item.selected = static_cast<std::int16_t>(number);
    return true;
}

bool Click(const Step& step, Dialog& dialog, DialogEvent& event) {
    const DialogItem& item = *FindItem(dialog, step.item);
    if (IsButton(item.resource.kind)) {
        event = {DialogEventKind::ButtonClicked, step.item};
        return true;
    }
    if (IsCheck(item.resource.kind) || (IsRadio(item.resource.kind) && !item.checked)) {
        SetChecked(dialog, step.item, !item.checked);
        event = {DialogEventKind::Changed, step.item};
        return true;
    }
    return IsRadio(item.resource.kind) || step.Refuse("não pode ser clicado");
}

/// Whether the mouse can stand on a place of an item: of a drawing, inside it.
bool CheckPoint(const Step& step, const Host::ItemPoint& point) {
    const DialogItem& item = *FindItem(step.dialog, step.item);
    if (item.resource.kind != ItemKind::UserItem) {
        return step.Refuse("não é um desenho");
    }
    const PixelBox& place = item.place;
    const bool inside =
        point.x >= 0.0 && point.x <= place.width && point.y >= 0.0 && point.y <= place.height;
    return inside || step.Refuse("o ponto [" + ValueText(point.x) + ", " + ValueText(point.y) +
                                 "] está fora do desenho (" + std::to_string(place.width) + " x " +
                                 std::to_string(place.height) + ")");
}

using MouseEvents = std::vector<Host::MouseEvent>;

/// A notch of the wheel each, as a host tells them.
MouseEvents Notches(const WheelTurn& wheel) {
    const auto single = static_cast<std::int16_t>(wheel.notches > 0 ? 1 : -1);
    return MouseEvents(static_cast<std::size_t>(std::abs(wheel.notches)),
                       {Host::MouseAction::Wheel, wheel.position, single});
}

bool UseMouse(const Step& step, const ItemAnswer& answer, DialogEvent& event) {
    using enum Host::MouseAction;
    const Host::ItemPoint& first = answer.point   ? *answer.point
                                   : answer.wheel ? answer.wheel->position
                                                  : answer.drag->from;
    if (!CheckPoint(step, first)) {
        return false;
    }
    event = {DialogEventKind::MouseUsed, step.item};
    if (answer.point) {
        event.mouse = {{Moved, first}};
    } else if (answer.wheel) {
        event.mouse = Notches(*answer.wheel);
    } else {
        event.mouse = {{Moved, first},
                       {Pressed, first},
                       {Moved, answer.drag->to},
                       {Released, answer.drag->to}};
    }
    return true;
}

DialogEvent DoubleClickOnDrawing(std::int16_t number, const PixelBox& place) {
    using enum Host::MouseAction;
    const Host::ItemPoint middle = {place.width / 2.0, place.height / 2.0};
    return {DialogEventKind::MouseUsed,
            number,
            {{Pressed, middle}, {Released, middle}, {DoubleClicked, middle}, {Released, middle}}};
}

bool DoubleClick(const Step& step, const DialogItem& item, DialogEvent& event) {
    if (item.resource.kind == ItemKind::UserItem) {
        event = DoubleClickOnDrawing(step.item, item.place);
        return true;
    }
    if (!IsList(item.resource.kind) || item.selected == 0) {
        return step.Refuse("não há uma linha selecionada para clicar duas vezes");
    }
    event = {DialogEventKind::ListDoubleClicked, step.item};
    return true;
}

} // namespace

std::vector<ItemAnswer> AnswerSteps(const ItemAnswer& answer) {
    std::vector<ItemAnswer> steps;
    const auto add = [&](auto member, bool present) {
        if (present) {
            ItemAnswer step;
            step.item = answer.item;
            step.*member = answer.*member;
            steps.push_back(std::move(step));
        }
    };
    add(&ItemAnswer::value, answer.value.has_value());
    add(&ItemAnswer::text, answer.text.has_value());
    add(&ItemAnswer::checked, answer.checked.has_value());
    add(&ItemAnswer::entry, answer.entry.has_value());
    add(&ItemAnswer::row, answer.row.has_value());
    add(&ItemAnswer::point, answer.point.has_value());
    add(&ItemAnswer::wheel, answer.wheel.has_value());
    add(&ItemAnswer::drag, answer.drag.has_value());
    add(&ItemAnswer::click, answer.click);
    add(&ItemAnswer::doubleClick, answer.doubleClick);
    return steps;
}

bool ApplyAnswer(Dialog& dialog, const ItemAnswer& answer, DialogEvent& event, std::string& error) {
    event = {};
    const Step step{dialog, answer.item, error};
    if (!CheckReachable(step)) {
        return false;
    }
    DialogItem& item = *FindItem(dialog, answer.item);
    bool changed = false;
    bool done = true;
    if (answer.click) {
        return Click(step, dialog, event);
    }
    if (answer.doubleClick) {
        return DoubleClick(step, item, event);
    }
    if (answer.point || answer.wheel || answer.drag) {
        return UseMouse(step, answer, event);
    }
    if (answer.value) {
        done = GiveNumber(step, item, *answer.value, changed);
    } else if (answer.text) {
        done = GiveText(step, item, *answer.text, changed);
    } else if (answer.checked) {
        done = GiveChecked(step, dialog, *answer.checked, changed);
    } else if (answer.entry) {
        done = GiveEntry(step, item, *answer.entry, changed);
    } else if (answer.row) {
        done = GiveRow(step, item, *answer.row, changed);
    }
    if (changed) {
        event = {answer.row ? DialogEventKind::ListSelected : DialogEventKind::Changed,
                 answer.item};
    }
    return done;
}

bool FindButton(const Dialog& dialog, const NumberOrText& button, std::int16_t& item,
                std::string& error) {
    std::int16_t number = button.number;
    for (std::size_t i = 0; i < dialog.items.size() && number == 0; ++i) {
        if (IsButton(dialog.items[i].resource.kind) && dialog.items[i].text == button.text) {
            number = static_cast<std::int16_t>(i + 1);
        }
    }
    if (number == 0) {
        error = DialogName(dialog) + ": não há o botão " + Quoted(button.text);
        return false;
    }
    const Step step{dialog, number, error};
    if (!CheckReachable(step)) {
        return false;
    }
    if (!IsButton(FindItem(dialog, number)->resource.kind)) {
        return step.Refuse("não é um botão");
    }
    item = number;
    return true;
}

bool IsAnswerTo(const DialogAnswer& answer, const Dialog& dialog) {
    return answer.kind == AnswerKind::Dialog &&
           (answer.dialog.number != 0 ? answer.dialog.number == dialog.resource
                                      : answer.dialog.text == dialog.title);
}

std::string AnswerName(const DialogAnswer& answer) {
    const char* const kind = answer.kind == AnswerKind::Dialog  ? "o diálogo "
                             : answer.kind == AnswerKind::Alert ? "o alerta "
                                                                : "a escolha de arquivo ";
    return kind + (answer.dialog.number != 0 ? std::to_string(answer.dialog.number)
                                             : Quoted(answer.dialog.text));
}

std::string DialogName(const Dialog& dialog) {
    return "diálogo " + Quoted(dialog.title) + " (" + std::to_string(dialog.resource) + ")";
}

} // namespace Merivane::Workbench
