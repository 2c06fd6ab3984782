#include "Workbench/PreferencesFile.hpp"

#include <cmath>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "Catalog/Json.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::JsonValue;

constexpr double Format = 1.0;
constexpr std::string_view HexDigits = "0123456789abcdef";

std::string ToHex(std::string_view bytes) {
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += HexDigits[byte / 16];
        hex += HexDigits[byte % 16];
    }
    return hex;
}

bool FromHex(std::string_view hex, std::string& bytes) {
    if (hex.size() % 2 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const std::size_t high = HexDigits.find(hex[i]);
        const std::size_t low = HexDigits.find(hex[i + 1]);
        if (high == std::string_view::npos || low == std::string_view::npos) {
            return false;
        }
        bytes += static_cast<char>(high * 16 + low);
    }
    return true;
}

bool IsVersion(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    return number >= Limits::min() && number <= Limits::max() && number == std::floor(number);
}

} // namespace

std::string FormatPreferences(const Preferences& preferences) {
    JsonValue root;
    root.Set("formato", JsonValue::MakeNumber(Format));
    root.Set("versao", JsonValue::MakeNumber(preferences.version));
    root.Set("bloco", JsonValue::MakeString(ToHex(preferences.block)));
    return Catalog::JsonWrite(root);
}

bool ParsePreferences(std::string_view text, Preferences& preferences) {
    JsonValue root;
    if (!Catalog::JsonParse(text, root).ok || root.NumberOr("formato", 0.0) != Format) {
        return false;
    }
    const double version = root.NumberOr("versao", std::nan(""));
    const JsonValue* const hex = root.Find("bloco");
    Preferences read;
    if (!IsVersion(version) || !hex || hex->kind != Catalog::JsonKind::String ||
        !FromHex(hex->text, read.block)) {
        return false;
    }
    read.version = static_cast<std::int32_t>(version);
    preferences = std::move(read);
    return true;
}

bool LoadPreferences(const std::wstring& path, Preferences& preferences) {
    std::error_code code;
    const auto status = std::filesystem::status(Text::NativePath(path), code);
    if (status.type() == std::filesystem::file_type::not_found) {
        preferences = {};
        return true;
    }
    std::string text;
    return Text::ReadFileBytes(path, text) && ParsePreferences(text, preferences);
}

bool SavePreferences(const std::wstring& path, const Preferences& preferences) {
    Preferences present;
    if (!LoadPreferences(path, present)) {
        return false;
    }
    std::error_code ignored; // without its folder the file can't be written, which tells the same
    std::filesystem::create_directories(Text::NativePath(path).parent_path(), ignored);
    return Text::ReplaceFile(path, FormatPreferences(preferences));
}

} // namespace Merivane::Workbench
