#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "AddOn/CalculationSession.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;
using Workbench::CurrentSession;

/// What a run left behind.
struct Outcome {
    CalculationEnd end = CalculationEnd::Refused;
    Tests::ElementCounts elements;
    std::size_t views = 0;
    Lines report;
};

/// Items of dialogs have no failures in the host: where a test makes one, what it changes is told
/// nowhere.
bool BelongsToDialogs(const std::string& operation) {
    return operation.find("Item") != std::string::npos ||
           operation.find("Dialog") != std::string::npos;
}

/// The lines that tell of something that went wrong, or of less than there should be.
Lines Complaints(const Lines& report) {
    Lines complaints;
    for (const std::string& line : report) {
        if (line.starts_with("!") || line.find(" failed: ") != std::string::npos ||
            line.find("nao p") != std::string::npos || line.find("ilegivel") != std::string::npos ||
            line.find("nao ") != std::string::npos || line.find("sem ") != std::string::npos) {
            complaints.push_back(line);
        }
    }
    return complaints;
}

class RefusingHost : public Tests::CalculationSession {
protected:
    static Outcome Run() {
        Tests::PrepareAnswers("[" + DialogAnswer(R"({"item": 29, "marcado": true})") + "]");
        Outcome outcome;
        outcome.end = RunCalculation().end;
        outcome.elements = Tests::CountElements(CurrentSession().project);
        outcome.views = CurrentSession().project.views.size();
        outcome.report = Tests::ReportWindow();
        return outcome;
    }

    /// The calls of a run in which nothing fails.
    std::map<std::string, int, std::less<>> CallsOfARun() {
        CurrentSession().calls.clear();
        usual = Run();
        return CurrentSession().calls;
    }

    /// A run with that call refused: it ends, it tells where it came out otherwise, and one undo
    /// takes back whatever it drew.
    void RefuseCall(const std::string& operation, int nth) {
        SCOPED_TRACE(operation + ", call " + std::to_string(nth));
        OpenSample();
        const Workbench::Project before = CurrentSession().project;
        Workbench::FailCall(operation, nth, Host::GeneralError);
        const Outcome outcome = Run();
        if (!BelongsToDialogs(operation) &&
            (outcome.end != usual.end || outcome.elements != usual.elements ||
             outcome.views != usual.views)) {
            EXPECT_GT(Complaints(outcome.report).size(), Complaints(usual.report).size())
                << ::testing::PrintToString(outcome.report);
        }
        EXPECT_LE(Workbench::UndoNames().size(), 1U);
        Workbench::Undo();
        EXPECT_TRUE(CurrentSession().project.elements == before.elements);
    }

    Outcome usual;
};

TEST_F(RefusingHost, IsToldAndLeavesNothingThatOneUndoDoesNotTakeBack) {
    const auto calls = CallsOfARun();
    ASSERT_EQ(usual.end, CalculationEnd::Done);
    ASSERT_GT(calls.size(), 30U);
    for (const auto& [operation, count] : calls) {
        RefuseCall(operation, 1);
        if (count > 1) {
            RefuseCall(operation, count);
        }
    }
}

TEST_F(RefusingHost, IsToldWhateverElementItRefuses) {
    const int created = CallsOfARun().at("CreateElement");
    for (int nth = 2; nth < created; nth += 7) {
        RefuseCall("CreateElement", nth);
    }
}

} // namespace
} // namespace Merivane::Commands
