#include <bit>
#include <functional>
#include <utility>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {

namespace {

// Up to here a walk over the list is faster than an index, and most objects end here.
constexpr std::size_t LongestListWithoutIndex = 16;

constexpr std::size_t NotFound = static_cast<std::size_t>(-1);

std::size_t HashOf(std::string_view key) {
    return std::hash<std::string_view>()(key);
}

} // namespace

// The list, and beside it, once it is long, an index of its keys: open addressing over a power of
// two of slots, at most half of them taken, so that every search meets a free one.
struct JsonMembers::Table {
    struct Slot {
        std::size_t hash = 0;
        std::size_t place = 0; // position in the list + 1; 0 = free
    };

    std::size_t PositionOf(std::string_view key) const;
    void Append(std::string key, JsonValue value);
    void AddToIndex(Slot slot);
    void GrowIndex();

    std::vector<JsonMember> list;
    std::vector<Slot> slots;
};

std::size_t JsonMembers::Table::PositionOf(std::string_view key) const {
    if (slots.empty()) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list[i].key == key) {
                return i;
            }
        }
        return NotFound;
    }
    const std::size_t hash = HashOf(key);
    const std::size_t mask = slots.size() - 1;
    for (std::size_t at = hash & mask; slots[at].place != 0; at = (at + 1) & mask) {
        if (slots[at].hash == hash && list[slots[at].place - 1].key == key) {
            return slots[at].place - 1;
        }
    }
    return NotFound;
}

void JsonMembers::Table::Append(std::string key, JsonValue value) {
    list.push_back({std::move(key), std::move(value)});
    if (list.size() <= LongestListWithoutIndex) {
        return;
    }
    if (2 * list.size() > slots.size()) {
        GrowIndex();
    } else {
        AddToIndex({HashOf(list.back().key), list.size()});
    }
}

void JsonMembers::Table::AddToIndex(Slot slot) {
    const std::size_t mask = slots.size() - 1;
    std::size_t at = slot.hash & mask;
    while (slots[at].place != 0) {
        at = (at + 1) & mask;
    }
    slots[at] = slot;
}

void JsonMembers::Table::GrowIndex() {
    slots.assign(std::bit_ceil(4 * list.size()), {});
    for (std::size_t i = 0; i < list.size(); ++i) {
        AddToIndex({HashOf(list[i].key), i + 1});
    }
}

JsonMembers::JsonMembers() = default;
JsonMembers::JsonMembers(JsonMembers&& other) noexcept = default;
JsonMembers& JsonMembers::operator=(JsonMembers&& other) noexcept = default;
JsonMembers::~JsonMembers() = default;

JsonMembers::JsonMembers(const JsonMembers& other)
    : table(other.table ? std::make_unique<Table>(*other.table) : nullptr) {}

JsonMembers& JsonMembers::operator=(const JsonMembers& other) {
    return *this = JsonMembers(other);
}

std::size_t JsonMembers::size() const {
    return table ? table->list.size() : 0;
}

const JsonMember* JsonMembers::begin() const {
    return table ? table->list.data() : nullptr;
}

const JsonMember* JsonMembers::end() const {
    return table ? table->list.data() + table->list.size() : nullptr;
}

const JsonMember& JsonMembers::operator[](std::size_t position) const {
    return table->list[position];
}

const JsonValue* JsonMembers::Find(std::string_view key) const {
    const std::size_t position = table ? table->PositionOf(key) : NotFound;
    return position == NotFound ? nullptr : &table->list[position].value;
}

JsonValue* JsonMembers::Find(std::string_view key) {
    return const_cast<JsonValue*>(std::as_const(*this).Find(key));
}

JsonValue& JsonMembers::Set(std::string key, JsonValue value) {
    if (!table) {
        table = std::make_unique<Table>();
    }
    if (JsonValue* const present = Find(key)) {
        *present = std::move(value);
        return *present;
    }
    table->Append(std::move(key), std::move(value));
    return table->list.back().value;
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
        if (from->members.size() == 0) {
            continue;
        }
        to->members.table = std::make_unique<JsonMembers::Table>();
        to->members.table->slots = from->members.table->slots;
        to->members.table->list.resize(from->members.size());
        for (std::size_t i = 0; i < from->members.size(); ++i) {
            to->members.table->list[i].key = from->members[i].key;
            copy(from->members[i].value, to->members.table->list[i].value);
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
        parent.items.clear();
        if (parent.members.table) {
            for (JsonMember& member : parent.members.table->list) {
                if (member.value.HasChildren()) {
                    waiting.push_back(std::move(member.value));
                }
            }
            parent.members.table.reset();
        }
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
    members.table.swap(taken.members.table);
    return *this;
}

bool JsonValue::HasChildren() const {
    return !items.empty() || members.table != nullptr;
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
