#pragma once

#include <filesystem>
#include <string>

#include "Catalog/CatalogProduct.hpp"

namespace Merivane::Catalog {

/// A product with every field but the image and macros set; its files have digests of two letters.
CatalogProduct SampleProduct();

/// A file as an index lists it, truthfully.
CatalogFile TrueFile(const std::string& path, const std::string& bytes);

/// A catalogue of one product, "luz/ab-12", in a folder: index, package and all its files.
CatalogProduct WriteSampleCatalog(const std::filesystem::path& folder);

/// Writes `catalogo.json` for these products.
void WriteSampleIndex(const std::filesystem::path& folder,
                      const std::vector<CatalogProduct>& products);

} // namespace Merivane::Catalog
