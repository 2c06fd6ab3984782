#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Workbench/Interface/MenuText.hpp"

namespace Merivane::Workbench {
namespace {

TEST(MenuText, PartsTheMarksFromTheText) {
    struct Case {
        std::string string;
        MenuItemText expected;
    };
    const Case cases[] = {
        {"Calcular ^E3 ^ES ^10006", {"Calcular", {"E3", "ES"}, 10006}},
        {"Calcular", {"Calcular", {}, 0}},
        {"Oculto no menu ^~10006", {"Oculto no menu", {}, 10006}},
        {"Elevar x ^ y ^e3", {"Elevar x ^ y ^e3", {}, 0}}, // small letters are no mark
        {"^E3 no meio", {"^E3 no meio", {}, 0}},
        {"^G", {"", {"G"}, 0}},
        {"", {"", {}, 0}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ReadMenuItem(c.string), c.expected) << c.string;
    }
}

TEST(MenuText, NamesMenuAndGroupBeforeTheItems) {
    const MenuItemText item{"a", {}, 0};
    EXPECT_EQ(ReadMenuTexts({"M", "G", "a", "a"}), (MenuTexts{"M", "G", {item, item}}));
    EXPECT_EQ(ReadMenuTexts({"M", "a"}), (MenuTexts{"M", "", {item}}));
    EXPECT_EQ(ReadMenuTexts({"a"}), (MenuTexts{"", "", {item}}));
    EXPECT_EQ(ReadMenuTexts({}), MenuTexts());
}

} // namespace
} // namespace Merivane::Workbench
