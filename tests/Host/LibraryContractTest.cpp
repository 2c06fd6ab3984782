#include <limits>
#include <string>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class LibraryContract : public ProjectContract {};

std::vector<LibraryParameter> PartParameters(std::string_view part) {
    double sizeA = 0.0;
    double sizeB = 0.0;
    std::vector<LibraryParameter> parameters;
    EXPECT_EQ(GetPartParameters(PartNamed(part), sizeA, sizeB, parameters), NoError);
    return parameters;
}

std::vector<LibraryParameter> ParametersOf(const Guid& guid) {
    ElementMemo memo;
    EXPECT_EQ(GetMemo(guid, MemoParts::Parameters, memo), NoError);
    return memo.parameters;
}

LibraryParameter Text(std::string name, std::string text) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.type = ParameterType::String;
    parameter.text = std::move(text);
    return parameter;
}

LibraryParameter Number(std::string name, double number) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.number = number;
    return parameter;
}

LibraryParameter Table(std::string name, std::int32_t rows, std::int32_t columns) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.isArray = true;
    parameter.dim1 = rows;
    parameter.dim2 = columns;
    parameter.numbers.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns),
                             0.5);
    return parameter;
}

TEST_F(LibraryContract, FindsPartsByNameAndByIndex) {
    LibraryPart found;
    ASSERT_EQ(FindLibraryPart(LampPart, found), NoError);
    EXPECT_EQ(found.name, LampPart);
    EXPECT_TRUE(found.isLamp);
    LibraryPart read;
    ASSERT_EQ(GetLibraryPart(found.index, read), NoError);
    EXPECT_EQ(read.name, found.name);
    EXPECT_EQ(read.mainGuid, found.mainGuid);
    EXPECT_EQ(read.index, found.index);
    ASSERT_EQ(FindLibraryPart(ObjectPart, found), NoError);
    EXPECT_FALSE(found.isLamp);
    EXPECT_NE(found.mainGuid, read.mainGuid);
}

TEST_F(LibraryContract, RefusesPartsThatThereAreNot) {
    LibraryPart part;
    part.name = "como era";
    EXPECT_EQ(FindLibraryPart("Prova", part), BadName);
    EXPECT_EQ(GetLibraryPart(0, part), BadIndex);
    EXPECT_EQ(GetLibraryPart(-5, part), BadIndex);
    EXPECT_EQ(GetLibraryPart(std::numeric_limits<std::int32_t>::max(), part), BadIndex);
    EXPECT_EQ(part.name, "como era");
    double size = 7.0;
    std::vector<LibraryParameter> parameters = {Number("a", 1.0)};
    EXPECT_EQ(GetPartParameters(0, size, size, parameters), BadIndex);
    EXPECT_EQ(size, 7.0);
    EXPECT_EQ(parameters.size(), 1U);
}

TEST_F(LibraryContract, TellsDefaultSizesAndParameters) {
    double sizeA = 0.0;
    double sizeB = 0.0;
    std::vector<LibraryParameter> parameters;
    ASSERT_EQ(GetPartParameters(PartNamed(LampPart), sizeA, sizeB, parameters), NoError);
    EXPECT_EQ(sizeA, 1.2);
    EXPECT_EQ(sizeB, 0.3);
    ASSERT_EQ(parameters.size(), 4U);
    EXPECT_EQ(parameters[0].number, 3000.0);
    EXPECT_EQ(parameters[1].text, "prova");
    EXPECT_EQ(parameters[3].numbers, (std::vector<double>{1, 2, 3, 4, 5, 6}));
}

TEST_F(LibraryContract, MakesIndicesStaleWhenTheLibrariesChange) {
    Sample lamp = MakeLamp();
    ASSERT_EQ(CreateInStep(lamp), NoError);
    Sample another = MakeLamp();
    const std::int32_t stale = PartNamed(LampPart);
    ChangeLibrariesByUser();
    LibraryPart part;
    double size = 0.0;
    std::vector<LibraryParameter> parameters;
    EXPECT_EQ(GetLibraryPart(stale, part), BadIndex);
    EXPECT_EQ(GetPartParameters(stale, size, size, parameters), BadIndex);
    EXPECT_EQ(CreateInStep(another), BadIndex);
    EXPECT_EQ(ChangeInStep(lamp.element), BadIndex);
    const std::int32_t fresh = PartNamed(LampPart);
    EXPECT_NE(fresh, stale);
    const Element read = Read(lamp.element.header.guid); // the element tells the new one
    EXPECT_EQ(std::get<ObjectData>(read.data).libraryIndex, fresh);
    EXPECT_EQ(ChangeInStep(read), NoError);
}

TEST_F(LibraryContract, GivesAPlacedPartAllParametersInThePartsOrder) {
    Sample lamp = MakeLamp();
    lamp.memo.parameters = {Text("mvName", "minha"), Number("mvFlux", 4200.0)};
    const Guid guid = Created(lamp);
    std::vector<LibraryParameter> expected = PartParameters(LampPart);
    expected[0].number = 4200.0;
    expected[1].text = "minha";
    EXPECT_EQ(ParametersOf(guid), expected);
}

TEST_F(LibraryContract, FindsParametersByNameWithoutRegardToCase) {
    Sample lamp = MakeLamp();
    lamp.memo.parameters = {Number("MVFLUX", 1.0), Number("mvUnknown", 2.0)};
    const std::vector<LibraryParameter> read = ParametersOf(Created(lamp));
    ASSERT_EQ(read.size(), 4U);
    EXPECT_EQ(read[0].name, "mvFlux");
    EXPECT_EQ(read[0].number, 1.0);
}

TEST_F(LibraryContract, LetsArraysChangeTheirSize) {
    for (const auto& [rows, columns] : {std::pair{37, 24}, std::pair{1, 1}, std::pair{5, 1}}) {
        Sample lamp = MakeLamp();
        lamp.memo.parameters = {Table("mvTable", rows, columns)};
        const LibraryParameter read = ParametersOf(Created(lamp)).at(3);
        EXPECT_EQ(read.dim1, rows);
        EXPECT_EQ(read.dim2, columns);
        EXPECT_EQ(read.numbers, lamp.memo.parameters[0].numbers);
    }
}

TEST_F(LibraryContract, RefusesValuesOfAnotherTypeAndShape) {
    LibraryParameter asText = Text("mvFlux", "3000");
    LibraryParameter asNumber = Number("mvName", 1.0);
    LibraryParameter asArray = Table("mvFlux", 2, 2);
    LibraryParameter asScalar = Number("mvTable", 1.0);
    LibraryParameter shortArray = Table("mvTable", 2, 3);
    shortArray.numbers.pop_back();
    LibraryParameter noRows = Table("mvTable", 0, 3);
    LibraryParameter noNumber = Number("mvFlux", std::numeric_limits<double>::infinity());
    LibraryParameter tooLong = Text("mvName", std::string(256, 'a'));
    LibraryParameter pairs = Text("mvName", "");
    for (int i = 0; i < 128; ++i) {
        pairs.text += "\xF0\x9F\x92\xA1"; // two units of UTF-16 each
    }
    for (const LibraryParameter& bad :
         {asText, asNumber, asArray, asScalar, shortArray, noRows, noNumber, tooLong, pairs}) {
        Sample lamp = MakeLamp();
        lamp.memo.parameters = {bad};
        EXPECT_EQ(CreateInStep(lamp), BadParameters) << bad.name;
    }
    Sample lamp = MakeLamp();
    lamp.memo.parameters = {Text("mvName", std::string(255, 'a'))};
    EXPECT_EQ(CreateInStep(lamp), NoError);
}

TEST_F(LibraryContract, ReplacesParametersWhereTheyAreGiven) {
    Sample lamp = MakeLamp();
    lamp.memo.parameters = {Number("mvFlux", 1.0), Text("mvName", "minha")};
    ASSERT_EQ(CreateInStep(lamp), NoError);
    const Guid guid = lamp.element.header.guid;
    ASSERT_EQ(ChangeInStep(lamp.element, {}, MemoParts::Polygon), NoError);
    EXPECT_EQ(ParametersOf(guid).at(1).text, "minha"); // not asked to change
    lamp.memo.parameters = {Number("mvFlux", 2.0)};
    ASSERT_EQ(ChangeInStep(lamp.element, lamp.memo, MemoParts::Parameters), NoError);
    EXPECT_EQ(ParametersOf(guid).at(0).number, 2.0);
    EXPECT_EQ(ParametersOf(guid).at(1).text, "prova"); // the part's again
    lamp.memo.parameters = {Text("mvFlux", "2")};
    EXPECT_EQ(ChangeInStep(lamp.element, lamp.memo, MemoParts::Parameters), BadParameters);
    EXPECT_EQ(ParametersOf(guid).at(0).number, 2.0);
}

TEST_F(LibraryContract, KeepsTheValuesThatFitWhenAnotherPartTakesThePlace) {
    Sample lamp = MakeLamp();
    lamp.memo.parameters = {Number("mvFlux", 4200.0), Text("mvName", "minha")};
    ASSERT_EQ(CreateInStep(lamp), NoError);
    std::get<ObjectData>(lamp.element.data).libraryIndex = PartNamed(OtherLampPart);
    ASSERT_EQ(ChangeInStep(lamp.element), NoError);
    std::vector<LibraryParameter> expected = PartParameters(OtherLampPart);
    expected[0].number = 4200.0; // the name is no text any more
    EXPECT_EQ(ParametersOf(lamp.element.header.guid), expected);
    EXPECT_TRUE(UndoByUser());
    EXPECT_EQ(ParametersOf(lamp.element.header.guid).at(1).text, "minha");
}

TEST_F(LibraryContract, GivesWhatItReadBackUnchanged) {
    Sample lamp = MakeLamp();
    lamp.memo.parameters = {Table("mvTable", 3, 4)};
    ASSERT_EQ(CreateInStep(lamp), NoError);
    ElementMemo memo;
    ASSERT_EQ(GetMemo(lamp.element.header.guid, MemoParts::All, memo), NoError);
    ASSERT_EQ(ChangeInStep(lamp.element, memo, MemoParts::Parameters), NoError);
    EXPECT_EQ(ParametersOf(lamp.element.header.guid), memo.parameters);
}

TEST_F(LibraryContract, KeepsSizesOfItsOwn) {
    Sample lamp = MakeLamp();
    std::get<ObjectData>(lamp.element.data).sizeA = 0.6;
    std::get<ObjectData>(lamp.element.data).sizeB = 0.0;
    const Element read = Read(Created(lamp));
    EXPECT_EQ(std::get<ObjectData>(read.data).sizeA, 0.6);
    EXPECT_EQ(std::get<ObjectData>(read.data).sizeB, 0.0);
}

TEST_F(LibraryContract, AnswersWithNoPlanWithoutAProject) {
    CloseContractProject();
    LibraryPart part;
    double size = 0.0;
    std::vector<LibraryParameter> parameters;
    EXPECT_EQ(GetLibraryPart(1, part), NoPlan);
    EXPECT_EQ(FindLibraryPart(LampPart, part), NoPlan);
    EXPECT_EQ(GetPartParameters(1, size, size, parameters), NoPlan);
}

} // namespace
} // namespace Merivane::Host
