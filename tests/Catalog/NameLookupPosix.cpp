// The program's own `getaddrinfo` stands before the C library's also for the libraries that it
// loads, libcurl among them.

#include "NameLookup.hpp"

#include <string_view>
#include <thread>

#include <dlfcn.h>
#include <netdb.h>

using namespace Merivane::Tests;

extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints, // NOLINT
                           addrinfo** found) {
    const std::string_view asked = name != nullptr ? name : "";
    if (asked == SlowName) {
        std::this_thread::sleep_for(SlowLookUp);
    }
    if (asked == SlowName || asked == UnknownName) {
        return EAI_NONAME;
    }
    using LookUp = int(const char*, const char*, const addrinfo*, addrinfo**);
    const auto system = reinterpret_cast<LookUp*>(::dlsym(RTLD_NEXT, "getaddrinfo"));
    return system(name, service, hints, found);
}
