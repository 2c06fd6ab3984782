#include "Program/Progress.hpp"

#include <cmath>
#include <cstdio>

#include "Program/Terminal.hpp"

namespace Merivane::Program {

namespace {

constexpr int BarWidth = 24;

void DrawBar(const std::string& title, int percent) {
    std::string bar;
    for (int i = 0; i < BarWidth; ++i) {
        bar += i * 100 < percent * BarWidth ? "█" : "░";
    }
    std::fprintf(stderr, "\r\x1b[K%s %3d %%  %s", bar.c_str(), percent, title.c_str());
    std::fflush(stderr);
}

} // namespace

ProgressStyle ChooseProgressStyle(bool silent) {
    if (silent) {
        return ProgressStyle::None;
    }
    return ErrorOutputIsTerminal() ? ProgressStyle::Bar : ProgressStyle::Lines;
}

void TellProgress(ProgressState& state, int stage, const std::string& title, double fraction) {
    if (state.style == ProgressStyle::None) {
        return;
    }
    const int percent = static_cast<int>(std::lround(fraction * 100.0));
    const bool newStage = stage != state.stage;
    if (!newStage && percent == state.percent) {
        return;
    }
    state.stage = stage;
    state.percent = percent;
    if (state.style == ProgressStyle::Bar) {
        DrawBar(title, percent);
    } else if (newStage) {
        std::fprintf(stderr, "%s\n", title.c_str());
    }
}

void TellProgress(ProgressState& state, Simulation::SimulationStage stage, double fraction) {
    TellProgress(state, static_cast<int>(stage), Simulation::StageTitle(stage, state.pointCount),
                 fraction);
}

void EraseProgress(ProgressState& state) {
    if (state.style == ProgressStyle::Bar && state.percent >= 0) {
        std::fputs("\r\x1b[K", stderr);
        std::fflush(stderr);
    }
    state.percent = -1;
}

void EndProgress(ProgressState& state) {
    EraseProgress(state);
    state.stage = -1;
}

} // namespace Merivane::Program
