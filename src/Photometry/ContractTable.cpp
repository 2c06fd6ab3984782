#include "Photometry/ContractTable.hpp"

#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/ContractBuilding.hpp"

namespace Merivane::Photometry {

namespace {

using Type = ContractParameterType;
using Settings = LuminaireSettings;
using Keyword = KeywordSource;
using Derived = DerivedSource;

constexpr bool Hidden = true;
constexpr bool Shown = false;

// clang-format off
constexpr ContractRow Rows[] = {
    {"mvContractVersion", Type::Integer, Hidden, double{ContractVersion}, "Versao do contrato Vantoro"},
    {"mvTitleIdentification", Type::Title, Shown, {}, "Identificação"},
    {"mvManufacturer", Type::String, Shown, Keyword{"MANUFAC"}, "Fabricante"},
    {"mvCatalog", Type::String, Shown, Keyword{"LUMCAT"}, "Código de catálogo"},
    {"mvLuminaire", Type::String, Shown, Keyword{"LUMINAIRE"}, "Descrição"},
    {"mvLamp", Type::String, Shown, Keyword{"LAMP"}, "Lâmpada"},
    {"mvIesFileName", Type::String, Shown, &Settings::iesFileName, "Arquivo IES de origem"},
    {"mvTitleCircuit", Type::Title, Shown, {}, "Circuito"},
    {"mvCircuit", Type::String, Shown, {}, "Circuito (texto na planta)"},
    {"mvCircuitSize", Type::Real, Shown, 2.5, "Tamanho do texto (mm)"},
    {"mvCircuitPen", Type::Pen, Shown, 1.0, "Caneta do texto"},
    {"mvCircuitX", Type::Length, Shown, 0.08, "Posição X do texto"},
    {"mvCircuitY", Type::Length, Shown, 0.08, "Posição Y do texto"},
    {"mvTitleCalculation", Type::Title, Shown, {}, "Cálculo"},
    {"mvLightOn", Type::Boolean, Shown, 1.0, "Ligada no cálculo"},
    {"mvMaintenanceFactor", Type::Real, Shown, &Settings::maintenanceFactor, "Fator de manutenção"},
    {"mvDimming", Type::Real, Shown, 1.0, "Dimerização (1 = 100%)"},
    {"mvInputWatts", Type::Real, Shown, &IesFile::inputWatts, "Potência (W)"},
    {"mvLuminousFlux", Type::Real, Shown, Derived::LuminousFlux, "Fluxo luminoso (lm)"},
    {"mvTitleAiming", Type::Title, Shown, {}, "Posição da luz"},
    {"mvFlangeDepth", Type::Length, Shown, &Settings::flangeDepth, "Aba abaixo do forro (origem na face do forro)"},
    {"mvCenterX", Type::Length, Shown, &Settings::centerX, "Centro fotométrico X"},
    {"mvCenterY", Type::Length, Shown, &Settings::centerY, "Centro fotométrico Y"},
    {"mvCenterZ", Type::Length, Shown, &Settings::centerZ, "Centro fotométrico Z"},
    {"mvC0Rotation", Type::Angle, Shown, &Settings::c0Rotation, "Rotação do plano C0"},
    {"mvTiltAngle", Type::Angle, Shown, &Settings::tiltAngle, "Inclinação do facho (a partir da vertical)"},
    {"mvTiltDirection", Type::Angle, Shown, &Settings::tiltDirection, "Direção da inclinação em planta"},
    {"mvTitleDisplay", Type::Title, Shown, {}, "Representação"},
    {"mvShowPhotometry", Type::Boolean, Shown, 1.0, "Mostrar centro fotométrico e direção da luz"},
    {"showAxis", Type::Boolean, Shown, 0.0, "Mostrar eixo (X) no símbolo"},
    {"mvSymbolPen", Type::Pen, Shown, 1.0, "Caneta do símbolo"},
    {"mvPlanSymbol", Type::Integer, Hidden, double{DefaultPlanSymbol}, "Símbolo em planta"},
    {"mvPlanSymbolSize", Type::Real, Shown, 4.0, "Tamanho do símbolo (mm no papel)"},
    {"mvSymbolFill", Type::Integer, Hidden, &Settings::symbolFill, "Preenchimento do símbolo"},
    {"mvSymbolCount", Type::Integer, Hidden, Derived::SymbolCount, "Linhas do símbolo"},
    {"mvSymbolData", Type::RealArray, Hidden, Derived::SymbolData, "Desenho do símbolo"},
    {"mvIesKeywords", Type::StringArray, Hidden, Derived::PackedKeywords, "Cabecalho do IES"},
    {"mvLampCount", Type::Integer, Hidden, &IesFile::lampCount, "IES: numero de lampadas"},
    {"mvLumensPerLamp", Type::Real, Hidden, &IesFile::lumensPerLamp, "IES: lumens por lampada (-1 = absoluta)"},
    {"mvCandelaMultiplier", Type::Real, Hidden, &IesFile::candelaMultiplier, "IES: multiplicador de candela"},
    {"mvPhotometricType", Type::Integer, Hidden, &IesFile::photometricType, "IES: tipo fotometrico"},
    {"mvUnitsType", Type::Integer, Hidden, &IesFile::unitsType, "IES: unidade (1 pes, 2 metros)"},
    {"mvWidth", Type::Real, Hidden, &IesFile::width, "IES: largura da abertura"},
    {"mvLength", Type::Real, Hidden, &IesFile::length, "IES: comprimento da abertura"},
    {"mvHeight", Type::Real, Hidden, &IesFile::height, "IES: altura da abertura"},
    {"mvBallastFactor", Type::Real, Hidden, &IesFile::ballastFactor, "IES: fator de reator"},
    {"mvFutureUse", Type::Real, Hidden, &IesFile::futureUse, "IES: campo reservado"},
    {"mvTiltMode", Type::Integer, Hidden, &IesFile::tiltMode, "IES: TILT (0 nenhum, 1 incluso, 2 arquivo)"},
    {"mvTiltFile", Type::String, Hidden, &IesFile::tiltFile, "IES: arquivo de TILT"},
    {"mvTiltGeometry", Type::Integer, Hidden, &IesFile::tiltGeometry, "IES: geometria do TILT"},
    {"mvTiltAngles", Type::RealArray, Hidden, &IesFile::tiltAngles, "IES: angulos do TILT"},
    {"mvTiltFactors", Type::RealArray, Hidden, &IesFile::tiltFactors, "IES: fatores do TILT"},
    {"mvVerticalAngles", Type::RealArray, Hidden, &IesFile::verticalAngles, "IES: angulos verticais"},
    {"mvHorizontalAngles", Type::RealArray, Hidden, &IesFile::horizontalAngles, "IES: angulos horizontais"},
    {"mvCandela", Type::RealArray, Hidden, Derived::CandelaTable, "IES: candelas [horizontal][vertical]"},
};
// clang-format on

} // namespace

std::span<const ContractRow> ContractTable() {
    return Rows;
}

} // namespace Merivane::Photometry
