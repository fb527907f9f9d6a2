"""A file system that shows another folder and answers late: late_file_system.py SOURCE MOUNT DELAY, until it is unmounted."""
import errno
import os
import sys
import time
from pathlib import Path

import fusepy


class Passing(fusepy.Operations):
    """Does to the folder `source` what it is asked for, after as many seconds as the file `delay` holds at present."""

    def __init__(self, source, delay):
        self._source, self._delay = source, Path(delay)

    def __call__(self, operation, path, *arguments):
        if operation not in ("init", "destroy"):
            time.sleep(float(self._delay.read_text()))
        here = self._source + path if isinstance(path, str) else path
        try:
            return getattr(self, operation)(here, *arguments)
        except OSError as error:
            raise fusepy.FuseOSError(error.errno or errno.EIO) from error

    def access(self, path, mode):
        if not os.access(path, mode):
            raise PermissionError(errno.EACCES, path)

    def getattr(self, path, handle=None):
        status = os.lstat(path)
        names = ("st_atime", "st_ctime", "st_gid", "st_mode", "st_mtime", "st_nlink", "st_size", "st_uid", "st_ino")
        return {name: getattr(status, name) for name in names}

    def readdir(self, path, handle):
        return [".", "..", *os.listdir(path)]

    def open(self, path, flags):
        return os.open(path, flags)

    def create(self, path, mode, info=None):
        return os.open(path, os.O_RDWR | os.O_CREAT | os.O_EXCL, mode)

    def read(self, path, size, offset, handle):
        return os.pread(handle, size, offset)

    def write(self, path, data, offset, handle):
        return os.pwrite(handle, data, offset)

    def flush(self, path, handle):
        return 0

    def release(self, path, handle):
        os.close(handle)

    def fsync(self, path, only_data, handle):
        os.fsync(handle)

    def truncate(self, path, length, handle=None):
        os.truncate(path, length)

    def rename(self, old, new):
        os.rename(old, self._source + new)

    def unlink(self, path):
        os.unlink(path)

    def mkdir(self, path, mode):
        os.mkdir(path, mode)

    def chmod(self, path, mode):
        os.chmod(path, mode)

    def chown(self, path, user, group):
        os.chown(path, user, group)

    def utimens(self, path, times=None):
        os.utime(path, times)

    def statfs(self, path):
        found = os.statvfs(path)
        names = ("f_bavail", "f_bfree", "f_blocks", "f_bsize", "f_files", "f_frsize", "f_namemax")
        return {name: getattr(found, name) for name in names}


if __name__ == "__main__":
    SOURCE, MOUNT, DELAY = sys.argv[1:]
    fusepy.FUSE(Passing(SOURCE, DELAY), MOUNT, foreground=True, attr_timeout=0, entry_timeout=0)
