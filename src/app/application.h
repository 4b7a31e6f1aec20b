// The process entry's work: style, application object, logs, crash hooks, QML engine and event loop.
#pragma once

#include <QString>
#include <QUrl>

namespace kelvane_app {

struct LaunchOptions {
    QUrl root_document = QUrl(QStringLiteral("qrc:/Kelvane/Main.qml"));
    QString app_dir;  // where the first log lives; empty means the executable's directory
};

// Runs the application to its end and returns the exit code: that of the event loop, or -1 when the root
// document does not load. argc must outlive the call, as Qt keeps a reference to it.
int run_application(int& argc, char** argv, const LaunchOptions& options = {});

}  // namespace kelvane_app
