#include "Workbench/Project/ParameterRules.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

#include "Text/Utf8.hpp"
#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsSameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return Lower(x) == Lower(y); });
}

// Lists mostly come in the part's own order: the place after the last hit is tried first.
std::size_t FindParameter(const Parameters& list, std::string_view name, std::size_t expected) {
    if (expected < list.size() && IsSameName(list[expected].name, name)) {
        return expected;
    }
    const auto found =
        std::find_if(list.begin(), list.end(), [name](const LibraryParameter& parameter) {
            return IsSameName(parameter.name, name);
        });
    return static_cast<std::size_t>(found - list.begin());
}

bool HasValue(ParameterType type) {
    return type != ParameterType::Separator && type != ParameterType::Title;
}

bool IsShortText(const std::string& text) {
    return CountUtf16(text) <= LongestText && Text::IsUtf8(text) &&
           text.find('\0') == std::string::npos;
}

bool IsGoodArray(const LibraryParameter& parameter) {
    if (parameter.dim1 < 1 || parameter.dim2 < 0) {
        return false;
    }
    const auto rows = static_cast<std::size_t>(parameter.dim1);
    const auto columns = static_cast<std::size_t>(std::max(parameter.dim2, 1));
    const bool isText = parameter.type == ParameterType::String;
    return (isText ? parameter.texts.size() : parameter.numbers.size()) == rows * columns;
}

bool IsGoodValue(const LibraryParameter& parameter) {
    const auto isFinite = [](double number) { return std::isfinite(number); };
    return (!parameter.isArray || IsGoodArray(parameter)) && isFinite(parameter.number) &&
           std::all_of(parameter.numbers.begin(), parameter.numbers.end(), isFinite) &&
           (parameter.type == ParameterType::Dictionary || IsShortText(parameter.text)) &&
           std::all_of(parameter.texts.begin(), parameter.texts.end(), IsShortText);
}

// The part tells what a parameter is; the element only what it holds.
void LayValue(const LibraryParameter& from, LibraryParameter& to) {
    const bool isText = to.type == ParameterType::String;
    to.dim1 = to.isArray ? from.dim1 : 0;
    to.dim2 = to.isArray ? from.dim2 : 0;
    to.number = to.isArray || isText ? 0.0 : from.number;
    to.text = !to.isArray && isText ? from.text : std::string();
    to.numbers = to.isArray && !isText ? from.numbers : std::vector<double>();
    to.texts = to.isArray && isText ? from.texts : std::vector<std::string>();
}

} // namespace

bool IsSameKind(const LibraryParameter& a, const LibraryParameter& b) {
    return a.type == b.type && a.isArray == b.isArray;
}

bool IsSameValue(const LibraryParameter& a, const LibraryParameter& b) {
    const bool isText = b.type == ParameterType::String;
    if (!b.isArray) {
        return isText ? a.text == b.text : a.number == b.number;
    }
    return a.dim1 == b.dim1 && std::max(a.dim2, 1) == std::max(b.dim2, 1) &&
           (isText ? a.texts == b.texts : a.numbers == b.numbers);
}

Parameters MergeParameters(const Parameters& part, const Parameters& own) {
    Parameters merged = part;
    std::size_t place = 0;
    for (const LibraryParameter& parameter : own) {
        place = FindParameter(merged, parameter.name, place);
        if (place < merged.size() && IsSameKind(merged[place], parameter)) {
            LayValue(parameter, merged[place]);
        }
        ++place;
    }
    return merged;
}

Host::ErrorCode TakeParameters(const Parameters& part, const Parameters& given, Parameters& own) {
    std::vector<const LibraryParameter*> taken(part.size(), nullptr); // the last of a name counts
    std::size_t place = 0;
    for (const LibraryParameter& parameter : given) {
        place = FindParameter(part, parameter.name, place);
        if (place < part.size() && HasValue(part[place].type)) {
            if (!IsSameKind(part[place], parameter) || !IsGoodValue(parameter)) {
                return Host::BadParameters;
            }
            taken[place] = &parameter;
        }
        ++place;
    }
    Parameters differing;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (taken[i]) {
            LibraryParameter parameter = part[i];
            LayValue(*taken[i], parameter);
            if (!IsSameValue(parameter, part[i])) {
                differing.push_back(std::move(parameter));
            }
        }
    }
    own = std::move(differing);
    return Host::NoError;
}

} // namespace Merivane::Workbench
