#include "Simulation/Run/InstallationReport.hpp"

#include <algorithm>
#include <array>

#include "Simulation/PrintedValue.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Simulation {

namespace {

using Radiance::Installation;

constexpr const char* Good = "✓  ";
constexpr const char* Bad = "✗  ";

struct ToolPurpose {
    std::string_view name;
    std::string_view purpose;
};

constexpr std::array<ToolPurpose, 4> Purposes = {{
    {"ies2rad", "converte a fotometria IES"},
    {"xform", "posiciona cada luminária"},
    {"oconv", "monta a cena"},
    {"rtrace", "calcula a iluminância"},
}};

std::string PurposeOf(const std::string& tool) {
    const auto found = std::find_if(Purposes.begin(), Purposes.end(),
                                    [&](const ToolPurpose& row) { return row.name == tool; });
    return found == Purposes.end() ? std::string() : std::string(found->purpose);
}

// Without a folder nothing at all was found, so every program is missing.
bool IsMissing(const Installation& installation, const std::string& tool) {
    const std::vector<std::string>& missing = installation.missingTools;
    return installation.binFolder.empty() ||
           std::find(missing.begin(), missing.end(), tool) != missing.end();
}

} // namespace

std::string VerdictLine(const Installation& installation, const SelfTestResult& test) {
    if (installation.binFolder.empty()) {
        return "✗  Radiance não encontrado - reinstale o Vantoro.";
    }
    if (!installation.complete) {
        return "✗  Instalação incompleta - faltam programas do Radiance.";
    }
    if (test.passed) {
        return "✓  Radiance instalado corretamente e calculando.";
    }
    if (test.ran) {
        return "⚠  O Radiance calcula, mas o resultado do teste não confere.";
    }
    return "✗  Os programas existem, mas o Radiance não conseguiu calcular.";
}

std::string InstallationText(const Installation& installation) {
    if (installation.binFolder.empty()) {
        std::string text = "Pastas procuradas:";
        for (const std::wstring& folder : installation.searchedFolders) {
            text += "\n  " + Text::Narrow(folder);
        }
        return text;
    }
    const std::string origin = installation.source == Radiance::SourceAddOn
                                   ? "cópia embutida no Vantoro (a versão testada)"
                                   : "instalação separada no sistema";
    const std::string version =
        installation.version.empty() ? "(o rtrace não respondeu)" : installation.version;
    const std::string library =
        installation.libFolder.empty() ? "não encontrada" : Text::Narrow(installation.libFolder);
    return "Origem: " + origin + "\nVersão: " + version +
           "\nProgramas: " + Text::Narrow(installation.binFolder) + "\nBiblioteca: " + library;
}

std::string ToolsText(const Installation& installation) {
    std::string text;
    for (const std::string& tool : Radiance::RequiredTools()) {
        const bool missing = IsMissing(installation, tool);
        text += (text.empty() ? "" : "\n") + std::string(missing ? Bad : Good) + tool + " - " +
                PurposeOf(tool) + (missing ? "  (FALTANDO)" : "");
    }
    return text;
}

std::string TestText(const Installation& installation, const SelfTestResult& test) {
    if (!installation.complete) {
        return "Não executado: falta(m) programa(s) do Radiance.";
    }
    if (!test.ran) {
        return "O Radiance não conseguiu calcular:\n" + test.message;
    }
    return "Fonte de 1000 lm a 3 m, ponto logo abaixo:\n  calculado " +
           FormatDecimal(test.calculated, 1) + " lx,  exato " + FormatDecimal(test.exact, 1) +
           " lx\n  maior diferença " + FormatDecimal(test.largestDifference * 100.0, 2) +
           " % (aceito até " + FormatDecimal(SelfTestTolerance * 100.0, 0) + " %),  " +
           FormatDecimal(test.seconds, 1) + " s";
}

std::string TestLogLine(const SelfTestResult& test) {
    const std::string verdict = test.passed ? "OK" : "FALHOU";
    const std::string reason = test.ran ? FormatDecimal(test.calculated, 1) + " lx calculados, " +
                                              FormatDecimal(test.exact, 1) + " lx exatos"
                                        : test.message;
    return "Teste do Radiance: " + verdict + " - " + reason;
}

} // namespace Merivane::Simulation
