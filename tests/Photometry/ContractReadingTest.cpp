#include "Photometry/ContractReading.hpp"

#include <algorithm>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "IesSamples.hpp"
#include "Photometry/ContractBuilding.hpp"

namespace Merivane::Photometry {
namespace {

using Type = ContractParameterType;
using List = std::vector<ContractParameter>;

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

IesFile SmallFile() {
    IesFile file =
        Tests::MakeTable({0, 45, 90}, {0, 90}, [](double v, double h) { return 100.0 - v + h; });
    file.keywords = {{"LAMP", "LED\n90"}};
    return file;
}

IesFile TiltFile() {
    IesFile file = SmallFile();
    file.tiltMode = 1;
    file.tiltAngles = {0, 90};
    file.tiltFactors = {1, 0.8};
    return file;
}

ContractParameter& Named(List& list, std::string_view name) {
    return *std::find_if(list.begin(), list.end(),
                         [name](const ContractParameter& p) { return p.name == name; });
}

void Remove(List& list, std::string_view name) {
    std::erase_if(list, [name](const ContractParameter& p) { return p.name == name; });
}

ContractParameter Parameter(const char* name, Type type, double number, const char* text = "") {
    ContractParameter parameter;
    parameter.name = name;
    parameter.type = type;
    parameter.number = number;
    parameter.text = text;
    return parameter;
}

List With(const IesFile& file, std::string_view name, double number) {
    List list = BuildContract(file, {});
    Named(list, name).number = number;
    return list;
}

std::string ErrorOf(const List& list) {
    IesFile out;
    const ContractReadResult result = ReadContract(list, out);
    EXPECT_EQ(result.ok, result.error.empty());
    return result.error;
}

TEST(FindParameter, TakesTheFirstOfExactlyTheName) {
    List list(3);
    list[0].name = "mvLamp2";
    list[1].name = "mvLamp";
    list[2].name = "mvLamp";
    EXPECT_EQ(FindParameter(list, "mvLamp"), &list[1]);
    EXPECT_EQ(FindParameter(list, "mvlamp"), nullptr);
    EXPECT_EQ(FindParameter(list, "mvLam"), nullptr);
    EXPECT_EQ(FindParameter({}, ""), nullptr);
}

TEST(ReadContract, GivesBackTheFileThatItWasBuiltFrom) {
    std::mt19937_64 random(4);
    for (int i = 0; i < 500; ++i) {
        const IesFile file = Tests::RandomFile(random);
        IesFile back = SmallFile();
        const ContractReadResult result = ReadContract(BuildContract(file, {}), back);
        EXPECT_TRUE(result.ok) << result.error;
        EXPECT_EQ(result.version, 7);
        EXPECT_EQ(back.formatVersion, 3);
        EXPECT_EQ(back.keywords, file.keywords);
        EXPECT_TRUE(back.otherLines.empty());
        Tests::ExpectSameNumbers(back, file);
    }
}

TEST(ReadContract, GivesOtherLinesBackAsKeywords) {
    IesFile file = SmallFile();
    file.otherLines = {"a", "b"};
    IesFile back;
    ReadContract(BuildContract(file, {}), back);
    EXPECT_EQ(back.keywords, (std::vector<std::pair<std::string, std::string>>{
                                 {"LAMP", "LED\n90"}, {"OTHER", "a"}, {"OTHER", "b"}}));
}

TEST(ReadContract, ReadsTheVersionsFromOneToSeven) {
    const auto refusal = [](const std::string& version) {
        return "luminaria com versao de contrato " + version + " (este Vantoro entende ate a 7)";
    };
    struct Case {
        double stored;
        int version;
        std::string error;
    };
    const Case cases[] = {
        {1, 1, ""},
        {7, 7, ""},
        {0, 0, refusal("0")},
        {8, 8, refusal("8")},
        {-1, -1, refusal("-1")},
        {0.5, 1, ""}, // rounded
        {0.49, 0, refusal("0")},
        {7.49, 7, ""},
        {7.5, 8, refusal("8")},
        {NotANumber, 0, refusal("0")},
        {Infinity, 2147483647, refusal("2147483647")},
        {-1e300, -2147483647 - 1, refusal("-2147483648")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored);
        IesFile out;
        const ContractReadResult result =
            ReadContract(With(SmallFile(), "mvContractVersion", c.stored), out);
        EXPECT_EQ(result.error, c.error);
        EXPECT_EQ(result.ok, c.error.empty());
        EXPECT_EQ(result.version, c.version);
    }
}

TEST(ReadContract, ResetsTheFileAlsoOnARefusal) {
    IesFile out = SmallFile();
    const ContractReadResult result = ReadContract({}, out);
    EXPECT_EQ(result.error, "parametro ausente ou de tipo errado: mvContractVersion");
    EXPECT_EQ(result.version, 0);
    EXPECT_TRUE(out.keywords.empty());
    EXPECT_TRUE(out.candela.empty());
}

const char* const NumericNames[] = {
    "mvContractVersion", "mvLampCount",     "mvLumensPerLamp", "mvCandelaMultiplier",
    "mvPhotometricType", "mvUnitsType",     "mvWidth",         "mvLength",
    "mvHeight",          "mvBallastFactor", "mvFutureUse",     "mvInputWatts",
    "mvTiltMode",        "mvTiltGeometry"};

TEST(ReadContract, RefusesANumberThatIsMissingOrNoNumber) {
    for (const std::string name : NumericNames) {
        List list = BuildContract(TiltFile(), {});
        for (const Type type : {Type::String, Type::RealArray, Type::StringArray}) {
            Named(list, name).type = type;
            EXPECT_EQ(ErrorOf(list), "parametro ausente ou de tipo errado: " + name);
        }
        Remove(list, name);
        EXPECT_EQ(ErrorOf(list), "parametro ausente ou de tipo errado: " + name);
    }
}

// The order in which they are read shows in which of two is told.
TEST(ReadContract, NamesTheFirstThatIsMissing) {
    List list = BuildContract(TiltFile(), {});
    for (std::size_t i = std::size(NumericNames); i > 0; --i) {
        Remove(list, NumericNames[i - 1]);
        EXPECT_EQ(ErrorOf(list),
                  std::string("parametro ausente ou de tipo errado: ") + NumericNames[i - 1]);
    }
}

TEST(ReadContract, TakesANumberOfAnyNumericKind) {
    for (const Type type : {Type::Integer, Type::Real, Type::Length, Type::Angle, Type::Boolean,
                            Type::Pen, Type::Title}) {
        List list = BuildContract(TiltFile(), {});
        for (const char* name : NumericNames) {
            Named(list, name).type = type;
        }
        EXPECT_EQ(ErrorOf(list), "");
    }
}

TEST(ReadContract, RoundsIntegers) {
    IesFile out;
    EXPECT_TRUE(ReadContract(With(SmallFile(), "mvLampCount", 2.6), out).ok);
    EXPECT_EQ(out.lampCount, 3);
    EXPECT_TRUE(ReadContract(With(SmallFile(), "mvUnitsType", 1.4), out).ok);
    EXPECT_EQ(out.unitsType, 1);
}

TEST(ReadContract, RefusesCodesOutOfRange) {
    struct Case {
        const char* name;
        double lowest;
        double highest;
    };
    const std::string refusal = "tipo fotometrico, unidade ou modo de TILT fora da faixa";
    for (const Case& c :
         {Case{"mvPhotometricType", 1, 3}, {"mvUnitsType", 1, 2}, {"mvTiltMode", 0, 2}}) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ErrorOf(With(TiltFile(), c.name, c.lowest)), "");
        EXPECT_EQ(ErrorOf(With(TiltFile(), c.name, c.highest)), "");
        EXPECT_EQ(ErrorOf(With(TiltFile(), c.name, c.lowest - 1)), refusal);
        EXPECT_EQ(ErrorOf(With(TiltFile(), c.name, c.highest + 1)), refusal);
    }
}

// A part is judged whole before a missing number hides behind a code.
TEST(ReadContract, ReadsTheWholeHeaderBeforeItJudgesTheCodes) {
    List list = With(SmallFile(), "mvPhotometricType", 9);
    Remove(list, "mvTiltMode");
    EXPECT_EQ(ErrorOf(list), "parametro ausente ou de tipo errado: mvTiltMode");
}

TEST(ReadContract, RefusesATableThatIsMissingOrNone) {
    for (const std::string name :
         {"mvTiltAngles", "mvTiltFactors", "mvVerticalAngles", "mvHorizontalAngles", "mvCandela"}) {
        SCOPED_TRACE(name);
        List list = BuildContract(TiltFile(), {});
        Named(list, name).type = Type::Real;
        EXPECT_EQ(ErrorOf(list), "tabela ausente: " + name);
        Named(list, name).type = Type::StringArray;
        EXPECT_EQ(ErrorOf(list), "tabela ausente: " + name);
        Remove(list, name);
        EXPECT_EQ(ErrorOf(list), "tabela ausente: " + name);
    }
}

TEST(ReadContract, RefusesATableOfAnglesWithoutAny) {
    for (const std::string name : {"mvTiltAngles", "mvVerticalAngles", "mvHorizontalAngles"}) {
        List list = BuildContract(TiltFile(), {});
        Named(list, name).numbers.clear();
        EXPECT_EQ(ErrorOf(list), "tabela ausente: " + name);
    }
}

TEST(ReadContract, TellsHowManyValuesATableLacksOrHasTooMany) {
    List list = BuildContract(SmallFile(), {});
    std::vector<double>& candela = Named(list, "mvCandela").numbers;
    candela.push_back(1);
    EXPECT_EQ(ErrorOf(list), "tabela mvCandela com 7 valores, esperados 6");
    candela.resize(5);
    EXPECT_EQ(ErrorOf(list), "tabela mvCandela com 5 valores, esperados 6");
    candela.clear();
    EXPECT_EQ(ErrorOf(list), "tabela mvCandela com 0 valores, esperados 6");
}

TEST(ReadContract, MindsTheTiltTablesInModeOneAlone) {
    List list = BuildContract(TiltFile(), {});
    Named(list, "mvTiltFactors").numbers.push_back(1);
    EXPECT_EQ(ErrorOf(list), "tabela mvTiltFactors com 3 valores, esperados 2");
    Named(list, "mvTiltMode").number = 0;
    IesFile out;
    EXPECT_TRUE(ReadContract(list, out).ok);
    EXPECT_TRUE(out.tiltAngles.empty());
    EXPECT_TRUE(out.tiltFactors.empty());
    EXPECT_EQ(out.tiltGeometry, 1);
    for (const char* name : {"mvTiltAngles", "mvTiltFactors", "mvTiltGeometry"}) {
        Remove(list, name);
    }
    EXPECT_EQ(ErrorOf(list), "");
}

TEST(ReadContract, TakesTheTiltFileInModeTwoAlone) {
    IesFile file = SmallFile();
    file.tiltFile = "x.tlt";
    IesFile out;
    EXPECT_TRUE(ReadContract(BuildContract(file, {}), out).ok);
    EXPECT_EQ(out.tiltFile, "");
    file.tiltMode = 2;
    List list = BuildContract(file, {});
    EXPECT_TRUE(ReadContract(list, out).ok);
    EXPECT_EQ(out.tiltFile, "x.tlt");
    Remove(list, "mvTiltFile");
    EXPECT_TRUE(ReadContract(list, out).ok);
    EXPECT_EQ(out.tiltFile, "");
}

TEST(ReadContract, NeedsNoKeywords) {
    List list = BuildContract(SmallFile(), {});
    Remove(list, "mvIesKeywords");
    IesFile out;
    EXPECT_TRUE(ReadContract(list, out).ok);
    EXPECT_TRUE(out.keywords.empty());
}

TEST(ReadLuminaireSettings, GivesBackWhatWasChosen) {
    const LuminaireSettings chosen = {.iesFileName = "a.ies",
                                      .centerX = 1,
                                      .centerY = 2,
                                      .centerZ = 3,
                                      .c0Rotation = 4,
                                      .tiltAngle = 5,
                                      .tiltDirection = 6,
                                      .flangeDepth = 7,
                                      .maintenanceFactor = 0.7,
                                      .colourRendering = 90,
                                      .symbolFill = 8};
    List list = BuildContract({}, chosen);
    // Of earlier parts.
    list.push_back(Parameter("mvColourRendering", Type::Real, 85));
    const LuminaireSettings read = ReadLuminaireSettings(list);
    EXPECT_EQ(read.iesFileName, "a.ies");
    EXPECT_EQ(read.centerX, 1);
    EXPECT_EQ(read.centerY, 2);
    EXPECT_EQ(read.centerZ, 3);
    EXPECT_EQ(read.c0Rotation, 4);
    EXPECT_EQ(read.tiltAngle, 5);
    EXPECT_EQ(read.tiltDirection, 6);
    EXPECT_EQ(read.flangeDepth, 7);
    EXPECT_EQ(read.maintenanceFactor, 0.7);
    EXPECT_EQ(read.colourRendering, 85);
    EXPECT_EQ(read.symbolFill, 0);
}

TEST(ReadLuminaireSettings, KeepsTheDefaultsOfWhatIsAbsentOrNoNumber) {
    List list;
    EXPECT_EQ(ReadLuminaireSettings(list).maintenanceFactor, 0.8);
    list.push_back(Parameter("mvMaintenanceFactor", Type::String, 0, "0.5"));
    list.push_back(Parameter("mvIesFileName", Type::Real, 3, "x"));
    list.push_back(Parameter("mvCenterX", Type::Length, NotANumber));
    list.push_back(Parameter("mvCenterY", Type::Length, Infinity));
    const LuminaireSettings read = ReadLuminaireSettings(list);
    EXPECT_EQ(read.maintenanceFactor, 0.8);
    EXPECT_EQ(read.iesFileName, "");
    EXPECT_EQ(read.centerX, 0.0);
    EXPECT_EQ(read.centerY, 0.0);
}

} // namespace
} // namespace Merivane::Photometry
