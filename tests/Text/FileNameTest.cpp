#include <string>

#include <gtest/gtest.h>

#include "Text/FileName.hpp"

namespace Merivane::Text {
namespace {

TEST(FileNameOf, IsANameOnEverySystem) {
    struct Case {
        std::string title;
        std::string name;
    };
    const Case cases[] = {
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
        {std::string(119, 'a') + "ção", std::string(119, 'a')},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FileNameOf(c.title), c.name) << c.title;
    }
}

} // namespace
} // namespace Merivane::Text
