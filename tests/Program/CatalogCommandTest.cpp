#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <signal.h>

#include "Catalog/CatalogSamples.hpp"
#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Support/LoopbackServer.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {
namespace {

namespace fs = std::filesystem;
using Catalog::CatalogProduct;

const std::string Summary = "1 produto(s) de 1 fabricante(s), catálogo de 2026-11-21";
const std::string Header =
    "Fabricante            Produto                                     Lâmpada "
    "               lm        W\n";
const std::string PanelRow =
    "Luz                   AB-12 - Painel Ótimo                        LED  "
    "                3000     29,1\n";

class CatalogCommand : public testing::Test {
protected:
    std::string Folder() const { return folder.Path().string(); }
    fs::path Package() const { return folder.Path() / "pacotes/luz/ab-12"; }

    /// Every file of the catalogue as a server gives it.
    std::map<std::string, std::string> Answers() const {
        std::map<std::string, std::string> answers;
        for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
            if (entry.is_regular_file()) {
                answers["/" + entry.path().lexically_relative(folder.Path()).string()] =
                    HttpAnswer("200 OK", ReadBytes(entry.path()));
            }
        }
        return answers;
    }

    const TemporaryFolder folder;
    const CatalogProduct product = Catalog::WriteSampleCatalog(folder.Path());
};

/// A call whose cache is a folder of its own.
ProgramCall WithCache(const fs::path& cache) {
    ProgramCall call;
    call.prelude = "export XDG_CACHE_HOME=" + ShellWord(cache.string()) +
                   " no_proxy=127.0.0.1 NO_PROXY=127.0.0.1;";
    return call;
}

} // namespace

TEST_F(CatalogCommand, FindsATrueFolderInOrder) {
    for (const std::string end : {"", "/", "/catalogo.json"}) {
        const ProgramEnd run = RunVantoro({"catalogo", "verificar", Folder() + end});
        EXPECT_EQ(run.status, 0) << end;
        EXPECT_EQ(run.output, Summary + ".\n4 arquivo(s) em ordem, nenhum problema.\n");
        EXPECT_EQ(run.error, "");
    }
}

TEST_F(CatalogCommand, TakesAFolderThatTheWorkingFolderLeadsTo) {
    ProgramCall call;
    call.folder = folder.Path();
    for (const std::string origin : {".", "catalogo.json", "./catalogo.json", "pacotes/.."}) {
        EXPECT_EQ(RunVantoro({"catalogo", "verificar", origin}, call).status, 0) << origin;
    }
}

TEST_F(CatalogCommand, EndsWithStatus3WhereSomethingIsNotAsListed) {
    WriteBytes(Package() / "ab-12.gsm", "bytes");
    WriteBytes(Package() / "curva.png", "BYTES DA CURVA");
    const ProgramEnd run = RunVantoro({"catalogo", "verificar", Folder()});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.output,
              Summary + ".\n" +
                  "luz/ab-12: pacotes/luz/ab-12/ab-12.gsm veio com 5 bytes, o catalogo diz 14 "
                  "(download incompleto, ou o catalogo nao foi atualizado junto)\n"
                  "luz/ab-12: pacotes/luz/ab-12/curva.png nao confere com o catalogo (SHA-256 "
                  "diferente): o arquivo foi trocado sem reexportar o catalogo\n"
                  "2 arquivo(s) em ordem, 2 problema(s).\n");
}

TEST_F(CatalogCommand, TellsAProgramWhatItFound) {
    fs::remove(Package() / "curva.png");
    const ProgramEnd run = RunVantoro({"catalogo", "verificar", "--json", Folder()});
    EXPECT_EQ(run.status, 3);
    Catalog::JsonValue report;
    ASSERT_TRUE(Catalog::JsonParse(run.output, report).ok) << run.output;
    EXPECT_EQ(report.NumberOr("arquivos", 0), 3.0);
    ASSERT_EQ(report.Find("problemas")->items.size(), 1U);
    EXPECT_EQ(report.Find("problemas")->items[0].StringOr("texto", ""),
              "arquivo nao encontrado: " + (Package() / "curva.png").string());
}

TEST_F(CatalogCommand, FailsWhereThereIsNoIndexThatItCanUse) {
    struct Case {
        std::string index;
        std::string error;
    };
    const Case cases[] = {
        {"{}", "vantoro: catalogo.json sem a lista de produtos - o endereco aponta mesmo para um "
               "catalogo do Vantoro?\n"},
        {"[1", "vantoro: catalogo.json invalido: esperava ',' ou ']' (byte 2).\n"},
        {R"({"formato": 2, "produtos": []})",
         "vantoro: este catalogo usa o formato 2, mais novo que o deste Vantoro (1). Atualize o "
         "Vantoro.\n"},
    };
    for (const std::string command : {"verificar", "listar"}) {
        for (const Case& c : cases) {
            WriteBytes(folder.Path() / "catalogo.json", c.index);
            const ProgramEnd run = RunVantoro({"catalogo", command, Folder()});
            EXPECT_EQ(run.status, 1);
            EXPECT_EQ(run.output, "");
            EXPECT_EQ(run.error, c.error);
        }
        const ProgramEnd run = RunVantoro({"catalogo", command, Folder() + "/pacotes"});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.error, "vantoro: não foi possível carregar: arquivo nao encontrado: " +
                                 Folder() + "/pacotes/catalogo.json\n");
    }
}

TEST_F(CatalogCommand, ChecksACatalogueOfTheWebAsItIsThere) {
    const TemporaryFolder cache;
    auto answers = Answers();
    {
        LoopbackServer server(AnswerByPath(answers));
        const ProgramEnd run = RunVantoro(
            {"catalogo", "verificar", server.Address("/catalogo.json?x")}, WithCache(cache.Path()));
        EXPECT_EQ(run.status, 0) << run.error << run.output;
        EXPECT_EQ(run.output, Summary + ".\n4 arquivo(s) em ordem, nenhum problema.\n");
    }
    answers.erase("/pacotes/luz/ab-12/ab-12.ies");
    answers["/pacotes/luz/ab-12/curva.png"] = HttpAnswer("200 OK", "curva");
    LoopbackServer server(AnswerByPath(answers));
    const ProgramEnd run =
        RunVantoro({"catalogo", "verificar", server.Address("")}, WithCache(cache.Path()));
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.output,
              Summary + ".\nluz/ab-12: arquivo nao encontrado no servidor (404): " +
                  server.Address("/pacotes/luz/ab-12/ab-12.ies") +
                  "\nluz/ab-12: pacotes/luz/ab-12/curva.png veio com 5 bytes, o catalogo diz 14 "
                  "(download incompleto, ou o catalogo nao foi atualizado junto)\n"
                  "2 arquivo(s) em ordem, 2 problema(s).\n");
    EXPECT_TRUE(fs::is_empty(cache.Path())) << "a check must neither use nor fill the cache";
}

TEST_F(CatalogCommand, IsCancelledBetweenTwoFiles) {
    const TemporaryFolder cache;
    const fs::path pidFile = cache.Path() / "pid";
    const Conversation answer = AnswerByPath(Answers());
    // The third request is for the first product's part: then Ctrl-C is pressed.
    LoopbackServer server([&answer, &pidFile, requests = 0](ServerConnection& connection) mutable {
        if (++requests == 3) {
            ::kill(std::stoi(ReadBytes(pidFile)), SIGINT);
        }
        answer(connection);
    });
    ProgramCall call = WithCache(cache.Path());
    call.prelude += " echo $$ >" + ShellWord(pidFile.string()) + ";";
    const ProgramEnd run = RunVantoro({"catalogo", "verificar", server.Address("/")}, call);
    EXPECT_EQ(run.status, 130);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.error, "vantoro: verificação cancelada.\n");
    EXPECT_LE(server.Heads().size(), 3U) << "the index, the product's record and its part";
}

TEST_F(CatalogCommand, IsCancelledWhileAServerDrips) {
    using Clock = std::chrono::steady_clock;
    const TemporaryFolder cache;
    const fs::path pidFile = cache.Path() / "pid";
    const Conversation answer = AnswerByPath(Answers());
    Clock::time_point pressed;
    LoopbackServer server([&, requests = 0](ServerConnection& connection) mutable {
        if (++requests < 3) {
            return answer(connection);
        }
        connection.ReadHead();
        connection.Send("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
        for (int bytes = 0; connection.Send("a"); ++bytes) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            if (bytes == 10) {
                pressed = Clock::now();
                ::kill(std::stoi(ReadBytes(pidFile)), SIGINT);
            }
        }
    });
    ProgramCall call = WithCache(cache.Path());
    call.prelude += " echo $$ >" + ShellWord(pidFile.string()) + ";";
    const ProgramEnd run = RunVantoro({"catalogo", "verificar", server.Address("/")}, call);
    EXPECT_LT(Clock::now() - pressed, std::chrono::seconds(1));
    EXPECT_EQ(run.status, 130);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.error, "vantoro: verificação cancelada.\n");
}

TEST_F(CatalogCommand, PutsNoFullStopBehindAnAddress) {
    const TemporaryFolder cache;
    LoopbackServer server(AnswerByPath({}));
    const std::string address = server.Address("/catalogo.json");
    const ProgramEnd run = RunVantoro({"catalogo", "listar", address}, WithCache(cache.Path()));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.error, "vantoro: não foi possível carregar: arquivo nao encontrado no servidor "
                         "(404): " +
                             address + "\n");
}

TEST_F(CatalogCommand, SaysHowAnAddressOfTheWebBegins) {
    ProgramCall call;
    call.folder = folder.Path();
    for (const std::string origin : {"luz.com.br/cat", "ftp://luz/cat", "www.luz.com"}) {
        const ProgramEnd run = RunVantoro({"catalogo", "listar", origin}, call);
        EXPECT_EQ(run.status, 1);
        EXPECT_NE(run.error.find("vantoro: um endereço da internet começa com https:// ou http://; "
                                 "\"" +
                                 origin + "\" foi lido como uma pasta deste computador.\n"),
                  std::string::npos)
            << run.error;
    }
    for (const std::string origin : {"falta", "../falta", "/falta/a.b", "pacotes"}) {
        const ProgramEnd run = RunVantoro({"catalogo", "listar", origin}, call);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.error.find("internet"), std::string::npos) << run.error;
    }
}

TEST_F(CatalogCommand, LeavesAServerThatIsSilentOnTheIndexAtOnce) {
    for (const std::string command : {"verificar", "listar"}) {
        const TemporaryFolder cache;
        const fs::path pidFile = cache.Path() / "pid";
        LoopbackServer server([&pidFile](ServerConnection& connection) {
            connection.ReadHead();
            ::kill(std::stoi(ReadBytes(pidFile)), SIGINT);
            connection.StaySilent();
        });
        ProgramCall call = WithCache(cache.Path());
        call.prelude += " echo $$ >" + ShellWord(pidFile.string()) + ";";
        const auto start = std::chrono::steady_clock::now();
        const ProgramEnd run = RunVantoro({"catalogo", command, server.Address("/")}, call);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30)) << command;
        EXPECT_EQ(run.status, 130) << command;
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(run.error, "");
    }
}

TEST_F(CatalogCommand, AsksForTheAddressWhereOnlyBlanksAndQuotesAreGiven) {
    for (const std::string command : {"verificar", "listar"}) {
        for (const std::string origin : {" ", "\"\"", " ' "}) {
            const ProgramEnd run = RunVantoro({"catalogo", command, origin});
            EXPECT_EQ(run.status, 1) << origin;
            EXPECT_EQ(run.output, "");
            EXPECT_EQ(run.error, "vantoro: informe o endereço do catálogo.\n");
        }
    }
}

TEST_F(CatalogCommand, FailsWhereNobodyAnswers) {
    const TemporaryFolder cache;
    const std::string address = "http://127.0.0.1:" + std::to_string(ClosedPort()) + "/";
    const ProgramEnd run = RunVantoro({"catalogo", "listar", address}, WithCache(cache.Path()));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.error,
              "vantoro: não foi possível carregar: nao foi possivel conectar ao servidor.\n");
}

TEST_F(CatalogCommand, ListsTheProductsThatATextSpeaksOf) {
    const ProgramEnd all = RunVantoro({"catalogo", "listar", Folder()});
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.error, "");
    EXPECT_EQ(all.output, Header + PanelRow + "\n" + Summary + ".\n");
    const std::string chosen = Header + PanelRow + "\n1 de " + Summary + ".\n";
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"OTIMO", "luz"}, {"luz ÓTIMO"}, {"--fabricante", "LUZ"}}) {
        std::vector<std::string> arguments = {"catalogo", "listar", Folder()};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const ProgramEnd some = RunVantoro(arguments);
        EXPECT_EQ(some.status, 0);
        EXPECT_EQ(some.output, chosen);
    }
}

TEST_F(CatalogCommand, FailsAndNamesTheTextWhenNothingIsFound) {
    struct Case {
        std::vector<std::string> words;
        std::string error;
    };
    const Case cases[] = {
        {{"foguete", "a jato"}, "contém \"foguete a jato\""},
        {{"--fabricante", "Outra"}, "é de \"Outra\""},
        {{"painel", "--fabricante", "(sem fabricante)"},
         "contém \"painel\" e é de \"(sem fabricante)\""},
    };
    for (const Case& c : cases) {
        std::vector<std::string> arguments = {"catalogo", "listar", Folder()};
        arguments.insert(arguments.end(), c.words.begin(), c.words.end());
        const ProgramEnd run = RunVantoro(arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(run.error, "vantoro: nenhum produto do catálogo " + c.error + ".\n");
        arguments.emplace_back("--json");
        EXPECT_EQ(RunVantoro(arguments).output, "[]\n");
    }
}

TEST_F(CatalogCommand, ListsAnEmptyCatalogueWithoutComplaint) {
    Catalog::WriteSampleIndex(folder.Path(), {});
    const ProgramEnd run = RunVantoro({"catalogo", "listar", Folder()});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.output, "0 produto(s) de 0 fabricante(s), catálogo de 2026-11-21.\n");
}

TEST_F(CatalogCommand, GivesProductsToAProgram) {
    const ProgramEnd run = RunVantoro({"catalogo", "listar", "--json", Folder()});
    EXPECT_EQ(run.status, 0);
    Catalog::JsonValue list;
    ASSERT_TRUE(Catalog::JsonParse(run.output, list).ok) << run.output;
    ASSERT_EQ(list.items.size(), 1U);
    CatalogProduct read;
    ASSERT_TRUE(Catalog::ReadCatalogProduct(list.items[0], read));
    EXPECT_EQ(read.id, product.id);
    EXPECT_EQ(read.part, product.part);
}

TEST(CatalogCommandLine, RefusesWrongUseWithAHintToTheRightHelp) {
    struct Case {
        std::vector<std::string> arguments;
        std::string error;
    };
    const Case cases[] = {
        {{"catalogo"}, "vantoro: falta o comando.\nVeja \"vantoro catalogo --ajuda\".\n"},
        {{"catalogo", "abrir"},
         "vantoro: comando desconhecido: abrir.\nVeja \"vantoro catalogo --ajuda\".\n"},
        {{"catalogo", "listar"},
         "vantoro: falta PASTA|ENDEREÇO.\nVeja \"vantoro catalogo listar --ajuda\".\n"},
        {{"catalogo", "verificar", ""},
         "vantoro: PASTA|ENDEREÇO: falta o valor.\nVeja \"vantoro catalogo verificar --ajuda\".\n"},
        {{"catalogo", "verificar", "a", "b"},
         "vantoro: argumento desconhecido: b.\nVeja \"vantoro catalogo verificar --ajuda\".\n"},
    };
    for (const Case& c : cases) {
        const ProgramEnd run = RunVantoro(c.arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(run.error, c.error);
    }
    for (const std::string command : {"verificar", "listar"}) {
        const ProgramEnd run = RunVantoro({"catalogo", command, "--ajuda"});
        EXPECT_EQ(run.status, 0);
        EXPECT_NE(run.output.find("Uso: vantoro catalogo " + command + " [OPÇÕES] PASTA|ENDEREÇO"),
                  std::string::npos)
            << run.output;
    }
}

} // namespace Merivane::Tests
