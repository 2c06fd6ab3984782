#include <gtest/gtest.h>

#include <string>

#include "ScriptRuns.hpp"

namespace Merivane {
namespace {

using namespace Workbench;

TEST(ScriptError, NamesPartScriptLineStatementAndReason) {
    struct Row {
        std::string script;
        std::string error; ///< behind "A peça "Peca" parou no script 2D, linha "
    };
    const Row rows[] = {
        {"PEN 1\nVOAR 3\n", "2, instrução VOAR: a instrução não existe."},
        {"\n\nLINE2 0, 0, 1", "3, instrução LINE2: faltam argumentos."},
        {"LINE2 0, 0, 1, 1, 1", "1, instrução LINE2: há argumentos demais."},
        {"PUT 1, 2, 3\nLINE2 GET (NSP)", "2, instrução LINE2: faltam argumentos."},
        {"LINE2 0, 0, 1, \"a\"", "1, instrução LINE2: o argumento 4 deve ser um número."},
        {"x = 1 +", "1, instrução x: falta um valor."},
        {"x = (1", "1, instrução x: falta \")\"."},
        {"x = 1 2", "1, instrução x: não se entende o que vem depois da instrução."},
        {"x = \"a\nb\"", "1: falta a aspa que fecha o texto."},
        {"x = 1 $ 2", "1: o caractere \"$\" não pertence à linguagem."},
        {"x = 1e999", "1: o número \"1e999\" é grande demais."},
        {"x \\ y", "1: uma barra invertida só vale no fim da linha."},
        {"x = 1 / 0", "1, instrução x: divisão por zero."},
        {"x = SQR (-1)", "1, instrução x: raiz de um número negativo."},
        {"x = LOG (0)", "1, instrução x: logaritmo de um número que não é positivo."},
        {"x = ASN (2)", "1, instrução x: ASN e ACS vão de -1 a 1."},
        {"x = TAN (90)", "1, instrução x: a tangente de um ângulo reto não existe."},
        {"x = 10 ^ 400", "1, instrução x: o resultado é grande demais."},
        {"x = \"a\" + 1", "1, instrução x: um texto e um número não se combinam."},
        {"x = \"a\" * \"b\"", "1, instrução x: falta um número, há um texto."},
        {"x = -\"a\"", "1, instrução x: falta um número, há um texto."},
        {"x = Voar (1)", "1, instrução x: a função \"Voar\" não existe."},
        {"x = ABS (1, 2)", "1, instrução x: a função ABS não leva 2 argumentos."},
        {"IF \"a\" THEN x = 1", "1, instrução IF: a condição é um texto."},
        {"IF 1\nx = 1", "1, instrução IF: falta THEN."},
        {"x = 1\nIF 1 THEN\nx = 2", "2, instrução IF: o bloco IF não termina."},
        {"FOR i = 1 TO 2\nNEXT j", "2, instrução NEXT: NEXT j não é do FOR que está aberto."},
        {"NEXT i", "1, instrução NEXT: NEXT sem o começo do bloco."},
        {"ENDIF", "1, instrução ENDIF: ENDIF sem o começo do bloco."},
        {"ELSE", "1, instrução ELSE: ELSE sem o começo do bloco."},
        {"ENDWHILE", "1, instrução ENDWHILE: ENDWHILE sem o começo do bloco."},
        {"UNTIL 1", "1, instrução UNTIL: UNTIL sem o começo do bloco."},
        {"WHILE 1\n", "1, instrução WHILE: falta DO."},
        {"IF 1 THEN FOR i = 1 TO 2\nNEXT i",
         "1, instrução FOR: um bloco não cabe em um IF de uma linha."},
        {"GOTO 10", "1, instrução GOTO: o rótulo 10 não existe."},
        {"GOSUB \"a\"", "1, instrução GOSUB: o rótulo \"a\" não existe."},
        {"x = 5\nGOTO x + 1", "2, instrução GOTO: o rótulo \"6\" não existe."},
        {"10:\n10:", "2: o rótulo aparece duas vezes."},
        {"RETURN", "1, instrução RETURN: RETURN sem GOSUB."},
        {"DIM a[2]\na[3] = 1", "2, instrução a: a[3] fica fora da tabela."},
        {"DIM a[2]\nx = a[0]", "2, instrução x: um índice é um número inteiro a partir de 1."},
        {"DIM a[2][2]\nx = a[1][3]", "2, instrução x: a[1][3] fica fora da tabela."},
        {"DIM a[2]\nx = a + 1", "2, instrução x: falta o índice da tabela a."},
        {"x = y[1]", "1, instrução x: y não é uma tabela."},
        {"y[1] = 2", "1, instrução y: y não é uma tabela."},
        {"DIM a[0]",
         "1, instrução DIM: o tamanho de uma tabela é um número inteiro a partir de 1."},
        {"DIM a", "1, instrução DIM: uma tabela tem uma ou duas dimensões, entre colchetes."},
        {"x = GET (1)", "1, instrução x: GET e USE pedem mais valores do que PUT guardou (0)."},
        {"PUT 1\nLINE2 GET (2), 1, 1",
         "2, instrução LINE2: GET e USE pedem mais valores do que PUT guardou (1)."},
        {"PUT 1, 2\nx = GET (2) + 1",
         "2, instrução x: GET e USE dão mais de um valor só em listas de argumentos."},
        {"PEN 0", "1, instrução PEN: a caneta 0 não existe: vão de 1 a 255."},
        {"PEN 256", "1, instrução PEN: a caneta 256 não existe: vão de 1 a 255."},
        {"STYLE \"x\"", "1, instrução STYLE: o estilo \"x\" não foi definido."},
        {"DRAWINDEX 15", "1, instrução DRAWINDEX: DRAWINDEX leva 10, 20, 30, 40 ou 50."},
        {"ROT 0, 0, 0, 90", "1, instrução ROT: o eixo da rotação não tem comprimento."},
        {"POLY2 3, 1, 0, 0, 1, 1", "1, instrução POLY2: os argumentos não são os de 3 pontos."},
        {"POLY2_ 2, 1, 0, 0, 1, 1, 1, 450",
         "1, instrução POLY2_: o código de estado 450 não existe."},
        {"POLY2_ 2, 1, 1, 1, 101, 1, 1, 1",
         "1, instrução POLY2_: o código de estado 101 precisa de um ponto antes dele."},
        {"LIN_ 0, 0, 0, 1, 1, 1", "1, instrução LIN_: só vale no script 3D."},
        {"CALL \"nada\"", "1, instrução CALL: a macro \"nada\" não está nas bibliotecas."},
        {"x = IND (NADA, \"a\")", "1, instrução x: IND não conhece \"NADA\"."},
        {"PARAGRAPH \"p\" 1\n'a'", "2, instrução PARAGRAPH: falta ENDPARAGRAPH."},
        {"MODEL ON", "1, instrução MODEL: MODEL leva WIRE, SURFACE ou SOLID."},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.script);
        EXPECT_EQ(Tests::PlanError(Tests::PlanPart(row.script)),
                  "A peça \"Peca\" parou no script 2D, linha " + row.error);
    }
}

TEST(ScriptError, OfTheMasterScriptIsItsOwn) {
    EXPECT_EQ(Tests::PlanError(Tests::PlanPart("LINE2 0, 0, 1, 1", "\nx = 1 / 0")),
              "A peça \"Peca\" parou no script mestre, linha 2, instrução x: divisão por zero.");
}

TEST(ScriptError, OfTheOtherScriptsNamesThem) {
    EXPECT_EQ(Tests::ModelError("CUTEND"), "A peça \"Peca\" parou no script 3D, linha 1, instrução "
                                           "CUTEND: CUTEND sem corte aberto.");
    ScriptPart part;
    part.name = "Peca";
    part.parameter = "VALUES \"a\" RANGE 1, 2";
    ParameterRules rules;
    const auto error = RunParameterScript(part, {}, rules);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(DescribeScriptError(*error),
              "A peça \"Peca\" parou no script de parâmetros, linha 1, instrução VALUES: o "
              "intervalo de RANGE fica entre colchetes ou parênteses.");
}

TEST(ScriptError, LeavesWhatWasDrawnBeforeIt) {
    PlanSymbolDrawing drawing;
    EXPECT_TRUE(RunPlanScript(Tests::PlanPart("LINE2 0, 0, 1, 1\nVOAR"), {}, drawing).has_value());
    EXPECT_EQ(drawing.shapes.size(), 1U);
}

TEST(ScriptError, IsNoneWhereAnUnknownStatementIsNeverReached) {
    EXPECT_EQ(Tests::PlanError(Tests::PlanPart("IF 0 THEN VOAR 1 2 3")), "");
    EXPECT_EQ(Tests::PlanError(Tests::PlanPart("PARAGRAPH \"p\" 1, 0, 0, 0, 1\nPEN 900\n'texto'\n"
                                               "ENDPARAGRAPH\nTEXTBLOCK \"t\" 0, 1, 0, 1, 1, 0, "
                                               "\"p\"\nRICHTEXT2 0, 0, \"t\"")),
              "");
    EXPECT_EQ(Tests::PlanError(Tests::PlanPart("UI_DIALOG \"x\", 1\nPRINT x")), "");
}

/// A script that must stop by a limit.
void ExpectLimit(const std::string& script, const std::string& reason,
                 const ScriptLimits& limits = {}) {
    SCOPED_TRACE(script);
    ScriptEnvironment environment;
    environment.limits = limits;
    PlanSymbolDrawing drawing;
    const auto error = RunPlanScript(Tests::PlanPart(script), environment, drawing);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->explanation, reason);
}

TEST(ScriptLimit, StopsWhatWouldNeverEnd) {
    const std::string deep = "sub-rotinas e macros demais, uma dentro da outra";
    const std::string busy = "o script executa instruções demais";
    ExpectLimit("10: GOTO 10", busy);
    ExpectLimit("DO\nWHILE 1", busy);
    ExpectLimit("FOR i = 1 TO 2 STEP 0\nNEXT i", busy);
    ExpectLimit("10: GOSUB 10", deep);
    ExpectLimit("x = \"aaaaaaaa\"\nDO\nx = x + x\nWHILE 1", "o texto fica longo demais");
    ExpectLimit("DO\nPUT 1, 2, 3, 4, 5, 6, 7, 8\nWHILE 1",
                "o script guarda valores demais em tabelas");
    ExpectLimit("DIM a[]\na[1000000000] = 1", "o script guarda valores demais em tabelas");
    ExpectLimit("DIM a[50000][50000]", "o script guarda valores demais em tabelas");
    ExpectLimit("DO\nADD2 0, 0\nWHILE 1", "transformações demais");
    ExpectLimit("DO\nMUL2 1000, 1000\nWHILE 1", "as transformações levam longe demais");
    ExpectLimit("FOR i = 1 TO 100001\nDEFINE STYLE STR (i, 1, 0) \"Arial\", 3, 1, 0\nNEXT i",
                "estilos demais");
    ScriptLimits small;
    small.values = 10;
    ExpectLimit("DIM a[10]\nLINE2 a, a", "argumentos demais", small);
    ExpectLimit("PUT 1, 2, 3, 4, 5, 6\nLINE2 USE (6), USE (6)", "argumentos demais", small);
    ScriptLimits few;
    few.shapes = 10;
    ExpectLimit("DO\nLINE2 0, 0, 1, 1\nWHILE 1", "o script desenha demais", few);
    ScriptLimits thin;
    thin.vertices = 100;
    ExpectLimit("RESOL 3600\nPOLY2_ 3, 1, 0, 0, 900, 1, 360, 4001, 5, 5, 1",
                "pontos demais em um contorno", thin);
}

TEST(ScriptLimit, BoundsHowDeepTextNests) {
    const std::string brackets(5000, '(');
    ExpectLimit("x = " + brackets + "1", "parênteses demais, um dentro do outro");
    ExpectLimit("x = " + std::string(5000, '-') + "1", "parênteses demais, um dentro do outro");
    std::string ifs;
    for (int i = 0; i < 5000; ++i) {
        ifs += "IF 1 THEN ";
    }
    ExpectLimit(ifs + "x = 1", "IFs demais, um dentro do outro");
}

TEST(ScriptLimit, LetsLongScriptsRun) {
    std::string sum = "x = 0";
    for (int i = 0; i < 50000; ++i) {
        sum += " + 1";
    }
    EXPECT_EQ(Tests::WrittenTexts(sum + "\nTEXT2 0, 0, x"), "50000");
    EXPECT_EQ(Tests::WrittenTexts("FOR i = 1 TO 1000000\ns = s + i\nNEXT i\nTEXT2 0, 0, s"),
              "500000500000");
}

} // namespace
} // namespace Merivane
