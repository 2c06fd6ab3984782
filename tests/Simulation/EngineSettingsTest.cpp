#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/EngineSettings.hpp"

namespace Merivane::Simulation {
namespace {

const EngineSettings Quick{0, 2, 256, 64, 128, 0.25, 0.005, 0};
const EngineSettings Design{1, 2, 1024, 512, 256, 0.15, 0.002, 0};
const EngineSettings Final{2, 3, 1024, 512, 256, 0.12, 0.001, 0};

TEST(ProfileSettings, AreThoseOfTheThreeProfiles) {
    EXPECT_EQ(ProfileSettings(0), Quick);
    EXPECT_EQ(ProfileSettings(1), Design);
    EXPECT_EQ(ProfileSettings(2), Final);
    EXPECT_EQ(EngineSettings{}, Design);
}

TEST(ProfileSettings, OfAnyOtherNumberAreThoseOfTheDesignProfile) {
    EXPECT_EQ(ProfileSettings(3), Design);
    EXPECT_EQ(ProfileSettings(4), Design);
    EXPECT_EQ(ProfileSettings(4294967295U), Design);
}

TEST(ProfileName, StandsAsTheUserSeesIt) {
    EXPECT_EQ(ProfileName(0), "Estudo rápido");
    EXPECT_EQ(ProfileName(1), "Projeto");
    EXPECT_EQ(ProfileName(2), "Apresentação / final");
    EXPECT_EQ(ProfileName(3), "Personalizado");
    EXPECT_EQ(ProfileName(4), "");
}

TEST(ProfileDescription, StandsAsTheUserSeesIt) {
    EXPECT_EQ(ProfileDescription(0),
              "Para testar posições de luminárias e ver tendências. Cerca de 10 vezes mais rápido "
              "que o Projeto; os valores podem variar alguns por cento.");
    EXPECT_EQ(ProfileDescription(1), "O uso normal (padrão). Duas reflexões da luz, precisão "
                                     "adequada para dimensionar a iluminação.");
    EXPECT_EQ(ProfileDescription(2),
              "Para memorial e entrega: três reflexões da luz, mais luz refletida nos cantos e "
              "áreas escuras. Cerca de 3 vezes o tempo do Projeto.");
    EXPECT_EQ(ProfileDescription(3), "Parâmetros escolhidos à mão (avançado).");
    EXPECT_EQ(ProfileDescription(4), "");
}

template <class Value> struct Clamping {
    Value EngineSettings::*field;
    Value given;
    Value normalised;
};

TEST(NormaliseSettings, ClampsWholeNumbersAtTheirLimits) {
    const Clamping<std::int32_t> cases[] = {
        {&EngineSettings::bounces, -1, 0},
        {&EngineSettings::bounces, 0, 0},
        {&EngineSettings::bounces, 1, 1},
        {&EngineSettings::bounces, 8, 8},
        {&EngineSettings::bounces, 9, 8},
        {&EngineSettings::divisions, 10, 64},
        {&EngineSettings::divisions, 63, 64},
        {&EngineSettings::divisions, 65, 65},
        {&EngineSettings::divisions, 8192, 8192},
        {&EngineSettings::divisions, 8193, 8192},
        {&EngineSettings::supersamples, -1, 0},
        {&EngineSettings::supersamples, 4096, 4096},
        {&EngineSettings::supersamples, 4097, 4096},
        {&EngineSettings::resolution, 15, 16},
        {&EngineSettings::resolution, 17, 17},
        {&EngineSettings::resolution, 1024, 1024},
        {&EngineSettings::resolution, 2048, 1024},
        {&EngineSettings::maxProcesses, -1, 0},
        {&EngineSettings::maxProcesses, 64, 64},
        {&EngineSettings::maxProcesses, 65, 64},
        {&EngineSettings::bounces, 2147483647, 8},
        {&EngineSettings::bounces, -2147483647, 0},
    };
    for (const auto& c : cases) {
        EngineSettings settings;
        settings.*c.field = c.given;
        EngineSettings expected;
        expected.*c.field = c.normalised;
        EXPECT_EQ(NormaliseSettings(settings), expected) << c.given;
    }
}

TEST(NormaliseSettings, ClampsDecimalNumbersAtTheirLimits) {
    const Clamping<double> cases[] = {
        {&EngineSettings::accuracy, 0.0499, 0.05},
        {&EngineSettings::accuracy, 0.05, 0.05},
        {&EngineSettings::accuracy, 0.0501, 0.0501},
        {&EngineSettings::accuracy, 0.5, 0.5},
        {&EngineSettings::accuracy, 0.5001, 0.5},
        {&EngineSettings::limitWeight, 0.00009, 0.0001},
        {&EngineSettings::limitWeight, 0.00011, 0.00011},
        {&EngineSettings::limitWeight, 0.05, 0.05},
        {&EngineSettings::limitWeight, 0.0501, 0.05},
        {&EngineSettings::limitWeight, std::numeric_limits<double>::infinity(), 0.05},
    };
    for (const auto& c : cases) {
        EngineSettings settings;
        settings.*c.field = c.given;
        EngineSettings expected;
        expected.*c.field = c.normalised;
        EXPECT_EQ(NormaliseSettings(settings), expected) << c.given;
    }
}

TEST(NormaliseSettings, CopiesTheProfile) {
    EngineSettings settings;
    settings.profile = 3;
    EXPECT_EQ(NormaliseSettings(settings).profile, 3U);
}

TEST(DetectProfile, GoesByTheNumbersAlone) {
    for (std::uint32_t profile = 0; profile < 3; ++profile) {
        EngineSettings settings = ProfileSettings(profile);
        settings.profile = 3;
        settings.maxProcesses = 4; // does not change the light
        EXPECT_EQ(DetectProfile(settings), profile);
        settings.divisions += 1;
        EXPECT_EQ(DetectProfile(settings), 3U);
    }
}

TEST(SameSettings, ComparesEveryNumberThatChangesTheLight) {
    for (std::int32_t EngineSettings::*field :
         {&EngineSettings::bounces, &EngineSettings::divisions, &EngineSettings::supersamples,
          &EngineSettings::resolution}) {
        EngineSettings changed;
        changed.*field += 1;
        EXPECT_FALSE(SameSettings(Design, changed));
    }
    EngineSettings other;
    other.maxProcesses = 7;
    other.profile = 3;
    EXPECT_TRUE(SameSettings(Design, other));
}

TEST(SameSettings, ToleratesTheLastDigitsOfDecimalNumbers) {
    struct Case {
        double accuracyOff;
        double weightOff;
        bool same;
    };
    const Case cases[] = {
        {0.9e-9, 0, true},  {-0.9e-9, 0, true},  {1.1e-9, 0, false},   {-1.1e-9, 0, false},
        {0, 0.9e-12, true}, {0, 1.1e-12, false}, {0, -1.1e-12, false},
    };
    for (const Case& c : cases) {
        EngineSettings other;
        other.accuracy += c.accuracyOff;
        other.limitWeight += c.weightOff;
        EXPECT_EQ(SameSettings(Design, other), c.same) << c.accuracyOff << " " << c.weightOff;
    }
}

TEST(EngineSummary, NamesTheProfileReflectionsAndRays) {
    EXPECT_EQ(EngineSummary(Quick), "Estudo rápido (reflexões 2, raios 256)");
    EXPECT_EQ(EngineSummary(Design), "Projeto (reflexões 2, raios 1024)");
    EXPECT_EQ(EngineSummary(Final), "Apresentação / final (reflexões 3, raios 1024)");
    EngineSettings four = Design;
    four.maxProcesses = 4;
    EXPECT_EQ(EngineSummary(four), "Projeto (reflexões 2, raios 1024)");
}

TEST(EngineSummary, TellsEveryNumberOfACustomChoice) {
    const EngineSettings custom{1, 4, 2048, 256, 300, 0.1234567, 0.0005, 0};
    EXPECT_EQ(EngineSummary(custom), "Personalizado (reflexões 4, raios 2048, supers. 256, res. "
                                     "300, toler. 0.123457, limite 0.0005)");
}

TEST(EngineWarnings, AreNoneForTheProfiles) {
    EXPECT_TRUE(EngineWarnings(Quick).empty());
    EXPECT_TRUE(EngineWarnings(Design).empty());
    EXPECT_TRUE(EngineWarnings(Final).empty());
}

TEST(EngineWarnings, ComeAtTheirLimits) {
    const std::string direct = "Sem reflexões: só a luz direta das luminárias. Paredes e teto não "
                               "devolvem luz e o ambiente fica bem mais escuro que na realidade.";
    const std::string one =
        "Uma reflexão só: a luz refletida fica subestimada em ambientes claros.";
    const std::string many = "Mais de 4 reflexões raramente muda o resultado e multiplica o tempo.";
    const std::string few = "Poucos raios por ponto: a luz refletida fica manchada (ruído).";
    const std::string loose =
        "Tolerância alta: a luz refletida é muito suavizada e detalhes somem.";
    const std::string heavy =
        "Configuração pesada: o cálculo deve levar mais de 6 vezes o perfil Projeto.";
    struct Case {
        EngineSettings settings;
        std::vector<std::string> warnings;
    };
    const Case cases[] = {
        {{1, 0, 1024, 512, 256, 0.15, 0.002, 0}, {direct}},
        {{1, 1, 1024, 512, 256, 0.15, 0.002, 0}, {one}},
        {{1, 2, 1024, 512, 256, 0.15, 0.002, 0}, {}},
        {{1, 4, 1024, 512, 256, 0.15, 0.002, 0}, {}},            // 3.24 times
        {{1, 5, 1024, 512, 256, 0.15, 0.002, 0}, {many}},        // 5.83 times
        {{1, 6, 1024, 512, 256, 0.15, 0.002, 0}, {many, heavy}}, // 10.5 times
        {{1, 2, 256, 512, 256, 0.15, 0.002, 0}, {}},
        {{1, 2, 255, 512, 256, 0.15, 0.002, 0}, {few}},
        {{1, 2, 1024, 512, 256, 0.3, 0.002, 0}, {}},
        {{1, 2, 1024, 512, 256, 0.3001, 0.002, 0}, {loose}},
        {{1, 2, 1024, 512, 256, 0.0613, 0.002, 0}, {}},      // 5.99 times
        {{1, 2, 1024, 512, 256, 0.0612, 0.002, 0}, {heavy}}, // 6.01 times
        {{1, 0, 100, 512, 256, 0.4, 0.002, 0}, {direct, few, loose}},
        {{1, 8, 100, 4096, 1024, 0.4, 0.002, 0}, {many, few, loose, heavy}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(EngineWarnings(c.settings), c.warnings) << EngineSummary(c.settings);
    }
}

TEST(CostFactor, IsOneForTheDesignProfileAndWhatTheDescriptionsPromise) {
    EXPECT_EQ(CostFactor(Design), 1.0);
    EXPECT_NEAR(CostFactor(Quick), 0.08, 0.005);
    EXPECT_NEAR(CostFactor(Final), 2.8125, 1e-12); // 1.8 x 1.25 squared
}

TEST(CostFactor, FollowsTheFittedModel) {
    const EngineSettings settings{1, 4, 2000, 1000, 400, 0.1, 0.002, 0};
    const double expected = std::pow(1.8, 2) * std::pow(1.5, 2) * std::sqrt(400.0 / 256.0) *
                            std::pow(3000.0 / 1536.0, 0.74);
    EXPECT_NEAR(CostFactor(settings), expected, 1e-12 * expected);
}

TEST(CostFactor, IsFixedWithoutReflections) {
    EXPECT_EQ(CostFactor({1, 0, 8192, 4096, 1024, 0.05, 0.0001, 0}), 0.02);
    EXPECT_EQ(CostFactor({1, 0, 64, 0, 16, 0.5, 0.05, 0}), 0.02);
}

TEST(CostFactor, StopsAtOneHundredth) {
    EXPECT_EQ(CostFactor({1, 1, 64, 0, 16, 0.5, 0.05, 0}), 0.01);
}

TEST(CostFactor, TakesATinyToleranceAsOneHundredth) {
    EngineSettings settings;
    settings.accuracy = 0.0;
    EXPECT_NEAR(CostFactor(settings), 225.0, 1e-9);
}

TEST(FormatEngineSettings, WritesAHeaderAndOneLine) {
    EXPECT_EQ(FormatEngineSettings(Design), "MerivaneEngine 1\n1 2 1024 512 256 0.15 0.002 0\n");
    EXPECT_EQ(FormatEngineSettings({3, 4, 2048, 0, 16, 0.1234567890123, 0.0001, 12}),
              "MerivaneEngine 1\n3 4 2048 0 16 0.1234567890123 1e-04 12\n");
}

TEST(ParseEngineSettings, ReadsBackWhatWasWritten) {
    const EngineSettings custom{3, 4, 2048, 0, 16, 0.1234567890123, 0.00012345, 12};
    for (const EngineSettings& settings : {Quick, Design, Final, custom}) {
        EngineSettings read;
        EXPECT_TRUE(ParseEngineSettings(FormatEngineSettings(settings), read));
        EXPECT_EQ(read, settings);
    }
}

TEST(ParseEngineSettings, LetsTheNumbersDecide) {
    struct Case {
        std::string numbers;
        EngineSettings settings;
    };
    EngineSettings fewest = Design;
    fewest.profile = 3;
    fewest.divisions = 64;
    const Case cases[] = {
        {"3 2 256 64 128 0.25 0.005 0", Quick},        // the number told is only a hint
        {"0 2 1024 512 256 0.15 0.002 0", Design},     //
        {"1 2 10 512 256 0.15 0.002 0", fewest},       // normalised
        {"1\n2\t1024 512\r\n256 0.15 2e-3 0", Design}, // any white space separates
        {"  1 2 1024 512 256 .15 0.002 0 and more", Design},
        {"+1 +2 1024 512 256 +0.15 0.002 0x", Design},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.numbers);
        EngineSettings read;
        EXPECT_TRUE(ParseEngineSettings("MerivaneEngine 1\n" + c.numbers, read));
        EXPECT_EQ(read, c.settings);
    }
}

TEST(ParseEngineSettings, FallsBackToTheDesignProfile) {
    const std::string numbers = "0 2 256 64 128 0.25 0.005 0\n";
    const std::string texts[] = {
        "",
        "\n" + numbers,
        "MerivaneEngine 2\n" + numbers,
        "MerivaneEngine 10\n" + numbers,
        "MerivaneEngine 1 \n" + numbers,
        "MerivaneEngine 1\r\n" + numbers,
        " MerivaneEngine 1\n" + numbers,
        "merivaneengine 1\n" + numbers,
        numbers,
        "MerivaneEngine 1",
        "MerivaneEngine 1\n",
        "MerivaneEngine 1\n4 2 256 64 128 0.25 0.005 0",
        "MerivaneEngine 1\n-1 2 256 64 128 0.25 0.005 0",
        "MerivaneEngine 1\n4294967296 2 256 64 128 0.25 0.005 0",
        "MerivaneEngine 1\n0 2 256 64 128 0.25 0.005",
        "MerivaneEngine 1\n0 2 256 64 128 0.25 0.005 x",
        "MerivaneEngine 1\n0 2 256.5 64 128 0.25 0.005 0",
        "MerivaneEngine 1\n0 2 99999999999 64 128 0.25 0.005 0",
        "MerivaneEngine 1\n0 2 256 64 128 nan 0.005 0",
        "MerivaneEngine 1\n0 2 256 64 128 0.25 inf 0",
        "MerivaneEngine 1\n0 2 256 64 128 1e999 0.005 0",
        "MerivaneEngine 1\n0 2 256 64 128 0,25 0.005 0",
    };
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        EngineSettings read = Final;
        EXPECT_FALSE(ParseEngineSettings(text, read));
        EXPECT_EQ(read, Design);
    }
}

TEST(ParseEngineSettings, RefusesATextCutBeforeItsLastNumber) {
    const std::string text = FormatEngineSettings(Quick);
    for (std::size_t length = 0; length <= text.size(); ++length) {
        EngineSettings read;
        const bool whole = length + 1 >= text.size(); // the line end may be missing
        EXPECT_EQ(ParseEngineSettings(text.substr(0, length), read), whole) << length;
        EXPECT_EQ(read, whole ? Quick : Design);
    }
}

} // namespace
} // namespace Merivane::Simulation
