#include "Program/Terminal.hpp"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace Merivane::Program {

bool ErrorOutputIsTerminal() {
    const char* kind = std::getenv("TERM");
    return ::isatty(STDERR_FILENO) == 1 && kind != nullptr && std::string_view(kind) != "dumb";
}

} // namespace Merivane::Program
