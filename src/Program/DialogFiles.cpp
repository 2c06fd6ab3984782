#include "Program/DialogFiles.hpp"

#include "Drawing/PngWriter.hpp"
#include "Program/Message.hpp"
#include "Workbench/Interface/DialogPicture.hpp"
#include "Workbench/Interface/DialogText.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

constexpr double DotsPerInch = 192.0; // two to a pixel of the dialog

std::vector<const Workbench::Dialog*> VisiblePalettes() {
    const Workbench::UserInterface& interface = Workbench::CurrentSession().userInterface;
    std::vector<const Workbench::Dialog*> palettes;
    for (const Host::DialogId palette : interface.palettes) {
        const Workbench::Dialog& state = interface.open.at(palette).state;
        if (state.visible) {
            palettes.push_back(&state);
        }
    }
    return palettes;
}

/// One text that ends in a line feed, behind a blank line.
void Tell(std::string text) {
    text.pop_back();
    TellLine("");
    TellLine(text);
}

bool AddPicture(const Drawing::DisplayList& list, const std::string& name,
                std::vector<OutputFile>& pictures, std::string& error) {
    OutputFile picture{name, ""};
    if (!Drawing::WritePng(list, picture.bytes, error, {DotsPerInch})) {
        return false;
    }
    pictures.push_back(std::move(picture));
    return true;
}

} // namespace

void TellDialogs() {
    const Workbench::UserInterface& interface = Workbench::CurrentSession().userInterface;
    for (const Workbench::ShownFileChoice& choice : interface.shownFileChoices) {
        Tell(Workbench::FileChoiceText(choice));
    }
    for (const Workbench::ShownDialog& dialog : interface.shownDialogs) {
        Tell(Workbench::DialogText(dialog));
    }
    for (const Workbench::ShownAlert& alert : interface.shownAlerts) {
        Tell(Workbench::AlertText(alert));
    }
    for (const Workbench::Dialog* palette : VisiblePalettes()) {
        Tell(Workbench::DialogText(*palette));
    }
}

bool DrawDialogs(std::vector<OutputFile>& pictures, std::string& error) {
    const Workbench::Session& session = Workbench::CurrentSession();
    const bool dark = session.options.darkMode;
    int number = 0;
    for (const Workbench::ShownDialog& dialog : session.userInterface.shownDialogs) {
        const std::string name = "dialogo-" + std::to_string(++number) + "-" +
                                 std::to_string(dialog.state.resource) + ".png";
        if (!AddPicture(Workbench::DialogPicture(dialog.state, dark), name, pictures, error)) {
            return false;
        }
    }
    number = 0;
    for (const Workbench::ShownAlert& alert : session.userInterface.shownAlerts) {
        const std::string name = "alerta-" + std::to_string(++number) + ".png";
        if (!AddPicture(Workbench::AlertPicture(alert, dark), name, pictures, error)) {
            return false;
        }
    }
    for (const Workbench::Dialog* palette : VisiblePalettes()) {
        const std::string name = "paleta-" + std::to_string(palette->resource) + ".png";
        if (!AddPicture(Workbench::DialogPicture(*palette, dark), name, pictures, error)) {
            return false;
        }
    }
    return true;
}

} // namespace Merivane::Program
