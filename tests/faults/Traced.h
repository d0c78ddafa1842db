#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// A system call of a run, by which it can be met again in the next: the third "openat", say.
struct Call {
    QString name;
    int number;
    QString line;  // as strace shows it, with the paths behind descriptors
};

// Runs the program to its end; its exit status, -1 when it was killed.
int RunProgram(const QString& program, const QStringList& arguments);

// The calls by which a run of the program touches the folder `folder`.
QList<Call> CallsTouching(const QString& folder, const QString& program, const QStringList& arguments);

// Runs the program with `fault` ("signal=KILL", "error=ENOSPC") at `call`; the result is that of RunProgram.
int RunWithFault(const Call& call, const QString& fault, const QString& program,
                 const QStringList& arguments);
