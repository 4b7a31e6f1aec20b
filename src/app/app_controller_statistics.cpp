// The controller's side of the activity and play records: today's date and the change signals.
#include <QDate>

#include "app/app_controller.h"
#include "app/solve_statistics.h"

namespace kelvane_app {

void AppController::record_solve_activity(int iterations, double exploitability) {
    recordSolveActivity(QDate::currentDate(), iterations, exploitability);
}

int AppController::solvesToday() const { return solvesOn(QDate::currentDate()); }

QVariantList AppController::solveActivityGridLastYear() const {
    return solveActivityGrid(QDate::currentDate());
}

void AppController::recordPlayVsSolutionHand(bool isMistake, double evLoss) {
    recordPlayHand(QDate::currentDate(), isMistake, evLoss);
    emit playVsSolutionStatsChanged();
}

QVariantMap AppController::playVsSolutionStats() const { return playStats(QDate::currentDate()); }

void AppController::clearPlayVsSolutionStats() {
    clearPlayStats();
    emit playVsSolutionStatsChanged();
}

}  // namespace kelvane_app
