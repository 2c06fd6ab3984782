#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "PartSample.hpp"
#include "Support/Places.hpp"
#include "Workbench/Parts/PartXml.hpp"

// What was written read by another XML reader: Python's, in a process of its own.
namespace Merivane::Workbench::Parts {
namespace {

/// Lists what the document holds, one thing a line, texts as Python writes them in hexadecimal.
constexpr const char* Reader = R"(
import sys, xml.etree.ElementTree as tree
def told(text):
    return (text or "").encode("utf-8").hex()
for name in sys.argv[1:]:
    root = tree.parse(name).getroot()
    print("part", root.tag, root.get("MainGUID"))
    for parameter in root.iterfind("ParamSection/Parameters/*"):
        print("parameter", parameter.tag, told(parameter.get("Name")),
              told(parameter.findtext("Description")), told(parameter.findtext("Value")),
              len(parameter.findall("ArrayValues/AVal")))
    for section in root:
        if section.tag.startswith("Script_"):
            print("script", section.tag, told(section.text))
)";

std::string Hex(const std::string& text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        hex += digits[byte >> 4U];
        hex += digits[byte & 15U];
    }
    return hex;
}

std::string Doubled(const std::string& text) {
    std::string doubled = "\"";
    for (const char c : text) {
        doubled += c == '"' ? "\"\"" : std::string(1, c);
    }
    return doubled + '"';
}

std::string ParameterLine(const std::string& tag, const Host::LibraryParameter& parameter) {
    const bool isText = parameter.type == Host::ParameterType::String;
    return "parameter " + tag + ' ' + Hex(parameter.name) + ' ' +
           Hex(Doubled(parameter.description)) + ' ' +
           (isText && !parameter.isArray ? Hex(Doubled(parameter.text)) : std::string("?")) + ' ' +
           std::to_string(parameter.numbers.size() + parameter.texts.size());
}

TEST(OtherReader, FindsEveryParameterAndScriptOfAWellFormedDocument) {
    const Tests::TemporaryFolder folder;
    PartDocument part = MakeFullPart();
    Host::LibraryParameter text;
    text.name = "mvTexto";
    text.description = "<&> \"]]>\" é";
    text.type = Host::ParameterType::String;
    text.text = "]]>\"";
    part.parameters.parameters.push_back({text, {}});
    Tests::WriteBytes(folder.Path() / "peca.xml", WritePartXml(part));
    Tests::WriteBytes(folder.Path() / "leitor.py", Reader);
    std::string command = "cd '" + folder.Path().string() + "' && python3 leitor.py peca.xml";
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
        const std::string name = "r" + std::to_string(seed) + ".xml";
        Tests::WriteBytes(folder.Path() / name, WritePartXml(MakeRandomPart(seed)));
        command += ' ' + name;
    }
    ASSERT_EQ(std::system((command + " > lista.txt").c_str()), 0);
    const std::string told = Tests::ReadBytes(folder.Path() / "lista.txt");
    EXPECT_TRUE(told.starts_with("part Symbol A5000000-0000-0000-0000-000000000001\n")) << told;
    EXPECT_NE(told.find(ParameterLine("String", text)), std::string::npos);
    for (const char* const name : {"A", "B", "ZZYZX", "mvGiro", "mvTabela", "mvNomes"}) {
        EXPECT_NE(told.find(' ' + Hex(name) + ' '), std::string::npos) << name;
    }
    EXPECT_NE(told.find("script Script_3D " + Hex('\n' + part.texts[0].text + '\n') + '\n'),
              std::string::npos);
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
        for (const PartParameter& parameter : MakeRandomPart(seed).parameters.parameters) {
            EXPECT_NE(told.find(' ' + Hex(parameter.value.name) + ' ' +
                                Hex(Doubled(parameter.value.description)) + ' '),
                      std::string::npos);
        }
    }
}

} // namespace
} // namespace Merivane::Workbench::Parts
