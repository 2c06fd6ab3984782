#include <algorithm>
#include <string>
#include <vector>

#include "Archicad/LibraryParameters.hpp"
#include "Archicad/LibraryPartWriting.hpp"
#include "Archicad/LuminairePart.hpp"
#include "LibrarySession.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Host::ParameterType;
using Strings = std::vector<std::string>;
using Workbench::Parts::PartDocument;

const std::string Dictionary =
    "<Dictionary Name=\"dados\"><Description><![CDATA[\"d\"]]></Description><String Name=\"a\">"
    "<Value><![CDATA[\"</Dictionary>\"]]></Value></String></Dictionary>";

const std::string Stretchable = "<ParamSectHeader><AutoHotspots>true</AutoHotspots><StatBits>"
                                "<STBit_UIDefault/></StatBits></ParamSectHeader>";

/// What a part's copy takes over beside scripts, pictures and numbers.
class PartAsSource : public Tests::LibrarySession {
protected:
    void SetUp() override {
        source.sections = {{{"2DSC", 0}, "RECT2 0, 0, A, B\r\n"},
                           {{"3DSC", 0}, "BLOCK A, B, 1\r\n"}};
    }

    static PartDocument& DocumentOf(std::int32_t index) {
        const Host::LibraryPart part = Tests::PartOf(index);
        auto& parts = Workbench::CurrentSession().project.parts;
        const auto found = std::find_if(parts.begin(), parts.end(), [&part](const auto& each) {
            return each.name == part.name;
        });
        return *found->document;
    }

    AddBlockResult Add(std::int32_t index, Host::ErrorCode expected = Host::NoError) {
        AddBlockRequest request;
        request.sourceIndex = index;
        request.newName = "Plafon";
        AddBlockResult result;
        EXPECT_EQ(AddLuminaireBlockToPart(request, result), expected);
        return result;
    }

    std::string MadeFile() const { return Tests::ReadBytes(OwnFolder() / "Plafon.gsm"); }

    static Host::LibraryParameter DictionaryOf(const std::string& content) {
        Host::LibraryParameter parameter =
            Tests::OwnParameter("dados", ParameterType::Dictionary, 0);
        parameter.text = content;
        return parameter;
    }

    Tests::SourcePart source;
};

TEST_F(PartAsSource, HandsItsDictionariesOnWithTheirContent) {
    source.parameters = {Tests::OwnParameter("altura", ParameterType::Length, 0.9),
                         DictionaryOf(Dictionary)};
    const AddBlockResult made = Add(MakePart(source));
    EXPECT_EQ(made.warnings, Strings());
    auto parameters = Tests::ParametersOf(made.index);
    const Host::LibraryParameter* const carried = FindAddPar(parameters, "dados");
    ASSERT_NE(carried, nullptr);
    EXPECT_EQ(carried->type, ParameterType::Dictionary);
    EXPECT_EQ(carried->text, Dictionary);
    EXPECT_NE(MadeFile().find(Dictionary), std::string::npos);
    Open(); // the file alone
    Host::LibraryPart read;
    ASSERT_EQ(Host::AddLibrary(Text::WidePath(OwnFolder())), Host::NoError);
    ASSERT_EQ(Host::FindLibraryPart("Plafon", read), Host::NoError);
    parameters = Tests::ParametersOf(read.index);
    EXPECT_EQ(FindAddPar(parameters, "dados")->text, Dictionary);
}

TEST_F(PartAsSource, LosesADictionaryThatTheHostDoesNotTellWithAWarning) {
    source.parameters = {DictionaryOf(Dictionary),
                         Tests::OwnParameter("altura", ParameterType::Length, 0.9)};
    const std::int32_t index = MakePart(source);
    for (auto& parameter : Workbench::CurrentSession().project.parts.back().parameters) {
        parameter.text.clear();
    }
    const AddBlockResult made = Add(index);
    EXPECT_EQ(made.warnings, Strings{"parametro dados e um dicionario que nao pode ser lido e nao "
                                     "foi copiado"});
    auto parameters = Tests::ParametersOf(made.index);
    EXPECT_EQ(FindAddPar(parameters, "dados"), nullptr);
    EXPECT_NE(FindAddPar(parameters, "altura"), nullptr);
    EXPECT_EQ(MadeFile().find("<Dictionary"), std::string::npos);
}

TEST_F(PartAsSource, HandsOnWhetherItsSizeIsFixed) {
    const std::int32_t index = MakePart(source);
    DocumentOf(index).parameters.header = Stretchable;
    const AddBlockResult made = Add(index);
    EXPECT_EQ(DocumentOf(made.index).parameters.header, Stretchable);
    const std::string exported =
        Workbench::Parts::WritePartXml(DocumentOf(made.index), Workbench::Parts::XmlUse::Converter);
    EXPECT_NE(
        exported.find("<ParamSection SectVersion=\"27\" SectionFlags=\"0\" SubIdent=\"0\">\n\t" +
                      Stretchable + "\n"),
        std::string::npos);
    EXPECT_EQ(exported.find("STBit_FixSize"), std::string::npos);
    EXPECT_NE(MadeFile().find(Stretchable), std::string::npos);
}

TEST_F(PartAsSource, OfFixedSizeGivesAPartOfFixedSize) {
    const AddBlockResult made = Add(MakePart(source));
    EXPECT_EQ(DocumentOf(made.index).parameters.header, "");
    EXPECT_NE(MadeFile().find("<STBit_FixSize/>"), std::string::npos);
}

TEST_F(PartAsSource, LeavesNoFileWhereTheHostDoesNotTakeWhatItToldOfTheSource) {
    const std::int32_t index = MakePart(source);
    DocumentOf(index).parameters.header = Stretchable;
    Workbench::FailCall("SetPartDetails", 1, Host::NotMine);
    EXPECT_EQ(Add(index, Host::NotMine).warnings,
              Strings{"a lista de parametros nao pode ser montada (APIERR_NOTMINE)"});
    EXPECT_EQ(Tests::FilesIn(OwnFolder()), Strings());
}

TEST_F(PartAsSource, KeepsTheSectionsToItselfThatOnlyTheHostWrites) {
    source.sections.push_back({{"VANT", 3}, "nosso"});
    const std::int32_t index = MakePart(source);
    for (const char* type : {"HEAD", "ANCS", "TYPE"}) {
        DocumentOf(index).custom.push_back({type, 0, "do programa"});
    }
    const AddBlockResult made = Add(index);
    EXPECT_EQ(made.warnings, Strings());
    EXPECT_EQ(DocumentOf(made.index).custom,
              (std::vector<Workbench::Parts::CustomSection>{{"VANT", 3, "nosso"}}));
}

TEST_F(PartAsSource, NeverGivesAListThatIsAnotherThanWasAskedFor) {
    Host::NewLibraryPart part;
    ASSERT_EQ(BuiltInParent(LightSubtype, part.parentId), Host::NoError);
    const std::string title = "<Dictionary Name=\"dados\"/>";
    std::string bytes = "como era";
    for (const std::string& content :
         {std::string("x"), std::string("<Dictionary Name=\"outro\"/>"), title + title,
          std::string("<Length Name=\"dados\"/>"), std::string("<Dictionary Name=\"dados\">")}) {
        EXPECT_EQ(Host::MakeParameterSection(part, 1.0, 1.0, {DictionaryOf(content)}, bytes),
                  Host::BadParameters)
            << content;
        EXPECT_EQ(bytes, "como era");
    }
    EXPECT_EQ(Host::MakeParameterSection(part, 1.0, 1.0, {DictionaryOf(title)}, bytes),
              Host::NoError);
    const std::string list = bytes;
    for (const char* details : {"x", "<Parameters/>", "<ParamSectHeader>", "</ParamSection>"}) {
        EXPECT_EQ(Host::SetPartDetails(details, bytes), Host::BadParameters) << details;
        EXPECT_EQ(bytes, list);
    }
    EXPECT_EQ(Host::SetPartDetails(Stretchable, bytes), Host::NoError);
    EXPECT_NE(bytes.find(Stretchable), std::string::npos);
    EXPECT_NE(bytes.find(title), std::string::npos);
    EXPECT_EQ(Host::SetPartDetails("", bytes), Host::NoError);
    EXPECT_EQ(bytes, list);
}

} // namespace
} // namespace Merivane::Archicad
