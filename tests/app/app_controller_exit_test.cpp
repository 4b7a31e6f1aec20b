// Tests of the controller's end while its threads still work: a solve and memory estimates outlive it,
// finish on their own and touch nothing of it. The test script runs this under AddressSanitizer.
#include <QtTest>
#include <chrono>

#include "controller_test_support.h"
#include "settings_sandbox.h"
#include "session/detached_threads.h"

using kelvane_app::AppController;
using kelvane_test::loadSpot;

namespace {

constexpr std::chrono::minutes kWorkerTimeout{4};

// A turn spot with wide ranges, far from done when the controller goes.
QVariantMap longTurnSpot() {
    QVariantMap cfg = loadSpot("turn.json");
    cfg.insert("max_iterations", 1000000);
    cfg.insert("target_exploitability", 0.0);
    return cfg;
}

// Whatever a dead controller's threads posted is gone with it; nothing is left to deliver.
void deliverWhatIsLeft() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

}  // namespace

class AppControllerExitTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        kelvane_test::use_private_settings_store();
        QVERIFY(!loadSpot("turn.json").isEmpty());
    }

    // Gone while the worker builds its game and the estimates still count.
    void endDuringTheSetUp() {
        {
            AppController c;
            c.startSolveWithConfig(longTurnSpot());
            QVERIFY(c.running());
            c.requestSolveMemoryEstimate(longTurnSpot());
            c.requestSolveMemoryEstimate(loadSpot("river.json"));
        }
        QVERIFY(kelvane_app::wait_for_detached_threads(kWorkerTimeout));
        deliverWhatIsLeft();
    }

    // Gone while the solver iterates; the cancel stops it at its next poll.
    void endDuringTheIterations() {
        {
            AppController c;
            c.startSolveWithConfig(longTurnSpot());
            QVERIFY(QTest::qWaitFor([&] { return c.statusText().startsWith(QLatin1String("Iter ")); },
                                    kelvane_test::kSolveTimeoutMs));
            c.requestSolveMemoryEstimate(longTurnSpot());
        }
        QVERIFY(kelvane_app::wait_for_detached_threads(kWorkerTimeout));
        deliverWhatIsLeft();
    }
};

QTEST_GUILESS_MAIN(AppControllerExitTest)
#include "app_controller_exit_test.moc"
