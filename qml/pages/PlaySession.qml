// Hands played against the solution on the Results page: dealing from the solved ranges, the automatic seat,
// the runout, the mistake test at the user's actions, the hand log, and the drill of one decision. The state lives
// on the page, where the table and the log read it; this object owns the flow and its three timers.
import QtQuick
import "PlayRules.js" as PlayRules
import "PlayTexts.js" as PlayTexts

QtObject {
    id: session

    property var page: null
    property var drill: null

    // Every field of a log entry, always present, so that list delegates never meet an undefined role.
    readonly property var logFields: ["time", "board", "role", "oop", "ip", "line", "endedReason", "mistakeActor",
        "mistakeAction", "correctAction", "chosenActionIndex", "correctActionIndex", "evLoss", "bestEv", "chosenEv",
        "pot", "investedOop", "investedIp", "isMistake"]

    property Timer tickTimer: Timer {
        repeat: false
        onTriggered: session.page.playTick()
    }

    function playNode() {
        return page.playNodeIndex >= 0 ? page.playNodeIndex : page.currentNodeIndex
    }

    function _controllerHas(name) {
        return page.controller && typeof page.controller[name] === "function"
    }

    function _seatCards(seat) {
        return seat === "IP" ? [page.ipCard1, page.ipCard2] : [page.oopCard1, page.oopCard2]
    }

    function _setSeatCards(seat, cards) {
        const first = cards.length === 2 ? cards[0] : ""
        const second = cards.length === 2 ? cards[1] : ""
        if (seat === "IP") {
            page.ipCard1 = first
            page.ipCard2 = second
        } else {
            page.oopCard1 = first
            page.oopCard2 = second
        }
    }

    function _clearCards() {
        _setSeatCards("OOP", [])
        _setSeatCards("IP", [])
    }

    function clearBubble() {
        page.playLastActionActor = ""
        page.playLastActionText = ""
    }

    function stopTimers() {
        tickTimer.stop()
        drill.stopTimers()
    }

    function _clearLastEnd() {
        page.playLastEndReason = ""
        page.playLastMistakeActor = ""
        page.playLastMistakeAction = ""
        page.playLastCorrectAction = ""
        page.playLastEvLoss = NaN
        page.playLastBestEv = NaN
        page.playLastChosenEv = NaN
    }

    function reset() {
        stopTimers()
        page.playRole = ""
        page.playSessionStarted = false
        page.playBoardText = ""
        page.playAwaitingUserAction = false
        page.playNodeIndex = -1
        page.playHandComplete = false
        page.playActionLine = ""
        _clearCards()
        clearBubble()
        drill.clear()
        _clearLastEnd()
        page._playHandComboEvCache = ({})
        select(-1)
    }

    function _resetTree() {
        page._internalPlayReset = true
        page.resetTreeToRoot()
        page._internalPlayReset = false
    }

    function setMode(on) {
        tickTimer.stop()
        _resetTree()
        page.resetPlaySession()
        page.playMode = on
    }

    function start(role) {
        stopTimers()
        page._startPlaySessionImpl(role)
    }

    function startImpl(role) {
        page.playRole = role
        page.playSessionStarted = true
        page.playHandComplete = false
        page.playAwaitingUserAction = false
        page.playBoardText = PlayRules.boardCards(page.boardText).join("")
        page.playNodeIndex = page.currentNodeIndex
        page.playActionLine = ""
        _clearCards()
        clearBubble()
        dealBothSeats(page.currentNodeIndex)
        schedule(0)
    }

    // OOP first, then IP, whatever the role: the hidden hand must exist so that later cards avoid it.
    function dealBothSeats(node) {
        const used = PlayRules.markUsed({}, PlayRules.boardCards(page.playBoardText))
        dealToSeat("OOP", used, node)
        dealToSeat("IP", used, node)
    }

    function dealToSeat(seat, used, node) {
        const combos = _controllerHas("nodeSeatHandCombos") ? page.controller.nodeSeatHandCombos(node, seat) : []
        const cards = PlayRules.pickCombo(combos, used, Math.random())
        _setSeatCards(seat, cards)
        PlayRules.markUsed(used, cards)
        return cards
    }

    function schedule(ms) {
        if (!page.playSessionStarted)
            return
        tickTimer.stop()
        const delay = Number(ms)
        tickTimer.interval = isNaN(delay) ? 0 : Math.max(0, Math.round(delay))
        tickTimer.start()
    }

    function tick() {
        if (!page.playSessionStarted || page.playHandComplete || page.playDrillMode)
            return
        const node = playNode()
        const meta = page._metaForNode(node)
        if (meta.nodeType === "terminal") {
            _completeHand()
            page._logPlayHand({endedReason: "terminal"})
        } else if (meta.nodeType === "chance") {
            page._autoHandleChanceNode()
        } else if (meta.nodeType === "decision") {
            _decide(meta.player, page._actionsForNode(node))
        }
    }

    function _isHeroSeat(seat) {
        return page.playRole === "BOTH" || page.playRole === seat
    }

    function _decide(actor, actions) {
        if (_isHeroSeat(actor)) {
            page.playAwaitingUserAction = true
            return
        }
        const action = page._pickWeightedActionIndex(actions, null)
        if (action < 0)
            return
        page.playLastActionActor = actor
        page.playLastActionText = String(actions[action].name)
        page._advancePlayByActionIndex(action)
    }

    function autoHandleChance() {
        const used = PlayRules.markUsed({}, PlayRules.boardCards(page.playBoardText)
                                        .concat(_seatCards("OOP"), _seatCards("IP")))
        const action = page._pickWeightedActionIndex(page._actionsForNode(playNode()), used)
        if (action >= 0)
            page._advancePlayByActionIndex(action)
    }

    function _actorAt(meta) {
        return meta.nodeType === "chance" ? PlayRules.chanceActor : String(meta.player)
    }

    function _appendStep(actor, name) {
        const step = actor + ": " + name
        page.playActionLine = page.playActionLine === "" ? step : page.playActionLine + PlayRules.stepSeparator + step
    }

    // The tree on the left walks with the hand, into terminal nodes too.
    function _followInTree(action, child) {
        const leaf = page.treeLevels.count - 1
        page.treeLevels.setProperty(leaf, "selectedActionIndex", action)
        page.treeLevels.append({nodeIndex: child, selectedActionIndex: -1})
        page._showNode(child)
        page.rebuildBreadcrumbs()
    }

    function advance(action) {
        const node = playNode()
        const row = page._safeActionAt(page._actionsForNode(node), action)
        if (!row)
            return
        const name = String(row.name)
        if (name.length === PlayRules.cardTextLength)
            page.playBoardText += name
        _appendStep(_actorAt(page._metaForNode(node)), name)
        _followInTree(action, row.childIndex)
        page.playNodeIndex = row.childIndex
        schedule(page.playStepDelayMs)
    }

    function _comboEvs(node, cards) {
        const key = String(node)
        if (!page._playHandComboEvCache[key]) {
            const byCombo = {}
            const combos = _controllerHas("nodeHandCombos") ? page.controller.nodeHandCombos(node) : []
            for (let i = 0; i < combos.length; ++i) {
                const c1 = PlayRules.cardKey(combos[i].c1)
                const c2 = PlayRules.cardKey(combos[i].c2)
                byCombo[c1 + c2] = combos[i].actionEvs
                byCombo[c2 + c1] = combos[i].actionEvs
            }
            const cache = Object.assign({}, page._playHandComboEvCache)
            cache[key] = byCombo
            page._playHandComboEvCache = cache
        }
        return page._playHandComboEvCache[key][PlayRules.cardKey(cards[0]) + PlayRules.cardKey(cards[1])]
    }

    function _pocketEvs(node, actor, cards) {
        return _controllerHas("nodePocketActionEvs") ? page.controller.nodePocketActionEvs(node, actor, cards[0], cards[1])
                                                     : []
    }

    function _rangeEvs(node) {
        const stats = _controllerHas("nodeActionStats") ? page.controller.nodeActionStats(node) : []
        return stats.map(row => Number(row.ev))
    }

    // The dealt combo's EVs as the Strategy view shows them, else the pocket's, else the range's average.
    function evInfoAtNode(node, actor, action) {
        if (actor !== "OOP" && actor !== "IP")
            return PlayRules.unknownEvInfo()
        const cards = _seatCards(actor)
        const sources = [() => _comboEvs(node, cards), () => _pocketEvs(node, actor, cards), () => _rangeEvs(node)]
        for (let i = 0; i < sources.length; ++i) {
            const info = PlayRules.evInfo(sources[i](), action)
            if (info.ok)
                return info
        }
        return PlayRules.unknownEvInfo()
    }

    function isMistake(info) {
        return page.playStopOnSuboptimalAction
                && PlayRules.isMistake(info, page.playSuboptimalEpsilon, page.playSuboptimalRelativeTol)
    }

    function chooseAction(action) {
        if (!page.playAwaitingUserAction)
            return
        if (page.playDrillMode) {
            page._handleDrillChoice(action)
            return
        }
        const node = playNode()
        const actions = page._actionsForNode(node)
        if (!page._safeActionAt(actions, action))
            return
        page.playAwaitingUserAction = false
        const actor = String(page._metaForNode(node).player)
        const info = page._suboptimalEvInfoAtNode(node, actor, action)
        if (!isMistake(info)) {
            page._advancePlayByActionIndex(action)
            return
        }
        tickTimer.stop()
        _appendStep(actor, String(actions[action].name))
        _completeHand()
        page._logPlayHand({endedReason: "suboptimal", mistakeActor: actor, mistakeAction: String(actions[action].name),
                           chosenActionIndex: action, correctActionIndex: info.bestIndex,
                           correctAction: String(actions[info.bestIndex].name), evLoss: info.evLoss,
                           chosenEv: info.chosenEv, bestEv: info.bestEv})
    }

    function _completeHand() {
        tickTimer.stop()
        page.playAwaitingUserAction = false
        page.playHandComplete = true
    }

    function anotherHand() {
        if (!page.playSessionStarted)
            return
        const role = page.playRole
        stopTimers()
        drill.clear()
        _resetTree()
        page._startPlaySessionImpl(role)
    }

    function _logEntry(extra) {
        const meta = page._metaForNode(playNode())
        const entry = {
            time: new Date().toLocaleTimeString(), board: page.playBoardText, role: page.playRole,
            oop: page.oopCard1 + page.oopCard2, ip: page.ipCard1 + page.ipCard2, line: page.playActionLine,
            endedReason: "terminal", mistakeActor: "", mistakeAction: "", correctAction: "",
            chosenActionIndex: -1, correctActionIndex: -1, evLoss: NaN, bestEv: NaN, chosenEv: NaN,
            pot: Number(meta.pot) || 0, investedOop: Number(meta.investedOop) || 0,
            investedIp: Number(meta.investedIp) || 0
        }
        Object.assign(entry, extra)
        entry.isMistake = isFinite(entry.evLoss) && entry.evLoss > 0
        return entry
    }

    function log(extra) {
        const entry = _logEntry(extra)
        page.playLastEndReason = entry.endedReason
        page.playLastMistakeActor = entry.mistakeActor
        page.playLastMistakeAction = entry.mistakeAction
        page.playLastCorrectAction = entry.correctAction
        page.playLastEvLoss = entry.evLoss
        page.playLastBestEv = entry.bestEv
        page.playLastChosenEv = entry.chosenEv
        page.playHandLog.insert(0, entry)
        if (page.playSelectedLogIndex < 0)
            select(0)
        if (_controllerHas("recordPlayVsSolutionHand"))
            page.controller.recordPlayVsSolutionHand(entry.isMistake, entry.isMistake ? entry.evLoss : NaN)
        return entry
    }

    function _logRow(index) {
        const row = page.playHandLog.get(index)
        const entry = {}
        for (const field of logFields)
            entry[field] = row[field]
        return entry
    }

    function select(index) {
        if (index < 0 || index >= page.playHandLog.count) {
            page.playSelectedLogIndex = -1
            page.playSelectedLog = ({})
            page.playSelectedDetails = ({})
            return
        }
        const entry = _logRow(index)
        page.playSelectedLogIndex = index
        page.playSelectedLog = entry
        page.playSelectedDetails = page._buildPlayHandDetails(entry)
    }

    function logFooterText(index) {
        if (index < 0 || index >= page.playHandLog.count)
            return ""
        return PlayTexts.logFooterText(page.playHandLog.get(index))
    }

    function logHeroCards(index) {
        if (index < 0 || index >= page.playHandLog.count)
            return ""
        const row = page.playHandLog.get(index)
        return row.role === "IP" ? row.ip : row.oop
    }
}
