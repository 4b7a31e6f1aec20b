// Day-by-day records of successful solves and of hands played against the solution, in the settings store.
#pragma once

#include <QDate>
#include <QVariantList>
#include <QVariantMap>

namespace kelvane_app {

inline constexpr int kActivityGridDays = 364;

// Adds one successful solve to the day; iteration counts below 1 add nothing to the sum.
void recordSolveActivity(const QDate& day, int iterations, double exploitability);

int solvesOn(const QDate& day);

// 52 full weeks, Monday first, ending with the Sunday of today's week; later days are marked isFuture.
QVariantList solveActivityGrid(const QDate& today);

// A positive finite loss always counts as a mistake; anything else counts as no loss.
void recordPlayHand(const QDate& day, bool isMistake, double evLoss);

// Totals and the day's figures, with accuracy and average loss derived from them.
QVariantMap playStats(const QDate& day);

// Removes the totals and every day; solve activity has no such reset.
void clearPlayStats();

}  // namespace kelvane_app
