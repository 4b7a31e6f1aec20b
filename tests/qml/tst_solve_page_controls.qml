import QtQuick
import QtTest
import Kelvane

// The Solve page's controls on their own: the buttons, the recent runs, the thread choice and the configuration
// summary, with a stand-in controller.
TestCase {
    id: testCase

    name: "SolvePageControls"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 1000

    // A spot like the quick-solve one: 400 iterations, a 180 pot and a target of 0.5% (0.9 chips).
    readonly property var spot: ({boardText: "QsJh2h", maxIterations: 400, startingPot: 180, effectiveStack: 910,
                                  targetExploitability: 0.5, rakePercent: 5, rakeCap: 30, threadCount: 8,
                                  oopFlopBetSizesText: "52", canSolve: true})

    Theme { id: darkTheme }

    Typography { id: typeScale }

    // The page also reads the result's exploitability.
    Component {
        id: standInComponent

        StandInController {
            property real resultExploitability: NaN
        }
    }

    // Like the real controller, this one raises `running` as it accepts a start.
    Component {
        id: acceptingControllerComponent

        StandInController {
            property real resultExploitability: NaN

            onStartedConfigsChanged: running = startedConfigs.length > 0
        }
    }

    Component {
        id: pageComponent

        SolvePage {
            width: testCase.width
            height: testCase.height
        }
    }

    SignalSpy { id: resultsSpy; signalName: "goToResults" }

    function makePage(controller, extra) {
        const properties = Object.assign({theme: darkTheme, type: typeScale, controller: controller}, spot, extra || {})
        return createTemporaryObject(pageComponent, testCase, properties)
    }

    function makeController(component, properties) {
        return createTemporaryObject(component || standInComponent, testCase, properties || {})
    }

    function part(item, name) {
        const found = findChild(item, name)
        verify(found !== null, "found " + name)
        return found
    }

    function sameColor(actual, expected, what) {
        verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
    }

    function cleanup() {
        resultsSpy.clear()
        resultsSpy.target = null
    }

    function test_startButtonStates() {
        const controller = makeController()
        const page = makePage(controller, {canSolve: false})
        const start = part(page, "startSolveButton")
        compare(start.text, "Start Solve")
        compare(start.iconText, "▶")
        verify(!start.loading)
        verify(!start.enabled, "not without canSolve")
        page.canSolve = true
        verify(start.enabled)
        controller.running = true
        compare(start.text, "Solving...")
        verify(start.loading, "a spinner while running")
        verify(!start.enabled)
    }

    function test_cancelAndResultsButtonStates() {
        const controller = makeController()
        const page = makePage(controller)
        const cancel = part(page, "cancelSolveButton")
        const results = part(page, "viewResultsButton")
        compare(cancel.text, "Cancel")
        compare(cancel.iconName, "stop")
        verify(cancel.danger)
        compare(results.text, "View Results →")
        compare(results.iconName, "trend-up")
        verify(!cancel.enabled)
        verify(!results.enabled)
        controller.running = true
        verify(cancel.enabled)
        verify(!results.enabled)
        controller.resultIterations = 12
        verify(!results.enabled, "not while a run is going on")
        controller.running = false
        verify(!cancel.enabled)
        verify(results.enabled)
        resultsSpy.target = page
        mouseClick(results)
        compare(resultsSpy.count, 1)
    }

    function test_startBuildsTheSolveMapAndRecordsARun() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        mouseClick(part(page, "startSolveButton"))
        compare(controller.startedConfigs.length, 1)
        const cfg = controller.startedConfigs[0]
        compare(Object.keys(cfg).length, 36)
        compare(cfg.board, "QsJh2h")
        compare(cfg.max_iterations, 400)
        fuzzyCompare(cfg.target_exploitability, 0.9, 1e-9)
        compare(cfg.thread_count, 8)
        compare(cfg.oop_flop_bet_sizes, "52")
        compare(cfg.oop_add_all_in_jam_threshold_enabled, false)
        compare(page.runHistory.count, 1)
        const run = page.runHistory.get(0)
        compare(run.runId, 1)
        compare(run.status, "Running")
        verify(/^\d\d:\d\d:\d\d$/.test(run.startedAt), run.startedAt)
        compare(run.summary, "Iterations " + Number(400).toLocaleString(Qt.locale(), "f", 0)
                + " • Target 0.5% (≈ " + Number(0.9).toLocaleString(Qt.locale(), "f", 2) + ") • Threads 8")
        compare(page._activeRunId, 1)
        verify(!part(page, "noRunsText").visible)
    }

    function test_startFallsBackToThePlainStart() {
        const controller = createTemporaryQmlObject(
            "import QtQuick; QtObject { property bool running: false; property int starts: 0;"
            + " function startSolve() { ++starts; running = true } }", testCase)
        const page = makePage(controller)
        page.startSolve()
        compare(controller.starts, 1)
        compare(page.runHistory.get(0).status, "Running")
    }

    function test_runEndsCompleted() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        page.startSolve()
        controller.running = false
        compare(page.runHistory.get(0).status, "Completed")
        compare(page._activeRunId, -1)
    }

    function test_cancelButtonMarksTheRunCancelled() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        page.startSolve()
        mouseClick(part(page, "cancelSolveButton"))
        compare(controller.cancelCount, 1)
        compare(page.runHistory.get(0).status, "Cancelled")
        controller.running = false
        compare(page.runHistory.get(0).status, "Cancelled", "the end of the run keeps it")
        compare(page._activeRunId, -1)
    }

    function test_cancelFromElsewhereReadsCompleted() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        page.startSolve()
        controller.cancelSolve()
        controller.running = false
        compare(page.runHistory.get(0).status, "Completed")
    }

    function test_aRunStartedElsewhereHasNoRow() {
        const controller = makeController()
        const page = makePage(controller)
        controller.running = true
        controller.running = false
        compare(page.runHistory.count, 0)
    }

    function test_aRejectedStartReadsCompletedWithItsReason() {
        const controller = makeController()
        const page = makePage(controller)
        page.startSolve()
        controller.statusText = "Invalid board."
        compare(page.runHistory.count, 1)
        compare(page.runHistory.get(0).status, "Completed")
        compare(part(page, "statusLine").text, "Invalid board.")
    }

    function test_elevenStartsKeepTen() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        for (let i = 0; i < 11; ++i) {
            page.startSolve()
            controller.running = false
        }
        compare(page.runHistory.count, 10)
        compare(page.runHistory.get(0).runId, 11, "newest first")
        compare(page.runHistory.get(9).runId, 2, "the oldest fell off")
    }

    function test_runListHeightAndClear() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        const card = part(page, "recentRunsCard")
        const clear = part(page, "clearRunsButton")
        verify(!clear.enabled)
        verify(part(page, "noRunsText").visible)
        compare(part(page, "noRunsText").text, "No runs yet — click Start Solve to record a run here.")
        const heights = [84, 126, 168, 180, 180]
        for (const height of heights) {
            page.startSolve()
            controller.running = false
            compare(card.listHeight(), height)
        }
        tryCompare(card.runList, "height", 180)
        verify(clear.enabled)
        mouseClick(clear)
        compare(page.runHistory.count, 0)
        verify(part(page, "noRunsText").visible)
        verify(!clear.enabled)
    }

    function test_statusPills() {
        const controller = makeController(acceptingControllerComponent)
        const page = makePage(controller)
        const card = part(page, "recentRunsCard")
        page.startSolve()
        page.cancelSolve()
        controller.running = false
        page.startSolve()
        controller.running = false
        page.startSolve()
        const expected = [["Running", darkTheme.success], ["Completed", darkTheme.info], ["Cancelled", darkTheme.danger]]
        for (let row = 0; row < expected.length; ++row) {
            const [status, color] = expected[row]
            compare(page.runHistory.get(row).status, status)
            sameColor(card.statusColor(status), color, status)
        }
        waitForRendering(card)
        const pill = findChild(card.runList.itemAtIndex(0), "statusPill")
        compare(pill.width, 90)
        sameColor(pill.border.color, darkTheme.success, "running pill border")
        sameColor(pill.color, darkTheme.withOpacity(darkTheme.success, 0.18), "running pill fill")
        compare(findChild(pill, "statusPillText").text, "Running")
        compare(card.runList.itemAtIndex(0).height, 34)
    }

    function test_threadChoices_data() {
        return [
            {tag: "twelve threads", threads: 12, choices: ["Max", "1", "2", "4", "8", "12"]},
            {tag: "eight threads", threads: 8, choices: ["Max", "1", "2", "4", "8"]},
            {tag: "one thread", threads: 1, choices: ["Max", "1"]},
            {tag: "unknown", threads: 0, choices: ["Max", "1"]},
            {tag: "many threads", threads: 200,
             choices: ["Max", "1", "2", "4", "8", "16", "32", "64", "128", "200"]}
        ]
    }

    function test_threadChoices(data) {
        const page = makePage(makeController(standInComponent, {systemThreadCount: data.threads}), {threadCount: 1})
        compare(page.maxThreadCount, Math.max(1, data.threads))
        compare(page._threadChoiceModel, data.choices)
    }

    function test_threadChoicesFollowTheMachine() {
        const controller = makeController(standInComponent, {systemThreadCount: 4})
        const page = makePage(controller, {threadCount: 4})
        compare(page._threadChoiceModel, ["Max", "1", "2", "4"])
        controller.systemThreadCount = 6
        compare(page._threadChoiceModel, ["Max", "1", "2", "4", "6"])
    }

    function test_threadCountOutOfRangeBecomesTheMaximum_data() {
        return [
            {tag: "zero", count: 0, result: 12},
            {tag: "above the machine", count: 99, result: 12},
            {tag: "negative", count: -3, result: 12},
            {tag: "within", count: 4, result: 4}
        ]
    }

    function test_threadCountOutOfRangeBecomesTheMaximum(data) {
        const page = makePage(makeController(standInComponent, {systemThreadCount: 12}), {threadCount: data.count})
        compare(page.threadCount, data.result)
    }

    function test_threadBoxIndexAndChoice() {
        const page = makePage(makeController(standInComponent, {systemThreadCount: 12}), {threadCount: 12})
        const box = part(page, "threadChoiceBox")
        compare(box.currentIndex, 0, "the machine's count is Max")
        compare(box.displayText, "Max")
        page.threadCount = 4
        compare(box.currentIndex, 3)
        compare(box.displayText, "4")
        page.threadCount = 3
        compare(page._threadChoiceIndex(), 0, "a count not offered shows Max")
        page._chooseThreadChoice(2)
        compare(page.threadCount, 2)
        page._chooseThreadChoice(0)
        compare(page.threadCount, 12, "Max is the machine's count")
    }

    function test_threadBoxByMouse() {
        const page = makePage(makeController(standInComponent, {systemThreadCount: 12}), {threadCount: 12})
        const box = part(page, "threadChoiceBox")
        mouseClick(box)
        tryCompare(box.popup, "opened", true)
        for (let step = 0; step < 4; ++step)
            keyClick(Qt.Key_Down)
        compare(box.highlightedIndex, 4)
        keyClick(Qt.Key_Return)
        tryCompare(box.popup, "visible", false)
        compare(page.threadCount, 8)
        compare(box.currentIndex, 4)
        page.threadCount = 2
        compare(box.currentIndex, 2, "the box follows the page after a pick")
    }

    function test_precisionIsInert() {
        const page = makePage(makeController())
        const box = part(page, "precisionBox")
        compare(box.count, 2)
        compare(box.currentIndex, 0)
        compare(box.displayText, "Float32")
        const before = JSON.stringify(page._solveConfig())
        box.currentIndex = 1
        compare(box.displayText, "Float64")
        compare(JSON.stringify(page._solveConfig()), before, "the solve map does not change")
    }

    function test_configurationChips() {
        const page = makePage(makeController())
        const card = part(page, "configurationCard")
        compare(part(card, "flopChip").text, "Flop: OOP 52 | IP —")
        compare(part(card, "targetChip").text,
                "Target: 0.5% (≈ " + Number(0.9).toLocaleString(Qt.locale(), "f", 2) + ")")
        compare(part(card, "rakeChip").text, "Rake: 5% (cap 30)")
        compare(part(card, "oopRangeChip").text, "OOP: 100%")
        compare(part(card, "ipRangeChip").text, "IP: 100%")
        sameColor(part(card, "oopRangeChip").tint, darkTheme.withOpacity(darkTheme.actionBet, 0.15), "OOP tint")
        sameColor(part(card, "ipRangeChip").tint, darkTheme.withOpacity(darkTheme.info, 0.15), "IP tint")
        compare(part(card, "configurationBoard").boardText, "QsJh2h")
        verify(part(card, "configurationBoard").compact)
        page.ipFlopBetSizesText = "33, 75"
        compare(part(card, "flopChip").text, "Flop: OOP 52 | IP 33, 75")
    }

    function test_longRangesAreElidedInsideTheCard() {
        const longRange = "AA,KK,QQ,JJ,TT,99,88,77,66,55,44,33,22,".repeat(12) + "AKs"
        const page = makePage(makeController(), {oopRangeText: longRange, ipRangeText: "AKo"})
        const card = part(page, "configurationCard")
        const oopChip = part(card, "oopRangeChip")
        waitForRendering(card)
        verify(oopChip.text.endsWith("…"), "elided: " + oopChip.text)
        verify(oopChip.text.startsWith("OOP: AA,KK"))
        verify(oopChip.width <= card.availableWidth, oopChip.width + " within " + card.availableWidth)
        compare(part(card, "ipRangeChip").text, "IP: AKo")
    }

    function test_leftColumnTakesFortyPercent() {
        const page = makePage(makeController())
        const left = part(page, "configurationCard")
        const right = part(page, "progressCard")
        waitForRendering(page)
        const total = right.mapToItem(page, right.width, 0).x - left.mapToItem(page, 0, 0).x
        fuzzyCompare(left.width / (total - darkTheme.spaceXl), 0.4, 0.01)
    }
}
