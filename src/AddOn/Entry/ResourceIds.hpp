#pragma once

#include <cstdint>

/// Numbers of the add-on's resources and of the items in its dialogs, as the folder `resources` has
/// them. Menus are numbered in the table of menus, buttons of the toolbar in its own table.
namespace Merivane::ResourceIds {

/// Name of the add-on and what it does, strings of one list.
inline constexpr std::int16_t AddOnStrings = 32000;
inline constexpr std::int16_t NameString = 1;
inline constexpr std::int16_t DescriptionString = 2;

/// The product's mark in its light form.
inline constexpr std::int16_t LightMarkIcon = 10203;

/// The toolbar palette.
inline constexpr std::int16_t Toolbar = 32750;

namespace AddIes {
inline constexpr std::int16_t Dialog = 32600;
inline constexpr std::int16_t Accept = 1;
inline constexpr std::int16_t Cancel = 2;
inline constexpr std::int16_t SourceName = 4;
inline constexpr std::int16_t ObjectInfo = 5;
inline constexpr std::int16_t FileName = 7;
inline constexpr std::int16_t Identity = 8;
inline constexpr std::int16_t Flux = 9;
inline constexpr std::int16_t Table = 10;
inline constexpr std::int16_t FrontTitle = 11;
inline constexpr std::int16_t FrontView = 12;
inline constexpr std::int16_t SideTitle = 13;
inline constexpr std::int16_t SideView = 14;
inline constexpr std::int16_t PlanTitle = 15;
inline constexpr std::int16_t PlanView = 16;
inline constexpr std::int16_t Catalog = 19;
inline constexpr std::int16_t Luminaire = 21;
inline constexpr std::int16_t Lamp = 23;
inline constexpr std::int16_t ColourRendering = 25;
inline constexpr std::int16_t PartName = 27;
inline constexpr std::int16_t MaintenanceFactor = 29;
inline constexpr std::int16_t CenterX = 32;
inline constexpr std::int16_t CenterY = 34;
inline constexpr std::int16_t CenterZ = 36;
inline constexpr std::int16_t LowerFace = 37;
inline constexpr std::int16_t Middle = 38;
inline constexpr std::int16_t UpperFace = 39;
inline constexpr std::int16_t Hint = 40;
inline constexpr std::int16_t C0Rotation = 43;
inline constexpr std::int16_t TiltAngle = 45;
inline constexpr std::int16_t TiltDirection = 47;
inline constexpr std::int16_t Legend = 48;
} // namespace AddIes

namespace Calculation {
inline constexpr std::int16_t Dialog = 32620;
inline constexpr std::int16_t Accept = 1;
inline constexpr std::int16_t Cancel = 2;
inline constexpr std::int16_t Summary = 3;
inline constexpr std::int16_t WorkPlaneHeight = 6;
inline constexpr std::int16_t WallOffset = 8;
inline constexpr std::int16_t BorderBand = 10;
inline constexpr std::int16_t ReviewReflectances = 12;
inline constexpr std::int16_t ColouredReflection = 13;
inline constexpr std::int16_t OpenEngine = 14;
inline constexpr std::int16_t EngineSummary = 15;
inline constexpr std::int16_t Verify = 17;
inline constexpr std::int16_t PlaneFacesViewer = 18;
inline constexpr std::int16_t Surfaces = 19;
inline constexpr std::int16_t Ugr = 20;
inline constexpr std::int16_t Fills = 22;
inline constexpr std::int16_t Model3D = 23;
inline constexpr std::int16_t ColorScale = 25;
inline constexpr std::int16_t Legend = 26;
inline constexpr std::int16_t Curves = 27;
inline constexpr std::int16_t CurveLabels = 28;
inline constexpr std::int16_t Values = 29;
inline constexpr std::int16_t ValueSpacing = 31;
inline constexpr std::int16_t Levels = 33;
inline constexpr std::int16_t LevelsNote = 34;
} // namespace Calculation

namespace Engine {
inline constexpr std::int16_t Dialog = 32650;
inline constexpr std::int16_t AdvancedBox = 2;
inline constexpr std::int16_t Profile = 4;
inline constexpr std::int16_t Description = 5;
inline constexpr std::int16_t TimeLine = 6;
inline constexpr std::int16_t ShowAdvanced = 7;
inline constexpr std::int16_t FirstAdvanced = 8;
inline constexpr std::int16_t Bounces = 9;
inline constexpr std::int16_t Divisions = 12;
inline constexpr std::int16_t Supersamples = 15;
inline constexpr std::int16_t Resolution = 18;
inline constexpr std::int16_t Accuracy = 21;
inline constexpr std::int16_t LimitWeight = 24;
inline constexpr std::int16_t MaxProcesses = 27;
inline constexpr std::int16_t LastAdvanced = 28;
inline constexpr std::int16_t Warnings = 29;
inline constexpr std::int16_t BackToProfile = 30;
inline constexpr std::int16_t Accept = 31;
inline constexpr std::int16_t Cancel = 32;
} // namespace Engine

namespace RadianceCheck {
inline constexpr std::int16_t Dialog = 32760;
inline constexpr std::int16_t Close = 1;
inline constexpr std::int16_t Verdict = 2;
inline constexpr std::int16_t InstallationBox = 4;
inline constexpr std::int16_t ToolsBox = 6;
inline constexpr std::int16_t TestBox = 8;
inline constexpr std::int16_t TestAgain = 9;
inline constexpr std::int16_t OpenFolder = 10;
} // namespace RadianceCheck

namespace Reflectance {
inline constexpr std::int16_t Dialog = 32630;
inline constexpr std::int16_t Accept = 1;
inline constexpr std::int16_t Cancel = 2;
inline constexpr std::int16_t Head = 3;
inline constexpr std::int16_t Surfaces = 4;
inline constexpr std::int16_t Name = 5;
inline constexpr std::int16_t Used = 7;
inline constexpr std::int16_t UseEstimate = 8;
inline constexpr std::int16_t Glass = 9;
inline constexpr std::int16_t Transmittance = 11;
inline constexpr std::int16_t Inside = 13;
inline constexpr std::int16_t Outside = 15;
inline constexpr std::int16_t Explanation = 16;
inline constexpr std::int16_t GlassNote = 17;
inline constexpr std::int16_t Remember = 18;
} // namespace Reflectance

namespace ZoneRequirement {
inline constexpr std::int16_t Dialog = 32640;
inline constexpr std::int16_t Accept = 1;
inline constexpr std::int16_t Cancel = 2;
inline constexpr std::int16_t Standard = 4;
inline constexpr std::int16_t Zones = 5;
inline constexpr std::int16_t Section = 7;
inline constexpr std::int16_t Activity = 8;
inline constexpr std::int16_t Illuminance = 10;
inline constexpr std::int16_t Uniformity = 12;
inline constexpr std::int16_t Screens = 14;
inline constexpr std::int16_t UseForAll = 15;
inline constexpr std::int16_t Note = 16;
inline constexpr std::int16_t Explanation = 17;
} // namespace ZoneRequirement

} // namespace Merivane::ResourceIds
