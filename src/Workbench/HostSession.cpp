#include <utility>

#include "Host/Session.hpp"
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

} // namespace

ErrorCode GetOwnLocation(std::wstring& path) {
    return GivePath("GetOwnLocation", CurrentSession().options.ownLocation,
                    Workbench::ExecutablePath, path);
}

ErrorCode GetTemporaryFolder(std::wstring& path) {
    return GivePath("GetTemporaryFolder", CurrentSession().options.temporaryFolder,
                    Workbench::SystemTemporaryFolder, path);
}

void WriteReport(std::string_view format, bool withDialog) {
    Workbench::Session& session = CurrentSession();
    session.reportLines.push_back({FormatWithoutArguments(format), withDialog});
    if (session.options.onReport) {
        session.options.onReport(session.reportLines.back());
    }
}

} // namespace Merivane::Host
