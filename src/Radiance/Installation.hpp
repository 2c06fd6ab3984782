#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Merivane::Radiance {

/// Where an installation was found; the values of `Installation::source`.
inline constexpr std::int32_t SourceNone = 0;
inline constexpr std::int32_t SourceAddOn = 1;  ///< the copy inside the add-on's own folder
inline constexpr std::int32_t SourceSystem = 2; ///< a separate installation on the system

/// A usable copy of Radiance, or what is missing of it.
struct Installation {
    bool complete = false; ///< every required tool was found
    std::int32_t source = SourceNone;
    std::wstring binFolder; ///< folder of the tools; empty when nothing was found
    std::wstring libFolder; ///< folder `lib` beside it, for RAYPATH; empty when there is none
    std::vector<std::string> missingTools;     ///< required tools not found in `binFolder`
    std::vector<std::wstring> searchedFolders; ///< each candidate looked at, in order
    std::string version; ///< first line of `rtrace -version`; empty when unknown
};

/// A folder that may hold the tools.
struct BinFolderCandidate {
    std::wstring folder;
    std::int32_t source = SourceSystem;

    bool operator==(const BinFolderCandidate&) const = default;
};

/// The programs that a calculation needs: "ies2rad", "xform", "oconv", "rtrace".
const std::vector<std::string>& RequiredTools();

/// Full path of a tool in `binFolder`, with the system's ending for executables.
std::wstring ToolPath(const std::wstring& binFolder, const std::string& tool);

/// The folders to look at, first choice first: "Vantoro Radiance/bin" in `addOnFolder` (left out
/// when that is empty), "bin" in the environment's RADIANCE, the system's usual places, PATH.
std::vector<BinFolderCandidate> CandidateBinFolders(const std::wstring& addOnFolder);

/// Looks for Radiance anew: the first candidate that holds `rtrace` is the installation, whether
/// or not the other tools stand beside it. Asks that `rtrace` for its version, for at most 10 s.
/// With no candidate `complete` is false and only `searchedFolders` is filled.
Installation FindInstallation(const std::wstring& addOnFolder);

} // namespace Merivane::Radiance
