#include "Catalog/Json.hpp"

#include <functional>
#include <utility>

namespace Merivane::Catalog {

namespace {

// Up to here a walk over the list is faster than an index, and most objects end here.
constexpr std::size_t LongestListWithoutIndex = 16;

constexpr std::size_t NotFound = static_cast<std::size_t>(-1);

std::size_t HashOf(std::string_view key) {
    return std::hash<std::string_view>()(key);
}

} // namespace

std::size_t JsonMembers::PositionOf(std::string_view key, std::size_t hash) const {
    if (slots.empty()) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list[i].key == key) {
                return i;
            }
        }
        return NotFound;
    }
    const std::size_t mask = slots.size() - 1;
    for (std::size_t at = hash & mask; slots[at].place != 0; at = (at + 1) & mask) {
        if (slots[at].hash == hash && list[slots[at].place - 1].key == key) {
            return slots[at].place - 1;
        }
    }
    return NotFound;
}

// Keeps the table at most half full, so that it always has the free slot that ends a search.
void JsonMembers::AddToIndex(std::size_t position, std::size_t hash) {
    const auto insert = [this](Slot slot) {
        const std::size_t mask = slots.size() - 1;
        std::size_t at = slot.hash & mask;
        while (slots[at].place != 0) {
            at = (at + 1) & mask;
        }
        slots[at] = slot;
    };
    if (slots.empty()) {
        slots.resize(4 * LongestListWithoutIndex);
        for (std::size_t i = 0; i < position; ++i) {
            insert({HashOf(list[i].key), i + 1});
        }
    } else if (2 * (position + 1) > slots.size()) {
        std::vector<Slot> smaller(2 * slots.size());
        smaller.swap(slots);
        for (const Slot& slot : smaller) {
            if (slot.place != 0) {
                insert(slot);
            }
        }
    }
    insert({hash, position + 1});
}

const JsonValue* JsonMembers::Find(std::string_view key) const {
    const std::size_t position = PositionOf(key, slots.empty() ? 0 : HashOf(key));
    return position == NotFound ? nullptr : &list[position].value;
}

JsonValue* JsonMembers::Find(std::string_view key) {
    return const_cast<JsonValue*>(std::as_const(*this).Find(key));
}

JsonValue& JsonMembers::Set(std::string key, JsonValue value) {
    const bool indexed = list.size() >= LongestListWithoutIndex;
    const std::size_t hash = indexed ? HashOf(key) : 0;
    const std::size_t position = PositionOf(key, hash);
    if (position != NotFound) {
        list[position].value = std::move(value);
        return list[position].value;
    }
    list.push_back({std::move(key), std::move(value)});
    if (indexed) {
        AddToIndex(list.size() - 1, hash);
    }
    return list.back().value;
}

JsonValue::JsonValue() = default;
JsonValue::JsonValue(JsonValue&& other) noexcept = default;

// Left to the compiler, the copy and the end of a value built a million levels deep would call
// themselves a million times. So both keep a list of the parents whose turn is still to come.
JsonValue::JsonValue(const JsonValue& other) {
    struct Pair {
        const JsonValue* from;
        JsonValue* to;
    };
    std::vector<Pair> waiting;
    const auto copy = [&waiting](const JsonValue& from, JsonValue& to) {
        to.kind = from.kind;
        to.boolean = from.boolean;
        to.number = from.number;
        to.text = from.text;
        if (from.HasChildren()) {
            waiting.push_back({&from, &to});
        }
    };
    copy(other, *this);
    while (!waiting.empty()) {
        const auto [from, to] = waiting.back();
        waiting.pop_back();
        to->items.resize(from->items.size());
        for (std::size_t i = 0; i < from->items.size(); ++i) {
            copy(from->items[i], to->items[i]);
        }
        to->members.slots = from->members.slots;
        to->members.list.resize(from->members.list.size());
        for (std::size_t i = 0; i < from->members.list.size(); ++i) {
            to->members.list[i].key = from->members.list[i].key;
            copy(from->members.list[i].value, to->members.list[i].value);
        }
    }
}

JsonValue::~JsonValue() {
    if (!HasChildren()) {
        return;
    }
    std::vector<JsonValue> waiting;
    const auto takeParents = [&waiting](JsonValue& parent) {
        for (JsonValue& item : parent.items) {
            if (item.HasChildren()) {
                waiting.push_back(std::move(item));
            }
        }
        for (JsonMember& member : parent.members.list) {
            if (member.value.HasChildren()) {
                waiting.push_back(std::move(member.value));
            }
        }
        parent.items.clear();
        parent.members.list.clear();
    };
    takeParents(*this);
    while (!waiting.empty()) {
        JsonValue parent = std::move(waiting.back());
        waiting.pop_back();
        takeParents(parent);
    }
}

JsonValue& JsonValue::operator=(const JsonValue& other) {
    return *this = JsonValue(other);
}

// What is assigned may be a child of this very value: it is taken out whole before the old content
// ends.
JsonValue& JsonValue::operator=(JsonValue&& other) noexcept {
    JsonValue taken(std::move(other));
    kind = taken.kind;
    boolean = taken.boolean;
    number = taken.number;
    text.swap(taken.text);
    items.swap(taken.items);
    members.list.swap(taken.members.list);
    members.slots.swap(taken.members.slots);
    return *this;
}

bool JsonValue::HasChildren() const {
    return !items.empty() || !members.list.empty();
}

JsonValue JsonValue::MakeNumber(double number) {
    JsonValue value;
    value.kind = JsonKind::Number;
    value.number = number;
    return value;
}

JsonValue JsonValue::MakeBool(bool boolean) {
    JsonValue value;
    value.kind = JsonKind::Boolean;
    value.boolean = boolean;
    return value;
}

JsonValue JsonValue::MakeString(std::string text) {
    JsonValue value;
    value.kind = JsonKind::String;
    value.text = std::move(text);
    return value;
}

JsonValue JsonValue::MakeArray() {
    JsonValue value;
    value.kind = JsonKind::Array;
    return value;
}

JsonValue JsonValue::MakeObject() {
    JsonValue value;
    value.kind = JsonKind::Object;
    return value;
}

JsonValue& JsonValue::Set(std::string key, JsonValue value) {
    if (kind != JsonKind::Object) {
        *this = MakeObject();
    }
    return members.Set(std::move(key), std::move(value));
}

const JsonValue* JsonValue::Find(std::string_view key) const {
    return kind == JsonKind::Object ? members.Find(key) : nullptr;
}

JsonValue* JsonValue::Find(std::string_view key) {
    return kind == JsonKind::Object ? members.Find(key) : nullptr;
}

double JsonValue::NumberOr(std::string_view key, double fallback) const {
    const JsonValue* member = Find(key);
    return member && member->kind == JsonKind::Number ? member->number : fallback;
}

std::string JsonValue::StringOr(std::string_view key, std::string_view fallback) const {
    const JsonValue* member = Find(key);
    return std::string(member && member->kind == JsonKind::String ? member->text : fallback);
}

} // namespace Merivane::Catalog
