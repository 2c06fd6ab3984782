#include "Simulation/Run/FolderLock.hpp"

#include <windows.h>

namespace Merivane::Simulation {

LockOutcome LockFile(const std::wstring& path, std::shared_ptr<void>& lock) {
    // No sharing at all: while this handle lives nobody else opens the file.
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return ::GetLastError() == ERROR_SHARING_VIOLATION ? LockOutcome::InUse
                                                           : LockOutcome::Unavailable;
    }
    lock = std::shared_ptr<void>(file, [](void* handle) { ::CloseHandle(handle); });
    return LockOutcome::Held;
}

} // namespace Merivane::Simulation
