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

bool Holds(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

} // namespace

TEST(BuildReportFiles, GivesTheSameBytesTwice) {
    const ReportFiles first = FilesOf(Tests::InputOf(Tests::OfficeSample()));
    const Tests::ReportSample again = Tests::OfficeSample();
    const ReportFiles second = FilesOf(Tests::InputOf(again));
    EXPECT_TRUE(first.html == second.html);
    EXPECT_TRUE(first.pdf == second.pdf);
}

TEST(BuildReportFiles, TellsTheTimeThatItIsGiven) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportFiles files = FilesOf(Tests::InputOf(office));
    EXPECT_TRUE(Holds(files.pdf, "20261120201500Z"));
    EXPECT_TRUE(Holds(files.html, "21/11/2026 20:15"));
}

TEST(BuildReportFiles, WritesAWholePdfWithItsOutline) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const std::string pdf = FilesOf(Tests::InputOf(office)).pdf;
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_EQ(pdf.substr(pdf.size() - 6), "%%EOF\n");
    EXPECT_TRUE(Holds(pdf, "/Outlines"));
    EXPECT_TRUE(Holds(pdf, "+DejaVuSansMono"));
}

TEST(BuildReportFiles, CarriesNamesThatWouldBeMarkUp) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const std::string html = FilesOf(Tests::InputOf(office)).html;
    EXPECT_TRUE(Holds(html, "Madeira &lt;carvalho&gt; &amp; verniz"));
    EXPECT_FALSE(Holds(html, "<carvalho>"));
}

TEST(BuildReportFiles, TellsSixtyZones) {
    const Tests::ReportSample many = Tests::ManyZones(60);
    const ReportFiles files = FilesOf(Tests::InputOf(many));
    EXPECT_TRUE(Holds(files.html, "60 Zonas não atendem"));
    EXPECT_TRUE(Holds(files.html, ">Sala 60</h3>"));
    EXPECT_LT(files.pdf.size(), 3'000'000U);
}

TEST(BuildReportFiles, RefusesAPictureThatCanNotBeDrawn) {
    const Tests::ReportSample office = Tests::OfficeSample();
    ReportInput input = Tests::InputOf(office);
    input.pictures = {{"Planta", {"", 0, 10, {}}}};
    ReportFiles files{"antes", "antes"};
    std::string error;
    EXPECT_FALSE(BuildReportFiles(input, files, error));
    EXPECT_EQ(error, "A folha do desenho precisa de largura e altura acima de 0 e de até 5000 mm.");
    EXPECT_EQ(files.html, "antes");
    EXPECT_EQ(files.pdf, "antes");
}

} // namespace Merivane::Document
