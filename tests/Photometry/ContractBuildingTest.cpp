#include "Photometry/ContractBuilding.hpp"

#include <map>

#include <gtest/gtest.h>

#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/ContractReading.hpp"
#include "Photometry/LuminaireIdentity.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Photometry/SymbolRows.hpp"
#include "Text/Number.hpp"

namespace Merivane::Photometry {
namespace {

using Type = ContractParameterType;
using List = std::vector<ContractParameter>;

struct ExpectedParameter {
    const char* name;
    int type;
    char hidden;
    std::string value; ///< number, text, or "rows x columns"
    std::string description;
};

// clang-format off
const ExpectedParameter Expected[] = {
    {"mvContractVersion", 0, 'H', "7", "Versao do contrato Vantoro"},
    {"mvTitleIdentification", 9, ' ', "", "Identificação"},
    {"mvManufacturer", 5, ' ', "Fabrica", "Fabricante"},
    {"mvCatalog", 5, ' ', "C-1", "Código de catálogo"},
    {"mvLuminaire", 5, ' ', "Painel", "Descrição"},
    {"mvLamp", 5, ' ', "LED", "Lâmpada"},
    {"mvIesFileName", 5, ' ', "painel.ies", "Arquivo IES de origem"},
    {"mvTitleCircuit", 9, ' ', "", "Circuito"},
    {"mvCircuit", 5, ' ', "", "Circuito (texto na planta)"},
    {"mvCircuitSize", 1, ' ', "2.5", "Tamanho do texto (mm)"},
    {"mvCircuitPen", 8, ' ', "1", "Caneta do texto"},
    {"mvCircuitX", 2, ' ', "0.08", "Posição X do texto"},
    {"mvCircuitY", 2, ' ', "0.08", "Posição Y do texto"},
    {"mvTitleCalculation", 9, ' ', "", "Cálculo"},
    {"mvLightOn", 4, ' ', "1", "Ligada no cálculo"},
    {"mvMaintenanceFactor", 1, ' ', "0.75", "Fator de manutenção"},
    {"mvDimming", 1, ' ', "1", "Dimerização (1 = 100%)"},
    {"mvInputWatts", 1, ' ', "31", "Potência (W)"},
    {"mvLuminousFlux", 1, ' ', "flux", "Fluxo luminoso (lm)"},
    {"mvTitleAiming", 9, ' ', "", "Posição da luz"},
    {"mvFlangeDepth", 2, ' ', "0.004", "Aba abaixo do forro (origem na face do forro)"},
    {"mvCenterX", 2, ' ', "0.01", "Centro fotométrico X"},
    {"mvCenterY", 2, ' ', "0.02", "Centro fotométrico Y"},
    {"mvCenterZ", 2, ' ', "0.03", "Centro fotométrico Z"},
    {"mvC0Rotation", 3, ' ', "15", "Rotação do plano C0"},
    {"mvTiltAngle", 3, ' ', "30", "Inclinação do facho (a partir da vertical)"},
    {"mvTiltDirection", 3, ' ', "45", "Direção da inclinação em planta"},
    {"mvTitleDisplay", 9, ' ', "", "Representação"},
    {"mvShowPhotometry", 4, ' ', "1", "Mostrar centro fotométrico e direção da luz"},
    {"showAxis", 4, ' ', "0", "Mostrar eixo (X) no símbolo"},
    {"mvSymbolPen", 8, ' ', "1", "Caneta do símbolo"},
    {"mvPlanSymbol", 0, 'H', "2", "Símbolo em planta"},
    {"mvPlanSymbolSize", 1, ' ', "4", "Tamanho do símbolo (mm no papel)"},
    {"mvSymbolFill", 0, 'H', "66", "Preenchimento do símbolo"},
    {"mvSymbolCount", 0, 'H', "49", "Linhas do símbolo"},
    {"mvSymbolData", 6, 'H', "256 x 6", "Desenho do símbolo"},
    {"mvIesKeywords", 7, 'H', "5 x 1", "Cabecalho do IES"},
    {"mvLampCount", 0, 'H', "2", "IES: numero de lampadas"},
    {"mvLumensPerLamp", 1, 'H', "-1", "IES: lumens por lampada (-1 = absoluta)"},
    {"mvCandelaMultiplier", 1, 'H', "1.5", "IES: multiplicador de candela"},
    {"mvPhotometricType", 0, 'H', "1", "IES: tipo fotometrico"},
    {"mvUnitsType", 0, 'H', "2", "IES: unidade (1 pes, 2 metros)"},
    {"mvWidth", 1, 'H', "0.1", "IES: largura da abertura"},
    {"mvLength", 1, 'H', "0.2", "IES: comprimento da abertura"},
    {"mvHeight", 1, 'H', "0.3", "IES: altura da abertura"},
    {"mvBallastFactor", 1, 'H', "0.9", "IES: fator de reator"},
    {"mvFutureUse", 1, 'H', "0.95", "IES: campo reservado"},
    {"mvTiltMode", 0, 'H', "1", "IES: TILT (0 nenhum, 1 incluso, 2 arquivo)"},
    {"mvTiltFile", 5, 'H', "curva.tlt", "IES: arquivo de TILT"},
    {"mvTiltGeometry", 0, 'H', "3", "IES: geometria do TILT"},
    {"mvTiltAngles", 6, 'H', "2 x 1", "IES: angulos do TILT"},
    {"mvTiltFactors", 6, 'H', "2 x 1", "IES: fatores do TILT"},
    {"mvVerticalAngles", 6, 'H', "3 x 1", "IES: angulos verticais"},
    {"mvHorizontalAngles", 6, 'H', "2 x 1", "IES: angulos horizontais"},
    {"mvCandela", 6, 'H', "2 x 3", "IES: candelas [horizontal][vertical]"},
};
// clang-format on

/// A file and settings in which no two fields have the same value.
IesFile SampleFile() {
    IesFile file;
    file.keywords = {{"MANUFAC", "Fabrica"}, {"LUMCAT", "C-1"}, {"LUMINAIRE", "Painel"}};
    file.keywords.emplace_back("LAMP", "LED");
    file.otherLines = {"texto"};
    file.tiltMode = 1;
    file.tiltFile = "curva.tlt";
    file.tiltGeometry = 3;
    file.tiltAngles = {0, 90};
    file.tiltFactors = {1, 0.8};
    file.lampCount = 2;
    file.lumensPerLamp = -1;
    file.candelaMultiplier = 1.5;
    file.width = 0.1;
    file.length = 0.2;
    file.height = 0.3;
    file.ballastFactor = 0.9;
    file.futureUse = 0.95;
    file.inputWatts = 31;
    file.verticalAngles = {0, 45, 90};
    file.horizontalAngles = {0, 180};
    file.candela = {{100, 50, 0}, {110, 60, 5}};
    return file;
}

LuminaireSettings SampleSettings() {
    LuminaireSettings settings;
    settings.iesFileName = "painel.ies";
    settings.centerX = 0.01;
    settings.centerY = 0.02;
    settings.centerZ = 0.03;
    settings.c0Rotation = 15;
    settings.tiltAngle = 30;
    settings.tiltDirection = 45;
    settings.flangeDepth = 0.004;
    settings.maintenanceFactor = 0.75;
    settings.colourRendering = 90;
    settings.symbolFill = 66;
    return settings;
}

const ContractParameter& Named(const List& list, std::string_view name) {
    static const ContractParameter None;
    const ContractParameter* found = FindParameter(list, name);
    EXPECT_NE(found, nullptr) << name;
    return found ? *found : None;
}

std::string ShownValue(const ContractParameter& p) {
    if (p.type == Type::RealArray || p.type == Type::StringArray) {
        return std::to_string(p.dim1) + " x " + std::to_string(p.dim2);
    }
    if (p.type == Type::String || p.type == Type::Title) {
        EXPECT_EQ(p.number, 0.0);
        return p.text;
    }
    EXPECT_EQ(p.text, "");
    return Text::FormatShortest(p.number);
}

TEST(BuildContract, GivesTheParametersOfTheContractInItsOrder) {
    const IesFile file = SampleFile();
    const List list = BuildContract(file, SampleSettings());
    ASSERT_EQ(list.size(), std::size(Expected));
    for (std::size_t i = 0; i < list.size(); ++i) {
        const ExpectedParameter& e = Expected[i];
        SCOPED_TRACE(e.name);
        EXPECT_EQ(list[i].name, e.name);
        EXPECT_EQ(static_cast<int>(list[i].type), e.type);
        EXPECT_EQ(list[i].hidden, e.hidden == 'H');
        EXPECT_EQ(list[i].description, e.description);
        EXPECT_EQ(ShownValue(list[i]),
                  e.value == "flux" ? Text::FormatShortest(TotalFlux(file)) : e.value);
    }
}

TEST(BuildContract, KeepsTheTablesAsTheyWereRead) {
    const List list = BuildContract(SampleFile(), SampleSettings());
    using Numbers = std::vector<double>;
    EXPECT_EQ(Named(list, "mvTiltAngles").numbers, (Numbers{0, 90}));
    EXPECT_EQ(Named(list, "mvTiltFactors").numbers, (Numbers{1, 0.8}));
    EXPECT_EQ(Named(list, "mvVerticalAngles").numbers, (Numbers{0, 45, 90}));
    EXPECT_EQ(Named(list, "mvHorizontalAngles").numbers, (Numbers{0, 180}));
    EXPECT_EQ(Named(list, "mvCandela").numbers, (Numbers{100, 50, 0, 110, 60, 5}));
    EXPECT_EQ(Named(list, "mvIesKeywords").texts,
              (std::vector<std::string>{"[MANUFAC] Fabrica", "[LUMCAT] C-1", "[LUMINAIRE] Painel",
                                        "[LAMP] LED", "[OTHER] texto"}));
}

TEST(BuildContract, CarriesTheDrawingOfTheFilledCircle) {
    const List list = BuildContract({}, {});
    const std::vector<SymbolRow> rows = BuildSymbolRows(BuiltInSymbol(DefaultPlanSymbol)).rows;
    EXPECT_EQ(Named(list, "mvSymbolCount").number, 49);
    EXPECT_EQ(Named(list, "mvSymbolData").numbers, SymbolData(rows));
    EXPECT_EQ(Named(list, "mvSymbolData").numbers.size(), 1536U);
}

TEST(BuildContract, StoresOneZeroWhereThereIsNoArray) {
    const List list = BuildContract({}, {});
    for (const char* name :
         {"mvTiltAngles", "mvTiltFactors", "mvVerticalAngles", "mvHorizontalAngles", "mvCandela"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Named(list, name).numbers, std::vector<double>{0.0});
        EXPECT_EQ(ShownValue(Named(list, name)), "1 x 1");
    }
    EXPECT_EQ(Named(list, "mvIesKeywords").texts, std::vector<std::string>{""});
    EXPECT_EQ(ShownValue(Named(list, "mvIesKeywords")), "1 x 1");
}

TEST(BuildContract, FillsATableThatIsNotWholeWithZeros) {
    IesFile file = SampleFile();
    file.candela = {{1, 2}};
    EXPECT_EQ(Named(BuildContract(file, {}), "mvCandela").numbers,
              (std::vector<double>{1, 2, 0, 0, 0, 0}));
}

// No flux can be told of type B; the host shows 0 and not a sign.
TEST(BuildContract, ShowsNoFluxBelowZero) {
    IesFile file = SampleFile();
    file.photometricType = 2;
    EXPECT_EQ(Named(BuildContract(file, {}), "mvLuminousFlux").number, 0.0);
    file = SampleFile();
    file.candela = {{-1, -1, -1}, {-1, -1, -1}};
    EXPECT_EQ(Named(BuildContract(file, {}), "mvLuminousFlux").number, 0.0);
}

TEST(BuildContract, CutsTextsAt255BytesAndNeverInsideACharacter) {
    const std::map<std::string, std::string> cases = {
        {std::string(255, 'a'), std::string(255, 'a')},
        {std::string(256, 'a'), std::string(255, 'a')},
        {std::string(254, 'a') + "ç", std::string(254, 'a')}, // two bytes across the limit
        {std::string(253, 'a') + "ç", std::string(253, 'a') + "ç"},
    };
    for (const auto& [text, expected] : cases) {
        IesFile file;
        file.tiltFile = text;
        for (const char* key : {"MANUFAC", "LUMCAT", "LUMINAIRE", "LAMP"}) {
            file.keywords.emplace_back(key, text);
        }
        LuminaireSettings settings;
        settings.iesFileName = text;
        const List list = BuildContract(file, settings);
        for (const char* name : {"mvManufacturer", "mvCatalog", "mvLuminaire", "mvLamp",
                                 "mvIesFileName", "mvTiltFile"}) {
            EXPECT_EQ(Named(list, name).text, expected) << name;
        }
    }
}

TEST(ContractParameterNames, AreThoseThatAreBuiltAndOneOfEarlierParts) {
    ParameterNames expected = {"mvColourRendering"};
    for (const ContractParameter& parameter : BuildContract({}, {})) {
        EXPECT_TRUE(expected.insert(parameter.name).second) << parameter.name;
    }
    EXPECT_EQ(ContractParameterNames(), expected);
    EXPECT_EQ(expected.size(), 56U);
}

// The host's buffer of 32 holds a zero at its end.
TEST(ContractParameterNames, FitIntoTheHost) {
    for (const std::string& name : ContractParameterNames()) {
        EXPECT_LE(name.size(), 31U) << name;
        EXPECT_EQ(name.find_first_not_of(
                      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"),
                  std::string::npos)
            << name;
    }
}

TEST(IsCircuitParameter, IsTrueForTheCircuitTextAlone) {
    std::vector<std::string> found;
    for (const ContractParameter& parameter : BuildContract({}, {})) {
        if (IsCircuitParameter(parameter.name)) {
            found.push_back(parameter.name);
        }
    }
    EXPECT_EQ(found, (std::vector<std::string>{"mvCircuit", "mvCircuitSize", "mvCircuitPen",
                                               "mvCircuitX", "mvCircuitY"}));
    for (const char* other : {"", "mvTitleCircuit", "mvcircuit", "mvCircuitZ", "mvCircui"}) {
        EXPECT_FALSE(IsCircuitParameter(other)) << other;
    }
}

// The colour rendering has no parameter of its own: it travels in the header.
TEST(BuildContract, CarriesTheColourRenderingInTheKeywords) {
    IesFile file = SampleFile();
    SetKeyword(file, "_RA", "92");
    const List list = BuildContract(file, SampleSettings());
    EXPECT_EQ(FindParameter(list, "mvColourRendering"), nullptr);
    IesFile back;
    ASSERT_TRUE(ReadContract(list, back).ok);
    EXPECT_EQ(ColourRenderingFromIes(back), 92.0);
}

} // namespace
} // namespace Merivane::Photometry
