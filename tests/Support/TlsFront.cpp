#include "Support/TlsFront.hpp"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "Support/Places.hpp"

namespace Merivane::Tests {

Certificate MakeCertificate(const std::filesystem::path& folder, const std::string& names,
                            int days) {
    Certificate made{folder / "certificado.pem", folder / "chave.pem"};
    // Only the second call takes a negative number of days.
    const std::string command =
        "cd '" + folder.string() +
        "' && exec 2>openssl.txt && openssl req -x509 -newkey ec "
        "-pkeyopt ec_paramgen_curve:prime256v1 -nodes -subj /CN=teste -addext 'subjectAltName=" +
        names + "' -keyout chave.pem -out primeiro.pem && openssl x509 -in primeiro.pem " +
        "-signkey chave.pem -days " + std::to_string(days) + " -out certificado.pem";
    EXPECT_EQ(std::system(command.c_str()), 0) << ReadBytes(folder / "openssl.txt");
    return made;
}

TlsFront::TlsFront(const Certificate& certificate, int plainPort) {
    std::array<int, 2> toChild = {-1, -1};
    std::array<int, 2> fromChild = {-1, -1};
    EXPECT_EQ(::pipe2(toChild.data(), O_CLOEXEC), 0);
    EXPECT_EQ(::pipe2(fromChild.data(), O_CLOEXEC), 0);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, toChild[0], STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, fromChild[1], STDOUT_FILENO);
    std::vector<std::string> words = {
        "python3", (SourceFolder() / "tests/Support/TlsFront.py").string(),
        certificate.certificate.string(), certificate.key.string(), std::to_string(plainPort)};
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    EXPECT_EQ(::posix_spawnp(&process, "python3", &actions, nullptr, arguments.data(), ::environ),
              0);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(toChild[0]);
    ::close(fromChild[1]);
    input = toChild[1];
    std::FILE* output = ::fdopen(fromChild[0], "r");
    EXPECT_EQ(std::fscanf(output, "%d", &port), 1);
    std::fclose(output);
}

TlsFront::~TlsFront() {
    ::close(input);
    ::waitpid(process, nullptr, 0);
}

} // namespace Merivane::Tests
