// The SHA-256 of a file of 100 MB (made here, in the page cache): ours against `sha256sum` and
// `openssl dgst -sha256`, each a process of its own, in turns. Prints the medians and the ratios;
// above 1 ours is faster.
//
//     Sha256Bench          measures
//     Sha256Bench FILE     prints the digest of a file; what is measured as ours

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "Catalog/CatalogFetch.hpp"
#include "Catalog/Sha256.hpp"
#include "Catalog/Sha256Blocks.hpp"

namespace {

using namespace Merivane;

constexpr std::size_t FileSize = 100'000'000; // bytes
constexpr int Turns = 15;

struct Contender {
    std::string name;
    std::string command; // the file's name follows
    std::vector<double> seconds;
};

int PrintDigest(const char* file) {
    const std::filesystem::path path = std::filesystem::absolute(file);
    Catalog::FileDigest digest;
    std::string error;
    if (!Catalog::DigestCatalogFile(path.parent_path().string(), path.filename().string(), digest,
                                    error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    std::printf("%s\n", digest.sha256.c_str());
    return 0;
}

void MakeFile(const std::filesystem::path& path) {
    std::mt19937_64 random(1);
    std::vector<std::uint64_t> words(FileSize / sizeof(std::uint64_t));
    std::generate(words.begin(), words.end(), [&random] { return random(); });
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(words.data()), FileSize);
}

/// What a command prints; the time that it takes goes behind `seconds`.
std::string Measure(const std::string& command, std::vector<double>& seconds) {
    const auto start = std::chrono::steady_clock::now();
    std::FILE* const pipe = ::popen(command.c_str(), "r");
    std::string output;
    for (int c = 0; pipe != nullptr && (c = std::fgetc(pipe)) != EOF;) {
        output += static_cast<char>(c);
    }
    if (pipe == nullptr || ::pclose(pipe) != 0) {
        std::fprintf(stderr, "failed: %s\n", command.c_str());
        std::exit(1);
    }
    seconds.push_back(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    return output;
}

double Median(std::vector<double> seconds) {
    std::sort(seconds.begin(), seconds.end());
    return seconds[seconds.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2) {
        return PrintDigest(argv[1]);
    }
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / "vantoro-sha256-bench";
    MakeFile(file);
    std::vector<Contender> contenders = {
        {"ours", std::string(argv[0]), {}},
        {"sha256sum", "sha256sum", {}},
        {"openssl dgst", "openssl dgst -sha256", {}},
    };
    for (int turn = 0; turn < Turns; ++turn) {
        std::string digest;
        for (Contender& contender : contenders) {
            const std::string told =
                Measure(contender.command + " " + file.string(), contender.seconds);
            digest = digest.empty() ? told.substr(0, 64) : digest;
            if (told.find(digest) == std::string::npos) {
                std::fprintf(stderr, "%s gives another digest\n", contender.name.c_str());
                return 1;
            }
        }
    }
    std::filesystem::remove(file);
    std::printf("SHA-256 of %zu MB, medians of %d turns; this processor's own instructions: %s\n",
                FileSize / 1'000'000, Turns,
                Catalog::ProcessorTakeBlocks() != nullptr ? "used" : "none");
    const double ours = Median(contenders.front().seconds);
    for (const Contender& contender : contenders) {
        const double seconds = Median(contender.seconds);
        std::printf("%-14s %7.1f ms  %6.0f MB/s  %5.2f x\n", contender.name.c_str(), seconds * 1e3,
                    static_cast<double>(FileSize) / 1e6 / seconds, seconds / ours);
    }
    return 0;
}
