#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>

#include "Document/Report/ReportFiles.hpp"
#include "ReportSamples.hpp"

namespace Merivane::Document {

namespace {

ReportFiles FilesOf(const ReportInput& input) {
    ReportFiles files;
    std::string error;
    EXPECT_TRUE(BuildReportFiles(input, files, error)) << error;
    return files;
}

} // namespace

TEST(BuildReportFiles, LooksLikeThis) {
    const char* folder = std::getenv("REPORT_FOLDER");
    if (folder == nullptr) {
        GTEST_SKIP();
    }
    const auto save = [&](const std::string& name, const std::string& bytes) {
        std::ofstream(std::string(folder) + "/" + name, std::ios::binary) << bytes;
    };
    const Tests::ReportSample office = Tests::OfficeSample();
    ReportInput input = Tests::InputOf(office);
    for (int i = 0; i < 150; ++i) {
        input.log.push_back("  linha " + std::to_string(i) + ": " + std::string(40, 'x') +
                            std::string(i % 7 == 0 ? 120 : 3, 'y'));
    }
    const ReportFiles files = FilesOf(input);
    save("office.pdf", files.pdf);
    save("office.html", files.html);
    const Tests::ReportSample many = Tests::ManyZones(60);
    const ReportFiles manyFiles = FilesOf(Tests::InputOf(many));
    save("many.pdf", manyFiles.pdf);
    save("many.html", manyFiles.html);
}

} // namespace Merivane::Document
