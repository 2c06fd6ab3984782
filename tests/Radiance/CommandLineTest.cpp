#include <random>

#include <gtest/gtest.h>

#include "Radiance/CommandLine.hpp"

using namespace Merivane::Radiance;

namespace {

struct QuoteCase {
    std::wstring text;
    std::wstring quoted;
};

const QuoteCase QuoteCases[] = {
    {L"", L"\"\""},
    {L"abc", L"abc"},
    {L"-ab", L"-ab"},
    {L"a b", L"\"a b\""},
    {L" ", L"\" \""},
    {L"a\tb", L"\"a\tb\""},
    {L"a\nb", L"a\nb"}, // only blank, tab and quote part arguments
    {L"a'b", L"a'b"},
    {L"\"", L"\"\\\"\""},
    {L"a\"b", L"\"a\\\"b\""},
    {L"C:\\Radiance\\bin", L"C:\\Radiance\\bin"},
    {L"C:\\pasta\\", L"C:\\pasta\\"}, // no blank: no quotes, so nothing to escape
    {L"C:\\Meus Projetos\\", L"\"C:\\Meus Projetos\\\\\""},
    {L"C:\\a b\\\\", L"\"C:\\a b\\\\\\\\\""},
    {L"a\\b c", L"\"a\\b c\""}, // not in front of a quote: stays single
    {L"a\\\"b", L"\"a\\\\\\\"b\""},
    {L"a\\\\\"b", L"\"a\\\\\\\\\\\"b\""},
    {L"\\", L"\\"},
    {L"\\ \\", L"\"\\ \\\\\""},
    {L"lumin\u00e1ria", L"lumin\u00e1ria"},
    {L"lumin\u00e1ria 1", L"\"lumin\u00e1ria 1\""},
};

std::wstring RandomWord(std::mt19937& random) {
    const std::wstring letters = L"\\\\\\\"\"  \tab/\n\u00e9";
    std::uniform_int_distribution<std::size_t> length(0, 12);
    std::uniform_int_distribution<std::size_t> letter(0, letters.size() - 1);
    std::wstring word(length(random), L'x');
    for (wchar_t& c : word) {
        c = letters[letter(random)];
    }
    return word;
}

} // namespace

TEST(QuoteArgument, QuotesAsTheWindowsRuntimeReads) {
    for (const QuoteCase& c : QuoteCases) {
        EXPECT_TRUE(QuoteArgument(c.text) == c.quoted)
            << "text " << testing::PrintToString(c.text) << " gives "
            << testing::PrintToString(QuoteArgument(c.text));
    }
}

TEST(JoinCommandLine, PutsOneBlankBetweenProgramAndArguments) {
    EXPECT_EQ(JoinCommandLine(L"C:\\Program Files\\rtrace.exe", {L"-ab", L"2", L"", L"a b"}),
              L"\"C:\\Program Files\\rtrace.exe\" -ab 2 \"\" \"a b\"");
    EXPECT_EQ(JoinCommandLine(L"rtrace", {}), L"rtrace");
}

TEST(SplitCommandLine, TakesApartWhatAUserCouldType) {
    struct Case {
        std::wstring line;
        std::vector<std::wstring> words;
    };
    const Case cases[] = {
        {L"", {}},
        {L"  \t ", {}},
        {L"a b", {L"a", L"b"}},
        {L"  a \t b  ", {L"a", L"b"}},
        {L"\"/a b/rtrace\" -version", {L"/a b/rtrace", L"-version"}},
        {L"a\"b c\"d", {L"ab cd"}},
        {L"\"\"", {L""}},
        {L"\"a b", {L"a b"}},             // never closed: lasts to the end
        {L"\"a\\\\\" b", {L"a\\", L"b"}}, // an even number of backslashes: the quote closes
        {L"\"a\\\" b", {L"a\" b"}},       // an odd number: the quote is a character
        {L"\\\\server\\x y", {L"\\\\server\\x", L"y"}},
        {L"a\\", {L"a\\"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.line));
        EXPECT_EQ(SplitCommandLine(c.line), c.words);
    }
}

TEST(SplitCommandLine, GivesBackWhatWasJoined) {
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> count(0, 6);
    for (int run = 0; run < 20000; ++run) {
        std::vector<std::wstring> words;
        const int arguments = count(random);
        for (int i = 0; i <= arguments; ++i) {
            words.push_back(RandomWord(random));
        }
        const std::wstring line = JoinCommandLine(words[0], {words.begin() + 1, words.end()});
        ASSERT_EQ(SplitCommandLine(line), words) << testing::PrintToString(line);
    }
}
