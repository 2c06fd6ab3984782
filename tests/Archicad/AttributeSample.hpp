#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Attributes.hpp"
#include "Workbench/Session.hpp"

/// What tests of layers, combinations and views look at.
namespace Merivane::Tests {

/// An open project like a new one, with two stories, and with the layers 2 "Arquitetura",
/// 3 "Oculta" (hidden) and 4 "Travada" (locked).
class AttributeTest : public testing::Test {
protected:
    AttributeTest() {
        Workbench::OpenSession({});
        Workbench::Project project = Workbench::MakeEmptyProject();
        project.stories = {{0, 0.0, 3.0, "Terreo"}, {1, 3.0, 3.0, "Superior"}};
        project.layers[2] = {"Arquitetura", false, false};
        project.layers[3] = {"Oculta", true, false};
        project.layers[4] = {"Travada", false, true};
        Workbench::OpenProject(std::move(project));
    }
    ~AttributeTest() override { Workbench::OpenSession({}); }

    static Workbench::Project& Open() { return Workbench::CurrentSession().project; }

    /// The lines of the report window.
    static std::vector<std::string> Log() {
        std::vector<std::string> lines;
        for (const Workbench::ReportLine& line : Workbench::CurrentSession().reportLines) {
            lines.push_back(line.text);
        }
        return lines;
    }
};

using Lines = std::vector<std::string>;

} // namespace Merivane::Tests
