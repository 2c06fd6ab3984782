#include "Photometry/ContractBuilding.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <variant>

#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/ContractKeywords.hpp"
#include "Photometry/ContractTable.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Photometry/SymbolRows.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Photometry {

namespace {

// A script has no empty array. Whoever reads knows by a mode or a count that this is no value.
void GiveNumbers(std::vector<double> numbers, std::size_t rows, std::size_t columns,
                 ContractParameter& parameter) {
    if (numbers.empty()) {
        numbers = {0.0};
        rows = 1;
        columns = 1;
    }
    parameter.numbers = std::move(numbers);
    parameter.dim1 = static_cast<int>(rows);
    parameter.dim2 = static_cast<int>(columns);
}

/// A row for each horizontal angle, a column for each vertical one; what a file lacks is 0.
std::vector<double> FlatCandela(const IesFile& file) {
    std::vector<double> flat;
    flat.reserve(file.horizontalAngles.size() * file.verticalAngles.size());
    for (std::size_t row = 0; row < file.horizontalAngles.size(); ++row) {
        std::vector<double> values =
            row < file.candela.size() ? file.candela[row] : std::vector<double>();
        values.resize(file.verticalAngles.size(), 0.0);
        flat.insert(flat.end(), values.begin(), values.end());
    }
    return flat;
}

std::vector<SymbolRow> DefaultSymbolRows() {
    return BuildSymbolRows(BuiltInSymbol(DefaultPlanSymbol)).rows;
}

/// Gives a parameter the value that its row's source tells.
struct ValueGiver {
    const IesFile& file;
    const LuminaireSettings& settings;
    ContractParameter& parameter;

    void operator()(std::monostate) const {}
    void operator()(double number) const { parameter.number = number; }
    void operator()(KeywordSource keyword) const { GiveText(FindKeyword(file, keyword.key)); }
    void operator()(int IesFile::*field) const { parameter.number = file.*field; }
    void operator()(double IesFile::*field) const { parameter.number = file.*field; }
    void operator()(std::string IesFile::*field) const { GiveText(file.*field); }
    void operator()(std::vector<double> IesFile::*field) const {
        GiveNumbers(file.*field, (file.*field).size(), 1, parameter);
    }
    void operator()(int LuminaireSettings::*field) const { parameter.number = settings.*field; }
    void operator()(double LuminaireSettings::*field) const { parameter.number = settings.*field; }
    void operator()(std::string LuminaireSettings::*field) const { GiveText(settings.*field); }
    void operator()(DerivedSource source) const;

    void GiveText(const std::string& text) const {
        parameter.text = Text::TruncateUtf8(text, LongestContractText);
    }
};

void ValueGiver::operator()(DerivedSource source) const {
    switch (source) {
    case DerivedSource::LuminousFlux:
        parameter.number = std::max(0.0, TotalFlux(file));
        break;
    case DerivedSource::SymbolCount:
        parameter.number = static_cast<double>(DefaultSymbolRows().size());
        break;
    case DerivedSource::SymbolData:
        GiveNumbers(SymbolData(DefaultSymbolRows()), SymbolDataRows, SymbolDataColumns, parameter);
        break;
    case DerivedSource::PackedKeywords:
        parameter.texts = PackIesKeywords(file);
        parameter.dim1 = static_cast<int>(parameter.texts.size());
        parameter.dim2 = 1;
        break;
    case DerivedSource::CandelaTable:
        GiveNumbers(FlatCandela(file), file.horizontalAngles.size(), file.verticalAngles.size(),
                    parameter);
        break;
    }
}

ParameterNames CollectNames() {
    // The colour rendering travels in the keyword `_RA`; parts made earlier have it here.
    ParameterNames names = {"mvColourRendering"};
    for (const ContractRow& row : ContractTable()) {
        names.insert(row.name);
    }
    return names;
}

} // namespace

std::vector<ContractParameter> BuildContract(const IesFile& file,
                                             const LuminaireSettings& settings) {
    std::vector<ContractParameter> parameters;
    for (const ContractRow& row : ContractTable()) {
        ContractParameter parameter;
        parameter.name = row.name;
        parameter.type = row.type;
        parameter.description = row.description;
        parameter.hidden = row.hidden;
        std::visit(ValueGiver{file, settings, parameter}, row.source);
        parameters.push_back(std::move(parameter));
    }
    return parameters;
}

const ParameterNames& ContractParameterNames() {
    static const ParameterNames Names = CollectNames();
    return Names;
}

bool IsCircuitParameter(std::string_view name) {
    constexpr std::string_view names[] = {"mvCircuit", "mvCircuitSize", "mvCircuitPen",
                                          "mvCircuitX", "mvCircuitY"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

} // namespace Merivane::Photometry
