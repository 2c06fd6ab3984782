#pragma once

#include <cstdint>
#include <string_view>

namespace Merivane::Archicad {

/// The host's process window over a long work: opened with this, closed with it on every path. A
/// host that does not open it lets the work go on without, and nobody can cancel it then.
class ProcessWindow {
public:
    ProcessWindow(std::string_view title, std::int32_t phases);
    ~ProcessWindow();
    ProcessWindow(const ProcessWindow&) = delete;
    ProcessWindow& operator=(const ProcessWindow&) = delete;

    /// Begins the next phase, done at the value `highest`.
    void BeginPhase(std::string_view title, std::int32_t highest);

    /// How far the phase has come; a value that shows already is not told again.
    void Show(std::int32_t value);

    /// True once the user has asked to stop.
    bool IsCancelled() const;

private:
    bool open = false;
    std::int32_t shown = -1; // of this phase; -1 = nothing yet
};

} // namespace Merivane::Archicad
