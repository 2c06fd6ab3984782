#include "Workbench/Project/UndoHistory.hpp"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "Workbench/Project/GuidSource.hpp"

namespace Merivane::Workbench {
namespace {

struct Workshop {
    Project project;
    ElementIndex index;
    UndoHistory history;
    GuidSource guids = MakeGuidSource(11);
    std::mt19937 random{11};
};

std::size_t Pick(Workshop& shop, std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(shop.random);
}

void Add(Workshop& shop) {
    ProjectElement element;
    element.element.header.guid = NextGuid(shop.guids);
    element.element.header.stamp = ++shop.project.lastStamp;
    element.parts.resize(Pick(shop, 3));
    for (ElementPart& part : element.parts) {
        part.guid = NextGuid(shop.guids);
    }
    AddElement(shop.history, shop.project, shop.index, std::move(element));
}

// A guid that is in the project, none when it is empty.
Host::Guid AnyGuid(Workshop& shop) {
    if (shop.index.places.empty()) {
        return {};
    }
    std::vector<Host::Guid> guids;
    for (const ProjectElement& element : shop.project.elements) {
        if (element.element.header.guid != Host::Guid()) {
            guids.push_back(element.element.header.guid);
        }
    }
    return guids[Pick(shop, guids.size())];
}

void ChangeSomething(Workshop& shop) {
    const std::size_t what = Pick(shop, 3);
    const Host::Guid guid = AnyGuid(shop);
    if (what == 0 || guid == Host::Guid()) {
        Add(shop);
    } else if (what == 1) {
        RemoveElement(shop.history, shop.project, shop.index, guid);
    } else {
        const std::size_t place = shop.index.places.at(guid);
        ProjectElement changed = shop.project.elements[place];
        changed.element.header.stamp = ++shop.project.lastStamp;
        ReplaceElement(shop.history, shop.project, place, std::move(changed));
    }
}

void RunStep(Workshop& shop, bool commit) {
    BeginStep(shop.history, shop.project, "passo");
    for (std::size_t i = Pick(shop, 12) + 1; i > 0; --i) {
        ChangeSomething(shop);
    }
    if (commit) {
        CommitStep(shop.history, shop.project, shop.index);
    } else {
        RollBackStep(shop.history, shop.project, shop.index);
    }
}

// The index says of every element and part where it stands, and of nothing else.
void ExpectGoodIndex(const Workshop& shop) {
    const ElementIndex fresh = BuildElementIndex(shop.project.elements);
    EXPECT_EQ(shop.index.places, fresh.places);
    EXPECT_EQ(shop.index.parts.size(), fresh.parts.size());
    for (const auto& [guid, place] : fresh.parts) {
        ASSERT_TRUE(shop.index.parts.contains(guid));
        EXPECT_EQ(shop.index.parts.at(guid).element, place.element);
        EXPECT_EQ(shop.index.parts.at(guid).part, place.part);
    }
}

TEST(UndoHistory, LeavesNoTraceOfAStepRolledBack) {
    Workshop shop;
    for (int round = 0; round < 200; ++round) {
        RunStep(shop, true);
        const std::vector<ProjectElement> before = shop.project.elements;
        const std::uint64_t stamp = shop.project.lastStamp;
        RunStep(shop, false);
        ASSERT_EQ(shop.project.elements, before);
        EXPECT_EQ(shop.project.lastStamp, stamp);
        ExpectGoodIndex(shop);
    }
}

TEST(UndoHistory, GoesBackAndForthThroughEveryStateOfTheProject) {
    Workshop shop;
    std::vector<std::vector<ProjectElement>> states = {shop.project.elements};
    for (int step = 0; step < 60; ++step) {
        RunStep(shop, true);
        states.push_back(shop.project.elements);
    }
    std::size_t now = states.size() - 1;
    for (int round = 0; round < 1000; ++round) {
        const bool back = Pick(shop, 2) == 0;
        const bool done = back ? UndoLatestStep(shop.history, shop.project, shop.index)
                               : RedoLatestStep(shop.history, shop.project, shop.index);
        EXPECT_EQ(done, back ? now > 0 : now + 1 < states.size());
        now = done ? (back ? now - 1 : now + 1) : now;
        ASSERT_EQ(shop.project.elements, states[now]);
        ExpectGoodIndex(shop);
    }
    while (UndoLatestStep(shop.history, shop.project, shop.index)) {
    }
    EXPECT_EQ(shop.project.elements, states.front());
}

TEST(UndoHistory, TakesUndoneElementsOutOfTheSelection) {
    Workshop shop;
    BeginStep(shop.history, shop.project, "um");
    Add(shop);
    CommitStep(shop.history, shop.project, shop.index);
    shop.project.selection = {shop.project.elements[0].element.header.guid};
    EXPECT_TRUE(UndoLatestStep(shop.history, shop.project, shop.index));
    EXPECT_TRUE(shop.project.selection.empty());
}

TEST(UndoHistory, GivesNoStepTheGuidsOfAnother) {
    GuidSource a = MakeGuidSource(3);
    GuidSource b = MakeGuidSource(3);
    GuidSource c = MakeGuidSource(0);
    EXPECT_EQ(NextGuid(a), NextGuid(b));
    EXPECT_NE(NextGuid(a), NextGuid(c));
    const Host::Guid guid = NextGuid(a);
    EXPECT_EQ(guid.bytes[6] >> 4U, 4); // version
    EXPECT_EQ(guid.bytes[8] >> 6U, 2); // variant
}

} // namespace
} // namespace Merivane::Workbench
