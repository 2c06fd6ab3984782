#include "exemplos/SampleLuminaires.hpp"

#include <cmath>
#include <utility>

#include "Photometry/PhotometricQuantities.hpp"
#include "exemplos/Distribution.hpp"

namespace Merivane::Examples {

namespace {

using Photometry::IesFile;

/// First, last and step of a list of angles [deg].
struct AngleRange {
    double first;
    double last;
    double step;
};

std::vector<double> Angles(AngleRange range) {
    std::vector<double> angles;
    const auto count = static_cast<int>(std::lround((range.last - range.first) / range.step));
    for (int i = 0; i <= count; ++i) {
        angles.push_back(range.first + i * range.step);
    }
    return angles;
}

double RoundToTenth(double value) {
    return std::round(value * 10.0) / 10.0;
}

// The table of a distribution, scaled so that it holds `flux` [lm].
void FillTable(IesFile& file, Distribution intensity, AngleRange vertical, AngleRange horizontal,
               double flux) {
    file.verticalAngles = Angles(vertical);
    file.horizontalAngles = Angles(horizontal);
    for (const double h : file.horizontalAngles) {
        std::vector<double>& row = file.candela.emplace_back();
        for (const double v : file.verticalAngles) {
            row.push_back(intensity(v, std::fmod(h, 360.0)));
        }
    }
    const double scale = flux / Photometry::TotalFlux(file);
    for (std::vector<double>& row : file.candela) {
        for (double& candela : row) {
            candela = RoundToTenth(candela * scale);
        }
    }
}

// A luminaire measured as a whole, with the header that the editions from 1991 on want.
SampleLuminaire Begin(std::string fileName, std::string code, std::string name, std::string lamp,
                      double watts) {
    SampleLuminaire sample;
    sample.fileName = std::move(fileName);
    sample.photometry.keywords = {
        {"TEST", "AE-" + code + "-01 (dados calculados, nao medidos)"},
        {"TESTLAB", "Ateliê Exemplo"},
        {"ISSUEDATE", "2024-03-01"},
        {"MANUFAC", "Ateliê Exemplo"},
        {"LUMCAT", code},
        {"LUMINAIRE", std::move(name)},
        {"LAMP", std::move(lamp)},
    };
    sample.photometry.lumensPerLamp = -1.0;
    sample.photometry.inputWatts = watts;
    return sample;
}

// The length lies along C0, the width along C90.
void SetOpening(IesFile& file, double width, double length, double height) {
    file.width = width;
    file.length = length;
    file.height = height;
}

constexpr AngleRange Below = {0.0, 90.0, 5.0};
constexpr AngleRange FinelyBelow = {0.0, 90.0, 2.5};
constexpr AngleRange Above = {90.0, 180.0, 5.0};
constexpr AngleRange Everywhere = {0.0, 180.0, 5.0};
constexpr AngleRange OnePlane = {0.0, 0.0, 1.0};
constexpr AngleRange Quadrant = {0.0, 90.0, 22.5};
constexpr AngleRange HalfCircle = {0.0, 180.0, 22.5};
constexpr AngleRange OtherHalf = {90.0, 270.0, 15.0};
constexpr AngleRange Circle = {0.0, 360.0, 15.0};

SampleLuminaire RoundDownlight() {
    SampleLuminaire sample =
        Begin("downlight.ies", "DL15", "Downlight Roda 150", "LED 16 W 3000 K", 16.0);
    SetOpening(sample.photometry, -0.15, -0.15, 0.0); // a circle as of 2002
    FillTable(sample.photometry, Downlight, FinelyBelow, OnePlane, 1600.0);
    return sample;
}

SampleLuminaire OldRoundDownlight() {
    SampleLuminaire sample =
        Begin("downlight-1991.ies", "DL10", "Downlight Roda 100", "LED 11 W 3000 K", 11.0);
    sample.photometry.formatVersion = 1;
    SetOpening(sample.photometry, -0.1, 0.0, 0.0); // the same circle before 2002
    FillTable(sample.photometry, Downlight, Below, OnePlane, 1000.0);
    return sample;
}

SampleLuminaire OfficePanel() {
    SampleLuminaire sample =
        Begin("painel-600.ies", "PN60", "Painel Plano 600", "LED 36 W 4000 K", 36.0);
    SetOpening(sample.photometry, 0.57, 0.57, 0.0);
    FillTable(sample.photometry, Panel, FinelyBelow, Quadrant, 4300.0);
    return sample;
}

SampleLuminaire LouvredOfficePanel() {
    SampleLuminaire sample = Begin("painel-antiofuscante.ies", "PA60", "Painel Antiofuscante 600",
                                   "LED 24 W 4000 K", 24.0);
    sample.photometry.keywords.emplace_back("_RA", "90");
    SetOpening(sample.photometry, 0.57, 0.57, 0.0);
    FillTable(sample.photometry, LouvredPanel, FinelyBelow, Quadrant, 2800.0);
    return sample;
}

// The same panel with more light.
SampleLuminaire BrightLouvredOfficePanel() {
    SampleLuminaire sample = Begin("painel-antiofuscante-34.ies", "PA60A",
                                   "Painel Antiofuscante 600 Alto Fluxo", "LED 34 W 4000 K", 34.0);
    sample.photometry.keywords.emplace_back("_RA", "90");
    SetOpening(sample.photometry, 0.57, 0.57, 0.0);
    FillTable(sample.photometry, LouvredPanel, FinelyBelow, Quadrant, 4000.0);
    return sample;
}

SampleLuminaire LinearBatwing() {
    SampleLuminaire sample =
        Begin("linear-asa.ies", "LN12", "Linear Asa 1200", "LED 26 W 4000 K", 26.0);
    SetOpening(sample.photometry, 0.06, 1.18, 0.0);
    FillTable(sample.photometry, Batwing, FinelyBelow, HalfCircle, 3200.0);
    return sample;
}

SampleLuminaire LinearWallwasher() {
    SampleLuminaire sample =
        Begin("lavador.ies", "LV06", "Lavador de Parede 600", "LED 18 W 3000 K", 18.0);
    SetOpening(sample.photometry, 0.08, 0.6, 0.0);
    FillTable(sample.photometry, Wallwasher, FinelyBelow, OtherHalf, 1700.0);
    return sample;
}

SampleLuminaire OvalSpot() {
    SampleLuminaire sample =
        Begin("projetor.ies", "PR08", "Projetor Oval 80", "LED 13 W 3000 K", 13.0);
    SetOpening(sample.photometry, -0.08, -0.08, 0.0);
    FillTable(sample.photometry, Spot, FinelyBelow, Circle, 1100.0);
    return sample;
}

SampleLuminaire IndirectPendant() {
    SampleLuminaire sample =
        Begin("pendente-indireto.ies", "PI12", "Pendente Nuvem 1200", "LED 34 W 4000 K", 34.0);
    SetOpening(sample.photometry, 0.12, 1.2, 0.0);
    FillTable(sample.photometry, Indirect, Above, Quadrant, 4100.0);
    return sample;
}

SampleLuminaire DirectIndirectPendant() {
    SampleLuminaire sample =
        Begin("pendente-duplo.ies", "PD15", "Pendente Duplo 1500", "LED 38 W 4000 K", 38.0);
    sample.photometry.keywords.emplace_back("_RA", "85");
    SetOpening(sample.photometry, 0.08, 1.5, 0.06);
    FillTable(sample.photometry, DirectIndirect, Everywhere, Quadrant, 4500.0);
    return sample;
}

// A discharge lamp gives less light the more it leans, which the tilt table tells.
SampleLuminaire LampedHighBay() {
    SampleLuminaire sample = Begin("refletor-inclinavel.ies", "RF07", "Refletor Galpao 70",
                                   "Vapor metalico 70 W, 6000 lm", 82.0);
    IesFile& file = sample.photometry;
    file.formatVersion = 2;
    file.tiltMode = 1;
    file.tiltGeometry = 1;
    file.tiltAngles = {0.0, 15.0, 30.0, 45.0, 60.0, 75.0, 90.0};
    file.tiltFactors = {1.0, 0.99, 0.96, 0.93, 0.9, 0.88, 0.87};
    file.lumensPerLamp = 6000.0;
    SetOpening(file, -0.4, 0.0, 0.0);
    FillTable(file, HighBay, Below, OnePlane, 4400.0);
    return sample;
}

// Two fluorescent lamps in a housing of 2 x 4 feet; the table stands for 1000 lm and is multiplied.
SampleLuminaire LampedTrofferInFeet() {
    SampleLuminaire sample = Begin("calha-pes.ies", "CF24", "Calha Prismatica 2x4 pes",
                                   "2 x fluorescente T8 32 W, 2900 lm", 58.0);
    IesFile& file = sample.photometry;
    file.formatVersion = 2;
    file.unitsType = 1;
    file.lampCount = 2;
    file.lumensPerLamp = 2900.0;
    file.candelaMultiplier = 5.8;
    file.ballastFactor = 0.88;
    SetOpening(file, 1.9, 3.9, 0.0);
    FillTable(file, Panel, Below, Quadrant, 4300.0);
    return sample;
}

SampleLuminaire AccentedSconce() {
    SampleLuminaire sample =
        Begin("arandela-1252.ies", "AR20", "Arandela Lampião, vidro de opalina",
              "LED 12 W, emissão âmbar", 12.0);
    IesFile& file = sample.photometry;
    sample.windows1252 = true;
    file.keywords.emplace_back("OTHER", "Fixação à parede; não é à prova d'água");
    SetOpening(file, -0.2, -0.2, -0.2); // a sphere
    FillTable(file, Opal, Everywhere, OnePlane, 1200.0);
    return sample;
}

// Before 1991 a file had neither a first line nor keywords.
SampleLuminaire OldestPlafond() {
    SampleLuminaire sample;
    sample.fileName = "plafon-1986.ies";
    IesFile& file = sample.photometry;
    file.formatVersion = 0;
    file.otherLines = {"ATELIE EXEMPLO PLAFON QUADRADO 400", "DADOS CALCULADOS, NAO MEDIDOS"};
    file.lampCount = 4;
    file.lumensPerLamp = 650.0;
    file.inputWatts = 44.0;
    SetOpening(file, 0.4, 0.4, 0.0);
    FillTable(file, Panel, Below, Quadrant, 1800.0);
    return sample;
}

} // namespace

std::vector<SampleLuminaire> BuildSampleLuminaires() {
    return {
        RoundDownlight(),
        OldRoundDownlight(),
        OfficePanel(),
        LouvredOfficePanel(),
        BrightLouvredOfficePanel(),
        LinearBatwing(),
        LinearWallwasher(),
        OvalSpot(),
        IndirectPendant(),
        DirectIndirectPendant(),
        LampedHighBay(),
        LampedTrofferInFeet(),
        AccentedSconce(),
        OldestPlafond(),
    };
}

} // namespace Merivane::Examples
