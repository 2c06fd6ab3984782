#include "AddOn/RunLog/RunLog.hpp"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "Host/Session.hpp"
#include "Text/Ascii.hpp"
#include "Text/NativeFile.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Commands {

namespace {

struct NamedCode {
    std::uint32_t code;
    std::string_view name;
};

constexpr NamedCode NamedCodes[] = {
    {0x00000000, "NoError"},
    {0x81060001, "APIERR_GENERAL"},
    {0x81060002, "APIERR_MEMFULL"},
    {0x81060003, "APIERR_CANCEL"},
    {0x81060065, "APIERR_BADID"},
    {0x81060066, "APIERR_BADINDEX"},
    {0x81060068, "APIERR_BADPARS"},
    {0x81060069, "APIERR_BADPOLY"},
    {0x8106006A, "APIERR_BADDATABASE"},
    {0x810600CB, "APIERR_NOPLAN"},
    {0x81060132, "APIERR_NOTMINE"},
    {0x81060388, "APIERR_REFUSEDCMD"},
    {0x8106038A, "APIERR_READONLY"},
    {0x8106038D, "APIERR_NEEDSUNDOSCOPE"},
};

bool failureTold = false; // by the command that runs

std::string Hexadecimal(Host::ErrorCode code) {
    std::array<char, 8> digits;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(),
                                      static_cast<std::uint32_t>(code), 16);
    return Text::ToUpper({digits.data(), result.ptr});
}

std::string LocalTime() {
    const std::time_t now = std::time(nullptr);
    const std::tm* const local = std::localtime(&now);
    std::array<char, 16> text = {};
    if (!local || std::strftime(text.data(), text.size(), "%H:%M:%S", local) == 0) {
        return "--:--:--";
    }
    return text.data();
}

std::string WithPercentDoubled(std::string_view text) {
    std::string format;
    for (const char c : text) {
        format.append(c == '%' ? 2 : 1, c);
    }
    return format;
}

} // namespace

void AppendLog(std::string_view fileName, std::string_view text, bool truncate) {
    std::wstring folder;
    if (Host::GetTemporaryFolder(folder) != Host::NoError) {
        return;
    }
    folder += L"/Vantoro";
    std::error_code ignored; // without the folder the file can't be opened
    std::filesystem::create_directories(Text::NativePath(folder), ignored);
    std::FILE* const file =
        Text::OpenFile(folder + L"/" + Text::Widen(fileName),
                       truncate ? Text::FileMode::Write : Text::FileMode::Append);
    if (!file) {
        return;
    }
    const std::string line = LocalTime() + "  " + std::string(text) + "\n";
    std::fwrite(line.data(), 1, line.size(), file);
    std::fflush(file);
    std::fclose(file);
}

void BeginLog(std::string_view title) {
    const std::string line = "=== " + std::string(title);
    AppendLog(ProgressFile, line, true);
    AppendLog(ReportFile, line, true);
    AppendLog(HistoryFile, line, false);
    failureTold = false;
}

void Progress(std::string_view text) {
    AppendLog(ProgressFile, text, false);
}

void Report(std::string_view text, bool showDialog) {
    Host::WriteReport(WithPercentDoubled("Vantoro: " + std::string(text)), showDialog);
    AppendLog(ReportFile, text, false);
    AppendLog(HistoryFile, text, false);
}

void ReportLine(std::string_view text) {
    Report(text, false);
}

void Alert(std::string_view text) {
    failureTold = true;
    Report(text, true);
}

std::string ErrorName(Host::ErrorCode code) {
    for (const NamedCode& named : NamedCodes) {
        if (named.code == static_cast<std::uint32_t>(code)) {
            return std::string(named.name);
        }
    }
    return "unknown error 0x" + Hexadecimal(code);
}

Host::ErrorCode CheckError(std::string_view what, Host::ErrorCode code) {
    if (code != Host::NoError) {
        failureTold = true;
        ReportLine(std::string(what) + " failed: " + ErrorName(code) + " (0x" + Hexadecimal(code) +
                   ")");
    }
    return code;
}

bool FailureTold() {
    return failureTold;
}

} // namespace Merivane::Commands
