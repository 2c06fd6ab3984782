#include "Archicad/FloorViews.hpp"

#include "AttributeSample.hpp"
#include "Host/Views.hpp"

namespace Merivane::Archicad {
namespace {

using Workbench::ProjectView;

const Host::Story Ground{0, 0.0, 3.0, "Terreo"};
const Host::Story Upper{1, 3.0, 3.0, "Superior"};

class FloorViews : public Tests::AttributeTest {
protected:
    FloorViews() {
        std::int32_t index = 1;
        for (const char* const name : {"Vantoro - Simulacao", "Vantoro - Projeto", "Arquitetura"}) {
            Open().combinations[index++].name = name;
        }
    }

    /// Adds a view that shows everything as it stands.
    static ProjectView& Add(const std::string& name, std::int16_t floorIndex = 0) {
        ProjectView& view = Open().views.emplace_back();
        view.guid = Workbench::FreshGuid();
        view.name = name;
        view.floorIndex = floorIndex;
        return view;
    }

    static std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const ProjectView& view : Open().views) {
            names.push_back(view.name);
        }
        return names;
    }

    static bool EnsureBoth(const Host::Story& story) {
        bool simulation = false;
        bool project = false;
        EXPECT_EQ(EnsureSimulationView(story, simulation), Host::NoError);
        EXPECT_EQ(EnsureProjectView(story, project), Host::NoError);
        EXPECT_EQ(simulation, project);
        return simulation;
    }
};

TEST_F(FloorViews, AreMadeForTheFloorWithTheirCombination) {
    Open().planScale = 50.0;
    bool created = false;
    ASSERT_EQ(EnsureFloorView(1, "Prova", {}, "Arquitetura", created), Host::NoError);
    EXPECT_TRUE(created);
    std::vector<Host::View> views;
    ASSERT_EQ(Host::ListViews(views), Host::NoError);
    ASSERT_EQ(views.size(), 1U);
    const Host::View expected{views[0].guid, Host::ViewKind::FloorPlan, 1, "Prova", "Arquitetura",
                              50.0};
    EXPECT_EQ(views[0], expected);
}

TEST_F(FloorViews, OfTwoFloorsAreFourAndStayFour) {
    EXPECT_TRUE(EnsureBoth(Ground));
    EXPECT_TRUE(EnsureBoth(Upper));
    EXPECT_EQ(
        Names(),
        (Tests::Lines{"Luminotécnico Simulação - Terreo", "Luminotécnico Projeto - Terreo",
                      "Luminotécnico Simulação - Superior", "Luminotécnico Projeto - Superior"}));
    EXPECT_EQ(Open().views[0].layerCombination, "Vantoro - Simulacao");
    EXPECT_EQ(Open().views[1].layerCombination, "Vantoro - Projeto");
    const Workbench::Project before = Open();
    EXPECT_FALSE(EnsureBoth(Ground));
    EXPECT_FALSE(EnsureBoth(Upper));
    EXPECT_EQ(Open(), before);
}

TEST_F(FloorViews, WithAFormerNameGetTheNewOne) {
    for (const char* const former : {"Luminotecnico - Terreo", "Luminotécnico - Terreo"}) {
        Open().views.clear();
        const Host::Guid guid = Add(former).guid;
        bool created = true;
        ASSERT_EQ(EnsureSimulationView(Ground, created), Host::NoError);
        EXPECT_FALSE(created);
        ASSERT_EQ(EnsureProjectView(Ground, created), Host::NoError);
        EXPECT_TRUE(created);
        EXPECT_EQ(Names(), (Tests::Lines{"Luminotécnico Simulação - Terreo",
                                         "Luminotécnico Projeto - Terreo"})); // no third view
        EXPECT_EQ(Open().views[0].guid, guid);
        EXPECT_EQ(Open().views[0].layerCombination, "Vantoro - Simulacao");
    }
}

TEST_F(FloorViews, WithTheNewNameGoBeforeThoseWithAFormerOne) {
    Add("Luminotecnico - Terreo").layerCombination = "Arquitetura";
    Add("Luminotécnico Simulação - Terreo");
    bool created = true;
    ASSERT_EQ(EnsureSimulationView(Ground, created), Host::NoError);
    EXPECT_FALSE(created);
    EXPECT_EQ(Open().views[0].name, "Luminotecnico - Terreo");
    EXPECT_EQ(Open().views[0].layerCombination, "Arquitetura");
    EXPECT_EQ(Open().views[1].layerCombination, "Vantoro - Simulacao");
}

TEST_F(FloorViews, AreBroughtUpToDateWithFolderAndScaleKept) {
    ProjectView& folder = Add("Entrega");
    folder.isFolder = true;
    const Host::Guid place = folder.guid;
    ProjectView& view = Add("Prova", 1);
    view.folder = place;
    view.scale = 200.0;
    view.layerCombination = "Arquitetura";
    ProjectView expected = view;
    expected.floorIndex = 0;
    expected.layerCombination = "Vantoro - Projeto";
    bool created = true;
    ASSERT_EQ(EnsureFloorView(0, "Prova", {}, "Vantoro - Projeto", created), Host::NoError);
    EXPECT_FALSE(created);
    EXPECT_EQ(Open().views.size(), 2U);
    EXPECT_EQ(Open().views[1], expected);
}

TEST_F(FloorViews, AreTakenFromTheFloorFirstWhereStoriesShareAName) {
    Add("Prova", 0);
    Add("Prova", 1).scale = 20.0;
    bool created = true;
    ASSERT_EQ(EnsureFloorView(1, "Prova", {}, "Arquitetura", created), Host::NoError);
    EXPECT_FALSE(created);
    EXPECT_EQ(Open().views[0].layerCombination, "");
    EXPECT_EQ(Open().views[1].layerCombination, "Arquitetura");
}

TEST_F(FloorViews, OfStoriesThatShareANameAreTwoOfEach) {
    Open().stories[1].name = "Terreo";
    const Host::Story upper{1, 3.0, 3.0, "Terreo"};
    EXPECT_TRUE(EnsureBoth(Ground));
    EXPECT_TRUE(EnsureBoth(upper));
    const Workbench::Project before = Open();
    EXPECT_EQ(before.views.size(), 4U);
    EXPECT_EQ(before.views[0].floorIndex, 0);
    EXPECT_EQ(before.views[2].floorIndex, 1);
    EXPECT_FALSE(EnsureBoth(Ground));
    EXPECT_FALSE(EnsureBoth(upper));
    EXPECT_EQ(Open(), before);
}

TEST_F(FloorViews, AreFoundByNameAloneWhereTheHostDoesNotTellTheStories) {
    Add("Luminotécnico Simulação - Terreo", 1);
    Workbench::FailCall("GetStories", 1, Host::GeneralError);
    bool created = true;
    ASSERT_EQ(EnsureSimulationView(Ground, created), Host::NoError);
    EXPECT_FALSE(created);
    EXPECT_EQ(Open().views[0].floorIndex, 0);
}

TEST_F(FloorViews, AreNotMadeOfFoldersOrViewsOfOtherWindows) {
    Add("Prova").isFolder = true;
    Add("Prova").window.type = Host::WindowType::Model3D;
    bool created = false;
    ASSERT_EQ(EnsureFloorView(0, "Prova", {}, "Arquitetura", created), Host::NoError);
    EXPECT_TRUE(created);
    EXPECT_EQ(Open().views.size(), 3U);
    EXPECT_EQ(Open().views[0].layerCombination, "");
    EXPECT_EQ(Open().views[1].layerCombination, "");
}

TEST_F(FloorViews, HaveNamesCutToWhatTheHostHolds) {
    std::string name(254, 'x');
    const std::string cut = name.append("ç");
    name.append("ão");
    bool created = false;
    ASSERT_EQ(EnsureFloorView(0, name, {}, "Arquitetura", created), Host::NoError);
    ASSERT_EQ(EnsureFloorView(0, name, {}, "Arquitetura", created), Host::NoError);
    EXPECT_EQ(Names(), Tests::Lines{cut});
    ASSERT_EQ(EnsureFloorView(0, "Prova", {name}, "Arquitetura", created), Host::NoError);
    EXPECT_EQ(Names(), Tests::Lines{"Prova"});
}

TEST_F(FloorViews, HaveThePlansScaleWhateverWindowIsInFront) {
    Workbench::ProjectDatabase& worksheet = Open().databases.emplace_back();
    worksheet.window = {
        Host::WindowType::Worksheet, Workbench::FreshGuid(), "Folha", "F-01", {}, 0};
    worksheet.scale = 20.0;
    const Host::Window window = worksheet.window;
    ASSERT_EQ(Host::ChangeWindow(window), Host::NoError);
    bool created = false;
    ASSERT_EQ(EnsureFloorView(0, "Prova", {}, "Arquitetura", created), Host::NoError);
    EXPECT_EQ(Open().views[0].scale, 100.0);
    Host::Window current;
    ASSERT_EQ(Host::GetCurrentDatabase(current), Host::NoError);
    EXPECT_EQ(current, window);
}

TEST_F(FloorViews, AreMadeWithoutAScaleWhereTheHostDoesNotTellIt) {
    Workbench::FailCall("GetDrawingScale", 1, Host::BadDatabase);
    bool created = false;
    ASSERT_EQ(EnsureFloorView(0, "Prova", {}, "Arquitetura", created), Host::NoError);
    EXPECT_EQ(Open().views[0].scale, 0.0);
}

TEST_F(FloorViews, AreRefusedWhateverTheHostRefuses) {
    bool created = true;
    for (const char* const operation : {"ListViews", "CreateView"}) {
        Workbench::FailCall(operation, 1, Host::NotMine);
        created = true;
        EXPECT_EQ(EnsureSimulationView(Ground, created), Host::NotMine) << operation;
        EXPECT_FALSE(created) << operation;
        EXPECT_TRUE(Open().views.empty()) << operation;
    }
    Add("Luminotecnico - Terreo");
    Workbench::FailCall("ChangeView", 1, Host::NotMine);
    created = true;
    EXPECT_EQ(EnsureSimulationView(Ground, created), Host::NotMine);
    EXPECT_FALSE(created);
    EXPECT_EQ(Names(), Tests::Lines{"Luminotecnico - Terreo"});
}

TEST_F(FloorViews, NeedAStoryAndACombinationThatStand) {
    bool created = true;
    EXPECT_EQ(EnsureFloorView(2, "Prova", {}, "Arquitetura", created), Host::InvalidStory);
    EXPECT_EQ(EnsureFloorView(0, "Prova", {}, "Nenhuma", created), Host::BadName);
    EXPECT_FALSE(created);
    EXPECT_TRUE(Open().views.empty());
}

} // namespace
} // namespace Merivane::Archicad
