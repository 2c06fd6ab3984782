#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "Catalog/CatalogFetch.hpp"
#include "Catalog/CatalogIndex.hpp"

namespace Merivane::Catalog {

/// One thing that is wrong with a catalogue.
struct CatalogFinding {
    std::string product; ///< its address as the index tells it; empty = the catalogue as a whole
    std::string text;    ///< one Portuguese sentence without accents

    bool operator==(const CatalogFinding&) const = default;
};

/// What a check found, in the order of the index.
struct CatalogCheck {
    std::vector<CatalogFinding> findings;
    std::size_t files = 0;       ///< fetched and as listed
    std::size_t withoutHash = 0; ///< of these, those whose digest the index does not list
    bool stopped = false;        ///< before its end, by the caller
};

/// Told before each product how many of all are done.
using CheckProgress = std::function<void(std::size_t done, std::size_t all)>;

/// Holds a whole catalogue to its index: every listed file to its size and digest, every package's
/// `produto.json` to its entry, every address to its form. The cache plays no part, and nothing is
/// fetched by a path that would leave the catalogue. Stops between two files and within a file of a
/// folder as soon as `stopAsked` says so; within a file of the web that is the affair of `http`.
CatalogCheck CheckCatalog(const std::string& address, const CatalogIndex& index,
                          const CheckProgress& progress, const HttpFetch& http = HttpGet,
                          const StopAsked& stopAsked = {});

} // namespace Merivane::Catalog
