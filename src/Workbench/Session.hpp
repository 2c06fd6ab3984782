#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Types.hpp"

/// The embedded host: it defines the functions of the port, and keeps what a host keeps in one
/// session that a test or the program opens and looks into.
namespace Merivane::Workbench {

/// One line of the report window.
struct ReportLine {
    std::string text;   ///< as the user reads it, UTF-8
    bool alert = false; ///< shown in an alert too
};

/// What a session is opened with. Paths are full ones.
struct SessionOptions {
    std::wstring ownLocation = {};     ///< of the add-on; empty = the running program's file
    std::wstring temporaryFolder = {}; ///< empty = the system's
    std::wstring preferencesFile = {}; ///< empty = the preferences live as long as the session
    std::function<void(const ReportLine&)> onReport = {}; ///< told of each report line, if given
};

/// The add-on's block of preferences as the host keeps it.
struct Preferences {
    std::int32_t version = 0; ///< 0 = never written
    std::string block;        ///< any bytes
};

/// A failure asked for by a test.
struct Fault {
    std::string operation; ///< name of the port's function: "GetTemporaryFolder"
    int callsLeft = 1;     ///< 1 = the next call fails
    Host::ErrorCode code = Host::GeneralError;
};

/// All that the embedded host remembers.
struct Session {
    SessionOptions options;
    std::vector<ReportLine> reportLines; ///< oldest first
    Preferences preferences;             ///< where there is no preferences file
    std::vector<Fault> faults;           ///< those still to come
};

/// The session that the port's functions work on. Before the first `OpenSession` it is one with
/// empty options.
Session& CurrentSession();

/// Replaces the session by a fresh one: no report lines, no faults, no preferences but those in the
/// file.
void OpenSession(SessionOptions options);

/// Makes the `nth` call of a port's function from now on (1 = the next one) fail with `code`. The
/// calls before and after it work as ever.
void FailCall(std::string_view operation, int nth, Host::ErrorCode code);

/// For the definitions of the port: counts this call of `operation`, and gives the code it has to
/// fail with, 0 for none.
Host::ErrorCode CountCall(std::string_view operation);

} // namespace Merivane::Workbench
