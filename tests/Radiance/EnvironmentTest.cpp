#include <algorithm>

#include <gtest/gtest.h>

#include "Radiance/Environment.hpp"
#include "Support/Variable.hpp"

using namespace Merivane::Radiance;
using Merivane::Tests::Variable;

namespace {

bool Holds(const std::vector<std::wstring>& entries, const std::wstring& entry) {
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
}

std::wstring UpperCase(std::wstring text) {
    for (wchar_t& c : text) {
        c = c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c;
    }
    return text;
}

} // namespace

TEST(EnvironmentValue, TellsUnsetFromEmpty) {
    const Variable empty("VANTORO_TEST", "");
    EXPECT_EQ(EnvironmentValue(L"VANTORO_TEST"), L"");
    EXPECT_EQ(EnvironmentValue(L"VANTORO_TEST_UNSET"), std::nullopt);
}

TEST(EnvironmentEntries, HoldWhatIsSet) {
    const Variable one("VANTORO_TEST", "lumin\xC3\xA1ria=1");
    EXPECT_TRUE(Holds(EnvironmentEntries(), L"VANTORO_TEST=lumin\u00e1ria=1"));
}

TEST(EnvironmentEntriesWith, DropEveryRayPathOfTheParent) {
    const Variable capital("RAYPATH", "/old/1");
    const Variable small("raypath", "/old/2");
    const Variable mixed("RayPath", "/old/3");
    const Variable other("RAYPATHS", "stays");
    const Variable prefix("MYRAYPATH", "stays");
    const std::vector<std::wstring> entries = EnvironmentEntriesWith(L"/new");
    EXPECT_EQ(1, std::count_if(entries.begin(), entries.end(), [](const std::wstring& entry) {
                  return UpperCase(entry).starts_with(L"RAYPATH=");
              }));
    EXPECT_TRUE(Holds(entries, L"RAYPATH=/new"));
    EXPECT_TRUE(Holds(entries, L"RAYPATHS=stays"));
    EXPECT_TRUE(Holds(entries, L"MYRAYPATH=stays"));
}

TEST(EnvironmentEntriesWith, KeepAllTheRestAndAreSorted) {
    const Variable small("vantoro_b", "1");
    const Variable capital("VANTORO_A", "2");
    const Variable last("vantoro_c", "3");
    const std::vector<std::wstring> entries = EnvironmentEntriesWith(L"/new");
    for (const std::wstring& entry : EnvironmentEntries()) {
        EXPECT_TRUE(UpperCase(entry).starts_with(L"RAYPATH=") || Holds(entries, entry));
    }
    EXPECT_TRUE(std::is_sorted(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return UpperCase(a) < UpperCase(b);
    }));
}

TEST(EnvironmentBlockWith, EndsEachEntryAndTheBlockWithANul) {
    const std::wstring block = EnvironmentBlockWith(L"/new");
    std::wstring expected;
    for (const std::wstring& entry : EnvironmentEntriesWith(L"/new")) {
        expected += entry + L'\0';
    }
    EXPECT_EQ(block, expected + L'\0');
}
