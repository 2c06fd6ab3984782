#include "Document/CatalogReport.hpp"

#include <cstddef>
#include <string_view>
#include <utility>

#include "Catalog/ProductFilter.hpp"
#include "Document/TextColumns.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Document {

namespace {

using Catalog::CatalogCheck;
using Catalog::CatalogFinding;
using Catalog::CatalogIndex;
using Catalog::CatalogProduct;
using Catalog::JsonValue;

// Columns of the terminal, two blanks between them.
constexpr std::size_t ManufacturerWidth = 20;
constexpr std::size_t NameWidth = 42;
constexpr std::size_t LampWidth = 16;
constexpr std::size_t FluxWidth = 7;
constexpr std::size_t PowerWidth = 7;

/// The first `width` characters of a text, the last of them "…" where there are more.
std::string Shortened(std::string_view text, std::size_t width) {
    std::string shown = Text::ShownText(text);
    if (CharacterCount(shown) <= width) {
        return shown;
    }
    std::size_t end = 0;
    for (std::size_t characters = 0; characters < width; ++end) {
        const bool continues = (static_cast<unsigned char>(shown[end]) & 0xC0U) == 0x80U;
        characters += continues ? 0U : 1U;
    }
    return shown.substr(0, end - 1) + "…";
}

std::string Row(std::string_view manufacturer, std::string_view name, std::string_view lamp,
                std::string_view flux, std::string_view power) {
    return PadRight(Shortened(manufacturer, ManufacturerWidth), ManufacturerWidth) + "  " +
           PadRight(Shortened(name, NameWidth), NameWidth) + "  " +
           PadRight(Shortened(lamp, LampWidth), LampWidth) + "  " +
           PadLeft(Shortened(flux, FluxWidth), FluxWidth) + "  " +
           PadLeft(Shortened(power, PowerWidth), PowerWidth);
}

std::string Amount(double value, int decimals) {
    return value > 0.0 ? Simulation::FormatDecimal(value, decimals) : "-";
}

std::string FindingLine(const CatalogFinding& finding) {
    const std::string text =
        finding.product.empty() ? finding.text : finding.product + ": " + finding.text;
    return Text::ShownText(text);
}

/// A text as it is, or as it can be shown where it holds what no JSON text or no terminal may.
void MakePlain(std::string& text) {
    if (!Text::IsPlainText(text)) {
        text = Text::ShownText(text);
    }
}

CatalogProduct PlainProduct(CatalogProduct product) {
    for (std::string* text : {&product.id, &product.updated, &product.manufacturer, &product.code,
                              &product.description, &product.lamp, &product.block}) {
        MakePlain(*text);
    }
    for (Catalog::CatalogFile* file :
         {&product.part, &product.ies, &product.curve, &product.image}) {
        MakePlain(file->path);
        MakePlain(file->hash);
    }
    for (std::string& macro : product.macros) {
        MakePlain(macro);
    }
    return product;
}

JsonValue Count(std::size_t number) {
    return JsonValue::MakeNumber(static_cast<double>(number));
}

} // namespace

std::vector<std::string> CatalogListLines(const CatalogSelection& products) {
    std::vector<std::string> lines = {Row("Fabricante", "Produto", "Lâmpada", "lm", "W")};
    for (const CatalogProduct* product : products) {
        lines.push_back(Row(product->manufacturer, Catalog::ProductDisplayName(*product),
                            product->lamp, Amount(product->flux, 0), Amount(product->power, 1)));
    }
    return lines;
}

std::string CatalogSummary(const CatalogIndex& index) {
    std::string summary = std::to_string(index.products.size()) + " produto(s) de " +
                          std::to_string(Catalog::CatalogManufacturers(index.products).size()) +
                          " fabricante(s)";
    if (!index.updated.empty()) {
        summary += ", catálogo de " + Text::ShownText(index.updated);
    }
    if (index.incomplete > 0) {
        summary +=
            "; " + std::to_string(index.incomplete) + " entrada(s) incompleta(s) ignorada(s)";
    }
    return summary + ".";
}

JsonValue CatalogListJson(const CatalogSelection& products) {
    JsonValue list = JsonValue::MakeArray();
    list.items.reserve(products.size());
    for (const CatalogProduct* product : products) {
        list.items.push_back(Catalog::WriteCatalogProduct(PlainProduct(*product)));
    }
    return list;
}

std::vector<std::string> CatalogCheckLines(const CatalogCheck& check) {
    std::vector<std::string> lines;
    lines.reserve(check.findings.size() + 1);
    for (const CatalogFinding& finding : check.findings) {
        lines.push_back(FindingLine(finding));
    }
    std::string counts = std::to_string(check.files) + " arquivo(s) em ordem";
    if (check.withoutHash > 0) {
        counts += " (" + std::to_string(check.withoutHash) + " sem SHA-256 no catálogo)";
    }
    counts += check.findings.empty()
                  ? ", nenhum problema."
                  : ", " + std::to_string(check.findings.size()) + " problema(s).";
    lines.push_back(std::move(counts));
    return lines;
}

JsonValue CatalogCheckJson(const std::string& address, const CatalogIndex& index,
                           const CatalogCheck& check) {
    JsonValue report = JsonValue::MakeObject();
    report.Set("endereco", JsonValue::MakeString(Text::ShownText(address)));
    report.Set("atualizado", JsonValue::MakeString(Text::ShownText(index.updated)));
    report.Set("produtos", Count(index.products.size()));
    report.Set("arquivos", Count(check.files));
    report.Set("sem_sha256", Count(check.withoutHash));
    JsonValue& findings = report.Set("problemas", JsonValue::MakeArray());
    for (const CatalogFinding& finding : check.findings) {
        JsonValue entry = JsonValue::MakeObject();
        entry.Set("produto", finding.product.empty()
                                 ? JsonValue()
                                 : JsonValue::MakeString(Text::ShownText(finding.product)));
        entry.Set("texto", JsonValue::MakeString(Text::ShownText(finding.text)));
        findings.items.push_back(std::move(entry));
    }
    return report;
}

} // namespace Merivane::Document
