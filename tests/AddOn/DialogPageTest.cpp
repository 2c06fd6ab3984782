#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numbers>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/AddIesDialog.hpp"
#include "AddOn/Commands/CalculationDialog.hpp"
#include "AddOn/Commands/CheckRadianceInstallation.hpp"
#include "AddOn/Commands/ConfigureEngine.hpp"
#include "AddOn/Commands/ReflectanceDialog.hpp"
#include "AddOn/Commands/ToolbarPalette.hpp"
#include "AddOn/Commands/ZoneRequirementDialog.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "Drawing/PngWriter.hpp"
#include "Photometry/IesSamples.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Radiance/Installation.hpp"
#include "Simulation/Run/InstallationReport.hpp"
#include "Workbench/Interface/DialogPicture.hpp"
#include "Workbench/Interface/OwnResources.hpp"

// The page of the dialogs, held to the resources. With VANTORO_REWRITE_DIALOGS set its tables and
// pictures are made anew.
namespace Merivane {
namespace {

using Workbench::OwnResources;

/// A text inside a cell of a table.
std::string CellText(std::string text) {
    for (std::size_t bar = 0; (bar = text.find('|', bar)) != std::string::npos; bar += 2) {
        text.insert(bar, "\\");
    }
    return text;
}

std::string ItemRow(const Workbench::ItemResource& item, std::size_t number,
                    const std::string& tooltip) {
    const bool limited = !item.lowest.empty() || !item.highest.empty();
    const std::string text = limited ? item.lowest + " to " + item.highest : CellText(item.text);
    std::string row = "| " + std::to_string(number) + " | ";
    row += Workbench::ItemKindName(item.kind);
    return row + " | " + text + " | " + CellText(tooltip) + " |\n";
}

/// All items of a dialog as the page has them.
std::string ItemTable(int resource) {
    const std::vector<Workbench::ItemResource>& items = OwnResources().dialogs.at(resource).items;
    const auto& tooltips = OwnResources().dialogHelps.at(resource).tooltips;
    std::string table = "| Item | Kind | Text or limits | Tooltip |\n|---|---|---|---|\n";
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto tooltip = tooltips.find(static_cast<int>(i + 1));
        table += ItemRow(items[i], i + 1, tooltip == tooltips.end() ? "" : tooltip->second);
    }
    return table;
}

std::filesystem::path DocumentsFolder() {
    return Tests::SourceFolder() / "docs";
}

/// The place of a dialog's table in the page: behind its mark, up to the next blank line.
struct TablePlace {
    std::size_t begin = 0;
    std::size_t length = 0;
};

TablePlace FindTable(const std::string& page, int resource) {
    const std::string mark = "<!-- items of " + std::to_string(resource) + " -->\n";
    const std::size_t found = page.find(mark);
    EXPECT_NE(found, std::string::npos) << mark;
    if (found == std::string::npos) {
        return {page.size(), 0};
    }
    const std::size_t begin = found + mark.size();
    const std::size_t end = page.find("\n\n", begin);
    return {begin, (end == std::string::npos ? page.size() : end + 1) - begin};
}

constexpr double DotsPerInch = 120.0;

bool Rewriting() {
    return std::getenv("VANTORO_REWRITE_DIALOGS") != nullptr;
}

/// Holds a dialog's table and picture in the page, or makes them anew.
void HoldPage(const Workbench::Dialog& dialog) {
    const std::filesystem::path file = DocumentsFolder() / "dialogos.md";
    const std::string picture = "dialogo-" + std::to_string(dialog.resource) + ".png";
    std::string page = Tests::ReadBytes(file);
    const TablePlace place = FindTable(page, dialog.resource);
    const std::string table = ItemTable(dialog.resource);
    if (Rewriting()) {
        std::string png;
        std::string error;
        EXPECT_TRUE(Drawing::WritePng(Workbench::DialogPicture(dialog), png, error, {DotsPerInch}))
            << error;
        Tests::WriteBytes(DocumentsFolder() / picture, png);
        Tests::WriteBytes(file, page.replace(place.begin, place.length, table));
        return;
    }
    EXPECT_EQ(page.substr(place.begin, place.length), table);
    EXPECT_NE(page.find("](" + picture + ")"), std::string::npos) << picture;
    EXPECT_TRUE(std::filesystem::exists(DocumentsFolder() / picture));
}

class DialogPage : public Tests::AddOnSession {};

Archicad::PreviewEdge Edge(const Host::Coordinate3D& from, const Host::Coordinate3D& to) {
    return {from, to};
}

/// A round spot in the ceiling, 20 cm wide and 12 cm high, under a flange of 24 cm.
Archicad::ObjectPreview RoundSpot() {
    struct Ring {
        double radius;
        double z;
    };
    constexpr int sides = 24;
    Archicad::ObjectPreview object;
    object.lowest = {-0.12, -0.12, -0.01};
    object.highest = {0.12, 0.12, 0.12};
    object.geometryRead = true;
    for (const Ring& ring : {Ring{0.12, -0.01}, Ring{0.1, 0.0}, Ring{0.1, 0.12}}) {
        for (int side = 0; side < sides; ++side) {
            const auto corner = [&](int number) {
                const double angle = 2.0 * std::numbers::pi * number / sides;
                return Host::Coordinate3D{ring.radius * std::cos(angle),
                                          ring.radius * std::sin(angle), ring.z};
            };
            object.edges.push_back(Edge(corner(side), corner(side + 1)));
            if (ring.z > 0.0 && side % 6 == 0) {
                Host::Coordinate3D below = corner(side);
                below.z = 0.0;
                object.edges.push_back(Edge(below, corner(side)));
            }
        }
    }
    return object;
}

TEST_F(DialogPage, ShowsThePhotometryOfAnObject) {
    namespace Item = ResourceIds::AddIes;
    Commands::PickedIes picked;
    picked.fileName = "spot-orientavel-30.ies";
    picked.baseName = "spot-orientavel-30";
    picked.file =
        Tests::MakeTable(Tests::Steps(0, 90, 5), Tests::Steps(0, 90, 15), [](double v, double h) {
            const double width = 17.0 + 4.0 * std::cos(2.0 * h * Photometry::RadiansInADegree);
            return 2400.0 * std::exp(-v * v / (2.0 * width * width));
        });
    picked.file.keywords = {{"MANUFAC", "Vantoro Luz"},
                            {"LUMCAT", "VL-230"},
                            {"LUMINAIRE", "Spot orientável 30°"},
                            {"LAMP", "LED 12 W, 3000 K, IRC 90"}};
    picked.file.width = picked.file.length = -0.16;
    picked.file.inputWatts = 12.0;
    Tests::PrepareAnswer(Item::Dialog,
                         R"({"item": 45, "valor": 20}, {"item": 47, "valor": 30},
                            {"item": 16, "apontar": [200, 60]})",
                         Item::Cancel);
    Commands::AddIesDialog("Spot redondo", picked, RoundSpot(), "Objeto, 24,0 x 24,0 x 13,0 cm")
        .Invoke();
    HoldPage(Tests::LastDialog());
}

TEST_F(DialogPage, ShowsTheEngine) {
    namespace Item = ResourceIds::Engine;
    Tests::PrepareAnswer(Item::Dialog, R"({"item": 7, "marcado": true}, {"item": 9, "valor": 5})",
                         Item::Cancel);
    Commands::ConfigureEngine();
    HoldPage(Tests::LastDialog());
}

/// The check as it ends where the add-on's own copy works. Of a real one the folders would be this
/// computer's.
TEST_F(DialogPage, ShowsTheCheckOfRadiance) {
    namespace Item = ResourceIds::RadianceCheck;
    Radiance::Installation installation;
    installation.complete = true;
    installation.source = Radiance::SourceAddOn;
    installation.binFolder = L"C:\\Archicad\\Vantoro\\Vantoro Radiance\\bin";
    installation.libFolder = L"C:\\Archicad\\Vantoro\\Vantoro Radiance\\lib";
    installation.version = "RADIANCE 5.4";
    const Simulation::SelfTestResult test = {true, true, 8.994, 8.994, 0.0004, 0.3, ""};
    Workbench::Dialog dialog =
        Workbench::MakeDialog(Item::Dialog, OwnResources().dialogs.at(Item::Dialog), nullptr);
    const std::pair<std::int16_t, std::string> texts[] = {
        {Item::Verdict, Simulation::VerdictLine(installation, test)},
        {Item::InstallationBox, Simulation::InstallationText(installation)},
        {Item::ToolsBox, Simulation::ToolsText(installation)},
        {Item::TestBox, Simulation::TestText(installation, test)},
    };
    for (const auto& [item, text] : texts) {
        Workbench::FindItem(dialog, item)->text = text;
    }
    HoldPage(dialog);
}

TEST_F(DialogPage, ShowsTheActivitiesOfTheZones) {
    namespace Item = ResourceIds::ZoneRequirement;
    ZoneRequirementDialog dialog(
        {
            {{"{1}", "Recepção"}, Simulation::RequirementFromTask("s22.6"), false},
            {{"{2}", "Sala de Reunião"}, Simulation::RequirementFromTask("s22.5"), true},
            {{"{3}", "Área Técnica"}, Simulation::RequirementFromTask(""), false},
        },
        Simulation::ReferenceStandard::Brazilian);
    Tests::PrepareAnswer(Item::Dialog, R"({"item": 5, "linha": 2})", Item::Cancel);
    dialog.Invoke();
    HoldPage(Tests::LastDialog());
}

TEST_F(DialogPage, ShowsTheReflectances) {
    namespace Item = ResourceIds::Reflectance;
    Simulation::SurfaceColour white;
    white.red = white.green = white.blue = 0.9;
    Simulation::SurfaceColour glass = white;
    glass.transparency = 0.7;
    std::vector<Simulation::SurfaceReflectance> records = {
        Simulation::MakeFromColour("sup:Pintura Branca", "Pintura Branca", white),
        Simulation::MakeFromColour("sup:Vidro", "Vidro", glass),
        Simulation::MakeFloorReflectance(),
    };
    records[0].area = 126.4;
    records[1].area = 18.0;
    records[2].area = 52.3;
    ReflectanceDialog dialog(records);
    Tests::PrepareAnswer(Item::Dialog, R"({"item": 4, "linha": 2})", Item::Cancel);
    dialog.Invoke();
    HoldPage(Tests::LastDialog());
}

TEST_F(DialogPage, ShowsTheCalculation) {
    namespace Item = ResourceIds::Calculation;
    Tests::PrepareAnswer(Item::Dialog, "", Item::Cancel);
    CalculationDialog dialog("5 zona(s) e 40 luminaria(s) Vantoro ligada(s) no(s) pavimento(s) "
                             "dessas zonas.",
                             false, false);
    dialog.Invoke();
    HoldPage(Tests::LastDialog());
}

TEST_F(DialogPage, ShowsTheToolbar) {
    Commands::ShowToolbar();
    HoldPage(Workbench::CurrentSession()
                 .userInterface.open.at(*CurrentAddOnState().toolbar.dialog)
                 .state);
}

} // namespace
} // namespace Merivane
