#include "Workbench/Script/ScriptFunctions.hpp"

#include <unordered_map>
#include <vector>

namespace Merivane::Workbench {

namespace {

const std::vector<const FunctionEntry*>& AllFunctions() {
    static const auto All = [] {
        std::vector<const FunctionEntry*> entries;
        for (const auto table : {NumberFunctions(), TextFunctions(), MachineFunctions()}) {
            for (const FunctionEntry& entry : table) {
                entries.push_back(&entry);
            }
        }
        return entries;
    }();
    return All;
}

} // namespace

std::int32_t FindFunction(std::string_view name) {
    static const auto Places = [] {
        std::unordered_map<std::string_view, std::int32_t> places;
        for (const FunctionEntry* entry : AllFunctions()) {
            places.emplace(entry->name, static_cast<std::int32_t>(places.size()));
        }
        return places;
    }();
    const auto found = Places.find(name);
    return found == Places.end() ? -1 : found->second;
}

const FunctionEntry& FunctionAt(std::int32_t index) {
    return *AllFunctions()[static_cast<std::size_t>(index)];
}

} // namespace Merivane::Workbench
