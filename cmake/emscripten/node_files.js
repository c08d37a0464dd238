// Emscripten's own fsync does nothing in node. This one flushes the file, because a saved game must be on the disk when the program says so.
mergeInto(LibraryManager.library, {
  fd_sync__deps: ['$SYSCALLS', '$ERRNO_CODES'],
  fd_sync: function (fd) {
    try {
      fs.fsyncSync(SYSCALLS.getStreamFromFD(fd).nfd);
      return 0;
    } catch (error) {
      return error.errno > 0 ? error.errno : ERRNO_CODES[error.code];
    }
  },
});
