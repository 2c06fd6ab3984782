#include <string>

#include <gtest/gtest.h>

#include "Photometry/IesSamples.hpp"
#include "Simulation/LuminaireDialogTexts.hpp"

namespace Merivane::Simulation {
namespace {

using Photometry::IesFile;

/// The same intensity everywhere: 4 pi lumens to the candela.
IesFile Uniform(double candela) {
    return Tests::MakeTable({0, 90, 180}, {0.0}, [=](double, double) { return candela; });
}

TEST(LuminaireDialogTexts, TellMakerAndCatalogueNumber) {
    IesFile file;
    EXPECT_EQ(FileIdentityLine(file), "No arquivo: fabricante      catálogo ");
    file.keywords = {{"LUMCAT", "A-1"}, {"MANUFAC", "Lumen \xA1\xE3"}};
    EXPECT_EQ(FileIdentityLine(file), "No arquivo: fabricante Lumen °     catálogo A-1");
}

TEST(LuminaireDialogTexts, TellFluxPeakPowerAndEfficacy) {
    IesFile file = Uniform(100.0);
    EXPECT_EQ(FluxLine(file), "Fluxo (da tabela): 1257 lm     Pico: 100 cd");
    file.inputWatts = 12.56;
    EXPECT_EQ(FluxLine(file), "Fluxo (da tabela): 1257 lm     Pico: 100 cd     Potencia: 12.6 W"
                              "     Eficacia: 100 lm/W");
    EXPECT_EQ(FluxLine(Uniform(0.0)), "Fluxo (da tabela): 0 lm     Pico: 0 cd");
    IesFile dark = Uniform(0.0);
    dark.inputWatts = 5.0;
    EXPECT_EQ(FluxLine(dark), "Fluxo (da tabela): 0 lm     Pico: 0 cd     Potencia: 5.0 W");
    file.photometricType = 2;
    EXPECT_EQ(FluxLine(file), "Fluxo: nao calculado (fotometria tipo A/B)     Potencia: 12.6 W");
    file.photometricType = 3;
    file.inputWatts = 0.0;
    EXPECT_EQ(FluxLine(file), "Fluxo: nao calculado (fotometria tipo A/B)");
}

TEST(LuminaireDialogTexts, TellTableOpeningAndWarnings) {
    IesFile file = Uniform(1.0);
    file.width = 0.3;
    file.length = 1.2;
    file.height = 0.05;
    EXPECT_EQ(TableLine(file, 0),
              "Tabela: 1 x 3 angulos     Abertura declarada: 300 x 1200 x 50 mm");
    file.unitsType = 1;
    file.width = -0.5;
    file.length = 0.0;
    file.height = 0.0;
    EXPECT_EQ(TableLine(file, 2), "Tabela: 1 x 3 angulos     Abertura declarada: 152 x 0 x 0 mm "
                                  "(redonda)     Avisos: 2");
    file.width = 0.5;
    file.length = -0.5;
    EXPECT_EQ(TableLine(file, 1), "Tabela: 1 x 3 angulos     Abertura declarada: 152 x 152 x 0 mm "
                                  "(redonda)     Avisos: 1");
}

TEST(LuminaireDialogTexts, ExplainThePreviews) {
    // Half of the axis at 20 degrees.
    const IesFile file = Tests::MakeTable(
        {0, 40, 90}, {0.0}, [](double v, double) { return v < 40.0 ? 100.0 - 2.5 * v : 0.0; });
    EXPECT_EQ(PreviewLegend(file),
              "Vermelho: curva IES (na planta, a 20 graus do eixo)\nAzul: abertura declarada no "
              "IES\nVerde: centro e eixo do facho\nLaranja: direcao do C0 (planta)\nMarrom: face "
              "do forro\n\nRoda do mouse: zoom no cursor. Arrastar: mover.\nDuplo clique: "
              "enquadrar tudo. O titulo mostra\na escala e a posicao do cursor (cm).\n\n"
              "Inclinacao: para luminarias orientaveis; a direcao e medida em planta a partir do "
              "eixo X do objeto.");
}

TEST(LuminaireDialogTexts, HintAtTheCentre) {
    EXPECT_EQ(CenterHint,
              "O centro fotometrico e o centro da abertura luminosa. Ajuste ate o retangulo azul "
              "ficar sobre a face de onde a luz sai (num embutido, a face de baixo).");
    EXPECT_EQ(CenterHintWithoutGeometry,
              "Geometria do objeto nao lida - a previa mostra so a fotometria. O centro e medido a "
              "partir da origem do objeto.");
}

TEST(LuminaireDialogTexts, ProposeTheFilesNameToldApartFromThePartsOwn) {
    EXPECT_EQ(ProposePartName("Spot 10", "LX-200"), "LX-200");
    EXPECT_EQ(ProposePartName("LX-200", "LX-200"), "LX-200 IES");
}

} // namespace
} // namespace Merivane::Simulation
