// Runs part of a test in a forked child: for code that ends the process or may run once per process.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

namespace kelvane_test {

struct ChildEnd {
    bool exited = false;  // ended by _exit; otherwise killed by a signal
    int exit_code = 0;
    int signal_number = 0;
};

inline ChildEnd run_in_child(const std::function<int()>& body) {
    std::fflush(nullptr);  // the child must not repeat what the parent still buffers
    const pid_t pid = fork();
    if (pid == 0) {
        const rlimit no_core{0, 0};
        setrlimit(RLIMIT_CORE, &no_core);
        const int code = body();
        std::fflush(nullptr);
        _exit(code);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    ChildEnd end;
    end.exited = WIFEXITED(status);
    end.exit_code = end.exited ? WEXITSTATUS(status) : 0;
    end.signal_number = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return end;
}

inline QByteArray read_bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Lines without their line ends; a missing file gives none.
inline QStringList read_lines(const QString& path) {
    QString text = QString::fromUtf8(read_bytes(path));
    text.remove(QLatin1Char('\r'));
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

}  // namespace kelvane_test
