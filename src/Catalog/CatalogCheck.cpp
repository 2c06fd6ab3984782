#include "Catalog/CatalogCheck.hpp"

#include <set>
#include <string_view>
#include <utility>

#include "Catalog/InnerPath.hpp"
#include "Catalog/ProductAddress.hpp"

namespace Merivane::Catalog {

namespace {

/// The check of one product under way.
struct ProductCheck {
    const std::string& address;
    const CatalogProduct& product;
    const HttpFetch& http;
    const StopAsked& stopAsked;
    CatalogCheck& check;

    bool Stopped() const {
        check.stopped = check.stopped || IsStopped(stopAsked);
        return check.stopped;
    }

    /// What a fetch that was stopped says is no finding.
    void Find(std::string text) const {
        if (!Stopped()) {
            check.findings.push_back({product.id, std::move(text)});
        }
    }
};

void CheckFile(const ProductCheck& run, const CatalogFile& file, std::string_view key) {
    if (run.Stopped()) {
        return;
    }
    if (file.path.empty()) {
        run.Find(std::string(key) + ": " + FileNotListed());
        return;
    }
    if (const PathFault fault = FaultOfPath(file.path); fault != PathFault::None) {
        run.Find(RefusedPath(fault, file.path));
        return;
    }
    FileDigest digest;
    std::string error;
    if (!DigestCatalogFile(run.address, file.path, digest, error, run.http, run.stopAsked)) {
        run.Find(error);
        return;
    }
    if (std::string mismatch = MismatchOf(file, digest); !mismatch.empty()) {
        run.Find(std::move(mismatch));
        return;
    }
    ++run.check.files;
    run.check.withoutHash += file.hash.empty() ? 1U : 0U;
}

/// The package's own record, from which the index is rebuilt.
void CheckRecord(const ProductCheck& run) {
    const std::string folder = ProductPackageFolder(run.product.id);
    if (!IsInnerPath(folder)) {
        run.Find("o Windows nao aceita a pasta \"" + folder +
                 "\": um dos nomes e reservado para dispositivos");
        return;
    }
    const std::string path = folder + "/produto.json";
    const FetchResult fetched = FetchCatalogFile(run.address, path, run.http);
    if (!fetched.ok) {
        run.Find(fetched.error);
        return;
    }
    JsonValue value;
    if (const JsonParseResult parsed = JsonParse(fetched.bytes, value, MostProductValues);
        !parsed.ok) {
        run.Find("produto.json invalido: " + parsed.error);
        return;
    }
    CatalogProduct record;
    if (!ReadCatalogProduct(value, record)) {
        run.Find("produto.json incompleto");
    } else if (record != run.product) {
        run.Find("produto.json difere do catalogo.json: o catalogo nao foi refeito depois da "
                 "ultima mudanca");
    } else {
        ++run.check.files;
    }
}

void CheckProduct(const ProductCheck& run, bool isRepeated) {
    if (isRepeated) {
        run.Find("endereco repetido no catalogo"); // its record is that of the first
    } else if (IsValidProductAddress(run.product.id)) {
        CheckRecord(run);
    } else {
        run.Find("endereco de produto invalido");
    }
    CheckFile(run, run.product.part, "gsm");
    CheckFile(run, run.product.ies, "ies");
    CheckFile(run, run.product.curve, "curva");
    if (!run.product.image.path.empty()) {
        CheckFile(run, run.product.image, "imagem");
    }
}

} // namespace

CatalogCheck CheckCatalog(const std::string& address, const CatalogIndex& index,
                          const CheckProgress& progress, const HttpFetch& http,
                          const StopAsked& stopAsked) {
    CatalogCheck check;
    if (index.incomplete > 0) {
        check.findings.push_back(
            {"", std::to_string(index.incomplete) + " entrada(s) incompleta(s) ignorada(s)"});
    }
    std::set<std::string_view> seen;
    for (std::size_t i = 0; i < index.products.size(); ++i) {
        const CatalogProduct& product = index.products[i];
        const ProductCheck run{address, product, http, stopAsked, check};
        if (run.Stopped()) {
            break;
        }
        progress(i, index.products.size());
        CheckProduct(run, !seen.insert(product.id).second);
    }
    return check;
}

} // namespace Merivane::Catalog
