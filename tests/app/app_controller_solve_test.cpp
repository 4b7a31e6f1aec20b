// Tests of the controller's solve control: readiness checks, a whole run, cancel, clear, re-solve,
// developer mode, system properties and the memory estimate.
#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>
#include <chrono>
#include <cmath>
#include <semaphore>

#include "app/memory_text.h"
#include "app/platform.h"
#include "app/solve_map.h"
#include "controller_test_support.h"
#include "session/action_text.h"
#include "session/detached_threads.h"
#include "session/memory_estimate.h"
#include "solver/game.h"

using kelvane_app::AppController;
using kelvane_test::loadSpot;
using kelvane_test::LogCapture;
using kelvane_test::waitForIdle;

namespace {

constexpr quint64 kGigabyte = quint64{1} << 30;
constexpr int kPromptMs = 30000;  // for what follows at once, with a margin for a loaded machine
const char* const kDevVariables[] = {"KELVANE_DEV_MODE", "ORVANTHIS_DEV_MODE", "CPP_SOLVER_DEV_MODE"};

QVariantMap riverSpot(int iterations) {
    QVariantMap cfg = loadSpot("river.json");
    cfg.insert("max_iterations", iterations);
    return cfg;
}

// A small flop spot whose game builds quickly; no iteration runs.
QVariantMap quickFlopSpot(const QString& board) {
    QVariantMap cfg = riverSpot(0);
    cfg.insert("board", board);
    cfg.insert("starting_street", "flop");
    cfg.insert("effective_stack", 100);
    cfg.insert("oop_range", "AA");
    cfg.insert("ip_range", "KK");
    return cfg;
}

QString summaryOf(const AppController& c, const QString& board) {
    return QStringLiteral("Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5")
        .arg(board)
        .arg(c.resultIterations())
        .arg(c.resultExploitability(), 0, 'f', 4)
        .arg(c.resultEvOop(), 0, 'f', 3)
        .arg(c.resultEvIp(), 0, 'f', 3);
}

void clearDevVariables() {
    for (const char* name : kDevVariables) qunsetenv(name);
}

bool developerModeWith(std::initializer_list<std::pair<const char*, const char*>> values) {
    clearDevVariables();
    for (const auto& [name, value] : values) qputenv(name, value);
    const AppController controller;
    clearDevVariables();
    return controller.developerMode();
}

// What each tree view text reads for a node of the live game.
QString expectedNodeType(const kelvane::GameNode& node) {
    if (node.kind == kelvane::kNodeDecision) return QStringLiteral("decision");
    if (node.kind == kelvane::kNodeChance) return QStringLiteral("chance");
    return QStringLiteral("terminal");
}

QString expectedPlayer(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeDecision) return {};
    return node.seat == kelvane::kSeatOop ? QStringLiteral("OOP") : QStringLiteral("IP");
}

QString expectedChanceDeal(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeChance) return {};
    if (node.turn_card >= kelvane::kNoCard) return QStringLiteral("turn");
    if (node.river_card >= kelvane::kNoCard) return QStringLiteral("river");
    return {};
}

}  // namespace

class AppControllerSolveTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName("OrvanthisControllerTest");
        QCoreApplication::setApplicationName("OrvanthisControllerTest");
        QVERIFY(!loadSpot("river.json").isEmpty());
    }

    void startsIdle() {
        const AppController c;
        QCOMPARE(c.statusText(), QStringLiteral("Ready"));
        QVERIFY(!c.running());
        QCOMPARE(c.progress(), 0.0);
        QVERIFY(c.resultsSummary().isEmpty());
        QCOMPARE(c.solveRequiredMemoryText(), QStringLiteral("—"));
        QCOMPARE(c.solveRequiredMemoryBytes(), 0ull);
        QVERIFY(!c.useTbb());
        QCOMPARE(c.appDir(), QCoreApplication::applicationDirPath());
        QCOMPARE(c.treeNodeCount(), 0);
    }

    void developerModeFollowsTheFirstSetVariable() {
        QVERIFY(developerModeWith({}));
        QVERIFY(!developerModeWith({{"KELVANE_DEV_MODE", "0"}}));
        QVERIFY(developerModeWith({{"KELVANE_DEV_MODE", " TRUE "}}));
        QVERIFY(!developerModeWith({{"ORVANTHIS_DEV_MODE", "off"}}));
        QVERIFY(developerModeWith({{"ORVANTHIS_DEV_MODE", "Yes"}}));
        QVERIFY(developerModeWith({{"CPP_SOLVER_DEV_MODE", "on"}}));
        QVERIFY(!developerModeWith({{"CPP_SOLVER_DEV_MODE", "banana"}}));
        // The first variable that is set decides, even against a later "1".
        QVERIFY(!developerModeWith({{"KELVANE_DEV_MODE", "no"}, {"ORVANTHIS_DEV_MODE", "1"}}));
        // An empty value is passed over.
        QVERIFY(!developerModeWith(
            {{"KELVANE_DEV_MODE", ""}, {"ORVANTHIS_DEV_MODE", "2"}, {"CPP_SOLVER_DEV_MODE", "1"}}));
    }

    void developerModeIsLogged() {
        clearDevVariables();
        qputenv("ORVANTHIS_DEV_MODE", "off");
        const LogCapture log;
        const AppController c;
        clearDevVariables();
        QCOMPARE(log.startingWith("[devtools]"),
                 QStringList{"[devtools] compiled_in=1 KELVANE_DEV_MODE= ORVANTHIS_DEV_MODE=off "
                             "CPP_SOLVER_DEV_MODE= developerMode=false"});
    }

    void systemProperties() {
        const AppController c;
        QCOMPARE(c.systemThreadCount(), static_cast<int>(kelvane_app::platform::logical_processor_count()));
        QVERIFY(c.systemMemoryBytes() > 0);
        QCOMPARE(c.systemMemoryText(), kelvane_app::memoryText(c.systemMemoryBytes()));
        QVERIFY(c.systemAvailableMemoryBytes() > 0);
        QCOMPARE(c.systemAvailableMemoryText(), kelvane_app::memoryText(c.systemAvailableMemoryBytes()));
    }

    void memoryTexts() {
        QCOMPARE(kelvane_app::memoryText(0), QStringLiteral("—"));
        QCOMPARE(kelvane_app::memoryText(kGigabyte * 3 / 2), QStringLiteral("1.5 GB"));
        QCOMPARE(kelvane_app::memoryText(kGigabyte * 2 / 5), QStringLiteral("0.4 GB"));
        QCOMPARE(kelvane_app::memoryText(kGigabyte * 99 / 10), QStringLiteral("9.9 GB"));
        QCOMPARE(kelvane_app::memoryText(kGigabyte * 10), QStringLiteral("10 GB"));
        QCOMPARE(kelvane_app::memoryText(kGigabyte * 24 + kGigabyte / 2 + 1), QStringLiteral("25 GB"));
    }

    void startSolveWithNothingConfigured() {
        AppController c;
        QSignalSpy running(&c, &AppController::runningChanged);
        c.startSolve();
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: enter a valid board first"));
        QVERIFY(!c.running());
        QCOMPARE(running.count(), 0);
    }

    void boardLengthsAfterNormalising() {
        AppController c;
        for (const char* board : {"AsKd", "AsKdQhJcTc2d", "Xx", ""}) {
            c.startSolveWithConfig(quickFlopSpot(board));
            QCOMPARE(c.statusText(), QStringLiteral("Not ready: enter a valid board first"));
            QVERIFY(!c.running());
        }
        // A trailing odd character never survives normalising, so 7 characters in become a flop.
        for (const char* board : {"AsKdQh", "AsKdQh7", "AsKdQhJc", "AsKdQhJc2d"}) {
            c.startSolveWithConfig(quickFlopSpot(board));
            QVERIFY2(c.running(), board);
            QVERIFY(waitForIdle(c));
            QCOMPARE(c.statusText(), QStringLiteral("Done"));
        }
    }

    void strayPairIsDropped() {
        AppController c;
        c.startSolveWithConfig(quickFlopSpot("as kd qh xx"));
        QVERIFY(c.running());
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Done"));
        QCOMPARE(c.resultsSummary(), summaryOf(c, "AsKdQh"));
    }

    void rangesNeedTwoRankCharacters() {
        AppController c;
        QVariantMap cfg = riverSpot(1);
        cfg.insert("oop_range", "AhKs,QdJc");
        c.startSolveWithConfig(cfg);
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: select at least one hand in both ranges"));
        cfg = riverSpot(1);
        cfg.insert("ip_range", "   ");
        c.startSolveWithConfig(cfg);
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: select at least one hand in both ranges"));
        QVERIFY(!c.running());
    }

    void everySizingKeyIsRequired() {
        AppController c;
        QVariantMap cfg = quickFlopSpot("AsKdQh");
        cfg.insert("ip_river_raise_sizes", "  ");
        c.startSolveWithConfig(cfg);
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: fill out both OOP and IP sizing"));
        cfg = quickFlopSpot("AsKdQh");
        cfg.remove("oop_turn_bet_sizes");
        c.startSolveWithConfig(cfg);
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: fill out both OOP and IP sizing"));
        QVERIFY(!c.running());
    }

    void refusedMapIsTheLastConfig() {
        AppController c;
        c.reSolveWithNodeLocks();
        QCOMPARE(c.statusText(), QStringLiteral("No previous solve config (solve once first)"));
        QVariantMap cfg = riverSpot(1);
        cfg.insert("oop_range", "");
        c.startSolveWithConfig(cfg);
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: select at least one hand in both ranges"));
        QSignalSpy status(&c, &AppController::statusTextChanged);
        c.reSolveWithNodeLocks();
        // "Starting..." and then the same refusal again.
        QCOMPARE(status.count(), 2);
        QCOMPARE(c.statusText(), QStringLiteral("Not ready: select at least one hand in both ranges"));
        QVERIFY(!c.running());
    }

    void wholeRunOnTheRiver() {
        AppController c;
        QSignalSpy results(&c, &AppController::resultsChanged);
        QSignalSpy stats(&c, &AppController::solveStatsChanged);
        QSignalSpy running(&c, &AppController::runningChanged);
        QStringList statuses;
        connect(&c, &AppController::statusTextChanged, this, [&] { statuses.append(c.statusText()); });
        const LogCapture log;

        QVariantMap cfg = riverSpot(60);
        cfg.insert("target_exploitability", 0.0);  // all 60 iterations run
        c.startSolveWithConfig(cfg);
        QVERIFY(c.running());
        QVERIFY(waitForIdle(c));
        QCOMPARE(running.count(), 2);
        QCOMPARE(results.count(), 1);
        QCOMPARE(stats.count(), 1);

        QCOMPARE(log.startingWith("UI startSolveWithConfig:"),
                 QStringList{QStringLiteral(
                                 "UI startSolveWithConfig: board=Ks9d4c7h2s oop_range.len=%1 ip_range.len=%2 "
                                 "pot=100 stack=500 rake%=0 rake_cap=0 iters=60 target_expl=0 "
                                 "oop_flop_bets=75 oop_flop_raises=100 ip_flop_bets=75 ip_flop_raises=100 "
                                 "oop_jam_thr_en=false oop_jam_thr_pct=0 ip_jam_thr_en=false "
                                 "ip_jam_thr_pct=0")
                                 .arg(cfg.value("oop_range").toString().size())
                                 .arg(cfg.value("ip_range").toString().size())});

        QStringList expected{"Starting...", "Init: building game object...",
                             "Init: building game tree structures...", "Init: starting solver..."};
        QCOMPARE(statuses.mid(0, 4), expected);
        QCOMPARE(statuses.size(), 4 + 60 + 3);
        for (int i = 1; i <= 60; ++i)
            QVERIFY2(statuses[3 + i].startsWith(QStringLiteral("Iter %1 | exploitability≈").arg(i)),
                     qPrintable(statuses[3 + i]));
        QCOMPARE(statuses.mid(64), (QStringList{"Finalizing: computing results...",
                                                "Finalizing: building result snapshot...", "Done"}));

        const QStringList progressLines = log.startingWith("UI solve progress: p=");
        QCOMPARE(progressLines.size(), 3 + 60 + 3);
        for (int i = 0; i + 1 < progressLines.size(); ++i)
            QVERIFY(progressLines[i].endsWith(" has_result=false"));
        QCOMPARE(progressLines.last(), QStringLiteral("UI solve progress: p=1 status=Done has_result=true"));
        QCOMPARE(progressLines[3], QStringLiteral("UI solve progress: p=%1 status=%2 has_result=false")
                                       .arg(QString::number(1.0 / 60.0))
                                       .arg(statuses[4]));
        QCOMPARE(c.progress(), 1.0);

        QCOMPARE(c.statusText(), QStringLiteral("Done"));
        QCOMPARE(c.resultIterations(), 60);
        QCOMPARE(c.resultStartingPot(), 100);
        QVERIFY(c.resultExploitability() >= 0.0);
        QCOMPARE(c.resultsSummary(), summaryOf(c, "Ks9d4c7h2s"));
        QCOMPARE(log.startingWith("UI about to emit resultsChanged"),
                 QStringList{QStringLiteral("UI about to emit resultsChanged: root_actions=2 summary.len=%1")
                                 .arg(c.resultsSummary().size())});
        QCOMPARE(log.startingWith("UI emitted resultsChanged"), QStringList{"UI emitted resultsChanged"});

        const QVariantList root = c.rootActions();
        QCOMPARE(root.size(), 2);
        QCOMPARE(root[0].toMap().value("name").toString(), QStringLiteral("Check"));
        QCOMPARE(root[0].toMap().value("actionType").toString(), QStringLiteral("check"));
        QCOMPARE(root[1].toMap().value("name").toString(), QStringLiteral("Bet 75%"));
        QCOMPARE(root[1].toMap().value("actionType").toString(), QStringLiteral("bet 75%"));
        const double frequencySum =
            root[0].toMap().value("frequency").toDouble() + root[1].toMap().value("frequency").toDouble();
        QVERIFY(std::abs(frequencySum - 1.0) < 1e-5);

        QVERIFY(c.treeNodeCount() > 3);
        const QVariantMap meta = c.nodeMeta(0);
        QCOMPARE(meta.value("nodeType").toString(), QStringLiteral("decision"));
        QCOMPARE(meta.value("player").toString(), QStringLiteral("OOP"));
        QCOMPARE(meta.value("chanceDeal").toString(), QString());
        QCOMPARE(meta.value("pot").toInt(), 100);
        QCOMPARE(meta.value("effectiveStack").toInt(), 500);
        QCOMPARE(meta.value("investedOop").toInt(), 0);
        QCOMPARE(meta.value("investedIp").toInt(), 0);
        QCOMPARE(meta.value("hasChildren").toBool(), true);
        const QVariantList actions = c.nodeActions(0);
        QCOMPARE(actions.size(), 2);
        for (int a = 0; a < 2; ++a) {
            const QVariantMap action = actions[a].toMap();
            QCOMPARE(action.value("name"), root[a].toMap().value("name"));
            QCOMPARE(action.value("actionType"), root[a].toMap().value("actionType"));
            QVERIFY(std::abs(action.value("frequency").toDouble() -
                             root[a].toMap().value("frequency").toDouble()) < 1e-5);
            const int child = action.value("childIndex").toInt();
            QVERIFY(child > 0 && child < c.treeNodeCount());
        }
        const QVariantMap afterBet = c.nodeMeta(actions[1].toMap().value("childIndex").toInt());
        QCOMPARE(afterBet.value("player").toString(), QStringLiteral("IP"));
        QCOMPARE(afterBet.value("investedOop").toInt(), 75);
    }

    // Every node of a flop tree, deals and runouts included, reaches the tree views with the keys and
    // texts of its live game node.
    void treeViewsDescribeEveryGameNode() {
        AppController c;
        c.startSolveWithConfig(quickFlopSpot("AsKdQh"));
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Done"));
        const kelvane_app::SolvedGame solved = c.m_session.solution();
        QVERIFY(solved.game);
        const kelvane::Game& game = *solved.game;
        QCOMPARE(c.treeNodeCount(), static_cast<int>(game.node_count()));

        const QStringList metaKeys{"chanceDeal",  "effectiveStack", "hasChildren", "investedIp",
                                   "investedOop", "nodeType",       "player",      "pot"};
        const QStringList actionKeys{"actionType", "childIndex", "frequency", "name"};
        QSet<QString> deals;
        for (int i = 0; i < c.treeNodeCount(); ++i) {
            const kelvane::GameNode& node = game.node(static_cast<std::uint64_t>(i));
            const QVariantMap meta = c.nodeMeta(i);
            QCOMPARE(meta.keys(), metaKeys);
            QCOMPARE(meta.value("nodeType").toString(), expectedNodeType(node));
            QCOMPARE(meta.value("player").toString(), expectedPlayer(node));
            QCOMPARE(meta.value("chanceDeal").toString(), expectedChanceDeal(node));
            QCOMPARE(meta.value("pot").toInt(), node.pot);
            QCOMPARE(meta.value("effectiveStack").toInt(), 100);
            QCOMPARE(meta.value("investedOop").toInt(), node.invested[kelvane::kSeatOop]);
            QCOMPARE(meta.value("investedIp").toInt(), node.invested[kelvane::kSeatIp]);
            QCOMPARE(meta.value("hasChildren").toBool(), !node.actions.empty());
            deals.insert(meta.value("chanceDeal").toString());

            const QVariantList actions = c.nodeActions(i);
            QCOMPARE(actions.size(), static_cast<qsizetype>(node.actions.size()));
            const double base = kelvane_app::node_percent_base(node.pot, c.resultStartingPot());
            double frequencySum = 0.0;
            for (qsizetype a = 0; a < actions.size(); ++a) {
                const QVariantMap action = actions[a].toMap();
                const kelvane::Action& played = node.actions[static_cast<std::size_t>(a)];
                QCOMPARE(action.keys(), actionKeys);
                QCOMPARE(action.value("name").toString(),
                         QString::fromStdString(kelvane_app::action_name(played, base)));
                QCOMPARE(action.value("actionType").toString(),
                         QString::fromStdString(kelvane_app::action_type_text(played, base)));
                QCOMPARE(action.value("childIndex").toULongLong(),
                         static_cast<qulonglong>(node.children[static_cast<std::size_t>(a)]));
                frequencySum += action.value("frequency").toDouble();
            }
            if (!actions.isEmpty()) QVERIFY(std::abs(frequencySum - 1.0) < 1e-5);
        }
        QCOMPARE(deals, (QSet<QString>{"", "turn", "river"}));
    }

    // The last message is handled while the worker still holds its flag up; the flag's fall alone, with
    // no message after it, ends `running`.
    void runningFallsOnceTheFlagFallsAfterTheLastMessage() {
        AppController c;
        std::binary_semaphore held{0};
        std::binary_semaphore released{0};
        c.m_session.set_hold_before_flag_falls([&] {
            held.release();
            released.acquire();
        });
        QSignalSpy running(&c, &AppController::runningChanged);
        const LogCapture log;
        c.startSolveWithConfig(quickFlopSpot("AsKdQh"));
        QVERIFY(c.running());
        QVERIFY(QTest::qWaitFor([&] { return c.statusText() == QLatin1String("Done"); },
                                kelvane_test::kSolveTimeoutMs));
        held.acquire();
        QVERIFY(c.running());
        const qsizetype messages = log.startingWith("UI solve progress:").size();

        released.release();
        QVERIFY(QTest::qWaitFor([&] { return !c.running(); }, kPromptMs));
        QVERIFY(kelvane_app::wait_for_detached_threads(std::chrono::minutes(1)));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(running.count(), 2);
        QCOMPARE(log.startingWith("UI solve progress:").size(), messages);
        QCOMPARE(c.resultsSummary(), summaryOf(c, "AsKdQh"));
    }

    void runningGuardChangesNothing() {
        AppController c;
        QVariantMap first = riverSpot(200000);
        first.insert("target_exploitability", 0.0);
        c.startSolveWithConfig(first);
        QVERIFY(c.running());
        QVERIFY(QTest::qWaitFor([&] { return c.statusText().startsWith("Iter "); },
                                kelvane_test::kSolveTimeoutMs));

        const LogCapture log;
        const QString status = c.statusText();
        QVariantMap other = quickFlopSpot("AsKdQh");
        c.startSolveWithConfig(other);
        c.reSolveWithNodeLocks();
        QCOMPARE(c.statusText(), status);
        QVERIFY(log.messages().isEmpty());

        c.cancelSolve();
        QCOMPARE(c.statusText(), QStringLiteral("Cancelling..."));
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Cancelled"));
        QCOMPARE(c.progress(), 0.0);
        QCOMPARE(c.resultsSummary(), QStringLiteral("Solve failed: Cancelled"));
        QCOMPARE(c.treeNodeCount(), 0);
        QVERIFY(c.rootActions().isEmpty());
        QCOMPARE(c.resultIterations(), 0);

        // The map sent during the run did not replace the first one as the last config.
        const LogCapture second;
        c.reSolveWithNodeLocks();
        QCOMPARE(second.startingWith("UI startSolveWithConfig: board=Ks9d4c7h2s ").size(), 1);
        c.cancelSolve();
        QVERIFY(waitForIdle(c));
    }

    void cancelWithNothingRunning() {
        AppController c;
        c.cancelSolve();
        QCOMPARE(c.statusText(), QStringLiteral("Cancelling..."));
        QVERIFY(!c.running());
    }

    void clearResultsAfterASolve() {
        AppController c;
        c.startSolveWithConfig(riverSpot(3));
        QVERIFY(waitForIdle(c));
        QVERIFY(c.treeNodeCount() > 0);
        c.setNodeLock(0, "AA", 1, 1.0);
        QVERIFY(!c.nodeHandCombos(0).isEmpty());

        QSignalSpy results(&c, &AppController::resultsChanged);
        QSignalSpy progress(&c, &AppController::progressChanged);
        c.clearResults();
        QCOMPARE(results.count(), 1);
        QCOMPARE(progress.count(), 1);
        QCOMPARE(c.progress(), 0.0);
        QCOMPARE(c.statusText(), QStringLiteral("Ready"));
        QVERIFY(c.resultsSummary().isEmpty());
        QVERIFY(c.rootActions().isEmpty());
        QCOMPARE(c.treeNodeCount(), 0);
        QCOMPARE(c.resultIterations(), 0);
        QCOMPARE(c.resultStartingPot(), 0);
        QCOMPARE(c.resultEvOop(), 0.0);
        QVERIFY(c.nodeLocks(0).isEmpty());
        // Neither the live solution nor the caches answer any more.
        QVERIFY(c.nodeHandCombos(0).isEmpty());
        c.reSolveWithNodeLocks();
        QCOMPARE(c.statusText(), QStringLiteral("No previous solve config (solve once first)"));
    }

    void clearResultsDuringARunLeavesTheWorker() {
        AppController c;
        QVariantMap cfg = riverSpot(200000);
        cfg.insert("target_exploitability", 0.0);
        c.startSolveWithConfig(cfg);
        c.clearResults();
        QVERIFY(!c.running());
        QCOMPARE(c.statusText(), QStringLiteral("Ready"));
        // The worker is still in its set-up, which no cancel interrupts.
        c.startSolveWithConfig(cfg);
        QCOMPARE(c.statusText(), QStringLiteral("Already running"));
        QVERIFY(c.running());
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Cancelled"));
        QCOMPARE(c.resultsSummary(), QStringLiteral("Solve failed: Cancelled"));
    }

    void estimatePublishesItsAnswer() {
        AppController c;
        QSignalSpy changed(&c, &AppController::solveRequiredMemoryChanged);
        const QVariantMap cfg = riverSpot(10);
        c.requestSolveMemoryEstimate(cfg);
        QVERIFY(QTest::qWaitFor([&] { return changed.count() == 1; }, 60000));
        const auto expected = kelvane_app::estimate_solve_memory(kelvane_app::solveConfigFromMap(cfg));
        QVERIFY(expected.valid);
        QCOMPARE(c.solveRequiredMemoryBytes(), expected.total_bytes);
        QCOMPARE(c.solveRequiredMemoryText(), kelvane_app::memoryText(expected.total_bytes));

        // The same answer again changes nothing; a refused config brings back the dash.
        c.requestSolveMemoryEstimate(cfg);
        QTest::qWait(1000);
        QCOMPARE(changed.count(), 1);
        QVariantMap bad = cfg;
        bad.insert("board", "As");
        c.requestSolveMemoryEstimate(bad);
        QVERIFY(QTest::qWaitFor([&] { return changed.count() == 2; }, 60000));
        QCOMPARE(c.solveRequiredMemoryBytes(), 0ull);
        QCOMPARE(c.solveRequiredMemoryText(), QStringLiteral("—"));
    }

    void onlyTheNewestEstimatePublishes() {
        // A flop spot with wide ranges takes far longer to estimate than the river spot.
        QVariantMap slow = riverSpot(10);
        slow.insert("board", "Ks9d4c");
        slow.insert("starting_street", "flop");
        slow.insert("oop_range", "22+,A2+,K2+,Q2+,J2+,T2+,92+,82+,72+,62+,52+,42+,32");
        slow.insert("ip_range", "22+,A2+,K2+,Q2+,J2+,T2+,92+,82+,72+,62+,52+,42+,32");
        const QVariantMap fast = riverSpot(10);

        AppController c;
        QSignalSpy changed(&c, &AppController::solveRequiredMemoryChanged);
        QElapsedTimer clock;
        clock.start();
        c.requestSolveMemoryEstimate(slow);
        QVERIFY(QTest::qWaitFor([&] { return changed.count() == 1; }, 120000));
        const qint64 slowMs = clock.elapsed();
        const quint64 slowBytes = c.solveRequiredMemoryBytes();

        AppController d;
        QSignalSpy newest(&d, &AppController::solveRequiredMemoryChanged);
        d.requestSolveMemoryEstimate(slow);
        d.requestSolveMemoryEstimate(fast);
        QVERIFY(QTest::qWaitFor([&] { return newest.count() == 1; }, 60000));
        const quint64 fastBytes = d.solveRequiredMemoryBytes();
        QVERIFY(fastBytes != slowBytes);
        // Long enough for the older request to have answered too; its answer is dropped.
        QTest::qWait(static_cast<int>(3 * slowMs + 1000));
        QCOMPARE(newest.count(), 1);
        QCOMPARE(d.solveRequiredMemoryBytes(), fastBytes);
    }
};

QTEST_GUILESS_MAIN(AppControllerSolveTest)
#include "app_controller_solve_test.moc"
