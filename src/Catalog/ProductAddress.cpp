#include "Catalog/ProductAddress.hpp"

#include <algorithm>
#include <cstddef>

#include "Catalog/Slug.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

constexpr std::size_t LongestManufacturer = 40; // bytes of each slug
constexpr std::size_t LongestName = 50;
constexpr std::size_t LongestLamp = 30;

/// The name of a file without its folders and its extension.
std::string_view FileStem(std::string_view path) {
    const std::size_t folder = path.find_last_of("/\\");
    const std::string_view name = folder == std::string_view::npos ? path : path.substr(folder + 1);
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos || point == 0 ? name : name.substr(0, point);
}

std::string Either(const std::string& first, std::string_view otherwise) {
    return first.empty() ? std::string(otherwise) : first;
}

bool IsAddressPart(std::string_view part) {
    return !part.empty() && part != "." && part != ".." &&
           std::all_of(part.begin(), part.end(), [](char c) {
               return Text::IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                      c == '-' || c == '.' || c == '_';
           });
}

} // namespace

std::string ProductAddress(std::string_view manufacturer, std::string_view code,
                           std::string_view name, std::string_view lamp,
                           std::string_view iesFileName) {
    const std::string_view source = Text::Trim(code).empty() ? name : code;
    std::string stem = Slugify(source, LongestName);
    if (stem.empty()) {
        stem = Either(Slugify(FileStem(iesFileName), LongestName), "luminaria");
    }
    if (const std::string lampPart = Slugify(lamp, LongestLamp); !lampPart.empty()) {
        stem += "-" + lampPart;
    }
    return Either(Slugify(manufacturer, LongestManufacturer), "sem-fabricante") + "/" + stem;
}

bool IsValidProductAddress(std::string_view text) {
    const std::size_t slash = text.find('/');
    return slash != std::string_view::npos && IsAddressPart(text.substr(0, slash)) &&
           IsAddressPart(text.substr(slash + 1));
}

std::string ProductPackageFolder(std::string_view address) {
    return "pacotes/" + std::string(address);
}

std::string ProductLeafName(std::string_view address) {
    const std::size_t slash = address.find('/');
    return std::string(slash == std::string_view::npos ? address : address.substr(slash + 1));
}

} // namespace Merivane::Catalog
