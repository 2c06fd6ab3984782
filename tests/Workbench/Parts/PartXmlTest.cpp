#include "Workbench/Parts/PartXml.hpp"

#include <string>

#include <gtest/gtest.h>

#include "PartSample.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"

namespace Merivane::Workbench::Parts {
namespace {

TEST(PartXml, ReadsBackWhatItWrote) {
    const PartDocument part = MakeFullPart();
    const std::string xml = WritePartXml(part);
    EXPECT_TRUE(
        xml.starts_with("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Symbol "));
    const PartDocument read = ReadBack(xml);
    EXPECT_EQ(read, part);
    EXPECT_EQ(WritePartXml(read), xml);
}

TEST(PartXml, GivesTheSameBytesForRandomParts) {
    for (std::uint32_t seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        PartDocument part = MakeRandomPart(seed);
        SortSections(part);
        const std::string xml = WritePartXml(part);
        const PartDocument read = ReadBack(xml);
        EXPECT_EQ(read, part);
        EXPECT_EQ(WritePartXml(read), xml);
    }
}

TEST(PartXml, ReplacesWhatXmlCanNotHold) {
    PartDocument part = MakeFullPart();
    part.texts[0].text = "a\r\nb\rc\x01"
                         "d\xFF"
                         "e\tf";
    const PartDocument read = ReadBack(WritePartXml(part));
    EXPECT_EQ(read.texts[0].text, "a\nb\nc d\xEF\xBF\xBD"
                                  "e\tf");
    EXPECT_EQ(WritePartXml(read), WritePartXml(part));
}

TEST(PartXml, GivesTheConverterPicturesByNameAndNothingOfOurOwn) {
    const std::string xml = WritePartXml(MakeFullPart(), XmlUse::Converter);
    EXPECT_NE(xml.find("<Picture MIME=\"image/png\" SectVersion=\"19\" SectionFlags=\"0\" "
                       "SubIdent=\"0\" path=\"Picture_0.png\"/>\n"),
              std::string::npos);
    EXPECT_NE(xml.find(" SubIdent=\"1\" path=\"GDLPict_1.jpg\"/>\n"), std::string::npos);
    EXPECT_EQ(xml.find("CustomSection"), std::string::npos);
    const PartDocument read = ReadBack(xml);
    EXPECT_EQ(read.pictures[0].path, "Picture_0.png");
    EXPECT_EQ(WritePartXml(read, XmlUse::Converter), xml);
}

TEST(PartXml, MarksDrawingsAmongThePictures) {
    PartDocument part;
    part.mainGuid = NumberedGuid(1);
    part.pictures = {{true, 0, "image/gif", "GIF89a", ""},
                     {false, 1, "image/svg+xml", "<svg/>", ""},
                     {false, 2, "image/gif", "GIF89a", ""},
                     {false, 3, "image/svg", "<svg/>", ""}};
    const auto has = [](const std::string& xml, const std::string& piece) {
        return xml.find(piece) != std::string::npos;
    };
    const std::string converter = WritePartXml(part, XmlUse::Converter);
    for (const char* line :
         {"<Picture MIME=\"image/gif\" SectVersion=\"19\" SectionFlags=\"0\" SubIdent=\"0\" "
          "path=\"Picture_0.gif\"/>\n",
          "<GDLPict MIME=\"image/svg+xml\" SectVersion=\"19\" SectionFlags=\"1\" SubIdent=\"1\" "
          "path=\"GDLPict_1.svg\"/>\n",
          "<GDLPict MIME=\"image/gif\" SectVersion=\"19\" SectionFlags=\"0\" SubIdent=\"2\" "
          "path=\"GDLPict_2.gif\"/>\n",
          "<GDLPict MIME=\"image/svg\" SectVersion=\"19\" SectionFlags=\"1\" SubIdent=\"3\" "
          "path=\"GDLPict_3.svg\"/>\n"}) {
        EXPECT_TRUE(has(converter, line)) << line << converter;
    }
    const std::string own = WritePartXml(part);
    EXPECT_TRUE(has(own, "<GDLPict MIME=\"image/svg+xml\" SectVersion=\"19\" SectionFlags=\"1\" "
                         "SubIdent=\"1\">\n"))
        << own;
    EXPECT_EQ(ReadBack(own), part);
}

/// A part as the host's converter writes one.
constexpr const char* Foreign = R"(<?xml version="1.0" encoding="UTF-8"?>
<Symbol IsArchivable="false" IsPlaceable="true" MainGUID="3C0D6A1E-52B7-4B0E-9A64-7F1C5D2E8A90" MigrationValue="Normal" Owner="0" Signature="1196644685" Version="46">
<!-- aaa -->
<Ancestry SectVersion="1" SectionFlags="0" SubIdent="0" Template="false">
	<MainGUID>F938E33A-329D-4A36-BE3E-85E126820996</MainGUID>
	<MainGUID>103E8D2C-8230-42E1-9597-46F84CCE28C0</MainGUID>
</Ancestry>
<Script_3D SectVersion="20" SectionFlags="0" SubIdent="0">
<![CDATA[material mvBodyMat
block A, B, ZZYZX
]]>
</Script_3D>
<Script_VL SectVersion="20" SectionFlags="0" SubIdent="0">
<![CDATA[values "mvCount" range [1, 8]
]]>
</Script_VL>
<ParamSection SectVersion="27" SectionFlags="0" SubIdent="0">
	<ParamSectHeader>
		<AutoHotspots>true</AutoHotspots>
	</ParamSectHeader>
	<Parameters>
		<Length Name="A"><Description><![CDATA["Length"]]></Description><Fix/><Value>1.2</Value></Length>
		<Length Name="B"><Description><![CDATA["Width"]]></Description><Fix/><Value>0.3</Value></Length>
		<Boolean Name="AC_show2DHotspotsIn3D"><Description><![CDATA["2D hotspots in 3D"]]></Description><Fix/><Flags><ParFlg_Hidden/></Flags><Value>0</Value></Boolean>
		<!-- title -->
		<Title Name="mvTitle"><Description><![CDATA["Luminaire"]]></Description><Flags><ParFlg_BoldName/></Flags></Title>
		<Integer Name="mvCount"><Description><![CDATA["Lamps"]]></Description><Flags><ParFlg_Child/></Flags><Value>2</Value></Integer>
		<Angle Name="mvTilt"><Description><![CDATA["Tilt"]]></Description><Value>90</Value></Angle>
		<Material Name="mvBodyMat"><Description><![CDATA["Body"]]></Description><Value Meaning="x">20</Value></Material>
		<String Name="mvArticle"><Description><![CDATA["Article"]]></Description><Value><![CDATA["X-100"]]></Value></String>
		<RealNum Name="mvFlux"><Description><![CDATA["Flux"]]></Description><ArrayValues FirstDimension="2" SecondDimension="0"><AVal Row="1">1800</AVal><AVal Row="2">1900</AVal></ArrayValues></RealNum>
		<Dictionary Name="dados"><Description><![CDATA["d"]]></Description><String Name="a"><Value><![CDATA["</Dictionary>"]]></Value></String></Dictionary>
	</Parameters>
</ParamSection>
<MigrationTable SectVersion="1" SectionFlags="0" SubIdent="0"><Row a="1>0"/></MigrationTable>
<Copyright SectVersion="1" SectionFlags="0" SubIdent="0">
	<Author>Example</Author>
	<License><Type>CC BY</Type><Version>4.0</Version></License>
</Copyright>
<Keywords SectVersion="1" SectionFlags="0" SubIdent="0"><![CDATA[light]]></Keywords>
<Picture MIME="image/png" SectVersion="19" SectionFlags="0" SubIdent="0" path="luminaire_preview.png"/>
</Symbol>
)";

TEST(PartXml, ReadsWhatTheConverterWrites) {
    const PartDocument part = ReadBack(Foreign);
    EXPECT_EQ(part.type, Host::PartType::Object);
    EXPECT_EQ(part.ancestry, AncestryOfSubtype(BuiltInSubtype(ModelElementSubtype)));
    EXPECT_EQ(*FindText(part, "3DSC"), "material mvBodyMat\nblock A, B, ZZYZX\n");
    EXPECT_EQ(*FindText(part, "KWRD"), "light");
    EXPECT_EQ(part.copyright, (Copyright{"Example", "CC BY", "4.0"}));
    EXPECT_EQ(part.parameters.sizeA.number, 1.2);
    EXPECT_EQ(part.parameters.sizeB.description, "Width");
    const auto& parameters = part.parameters.parameters;
    ASSERT_EQ(parameters.size(), 8U);
    EXPECT_EQ(parameters[0].value.flags, Host::ParameterFixed | Host::ParameterHidden);
    EXPECT_EQ(parameters[3].value.number, 90.0);
    EXPECT_EQ(parameters[5].value.text, "X-100");
    EXPECT_EQ(parameters[6].value.numbers, (std::vector<double>{1800.0, 1900.0}));
    EXPECT_EQ(parameters[7].value.type, Host::ParameterType::Dictionary);
    EXPECT_EQ(part.pictures[0].path, "luminaire_preview.png");
}

TEST(PartXml, KeepsWhatItDoesNotUnderstand) {
    const std::string xml = WritePartXml(ReadBack(Foreign));
    for (const char* kept :
         {"<Dictionary Name=\"dados\"><Description><![CDATA[\"d\"]]></Description><String "
          "Name=\"a\"><Value><![CDATA[\"</Dictionary>\"]]></Value></String></Dictionary>",
          "<MigrationTable SectVersion=\"1\" SectionFlags=\"0\" SubIdent=\"0\"><Row a=\"1>0\"/>"
          "</MigrationTable>",
          "<ParamSectHeader>\n\t\t<AutoHotspots>true</AutoHotspots>\n\t</ParamSectHeader>",
          "path=\"luminaire_preview.png\"/>"}) {
        EXPECT_NE(xml.find(kept), std::string::npos) << kept;
    }
    EXPECT_EQ(WritePartXml(ReadBack(xml)), xml);
}

TEST(PartXml, TellsWhatItLeavesOut) {
    std::string xml = Foreign;
    const auto put = [&xml](const std::string& before, const std::string& inserted) {
        xml.insert(xml.find(before), inserted);
    };
    put("<Fix/>", "<Unidade>m</Unidade>");
    put("<ParFlg_Hidden/>", "<ParFlg_Novo/>");
    put("<Author>", "<Ano>2020</Ano>");
    put(" Owner=", " Cor=\"azul\"");
    PartDocument part;
    std::vector<std::string> notes;
    std::string error;
    ASSERT_TRUE(ReadPartXml(xml, part, notes, error)) << error;
    EXPECT_EQ(notes,
              (std::vector<std::string>{
                  "linha 2: o atributo \"Cor\" não é conhecido e foi deixado de fora",
                  "linha 22: o elemento \"Unidade\" não é conhecido e foi deixado de fora",
                  "linha 24: o elemento \"ParFlg_Novo\" não é conhecido e foi deixado de fora",
                  "linha 37: o elemento \"Ano\" não é conhecido e foi deixado de fora"}));
}

TEST(PartXml, RefusesWhatIsNoPartWithLineAndReason) {
    struct Case {
        const char* from;
        const char* to;
        const char* error;
    };
    const Case cases[] = {
        {"</Symbol>", "", "linha 43: um elemento se fecha com outro nome, ou não se fecha"},
        {"<Symbol ", "<Symbolo ", "linha 42: um elemento se fecha com outro nome, ou não se fecha"},
        {"<Ancestry ", "<Ancestry <", "linha 4: há um elemento malformado"},
        {"block A", "block \x01 A", "linha 10: há um caractere que não é de texto em UTF-8"},
        {"block A", "block \xC3 A", "linha 10: há um caractere que não é de texto em UTF-8"},
        {"MainGUID=\"3C0D6A1E", "MainGUID=\"3C0D6A1",
         "linha 2: o atributo \"MainGUID\" é \"3C0D6A1-52B7-4B0E-9A64-7F1C5D2E8A90\", e não um "
         "GUID"},
        {"IsPlaceable=\"true\"", "IsPlaceable=\"1\"",
         "linha 2: o atributo \"IsPlaceable\" é \"1\", e não true ou false"},
        {"Version=\"46\"", "Version=\"4.6\"",
         "linha 2: o atributo \"Version\" é \"4.6\", e não um número inteiro"},
        {"<MainGUID>F938", "<MainGUID>G938",
         "linha 5: \"G938E33A-329D-4A36-BE3E-85E126820996\" não é um GUID"},
        {"SubIdent=\"0\">\n<![CDATA[mat", "SubIdent=\"-1\">\n<![CDATA[mat",
         "linha 8: o SubIdent \"-1\" não é um número inteiro de 0 a 65535"},
        {"</Keywords>", "</Keywords><Keywords/>",
         "linha 40: a seção \"Keywords\" aparece duas vezes"},
        {"</Ancestry>", "</Ancestry><Ancestry/>",
         "linha 7: a seção \"Ancestry\" aparece duas vezes"},
        {"<Picture ", "texto<Picture ", "linha 41: há texto entre as seções"},
        {"<Integer Name=\"mvCount\">", "<Integer Name=\"mv Count\">",
         "linha 27: \"mv Count\" não serve de nome de parâmetro: espera-se um nome ASCII sem "
         "espaços, de no máximo 31 caracteres"},
        {"Name=\"mvTilt\"", "Name=\"MVCOUNT\"",
         "linha 28: o nome \"MVCOUNT\" já é de outro parâmetro da peça"},
        {"<Value>90</Value>", "<Value>noventa</Value>",
         "linha 28: o parâmetro \"mvTilt\" tem \"noventa\" onde se espera um número"},
        {"<Value>90</Value>", "<Value>1e999</Value>",
         "linha 28: o parâmetro \"mvTilt\" tem \"1e999\" onde se espera um número"},
        {"Title Name=\"mvTitle\"", "Titulo Name=\"mvTitle\"",
         "linha 26: um elemento se fecha com outro nome, ou não se fecha"},
        {"FirstDimension=\"2\"", "FirstDimension=\"0\"",
         "linha 31: o parâmetro \"mvFlux\" tem dimensões que não servem"},
        {"FirstDimension=\"2\"", "FirstDimension=\"1\"",
         "linha 31: o parâmetro \"mvFlux\" tem um valor fora da matriz"},
        {"SecondDimension=\"0\"", "SecondDimension=\"1000000\"",
         "linha 31: as matrizes da peça têm mais de 1000000 valores"},
        {"path=\"luminaire_preview.png\"/>", ">%%%</Picture>",
         "linha 41: a imagem não está em base64"},
        {"<MigrationTable ", "<CustomSection Type=\"abc\"/><MigrationTable ",
         "linha 35: \"abc\" não é um tipo de seção"},
        {"<MigrationTable ", "<CustomSection Type=\"abcd\">=</CustomSection><MigrationTable ",
         "linha 35: a seção não está em base64"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.to);
        std::string xml = Foreign;
        const std::size_t at = xml.find(c.from);
        ASSERT_NE(at, std::string::npos);
        xml.replace(at, std::string(c.from).size(), c.to);
        PartDocument part;
        std::vector<std::string> notes;
        std::string error;
        EXPECT_FALSE(ReadPartXml(xml, part, notes, error));
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(part, PartDocument());
    }
}

TEST(PartXml, RefusesAnythingThatIsNoDocument) {
    struct Case {
        const char* xml;
        const char* error;
    };
    const Case cases[] = {
        {"", "linha 1: não há nenhum elemento"},
        {"GSYM", "linha 1: não há nenhum elemento"},
        {"<a/>", "linha 1: espera-se o elemento \"Symbol\", mas há \"a\""},
        {"<Symbol/>", "linha 1: o atributo \"MainGUID\" é \"\", e não um GUID"},
        {"<Symbol/>\n<b/>", "linha 2: há um segundo elemento depois do fim do documento"},
    };
    for (const Case& c : cases) {
        PartDocument part;
        std::vector<std::string> notes;
        std::string error;
        EXPECT_FALSE(ReadPartXml(c.xml, part, notes, error));
        EXPECT_EQ(error, c.error) << c.xml;
    }
}

TEST(PartXml, CutAtAnyLengthIsRefusedOrThePart) {
    const std::string whole = WritePartXml(MakeFullPart());
    for (std::size_t length = 0; length + 1 < whole.size(); ++length) {
        PartDocument part;
        std::vector<std::string> notes;
        std::string error;
        EXPECT_FALSE(ReadPartXml(std::string_view{whole}.substr(0, length), part, notes, error));
        EXPECT_TRUE(error.starts_with("linha ")) << error;
    }
}

TEST(PartXml, TellsTheParameterSectionAlone) {
    const ParameterSection section = MakeFullPart().parameters;
    ParameterSection read;
    std::string error;
    ASSERT_TRUE(ReadParameterXml(WriteParameterXml(section), read, error)) << error;
    EXPECT_EQ(read, section);
    EXPECT_FALSE(ReadParameterXml("<Parameters/>", read, error));
    EXPECT_EQ(error, "linha 1: espera-se o elemento \"ParamSection\", mas há \"Parameters\"");
}

TEST(BuiltInSubtypes, KnowTheirIdentityAndAncestry) {
    EXPECT_EQ(BuiltInSubtype(7), Host::Guid());
    const auto light = AncestryOfSubtype(BuiltInSubtype(LightSubtype));
    EXPECT_EQ(light, (std::vector<Host::Guid>{BuiltInSubtype(GeneralObjectSubtype),
                                              BuiltInSubtype(ModelElementSubtype),
                                              BuiltInSubtype(LightSubtype)}));
    EXPECT_EQ(TypeByAncestry(light), Host::PartType::Lamp);
    EXPECT_EQ(AncestryOfSubtype(NumberedGuid(1)),
              (std::vector<Host::Guid>{BuiltInSubtype(GeneralObjectSubtype), NumberedGuid(1)}));
}

TEST(UniqueId, IsReadWithAndWithoutRevision) {
    Host::Guid read;
    EXPECT_TRUE(ParseUniqueId(UniqueId(NumberedGuid(1)), read));
    EXPECT_EQ(read, NumberedGuid(1));
    EXPECT_TRUE(ParseUniqueId(UniqueId(NumberedGuid(2), NumberedGuid(3)).substr(0, 38), read));
    EXPECT_EQ(read, NumberedGuid(2));
    for (const char* bad : {"", "{}", "A5000000-0000-0000-0000-000000000001", "{A}-{B}"}) {
        EXPECT_FALSE(ParseUniqueId(bad, read)) << bad;
    }
    EXPECT_FALSE(ParseUniqueId(UniqueId(NumberedGuid(1)) + 'x', read));
}

} // namespace
} // namespace Merivane::Workbench::Parts
