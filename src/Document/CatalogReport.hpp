#pragma once

#include <string>
#include <vector>

#include "Catalog/CatalogCheck.hpp"
#include "Catalog/CatalogIndex.hpp"
#include "Catalog/Json.hpp"

/// What a catalogue holds and what a check of it found, for a person and for a program. Lines are
/// without line ends; texts of the catalogue, which anyone may have written, are shown without
/// control characters.
namespace Merivane::Document {

/// Products of a catalogue, chosen among those of its index.
using CatalogSelection = std::vector<const Catalog::CatalogProduct*>;

/// The products as a table of at most 100 columns: manufacturer, product, lamp, flux [lm] and
/// power [W], "-" for what is not known. Longer texts end in "…".
std::vector<std::string> CatalogListLines(const CatalogSelection& products);

/// How many products of how many manufacturers an index holds, of which day, and how many entries
/// were left out: one sentence.
std::string CatalogSummary(const Catalog::CatalogIndex& index);

/// The products as a list of the records of `produto.json`, their texts without control characters
/// and bytes that are not UTF-8.
Catalog::JsonValue CatalogListJson(const CatalogSelection& products);

/// One line for each finding, then one with the counts.
std::vector<std::string> CatalogCheckLines(const Catalog::CatalogCheck& check);

/// `endereco`, `atualizado`, `produtos` (how many), `arquivos` (how many are as listed),
/// `sem_sha256` (how many of these have no digest in the index to be held to), and `problemas`, a
/// list of `produto` (null = the catalogue as a whole) and `texto`.
Catalog::JsonValue CatalogCheckJson(const std::string& address, const Catalog::CatalogIndex& index,
                                    const Catalog::CatalogCheck& check);

} // namespace Merivane::Document
