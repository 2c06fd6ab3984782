#include "LibrarySession.hpp"

#include <algorithm>
#include <utility>

#include "Archicad/ContractConversion.hpp"
#include "Archicad/LibraryPartWriting.hpp"
#include "ModelSample.hpp"
#include "Photometry/ContractReading.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Tests {

LibrarySession::LibrarySession() {
    for (const char* name : {"Documentos", "Fontes", "Temporarios"}) {
        std::filesystem::create_directories(folder.Path() / name);
    }
    Open();
}

void LibrarySession::Open() {
    Workbench::SessionOptions options;
    options.documentsFolder = Text::WidePath(Documents());
    options.temporaryFolder = Text::WidePath(folder.Path() / "Temporarios");
    Workbench::OpenSession(std::move(options));
    Workbench::OpenProject(SampleProject());
    EXPECT_EQ(Host::AddLibrary(Text::WidePath(SourceFolder())), Host::NoError);
}

std::int32_t LibrarySession::MakePart(const SourcePart& source) const {
    Host::NewLibraryPart part;
    part.type = source.type;
    part.name = source.name;
    part.folder = Text::WidePath(SourceFolder());
    EXPECT_EQ(Archicad::BuiltInParent(source.subtype, part.parentId), Host::NoError);
    EXPECT_EQ(Host::CreatePart(part), Host::NoError);
    for (const Archicad::CopiedSection& section : source.sections) {
        EXPECT_EQ(Archicad::WriteSection(section.section, section.bytes), Host::NoError)
            << section.section.type;
    }
    Host::ErrorCode listCode = Host::NoError;
    EXPECT_EQ(Archicad::WriteParameterSection(part, 0.6, 0.3, source.parameters, listCode),
              Host::NoError);
    Host::LibraryPart saved;
    EXPECT_EQ(Host::SavePart(saved), Host::NoError);
    return saved.index;
}

std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    if (std::filesystem::is_directory(folder)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<Archicad::CopiedSection> SectionsOf(std::int32_t index) {
    std::vector<Host::PartSection> listed;
    EXPECT_EQ(Host::ListSections(index, listed), Host::NoError);
    std::vector<Archicad::CopiedSection> sections;
    for (const Host::PartSection& section : listed) {
        std::string bytes;
        if (section.type != "PARD" && Host::ReadSection(index, section, bytes) == Host::NoError) {
            sections.push_back({section, bytes});
        }
    }
    return sections;
}

std::string ScriptOf(std::int32_t index, const std::string& type) {
    std::string text = "none";
    Archicad::ReadScriptSection(index, type, text);
    return text;
}

std::vector<Host::LibraryParameter> ParametersOf(std::int32_t index) {
    double sizeA = 0.0;
    double sizeB = 0.0;
    std::vector<Host::LibraryParameter> parameters;
    EXPECT_EQ(Host::GetPartParameters(index, sizeA, sizeB, parameters), Host::NoError);
    return parameters;
}

std::vector<std::string> ParameterNamesOf(std::int32_t index) {
    std::vector<std::string> names;
    for (const Host::LibraryParameter& parameter : ParametersOf(index)) {
        names.push_back(parameter.name);
    }
    return names;
}

Host::LibraryPart PartOf(std::int32_t index) {
    Host::LibraryPart part;
    EXPECT_EQ(Host::GetLibraryPart(index, part), Host::NoError);
    return part;
}

Photometry::IesFile PhotometryOf(const std::vector<Host::LibraryParameter>& parameters) {
    Photometry::IesFile file;
    const auto result = Photometry::ReadContract(Archicad::FromAddPars(parameters), file);
    EXPECT_TRUE(result.ok) << result.error;
    return file;
}

std::vector<std::string> ReportTexts() {
    std::vector<std::string> texts;
    for (const Workbench::ReportLine& line : Workbench::CurrentSession().reportLines) {
        texts.push_back(line.text);
    }
    return texts;
}

Host::LibraryParameter OwnParameter(const std::string& name, Host::ParameterType type,
                                    double number) {
    Host::LibraryParameter parameter;
    parameter.name = name;
    parameter.description = name;
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

} // namespace Merivane::Tests
