#include "Workbench/Script/ScriptTokens.hpp"

#include <cstddef>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Workbench {

namespace {

struct Reader {
    std::string_view text;
    ScriptTokens& result;
    std::size_t place = 0;
    std::int32_t line = 1;
};

char Peek(const Reader& reader, std::size_t ahead = 0) {
    return reader.place + ahead < reader.text.size() ? reader.text[reader.place + ahead] : '\0';
}

bool AtLineEnd(const Reader& reader) {
    return Peek(reader) == '\n' || Peek(reader) == '\r';
}

void SkipLineEnd(Reader& reader) {
    reader.place += Peek(reader) == '\r' && Peek(reader, 1) == '\n' ? 2 : 1;
    ++reader.line;
}

bool Refuse(Reader& reader, std::string error) {
    reader.result.error = std::move(error);
    reader.result.errorLine = reader.line;
    return false;
}

ScriptToken& Add(Reader& reader, TokenKind kind) {
    ScriptToken& token = reader.result.tokens.emplace_back();
    token.kind = kind;
    token.line = reader.line;
    return token;
}

bool IsNameByte(char c) {
    constexpr unsigned char firstBeyondAscii = 0x80;
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '~' ||
           static_cast<unsigned char>(c) >= firstBeyondAscii;
}

/// The statement's version in braces behind its name.
std::size_t VersionLength(const Reader& reader) {
    if (Peek(reader) != '{') {
        return 0;
    }
    std::size_t length = 1;
    while (Text::IsDigit(Peek(reader, length))) {
        ++length;
    }
    return length > 1 && Peek(reader, length) == '}' ? length + 1 : 0;
}

void ReadWord(Reader& reader) {
    const std::size_t begin = reader.place;
    while (IsNameByte(Peek(reader)) || Text::IsDigit(Peek(reader))) {
        ++reader.place;
    }
    reader.place += VersionLength(reader);
    ScriptToken& token = Add(reader, TokenKind::Word);
    token.spelling = reader.text.substr(begin, reader.place - begin);
    token.text = Text::ToUpper(token.spelling);
}

std::size_t DigitsLength(const Reader& reader, std::size_t from) {
    std::size_t length = from;
    while (Text::IsDigit(Peek(reader, length))) {
        ++length;
    }
    return length - from;
}

bool ReadNumberToken(Reader& reader) {
    std::size_t length = DigitsLength(reader, 0);
    if (Peek(reader, length) == '.') {
        length += 1 + DigitsLength(reader, length + 1);
    }
    if (Peek(reader, length) == 'e' || Peek(reader, length) == 'E') {
        const char sign = Peek(reader, length + 1);
        const std::size_t signLength = sign == '+' || sign == '-' ? 1 : 0;
        const std::size_t digits = DigitsLength(reader, length + 1 + signLength);
        length += digits > 0 ? 1 + signLength + digits : 0;
    }
    const std::string_view digits = reader.text.substr(reader.place, length);
    double value = 0.0;
    constexpr double largest = 1e300;
    if (!Text::ReadEntireNumber(digits, value) || !(value <= largest)) {
        return Refuse(reader, "o número " + Text::QuotedText(digits) + " é grande demais");
    }
    Add(reader, TokenKind::Number).number = value;
    reader.place += length;
    return true;
}

/// A backslash inside a text. Where it begins no escape it stands for itself.
void ReadEscape(Reader& reader, std::string& text) {
    const char next = Peek(reader, 1);
    if (next == 'n' || next == 't' || next == '\\') {
        text += next == 'n' ? '\n' : (next == 't' ? '\t' : '\\');
        reader.place += 2;
    } else if (next == '\n' || next == '\r') {
        ++reader.place;
        SkipLineEnd(reader);
    } else {
        text += '\\';
        ++reader.place;
    }
}

bool ReadText(Reader& reader) {
    const char quote = Peek(reader);
    Add(reader, TokenKind::Text);
    ++reader.place;
    std::string text;
    while (Peek(reader) != quote) {
        if (reader.place >= reader.text.size() || AtLineEnd(reader)) {
            return Refuse(reader, "falta a aspa que fecha o texto");
        }
        if (Peek(reader) == '\\') {
            ReadEscape(reader, text);
        } else {
            text += reader.text[reader.place++];
        }
    }
    ++reader.place;
    reader.result.tokens.back().text = std::move(text);
    return true;
}

bool ReadSign(Reader& reader) {
    const char c = Peek(reader);
    const char next = Peek(reader, 1);
    char sign = c;
    std::size_t length = 2;
    if (c == '<' && next == '=') {
        sign = LessOrEqualSign;
    } else if (c == '>' && next == '=') {
        sign = GreaterOrEqualSign;
    } else if (c == '<' && next == '>') {
        sign = NotEqualSign;
    } else if (c == '*' && next == '*') {
        sign = PowerSign;
    } else if (std::string_view("+-*/^%=<>#&|@()[],:").find(c) != std::string_view::npos) {
        length = 1;
    } else {
        return Refuse(reader, "o caractere " +
                                  Text::QuotedText(reader.text.substr(reader.place, 1)) +
                                  " não pertence à linguagem");
    }
    Add(reader, TokenKind::Sign).sign = sign;
    reader.place += length;
    return true;
}

bool IsComma(const ScriptToken& token) {
    return token.kind == TokenKind::Sign && token.sign == ',';
}

/// A line end ends the statement, except behind a comma.
void ReadLineEnd(Reader& reader) {
    const std::vector<ScriptToken>& tokens = reader.result.tokens;
    if (!tokens.empty() && tokens.back().kind != TokenKind::EndOfLine && !IsComma(tokens.back())) {
        Add(reader, TokenKind::EndOfLine);
    }
    SkipLineEnd(reader);
}

void SkipComment(Reader& reader) {
    while (reader.place < reader.text.size() && !AtLineEnd(reader)) {
        ++reader.place;
    }
}

/// A backslash at a line's end joins the next line.
bool ReadContinuation(Reader& reader) {
    ++reader.place;
    while (Peek(reader) == ' ' || Peek(reader) == '\t') {
        ++reader.place;
    }
    if (Peek(reader) == '!') {
        SkipComment(reader);
    }
    if (reader.place < reader.text.size()) {
        if (!AtLineEnd(reader)) {
            return Refuse(reader, "uma barra invertida só vale no fim da linha");
        }
        SkipLineEnd(reader);
    }
    return true;
}

bool ReadToken(Reader& reader) {
    const char c = Peek(reader);
    if (AtLineEnd(reader)) {
        ReadLineEnd(reader);
        return true;
    }
    if (Text::IsWhiteSpace(c)) {
        ++reader.place;
        return true;
    }
    if (c == '!') {
        SkipComment(reader);
        return true;
    }
    if (c == '\\') {
        return ReadContinuation(reader);
    }
    if (c == '"' || c == '\'' || c == '`') {
        return ReadText(reader);
    }
    if (IsNameByte(c)) {
        ReadWord(reader);
        return true;
    }
    if (Text::IsDigit(c) || (c == '.' && Text::IsDigit(Peek(reader, 1)))) {
        return ReadNumberToken(reader);
    }
    return ReadSign(reader);
}

} // namespace

ScriptTokens ReadScriptTokens(std::string_view script) {
    ScriptTokens result;
    Reader reader{script, result};
    while (reader.place < script.size()) {
        if (!ReadToken(reader)) {
            return result;
        }
    }
    Add(reader, TokenKind::EndOfLine);
    Add(reader, TokenKind::EndOfScript);
    return result;
}

} // namespace Merivane::Workbench
