#include "AddOn/Commands/AddIesToSelectedObject.hpp"

#include <algorithm>
#include <variant>

#include "AddOn/Commands/AddIesDialog.hpp"
#include "AddOn/Commands/PickIesFile.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/ElementReplacement.hpp"
#include "Archicad/LuminairePart.hpp"
#include "Archicad/ObjectPreview.hpp"
#include "Archicad/SelectedLuminaire.hpp"
#include "Host/Library.hpp"
#include "Photometry/LuminaireIdentity.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/PreviewFrame.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Commands {

namespace {

/// What the command has gathered on its way.
struct Conversion {
    Host::Element element;
    Host::LibraryPart source;
    PickedIes picked;
    Archicad::ObjectPreview preview;
    AddIesDialogResult chosen;
    Archicad::AddBlockResult part;
};

bool FindObject(Conversion& conversion) {
    std::string errorText;
    if (!Archicad::FindSelectedLuminaireObject(conversion.element, errorText) ||
        !Archicad::CanBeReplaced(conversion.element, errorText)) {
        Alert(errorText);
        return false;
    }
    const auto& object = std::get<Host::ObjectData>(conversion.element.data);
    return CheckError("Ler a peca do objeto",
                      Host::GetLibraryPart(object.libraryIndex, conversion.source)) ==
           Host::NoError;
}

void ReadGeometry(Conversion& conversion) {
    conversion.preview = Archicad::BuildObjectPreview(conversion.element);
    if (!conversion.preview.geometryRead) {
        ReportLine("previa: nao foi possivel ler a geometria do objeto - o dialogo mostra so a "
                   "fotometria.");
    }
}

/// The element's kind and, where it is known, its size.
std::string ObjectInfo(const Conversion& conversion) {
    std::string info =
        conversion.element.header.type == Host::ElementType::Lamp ? "Iluminação" : "Objeto";
    const Archicad::ObjectPreview& box = conversion.preview;
    if (!box.geometryRead) {
        return info;
    }
    const char* separator = ", ";
    for (const double size : {box.highest.x - box.lowest.x, box.highest.y - box.lowest.y,
                              box.highest.z - box.lowest.z}) {
        info += separator + Simulation::FormatDecimal(size * 100.0, 1);
        separator = " x ";
    }
    return info + " cm";
}

bool AskHowTheLightStands(Conversion& conversion) {
    AddIesDialog dialog(conversion.source.name, conversion.picked, conversion.preview,
                        ObjectInfo(conversion));
    if (!dialog.Invoke()) {
        return false;
    }
    conversion.chosen = dialog.Result();
    Photometry::ApplyIdentityToIes(conversion.chosen.identity, conversion.picked.file);
    return true;
}

bool MakePart(Conversion& conversion) {
    Archicad::AddBlockRequest request;
    request.sourceIndex = conversion.source.index;
    request.file = conversion.picked.file;
    request.settings = conversion.chosen.settings;
    request.newName = conversion.chosen.newName;
    const Host::ErrorCode code = Archicad::AddLuminaireBlockToPart(request, conversion.part);
    for (const std::string& warning : conversion.part.warnings) {
        ReportLine(warning);
    }
    return CheckError("Criar a peca da luminaria", code) == Host::NoError;
}

void TellPart(const Conversion& conversion) {
    Host::LibraryPart part;
    Host::GetLibraryPart(conversion.part.index, part);
    ReportLine("peca criada: \"" + conversion.part.name + "\" em " + Text::Narrow(part.path));
    const double flux = std::max(Photometry::TotalFlux(conversion.picked.file), 0.0);
    ReportLine("fotometria: " + Simulation::FormatDecimal(flux, 0) +
               " lm (da tabela), fator de manutencao " +
               Simulation::FormatDecimal(conversion.chosen.settings.maintenanceFactor, 2));
}

void SwapElement(const Conversion& conversion) {
    const Host::Guid before = conversion.element.header.guid;
    Host::Guid after = before;
    const Host::ErrorCode code =
        Host::CallUndoable("Vantoro: adicionar fotometria IES", [&conversion, &after] {
            return Archicad::ReplaceElementLibPart(conversion.element, conversion.part.index, after,
                                                   false);
        });
    TellPart(conversion);
    if (CheckError("Trocar o objeto colocado pela luminaria", code) != Host::NoError) {
        ReportLine("a peca foi criada e esta na biblioteca Vantoro; o objeto colocado nao foi "
                   "trocado.");
    } else if (after == before) {
        ReportLine("objeto colocado trocado pela luminaria (mesmo elemento).");
    } else {
        ReportLine("objeto colocado substituido por uma luminaria no mesmo lugar (Ctrl+Z "
                   "desfaz).");
    }
}

} // namespace

void AddIesToSelectedObject() {
    BeginLog("adicionar fotometria IES ao objeto selecionado");
    Conversion conversion;
    if (!FindObject(conversion) || !PickIesFile(conversion.picked)) {
        return;
    }
    ReadGeometry(conversion);
    if (AskHowTheLightStands(conversion) && MakePart(conversion)) {
        SwapElement(conversion);
    }
}

} // namespace Merivane::Commands
