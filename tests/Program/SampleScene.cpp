#include "Program/SampleScene.hpp"

#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

std::filesystem::path ToolsBeside(const std::filesystem::path& program) {
    return program.parent_path() / "Vantoro Radiance" / "bin";
}

} // namespace

std::string SampleSceneText() {
    return R"({
    "formato": 1,
    "nome": "Prova",
    "materiais": [{ "nome": "Branco", "refletancia": 0.6 }],
    "superficies": [
        { "material": "Branco", "vertices": [[0, 0, 0], [3, 0, 0], [3, 2, 0], [0, 2, 0]] },
        { "material": "Branco", "vertices": [[0, 0, 2.5], [0, 2, 2.5], [3, 2, 2.5], [3, 0, 2.5]] },
        { "material": "Branco", "vertices": [[0, 0, 0], [0, 0, 2.5], [3, 0, 2.5], [3, 0, 0]] },
        { "material": "Branco", "vertices": [[3, 0, 0], [3, 0, 2.5], [3, 2, 2.5], [3, 2, 0]] },
        { "material": "Branco", "vertices": [[3, 2, 0], [3, 2, 2.5], [0, 2, 2.5], [0, 2, 0]] },
        { "material": "Branco", "vertices": [[0, 2, 0], [0, 2, 2.5], [0, 0, 2.5], [0, 0, 0]] }
    ],
    "luminarias": [{ "nome": "D1", "ies": "luz.ies", "posicao": [1.5, 1, 2.45] }],
    "zonas": [
        {
            "nome": "Sala",
            "contorno": [[0, 0], [3, 0], [3, 2], [0, 2]],
            "altura": 2.5,
            "espacamento": 0.25
        }
    ],
    "pontos": [{ "posicao": [1.5, 1, 1.2] }],
    "motor": { "perfil": "rapido", "processos": 1 }
}
)";
}

std::string SampleIesText() {
    return "IESNA:LM-63-2002\r\n[TEST] 1\r\n[MANUFAC] Exemplo\r\n[LUMINAIRE] Painel\r\n"
           "TILT=NONE\r\n1 -1 1 5 1 1 2 0.3 0.3 0\r\n1 1 20\r\n0 30 60 80 90\r\n0\r\n"
           "800 700 400 100 0\r\n";
}

std::filesystem::path WriteSampleScene(const std::filesystem::path& folder) {
    WriteBytes(folder / "luz.ies", SampleIesText());
    WriteBytes(folder / "cena.json", SampleSceneText());
    return folder / "cena.json";
}

std::filesystem::path CopyProgram(const std::filesystem::path& folder) {
    std::filesystem::path program = folder / "vantoro";
    std::filesystem::copy_file(BuildFolder() / "vantoro", program);
    const std::filesystem::path real = BuildFolder() / "Vantoro Radiance";
    std::filesystem::create_directories(ToolsBeside(program));
    for (const std::string tool : {"ies2rad", "xform", "oconv", "rtrace"}) {
        std::filesystem::create_symlink(real / "bin" / tool, ToolsBeside(program) / tool);
    }
    std::filesystem::create_directory_symlink(real / "lib", folder / "Vantoro Radiance" / "lib");
    return program;
}

void ReplaceTool(const std::filesystem::path& program, const std::string& tool,
                 const std::string& script) {
    const std::filesystem::path place = ToolsBeside(program) / tool;
    std::filesystem::remove(place);
    if (script.empty()) {
        return;
    }
    WriteBytes(place, "#!/bin/sh\n" + script);
    std::filesystem::permissions(place, std::filesystem::perms::owner_all);
}

} // namespace Merivane::Tests
