#include "Archicad/ContractConversion.hpp"

#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "Photometry/ContractBuilding.hpp"
#include "Photometry/ContractReading.hpp"
#include "Photometry/IesSamples.hpp"
#include "Text/Utf16Length.hpp"

namespace Merivane::Archicad {
namespace {

using Host::LibraryParameter;
using Host::ParameterType;
using Photometry::ContractParameter;
using Kind = Photometry::ContractParameterType;

const std::string Lamp = "\xF0\x9F\x92\xA1"; // a pair of units

LibraryParameter Value(ParameterType type, double number) {
    LibraryParameter parameter;
    parameter.name = "p";
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

LibraryParameter Array(std::int32_t dim1, std::int32_t dim2, std::vector<double> numbers) {
    LibraryParameter parameter = Value(ParameterType::Real, 0);
    parameter.isArray = true;
    parameter.dim1 = dim1;
    parameter.dim2 = dim2;
    parameter.numbers = std::move(numbers);
    return parameter;
}

LibraryParameter TextArray(std::int32_t dim1, std::int32_t dim2, std::vector<std::string> texts) {
    LibraryParameter parameter = Array(dim1, dim2, {});
    parameter.type = ParameterType::String;
    parameter.texts = std::move(texts);
    return parameter;
}

ContractParameter From(const LibraryParameter& addPar) {
    const std::vector<ContractParameter> list = FromAddPars({addPar});
    EXPECT_EQ(list.size(), 1U);
    return list[0];
}

LibraryParameter To(const ContractParameter& parameter) {
    LibraryParameter addPar = TextArray(9, 9, {"earlier"}); // nothing of it may stay
    addPar.description = "earlier";
    ToAddPar(parameter, addPar);
    return addPar;
}

ContractParameter Parameter(Kind kind, double number = 0) {
    ContractParameter parameter;
    parameter.name = "p";
    parameter.type = kind;
    parameter.number = number;
    return parameter;
}

TEST(FromAddPars, KnowsTheKindsThatAContractReads) {
    for (int type = 1; type <= 18; ++type) {
        SCOPED_TRACE(type);
        LibraryParameter addPar = Value(static_cast<ParameterType>(type), 2);
        addPar.text = "text";
        const ContractParameter parameter = From(addPar);
        const Kind expected = type == 1    ? Kind::Integer
                              : type == 2  ? Kind::Length
                              : type == 3  ? Kind::Angle
                              : type == 12 ? Kind::String
                              : type == 13 ? Kind::Boolean
                                           : Kind::Real;
        EXPECT_EQ(parameter.type, expected);
        EXPECT_EQ(parameter.text, type == 12 ? "text" : "");
        EXPECT_EQ(parameter.number, type == 12 ? 0.0 : type == 3 ? 2 / 0.017453292519943295 : 2.0);
    }
}

TEST(FromAddPars, TurnsAnglesIntoDegrees) {
    EXPECT_DOUBLE_EQ(From(Value(ParameterType::Angle, 1.5707963267948966)).number, 90.0);
    EXPECT_EQ(To(Parameter(Kind::Angle, 180)).number, 3.141592653589793);
}

TEST(FromAddPars, TakesTheNameAndWhetherItIsHidden) {
    LibraryParameter addPar = Value(ParameterType::Real, 1);
    addPar.name = "mvHeight";
    addPar.flags = Host::ParameterBoldName | Host::ParameterChild;
    EXPECT_EQ(From(addPar).name, "mvHeight");
    EXPECT_FALSE(From(addPar).hidden);
    addPar.flags |= Host::ParameterHidden;
    EXPECT_TRUE(From(addPar).hidden);
}

TEST(FromAddPars, TakesAsManyNumbersAsThereAreAndTheSizeTells) {
    using Numbers = std::vector<double>;
    struct Case {
        std::int32_t dim1;
        std::int32_t dim2;
        int expectedDim2;
        Numbers expected;
    };
    const Case cases[] = {
        {2, 3, 3, {1, 2, 3, 4, 5, 6}},
        {2, 2, 2, {1, 2, 3, 4}},
        {3, 3, 3, {1, 2, 3, 4, 5, 6}},
        {5, 1, 1, {1, 2, 3, 4, 5}},
        {5, 0, 1, {1, 2, 3, 4, 5}}, // one dimension
        {5, -2, 1, {1, 2, 3, 4, 5}},
        {0, 5, 5, {}},
        {-5, 5, 5, {}},
        {2147483647, 2147483647, 2147483647, {1, 2, 3, 4, 5, 6}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.dim1) + " x " + std::to_string(c.dim2));
        const ContractParameter parameter = From(Array(c.dim1, c.dim2, {1, 2, 3, 4, 5, 6}));
        EXPECT_EQ(parameter.type, Kind::RealArray);
        EXPECT_EQ(parameter.numbers, c.expected);
        EXPECT_EQ(parameter.dim1, c.dim1);
        EXPECT_EQ(parameter.dim2, c.expectedDim2);
    }
}

TEST(FromAddPars, TakesStringsByTheSameRule) {
    using Texts = std::vector<std::string>;
    EXPECT_EQ(From(TextArray(2, 0, {"a", "", "c"})).texts, (Texts{"a", ""}));
    EXPECT_EQ(From(TextArray(2, 2, {"a", "", "c"})).texts, (Texts{"a", "", "c"}));
    EXPECT_EQ(From(TextArray(1, 1, {})).texts, Texts{});
    EXPECT_EQ(From(TextArray(1, 1, {"a"})).type, Kind::StringArray);
}

// Whatever numbers an array is of, to the contract they are reals.
TEST(FromAddPars, MakesARealArrayOfEveryOtherArray) {
    for (const ParameterType type : {ParameterType::Integer, ParameterType::Length,
                                     ParameterType::Angle, ParameterType::Boolean}) {
        LibraryParameter addPar = Array(2, 1, {3, 4});
        addPar.type = type;
        EXPECT_EQ(From(addPar).type, Kind::RealArray);
        EXPECT_EQ(From(addPar).numbers, (std::vector<double>{3, 4}));
    }
}

TEST(FromAddPars, KeepsTheNamesThatAreAskedForInTheListsOrder) {
    std::vector<LibraryParameter> list(4, Value(ParameterType::Real, 0));
    list[0].name = "b";
    list[1].name = "c";
    list[2].name = "a";
    list[3].name = "A";
    const std::vector<ContractParameter> kept = FromAddPars(list, {"a", "b", "z"});
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept[0].name, "b");
    EXPECT_EQ(kept[1].name, "a");
    EXPECT_TRUE(FromAddPars(list, {}).empty());
}

TEST(ToAddPar, GivesEachKindTheHostsType) {
    const ParameterType expected[] = {
        ParameterType::Integer, ParameterType::Real,   ParameterType::Length, ParameterType::Angle,
        ParameterType::Boolean, ParameterType::String, ParameterType::Real,   ParameterType::String,
        ParameterType::Pen,     ParameterType::Title};
    for (int kind = 0; kind < 10; ++kind) {
        SCOPED_TRACE(kind);
        const LibraryParameter addPar = To(Parameter(static_cast<Kind>(kind)));
        EXPECT_EQ(addPar.type, expected[kind]);
        EXPECT_EQ(addPar.isArray, kind == 6 || kind == 7);
        EXPECT_EQ(addPar.name, "p");
        EXPECT_EQ(addPar.description, "");
        EXPECT_TRUE(addPar.texts.empty());
        EXPECT_EQ(addPar.dim1, 0);
    }
}

TEST(ToAddPar, GivesNumbersToNumericKindsAlone) {
    for (const Kind kind : {Kind::Integer, Kind::Real, Kind::Length, Kind::Boolean, Kind::Pen}) {
        EXPECT_EQ(To(Parameter(kind, 3)).number, 3.0);
    }
    for (const Kind kind : {Kind::String, Kind::RealArray, Kind::StringArray, Kind::Title}) {
        EXPECT_EQ(To(Parameter(kind, 3)).number, 0.0);
    }
}

TEST(ToAddPar, FlagsTitlesAndHiddenOnes) {
    ContractParameter parameter = Parameter(Kind::Real);
    EXPECT_EQ(To(parameter).flags, 0);
    parameter.hidden = true;
    EXPECT_EQ(To(parameter).flags, 128);
    parameter.type = Kind::Title;
    EXPECT_EQ(To(parameter).flags, 34);
    parameter.hidden = false;
    EXPECT_EQ(To(parameter).flags, 34);
}

TEST(ToAddPar, CutsNamesAt31Characters) {
    ContractParameter parameter = Parameter(Kind::Real);
    parameter.name = std::string(31, 'n');
    EXPECT_EQ(To(parameter).name, std::string(31, 'n'));
    parameter.name = std::string(32, 'n');
    EXPECT_EQ(To(parameter).name, std::string(31, 'n'));
    parameter.name = std::string(30, 'n') + "ç";
    EXPECT_EQ(To(parameter).name, std::string(30, 'n'));
}

// Longest text that stays, and one unit more.
TEST(ToAddPar, CutsTextsAt255UnitsAndNeverInsideACharacter) {
    struct Case {
        std::string text;
        std::string expected;
    };
    const std::string accents = [] {
        std::string text;
        for (int i = 0; i < 255; ++i) {
            text += "ç";
        }
        return text; // 510 bytes
    }();
    const Case cases[] = {
        {"", ""},
        {accents, accents},
        {accents + "a", accents},
        {std::string(253, 'a') + Lamp, std::string(253, 'a') + Lamp},
        {std::string(254, 'a') + Lamp, std::string(254, 'a')},
        {std::string(255, 'a') + Lamp, std::string(255, 'a')},
        {std::string("a\0b", 3), "a"}, // the host's texts end at a zero
        {"Lumin\xE1ria", "Luminária"}, // not UTF-8
        {"Lumin\xE1ria ç\x80", "Luminária ç€"},
        {std::string(254, 'a') + "\xE1\xE1", std::string(254, 'a') + "á"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        ContractParameter parameter = Parameter(Kind::String);
        parameter.text = c.text;
        parameter.description = c.text;
        EXPECT_EQ(To(parameter).text, c.expected);
        EXPECT_EQ(To(parameter).description, c.expected);
        parameter.type = Kind::StringArray;
        parameter.texts = {"a", c.text};
        parameter.dim1 = 2;
        parameter.dim2 = 1;
        EXPECT_EQ(To(parameter).texts, (std::vector<std::string>{"a", c.expected}));
    }
}

TEST(ToAddPar, GivesArraysWithTheirSizes) {
    ContractParameter parameter = Parameter(Kind::RealArray);
    parameter.dim1 = 2;
    parameter.dim2 = 3;
    parameter.numbers = {1, 2, 3, 4, 5, 6};
    const LibraryParameter addPar = To(parameter);
    EXPECT_EQ(addPar.dim1, 2);
    EXPECT_EQ(addPar.dim2, 3);
    EXPECT_EQ(addPar.numbers, parameter.numbers);
}

std::vector<LibraryParameter> HostParameters(const std::vector<ContractParameter>& contract) {
    std::vector<LibraryParameter> list(contract.size());
    for (std::size_t i = 0; i < contract.size(); ++i) {
        ToAddPar(contract[i], list[i]);
    }
    return list;
}

TEST(ContractConversion, BringsAnyFileThroughTheHostAndBack) {
    std::mt19937_64 random(2311);
    for (int i = 0; i < 500; ++i) {
        Photometry::IesFile file = Tests::RandomFile(random);
        for (auto& [key, value] : file.keywords) {
            value = "ç" + std::to_string(random());
        }
        file.tiltFile = file.tiltMode == 2 ? "x.tlt" : "";
        const auto host = HostParameters(Photometry::BuildContract(file, {}));
        Photometry::IesFile back;
        const auto result = Photometry::ReadContract(FromAddPars(host), back);
        EXPECT_TRUE(result.ok) << result.error;
        EXPECT_EQ(back.keywords, file.keywords);
        Tests::ExpectSameNumbers(back, file);
    }
}

TEST(ContractConversion, BringsTheSettingsThroughTheHostAndBack) {
    std::mt19937_64 random(2312);
    std::uniform_real_distribution<double> number(-400.0, 400.0);
    for (int i = 0; i < 500; ++i) {
        Photometry::LuminaireSettings settings;
        settings.iesFileName = "arquivo " + std::to_string(i) + " ç.ies";
        for (double* value : {&settings.centerX, &settings.centerY, &settings.centerZ,
                              &settings.flangeDepth, &settings.maintenanceFactor,
                              &settings.c0Rotation, &settings.tiltAngle, &settings.tiltDirection}) {
            *value = number(random);
        }
        const auto back = Photometry::ReadLuminaireSettings(
            FromAddPars(HostParameters(Photometry::BuildContract({}, settings))));
        EXPECT_EQ(back.iesFileName, settings.iesFileName);
        EXPECT_EQ(back.centerX, settings.centerX);
        EXPECT_EQ(back.centerY, settings.centerY);
        EXPECT_EQ(back.centerZ, settings.centerZ);
        EXPECT_EQ(back.flangeDepth, settings.flangeDepth);
        EXPECT_EQ(back.maintenanceFactor, settings.maintenanceFactor);
        EXPECT_DOUBLE_EQ(back.c0Rotation, settings.c0Rotation);
        EXPECT_DOUBLE_EQ(back.tiltAngle, settings.tiltAngle);
        EXPECT_DOUBLE_EQ(back.tiltDirection, settings.tiltDirection);
    }
}

// Whole degrees are what users type and what they want to see again.
TEST(ContractConversion, ShowsWholeDegreesAgain) {
    for (int degrees = -360; degrees <= 360; ++degrees) {
        EXPECT_NEAR(From(To(Parameter(Kind::Angle, degrees))).number, degrees, 1e-13);
    }
}

TEST(ContractConversion, FindsTheContractAmongAPartsOwnParameters) {
    std::vector<LibraryParameter> host = HostParameters(Photometry::BuildContract({}, {}));
    const std::size_t contract = host.size();
    host.insert(host.begin(), Value(ParameterType::Length, 1));
    host.push_back(Value(ParameterType::Colour, 1));
    EXPECT_EQ(FromAddPars(host).size(), contract + 2);
    EXPECT_EQ(FromAddPars(host, Photometry::ContractParameterNames()).size(), contract);
}

} // namespace
} // namespace Merivane::Archicad
