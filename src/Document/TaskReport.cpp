#include "Document/TaskReport.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;
using Simulation::FormatDecimal;
using Simulation::TaskRow;

// Columns of the terminal: id, texts, numbers of 5 + 4 + 4 + 2 columns with 2 before each.
constexpr std::size_t LineWidth = 100;
constexpr std::size_t Indent = 2;
constexpr std::size_t IdWidth = 6;
constexpr std::size_t TextStart = Indent + IdWidth + 2;
constexpr std::size_t NumbersWidth = 2 + 5 + 2 + 4 + 2 + 4 + 2 + 2;
constexpr std::size_t NumbersStart = LineWidth - NumbersWidth;

/// Columns that the text takes: its characters, none of which is wide or combines.
std::size_t Columns(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

std::string Blanks(std::size_t taken, std::size_t width) {
    return std::string(width > taken ? width - taken : 0, ' ');
}

std::string Left(std::string_view text, std::size_t width) {
    return std::string(text) + Blanks(Columns(text), width);
}

std::string Right(std::string_view text, std::size_t width) {
    return Blanks(Columns(text), width) + std::string(text);
}

/// Breaks a text at blanks into lines of at most `width` columns; at least one line.
std::vector<std::string> Wrap(std::string_view text, std::size_t width) {
    std::vector<std::string> lines(1);
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        const std::string_view word = text.substr(start, end - start);
        if (lines.back().empty()) {
            lines.back() = word;
        } else if (Columns(lines.back()) + 1 + Columns(word) <= width) {
            lines.back().append(" ").append(word);
        } else {
            lines.emplace_back(word);
        }
        start = end + 1;
    }
    return lines;
}

std::string RowNumbers(std::string_view em, std::string_view u0, std::string_view ugr,
                       std::string_view ra) {
    return "  " + Right(em, 5) + "  " + Right(u0, 4) + "  " + Right(ugr, 4) + "  " + Right(ra, 2);
}

void AppendSection(const TaskRow& row, std::vector<std::string>& lines) {
    if (!lines.empty()) {
        lines.emplace_back();
    }
    const std::string number = std::to_string(row.section) + ". ";
    const std::vector<std::string> name = Wrap(row.sectionName, NumbersStart - number.size());
    lines.push_back(Left(number + name.front(), NumbersStart) +
                    RowNumbers("Em lx", "U0", "UGRL", "Ra"));
    for (std::size_t i = 1; i < name.size(); ++i) {
        lines.push_back(Blanks(0, number.size()) + name[i]);
    }
}

void AppendRow(const TaskRow& row, std::vector<std::string>& lines) {
    const std::vector<std::string> activity = Wrap(row.activity, NumbersStart - TextStart);
    const std::string ugr = row.ugrLimit == 0 ? "-" : std::to_string(row.ugrLimit);
    lines.push_back(
        Left(Blanks(0, Indent) + Left(row.id, IdWidth) + "  " + activity.front(), NumbersStart) +
        RowNumbers(FormatDecimal(row.em, 0), FormatDecimal(row.u0, 2), ugr,
                   std::to_string(row.ra)));
    for (std::size_t i = 1; i < activity.size(); ++i) {
        lines.push_back(Blanks(0, TextStart) + activity[i]);
    }
    if (!row.note.empty()) {
        for (const std::string& line : Wrap("Obs.: " + row.note, LineWidth - TextStart - Indent)) {
            lines.push_back(Blanks(0, TextStart + Indent) + line);
        }
    }
}

} // namespace

std::vector<std::string> TaskReportLines(const std::vector<const TaskRow*>& rows) {
    std::vector<std::string> lines;
    std::int32_t section = 0;
    for (const TaskRow* row : rows) {
        if (row->section != section) {
            AppendSection(*row, lines);
            section = row->section;
        }
        AppendRow(*row, lines);
    }
    return lines;
}

JsonValue TaskReportJson(const std::vector<const TaskRow*>& rows) {
    JsonValue list = JsonValue::MakeArray();
    for (const TaskRow* row : rows) {
        JsonValue entry;
        entry.Set("id", JsonValue::MakeString(row->id));
        entry.Set("secao", JsonValue::MakeNumber(row->section));
        entry.Set("nomeDaSecao", JsonValue::MakeString(row->sectionName));
        entry.Set("atividade", JsonValue::MakeString(row->activity));
        entry.Set("Em", JsonValue::MakeNumber(row->em));
        entry.Set("U0", JsonValue::MakeNumber(row->u0));
        entry.Set("UGRL", row->ugrLimit == 0 ? JsonValue() : JsonValue::MakeNumber(row->ugrLimit));
        entry.Set("Ra", JsonValue::MakeNumber(row->ra));
        entry.Set("observacao", row->note.empty() ? JsonValue() : JsonValue::MakeString(row->note));
        list.items.push_back(std::move(entry));
    }
    return list;
}

} // namespace Merivane::Document
