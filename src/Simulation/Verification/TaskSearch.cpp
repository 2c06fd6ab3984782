#include "Simulation/Verification/TaskSearch.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "Text/Ascii.hpp"
#include "Text/FoldAccents.hpp"

namespace Merivane::Simulation {

namespace {

/// A word and the id of the activity that it stands for.
struct TaskWord {
    std::string_view word;
    std::string_view id;
};

// clang-format off
constexpr TaskWord OldKeys[] = {
    {"circulacao", "s1.3"},
    {"escadas", "s1.4"},
    {"docas", "s1.5"},
    {"cantina", "s1.6"},
    {"descanso", "s1.7"},
    {"exercicio", "s1.8"},
    {"sanitarios", "s1.9"},
    {"enfermaria", "s1.10"},
    {"deposito", "s1.14"},
    {"expedicao", "s1.15"},
    {"hall", "s1.1"},
    {"arquivo_copia", "s22.1"},
    {"escritorio", "s22.2"},
    {"desenho", "s22.3"},
    {"cad", "s22.4"},
    {"reuniao", "s22.5"},
    {"recepcao", "s22.6"},
    {"arquivos", "s22.7"},
    {"vendas", "s23.1"},
    {"caixa", "s23.3"},
    {"recepcao_hotel", "s24.1"},
    {"cozinha", "s24.2"},
    {"self_service", "s24.4"},
    {"buffet", "s24.5"},
    {"biblioteca_leitura", "s26.2"},
    {"biblioteca_estantes", "s26.1"},
    {"sala_aula", "s28.4"},
    {"sala_aula_noturna", "s28.5"},
    {"auditorio", "s28.6"},
    {"lousa", "s28.7"},
    {"artes", "s28.9"},
    {"desenho_escola", "s28.11"},
    {"laboratorio", "s28.12"},
    {"musica", "s28.14"},
    {"informatica", "s28.15"},
    {"ginasio", "s28.20"},
    {"espera", "s29.1"},
    {"corredor_saude", "s29.2"},
};

// Parts of words in the names of Zones, folded. The first that occurs wins: a "Sala de desenho" of
// an "Escritório" is for drawing.
constexpr TaskWord NameWords[] = {
    {"desenho", "s22.3"},
    {"reuni", "s22.5"},
    {"conferen", "s22.5"},
    {"recep", "s22.6"},
    {"escrit", "s22.2"},
    {"trabalho", "s22.2"},
    {"estudo", "s22.2"},
    {"circula", "s1.3"},
    {"corredor", "s1.3"},
    {"hall", "s1.1"},
    {"escada", "s1.4"},
    {"banh", "s1.9"},
    {"sanit", "s1.9"},
    {"wc", "s1.9"},
    {"lavabo", "s1.9"},
    {"vesti", "s1.9"},
    {"copa", "s1.6"},
    {"refeit", "s1.6"},
    {"cantina", "s1.6"},
    {"cozinha", "s24.2"},
    {"descanso", "s1.7"},
    {"depos", "s1.14"},
    {"almox", "s1.14"},
    {"arquivo", "s22.7"},
    {"aula", "s28.4"},
    {"labora", "s28.12"},
    {"biblio", "s26.2"},
    {"audit", "s28.6"},
    {"informat", "s28.15"},
    {"loja", "s23.1"},
    {"venda", "s23.1"},
    {"caixa", "s23.3"},
    {"espera", "s29.1"},
    {"ginas", "s28.20"},
    {"academia", "s1.8"},
    {"recreio", "s28.1"},
    {"brinquedo", "s28.1"},
    {"bercario", "s28.2"},
    {"professor", "s28.19"},
    {"igreja", "s31.1"},
    {"templo", "s31.1"},
    {"capela", "s31.1"},
    {"restaurante", "s24.3"},
    {"jantar", "s24.3"},
    {"garagem", "s27.4"},
    {"estacionamento", "s27.4"},
    {"cabeleir", "s10.1"},
    {"salao", "s10.1"},
    {"teatro", "s25.1"},
    {"museu", "s25.4"},
    {"lavander", "s12.2"},
    {"consult", "s29.13"},
};
// clang-format on

std::vector<std::string> FoldedWords(std::string_view text) {
    std::vector<std::string> words;
    std::string word;
    for (const char c : Text::FoldAccents(text) + ' ') {
        if (!Text::IsWhiteSpace(c)) {
            word += c;
        } else if (!word.empty()) {
            words.push_back(word);
            word.clear();
        }
    }
    return words;
}

bool SpeaksOf(const TaskRow& row, const std::string& folded, const std::string& word) {
    return word == row.id || word == "s" + std::to_string(row.section) ||
           folded.find(word) != std::string::npos;
}

} // namespace

std::string MigrateTaskId(std::string_view id) {
    const auto* const found = std::find_if(std::begin(OldKeys), std::end(OldKeys),
                                           [id](const TaskWord& key) { return key.word == id; });
    return std::string(found == std::end(OldKeys) ? id : found->id);
}

const TaskRow* FindTask(std::string_view id) {
    const std::string migrated = MigrateTaskId(id);
    const std::vector<TaskRow>& table = TaskTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&migrated](const TaskRow& row) { return row.id == migrated; });
    return found == table.end() ? nullptr : &*found;
}

std::string SuggestTaskId(std::string_view name) {
    const std::string folded = Text::FoldAccents(name);
    for (const TaskWord& part : NameWords) {
        if (folded.find(part.word) != std::string::npos) {
            return std::string(part.id);
        }
    }
    return {};
}

std::vector<const TaskRow*> SearchTasks(std::string_view text) {
    const std::vector<std::string> words = FoldedWords(text);
    std::vector<const TaskRow*> found;
    for (const TaskRow& row : TaskTable()) {
        const std::string folded =
            Text::FoldAccents(row.sectionName + '\n' + row.activity + '\n' + row.note);
        if (std::all_of(words.begin(), words.end(),
                        [&](const std::string& word) { return SpeaksOf(row, folded, word); })) {
            found.push_back(&row);
        }
    }
    return found;
}

} // namespace Merivane::Simulation
