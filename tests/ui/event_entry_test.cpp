#include "ui/event_entry.h"

#include <gmock/gmock.h>

#include "ui/errors.h"
#include "ui/input.h"

namespace {

using testing::ElementsAre;

struct Events : testing::Test {
    Events() { Show(windows, main); }

    ui::Windows windows;
    ui::Form& main = windows.Form1.Window;
    ui::Form& terminal = windows.Form2.Window;
    ui::Form& keypad = windows.Form3.Window;
    ui::EventEntry entry{windows};
};

TEST_F(Events, TellWhatWentWrongAndGoOn) {
    EXPECT_EQ(entry.Run([] { throw ui::GameError("Disk je plný."); }).Complaint, "Disk je plný.");
    EXPECT_EQ(entry.Run([] { throw std::out_of_range("at"); }).Complaint, std::string(ui::ProgramFault) + "at");
    bool run = false;
    const ui::Outcome outcome = entry.Run([&] { run = true; });
    EXPECT_TRUE(run && outcome.Complaint.empty() && !outcome.Ended);
}

TEST_F(Events, NoLongerComeOnceTheProgramHasEnded) {
    EXPECT_TRUE(entry.Run([] { ui::EndProcess(); }).Ended);
    EXPECT_TRUE(entry.Run([] { FAIL(); }).Ended);
    EXPECT_TRUE(entry.Ended());
}

TEST_F(Events, ComeToTheInnermostModalFormAlone) {
    std::vector<std::string_view> active;
    const auto note = [&] { active.push_back(windows.Active->Layout.Name); };
    entry.ShowModal(terminal, [&] {
        note();
        entry.ShowModal(keypad, [&] {
            note();
            EXPECT_TRUE(entry.IsShut(main) && entry.IsShut(terminal) && !entry.IsShut(keypad));
        });
        note();
        EXPECT_TRUE(entry.IsShut(main) && !entry.IsShut(terminal));
    });
    note();
    EXPECT_THAT(active, ElementsAre("Form2", "Form3", "Form2", "Form1"));
    EXPECT_FALSE(entry.IsShut(main));
}

TEST_F(Events, OfAFormThatFailsToOpenShutNoOther) {
    keypad.GotFocus = [] { throw ui::GameError("Disk je plný."); };
    const ui::Outcome outcome = entry.Run([&] { entry.ShowModal(keypad, [] { FAIL(); }); });
    EXPECT_EQ(outcome.Complaint, "Disk je plný.");
    EXPECT_EQ(entry.Modal(), nullptr);
}

TEST_F(Events, ThatEndTheProgramInAModalFormLeaveItsCallerToo) {
    const ui::Outcome outcome = entry.Run([&] {
        entry.ShowModal(keypad, [&] { entry.Run([] { ui::EndProcess(); }); });
        FAIL();
    });
    EXPECT_TRUE(outcome.Ended);
}

}  // namespace
