#include "Document/Report/ReportFiles.hpp"

#include <utility>

#include "Document/Report/BuildReport.hpp"
#include "Document/Report/ReportHtml.hpp"
#include "Document/Report/ReportPages.hpp"

namespace Merivane::Document {

bool BuildReportFiles(const ReportInput& input, ReportFiles& files, std::string& error) {
    const Report report = BuildReport(input);
    ReportFiles written;
    if (!WriteReportHtml(report, written.html, error) ||
        !Drawing::WritePdfBook(LayOutReport(report), written.pdf, error,
                               Drawing::PdfOptions{input.creationTime})) {
        return false;
    }
    files = std::move(written);
    return true;
}

} // namespace Merivane::Document
