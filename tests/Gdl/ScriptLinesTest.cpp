#include "Gdl/ScriptLines.hpp"

#include <gtest/gtest.h>

namespace Merivane::Photometry {
namespace {

TEST(WithCrLf, PutsACrInFrontOfEveryLf) {
    EXPECT_EQ(WithCrLf(""), "");
    EXPECT_EQ(WithCrLf("a"), "a");
    EXPECT_EQ(WithCrLf("a\nb\n\n"), "a\r\nb\r\n\r\n");
    EXPECT_EQ(WithCrLf("\n"), "\r\n");
}

TEST(WithCrLf, DoesNotLookAtWhatStandsThere) {
    EXPECT_EQ(WithCrLf("a\r\nb\r"), "a\r\r\nb\r");
}

} // namespace
} // namespace Merivane::Photometry
