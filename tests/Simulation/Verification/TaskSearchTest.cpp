#include <cstddef>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Simulation {
namespace {

struct Pair {
    const char* text;
    const char* id;
};

std::vector<std::string> IdsOf(const std::vector<const TaskRow*>& rows) {
    std::vector<std::string> ids;
    ids.reserve(rows.size());
    for (const TaskRow* row : rows) {
        ids.push_back(row->id);
    }
    return ids;
}

std::vector<std::string> Found(std::string_view text) {
    return IdsOf(SearchTasks(text));
}

} // namespace

TEST(MigrateTaskId, ReplacesTheWordKeysOfEarlierReleases) {
    // clang-format off
    const Pair pairs[] = {
        {"circulacao", "s1.3"}, {"escadas", "s1.4"}, {"docas", "s1.5"}, {"cantina", "s1.6"},
        {"descanso", "s1.7"}, {"exercicio", "s1.8"}, {"sanitarios", "s1.9"},
        {"enfermaria", "s1.10"}, {"deposito", "s1.14"}, {"expedicao", "s1.15"}, {"hall", "s1.1"},
        {"arquivo_copia", "s22.1"}, {"escritorio", "s22.2"}, {"desenho", "s22.3"},
        {"cad", "s22.4"}, {"reuniao", "s22.5"}, {"recepcao", "s22.6"}, {"arquivos", "s22.7"},
        {"vendas", "s23.1"}, {"caixa", "s23.3"}, {"recepcao_hotel", "s24.1"},
        {"cozinha", "s24.2"}, {"self_service", "s24.4"}, {"buffet", "s24.5"},
        {"biblioteca_leitura", "s26.2"}, {"biblioteca_estantes", "s26.1"},
        {"sala_aula", "s28.4"}, {"sala_aula_noturna", "s28.5"}, {"auditorio", "s28.6"},
        {"lousa", "s28.7"}, {"artes", "s28.9"}, {"desenho_escola", "s28.11"},
        {"laboratorio", "s28.12"}, {"musica", "s28.14"}, {"informatica", "s28.15"},
        {"ginasio", "s28.20"}, {"espera", "s29.1"}, {"corredor_saude", "s29.2"},
    };
    // clang-format on
    static_assert(sizeof(pairs) / sizeof(pairs[0]) == 38);
    for (const Pair& pair : pairs) {
        EXPECT_EQ(MigrateTaskId(pair.text), pair.id);
        const TaskRow* row = FindTask(pair.text);
        ASSERT_NE(row, nullptr) << pair.text;
        EXPECT_EQ(row->id, pair.id);
    }
}

TEST(MigrateTaskId, LeavesAnyOtherTextUnchanged) {
    for (const char* text : {"", "s22.3", "s99.1", "Escritorio", "escritório", "escritorio ",
                             "escritori", "sala", "sala_aula_", "auto", "\xC3"}) {
        EXPECT_EQ(MigrateTaskId(text), text);
    }
    EXPECT_EQ(MigrateTaskId(std::string_view("cad\0", 4)), std::string("cad\0", 4));
}

TEST(FindTask, FindsEveryRowByItsId) {
    for (const TaskRow& row : TaskTable()) {
        EXPECT_EQ(FindTask(row.id), &row);
    }
}

TEST(FindTask, ComparesBytes) {
    for (const char* id : {"", "S22.3", "s22.3 ", " s22.3", "s22.03", "s22", "22.3", "s22.8",
                           "s0.1", "s32.1", "s22.3.1", "desenhos"}) {
        EXPECT_EQ(FindTask(id), nullptr) << id;
    }
}

TEST(SuggestTaskId, KnowsTheWordsOfZoneNames) {
    // clang-format off
    const Pair pairs[] = {
        {"desenho", "s22.3"}, {"reuni", "s22.5"}, {"conferen", "s22.5"}, {"recep", "s22.6"},
        {"escrit", "s22.2"}, {"trabalho", "s22.2"}, {"estudo", "s22.2"}, {"circula", "s1.3"},
        {"corredor", "s1.3"}, {"hall", "s1.1"}, {"escada", "s1.4"}, {"banh", "s1.9"},
        {"sanit", "s1.9"}, {"wc", "s1.9"}, {"lavabo", "s1.9"}, {"vesti", "s1.9"},
        {"copa", "s1.6"}, {"refeit", "s1.6"}, {"cantina", "s1.6"}, {"cozinha", "s24.2"},
        {"descanso", "s1.7"}, {"depos", "s1.14"}, {"almox", "s1.14"}, {"arquivo", "s22.7"},
        {"aula", "s28.4"}, {"labora", "s28.12"}, {"biblio", "s26.2"}, {"audit", "s28.6"},
        {"informat", "s28.15"}, {"loja", "s23.1"}, {"venda", "s23.1"}, {"caixa", "s23.3"},
        {"espera", "s29.1"}, {"ginas", "s28.20"}, {"academia", "s1.8"}, {"recreio", "s28.1"},
        {"brinquedo", "s28.1"}, {"bercario", "s28.2"}, {"professor", "s28.19"},
        {"igreja", "s31.1"}, {"templo", "s31.1"}, {"capela", "s31.1"},
        {"restaurante", "s24.3"}, {"jantar", "s24.3"}, {"garagem", "s27.4"},
        {"estacionamento", "s27.4"}, {"cabeleir", "s10.1"}, {"salao", "s10.1"},
        {"teatro", "s25.1"}, {"museu", "s25.4"}, {"lavander", "s12.2"}, {"consult", "s29.13"},
    };
    // clang-format on
    static_assert(sizeof(pairs) / sizeof(pairs[0]) == 52);
    for (const Pair& pair : pairs) {
        EXPECT_EQ(SuggestTaskId(pair.text), pair.id) << pair.text;
        EXPECT_EQ(SuggestTaskId("01 x" + std::string(pair.text) + "y"), pair.id) << pair.text;
        EXPECT_NE(FindTask(pair.id), nullptr) << pair.id;
    }
    // Of any two words in a name the one that stands first in the list decides.
    for (const Pair& first : pairs) {
        for (const Pair* second = &first; second != std::end(pairs); ++second) {
            EXPECT_EQ(SuggestTaskId(std::string(second->text) + " " + first.text), first.id)
                << second->text << " " << first.text;
        }
    }
}

TEST(SuggestTaskId, ReadsNamesAsPeopleWriteThem) {
    const Pair pairs[] = {
        {"Sala de Reunião", "s22.5"},
        {"SALA DE REUNIÕES 2", "s22.5"},
        {"Escritório de desenho", "s22.3"}, // the drawing comes first
        {"Circulação da área de trabalho", "s22.2"},
        {"WC", "s1.9"},
        {"Newcastle", "s1.9"}, // wherever the letters stand
        {"Berçário", "s28.2"},
        {"Salão de festas", "s10.1"},
        {"Lavanderia", "s12.2"},
        {"Depósito", "s1.14"},
        {"Consultório", "s29.13"},
        {"Copa e cozinha", "s1.6"},
        {"ÁREA TÉCNICA", ""},
        {"W C", ""},
        {"Sala 3", ""},
        {"", ""},
        {"reun", ""},
        {"salao\xCC\x83", "s10.1"}, // an accent that combines stands behind its letter
        {"sala\xCC\x83o", ""},      // and parts the word
        {"REUN\xC3\x8D"
         "ES",
         "s22.5"}, // the accent folds first
    };
    for (const Pair& pair : pairs) {
        EXPECT_EQ(SuggestTaskId(pair.text), pair.id) << pair.text;
    }
}

TEST(SearchTasks, GivesTheWholeTableWithoutWords) {
    for (const char* text : {"", " ", "\t \n"}) {
        const std::vector<const TaskRow*> rows = SearchTasks(text);
        ASSERT_EQ(rows.size(), TaskTable().size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i], &TaskTable()[i]);
        }
    }
}

TEST(SearchTasks, FindsWithoutRegardToAccentsAndCase) {
    using Ids = std::vector<std::string>;
    struct Case {
        const char* text;
        Ids ids;
    };
    const Case cases[] = {
        {"desenho técnico", {"s22.3", "s28.11"}},
        {"TECNICO desenho", {"s22.3", "s28.11"}},
        {"  técnico\tescritórios ", {"s22.3"}},           // a word of the section
        {"ESTROBOSCÓPICOS", {"s19.3", "s21.3", "s21.6"}}, // a word of the note
        {"sopragem", {"s5.3"}},
        {"varejo", {"s23.1", "s23.2", "s23.3", "s23.4"}},
        {"≥", {"s14.7", "s29.32", "s29.33"}},
        {"check-in", {"s30.3"}},
        {"varejo escada", {}},
        {"nada disso", {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Found(c.text), c.ids) << c.text;
    }
}

TEST(SearchTasks, TakesAnIdOrASectionForItsRowsAlone) {
    EXPECT_EQ(Found("s1.1"), std::vector<std::string>{"s1.1"}); // not s1.10
    EXPECT_EQ(Found("S23.2"), std::vector<std::string>{"s23.2"});
    EXPECT_EQ(Found("s3"), (std::vector<std::string>{"s3.1", "s3.2"})); // not s30
    EXPECT_EQ(Found("s31 altar"), std::vector<std::string>{"s31.2"});
    EXPECT_TRUE(Found("s32").empty());
    EXPECT_TRUE(Found("s23.5").empty());
}

TEST(SearchTasks, FindsEveryRowByEachWordOfItsOwn) {
    for (const TaskRow& row : TaskTable()) {
        const std::string all =
            row.id + " " + row.sectionName + " " + row.activity + " " + row.note;
        EXPECT_EQ(Found(all), std::vector<std::string>{row.id});
    }
}

} // namespace Merivane::Simulation
