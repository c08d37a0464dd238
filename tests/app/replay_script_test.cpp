#include "app/replay_script.h"

#include <sstream>

#include "core/verbs.h"
#include "tests/play.h"
#include "ui/input.h"

namespace {

std::string Answers(Play& play, const std::string& lines) {
    std::istringstream events(lines);
    std::ostringstream answers;
    ScriptedRandom random([] { return 0.5; });
    ReplayScript script(play.TheGame(), play.Desktop(), random, events, answers);
    while (script.PlayNextLine()) {
    }
    return answers.str();
}

TEST(ReplayScript, ClicksTheFirstEntryOfATextOrTheEntryOfANumber) {
    Play play = Play::In(sector::Crossing);
    play.Choose(verb::Put);  // two entries "---"
    std::vector<int> clicked;
    for (auto& list : play.Form1().List2) list.Click = [&] { clicked.push_back(list.Selected()); };
    const std::string answers = Answers(play,
                                        "click Form1.List2(1) ---\nclick Form1.List2(0) Polož\nclick Form1.List2(0) 1\n"
                                        "click Form1.List2(0) polož\nclick Form1.List2(0) 13\n");
    EXPECT_THAT(clicked, testing::ElementsAre(0, verb::Put, 1));
    EXPECT_EQ(answers, "{\"refused\":\"the list has no such entry\"}\n{\"refused\":\"the list has no such entry\"}\n");
}

TEST(ReplayScript, RefusesKeysAndRandomNumbersThatThereAreNot) {
    Play play = Play::InCabin();
    ui::Show(play.Windows(), play.Windows().Form3.Window);
    EXPECT_EQ(Answers(play, "key Form3.Text1 7\nkey Form3.Text1 8\nkey Form3.Text1 Backspace\nkey Form3.Text1 Delete\n"),
              "{\"refused\":\"there is no such key\"}\n");
    EXPECT_EQ(play.Windows().Form3.Text1.Text(), "7");
    EXPECT_EQ(Answers(play, "random 0 0.999\nrandom 0.5 1\n"), "{\"refused\":\"a random number lies in [0, 1)\"}\n");
}

TEST(ReplayScript, ReportsTheStateByItsNames) {
    Play play = Play::In(sector::Crossing, {Item::Coil});
    play.Choose(verb::Use);
    play.ChooseObject(Item::Coil);
    play.ChooseTarget(Item::Self);
    const std::string report = Answers(play, "state\n");
    EXPECT_THAT(report, testing::StartsWith("{\"PlayerX\":4,\"PlayerY\":2,\"Inventory\":[92,0,0,0,0],\"Sectors\":["));
    EXPECT_THAT(report, testing::HasSubstr("\"CommandVerb\":2,\"CommandObject\":92,\"CommandTarget\":1001,\"GameStage\":2,"));
}

}  // namespace
