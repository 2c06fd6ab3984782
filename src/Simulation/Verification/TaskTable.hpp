#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Merivane::Simulation {

/// One activity of the table in section 5 of ISO/CIE 8995-1, with what it requires.
struct TaskRow {
    std::string id; ///< "s22.3": section and serial number
    std::int32_t section = 0;
    std::string sectionName;
    std::string activity;
    double em = 0.0;           ///< maintained illuminance [lux]
    double u0 = 0.7;           ///< uniformity [0..1]
    std::int32_t ugrLimit = 0; ///< UGRL; 0 where the standard gives none
    std::int32_t ra = 0;       ///< colour rendering index
    std::string note;          ///< the standard's remark, often empty
};

/// The 259 rows, built once on first use, in the standard's order.
const std::vector<TaskRow>& TaskTable();

/// Number and name of the 31 sections, in order.
const std::vector<std::pair<std::int32_t, std::string>>& TaskSections();

} // namespace Merivane::Simulation
