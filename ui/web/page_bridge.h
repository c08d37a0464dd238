// The border between C++ and the page's JavaScript: what the page shows, and the events that come from it. Forms and controls go by their
// places in `Windows::All` and `Form::Controls`. This header's .cpp is the only one that speaks JavaScript.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "ui/controls.h"

namespace ui::web::page {

struct Place {
    int Form, Control;
};

enum class EventKind {
#define EVENT_KIND(Name) Name,
#include "ui/web/event_kinds.def"
#undef EVENT_KIND
};

struct Event {
    EventKind Kind;
    Place Target;
    int Number;          // the key, or the entry's index
    std::string Before;  // of an edit: the text as far as the caret
    std::string After;   // and the text behind the caret
};

// What the page must know of the system and of the saved games' files, told before the page has anything to do with them.
void TellErrorNumber(std::string_view name, int number);
void TellPartOfSaveName(std::string_view part, std::string_view characters);

// Waits until the player does something. The page's own scripts run only here and while a saved game is being kept.
Event WaitForEvent();

// Answers the last key event: whether the box is not to show the key's character.
void AnswerKey(bool swallowed);

// `layouts` is JSON, from DescribeLayouts.
void Build(const std::string& layouts);
void ShowForm(int form, bool visible, bool reachable, std::string_view picture);
void ShowOutput(Place place, bool visible, bool atEnd);
void ReplaceOutput(Place place, std::string_view text);
void AppendOutput(Place place, std::string_view text);
void ShowLine(Place place, std::string_view text, std::size_t caretByte);
void ShowList(Place place, const ListBox& list);
void ShowLabel(Place place, const Label& label);
void ShowFocus(Place place);
void ShowBusyPointer(bool busy);
void OpenMessageBox(std::string_view text, std::string_view title);
void CloseMessageBox();
// In a line of the page outside of the windows.
void ShowNotice(std::string_view sentence);
void SayTheEnd();
// Shows that the file of the story cannot be read, and what the player can do.
void SayTheStoryIsDamaged();

// Lines as the output box displays them, wrapped ones counted each.
std::size_t CountOutputLines(Place place);

// Gives the page the address of the running game, which it passes to the exported functions of app/web.cpp until SayTheEnd.
void OfferGame(const void* game);
// The answer to a question about a file: a word that page/incoming_files.mjs knows, and the name of the saved game in the file.
void AnswerInspection(std::string_view finding, std::string_view name);
// The snapshot that the page has asked for; empty when the game cannot be resumed from here.
void AnswerSnapshot(std::span<const std::uint8_t> snapshot);

// The browser's own random numbers in [0, 1).
double Random();

}  // namespace ui::web::page
