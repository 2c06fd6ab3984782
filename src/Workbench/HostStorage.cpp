#include <utility>

#include "Host/Storage.hpp"
#include "Workbench/PreferencesFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

using Workbench::CurrentSession;

ErrorCode SetPreferences(std::int32_t version, std::string_view block) {
    if (const ErrorCode code = Workbench::CountCall("SetPreferences")) {
        return code;
    }
    Workbench::Session& session = CurrentSession();
    Workbench::Preferences preferences{version, std::string(block)};
    const std::wstring& file = session.options.preferencesFile;
    if (!file.empty()) {
        return Workbench::SavePreferences(file, preferences) ? NoError : GeneralError;
    }
    session.preferences = std::move(preferences);
    return NoError;
}

ErrorCode GetPreferences(std::int32_t& version, std::string& block) {
    if (const ErrorCode code = Workbench::CountCall("GetPreferences")) {
        return code;
    }
    const Workbench::Session& session = CurrentSession();
    Workbench::Preferences preferences = session.preferences;
    const std::wstring& file = session.options.preferencesFile;
    if (!file.empty() && !Workbench::LoadPreferences(file, preferences)) {
        return GeneralError;
    }
    version = preferences.version;
    block = std::move(preferences.block);
    return NoError;
}

ErrorCode StoreProjectData(std::string_view name, const ProjectData& data) {
    if (const ErrorCode code = Workbench::CountStructureCall("StoreProjectData")) {
        return code;
    }
    Workbench::Session& session = CurrentSession();
    ProjectData& stored = session.project.data[std::string(name)];
    session.projectChanged = true;
    stored = data;
    return NoError;
}

ErrorCode GetProjectData(std::string_view name, ProjectData& data) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetProjectData")) {
        return code;
    }
    const auto& stored = CurrentSession().project.data;
    const auto found = stored.find(std::string(name));
    if (found == stored.end()) {
        return NoProjectData;
    }
    data = found->second;
    return NoError;
}

} // namespace Merivane::Host
