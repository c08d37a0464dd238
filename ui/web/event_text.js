// A library function, because these alone can say which of the compiler's own functions they call. Not an arrow function, because older
// compilers leave those out of the script without a word.
mergeInto(LibraryManager.library, {
  page_event_text__deps: ['$stringToNewUTF8'],
  page_event_text: function (field) {
    return stringToNewUTF8(Module.desktop.eventText(field));
  },
});
