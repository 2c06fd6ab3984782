#include <gtest/gtest.h>

#include "SceneTexts.hpp"

namespace Merivane::Document {

using Simulation::ReferenceStandard;
using Simulation::ZoneRequirement;
using Tests::ReadScene;
using Tests::SceneError;
using Tests::SceneText;

namespace {

/// A document with one Zone of this name and these members behind its outline and height.
std::string ZoneNamed(const std::string& name, const std::string& members) {
    return R"({"formato": 1, "zonas": [{"nome": ")" + name + R"(", "altura": 3,)" +
           R"("contorno": [[0, 0], [4, 0], [4, 4], [0, 4]])" +
           (members.empty() ? "" : ", " + members) + "}]}";
}

Simulation::StudyTask TaskOf(const std::string& name, const std::string& members) {
    return ReadScene(ZoneNamed(name, members)).zones[0].task;
}

} // namespace

TEST(ActivityFields, TakeTheRequirementOfTheActivity) {
    struct Case {
        std::string members;
        ZoneRequirement requirement;
    };
    const Case cases[] = {
        {"", {"", 0.0, 0.7, -1}},
        {R"("atividade": "s22.2")", {"s22.2", 500.0, 0.7, -1}},
        {R"("atividade": "escritorio")", {"s22.2", 500.0, 0.7, -1}}, // an old word key
        {R"("atividade": "s22.2", "em": 750, "u0": 0.6)", {"s22.2", 750.0, 0.6, -1}},
        {R"("u0": 0.6, "em": 750, "atividade": "s22.2")", {"s22.2", 750.0, 0.6, -1}},
        {R"("atividade": "s22.2", "em": 0, "u0": 0)", {"s22.2", 0.0, 0.0, -1}},
        {R"("atividade": "s22.2", "em": 10000, "u0": 1)", {"s22.2", 10000.0, 1.0, -1}},
        {R"("atividade": "s22.2", "telas": "automatico")", {"s22.2", 500.0, 0.7, -1}},
        {R"("atividade": "s22.2", "telas": "nenhuma")", {"s22.2", 500.0, 0.7, 0}},
        {R"("atividade": "s22.2", "telas": "classes I e II")", {"s22.2", 500.0, 0.7, 1}},
        {R"("atividade": "s22.2", "telas": "classe III")", {"s22.2", 500.0, 0.7, 3}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(TaskOf("Sala", c.members).requirement, c.requirement);
        EXPECT_FALSE(TaskOf("Sala", c.members).byName);
    }
}

TEST(ActivityFields, SuggestTheActivityFromTheNameOfTheZone) {
    const Simulation::StudyTask task =
        TaskOf("Sala de Reunião", R"("atividade": "auto", "em": 300)");
    EXPECT_EQ(task.requirement, (ZoneRequirement{"s22.5", 300.0, 0.7, -1}));
    EXPECT_TRUE(task.byName);
    EXPECT_EQ(ReadScene(ZoneNamed("Sala de Reunião", R"("atividade": "auto")")).warnings.size(),
              1U); // that there are no luminaires
}

TEST(ActivityFields, SayThatANameSuggestsNothing) {
    const Simulation::LightingStudy document =
        ReadScene(ZoneNamed("Sala", R"("atividade": "auto")"));
    EXPECT_EQ(document.zones[0].task.requirement.taskId, "");
    ASSERT_EQ(document.warnings.size(), 2U);
    EXPECT_EQ(document.warnings[0],
              "A Zona \"Sala\" não é verificada: seu nome não sugere nenhuma atividade (veja "
              "\"vantoro atividades\").");
}

TEST(ActivityFields, RefuseWhatIsNoRequirement) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {R"("atividade": "s32.1")",
         "zonas[0].atividade: a norma não tem a atividade \"s32.1\" (veja \"vantoro atividades\")"},
        {R"("atividade": "S22.2")",
         "zonas[0].atividade: a norma não tem a atividade \"S22.2\" (veja \"vantoro atividades\")"},
        {R"("atividade": 22)",
         "zonas[0].atividade: espera-se um texto não vazio, em UTF-8 e numa linha só, mas há 22"},
        {R"("em": 500)", "zonas[0].em: só vale numa Zona que tem a chave \"atividade\""},
        {R"("u0": 0.6)", "zonas[0].u0: só vale numa Zona que tem a chave \"atividade\""},
        {R"("telas": "nenhuma")",
         "zonas[0].telas: só vale numa Zona que tem a chave \"atividade\""},
        {R"("atividade": "s22.2", "em": -0.1)",
         "zonas[0].em: espera-se um número de 0 a 10000, mas há -0.1"},
        {R"("atividade": "s22.2", "em": 10000.1)",
         "zonas[0].em: espera-se um número de 0 a 10000, mas há 10000.1"},
        {R"("atividade": "s22.2", "u0": 1.01)",
         "zonas[0].u0: espera-se um número de 0 a 1, mas há 1.01"},
        {R"("atividade": "s22.2", "telas": 1)",
         "zonas[0].telas: espera-se \"automatico\", \"nenhuma\", \"classes I e II\" ou \"classe "
         "III\", mas há 1"},
        {R"("atividade": "auto", "atividades": 1)",
         "zonas[0]: chave desconhecida \"atividades\" (talvez \"atividade\")"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(ZoneNamed("Sala", c.members)), c.error);
    }
}

TEST(ActivityFields, ChooseTheEditionOfTheStandardForTheProject) {
    EXPECT_EQ(ReadScene(SceneText("")).standard, ReferenceStandard::Brazilian);
    EXPECT_EQ(ReadScene(SceneText(R"("norma": "nbr")")).standard, ReferenceStandard::Brazilian);
    EXPECT_EQ(ReadScene(SceneText(R"("norma": "iso")")).standard, ReferenceStandard::International);
    EXPECT_EQ(SceneError(SceneText(R"("norma": "NBR")")),
              "norma: espera-se \"nbr\" ou \"iso\", mas há o texto \"NBR\"");
}

TEST(ObserverFields, ReadEveryKey) {
    const Simulation::LightingStudy document = ReadScene(
        SceneText(R"("observadores": [{"nome": "Mesa", "posicao": [1, 2, 1.2], "direcao": [3, -4]},
                                      {"posicao": [0, 0, -1], "direcao": [0, 1]}])"));
    ASSERT_EQ(document.observers.size(), 2U);
    const Simulation::UgrObserver& observer = document.observers[0];
    EXPECT_EQ(observer.label, "Mesa");
    EXPECT_EQ(observer.x, 1.0);
    EXPECT_EQ(observer.y, 2.0);
    EXPECT_EQ(observer.z, 1.2);
    EXPECT_DOUBLE_EQ(observer.dx, 0.6);
    EXPECT_DOUBLE_EQ(observer.dy, -0.8);
    EXPECT_EQ(document.observers[1].label, "Observador 2");
}

TEST(ObserverFields, RefuseWhatIsNoObserver) {
    struct Case {
        std::string list;
        std::string error;
    };
    const Case cases[] = {
        {"{}", "observadores: espera-se uma lista de observadores, mas há um objeto"},
        {R"([{"direcao": [1, 0]}])", "observadores[0]: falta a chave \"posicao\""},
        {R"([{"posicao": [0, 0, 1]}])", "observadores[0]: falta a chave \"direcao\""},
        {R"([{"posicao": [0, 0, 1], "direcao": [0, 0]}])",
         "observadores[0].direcao: a direção tem comprimento nulo"},
        {R"([{"posicao": [0, 0, 1], "direcao": [1, 0, 0]}])",
         "observadores[0].direcao: espera-se um ponto [x, y], mas há uma lista de 3"},
        {R"([{"posicao": [0, 0], "direcao": [1, 0]}])",
         "observadores[0].posicao: espera-se uma lista [x, y, z], mas há uma lista de 2"},
        {R"([{"posicao": [0, 0, 1], "direcao": [1, 0], "nome": ""}])",
         "observadores[0].nome: espera-se um texto não vazio, em UTF-8 e numa linha só, mas há o "
         "texto \"\""},
        {R"([{"posicao": [0, 0, 1], "direcao": [1, 0], "olho": 1.2}])",
         "observadores[0]: chave desconhecida \"olho\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.list);
        EXPECT_EQ(SceneError(SceneText("\"observadores\": " + c.list)), c.error);
    }
}

} // namespace Merivane::Document
