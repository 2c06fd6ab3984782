#include "Workbench/Interface/ResourceCursor.hpp"

#include <cstdint>
#include <limits>

namespace Merivane::Workbench {

namespace {

std::string Described(const ResourceToken& token) {
    if (token.kind == TokenKind::End) {
        return "o fim do arquivo";
    }
    const char* const quote = token.kind == TokenKind::Text   ? "\""
                              : token.kind == TokenKind::Type ? "'"
                                                              : "";
    return quote + token.text + quote;
}

bool Take(ResourceCursor& cursor, TokenKind kind, std::string_view expected, std::string& text) {
    const ResourceToken& token = cursor.Now();
    if (token.kind != kind) {
        return cursor.Refuse("esperava " + std::string(expected) + ", encontrei " +
                             Described(token));
    }
    text = token.text;
    ++cursor.at;
    return true;
}

std::string At(const ResourceToken& token, std::string_view reason) {
    return "linha " + std::to_string(token.line) + ": " + std::string(reason);
}

} // namespace

const ResourceToken& ResourceCursor::Now() const {
    return tokens[at];
}

bool ResourceCursor::AtEnd() const {
    return Now().kind == TokenKind::End;
}

bool ResourceCursor::ReadType(std::string& type) {
    return Take(*this, TokenKind::Type, "o tipo de um recurso", type);
}

bool ResourceCursor::ReadWord(std::string& word) {
    return Take(*this, TokenKind::Word, "uma palavra", word);
}

bool ResourceCursor::ReadText(std::string& text) {
    return Take(*this, TokenKind::Text, "um texto entre aspas", text);
}

bool ResourceCursor::ReadNumber(int& number) {
    std::string text;
    if (!Take(*this, TokenKind::Number, "um número", text)) {
        return false;
    }
    number = tokens[at - 1].number;
    return true;
}

bool ResourceCursor::ReadSmallNumber(int& number) {
    using Limits = std::numeric_limits<std::int16_t>;
    return ReadNumber(number) &&
           ((number >= Limits::min() && number <= Limits::max()) ||
            RefuseLast("o número " + std::to_string(number) + " não cabe em 16 bits"));
}

bool ResourceCursor::ReadSign(std::string_view sign) {
    return TakeSign(sign) ||
           Refuse("esperava '" + std::string(sign) + "', encontrei " + Described(Now()));
}

bool ResourceCursor::TakeSign(std::string_view sign) {
    if (Now().kind != TokenKind::Sign || Now().text != sign) {
        return false;
    }
    ++at;
    return true;
}

bool ResourceCursor::Skip() {
    if (AtEnd()) {
        return Refuse("esperava '}', encontrei o fim do arquivo");
    }
    ++at;
    return true;
}

bool ResourceCursor::Refuse(std::string_view reason) {
    error = At(Now(), reason);
    return false;
}

bool ResourceCursor::RefuseLast(std::string_view reason) {
    error = At(tokens[at > 0 ? at - 1 : 0], reason);
    return false;
}

} // namespace Merivane::Workbench
