#include "PartSample.hpp"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"

namespace Merivane::Workbench::Parts {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;

LibraryParameter MakeParameter(std::string name, ParameterType type, double number) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.description = "o que " + parameter.name + " diz: \"<&>\"";
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

LibraryParameter MakeTable() {
    LibraryParameter table = MakeParameter("mvTabela", ParameterType::Real, 0.0);
    table.isArray = true;
    table.dim1 = 2;
    table.dim2 = 3;
    table.numbers = {1.0, 2.5, -3.0, 1e-12, 1e300, 0.1};
    return table;
}

LibraryParameter MakeNames() {
    LibraryParameter names = MakeParameter("mvNomes", ParameterType::String, 0.0);
    names.isArray = true;
    names.dim1 = 3;
    names.texts = {"um", "", "\"três\" ]]> 'x'"};
    return names;
}

/// What random texts are made of: the pieces that a careless writer trips over.
std::string RandomText(std::mt19937& random, bool lines) {
    static const std::vector<std::string> Pieces = {
        "a",  "Z",   " ", "\"", "\"\"", "'", "<",  ">", "&",   "&amp;",     "]]>",
        "]]", "-->", "é", "≥",  "💡",    "0", "\\", "%", "{2}", "<![CDATA[", "</Symbol>"};
    std::string text;
    const std::size_t count = random() % 12;
    for (std::size_t i = 0; i < count; ++i) {
        text += lines && random() % 6 == 0 ? "\n" : Pieces[random() % Pieces.size()];
    }
    return text;
}

double RandomNumber(std::mt19937& random) {
    const double numbers[] = {0.0, 1.0, -1.5, 0.1, 1e-300, 1.7976931348623157e308, 12345.678};
    return random() % 2 == 0 ? numbers[random() % 7]
                             : std::uniform_real_distribution<double>(-1e6, 1e6)(random);
}

PartParameter RandomParameter(std::mt19937& random, std::size_t number) {
    PartParameter made;
    LibraryParameter& parameter = made.value;
    parameter.name = "p" + std::to_string(number) + (random() % 3 == 0 ? "<&\"'>" : "");
    parameter.description = RandomText(random, false);
    parameter.type = static_cast<ParameterType>(1 + random() % 17);
    parameter.flags = static_cast<std::int32_t>(random() & 0xFFU);
    const bool isText = parameter.type == ParameterType::String;
    if (parameter.type == ParameterType::Separator || parameter.type == ParameterType::Title) {
        return made;
    }
    parameter.isArray = random() % 4 == 0;
    if (!parameter.isArray) {
        parameter.number = isText ? 0.0 : RandomNumber(random);
        parameter.text = isText ? RandomText(random, true) : "";
        return made;
    }
    parameter.dim1 = static_cast<std::int32_t>(1 + random() % 4);
    parameter.dim2 = random() % 2 == 0 ? 0 : static_cast<std::int32_t>(2 + random() % 3);
    const std::int32_t count = parameter.dim1 * std::max(parameter.dim2, 1);
    for (std::int32_t i = 0; i < count; ++i) {
        if (isText) {
            parameter.texts.push_back(RandomText(random, true));
        } else {
            parameter.numbers.push_back(RandomNumber(random));
        }
    }
    return made;
}

std::string RandomBytes(std::mt19937& random) {
    std::string bytes(1 + random() % 200, '\0');
    std::generate(bytes.begin(), bytes.end(), [&random] { return static_cast<char>(random()); });
    return bytes;
}

} // namespace

Host::Guid NumberedGuid(std::uint8_t number) {
    Host::Guid guid;
    guid.bytes[0] = 0xA5;
    guid.bytes[15] = number;
    return guid;
}

PartDocument MakeFullPart() {
    PartDocument part;
    part.mainGuid = NumberedGuid(1);
    part.revision = NumberedGuid(2);
    part.type = Host::PartType::Lamp;
    part.ancestry = AncestryOfSubtype(BuiltInSubtype(LightSubtype));
    part.macros = {{"macro \"de\" <teste>", NumberedGuid(3)}};
    part.texts = {{"3DSC", 0, "block A, B, 0.1\nif a < b & c > d then \"x]]>y\"\n"},
                  {"2DSC", 0, "hotspot2 0, 0\n"},
                  {"1DSC", 0, ""},
                  {"VLSC", 0, "values \"mvOn\" 0, 1"},
                  {"KWRD", 0, "Vantoro"},
                  {"CTXT", 0, "Luminária de teste\n≥ 500 lx"}};
    part.parameters.sizeA.number = 1.2;
    part.parameters.sizeB.number = 0.3;
    part.parameters.parameters = {{MakeParameter("ZZYZX", ParameterType::Length, 0.06), {}},
                                  {MakeParameter("mvGiro", ParameterType::Angle, 90.0), {}},
                                  {MakeTable(), {}},
                                  {MakeNames(), {}}};
    part.parameters.parameters[0].value.flags = Host::ParameterFixed;
    part.parameters.parameters[1].value.flags = Host::ParameterHidden | Host::ParameterChild;
    part.hasCopyright = true;
    part.copyright = {"Quem & quem", "CC BY", "4.0"};
    part.pictures = {{true, 0, "image/png", std::string("\x89PNG\r\n\0\xFF", 8), ""},
                     {false, 1, "image/jpeg", "\xFF\xD8\xFF", ""}};
    part.custom = {{"MVIE", 3, std::string("IESNA\0\x01", 7)}};
    return part;
}

PartDocument MakeRandomPart(std::uint32_t seed) {
    std::mt19937 random(seed);
    PartDocument part;
    part.mainGuid = NumberedGuid(static_cast<std::uint8_t>(1 + random() % 200));
    part.revision = NumberedGuid(static_cast<std::uint8_t>(random()));
    part.type = static_cast<Host::PartType>(random() % 14);
    part.isPlaceable = random() % 2 == 0;
    part.isTemplate = random() % 2 == 0;
    part.ancestry.assign(random() % 4, NumberedGuid(9));
    for (const TextSectionKind& kind : TextSectionKinds()) {
        if (random() % 2 == 0) {
            part.texts.push_back({std::string(kind.type), static_cast<std::int32_t>(random() % 3),
                                  RandomText(random, true)});
        }
    }
    part.hasParameters = random() % 8 != 0;
    for (std::size_t i = 0; part.hasParameters && i < random() % 20; ++i) {
        part.parameters.parameters.push_back(RandomParameter(random, i));
    }
    if (random() % 2 == 0) {
        part.macros = {{RandomText(random, false), NumberedGuid(7)}};
        part.pictures = {{random() % 2 == 0, 2, "image/png", RandomBytes(random), ""}};
        part.custom = {{"A<&\"", 65535, RandomBytes(random)}};
    }
    return part;
}

PartDocument ReadBack(const std::string& xml) {
    PartDocument read;
    std::vector<std::string> notes;
    std::string error;
    EXPECT_TRUE(ReadPartXml(xml, read, notes, error)) << error;
    EXPECT_EQ(notes, std::vector<std::string>());
    return read;
}

} // namespace Merivane::Workbench::Parts
