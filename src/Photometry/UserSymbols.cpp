#include "Photometry/UserSymbols.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>
#include <utility>

#include "Photometry/BuiltInSymbols.hpp"
#include "Text/Ascii.hpp"
#include "Text/Number.hpp"

namespace Merivane::Photometry {

namespace {

constexpr std::string_view FirstLine = "MVSYMBOLS 1";
constexpr std::string_view NextPrefix = "next ";
constexpr std::string_view HiddenPrefix = "hidden ";
constexpr std::string_view SymbolPrefix = "symbol ";

/// What stands before the next `separator`, which is taken off `rest` together with it.
std::string_view TakeUpTo(std::string_view& rest, char separator) {
    const std::size_t end = rest.find(separator);
    const std::string_view head = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return head;
}

std::string_view TakeLine(std::string_view& rest) {
    std::string_view line = TakeUpTo(rest, '\n');
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::vector<std::string_view> Words(std::string_view line) {
    std::vector<std::string_view> words;
    while (!line.empty()) {
        const std::string_view word = TakeUpTo(line, ' ');
        if (!word.empty()) {
            words.push_back(word);
        }
    }
    return words;
}

bool ReadInteger(std::string_view text, int& value) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        return false;
    }
    value = number;
    return true;
}

bool ReadNumbers(std::string_view line, std::vector<double>& numbers) {
    for (const std::string_view word : Words(line)) {
        if (!Text::ReadEntireNumber(word, numbers.emplace_back())) {
            return false;
        }
    }
    return true;
}

void TakeCenter(const std::vector<double>& numbers, SymbolStroke& stroke) {
    stroke.points = {{numbers[0], numbers[1]}};
    stroke.radius = numbers[2];
}

bool TakePolygon(const std::vector<double>& numbers, SymbolStroke& stroke) {
    stroke.kind = SymbolStrokeKind::Polygon;
    if (numbers.size() < 2 || static_cast<double>(numbers.size() - 2) != 2.0 * numbers[1]) {
        return false;
    }
    stroke.filled = numbers[0] != 0.0;
    for (std::size_t i = 2; i + 1 < numbers.size(); i += 2) {
        stroke.points.push_back({numbers[i], numbers[i + 1]});
    }
    return true;
}

bool TakeNumbers(char kind, const std::vector<double>& numbers, SymbolStroke& stroke) {
    if (kind == 'L' && numbers.size() == 4) {
        stroke.points = {{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
        return true;
    }
    if (kind == 'C' && numbers.size() == 3) {
        stroke.kind = SymbolStrokeKind::Circle;
        TakeCenter(numbers, stroke);
        return true;
    }
    if (kind == 'A' && numbers.size() == 6) {
        stroke.kind = SymbolStrokeKind::Arc;
        TakeCenter(numbers, stroke);
        stroke.beginAngle = numbers[3];
        stroke.endAngle = numbers[4];
        stroke.filled = numbers[5] != 0.0;
        return true;
    }
    return kind == 'P' && TakePolygon(numbers, stroke);
}

bool ReadStroke(std::string_view line, SymbolStroke& stroke) {
    std::vector<double> numbers;
    return line.size() > 2 && line[1] == ' ' && ReadNumbers(line.substr(2), numbers) &&
           TakeNumbers(line[0], numbers, stroke) && IsDrawable(stroke);
}

void ReadHidden(std::string_view line, std::set<int>& hidden) {
    for (const std::string_view word : Words(line)) {
        int id = NoPlanSymbol;
        if (ReadInteger(word, id) && IsBuiltInSymbol(id) && id != NoPlanSymbol) {
            hidden.insert(id);
        }
    }
}

bool IsOwn(int id) {
    return !IsBuiltInSymbol(id) && id > 0 && id <= LastUserSymbol;
}

/// Begins a symbol; false when its strokes must be skipped with it.
bool ReadSymbol(std::string_view line, std::vector<PlanSymbol>& symbols) {
    PlanSymbol symbol;
    const bool isRead = ReadInteger(TakeUpTo(line, ' '), symbol.id) && IsOwn(symbol.id);
    const auto isSame = [&](const PlanSymbol& other) { return other.id == symbol.id; };
    if (!isRead || std::any_of(symbols.begin(), symbols.end(), isSame)) {
        return false;
    }
    symbol.name = line;
    symbols.push_back(std::move(symbol));
    return true;
}

void AppendNumbers(std::string& text, const std::vector<double>& numbers) {
    for (const double number : numbers) {
        text += ' ';
        Text::AppendShortest(text, number);
    }
    text += '\n';
}

void AppendPolygon(std::string& text, bool filled, const std::vector<SymbolPoint>& points) {
    std::vector<double> numbers = {filled ? 1.0 : 0.0, static_cast<double>(points.size())};
    for (const SymbolPoint& point : points) {
        numbers.push_back(point.x);
        numbers.push_back(point.y);
    }
    text += 'P';
    AppendNumbers(text, numbers);
}

void AppendStroke(std::string& text, const SymbolStroke& stroke) {
    const SymbolPoint& first = stroke.points[0];
    if (stroke.kind == SymbolStrokeKind::Line) {
        text += 'L';
        AppendNumbers(text, {first.x, first.y, stroke.points[1].x, stroke.points[1].y});
    } else if (stroke.kind == SymbolStrokeKind::Arc) {
        text += 'A';
        AppendNumbers(text, {first.x, first.y, stroke.radius, stroke.beginAngle, stroke.endAngle,
                             stroke.filled ? 1.0 : 0.0});
    } else if (stroke.kind == SymbolStrokeKind::Circle && !stroke.filled) {
        text += 'C';
        AppendNumbers(text, {first.x, first.y, stroke.radius});
    } else {
        AppendPolygon(text, stroke.filled, OutlinePoints(stroke));
    }
}

void AppendSymbol(std::string& text, const PlanSymbol& symbol) {
    std::string name = symbol.name;
    std::replace(name.begin(), name.end(), '\n', ' ');
    std::replace(name.begin(), name.end(), '\r', ' ');
    text += SymbolPrefix;
    text += std::to_string(symbol.id) + " " + name + "\n";
    for (const SymbolStroke& stroke : symbol.strokes) {
        if (IsDrawable(stroke)) {
            AppendStroke(text, stroke);
        }
    }
}

// "MVSYMBOLS 10" is another form.
bool IsOurForm(std::string_view text) {
    return text.starts_with(FirstLine) &&
           (text.size() == FirstLine.size() || !Text::IsDigit(text[FirstLine.size()]));
}

} // namespace

UserSymbols ParseUserSymbols(std::string_view text) {
    UserSymbols read;
    if (!IsOurForm(text)) {
        return read;
    }
    TakeLine(text);
    bool inSymbol = false;
    while (!text.empty()) {
        const std::string_view line = TakeLine(text);
        SymbolStroke stroke;
        if (line.starts_with(NextPrefix)) {
            ReadInteger(line.substr(NextPrefix.size()), read.nextId);
        } else if (line.starts_with(HiddenPrefix)) {
            ReadHidden(line.substr(HiddenPrefix.size()), read.hiddenBuiltIns);
        } else if (line.starts_with(SymbolPrefix)) {
            inSymbol = ReadSymbol(line.substr(SymbolPrefix.size()), read.symbols);
        } else if (inSymbol && ReadStroke(line, stroke)) {
            read.symbols.back().strokes.push_back(std::move(stroke));
        }
    }
    read.nextId = std::clamp(read.nextId, FirstUserSymbol, LastUserSymbol + 1);
    for (const PlanSymbol& symbol : read.symbols) {
        read.nextId = std::max(read.nextId, symbol.id + 1);
    }
    return read;
}

std::string FormatUserSymbols(const UserSymbols& symbols) {
    std::string text(FirstLine);
    text += '\n';
    text += NextPrefix;
    text += std::to_string(symbols.nextId) + "\n";
    text += HiddenPrefix;
    std::string_view separator;
    for (const int id : symbols.hiddenBuiltIns) {
        text += separator;
        text += std::to_string(id);
        separator = " ";
    }
    text += '\n';
    for (const PlanSymbol& symbol : symbols.symbols) {
        if (!symbol.hidden) {
            AppendSymbol(text, symbol);
        }
    }
    return text;
}

std::vector<PlanSymbol> SymbolLibrary(const UserSymbols& symbols) {
    std::vector<PlanSymbol> library = BuiltInSymbols();
    for (PlanSymbol& symbol : library) {
        symbol.hidden = symbols.hiddenBuiltIns.contains(symbol.id);
    }
    library.insert(library.end(), symbols.symbols.begin(), symbols.symbols.end());
    return library;
}

} // namespace Merivane::Photometry
