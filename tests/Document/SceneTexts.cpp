#include "SceneTexts.hpp"

#include <gtest/gtest.h>

namespace Merivane::Tests {

std::string UniformIes(const std::string& header) {
    return "IESNA:LM-63-2002\n" + header +
           "TILT=NONE\n1 1000 1 3 1 1 2 0.1 0.2 0\n1 1 25\n0 90 180\n0\n1 1 1\n";
}

Document::IesLoader UniformLoader() {
    return [](const std::string& path, std::string& bytes) {
        bytes = path == "ruim.ies" ? "nada" : UniformIes("[LUMCAT] D-1\n[MANUFAC] Oficina\n");
        return path != "falta.ies";
    };
}

std::string SceneText(const std::string& members) {
    return R"({"formato": 1, "zonas": [{"nome": "Sala", "altura": 3,)"
           R"("contorno": [[0, 0], [4, 0], [4, 4], [0, 4]]}])" +
           (members.empty() ? "" : ", " + members) + "}";
}

std::string ZoneText(const std::string& members) {
    return R"({"formato": 1, "zonas": [{"nome": "Sala", )" + members + "}]}";
}

Simulation::LightingStudy ReadScene(const std::string& text) {
    Simulation::LightingStudy document;
    std::string error;
    EXPECT_TRUE(Document::ParseSceneDocument(text, UniformLoader(), document, error)) << error;
    return document;
}

std::string SceneError(const std::string& text) {
    Simulation::LightingStudy document;
    std::string error;
    return Document::ParseSceneDocument(text, UniformLoader(), document, error) ? "" : error;
}

} // namespace Merivane::Tests
