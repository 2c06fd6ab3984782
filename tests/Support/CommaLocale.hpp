#pragma once

#include <clocale>
#include <locale>
#include <string>

namespace Merivane::Tests {

/// While it lives, the process writes and reads decimal numbers with a comma, as a host on a
/// Brazilian desktop does: the C++ locale always, the C locale where one can be had (`cLocale`).
class CommaLocale {
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool cLocale = false; ///< `strtod` and `printf` use the comma too

private:
    std::locale cppBefore;
    std::string cBefore;
};

} // namespace Merivane::Tests
