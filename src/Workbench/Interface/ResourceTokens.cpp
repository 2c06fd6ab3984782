#include "Workbench/Interface/ResourceTokens.hpp"

#include <charconv>

#include "Text/Ascii.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t TypeLength = 4;

bool IsWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool IsWordPart(char c) {
    return IsWordStart(c) || Text::IsDigit(c);
}

struct Splitter {
    std::string_view script;
    std::size_t at = 0;
    int line = 1;
    std::vector<ResourceToken> tokens;
    std::string error;

    bool Refuse(std::string_view reason) {
        error = "linha " + std::to_string(line) + ": " + std::string(reason);
        return false;
    }

    void Add(TokenKind kind, std::string text) {
        tokens.push_back({kind, std::move(text), line, 0});
    }

    bool AtEnd() const { return at >= script.size(); }
};

bool SkipComment(Splitter& splitter) {
    const bool toLineEnd = splitter.script[splitter.at + 1] == '/';
    const std::size_t end = splitter.script.find(
        toLineEnd ? std::string_view("\n") : std::string_view("*/"), splitter.at + 2);
    if (end == std::string_view::npos) {
        splitter.at = splitter.script.size();
        return toLineEnd || splitter.Refuse("comentário sem fim");
    }
    for (; splitter.at < end; ++splitter.at) {
        splitter.line += splitter.script[splitter.at] == '\n' ? 1 : 0;
    }
    splitter.at = toLineEnd ? end : end + 2;
    return true;
}

bool AppendEscape(Splitter& splitter, std::string& text) {
    const std::size_t next = splitter.at + 1;
    const char c = next < splitter.script.size() ? splitter.script[next] : '\0';
    switch (c) {
    case 'n':
        text += '\n';
        break;
    case 't':
        text += '\t';
        break;
    case '"':
        text += '"';
        break;
    case '\\':
        text += '\\';
        break;
    default:
        return splitter.Refuse("sequência com barra invertida desconhecida em um texto");
    }
    splitter.at += 2;
    return true;
}

bool ReadText(Splitter& splitter) {
    std::string text;
    for (++splitter.at; !splitter.AtEnd();) {
        const char c = splitter.script[splitter.at];
        if (c == '"') {
            ++splitter.at;
            splitter.Add(TokenKind::Text, std::move(text));
            return true;
        }
        if (c == '\n' || c == '\r') {
            break;
        }
        if (c == '\\') {
            if (!AppendEscape(splitter, text)) {
                return false;
            }
        } else {
            text += c;
            ++splitter.at;
        }
    }
    return splitter.Refuse("texto sem aspas no fim");
}

bool ReadType(Splitter& splitter) {
    const std::size_t end = splitter.at + 1 + TypeLength;
    if (end >= splitter.script.size() || splitter.script[end] != '\'') {
        return splitter.Refuse("o tipo de um recurso tem quatro caracteres entre apóstrofos");
    }
    const std::string_view type = splitter.script.substr(splitter.at + 1, TypeLength);
    if (type.find_first_of("\r\n'") != std::string_view::npos) {
        return splitter.Refuse("o tipo de um recurso tem quatro caracteres entre apóstrofos");
    }
    splitter.Add(TokenKind::Type, std::string(type));
    splitter.at = end + 1;
    return true;
}

bool ReadInteger(Splitter& splitter) {
    const std::string_view rest = splitter.script.substr(splitter.at);
    int number = 0;
    const auto read = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (read.ec != std::errc()) {
        return splitter.Refuse("número inválido");
    }
    const auto length = static_cast<std::size_t>(read.ptr - rest.data());
    if (length < rest.size() && (IsWordPart(rest[length]) || rest[length] == '.')) {
        return splitter.Refuse("número inválido");
    }
    splitter.Add(TokenKind::Number, std::string(rest.substr(0, length)));
    splitter.tokens.back().number = number;
    splitter.at += length;
    return true;
}

void ReadWord(Splitter& splitter) {
    const std::size_t begin = splitter.at;
    while (!splitter.AtEnd() && IsWordPart(splitter.script[splitter.at])) {
        ++splitter.at;
    }
    splitter.Add(TokenKind::Word, std::string(splitter.script.substr(begin, splitter.at - begin)));
}

bool ReadToken(Splitter& splitter) {
    const char c = splitter.script[splitter.at];
    const char next =
        splitter.at + 1 < splitter.script.size() ? splitter.script[splitter.at + 1] : '\0';
    if (c == '/' && (next == '*' || next == '/')) {
        return SkipComment(splitter);
    }
    if (c == '"') {
        return ReadText(splitter);
    }
    if (c == '\'') {
        return ReadType(splitter);
    }
    if (c == '-' || Text::IsDigit(c)) {
        return ReadInteger(splitter);
    }
    if (IsWordStart(c)) {
        ReadWord(splitter);
        return true;
    }
    if (c == '{' || c == '}' || c == '|') {
        splitter.Add(TokenKind::Sign, std::string(1, c));
        ++splitter.at;
        return true;
    }
    return splitter.Refuse(c == '#' ? "diretivas do pré-processador não são lidas"
                                    : "caractere inesperado");
}

bool IsText(Splitter& splitter) {
    for (std::size_t begin = 0; begin < splitter.script.size(); ++splitter.line) {
        const std::size_t end = splitter.script.find('\n', begin);
        const std::string_view text = splitter.script.substr(begin, end - begin);
        if (!Text::IsUtf8(text) || text.find('\0') != std::string_view::npos) {
            return splitter.Refuse("não é texto em UTF-8");
        }
        begin = end == std::string_view::npos ? splitter.script.size() : end + 1;
    }
    splitter.line = 1;
    return true;
}

bool SplitAll(Splitter& splitter) {
    while (!splitter.AtEnd()) {
        const char c = splitter.script[splitter.at];
        if (Text::IsWhiteSpace(c)) {
            splitter.line += c == '\n' ? 1 : 0;
            ++splitter.at;
        } else if (!ReadToken(splitter)) {
            return false;
        }
    }
    splitter.Add(TokenKind::End, {});
    return true;
}

} // namespace

bool SplitResourceScript(std::string_view script, std::vector<ResourceToken>& tokens,
                         std::string& error) {
    if (script.starts_with(ByteOrderMark)) {
        script.remove_prefix(ByteOrderMark.size());
    }
    Splitter splitter{script, 0, 1, {}, {}};
    if (!IsText(splitter) || !SplitAll(splitter)) {
        error = std::move(splitter.error);
        return false;
    }
    tokens = std::move(splitter.tokens);
    return true;
}

} // namespace Merivane::Workbench
