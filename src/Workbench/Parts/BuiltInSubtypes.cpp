#include "Workbench/Parts/BuiltInSubtypes.hpp"

#include <algorithm>
#include <array>
#include <string_view>

#include "Host/GuidText.hpp"

namespace Merivane::Workbench::Parts {

namespace {

struct Subtype {
    std::int32_t number = 0;
    std::string_view guid;
    std::string_view name;
    std::int32_t parent = 0; ///< number; 0 = the root
};

constexpr std::array<Subtype, 3> Subtypes = {{
    {GeneralObjectSubtype, "F938E33A-329D-4A36-BE3E-85E126820996", "Objeto GDL geral", 0},
    {ModelElementSubtype, "103E8D2C-8230-42E1-9597-46F84CCE28C0", "Elemento do modelo",
     GeneralObjectSubtype},
    {LightSubtype, "51A838E5-0F40-4F6D-A658-CF2845581749", "Luz", ModelElementSubtype},
}};

const Subtype* FindSubtype(std::int32_t number) {
    const auto* const found =
        std::find_if(Subtypes.begin(), Subtypes.end(),
                     [number](const Subtype& subtype) { return subtype.number == number; });
    return found == Subtypes.end() ? nullptr : found;
}

const Subtype* FindSubtype(const Host::Guid& guid) {
    const auto* const found =
        std::find_if(Subtypes.begin(), Subtypes.end(), [&guid](const Subtype& subtype) {
            return BuiltInSubtype(subtype.number) == guid;
        });
    return found == Subtypes.end() ? nullptr : found;
}

} // namespace

Host::Guid BuiltInSubtype(std::int32_t number) {
    Host::Guid guid;
    if (const Subtype* const subtype = FindSubtype(number)) {
        Host::ParseGuid(subtype->guid, guid);
    }
    return guid;
}

std::vector<Host::Guid> AncestryOfSubtype(const Host::Guid& guid) {
    const Subtype* subtype = FindSubtype(guid);
    if (!subtype) {
        return {BuiltInSubtype(GeneralObjectSubtype), guid};
    }
    std::vector<Host::Guid> ancestry;
    for (; subtype; subtype = FindSubtype(subtype->parent)) {
        ancestry.insert(ancestry.begin(), BuiltInSubtype(subtype->number));
    }
    return ancestry;
}

Host::PartType TypeByAncestry(const std::vector<Host::Guid>& ancestry) {
    const bool isLight =
        std::find(ancestry.begin(), ancestry.end(), BuiltInSubtype(LightSubtype)) != ancestry.end();
    return isLight ? Host::PartType::Lamp : Host::PartType::Object;
}

std::string NameOfSubtype(const Host::Guid& guid) {
    const Subtype* const subtype = FindSubtype(guid);
    return subtype ? std::string(subtype->name) : std::string();
}

std::string UniqueId(const Host::Guid& mainGuid, const Host::Guid& revision) {
    return Host::GuidText(mainGuid) + '-' + Host::GuidText(revision);
}

bool ParseUniqueId(const std::string& text, Host::Guid& mainGuid) {
    constexpr std::size_t braced = 38;
    Host::Guid first;
    Host::Guid second;
    const std::string_view whole = text;
    const std::string_view rest = whole.substr(std::min(braced, whole.size()));
    if (!whole.starts_with('{') || !Host::ParseGuid(whole.substr(0, braced), first) ||
        (!rest.empty() && (!rest.starts_with("-{") || !Host::ParseGuid(rest.substr(1), second)))) {
        return false;
    }
    mainGuid = first;
    return true;
}

} // namespace Merivane::Workbench::Parts
