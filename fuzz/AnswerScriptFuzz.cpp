// Whatever the bytes of an answer script, reading ends without a crash; what is read is carried out
// on a dialog of the add-on's or refused in one sentence.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Workbench/Interface/DialogAnswering.hpp"
#include "Workbench/Interface/OwnResources.hpp"

using namespace Merivane;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void CarryOut(const Workbench::DialogAnswer& answer) {
    for (const auto& [number, resource] : Workbench::OwnResources().dialogs) {
        Workbench::Dialog dialog =
            Workbench::MakeDialog(static_cast<std::int16_t>(number), resource, nullptr);
        Workbench::DialogEvent event;
        for (const Workbench::ItemAnswer& item : answer.items) {
            for (const Workbench::ItemAnswer& step : Workbench::AnswerSteps(item)) {
                std::string error;
                Require(Workbench::ApplyAnswer(dialog, step, event, error) == error.empty());
            }
        }
        std::int16_t item = 0;
        std::string error;
        if (answer.button) {
            Require(Workbench::FindButton(dialog, *answer.button, item, error) == error.empty());
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Workbench::AnswerScript script;
    std::string error;
    if (!Workbench::ParseAnswerScript({reinterpret_cast<const char*>(data), size}, script, error)) {
        Require(!error.empty() && script.empty());
        return 0;
    }
    for (const Workbench::DialogAnswer& answer : script) {
        CarryOut(answer);
    }
    return 0;
}
