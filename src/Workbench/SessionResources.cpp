#include "Workbench/SessionResources.hpp"

#include <cstdint>
#include <map>

#include "Workbench/Interface/OwnResources.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {

namespace {

template <typename Value>
const Value* Find(std::map<int, Value> ResourceScript::*resources, std::int16_t number) {
    const ResourceScript* const scripts[] = {&CurrentSession().userInterface.resources,
                                             &OwnResources()};
    for (const ResourceScript* const script : scripts) {
        const auto found = (script->*resources).find(static_cast<std::uint16_t>(number));
        if (found != (script->*resources).end()) {
            return &found->second;
        }
    }
    return nullptr;
}

} // namespace

void ReadSessionResources() {
    Session& session = CurrentSession();
    for (const std::string& script : session.options.resourceScripts) {
        std::string error;
        if (!ParseResourceScript(script, session.userInterface.resources, error)) {
            session.reportLines.push_back({"Recursos: " + error, false});
        }
    }
}

const std::vector<std::string>* FindStringList(std::int16_t resource) {
    return Find(&ResourceScript::stringLists, resource);
}

const DialogResource* FindDialog(std::int16_t resource) {
    return Find(&ResourceScript::dialogs, resource);
}

const DialogHelpResource* FindDialogHelp(std::int16_t resource) {
    return Find(&ResourceScript::dialogHelps, resource);
}

std::string FindIcon(std::int16_t resource) {
    const std::string* const name = Find(&ResourceScript::icons, resource);
    return name ? *name : std::string();
}

} // namespace Merivane::Workbench
