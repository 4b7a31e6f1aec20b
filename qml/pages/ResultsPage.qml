// The Results page: the solved tree walked one action at a time on the left, the current node's strategy on the
// right, and node locking. Every node read goes through the controller's node queries; the page reads each once
// per node change and keeps the answers.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane
import "ResultsStrategy.js" as ResultsStrategy
import "HandSearch.js" as HandSearch
import "ChanceCards.js" as ChanceCards
import "../components/RangeText.js" as RangeText
import "PlayRules.js" as PlayRules
import "PlayTexts.js" as PlayTexts

Item {
    id: page

    property var theme: null
    property var type: null
    property var controller: null
    property string boardText: ""
    property real rakePercent: 0.0
    property int rakeCap: 0

    property ListModel treeLevels: ListModel {}
    property int currentNodeIndex: 0
    property string selectedPlayer: "OOP"
    property var nodePath: []
    property string treeBoardText: ""
    property var chanceCardDisplayOverrideByNode: ({})
    property string selectedHandClass: ""
    property string handSearchText: ""
    property string selectedBucket: ""
    property var handWeights: ({})
    property var handColors: ({})
    property var handActionTypeList: []
    property var handActionProbs: ({})
    property var handActionTypes: ({})

    property var currentActions: []
    property var currentHandCombos: []
    property var currentBuckets: []
    readonly property var visibleHandCombos: HandSearch.visibleCombos(currentHandCombos, {
        noiseFilter: _parseBoardCardsNormalized().length >= _turnBoardCards,
        handClass: selectedHandClass,
        bucket: selectedBucket,
        searchText: handSearchText
    })

    property int chancePickerLevelIndex: -1
    property string chancePickerTitle: ""
    property var chancePickerActions: []
    property var chancePickerIndexByCard: ({})
    property var chancePickerAvailableCardIndices: []
    property string _chancePickerDeal: ""
    property string chancePickerBoardText: ""
    readonly property string _rankOrder: ResultsStrategy.rankOrder
    readonly property var _suitOrder: ChanceCards.suitOrder

    property bool nodeLockMode: false
    property int nodeLockSelectedActionIndex: -1
    property string nodeLockWeightText: "1.0"
    property var nodeLocksByNode: ({})
    readonly property var nodeLockActionList: _nodeLockActionList()

    property bool playMode: false
    property string playRole: ""
    property bool playSessionStarted: false
    property string playBoardText: ""
    property bool playAwaitingUserAction: false
    property int playNodeIndex: -1
    property int playStepDelayMs: 1000
    property bool playHandComplete: false
    property string playActionLine: ""
    property string oopCard1: ""
    property string oopCard2: ""
    property string ipCard1: ""
    property string ipCard2: ""
    property string playLastActionActor: ""
    property string playLastActionText: ""
    property bool playStopOnSuboptimalAction: true
    property real playSuboptimalEpsilon: 1e-6
    property real playSuboptimalRelativeTol: 0.01
    property bool playDrillMode: false
    property int playDrillNodeIndex: -1
    property string playDrillActor: ""
    property string playDrillFeedbackText: ""
    property bool playDrillFeedbackWrong: false
    property real playDrillFeedbackEvLoss: NaN
    property int playSelectedLogIndex: -1
    property var playSelectedLog: ({})
    property var playSelectedDetails: ({})
    property string playLastEndReason: ""
    property string playLastMistakeActor: ""
    property string playLastMistakeAction: ""
    property string playLastCorrectAction: ""
    property real playLastEvLoss: NaN
    property real playLastBestEv: NaN
    property real playLastChosenEv: NaN
    property bool _internalPlayReset: false
    property var _playHandComboEvCache: ({})
    // Kept for the whole process, newest first; leaving the mode does not clear it.
    property ListModel playHandLog: ListModel {}

    readonly property bool hasResults: _resultCount() > 0
    readonly property var _currentMeta: _metaForNode(currentNodeIndex)
    readonly property int _turnBoardCards: 4
    readonly property var _handLabels: RangeText.allHands()

    // A query's answers change only with new results, so readers go through this to re-read on them.
    function _resultCount() {
        if (!controller || typeof controller.treeNodeCount !== "function")
            return 0
        return controller.resultIterations >= 0 ? controller.treeNodeCount() : 0
    }

    function _metaForNode(index) {
        if (_resultCount() <= 0 || index < 0)
            return ({})
        return controller.nodeMeta(index)
    }

    function _actionsForNode(index) {
        if (_resultCount() <= 0 || index < 0)
            return []
        return controller.nodeActions(index)
    }

    function _safeActionAt(actions, index) {
        return actions && index >= 0 && index < actions.length ? actions[index] : null
    }

    function _isValidNode(index) {
        return index !== undefined && index >= 0 && index < _resultCount()
    }

    function resetTreeToRoot() {
        treeLevels.clear()
        treeLevels.append({nodeIndex: 0, selectedActionIndex: -1})
        _showNode(0)
        rebuildBreadcrumbs()
    }

    function selectActionAtLevel(level, action) {
        if (level !== treeLevels.count - 1 || treeLevels.get(level).selectedActionIndex !== -1)
            return
        const row = _safeActionAt(_actionsForNode(treeLevels.get(level).nodeIndex), action)
        if (!row)
            return
        treeLevels.setProperty(level, "selectedActionIndex", action)
        rebuildBreadcrumbs()
        const child = row.childIndex
        // A terminal child has nothing to show: the path ends with the action marked.
        if (!_isValidNode(child) || _metaForNode(child).nodeType === "terminal")
            return
        treeLevels.append({nodeIndex: child, selectedActionIndex: -1})
        _showNode(child)
        rebuildBreadcrumbs()
    }

    function navigateToBreadcrumb(i) {
        const keep = Math.max(1, i + 1)
        if (treeLevels.count > keep)
            treeLevels.remove(keep, treeLevels.count - keep)
        const last = treeLevels.count - 1
        treeLevels.setProperty(last, "selectedActionIndex", -1)
        _showNode(treeLevels.get(last).nodeIndex)
        rebuildBreadcrumbs()
    }

    function _selectedActionName(level) {
        const row = treeLevels.get(level)
        const action = _safeActionAt(_actionsForNode(row.nodeIndex), row.selectedActionIndex)
        return action ? String(action.name) : ""
    }

    function rebuildBreadcrumbs() {
        const path = ["Root"]
        for (let level = 0; level < treeLevels.count; ++level) {
            const name = _selectedActionName(level)
            if (name !== "")
                path.push(name)
        }
        nodePath = path
        treeBoardText = _boardFromTreeSelections()
    }

    function _levelCards(levelCount) {
        const levels = []
        for (let level = 0; level < levelCount; ++level) {
            const node = treeLevels.get(level).nodeIndex
            const name = _selectedActionName(level)
            const isChance = _metaForNode(node).nodeType === "chance"
            const override = chanceCardDisplayOverrideByNode[String(node)]
            levels.push({name: name, override: name !== "" && isChance && override ? override : ""})
        }
        return levels
    }

    function _boardFromTreeSelections() {
        return ChanceCards.boardFromSelections(boardText, _levelCards(treeLevels.count))
    }

    function _showNode(index) {
        if (currentNodeIndex === index)
            _onCurrentNodeChanged()
        else
            currentNodeIndex = index
    }

    function _onCurrentNodeChanged() {
        _playHandComboEvCache = ({})
        if (playMode && playSessionStarted && !playHandComplete && !_internalPlayReset) {
            playNodeIndex = currentNodeIndex
            _schedulePlayTick(0)
        }
        const meta = _metaForNode(currentNodeIndex)
        if (meta.player !== undefined && meta.player !== "")
            selectedPlayer = meta.player
        selectedHandClass = ""
        handSearchText = ""
        currentBuckets = _resultCount() > 0 ? controller.nodeHandBuckets(currentNodeIndex) : []
        // Clearing the bucket refreshes the matrix by itself.
        if (selectedBucket !== "")
            selectedBucket = ""
        else
            refreshHandMatrix()
    }

    function openChancePicker(level, node) {
        const meta = _metaForNode(node)
        const actions = _actionsForNode(node)
        const indexByCard = {}
        const available = []
        for (let i = 0; i < actions.length; ++i) {
            const name = String(actions[i].name)
            if (name.length === 2)
                indexByCard[name] = i
            available.push(i)
        }
        chancePickerLevelIndex = level
        _chancePickerDeal = meta.chanceDeal || ""
        chancePickerTitle = _chancePickerDeal === "river" ? "Choose River Card" : "Choose Turn Card"
        chancePickerActions = actions
        chancePickerIndexByCard = indexByCard
        chancePickerAvailableCardIndices = available
        chancePickerBoardText = ChanceCards.boardFromSelections(boardText, _levelCards(level))
        chancePicker.open()
    }

    function _chanceCardIndexForSelection(card) {
        return ChanceCards.chanceCardIndex(card, chancePickerIndexByCard, chancePickerBoardText)
    }

    function _chooseChanceAction(action, displayCard) {
        const level = chancePickerLevelIndex
        if (level < 0 || level >= treeLevels.count || !_safeActionAt(chancePickerActions, action))
            return
        const overrides = Object.assign({}, chanceCardDisplayOverrideByNode)
        overrides[String(treeLevels.get(level).nodeIndex)] = displayCard
        chanceCardDisplayOverrideByNode = overrides
        chancePicker.close()
        const replaying = playMode && playSessionStarted
        if (replaying)
            _jumpToLevelForReselect(level)
        selectActionAtLevel(level, action)
        if (replaying)
            playDrill.afterRunoutChosen(level, String(chancePickerActions[action].name))
    }

    function chooseChanceCard(action, displayCardText) {
        const row = _safeActionAt(chancePickerActions, action)
        if (row)
            _chooseChanceAction(action, displayCardText ? displayCardText : String(row.name))
    }

    function chooseChanceCardRandom() {
        const indices = chancePickerAvailableCardIndices
        if (indices.length === 0)
            return
        const action = indices[Math.floor(Math.random() * indices.length)]
        _chooseChanceAction(action, String(chancePickerActions[action].name))
    }

    function _colorizeBetRaiseActions(list) {
        return ResultsStrategy.colorizeBetRaiseActions(list, theme.betRankColors, theme.raiseRankColors)
    }

    function _handClassFromCards(c1, c2) {
        return ResultsStrategy.handClassFromCards(c1, c2)
    }

    function _matchSearchTokenToCombo(token, c1, c2) {
        return HandSearch.matchSearchTokenToCombo(token, c1, c2)
    }

    function _parseBoardCardsNormalized() {
        return PlayRules.boardCards(boardText)
    }

    function _chanceEntry(deal) {
        return {name: "Random " + (deal ? deal : "card") + " card", actionType: "chance", frequency: 1.0,
                combos: NaN, equity: NaN, ev: NaN}
    }

    function _actionDefinitions(index) {
        const stats = controller.nodeActionStats(index)
        return _colorizeBetRaiseActions(stats.length > 0 ? stats : controller.nodeActions(index))
    }

    function _emptyHandMatrix() {
        handWeights = {}
        handColors = {}
        handActionTypeList = []
        handActionProbs = {}
        handActionTypes = {}
    }

    function refreshHandMatrix() {
        const meta = _metaForNode(currentNodeIndex)
        const definitions = _resultCount() > 0 ? _actionDefinitions(currentNodeIndex) : []
        currentActions = meta.nodeType === "chance" ? [_chanceEntry(meta.chanceDeal)] : definitions
        const strategy = _resultCount() > 0 ? controller.nodeHandStrategy(currentNodeIndex) : ({})
        currentHandCombos = _resultCount() > 0 ? controller.nodeHandCombos(currentNodeIndex) : []
        if (!strategy || Object.keys(strategy).length === 0) {
            _emptyHandMatrix()
            return
        }
        const inputs = ResultsStrategy.matrixInputs(strategy, definitions, currentHandCombos, selectedBucket,
                                                    nodeLocksByNode[String(currentNodeIndex)], _handLabels, theme)
        handWeights = inputs.weights
        handColors = inputs.colors
        handActionTypeList = inputs.typeList
        handActionProbs = inputs.probs
        handActionTypes = inputs.dominantTypes
    }

    function toggleHandFilter(hand) {
        selectedHandClass = selectedHandClass === hand ? "" : hand
    }

    function toggleBucketFilter(name) {
        selectedBucket = selectedBucket === name ? "" : name
    }

    function _handActionsForProbs(probs) {
        const actions = []
        for (let i = 0; probs && i < probs.length; ++i) {
            const definition = _safeActionAt(currentActions, i)
            actions.push({
                name: definition ? definition.name : "",
                actionType: definition ? definition.actionType : "",
                color: definition && definition.color ? definition.color : undefined,
                frequency: Number(probs[i])
            })
        }
        return actions
    }

    function _investedBy(meta, player) {
        return Number(player === "IP" ? meta.investedIp : meta.investedOop) || 0
    }

    function _hasPlayer(meta) {
        return meta.player === "OOP" || meta.player === "IP"
    }

    function _potSize() {
        return Number(_currentMeta.pot) || 0
    }

    function _stackRemaining() {
        const meta = _currentMeta
        if (!_hasPlayer(meta))
            return 0
        return Math.max(0, (Number(meta.effectiveStack) || 0) - _investedBy(meta, selectedPlayer))
    }

    function _toCallAmount() {
        const meta = _currentMeta
        if (!_hasPlayer(meta))
            return 0
        const larger = Math.max(_investedBy(meta, "OOP"), _investedBy(meta, "IP"))
        return Math.max(0, larger - _investedBy(meta, selectedPlayer))
    }

    function _nodeLockActionList() {
        const actions = _actionsForNode(currentNodeIndex)
        return actions.length > 0 ? actions : currentActions
    }

    function _currentNodeIsLockable() {
        return _metaForNode(currentNodeIndex).nodeType === "decision"
    }

    function _parseLockWeight() {
        const value = Number(String(nodeLockWeightText).trim())
        if (String(nodeLockWeightText).trim() === "" || isNaN(value))
            return 1.0
        return Math.max(0, Math.min(1, value))
    }

    function applyNodeLockToHand(nodeIndex, handLabel) {
        if (!nodeLockMode || nodeLockSelectedActionIndex < 0)
            return
        if (_metaForNode(nodeIndex).nodeType !== "decision")
            return
        const p = _parseLockWeight()
        const locks = Object.assign({}, nodeLocksByNode)
        const nodeLocks = Object.assign({}, locks[String(nodeIndex)] || {})
        nodeLocks[handLabel] = {actionIndex: nodeLockSelectedActionIndex, actionProb: p}
        locks[String(nodeIndex)] = nodeLocks
        nodeLocksByNode = locks
        controller.setNodeLock(nodeIndex, handLabel, nodeLockSelectedActionIndex, p)
        refreshHandMatrix()
    }

    function resetNodeLockEdits(nodeIndex) {
        const locks = Object.assign({}, nodeLocksByNode)
        delete locks[String(nodeIndex)]
        nodeLocksByNode = locks
        nodeLockSelectedActionIndex = -1
        nodeLockWeightText = "1.0"
        if (controller)
            controller.clearNodeLocks(nodeIndex)
        refreshHandMatrix()
    }

    function enterNodeLockMode() {
        nodeLockMode = true
        nodeLockSelectedActionIndex = -1
    }

    function enterStandardMode() {
        nodeLockMode = false
        resetNodeLockEdits(currentNodeIndex)
        nodeLockSelectedActionIndex = -1
    }

    function reSolve() {
        if (controller && _currentNodeIsLockable())
            controller.reSolveWithNodeLocks()
    }

    function _onMatrixClick(hand) {
        if (nodeLockMode)
            applyNodeLockToHand(currentNodeIndex, hand)
        else
            toggleHandFilter(hand)
    }

    function togglePlayMode() { playSession.setMode(!playMode) }
    function startPlaySession(role) { playSession.start(role) }
    function _startPlaySessionImpl(role) { playSession.startImpl(role) }
    function resetPlaySession() { playSession.reset() }
    function _schedulePlayTick(ms) { playSession.schedule(ms) }
    function playTick() { playSession.tick() }
    function _dealToSeat(seat, used) { return playSession.dealToSeat(seat, used, currentNodeIndex) }
    function _pickWeightedActionIndex(actions, used) {
        return PlayRules.pickWeightedActionIndex(actions, used, Math.random())
    }
    function _autoHandleChanceNode() { playSession.autoHandleChance() }
    function _advancePlayByActionIndex(action) { playSession.advance(action) }
    function choosePlayAction(action) { playSession.chooseAction(action) }
    function _suboptimalEvInfoAtNode(node, actor, action) { return playSession.evInfoAtNode(node, actor, action) }
    function _logPlayHand(extra) { return playSession.log(extra) }
    function selectPlayLog(index) { playSession.select(index) }
    function anotherHand() { playSession.anotherHand() }
    function startDrillSpot() { playDrill.start() }
    function stopDrillSpot() { playDrill.stop() }
    function _dealDrillHand() { playDrill.deal() }
    function _handleDrillChoice(action) { playDrill.choose(action) }
    function playDrillAvailable() { return playDrill.available() }
    function playDrillContextText() { return playDrill.contextText() }
    function _findChanceLevel(deal) { return playDrill.findChanceLevel(deal) }
    function _jumpToLevelForReselect(level) { playDrill.jumpToLevel(level) }
    function playCanChangeRunout(deal) { return playDrill.canChangeRunout(deal) }
    function changePlayRunout(deal) { playDrill.changeRunout(deal) }
    function playLogFooterText(row) { return playSession.logFooterText(row) }
    function playLogHeroCards(row) { return playSession.logHeroCards(row) }

    function playActingSeat() {
        if (playDrillMode)
            return playDrillActor
        const meta = _metaForNode(playSession.playNode())
        return meta.nodeType === "decision" ? String(meta.player) : ""
    }

    function playActionNames() {
        const node = playDrillMode ? playDrillNodeIndex : playSession.playNode()
        return _actionsForNode(node).map(action => String(action.name))
    }

    function playSeatIsHero(seat) {
        return playRole === "BOTH" || playRole === seat || (playDrillMode && playDrillActor === seat)
    }

    function _playMeta() {
        return playSessionStarted ? _metaForNode(playSession.playNode()) : ({})
    }

    function _resumePlayAfterPicker() {
        if (playSessionStarted && !playHandComplete && !playAwaitingUserAction && !playSession.tickTimer.running)
            _schedulePlayTick(0)
    }

    function playPotText() { return PlayTexts.potText(_playMeta()) }
    function playStackText(seat) { return PlayTexts.stackText(_playMeta(), seat) }

    function _buildPlayHandDetails(entry) {
        const showdown = (board, oop, ip) => controller && typeof controller.showdownWinner === "function"
                         ? String(controller.showdownWinner(board, oop, ip).winner) : ""
        const facts = PlayRules.handFacts(entry, boardText, showdown, rakePercent, rakeCap)
        facts.summaryLines = PlayTexts.summaryLines(facts, entry)
        return facts
    }

    onCurrentNodeIndexChanged: _onCurrentNodeChanged()
    onSelectedBucketChanged: refreshHandMatrix()
    Component.onCompleted: resetTreeToRoot()

    Connections {
        target: page.controller
        ignoreUnknownSignals: true

        // Node numbers of the old solution mean nothing in the new one: a hand in play ends.
        function onResultsChanged() {
            if (page.playSessionStarted)
                page.resetPlaySession()
            page.resetTreeToRoot()
        }
    }

    // The size-rank colours of bets and raises differ between the two palettes.
    Connections {
        target: page.theme

        function onDarkChanged() {
            page.refreshHandMatrix()
        }
    }

    SplitView {
        anchors.fill: parent
        orientation: Qt.Horizontal

        ResultsTreePanel {
            SplitView.preferredWidth: 320
            SplitView.minimumWidth: 280
            page: page
            theme: page.theme
            type: page.type
        }

        ResultsStrategyView {
            SplitView.fillWidth: true
            SplitView.minimumWidth: 500
            page: page
            theme: page.theme
            type: page.type
        }
    }

    PlaySession {
        id: playSession

        page: page
        drill: playDrill
    }

    PlayDrill {
        id: playDrill

        page: page
        session: playSession
    }

    ChancePickerPopup {
        id: chancePicker

        objectName: "chancePicker"
        page: page
        theme: page.theme
        type: page.type
        // A runout picker left without a choice lets the paused hand go on.
        onClosed: page._resumePlayAfterPicker()
    }
}
