#include "Workbench/Interface/AnswerScript.hpp"

#include <utility>

#include "Catalog/Json.hpp"
#include "Catalog/JsonFields.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::FieldReader;
using Catalog::JsonKind;
using Catalog::NumberRange;
using Catalog::Place;

constexpr double HighestNumber = 32767.0;

FieldReader IntoItemNumber(std::int16_t& target) {
    return [&target](const Place& place, std::string& error) {
        std::int32_t number = 0;
        if (!Catalog::Into(number, {1.0, HighestNumber})(place, error)) {
            return false;
        }
        target = static_cast<std::int16_t>(number);
        return true;
    };
}

FieldReader IntoNumberOrText(NumberOrText& target) {
    return [&target](const Place& place, std::string& error) {
        if (place.value->kind == JsonKind::Number) {
            return IntoItemNumber(target.number)(place, error);
        }
        if (place.value->kind != JsonKind::String || place.value->text.empty()) {
            return Catalog::RefuseValue(place, "um número ou um texto", error);
        }
        target.text = place.value->text;
        return true;
    };
}

FieldReader IntoNumberOrText(std::optional<NumberOrText>& target) {
    return [&target](const Place& place, std::string& error) {
        return IntoNumberOrText(target.emplace())(place, error);
    };
}

FieldReader IntoValue(std::optional<double>& target) {
    return [&target](const Place& place, std::string& error) {
        return Catalog::Into(target.emplace())(place, error);
    };
}

FieldReader IntoFlag(std::optional<bool>& target) {
    return [&target](const Place& place, std::string& error) {
        return Catalog::Into(target.emplace())(place, error);
    };
}

/// Any text: a field can be emptied, and a long one has several lines.
FieldReader IntoText(std::optional<std::string>& target) {
    return [&target](const Place& place, std::string& error) {
        if (place.value->kind != JsonKind::String || !Text::IsUtf8(place.value->text)) {
            return Catalog::RefuseValue(place, "um texto em UTF-8", error);
        }
        target = place.value->text;
        return true;
    };
}

constexpr NumberRange Anywhere = {-10000.0, 10000.0};

FieldReader IntoPoint(Host::ItemPoint& target) {
    return [&target](const Place& place, std::string& error) {
        double numbers[2] = {};
        if (!Catalog::ReadNumbers(place, numbers, Anywhere, "um ponto [x, y]", error)) {
            return false;
        }
        target = {numbers[0], numbers[1]};
        return true;
    };
}

FieldReader IntoPoint(std::optional<Host::ItemPoint>& target) {
    return [&target](const Place& place, std::string& error) {
        return IntoPoint(target.emplace())(place, error);
    };
}

FieldReader IntoWheel(std::optional<WheelTurn>& target) {
    return [&target](const Place& place, std::string& error) {
        constexpr NumberRange notches = {-100.0, 100.0};
        WheelTurn& wheel = target.emplace();
        std::int32_t count = 0;
        if (!Catalog::ReadObject(place,
                                 {Catalog::Required("em", IntoPoint(wheel.position)),
                                  Catalog::Required("passos", Catalog::Into(count, notches))},
                                 error)) {
            return false;
        }
        wheel.notches = static_cast<std::int16_t>(count);
        return count != 0 || Catalog::Refuse(place, "\"passos\" não pode ser 0", error);
    };
}

FieldReader IntoDrag(std::optional<MouseDrag>& target) {
    return [&target](const Place& place, std::string& error) {
        MouseDrag& drag = target.emplace();
        return Catalog::ReadObject(place,
                                   {Catalog::Required("de", IntoPoint(drag.from)),
                                    Catalog::Required("ate", IntoPoint(drag.to))},
                                   error);
    };
}

bool ReadItemAnswer(const Place& place, ItemAnswer& answer, std::string& error) {
    using Catalog::Optional;
    if (!Catalog::ReadObject(
            place,
            {Catalog::Required("item", IntoItemNumber(answer.item)),
             Optional("valor", IntoValue(answer.value)), Optional("texto", IntoText(answer.text)),
             Optional("marcado", IntoFlag(answer.checked)),
             Optional("entrada", IntoNumberOrText(answer.entry)),
             Optional("linha", IntoNumberOrText(answer.row)),
             Optional("apontar", IntoPoint(answer.point)),
             Optional("roda", IntoWheel(answer.wheel)), Optional("arrastar", IntoDrag(answer.drag)),
             Optional("clicar", Catalog::Into(answer.click)),
             Optional("clicarDuasVezes", Catalog::Into(answer.doubleClick))},
            error)) {
        return false;
    }
    const bool does = answer.value || answer.text || answer.checked || answer.entry || answer.row ||
                      answer.point || answer.wheel || answer.drag || answer.click ||
                      answer.doubleClick;
    return does || Catalog::Refuse(place, "falta dizer o que se faz com o item", error);
}

bool ReadAlertAnswer(const Place& place, DialogAnswer& answer, std::string& error) {
    answer.kind = AnswerKind::Alert;
    return Catalog::ReadObject(place,
                               {Catalog::Required("alerta", Catalog::Into(answer.dialog.text)),
                                Catalog::Optional("botao", IntoNumberOrText(answer.button))},
                               error, "na resposta a um alerta");
}

bool ReadFileAnswer(const Place& place, DialogAnswer& answer, std::string& error) {
    answer.kind = AnswerKind::File;
    bool cancelled = false;
    if (!Catalog::ReadObject(place,
                             {Catalog::Required("arquivo", Catalog::Into(answer.dialog.text)),
                              Catalog::Optional("caminho", Catalog::Into(answer.path)),
                              Catalog::Optional("cancelar", Catalog::Into(cancelled))},
                             error, "na escolha de um arquivo")) {
        return false;
    }
    return cancelled == answer.path.empty() ||
           Catalog::Refuse(place, "vem \"caminho\" ou \"cancelar\", um dos dois", error);
}

bool ReadDialogAnswer(const Place& place, DialogAnswer& answer, std::string& error) {
    if (place.value->Find("alerta") != nullptr) {
        return ReadAlertAnswer(place, answer, error);
    }
    if (place.value->Find("arquivo") != nullptr) {
        return ReadFileAnswer(place, answer, error);
    }
    if (!Catalog::ReadObject(
            place,
            {Catalog::Required("dialogo", IntoNumberOrText(answer.dialog)),
             Catalog::Optional("itens", Catalog::IntoList(answer.items, {}, ReadItemAnswer)),
             Catalog::Optional("botao", IntoNumberOrText(answer.button)),
             Catalog::Optional("fechar", Catalog::Into(answer.close))},
            error)) {
        return false;
    }
    return !(answer.close && answer.button) ||
           Catalog::Refuse(place, "\"botao\" e \"fechar\" não vêm juntos", error);
}

} // namespace

bool ParseAnswerScript(std::string_view text, AnswerScript& script, std::string& error) {
    Catalog::JsonValue root;
    const Catalog::JsonParseResult parsed = Catalog::JsonParse(text, root);
    if (!parsed.ok) {
        error = "o arquivo de respostas não é JSON: " + parsed.error;
        return false;
    }
    AnswerScript read;
    if (!Catalog::IntoList(read, {}, ReadDialogAnswer)(Place{&root, nullptr, {}, 0}, error)) {
        return false;
    }
    script = std::move(read);
    return true;
}

} // namespace Merivane::Workbench
