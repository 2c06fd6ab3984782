#include "Workbench/PreferencesFile.hpp"

#include <cmath>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "Catalog/Json.hpp"
#include "Text/FileBytes.hpp"
#include "Text/Hex.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::JsonValue;

constexpr double Format = 1.0;

bool IsVersion(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    return number >= Limits::min() && number <= Limits::max() && number == std::floor(number);
}

} // namespace

std::string FormatPreferences(const Preferences& preferences) {
    JsonValue root;
    root.Set("formato", JsonValue::MakeNumber(Format));
    root.Set("versao", JsonValue::MakeNumber(preferences.version));
    root.Set("bloco", JsonValue::MakeString(Text::ToHex(preferences.block)));
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
        !Text::FromHex(hex->text, read.block)) {
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
