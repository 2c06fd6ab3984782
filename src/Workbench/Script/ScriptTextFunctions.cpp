#include <algorithm>
#include <cmath>
#include <string>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"
#include "Workbench/Script/ScriptFunctions.hpp"
#include "Workbench/Script/ScriptNumberFormat.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// Places in texts count characters from 1, whatever bytes UTF-8 gives them.
namespace Merivane::Workbench {

namespace {

bool GiveNumber(FunctionCall& call, double number) {
    call.result = NumberValue(number);
    return true;
}

bool GiveText(ScriptMachine& machine, FunctionCall& call, std::string text) {
    if (text.size() > machine.environment->limits.textBytes) {
        return Fail(machine, "o texto fica longo demais");
    }
    call.result = TextValue(std::move(text));
    return true;
}

bool NeedsText(ScriptMachine& machine, const FunctionCall& call, std::size_t place) {
    return call.values[place].isText || Fail(machine, "falta um texto, há um número");
}

bool NeedsNumber(ScriptMachine& machine, const FunctionCall& call, std::size_t place) {
    return !call.values[place].isText || Fail(machine, "falta um número, há um texto");
}

/// True for a byte that begins a character.
bool BeginsCharacter(char c) {
    constexpr unsigned continuationMask = 0xC0;
    constexpr unsigned continuation = 0x80;
    return (static_cast<unsigned char>(c) & continuationMask) != continuation;
}

std::size_t CountCharacters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

/// Byte at which character `index` (from 0) begins; the text's end where it has fewer.
std::size_t CharacterPlace(std::string_view text, std::size_t index) {
    std::size_t seen = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (BeginsCharacter(text[i]) && seen++ == index) {
            return i;
        }
    }
    return text.size();
}

/// STR (number, length, decimals), STR (format, number) and its second version.
bool ToText(ScriptMachine& machine, FunctionCall& call) {
    if (call.values[0].isText) {
        return NeedsNumber(machine, call, 1) &&
               GiveText(machine, call, FormatByUnit(call.values[0].text, call.values[1].number));
    }
    if (call.valueCount < 3) {
        return Fail(machine, "STR leva número, comprimento e casas, ou formato e número");
    }
    return NeedsNumber(machine, call, 1) && NeedsNumber(machine, call, 2) &&
           GiveText(machine, call,
                    FormatWidth(call.values[0].number, WholeNumber(call.values[1].number),
                                WholeNumber(call.values[2].number)));
}

bool Length(ScriptMachine& machine, FunctionCall& call) {
    return NeedsText(machine, call, 0) &&
           GiveNumber(call, static_cast<double>(CountCharacters(call.values[0].text)));
}

bool FindText(ScriptMachine& machine, FunctionCall& call) {
    if (!NeedsText(machine, call, 0) || !NeedsText(machine, call, 1)) {
        return false;
    }
    const bool anyCase = call.valueCount > 2 && call.values[2].number != 0.0;
    const std::string text = anyCase ? Text::ToUpper(call.values[0].text) : call.values[0].text;
    const std::string wanted = anyCase ? Text::ToUpper(call.values[1].text) : call.values[1].text;
    const std::size_t found = text.find(wanted);
    // The search is charged: it can be long where both texts are.
    if (!Charge(machine, text.size() / SmallText * (1 + wanted.size() / SmallText))) {
        return false;
    }
    return GiveNumber(call, found == std::string::npos
                                ? 0.0
                                : 1.0 + static_cast<double>(CountCharacters(
                                            std::string_view{text}.substr(0, found))));
}

bool CutText(ScriptMachine& machine, FunctionCall& call) {
    if (!NeedsText(machine, call, 0) || !NeedsNumber(machine, call, 1) ||
        !NeedsNumber(machine, call, 2)) {
        return false;
    }
    const std::string& text = call.values[0].text;
    const std::int32_t from = std::max(1, WholeNumber(call.values[1].number));
    const std::int32_t count = std::max(0, WholeNumber(call.values[2].number));
    const std::size_t begin = CharacterPlace(text, static_cast<std::size_t>(from - 1));
    const std::size_t length =
        CharacterPlace(std::string_view{text}.substr(begin), static_cast<std::size_t>(count));
    return GiveText(machine, call, text.substr(begin, length));
}

bool Upper(ScriptMachine& machine, FunctionCall& call) {
    return NeedsText(machine, call, 0) &&
           GiveText(machine, call, Text::ToUpper(call.values[0].text));
}

bool Lower(ScriptMachine& machine, FunctionCall& call) {
    return NeedsText(machine, call, 0) &&
           GiveText(machine, call, Text::ToLower(call.values[0].text));
}

/// Advance of a character in em of a plain sans-serif face, by classes of letters.
double CharacterAdvance(char c) {
    constexpr double narrow = 0.25;
    constexpr double ordinary = 0.55;
    constexpr double capital = 0.68;
    constexpr double wide = 0.85;
    if (std::string_view(" ijlft.,:;!|'`()[]I/\\-").find(c) != std::string_view::npos) {
        return narrow;
    }
    if (c == 'm' || c == 'w' || c == 'M' || c == 'W' || c == '%' || c == '@') {
        return wide;
    }
    return c >= 'A' && c <= 'Z' ? capital : ordinary;
}

bool Width(ScriptMachine& machine, FunctionCall& call) {
    // A style's size is the height of its capitals.
    constexpr double capitalsInEm = 0.716;
    double advance = 0.0;
    for (const char c : ShownValue(call.values[0])) {
        advance += BeginsCharacter(c) ? CharacterAdvance(c) : 0.0;
    }
    return GiveNumber(call, advance * machine.look.style.size / capitalsInEm);
}

/// Follows a format through a text.
struct Splitting {
    std::string_view text;
    std::string_view format;
    std::size_t place = 0;
    std::size_t formatPlace = 0;
};

/// The words of a format up to its next field.
std::string_view NextConstant(const Splitting& split) {
    const std::string_view rest = split.format.substr(split.formatPlace);
    return rest.substr(0, rest.find('%'));
}

/// Steps over the constant text of both; false where they differ.
bool PassConstant(Splitting& split) {
    const std::string_view constant = NextConstant(split);
    if (split.text.substr(split.place, constant.size()) != constant) {
        return false;
    }
    split.place += constant.size();
    split.formatPlace += constant.size();
    return true;
}

bool IsNumberByte(char c) {
    return Text::IsDigit(c) || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E';
}

/// The number at a field's place; what follows it need not be blank.
bool ReadField(Splitting& split, ScriptValue& value) {
    std::string_view rest = split.text.substr(split.place);
    const char kind = split.format[split.formatPlace + 1];
    split.formatPlace += 2;
    if (kind == 's') {
        const std::string_view until = NextConstant(split);
        const std::size_t end = until.empty() ? rest.size() : rest.find(until);
        rest = rest.substr(0, end);
        value = TextValue(std::string(rest));
        split.place += rest.size();
        return true;
    }
    std::size_t blanks = 0;
    while (blanks < rest.size() && rest[blanks] == ' ') {
        ++blanks;
    }
    std::size_t length = blanks;
    while (length < rest.size() && IsNumberByte(rest[length])) {
        ++length;
    }
    double number = 0.0;
    const std::size_t read = Text::ReadNumber(rest.substr(blanks, length - blanks), number);
    if (read == 0 || !std::isfinite(number)) {
        return false;
    }
    value = NumberValue(number);
    split.place += blanks + read;
    return true;
}

bool AtField(const Splitting& split) {
    const std::size_t next = split.formatPlace + 1;
    return next < split.format.size() && split.format[split.formatPlace] == '%' &&
           (split.format[next] == 'n' || split.format[next] == 's');
}

bool Split(ScriptMachine& machine, FunctionCall& call) {
    if (!NeedsText(machine, call, 0) || !NeedsText(machine, call, 1)) {
        return false;
    }
    Splitting split{call.values[0].text, call.values[1].text};
    std::vector<ScriptValue> values;
    while (values.size() < call.placeCount && PassConstant(split) && AtField(split)) {
        ScriptValue value;
        if (!ReadField(split, value)) {
            break;
        }
        values.push_back(std::move(value));
    }
    const double count = static_cast<double>(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!WritePlace(machine, call.places[i], values[i])) {
            return false;
        }
    }
    return GiveNumber(call, count);
}

constexpr std::int32_t Any = 1000;

constexpr FunctionEntry Entries[] = {
    {"STR", 2, 3, ToText, -1, false, "(number, length, decimals) or (format, number)"},
    {"STR{2}", 2, 3, ToText, -1, false, "the same"},
    {"STRLEN", 1, 1, Length, -1, false, "characters of a text"},
    {"STRSTR", 2, 3, FindText, -1, false,
     "place of a text in another, 0 = none; a third 1 ignores the case"},
    {"STRSUB", 3, 3, CutText, -1, false, "(text, from, number of characters)"},
    {"STRTOUPPER", 1, 1, Upper, -1, false, "ASCII letters to capitals"},
    {"STRTOLOWER", 1, 1, Lower, -1, false, "ASCII letters to small ones"},
    {"STW", 1, 1, Width, -1, false,
     "width on paper in mm in the current style, estimated from the size"},
    {"SPLIT", 3, Any, Split, 2, false,
     "(text, format, variables): %s a text, %n a number; gives how many were read"},
};

} // namespace

std::span<const FunctionEntry> TextFunctions() {
    return Entries;
}

} // namespace Merivane::Workbench
