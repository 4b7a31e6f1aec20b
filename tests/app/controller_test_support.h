// Helpers of the controller tests: spot files as solve maps, a log capture, and waiting for quiet.
#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVariantMap>
#include <QtTest>

#include "app/app_controller.h"

namespace kelvane_test {

constexpr int kSolveTimeoutMs = 240000;

inline QVariantMap loadSpot(const QString& name) {
    QFile file(QStringLiteral(KELVANE_SPOTS_DIR "/") + name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QJsonDocument::fromJson(file.readAll()).object().toVariantMap();
}

// Collects every message logged while it lives, in order.
class LogCapture {
  public:
    LogCapture() {
        lines().clear();
        previous() = qInstallMessageHandler(&LogCapture::handle);
    }
    ~LogCapture() { qInstallMessageHandler(previous()); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList messages() const { return lines(); }
    QStringList startingWith(const QString& prefix) const {
        QStringList found;
        for (const QString& line : lines())
            if (line.startsWith(prefix)) found.append(line);
        return found;
    }

  private:
    static QStringList& lines() {
        static QStringList captured;
        return captured;
    }
    static QtMessageHandler& previous() {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void handle(QtMsgType, const QMessageLogContext&, const QString& message) {
        lines().append(message);
    }
};

// Waits until the controller has seen the end of its run. An iteration message handled after the
// worker's flag fell already lowers `running`; the last message is queued by then, so deliver it too.
inline bool waitForIdle(const kelvane_app::AppController& controller, int timeoutMs = kSolveTimeoutMs) {
    if (!QTest::qWaitFor([&] { return !controller.running(); }, timeoutMs)) return false;
    QCoreApplication::sendPostedEvents();
    return true;
}

}  // namespace kelvane_test
