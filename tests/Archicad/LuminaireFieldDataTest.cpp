// Luminaires from real files of many makers: made, placed and read back. The files stand outside
// the project; where the build was not told of them these tests are left out.

#include <map>

#include <gtest/gtest.h>

#include "Archicad/ElementReplacement.hpp"
#include "Archicad/LuminairePart.hpp"
#include "FieldFiles.hpp"
#include "LibrarySession.hpp"
#include "ModelSample.hpp"
#include "Photometry/IesSamples.hpp"
#include "Photometry/IesWriter.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Photometry::IesFile;

class LuminaireFieldData : public Tests::LibrarySession {
protected:
    void SetUp() override {
        files = Tests::ReadFieldFiles();
        if (files.empty()) {
            GTEST_SKIP() << "no field data told to the build";
        }
        Tests::SourcePart source;
        source.sections = {{{"2DSC", 0}, "RECT2 0, 0, A, B\r\n"},
                           {{"3DSC", 0}, "BLOCK A, B, 0.1\r\n"}};
        MakePart(source);
    }

    /// The index of the luminaire that `source` becomes with this file.
    static std::int32_t Make(const std::string& source, const std::string& name,
                             const IesFile& file) {
        Host::LibraryPart part;
        EXPECT_EQ(Host::FindLibraryPart(source, part), Host::NoError);
        AddBlockRequest request;
        request.sourceIndex = part.index;
        request.file = file;
        request.settings.iesFileName = name;
        request.newName = name;
        AddBlockResult result;
        EXPECT_EQ(AddLuminaireBlockToPart(request, result), Host::NoError);
        EXPECT_TRUE(result.warnings.empty());
        EXPECT_EQ(result.name, name);
        return result.index;
    }

    std::map<std::string, IesFile> files;
};

/// Text as part files hold it: control characters, which a few header lines have, are blanks.
std::string AsFilesHoldIt(std::string text) {
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        const auto second = static_cast<unsigned char>(text[at + 1]);
        if (text[at] == '\xC2' && second >= 0x80 && second <= 0x9F) { // U+0080 to U+009F
            text.replace(at, 2, " ");
        }
    }
    return text;
}

IesFile AsFilesHoldIt(IesFile file) {
    for (auto& [key, value] : file.keywords) {
        value = AsFilesHoldIt(value);
    }
    for (std::string& line : file.otherLines) {
        line = AsFilesHoldIt(line);
    }
    return file;
}

/// Places an Object and makes it a luminaire of this part; its parameters.
std::vector<Host::LibraryParameter> Place(std::int32_t part) {
    Host::LibraryPart source;
    EXPECT_EQ(Host::FindLibraryPart("Fonte", source), Host::NoError);
    Host::Element element;
    element.header.type = Host::ElementType::Object;
    element.header.layer = {1};
    Host::ObjectData object;
    object.libraryIndex = source.index;
    element.data = object;
    Host::Guid placed;
    EXPECT_EQ(Host::CallUndoable("step",
                                 [&] {
                                     const auto code = Host::CreateElement(element, {});
                                     return code != Host::NoError
                                                ? code
                                                : ReplaceElementLibPart(element, part, placed,
                                                                        false);
                                 }),
              Host::NoError);
    Host::ElementMemo memo;
    EXPECT_EQ(Host::GetMemo(placed, Host::MemoParts::Parameters, memo), Host::NoError);
    return memo.parameters;
}

TEST_F(LuminaireFieldData, IsReadBackFromThePlacedLuminaire) {
    for (const auto& [name, file] : files) {
        SCOPED_TRACE(name);
        const IesFile back = Tests::PhotometryOf(Place(Make("Fonte", name, file)));
        Tests::ExpectSameNumbers(back, file);
        const IesFile held = AsFilesHoldIt(file);
        EXPECT_EQ(back.keywords, Tests::KeywordsOfContract(held));
        EXPECT_EQ(Photometry::WriteIes(back), Photometry::WriteIes(held));
    }
}

TEST_F(LuminaireFieldData, IsReadBackFromTheFilesByAnotherSession) {
    for (const auto& [name, file] : files) {
        Make("Fonte", name, file);
    }
    Open();
    EXPECT_EQ(Host::AddLibrary(Text::WidePath(OwnFolder())), Host::NoError);
    for (const auto& [name, file] : files) {
        SCOPED_TRACE(name);
        Host::LibraryPart part;
        ASSERT_EQ(Host::FindLibraryPart(name, part), Host::NoError);
        Tests::ExpectSameNumbers(Tests::PhotometryOf(Tests::ParametersOf(part.index)), file);
    }
}

TEST_F(LuminaireFieldData, GivesOneContractWhenItIsMadeTwice) {
    const auto& [firstName, first] = *files.begin();
    const std::int32_t made = Make("Fonte", firstName, first);
    const auto names = Tests::ParameterNamesOf(made);
    const auto sections = Tests::SectionsOf(made);
    std::string source = firstName;
    for (const auto& [name, file] : files) {
        SCOPED_TRACE(name);
        const std::int32_t again = Make(source, "outra " + name, file);
        EXPECT_EQ(Tests::ParameterNamesOf(again), names);
        EXPECT_EQ(Tests::SectionsOf(again), sections);
        Tests::ExpectSameNumbers(Tests::PhotometryOf(Tests::ParametersOf(again)), file);
        source = "outra " + name;
    }
}

} // namespace
} // namespace Merivane::Archicad
