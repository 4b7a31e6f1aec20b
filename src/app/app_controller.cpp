// The controller's construction, its system properties and the background memory estimate.
#include "app/app_controller.h"

#include <QCoreApplication>
#include <QThread>
#include <QtDebug>
#include <array>
#include <limits>
#include <thread>

#include "app/app_controller_mailbox.h"
#include "app/memory_text.h"
#include "app/platform.h"
#include "app/solve_map.h"
#include "session/detached_threads.h"
#include "session/memory_estimate.h"

namespace kelvane_app {
namespace {

constexpr int kMemoryRefreshMs = 2000;

// Looked at in this order; the first one set to a non-empty value decides.
constexpr std::array<const char*, 3> kDevModeVariables{"KELVANE_DEV_MODE", "ORVANTHIS_DEV_MODE",
                                                       "CPP_SOLVER_DEV_MODE"};

bool developerModeFromEnvironment() {
    for (const char* name : kDevModeVariables) {
        if (qEnvironmentVariableIsEmpty(name)) continue;
        const QString value = qEnvironmentVariable(name).trimmed().toLower();
        return value == "1" || value == "true" || value == "yes" || value == "on";
    }
    return true;
}

void logDeveloperMode(bool developerMode) {
    qInfo().noquote() << "[devtools] compiled_in=1"
                      << QStringLiteral("KELVANE_DEV_MODE=") + qEnvironmentVariable("KELVANE_DEV_MODE")
                      << QStringLiteral("ORVANTHIS_DEV_MODE=") + qEnvironmentVariable("ORVANTHIS_DEV_MODE")
                      << QStringLiteral("CPP_SOLVER_DEV_MODE=") + qEnvironmentVariable("CPP_SOLVER_DEV_MODE")
                      << QStringLiteral("developerMode=") + (developerMode ? "true" : "false");
}

qint32 usableThreadCount() {
    const unsigned logical = platform::logical_processor_count();
    if (logical > 0 && logical <= static_cast<unsigned>(std::numeric_limits<int>::max()))
        return static_cast<qint32>(logical);
    int count = QThread::idealThreadCount();
    if (count < 1) count = static_cast<int>(std::thread::hardware_concurrency());
    return count < 1 ? 1 : count;
}

// Runs on an estimate thread: reads only its own copy of the map. Any failure means no estimate.
std::pair<quint64, QString> estimateMemory(const QVariantMap& cfg) {
    try {
        const SolveMemoryEstimate estimate = estimate_solve_memory(solveConfigFromMap(cfg));
        if (estimate.valid && estimate.total_bytes > 0)
            return {estimate.total_bytes, memoryText(estimate.total_bytes)};
    } catch (...) {
    }
    return {0, memoryText(0)};
}

}  // namespace

AppController::AppController(QObject* parent)
    : QObject(parent),
      m_mailbox(std::make_shared<ControllerMailbox>(this)),
      m_systemMemoryText(memoryText(0)),
      m_systemAvailableMemoryText(memoryText(0)),
      m_solveRequiredMemoryText(memoryText(0)) {
    m_developerMode = developerModeFromEnvironment();
    logDeveloperMode(m_developerMode);
    m_systemThreadCount = usableThreadCount();

    const platform::PhysicalMemory memory = platform::physical_memory();
    m_systemMemoryBytes = memory.total_bytes;
    m_systemMemoryText = memoryText(memory.total_bytes);
    m_systemAvailableMemoryBytes = memory.available_bytes;
    m_systemAvailableMemoryText = memoryText(memory.available_bytes);

    refreshAvailableMemory();
    m_memoryTimer.setInterval(kMemoryRefreshMs);
    m_memoryTimer.setSingleShot(false);
    connect(&m_memoryTimer, &QTimer::timeout, this, &AppController::refreshAvailableMemory);
    m_memoryTimer.start();

    m_statusText = QCoreApplication::translate("AppController", "Ready");
}

AppController::~AppController() { m_mailbox->close(); }

QString AppController::appDir() const { return QCoreApplication::applicationDirPath(); }

void AppController::refreshAvailableMemory() {
    const quint64 bytes = platform::physical_memory().available_bytes;
    const QString text = memoryText(bytes);
    if (bytes == m_systemAvailableMemoryBytes && text == m_systemAvailableMemoryText) return;
    m_systemAvailableMemoryBytes = bytes;
    m_systemAvailableMemoryText = text;
    emit systemMemoryChanged();
}

void AppController::requestSolveMemoryEstimate(QVariantMap cfg) {
    const quint64 requestNumber = ++m_estimateCounter;
    // `this` only rides along to the call that the mailbox delivers while the controller lives.
    start_detached_thread([mailbox = m_mailbox, this, requestNumber, cfg] {
        const auto [bytes, text] = estimateMemory(cfg);
        mailbox->post([this, requestNumber, bytes = bytes, text = text] {
            publishMemoryEstimate(requestNumber, bytes, text);
        });
    });
}

void AppController::publishMemoryEstimate(quint64 requestNumber, quint64 bytes, const QString& text) {
    if (requestNumber != m_estimateCounter.load()) return;  // a newer request is under way
    if (bytes == m_solveRequiredMemoryBytes && text == m_solveRequiredMemoryText) return;
    m_solveRequiredMemoryBytes = bytes;
    m_solveRequiredMemoryText = text;
    emit solveRequiredMemoryChanged();
}

void AppController::setRunning(bool running) {
    if (m_running == running) return;
    m_running = running;
    emit runningChanged();
}

void AppController::setProgress(double progress) {
    if (m_progress == progress) return;
    m_progress = progress;
    emit progressChanged();
}

void AppController::setStatusText(const QString& text) {
    if (m_statusText == text) return;
    m_statusText = text;
    emit statusTextChanged();
}

}  // namespace kelvane_app
