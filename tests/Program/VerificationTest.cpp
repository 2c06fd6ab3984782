#include <cmath>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

using Catalog::JsonValue;

/// What the sample room is sure to have, and what it can't have.
const std::string Easy = R"("atividade": "s1.3", "em": 20, "u0": 0.1)";
const std::string Hard = R"("atividade": "s1.3", "em": 9000, "u0": 0.1)";

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    return text.replace(text.find(what), what.size(), with);
}

/// A folder with the sample scene, its Zone and its document having these members more.
struct VerifiedRun {
    TemporaryFolder folder;
    std::filesystem::path scene = WriteSampleScene(folder.Path());
    std::filesystem::path out = folder.Path() / "saida";

    explicit VerifiedRun(const std::string& zoneMembers, const std::string& members = "") {
        std::string text =
            Replaced(SampleSceneText(), "\"nome\": \"Sala\",",
                     "\"nome\": \"Sala\"," + (zoneMembers.empty() ? "" : zoneMembers + ","));
        text = Replaced(text, "\"nome\": \"Prova\",",
                        "\"nome\": \"Prova\"," + (members.empty() ? "" : members + ","));
        WriteBytes(scene, text);
    }

    ProgramEnd Run(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> arguments = {"simular", scene.string(), "--saida", out.string()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunVantoro(arguments);
    }

    JsonValue Result() const {
        JsonValue json;
        EXPECT_TRUE(Catalog::JsonParse(ReadBytes(out / "resultado.json"), json).ok);
        return json;
    }
};

/// Whether the output holds the text.
testing::AssertionResult Tells(const std::string& output, const std::string& text) {
    return output.find(text) != std::string::npos ? testing::AssertionSuccess()
                                                  : testing::AssertionFailure()
                                                        << "no \"" << text << "\" in:\n"
                                                        << output;
}

} // namespace

TEST(Verification, EndsWithStatus3WhereARequiredRowFailsAndWritesAllTheSame) {
    const VerifiedRun run(Hard);
    const ProgramEnd end = run.Run({"--verificar"});
    EXPECT_EQ(end.status, 3);
    EXPECT_TRUE(Tells(end.error, "\nvantoro: não atende à norma: \"Sala\".\n"));
    EXPECT_TRUE(Tells(end.output, "  RESULTADO: NÃO ATENDE\n"));
    EXPECT_EQ(
        run.Result().Find("zonas")->items.at(0).Find("verificacao")->StringOr("resultado", ""),
        "NÃO ATENDE");
    EXPECT_TRUE(std::filesystem::exists(run.out / "planta.png"));
}

TEST(Verification, EndsWithStatus0WhereEveryRequiredRowIsMet) {
    const VerifiedRun run(Easy);
    const ProgramEnd end = run.Run({"--verificar", "--silencioso"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(
        run.Result().Find("zonas")->items.at(0).Find("verificacao")->StringOr("resultado", ""),
        "ATENDE");
}

TEST(Verification, FailsNothingWhereItIsNotAskedTo) {
    EXPECT_EQ(VerifiedRun(Hard).Run({"--silencioso"}).status, 0);
}

TEST(Verification, SaysInSilenceTooWhichZonesFail) {
    const ProgramEnd end = VerifiedRun(Hard).Run({"--verificar", "--silencioso"});
    EXPECT_EQ(end.status, 3);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "vantoro: não atende à norma: \"Sala\".\n");
}

TEST(Verification, SaysThatThereWasNothingToVerify) {
    const ProgramEnd end = VerifiedRun("").Run({"--verificar", "--silencioso"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "vantoro: nenhuma Zona tem atividade: nada foi verificado.\n");
}

TEST(Verification, TellsTheRowsOfEachZoneAligned) {
    const ProgramEnd end = VerifiedRun(Easy).Run();
    EXPECT_TRUE(Tells(end.output, "\nVerificação  —  ABNT NBR ISO/CIE 8995-1:2013\n"));
    EXPECT_TRUE(Tells(end.output, "\nSala  —  Áreas de circulação e corredores (s1.3)\n"));
    EXPECT_TRUE(Tells(end.output, "  Critério"));
    EXPECT_TRUE(Tells(end.output, "      ≥ 20 lx  ATENDE\n"));
    EXPECT_TRUE(Tells(end.output, "         ≥ 40  SEM DADO\n")); // the file tells no Ra
    EXPECT_TRUE(Tells(end.output, "  RESULTADO: ATENDE\n"));
    EXPECT_TRUE(Tells(end.output, "  Recomendações (não entram no resultado)\n"));
    EXPECT_TRUE(Tells(end.output, "\n  UGR "));
    EXPECT_TRUE(Tells(end.output, " (UGRL 28): tabela CIE 117 lida na sala-padrão "));
    EXPECT_TRUE(Tells(end.output, "4 meio das paredes, máx. UGR "));
}

TEST(Verification, TellsWhatShinesMostIntoTheScreens) {
    const ProgramEnd end = VerifiedRun(Easy + R"(, "telas": "classe III")").Run();
    EXPECT_TRUE(Tells(end.output, "  Luminância (telas)"));
    EXPECT_TRUE(Tells(end.output, "\n  Luminância para telas (limite 200 cd/m²): a maior é de D1 "
                                  "(gama 65, C 0)\n"));
    EXPECT_EQ(VerifiedRun(Easy).Run().output.find("para telas"), std::string::npos);
}

TEST(Verification, TellsAZoneWithoutActivity) {
    const ProgramEnd end = VerifiedRun("").Run();
    EXPECT_TRUE(Tells(end.output, "\nSala\n  sem atividade definida na Zona: sem verificação\n"));
    EXPECT_EQ(end.output.find("Verificação  —"), std::string::npos);
    EXPECT_TRUE(Tells(end.output, "\n  UGR "));
}

TEST(Verification, NamesTheEditionThatTheDocumentChose) {
    const VerifiedRun run(Easy, "\"norma\": \"iso\"");
    EXPECT_TRUE(Tells(run.Run().output, "\nVerificação  —  ISO/CIE 8995-1:2002\n"));
    EXPECT_EQ(run.Result().StringOr("norma", ""), "ISO/CIE 8995-1:2002");
    EXPECT_TRUE(Tells(ReadBytes(run.out / "planta.svg"), "ISO/CIE 8995-1:2002"));
}

TEST(Verification, WarnsOfNamesThatSuggestNothingAndOfObserversOutside) {
    const VerifiedRun run(R"("atividade": "auto")",
                          R"("observadores": [{"posicao": [9, 9, 1.2], "direcao": [1, 0]}])");
    const ProgramEnd end = run.Run();
    EXPECT_TRUE(Tells(end.output, "\nAviso: A Zona \"Sala\" não é verificada: seu nome não sugere "
                                  "nenhuma atividade (veja \"vantoro atividades\").\n"));
    EXPECT_TRUE(Tells(end.output, "\nAviso: 1 observador(es) UGR fora das Zonas calculadas (ou com "
                                  "o olho fora da altura da Zona): ignorado(s)\n"));
    const JsonValue result = run.Result();
    EXPECT_TRUE(result.Find("avisos")->items.at(0).text.starts_with("A Zona \"Sala\""));
    EXPECT_TRUE(result.Find("avisos")->items.at(1).text.starts_with("1 observador(es) UGR"));
}

TEST(Verification, KeepsTheViewsOfObserversOutOfThePoints) {
    const VerifiedRun run(Easy, R"("observadores": [{"posicao": [1, 1, 1.2], "direcao": [1, 0]}])");
    const ProgramEnd end = run.Run();
    EXPECT_EQ(run.Result().Find("pontos")->items.size(), 1U);
    EXPECT_TRUE(Tells(end.output, "Ponto 1: "));
    EXPECT_EQ(end.output.find("Ponto 2: "), std::string::npos);
    EXPECT_TRUE(Tells(end.output, "1 observadores colocados: Observador 1 "));
}

TEST(Verification, TakesTheReflectedLightOfAnObserverFromTheCalculation) {
    // The document's point and the observer are one view.
    const VerifiedRun run(Easy, R"("observadores": [{"posicao": [1, 1, 1.2], "direcao": [1, 0]}])");
    WriteBytes(run.scene, Replaced(ReadBytes(run.scene), "\"posicao\": [1.5, 1, 1.2] }]",
                                   "\"posicao\": [1, 1, 1.2], \"direcao\": [1, 0, 0] }]"));
    EXPECT_EQ(run.Run({"--repetivel"}).status, 0);
    const JsonValue result = run.Result();
    const JsonValue& point = result.Find("pontos")->items.at(0);
    const double reflected = point.NumberOr("total", 0) - point.NumberOr("direta", 0);
    const JsonValue& observer =
        result.Find("zonas")->items.at(0).Find("ofuscamento")->Find("observadores")->items.at(4);
    EXPECT_GT(reflected, 1.0);
    EXPECT_NEAR(observer.NumberOr("refletida", 0), reflected, 0.1 * reflected);
    EXPECT_NEAR(observer.NumberOr("Lb", 0),
                observer.NumberOr("refletida", 0) / 0.8 / 3.14159265358979, 1e-6);
}

TEST(Verification, ExplainsEveryObserverWhereItIsAskedTo) {
    const VerifiedRun run(Easy);
    const ProgramEnd end = run.Run({"--explicar"});
    EXPECT_TRUE(Tells(end.output, "\nOfuscamento na Zona \"Sala\", posições reais\n"));
    EXPECT_TRUE(Tells(end.output, "\nObservador: "));
    EXPECT_TRUE(std::filesystem::exists(run.out / "ofuscamento.csv"));
    const JsonValue result = run.Result();
    const std::vector<JsonValue>& observers =
        result.Find("zonas")->items.at(0).Find("ofuscamento")->Find("observadores")->items;
    ASSERT_EQ(observers.size(), 4U);
    for (const JsonValue& observer : observers) {
        double sum = 0.0;
        for (const JsonValue& row : observer.Find("linhas")->items) {
            sum += row.NumberOr("termo", 0.0);
        }
        const double background = observer.NumberOr("Lb", 0);
        EXPECT_NEAR(8.0 * std::log10(0.25 / background * sum), observer.NumberOr("UGR", 0), 1e-6);
    }
}

TEST(Verification, ExplainsNothingUnasked) {
    const VerifiedRun run(Easy);
    EXPECT_EQ(run.Run().output.find("Observador: "), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(run.out / "ofuscamento.csv"));
    EXPECT_EQ(ReadBytes(run.out / "resultado.json").find("\"linhas\": []"), std::string::npos);
    EXPECT_EQ(ReadBytes(run.out / "resultado.json").find("\"soma\""), std::string::npos);
}

TEST(Verification, DrawsTheVerificationOnThePlan) {
    const VerifiedRun run(Hard);
    EXPECT_EQ(run.Run({"--silencioso"}).status, 0);
    const std::string plan = ReadBytes(run.out / "planta.svg");
    for (const std::string text :
         {"Iluminância Em", "Situação", "NÃO ATENDE", "RESULTADO", "SEM DADO", "Recomendações"}) {
        EXPECT_TRUE(Tells(plan, text));
    }
}

} // namespace Merivane::Tests
