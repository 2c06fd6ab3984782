#include "Simulation/Run/RunContext.hpp"

#include <algorithm>
#include <array>
#include <cstdio>

#include "Text/FileBytes.hpp"
#include "Text/NativeFile.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Simulation {

namespace {

// Counting reads the outputs from their beginning: twice a second is enough for the eye.
constexpr std::chrono::nanoseconds CountInterval{500'000'000};

std::uint64_t CountLines(const std::wstring& path) {
    std::FILE* file = Text::OpenFile(path, Text::FileMode::Read);
    if (file == nullptr) {
        return 0; // not begun yet
    }
    std::uint64_t lines = 0;
    std::array<char, 65536> buffer;
    std::size_t read = 0;
    while ((read = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) {
        const auto end = buffer.begin() + static_cast<std::ptrdiff_t>(read);
        lines += static_cast<std::uint64_t>(std::count(buffer.begin(), end, '\n'));
    }
    std::fclose(file);
    return lines;
}

void ReportCountedLines(const RunContext& run) {
    std::uint64_t lines = 0;
    for (const std::wstring& file : run.watchedFiles) {
        lines += CountLines(file);
    }
    ReportProgress(run, run.stage,
                   static_cast<double>(lines) / static_cast<double>(run.expectedLines));
}

} // namespace

void Log(RunContext& run, const std::string& line) {
    run.result.log.push_back(line);
    if (run.log) {
        run.log(line);
    }
}

bool Fail(RunContext& run, const std::string& error) {
    run.result.error = error;
    return false;
}

void ReportProgress(const RunContext& run, SimulationStage stage, double fraction) {
    if (run.progress) {
        run.progress(stage, std::clamp(fraction, 0.0, 1.0));
    }
}

void EnterStage(RunContext& run, SimulationStage stage, const std::vector<std::string>& files,
                std::uint64_t expectedLines) {
    run.stage = stage;
    run.watchedFiles.clear();
    for (const std::string& file : files) {
        run.watchedFiles.push_back(WorkFile(run, file));
    }
    run.expectedLines = expectedLines;
    ReportProgress(run, stage, 0.0);
}

bool Poll(RunContext& run) {
    const auto now = std::chrono::steady_clock::now();
    if (run.progress && run.expectedLines > 0 && now - run.lastPoll >= CountInterval) {
        run.lastPoll = now;
        ReportCountedLines(run);
    }
    return run.cancel && run.cancel();
}

std::wstring WorkFile(const RunContext& run, std::string_view name) {
    return run.target.workFolder + L"/" + Text::Widen(name);
}

bool ReadWorkFile(const RunContext& run, std::string_view name, std::string& bytes) {
    return Text::ReadFileBytes(WorkFile(run, name), bytes);
}

bool WriteWorkFile(const RunContext& run, std::string_view name, std::string_view bytes) {
    return Text::WriteFileBytes(WorkFile(run, name), bytes);
}

} // namespace Merivane::Simulation
