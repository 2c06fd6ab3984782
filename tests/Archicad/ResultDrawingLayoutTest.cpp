#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultLegend.hpp"
#include "ModelSample.hpp"
#include "ResultSample.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

namespace Merivane::Archicad {
namespace {

using Host::ElementType;
using Simulation::Bounds2D;
using Simulation::ZoneDrawing;

bool Meet(const Bounds2D& a, const Bounds2D& b) {
    constexpr double touching = 1e-6;
    return a.minimum.x < b.maximum.x - touching && b.minimum.x < a.maximum.x - touching &&
           a.minimum.y < b.maximum.y - touching && b.minimum.y < a.maximum.y - touching;
}

class LayoutOfAFloor : public Tests::ResultTest {
protected:
    LayoutOfAFloor() {
        options.levels = {100, 200, 300, 400, 500, 750};
        for (int k = 0; k < 3; ++k) {
            drawings.push_back(Tests::SmoothDrawing("Sala " + std::to_string(k),
                                                    Tests::PlanArea(5.2 * k, 0, 5, 4),
                                                    options.levels, k == 1 ? "" : "s22.2"));
        }
    }

    FloorLayout LayOut(double scale) {
        Open().planScale = scale;
        options.scale = scale;
        Prepare();
        std::vector<const ZoneDrawing*> pointers;
        for (const ZoneDrawing& drawing : drawings) {
            pointers.push_back(&drawing);
        }
        return LayOutFloor(0, pointers, options, structure);
    }

    Bounds2D BoxOf(const Simulation::Point2D& corner, double width, double height) const {
        const double m = structure.scale / 1000.0;
        return {{corner.x, corner.y - height * m}, {corner.x + width * m, corner.y}};
    }

    /// The summaries and the legend.
    std::vector<Bounds2D> Blocks(const FloorLayout& layout) const {
        std::vector<Bounds2D> blocks;
        for (const ZonePlacement& zone : layout.zones) {
            const auto extent =
                Simulation::MeasureSummary(Simulation::BuildZoneSummary(*zone.drawing));
            blocks.push_back(BoxOf(zone.summary, extent.width, extent.height));
        }
        const LegendExtent legend = MeasureLegend(options.levels);
        blocks.push_back(BoxOf(layout.legend, legend.width, legend.height));
        return blocks;
    }

    /// Moves an element of 2 x 2 m about (x, y) into the project.
    Workbench::ProjectElement& AddHatch(double x, double y) {
        Workbench::ProjectElement& hatch = Tests::AddElement(Open(), ++number, ElementType::Hatch);
        hatch.element.data = Host::HatchData{{1}, {}, false, 0, 1};
        hatch.memo.polygon = {Tests::PlanRectangle(x - 1, y - 1, 2, 2)};
        return hatch;
    }

    void Reopen() { Workbench::OpenProject(Workbench::Project(Open())); }

    std::vector<ZoneDrawing> drawings;

private:
    std::uint32_t number = 100;
};

TEST_F(LayoutOfAFloor, KeepsBlocksClearOfZonesAndOfEachOtherAtEveryScale) {
    for (const double scale : {20.0, 50.0, 100.0, 200.0}) {
        SCOPED_TRACE(scale);
        const std::vector<Bounds2D> blocks = Blocks(LayOut(scale));
        for (std::size_t a = 0; a < blocks.size(); ++a) {
            for (std::size_t b = 0; b < a; ++b) {
                EXPECT_FALSE(Meet(blocks[a], blocks[b])) << a << " " << b;
            }
            for (const ZoneDrawing& drawing : drawings) {
                EXPECT_FALSE(Meet(blocks[a], Simulation::OuterBounds(drawing.zone.outline)));
            }
        }
    }
}

TEST_F(LayoutOfAFloor, TextsAsTheyAreDrawnCoverEachOtherAtNoScale) {
    for (const double scale : {20.0, 50.0, 100.0, 200.0}) {
        SCOPED_TRACE(scale);
        const FloorLayout layout = LayOut(scale);
        Draw([&] {
            for (const ZonePlacement& zone : layout.zones) {
                DrawZone(zone, options, structure, warnings);
            }
            DrawLegend(0, layout.legend, options, structure, warnings);
        });
        std::vector<std::pair<std::string, Bounds2D>> texts;
        for (const Workbench::ProjectElement& element : Elements(ElementType::Text)) {
            Host::Coordinate3D low;
            Host::Coordinate3D high;
            ASSERT_EQ(Host::GetBounds(element.element.header.guid, low, high), Host::NoError);
            const std::string& name = element.memo.paragraphs.front().text;
            const Bounds2D box{{low.x, low.y}, {high.x, high.y}};
            for (const auto& [otherName, other] : texts) {
                const bool limits = name.starts_with("Limite") && otherName.starts_with("Limite");
                EXPECT_FALSE(!limits && Meet(box, other)) << name << " " << otherName;
            }
            texts.emplace_back(name, box);
        }
        std::int32_t count = 0;
        std::int32_t held = 0;
        Draw([&] { DeleteResultElements(structure.layers, {0}, count, held); });
        EXPECT_EQ(Elements(ElementType::Text).size(), 0U);
    }
}

TEST_F(LayoutOfAFloor, HandsTheZonesOnInTheirOrderOnTheirFloor) {
    const FloorLayout layout = LayOut(100.0);
    EXPECT_EQ(layout.floorIndex, 0);
    ASSERT_EQ(layout.zones.size(), 3U);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(layout.zones[k].drawing, &drawings[k]);
        EXPECT_EQ(layout.zones[k].floorIndex, 0);
    }
}

TEST_F(LayoutOfAFloor, KeepsBlocksClearOfWhatStandsOnTheFloor) {
    const std::vector<Bounds2D> free = Blocks(LayOut(100.0));
    for (const Bounds2D& block : free) {
        AddHatch((block.minimum.x + block.maximum.x) / 2, (block.minimum.y + block.maximum.y) / 2);
    }
    Reopen();
    const std::vector<Bounds2D> moved = Blocks(LayOut(100.0));
    for (const Bounds2D& block : moved) {
        for (const Workbench::ProjectElement& hatch : Elements(ElementType::Hatch)) {
            const auto& ring = hatch.memo.polygon[0].vertices;
            EXPECT_FALSE(Meet(block, {{ring[0].x, ring[0].y}, {ring[2].x, ring[2].y}}));
        }
    }
}

TEST_F(LayoutOfAFloor, PassesOverOtherFloorsHiddenLayersAndTerrain) {
    const FloorLayout free = LayOut(100.0);
    const std::vector<Bounds2D> blocks = Blocks(free);
    for (const Bounds2D& block : blocks) {
        const double x = (block.minimum.x + block.maximum.x) / 2;
        const double y = (block.minimum.y + block.maximum.y) / 2;
        AddHatch(x, y).element.header.floorIndex = 1;
        AddHatch(x, y).element.header.layer = {3};
        Workbench::ProjectElement& mesh = AddHatch(x, y);
        mesh.element.header.type = ElementType::Mesh;
        mesh.element.data = {};
    }
    Reopen();
    const FloorLayout layout = LayOut(100.0);
    EXPECT_EQ(layout.legend, free.legend);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(layout.zones[k].summary, free.zones[k].summary);
    }
}

TEST_F(LayoutOfAFloor, HoldsASlantingLineInPartsAndALineOfTheSiteByItsSides) {
    const FloorLayout free = LayOut(100.0);
    Workbench::ProjectElement& site = AddHatch(0, 0);
    site.element.header.type = ElementType::PolyLine;
    site.element.data = Host::PolyLineData{true, 1, {}};
    site.memo.polygon = {{{{-500, 0}, {0, -500}, {500, 0}, {0, 500}}, {}}};
    Reopen();
    const FloorLayout layout = LayOut(100.0);
    EXPECT_EQ(layout.legend, free.legend);
    EXPECT_EQ(layout.zones[0].summary, free.zones[0].summary);
}

TEST_F(LayoutOfAFloor, MeasuresTextsInTheScaleOfTheResults) {
    const FloorLayout free = LayOut(100.0);
    Workbench::ProjectElement& note = AddHatch(0, 0);
    note.element.header.type = ElementType::Text;
    Host::TextData text; // beside the summary in 1:100, on it in the scale of the results
    text.position = {free.zones[0].summary.x - 3.0, free.zones[0].summary.y - 1.0};
    note.element.data = text;
    note.memo = {};
    note.memo.paragraphs = {{"Observação", {{10, 1, 2.0, false}}, {}}};
    Reopen();
    EXPECT_EQ(LayOut(100.0).zones[0].summary, free.zones[0].summary);
    Open().planScale = 10.0;
    options.scale = 100.0;
    Prepare();
    std::vector<const ZoneDrawing*> pointers = {&drawings[0], &drawings[1], &drawings[2]};
    EXPECT_EQ(LayOutFloor(0, pointers, options, structure).zones[0].summary, free.zones[0].summary);
    text.position.x = free.zones[0].summary.x - 0.5;
    Open().elements.front().element.data = text;
    Reopen();
    Prepare();
    const FloorLayout moved = LayOutFloor(0, pointers, options, structure);
    EXPECT_FALSE(Meet(Blocks(moved)[0], {{text.position.x, text.position.y},
                                         {text.position.x + 1.8, text.position.y + 0.2}}));
}

TEST_F(LayoutOfAFloor, GoesOnWhateverTheHostDoesNotTell) {
    const FloorLayout free = LayOut(100.0);
    AddHatch(60, 60);
    Reopen();
    for (const char* const operation :
         {"ListElements", "GetElement", "GetBounds", "GetDrawingScale"}) {
        options.scale = 100.0;
        Workbench::FailCall(operation, 1, Host::GeneralError);
        EXPECT_EQ(LayOut(100.0).zones[0].summary, free.zones[0].summary) << operation;
    }
}

TEST_F(LayoutOfAFloor, HasNoLegendWhereNoneIsWanted) {
    options.legend = false;
    EXPECT_EQ(LayOut(100.0).legend, Simulation::Point2D());
}

TEST_F(LayoutOfAFloor, WithoutZonesIsEmpty) {
    drawings.clear();
    const FloorLayout layout = LayOut(100.0);
    EXPECT_TRUE(layout.zones.empty());
    EXPECT_EQ(layout.legend, Simulation::Point2D());
}

} // namespace
} // namespace Merivane::Archicad
