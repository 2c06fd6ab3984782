#include "Text/Utf8.hpp"

#include <algorithm>

namespace Merivane::Text {

namespace {

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// Length of the sequence that begins at `text[0]`, 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    std::size_t length = 0;
    if (lead < 0x80) {
        length = 1;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
    }
    if (length > text.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(text[i])) {
            return 0;
        }
    }
    return length;
}

char32_t DecodeSequence(std::string_view sequence) {
    const auto lead = static_cast<unsigned char>(sequence[0]);
    if (sequence.size() == 1) {
        return lead;
    }
    char32_t code = lead & (0x7FU >> sequence.size());
    for (const char c : sequence.substr(1)) {
        code = (code << 6U) | (static_cast<unsigned char>(c) & 0x3FU);
    }
    return code;
}

void AppendWide(std::wstring& wide, char32_t code) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (code >= 0x10000) {
            wide.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10U)));
            wide.push_back(static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FFU)));
            return;
        }
    }
    wide.push_back(static_cast<wchar_t>(code));
}

bool IsHighSurrogate(char32_t code) {
    return code >= 0xD800 && code <= 0xDBFF;
}

bool IsLowSurrogate(char32_t code) {
    return code >= 0xDC00 && code <= 0xDFFF;
}

bool IsSurrogate(char32_t code) {
    return IsHighSurrogate(code) || IsLowSurrogate(code);
}

} // namespace

std::string TruncateUtf8(std::string_view text, std::size_t maximumBytes) {
    if (text.size() <= maximumBytes) {
        return std::string(text);
    }
    // Only a sequence that crosses the cut moves it; bytes that form none are cut where they are.
    constexpr std::size_t mostContinuations = 3;
    for (std::size_t back = 1; back <= std::min(maximumBytes, mostContinuations); ++back) {
        if (SequenceLength(text.substr(maximumBytes - back)) > back) {
            return std::string(text.substr(0, maximumBytes - back));
        }
    }
    return std::string(text.substr(0, maximumBytes));
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = SequenceLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

void AppendUtf8(std::string& text, char32_t code) {
    const auto push = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        push(code);
    } else if (code < 0x800) {
        push(0xC0U | (code >> 6U));
        push(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
        push(0xE0U | (code >> 12U));
        push(0x80U | ((code >> 6U) & 0x3FU));
        push(0x80U | (code & 0x3FU));
    } else {
        push(0xF0U | (code >> 18U));
        push(0x80U | ((code >> 12U) & 0x3FU));
        push(0x80U | ((code >> 6U) & 0x3FU));
        push(0x80U | (code & 0x3FU));
    }
}

std::wstring Widen(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    while (!text.empty()) {
        std::size_t length = SequenceLength(text);
        const char32_t code = length == 0 ? 0 : DecodeSequence(text.substr(0, length));
        // A surrogate told in UTF-8, an overlong form and a code beyond Unicode would not come
        // back as the same bytes; they travel byte by byte.
        const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
        if (length == 0 || IsSurrogate(code) || overlong || code > 0x10FFFF) {
            wide.push_back(static_cast<wchar_t>(0xDC00 + static_cast<unsigned char>(text[0])));
            length = 1;
        } else {
            AppendWide(wide, code);
        }
        text.remove_prefix(length);
    }
    return wide;
}

std::string Narrow(std::wstring_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<char32_t>(text[i]);
        const bool pair = sizeof(wchar_t) == 2 && IsHighSurrogate(code) && i + 1 < text.size() &&
                          IsLowSurrogate(static_cast<char32_t>(text[i + 1]));
        if (pair) {
            const auto low = static_cast<char32_t>(text[++i]);
            AppendUtf8(narrow, 0x10000 + ((code - 0xD800) << 10U) + (low - 0xDC00));
        } else if (code >= 0xDC80 && code <= 0xDCFF) {
            narrow.push_back(static_cast<char>(code - 0xDC00));
        } else {
            AppendUtf8(narrow, code);
        }
    }
    return narrow;
}

} // namespace Merivane::Text
