#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ProcessWindow.hpp"
#include "Host/Session.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Values = std::vector<std::int32_t>;

class ProcessWindowTest : public testing::Test {
protected:
    ProcessWindowTest() {
        Workbench::SessionOptions options;
        options.temporaryFolder = Text::WidePath(folder.Path());
        Workbench::OpenSession(options);
    }
    ~ProcessWindowTest() override { Workbench::OpenSession({}); }

    static std::vector<Workbench::ProcessWindow>& Windows() {
        return Workbench::CurrentSession().processWindows;
    }

    Tests::TemporaryFolder folder;
};

TEST_F(ProcessWindowTest, StandsOpenAsLongAsItLives) {
    {
        const ProcessWindow window("Trabalho", 3);
        ASSERT_EQ(Windows().size(), 1U);
        EXPECT_EQ(Windows()[0].title, "Trabalho");
        EXPECT_EQ(Windows()[0].phaseCount, 3);
        EXPECT_TRUE(Windows()[0].open);
    }
    EXPECT_FALSE(Windows()[0].open);
}

TEST_F(ProcessWindowTest, ClosesOnAnUnusualEndToo) {
    try {
        const ProcessWindow window("Trabalho", 1);
        throw std::runtime_error("fim");
    } catch (const std::runtime_error&) {
        EXPECT_FALSE(Windows().at(0).open);
    }
}

TEST_F(ProcessWindowTest, TellsEachValueOfAPhaseOnce) {
    ProcessWindow window("Trabalho", 2);
    window.BeginPhase("um", 10);
    for (const std::int32_t value : {0, 0, 3, 3, 10}) {
        window.Show(value);
    }
    window.BeginPhase("dois", 20);
    window.Show(10); // another phase's 10
    ASSERT_EQ(Windows()[0].phases.size(), 2U);
    EXPECT_EQ(Windows()[0].phases[0].title, "um");
    EXPECT_EQ(Windows()[0].phases[0].highest, 10);
    EXPECT_EQ(Windows()[0].phases[0].values, (Values{0, 3, 10}));
    EXPECT_EQ(Windows()[0].phases[1].title, "dois");
    EXPECT_EQ(Windows()[0].phases[1].values, Values{10});
}

TEST_F(ProcessWindowTest, KnowsWhenTheUserAskedToStop) {
    const ProcessWindow window("Trabalho", 1);
    EXPECT_FALSE(window.IsCancelled());
    Workbench::FailCall("CheckProcessCancelled", 1, Host::GeneralError);
    EXPECT_FALSE(window.IsCancelled()); // a failure is no answer
    Windows()[0].cancelled = true;
    EXPECT_TRUE(window.IsCancelled());
}

TEST_F(ProcessWindowTest, LeavesAWindowThatAnotherHasOpenedAlone) {
    ASSERT_EQ(Host::OpenProcessWindow("Outro", 1), Host::NoError);
    Windows()[0].cancelled = true;
    {
        ProcessWindow window("Trabalho", 1);
        window.BeginPhase("um", 10);
        window.Show(1);
        EXPECT_FALSE(window.IsCancelled());
    }
    ASSERT_EQ(Windows().size(), 1U);
    EXPECT_TRUE(Windows()[0].open);
    EXPECT_TRUE(Windows()[0].phases.empty());
    ASSERT_EQ(Workbench::CurrentSession().reportLines.size(), 1U);
    EXPECT_EQ(Workbench::CurrentSession().reportLines[0].text,
              "Vantoro: Abrir a janela de progresso failed: unknown error 0x81060386 (0x81060386)");
}

} // namespace
} // namespace Merivane::Archicad
