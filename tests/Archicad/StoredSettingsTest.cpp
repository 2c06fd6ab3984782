#include <cstdint>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "Archicad/PreferenceStore.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Host/Storage.hpp"
#include "Photometry/BuiltInSymbols.hpp"
#include "Simulation/PreferenceBlock.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Photometry::UserSymbols;
using Simulation::EngineSettings;
using Simulation::LastRunRecord;
using Simulation::ReflectanceStore;

const EngineSettings Custom{3, 4, 2048, 256, 128, 0.1, 0.001, 6};
const LastRunRecord LastRun{true, 1234, 56.78, 2.75, 1};
const ReflectanceStore Corrections = {{"orientacao:piso", {0.3}},
                                      {"sup:Vidro", {0.5, true, 0.7, 0.1, 0.2}}};

UserSymbols TwoOwnSymbols() {
    using Photometry::SymbolStrokeKind;
    UserSymbols symbols;
    symbols.nextId = 1003;
    symbols.hiddenBuiltIns = {3, 17};
    Photometry::PlanSymbol beam;
    beam.id = 1000;
    beam.name = "Minha luminária";
    beam.strokes = {
        {.kind = SymbolStrokeKind::Line, .points = {{0, 0.5}, {-1, 1.0 / 3.0}}},
        {.kind = SymbolStrokeKind::Polygon, .points = {{0, 0}, {1, 0}, {0, 1}}, .filled = true}};
    Photometry::PlanSymbol empty;
    empty.id = 1002;
    empty.name = "Outra";
    symbols.symbols = {beam, empty};
    return symbols;
}

class StoredSettings : public testing::Test {
protected:
    StoredSettings() { Workbench::OpenSession({}); }
    ~StoredSettings() override { Workbench::OpenSession({}); }

    static std::string Stored(std::string_view key) {
        std::string value;
        EXPECT_EQ(ReadPreference(key, value), Host::NoError);
        return value;
    }
};

TEST_F(StoredSettings, AreTheDefaultsBeforeAnythingWasSaved) {
    EXPECT_EQ(LoadEngineSettings(), Simulation::ProfileSettings(1));
    EXPECT_EQ(LoadLastRun(), LastRunRecord());
    EXPECT_EQ(LoadReflectances(), ReflectanceStore());
    EXPECT_EQ(LoadUserSymbols(), UserSymbols());
}

TEST_F(StoredSettings, ComeBackAsTheyWereSavedEachForItself) {
    EXPECT_EQ(SaveEngineSettings(Custom), Host::NoError);
    EXPECT_EQ(SaveLastRun(LastRun), Host::NoError);
    EXPECT_EQ(SaveReflectances(Corrections), Host::NoError);
    EXPECT_EQ(SaveUserSymbols(TwoOwnSymbols()), Host::NoError);
    EXPECT_EQ(LoadEngineSettings(), Custom);
    EXPECT_EQ(LoadLastRun(), LastRun);
    EXPECT_EQ(LoadReflectances(), Corrections);
    EXPECT_EQ(LoadUserSymbols(), TwoOwnSymbols());
    EXPECT_EQ(SaveReflectances({}), Host::NoError);
    EXPECT_EQ(LoadReflectances(), ReflectanceStore());
    EXPECT_EQ(LoadEngineSettings(), Custom);
    EXPECT_EQ(LoadUserSymbols(), TwoOwnSymbols());
    EXPECT_EQ(SaveUserSymbols({}), Host::NoError);
    EXPECT_EQ(LoadUserSymbols(), UserSymbols());
    EXPECT_EQ(LoadLastRun(), LastRun);
}

TEST_F(StoredSettings, StandUnderTheirKeysAsText) {
    SaveEngineSettings(Custom);
    SaveLastRun(LastRun);
    SaveReflectances(Corrections);
    EXPECT_EQ(Stored("MVENGN01"), "MerivaneEngine 1\n3 4 2048 256 128 0.1 0.001 6\n");
    EXPECT_EQ(Stored("MVLRUN01"), "MerivaneLastRun 1\n1234 56.78 2.75 1\n");
    EXPECT_EQ(Stored("MVREFL01"), "MerivaneReflectances 4\n"
                                  "orientacao:piso\t0.3\t-1\t0.08\t0.08\n"
                                  "sup:Vidro\t0.5\t0.7\t0.1\t0.2\n");
    SaveUserSymbols(TwoOwnSymbols());
    EXPECT_EQ(Stored("MVSYMB01"), "MVSYMBOLS 1\n"
                                  "next 1003\n"
                                  "hidden 3 17\n"
                                  "symbol 1000 Minha luminária\n"
                                  "L 0 0.5 -1 0.3333333333333333\n"
                                  "P 1 3 0 0 1 0 0 1\n"
                                  "symbol 1002 Outra\n");
}

TEST_F(StoredSettings, GiveTheDefaultsForCorruptAndForeignTexts) {
    struct Case {
        const char* key;
        const char* text;
    };
    const Case cases[] = {
        {"MVENGN01", "MerivaneEngine 2\n3 4 2048 256 128 0.1 0.001 6\n"},
        {"MVENGN01", "MerivaneEngine 1\n3 4 2048 256 128 0.1 0.001\n"},
        {"MVENGN01", "MerivaneEngine 1\n4 4 2048 256 128 0.1 0.001 6\n"},
        {"MVENGN01", "\xFF\xFE"},
        {"MVLRUN01", "MerivaneLastRun 2\n1234 56.78 2.75 1\n"},
        {"MVLRUN01", "MerivaneLastRun 1\n0 56.78 2.75 1\n"},
        {"MVLRUN01", "MerivaneLastRun 1\n1234 0 2.75 1\n"},
        {"MVLRUN01", "MerivaneLastRun 1\n1234 56.78 2.75\n"},
        {"MVREFL01", "MerivaneReflectances 5\nsup:a\t0.3\t-1\t0.08\t0.08\n"},
        {"MVREFL01", "sup:a\t0.3\t-1\t0.08\t0.08\n"},
        {"MVREFL01", "\0"},
        {"MVSYMB01", ""},
        {"MVSYMB01", "MVSYMBOLS 2\nnext 1005\nhidden 3\nsymbol 1000 a\nC 0 0 1\n"},
        {"MVSYMB01", "symbol 1000 a\nC 0 0 1\n"},
        {"MVSYMB01", "\xFF\xFE"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        Workbench::OpenSession({});
        ASSERT_EQ(WritePreference(c.key, c.text), Host::NoError);
        EXPECT_EQ(LoadEngineSettings(), Simulation::ProfileSettings(1));
        EXPECT_EQ(LoadLastRun(), LastRunRecord());
        EXPECT_EQ(LoadReflectances(), ReflectanceStore());
        EXPECT_EQ(LoadUserSymbols(), UserSymbols());
        EXPECT_TRUE(Workbench::CurrentSession().reportLines.empty()); // without a word
    }
}

TEST_F(StoredSettings, LetTheNumbersDecideTheProfile) {
    WritePreference("MVENGN01", "MerivaneEngine 1\n3 2 256 64 128 0.25 0.005 4\n");
    EXPECT_EQ(LoadEngineSettings(), (EngineSettings{0, 2, 256, 64, 128, 0.25, 0.005, 4}));
    WritePreference("MVENGN01", "MerivaneEngine 1\n1 2 10 512 256 0.15 0.002 0\n");
    EXPECT_EQ(LoadEngineSettings().divisions, 64);
}

TEST_F(StoredSettings, GiveTheDefaultsForABlockOfAnotherVersion) {
    SaveEngineSettings(Custom);
    SaveLastRun(LastRun);
    SaveReflectances(Corrections);
    SaveUserSymbols(TwoOwnSymbols());
    const std::string block = Workbench::CurrentSession().preferences.block;
    for (const std::int32_t version : {1, 3}) {
        ASSERT_EQ(Host::SetPreferences(version, block), Host::NoError);
        EXPECT_EQ(LoadEngineSettings(), Simulation::ProfileSettings(1));
        EXPECT_EQ(LoadLastRun(), LastRunRecord());
        EXPECT_EQ(LoadReflectances(), ReflectanceStore());
        EXPECT_EQ(LoadUserSymbols(), UserSymbols());
    }
}

TEST_F(StoredSettings, GiveTheDefaultsWhenTheHostDoesNotRead) {
    SaveEngineSettings(Custom);
    SaveLastRun(LastRun);
    SaveReflectances(Corrections);
    SaveUserSymbols(TwoOwnSymbols());
    for (int i = 1; i <= 4; ++i) {
        Workbench::FailCall("GetPreferences", i, Host::GeneralError);
    }
    EXPECT_EQ(LoadEngineSettings(), Simulation::ProfileSettings(1));
    EXPECT_EQ(LoadLastRun(), LastRunRecord());
    EXPECT_EQ(LoadReflectances(), ReflectanceStore());
    EXPECT_EQ(LoadUserSymbols(), UserSymbols());
    Workbench::FailCall("GetPreferences", 1, Host::OutOfMemory);
    ReflectanceStore store = Corrections;
    EXPECT_EQ(LoadReflectances(store), Host::OutOfMemory);
    EXPECT_EQ(store, ReflectanceStore());
    Workbench::FailCall("GetPreferences", 1, Host::OutOfMemory);
    UserSymbols symbols = TwoOwnSymbols();
    EXPECT_EQ(LoadUserSymbols(symbols), Host::OutOfMemory);
    EXPECT_EQ(symbols, UserSymbols());
    EXPECT_EQ(LoadUserSymbols(symbols), Host::NoError);
    EXPECT_EQ(symbols, TwoOwnSymbols());
}

TEST_F(StoredSettings, GiveTheHostsCodeWhenItDoesNotWrite) {
    for (int i = 1; i <= 4; ++i) {
        Workbench::FailCall("SetPreferences", i, Host::ReadOnly);
    }
    EXPECT_EQ(SaveEngineSettings(Custom), Host::ReadOnly);
    EXPECT_EQ(SaveLastRun(LastRun), Host::ReadOnly);
    EXPECT_EQ(SaveReflectances(Corrections), Host::ReadOnly);
    EXPECT_EQ(SaveUserSymbols(TwoOwnSymbols()), Host::ReadOnly);
    EXPECT_EQ(LoadEngineSettings(), Simulation::ProfileSettings(1));
    EXPECT_EQ(LoadUserSymbols(), UserSymbols());
}

TEST_F(StoredSettings, KeepWholeLinesOfSymbolsThatWereCut) {
    SaveUserSymbols(TwoOwnSymbols());
    const std::string whole = Stored("MVSYMB01");
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        ASSERT_EQ(WritePreference("MVSYMB01", whole.substr(0, length)), Host::NoError);
        const UserSymbols read = LoadUserSymbols();
        ASSERT_EQ(SaveUserSymbols(read), Host::NoError);
        EXPECT_EQ(LoadUserSymbols(), read) << length;
        EXPECT_LE(read.symbols.size(), 2U) << length;
    }
    EXPECT_EQ(LoadUserSymbols(), TwoOwnSymbols());
}

TEST_F(StoredSettings, LeaveTheBuiltInSymbolsWhereTheStoredOnesAreOfAnotherForm) {
    WritePreference("MVSYMB01", "MVSYMBOLS 2\nhidden 3\nsymbol 1000 a\nC 0 0 1\n");
    EXPECT_EQ(Photometry::SymbolLibrary(LoadUserSymbols()), Photometry::BuiltInSymbols());
}

TEST_F(StoredSettings, RewriteReflectancesOfAnOlderVersionAtTheNextSave) {
    WritePreference("MVREFL01", "MerivaneReflectances 1\nsup:a\t0.3\n");
    EXPECT_EQ(SaveReflectances(LoadReflectances()), Host::NoError);
    EXPECT_EQ(Stored("MVREFL01"), "MerivaneReflectances 4\nsup:a\t0.3\t-1\t0.08\t0.08\n");
}

TEST_F(StoredSettings, OutliveTheSessionAndTheProject) {
    const Tests::TemporaryFolder folder;
    Workbench::SessionOptions options;
    options.preferencesFile = Text::WidePath(folder.Path() / "preferencias.json");
    Workbench::OpenSession(options);
    SaveReflectances(Corrections);
    SaveLastRun(LastRun);
    SaveUserSymbols(TwoOwnSymbols());
    Workbench::OpenSession(options);
    EXPECT_EQ(LoadReflectances(), Corrections);
    EXPECT_EQ(LoadLastRun(), LastRun);
    EXPECT_EQ(LoadUserSymbols(), TwoOwnSymbols());
}

} // namespace
} // namespace Merivane::Archicad
