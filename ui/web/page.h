// The page as C++ sees it: what it shows, and the events that come from it. Forms and controls go by their places in `Windows::All` and
// `Form::Controls`. This header's .cpp is the only one that speaks JavaScript.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "ui/controls.h"

namespace ui::web::page {

struct Place {
    int Form, Control;
};

// The numbers are known to page/event_queue.mjs.
enum class EventKind { Focus, Key, Edit, ClickEntry, ClickLabel, Acknowledge, FilesChanged };

struct Event {
    EventKind Kind;
    Place Target;
    int Number;          // the key, or the entry's index
    std::string Before;  // of an edit: the text as far as the caret
    std::string After;   // and behind it
};

// Sleeps until the player does something. Besides the keeping of a saved game, the only place where the page gets its turn.
Event WaitForEvent();

// Whether the key that was last announced is to leave no trace in its box.
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
void SayTheEnd();
// That there is no game, since its story cannot be read, and what can be done.
void SayTheStoryIsDamaged();

// Lines as the output box displays them, wrapped ones counted each.
std::size_t CountOutputLines(Place place);
// Whether the text looks and runs as Arial does.
bool HasArial();

// Lets the page ask the exported functions about the running game until SayTheEnd. It hands the address back to them and knows no more.
void OfferGame(const void* game);
// The answer to a question about a file: a number that page/incoming_files.mjs knows, and a name.
void AnswerInspection(int finding, std::string_view name);

// The browser's own random numbers in [0, 1).
double Random();

}  // namespace ui::web::page
