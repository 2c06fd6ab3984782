#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogCheck.hpp"
#include "Catalog/CatalogFetch.hpp"
#include "Catalog/CatalogIndex.hpp"
#include "Catalog/HttpClient.hpp"
#include "Catalog/Json.hpp"
#include "Catalog/ProductFilter.hpp"
#include "Document/CatalogReport.hpp"
#include "Program/Commands.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/Progress.hpp"
#include "Text/NativePath.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Program {

namespace {

/// A catalogue's base from what stands on the command line. A folder by its full path, so that a
/// lone "catalogo.json" leads to the folder that it stands in.
std::string BaseAddress(const std::string& text) {
    std::string address = Catalog::NormalizeCatalogAddress(text);
    if (Catalog::IsRemoteAddress(address)) {
        return address;
    }
    std::error_code code;
    const std::filesystem::path folder =
        std::filesystem::absolute(Text::NativePath(Text::Widen(address)), code);
    return Catalog::NormalizeCatalogAddress(Text::Narrow(Text::WidePath(folder)));
}

/// True for what is no folder of this computer and reads like an address of the web without its
/// beginning: "github.com/luz/catalogo", "ftp://luz.com.br".
bool IsMeantForTheWeb(const std::string& text) {
    std::error_code code;
    if (std::filesystem::exists(Text::NativePath(Text::Widen(text)), code)) {
        return false;
    }
    const std::string host = text.substr(0, text.find_first_of("/\\"));
    const std::size_t point = host.find('.');
    const bool hasDomain = point != std::string::npos && point > 0 && point + 1 < host.size();
    return text.find("://") != std::string::npos || hasDomain;
}

/// Says why the index could not be fetched.
void TellNotLoaded(const std::string& text, const std::string& address, const std::string& error) {
    const std::string sentence = "não foi possível carregar: " + error;
    const std::string place = Catalog::ResolveInCatalog(address, Catalog::CatalogIndexName);
    if (error.ends_with(place)) {
        TellErrorAtAddress(sentence);
    } else {
        TellError(sentence);
    }
    const std::string typed = Catalog::NormalizeCatalogAddress(text);
    if (!Catalog::IsRemoteAddress(address) && IsMeantForTheWeb(typed)) {
        TellError("um endereço da internet começa com https:// ou http://; " +
                  Text::QuotedText(typed) + " foi lido como uma pasta deste computador");
    }
}

/// Reads the index. False when there is none that can be used; the user was told why.
bool LoadIndex(const std::string& text, const std::string& address, Catalog::CatalogIndex& index) {
    if (address.empty()) {
        TellError("informe o endereço do catálogo");
        return false;
    }
    const Catalog::FetchResult fetched =
        Catalog::FetchCatalogFile(address, Catalog::CatalogIndexName);
    if (!fetched.ok) {
        TellNotLoaded(text, address, fetched.error);
        return false;
    }
    index = Catalog::ParseCatalogIndex(fetched.bytes);
    if (!index.ok) {
        TellError(index.error);
    }
    return index.ok;
}

Catalog::CatalogCheck CheckWithProgress(const std::string& address,
                                        const Catalog::CatalogIndex& index) {
    ProgressState progress;
    progress.style = ChooseProgressStyle(false);
    if (progress.style == ProgressStyle::Lines) {
        progress.style = ProgressStyle::None; // one line that tells nothing new
    }
    const auto tell = [&progress](std::size_t done, std::size_t all) {
        TellProgress(progress, 0, "Verificando o catálogo",
                     static_cast<double>(done) / static_cast<double>(all));
    };
    const auto fetch = [](const std::string& url, std::uint64_t maxBytes) {
        return Catalog::HttpGetWith(url, maxBytes, Catalog::HttpTimeouts{}, Interrupted);
    };
    Catalog::CatalogCheck check = Catalog::CheckCatalog(address, index, tell, fetch, Interrupted);
    EndProgress(progress);
    return check;
}

void TellJson(const Catalog::JsonValue& json) {
    std::fputs(Catalog::JsonWrite(json).c_str(), stdout);
}

std::string JoinWords(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text.append(text.empty() ? "" : " ").append(word);
    }
    return text;
}

/// What was searched for, for the sentence that nothing was found.
std::string SoughtText(const ListCatalogArguments& arguments) {
    std::string sought;
    if (!arguments.words.empty()) {
        sought = " contém " + Text::QuotedText(JoinWords(arguments.words));
    }
    if (!arguments.manufacturer.empty()) {
        sought +=
            (sought.empty() ? " é de " : " e é de ") + Text::QuotedText(arguments.manufacturer);
    }
    return sought;
}

} // namespace

int CheckCatalogCommand(const CheckCatalogArguments& arguments) {
    const std::string address = BaseAddress(arguments.address);
    Catalog::CatalogIndex index;
    if (!LoadIndex(arguments.address, address, index)) {
        return StatusFailed;
    }
    CatchInterrupts(); // not before: a server that is silent on the index can be left at once
    const Catalog::CatalogCheck check = CheckWithProgress(address, index);
    if (check.stopped) {
        TellError("verificação cancelada");
        return StatusCancelled;
    }
    if (arguments.json) {
        TellJson(Document::CatalogCheckJson(address, index, check));
    } else {
        TellLine(Document::CatalogSummary(index));
        for (const std::string& line : Document::CatalogCheckLines(check)) {
            TellLine(line);
        }
    }
    return check.findings.empty() ? StatusDone : StatusNotMet;
}

int ListCatalogCommand(const ListCatalogArguments& arguments) {
    Catalog::CatalogIndex index;
    if (!LoadIndex(arguments.address, BaseAddress(arguments.address), index)) {
        return StatusFailed;
    }
    const std::string query = JoinWords(arguments.words);
    Document::CatalogSelection products;
    for (const Catalog::CatalogProduct& product : index.products) {
        if (Catalog::ProductMatches(product, arguments.manufacturer, query)) {
            products.push_back(&product);
        }
    }
    if (arguments.json) {
        TellJson(Document::CatalogListJson(products));
    } else if (!products.empty()) {
        for (const std::string& line : Document::CatalogListLines(products)) {
            TellLine(line);
        }
        TellLine("");
    }
    const std::string sought = SoughtText(arguments);
    if (products.empty() && !sought.empty()) {
        TellError("nenhum produto do catálogo" + sought);
        return StatusFailed;
    }
    if (!arguments.json) {
        const std::string shown = std::to_string(products.size()) + " de ";
        TellLine((sought.empty() ? "" : shown) + Document::CatalogSummary(index));
    }
    return StatusDone;
}

} // namespace Merivane::Program
