#include "Simulation/Run/FolderLock.hpp"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "Text/Utf8.hpp"

namespace Merivane::Simulation {

LockOutcome LockFile(const std::wstring& path, std::shared_ptr<void>& lock) {
    const int file = ::open(Text::Narrow(path).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) {
        return LockOutcome::Unavailable;
    }
    const std::shared_ptr<void> handle(nullptr, [file](void*) { ::close(file); });
    // A file system without locks says ENOLCK or EOPNOTSUPP; a run there goes on unguarded.
    if (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return LockOutcome::InUse;
    }
    lock = handle;
    return LockOutcome::Held;
}

} // namespace Merivane::Simulation
