#include <gtest/gtest.h>

#include "Text/XmlText.hpp"

namespace Merivane::Text {
namespace {

TEST(EscapeXml, WritesWhatHasAMeaningAsEntities) {
    EXPECT_EQ(EscapeXml("a < b & \"c\" > 'd'"), "a &lt; b &amp; &quot;c&quot; &gt; &#39;d&#39;");
    EXPECT_EQ(EscapeXml("Sala de reunião ≥ 500 lx"), "Sala de reunião ≥ 500 lx");
    EXPECT_EQ(EscapeXml(""), "");
}

} // namespace
} // namespace Merivane::Text
