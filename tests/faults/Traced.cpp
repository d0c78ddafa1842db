#include "tests/faults/Traced.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

const QString kCalls = QStringLiteral(
    "openat,read,write,lseek,newfstatat,fstat,statx,access,readlink,flock,fchmod,fsync,fdatasync,ftruncate,"
    "link,linkat,rename,renameat,renameat2,unlink,mkdir,close");

QStringList Arguments(const QStringList& options, const QString& program, const QStringList& arguments) {
    return QStringList(options) << program << arguments;
}

}  // namespace

int RunProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");  // the leak check and strace exclude each other
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QList<Call> CallsTouching(const QString& folder, const QString& program, const QStringList& arguments) {
    const QTemporaryDir logs;
    QFile log(logs.filePath("log"));
    EXPECT_EQ(RunProgram("strace", Arguments({"-f", "-y", "-o", log.fileName(), "-e", "trace=" + kCalls},
                                             program, arguments)),
              0);
    EXPECT_TRUE(log.open(QIODevice::ReadOnly));
    QMap<QString, int> count;
    QList<Call> calls;
    for (const QString& line : QString::fromUtf8(log.readAll()).split('\n')) {
        const QString name = QRegularExpression("^\\d+ +(\\w+)\\(").match(line).captured(1);
        if (name.isEmpty()) continue;
        ++count[name];
        if (line.contains(folder)) calls.append({name, count[name], line});
    }
    return calls;
}

int RunWithFault(const Call& call, const QString& fault, const QString& program,
                 const QStringList& arguments) {
    const QString inject = QStringLiteral("inject=%1:%2:when=%3").arg(call.name, fault).arg(call.number);
    return RunProgram("strace", Arguments({"-f", "-o", "/dev/null", "-e", "trace=" + call.name, "-e", inject},
                                          program, arguments));
}
