#include <limits>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class StoriesContract : public ProjectContract {};

Window Window3D() {
    Window window;
    window.type = WindowType::Model3D;
    return window;
}

Window TheWorksheet() {
    std::vector<Window> worksheets;
    EXPECT_EQ(ListWorksheets(worksheets), NoError);
    return worksheets.empty() ? Window() : worksheets.front();
}

Window UnknownWorksheet() {
    Window window = TheWorksheet();
    window.database.bytes[3] ^= 0xFFU;
    return window;
}

Window Front() {
    Window window;
    EXPECT_EQ(GetCurrentWindow(window), NoError);
    return window;
}

Window Current() {
    Window window;
    EXPECT_EQ(GetCurrentDatabase(window), NoError);
    return window;
}

double Scale() {
    double scale = 0.0;
    EXPECT_EQ(GetDrawingScale(scale), NoError);
    return scale;
}

TEST_F(StoriesContract, TellsStoriesInOrderWithoutGaps) {
    std::vector<Story> stories;
    std::int16_t active = 99;
    ASSERT_EQ(GetStories(stories, active), NoError);
    ASSERT_EQ(stories.size(), 3U);
    for (std::size_t i = 0; i < stories.size(); ++i) {
        EXPECT_EQ(stories[i].index, static_cast<std::int16_t>(i) - 1);
        EXPECT_DOUBLE_EQ(stories[i].level, 3.0 * stories[i].index);
        EXPECT_DOUBLE_EQ(stories[i].height, 3.0);
    }
    EXPECT_EQ(active, 0);
}

TEST_F(StoriesContract, ShowsAnotherFloor) {
    std::vector<Story> stories;
    std::int16_t active = 99;
    ASSERT_EQ(ChangeActiveFloor(-1), NoError);
    ASSERT_EQ(GetStories(stories, active), NoError);
    EXPECT_EQ(active, -1);
    EXPECT_EQ(ChangeActiveFloor(-2), InvalidStory);
    EXPECT_EQ(ChangeActiveFloor(2), InvalidStory);
    ASSERT_EQ(GetStories(stories, active), NoError);
    EXPECT_EQ(active, -1);
}

TEST_F(StoriesContract, BringsAWindowToFrontAndItsDatabaseWithIt) {
    EXPECT_EQ(Front().type, WindowType::FloorPlan);
    const Window worksheet = TheWorksheet();
    EXPECT_EQ(worksheet.name, WorksheetName);
    Window asked; // told by type and database alone
    asked.type = worksheet.type;
    asked.database = worksheet.database;
    ASSERT_EQ(ChangeWindow(asked), NoError);
    EXPECT_EQ(Front(), worksheet);
    EXPECT_EQ(Current(), worksheet);
    ASSERT_EQ(ChangeWindow(Window3D()), NoError);
    EXPECT_EQ(Front(), Window3D());
    ASSERT_EQ(ChangeWindow({}), NoError);
    EXPECT_EQ(Front(), Window());
}

TEST_F(StoriesContract, RefusesAWindowThatThereIsNot) {
    EXPECT_EQ(ChangeWindow(UnknownWorksheet()), BadWindow);
    Window section = TheWorksheet();
    section.type = WindowType::Section; // the database is there, of another type
    EXPECT_EQ(ChangeWindow(section), BadWindow);
    EXPECT_EQ(Front(), Window());
}

TEST_F(StoriesContract, ChangesTheDatabaseWithoutTheFrontWindow) {
    ASSERT_EQ(ChangeCurrentDatabase(TheWorksheet()), NoError);
    EXPECT_EQ(Current(), TheWorksheet());
    EXPECT_EQ(Front(), Window());
    EXPECT_EQ(ChangeCurrentDatabase(UnknownWorksheet()), BadDatabase);
    EXPECT_EQ(Current(), TheWorksheet());
    ASSERT_EQ(ChangeWindow(Window3D()), NoError);
    EXPECT_EQ(Current(), Window3D()); // follows the front window again
}

TEST_F(StoriesContract, MakesAWorksheetWithoutShowingIt) {
    Window made;
    ASSERT_EQ(CreateWorksheet("Metodologia Vantoro", "MET01", made), NoError);
    EXPECT_EQ(made.type, WindowType::Worksheet);
    EXPECT_EQ(made.name, "Metodologia Vantoro");
    EXPECT_EQ(made.reference, "MET01");
    EXPECT_NE(made.database, Guid());
    std::vector<Window> worksheets;
    ASSERT_EQ(ListWorksheets(worksheets), NoError);
    ASSERT_EQ(worksheets.size(), 2U);
    EXPECT_EQ(worksheets[1], made);
    EXPECT_EQ(Current(), Window());
    ASSERT_EQ(ChangeCurrentDatabase(made), NoError);
    EXPECT_TRUE(Listed(ElementType::Any).empty());
    EXPECT_EQ(Scale(), 50.0);
}

TEST_F(StoriesContract, RefusesTheNameOfAnotherWorksheet) {
    Window made;
    EXPECT_EQ(CreateWorksheet(WorksheetName, "N-01", made), NameInUse);
    EXPECT_EQ(made, Window());
    EXPECT_EQ(CreateWorksheet("", "N-01", made), BadParameters);
    EXPECT_EQ(CreateWorksheet(std::string(256, 'a'), "N-01", made), BadParameters);
    EXPECT_EQ(CreateWorksheet(std::string(255, 'a'), "", made), NoError);
}

TEST_F(StoriesContract, KeepsAScaleForEachDatabase) {
    const double plan = Scale();
    ASSERT_EQ(ChangeCurrentDatabase(TheWorksheet()), NoError);
    EXPECT_EQ(Scale(), 20.0);
    ASSERT_EQ(ChangeDrawingScale(75.0), NoError);
    EXPECT_EQ(Scale(), 75.0);
    ASSERT_EQ(ChangeCurrentDatabase({}), NoError);
    EXPECT_EQ(Scale(), plan);
}

TEST_F(StoriesContract, TakesScalesFromOneToThirtyThousand) {
    for (const double scale : {1.0, 30000.0}) {
        EXPECT_EQ(ChangeDrawingScale(scale), NoError);
        EXPECT_EQ(Scale(), scale);
    }
    for (const double scale :
         {0.999, 30000.1, 0.0, -100.0, std::numeric_limits<double>::quiet_NaN(),
          std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(ChangeDrawingScale(scale), BadParameters) << scale;
    }
    EXPECT_EQ(Scale(), 30000.0);
}

TEST_F(StoriesContract, HasNoScaleInThe3DWindow) {
    ASSERT_EQ(ChangeWindow(Window3D()), NoError);
    double scale = 7.0;
    EXPECT_EQ(GetDrawingScale(scale), BadDatabase);
    EXPECT_EQ(ChangeDrawingScale(100.0), BadDatabase);
    EXPECT_EQ(scale, 7.0);
}

TEST_F(StoriesContract, AnswersWithNoPlanWithoutAProject) {
    CloseContractProject();
    std::vector<Story> stories;
    std::vector<Window> windows;
    std::int16_t active = 0;
    double scale = 0.0;
    Window window;
    EXPECT_EQ(GetStories(stories, active), NoPlan);
    EXPECT_EQ(ChangeActiveFloor(0), NoPlan);
    EXPECT_EQ(GetCurrentWindow(window), NoPlan);
    EXPECT_EQ(ChangeWindow(window), NoPlan);
    EXPECT_EQ(GetCurrentDatabase(window), NoPlan);
    EXPECT_EQ(ChangeCurrentDatabase(window), NoPlan);
    EXPECT_EQ(ListWorksheets(windows), NoPlan);
    EXPECT_EQ(CreateWorksheet("a", "b", window), NoPlan);
    EXPECT_EQ(GetDrawingScale(scale), NoPlan);
    EXPECT_EQ(ChangeDrawingScale(100.0), NoPlan);
}

} // namespace
} // namespace Merivane::Host
