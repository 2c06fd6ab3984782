#include "exemplos/LuminaireAuthoring.hpp"

#include <cstdint>
#include <system_error>
#include <utility>

#include "AddOn/CommandTable.hpp"
#include "Host/Elements.hpp"
#include "Host/Library.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/LuminaireIdentity.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Session.hpp"
#include "exemplos/OfficeSourceObjects.hpp"

namespace Merivane::Examples {

namespace {

using Workbench::Parts::PartDocument;

constexpr std::uint64_t AuthoringSeed = 2026;
constexpr std::int16_t AddIesCommand = 32503;
constexpr std::int16_t AddIesDialogNumber = 32600;
constexpr std::int16_t ColourRenderingItem = 25;
constexpr std::int16_t PartNameItem = 27;
constexpr const char* FileQuestion = "Escolha o arquivo IES da luminaria";
constexpr const char* EmbeddedFolder = "escritorio-biblioteca";
constexpr const char* AddOnFolder = "Vantoro Library";

PartDocument SourceDocument(const SourceObject& object, Workbench::GuidSource& guids) {
    namespace Parts = Workbench::Parts;
    PartDocument document;
    document.mainGuid = Workbench::NextGuid(guids);
    document.revision = Workbench::NextGuid(guids);
    document.ancestry =
        Parts::AncestryOfSubtype(Parts::BuiltInSubtype(Parts::GeneralObjectSubtype));
    document.texts = {{"3DSC", 0, object.modelScript}, {"2DSC", 0, object.planScript}};
    Parts::SortSections(document);
    document.parameters.sizeA.number = object.sizeA;
    document.parameters.sizeB.number = object.sizeB;
    if (object.cable > 0.0) {
        Host::LibraryParameter cable;
        cable.name = "comprimentoCabo";
        cable.description = "Comprimento dos cabos";
        cable.type = Host::ParameterType::Length;
        cable.number = object.cable;
        document.parameters.parameters.push_back({cable, ""});
    }
    return document;
}

bool WriteSources(const std::filesystem::path& folder, std::string& error) {
    Workbench::GuidSource guids = Workbench::MakeGuidSource(AuthoringSeed);
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    for (const SourceLuminaire& source : OfficeSourceLuminaires()) {
        const std::filesystem::path path = folder / (source.object.name + ".gsm");
        const std::string bytes =
            Workbench::Parts::WritePartXml(SourceDocument(source.object, guids));
        if (!Text::WriteFileBytes(Text::WidePath(path), bytes)) {
            error = "não foi possível gravar \"" + path.string() + '"';
            return false;
        }
    }
    return true;
}

Workbench::Project EmptyLibraryProject() {
    Workbench::Project project = Workbench::MakeEmptyProject();
    project.libraries = {{"Biblioteca embutida", EmbeddedFolder, true}};
    return project;
}

Host::ErrorCode PlaceAndSelect(const Host::LibraryPart& part, const SourceObject& object) {
    Host::Element element;
    element.header.type = Host::ElementType::Object;
    element.header.layer = {1};
    Host::ObjectData data;
    data.libraryIndex = part.index;
    data.sizeA = object.sizeA;
    data.sizeB = object.sizeB;
    element.data = data;
    const Host::ErrorCode placed = Host::CallUndoable(
        "Colocar objeto", [&element] { return Host::CreateElement(element, {}); });
    return placed != Host::NoError ? placed : Host::SetSelection({element.header.guid});
}

// What a user does in the two dialogs of the command.
Workbench::AnswerScript AnswersFor(const std::filesystem::path& iesFile,
                                   const SourceLuminaire& source, const std::string& name) {
    Workbench::DialogAnswer file;
    file.kind = Workbench::AnswerKind::File;
    file.dialog.text = FileQuestion;
    file.path = iesFile.string();
    Workbench::DialogAnswer dialog;
    dialog.dialog.number = AddIesDialogNumber;
    Workbench::ItemAnswer partName;
    partName.item = PartNameItem;
    partName.text = name;
    dialog.items.push_back(partName);
    if (source.colourRendering > 0.0) {
        Workbench::ItemAnswer rendering;
        rendering.item = ColourRenderingItem;
        rendering.value = source.colourRendering;
        dialog.items.push_back(rendering);
    }
    return {file, dialog};
}

bool NameOfFile(const std::filesystem::path& iesFile, std::string& name) {
    std::string bytes;
    Photometry::IesFile file;
    if (!Text::ReadFileBytes(Text::WidePath(iesFile), bytes) ||
        !Photometry::ReadIes(bytes, file).ok) {
        return false;
    }
    name = Photometry::IdentityFromIes(file).luminaire;
    return true;
}

bool LightObject(const std::filesystem::path& folder, const SourceLuminaire& source,
                 std::string& error) {
    const std::filesystem::path iesFile = folder / "ies" / source.iesFile;
    Host::LibraryPart part;
    std::string name;
    if (!NameOfFile(iesFile, name) ||
        Host::FindLibraryPart(source.object.name, part) != Host::NoError ||
        PlaceAndSelect(part, source.object) != Host::NoError) {
        error = "não foi possível preparar \"" + source.object.name + '"';
        return false;
    }
    Workbench::Session& session = Workbench::CurrentSession();
    session.userInterface.answers = AnswersFor(iesFile, source, name);
    session.userInterface.nextAnswer = 0;
    Commands::ExecuteCommand(AddIesCommand);
    if (!session.userInterface.refusal.empty() ||
        Host::FindLibraryPart(name, part) != Host::NoError) {
        error = "a luminária \"" + name + "\" não foi criada: " + session.userInterface.refusal;
        for (const Workbench::ReportLine& line : session.reportLines) {
            error += '\n' + line.text;
        }
        return false;
    }
    return true;
}

bool LightObjects(const std::filesystem::path& folder, std::string& error) {
    for (const SourceLuminaire& source : OfficeSourceLuminaires()) {
        if (!LightObject(folder, source, error)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool AuthorLuminaires(const std::filesystem::path& folder, Workbench::Project& project,
                      std::string& error) {
    std::error_code ignored; // what stays is found by the names of the new parts
    std::filesystem::remove_all(folder / EmbeddedFolder, ignored);
    std::filesystem::remove_all(folder / AddOnFolder, ignored);
    if (!WriteSources(folder / EmbeddedFolder, error)) {
        return false;
    }
    // The run log of the command is nobody's to read.
    const std::filesystem::path log = folder / "registro";
    std::filesystem::create_directories(log, ignored);
    Workbench::SessionOptions options;
    options.documentsFolder = Text::WidePath(folder);
    options.temporaryFolder = Text::WidePath(log);
    options.guidSeed = AuthoringSeed + 1;
    Workbench::OpenSession(options);
    Workbench::OpenProject(EmptyLibraryProject(), Text::WidePath(folder / "escritorio.vantoro"));
    const bool made = LightObjects(folder, error);
    if (made) {
        project.parts = Workbench::CurrentSession().project.parts;
        project.libraries = Workbench::CurrentSession().project.libraries;
    }
    Workbench::OpenSession({});
    std::filesystem::remove_all(log, ignored);
    return made;
}

} // namespace Merivane::Examples
