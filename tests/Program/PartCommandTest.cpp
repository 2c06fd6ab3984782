#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "Archicad/ContractConversion.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Photometry/IesReader.hpp"
#include "Program/ProgramRun.hpp"
#include "Support/Places.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartFolder.hpp"
#include "Workbench/Parts/PartXml.hpp"

namespace Merivane::Tests {

namespace {

namespace fs = std::filesystem;
using Host::LibraryParameter;
using Host::ParameterType;
using Workbench::Parts::PartDocument;

LibraryParameter MakeParameter(std::string name, ParameterType type, double number) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

PartDocument MakeTable() {
    PartDocument part;
    part.mainGuid.bytes[15] = 0xA1;
    part.revision.bytes[15] = 0xA2;
    part.ancestry = Workbench::Parts::AncestryOfSubtype(
        Workbench::Parts::BuiltInSubtype(Workbench::Parts::ModelElementSubtype));
    LibraryParameter height = MakeParameter("ZZYZX", ParameterType::Length, 0.75);
    height.description = "Altura";
    height.flags = Host::ParameterFixed;
    LibraryParameter text = MakeParameter("cor", ParameterType::String, 0.0);
    text.text = "azul";
    LibraryParameter list = MakeParameter("lados", ParameterType::Real, 0.0);
    list.isArray = true;
    list.dim1 = 2;
    list.dim2 = 3;
    list.numbers.assign(6, 1.0);
    part.parameters.sizeA.number = 1.2;
    part.parameters.sizeB.number = 0.8;
    part.parameters.parameters = {{height, {}},
                                  {MakeParameter("giro", ParameterType::Angle, 90.0), {}},
                                  {MakeParameter("aceso", ParameterType::Boolean, 1.0), {}},
                                  {text, {}},
                                  {list, {}}};
    part.texts = {{"3DSC", 0, "block A, B, ZZYZX\nend\n"}, {"1DSC", 0, ""}, {"KWRD", 0, "mesa"}};
    part.hasCopyright = true;
    part.copyright.author = "Vantoro Add-On";
    part.pictures = {{true, 0, "image/png", "PNG", ""}};
    return part;
}

std::string WritePart(const fs::path& file, const PartDocument& part) {
    WriteBytes(file, Workbench::Parts::WritePartXml(part));
    return file.string();
}

} // namespace

TEST(PartCommand, TellsWhatAPartHolds) {
    const TemporaryFolder folder;
    const ProgramEnd end =
        RunVantoro({"peca", "mostrar", WritePart(folder.Path() / "Mesa.gsm", MakeTable())});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.output, R"(Mesa
  Tipo              objeto
  Subtipo           Elemento do modelo {103E8D2C-8230-42E1-9597-46F84CCE28C0}
  GUID              {00000000-0000-0000-0000-0000000000A1}
  Revisão           {00000000-0000-0000-0000-0000000000A2}
  Colocável         sim
  Tamanho A x B     1,2 x 0,8 m
  Palavras-chave    mesa
  Direitos          Vantoro Add-On

Parâmetros: 5
  ZZYZX  comprimento  0,75 m        Altura  do subtipo
  giro   angulo       90°
  aceso  booleano     sim
  cor    texto        "azul"
  lados  real         matriz 2 x 3

Scripts
  3D                2 linhas
  mestre            0 linhas

Imagens
  prévia            image/png, 3 bytes
)");
}

TEST(PartCommand, TellsThePhotometryOfALuminaire) {
    const TemporaryFolder folder;
    Photometry::IesFile ies;
    const std::string bytes = ReadBytes(SourceFolder() / "exemplos/ies/painel-600.ies");
    ASSERT_TRUE(Photometry::ReadIes(bytes, ies).ok);
    Photometry::LuminaireSettings settings;
    settings.iesFileName = "painel-600.ies";
    std::vector<LibraryParameter> parameters;
    for (const Photometry::ContractParameter& parameter :
         Photometry::BuildContract(ies, settings)) {
        Archicad::ToAddPar(parameter, parameters.emplace_back());
    }
    PartDocument part = MakeTable();
    part.type = Host::PartType::Lamp;
    part.parameters = Workbench::MakeFileParameters(0.6, 0.6, parameters);
    const ProgramEnd end =
        RunVantoro({"peca", "mostrar", WritePart(folder.Path() / "Painel.gsm", part)});
    EXPECT_EQ(end.status, 0);
    const std::string photometry = end.output.substr(end.output.find("\nFotometria\n"));
    const std::string ofFile =
        RunVantoro({"ies", (SourceFolder() / "exemplos/ies/painel-600.ies").string()}).output;
    const std::size_t flux = ofFile.find("  Fluxo ");
    ASSERT_NE(flux, std::string::npos);
    EXPECT_NE(photometry.find(ofFile.substr(flux, ofFile.find('\n', flux) - flux)),
              std::string::npos)
        << photometry;
    EXPECT_NE(end.output.find("  Tipo              luminária\n"), std::string::npos);
}

TEST(PartCommand, ExportsAPartAsAFolder) {
    const TemporaryFolder folder;
    PartDocument part = MakeTable();
    part.custom = {{"MVIE", 0, "x"}};
    const std::string file = WritePart(folder.Path() / "Mesa.gsm", part);
    const fs::path target = folder.Path() / "saida";
    const ProgramEnd end = RunVantoro({"peca", "exportar", file, "--hsf", target.string()});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "Pasta da peça: " + (target / "Mesa").string() + "\n");
    EXPECT_EQ(end.error,
              "vantoro: \"" + (target / "Mesa").string() + "\": ficou de fora a seção MVIE.\n");
    for (const Workbench::Parts::PartFile& made : Workbench::Parts::MakePartFiles(part)) {
        EXPECT_EQ(ReadBytes(target / "Mesa" / made.path), made.bytes);
    }
}

TEST(PartCommand, ExportsAPartAsOneDocumentWithItsPictures) {
    const TemporaryFolder folder;
    const std::string file = WritePart(folder.Path() / "Mesa.gsm", MakeTable());
    const fs::path xml = folder.Path() / "mesa.xml";
    const ProgramEnd end = RunVantoro({"peca", "exportar", file, "--xml", xml.string()});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.output, "Documento XML: " + xml.string() +
                              "\nImagens: " + (folder.Path() / "mesa-img").string() + "\n");
    EXPECT_EQ(ReadBytes(xml),
              Workbench::Parts::WritePartXml(MakeTable(), Workbench::Parts::XmlUse::Converter));
    EXPECT_EQ(ReadBytes(folder.Path() / "mesa-img/Picture_0.png"), "PNG");
}

TEST(PartCommand, FailsAndNamesFileAndReason) {
    const TemporaryFolder folder;
    const std::string missing = (folder.Path() / "nenhuma.gsm").string();
    const ProgramEnd none = RunVantoro({"peca", "mostrar", missing});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.error, "vantoro: não foi possível ler \"" + missing + "\".\n");
    const fs::path broken = folder.Path() / "ruim.gsm";
    WriteBytes(broken, "<Symbol/>");
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"peca", "mostrar", broken.string()},
             {"peca", "exportar", broken.string(), "--hsf", folder.Path().string()}}) {
        const ProgramEnd end = RunVantoro(arguments);
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, "vantoro: \"" + broken.string() +
                                 "\": linha 1: o atributo \"MainGUID\" é \"\", e não um GUID.\n");
    }
}

TEST(PartCommand, NeverReplacesAFolderThatIsNoPart) {
    const TemporaryFolder folder;
    const std::string file = WritePart(folder.Path() / "Mesa.gsm", MakeTable());
    fs::create_directory(folder.Path() / "Mesa");
    WriteBytes(folder.Path() / "Mesa/carta.txt", "");
    const ProgramEnd end = RunVantoro({"peca", "exportar", file, "--hsf", folder.Path().string()});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: \"" + (folder.Path() / "Mesa").string() +
                             "\" já existe e não é a pasta de uma peça.\n");
    EXPECT_TRUE(fs::exists(folder.Path() / "Mesa/carta.txt"));
}

TEST(PartCommand, NeverReplacesThePartItself) {
    const TemporaryFolder folder;
    const std::string file = WritePart(folder.Path() / "Mesa.gsm", MakeTable());
    const std::string bytes = ReadBytes(file);
    const std::string same = (folder.Path() / "." / "Mesa.gsm").string();
    const ProgramEnd end = RunVantoro({"peca", "exportar", file, "--xml", same});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: \"" + same + "\" é a própria peça: escolha outro arquivo.\n");
    EXPECT_EQ(ReadBytes(file), bytes);
}

TEST(PartCommand, WantsToKnowTheFormToExport) {
    const ProgramEnd end = RunVantoro({"peca", "exportar", "Mesa.gsm"});
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.error,
              "vantoro: falta --hsf ou --xml.\nVeja \"vantoro peca exportar --ajuda\".\n");
    EXPECT_EQ(RunVantoro({"peca"}).error,
              "vantoro: falta o comando.\nVeja \"vantoro peca --ajuda\".\n");
}

} // namespace Merivane::Tests
