#pragma once

#include "Host/Stories.hpp"

/// What the host under test does for the contract tests, beside its operations: the things that a
/// person does at the screen, and a project to begin with. Each host brings its own definitions.
namespace Merivane::Host {

/// Opens a fresh project with what the names below say, its floor plan in front, story 0 shown,
/// nothing selected and nothing to undo:
///
/// - stories -1, 0 and 1 of 3 m each;
/// - a first layer, and layers free, hidden and locked; some number below the highest is of a
///   layer that was deleted;
/// - a layer combination that shows every layer;
/// - the parts below, each 1.2 m x 0.3 m with the parameters "mvFlux" (real, 3000), "mvName"
///   (string, "prova"), "mvOn" (boolean, 1) and "mvTable" (array of real, 2 x 3, 1 to 6); the other
///   lamp's "mvName" is a real of 0 instead;
/// - on the free layer, in this order: a wall with a window and a door, a column of two segments,
///   and a line that the user has locked; a line on the hidden layer and one on the locked layer;
/// - on story 0 a section, whose window was not in front yet, that shows the wall;
/// - a worksheet of 1:20;
/// - in the View Map a folder with a view of story 1 in it, of that layer combination and 1:50, and
///   behind it a view of the worksheet.
void OpenContractProject();

inline constexpr const char* FreeLayer = "Prova - livre";
inline constexpr const char* HiddenLayerName = "Prova - oculta";
inline constexpr const char* LockedLayerName = "Prova - travada";
inline constexpr const char* LampPart = "Prova - luminária";
inline constexpr const char* OtherLampPart = "Prova - outra luminária";
inline constexpr const char* ObjectPart = "Prova - mesa";
inline constexpr const char* WorksheetName = "Prova - folha";
inline constexpr const char* CombinationName = "Prova - tudo";
inline constexpr const char* ViewFolderName = "Prova - pasta";
inline constexpr const char* PlanViewName = "Prova - vista";

/// Closes the project.
void CloseContractProject();

/// The user undoes or redoes one step; false when there is none.
bool UndoByUser();
bool RedoByUser();

/// The user presses the process window's button.
void CancelByUser();

/// The list of libraries changes.
void ChangeLibrariesByUser();

/// The window of the project's section.
Window ContractSection();

} // namespace Merivane::Host
