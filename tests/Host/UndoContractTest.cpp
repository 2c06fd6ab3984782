#include <stdexcept>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class UndoContract : public ProjectContract {};

/// What a person sees of the plan: every element with its record and memo, in order.
std::vector<std::pair<Element, ElementMemo>> WholePlan() {
    std::vector<std::pair<Element, ElementMemo>> plan;
    for (const Guid& guid : Listed(ElementType::Any)) {
        ElementMemo memo;
        EXPECT_EQ(GetMemo(guid, MemoParts::All, memo), NoError);
        plan.emplace_back(Read(guid), memo);
    }
    return plan;
}

/// One step that creates, changes and deletes.
ErrorCode ChangeManyThings(const Guid& changed, const Guid& deleted) {
    Sample text = MakeText();
    Sample gone = MakeArc();
    Element line = Read(changed);
    std::get<LineData>(line.data).end = {9.0, 9.0};
    for (const ErrorCode code :
         {CreateElement(text.element, text.memo), CreateElement(gone.element, gone.memo),
          ChangeElement(line, {}, {}), DeleteElements({deleted}),
          DeleteElements({gone.element.header.guid})}) {
        if (code != NoError) {
            return code;
        }
    }
    return NoError;
}

TEST_F(UndoContract, RefusesToChangeElementsOutsideAStep) {
    Sample sample = MakeLine();
    ASSERT_EQ(CreateInStep(sample), NoError);
    EXPECT_EQ(CreateElement(sample.element, sample.memo), NeedsUndoScope);
    EXPECT_EQ(ChangeElement(sample.element, sample.memo, MemoParts::All), NeedsUndoScope);
    EXPECT_EQ(DeleteElements({sample.element.header.guid}), NeedsUndoScope);
    EXPECT_TRUE(Exists(sample.element.header.guid));
}

TEST_F(UndoContract, ReturnsWhatTheChangeReturned) {
    EXPECT_EQ(CallUndoable("Prova", [] { return Cancelled; }), Cancelled);
    EXPECT_EQ(CallUndoable("Prova",
                           [] {
                               Sample line = MakeLine();
                               return CreateElement(line.element, line.memo);
                           }),
              NoError);
}

TEST_F(UndoContract, RefusesAStepInsideAnother) {
    ErrorCode inner = NoError;
    const ErrorCode outer = CallUndoable("Fora", [&inner] {
        Sample line = MakeLine();
        inner = CallUndoable("Dentro", [] { return NoError; });
        return CreateElement(line.element, line.memo);
    });
    EXPECT_EQ(inner, RefusedCommand);
    EXPECT_EQ(outer, NoError);
}

TEST_F(UndoContract, TakesBackWhatAFailedStepDid) {
    const Guid changed = Created(MakeLine());
    const Guid deleted = Created(MakeZone());
    ASSERT_EQ(SetSelection({deleted}), NoError);
    const auto before = WholePlan();
    EXPECT_EQ(CallUndoable("Prova",
                           [&] {
                               EXPECT_EQ(ChangeManyThings(changed, deleted), NoError);
                               return BadPolygon;
                           }),
              BadPolygon);
    EXPECT_EQ(WholePlan(), before);
    std::vector<Guid> selection;
    ASSERT_EQ(GetSelection(selection), NoError);
    EXPECT_EQ(selection, std::vector<Guid>{deleted});
}

TEST_F(UndoContract, TakesBackWhatAStepDidThatThrew) {
    const Guid changed = Created(MakeLine());
    const Guid deleted = Created(MakeLamp());
    const auto before = WholePlan();
    EXPECT_EQ(CallUndoable("Prova",
                           [&]() -> ErrorCode {
                               EXPECT_EQ(ChangeManyThings(changed, deleted), NoError);
                               throw std::runtime_error("falha");
                           }),
              CommandFailed);
    EXPECT_EQ(WholePlan(), before);
    EXPECT_TRUE(UndoByUser()); // the step before it, which created the lamp
    EXPECT_FALSE(Exists(deleted));
}

TEST_F(UndoContract, TellsOfAStepThatTouchedNothing) {
    EXPECT_EQ(CallUndoable("Prova", [] { return NoError; }), NothingToUndo);
    EXPECT_EQ(CallUndoable("Prova", [] { return DeleteElements({}); }), NothingToUndo);
    EXPECT_FALSE(UndoByUser());
}

TEST_F(UndoContract, UndoesAndRedoesWholeSteps) {
    const Guid changed = Created(MakeLine());
    const Guid deleted = Created(MakeZone());
    const auto before = WholePlan();
    ASSERT_EQ(CallUndoable("Prova", [&] { return ChangeManyThings(changed, deleted); }), NoError);
    const auto after = WholePlan();
    EXPECT_NE(before, after);
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(UndoByUser());
        EXPECT_EQ(WholePlan(), before);
        EXPECT_TRUE(RedoByUser());
        EXPECT_EQ(WholePlan(), after);
    }
}

TEST_F(UndoContract, UndoesStepsOneAfterTheOther) {
    const auto empty = WholePlan();
    const Guid first = Created(MakeLine());
    const auto one = WholePlan();
    const Guid second = Created(MakeLamp());
    ASSERT_EQ(DeleteInStep({first}), NoError);
    EXPECT_TRUE(UndoByUser());
    EXPECT_TRUE(Exists(first) && Exists(second));
    EXPECT_TRUE(UndoByUser());
    EXPECT_EQ(WholePlan(), one);
    EXPECT_TRUE(UndoByUser());
    EXPECT_EQ(WholePlan(), empty);
    EXPECT_FALSE(UndoByUser());
    EXPECT_TRUE(RedoByUser());
    EXPECT_EQ(WholePlan(), one);
}

TEST_F(UndoContract, ForgetsWhatCouldBeRedoneAtTheNextStep) {
    const Guid first = Created(MakeLine());
    EXPECT_TRUE(UndoByUser());
    Created(MakeLamp());
    EXPECT_FALSE(RedoByUser());
    EXPECT_FALSE(Exists(first));
}

TEST_F(UndoContract, TakesOpeningsAlongWithTheirWall) {
    const auto before = WholePlan();
    ASSERT_EQ(DeleteInStep({TheWall()}), NoError);
    EXPECT_TRUE(UndoByUser());
    EXPECT_EQ(WholePlan(), before);
    std::vector<Guid> openings;
    ASSERT_EQ(ListOpenings(TheWall(), openings), NoError);
    EXPECT_EQ(openings.size(), 2U);
}

TEST_F(UndoContract, FindsNothingOfWhatWasDeletedInTheSameStep) {
    const Guid column = Listed(ElementType::Column).at(0);
    const std::vector<Guid> segments = Listed(ElementType::ColumnSegment);
    EXPECT_EQ(CallUndoable("Prova",
                           [&] {
                               EXPECT_EQ(DeleteElements({column}), NoError);
                               EXPECT_FALSE(Exists(column));
                               EXPECT_FALSE(Exists(segments.at(0)));
                               EXPECT_FALSE(Exists(segments.at(1)));
                               EXPECT_TRUE(Listed(ElementType::Column).empty());
                               EXPECT_TRUE(Listed(ElementType::ColumnSegment).empty());
                               EXPECT_EQ(DeleteElements({column}), BadId);
                               return Cancelled;
                           }),
              Cancelled);
    EXPECT_TRUE(Exists(column));
    EXPECT_EQ(Listed(ElementType::ColumnSegment), segments);
}

TEST_F(UndoContract, RefusesStructureInsideAStep) {
    Layer layer{"Prova - nova", false, false};
    LineType lineType{"Prova - traço", {3.0, 1.0}};
    ModelSurface surface;
    surface.name = "Prova - superfície";
    LayerCombination combination;
    ASSERT_EQ(GetLayerCombination({1}, combination), NoError);
    AttributeIndex index;
    Window worksheet;
    View view;
    view.name = "Prova - nova";
    std::vector<View> views;
    ASSERT_EQ(ListViews(views), NoError);
    const ErrorCode code = CallUndoable("Prova", [&] {
        EXPECT_EQ(CreateLayer(layer, index), UndoScopeMisuse);
        EXPECT_EQ(ChangeLayer(LayerNamed(FreeLayer), layer), UndoScopeMisuse);
        EXPECT_EQ(CreateLineType(lineType, index), UndoScopeMisuse);
        EXPECT_EQ(ChangeLineType({1}, lineType), UndoScopeMisuse);
        EXPECT_EQ(CreateSurface(surface, index), UndoScopeMisuse);
        EXPECT_EQ(CreateLayerCombination(combination, index), UndoScopeMisuse);
        EXPECT_EQ(ChangeLayerCombination({1}, combination), UndoScopeMisuse);
        EXPECT_EQ(StoreProjectData("prova", {}), UndoScopeMisuse);
        EXPECT_EQ(CreateWorksheet("nova", "N-01", worksheet), RefusedCommand);
        EXPECT_EQ(ChangeDrawingScale(50.0), UndoScopeMisuse);
        EXPECT_EQ(ChangeWindow({}), UndoScopeMisuse);
        EXPECT_EQ(ChangeActiveFloor(1), UndoScopeMisuse);
        EXPECT_EQ(CreateView(view), UndoScopeMisuse);
        EXPECT_EQ(ChangeView(views.at(0)), UndoScopeMisuse);
        return NoError;
    });
    EXPECT_EQ(code, NothingToUndo);
    EXPECT_EQ(FindAttribute(AttributeType::Layer, layer.name, index), BadName);
}

TEST_F(UndoContract, LeavesAttributesAlone) {
    AttributeIndex index;
    ASSERT_EQ(CreateLayer({"Prova - nova", false, false}, index), NoError);
    Sample line = MakeLine();
    line.element.header.layer = index;
    ASSERT_EQ(CreateInStep(line), NoError);
    EXPECT_TRUE(UndoByUser());
    EXPECT_FALSE(UndoByUser()); // the layer was no step
    Layer layer;
    EXPECT_EQ(GetLayer(index, layer), NoError);
}

TEST_F(UndoContract, MayDrawIntoAnotherDatabaseInsideAStep) {
    std::vector<Window> worksheets;
    ASSERT_EQ(ListWorksheets(worksheets), NoError);
    Sample text = MakeText();
    ASSERT_EQ(CallUndoable("Prova",
                           [&] {
                               EXPECT_EQ(ChangeCurrentDatabase(worksheets.at(0)), NoError);
                               const ErrorCode code = CreateElement(text.element, text.memo);
                               EXPECT_EQ(ChangeCurrentDatabase({}), NoError);
                               return code;
                           }),
              NoError);
    EXPECT_TRUE(UndoByUser());
    EXPECT_FALSE(Exists(text.element.header.guid));
}

} // namespace
} // namespace Merivane::Host
