#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class ViewsContract : public ProjectContract {};

std::vector<View> AllViews() {
    std::vector<View> views;
    EXPECT_EQ(ListViews(views), NoError);
    return views;
}

/// The first view of this name; a failure of the test where there is none.
View ViewNamed(const std::string& name) {
    const std::vector<View> views = AllViews();
    const auto found = std::find_if(views.begin(), views.end(),
                                    [&name](const View& view) { return view.name == name; });
    EXPECT_NE(found, views.end());
    return found == views.end() ? View() : *found;
}

View PlanView(const std::string& name) {
    View view;
    view.name = name;
    return view;
}

TEST_F(ViewsContract, ListsFoldersAndWhatIsInThem) {
    std::vector<std::pair<ViewKind, std::string>> entries;
    for (const View& view : AllViews()) {
        EXPECT_NE(view.guid, Guid());
        entries.emplace_back(view.kind, view.name);
    }
    EXPECT_EQ(entries, (std::vector<std::pair<ViewKind, std::string>>{
                           {ViewKind::Folder, ViewFolderName},
                           {ViewKind::FloorPlan, PlanViewName},
                           {ViewKind::Worksheet, WorksheetName}}));
}

TEST_F(ViewsContract, TellsFloorCombinationAndScaleOfAView) {
    const View view = ViewNamed(PlanViewName);
    EXPECT_EQ(view.floorIndex, 1);
    EXPECT_EQ(view.layerCombination, CombinationName);
    EXPECT_EQ(view.scale, 50.0);
}

TEST_F(ViewsContract, CreatesViewsOfThePlanAndOfThe3DWindowAtTheEnd) {
    View plan = PlanView("Prova - subsolo");
    plan.floorIndex = -1;
    plan.layerCombination = CombinationName;
    plan.scale = 100.0;
    ASSERT_EQ(CreateView(plan), NoError);
    View model = PlanView("Prova - 3D");
    model.kind = ViewKind::Model3D;
    ASSERT_EQ(CreateView(model), NoError);
    EXPECT_NE(plan.guid, Guid());
    EXPECT_NE(plan.guid, model.guid);
    const std::vector<View> views = AllViews();
    ASSERT_EQ(views.size(), 5U);
    EXPECT_EQ(views[3], plan);
    EXPECT_EQ(views[4], model);
}

TEST_F(ViewsContract, TakesSeveralViewsOfOneName) {
    View view = PlanView(PlanViewName);
    EXPECT_EQ(CreateView(view), NoError);
    EXPECT_EQ(CreateView(view), NoError);
    EXPECT_EQ(AllViews().size(), 5U);
}

TEST_F(ViewsContract, MakesNoOtherKindOfView) {
    for (const ViewKind kind :
         {ViewKind::Other, ViewKind::Section, ViewKind::Elevation, ViewKind::InteriorElevation,
          ViewKind::Worksheet, ViewKind::Folder}) {
        View view = PlanView("Prova - outra");
        view.kind = kind;
        EXPECT_EQ(CreateView(view), NotSupported);
    }
    EXPECT_EQ(AllViews().size(), 3U);
}

/// What neither a new view nor a changed one may be, with the code that says so.
std::vector<std::pair<View, ErrorCode>> BadViews(const View& good) {
    std::vector<std::pair<View, ErrorCode>> bad;
    for (const std::string& name :
         {std::string(), std::string(256, 'a'), std::string("a\xFF"), std::string("a\0b", 3)}) {
        bad.emplace_back(good, BadParameters);
        bad.back().first.name = name;
    }
    for (const double scale : {0.5, 30'000.5, -1.0}) {
        bad.emplace_back(good, BadParameters);
        bad.back().first.scale = scale;
    }
    for (const std::int16_t floor : {std::int16_t{-2}, std::int16_t{2}}) {
        bad.emplace_back(good, InvalidStory);
        bad.back().first.floorIndex = floor;
    }
    bad.emplace_back(good, BadName);
    bad.back().first.layerCombination = "Prova - nenhuma";
    return bad;
}

TEST_F(ViewsContract, RefusesAViewThatCanNotBe) {
    const std::vector<View> before = AllViews();
    for (auto& [view, code] : BadViews(PlanView("Prova - nova"))) {
        EXPECT_EQ(CreateView(view), code);
    }
    for (const auto& [view, code] : BadViews(ViewNamed(PlanViewName))) {
        EXPECT_EQ(ChangeView(view), code);
    }
    EXPECT_EQ(AllViews(), before);
}

TEST_F(ViewsContract, TakesNamesAndScalesUpToTheirLimits) {
    View view = PlanView(std::string(255, 'a'));
    view.scale = 1.0;
    EXPECT_EQ(CreateView(view), NoError);
    view.scale = 30'000.0;
    EXPECT_EQ(ChangeView(view), NoError);
    EXPECT_EQ(AllViews().back(), view);
}

TEST_F(ViewsContract, ChangesAViewWhereItStands) {
    View view = ViewNamed(PlanViewName);
    view.name = "Prova - renomeada";
    view.floorIndex = 0;
    view.layerCombination.clear();
    view.scale = 0.0;
    ASSERT_EQ(ChangeView(view), NoError);
    ASSERT_EQ(AllViews().size(), 3U);
    EXPECT_EQ(AllViews()[1], view);
}

TEST_F(ViewsContract, RenamesAFolder) {
    View folder = ViewNamed(ViewFolderName);
    folder.name = "Prova - outra pasta";
    EXPECT_EQ(ChangeView(folder), NoError);
    EXPECT_EQ(AllViews()[0], folder);
}

TEST_F(ViewsContract, RefusesAnotherKindAndAnUnknownView) {
    View view = ViewNamed(PlanViewName);
    view.kind = ViewKind::Model3D;
    EXPECT_EQ(ChangeView(view), BadParameters);
    view.kind = ViewKind::FloorPlan;
    view.guid.bytes[3] = 0x77;
    EXPECT_EQ(ChangeView(view), BadId);
}

TEST_F(ViewsContract, FollowALayerCombinationThatIsRenamed) {
    AttributeIndex index;
    ASSERT_EQ(FindAttribute(AttributeType::LayerCombination, CombinationName, index), NoError);
    LayerCombination combination;
    ASSERT_EQ(GetLayerCombination(index, combination), NoError);
    combination.name = "Prova - renomeada";
    ASSERT_EQ(ChangeLayerCombination(index, combination), NoError);
    EXPECT_EQ(ViewNamed(PlanViewName).layerCombination, "Prova - renomeada");
    EXPECT_EQ(ViewNamed(WorksheetName).layerCombination, "");
}

TEST_F(ViewsContract, AreNoUndoStep) {
    View view = PlanView("Prova - nova");
    ASSERT_EQ(CreateView(view), NoError);
    EXPECT_FALSE(UndoByUser());
    EXPECT_EQ(AllViews().size(), 4U);
}

TEST_F(ViewsContract, AnswerWithNoPlanWithoutAProject) {
    View view = ViewNamed(PlanViewName);
    CloseContractProject();
    std::vector<View> views;
    EXPECT_EQ(ListViews(views), NoPlan);
    EXPECT_EQ(CreateView(view), NoPlan);
    EXPECT_EQ(ChangeView(view), NoPlan);
}

} // namespace
} // namespace Merivane::Host
