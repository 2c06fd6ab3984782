#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/MacroCalls.hpp"

namespace Merivane::Catalog {

TEST(MacroCalls, AreTheTextsBehindTheKeywordCall) {
    struct Case {
        std::string script;
        std::vector<std::string> names;
    };
    const Case cases[] = {
        {"", {}},
        {"call \"a\"", {"a"}},
        {"CALL 'a' : Call `b` parameters all", {"a", "b"}},
        {"call \"a\" : call \"b\" : call \"a\"", {"a", "b"}}, // each once
        {"call \"a\" : call \"A\"", {"a", "A"}},
        {"call \"  a b\t\"", {"a b"}},
        {"call \"\" : call \"  \" : call 'x'", {"x"}},
        {"call ! which one\r\n ! still\n\t\"a\"", {"a"}}, // comments and lines between
        {"! call \"a\"\ncall \"b\"", {"b"}},
        {"! call \"a\"\rcall \"b\"", {"b"}}, // a carriage return alone ends a comment
        {"x ! call\n\"a\"", {}},             // and none begins a call
        {"call\v\f\"a\nb\"", {"a\nb"}},      // a text goes on over the line
        {"print \"call 'a'\"", {}},          // inside a text
        {"call \"it's\"", {"it's"}},         // another quote does not end it
        {"call \"open", {"open"}},           // nor is one needed at the end
        {"call \"", {}},
        {"call name, \"a\"", {}},     // a name that is worked out
        {"call (\"a\")", {}},         // another character clears it
        {"call \"a\", \"b\"", {"a"}}, // one call, one name
        {"recall \"a\"", {}},
        {"call2 \"a\" : _call \"b\" : ~call \"c\"", {}},
        {"2call \"a\"", {"a"}}, // a word begins behind the digit
        {"call\"a\"", {"a"}},
        {"call call \"a\"", {"a"}},
        {"call x \"a\"", {}},
        {"call \xC3\xA7 \"a\"", {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ExtractMacroCalls(c.script), c.names) << c.script;
    }
}

} // namespace Merivane::Catalog
