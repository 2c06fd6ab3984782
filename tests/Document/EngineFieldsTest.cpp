#include <gtest/gtest.h>

#include "SceneTexts.hpp"

namespace Merivane::Document {

using Simulation::EngineSettings;
using Tests::ReadScene;
using Tests::SceneError;
using Tests::SceneText;

namespace {

EngineSettings ReadEngineText(const std::string& members) {
    return ReadScene(SceneText("\"motor\": {" + members + "}")).engine;
}

} // namespace

TEST(EngineFields, NamesTheProfiles) {
    EXPECT_EQ(ReadEngineText(""), Simulation::ProfileSettings(1));
    EXPECT_EQ(ReadEngineText("\"perfil\": \"rapido\""), Simulation::ProfileSettings(0));
    EXPECT_EQ(ReadEngineText("\"perfil\": \"projeto\""), Simulation::ProfileSettings(1));
    EXPECT_EQ(ReadEngineText("\"perfil\": \"final\""), Simulation::ProfileSettings(2));
}

TEST(EngineFields, NumbersTakeThePlaceOfTheProfilesWhereverTheProfileStands) {
    const EngineSettings settings = ReadEngineText("\"reflexoes\": 5, \"perfil\": \"final\"");
    EXPECT_EQ(settings.bounces, 5);
    EXPECT_EQ(settings.limitWeight, 0.001);
    EXPECT_EQ(settings.profile, 3U);
    EXPECT_EQ(ReadEngineText(R"("reflexoes": 8, "raios": 64, "raiosExtras": 4096, "resolucao": 16,
                                "tolerancia": 0.5, "limite": 0.05, "processos": 64)"),
              (EngineSettings{3, 8, 64, 4096, 16, 0.5, 0.05, 64}));
}

TEST(EngineFields, TheNumbersDecideTheProfileAndTheProcessesDoNot) {
    EXPECT_EQ(ReadEngineText(R"("perfil": "final", "reflexoes": 2, "tolerancia": 0.15,
                                "limite": 0.002)")
                  .profile,
              1U);
    EXPECT_EQ(ReadEngineText("\"processos\": 4").profile, 1U);
}

TEST(EngineFields, RefusesWhatIsOutOfRange) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {"\"perfil\": \"lento\"", "motor.perfil: espera-se \"rapido\", \"projeto\" ou \"final\", "
                                  "mas há o texto \"lento\""},
        {"\"reflexoes\": 9", "motor.reflexoes: espera-se um número inteiro de 0 a 8, mas há 9"},
        {"\"reflexoes\": 1.5", "motor.reflexoes: espera-se um número inteiro de 0 a 8, mas há 1.5"},
        {"\"raios\": 63", "motor.raios: espera-se um número inteiro de 64 a 8192, mas há 63"},
        {"\"raiosExtras\": 4097",
         "motor.raiosExtras: espera-se um número inteiro de 0 a 4096, mas há 4097"},
        {"\"resolucao\": 15",
         "motor.resolucao: espera-se um número inteiro de 16 a 1024, mas há 15"},
        {"\"tolerancia\": 0.049",
         "motor.tolerancia: espera-se um número de 0.05 a 0.5, mas há 0.049"},
        {"\"limite\": 0.051", "motor.limite: espera-se um número de 0.0001 a 0.05, mas há 0.051"},
        {"\"processos\": 65", "motor.processos: espera-se um número inteiro de 0 a 64, mas há 65"},
        {"\"processos\": \"4\"",
         "motor.processos: espera-se um número inteiro de 0 a 64, mas há o texto \"4\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(SceneText("\"motor\": {" + c.members + "}")), c.error);
    }
    EXPECT_EQ(SceneError(SceneText("\"motor\": \"final\"")),
              "motor: espera-se um objeto, mas há o texto \"final\"");
}

} // namespace Merivane::Document
