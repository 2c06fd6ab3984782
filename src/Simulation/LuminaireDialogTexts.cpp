#include "Simulation/LuminaireDialogTexts.hpp"

#include <cmath>

#include "Photometry/IesText.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

using Photometry::IesFile;

constexpr double MillimetresInAMetre = 1000.0;

std::string Whole(double value) {
    return Text::FormatFixed(value, 0);
}

std::string KeywordText(const IesFile& file, std::string_view key) {
    return Photometry::NormaliseIesText(Photometry::FindKeyword(file, key));
}

} // namespace

std::string FileIdentityLine(const IesFile& file) {
    return "No arquivo: fabricante " + KeywordText(file, "MANUFAC") + "     catálogo " +
           KeywordText(file, "LUMCAT");
}

std::string FluxLine(const IesFile& file) {
    const double flux = Photometry::TotalFlux(file);
    std::string line = "Fluxo: nao calculado (fotometria tipo A/B)";
    if (flux >= 0.0) {
        line = "Fluxo (da tabela): " + Whole(flux) +
               " lm     Pico: " + Whole(Photometry::PeakCandela(file)) + " cd";
    }
    if (file.inputWatts > 0.0) {
        line += "     Potencia: " + Text::FormatFixed(file.inputWatts, 1) + " W";
        if (flux > 0.0) {
            line += "     Eficacia: " + Whole(flux / file.inputWatts) + " lm/W";
        }
    }
    return line;
}

std::string TableLine(const IesFile& file, std::size_t warningCount) {
    const double unit = Photometry::UnitsToMetres(file.unitsType) * MillimetresInAMetre;
    const bool round = file.width < 0.0 || file.length < 0.0;
    std::string line = "Tabela: " + std::to_string(file.horizontalAngles.size()) + " x " +
                       std::to_string(file.verticalAngles.size()) +
                       " angulos     Abertura declarada: " + Whole(std::abs(file.width) * unit) +
                       " x " + Whole(std::abs(file.length) * unit) + " x " +
                       Whole(std::abs(file.height) * unit) + " mm" + (round ? " (redonda)" : "");
    if (warningCount > 0) {
        line += "     Avisos: " + std::to_string(warningCount);
    }
    return line;
}

std::string PreviewLegend(const IesFile& file) {
    return "Vermelho: curva IES (na planta, a " + Whole(Photometry::BeamHalfAngle(file)) +
           " graus do eixo)\n"
           "Azul: abertura declarada no IES\n"
           "Verde: centro e eixo do facho\n"
           "Laranja: direcao do C0 (planta)\n"
           "Marrom: face do forro\n"
           "\n"
           "Roda do mouse: zoom no cursor. Arrastar: mover.\n"
           "Duplo clique: enquadrar tudo. O titulo mostra\n"
           "a escala e a posicao do cursor (cm).\n"
           "\n"
           "Inclinacao: para luminarias orientaveis; a direcao e medida em planta a partir do eixo "
           "X do objeto.";
}

std::string ProposePartName(std::string_view sourceName, std::string_view baseName) {
    return std::string(baseName) + (sourceName == baseName ? " IES" : "");
}

} // namespace Merivane::Simulation
