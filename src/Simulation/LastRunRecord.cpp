#include "Simulation/LastRunRecord.hpp"

#include "Simulation/StoredText.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

constexpr std::string_view Header = "MerivaneLastRun 1";

} // namespace

LastRunRecord ParseLastRun(std::string_view text) {
    LastRunRecord record;
    std::int32_t runCount = 0;
    const bool read = TakeHeaderLine(text, Header) && TakeInteger(text, record.points) &&
                      TakeNumber(text, record.seconds) && TakeNumber(text, record.costFactor) &&
                      TakeInteger(text, runCount);
    if (!read || record.points < 1 || !(record.seconds > 0.0)) {
        return {};
    }
    record.valid = true;
    return record;
}

std::string FormatLastRun(const LastRunRecord& record) {
    return std::string(Header) + "\n" + std::to_string(record.points) + " " +
           Text::FormatShortest(record.seconds) + " " + Text::FormatShortest(record.costFactor) +
           " 1\n";
}

} // namespace Merivane::Simulation
