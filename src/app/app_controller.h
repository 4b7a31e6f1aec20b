// The one object through which QML reaches the solver: solve control, results, node queries and files.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>
#include <atomic>
#include <cstdint>
#include <memory>

#include "session/solve_config.h"
#include "session/solve_result.h"
#include "session/solve_session.h"

class AppControllerSolveTest;

namespace kelvane_app {

class ControllerMailbox;

// A user's lock of one hand class at one node to one action.
struct NodeLock {
    qint32 actionIndex = 0;
    double actionProb = 0.0;  // 0 to 1
};

class AppController : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString appDir READ appDir CONSTANT)
    Q_PROPERTY(bool useTbb READ useTbb CONSTANT)
    Q_PROPERTY(int systemThreadCount READ systemThreadCount CONSTANT)
    Q_PROPERTY(QString systemMemoryText READ systemMemoryText CONSTANT)
    Q_PROPERTY(QString systemAvailableMemoryText READ systemAvailableMemoryText NOTIFY systemMemoryChanged)
    Q_PROPERTY(qulonglong systemMemoryBytes READ systemMemoryBytes CONSTANT)
    Q_PROPERTY(
        qulonglong systemAvailableMemoryBytes READ systemAvailableMemoryBytes NOTIFY systemMemoryChanged)
    Q_PROPERTY(QString solveRequiredMemoryText READ solveRequiredMemoryText NOTIFY solveRequiredMemoryChanged)
    Q_PROPERTY(
        qulonglong solveRequiredMemoryBytes READ solveRequiredMemoryBytes NOTIFY solveRequiredMemoryChanged)
    Q_PROPERTY(bool running READ running NOTIFY runningChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)
    Q_PROPERTY(QString resultsSummary READ resultsSummary NOTIFY resultsChanged)
    Q_PROPERTY(int resultStartingPot READ resultStartingPot NOTIFY resultsChanged)
    Q_PROPERTY(int resultIterations READ resultIterations NOTIFY resultsChanged)
    Q_PROPERTY(double resultExploitability READ resultExploitability NOTIFY resultsChanged)
    Q_PROPERTY(double resultEvOop READ resultEvOop NOTIFY resultsChanged)
    Q_PROPERTY(double resultEvIp READ resultEvIp NOTIFY resultsChanged)
    Q_PROPERTY(QVariantList rootActions READ rootActions NOTIFY resultsChanged)
    Q_PROPERTY(bool developerMode READ developerMode CONSTANT)

  public:
    explicit AppController(QObject* parent = nullptr);
    // Cancels a solve still going and cuts the way back from it and from the memory estimates; those
    // threads finish on their own.
    ~AppController() override;

    QString appDir() const;
    bool useTbb() const { return false; }
    int systemThreadCount() const { return m_systemThreadCount; }
    QString systemMemoryText() const { return m_systemMemoryText; }
    QString systemAvailableMemoryText() const { return m_systemAvailableMemoryText; }
    qulonglong systemMemoryBytes() const { return m_systemMemoryBytes; }
    qulonglong systemAvailableMemoryBytes() const { return m_systemAvailableMemoryBytes; }
    QString solveRequiredMemoryText() const { return m_solveRequiredMemoryText; }
    qulonglong solveRequiredMemoryBytes() const { return m_solveRequiredMemoryBytes; }
    bool running() const { return m_running; }
    double progress() const { return m_progress; }
    QString statusText() const { return m_statusText; }
    QString resultsSummary() const { return m_resultsSummary; }
    int resultStartingPot() const { return m_resultStartingPot; }
    int resultIterations() const { return m_resultIterations; }
    double resultExploitability() const { return m_resultExploitability; }
    double resultEvOop() const { return m_resultEvOop; }
    double resultEvIp() const { return m_resultEvIp; }
    QVariantList rootActions() const { return m_rootActions; }
    bool developerMode() const { return m_developerMode; }

    Q_INVOKABLE void startSolve();
    Q_INVOKABLE void startSolveWithConfig(QVariantMap cfg);
    Q_INVOKABLE void reSolveWithNodeLocks();
    Q_INVOKABLE void cancelSolve();
    Q_INVOKABLE void clearResults();
    Q_INVOKABLE void requestSolveMemoryEstimate(QVariantMap cfg);
    Q_INVOKABLE QVariantList solveActivityGridLastYear() const;
    Q_INVOKABLE int solvesToday() const;
    Q_INVOKABLE void recordPlayVsSolutionHand(bool isMistake, double evLoss);
    Q_INVOKABLE QVariantMap playVsSolutionStats() const;
    Q_INVOKABLE void clearPlayVsSolutionStats();
    Q_INVOKABLE void openLicensesFolder() const;
    Q_INVOKABLE void openThirdPartyNotices() const;
    Q_INVOKABLE QString readTextResource(QString path) const;
    Q_INVOKABLE bool saveProject(QUrl fileUrl, QVariantMap projectState) const;
    Q_INVOKABLE QVariantMap loadProject(QUrl fileUrl);
    Q_INVOKABLE QVariantMap saveTextFile(QUrl fileUrl, QString text) const;
    Q_INVOKABLE QVariantMap readTextFile(QUrl fileUrl) const;
    Q_INVOKABLE void setNodeLock(int nodeIndex, QString handLabel169, int actionIndex, double actionProb);
    Q_INVOKABLE void clearNodeLocks(int nodeIndex);
    Q_INVOKABLE QVariantList nodeLocks(int nodeIndex) const;
    Q_INVOKABLE int treeNodeCount() const;
    Q_INVOKABLE QVariantMap nodeMeta(int nodeIndex) const;
    Q_INVOKABLE QVariantList nodeActions(int nodeIndex) const;
    Q_INVOKABLE QVariantList nodeActionStats(int nodeIndex) const;
    Q_INVOKABLE QVariantList nodePocketActionEvs(int nodeIndex, QString player, QString c1, QString c2) const;
    Q_INVOKABLE QVariantMap showdownWinner(QString boardText, QString oopText, QString ipText) const;
    Q_INVOKABLE QVariantMap nodeHandStrategy(int nodeIndex) const;
    Q_INVOKABLE QVariantList nodeHandCombos(int nodeIndex) const;
    Q_INVOKABLE QVariantList nodeSeatHandCombos(int nodeIndex, QString player) const;
    Q_INVOKABLE QVariantList nodeHandBuckets(int nodeIndex) const;

  signals:
    void runningChanged();
    void progressChanged();
    void statusTextChanged();
    void resultsChanged();
    void solveStatsChanged();
    void playVsSolutionStatsChanged();
    void systemMemoryChanged();
    void solveRequiredMemoryChanged();

  private:
    // Holds a run between its last message and the fall of the session's flag.
    friend class ::AppControllerSolveTest;

    using NodeLockTable = QHash<qint32, QHash<QByteArray, NodeLock>>;

    SolveConfig buildSolveConfig(const QVariantMap& cfg, bool withLocks) const;
    void handleSolveProgress(const SolveProgress& message);
    void lowerRunningIfSessionEnded();
    void publishResult(const SolveResult& result);
    void clearResultData();
    void clearNodeCaches();
    // The live solution is about to change, or has: every cache entry must be computed anew.
    void markNodeCachesStale();
    void setRunning(bool running);
    void setProgress(double progress);
    void setStatusText(const QString& text);
    void refreshAvailableMemory();
    void publishMemoryEstimate(quint64 requestNumber, quint64 bytes, const QString& text);
    // Adds one successful solve to today's activity in the settings store.
    void record_solve_activity(int iterations, double exploitability);

    bool m_running = false;
    double m_progress = 0.0;
    QString m_statusText;
    QString m_resultsSummary;
    qint32 m_resultStartingPot = 0;
    qint32 m_resultIterations = 0;
    double m_resultExploitability = 0.0;
    double m_resultEvOop = 0.0;
    double m_resultEvIp = 0.0;
    QVariantList m_rootActions;
    QList<QVariantMap> m_treeNodeMeta;
    QList<QVariantList> m_treeNodeActions;
    QVariantMap m_lastUiCfg;
    NodeLockTable m_nodeLocks;

    // What the pages have read, kept so that a saved project answers without a live solver.
    mutable QHash<qint32, QVariantMap> m_handStrategyByNode;
    mutable QHash<qint32, QVariantList> m_actionStatsByNode;
    mutable QHash<qint32, QVariantList> m_handCombosByNode;
    mutable QHash<qint32, QVariantList> m_handBucketsByNode;
    mutable QHash<qint32, QVariantList> m_oopSeatHandCombosByNode;
    mutable QHash<qint32, QVariantList> m_ipSeatHandCombosByNode;
    // Bits, by node, of the cache entries computed from the live solution: those answer without a walk.
    enum FreshCache : quint8 {
        kFreshHandStrategy = 1,
        kFreshActionStats = 2,
        kFreshHandCombos = 4,
        kFreshHandBuckets = 8,
        kFreshOopSeatHandCombos = 16,
        kFreshIpSeatHandCombos = 32,
    };
    mutable QHash<qint32, quint8> m_freshNodeCaches;

    SolveSession m_session;
    std::shared_ptr<ControllerMailbox> m_mailbox;

    qint32 m_systemThreadCount = 1;
    QString m_systemMemoryText;
    QString m_systemAvailableMemoryText;
    quint64 m_systemMemoryBytes = 0;
    quint64 m_systemAvailableMemoryBytes = 0;
    QTimer m_memoryTimer;
    QString m_solveRequiredMemoryText;
    quint64 m_solveRequiredMemoryBytes = 0;
    // Compared from the estimate threads' replies, so that only the newest request publishes.
    std::atomic<quint64> m_estimateCounter{0};
    bool m_developerMode = true;
};

}  // namespace kelvane_app
