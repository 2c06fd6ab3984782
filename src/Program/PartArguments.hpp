#pragma once

#include <string>

namespace Merivane::Program {

/// `vantoro peca mostrar`: what a library part holds.
struct ShowPartArguments {
    std::string file;
};

/// `vantoro peca exportar`: a library part in the forms that the host's converter takes.
struct ExportPartArguments {
    std::string file;
    std::string folder;  ///< where the part's own folder of files is made; empty = none
    std::string xmlFile; ///< empty = none
};

} // namespace Merivane::Program
