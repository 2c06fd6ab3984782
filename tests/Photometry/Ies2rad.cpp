#include "Ies2rad.hpp"

#include <cstdlib>

#include "Photometry/IesWriter.hpp"

namespace Merivane::Tests {

int Ies2rad::Convert(const Photometry::IesFile& file, std::string& complaint) const {
    const auto radiance = BuildFolder() / "Vantoro Radiance";
    WriteBytes(folder.Path() / "lamp.tab", "");
    WriteBytes(folder.Path() / "l.ies", Photometry::WriteIes(file));
    const std::string command =
        "cd '" + folder.Path().string() + "' && RAYPATH='.:" + (radiance / "lib").string() + "' '" +
        (radiance / "bin" / "ies2rad").string() + "' -dm -c 1 1 1 -m 1.000000 -o l l.ies 2> says";
    const int status = std::system(command.c_str());
    complaint = ReadBytes(folder.Path() / "says");
    return status;
}

} // namespace Merivane::Tests
