// In emscripten's file system over node, fsync does nothing. A saved game must be on the disk when the program says so, hence this fsync.
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
