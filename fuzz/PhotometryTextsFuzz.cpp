// The first byte chooses the reader: stored plan symbols, the packed keywords of a luminaire, or
// the whole contract that an IES file becomes. Whatever the bytes, reading ends without a crash,
// and what is read is written so that it reads back.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Photometry/ContractBuilding.hpp"
#include "Photometry/ContractKeywords.hpp"
#include "Photometry/ContractReading.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesWriter.hpp"
#include "Photometry/SymbolRows.hpp"
#include "Photometry/UserSymbols.hpp"

using namespace Merivane::Photometry;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void ReadSymbols(std::string_view bytes) {
    const UserSymbols symbols = ParseUserSymbols(bytes);
    UserSymbols back = ParseUserSymbols(FormatUserSymbols(symbols));
    // A line break of another system can stand inside a name that is read; it is never written.
    Require(back.symbols.size() == symbols.symbols.size());
    for (std::size_t i = 0; i < back.symbols.size(); ++i) {
        back.symbols[i].name = symbols.symbols[i].name;
        const SymbolRowsResult rows = BuildSymbolRows(symbols.symbols[i]);
        Require(rows.ok == rows.error.empty() && rows.rows.size() <= SymbolDataRows);
    }
    Require(back == symbols);
}

// One string of the array a line.
void ReadKeywords(std::string_view bytes) {
    std::vector<std::string> texts;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        texts.emplace_back(bytes.substr(0, end));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    IesFile file;
    file.keywords = UnpackIesKeywords(texts);
    std::vector<std::string> packed = PackIesKeywords(file);
    // The first packing cuts what is too long; from then on nothing changes.
    file.keywords = UnpackIesKeywords(packed);
    Require(PackIesKeywords(file) == packed);
    for (const std::string& text : packed) {
        Require(text.size() <= LongestContractText);
    }
}

void ReadFile(std::string_view bytes) {
    IesFile file;
    if (!ReadIes(bytes, file).ok) {
        return;
    }
    IesFile back;
    Require(ReadContract(BuildContract(file, {}), back).ok);
    file.keywords = back.keywords;
    file.otherLines.clear();
    file.tiltFile = back.tiltFile;
    Require(WriteIes(file) == WriteIes(back));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0]) {
    case 's':
        ReadSymbols(bytes);
        break;
    case 'k':
        ReadKeywords(bytes);
        break;
    case 'c':
        ReadFile(bytes);
        break;
    default:
        break;
    }
    return 0;
}
