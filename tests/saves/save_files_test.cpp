#include "saves/save_files.h"

#include <gmock/gmock.h>

#include "core/stages.h"
#include "tests/saves/saved_games.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

TEST(SaveFiles, BringsTheGameBackAndShowsIt) {
    SavedGames play;
    play.game.state.Inventory = {6, 9, 0, 0, 0};
    play.game.state.DoorCode = "4711305";
    EXPECT_EQ(play.Save("první"), "");
    play.game.state.Inventory = {};
    play.game.state.DoorCode = "";
    play.game.state.GameStage = 2;
    play.windows.Form1.Text1.SetText("dřívější výpis");
    EXPECT_EQ(play.Load("první"), "");
    EXPECT_EQ(play.game.state.DoorCode, "4711305");
    EXPECT_EQ(play.game.state.GameStage, 2);
    EXPECT_THAT(play.windows.Form1.List1.Entries(), ElementsAre("nářadí", "klíč od kajuty"));
    EXPECT_THAT(play.windows.Form1.Text1.Text(), HasSubstr("\r\nVidíš terminál"));
}

TEST(SaveFiles, DrawsTheNameKeyBeforeTheDoorCodeKey) {
    SavedGames play;
    std::vector<double> numbers{0.999, 0.07};
    play.game.random = [&] {
        const double number = numbers.front();
        numbers.erase(numbers.begin());
        return number;
    };
    play.Save("a");
    EXPECT_EQ(play.FileBytes("a.TVX"), EncodeSave(play.game.state, "a", {.Name = 99, .DoorCode = 7}));
}

TEST(SaveFiles, ListsNamesAsTheyWereTypedAndNothingElse) {
    SavedGames play;
    for (const std::string name : {"Žluťoučký kůň", " Mezera ", "", "tab\tulátor", "exit "}) EXPECT_EQ(play.Save(name), "") << name;
    fs::create_directory(play.Folder() / "Složka.TVX");
    fs::create_symlink("nikam", play.Folder() / "odkaz.TVX");
    for (const char* other : {"notes.txt", "TVX", "x.TVX.bak", ".saving-7.tmp"}) play.Put(other, {});
    play.Put("Game1.tvx", EncodeSave(play.game.state, "Game1", SomeKeys));
    EXPECT_THAT(play.Listed(), UnorderedElementsAre("Žluťoučký kůň", " Mezera ", "", "tab\tulátor", "exit ", "Game1"));
    for (const std::string& name : play.Listed()) EXPECT_EQ(play.Load(name), "") << name;
    EXPECT_TRUE(play.desktop.Running());
}

TEST(SaveFiles, ShowsAForeignNameWithQuestionMarks) {
    SavedGames play;
    play.Put("\xFF\xC4.TVX", {});
    play.Put("日本.TVX", {});
    EXPECT_THAT(play.Listed(), ElementsAre("??", "??"));
}

TEST(SaveFiles, ListsAFileWithoutADotAndSaysWhyItCannotBeLoaded) {
    SavedGames play;
    play.game.state.GameStage = GameStage::Running;
    play.game.state.DoorCode = "4711305";
    play.Put("hrašTVX", EncodeSave(play.game.state, "hra", SomeKeys));
    EXPECT_THAT(play.Listed(), ElementsAre("hra"));
    EXPECT_THAT(play.Load("hra"), HasSubstr("hrašTVX nejde nahrát"));
    EXPECT_TRUE(play.desktop.Running());
    EXPECT_TRUE(HasUnsavedSteps(play.game));
    play.Put("hra.tvx", EncodeSave(play.game.state, "hra", SomeKeys));
    EXPECT_EQ(play.Load("hra"), "");
}

TEST(SaveFiles, WritesAGameWithALowerCaseExtensionOver) {
    SavedGames play;
    play.Put("Game1.tvx", EncodeSave(play.game.state, "Game1", SomeKeys));
    play.game.state.DoorCode = "123";
    EXPECT_EQ(play.Save("Game1"), "");
    EXPECT_THAT(play.Listed(), ElementsAre("Game1"));
    play.game.state.DoorCode = "";
    play.Load("Game1");
    EXPECT_EQ(play.game.state.DoorCode, "123");
}

TEST(SaveFiles, EndsTheProgramWhenTheGameBearsAnotherName) {
    SavedGames play;
    play.Save("první");
    fs::rename(play.Folder() / "první.TVX", play.Folder() / "Prvni.TVX");
    EXPECT_EQ(play.Load("Prvni"), LoadError);
    EXPECT_FALSE(play.desktop.Running());
}

TEST(SaveFiles, LeavesEverythingAsItWasWhenAFileIsDamagedOrCannotBeRead) {
    SavedGames play;
    Bytes file = EncodeSave(play.game.state, "hra", SomeKeys);
    file.resize(file.size() - 2);
    play.Put("hra.TVX", file);
    fs::create_symlink("/proc/self/mem", play.Folder() / "vadny disk.TVX");
    fs::create_symlink("/dev/zero", play.Folder() / "zarizeni.TVX");
    play.Put("obrovska.TVX", {1});
    fs::resize_file(play.Folder() / "obrovska.TVX", std::uintmax_t{1} << 40);

    play.game.state.Inventory = {6, 0, 0, 0, 0};
    play.windows.Form1.Text1.SetText("dřívější výpis");
    const Bytes before = EncodeSave(play.game.state, "", SomeKeys);
    EXPECT_EQ(play.Load("hra"), LoadError);
    EXPECT_THAT(play.Load("vadny disk"), HasSubstr("nepodařilo přečíst"));
    EXPECT_THAT(play.Load("zarizeni"), HasSubstr("nepodařilo přečíst"));
    EXPECT_THAT(play.Load("zmizelá"), HasSubstr("nepodařilo přečíst"));
    EXPECT_EQ(EncodeSave(play.game.state, "", SomeKeys), before);
    EXPECT_EQ(play.windows.Form1.Text1.Text(), "dřívější výpis");
    EXPECT_THAT(play.windows.Form1.List1.Entries(), ElementsAre("---"));
    EXPECT_TRUE(play.desktop.Running());

    play.Load("obrovska");  // only its beginning is read: the name "" of an otherwise empty game
    EXPECT_FALSE(play.desktop.Running());
}

TEST(SaveFiles, RefusesNamesThatWouldLeaveTheFolderOrThatNoFileCanHave) {
    SavedGames play;
    const auto folderBefore = std::distance(fs::recursive_directory_iterator(play.game.state.AppPath), {});
    for (const std::string& name :
         {std::string("../hra"), std::string("/tmp/hra"), std::string("a/b"), std::string("a\\b"), std::string("a\0b", 3)}) {
        EXPECT_THAT(play.Save(name), HasSubstr("lomítko")) << name;
        EXPECT_THAT(play.Load(name), HasSubstr("lomítko")) << name;
    }
    EXPECT_THAT(play.Save(std::string(252, 'x')), HasSubstr("příliš dlouhý"));
    std::string czech;
    for (int i = 0; i < 126; ++i) czech += "ž";
    EXPECT_THAT(play.Save(czech), HasSubstr("příliš dlouhý"));
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(play.game.state.AppPath), {}), folderBefore);

    EXPECT_EQ(play.Save(std::string(251, 'x')), "");
    EXPECT_EQ(play.Save(czech.substr(2)), "");
    EXPECT_EQ(play.Load(czech.substr(2)), "");
    EXPECT_THAT(play.Listed(), UnorderedElementsAre(std::string(251, 'x'), czech.substr(2)));
}

TEST(SaveFiles, MakesAMissingFolder) {
    SavedGames play;
    fs::remove_all(play.game.state.AppPath / "data");
    EXPECT_THAT(play.Listed(), IsEmpty());
    fs::remove(play.Folder());
    EXPECT_EQ(play.Save("hra"), "");
    EXPECT_THAT(play.Listed(), ElementsAre("hra"));
}

}  // namespace
