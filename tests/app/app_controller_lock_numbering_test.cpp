// A node lock names its node by index: the index must mean the same node in every build of the same
// spot, however many threads built the tree, across a re-solve and across a project file.
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

#include "controller_test_support.h"
#include "settings_sandbox.h"

using kelvane_app::AppController;
using kelvane_test::loadSpot;
using kelvane_test::waitForIdle;

namespace {

constexpr double kTolerance = 1e-5;
const QString kLockedHand = QStringLiteral("99");

QVariantMap turnSpot() {
    QVariantMap cfg = loadSpot("turn.json");
    cfg.insert("max_iterations", 12);
    cfg.insert("thread_count", 2);
    return cfg;
}

int childOf(const AppController& c, int node, const QString& actionType) {
    for (const QVariant& action : c.nodeActions(node))
        if (action.toMap().value("actionType").toString().startsWith(actionType))
            return action.toMap().value("childIndex").toInt();
    return -1;
}

// OOP checks, IP bets, OOP raises: the in-position player's answer to the check-raise.
int facingCheckRaise(const AppController& c) {
    const int check = childOf(c, 0, "check");
    const int bet = childOf(c, check, "bet");
    return childOf(c, bet, "raise");
}

// The locked action's probability for the locked hand at `node`, and the node's seat.
double lockedProbability(const AppController& c, int node, int action) {
    const QVariantMap strategy = c.nodeHandStrategy(node);
    return strategy.value("actionProbs").toMap().value(kLockedHand).toList().value(action, -1.0).toDouble();
}

bool finished(AppController& c) { return c.running() && waitForIdle(c) && c.resultIterations() > 0; }

}  // namespace

class AppControllerLockNumberingTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        qputenv("KELVANE_ACTIONPLAN_MAX_WORKERS", "2");
        kelvane_test::use_private_settings_store();
    }

    void lockSurvivesReSolveAndProjectFile() {
        AppController c;
        c.startSolveWithConfig(turnSpot());
        QVERIFY(finished(c));
        const int node = facingCheckRaise(c);
        QVERIFY(node > 0);
        QCOMPARE(c.nodeMeta(node).value("player").toString(), QStringLiteral("IP"));
        const QVariantList actions = c.nodeActions(node);
        QVERIFY(actions.size() >= 2);
        const int fold = 0;
        QCOMPARE(actions[fold].toMap().value("actionType").toString(), QStringLiteral("fold"));
        QVERIFY(lockedProbability(c, node, fold) < 1.0 - 1e-3);  // a set of nines rarely folds here

        c.setNodeLock(node, kLockedHand, fold, 1.0);
        c.reSolveWithNodeLocks();
        QVERIFY(finished(c));
        QCOMPARE(facingCheckRaise(c), node);
        QVERIFY(std::abs(lockedProbability(c, node, fold) - 1.0) < kTolerance);

        const QTemporaryDir dir;
        const QUrl file = QUrl::fromLocalFile(dir.filePath("locked.kelvaneproj"));
        QVERIFY(c.saveProject(file, QVariantMap{{"boardText", "Ks9d4c7h"}}));
        AppController loaded;
        QVERIFY(loaded.loadProject(file).value("ok").toBool());
        QCOMPARE(loaded.nodeLocks(node).size(), 1);
        loaded.reSolveWithNodeLocks();
        QVERIFY(finished(loaded));
        QCOMPARE(facingCheckRaise(loaded), node);
        QVERIFY(std::abs(lockedProbability(loaded, node, fold) - 1.0) < kTolerance);
    }
};

QTEST_GUILESS_MAIN(AppControllerLockNumberingTest)
#include "app_controller_lock_numbering_test.moc"
