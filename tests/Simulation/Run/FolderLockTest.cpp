#include <csignal>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include "Simulation/Run/FolderLock.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

using namespace Merivane::Tests;

TEST(LockFile, LetsOneHolderIn) {
    const TemporaryFolder folder;
    const std::wstring path = Text::WidePath(folder.Path() / "á.lock");
    std::shared_ptr<void> first;
    std::shared_ptr<void> second;
    EXPECT_EQ(LockFile(path, first), LockOutcome::Held);
    EXPECT_EQ(LockFile(path, second), LockOutcome::InUse);
    first.reset();
    EXPECT_EQ(LockFile(path, second), LockOutcome::Held);
}

TEST(LockFile, NeedsAFolderThatIsThere) {
    const TemporaryFolder folder;
    std::shared_ptr<void> lock;
    EXPECT_EQ(LockFile(Text::WidePath(folder.Path() / "nada" / "x.lock"), lock),
              LockOutcome::Unavailable);
    EXPECT_EQ(LockFile(Text::WidePath(folder.Path()), lock), LockOutcome::Unavailable);
}

TEST(LockFile, EndsWithItsProcessHoweverThatEnds) {
    const TemporaryFolder folder;
    const std::wstring path = Text::WidePath(folder.Path() / "x.lock");
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        std::shared_ptr<void> lock;
        const bool held = LockFile(path, lock) == LockOutcome::Held;
        static_cast<void>(!::write(ready[1], held ? "1" : "0", 1));
        ::pause();
        ::_exit(0);
    }
    char held = 0;
    ASSERT_EQ(::read(ready[0], &held, 1), 1);
    EXPECT_EQ(held, '1');
    std::shared_ptr<void> lock;
    EXPECT_EQ(LockFile(path, lock), LockOutcome::InUse);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(LockFile(path, lock), LockOutcome::Held);
    ::close(ready[0]);
    ::close(ready[1]);
}

} // namespace
} // namespace Merivane::Simulation
