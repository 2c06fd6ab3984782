#include "Catalog/InnerPath.hpp"

#include <algorithm>
#include <cstddef>
#include <system_error>

#include "Text/FileName.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Catalog {

namespace {

/// ".." as Windows reads it: points and blanks at the end of a name don't count there.
bool LeadsUp(std::string_view part) {
    return part.size() > 1 && part.find_first_not_of(". ") == std::string_view::npos;
}

/// What is wrong with a whole path, its parts aside.
PathFault FaultOfBytes(std::string_view path) {
    constexpr unsigned char FirstPrintable = 32;
    if (std::any_of(path.begin(), path.end(),
                    [](char c) { return static_cast<unsigned char>(c) < FirstPrintable; })) {
        return PathFault::ControlCharacter;
    }
    if (path.starts_with('/')) {
        return PathFault::LeadsOut;
    }
    if (path.find('\\') != std::string_view::npos) {
        return PathFault::BackSlash;
    }
    return path.find(':') != std::string_view::npos ? PathFault::Colon : PathFault::None;
}

const char* Words(PathFault fault) {
    switch (fault) {
    case PathFault::None:
        break;
    case PathFault::LeadsOut:
        return "um caminho que sai da pasta dele";
    case PathFault::LinkLeadsOut:
        return "um caminho que um atalho leva para fora da pasta dele";
    case PathFault::NoFileName:
        return "um caminho que nao termina no nome de um arquivo";
    case PathFault::BackSlash:
        return "um caminho com barra invertida";
    case PathFault::Colon:
        return "um caminho com dois-pontos";
    case PathFault::ControlCharacter:
        return "um caminho com um caractere de controle";
    case PathFault::DeviceName:
        return "um nome que o Windows reserva para dispositivos";
    }
    return "um caminho";
}

} // namespace

PathFault FaultOfPath(std::string_view path) {
    if (const PathFault fault = FaultOfBytes(path); fault != PathFault::None) {
        return fault;
    }
    std::string_view part;
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        part = path.substr(start, end - start);
        if (LeadsUp(part)) {
            return PathFault::LeadsOut;
        }
        if (Text::IsDeviceName(part)) {
            return PathFault::DeviceName;
        }
        start = end + 1;
    }
    const bool hasName = part.find_first_not_of(". ") != std::string_view::npos;
    return hasName ? PathFault::None : PathFault::NoFileName;
}

std::string RefusedPath(PathFault fault, std::string_view path) {
    return std::string("o catalogo lista ") + Words(fault) + ": \"" + Text::ShownText(path) + '"';
}

bool IsInnerPath(std::string_view path) {
    return FaultOfPath(path) == PathFault::None;
}

bool StandsBelow(const std::filesystem::path& folder, const std::filesystem::path& realPath) {
    std::error_code code;
    const std::filesystem::path root = std::filesystem::canonical(folder, code);
    return !code && root != realPath &&
           std::mismatch(root.begin(), root.end(), realPath.begin(), realPath.end()).first ==
               root.end();
}

bool IsFreeOfLinks(const std::filesystem::path& folder, const std::filesystem::path& file) {
    std::filesystem::path place = folder;
    const std::filesystem::path way = file.lexically_relative(folder);
    for (auto part = way.begin(); part != way.end(); ++part) {
        place /= *part;
        std::error_code code;
        const auto type = std::filesystem::symlink_status(place, code).type();
        if (type == std::filesystem::file_type::not_found) {
            return true;
        }
        const bool isLast = std::next(part) == way.end();
        if (type != (isLast ? std::filesystem::file_type::regular
                            : std::filesystem::file_type::directory)) {
            return false;
        }
    }
    return true;
}

} // namespace Merivane::Catalog
