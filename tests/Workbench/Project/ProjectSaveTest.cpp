#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>
#if defined(__linux__)
#include <sys/ptrace.h>
#include <sys/syscall.h>
#endif

#include "RandomProject.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

std::wstring Wide(const std::filesystem::path& path) {
    return Text::WidePath(path);
}

std::string SaveError(const std::filesystem::path& path, const Project& project) {
    std::string error;
    return SaveProject(Wide(path), project, error) ? "" : error;
}

std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST(SaveProject, WritesWhatIsReadBackAndNothingBeside) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "açougue.vantoro";
    const Project project = MakeRandomProject(3);
    EXPECT_EQ(SaveError(path, project), "");
    EXPECT_EQ(ReadBytes(path), WriteProject(project));
    Project back;
    std::string error;
    EXPECT_TRUE(ReadProject(Wide(path), back, error)) << error;
    EXPECT_EQ(SaveError(path, back), "");
    EXPECT_EQ(ReadBytes(path), WriteProject(project));
    EXPECT_EQ(FilesIn(folder.Path()), (std::vector<std::string>{"açougue.vantoro"}));
}

TEST(SaveProject, RefusesAProjectThatCouldNotBeReadBack) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "a.vantoro";
    ASSERT_EQ(SaveError(path, MakeEmptyProject()), "");
    const std::string old = ReadBytes(path);
    Project project = MakeEmptyProject();
    project.stories[0].height = std::nan("");
    EXPECT_EQ(SaveError(path, project), "o projeto não foi gravado em \"" + path.string() +
                                            "\": pavimentos[0].altura: espera-se um número de 0 a "
                                            "1000000000, mas há null");
    EXPECT_EQ(ReadBytes(path), old);
    EXPECT_EQ(FilesIn(folder.Path()).size(), 1U);
}

TEST(SaveProject, WritesOverNothingButAProjectThatItUnderstands) {
    struct Case {
        std::string present;
        std::string reason;
    };
    const Case cases[] = {
        {"uma carta", "não é um documento JSON: valor inesperado (byte 0)"},
        {"", "o arquivo está vazio"},
        {"{\"formato\": 2}", "formato: o projeto é do formato 2, mais novo que o formato 1, o "
                             "último que este programa entende"},
        {"{\"nome\": \"cena\"}", "documento: falta a chave \"formato\""},
    };
    for (const Case& c : cases) {
        const TemporaryFolder folder;
        const auto path = folder.Path() / "a.vantoro";
        WriteBytes(path, c.present);
        EXPECT_EQ(SaveError(path, MakeEmptyProject()),
                  "o projeto não foi gravado em \"" + path.string() +
                      "\": o que está lá não é um projeto que este programa entenda: " + c.reason);
        EXPECT_EQ(ReadBytes(path), c.present);
    }
}

TEST(SaveProject, SaysWhenTheDiskRefuses) {
    const TemporaryFolder folder;
    const auto missing = folder.Path() / "nada" / "a.vantoro";
    EXPECT_EQ(SaveError(missing, MakeEmptyProject()),
              "o projeto não foi gravado em \"" + missing.string() + "\": o disco o recusou");
    EXPECT_EQ(SaveError(folder.Path(), MakeEmptyProject()),
              "o projeto não foi gravado em \"" + folder.Path().string() +
                  "\": não se pode ler o que está lá");
}

TEST(SaveProject, KeepsALinkAndWritesTheFileThatItLeadsTo) {
    const TemporaryFolder folder;
    const auto real = folder.Path() / "real.vantoro";
    const auto link = folder.Path() / "link.vantoro";
    ASSERT_EQ(SaveError(real, MakeEmptyProject()), "");
    std::filesystem::create_symlink(real, link);
    const Project project = MakeRandomProject(5);
    EXPECT_EQ(SaveError(link, project), "");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadBytes(real), WriteProject(project));
}

#if defined(__linux__)

namespace {

/// Whether a stopped process asks for memory, as one call does or does not, whatever it writes.
/// `entered` is the answer at the entry of a call, which holds for its end too.
bool AsksForMemory(pid_t process, bool& entered) {
    __ptrace_syscall_info info = {};
    EXPECT_GT(::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info), 0);
    if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
        const auto call = static_cast<long>(info.entry.nr);
        entered = call == SYS_mmap || call == SYS_munmap || call == SYS_brk || call == SYS_madvise;
    }
    return entered;
}

/// Saves in a process of its own, which is killed with -9 when it enters or leaves its `nth` call
/// of the system (from 1), those for memory not counted. Returns false when it ended by itself
/// before that.
bool SaveAndKill(const std::wstring& path, const Project& project, int nth) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        std::string error;
        ::_exit(SaveProject(path, project, error) ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    // Without it calls can't be told from signals.
    EXPECT_EQ(::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD), 0);
    bool memory = false;
    for (int call = 0; call < nth;) {
        EXPECT_EQ(::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr), 0);
        ::waitpid(child, &status, 0);
        if (WIFEXITED(status)) {
            EXPECT_EQ(WEXITSTATUS(status), 0);
            return false;
        }
        EXPECT_TRUE(WIFSTOPPED(status)) << status;
        call += AsksForMemory(child, memory) ? 0 : 1;
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    return true;
}

/// Makes all files of a folder a quarter of an hour old.
void AgeFiles(const std::filesystem::path& folder) {
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        const auto age = std::filesystem::file_time_type::clock::now() - std::chrono::minutes(15);
        std::filesystem::last_write_time(file.path(), age);
    }
}

} // namespace

TEST(SaveProject, KilledAtAnyCallOfTheSystemLeavesTheOldFileOrTheNew) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "a.vantoro";
    const Project older = MakeRandomProject(1);
    const Project newer = MakeRandomProject(2);
    const std::string oldBytes = WriteProject(older);
    const std::string newBytes = WriteProject(newer);
    int kept = 0;
    int replaced = 0;
    bool killed = true;
    for (int nth = 1; killed; ++nth) {
        ASSERT_LT(nth, 100000);
        ASSERT_EQ(SaveError(path, older), "");
        killed = SaveAndKill(Wide(path), newer, nth);
        const std::string bytes = ReadBytes(path);
        ASSERT_TRUE(bytes == oldBytes || bytes == newBytes) << "call " << nth;
        (bytes == oldBytes ? kept : replaced) += 1;
        ASSERT_LE(FilesIn(folder.Path()).size(), 2U) << "call " << nth;
        AgeFiles(folder.Path()); // what is left goes with the next save
    }
    // Some calls write, one renames, and the last round ends by itself.
    EXPECT_GT(kept, 5);
    EXPECT_GE(replaced, 2);
    EXPECT_EQ(SaveError(path, older), "");
    EXPECT_EQ(FilesIn(folder.Path()), (std::vector<std::string>{"a.vantoro"}));
}

TEST(SaveProject, KilledAsItMakesAFileLeavesNoneOrAWholeOne) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "a.vantoro";
    const Project project = MakeRandomProject(2);
    const std::string bytes = WriteProject(project);
    bool killed = true;
    for (int nth = 1; killed; ++nth) {
        ASSERT_LT(nth, 100000);
        killed = SaveAndKill(Wide(path), project, nth);
        if (std::filesystem::exists(path)) {
            ASSERT_EQ(ReadBytes(path), bytes) << "call " << nth;
        }
        ASSERT_LE(FilesIn(folder.Path()).size(), 2U) << "call " << nth;
        for (const std::string& name : FilesIn(folder.Path())) {
            std::filesystem::remove(folder.Path() / name);
        }
    }
}

#endif

} // namespace Merivane::Workbench
