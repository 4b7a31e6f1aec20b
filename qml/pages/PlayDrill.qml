// The drill of one decision against the solution: new hands at the same node, a verdict after each choice, and
// nothing logged. Also the change of a running hand's turn or river through the chance picker.
import QtQuick
import "PlayRules.js" as PlayRules
import "PlayTexts.js" as PlayTexts

QtObject {
    id: drill

    property var page: null
    property var session: null

    readonly property int feedbackMs: 700
    readonly property int nextRepMs: 450

    property Timer feedbackTimer: Timer {
        interval: drill.feedbackMs
        onTriggered: drill.page.playDrillFeedbackText = ""
    }

    property Timer nextRepTimer: Timer {
        interval: drill.nextRepMs
        onTriggered: drill._nextRep()
    }

    function stopTimers() {
        feedbackTimer.stop()
        nextRepTimer.stop()
    }

    function clear() {
        page.playDrillMode = false
        page.playDrillNodeIndex = -1
        page.playDrillActor = ""
        _showFeedback("", false, NaN)
    }

    function _showFeedback(text, wrong, evLoss) {
        page.playDrillFeedbackText = text
        page.playDrillFeedbackWrong = wrong
        page.playDrillFeedbackEvLoss = evLoss
    }

    function _playMeta() {
        return page._metaForNode(session.playNode())
    }

    function available() {
        const meta = _playMeta()
        return page.playSessionStarted && !page.playHandComplete && !page.playDrillMode
                && meta.nodeType === "decision" && (meta.player === "OOP" || meta.player === "IP")
    }

    function start() {
        if (!available())
            return
        session.stopTimers()
        stopTimers()
        page.playDrillNodeIndex = session.playNode()
        page.playDrillActor = String(_playMeta().player)
        _showFeedback("", false, NaN)
        page.playDrillMode = true
        page._dealDrillHand()
        page.playAwaitingUserAction = true
    }

    function deal() {
        session.dealBothSeats(page.playDrillNodeIndex)
        page.playActionLine = ""
        session.clearBubble()
    }

    function _verdict(info) {
        if (!session.isMistake(info))
            return qsTranslate("ResultsPage", "Correct")
        const best = page._safeActionAt(page._actionsForNode(page.playDrillNodeIndex), info.bestIndex)
        return qsTranslate("ResultsPage", "Wrong — best: ") + (best ? String(best.name) : "—") + " (EV "
                + PlayTexts.lossText(info.evLoss) + ")"
    }

    // The tree does not move on: the same decision comes back with a new hand.
    function choose(action) {
        if (!page.playDrillMode || !page.playAwaitingUserAction
                || !page._safeActionAt(page._actionsForNode(page.playDrillNodeIndex), action))
            return
        page.playAwaitingUserAction = false
        const info = page._suboptimalEvInfoAtNode(page.playDrillNodeIndex, page.playDrillActor, action)
        const wrong = session.isMistake(info)
        _showFeedback(_verdict(info), wrong, wrong ? info.evLoss : NaN)
        feedbackTimer.restart()
        nextRepTimer.restart()
    }

    function _nextRep() {
        if (!page.playDrillMode)
            return
        page._dealDrillHand()
        page.playAwaitingUserAction = true
    }

    function stop() {
        stopTimers()
        clear()
        page.playAwaitingUserAction = false
        session.schedule(0)
    }

    function _lastOopAction() {
        let name = ""
        for (let level = 0; level < page.treeLevels.count; ++level) {
            const row = page.treeLevels.get(level)
            if (row.nodeIndex === page.playDrillNodeIndex)
                break
            const action = page._safeActionAt(page._actionsForNode(row.nodeIndex), row.selectedActionIndex)
            if (action && page._metaForNode(row.nodeIndex).player === "OOP")
                name = String(action.name)
        }
        return name
    }

    function contextText() {
        if (!page.playDrillMode || page.playDrillActor !== "IP")
            return ""
        const name = _lastOopAction()
        return qsTranslate("ResultsPage", "OOP action: ") + (name !== "" ? name : "—")
    }

    function findChanceLevel(deal) {
        for (let level = 0; level < page.treeLevels.count; ++level) {
            const row = page.treeLevels.get(level)
            const meta = page._metaForNode(row.nodeIndex)
            if (meta.nodeType === "chance" && meta.chanceDeal === deal && row.selectedActionIndex >= 0)
                return level
        }
        return -1
    }

    function canChangeRunout(deal) {
        if (!page.playSessionStarted || page.playHandComplete || page.playDrillMode)
            return false
        return findChanceLevel(deal) >= 0
    }

    function changeRunout(deal) {
        if (!canChangeRunout(deal))
            return
        const level = page._findChanceLevel(deal)
        session.tickTimer.stop()
        page.openChancePicker(level, page.treeLevels.get(level).nodeIndex)
    }

    function jumpToLevel(level) {
        if (level < 0 || level >= page.treeLevels.count)
            return
        if (page.treeLevels.count > level + 1)
            page.treeLevels.remove(level + 1, page.treeLevels.count - level - 1)
        page.treeLevels.setProperty(level, "selectedActionIndex", -1)
    }

    // The hand's line keeps the steps before the changed card; what came after it is played anew.
    function afterRunoutChosen(level, cardName) {
        const steps = PlayRules.splitLine(page.playActionLine).slice(0, level)
        steps.push(PlayRules.chanceActor + ": " + cardName)
        page.playActionLine = steps.join(PlayRules.stepSeparator)
        page.playBoardText = page._boardFromTreeSelections()
        page.playAwaitingUserAction = false
        session.clearBubble()
        session.schedule(0)
    }
}
