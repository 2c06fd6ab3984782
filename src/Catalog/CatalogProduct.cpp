#include "Catalog/CatalogProduct.hpp"

#include <algorithm>
#include <limits>

#include "Catalog/JsonNumbers.hpp"
#include "Catalog/ProductAddress.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileName.hpp"

namespace Merivane::Catalog {

namespace {

JsonValue JsonText(std::string_view text) {
    return JsonValue::MakeString(std::string(text));
}

CatalogFile ReadFile(const JsonValue* files, std::string_view key) {
    const JsonValue* const entry = files != nullptr ? files->Find(key) : nullptr;
    if (entry == nullptr) {
        return {};
    }
    return {entry->StringOr("caminho", ""), WholeNumberOr<std::int64_t>(*entry, "bytes", 0),
            entry->StringOr("sha256", "")};
}

JsonValue WriteFile(const CatalogFile& file) {
    JsonValue entry = JsonValue::MakeObject();
    entry.Set("caminho", JsonText(file.path));
    entry.Set("bytes", JsonValue::MakeNumber(static_cast<double>(file.size)));
    entry.Set("sha256", JsonText(file.hash));
    return entry;
}

void ReadOpening(const JsonValue& value, CatalogProduct& product) {
    if (const JsonValue* const opening = value.Find("abertura")) {
        product.width = opening->NumberOr("largura_m", 0.0);
        product.length = opening->NumberOr("comprimento_m", 0.0);
        product.height = opening->NumberOr("altura_m", 0.0);
    }
}

JsonValue WriteOpening(const CatalogProduct& product) {
    JsonValue opening = JsonValue::MakeObject();
    opening.Set("largura_m", JsonValue::MakeNumber(product.width));
    opening.Set("comprimento_m", JsonValue::MakeNumber(product.length));
    opening.Set("altura_m", JsonValue::MakeNumber(product.height));
    return opening;
}

void ReadMacros(const JsonValue& value, CatalogProduct& product) {
    const JsonValue* const macros = value.Find("macros");
    if (macros == nullptr || macros->kind != JsonKind::Array) {
        return;
    }
    for (const JsonValue& macro : macros->items) {
        if (macro.kind == JsonKind::String) {
            product.macros.push_back(macro.text);
        }
    }
}

JsonValue WriteFiles(const CatalogProduct& product) {
    JsonValue files = JsonValue::MakeObject();
    files.Set("gsm", WriteFile(product.part));
    files.Set("ies", WriteFile(product.ies));
    files.Set("curva", WriteFile(product.curve));
    if (!product.image.path.empty()) {
        files.Set("imagem", WriteFile(product.image));
    }
    return files;
}

/// [lm/W], never beyond the numbers that can be written.
double Efficacy(const CatalogProduct& product) {
    constexpr double Largest = std::numeric_limits<double>::max();
    return product.power > 0.0 ? std::clamp(product.flux / product.power, -Largest, Largest) : 0.0;
}

/// `name` with "-" in place of each character that some system refuses in file names.
std::string WithoutForbidden(std::string_view name) {
    constexpr unsigned char FirstPrintable = 32;
    std::string clean(name);
    for (char& c : clean) {
        if (Text::RefusedInFileNames.find(c) != std::string_view::npos ||
            static_cast<unsigned char>(c) < FirstPrintable) {
            c = '-';
        }
    }
    return clean;
}

/// `name` without the points and blanks at its end, which Windows drops.
std::string WithoutTail(std::string name) {
    name.erase(name.find_last_not_of(". ") + 1);
    return name;
}

} // namespace

bool ReadCatalogProduct(const JsonValue& value, CatalogProduct& product) {
    product = {};
    if (value.kind != JsonKind::Object) {
        return false;
    }
    product.id = value.StringOr("id", "");
    product.version = WholeNumberOr<std::int32_t>(value, "versao", product.version);
    product.updated = value.StringOr("atualizado", "");
    product.manufacturer = value.StringOr("fabricante", "");
    product.code = value.StringOr("catalogo", "");
    product.description = value.StringOr("descricao", "");
    product.lamp = value.StringOr("lampada", "");
    product.colourRendering = value.NumberOr("ra", 0.0);
    product.flux = value.NumberOr("fluxo_lm", 0.0);
    product.power = value.NumberOr("potencia_w", 0.0);
    ReadOpening(value, product);
    product.block = value.StringOr("bloco", "");
    product.hostVersion = WholeNumberOr<std::int32_t>(value, "archicad", product.hostVersion);
    const JsonValue* const files = value.Find("arquivos");
    product.part = ReadFile(files, "gsm");
    product.ies = ReadFile(files, "ies");
    product.curve = ReadFile(files, "curva");
    product.image = ReadFile(files, "imagem");
    ReadMacros(value, product);
    return !product.id.empty() && !product.part.path.empty();
}

JsonValue WriteCatalogProduct(const CatalogProduct& product) {
    JsonValue value = JsonValue::MakeObject();
    value.Set("id", JsonText(product.id));
    value.Set("versao", JsonValue::MakeNumber(product.version));
    value.Set("atualizado", JsonText(product.updated));
    value.Set("fabricante", JsonText(product.manufacturer));
    value.Set("catalogo", JsonText(product.code));
    value.Set("descricao", JsonText(product.description));
    value.Set("lampada", JsonText(product.lamp));
    if (product.colourRendering > 0.0) {
        value.Set("ra", JsonValue::MakeNumber(product.colourRendering));
    }
    value.Set("fluxo_lm", JsonValue::MakeNumber(RoundTo(product.flux, 1)));
    value.Set("potencia_w", JsonValue::MakeNumber(RoundTo(product.power, 3)));
    value.Set("eficacia_lm_w", JsonValue::MakeNumber(RoundTo(Efficacy(product), 1)));
    value.Set("abertura", WriteOpening(product));
    value.Set("bloco", JsonText(product.block));
    value.Set("archicad", JsonValue::MakeNumber(product.hostVersion));
    value.Set("arquivos", WriteFiles(product));
    JsonValue& macros = value.Set("macros", JsonValue::MakeArray());
    for (const std::string& macro : product.macros) {
        macros.items.push_back(JsonText(macro));
    }
    return value;
}

std::int32_t NextProductVersion(const std::optional<CatalogProduct>& previous,
                                std::string_view partHash) {
    if (!previous) {
        return 1;
    }
    const std::int32_t version = std::max(previous->version, 1);
    const bool isLast = version == std::numeric_limits<std::int32_t>::max();
    return previous->part.hash == partHash || isLast ? version : version + 1;
}

std::string CleanBlockName(std::string_view text) {
    std::string_view name = Text::Trim(text);
    for (;;) {
        const std::size_t mark = name.rfind('_');
        if (mark == std::string_view::npos || mark == 0 || mark + 1 == name.size()) {
            break;
        }
        const std::string_view behind = name.substr(mark + 1);
        if (!std::all_of(behind.begin(), behind.end(), Text::IsDigit)) {
            break;
        }
        name = name.substr(0, mark);
    }
    return std::string(Text::Trim(name));
}

std::string LibraryFileName(const CatalogProduct& product) {
    std::string name = WithoutTail(WithoutForbidden(CleanBlockName(product.block)));
    if (name.empty()) {
        // A valid address stays as it is, points at its end too; another can't lead away.
        name = WithoutForbidden(ProductLeafName(product.id));
    }
    return name + ".gsm";
}

std::string ProductDisplayName(const CatalogProduct& product) {
    if (!product.code.empty() && !product.description.empty()) {
        return product.code + " - " + product.description;
    }
    if (product.code.empty() && product.description.empty()) {
        return CleanBlockName(product.block);
    }
    return product.description + product.code;
}

} // namespace Merivane::Catalog
