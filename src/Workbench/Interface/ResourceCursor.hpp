#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Interface/ResourceTokens.hpp"

namespace Merivane::Workbench {

/// A place among the tokens of a resource script. Each `Read` takes the token that it expects;
/// where another stands it returns false with `error` set, "linha N: " in front.
struct ResourceCursor {
    std::vector<ResourceToken> tokens; ///< the last one is an `End`
    std::size_t at = 0;
    std::string error;

    const ResourceToken& Now() const;
    bool AtEnd() const;

    bool ReadType(std::string& type);
    bool ReadWord(std::string& word);
    bool ReadText(std::string& text);
    bool ReadNumber(int& number);
    bool ReadSmallNumber(int& number); ///< one that fits into 16 bits
    bool ReadSign(std::string_view sign);

    /// Takes the sign when it stands here.
    bool TakeSign(std::string_view sign);

    /// Takes any token but the end.
    bool Skip();

    /// Always false: sets `error` at the present token, or at the one before it.
    bool Refuse(std::string_view reason);
    bool RefuseLast(std::string_view reason);
};

} // namespace Merivane::Workbench
