#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Merivane::Host {

/// The host's own numbers for the kinds of library part parameters that we meet.
enum class ParameterType : std::int32_t {
    Integer = 1,
    Length = 2, ///< [m]
    Angle = 3,  ///< [rad]
    Real = 4,
    LightSwitch = 5,
    Colour = 6,
    Intensity = 7,
    LineType = 8,
    Surface = 9,
    FillPattern = 10,
    Pen = 11,
    String = 12,
    Boolean = 13,
    Separator = 14,
    Title = 15,
    BuildingMaterial = 16,
    Profile = 17,
    Dictionary = 18,
};

/// Flags of a parameter.
inline constexpr std::int32_t ParameterChild = 0x01;
inline constexpr std::int32_t ParameterBoldName = 0x02;
inline constexpr std::int32_t ParameterFixed = 0x04;  ///< the host's or the subtype's own
inline constexpr std::int32_t ParameterUnique = 0x08; ///< stays when the part is replaced
inline constexpr std::int32_t ParameterOpen = 0x20;
inline constexpr std::int32_t ParameterDisabled = 0x40;
inline constexpr std::int32_t ParameterHidden = 0x80;

/// One parameter of a library part or of a placed one. Names are found without regard to case,
/// never by place: parts get edited.
struct LibraryParameter {
    std::string name;        ///< ASCII, at most 31 characters
    std::string description; ///< UTF-8, at most 255 units of UTF-16
    ParameterType type = ParameterType::Real;
    std::int32_t flags = 0;
    bool isArray = false;
    std::int32_t dim1 = 0; ///< arrays: rows
    std::int32_t dim2 = 0; ///< arrays: columns; 0 or 1 for one dimension
    double number = 0.0;   ///< numeric types
    /// Strings, at most 255 units of UTF-16. Of a dictionary the host's own form of its content, to
    /// be handed on as it is; empty where the host can't tell it.
    std::string text;
    std::vector<double> numbers;    ///< arrays of numbers, row after row
    std::vector<std::string> texts; ///< arrays of strings

    bool operator==(const LibraryParameter&) const = default;
};

} // namespace Merivane::Host
