#include "Gdl/ScriptNames.hpp"

#include <gtest/gtest.h>

namespace Merivane::Photometry {
namespace {

TEST(ScriptNames, FindsAWholeWordInEitherCase) {
    struct Case {
        const char* script;
        bool names;
    };
    const Case cases[] = {
        {"MATERIAL mat", true},
        {"MATERIAL MAT\r\nBLOCK A, B, ZZYZX", true},
        {"mat", true},
        {"x=mat:y=2", true},
        {"CALL \"corpo\" PARAMETERS mat=mat", true},
        {"", false},
        {"MATERIAL mat1", false},
        {"MATERIAL my_mat", false},
        {"MATERIAL mat_", false},
        {"MATERIAL mat~", false},
        {"format = 1", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ScriptNames(c.script, "mat"), c.names) << c.script;
        EXPECT_EQ(ScriptNames(c.script, "Mat"), c.names) << c.script;
    }
}

TEST(ScriptNames, PassesOverCommentsAndTexts) {
    struct Case {
        const char* script;
        bool names;
    };
    const Case cases[] = {
        {"! mat", false},
        {"! \" \r\nmat", true},
        {"PEN 1 ! mat\rmat", true},
        {"VALUES \"mat\" RANGE [0, 1]", false},
        {"t = 'mat' : u = `mat`", false},
        {"t = 'it\"s' : mat", true},
        {"t = \"!\" : mat", true},
        {"t = \"open mat\r\nMATERIAL mat", true},
        {"t = \"open mat\r\nMATERIAL 1", false},
        {"t = \xE2\x80\x9Cmat\xE2\x80\x9D", false},
        {"t = \xE2\x80\x98mat\xE2\x80\x99 + mat", true},
        {"t = \xC2\xB4mat\xC2\xB4", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ScriptNames(c.script, "mat"), c.names) << c.script;
    }
}

} // namespace
} // namespace Merivane::Photometry
