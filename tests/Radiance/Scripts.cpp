#include "Radiance/Scripts.hpp"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Tests {

namespace {

constexpr std::chrono::milliseconds Pause{5};
constexpr int PausesInFiveSeconds = 1000;

} // namespace

std::wstring WriteScript(const std::filesystem::path& folder, const std::string& name,
                         const std::string& body) {
    const std::filesystem::path path = folder / name;
    WriteBytes(path, "#!/bin/sh\n" + body + "\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return Text::WidePath(path);
}

bool IsRunning(int id) {
    std::ifstream file("/proc/" + std::to_string(id) + "/stat");
    const std::string stat{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // "id (name) state ...", where the name may hold anything.
    const std::size_t name = stat.rfind(") ");
    return name != std::string::npos && stat[name + 2] != 'Z' && stat[name + 2] != 'X';
}

bool HoldsALine(const std::filesystem::path& path) {
    std::ifstream file(path);
    std::string line;
    return std::getline(file, line) && !file.eof();
}

int AwaitNumber(const std::filesystem::path& path) {
    for (int i = 0; i < PausesInFiveSeconds; ++i) {
        if (HoldsALine(path)) {
            return std::atoi(ReadBytes(path).c_str());
        }
        std::this_thread::sleep_for(Pause);
    }
    ADD_FAILURE() << "no number in " << path;
    return -1;
}

bool EndsSoon(int id) {
    for (int i = 0; i < PausesInFiveSeconds && IsRunning(id); ++i) {
        std::this_thread::sleep_for(Pause);
    }
    return !IsRunning(id);
}

} // namespace Merivane::Tests
