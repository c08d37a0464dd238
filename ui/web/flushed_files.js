// This fsync lets the program sleep until the page has kept the file. Emscripten's own fsync never reports an error, because it wakes the
// program with a function in place of the error's number, which C++ takes for 0.
mergeInto(LibraryManager.library, {
  fd_sync__deps: ['$SYSCALLS'],
  fd_sync: function (fd) {
    return Asyncify.handleSleep((wakeUp) => {
      const stream = SYSCALLS.getStreamFromFD(fd);
      if (stream.stream_ops.fsync) stream.stream_ops.fsync().then(wakeUp);
      else wakeUp(0);
    });
  },
});
