#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "Host/Dialog.hpp"
#include "Host/FileChooser.hpp"
#include "Host/Menus.hpp"
#include "Workbench/Interface/AnswerScript.hpp"
#include "Workbench/Interface/DialogState.hpp"
#include "Workbench/Interface/ResourceScript.hpp"

namespace Merivane::Workbench {

/// A dialog or palette that stands open, and who is told of what happens to it.
struct OpenDialog {
    Dialog state;
    Host::DialogEvents events;
    bool closeAsked = false; ///< by the add-on, in the running event
    bool accepted = false;   ///< how it was asked to close, then how it closed
    bool closed = false;
};

/// A modal dialog that has closed, as it was last seen.
struct ShownDialog {
    Dialog state;
    bool accepted = false;
};

/// An alert that was shown.
struct ShownAlert {
    Host::AlertKind kind = Host::AlertKind::Information;
    std::string largeText;
    std::string smallText;
    std::vector<std::string> buttons;
    std::int16_t pressed = 1;
};

/// A choice of a file that was asked for.
struct ShownFileChoice {
    std::string title;
    Host::FileFilter filter;
    std::string path; ///< as the answer has it; empty = cancelled
};

/// A menu that the add-on has registered.
struct RegisteredMenu {
    std::int16_t resource = 0;
    bool separatorBefore = false;
    Host::MenuHandler handler = nullptr; ///< null until it is installed
};

/// A palette that the add-on has registered.
struct RegisteredPalette {
    Host::Guid guid;
    Host::PaletteHandler handler = nullptr;
    std::int32_t flags = 0;
};

/// What becomes of a dialog that no answer is left for: Enter or Escape.
enum class Unanswered { Accept, Cancel };

/// What the embedded host keeps of dialogs, palettes and menus.
struct UserInterface {
    ResourceScript resources; ///< besides the add-on's own, in front of them

    AnswerScript answers;       ///< carried out in their order
    std::size_t nextAnswer = 0; ///< the first that is still to come
    Unanswered unanswered = Unanswered::Accept;
    /// Why the answers could not be carried out, one Portuguese sentence. From then on every dialog
    /// is cancelled unseen and every alert gets its last button.
    std::string refusal;

    std::map<Host::DialogId, OpenDialog> open; ///< palettes too
    Host::DialogId latest = 0;
    std::vector<Host::DialogId> modals;   ///< innermost last
    std::vector<Host::DialogId> palettes; ///< front one last
    std::vector<ShownDialog> shownDialogs;
    std::vector<ShownAlert> shownAlerts;
    std::vector<ShownFileChoice> shownFileChoices;

    std::vector<RegisteredMenu> menus; ///< in their order
    std::vector<RegisteredPalette> registeredPalettes;
    bool keepInMemory = false;
};

} // namespace Merivane::Workbench
