// Seconds for model scripts of 100,000 polygons, from the script's text to the bodies: many small
// bodies, each of them mirrored or cut, and one large one.
//   ScriptBench

#include <chrono>
#include <cstdio>
#include <string>

#include "Workbench/Script/ScriptRun.hpp"

using namespace Merivane::Workbench;

namespace {

struct Row {
    const char* name;
    std::string script;
};

void Time(const Row& row) {
    ScriptPart part;
    part.name = "Peca";
    part.model = row.script;
    PartModel model;
    const auto begin = std::chrono::steady_clock::now();
    const auto error = RunModelScript(part, {}, model);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    std::size_t faces = 0;
    for (const FacedBody& body : model.bodies) {
        faces += body.faces.size();
    }
    std::printf("%-28s %8zu faces %8.3f s  %s\n", row.name, faces, seconds.count(),
                error ? DescribeScriptError(*error).c_str() : "");
}

} // namespace

int main() {
    const std::string blocks = "FOR i = 1 TO 16667\nADD i * 0.01, 0, 0\nBLOCK 1, 1, 1\nDEL 1\n"
                               "NEXT i\n";
    const std::string mirrored = "MULX -1\n" + blocks + "DEL 1\n";
    const std::string cut = "ADDZ 0.5\nCUTPLANE\nDEL 1\n" + blocks + "CUTEND\n";
    const std::string tube = "CUTPOLYA 2, 1, 0.5, 80, 0.5, 915, 0.3, 360, 4015\n";
    const std::string hollowed = tube + blocks + "CUTEND\n";
    const std::string mesh =
        "DIM z[100489]\nFOR i = 1 TO 100489\nz[i] = 1 + 0.1 * SIN (i)\nNEXT i\n"
        "ADD -75, 0, 0\n" +
        tube + "DEL 1\nMESH 10, 10, 317, 317, 5, z\n";
    const std::string prisms = "FOR i = 1 TO 2632\nADD i * 0.01, 0, 0\nPRISM_ 2, 1, 0, 0, 915, 0.1,"
                               " 360, 4015\nDEL 1\nNEXT i\n";
    const std::string corners =
        "FOR i = 1 TO 317\nFOR j = 1 TO 317\nVERT i, j, 0\nNEXT j\nNEXT i\n";
    const std::string edges = "FOR i = 1 TO 100000\nEDGE i, i + 1, -1, -1, 0\nEDGE i + 1, i + 2, "
                              "-1, -1, 0\nEDGE i + 2, i, -1, -1, 0\nPGON 3, 0, 0, 3 * i - 2, "
                              "3 * i - 1, 3 * i\nNEXT i\n";
    for (const Row& row :
         {Row{"blocks", blocks}, Row{"blocks, mirrored", mirrored}, Row{"blocks, cut", cut},
          Row{"blocks, hollowed", hollowed}, Row{"MESH, hollowed", mesh},
          Row{"cylinders of PRISM_", prisms}, Row{"VERT, EDGE, PGON", corners + edges}}) {
        Time(row);
    }
    return 0;
}
