// A library function, because these alone can say which of the compiler's own functions they call.
mergeInto(LibraryManager.library, {
  page_event_text__deps: ['$stringToNewUTF8'],
  page_event_text: (field) => stringToNewUTF8(Module.desktop.eventText(field)),
});
