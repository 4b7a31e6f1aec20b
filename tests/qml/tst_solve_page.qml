import QtQuick
import QtTest
import Kelvane

// The Solve page on its own, with a stand-in controller whose run, status and results the tests set directly.
TestCase {
    id: testCase

    name: "SolvePage"
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

    Component {
        id: pageComponent

        SolvePage {
            width: testCase.width
            height: testCase.height
        }
    }

    function makePage(controller, extra) {
        const properties = Object.assign({theme: darkTheme, type: typeScale, controller: controller}, spot, extra || {})
        return createTemporaryObject(pageComponent, testCase, properties)
    }

    function makeController(component, properties) {
        return createTemporaryObject(component || standInComponent, testCase, properties || {})
    }

    function makeRunningPage(statusText, extra) {
        const controller = makeController(standInComponent, {running: true, statusText: statusText})
        return makePage(controller, extra)
    }

    function part(item, name) {
        const found = findChild(item, name)
        verify(found !== null, "found " + name)
        return found
    }

    function sameColor(actual, expected, what) {
        verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
    }

    function test_parseIteration_data() {
        return [
            {tag: "running", text: "Iter 12 | exploitability≈3.5", iteration: 12},
            {tag: "wide space", text: "Iter   7 | exploitability≈0.2", iteration: 7},
            {tag: "first match", text: "Iter 3, then Iter 9", iteration: 3},
            {tag: "no digits", text: "Iter | exploitability≈0.2", iteration: 0},
            {tag: "word, not the tag", text: "Iteration 5", iteration: 0},
            {tag: "finalizing", text: "Finalizing: computing results...", iteration: 0},
            {tag: "empty", text: "", iteration: 0}
        ]
    }

    function test_parseIteration(data) {
        const page = makePage(null)
        compare(page._parseIterationFromStatusText(data.text), data.iteration)
    }

    function test_parseExploitability_data() {
        return [
            {tag: "decimal", text: "Iter 60 | exploitability≈0.1234", value: 0.1234},
            {tag: "whole", text: "Iter 60 | exploitability≈12", value: 12},
            {tag: "large", text: "Iter 2 | exploitability≈153.25", value: 153.25},
            {tag: "plain equals", text: "Iter 60 | exploitability=0.5", value: NaN},
            {tag: "no figure", text: "Iter 60 | exploitability≈", value: NaN},
            {tag: "building", text: "Building game tree...", value: NaN}
        ]
    }

    function test_parseExploitability(data) {
        const page = makePage(null)
        const value = page._parseExploitabilityFromStatusText(data.text)
        if (isNaN(data.value))
            verify(isNaN(value), data.tag + " gives no number, got " + value)
        else
            fuzzyCompare(value, data.value, 1e-9)
    }

    function test_formatExploitability_data() {
        return [
            {tag: "first iteration", iteration: 1, e: 3.2, text: "∞"},
            {tag: "fiftieth", iteration: 50, e: 3.2, text: "∞"},
            {tag: "fifty-first", iteration: 51, e: 3.2, text: "3.20"},
            {tag: "no iteration", iteration: 0, e: 0.456, text: "0.46"},
            {tag: "late", iteration: 400, e: 0.12345, text: "0.12"},
            {tag: "early without a figure", iteration: 20, e: NaN, text: "∞"},
            {tag: "not a number", iteration: 51, e: NaN, text: "—"},
            {tag: "infinite", iteration: 51, e: Infinity, text: "—"}
        ]
    }

    function test_formatExploitability(data) {
        const page = makePage(null)
        compare(page._formatExploitabilityForUi(data.iteration, data.e), data.text)
    }

    function test_statusLineAtIterationFiftyAndFiftyOne() {
        const page = makeRunningPage("Iter 50 | exploitability≈3.2")
        const line = part(page, "statusLine")
        compare(line.text, "Iteration 50 | exploitability=∞")
        page.controller.statusText = "Iter 51 | exploitability≈3.2"
        compare(line.text, "Iteration 51 | exploitability=3.20")
    }

    function test_statusLine_data() {
        return [
            {tag: "no controller", controller: false, running: false, status: "Solved", line: "Ready to solve"},
            {tag: "idle and empty", controller: true, running: false, status: "", line: "Ready to solve"},
            {tag: "idle with a status", controller: true, running: false, status: "Solve complete", line: "Solve complete"},
            {tag: "a failure stands as it is", controller: true, running: false,
             status: "Error: invalid board", line: "Error: invalid board"},
            {tag: "a stage before the first iteration", controller: true, running: true,
             status: "Building game tree...", line: "Building game tree..."},
            {tag: "finalizing", controller: true, running: true, status: "Finalizing: computing results...",
             line: "Finalizing: computing results..."}
        ]
    }

    function test_statusLine(data) {
        const controller = data.controller ? makeController(standInComponent, {running: data.running,
                                                                               statusText: data.status})
                                           : null
        const page = makePage(controller)
        compare(part(page, "statusLine").text, data.line)
    }

    function test_wheelTotal_data() {
        return [
            {tag: "no target", maxIterations: 1000, target: 0, total: 1000},
            {tag: "negative target", maxIterations: 1000, target: -1, total: 1000},
            {tag: "target not a number", maxIterations: 1000, target: NaN, total: 1000},
            {tag: "loose target", maxIterations: 1000, target: 1.5, total: 150},
            {tag: "target 1.0 under a cap of 100", maxIterations: 100, target: 1.0, total: 100},
            {tag: "target 0.5", maxIterations: 400, target: 0.5, total: 200},
            {tag: "target 0.3", maxIterations: 1000, target: 0.3, total: 300},
            {tag: "target 0.1", maxIterations: 1000, target: 0.1, total: 300},
            {tag: "tight target", maxIterations: 1000, target: 0.05, total: 1000},
            {tag: "no cap", maxIterations: 0, target: 1.0, total: 1}
        ]
    }

    function test_wheelTotal(data) {
        const page = makePage(makeController(), {maxIterations: data.maxIterations,
                                                 targetExploitability: data.target})
        compare(page.progressWheelTotalIterations, data.total)
    }

    function test_wheelFullAtTwoHundredOfFourHundredAndStaysFull() {
        const page = makeRunningPage("Iter 100 | exploitability≈0.8")
        const wheel = part(page, "progressWheel")
        fuzzyCompare(page.progressWheelValue, 0.5, 1e-9)
        page.controller.statusText = "Iter 200 | exploitability≈0.6"
        compare(page.progressWheelValue, 1.0)
        page.controller.statusText = "Iter 320 | exploitability≈0.55"
        compare(page.progressWheelValue, 1.0)
        compare(wheel.value, 1.0)
        compare(wheel.strokeWidth, 10)
        verify(!wheel.indeterminate)
    }

    function test_wheelIndeterminateUntilTheFirstIteration() {
        const page = makeRunningPage("Building game tree...")
        const wheel = part(page, "progressWheel")
        compare(page.currentIteration, 0)
        verify(wheel.indeterminate)
        page.controller.statusText = "Iter 1 | exploitability≈40.0"
        verify(!wheel.indeterminate)
    }

    function test_wheelAfterTheRun() {
        const controller = makeController()
        const page = makePage(controller)
        compare(page.progressWheelValue, 0, "idle without results")
        verify(!page.runComplete)
        controller.resultIterations = 57
        verify(page.runComplete)
        compare(page.progressWheelValue, 1.0, "a finished run fills the wheel, early stop or not")
    }

    function test_currentIteration() {
        compare(makePage(null).currentIteration, 0, "no controller")
        const controller = makeController(standInComponent, {running: true, statusText: "Building game tree...",
                                                             progress: 0.25})
        const page = makePage(controller)
        compare(page.currentIteration, 100, "from the progress while no iteration is named")
        controller.statusText = "Iter 120 | exploitability≈1.5"
        compare(page.currentIteration, 120)
        controller.resultIterations = 77
        controller.running = false
        compare(page.currentIteration, 77, "after the run: the result's count")
    }

    function test_currentExploitabilityValue() {
        verify(isNaN(makePage(null).currentExploitabilityValue), "no controller")
        const controller = makeController(standInComponent, {running: true,
                                                             statusText: "Iter 60 | exploitability≈0.75"})
        controller.resultExploitability = 0.0
        const page = makePage(controller)
        fuzzyCompare(page.currentExploitabilityValue, 0.75, 1e-9)
        controller.statusText = "Finalizing: computing results..."
        verify(isNaN(page.currentExploitabilityValue), "no figure while finalizing")
        controller.running = false
        verify(isNaN(page.currentExploitabilityValue), "a result of zero is no figure")
        controller.resultExploitability = 0.0421
        fuzzyCompare(page.currentExploitabilityValue, 0.0421, 1e-9)
        controller.resultExploitability = NaN
        verify(isNaN(page.currentExploitabilityValue), "a result that is no number")
    }

    function test_finalizingHoldsIterationWheelAndWindow() {
        const page = makeRunningPage("Iter 137 | exploitability≈0.7")
        const controller = page.controller
        const wheelBefore = page.progressWheelValue
        compare(page.iterationWindowValue, 7)
        controller.progress = 0.9
        controller.statusText = "Finalizing: computing results..."
        verify(page.isFinalizing)
        compare(page.currentIteration, 137)
        compare(page.progressWheelValue, wheelBefore)
        compare(page.iterationWindowValue, 7)
        compare(part(page, "statusLine").text, "Finalizing: computing results...")
        compare(part(page, "statusDetail").text, "Solver converged — finalizing results…")
        verify(part(page, "statusDetail").visible)
        controller.statusText = "Finalizing: building result snapshot..."
        compare(page.currentIteration, 137, "the next finishing stage holds it too")
        controller.resultIterations = 137
        controller.running = false
        compare(page._lastIterFromStatusText, 0, "the held iteration ends with the run")
        verify(!page.isFinalizing)
        compare(page.progressWheelValue, 1.0)
        compare(page.iterationWindowValue, 0)
        verify(!part(page, "statusDetail").visible)
    }

    function test_windowValue_data() {
        return [
            {tag: "first", iteration: 1, value: 1},
            {tag: "tenth", iteration: 10, value: 10},
            {tag: "eleventh", iteration: 11, value: 1},
            {tag: "twenty-fifth", iteration: 25, value: 5},
            {tag: "four hundredth", iteration: 400, value: 10}
        ]
    }

    function test_windowValue(data) {
        const page = makeRunningPage("Iter " + data.iteration + " | exploitability≈1.0")
        compare(page.iterationWindowValue, data.value)
        compare(part(page, "windowCaption").text, "Window " + data.value + "/10")
        const bar = part(page, "windowBar")
        tryCompare(part(page, "windowFill"), "width", bar.width * data.value / 10)
    }

    function test_windowCaptionAfterTheRun() {
        const controller = makeController(standInComponent, {resultIterations: 400})
        const page = makePage(controller)
        compare(page.iterationWindowValue, 0)
        compare(part(page, "windowCaption").text, "Iterations: " + Number(400).toLocaleString(Qt.locale(), "f", 0))
        compare(part(page, "windowFill").visible, false)
    }

    function test_headerBadge() {
        const controller = makeController()
        const page = makePage(controller)
        const header = part(page, "solveHeader")
        compare(header.title, "Solve")
        compare(header.subtitle, "Run the CFR solver and monitor progress in real-time.")
        compare(header.badge, "Ready")
        sameColor(header.badgeColor, darkTheme.textMuted, "idle")
        controller.running = true
        compare(header.badge, "Running")
        sameColor(header.badgeColor, darkTheme.success, "running")
        controller.statusText = "Finalizing: computing results..."
        compare(header.badge, "Finalizing")
        sameColor(header.badgeColor, darkTheme.warn, "finalizing")
    }

    function test_clockCountsSpeedAndRemaining() {
        const page = makeRunningPage("Iter 30 | exploitability≈2.0")
        page._tick()
        page._tick()
        page._tick()
        compare(page.seconds, 3)
        compare(page.elapsedTime, "00:03")
        compare(page.iterationsPerSec, 10)
        compare(page.estimatedRemaining, "00:37", "370 iterations to the cap at 10 per second")
        compare(part(page, "speedTile").value, "10")
        compare(part(page, "speedTile").unit, "it/s")
        compare(part(page, "elapsedTile").value, "00:03")
        compare(part(page, "remainingTile").value, "00:37")
    }

    function test_clockMinutesPassSixty() {
        const page = makeRunningPage("Iter 3659 | exploitability≈0.2", {maxIterations: 7318})
        page.seconds = 3658
        page._tick()
        compare(page.elapsedTime, "60:59")
        compare(page.estimatedRemaining, "60:59")
        page._tick()
        compare(page.elapsedTime, "61:00")
    }

    function test_clockWithoutAnIterationOnlyCounts() {
        const page = makeRunningPage("Building game tree...")
        page._tick()
        compare(page.elapsedTime, "00:01")
        compare(page.iterationsPerSec, 0)
        compare(page.estimatedRemaining, "--:--")
        compare(part(page, "speedTile").value, "—")
        compare(part(page, "speedTile").unit, "")
    }

    function test_clockTicksOnItsOwnAndStopsWithTheRun() {
        const controller = makeController()
        const page = makePage(controller)
        compare(page.elapsedTime, "00:00")
        compare(page.estimatedRemaining, "--:--")
        controller.running = true
        controller.statusText = "Iter 4 | exploitability≈9.0"
        tryCompare(page, "seconds", 1, 2500)
        compare(page.elapsedTime, "00:01")
        compare(page.iterationsPerSec, 4)
        controller.running = false
        compare(page.seconds, 0)
        compare(page.estimatedRemaining, "00:00", "no stale estimate once stopped")
        compare(page.elapsedTime, "00:01", "the elapsed time stays after the run")
        compare(page.iterationsPerSec, 4)
        controller.running = true
        controller.statusText = "Iter 2 | exploitability≈9.0"
        compare(page.elapsedTime, "00:01", "kept until the next run's first tick")
        page._tick()
        compare(page.elapsedTime, "00:01")
        compare(page.seconds, 1, "the new run counts from zero")
        compare(page.iterationsPerSec, 2)
    }

    function test_exploitabilityTile() {
        const controller = makeController(standInComponent, {running: true, statusText: "Building game tree..."})
        controller.resultExploitability = 0.0
        const page = makePage(controller)
        const tile = part(page, "exploitabilityTile")
        compare(tile.label, "Exploitability")
        sameColor(tile.accentColor, darkTheme.gold, "accent")
        verify(tile.compact)
        compare(tile.value, "Measuring...")
        controller.statusText = "Iter 60 | exploitability≈0.123456"
        compare(tile.value, "0.1235")
        controller.running = false
        compare(tile.value, "—")
        controller.resultExploitability = 0.05
        compare(tile.value, "0.0500")
    }
}
