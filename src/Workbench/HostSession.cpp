#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "Host/Session.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"
#include "Workbench/SystemPlaces.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;

ErrorCode GivePath(std::string_view operation, const std::wstring& chosen,
                   std::wstring (*systemPath)(), std::wstring& path) {
    if (const ErrorCode code = Workbench::CountCall(operation)) {
        return code;
    }
    std::wstring found = chosen.empty() ? systemPath() : chosen;
    if (found.empty()) {
        return GeneralError;
    }
    path = std::move(found);
    return NoError;
}

// A lone percent sign would make the real host read an argument that is not there. Here it shows.
std::string FormatWithoutArguments(std::string_view format) {
    std::string text;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            text += format[i];
        } else if (i + 1 < format.size() && format[i + 1] == '%') {
            text += '%';
            ++i;
        } else {
            text += "(?)";
        }
    }
    return text;
}

// The process window that is open, null when there is none.
Workbench::ProcessWindow* OpenedProcessWindow() {
    auto& windows = CurrentSession().processWindows;
    return windows.empty() || !windows.back().open ? nullptr : &windows.back();
}

void TellProgress(const Workbench::ProcessWindow& window) {
    if (CurrentSession().options.onProgress) {
        CurrentSession().options.onProgress(window);
    }
}

} // namespace

ErrorCode GetOwnLocation(std::wstring& path) {
    return GivePath("GetOwnLocation", CurrentSession().options.ownLocation,
                    Workbench::ExecutablePath, path);
}

ErrorCode GetTemporaryFolder(std::wstring& path) {
    return GivePath("GetTemporaryFolder", CurrentSession().options.temporaryFolder,
                    Workbench::SystemTemporaryFolder, path);
}

ErrorCode GetSpecialFolder(SpecialFolder folder, std::wstring& path) {
    if (folder != SpecialFolder::UserDocuments) {
        const ErrorCode code = Workbench::CountCall("GetSpecialFolder");
        return code != NoError ? code : BadParameters;
    }
    return GivePath("GetSpecialFolder", CurrentSession().options.documentsFolder,
                    Workbench::UserDocumentsFolder, path);
}

void WriteReport(std::string_view format, bool withDialog) {
    Workbench::Session& session = CurrentSession();
    session.reportLines.push_back({FormatWithoutArguments(format), withDialog});
    if (session.options.onReport) {
        session.options.onReport(session.reportLines.back());
    }
}

ErrorCode OpenProcessWindow(std::string_view title, std::int32_t phases) {
    if (const ErrorCode code = Workbench::CountCall("OpenProcessWindow")) {
        return code;
    }
    if (OpenedProcessWindow()) {
        return Nesting;
    }
    if (phases < 1) {
        return BadParameters;
    }
    auto& windows = CurrentSession().processWindows;
    windows.push_back({std::string(title), phases, {}, true});
    TellProgress(windows.back());
    return NoError;
}

ErrorCode BeginProcessPhase(std::string_view title, std::int32_t highest) {
    if (const ErrorCode code = Workbench::CountCall("BeginProcessPhase")) {
        return code;
    }
    Workbench::ProcessWindow* const window = OpenedProcessWindow();
    if (!window) {
        return NotInitialised;
    }
    if (highest < 0 || window->phases.size() >= static_cast<std::size_t>(window->phaseCount)) {
        return BadParameters;
    }
    window->phases.push_back({std::string(title), highest, {}});
    TellProgress(*window);
    return NoError;
}

ErrorCode SetProcessValue(std::int32_t value) {
    if (const ErrorCode code = Workbench::CountCall("SetProcessValue")) {
        return code;
    }
    Workbench::ProcessWindow* const window = OpenedProcessWindow();
    if (!window || window->phases.empty()) {
        return NotInitialised;
    }
    Workbench::ProcessPhase& phase = window->phases.back();
    phase.values.push_back(std::clamp(value, 0, phase.highest));
    TellProgress(*window);
    return NoError;
}

ErrorCode CheckProcessCancelled() {
    if (const ErrorCode code = Workbench::CountCall("CheckProcessCancelled")) {
        return code;
    }
    Workbench::Session& session = CurrentSession();
    Workbench::ProcessWindow* const window = OpenedProcessWindow();
    const bool asked = session.options.cancelAsked && session.options.cancelAsked();
    if (!window) {
        return asked ? Cancelled : NoError; // no button to press, but the program's user can
    }
    window->cancelled = window->cancelled || asked;
    return window->cancelled ? Cancelled : NoError;
}

ErrorCode CloseProcessWindow() {
    if (const ErrorCode code = Workbench::CountCall("CloseProcessWindow")) {
        return code;
    }
    Workbench::ProcessWindow* const window = OpenedProcessWindow();
    if (!window) {
        return NotInitialised;
    }
    window->open = false;
    TellProgress(*window);
    return NoError;
}

ErrorCode OpenFolder(const std::wstring& path) {
    if (const ErrorCode code = Workbench::CountCall("OpenFolder")) {
        return code;
    }
    Workbench::Session& session = CurrentSession();
    std::error_code unreadable;
    if (!std::filesystem::is_directory(Text::NativePath(path), unreadable) ||
        (session.options.showFolder && !session.options.showFolder(path))) {
        return GeneralError;
    }
    session.shownFolders.push_back(path);
    return NoError;
}

} // namespace Merivane::Host
