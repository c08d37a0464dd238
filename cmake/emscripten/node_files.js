// What emscripten's files over node leave out: fsync is no promise there, and a saved game is one.
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
