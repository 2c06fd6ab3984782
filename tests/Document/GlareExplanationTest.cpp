#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <sstream>

#include <gtest/gtest.h>

#include "Document/GlareExplanation.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Text/Number.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonKind;
using Catalog::JsonValue;
using Simulation::GlareOmission;
using Simulation::GlareTerm;

/// A term with round numbers: 100 cd, 0.1 m2, 2 m away.
GlareTerm RoundTerm(std::size_t luminaire, double term) {
    GlareTerm of;
    of.luminaire = luminaire;
    of.distance = 2.0;
    of.heightRatio = 0.5;
    of.sideRatio = 0.25;
    of.sigma = 30.0;
    of.tau = 26.565;
    of.intensity = 100.0;
    of.apparentArea = 0.1;
    of.luminance = 1000.0;
    of.solidAngle = 0.025;
    of.positionIndex = 2.5;
    of.term = term;
    return of;
}

GlareTerm LeftOut(std::size_t luminaire, GlareOmission omission) {
    GlareTerm of;
    of.luminaire = luminaire;
    of.omission = omission;
    return of;
}

/// Two lights in the sum, the second three times the first, and one left out.
ExplainedRoom SampleExplanation() {
    ExplainedRoom room;
    room.title = "Sala de prova";
    room.lights = {{"Painel", {1, 2, 3}}, {"Painel", {4, 5, 3}}, {"Painel", {7, 8, 3}}};
    ExplainedObserver seen;
    seen.observer = {0.5, 0.01, 1.2, 0.0, 1.0, "meio da parede"};
    seen.terms = {RoundTerm(0, 1000.0), RoundTerm(1, 3000.0),
                  LeftOut(2, GlareOmission::OutOfField)};
    seen.terms[2].distance = 2.5;
    seen.terms[2].heightRatio = 2.0;
    seen.terms[2].sideRatio = 0.0;
    seen.result.valid = true;
    seen.result.background = 10.0;
    seen.result.ugr = 8.0 * std::log10(0.25 / 10.0 * 4000.0);
    seen.result.sources = 2;
    seen.result.outOfField = 1;
    room.observers.push_back(seen);
    return room;
}

double NumberOf(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    double value = 0.0;
    EXPECT_TRUE(Text::ReadEntireNumber(text, value)) << text;
    return value;
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream stream(line);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

std::vector<std::string> Cells(const std::string& line) {
    std::vector<std::string> cells = {""};
    for (const char c : line) {
        if (c == ';') {
            cells.emplace_back();
        } else {
            cells.back() += c;
        }
    }
    return cells;
}

/// Real terms: a grid of panels over an observer, at sizes that no row prints without rounding.
ExplainedRoom RealRoom(double openingSide, bool smallSourceTerm) {
    Simulation::SceneLuminaire luminaire;
    luminaire.photometry.verticalAngles = {0, 30, 60, 90};
    luminaire.photometry.horizontalAngles = {0};
    luminaire.photometry.candela = {{1234.5, 987.6, 345.6, 12.3}};
    luminaire.photometry.width = openingSide;
    luminaire.photometry.length = openingSide;
    luminaire.arrayCountX = 7;
    luminaire.arrayCountY = 9;
    luminaire.arrayStepX = 0.83;
    luminaire.arrayStepY = 0.91;
    luminaire.z = 2.77;
    const std::vector<Simulation::SceneLuminaire> luminaires = {luminaire};
    const std::vector<Simulation::PlacedLuminaire> placed = Simulation::PlaceLuminaires(luminaires);
    ExplainedRoom room;
    for (const Simulation::PlacedLuminaire& light : placed) {
        room.lights.push_back({"Painel", light.center});
    }
    ExplainedObserver seen;
    seen.observer = {2.7, 1.9, 1.2, 0.3, 1.0, "olho"};
    Simulation::GlareOptions options;
    options.tableFieldLimit = true;
    options.smallSourceTerm = smallSourceTerm;
    seen.result = Simulation::ObserverGlare(seen.observer, placed, 87.654, options, &seen.terms);
    room.observers.push_back(seen);
    return room;
}

} // namespace

TEST(GlareExplanation, TellsARowForEachLightTheLargestShareFirst) {
    const std::string head = "   nº    x (m)    y (m)    z (m)   r (m)    H/R    T/R  σ (°"
                             ")  τ (°)     I (cd)      A (m²)  L (cd/m²)      ω (sr)      "
                             "  p       termo       %";
    const std::string largest = "    2    4,000    5,000    3,000   2,000  0,500  0,250  30,0"
                                "0  26,57        100         0,1       1000       0,025      "
                                "2,5        3000   75,00";
    const std::string second = "    1    1,000    2,000    3,000   2,000  0,500  0,250  30,0"
                               "0  26,57        100         0,1       1000       0,025      "
                               "2,5        1000   25,00";
    const std::string leftOut = "    3    7,000    8,000    3,000   2,500  2,000  0,000      "
                                "–      –          –           –          –           –      "
                                "  –           –       –  fora da tabela do índice de posição"
                                " (H/R até 1,9, T/R até 3)";
    EXPECT_EQ(GlareExplanationLines(SampleExplanation()),
              (std::vector<std::string>{
                  "Sala de prova", "", "Observador: meio da parede",
                  "  olho em (0,500; 0,010; 1,200) m, visada (0,000; 1,000)",
                  "  UGR 16,000 = 8 log10(0,25 / Lb x soma), Lb 10 cd/m², soma 4000 cd²/m⁴",
                  "  2 luminária(s) na soma, 1 de fora", head, largest, second, leftOut}));
}

TEST(GlareExplanation, NamesTheLightsWhereTheirNamesDiffer) {
    ExplainedRoom room = SampleExplanation();
    room.lights[1].name = "Lâmpada";
    const std::vector<std::string> lines = GlareExplanationLines(room);
    EXPECT_TRUE(lines[6].starts_with("   nº  luminária    x (m)    y (m)")) << lines[6];
    EXPECT_TRUE(lines[7].starts_with("    2  Lâmpada      4,000    5,000")) << lines[7];
    EXPECT_TRUE(lines[8].starts_with("    1  Painel       1,000    2,000")) << lines[8];
}

TEST(GlareExplanation, SaysWhyAValueIsMissing) {
    ExplainedRoom room = SampleExplanation();
    ExplainedObserver& seen = room.observers[0];
    seen.result.valid = false;
    EXPECT_EQ(GlareExplanationLines(room)[4], "  sem luminância de fundo, sem UGR");
    seen.result = {};
    seen.result.valid = true;
    seen.result.background = 12.5;
    seen.terms = {LeftOut(0, GlareOmission::NotAbove)};
    const std::vector<std::string> lines = GlareExplanationLines(room);
    EXPECT_EQ(lines[4], "  UGR 0,000: nenhuma luminária na soma (Lb 12,5 cd/m²)");
    EXPECT_EQ(lines[5], "  0 luminária(s) na soma, 1 de fora");
    EXPECT_TRUE(lines[7].ends_with("–  não fica acima do olho"));
}

TEST(GlareExplanation, TellsSmallAndLargeSources) {
    ExplainedRoom room = SampleExplanation();
    room.observers[0].result.smallSources = 1;
    room.observers[0].result.largeSources = 2;
    room.observers[0].terms[0].smallSource = true;
    const std::vector<std::string> lines = GlareExplanationLines(room);
    EXPECT_EQ(lines[5],
              "  2 luminária(s) na soma, 1 de fora, 1 como fonte pequena, 2 acima de 1 sr "
              "(grande demais para o método)");
    EXPECT_TRUE(lines[7].ends_with("75,00"));
    EXPECT_TRUE(lines[8].ends_with("25,00  fonte pequena (CIE 147)"));
}

TEST(GlareExplanation, ShowsTheQuantitiesThatWereReached) {
    struct Case {
        GlareOmission omission;
        std::size_t shown; // of r, H/R and T/R, I and A, all others
    };
    const Case cases[] = {{GlareOmission::AtTheEye, 1}, {GlareOmission::NotAhead, 1},
                          {GlareOmission::NotAbove, 3}, {GlareOmission::OutOfField, 3},
                          {GlareOmission::NoArea, 5},   {GlareOmission::NoIntensity, 5},
                          {GlareOmission::None, 11}};
    for (const Case& c : cases) {
        ExplainedRoom room = SampleExplanation();
        room.observers[0].terms = {LeftOut(0, c.omission)};
        const std::vector<std::string> words = Words(GlareExplanationLines(room)[7]);
        const auto numbers = std::count_if(words.begin() + 4, words.begin() + 15,
                                           [](const std::string& word) { return word != "–"; });
        EXPECT_EQ(static_cast<std::size_t>(numbers), c.shown) << GlareOmissionText(c.omission);
        EXPECT_EQ(words[9] != "–", c.shown >= 5);
        EXPECT_EQ(words[15] != "–", c.shown == 11);
    }
}

TEST(GlareExplanation, HasAReasonForEachOmission) {
    const std::map<GlareOmission, std::string> reasons = {
        {GlareOmission::None, ""},
        {GlareOmission::AtTheEye, "fica no lugar do olho"},
        {GlareOmission::NotAhead, "fica ao lado ou atrás do olho"},
        {GlareOmission::NotAbove, "não fica acima do olho"},
        {GlareOmission::OutOfField, "fora da tabela do índice de posição (H/R até 1,9, T/R até 3)"},
        {GlareOmission::NoArea, "não mostra área luminosa"},
        {GlareOmission::NoIntensity, "não emite luz na direção do olho"}};
    for (const auto& [omission, reason] : reasons) {
        EXPECT_EQ(GlareOmissionText(omission), reason);
    }
}

TEST(GlareExplanation, ThePrintedTotalComesOutOfThePrintedRows) {
    struct Case {
        double side; // of the opening [m]
        bool smallSourceTerm;
    };
    for (const Case& c : {Case{0.6, false}, {0.05, false}, {0.05, true}}) {
        const ExplainedRoom room = RealRoom(c.side, c.smallSourceTerm);
        const std::vector<std::string> lines = GlareExplanationLines(room);
        const std::vector<std::string> value = Words(lines[4]);
        ASSERT_EQ(value[0], "UGR");
        const double background = NumberOf(value[10]);
        double fromTerms = 0.0;
        double fromQuantities = 0.0;
        int rows = 0;
        for (std::size_t k = 7; k < lines.size(); ++k) {
            const std::vector<std::string> words = Words(lines[k]);
            if (words[14] == "–") {
                continue;
            }
            ++rows;
            fromTerms += NumberOf(words[14]);
            const double r = NumberOf(words[4]);
            const double intensity = NumberOf(words[9]);
            const double area = NumberOf(words[10]);
            const double p = NumberOf(words[13]);
            fromQuantities += c.smallSourceTerm ? 200.0 * intensity * intensity / (r * r * p * p)
                                                : intensity * intensity / area / (r * r) / (p * p);
        }
        EXPECT_EQ(rows, room.observers[0].result.sources);
        EXPECT_GT(rows, 10);
        EXPECT_LT(static_cast<std::size_t>(rows), room.lights.size());
        EXPECT_NEAR(NumberOf(value[1]), room.observers[0].result.ugr, 0.0005 + 1e-9);
        EXPECT_NEAR(8.0 * std::log10(0.25 / background * fromTerms), NumberOf(value[1]), 0.01);
        EXPECT_NEAR(8.0 * std::log10(0.25 / background * fromQuantities), NumberOf(value[1]), 0.01);
    }
}

TEST(GlareExplanation, GivesAProgramEveryNumberUnrounded) {
    ExplainedRoom room = SampleExplanation();
    room.observers[0].terms[1].sigma = 1.0 / 3.0;
    const JsonValue json = GlareExplanationJson(room);
    EXPECT_EQ(json.StringOr("sala", ""), "Sala de prova");
    const JsonValue& seen = json.Find("observadores")->items.at(0);
    EXPECT_EQ(seen.StringOr("nome", ""), "meio da parede");
    EXPECT_EQ(seen.Find("posicao")->items.at(2).number, 1.2);
    EXPECT_EQ(seen.Find("visada")->items.at(1).number, 1.0);
    EXPECT_EQ(seen.NumberOr("UGR", 0), room.observers[0].result.ugr);
    EXPECT_EQ(seen.NumberOr("Lb", 0), 10.0);
    EXPECT_EQ(seen.NumberOr("soma", 0), 4000.0);
    EXPECT_EQ(seen.NumberOr("naSoma", 0), 2.0);
    EXPECT_EQ(seen.NumberOr("foraDoCampo", 0), 1.0);
    const std::vector<JsonValue>& rows = seen.Find("linhas")->items;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[1].NumberOr("luminaria", 0), 2.0);
    EXPECT_EQ(rows[1].NumberOr("sigma", 0), 1.0 / 3.0);
    EXPECT_EQ(rows[1].NumberOr("parte", 0), 0.75);
    EXPECT_EQ(rows[1].Find("motivo")->kind, JsonKind::Null);
    EXPECT_EQ(rows[1].Find("fontePequena")->kind, JsonKind::Boolean);
    EXPECT_EQ(rows[2].NumberOr("HR", 0), 2.0);
    EXPECT_EQ(rows[2].Find("termo")->kind, JsonKind::Null);
    EXPECT_EQ(rows[2].Find("parte")->kind, JsonKind::Null);
    EXPECT_EQ(rows[2].StringOr("motivo", ""), GlareOmissionText(GlareOmission::OutOfField));
}

TEST(GlareExplanation, AnObserverWithoutBackgroundHasNullForItsValue) {
    ExplainedRoom room = SampleExplanation();
    room.observers[0].result.valid = false;
    const JsonValue json = GlareExplanationJson(room);
    const JsonValue& seen = json.Find("observadores")->items.at(0);
    EXPECT_EQ(seen.Find("UGR")->kind, JsonKind::Null);
    EXPECT_EQ(seen.Find("Lb")->kind, JsonKind::Null);
}

TEST(GlareExplanation, WritesATableThatASpreadsheetOpens) {
    ExplainedRoom room = SampleExplanation();
    room.title = "Sala \"A\"; leste";
    room.observers[0].terms[0].smallSource = true;
    EXPECT_EQ(
        WriteGlareExplanationTable({room}),
        "\xEF\xBB\xBFsala;observador;UGR;Lb (cd/m2);luminária;nome;x (m);y (m);z (m);r (m);H/R;T/R;"
        "sigma (graus);tau (graus);I (cd);A (m2);L (cd/m2);w (sr);p;termo (cd2/m4);parte (%);"
        "observação\r\n"
        "\"Sala \"\"A\"\"; leste\";meio da parede;16,000;10;1;Painel;1,000;2,000;3,000;2,000;0,500;"
        "0,250;30,00;26,57;100;0,1;1000;0,025;2,5;1000;25,00;fonte pequena (CIE 147)\r\n"
        "\"Sala \"\"A\"\"; leste\";meio da parede;16,000;10;2;Painel;4,000;5,000;3,000;2,000;0,500;"
        "0,250;30,00;26,57;100;0,1;1000;0,025;2,5;3000;75,00;\r\n"
        "\"Sala \"\"A\"\"; leste\";meio da parede;16,000;10;3;Painel;7,000;8,000;3,000;2,500;2,000;"
        "0,000;;;;;;;;;;fora da tabela do índice de posição (H/R até 1,9, T/R até 3)\r\n");
    const std::string table =
        WriteGlareExplanationTable({SampleExplanation(), SampleExplanation()});
    std::istringstream lines(table);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_EQ(Cells(line).size(), 22U) << line;
    }
    EXPECT_EQ(count, 7U);
}

TEST(GlareExplanation, ARowOfNoKnownLightHasNoName) {
    ExplainedRoom room = SampleExplanation();
    room.observers[0].terms = {RoundTerm(7, 1000.0)};
    EXPECT_EQ(GlareExplanationLines(room)[7].substr(0, 14), "    8    0,000");
}

TEST(GlareExplanation, SaysThatThereIsNothingToExplain) {
    ExplainedRoom room;
    room.title = "Depósito";
    EXPECT_EQ(GlareExplanationLines(room),
              (std::vector<std::string>{"Depósito",
                                        "  nada a explicar: sem luminárias ou sem observadores"}));
}

} // namespace Merivane::Document
