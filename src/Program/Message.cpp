#include "Program/Message.hpp"

#include <cstdio>

namespace Merivane::Program {

namespace {

void Put(std::string_view text, std::FILE* stream) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

} // namespace

void TellError(std::string_view sentence) {
    Put("vantoro: ", stderr);
    Put(sentence, stderr);
    Put(sentence.ends_with('.') || sentence.ends_with('?') ? "\n" : ".\n", stderr);
}

void TellErrorAtAddress(std::string_view sentence) {
    Put("vantoro: ", stderr);
    Put(sentence, stderr);
    Put("\n", stderr);
}

void TellLine(std::string_view line) {
    Put(line, stdout);
    Put("\n", stdout);
}

} // namespace Merivane::Program
