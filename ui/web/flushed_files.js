// fsync sleeps until the page has kept the file. Emscripten's own never reports an error: it wakes the program with a function in the
// place of the error's number, which C++ takes for 0.
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
