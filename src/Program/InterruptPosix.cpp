#include "Program/Interrupt.hpp"

#include <csignal>
#include <initializer_list>

#include <signal.h>

namespace Merivane::Program {

namespace {

// The one thing a signal handler may touch.
volatile std::sig_atomic_t interruptSeen = 0;

void Remember(int /*signal*/) {
    interruptSeen = 1;
}

} // namespace

void CatchInterrupts() {
    struct sigaction action = {};
    action.sa_handler = Remember;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction current = {};
        // A shell that starts the program in the background has it ignore Ctrl-C; that stays.
        if (sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN) {
            continue;
        }
        sigaction(signal, &action, nullptr);
    }
    // A full disk and a closed reader are answers of a write, not the end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

bool Interrupted() {
    return interruptSeen != 0;
}

} // namespace Merivane::Program
