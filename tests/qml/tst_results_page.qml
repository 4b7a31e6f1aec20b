import QtQuick
import QtTest
import Kelvane

// The Results page on a real river solve: walking down and back up, a call that ends the hand, the strategy
// matrix against the combos, buckets, search and the header figures.
TestCase {
    id: testCase

    name: "ResultsPage"
    when: windowShown
    visible: true
    width: 1500
    height: 950

    readonly property int solveTimeoutMs: 120000
    property bool solved: false

    ResultsSpots {
        id: spots
    }

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
            boardText: "QsJh2h7c3d"
        }
    }

    function solve(map) {
        resultsSpy.clear()
        appController.startSolveWithConfig(map)
        verify(appController.running, "the solve starts: " + appController.statusText)
        tryVerify(() => resultsSpy.count > 0 && !appController.running, solveTimeoutMs, "the solve ends")
        verify(appController.treeNodeCount() > 0, "results arrived: " + appController.statusText)
    }

    function init() {
        if (!solved)
            solve(spots.river)
        solved = true
    }

    // The tree's rows are list delegates, made when the list lays out.
    function makePage() {
        const page = createTemporaryObject(pageComponent, testCase)
        waitForRendering(page)
        return page
    }

    function actionIndex(page, name) {
        const actions = page._actionsForNode(page.currentNodeIndex)
        for (let i = 0; i < actions.length; ++i)
            if (actions[i].actionType.split(" ")[0] === name)
                return i
        fail("no action " + name + " at node " + page.currentNodeIndex)
    }

    function test_rootShowsTheFirstPlayer() {
        const page = makePage()
        compare(page.treeLevels.count, 1)
        compare(page.currentNodeIndex, 0)
        compare(page.selectedPlayer, "OOP")
        compare(page.nodePath, ["Root"])
        compare(page.treeBoardText, "QsJh2h7c3d")
        compare(findChild(page, "toActPill").visible, true)
        verify(page.currentActions.length >= 2)
        verify(findChild(page, "availableActionsStrip").visible, "the leaf offers its actions")
    }

    function test_walkDownAndBackUp() {
        const page = makePage()
        page.selectActionAtLevel(0, actionIndex(page, "check"))
        compare(page.treeLevels.count, 2)
        compare(page.selectedPlayer, "IP")
        const ipNode = page.currentNodeIndex
        verify(ipNode > 0)
        page.selectActionAtLevel(1, actionIndex(page, "bet"))
        compare(page.treeLevels.count, 3)
        compare(page.selectedPlayer, "OOP")
        compare(page.nodePath.length, 3)
        compare(page.nodePath[1], "Check")
        page.selectActionAtLevel(0, 0)
        compare(page.treeLevels.count, 3, "an earlier level cannot be chosen again")
        page.navigateToBreadcrumb(1)
        compare(page.treeLevels.count, 2)
        compare(page.currentNodeIndex, ipNode)
        compare(page.treeLevels.get(1).selectedActionIndex, -1)
        compare(page.selectedPlayer, "IP")
        page.navigateToBreadcrumb(0)
        compare(page.treeLevels.count, 1)
        compare(page.currentNodeIndex, 0)
        compare(page.nodePath, ["Root"])
        page.navigateToBreadcrumb(-3)
        compare(page.treeLevels.count, 1, "at least the root stays")
    }

    function test_callEndsTheHandAndStaysMarked() {
        const page = makePage()
        page.selectActionAtLevel(0, actionIndex(page, "bet"))
        const ipNode = page.currentNodeIndex
        const call = actionIndex(page, "call")
        page.selectActionAtLevel(1, call)
        compare(page.treeLevels.count, 2, "no level for a terminal node")
        compare(page.currentNodeIndex, ipNode, "the view stays on the decision")
        compare(page.treeLevels.get(1).selectedActionIndex, call)
        compare(page.nodePath[page.nodePath.length - 1], "Call")
        waitForRendering(page)
        const node = findChild(page, "actionNode_1_" + call)
        verify(node.selected, "the call stays marked")
        const fold = actionIndex(page, "fold")
        verify(!findChild(page, "actionNode_1_" + fold).visible, "only the chosen action shows")
        verify(!findChild(page, "availableActionsStrip").visible)
    }

    function test_treeRowsWalkByClicks() {
        const page = makePage()
        waitForRendering(page)
        const check = actionIndex(page, "check")
        mouseClick(findChild(page, "actionNode_0_" + check))
        compare(page.treeLevels.count, 2)
        compare(page.treeLevels.get(0).selectedActionIndex, check)
    }

    function test_matrixFollowsTheCombos() {
        const page = makePage()
        const combos = appController.nodeHandCombos(0)
        verify(combos.length > 0)
        for (const hand of ["AA", "KK", "AKs", "AKo", "T9s"])
            verify(page.handWeights[hand] > 0, hand + " is in the OOP range")
        compare(page.handWeights["JJ"], undefined, "JJ is not")
        for (const hand in page.handActionProbs) {
            const probs = page.handActionProbs[hand]
            compare(probs.length, page.handActionTypeList.length, hand + " lines up with the action list")
            if (page.handWeights[hand] > 0)
                fuzzyCompare(probs.reduce((a, b) => a + b, 0), 1, 1e-6, hand + " sums to 1")
        }
        compare(page.handActionTypeList.length, page.currentActions.length)
    }

    function test_actionStatsReachTheBar() {
        const page = makePage()
        const bar = findChild(page, "frequencyBar")
        compare(bar.actions.length, page.currentActions.length)
        let total = 0
        for (let i = 0; i < page.currentActions.length; ++i) {
            verify(isFinite(page.currentActions[i].combos))
            verify(isFinite(page.currentActions[i].ev))
            total += page.currentActions[i].frequency
        }
        fuzzyCompare(total, 1, 1e-4)
    }

    function test_headerFigures() {
        const page = makePage()
        const half = appController.resultStartingPot / 2
        compare(findChild(page, "evOopCard").value, (appController.resultEvOop + half).toFixed(3))
        compare(findChild(page, "evIpCard").value, (appController.resultEvIp + half).toFixed(3))
        compare(findChild(page, "exploitabilityCard").value, appController.resultExploitability.toFixed(4))
    }

    function test_bucketFilterOnTheSolve() {
        const page = makePage()
        verify(page.currentBuckets.length > 0)
        const bucket = page.currentBuckets[0].name
        page.toggleBucketFilter(bucket)
        verify(page.visibleHandCombos.length > 0)
        for (let i = 0; i < page.visibleHandCombos.length; ++i)
            verify(page.visibleHandCombos[i].buckets.indexOf(bucket) >= 0)
        let inBucket = 0
        for (const hand in page.handWeights)
            ++inBucket
        verify(inBucket < 169)
        const cell = findChild(page, "cell_JJ")
        verify(cell.labelVisible, "a hand outside every range still shows its label")
    }

    function test_searchOnTheSolve() {
        const page = makePage()
        page.handSearchText = "AK"
        compare(page.visibleHandCombos.length, 16, "four suited and twelve offsuit combos")
        page.handSearchText = "AKo"
        compare(page.visibleHandCombos.length, 12)
        page.handSearchText = "AsKs"
        compare(page.visibleHandCombos.length, 1)
        page.handSearchText = "AA, KK"
        compare(page.visibleHandCombos.length, 12)
        page.handSearchText = "AKx"
        compare(page.visibleHandCombos.length, 0)
    }

    function test_newResultsResetToTheRoot() {
        const page = makePage()
        page.selectActionAtLevel(0, actionIndex(page, "bet"))
        verify(page.treeLevels.count > 1)
        appController.resultsChanged()
        compare(page.treeLevels.count, 1)
        compare(page.currentNodeIndex, 0)
    }
}
