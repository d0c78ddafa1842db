#include "platform/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <cerrno>

FileLock::FileLock(const QString& path, std::chrono::milliseconds patience)
    : file_(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0600)) {
    if (file_ < 0) return;
    const QDeadlineTimer limit(patience);
    // Asked again and again, because the call that waits cannot be told how long.
    while (!(held_ = ::flock(file_, LOCK_EX | LOCK_NB) == 0)) {
        if (errno != EWOULDBLOCK || limit.hasExpired()) return;
        QThread::msleep(1);
    }
}

FileLock::~FileLock() {
    if (file_ >= 0) ::close(file_);
}
