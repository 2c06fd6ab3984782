#include "Workbench/Parts/PartFolder.hpp"

#include <algorithm>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "PartSample.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Workbench::Parts {
namespace {

std::string BytesOf(const std::vector<PartFile>& files, const std::string& path) {
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&path](const PartFile& file) { return file.path == path; });
    return found == files.end() ? "(falta)" : found->bytes;
}

TEST(PartFolder, HoldsOnlyTheFilesOfSectionsThatAreThere) {
    std::vector<std::string> paths;
    for (const PartFile& file : MakePartFiles(MakeFullPart())) {
        paths.push_back(file.path);
    }
    EXPECT_EQ(paths, (std::vector<std::string>{
                         "libpartdata.xml", "ancestry.xml", "calledmacros.xml", "libpartdocs.xml",
                         "paramlist.xml", "scripts/3d.gdl", "scripts/2d.gdl", "scripts/1d.gdl",
                         "scripts/vl.gdl", "images/Picture_0.png", "images/GDLPict_1.jpg"}));
}

TEST(PartFolder, DeclaresEachSection) {
    EXPECT_EQ(BytesOf(MakePartFiles(MakeFullPart()), "libpartdata.xml"),
              "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              R"(<LibpartData Owner="0" Signature="1196644685" Version="46">
	<Identification>
		<MainGUID>A5000000-0000-0000-0000-000000000001</MainGUID>
		<IsPlaceable>true</IsPlaceable>
		<IsArchivable>false</IsArchivable>
		<MigrationValue>Normal</MigrationValue>
		<IsTemplate>false</IsTemplate>
	</Identification>
	<Ancestry SectVersion="1" SectionFlags="0" SubIdent="0"/>
	<CalledMacros SectVersion="2" SectionFlags="0" SubIdent="0"/>
	<Script_3D SectVersion="20" SectionFlags="0" SubIdent="0"/>
	<Script_2D SectVersion="20" SectionFlags="0" SubIdent="0"/>
	<Script_1D SectVersion="20" SectionFlags="0" SubIdent="0"/>
	<Script_VL SectVersion="20" SectionFlags="0" SubIdent="0"/>
	<ParamSection SectVersion="27" SectionFlags="0" SubIdent="0"/>
	<Copyright SectVersion="1" SectionFlags="0" SubIdent="0"/>
	<Keywords SectVersion="1" SectionFlags="0" SubIdent="0"/>
	<Comment SectVersion="20" SectionFlags="0" SubIdent="0"/>
	<Picture MIME="image/png" Name="Picture_0.png" SectVersion="19" SectionFlags="0" SubIdent="0"/>
	<GDLPict MIME="image/jpeg" Name="GDLPict_1.jpg" SectVersion="19" SectionFlags="0" SubIdent="1"/>
</LibpartData>
)");
}

TEST(PartFolder, HoldsScriptsAndPicturesAsTheyAre) {
    const PartDocument part = MakeFullPart();
    const std::vector<PartFile> files = MakePartFiles(part);
    EXPECT_EQ(BytesOf(files, "scripts/3d.gdl"), "\xEF\xBB\xBF" + part.texts[0].text);
    EXPECT_EQ(BytesOf(files, "images/Picture_0.png"), part.pictures[0].bytes);
    EXPECT_TRUE(BytesOf(files, "paramlist.xml")
                    .starts_with("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                 "<ParamSection>\n\t<ParamSectHeader>\n"));
    EXPECT_EQ(BytesOf(MakePartFiles(PartDocument()), "calledmacros.xml"),
              "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<CalledMacros/>\n");
}

TEST(PartFolder, NamesAndMarksPicturesByTheirKind) {
    PartDocument part;
    part.pictures = {{true, 0, "image/gif", "GIF89a", ""},
                     {false, 1, "image/svg+xml", "<svg/>", ""},
                     {false, 2, "image/gif", "GIF87a", ""}};
    const std::vector<PartFile> files = MakePartFiles(part);
    EXPECT_EQ(BytesOf(files, "images/Picture_0.gif"), "GIF89a");
    EXPECT_EQ(BytesOf(files, "images/GDLPict_1.svg"), "<svg/>");
    EXPECT_EQ(BytesOf(files, "images/GDLPict_2.gif"), "GIF87a");
    const std::string declared = BytesOf(files, "libpartdata.xml");
    for (const char* line :
         {"\t<Picture MIME=\"image/gif\" Name=\"Picture_0.gif\" SectVersion=\"19\" "
          "SectionFlags=\"0\" SubIdent=\"0\"/>\n",
          "\t<GDLPict MIME=\"image/svg+xml\" Name=\"GDLPict_1.svg\" SectVersion=\"19\" "
          "SectionFlags=\"1\" SubIdent=\"1\"/>\n",
          "\t<GDLPict MIME=\"image/gif\" Name=\"GDLPict_2.gif\" SectVersion=\"19\" "
          "SectionFlags=\"0\" SubIdent=\"2\"/>\n"}) {
        EXPECT_NE(declared.find(line), std::string::npos) << line << declared;
    }
}

TEST(PartFolder, TellsWhatHasNoPlaceInIt) {
    PartDocument part = MakeFullPart();
    part.texts.push_back({"3DSC", 2, ""});
    part.pictures[1].bytes.clear();
    part.pictures[1].path = "foto.jpg";
    part.kept = {"<MigrationTable SectVersion=\"1\"/>"};
    EXPECT_EQ(LeftOutOfFolder(part),
              (std::vector<std::string>{"a seção MVIE", "a imagem foto.jpg, que não está na peça",
                                        "a seção 3DSC de número 2", "o elemento MigrationTable"}));
    EXPECT_EQ(LeftOutOfXml(part), (std::vector<std::string>{
                                      "a seção MVIE", "a imagem foto.jpg, que não está na peça"}));
}

TEST(PartFolder, IsWrittenWholeAndReplacesOnlyAPart) {
    const Tests::TemporaryFolder place;
    const std::filesystem::path folder = place.Path() / "Peça";
    PartDocument part = MakeFullPart();
    std::string error;
    ASSERT_TRUE(WritePartFolder(part, Text::WidePath(folder), error)) << error;
    for (const PartFile& file : MakePartFiles(part)) {
        EXPECT_EQ(Tests::ReadBytes(folder / file.path), file.bytes) << file.path;
    }
    part.texts.erase(part.texts.begin());
    ASSERT_TRUE(WritePartFolder(part, Text::WidePath(folder), error)) << error;
    EXPECT_FALSE(std::filesystem::exists(folder / "scripts/3d.gdl"));
    std::filesystem::create_directory(place.Path() / "outra");
    Tests::WriteBytes(place.Path() / "outra/carta.txt", "não é de peça");
    EXPECT_FALSE(WritePartFolder(part, Text::WidePath(place.Path() / "outra"), error));
    EXPECT_EQ(error,
              '"' + (place.Path() / "outra").string() + "\" já existe e não é a pasta de uma peça");
    Tests::WriteBytes(place.Path() / "arquivo", "");
    EXPECT_FALSE(WritePartFolder(part, Text::WidePath(place.Path() / "arquivo/peça"), error));
    EXPECT_EQ(error, "a pasta \"" + (place.Path() / "arquivo/peça").string() +
                         "\" não pode ser gravada: o disco a recusou");
    std::size_t entries = 0;
    for (const auto& entry : std::filesystem::directory_iterator(place.Path())) {
        entries += entry.path().empty() ? 0U : 1U;
    }
    EXPECT_EQ(entries, 3U); // nothing half made
}

} // namespace
} // namespace Merivane::Workbench::Parts
