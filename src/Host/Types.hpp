#pragma once

#include <array>
#include <compare>
#include <cstdint>

namespace Merivane::Host {

/// A host error code, in the host's own numbers; 0 is success.
using ErrorCode = std::int32_t;

inline constexpr ErrorCode NoError = 0;
inline constexpr ErrorCode GeneralError = static_cast<ErrorCode>(0x81060001);
inline constexpr ErrorCode OutOfMemory = static_cast<ErrorCode>(0x81060002);
inline constexpr ErrorCode Cancelled = static_cast<ErrorCode>(0x81060003);
inline constexpr ErrorCode BadId = static_cast<ErrorCode>(0x81060065);
inline constexpr ErrorCode BadIndex = static_cast<ErrorCode>(0x81060066);
inline constexpr ErrorCode BadName = static_cast<ErrorCode>(0x81060067);
inline constexpr ErrorCode BadParameters = static_cast<ErrorCode>(0x81060068);
inline constexpr ErrorCode BadPolygon = static_cast<ErrorCode>(0x81060069);
inline constexpr ErrorCode BadDatabase = static_cast<ErrorCode>(0x8106006A);
inline constexpr ErrorCode BadWindow = static_cast<ErrorCode>(0x8106006B);
inline constexpr ErrorCode IrregularPolygon = static_cast<ErrorCode>(0x81060072);
inline constexpr ErrorCode NoBody = static_cast<ErrorCode>(0x810600C9);
inline constexpr ErrorCode NoPlan = static_cast<ErrorCode>(0x810600CB);
inline constexpr ErrorCode NoLibrary = static_cast<ErrorCode>(0x810600CC);
inline constexpr ErrorCode NoLibrarySection = static_cast<ErrorCode>(0x810600CD);
inline constexpr ErrorCode NoSelection = static_cast<ErrorCode>(0x810600CE);
inline constexpr ErrorCode NotEditable = static_cast<ErrorCode>(0x810600CF);
inline constexpr ErrorCode NothingToUndo = static_cast<ErrorCode>(0x810600E2);
inline constexpr ErrorCode NameInUse = static_cast<ErrorCode>(0x810600E4);
inline constexpr ErrorCode AttributeExists = static_cast<ErrorCode>(0x8106012D);
inline constexpr ErrorCode Deleted = static_cast<ErrorCode>(0x8106012E);
inline constexpr ErrorCode LockedLayer = static_cast<ErrorCode>(0x8106012F);
inline constexpr ErrorCode HiddenLayer = static_cast<ErrorCode>(0x81060130);
inline constexpr ErrorCode InvalidStory = static_cast<ErrorCode>(0x81060131);
inline constexpr ErrorCode NotMine = static_cast<ErrorCode>(0x81060132);
inline constexpr ErrorCode NoSuchLayer = static_cast<ErrorCode>(0x81060136);
inline constexpr ErrorCode NoProjectData = static_cast<ErrorCode>(0x81060195);
inline constexpr ErrorCode BadParagraphs = static_cast<ErrorCode>(0x810601F5);
inline constexpr ErrorCode NotInitialised = static_cast<ErrorCode>(0x81060385);
inline constexpr ErrorCode Nesting = static_cast<ErrorCode>(0x81060386);
inline constexpr ErrorCode NotSupported = static_cast<ErrorCode>(0x81060387);
inline constexpr ErrorCode RefusedCommand = static_cast<ErrorCode>(0x81060388);
inline constexpr ErrorCode RefusedParameters = static_cast<ErrorCode>(0x81060389);
inline constexpr ErrorCode ReadOnly = static_cast<ErrorCode>(0x8106038A);
inline constexpr ErrorCode CommandFailed = static_cast<ErrorCode>(0x8106038C);
inline constexpr ErrorCode NeedsUndoScope = static_cast<ErrorCode>(0x8106038D);
inline constexpr ErrorCode UndoScopeMisuse = static_cast<ErrorCode>(0x8106038E);
inline constexpr ErrorCode MissingDefinition = static_cast<ErrorCode>(0x810603EA);

/// 128-bit identity of an element, a part, a database, a view item; all zeros is none.
struct Guid {
    std::array<std::uint8_t, 16> bytes{}; ///< in the order in which the text form shows them

    auto operator<=>(const Guid&) const = default;
};

/// Number of an attribute (layer, line type, fill, surface, layer combination) in this session.
/// Opaque: what lasts is the attribute's name. 0 is none; real ones are positive.
struct AttributeIndex {
    std::int32_t value = 0;

    auto operator<=>(const AttributeIndex&) const = default;
};

/// A place in a plane [m].
struct Coordinate {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Coordinate&) const = default;
};

/// A place in space [m].
struct Coordinate3D {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    bool operator==(const Coordinate3D&) const = default;
};

/// A colour, each channel [0..1].
struct Colour {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;

    bool operator==(const Colour&) const = default;
};

} // namespace Merivane::Host
