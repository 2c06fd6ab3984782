#include <unordered_map>

#include "Photometry/IesWriter.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Radiance/LuminaireSource.hpp"
#include "Radiance/RtraceShares.hpp"
#include "Simulation/Run/RunSteps.hpp"

namespace Merivane::Simulation {

namespace {

// Name of the converted source for each distinct text of photometry and arguments.
using Conversions = std::unordered_map<std::string, std::string>;

// `TILT=` with a file name: the factors stand in a file that nobody has read.
constexpr int TiltInFile = 2;

// A tool that ends well has not always written: an object must stand in the file, not a header
// alone, and its last line must be whole.
bool HoldsSource(const RunContext& run, const std::string& file) {
    std::string text;
    if (!ReadWorkFile(run, file, text) || !text.ends_with('\n')) {
        return false;
    }
    for (const std::string_view line : Radiance::NonEmptyLines(text)) {
        if (!line.starts_with('#')) {
            return true;
        }
    }
    return false;
}

// Runs a tool that writes the source `product`; a failure names the luminaire.
bool MakeSource(RunContext& run, const SceneLuminaire& luminaire, const std::string& tool,
                const std::vector<std::string>& arguments, const std::string& stdoutName,
                const std::string& product) {
    std::string error;
    if (!RunRadianceTool(run.target, tool, arguments, "", stdoutName, error)) {
        return Fail(run, luminaire.displayName + ": " + error);
    }
    if (!HoldsSource(run, product)) {
        return Fail(run, luminaire.displayName + ": " + tool + " nao gerou a fonte " + product);
    }
    return true;
}

bool CheckTilt(RunContext& run, const SceneLuminaire& luminaire) {
    if (luminaire.photometry.tiltMode != TiltInFile) {
        return true;
    }
    const std::string& file = luminaire.contract.iesFileName;
    return Fail(run, luminaire.displayName + ": o arquivo IES" + (file.empty() ? "" : " " + file) +
                         " aponta para um TILT externo (" + luminaire.photometry.tiltFile +
                         "), que nao e lido");
}

// The photometry as `ies2rad` gets it; `warning` tells of an opening that had to be changed.
std::string SourceText(const SceneLuminaire& luminaire, std::string& warning) {
    const Photometry::IesFile scaled = Radiance::ScaledPhotometry(luminaire);
    return Photometry::WriteIes(Photometry::WithKnownOpening(scaled, warning));
}

std::string ConversionKey(const SceneLuminaire& luminaire, const std::string& iesText) {
    std::string key = iesText;
    for (const std::string& argument : Radiance::Ies2RadArguments(luminaire, "x")) {
        key += argument + "\n";
    }
    return key;
}

// Converts the luminaire's photometry to `name`.rad, or finds the name of an equal one.
bool ConvertPhotometry(RunContext& run, const SceneLuminaire& luminaire, const std::string& name,
                       Conversions& conversions, std::string& converted) {
    std::string warning;
    const std::string iesText = SourceText(luminaire, warning);
    const auto [entry, isNew] = conversions.emplace(ConversionKey(luminaire, iesText), name);
    converted = entry->second;
    if (!isNew) {
        return true;
    }
    if (!warning.empty()) {
        Log(run, luminaire.displayName + ": " + warning);
    }
    if (!WriteWorkFile(run, name + ".ies", iesText)) {
        return Fail(run, "nao foi possivel gravar o IES de " + luminaire.displayName);
    }
    return MakeSource(run, luminaire, "ies2rad", Radiance::Ies2RadArguments(luminaire, name), "",
                      name + ".rad");
}

bool PlaceLuminaire(RunContext& run, const SceneLuminaire& luminaire, const std::string& name,
                    Conversions& conversions) {
    std::string converted;
    if (!CheckTilt(run, luminaire) ||
        !ConvertPhotometry(run, luminaire, name, conversions, converted)) {
        return false;
    }
    const std::string placed = name + "_placed.rad";
    run.placedFiles.push_back(placed);
    return MakeSource(run, luminaire, "xform",
                      Radiance::XformArguments(luminaire, converted + ".rad"), placed, placed);
}

} // namespace

bool PlaceLuminaires(RunContext& run) {
    const std::vector<SceneLuminaire>& luminaires = run.scene.luminaires;
    Conversions conversions;
    for (std::size_t i = 0; i < luminaires.size(); ++i) {
        ReportProgress(run, SimulationStage::Preparing,
                       static_cast<double>(i) / static_cast<double>(luminaires.size() + 1));
        if (!PlaceLuminaire(run, luminaires[i], "lum" + std::to_string(i + 1), conversions)) {
            return false;
        }
    }
    Log(run,
        std::to_string(run.placedFiles.size()) + " luminaria(s) convertida(s) e posicionada(s)");
    return true;
}

} // namespace Merivane::Simulation
