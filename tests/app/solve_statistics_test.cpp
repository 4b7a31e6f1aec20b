// Tests of the solve activity grid and the play statistics, with injected dates and a private settings store.
#include "app/solve_statistics.h"

#include <QSignalSpy>
#include <QtTest>
#include <cmath>
#include <limits>

#include "app/app_controller.h"
#include "settings_sandbox.h"

using namespace kelvane_app;

namespace {

const QDate kSunday(2026, 2, 1);
const QDate kMonday(2026, 2, 2);

int futureCount(const QVariantList& grid) {
    int count = 0;
    for (const QVariant& cell : grid) count += cell.toMap().value("isFuture").toBool() ? 1 : 0;
    return count;
}

QVariantMap cellOn(const QVariantList& grid, const QDate& day) {
    for (const QVariant& cell : grid)
        if (cell.toMap().value("date").toString() == day.toString(Qt::ISODate)) return cell.toMap();
    return {};
}

}  // namespace

class SolveStatisticsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { kelvane_test::use_private_settings_store(); }
    void init() { QSettings().clear(); }

    void gridOnASundayEndsToday() {
        const QVariantList grid = solveActivityGrid(kSunday);
        QCOMPARE(grid.size(), 364);
        QCOMPARE(futureCount(grid), 0);
        QCOMPARE(grid.first().toMap().value("date").toString(), QStringLiteral("2025-02-03"));
        QCOMPARE(QDate::fromString(grid.first().toMap().value("date").toString(), Qt::ISODate).dayOfWeek(),
                 1);
        QCOMPARE(grid.last().toMap().value("date").toString(), QStringLiteral("2026-02-01"));
    }

    void gridOnAMondayMarksSixDays() {
        const QVariantList grid = solveActivityGrid(kMonday);
        QCOMPARE(grid.size(), 364);
        QCOMPARE(futureCount(grid), 6);
        QCOMPARE(grid.last().toMap().value("date").toString(), QStringLiteral("2026-02-08"));
        QVERIFY(!cellOn(grid, kMonday).value("isFuture").toBool());
        QVERIFY(cellOn(grid, kMonday.addDays(1)).value("isFuture").toBool());
    }

    void anEmptyStoreGivesZeros() {
        const QVariantList grid = solveActivityGrid(kMonday);
        QCOMPARE(grid.size(), 364);
        for (const QVariant& item : grid) {
            const QVariantMap cell = item.toMap();
            QCOMPARE(cell.value("isPadding").toBool(), false);
            QCOMPARE(cell.value("solves").toInt(), 0);
            QCOMPARE(cell.value("avgIterations").toDouble(), 0.0);
            QCOMPARE(cell.value("avgExploitability").toDouble(), 0.0);
            QCOMPARE(cell.keys(), QStringList({"avgExploitability", "avgIterations", "date", "isFuture",
                                               "isPadding", "solves"}));
        }
    }

    void daysAverageTheirSolves() {
        const QDate day = kSunday.addDays(-3);
        recordSolveActivity(day, 100, 0.5);
        recordSolveActivity(day, 300, 1.5);
        QCOMPARE(solvesOn(day), 2);
        QCOMPARE(solvesOn(kSunday), 0);
        const QVariantMap cell = cellOn(solveActivityGrid(kSunday), day);
        QCOMPARE(cell.value("solves").toInt(), 2);
        QCOMPARE(cell.value("avgIterations").toDouble(), 200.0);
        QCOMPARE(cell.value("avgExploitability").toDouble(), 1.0);
        const QSettings settings;
        QCOMPARE(settings.value("solveActivity/2026-01-29/iterationsSum").toLongLong(), 400);
    }

    void aSolveWithoutIterationsStillCounts() {
        recordSolveActivity(kMonday, 0, 0.25);
        recordSolveActivity(kMonday, -7, 0.25);
        const QSettings settings;
        QCOMPARE(settings.value("solveActivity/2026-02-02/solves").toInt(), 2);
        QCOMPARE(settings.value("solveActivity/2026-02-02/iterationsSum").toLongLong(), 0);
        QCOMPARE(settings.value("solveActivity/2026-02-02/exploitabilitySum").toDouble(), 0.5);
    }

    void aValueOfTheWrongTypeReadsAsZero() {
        QSettings().setValue("solveActivity/2026-02-02/solves", "many");
        QCOMPARE(solvesOn(kMonday), 0);
        QCOMPARE(cellOn(solveActivityGrid(kMonday), kMonday).value("avgIterations").toDouble(), 0.0);
    }

    void handsCountMistakesAndLosses() {
        recordPlayHand(kMonday, false, 0.5);
        recordPlayHand(kMonday, true, 0.0);
        recordPlayHand(kMonday, false, std::numeric_limits<double>::quiet_NaN());
        recordPlayHand(kMonday, false, std::numeric_limits<double>::infinity());
        recordPlayHand(kMonday, false, -2.0);
        const QVariantMap stats = playStats(kMonday);
        QCOMPARE(stats.value("todayHands").toInt(), 5);
        QCOMPARE(stats.value("todayMistakes").toInt(), 2);
        QCOMPARE(stats.value("todayAccuracyPct").toDouble(), 60.0);
        QCOMPARE(stats.value("todayAvgEvLoss").toDouble(), 0.1);
        QCOMPARE(stats.value("totalHands").toInt(), 5);
        QCOMPARE(stats.value("totalMistakes").toInt(), 2);
        QCOMPARE(QSettings().value("playVsSolution/total/evLossSum").toDouble(), 0.5);
    }

    void statisticsHoldTheirEightKeys() {
        QCOMPARE(playStats(kMonday).keys(),
                 QStringList({"todayAccuracyPct", "todayAvgEvLoss", "todayHands", "todayMistakes",
                              "totalAccuracyPct", "totalAvgEvLoss", "totalHands", "totalMistakes"}));
        const QVariantMap empty = playStats(kMonday);
        QCOMPARE(empty.value("totalAccuracyPct").toDouble(), 0.0);
        QCOMPARE(empty.value("totalAvgEvLoss").toDouble(), 0.0);
    }

    void moreMistakesThanHandsIsNoNegativeAccuracy() {
        QSettings settings;
        settings.setValue("playVsSolution/total/hands", 3);
        settings.setValue("playVsSolution/total/mistakes", 5);
        settings.sync();
        QCOMPARE(playStats(kMonday).value("totalAccuracyPct").toDouble(), 0.0);
    }

    void aHandAfterMidnightGoesToTheNewDay() {
        recordPlayHand(kSunday, true, 1.0);
        recordPlayHand(kMonday, false, 0.0);
        const QVariantMap monday = playStats(kMonday);
        QCOMPARE(monday.value("todayHands").toInt(), 1);
        QCOMPARE(monday.value("todayMistakes").toInt(), 0);
        QCOMPARE(monday.value("todayAccuracyPct").toDouble(), 100.0);
        QCOMPARE(monday.value("totalHands").toInt(), 2);
        QCOMPARE(monday.value("totalAccuracyPct").toDouble(), 50.0);
        QCOMPARE(playStats(kSunday).value("todayMistakes").toInt(), 1);
    }

    void clearingRemovesPlayButKeepsActivity() {
        recordPlayHand(kSunday, true, 1.0);
        recordPlayHand(kMonday, true, 1.0);
        recordSolveActivity(kMonday, 10, 0.1);
        clearPlayStats();
        QSettings settings;
        QVERIFY(!settings.childGroups().contains("playVsSolution"));
        QCOMPARE(playStats(kMonday).value("totalHands").toInt(), 0);
        QCOMPARE(playStats(kSunday).value("todayHands").toInt(), 0);
        QCOMPARE(solvesOn(kMonday), 1);
    }

    void theControllerWorksOnToday() {
        AppController controller;
        QSignalSpy playChanged(&controller, &AppController::playVsSolutionStatsChanged);
        controller.recordPlayVsSolutionHand(false, 0.25);
        QCOMPARE(playChanged.count(), 1);
        const QVariantMap stats = controller.playVsSolutionStats();
        QCOMPARE(stats.value("todayHands").toInt(), 1);
        QCOMPARE(stats.value("todayMistakes").toInt(), 1);
        QCOMPARE(stats.value("totalAvgEvLoss").toDouble(), 0.25);
        QVERIFY(QSettings().contains(
            QStringLiteral("playVsSolution/%1/hands").arg(QDate::currentDate().toString(Qt::ISODate))));
        controller.clearPlayVsSolutionStats();
        QCOMPARE(playChanged.count(), 2);
        QCOMPARE(controller.playVsSolutionStats().value("totalHands").toInt(), 0);

        QCOMPARE(controller.solvesToday(), 0);
        recordSolveActivity(QDate::currentDate(), 50, 0.3);
        QCOMPARE(controller.solvesToday(), 1);
        const QVariantList grid = controller.solveActivityGridLastYear();
        QCOMPARE(grid.size(), 364);
        QCOMPARE(cellOn(grid, QDate::currentDate()).value("solves").toInt(), 1);
        QCOMPARE(futureCount(grid), 7 - QDate::currentDate().dayOfWeek());
    }
};

QTEST_MAIN(SolveStatisticsTest)
#include "solve_statistics_test.moc"
