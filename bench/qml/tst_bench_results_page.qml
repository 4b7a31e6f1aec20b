import QtQuick
import QtTest
import Kelvane

// Node changes on the Results page after a solve of bench/spots/default.json: the flop root, a turn decision and
// a river decision, each timed from the click to the drawn frame. It stands outside the test folder, so it runs
// only when named: kelvane_qml_tests -input bench/qml/tst_bench_results_page.qml.
TestCase {
    id: testCase

    name: "ResultsPageBenchmark"
    when: windowShown
    visible: true
    width: 1600
    height: 1000

    readonly property string spotPath: "../spots/default.json"
    // Speed of the page does not depend on how far the solve went.
    readonly property int solveIterations: 3
    readonly property int rounds: 15
    readonly property int solveTimeoutMs: 600000
    property var page: null

    SignalSpy {
        id: resultsSpy

        target: appController
        signalName: "resultsChanged"
    }

    Component {
        id: pageComponent

        ResultsPage {
            width: testCase.width
            height: testCase.height
            theme: Theme {}
            type: Typography {}
            controller: appController
        }
    }

    function initTestCase() {
        const answer = appController.readTextFile(Qt.resolvedUrl(spotPath))
        verify(answer.ok, answer.error)
        const map = JSON.parse(answer.text)
        map.max_iterations = solveIterations
        map.thread_count = 2
        appController.startSolveWithConfig(map)
        tryVerify(() => resultsSpy.count > 0 && !appController.running, solveTimeoutMs, "the solve ends")
        verify(appController.treeNodeCount() > 0, appController.statusText)
        // Made once for every measurement, so not a temporary object of the first test.
        page = pageComponent.createObject(testCase, {boardText: map.board})
        waitForRendering(page)
    }

    function cleanupTestCase() {
        page.destroy()
    }

    function actionIndex(type) {
        const actions = page._actionsForNode(page.currentNodeIndex)
        for (let i = 0; i < actions.length; ++i)
            if (actions[i].actionType.split(" ")[0] === type)
                return i
        fail("no " + type)
    }

    // Check, check and the first runout card, from the given level: one street further down.
    function walkOneStreet(level) {
        page.selectActionAtLevel(level, actionIndex("check"))
        page.selectActionAtLevel(level + 1, actionIndex("check"))
        page.openChancePicker(level + 2, page.currentNodeIndex)
        page.chooseChanceCard(page.chancePickerAvailableCardIndices[0], "")
        compare(page._metaForNode(page.currentNodeIndex).nodeType, "decision")
        return level + 3
    }

    property var scriptTimes: []

    // From the click to the drawn frame; the script's share alone is kept aside.
    function timed(change) {
        const start = Date.now()
        change()
        scriptTimes.push(Date.now() - start)
        waitForRendering(page)
        return Date.now() - start
    }

    function median(times) {
        const sorted = times.slice().sort((a, b) => a - b)
        return sorted[Math.floor(sorted.length / 2)]
    }

    // Back to the decision at `level` from one level below it and down again: two node changes per round.
    function measure(label, level) {
        const times = []
        scriptTimes = []
        for (let round = 0; round < rounds; ++round) {
            times.push(timed(() => page.navigateToBreadcrumb(level)))
            times.push(timed(() => page.selectActionAtLevel(level, actionIndex("check"))))
        }
        console.info(label + ": node change median " + median(times) + " ms, worst " + Math.max(...times)
                     + " ms over " + times.length + " changes (script alone: median " + median(scriptTimes)
                     + " ms), " + page.currentHandCombos.length + " combos")
    }

    function test_flopRoot() {
        page.resetTreeToRoot()
        page.selectActionAtLevel(0, actionIndex("check"))
        measure("flop root", 0)
    }

    function test_turnDecision() {
        page.resetTreeToRoot()
        const turn = walkOneStreet(0)
        page.selectActionAtLevel(turn, actionIndex("check"))
        measure("turn decision", turn)
    }

    function test_riverDecision() {
        page.resetTreeToRoot()
        const river = walkOneStreet(walkOneStreet(0))
        page.selectActionAtLevel(river, actionIndex("check"))
        measure("river decision", river)
    }
}
