// Texts of the play table and of a finished hand's summary.
.pragma library

const evDecimals = 3
const rakeDecimals = 2

function potText(meta) {
    const pot = Number(meta ? meta.pot : NaN)
    return isFinite(pot) ? qsTranslate("ResultsPage", "Pot: ") + pot.toFixed(0) : qsTranslate("ResultsPage", "Pot: —")
}

function stackText(meta, seat) {
    const stack = Number(meta ? meta.effectiveStack : NaN)
    const invested = Number(meta ? (seat === "IP" ? meta.investedIp : meta.investedOop) : NaN)
    if (!isFinite(stack) || !isFinite(invested))
        return qsTranslate("ResultsPage", "Stack: —")
    return qsTranslate("ResultsPage", "Stack: ") + Math.max(0, stack - invested).toFixed(0)
}

// "-0.512": a loss as the log and the drill show it.
function lossText(loss) {
    return "-" + Number(loss).toFixed(evDecimals)
}

function logFooterText(row) {
    if (row.isMistake)
        return qsTranslate("ResultsPage", "EV %1").arg(lossText(row.evLoss))
    return row.endedReason === "suboptimal" ? qsTranslate("ResultsPage", "EV —") : qsTranslate("ResultsPage", "Perfect")
}

// At most two decimals, without trailing zeros: a rake of 0.65 or of 3.
function _rakeText(rake) {
    return String(Number(rake.toFixed(rakeDecimals)))
}

function summaryLines(facts, entry) {
    const lines = [qsTranslate("ResultsPage", "Winner: %1").arg(facts.winner !== "" ? facts.winner : "—")]
    lines.push(isFinite(facts.wonAmount) ? qsTranslate("ResultsPage", "Won: %1").arg(facts.wonAmount.toFixed(0))
                                         : qsTranslate("ResultsPage", "Won: —"))
    lines.push(isFinite(facts.rakeTaken) ? qsTranslate("ResultsPage", "Rake: %1").arg(_rakeText(facts.rakeTaken))
                                         : qsTranslate("ResultsPage", "Rake: —"))
    if (entry.isMistake) {
        lines.push(qsTranslate("ResultsPage", "EV lost: %1").arg(Number(entry.evLoss).toFixed(evDecimals)))
        lines.push(qsTranslate("ResultsPage", "Incorrect: %1").arg(entry.mistakeAction))
        lines.push(qsTranslate("ResultsPage", "Correct: %1").arg(entry.correctAction))
    }
    return lines
}
