// Each call opens the settings store and closes it again: nothing here is kept in memory.
#include "app/solve_statistics.h"

#include <QSettings>
#include <algorithm>
#include <cmath>

namespace kelvane_app {
namespace {

constexpr int kDaysPerWeek = 7;
constexpr char kPlayGroup[] = "playVsSolution";
constexpr char kPlayTotalPrefix[] = "playVsSolution/total/";

QString activityPrefix(const QDate& day) {
    return QStringLiteral("solveActivity/%1/").arg(day.toString(Qt::ISODate));
}

QString playDayPrefix(const QDate& day) {
    return QStringLiteral("%1/%2/").arg(QLatin1String(kPlayGroup), day.toString(Qt::ISODate));
}

struct DayActivity {
    int solves = 0;
    qint64 iterationsSum = 0;
    double exploitabilitySum = 0.0;
};

DayActivity readActivity(const QSettings& settings, const QString& prefix) {
    return {settings.value(prefix + "solves").toInt(), settings.value(prefix + "iterationsSum").toLongLong(),
            settings.value(prefix + "exploitabilitySum").toDouble()};
}

struct PlayRecord {
    int hands = 0;
    int mistakes = 0;
    double evLossSum = 0.0;
};

PlayRecord readPlay(const QSettings& settings, const QString& prefix) {
    return {settings.value(prefix + "hands").toInt(), settings.value(prefix + "mistakes").toInt(),
            settings.value(prefix + "evLossSum").toDouble()};
}

void addPlayHand(QSettings& settings, const QString& prefix, bool mistake, double loss) {
    const PlayRecord record = readPlay(settings, prefix);
    settings.setValue(prefix + "hands", record.hands + 1);
    settings.setValue(prefix + "mistakes", record.mistakes + (mistake ? 1 : 0));
    settings.setValue(prefix + "evLossSum", record.evLossSum + loss);
}

QVariantMap paddingCell() { return {{"isPadding", true}}; }

QVariantMap activityCell(const QSettings& settings, const QDate& day, const QDate& today) {
    const DayActivity activity = readActivity(settings, activityPrefix(day));
    const bool any = activity.solves > 0;
    return {{"isPadding", false},
            {"date", day.toString(Qt::ISODate)},
            {"isFuture", day > today},
            {"solves", activity.solves},
            {"avgIterations", any ? static_cast<double>(activity.iterationsSum) / activity.solves : 0.0},
            {"avgExploitability", any ? activity.exploitabilitySum / activity.solves : 0.0}};
}

// Writes the derived figures of one record under keys that start with the given word.
void insertPlayFigures(QVariantMap& stats, const QString& scope, const PlayRecord& record) {
    const int correct = std::max(record.hands - record.mistakes, 0);
    const bool any = record.hands > 0;
    stats.insert(scope + "Hands", record.hands);
    stats.insert(scope + "Mistakes", record.mistakes);
    stats.insert(scope + "AccuracyPct", any ? static_cast<double>(correct) / record.hands * 100.0 : 0.0);
    stats.insert(scope + "AvgEvLoss", any ? record.evLossSum / record.hands : 0.0);
}

}  // namespace

void recordSolveActivity(const QDate& day, int iterations, double exploitability) {
    QSettings settings;
    const QString prefix = activityPrefix(day);
    const DayActivity activity = readActivity(settings, prefix);
    settings.setValue(prefix + "solves", activity.solves + 1);
    settings.setValue(prefix + "iterationsSum", activity.iterationsSum + std::max(iterations, 0));
    settings.setValue(prefix + "exploitabilitySum", activity.exploitabilitySum + exploitability);
}

int solvesOn(const QDate& day) { return readActivity(QSettings(), activityPrefix(day)).solves; }

QVariantList solveActivityGrid(const QDate& today) {
    const QDate end = today.addDays((kDaysPerWeek - today.dayOfWeek()) % kDaysPerWeek);
    const QDate start = end.addDays(-(kActivityGridDays - 1));
    const int leading = std::max(start.dayOfWeek() - 1, 0);
    const int total = leading + kActivityGridDays;
    const int trailing = (kDaysPerWeek - total % kDaysPerWeek) % kDaysPerWeek;

    const QSettings settings;
    QVariantList grid;
    grid.reserve(total + trailing);
    for (int i = 0; i < leading; ++i) grid.append(paddingCell());
    for (int day = 0; day < kActivityGridDays; ++day)
        grid.append(activityCell(settings, start.addDays(day), today));
    for (int i = 0; i < trailing; ++i) grid.append(paddingCell());
    return grid;
}

void recordPlayHand(const QDate& day, bool isMistake, double evLoss) {
    const double loss = std::isfinite(evLoss) && evLoss > 0.0 ? evLoss : 0.0;
    const bool mistake = isMistake || loss > 0.0;
    QSettings settings;
    addPlayHand(settings, QLatin1String(kPlayTotalPrefix), mistake, loss);
    addPlayHand(settings, playDayPrefix(day), mistake, loss);
}

QVariantMap playStats(const QDate& day) {
    const QSettings settings;
    QVariantMap stats;
    insertPlayFigures(stats, QStringLiteral("total"), readPlay(settings, QLatin1String(kPlayTotalPrefix)));
    insertPlayFigures(stats, QStringLiteral("today"), readPlay(settings, playDayPrefix(day)));
    return stats;
}

void clearPlayStats() { QSettings().remove(QLatin1String(kPlayGroup)); }

}  // namespace kelvane_app
