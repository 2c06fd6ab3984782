#include <algorithm>

#include <gtest/gtest.h>

#include "Drawing/TextSize.hpp"
#include "Simulation/Study/SummarySamples.hpp"
#include "Simulation/Study/TextExtent.hpp"
#include "Simulation/Study/ZoneSummary.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Workbench/Display/TextBlock.hpp"

// What is estimated of texts without a host against what the embedded host draws.
namespace Merivane::Archicad {
namespace {

using Simulation::SummaryParagraph;
using Simulation::SummaryText;

/// Every text of the summaries, and the activities that stand in their titles.
std::vector<SummaryText> RealTexts() {
    std::vector<SummaryText> texts;
    for (const auto& drawing : {Tests::FullDrawing(), Tests::PlainDrawing()}) {
        for (const SummaryParagraph& paragraph : Simulation::BuildZoneSummary(drawing)) {
            for (const SummaryText& part : paragraph.texts) {
                for (std::size_t at = 0; at <= part.text.size();) {
                    const std::size_t tab = std::min(part.text.find('\t', at), part.text.size());
                    texts.push_back({part.text.substr(at, tab - at), part.height, part.bold});
                    at = tab + 1;
                }
            }
        }
    }
    for (const Simulation::TaskRow& task : Simulation::TaskTable()) {
        texts.push_back({task.activity, 3.2, true});
        texts.push_back({task.activity, 2.4, false});
    }
    for (const char* const number : {"500", "1000", "< 50", "50 a 100", "≥ 1000", "50 lx"}) {
        texts.push_back({number, 2.0});
    }
    return texts;
}

double Drawn(const SummaryText& text) {
    return Drawing::MeasureText(text.text, text.height,
                                text.bold ? Drawing::TextWeight::Bold : Drawing::TextWeight::Normal)
        .width;
}

TEST(EstimateTextWidth, IsNeverLessThanDrawnAndLittleMore) {
    constexpr double MostAbove = 1.15;
    for (const SummaryText& text : RealTexts()) {
        if (text.text.empty()) {
            continue;
        }
        const double ratio =
            Simulation::EstimateTextWidth(text.text, text.height, text.bold) / Drawn(text);
        EXPECT_GE(ratio, 1.0) << text.text;
        EXPECT_LE(ratio, MostAbove) << text.text;
    }
}

std::vector<Host::TextParagraph> HostParagraphs(const std::vector<SummaryParagraph>& paragraphs) {
    std::vector<Host::TextParagraph> converted;
    for (const SummaryParagraph& source : paragraphs) {
        Host::TextParagraph& paragraph = converted.emplace_back();
        paragraph.tabs = source.tabs;
        for (const SummaryText& part : source.texts) {
            paragraph.text += part.text;
            const auto letters = std::count_if(part.text.begin(), part.text.end(), [](char byte) {
                return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
            });
            paragraph.stretches.push_back(
                {static_cast<std::int32_t>(letters), 1, part.height, part.bold});
        }
        if (source.texts.empty()) {
            paragraph.stretches.push_back({0, 1, source.blankHeight, false});
        }
    }
    return converted;
}

TEST(MeasureSummary, HoldsTheSummaryAsItIsDrawn) {
    for (const auto& drawing : {Tests::FullDrawing(), Tests::PlainDrawing()}) {
        const std::vector<SummaryParagraph> paragraphs = Simulation::BuildZoneSummary(drawing);
        const Simulation::SummaryExtent extent = Simulation::MeasureSummary(paragraphs);
        Host::TextData text;
        text.anchor = Host::TextAnchor::LeftTop;
        text.width = extent.width;
        double right = 0.0;
        double foot = 0.0;
        for (const Drawing::TextRun& run :
             Workbench::LayOutText(text, HostParagraphs(paragraphs), {0.0, 0.0})) {
            const Drawing::Box box = Drawing::TextBounds(run);
            right = std::max(right, box.right);
            foot = std::min(foot, box.bottom);
        }
        EXPECT_LE(right, extent.width);
        EXPECT_GE(foot, -extent.height);
        EXPECT_LT(foot, -0.8 * extent.height); // nor does it claim much more than it needs
    }
}

TEST(MeasureSummary, GivesEveryCellOfATableItsOwnPlace) {
    const std::vector<SummaryParagraph> paragraphs =
        Simulation::BuildZoneSummary(Tests::FullDrawing());
    Host::TextData text;
    text.anchor = Host::TextAnchor::LeftTop;
    text.width = Simulation::MeasureSummary(paragraphs).width;
    std::vector<Drawing::Box> boxes;
    for (const Drawing::TextRun& run :
         Workbench::LayOutText(text, HostParagraphs(paragraphs), {0.0, 0.0})) {
        const Drawing::Box box = Drawing::TextBounds(run);
        for (const Drawing::Box& other : boxes) {
            EXPECT_FALSE(Drawing::BoxesMeet(box, other)) << run.text;
        }
        boxes.push_back(box);
    }
}

} // namespace
} // namespace Merivane::Archicad
