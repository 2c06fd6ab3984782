#pragma once

#include <string>
#include <variant>
#include <vector>

#include "Drawing/DisplayList.hpp"

/// A report between its data and its forms: what it says and in which order, without a word on
/// pages or mark-up. All texts are UTF-8 as the reader sees them.
namespace Merivane::Document {

/// What a text means, which its colour tells.
enum class ReportTone { Plain, Muted, Met, NotMet, NoData };

/// A heading within a section.
struct ReportHeading {
    std::string text;
    bool listed = false; ///< of a part that the table of contents names; otherwise smaller
};

/// A paragraph; notes are small and grey.
struct ReportParagraph {
    std::string text;
    bool note = false;
};

/// Labels with their values, one a line.
struct ReportFact {
    std::string label;
    std::string value;
    ReportTone tone = ReportTone::Plain;
};
struct ReportFacts {
    std::vector<ReportFact> facts;
};

/// One column of a table.
struct ReportColumn {
    std::string head;
    double share = 1.0;   ///< of the table's width, against those of the others
    bool numbers = false; ///< set flush right
};

/// One cell of a table.
struct ReportCell {
    std::string text;
    ReportTone tone = ReportTone::Plain;
    bool bold = false;
};

/// A row has a cell for each column, or a single one: the heading of the rows below it.
using ReportRow = std::vector<ReportCell>;

/// A table, whose head is repeated where it goes over a page.
struct ReportTable {
    std::vector<ReportColumn> columns;
    std::vector<ReportRow> rows;
};

/// A drawing with the name that stands beside it.
struct ReportDrawing {
    std::string name;
    Drawing::DisplayList drawing;
};

/// Lines of a record as they were written, in letters of one width.
struct ReportListing {
    std::vector<std::string> lines;
};

using ReportBlock = std::variant<ReportHeading, ReportParagraph, ReportFacts, ReportTable,
                                 ReportDrawing, ReportListing>;

/// One section; its drawings stand on sheets of their own.
struct ReportSection {
    std::string title;
    std::vector<ReportBlock> blocks;
};

/// A whole report.
struct Report {
    std::string title;              ///< of the kind of document
    std::string subject;            ///< the project
    std::string moment;             ///< may be empty
    std::string origin;             ///< the program with its version
    std::vector<ReportBlock> front; ///< below the title
    std::vector<ReportSection> sections;
};

} // namespace Merivane::Document
