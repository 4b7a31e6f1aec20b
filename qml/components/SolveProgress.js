// What a solve's status text says about its progress, read the same way by the top bar and the Solve page.
// A solve may stop at its target long before its iteration cap, so the wheel's full scale follows the target.
.pragma library

const finalizingPrefix = "Finalizing:"

const _iterationPattern = /Iter\s+(\d+)/
const _exploitabilityPattern = /exploitability≈(-?\d+(?:\.\d+)?(?:[eE][-+]?\d+)?)/
// Wheel totals by target: a target (in percent of the pot) at or above the bound fills the wheel at the count.
const _wheelSteps = [{bound: 1.0, total: 150}, {bound: 0.5, total: 200}, {bound: 0.1, total: 300}]

function parseIteration(text) {
    const match = _iterationPattern.exec(String(text))
    return match ? parseInt(match[1], 10) : 0
}

function parseExploitability(text) {
    const match = _exploitabilityPattern.exec(String(text))
    return match ? parseFloat(match[1]) : NaN
}

function isFinalizing(running, text) {
    return running === true && String(text).startsWith(finalizingPrefix)
}

// The finishing stages name no iteration: the last one seen stands for them.
function runningIteration(statusText, finalizing, lastIteration, progress, maxIterations) {
    if (finalizing && lastIteration > 0)
        return lastIteration
    const parsed = parseIteration(statusText)
    if (parsed > 0)
        return parsed
    const fraction = Number(progress)
    return isFinite(fraction) ? Math.floor(fraction * Math.max(1, maxIterations)) : 0
}

function wheelTotal(maxIterations, targetPercent) {
    const maxIt = Math.max(1, maxIterations)
    const t = Number(targetPercent)
    if (!isFinite(t) || t <= 0)
        return maxIt
    for (const step of _wheelSteps) {
        if (t >= step.bound)
            return Math.min(maxIt, step.total)
    }
    return maxIt
}

function wheelFraction(iteration, total) {
    return Math.max(0, Math.min(1, iteration / Math.max(1, total)))
}
