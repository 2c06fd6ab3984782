// Whatever the bytes of a resource script, reading ends without a crash: in one sentence, or in
// records of which every dialog can be opened, told and drawn. The same bytes are read as an icon.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Drawing/DisplayList.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Interface/DialogLayout.hpp"
#include "Workbench/Interface/DialogPicture.hpp"
#include "Workbench/Interface/DialogText.hpp"
#include "Workbench/Interface/IconImage.hpp"
#include "Workbench/Interface/MenuText.hpp"
#include "Workbench/Interface/ResourceScript.hpp"

using namespace Merivane;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// Drawing takes time for each letter; long texts are as valid as short ones.
bool IsSmall(const Workbench::Dialog& dialog) {
    std::size_t letters = 0;
    for (const Workbench::DialogItem& item : dialog.items) {
        letters += 1 + item.text.size();
    }
    return letters < 500;
}

void Show(Workbench::Dialog dialog) {
    Workbench::AppendIcon(dialog, 10203);
    Require(!Workbench::DialogText(dialog).empty());
    if (IsSmall(dialog)) {
        Workbench::ItemsWithCutText(dialog);
        Workbench::FindMisplaced(dialog);
        Workbench::DialogPicture(dialog);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::string error;
    Workbench::IconImage image;
    Require(Workbench::ParseIconImage(text, image, error) == error.empty());
    error.clear();
    Workbench::ResourceScript script;
    if (!Workbench::ParseResourceScript(text, script, error)) {
        Require(error.starts_with("linha ") && Text::IsUtf8(error));
        Require(script == Workbench::ResourceScript());
        return 0;
    }
    for (const auto& [number, strings] : script.stringLists) {
        Workbench::ReadMenuTexts(strings);
    }
    for (const auto& [number, dialog] : script.dialogs) {
        const auto help = script.dialogHelps.find(number);
        Show(Workbench::MakeDialog(static_cast<std::int16_t>(number), dialog,
                                   help == script.dialogHelps.end() ? nullptr : &help->second));
    }
    return 0;
}
