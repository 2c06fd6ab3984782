#include "ContractInterface.hpp"

#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/MenuRun.hpp"
#include "Workbench/Project/Project.hpp"
#include "Workbench/Session.hpp"

// The embedded host's side of the contract tests of dialogs and menus.
namespace Merivane::Host {

namespace {

const char* const Resources = R"(
'GDLG' 32110 Modal 0 0 300 200 "Prova" {
    Button 10 170 80 24 LargePlain "OK"
    Button 100 170 80 24 LargePlain "Cancelar"
    LeftText 10 20 80 20 LargePlain vCenter "texto"
    IntEdit 10 40 80 20 LargePlain frame "2" "8"
    RealEdit 10 60 80 20 LargePlain frame "0" "0.5"
    PopupControl 10 80 80 20 200 20
    SingleSelList 100 20 150 60 LargePlain NoPartialItems | VScroll 20 HasFrame
    CheckBox 10 100 80 20 LargePlain "Caixa"
    RadioButton 10 120 80 20 LargePlain 1 "a"
    RadioButton 10 140 80 20 LargePlain 1 "b"
    TextEdit 100 100 80 20 LargePlain frame 31
    GroupBox 190 90 100 60 LargePlain Primary "Grupo"
    IconButton 200 110 26 26 10006 frame SquaredEdge
    Separator 10 160 280 2
    UserItem 250 160 40 30
}
'GDLG' 32111 Palette 0 0 100 40 "Paleta" { Button 5 5 80 24 LargePlain "Sair" }
'STR#' 32112 "menu" { "Menu" "Grupo" "um ^E3" "dois" }
'STR#' 32113 "empty" { })";

} // namespace

void OpenContractInterface() {
    Workbench::SessionOptions options;
    options.resourceScripts = {Resources};
    Workbench::OpenSession(options);
}

void CloseContractInterface() {
    Workbench::OpenSession({});
}

void UserWillDo(std::string_view answers) {
    Workbench::UserInterface& state = Workbench::CurrentSession().userInterface;
    std::string error;
    state.nextAnswer = 0;
    if (!Workbench::ParseAnswerScript(answers, state.answers, error)) {
        state.refusal = error;
    }
}

bool UserHasDoneAll() {
    std::string error;
    return Workbench::AllAnswersUsed(error);
}

std::wstring FileOfTheUser() {
    return Text::WidePath(Tests::SourceFolder() / "CMakeLists.txt");
}

bool ClickByUser(std::int32_t palette, std::int16_t item) {
    std::string error;
    return Workbench::ClickItem(palette, item, error);
}

ErrorCode ChooseByUser(std::int16_t menu, std::int32_t item) {
    return Workbench::ChooseMenuItem(menu, item);
}

void OpenProjectByUser() {
    Workbench::OpenProject(Workbench::MakeEmptyProject());
}

void NewProjectByUser() {
    Workbench::NewProject();
}

ErrorCode TellPalette(const Guid& palette, PaletteMessage message, bool& visible) {
    return Workbench::SendPaletteMessage(palette, message, visible);
}

} // namespace Merivane::Host
