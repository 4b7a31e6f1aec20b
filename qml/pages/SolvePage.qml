// The Solve page: starts a solve of the project's spot, follows its progress and keeps a short list of the
// runs started from here.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane
import "../components/SolveProgress.js" as SolveProgress

Item {
    id: page

    property var theme: null
    property var type: null
    property var controller: null
    // Whether the project is complete enough, and the machine roomy enough, to start a solve.
    property bool canSolve: false

    property string boardText: ""
    property string oopRangeText: ""
    property string ipRangeText: ""
    property string betSizesText: ""
    property int maxIterations: 0
    property int startingPot: 0
    property int effectiveStack: 0
    property int threadCount: 1
    property string startingStreet: "flop"
    property real targetExploitability: 0.0
    property real rakePercent: 0.0
    property int rakeCap: 0

    property string oopFlopBetSizesText: ""
    property string oopTurnBetSizesText: ""
    property string oopRiverBetSizesText: ""
    property string oopFlopRaiseSizesText: ""
    property string oopTurnRaiseSizesText: ""
    property string oopRiverRaiseSizesText: ""
    property bool oopFlopAddAllIn: false
    property bool oopTurnAddAllIn: false
    property bool oopRiverAddAllIn: false
    property bool oopFlopDontDonk: false
    property bool oopTurnDontDonk: false
    property bool oopRiverDontDonk: false

    property string ipFlopBetSizesText: ""
    property string ipTurnBetSizesText: ""
    property string ipRiverBetSizesText: ""
    property string ipFlopRaiseSizesText: ""
    property string ipTurnRaiseSizesText: ""
    property string ipRiverRaiseSizesText: ""
    property bool ipFlopAddAllIn: false
    property bool ipTurnAddAllIn: false
    property bool ipRiverAddAllIn: false

    property bool oopAddAllInIfJamLtEnabled: false
    property real oopAddAllInIfJamLtPct: 0.0
    property bool ipAddAllInIfJamLtEnabled: false
    property real ipAddAllInIfJamLtPct: 0.0

    readonly property int iterationWindowSize: 10
    property real iterationsPerSec: 0
    property string elapsedTime: "00:00"
    property string estimatedRemaining: "--:--"
    property int seconds: 0
    readonly property int maxThreadCount: Number(_controllerValue("systemThreadCount", 0)) || 1
    property var _threadChoiceModel: []

    readonly property bool running: _controllerValue("running", false) === true
    readonly property string statusText: String(_controllerValue("statusText", ""))
    readonly property int resultIterations: Number(_controllerValue("resultIterations", 0)) || 0
    readonly property bool isFinalizing: SolveProgress.isFinalizing(running, statusText)
    readonly property int currentIteration: _currentIteration()
    readonly property real currentExploitabilityValue: _currentExploitability()
    readonly property int progressWheelTotalIterations: SolveProgress.wheelTotal(maxIterations, targetExploitability)
    readonly property real progressWheelValue: _progressWheelValue()
    readonly property bool runComplete: !running && resultIterations > 0
    readonly property int iterationWindowValue: _iterationWindowValue()

    // The finishing stages name no iteration, so the last one seen is held through them.
    property int _lastIterFromStatusText: 0
    property int _nextRunId: 1
    property int _activeRunId: -1
    property alias runHistory: runHistory

    readonly property int _maxRunRows: 10
    readonly property int _explainedIterations: 50
    readonly property int _clockInterval: 1000
    readonly property string _maxThreadChoice: "Max"
    readonly property var _threadSteps: [1, 2, 4, 8, 16, 32, 64, 128]
    readonly property real _leftColumnShare: 0.4

    signal goToResults()

    function _controllerValue(name, fallback) {
        return controller && controller[name] !== undefined && controller[name] !== null ? controller[name] : fallback
    }

    function _controllerCan(name) {
        return !!controller && typeof controller[name] === "function"
    }

    function _parseIterationFromStatusText(t) {
        return SolveProgress.parseIteration(t)
    }

    function _parseExploitabilityFromStatusText(t) {
        return SolveProgress.parseExploitability(t)
    }

    function _currentIteration() {
        if (!controller)
            return 0
        if (!running)
            return resultIterations
        return SolveProgress.runningIteration(statusText, isFinalizing, _lastIterFromStatusText,
                                              _controllerValue("progress", 0), maxIterations)
    }

    function _currentExploitability() {
        if (!controller)
            return NaN
        if (running)
            return _parseExploitabilityFromStatusText(statusText)
        const result = Number(_controllerValue("resultExploitability", NaN))
        return isFinite(result) && result > 0 ? result : NaN
    }

    // The first iterations' figure says nothing yet about convergence.
    function _formatExploitabilityForUi(iteration, e) {
        if (iteration >= 1 && iteration <= _explainedIterations)
            return qsTr("∞")
        const value = Number(e)
        return isFinite(value) ? value.toFixed(2) : qsTr("—")
    }

    function _progressWheelValue() {
        if (running)
            return SolveProgress.wheelFraction(currentIteration, progressWheelTotalIterations)
        return runComplete ? 1.0 : 0
    }

    function _iterationWindowValue() {
        if (!running || currentIteration <= 0)
            return 0
        return ((currentIteration - 1) % iterationWindowSize) + 1
    }

    function _statusLine() {
        if (!controller || (!running && statusText === ""))
            return qsTr("Ready to solve")
        if (!running)
            return statusText
        if (isFinalizing)
            return statusText !== "" ? statusText : qsTr("Finalizing…")
        if (currentIteration > 0)
            return qsTr("Iteration %1 | exploitability=%2").arg(currentIteration)
                .arg(_formatExploitabilityForUi(currentIteration, currentExploitabilityValue))
        return statusText
    }

    function _statusDetail() {
        return isFinalizing ? qsTr("Solver converged — finalizing results…") : ""
    }

    function _windowCaption() {
        if (running)
            return qsTr("Window %1/%2").arg(iterationWindowValue).arg(iterationWindowSize)
        return qsTr("Iterations: %1").arg(_localeInteger(resultIterations))
    }

    function _badgeText() {
        if (isFinalizing)
            return qsTr("Finalizing")
        return running ? qsTr("Running") : qsTr("Ready")
    }

    function _badgeColor() {
        if (isFinalizing)
            return theme.warn
        return running ? theme.success : theme.textMuted
    }

    function _localeInteger(value) {
        return Number(value).toLocaleString(Qt.locale(), "f", 0)
    }

    function _pad2(value) {
        return String(value).padStart(2, "0")
    }

    // Minutes run past 60 rather than roll into hours.
    function _minutesAndSeconds(totalSeconds) {
        const whole = Math.max(0, Math.floor(totalSeconds))
        return _pad2(Math.floor(whole / 60)) + ":" + _pad2(whole % 60)
    }

    function _tick() {
        ++seconds
        elapsedTime = _minutesAndSeconds(seconds)
        if (currentIteration <= 0)
            return
        iterationsPerSec = currentIteration / seconds
        estimatedRemaining = _minutesAndSeconds(Math.max(0, maxIterations - currentIteration) / iterationsPerSec)
    }

    // A stopped clock must not leave an estimate behind; the elapsed time and speed stay as the run left them.
    function _onClockStopped() {
        seconds = 0
        estimatedRemaining = "00:00"
    }

    function _speedText() {
        return iterationsPerSec > 0 ? _localeInteger(Math.round(iterationsPerSec)) : qsTr("—")
    }

    function _exploitabilityTileText() {
        if (isFinite(currentExploitabilityValue))
            return currentExploitabilityValue.toFixed(4)
        return running ? qsTr("Measuring...") : qsTr("—")
    }

    // The solve takes its target as an absolute amount in chips.
    function targetExploitabilityAmount() {
        if (!isFinite(startingPot) || !isFinite(targetExploitability) || startingPot <= 0)
            return 0.0
        return startingPot * targetExploitability / 100
    }

    function _amountText(amount) {
        return Number(amount).toLocaleString(Qt.locale(), "f", 2)
    }

    function _solveConfig() {
        return {
            board: boardText,
            oop_range: oopRangeText,
            ip_range: ipRangeText,
            max_iterations: maxIterations,
            target_exploitability: targetExploitabilityAmount(),
            starting_pot: startingPot,
            effective_stack: effectiveStack,
            rake_percent: rakePercent,
            rake_cap: rakeCap,
            starting_street: startingStreet,
            thread_count: threadCount,
            oop_flop_bet_sizes: oopFlopBetSizesText,
            oop_turn_bet_sizes: oopTurnBetSizesText,
            oop_river_bet_sizes: oopRiverBetSizesText,
            oop_flop_raise_sizes: oopFlopRaiseSizesText,
            oop_turn_raise_sizes: oopTurnRaiseSizesText,
            oop_river_raise_sizes: oopRiverRaiseSizesText,
            oop_flop_add_all_in: oopFlopAddAllIn,
            oop_turn_add_all_in: oopTurnAddAllIn,
            oop_river_add_all_in: oopRiverAddAllIn,
            oop_flop_dont_donk: oopFlopDontDonk,
            oop_turn_dont_donk: oopTurnDontDonk,
            oop_river_dont_donk: oopRiverDontDonk,
            ip_flop_bet_sizes: ipFlopBetSizesText,
            ip_turn_bet_sizes: ipTurnBetSizesText,
            ip_river_bet_sizes: ipRiverBetSizesText,
            ip_flop_raise_sizes: ipFlopRaiseSizesText,
            ip_turn_raise_sizes: ipTurnRaiseSizesText,
            ip_river_raise_sizes: ipRiverRaiseSizesText,
            ip_flop_add_all_in: ipFlopAddAllIn,
            ip_turn_add_all_in: ipTurnAddAllIn,
            ip_river_add_all_in: ipRiverAddAllIn,
            oop_add_all_in_jam_threshold_enabled: oopAddAllInIfJamLtEnabled,
            oop_add_all_in_jam_threshold_pct: oopAddAllInIfJamLtPct,
            ip_add_all_in_jam_threshold_enabled: ipAddAllInIfJamLtEnabled,
            ip_add_all_in_jam_threshold_pct: ipAddAllInIfJamLtPct
        }
    }

    function _runSummary() {
        return qsTr("Iterations %1 • Target %2% (≈ %3) • Threads %4").arg(_localeInteger(maxIterations))
            .arg(targetExploitability).arg(_amountText(targetExploitabilityAmount())).arg(threadCount)
    }

    function _timeOfDay(date) {
        return _pad2(date.getHours()) + ":" + _pad2(date.getMinutes()) + ":" + _pad2(date.getSeconds())
    }

    function _appendRun(summary) {
        const runId = _nextRunId++
        runHistory.insert(0, {runId: runId, startedAt: _timeOfDay(new Date()), status: "Running", summary: summary})
        _activeRunId = runId
        while (runHistory.count > _maxRunRows)
            runHistory.remove(runHistory.count - 1)
    }

    function _setActiveRunStatus(status, onlyIfRunning) {
        for (let row = 0; row < runHistory.count; ++row) {
            const run = runHistory.get(row)
            if (run.runId !== _activeRunId)
                continue
            if (!onlyIfRunning || run.status === "Running")
                runHistory.setProperty(row, "status", status)
            return
        }
    }

    function _finishActiveRun() {
        if (_activeRunId < 0)
            return
        _setActiveRunStatus("Completed", true)
        _activeRunId = -1
    }

    function clearRuns() {
        runHistory.clear()
    }

    function startSolve() {
        if (running || !canSolve)
            return
        const cfg = _solveConfig()
        _appendRun(_runSummary())
        if (_controllerCan("startSolveWithConfig"))
            controller.startSolveWithConfig(cfg)
        else if (_controllerCan("startSolve"))
            controller.startSolve()
        // A spot the controller turns away never runs: its row ends at once, with the reason in the status line.
        if (!running)
            _finishActiveRun()
    }

    // The row is marked first: the controller's answer may end the run before this returns.
    function cancelSolve() {
        if (!running)
            return
        if (_activeRunId >= 0)
            _setActiveRunStatus("Cancelled", false)
        if (_controllerCan("cancelSolve"))
            controller.cancelSolve()
    }

    function _rebuildThreadChoiceModel() {
        const maxT = Math.max(1, maxThreadCount)
        const counts = _threadSteps.filter(count => count <= maxT)
        if (!counts.includes(maxT))
            counts.push(maxT)
        counts.sort((a, b) => a - b)
        _threadChoiceModel = [_maxThreadChoice].concat(counts.map(count => String(count)))
        if (!isFinite(threadCount) || threadCount < 1 || threadCount > maxT)
            threadCount = maxT
    }

    function _threadChoiceIndex() {
        if (threadCount === Math.max(1, maxThreadCount))
            return 0
        const index = _threadChoiceModel.indexOf(String(threadCount))
        return index > 0 ? index : 0
    }

    function _chooseThreadChoice(index) {
        const choice = _threadChoiceModel[index]
        if (choice === undefined)
            return
        threadCount = choice === _maxThreadChoice ? Math.max(1, maxThreadCount) : parseInt(choice, 10)
    }

    function _threadChoiceLabel(choice) {
        return choice === _maxThreadChoice ? qsTr("Max") : choice
    }

    onStatusTextChanged: {
        const iteration = _parseIterationFromStatusText(statusText)
        if (iteration > 0)
            _lastIterFromStatusText = iteration
    }
    onRunningChanged: {
        if (running)
            return
        _lastIterFromStatusText = 0
        _finishActiveRun()
    }
    onMaxThreadCountChanged: _rebuildThreadChoiceModel()
    Component.onCompleted: _rebuildThreadChoiceModel()

    ListModel {
        id: runHistory
    }

    Timer {
        id: clock

        interval: page._clockInterval
        repeat: true
        running: page.running
        onTriggered: page._tick()
        onRunningChanged: {
            if (!running)
                page._onClockStopped()
        }
    }

    ScrollView {
        id: scroller

        anchors.fill: parent
        contentWidth: availableWidth
        contentHeight: content.implicitHeight + 2 * page.theme.spaceXl
        clip: true

        ColumnLayout {
            id: content

            x: page.theme.spaceXl
            y: page.theme.spaceXl
            width: scroller.availableWidth - 2 * page.theme.spaceXl
            spacing: page.theme.spaceXl

            SectionHeader {
                objectName: "solveHeader"
                Layout.fillWidth: true
                theme: page.theme
                title: qsTr("Solve")
                subtitle: qsTr("Run the CFR solver and monitor progress in real-time.")
                badge: page._badgeText()
                badgeColor: page._badgeColor()
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: page.theme.spaceXl

                ColumnLayout {
                    Layout.preferredWidth: (content.width - parent.spacing) * page._leftColumnShare
                    Layout.alignment: Qt.AlignTop
                    spacing: page.theme.spaceLg

                    SolveConfigurationCard {
                        objectName: "configurationCard"
                        Layout.fillWidth: true
                        theme: page.theme
                        type: page.type
                        solvePage: page
                    }

                    SolveControls {
                        objectName: "solveControls"
                        Layout.fillWidth: true
                        theme: page.theme
                        type: page.type
                        solvePage: page
                    }

                    SolveComputeCard {
                        objectName: "computeCard"
                        Layout.fillWidth: true
                        theme: page.theme
                        type: page.type
                        solvePage: page
                    }
                }

                // Both shares are given, so that long texts on the right cannot squeeze the left column.
                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.preferredWidth: (content.width - parent.spacing) * (1 - page._leftColumnShare)
                    Layout.alignment: Qt.AlignTop
                    spacing: page.theme.spaceLg

                    SolveProgressCard {
                        objectName: "progressCard"
                        Layout.fillWidth: true
                        theme: page.theme
                        type: page.type
                        solvePage: page
                    }

                    SolveRecentRuns {
                        objectName: "recentRunsCard"
                        Layout.fillWidth: true
                        theme: page.theme
                        type: page.type
                        solvePage: page
                    }
                }
            }
        }
    }
}
