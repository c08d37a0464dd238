#include "app/replay_script.h"

#include <sstream>

#include "core/verbs.h"
#include "tests/play.h"

namespace {

TEST(ReplayScript, ClicksTheFirstEntryOfATextOrTheEntryOfANumber) {
    Play play = Play::In(sector::Crossing);
    play.Choose(verb::Put);  // two entries "---"
    std::vector<int> clicked;
    for (auto& list : play.Form1().List2) list.Click = [&] { clicked.push_back(list.Selected()); };
    std::istringstream events(
        "click Form1.List2(1) ---\nclick Form1.List2(0) Polož\nclick Form1.List2(0) 1\nclick Form1.List2(0) polož\nclick Form1.List2(0) "
        "13\n");
    std::ostringstream answers;
    ScriptedRandom random([] { return 0.5; });
    ReplayScript script(play.TheGame(), play.Desktop(), random, events, answers);
    while (script.PlayNextLine()) {
    }
    EXPECT_THAT(clicked, testing::ElementsAre(0, verb::Put, 1));
    EXPECT_EQ(answers.str(), "{\"refused\":\"the list has no such entry\"}\n{\"refused\":\"the list has no such entry\"}\n");
}

}  // namespace
