#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// JSON in memory, a strict reader and a writer with one fixed form. Text is UTF-8 in byte strings;
/// whether it is well-formed UTF-8 is not checked.
namespace Merivane::Catalog {

struct JsonMember;
struct JsonValue;

/// Which field of a `JsonValue` counts.
enum class JsonKind : std::int32_t {
    Null = 0,
    Boolean = 1,
    Number = 2,
    String = 3,
    Array = 4,
    Object = 5,
};

/// The members of an object in order of first insertion, each key once. Keys are compared by length
/// and bytes. From outside the list can be read; `Set` alone changes it, so that the index beside
/// the list, which makes a lookup among many members take constant time, stays true.
class JsonMembers {
public:
    JsonMembers();
    JsonMembers(const JsonMembers& other);
    JsonMembers(JsonMembers&& other) noexcept;
    JsonMembers& operator=(const JsonMembers& other);
    JsonMembers& operator=(JsonMembers&& other) noexcept;
    ~JsonMembers();

    std::size_t size() const;
    const JsonMember* begin() const;
    const JsonMember* end() const;
    const JsonMember& operator[](std::size_t position) const;

    /// The value of `key`, or null. The pointer holds until the next `Set` of a new key.
    const JsonValue* Find(std::string_view key) const;
    JsonValue* Find(std::string_view key);

    /// Replaces the value of `key` in its place, or appends the member; returns the stored value.
    JsonValue& Set(std::string key, JsonValue value);

private:
    friend struct JsonValue;

    struct Table;
    std::unique_ptr<Table> table; ///< null without members: most values are no objects
};

/// One JSON value, copied and moved as a value. A newly made one is null. How deep it nests costs
/// no stack, neither when it is copied nor when it ends.
struct JsonValue {
    JsonKind kind = JsonKind::Null;
    bool boolean = false;         ///< kind Boolean
    double number = 0.0;          ///< kind Number; integers too
    std::string text;             ///< kind String, UTF-8
    std::vector<JsonValue> items; ///< kind Array
    JsonMembers members;          ///< kind Object

    JsonValue();
    JsonValue(const JsonValue& other);
    JsonValue(JsonValue&& other) noexcept;
    JsonValue& operator=(const JsonValue& other);
    JsonValue& operator=(JsonValue&& other) noexcept;
    ~JsonValue();

    static JsonValue MakeNumber(double number);
    static JsonValue MakeBool(bool boolean);
    static JsonValue MakeString(std::string text);
    static JsonValue MakeArray();
    static JsonValue MakeObject();

    /// Replaces the member's value in its place, or appends the member; returns the stored value,
    /// which stays where it is until the next `Set` of a new key. A value of another kind becomes
    /// an empty object first.
    JsonValue& Set(std::string key, JsonValue value);

    /// The member's value, or null when this is no object or has no such key (case counts).
    const JsonValue* Find(std::string_view key) const;
    JsonValue* Find(std::string_view key);

    /// The member's number, or `fallback` when there is no such member or it is of another kind.
    double NumberOr(std::string_view key, double fallback) const;

    /// The member's text, or `fallback` when there is no such member or it is of another kind.
    std::string StringOr(std::string_view key, std::string_view fallback) const;

private:
    bool HasChildren() const;
};

/// One member of an object.
struct JsonMember {
    std::string key; ///< UTF-8
    JsonValue value;
};

/// How reading ended.
struct JsonParseResult {
    bool ok = false;
    /// When not `ok`: what is wrong, in Portuguese without accents, and where, to stand inside a
    /// longer sentence: "esperava ':' (byte 17)". The byte counts from 0 at the start of the text,
    /// a byte order mark included, and is that of the first byte that can't be accepted. A number,
    /// a literal and the second half of a surrogate pair are refused at their own first byte.
    std::string error;
};

/// No bound on the values of a document; one value takes about 100 bytes in memory, and 2 of text.
inline constexpr std::size_t AnyNumberOfValues = static_cast<std::size_t>(-1);

/// Reads a whole document, with or without a byte order mark: one value, white space around it.
/// Arrays and objects nest 64 deep at most; a repeated key keeps its first place and its last
/// value; numbers that no double can hold are refused, and so are documents of more than
/// `mostValues` values, those inside of others counted too. On failure `value` must not be used.
JsonParseResult JsonParse(std::string_view text, JsonValue& value,
                          std::size_t mostValues = AnyNumberOfValues);

/// Liberties in the form of a written document.
struct JsonWriteOptions {
    /// An array that holds numbers alone is written "[1, 2, 3]" instead of one number a line.
    bool numberArraysOnOneLine = false;
};

/// Writes a document: one tab a level, "\n" at each line's end and at the end of the document,
/// members in their order, numbers in the shortest form that reads back, `null` for a number that
/// is not finite. The same value always gives the same bytes.
std::string JsonWrite(const JsonValue& value, const JsonWriteOptions& options = {});

} // namespace Merivane::Catalog
