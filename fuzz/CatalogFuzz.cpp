// Whatever the bytes, an index is read without a crash, into one sentence or into products that are
// written, listed, searched and fetched; addresses and names stay what they promise. The first byte
// chooses.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogFetch.hpp"
#include "Catalog/CatalogIndex.hpp"
#include "Catalog/InnerPath.hpp"
#include "Catalog/MacroCalls.hpp"
#include "Catalog/ProductAddress.hpp"
#include "Catalog/ProductFilter.hpp"
#include "Catalog/Slug.hpp"
#include "Text/Ascii.hpp"

using namespace Merivane;
using Catalog::CatalogFile;
using Catalog::CatalogProduct;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void TryPath(const std::string& path) {
    if (!Catalog::IsInnerPath(path)) {
        return;
    }
    const std::filesystem::path place = (std::filesystem::path("/base") / path).lexically_normal();
    Require(place.string().starts_with("/base/") && place.has_filename());
}

void TryProduct(const CatalogProduct& product) {
    Require(!product.id.empty() && !product.part.path.empty());
    const std::string file = Catalog::LibraryFileName(product);
    Require(file.ends_with(".gsm") && file.find_first_of("/\\:") == std::string::npos);
    Require(Catalog::IsValidProductAddress(Catalog::ProductAddress(
        product.manufacturer, product.code, product.description, product.lamp, product.part.path)));
    Require(Catalog::ProductMatches(product, product.manufacturer, ""));
    Catalog::ProductMatches(product, "", product.description);
    Catalog::ProductDisplayName(product);
    for (const CatalogFile* listed :
         {&product.part, &product.ies, &product.curve, &product.image}) {
        TryPath(listed->path);
        Catalog::MismatchOf(*listed, {});
    }
}

/// Figures are rounded when written and keys sorted; once that is done, nothing changes any more.
void TryIndex(std::string_view bytes) {
    const Catalog::CatalogIndex index = Catalog::ParseCatalogIndex(bytes);
    Require(index.ok == index.error.empty());
    for (const CatalogProduct& product : index.products) {
        TryProduct(product);
    }
    if (!index.ok) {
        return;
    }
    const std::string written =
        Catalog::JsonWrite(Catalog::BuildCatalogIndex(index.products, index.updated));
    const Catalog::CatalogIndex back = Catalog::ParseCatalogIndex(written);
    Require(back.ok && back.incomplete == 0 && back.products.size() == index.products.size());
    Require(Catalog::CatalogManufacturers(back.products).size() ==
            Catalog::CatalogManufacturers(index.products).size());
}

void TryAddress(const std::string& text) {
    const std::string base = Catalog::NormalizeCatalogAddress(text);
    if (Catalog::IsRemoteAddress(base)) {
        Require(base.ends_with('/') && base.find_first_of("?#") == std::string::npos);
        Require(Catalog::NormalizeCatalogAddress(base) == base);
    }
    const std::size_t half = text.size() / 2;
    const std::string resolved = Catalog::ResolveInCatalog(text.substr(0, half), text.substr(half));
    Require(resolved.starts_with(text.substr(0, half)));
    TryPath(text);
}

void TryNames(const std::string& text) {
    const std::string slug = Catalog::Slugify(text, text.size());
    Require(Catalog::Slugify(slug, slug.size()) == slug);
    Require(slug.find("--") == std::string::npos && !slug.starts_with('-') && !slug.ends_with('-'));
    const std::string name = Catalog::CleanBlockName(text);
    Require(Text::Trim(name) == name);
    if (Catalog::IsValidProductAddress(text)) {
        const std::filesystem::path place =
            (std::filesystem::path("/base") / Catalog::ProductPackageFolder(text))
                .lexically_normal();
        Require(place.string().starts_with("/base/pacotes/"));
        Require(text.ends_with(Catalog::ProductLeafName(text)));
    }
    for (const std::string& macro : Catalog::ExtractMacroCalls(text)) {
        Require(!macro.empty() && text.find(macro) != std::string::npos);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0]) {
    case 'a':
        TryAddress(text);
        break;
    case 'n':
        TryNames(text);
        break;
    default:
        TryIndex({reinterpret_cast<const char*>(data), size});
        break;
    }
    return 0;
}
