#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "Simulation/Run/FolderLock.hpp"
#include "Simulation/Run/RunSteps.hpp"
#include "Text/NativeFile.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Simulation {

namespace {

namespace fs = std::filesystem;

constexpr const char* LockName = "vantoro.lock";

// An empty table of lamps, found before Radiance's own: there, a `[LAMP]` text such as "metal
// halide" would recolour and weaken the luminaire.
constexpr const char* LampTableName = "lamp.tab";

// True for the texts "prefix<number>suffix".
bool IsNumbered(std::string_view name, std::string_view prefix, std::string_view suffix) {
    if (name.size() <= prefix.size() + suffix.size() || !name.starts_with(prefix) ||
        !name.ends_with(suffix)) {
        return false;
    }
    name.remove_prefix(prefix.size());
    name.remove_suffix(suffix.size());
    return std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The names that a run gives its files, and no other: the folder may be the user's own.
bool IsRunFile(std::string_view name) {
    constexpr std::array<std::string_view, 13> names = {
        "materials.rad", "geometry.rad",    "luminaires.rad",   "sensors.pts", "scene.oct",
        "lamp.tab",      "illuminance.txt", "seed.pts",         "seed.txt",    "ambient.amb",
        "points.pts",    "points.txt",      "points_direct.txt"};
    return std::find(names.begin(), names.end(), name) != names.end() ||
           IsNumbered(name, "lum", ".ies") || IsNumbered(name, "lum", ".rad") ||
           IsNumbered(name, "lum", ".dat") || IsNumbered(name, "lum", "%.dat") ||
           IsNumbered(name, "lum", "_placed.rad") || IsNumbered(name, "ambient_", ".amb") ||
           IsNumbered(name, "sensors_", ".pts") || IsNumbered(name, "illuminance_", ".txt");
}

// The programs start in the work folder, where a path relative to this process leads nowhere.
std::wstring AbsolutePath(const std::wstring& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(Text::NativePath(path), error);
    return path.empty() || error ? std::wstring() : Text::WidePath(absolute);
}

bool MakeFolder(const std::wstring& folder) {
    const fs::path path = Text::NativePath(folder);
    std::error_code error;
    fs::create_directories(path, error);
    return fs::is_directory(path, error);
}

} // namespace

void DeleteWorkFiles(const RunContext& run, bool (*chosen)(std::string_view name)) {
    std::error_code error;
    fs::directory_iterator entries(Text::NativePath(run.target.workFolder), error);
    std::vector<std::wstring> doomed; // not while iterating: what is then listed is unspecified
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::wstring name = Text::WidePath(entries->path().filename());
        if (chosen(Text::Narrow(name))) {
            doomed.push_back(name);
        }
    }
    for (const std::wstring& name : doomed) {
        Text::RemoveFile(run.target.workFolder + L"/" + name);
    }
}

bool PrepareWorkFolder(RunContext& run) {
    run.target.workFolder = AbsolutePath(run.options.workFolder);
    if (run.target.workFolder.empty() || !MakeFolder(run.target.workFolder)) {
        return Fail(run, "nao foi possivel criar a pasta de trabalho do calculo");
    }
    run.target.rayPath =
        RayPathOf(run.target.workFolder, AbsolutePath(run.options.radianceLibFolder));
    const LockOutcome outcome = LockFile(WorkFile(run, LockName), run.folderLock);
    if (outcome == LockOutcome::InUse) {
        return Fail(run, "a pasta de trabalho ja esta em uso por outro calculo");
    }
    if (outcome == LockOutcome::Held) {
        DeleteWorkFiles(run, IsRunFile);
    }
    if (outcome == LockOutcome::Unavailable || !WriteWorkFile(run, LampTableName, "")) {
        return Fail(run, "nao foi possivel gravar os arquivos da cena");
    }
    return true;
}

} // namespace Merivane::Simulation
