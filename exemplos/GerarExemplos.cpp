// gerar-exemplos PASTA: writes the IES files, the scenes and the project of the examples, with its
// library parts, into a folder. The same program writes the same bytes wherever and whenever it
// runs.

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "exemplos/LuminaireAuthoring.hpp"
#include "exemplos/OfficeProject.hpp"
#include "exemplos/SampleFormat.hpp"
#include "exemplos/SampleLuminaires.hpp"
#include "exemplos/SampleScenes.hpp"

namespace {

using namespace Merivane;

bool Write(const std::filesystem::path& path, const std::string& bytes) {
    std::error_code ignored; // without its folder the file can't be written
    std::filesystem::create_directories(path.parent_path(), ignored);
    if (Text::WriteFileBytes(Text::WidePath(path), bytes)) {
        return true;
    }
    std::fprintf(stderr, "não foi possível gravar \"%s\"\n", path.string().c_str());
    return false;
}

bool WriteAll(const std::filesystem::path& folder) {
    for (const Examples::SampleLuminaire& sample : Examples::BuildSampleLuminaires()) {
        if (!Write(folder / "ies" / sample.fileName, Examples::FormatSample(sample))) {
            return false;
        }
    }
    for (const Examples::SampleScene& scene : Examples::BuildSampleScenes()) {
        const std::string text =
            Catalog::JsonWrite(scene.document, {.numberArraysOnOneLine = true});
        if (!Write(folder / scene.name / (scene.name + ".json"), text)) {
            return false;
        }
    }
    Workbench::Project authored;
    std::string error;
    if (!Examples::AuthorLuminaires(std::filesystem::absolute(folder), authored, error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return false;
    }
    return Write(folder / "escritorio.vantoro",
                 Workbench::WriteProject(Examples::BuildOfficeProject(authored)));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("uso: gerar-exemplos PASTA\n", stderr);
        return 2;
    }
    return WriteAll(argv[1]) ? 0 : 1;
}
