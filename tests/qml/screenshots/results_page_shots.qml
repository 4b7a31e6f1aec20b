// Renders the Results page in the real window after a solve of bench/spots/turn.json: the root, two levels down
// with a river picked, a bucket filter, the chance picker open and node-lock mode with a lock previewed, in dark
// and light. One PNG per state goes into the folder that KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest

TestCase {
    id: shooter

    name: "ResultsPageShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property var page: shell ? findChild(shell, "resultsPage") : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int resultsIndex: 3
    readonly property int solveTimeoutMs: 300000
    readonly property int turnIterations: 150
    readonly property int settleMs: 400
    readonly property string riverCard: "8s"

    readonly property var shots: [
        {file: "results-01-root-dark", step: () => {
            solveTurnSpot()
            navigate(resultsIndex)
        }},
        {file: "results-02-root-light", step: () => shell.theme.dark = false},
        {file: "results-03-chance-picker-light", step: () => {
            select("check")
            select("check")
            page.openChancePicker(2, page.currentNodeIndex)
        }},
        {file: "results-04-chance-picker-dark", step: () => shell.theme.dark = true},
        {file: "results-05-river-dark", step: () => {
            page.chooseChanceCard(page._chanceCardIndexForSelection(riverCard), riverCard)
        }},
        {file: "results-06-river-light", step: () => shell.theme.dark = false},
        {file: "results-07-bucket-filter-light", step: () => page.toggleBucketFilter(largestBucket())},
        {file: "results-08-bucket-filter-dark", step: () => shell.theme.dark = true},
        {file: "results-09-node-lock-dark", step: () => {
            page.toggleBucketFilter(page.selectedBucket)
            page.enterNodeLockMode()
            page.nodeLockSelectedActionIndex = 1
            page.nodeLockWeightText = "0.75"
            for (const hand of ["AA", "KK", "AKs", "A5s", "QJs"])
                page.applyNodeLockToHand(page.currentNodeIndex, hand)
        }},
        {file: "results-10-node-lock-light", step: () => shell.theme.dark = false}
    ]

    SignalSpy {
        id: resultsSpy

        target: appController
        signalName: "resultsChanged"
    }

    function solveTurnSpot() {
        const answer = appController.readTextFile(Qt.resolvedUrl("../../../bench/spots/turn.json"))
        verify(answer.ok, answer.error)
        const map = JSON.parse(answer.text)
        map.max_iterations = turnIterations
        map.thread_count = 2
        shell.applyProjectState({boardText: map.board, startingStreet: map.starting_street})
        appController.startSolveWithConfig(map)
        tryVerify(() => resultsSpy.count > 0 && !appController.running, solveTimeoutMs, "the turn spot solves")
    }

    function navigate(index) {
        findChild(shell, "topBar").navigate(index)
        compare(shell.navIndex, index, "page " + index + " is reachable")
    }

    function select(type) {
        const actions = page._actionsForNode(page.currentNodeIndex)
        for (let i = 0; i < actions.length; ++i) {
            if (actions[i].actionType.split(" ")[0] === type) {
                page.selectActionAtLevel(page.treeLevels.count - 1, i)
                return
            }
        }
        fail("no " + type)
    }

    function largestBucket() {
        let best = page.currentBuckets[0]
        for (let i = 1; i < page.currentBuckets.length; ++i)
            if (page.currentBuckets[i].combos > best.combos)
                best = page.currentBuckets[i]
        return best.name
    }

    function save(fileName) {
        let saved = false
        const path = screenshotDirectory + "/" + fileName + ".png"
        wait(settleMs)
        waitForRendering(window.contentItem)
        verify(window.contentItem.grabToImage(result => saved = result.saveToFile(path)), "grab " + fileName)
        tryVerify(() => saved, 10000, "wrote " + path)
        console.info("wrote " + path)
    }

    function initTestCase() {
        verify(screenshotDirectory !== "", "KELVANE_SCREENSHOT_DIR names the output folder")
        const component = Qt.createComponent("qrc:/Kelvane/Main.qml")
        compare(component.status, Component.Ready, component.errorString())
        window = component.createObject(null, {width: shotWidth, height: shotHeight})
        verify(shell !== null)
        compare(shell.controller, appController)
    }

    function cleanupTestCase() {
        window.destroy()
    }

    function test_shots() {
        for (const shot of shots) {
            shot.step()
            save(shot.file)
        }
    }
}
