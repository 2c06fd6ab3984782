#include <charconv>
#include <system_error>
#include <utility>

#include "Catalog/Json.hpp"
#include "Catalog/JsonPlainText.hpp"
#include "Text/Ascii.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Catalog {

namespace {

constexpr int DeepestLevel = 64;
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// Recursive descent: the depth limit bounds the stack. Each reader leaves `position` behind what it
// read; one that refuses leaves it at the byte it can't accept, with the reason in `message`.
class Parser {
public:
    Parser(std::string_view document, std::size_t mostValues)
        : text(document), valuesLeft(mostValues) {}

    JsonParseResult ParseDocument(JsonValue& value);

private:
    bool ParseValue(JsonValue& value, int depth);
    bool ParseLiteral(std::string_view literal, JsonKind kind, JsonValue& value);
    bool ParseArray(JsonValue& value, int depth);
    bool ParseObject(JsonValue& value, int depth);
    bool ParseMember(JsonValue& value, int depth);
    template <typename ParseElement>
    bool ParseElements(char close, const char* expected, const ParseElement& parseElement);
    bool ParseString(std::string& string);
    bool ParseEscape(std::string& string);
    bool ParseCodePoint(std::string& string);
    bool ParseHexDigits(char32_t& code);
    bool ParseNumber(JsonValue& value);

    bool AtEnd() const { return position >= text.size(); }
    bool Next(char c) const { return !AtEnd() && text[position] == c; }
    void SkipWhiteSpace();
    bool Fail(const char* reason);

    std::string_view text;
    std::size_t position = 0;
    std::size_t valuesLeft;
    std::string_view message;
};

bool Parser::Fail(const char* reason) {
    message = reason;
    return false;
}

void Parser::SkipWhiteSpace() {
    while (Next(' ') || Next('\n') || Next('\t') || Next('\r')) {
        ++position;
    }
}

JsonParseResult Parser::ParseDocument(JsonValue& value) {
    if (text.starts_with(ByteOrderMark)) {
        position = ByteOrderMark.size();
    }
    SkipWhiteSpace();
    bool ok = ParseValue(value, 0);
    if (ok) {
        SkipWhiteSpace();
        ok = AtEnd() || Fail("conteudo depois do valor");
    }
    if (ok) {
        return {true, {}};
    }
    const std::string reason(message.empty() ? "JSON invalido" : message);
    return {false, reason + " (byte " + std::to_string(position) + ")"};
}

bool Parser::ParseValue(JsonValue& value, int depth) {
    if (depth > DeepestLevel) {
        return Fail("aninhamento profundo demais");
    }
    if (AtEnd()) {
        return Fail("fim inesperado");
    }
    if (valuesLeft == 0) {
        return Fail("valores demais");
    }
    --valuesLeft;
    switch (text[position]) {
    case '{':
        return ParseObject(value, depth);
    case '[':
        return ParseArray(value, depth);
    case '"':
        value.kind = JsonKind::String;
        return ParseString(value.text);
    case 't':
        value.boolean = true;
        return ParseLiteral("true", JsonKind::Boolean, value);
    case 'f':
        return ParseLiteral("false", JsonKind::Boolean, value);
    case 'n':
        return ParseLiteral("null", JsonKind::Null, value);
    default:
        return text[position] == '-' || Text::IsDigit(text[position]) ? ParseNumber(value)
                                                                      : Fail("valor inesperado");
    }
}

bool Parser::ParseLiteral(std::string_view literal, JsonKind kind, JsonValue& value) {
    if (!text.substr(position).starts_with(literal)) {
        return Fail("valor inesperado");
    }
    value.kind = kind;
    position += literal.size();
    return true;
}

bool Parser::ParseArray(JsonValue& value, int depth) {
    value.kind = JsonKind::Array;
    return ParseElements(']', "esperava ',' ou ']'", [this, &value, depth] {
        return ParseValue(value.items.emplace_back(), depth + 1);
    });
}

bool Parser::ParseObject(JsonValue& value, int depth) {
    value.kind = JsonKind::Object;
    return ParseElements('}', "esperava ',' ou '}'",
                         [this, &value, depth] { return ParseMember(value, depth); });
}

// The whole of an array or object, from its opening bracket on.
template <typename ParseElement>
bool Parser::ParseElements(char close, const char* expected, const ParseElement& parseElement) {
    ++position;
    SkipWhiteSpace();
    if (Next(close)) {
        ++position;
        return true;
    }
    for (;;) {
        SkipWhiteSpace();
        if (!parseElement()) {
            return false;
        }
        SkipWhiteSpace();
        if (Next(close)) {
            ++position;
            return true;
        }
        if (!Next(',')) {
            return Fail(expected);
        }
        ++position;
    }
}

bool Parser::ParseMember(JsonValue& value, int depth) {
    if (!Next('"')) {
        return Fail("esperava o nome de um membro");
    }
    std::string key;
    if (!ParseString(key)) {
        return false;
    }
    SkipWhiteSpace();
    if (!Next(':')) {
        return Fail("esperava ':'");
    }
    ++position;
    SkipWhiteSpace();
    JsonValue member;
    if (!ParseValue(member, depth + 1)) {
        return false;
    }
    value.members.Set(std::move(key), std::move(member));
    return true;
}

bool Parser::ParseString(std::string& string) {
    ++position;
    for (;;) {
        const std::size_t plain = PlainLength(text.substr(position));
        string.append(text, position, plain);
        position += plain;
        if (AtEnd()) {
            return Fail("texto sem aspas de fechamento");
        }
        if (text[position] == '"') {
            ++position;
            return true;
        }
        if (text[position] != '\\') {
            return Fail("caractere de controle dentro de texto");
        }
        ++position;
        if (!ParseEscape(string)) {
            return false;
        }
    }
}

bool Parser::ParseEscape(std::string& string) {
    if (AtEnd()) {
        return Fail("texto sem aspas de fechamento");
    }
    constexpr std::string_view Letters = "\"\\/bfnrt";
    constexpr std::string_view Bytes = "\"\\/\b\f\n\r\t";
    const char letter = text[position];
    if (letter == 'u') {
        ++position;
        return ParseCodePoint(string);
    }
    const std::size_t found = Letters.find(letter);
    if (found == std::string_view::npos) {
        return Fail("escape invalido");
    }
    string.push_back(Bytes[found]);
    ++position;
    return true;
}

bool Parser::ParseCodePoint(std::string& string) {
    char32_t code = 0;
    if (!ParseHexDigits(code)) {
        return false;
    }
    if (code >= 0xD800 && code <= 0xDBFF) {
        if (!text.substr(position).starts_with("\\u")) {
            return Fail("par substituto incompleto");
        }
        position += 2;
        const std::size_t start = position;
        char32_t low = 0;
        if (!ParseHexDigits(low) || low < 0xDC00 || low > 0xDFFF) {
            position = start;
            return Fail("par substituto invalido");
        }
        code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
    }
    Text::AppendUtf8(string, code);
    return true;
}

bool Parser::ParseHexDigits(char32_t& code) {
    constexpr std::size_t Count = 4;
    if (text.size() - position < Count) {
        return Fail("escape \\u incompleto");
    }
    code = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        const char c = text[position];
        char32_t digit = 0;
        if (Text::IsDigit(c)) {
            digit = static_cast<char32_t>(c - '0');
        } else if (c >= 'a' && c <= 'f') {
            digit = static_cast<char32_t>(c - 'a' + 10);
        } else if (c >= 'A' && c <= 'F') {
            digit = static_cast<char32_t>(c - 'A' + 10);
        } else {
            return Fail("escape \\u invalido");
        }
        code = code * 16 + digit;
        ++position;
    }
    return true;
}

// More than the number grammar of the standard is taken ("007", "1."): files are written by hand.
bool Parser::ParseNumber(JsonValue& value) {
    const std::size_t start = position;
    if (Next('-')) {
        ++position;
    }
    const auto belongs = [](char c) {
        return Text::IsDigit(c) || c == '.' || c == 'e' || c == 'E' || c == '+' || c == '-';
    };
    while (!AtEnd() && belongs(text[position])) {
        ++position;
    }
    const char* const end = text.data() + position;
    const auto read = std::from_chars(text.data() + start, end, value.number);
    if (read.ec != std::errc() || read.ptr != end) {
        position = start;
        return Fail("numero invalido");
    }
    value.kind = JsonKind::Number;
    return true;
}

} // namespace

JsonParseResult JsonParse(std::string_view text, JsonValue& value, std::size_t mostValues) {
    value = JsonValue();
    return Parser(text, mostValues).ParseDocument(value);
}

} // namespace Merivane::Catalog
