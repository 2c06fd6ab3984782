#pragma once

#include <string>

#include "Workbench/Interface/UserInterface.hpp"

/// The person at the embedded host who points at files.
namespace Merivane::Workbench {

/// Carries the next of the session's answers out on a choice of a file and keeps it among the
/// session's shown ones. Returns true and sets `path`; false when it is cancelled.
///
/// The next answer must be meant for it; without any it is cancelled where
/// `UserInterface::unanswered` says so. Otherwise, and for a file that a person could not choose
/// (there is none, or it has another extension), `UserInterface::refusal` is set: no file can be
/// guessed.
bool AnswerFileChoice(ShownFileChoice choice, std::wstring& path);

} // namespace Merivane::Workbench
