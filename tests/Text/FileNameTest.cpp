#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Text/FileName.hpp"

namespace Merivane::Text {
namespace {

TEST(FileNameOf, IsANameOnEverySystem) {
    struct Case {
        std::string title;
        std::string name;
    };
    const std::vector<Case> cases = {
        {"Sala 1", "Sala 1"},
        {"a<b>c:d\"e/f\\g|h?i*j\tk", "a-b-c-d-e-f-g-h-i-j-k"},
        {"  meio. . ", "meio"},
        {"", "_"},
        {"...", "_"},
        {".oculto", "_.oculto"},
        {"-x", "_-x"},
        {"nul.txt", "_nul.txt"},
        {"Com3", "_Com3"},
        {"Com", "Com"},
        {"con .txt", "_con .txt"},
        {"lpt\xC2\xB2", "_lpt\xC2\xB2"},
        {"conin$", "_conin$"},
        {"com10", "com10"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FileNameOf(c.title), c.name) << c.title;
    }
}

TEST(FileNameOf, CutsALongTitleBetweenLetters) {
    const std::string letters(119, 'a');
    EXPECT_EQ(FileNameOf(letters + "\xC3\xA7\xC3\xA3o"), letters);
}

} // namespace
} // namespace Merivane::Text
