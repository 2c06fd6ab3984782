#include "Archicad/ContractConversion.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "Photometry/IesText.hpp"
#include "Text/Utf16Length.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;
using Photometry::ContractParameter;
using Kind = Photometry::ContractParameterType;

// The host's buffers hold 32 and 256, a zero at the end included.
constexpr std::size_t LongestName = 31;  // bytes
constexpr std::size_t LongestText = 255; // units of UTF-16

constexpr double RadiansPerDegree = 0.017453292519943295;
constexpr std::int32_t TitleFlags = Host::ParameterBoldName | Host::ParameterOpen;

Kind KindOf(ParameterType type) {
    switch (type) {
    case ParameterType::Integer:
        return Kind::Integer;
    case ParameterType::Length:
        return Kind::Length;
    case ParameterType::Angle:
        return Kind::Angle;
    case ParameterType::String:
        return Kind::String;
    case ParameterType::Boolean:
        return Kind::Boolean;
    default:
        return Kind::Real;
    }
}

ParameterType TypeOf(Kind kind) {
    switch (kind) {
    case Kind::Integer:
        return ParameterType::Integer;
    case Kind::Length:
        return ParameterType::Length;
    case Kind::Angle:
        return ParameterType::Angle;
    case Kind::Boolean:
        return ParameterType::Boolean;
    case Kind::String:
    case Kind::StringArray:
        return ParameterType::String;
    case Kind::Pen:
        return ParameterType::Pen;
    case Kind::Title:
        return ParameterType::Title;
    case Kind::Real:
    case Kind::RealArray:
        break;
    }
    return ParameterType::Real;
}

/// The first of `values`, as many as the dimensions speak of.
template <typename Value>
std::vector<Value> Bounded(const std::vector<Value>& values, std::int32_t dim1, std::int32_t dim2) {
    const std::int64_t told = std::max<std::int64_t>(std::int64_t{dim1} * dim2, 0);
    const auto there = static_cast<std::int64_t>(values.size());
    return {values.begin(), values.begin() + static_cast<std::ptrdiff_t>(std::min(told, there))};
}

void TakeArray(const LibraryParameter& addPar, ContractParameter& parameter) {
    parameter.dim1 = addPar.dim1;
    parameter.dim2 = std::max(addPar.dim2, 1);
    if (addPar.type == ParameterType::String) {
        parameter.type = Kind::StringArray;
        parameter.texts = Bounded(addPar.texts, parameter.dim1, parameter.dim2);
    } else {
        parameter.type = Kind::RealArray;
        parameter.numbers = Bounded(addPar.numbers, parameter.dim1, parameter.dim2);
    }
}

void TakeValue(const LibraryParameter& addPar, ContractParameter& parameter) {
    parameter.type = KindOf(addPar.type);
    if (parameter.type == Kind::String) {
        parameter.text = addPar.text;
    } else if (parameter.type == Kind::Angle) {
        parameter.number = addPar.number / RadiansPerDegree;
    } else {
        parameter.number = addPar.number;
    }
}

ContractParameter FromAddPar(const LibraryParameter& addPar) {
    ContractParameter parameter;
    parameter.name = addPar.name;
    parameter.hidden = (addPar.flags & Host::ParameterHidden) != 0;
    if (addPar.isArray) {
        TakeArray(addPar, parameter);
    } else {
        TakeValue(addPar, parameter);
    }
    return parameter;
}

/// `text` with every byte that is no UTF-8 as the character that it is in Windows-1252.
std::string WholeUtf8(std::string_view text) {
    std::string whole;
    while (!text.empty()) {
        std::size_t length = 1;
        while (length < 4 && length < text.size() && !Text::IsUtf8(text.substr(0, length))) {
            ++length;
        }
        length = Text::IsUtf8(text.substr(0, length)) ? length : 1;
        whole += Photometry::NormaliseIesText(std::string(text.substr(0, length)));
        text.remove_prefix(length);
    }
    return whole;
}

std::string HostText(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    return Text::TruncateUtf16(Text::IsUtf8(text) ? std::string(text) : WholeUtf8(text),
                               LongestText);
}

std::int32_t FlagsOf(const ContractParameter& parameter) {
    if (parameter.type == Kind::Title) {
        return TitleFlags;
    }
    return parameter.hidden ? Host::ParameterHidden : 0;
}

void GiveArray(const ContractParameter& parameter, LibraryParameter& addPar) {
    addPar.isArray = true;
    addPar.dim1 = parameter.dim1;
    addPar.dim2 = parameter.dim2;
    addPar.numbers = parameter.numbers;
    for (const std::string& text : parameter.texts) {
        addPar.texts.push_back(HostText(text));
    }
}

} // namespace

std::vector<ContractParameter> FromAddPars(const std::vector<LibraryParameter>& addPars) {
    std::vector<ContractParameter> parameters;
    parameters.reserve(addPars.size());
    std::transform(addPars.begin(), addPars.end(), std::back_inserter(parameters), FromAddPar);
    return parameters;
}

std::vector<ContractParameter> FromAddPars(const std::vector<LibraryParameter>& addPars,
                                           const Photometry::ParameterNames& names) {
    std::vector<ContractParameter> parameters;
    for (const LibraryParameter& addPar : addPars) {
        if (names.contains(addPar.name)) {
            parameters.push_back(FromAddPar(addPar));
        }
    }
    return parameters;
}

void ToAddPar(const ContractParameter& parameter, LibraryParameter& addPar) {
    addPar = {};
    addPar.name = Text::TruncateUtf8(parameter.name, LongestName);
    addPar.description = HostText(parameter.description);
    addPar.type = TypeOf(parameter.type);
    addPar.flags = FlagsOf(parameter);
    if (parameter.type == Kind::RealArray || parameter.type == Kind::StringArray) {
        GiveArray(parameter, addPar);
    } else if (parameter.type == Kind::String) {
        addPar.text = HostText(parameter.text);
    } else if (parameter.type == Kind::Angle) {
        addPar.number = parameter.number * RadiansPerDegree;
    } else if (parameter.type != Kind::Title) {
        addPar.number = parameter.number;
    }
}

} // namespace Merivane::Archicad
