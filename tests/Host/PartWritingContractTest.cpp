#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "ContractSupport.hpp"
#include "Host/GuidText.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Host {
namespace {

constexpr std::int32_t LightSubtype = 118;
constexpr std::int32_t ModelElementSubtype = 120;

std::string UniqueIdOf(std::int32_t number) {
    Guid guid;
    EXPECT_EQ(GetBuiltInPart(number, guid), NoError);
    return GuidText(guid) + '-' + GuidText({});
}

/// A project with one library, a folder of this test.
class PartWritingContract : public ProjectContract {
protected:
    void SetUp() override {
        ProjectContract::SetUp();
        ASSERT_EQ(AddLibrary(Folder()), NoError);
        part.type = PartType::Lamp;
        part.name = "Luminária nova";
        part.folder = Folder();
        part.parentId = UniqueIdOf(LightSubtype);
    }

    std::wstring Folder() const { return Text::WidePath(folder.Path()); }

    std::filesystem::path File(const std::string& name) const { return folder.Path() / name; }

    NewLibraryPart part;
    Tests::TemporaryFolder folder;
};

ErrorCode PutSection(const PartSection& section, std::string_view bytes) {
    if (const ErrorCode code = NewSection(section)) {
        return code;
    }
    if (const ErrorCode code = WriteSection(bytes)) {
        return code;
    }
    return EndSection();
}

std::string SectionOf(std::int32_t index, const PartSection& section) {
    std::string bytes;
    EXPECT_EQ(ReadSection(index, section, bytes), NoError) << section.type;
    return bytes;
}

LibraryParameter MakeNumber(std::string name, ParameterType type, double number) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

/// A lamp of these parameters, made and saved.
LibraryPart MakeSaved(const NewLibraryPart& part, const std::vector<LibraryParameter>& parameters) {
    std::string bytes;
    EXPECT_EQ(MakeParameterSection(part, 1.2, 0.3, parameters, bytes), NoError);
    EXPECT_EQ(CreatePart(part), NoError);
    EXPECT_EQ(PutSection({"3DSC", 0}, "block A, B, 0.1"), NoError);
    EXPECT_EQ(PutSection({"PARD", 0}, bytes), NoError);
    LibraryPart saved;
    EXPECT_EQ(SavePart(saved), NoError);
    return saved;
}

TEST_F(PartWritingContract, MakesAPartThatIsFoundAndPlaced) {
    const LibraryPart saved = MakeSaved(part, {MakeNumber("mvFlux", ParameterType::Real, 800.0)});
    EXPECT_EQ(saved.name, part.name);
    EXPECT_EQ(saved.type, PartType::Lamp);
    EXPECT_TRUE(saved.isLamp);
    EXPECT_TRUE(saved.isPlaceable);
    EXPECT_EQ(saved.parentId, part.parentId);
    EXPECT_NE(saved.mainGuid, Guid());
    EXPECT_NE(saved.revision, Guid());
    EXPECT_EQ(Text::NativePath(saved.path), File("Luminária nova.gsm"));
    EXPECT_TRUE(std::filesystem::exists(File("Luminária nova.gsm")));
    LibraryPart found;
    ASSERT_EQ(FindLibraryPart(part.name, found), NoError);
    EXPECT_EQ(found.index, saved.index);
    double sizeA = 0.0;
    double sizeB = 0.0;
    std::vector<LibraryParameter> parameters;
    ASSERT_EQ(GetPartParameters(saved.index, sizeA, sizeB, parameters), NoError);
    EXPECT_EQ(sizeA, 1.2);
    EXPECT_EQ(sizeB, 0.3);
    Sample lamp = MakeLamp();
    std::get<ObjectData>(lamp.element.data).libraryIndex = saved.index;
    lamp.memo.parameters = {MakeNumber("mvFlux", ParameterType::Real, 900.0)};
    EXPECT_EQ(CreateInStep(lamp), NoError);
}

TEST_F(PartWritingContract, GivesSectionsBackAsTheyWereWritten) {
    const std::string picture = std::string("image/png") + '\0' + "\x89PNG\r\n" + '\0' + "\xFF";
    const std::vector<std::pair<PartSection, std::string>> sections = {
        {{"3DSC", 0}, "a\r\nb]]>\r\n"},
        {{"2DSC", 0}, "hotspot2 0, 0"},
        {{"1DSC", 0}, ""},
        {{"VLSC", 0}, "values \"x\" 1"},
        {{"KWRD", 0}, "Vantoro"},
        {{"CTXT", 0}, "até ≥ <&>"},
        {{"PICT", 0}, picture},
        {{"GDLP", 2}, picture},
        {{"MVIE", 7}, std::string("\0\x01\xFE", 3)}};
    ASSERT_EQ(CreatePart(part), NoError);
    for (const auto& [section, bytes] : sections) {
        ASSERT_EQ(PutSection(section, bytes), NoError) << section.type;
    }
    LibraryPart saved;
    ASSERT_EQ(SavePart(saved), NoError);
    std::vector<PartSection> listed;
    ASSERT_EQ(ListSections(saved.index, listed), NoError);
    EXPECT_EQ(listed.size(), sections.size());
    for (const auto& [section, bytes] : sections) {
        EXPECT_EQ(SectionOf(saved.index, section), bytes) << section.type;
    }
}

TEST_F(PartWritingContract, EndsLinesOfScriptsAsTheHostDoes) {
    ASSERT_EQ(CreatePart(part), NoError);
    ASSERT_EQ(PutSection({"3DSC", 0}, "a\nb\r\nc"), NoError);
    LibraryPart saved;
    ASSERT_EQ(SavePart(saved), NoError);
    EXPECT_EQ(SectionOf(saved.index, {"3DSC", 0}), "a\r\nb\r\nc");
}

TEST_F(PartWritingContract, CanNotReadTheCopyright) {
    ASSERT_EQ(CreatePart(part), NoError);
    ASSERT_EQ(PutSection({"CPYR", 0}, "Vantoro Add-On"), NoError);
    LibraryPart saved;
    ASSERT_EQ(SavePart(saved), NoError);
    std::string bytes = "como era";
    EXPECT_EQ(ReadSection(saved.index, {"CPYR", 0}, bytes), NotSupported);
    EXPECT_EQ(ReadSection(saved.index, {"CTXT", 0}, bytes), NoLibrarySection);
    EXPECT_EQ(ReadSection(0, {"CTXT", 0}, bytes), BadIndex);
    EXPECT_EQ(bytes, "como era");
    std::vector<PartSection> sections;
    EXPECT_EQ(ListSections(0, sections), BadIndex);
}

TEST_F(PartWritingContract, KeepsParametersInTheirOrderWithTheirFlags) {
    std::vector<LibraryParameter> given = {
        MakeNumber("mvTitle", ParameterType::Title, 0.0),
        MakeNumber("mvTilt", ParameterType::Angle, 0.5235987755982988),
        MakeNumber("mvOn", ParameterType::Boolean, 1.0),
        MakeNumber("mvTable", ParameterType::Real, 0.0),
        MakeNumber("mvName", ParameterType::String, 0.0)};
    given[0].flags = ParameterBoldName | ParameterOpen;
    given[1].flags = ParameterChild | ParameterHidden;
    given[3].isArray = true;
    given[3].dim1 = 2;
    given[3].dim2 = 2;
    given[3].numbers = {1.0, 2.0, 3.0, 4.0};
    given[4].text = "com \"aspas\" e <tags>";
    const LibraryPart saved = MakeSaved(part, given);
    double size = 0.0;
    std::vector<LibraryParameter> read;
    ASSERT_EQ(GetPartParameters(saved.index, size, size, read), NoError);
    ASSERT_GE(read.size(), given.size());
    const std::vector<LibraryParameter> own(read.end() - static_cast<std::ptrdiff_t>(given.size()),
                                            read.end());
    EXPECT_EQ(own, given);
    for (std::size_t i = 0; i + given.size() < read.size(); ++i) {
        EXPECT_NE(read[i].flags & ParameterFixed, 0) << read[i].name; // the subtype's
    }
}

TEST_F(PartWritingContract, BringsTheSubtypesParametersOnce) {
    const LibraryPart saved = MakeSaved(part, {MakeNumber("ZZYZX", ParameterType::Length, 0.06)});
    double size = 0.0;
    std::vector<LibraryParameter> read;
    ASSERT_EQ(GetPartParameters(saved.index, size, size, read), NoError);
    std::vector<std::string> names;
    names.reserve(read.size());
    for (const LibraryParameter& parameter : read) {
        names.push_back(parameter.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"AC_show2DHotspotsIn3D", "ac_bottomlevel",
                                               "ac_toplevel", "ZZYZX"}));
    EXPECT_EQ(read.back().number, 0.06);
}

TEST_F(PartWritingContract, RefusesParametersThatNoPartCanHave) {
    std::string bytes = "como era";
    LibraryParameter ragged = MakeNumber("mvTable", ParameterType::Real, 0.0);
    ragged.isArray = true;
    ragged.dim1 = 2;
    ragged.numbers = {1.0};
    for (const auto& bad : std::vector<std::vector<LibraryParameter>>{
             {MakeNumber("", ParameterType::Real, 0.0)},
             {MakeNumber(std::string(32, 'a'), ParameterType::Real, 0.0)},
             {MakeNumber("ção", ParameterType::Real, 0.0)},
             {MakeNumber("x", ParameterType::Real, 0.0), MakeNumber("X", ParameterType::Real, 0.0)},
             {MakeNumber("A", ParameterType::Length, 0.0)},
             {MakeNumber("mvData", ParameterType::Dictionary, 0.0)},
             {ragged}}) {
        EXPECT_EQ(MakeParameterSection(part, 1.0, 1.0, bad, bytes), BadParameters);
    }
    EXPECT_EQ(bytes, "como era");
    EXPECT_EQ(MakeParameterSection(part, 1.0, 1.0,
                                   {MakeNumber(std::string(31, 'a'), ParameterType::Real, 0.0)},
                                   bytes),
              NoError);
}

TEST_F(PartWritingContract, HandsOnHowAPartTreatsItsParameters) {
    const LibraryPart saved = MakeSaved(part, {MakeNumber("mvOn", ParameterType::Boolean, 1.0)});
    std::string details = "como era";
    EXPECT_EQ(GetPartDetails(0, details), BadIndex);
    EXPECT_EQ(details, "como era");
    ASSERT_EQ(GetPartDetails(saved.index, details), NoError);
    std::string bytes;
    ASSERT_EQ(MakeParameterSection(part, 1.0, 1.0, {}, bytes), NoError);
    const std::string fixedSize = bytes;
    EXPECT_EQ(SetPartDetails(details, bytes), NoError);
    EXPECT_EQ(bytes, fixedSize); // as a part made from scratch is
    std::string noList = "nenhuma lista";
    EXPECT_EQ(SetPartDetails(details, noList), BadParameters);
    EXPECT_EQ(noList, "nenhuma lista");
}

TEST_F(PartWritingContract, RefusesPartsThatCanNotBeMade) {
    struct Case {
        const char* what;
        ErrorCode code;
        void (*change)(NewLibraryPart& part);
    };
    const Case cases[] = {
        {"no name", BadParameters, [](NewLibraryPart& p) { p.name.clear(); }},
        {"a path", BadParameters, [](NewLibraryPart& p) { p.name = "a/b"; }},
        {"no file's name", BadParameters, [](NewLibraryPart& p) { p.name = "a\nb"; }},
        {"no parent", BadId, [](NewLibraryPart& p) { p.parentId.clear(); }},
        {"a null parent", BadId, [](NewLibraryPart& p) { p.parentId = GuidText({}); }},
        {"no library", NoLibrary, [](NewLibraryPart& p) { p.folder = L"/"; }},
        {"another part's name", NameInUse, [](NewLibraryPart& p) { p.name = LampPart; }},
    };
    for (const Case& c : cases) {
        NewLibraryPart wanted = part;
        c.change(wanted);
        EXPECT_EQ(CreatePart(wanted), c.code) << c.what;
    }
    LibraryPart saved;
    EXPECT_EQ(SavePart(saved), NotInitialised); // none was begun
}

TEST_F(PartWritingContract, WritesNeitherOverAFileNorIntoAFolderThatIsReadOnly) {
    MakeSaved(part, {});
    EXPECT_EQ(CreatePart(part), NameInUse);
    part.name = "Outra";
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::owner_read |
                                                    std::filesystem::perms::owner_exec);
    EXPECT_EQ(CreatePart(part), ReadOnly);
    std::vector<Library> libraries;
    std::int32_t embedded = 0;
    ASSERT_EQ(GetLibraries(libraries, embedded), NoError);
    EXPECT_TRUE(libraries.back().readOnly);
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::owner_all);
    EXPECT_EQ(CreatePart(part), NoError);
}

TEST_F(PartWritingContract, TakesSectionsOneAfterTheOther) {
    EXPECT_EQ(NewSection({"3DSC", 0}), NotInitialised);
    EXPECT_EQ(WriteSection("x"), NotInitialised);
    EXPECT_EQ(EndSection(), NotInitialised);
    ASSERT_EQ(CreatePart(part), NoError);
    EXPECT_EQ(CreatePart(part), Nesting);
    EXPECT_EQ(WriteSection("x"), NotInitialised);
    EXPECT_EQ(NewSection({"3D", 0}), BadParameters);
    ASSERT_EQ(NewSection({"3DSC", 0}), NoError);
    EXPECT_EQ(NewSection({"2DSC", 0}), Nesting);
    EXPECT_EQ(WriteSection("bl"), NoError);
    EXPECT_EQ(WriteSection("ock"), NoError);
    EXPECT_EQ(EndSection(), NoError);
    EXPECT_EQ(PutSection({"PARD", 0}, "isto não é"), GeneralError);
    LibraryPart saved;
    ASSERT_EQ(SavePart(saved), NoError); // without parameters
    EXPECT_EQ(SectionOf(saved.index, {"3DSC", 0}), "block");
    EXPECT_EQ(SavePart(saved), NotInitialised);
}

TEST_F(PartWritingContract, LeavesNothingWhenThePartCanNotBeWritten) {
    ASSERT_EQ(CreatePart(part), NoError);
    std::filesystem::create_directory(File("Luminária nova.gsm")); // stands in the way
    LibraryPart saved;
    EXPECT_EQ(SavePart(saved), GeneralError);
    EXPECT_EQ(FindLibraryPart(part.name, saved), BadName);
    std::filesystem::remove(File("Luminária nova.gsm"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
    EXPECT_EQ(CreatePart(part), NoError); // the one before is over
}

TEST_F(PartWritingContract, RefusesToChangeLibrariesInsideAStep) {
    EXPECT_EQ(CallUndoable("Passo",
                           [this] {
                               EXPECT_EQ(AddLibrary(Folder()), UndoScopeMisuse);
                               EXPECT_EQ(SetLibraries({}), UndoScopeMisuse);
                               EXPECT_EQ(CreatePart(part), UndoScopeMisuse);
                               return NoError;
                           }),
              NothingToUndo);
}

TEST_F(PartWritingContract, ReadsPartsAnewWhenTheListChanges) {
    const LibraryPart saved = MakeSaved(part, {MakeNumber("mvFlux", ParameterType::Real, 800.0)});
    std::vector<Library> libraries;
    std::int32_t embedded = 0;
    ASSERT_EQ(GetLibraries(libraries, embedded), NoError);
    EXPECT_EQ(embedded, -1);
    ASSERT_EQ(libraries.size(), 1U);
    EXPECT_EQ(Text::NativePath(libraries[0].path), folder.Path());
    EXPECT_TRUE(libraries[0].available);
    EXPECT_FALSE(libraries[0].readOnly);
    ASSERT_EQ(SetLibraries(libraries), NoError);
    LibraryPart read;
    EXPECT_EQ(GetLibraryPart(saved.index, read), BadIndex); // stale
    ASSERT_EQ(FindLibraryPart(part.name, read), NoError);
    EXPECT_EQ(read.mainGuid, saved.mainGuid);
    EXPECT_EQ(read.revision, saved.revision);
    ASSERT_EQ(SetLibraries({}), NoError);
    EXPECT_EQ(FindLibraryPart(part.name, read), BadName);
    EXPECT_EQ(AddLibrary(Folder() + L"/nenhuma"), BadParameters);
    ASSERT_EQ(AddLibrary(Folder()), NoError);
    ASSERT_EQ(AddLibrary(Folder()), NoError); // is in the list
    ASSERT_EQ(GetLibraries(libraries, embedded), NoError);
    EXPECT_EQ(libraries.size(), 1U);
}

TEST_F(PartWritingContract, TellsAPartWhoseFileHasGone) {
    const LibraryPart saved = MakeSaved(part, {MakeNumber("mvFlux", ParameterType::Real, 800.0)});
    Sample lamp = MakeLamp();
    std::get<ObjectData>(lamp.element.data).libraryIndex = saved.index;
    lamp.memo.parameters = {MakeNumber("mvFlux", ParameterType::Real, 900.0)};
    ASSERT_EQ(CreateInStep(lamp), NoError);
    ASSERT_EQ(SetLibraries({}), NoError);
    const Element placed = Read(lamp.element.header.guid);
    const std::int32_t index = std::get<ObjectData>(placed.data).libraryIndex;
    LibraryPart read;
    EXPECT_EQ(GetLibraryPart(index, read), MissingDefinition);
    EXPECT_EQ(read.name, part.name);
    std::vector<std::int32_t> indices;
    ASSERT_EQ(ListLibraryParts(indices), NoError);
    EXPECT_EQ(std::count(indices.begin(), indices.end(), index), 0);
    ElementMemo memo;
    ASSERT_EQ(GetMemo(lamp.element.header.guid, MemoParts::Parameters, memo), NoError);
    EXPECT_EQ(memo.parameters.back().number, 900.0); // kept
    EXPECT_EQ(CreateInStep(lamp), BadIndex);
    std::get<ObjectData>(lamp.element.data).libraryIndex = index;
    EXPECT_EQ(CreateInStep(lamp), MissingDefinition);
    ASSERT_EQ(AddLibrary(Folder()), NoError);
    EXPECT_EQ(FindLibraryPart(part.name, read), NoError);
    EXPECT_EQ(ChangeInStep(Read(placed.header.guid)), NoError);
}

TEST_F(PartWritingContract, ListsTheProjectsPartsToo) {
    std::vector<std::int32_t> indices;
    ASSERT_EQ(ListLibraryParts(indices), NoError);
    EXPECT_NE(std::count(indices.begin(), indices.end(), PartNamed(LampPart)), 0);
    LibraryPart lamp;
    ASSERT_EQ(FindLibraryPart(LampPart, lamp), NoError);
    EXPECT_EQ(lamp.parentId, UniqueIdOf(LightSubtype));
    EXPECT_EQ(lamp.path, L"");
    ASSERT_EQ(FindLibraryPart(ObjectPart, lamp), NoError);
    EXPECT_EQ(lamp.parentId, UniqueIdOf(ModelElementSubtype));
    std::vector<PartSection> sections;
    ASSERT_EQ(ListSections(lamp.index, sections), NoError);
    EXPECT_EQ(sections, (std::vector<PartSection>{{"PARD", 0}}));
    ASSERT_EQ(CreatePart(part), NoError);
    EXPECT_EQ(PutSection({"PARD", 0}, SectionOf(lamp.index, {"PARD", 0})), NoError);
    EXPECT_EQ(SavePart(lamp), NoError);
}

TEST_F(PartWritingContract, KnowsBuiltInSubtypes) {
    Guid guid;
    EXPECT_EQ(GetBuiltInPart(LightSubtype, guid), NoError);
    EXPECT_EQ(GuidText(guid), "{51A838E5-0F40-4F6D-A658-CF2845581749}");
    EXPECT_EQ(GetBuiltInPart(ModelElementSubtype, guid), NoError);
    EXPECT_EQ(GuidText(guid), "{103E8D2C-8230-42E1-9597-46F84CCE28C0}");
    EXPECT_EQ(GetBuiltInPart(106, guid), NoError);
    EXPECT_EQ(GuidText(guid), "{F938E33A-329D-4A36-BE3E-85E126820996}");
    EXPECT_EQ(GetBuiltInPart(-1, guid), NoError);
    EXPECT_EQ(guid, Guid());
}

TEST_F(PartWritingContract, AnswersWithNoPlanWithoutAProject) {
    CloseContractProject();
    std::vector<std::int32_t> indices;
    std::vector<Library> libraries;
    std::int32_t embedded = 0;
    std::vector<PartSection> sections;
    std::string bytes;
    LibraryPart saved;
    EXPECT_EQ(ListLibraryParts(indices), NoPlan);
    EXPECT_EQ(GetLibraries(libraries, embedded), NoPlan);
    EXPECT_EQ(AddLibrary(Folder()), NoPlan);
    EXPECT_EQ(SetLibraries({}), NoPlan);
    EXPECT_EQ(ListSections(1, sections), NoPlan);
    EXPECT_EQ(ReadSection(1, {"3DSC", 0}, bytes), NoPlan);
    EXPECT_EQ(CreatePart(part), NoPlan);
    EXPECT_EQ(NewSection({"3DSC", 0}), NoPlan);
    EXPECT_EQ(WriteSection(""), NoPlan);
    EXPECT_EQ(EndSection(), NoPlan);
    EXPECT_EQ(MakeParameterSection(part, 1.0, 1.0, {}, bytes), NoPlan);
    EXPECT_EQ(GetPartDetails(1, bytes), NoPlan);
    EXPECT_EQ(SetPartDetails("", bytes), NoPlan);
    EXPECT_EQ(SavePart(saved), NoPlan);
}

} // namespace
} // namespace Merivane::Host
