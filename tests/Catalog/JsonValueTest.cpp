#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {
namespace {

JsonValue Nested(int depth) {
    JsonValue value = JsonValue::MakeNumber(1.0);
    for (int i = 0; i < depth; ++i) {
        JsonValue outer;
        if (i % 2 == 0) {
            outer = JsonValue::MakeArray();
            outer.items.push_back(std::move(value));
        } else {
            outer.Set("a", std::move(value));
        }
        value = std::move(outer);
    }
    return value;
}

TEST(JsonValue, IsNullWhenNewlyMade) {
    EXPECT_EQ(JsonValue().kind, JsonKind::Null);
    EXPECT_EQ(JsonWrite(JsonValue()), "null\n");
}

TEST(JsonValue, IsMadeOfEachKind) {
    EXPECT_EQ(JsonWrite(JsonValue::MakeNumber(2.5)), "2.5\n");
    EXPECT_EQ(JsonWrite(JsonValue::MakeBool(true)), "true\n");
    EXPECT_EQ(JsonWrite(JsonValue::MakeBool(false)), "false\n");
    EXPECT_EQ(JsonWrite(JsonValue::MakeString("x")), "\"x\"\n");
    EXPECT_EQ(JsonWrite(JsonValue::MakeArray()), "[]\n");
    EXPECT_EQ(JsonWrite(JsonValue::MakeObject()), "{}\n");
}

TEST(JsonValue, NumbersItsKinds) {
    EXPECT_EQ(static_cast<int>(JsonKind::Null), 0);
    EXPECT_EQ(static_cast<int>(JsonKind::Boolean), 1);
    EXPECT_EQ(static_cast<int>(JsonKind::Number), 2);
    EXPECT_EQ(static_cast<int>(JsonKind::String), 3);
    EXPECT_EQ(static_cast<int>(JsonKind::Array), 4);
    EXPECT_EQ(static_cast<int>(JsonKind::Object), 5);
}

TEST(JsonValue, SetsNewMembersBehindAndOldOnesInPlace) {
    JsonValue object = JsonValue::MakeObject();
    object.Set("a", JsonValue::MakeNumber(1));
    object.Set("b", JsonValue::MakeNumber(2));
    JsonValue& stored = object.Set("a", JsonValue::MakeString("x"));
    EXPECT_EQ(&stored, object.Find("a"));
    ASSERT_EQ(object.members.size(), 2U);
    EXPECT_EQ(object.members[0].key, "a");
    EXPECT_EQ(object.members[0].value.text, "x");
    EXPECT_EQ(object.members[1].key, "b");
}

TEST(JsonValue, BecomesAnObjectWhenAMemberIsSet) {
    JsonValue value = JsonValue::MakeNumber(1);
    value.Set("a", JsonValue::MakeNumber(2));
    EXPECT_EQ(JsonWrite(value), "{\n\t\"a\": 2\n}\n");
}

TEST(JsonValue, FindsMembersByEveryByteOfTheKey) {
    JsonValue object;
    object.Set(std::string("a\0b", 3), JsonValue::MakeNumber(1));
    EXPECT_NE(object.Find(std::string_view("a\0b", 3)), nullptr);
    EXPECT_EQ(object.Find("a"), nullptr);
    EXPECT_EQ(object.Find(std::string_view("A\0b", 3)), nullptr);
    EXPECT_EQ(object.Find(std::string_view("a\0c", 3)), nullptr);
    EXPECT_EQ(object.Find(""), nullptr);
}

TEST(JsonValue, FindsNothingInWhatIsNoObject) {
    EXPECT_EQ(JsonValue().Find("a"), nullptr);
    EXPECT_EQ(JsonValue::MakeArray().Find("a"), nullptr);
    EXPECT_EQ(JsonValue::MakeString("a").Find("a"), nullptr);
    EXPECT_EQ(JsonValue::MakeString("a").NumberOr("a", 3.0), 3.0);
    EXPECT_EQ(JsonValue::MakeString("a").StringOr("a", "f"), "f");
}

TEST(JsonValue, GivesAMemberOnlyInItsOwnKind) {
    JsonValue object;
    object.Set("n", JsonValue::MakeNumber(12));
    object.Set("s", JsonValue::MakeString("12"));
    object.Set("b", JsonValue::MakeBool(true));
    object.Set("z", JsonValue());
    EXPECT_EQ(object.NumberOr("n", -1.0), 12.0);
    EXPECT_EQ(object.NumberOr("s", -1.0), -1.0); // digits in a text are no number
    EXPECT_EQ(object.NumberOr("b", -1.0), -1.0);
    EXPECT_EQ(object.NumberOr("z", -1.0), -1.0);
    EXPECT_EQ(object.NumberOr("x", -1.0), -1.0);
    EXPECT_EQ(object.StringOr("s", "f"), "12");
    EXPECT_EQ(object.StringOr("n", "f"), "f");
    EXPECT_EQ(object.StringOr("x", "f"), "f");
}

TEST(JsonValue, IsCopiedWhole) {
    JsonValue original;
    ASSERT_TRUE(JsonParse(R"({"a": [1, {"b": "x"}], "c": {"d": true}})", original).ok);
    JsonValue copy = original;
    copy.Find("a")->items[1].Set("b", JsonValue::MakeString("y"));
    EXPECT_EQ(original.Find("a")->items[1].StringOr("b", ""), "x");
    EXPECT_EQ(copy.Find("a")->items[1].StringOr("b", ""), "y");
    copy = original;
    EXPECT_EQ(JsonWrite(copy), JsonWrite(original));
}

TEST(JsonValue, TakesEveryKindByCopyAndByMove) {
    for (const char* text :
         {"null\n", "true\n", "2.5\n", "\"x\"\n", "[\n\t1\n]\n", "{\n\t\"k\": 1\n}\n"}) {
        SCOPED_TRACE(text);
        JsonValue original;
        ASSERT_TRUE(JsonParse(text, original).ok);
        for (const JsonValue& before : {JsonValue::MakeBool(false), JsonValue::MakeString("old")}) {
            JsonValue copied = before;
            copied = original;
            EXPECT_EQ(JsonWrite(copied), text);
            JsonValue moved = before;
            moved = std::move(copied);
            EXPECT_EQ(JsonWrite(moved), text);
        }
    }
}

TEST(JsonMembers, AreWalkedInOrderAndCopiedAndMovedAsAWhole) {
    JsonValue object;
    const auto keysOf = [](const JsonMembers& members) {
        std::string keys;
        for (const JsonMember& member : members) {
            keys += member.key;
        }
        return keys;
    };
    EXPECT_EQ(keysOf(object.members), "");
    for (const char* key : {"c", "a", "b"}) {
        object.Set(key, JsonValue::MakeNumber(1));
    }
    JsonMembers copy;
    copy = object.members;
    copy.Set("d", JsonValue());
    EXPECT_EQ(keysOf(object.members), "cab");
    EXPECT_EQ(keysOf(copy), "cabd");
    const JsonMembers moved = std::move(copy);
    EXPECT_EQ(keysOf(moved), "cabd");
}

TEST(JsonValue, CanBeGivenOneOfItsOwnChildren) {
    JsonValue value;
    ASSERT_TRUE(JsonParse(R"([[1, 2], {"a": "long enough to live on the heap"}])", value).ok);
    JsonValue other = value;
    value = std::move(value.items[0]);
    EXPECT_EQ(JsonWrite(value, {true}), "[1, 2]\n");
    other = other.items[1].members[0].value;
    EXPECT_EQ(other.text, "long enough to live on the heap");
    JsonValue self;
    self.Set("a", JsonValue::MakeNumber(1));
    self.Set("b", self);
    EXPECT_EQ(JsonWrite(self), "{\n\t\"a\": 1,\n\t\"b\": {\n\t\t\"a\": 1\n\t}\n}\n");
}

TEST(JsonValue, NestsAMillionDeepWithoutTheStack) {
    const JsonValue value = Nested(1000000);
    const JsonValue copy = value;
    EXPECT_EQ(copy.kind, JsonKind::Object);
}

// Around the length at which the index begins, and where it grows: the same answers as a list.
TEST(JsonValue, AnswersAlikeAtEveryNumberOfMembers) {
    std::mt19937 random(7);
    for (std::size_t count = 0; count <= 300; count += count < 70 ? 1 : 23) {
        SCOPED_TRACE(count);
        std::vector<std::pair<std::string, double>> expected;
        JsonValue object = JsonValue::MakeObject();
        while (expected.size() < count) {
            std::string key = "k";
            key += std::to_string(random() % 400);
            const double number = static_cast<double>(random() % 1000);
            object.Set(key, JsonValue::MakeNumber(number));
            auto found = expected.begin();
            while (found != expected.end() && found->first != key) {
                ++found;
            }
            if (found == expected.end()) {
                expected.emplace_back(key, number);
            } else {
                found->second = number;
            }
        }
        const JsonValue copy = object;
        const JsonValue moved = std::move(object);
        ASSERT_EQ(moved.members.size(), count);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(copy.members[i].key, expected[i].first);
            EXPECT_EQ(copy.NumberOr(expected[i].first, -1.0), expected[i].second);
            EXPECT_EQ(moved.NumberOr(expected[i].first, -1.0), expected[i].second);
        }
        EXPECT_EQ(moved.Find("k400"), nullptr);
    }
}

TEST(JsonValue, CanBeUsedAgainAfterItWasMovedFrom) {
    for (const int count : {3, 40}) {
        JsonValue object = JsonValue::MakeObject();
        for (int i = 0; i < count; ++i) {
            object.Set(std::to_string(i), JsonValue::MakeNumber(i));
        }
        const JsonValue taken = std::move(object);
        object = JsonValue::MakeObject();
        EXPECT_EQ(object.Find("1"), nullptr);
        object.Set("1", JsonValue::MakeNumber(5));
        EXPECT_EQ(object.NumberOr("1", 0.0), 5.0);
        EXPECT_EQ(taken.NumberOr("1", 0.0), 1.0);
    }
}

} // namespace
} // namespace Merivane::Catalog
