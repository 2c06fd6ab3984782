#include "FieldFiles.hpp"

#include <sstream>

#include <gtest/gtest.h>

#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

using Photometry::IesFile;

IesFile ChosenFile(const std::string& bytes) {
    IesFile file;
    EXPECT_TRUE(Photometry::ReadIes(bytes, file).ok);
    for (auto& [key, value] : file.keywords) {
        value = Photometry::NormaliseIesText(value);
    }
    for (std::string& line : file.otherLines) {
        line = Photometry::NormaliseIesText(line);
    }
    return file;
}

} // namespace

std::map<std::string, IesFile> ReadFieldFiles() {
    std::map<std::string, IesFile> files;
    const auto folder = FieldDataFolder();
    if (folder.empty()) {
        return files;
    }
    std::istringstream index(ReadBytes(folder / "ies" / "index.tsv"));
    std::string row;
    std::getline(index, row);
    while (std::getline(index, row)) {
        const std::string name = row.substr(0, row.find('\t'));
        files[name] = ChosenFile(ReadBytes(folder / "ies" / name));
    }
    EXPECT_EQ(files.size(), 71U);
    return files;
}

std::vector<std::pair<std::string, std::string>> KeywordsOfContract(const IesFile& file) {
    auto keywords = file.keywords;
    for (const std::string& line : file.otherLines) {
        keywords.emplace_back("OTHER", line);
    }
    return keywords;
}

} // namespace Merivane::Tests
