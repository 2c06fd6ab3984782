#pragma once

#include <memory>
#include <string>

namespace Merivane::Simulation {

/// How asking for a lock ended.
enum class LockOutcome {
    Held,        ///< the file is ours until `lock` is let go of
    InUse,       ///< another holder has it
    Unavailable, ///< the file can't be made or opened
};

/// Locks the file at `path`, made when missing, without waiting. The lock ends with the last copy
/// of `lock` and at the latest with this process, however it ends; child processes don't inherit
/// it. The file itself stays: deleting it would let two holders in.
LockOutcome LockFile(const std::wstring& path, std::shared_ptr<void>& lock);

} // namespace Merivane::Simulation
