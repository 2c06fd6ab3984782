#pragma once

#include <cstdint>
#include <string>

#include "Host/Dialog.hpp"
#include "Workbench/Interface/AnswerScript.hpp"
#include "Workbench/Interface/UserInterface.hpp"

/// The person at the embedded host: opens dialogs, carries the session's answers out on them and
/// tells the add-on what happens.
namespace Merivane::Workbench {

/// Makes a dialog or palette of a resource of `kind` and gives it a number of its own; 0 when there
/// is no such resource.
Host::DialogId OpenFromResource(std::int16_t resource, DialogKind kind,
                                const Host::DialogEvents& events);

/// Runs an open modal dialog to its end and puts it among the session's shown ones. Returns true
/// when it was accepted.
///
/// The next of the session's answers must be meant for it; without any it is answered as
/// `UserInterface::unanswered` says. An answer that can't be carried out, one that is meant for
/// another dialog and a dialog that stays open behind its answers set `UserInterface::refusal` and
/// cancel the dialog without asking the add-on.
bool RunToItsEnd(Host::DialogId dialog);

/// Carries one answer out on an open dialog or palette, as a person would, and tells the add-on.
/// Returns false and sets `error` to one Portuguese sentence where a person could not do it; steps
/// in front of the refused one have then been done.
bool AnswerItem(Host::DialogId dialog, const ItemAnswer& answer, std::string& error);

/// A click on an item; as `AnswerItem`.
bool ClickItem(Host::DialogId dialog, std::int16_t item, std::string& error);

/// Shows an alert and answers it: by the next answer where that is meant for it, else by its first
/// button.
std::int16_t AnswerAlert(ShownAlert alert);

/// True when every answer of the session was carried out. Otherwise sets `error` to one Portuguese
/// sentence on what went wrong or which answer was not asked for.
bool AllAnswersUsed(std::string& error);

} // namespace Merivane::Workbench
