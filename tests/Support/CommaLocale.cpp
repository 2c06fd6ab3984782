#include "Support/CommaLocale.hpp"

#include <cstdlib>

#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

class CommaPoint : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

bool HasComma() {
    return std::string(std::localeconv()->decimal_point) == ",";
}

bool SetInstalledLocale() {
    for (const char* name : {"pt_BR.UTF-8", "pt_BR.utf8", "de_DE.UTF-8", "fr_FR.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr && HasComma()) {
            return true;
        }
    }
    return false;
}

// Machines for tests often have no locale but "C"; its sources are there more often. Made once.
bool MakeLocale(const TemporaryFolder& folder) {
    const std::string made = (folder.Path() / "pt_BR.UTF-8").string();
    const std::string command = "localedef -i pt_BR -f UTF-8 '" + made + "' >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
}

bool SetLocaleMadeForTheTest() {
    static TemporaryFolder folder;
    static bool made = MakeLocale(folder);
    if (!made) {
        return false;
    }
    ::setenv("LOCPATH", folder.Path().c_str(), 1);
    const bool set = std::setlocale(LC_ALL, "pt_BR.UTF-8") != nullptr && HasComma();
    ::unsetenv("LOCPATH");
    return set;
}

} // namespace

CommaLocale::CommaLocale() : cBefore(std::setlocale(LC_ALL, nullptr)) {
    cppBefore =
        std::locale::global(std::locale(std::locale::classic(), new CommaPoint)); // the locale owns
    cLocale = SetInstalledLocale() || SetLocaleMadeForTheTest();
}

CommaLocale::~CommaLocale() {
    std::locale::global(cppBefore);
    std::setlocale(LC_ALL, cBefore.c_str());
}

} // namespace Merivane::Tests
