#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Host/Menus.hpp"

/// What a person and the host itself do in the contract tests of dialogs and menus. Each host
/// brings its own definitions.
namespace Merivane::Host {

/// Opens a fresh host in its light interface that has these resources beside the add-on's own:
///
/// - dialog `ContractDialog`, 300 x 200, "Prova": 1 button "OK", 2 button "Cancelar", 3 static text
///   "texto" at 10, 20, 4 whole number field from 2 to 8, 5 number field from 0 to 0.5, 6 empty
///   pop-up, 7 list with one choice, 8 check box "Caixa", 9 and 10 radio buttons of one group,
///   11 text field, 12 group box "Grupo", 13 icon button with icon 10006, 14 separator,
///   15 user item of 40 x 30;
/// - palette `ContractPalette`, "Paleta", with one button "Sair";
/// - string list `ContractMenu`: "Menu", "Grupo", "um ^E3", "dois";
/// - string list `ContractEmptyList` without strings.
void OpenContractInterface();
void CloseContractInterface();

inline constexpr std::int16_t ContractDialog = 32110;
inline constexpr std::int16_t ContractPalette = 32111;
inline constexpr std::int16_t ContractMenu = 32112;
inline constexpr std::int16_t ContractEmptyList = 32113;
inline constexpr std::int16_t NoSuchResource = 32119;

/// What the user does in the dialogs that open from now on, in the form of an answer script.
void UserWillDo(std::string_view answers);

/// True when all of it was done.
bool UserHasDoneAll();

/// An existing file of the user's that ends in ".txt".
std::wstring FileOfTheUser();

/// The user clicks on an item of a palette.
bool ClickByUser(std::int32_t palette, std::int16_t item);

/// The user chooses an item of a registered menu, from 1; gives the handler's answer.
ErrorCode ChooseByUser(std::int16_t menu, std::int32_t item);

/// The user opens or makes a project.
void OpenProjectByUser();
void NewProjectByUser();

/// The host speaks to a registered palette; `visible` takes its answer.
ErrorCode TellPalette(const Guid& palette, PaletteMessage message, bool& visible);

} // namespace Merivane::Host
