#pragma once

#include <QString>
#include <chrono>

// A lock between processes, held from construction to destruction. It is the system's own lock on an open
// file, which goes with the process that held it: one that dies leaves no lock behind, whatever stands in its
// folder. The file itself stays, empty.
class FileLock {
public:
    // Waits for the lock on the file `path`, which is made when it is missing, at most for `patience`.
    FileLock(const QString& path, std::chrono::milliseconds patience);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // False when another process kept it too long, or nothing can be locked in that folder.
    [[nodiscard]] bool Held() const { return held_; }

private:
    int file_;
    bool held_ = false;
};
