#include "Workbench/Session.hpp"

#include <algorithm>
#include <utility>

namespace Merivane::Workbench {

Session& CurrentSession() {
    static Session session;
    return session;
}

void OpenSession(SessionOptions options) {
    CurrentSession() = Session();
    CurrentSession().options = std::move(options);
}

void FailCall(std::string_view operation, int nth, Host::ErrorCode code) {
    CurrentSession().faults.push_back({std::string(operation), nth, code});
}

Host::ErrorCode CountCall(std::string_view operation) {
    Host::ErrorCode code = Host::NoError;
    std::vector<Fault>& faults = CurrentSession().faults;
    for (Fault& fault : faults) {
        if (fault.operation == operation && --fault.callsLeft == 0 && code == Host::NoError) {
            code = fault.code;
        }
    }
    faults.erase(std::remove_if(faults.begin(), faults.end(),
                                [](const Fault& fault) { return fault.callsLeft <= 0; }),
                 faults.end());
    return code;
}

} // namespace Merivane::Workbench
