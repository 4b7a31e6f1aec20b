import QtQuick
import QtTest
import Kelvane

// The Solve page inside the shell: the thread choice against presets, and whole runs with the real controller.
TestCase {
    id: testCase

    name: "SolvePageRuns"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 1000

    readonly property int solveTimeoutMs: 180000
    // A small river spot: both ranges narrow, one bet and one raise size, so that it runs in seconds.
    readonly property var riverSpot: ({
        boardText: "QsJh2h7c3d", startingStreet: "river", maxIterations: 12000, targetExploitability: 0,
        oopRangeText: "AA,KK,QQ,AK,AQ,KQ,JT,T9", ipRangeText: "JJ,TT,99,AJ,KJ,QJ,98,87",
        oopFlopBetSizesText: "50", oopTurnBetSizesText: "50", oopRiverBetSizesText: "50",
        oopFlopRaiseSizesText: "100", oopTurnRaiseSizesText: "100", oopRiverRaiseSizesText: "100",
        ipFlopBetSizesText: "50", ipTurnBetSizesText: "50", ipRiverBetSizesText: "50",
        ipFlopRaiseSizesText: "100", ipTurnRaiseSizesText: "100", ipRiverRaiseSizesText: "100"
    })
    // The solve map's game keys under the shell's names; the sizing keys follow one rule (see shellKey).
    readonly property var gameKeys: ({
        board: "boardText", oop_range: "oopRangeText", ip_range: "ipRangeText", max_iterations: "maxIterations",
        starting_pot: "startingPot", effective_stack: "effectiveStack", rake_percent: "rakePercent",
        rake_cap: "rakeCap", starting_street: "startingStreet"
    })

    Component {
        id: standInComponent

        StandInController {}
    }

    Component {
        id: shellComponent

        AppShell {
            width: testCase.width
            height: testCase.height
        }
    }

    function part(item, name) {
        const found = findChild(item, name)
        verify(found !== null, "found " + name)
        return found
    }

    // The shell hands the page its solve gate.
    function solvePageOf(shell) {
        const page = part(shell, "solvePage")
        compare(page.canSolve, shell.canSolve)
        return page
    }

    function capitalised(word) {
        return word[0].toUpperCase() + word.slice(1)
    }

    // "oop_flop_bet_sizes" → "oopFlopBetSizesText", "ip_add_all_in_jam_threshold_pct" → "ipAddAllInIfJamLtPct".
    function shellKey(mapKey) {
        if (gameKeys[mapKey] !== undefined)
            return gameKeys[mapKey]
        const jam = /^(oop|ip)_add_all_in_jam_threshold_(enabled|pct)$/.exec(mapKey)
        if (jam)
            return jam[1] + "AddAllInIfJamLt" + capitalised(jam[2])
        const words = mapKey.split("_")
        const key = words[0] + words.slice(1).map(capitalised).join("")
        return mapKey.endsWith("_sizes") ? key + "Text" : key
    }

    function shellStateFromSolveMap(map) {
        const state = {}
        for (const mapKey of Object.keys(map)) {
            if (mapKey !== "target_exploitability")
                state[shellKey(mapKey)] = map[mapKey]
        }
        return state
    }

    function readSpot(relativePath) {
        const answer = appController.readTextFile(Qt.resolvedUrl(relativePath))
        verify(answer.ok, "read " + relativePath + ": " + answer.error)
        return JSON.parse(answer.text)
    }

    function waitUntilSolvable(shell) {
        tryVerify(() => shell.canSolve, 60000, "the memory estimate arrives and fits")
    }

    function test_shellKeysCoverTheSolveMap() {
        const state = shellStateFromSolveMap(readSpot("../../bench/spots/turn.json"))
        const shell = createTemporaryObject(shellComponent, testCase, {controller: null})
        const known = Object.keys(shell.exportProjectState())
        for (const key of Object.keys(state))
            verify(known.includes(key), key + " is a project state key")
        // The spot names no thread count, and its target is in chips where the shell keeps a percentage.
        compare(Object.keys(state).length, 34)
    }

    function test_threadChoiceKeepsItsNumberThroughPresets() {
        const controller = createTemporaryObject(standInComponent, testCase, {systemThreadCount: 12})
        const shell = createTemporaryObject(shellComponent, testCase, {controller: controller})
        const page = solvePageOf(shell)
        shell.resetToDefaults()
        compare(page.threadCount, 12)
        page._chooseThreadChoice(3)
        compare(page.threadCount, 4)
        compare(shell.threadCount, 4, "the choice is written back")
        shell.resetToNewProject()
        compare(shell.threadCount, 12, "the shell follows the preset")
        compare(page.threadCount, 4, "the page keeps the user's number")
        compare(part(page, "threadChoiceBox").currentIndex, 3)
    }

    function test_startAndFinishARiverRunWithTheRealController() {
        const shell = createTemporaryObject(shellComponent, testCase, {controller: appController})
        const page = solvePageOf(shell)
        const bar = part(shell, "topBar")
        shell._onNewProject()
        shell.applyProjectState(riverSpot)
        waitUntilSolvable(shell)
        bar.navigate(2)
        compare(shell.navIndex, 2)

        let highestWheel = 0
        let iterationLines = 0
        const watchWheel = () => highestWheel = Math.max(highestWheel, page.progressWheelValue)
        // Read through the page's own function: the line's text item may not have caught up yet.
        const watchLine = () => {
            if (/^Iteration \d+ \| exploitability=/.test(page._statusLine()))
                ++iterationLines
        }
        page.progressWheelValueChanged.connect(watchWheel)
        page.statusTextChanged.connect(watchLine)
        // Earlier tests may have left results behind: this run's own result is the one to wait for.
        let results = 0
        const countResults = () => ++results
        appController.resultsChanged.connect(countResults)

        const start = part(page, "startSolveButton")
        verify(start.enabled)
        mouseClick(start)
        verify(shell.running, "the click started the run")
        compare(page.runHistory.count, 1)
        compare(page.runHistory.get(0).status, "Running")
        // The controller may lower `running` while progress messages are still queued; the result comes last.
        tryVerify(() => !shell.running && results > 0, solveTimeoutMs, "the river run ends")
        appController.resultsChanged.disconnect(countResults)
        page.progressWheelValueChanged.disconnect(watchWheel)
        page.statusTextChanged.disconnect(watchLine)

        verify(iterationLines > 1, "the status line read " + iterationLines + " iterations")
        verify(highestWheel > 0, "the wheel moved")
        compare(page.runHistory.get(0).status, "Completed")
        verify(page.runComplete)
        compare(page.progressWheelValue, 1.0)
        compare(part(page, "windowCaption").text,
                "Iterations: " + Number(appController.resultIterations).toLocaleString(Qt.locale(), "f", 0))
        compare(part(page, "statusLine").text, appController.statusText)
        verify(part(page, "viewResultsButton").enabled)
        compare(shell.navIndex, 2, "the end of a run changes no page")
        mouseClick(part(page, "viewResultsButton"))
        compare(shell.navIndex, 3)
    }

    function test_cancelATurnRunWithTheRealController() {
        const shell = createTemporaryObject(shellComponent, testCase, {controller: appController})
        const page = solvePageOf(shell)
        const bar = part(shell, "topBar")
        shell._onNewProject()
        const state = shellStateFromSolveMap(readSpot("../../bench/spots/turn.json"))
        state.maxIterations = 100000
        state.targetExploitability = 0
        shell.applyProjectState(state)
        waitUntilSolvable(shell)
        bar.navigate(2)

        mouseClick(part(page, "startSolveButton"))
        verify(shell.running)
        verify(!bar.isTabEnabled(0), "the tabs are locked during the run")
        tryVerify(() => page.currentIteration > 0, solveTimeoutMs, "the turn run iterates")
        const cancel = part(page, "cancelSolveButton")
        verify(cancel.enabled)
        mouseClick(cancel)
        compare(page.runHistory.get(0).status, "Cancelled")
        tryVerify(() => !shell.running, solveTimeoutMs, "the run stops")
        compare(page.runHistory.get(0).status, "Cancelled", "the end of the run keeps it")
        verify(appController.resultIterations < 100000)
        for (const index of [0, 2, 4])
            verify(bar.isTabEnabled(index), "tab " + index + " opens again")
        compare(bar.isTabEnabled(1), shell.hasProject)
        verify(!part(page, "cancelSolveButton").enabled)
    }
}
