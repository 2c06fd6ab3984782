#include <cstdlib>

#include <gtest/gtest.h>

#include "Drawing/PdfWriter.hpp"

namespace Merivane::Drawing {
namespace {

std::string Pdf(const DisplayList& list, const PdfOptions& options = {}) {
    std::string bytes;
    std::string error;
    EXPECT_TRUE(WritePdf(list, bytes, error, options)) << error;
    return bytes;
}

std::size_t Count(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos;
         at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

DisplayList Sample() {
    TextRun text;
    text.text = "Iluminância";
    text.position = {20, 20};
    text.halo = 0.3;
    return {"Título", 297, 210, {{"A", {text, Arc{{50, 50}, 10, 0, 1, {}}, Polyline{}}}}};
}

TEST(WritePdf, HasOnePageOfTheRealSize) {
    const std::string pdf = Pdf(Sample());
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_EQ(Count(pdf, "/Type /Page\n") + Count(pdf, "/Type /Page "), 1U);
    EXPECT_EQ(Count(pdf, "/Count 1"), 1U);
    EXPECT_EQ(Count(pdf, "/MediaBox [ 0 0 841.889764 595.275591 ]"), 1U); // A4
}

TEST(WritePdf, AnEmptyListIsAPage) {
    EXPECT_EQ(Count(Pdf({"", 100, 100, {}}), "/Count 1"), 1U);
}

TEST(WritePdf, RepeatsByteForByte) {
    EXPECT_EQ(Pdf(Sample()), Pdf(Sample()));
}

TEST(WritePdf, EmbedsTheFont) {
    EXPECT_GE(Count(Pdf(Sample()), "+DejaVuSans"), 1U);
}

TEST(WritePdf, TellsTheTimeItIsGivenAndNeverTheClock) {
    unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_EQ(Count(Pdf(Sample()), "20000101000000Z"), 1U);
    EXPECT_EQ(Count(Pdf(Sample(), {1709210096}), "20240229123456Z"), 1U);

    struct Case {
        std::string variable;
        std::string date;
    };
    const Case cases[] = {
        {"1709210096", "20240229123456"}, {"0", "19700101000000"}, {"-1", "20000101000000"},
        {"amanhã", "20000101000000"},     {"", "20000101000000"},  {"1e99", "20000101000000"},
    };
    for (const Case& c : cases) {
        setenv("SOURCE_DATE_EPOCH", c.variable.c_str(), 1);
        EXPECT_EQ(Count(Pdf(Sample()), c.date + "Z"), 1U) << c.variable;
    }
    unsetenv("SOURCE_DATE_EPOCH");
}

TEST(WritePdf, RefusesAPageWithoutSize) {
    std::string bytes = "antes";
    std::string error;
    EXPECT_FALSE(WritePdf({"", 0, 10, {}}, bytes, error));
    EXPECT_EQ(error, "A folha do desenho precisa de largura e altura acima de 0 e de até 5000 mm.");
    EXPECT_EQ(bytes, "antes");
}

TEST(WritePdfBook, GivesEachPageItsOwnSizeAndAnOutline) {
    PdfBook book{"Livro", {Sample(), {"", 210, 297, {}}}, {}};
    book.bookmarks = {{"Capítulo", 0, false}, {"Seção", 1, true}, {"Fim", 1, false}};
    std::string pdf;
    std::string error;
    ASSERT_TRUE(WritePdfBook(book, pdf, error)) << error;
    EXPECT_EQ(Count(pdf, "/Count 2"), 1U);
    EXPECT_EQ(Count(pdf, "/MediaBox [ 0 0 841.889764 595.275591 ]"), 1U);
    EXPECT_EQ(Count(pdf, "/MediaBox [ 0 0 595.275591 841.889764 ]"), 1U);
    EXPECT_GE(Count(pdf, "/Outlines"), 1U);
    EXPECT_EQ(Count(pdf, "(Fim)"), 1U);
}

TEST(WritePdfBook, RefusesABookWithoutPagesAndOneWithAPageWithoutSize) {
    std::string bytes = "antes";
    std::string error;
    EXPECT_FALSE(WritePdfBook({"Livro", {}, {}}, bytes, error));
    EXPECT_EQ(error, "O documento precisa de pelo menos uma folha.");
    EXPECT_FALSE(WritePdfBook({"Livro", {Sample(), {"", 0, 10, {}}}, {}}, bytes, error));
    EXPECT_EQ(error, "A folha do desenho precisa de largura e altura acima de 0 e de até 5000 mm.");
    EXPECT_EQ(bytes, "antes");
}

} // namespace
} // namespace Merivane::Drawing
