#include "ui/web/page_bridge.h"

#include <emscripten.h>

#include <cstdlib>

// In event_text.js; from malloc.
extern "C" char* page_event_text(int field);

// The linter and the formatter would take this JavaScript for C++.
// clang-format off
// NOLINTBEGIN
EM_ASYNC_JS(void, page_wait, (), { await Module.desktop.waitForEvent(); })
EM_JS(int, page_event_number, (int field), { return Module.desktop.eventNumber(field); })
EM_JS(void, page_answer_key, (int swallowed), { Module.desktop.answerKey(swallowed !== 0); })
EM_JS(void, page_build, (const char* layouts, int size, const char* eventKinds, int kindsSize), {
    Module.desktop.build(JSON.parse(UTF8ToString(layouts, size)), UTF8ToString(eventKinds, kindsSize).trim().split(" "));
})
EM_JS(void, page_show_form, (int form, int visible, int reachable, const char* picture, int size), {
    Module.desktop.showForm(form, visible !== 0, reachable !== 0, UTF8ToString(picture, size));
})
EM_JS(void, page_show_output, (int form, int control, int visible, int atEnd), {
    Module.desktop.control(form, control).show(visible !== 0, atEnd !== 0);
})
EM_JS(void, page_write_output, (int form, int control, const char* text, int size, int replace) , {
    const view = Module.desktop.control(form, control);
    if (replace) view.clear();
    view.append(UTF8ToString(text, size));
})
EM_JS(void, page_show_line, (int form, int control, const char* text, int size, int caret), {
    Module.desktop.control(form, control).show(UTF8ToString(text, size), UTF8ToString(text, caret).length);
})
EM_JS(void, page_show_list, (int form, int control, const char* entries, int size, int selected), {
    Module.desktop.control(form, control).show(UTF8ToString(entries, size).split("\n").slice(0, -1), selected);
})
EM_JS(void, page_show_label, (int form, int control, const char* caption, int size, int colour, const char* light, int lightSize, int lit), {
    const hex = colour.toString(16).padStart(6, "0");
    Module.desktop.control(form, control).show(UTF8ToString(caption, size), "#" + hex, UTF8ToString(light, lightSize), lit !== 0);
})
EM_JS(void, page_show_focus, (int form, int control), { Module.desktop.showFocus(form, control); })
EM_JS(void, page_show_busy_pointer, (int busy), { Module.desktop.showBusyPointer(busy !== 0); })
EM_JS(void, page_open_message_box, (const char* text, int textSize, const char* title, int titleSize), {
    Module.desktop.openMessageBox(UTF8ToString(text, textSize), UTF8ToString(title, titleSize));
})
EM_JS(void, page_close_message_box, (), { Module.desktop.closeMessageBox(); })
EM_JS(void, page_show_notice, (const char* sentence, int size), { Module.desktop.notices.say(UTF8ToString(sentence, size)); })
EM_JS(void, page_say_the_end, (), { Module.desktop.sayTheEnd(); })
EM_JS(void, page_say_the_story_is_damaged, (), { Module.desktop.sayTheStoryIsDamaged(); })
EM_JS(int, page_count_output_lines, (int form, int control), { return Module.desktop.control(form, control).countLines(); })
EM_JS(void, page_offer_game, (const void* game), { Module.desktop.game = game; })
EM_JS(void, page_answer_inspection, (const char* finding, int findingSize, const char* name, int size), {
    Module.desktop.inspection = { finding: UTF8ToString(finding, findingSize), name: UTF8ToString(name, size) };
})
EM_JS(void, page_tell_error_number, (const char* name, int size, int number), {
    Module.desktop.facts.errorNumbers[UTF8ToString(name, size)] = number;
})
EM_JS(void, page_tell_file_name, (const char* name, int size, const char* text, int textSize), {
    Module.desktop.facts[UTF8ToString(name, size)] = UTF8ToString(text, textSize);
})
EM_JS(void, page_answer_snapshot, (const void* snapshot, int size), {
    Module.desktop.snapshot = size > 0 ? HEAPU8.slice(snapshot, snapshot + size) : null;
})
EM_JS(double, page_random, (), { return Math.random(); })
// NOLINTEND
// clang-format on

namespace ui::web::page {

namespace {

constexpr std::string_view EventKinds =
#define EVENT_KIND(Name) #Name " "
#include "ui/web/event_kinds.def"
#undef EVENT_KIND
    ;

int Size(std::string_view text) {
    return static_cast<int>(text.size());
}

std::string TakeText(int field) {
    char* const text = page_event_text(field);
    std::string taken = text;
    std::free(text);
    return taken;
}

}  // namespace

void TellErrorNumber(std::string_view name, int number) {
    page_tell_error_number(name.data(), Size(name), number);
}

void TellPartOfSaveName(std::string_view part, std::string_view characters) {
    page_tell_file_name(part.data(), Size(part), characters.data(), Size(characters));
}

Event WaitForEvent() {
    page_wait();
    Event event{.Kind = static_cast<EventKind>(page_event_number(0)),
                .Target = {.Form = page_event_number(1), .Control = page_event_number(2)},
                .Number = page_event_number(3),
                .Before = {},
                .After = {}};
    if (event.Kind == EventKind::Edit) {
        event.Before = TakeText(0);
        event.After = TakeText(1);
    }
    return event;
}

void AnswerKey(bool swallowed) {
    page_answer_key(swallowed ? 1 : 0);
}

void Build(const std::string& layouts) {
    page_build(layouts.data(), Size(layouts), EventKinds.data(), Size(EventKinds));
}

void ShowForm(int form, bool visible, bool reachable, std::string_view picture) {
    page_show_form(form, visible ? 1 : 0, reachable ? 1 : 0, picture.data(), Size(picture));
}

void ShowOutput(Place place, bool visible, bool atEnd) {
    page_show_output(place.Form, place.Control, visible ? 1 : 0, atEnd ? 1 : 0);
}

void ReplaceOutput(Place place, std::string_view text) {
    page_write_output(place.Form, place.Control, text.data(), Size(text), 1);
}

void AppendOutput(Place place, std::string_view text) {
    page_write_output(place.Form, place.Control, text.data(), Size(text), 0);
}

void ShowLine(Place place, std::string_view text, std::size_t caretByte) {
    page_show_line(place.Form, place.Control, text.data(), Size(text), static_cast<int>(caretByte));
}

void ShowList(Place place, const ListBox& list) {
    std::string entries;
    for (const std::string& entry : list.Entries()) entries.append(entry).append("\n");
    page_show_list(place.Form, place.Control, entries.data(), Size(entries), list.Selected());
}

void ShowLabel(Place place, const Label& label) {
    const std::string_view caption = label.Caption();
    const std::string_view light = SpokenLight(label);
    const auto [red, green, blue] = label.TextColour();
    const int colour = red << 16 | green << 8 | blue;
    page_show_label(place.Form, place.Control, caption.data(), Size(caption), colour, light.data(), Size(light), IsLit(label) ? 1 : 0);
}

void ShowFocus(Place place) {
    page_show_focus(place.Form, place.Control);
}

void ShowBusyPointer(bool busy) {
    page_show_busy_pointer(busy ? 1 : 0);
}

void OpenMessageBox(std::string_view text, std::string_view title) {
    page_open_message_box(text.data(), Size(text), title.data(), Size(title));
}

void CloseMessageBox() {
    page_close_message_box();
}

void ShowNotice(std::string_view sentence) {
    page_show_notice(sentence.data(), Size(sentence));
}

void SayTheEnd() {
    page_say_the_end();
}

void SayTheStoryIsDamaged() {
    page_say_the_story_is_damaged();
}

std::size_t CountOutputLines(Place place) {
    return static_cast<std::size_t>(page_count_output_lines(place.Form, place.Control));
}

void OfferGame(const void* game) {
    page_offer_game(game);
}

void AnswerInspection(std::string_view finding, std::string_view name) {
    page_answer_inspection(finding.data(), Size(finding), name.data(), Size(name));
}

void AnswerSnapshot(std::span<const std::uint8_t> snapshot) {
    page_answer_snapshot(snapshot.data(), static_cast<int>(snapshot.size()));
}

double Random() {
    return page_random();
}

}  // namespace ui::web::page
