import QtQuick
import QtTest
import Kelvane

// Runouts in the Results tree, on real solves: the suit-representative mapping on a monotone flop and its
// absence on a rainbow one, the display override, "Random", and a turn spot walked down to a river decision.
TestCase {
    id: testCase

    name: "ResultsChance"
    when: windowShown
    visible: true
    width: 1500
    height: 950

    readonly property int solveTimeoutMs: 180000
    readonly property string turnSpotPath: "../../bench/spots/turn.json"
    readonly property int turnIterations: 20

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
        }
    }

    function solve(map) {
        resultsSpy.clear()
        appController.startSolveWithConfig(map)
        verify(appController.running, "the solve starts: " + appController.statusText)
        tryVerify(() => resultsSpy.count > 0 && !appController.running, solveTimeoutMs, "the solve ends")
        verify(appController.treeNodeCount() > 0, "results arrived: " + appController.statusText)
        return createTemporaryObject(pageComponent, testCase, {boardText: map.board})
    }

    function actionIndex(page, type) {
        const actions = page._actionsForNode(page.currentNodeIndex)
        for (let i = 0; i < actions.length; ++i)
            if (actions[i].actionType.split(" ")[0] === type)
                return i
        fail("no " + type + " at node " + page.currentNodeIndex)
    }

    // Check, check: the turn is dealt at the third level.
    function walkToTurn(page) {
        page.selectActionAtLevel(0, actionIndex(page, "check"))
        page.selectActionAtLevel(1, actionIndex(page, "check"))
        compare(page.treeLevels.count, 3)
        compare(page._metaForNode(page.currentNodeIndex).nodeType, "chance")
        page.openChancePicker(2, page.currentNodeIndex)
        compare(page.chancePickerLevelIndex, 2)
        tryVerify(() => pickerOf(page).opened)
    }

    // The popup's cards live in the window's overlay, not under the page.
    function pickerOf(page) {
        return findChild(page, "chancePicker")
    }

    function pickerCard(page, card) {
        return findChild(pickerOf(page).contentItem, "chanceCard_" + card)
    }

    function test_monotoneFlopMapsAbsentSuits() {
        const page = solve(spots.flop("Ks7s2s"))
        walkToTurn(page)
        compare(page.chancePickerTitle, "Choose Turn Card")
        const byCard = page.chancePickerIndexByCard
        let mapped = null
        for (const rank of page._rankOrder) {
            for (const suit of ["h", "d", "c"]) {
                if (byCard[rank + suit] === undefined && page._chanceCardIndexForSelection(rank + suit) >= 0) {
                    mapped = rank + suit
                    break
                }
            }
            if (mapped)
                break
        }
        verify(mapped !== null, "the solver keeps one representative of the absent suits")
        const action = page._chanceCardIndexForSelection(mapped)
        const twin = page.chancePickerActions[action].name
        compare(twin.charAt(0), mapped.charAt(0), "the same rank")
        verify(twin !== mapped)
        compare(page._chanceCardIndexForSelection("Ks"), -1, "a board card has no action")
        const card = pickerCard(page, mapped)
        verify(!card.disabled, "the mapped card can be clicked")
        mouseClick(card)
        compare(page.treeLevels.count, 4)
        compare(page.treeLevels.get(2).selectedActionIndex, action)
        compare(page.treeBoardText, "Ks7s2s" + mapped, "the board shows the clicked card")
        compare(page.nodePath[page.nodePath.length - 1], twin, "the path names the solver's card")
        compare(page._metaForNode(page.currentNodeIndex).nodeType, "decision")
    }

    function test_rainbowFlopHasNoMapping() {
        const page = solve(spots.flop("Ks7d2c"))
        walkToTurn(page)
        const byCard = page.chancePickerIndexByCard
        compare(Object.keys(byCard).length, 49, "no suit is interchangeable")
        compare(page._chanceCardIndexForSelection("Ks"), -1)
        verify(pickerCard(page, "Ks").disabled, "a card without an action stays disabled")
        compare(page._chanceCardIndexForSelection("Ah"), byCard["Ah"])
    }

    function test_randomPicksAnAvailableCard() {
        const page = solve(spots.flop("Ks7s2s"))
        walkToTurn(page)
        const chance = page.currentNodeIndex
        page.chooseChanceCardRandom()
        const level = page.treeLevels.get(2)
        verify(level.selectedActionIndex >= 0)
        const name = page._actionsForNode(chance)[level.selectedActionIndex].name
        compare(page.chanceCardDisplayOverrideByNode[String(chance)], name, "only the action's own name")
        compare(page.treeBoardText, "Ks7s2s" + name)
        verify(!pickerOf(page).opened)
    }

    function test_turnSpotDownToARiverDecision() {
        const answer = appController.readTextFile(Qt.resolvedUrl(turnSpotPath))
        verify(answer.ok, answer.error)
        const map = JSON.parse(answer.text)
        map.max_iterations = turnIterations
        map.thread_count = 2
        const page = solve(map)
        page.selectActionAtLevel(0, actionIndex(page, "check"))
        page.selectActionAtLevel(1, actionIndex(page, "check"))
        page.openChancePicker(2, page.currentNodeIndex)
        compare(page.chancePickerTitle, "Choose River Card")
        compare(page.chancePickerBoardText, "Ks9d4c7h")
        page.chooseChanceCard(page._chanceCardIndexForSelection("2s"), "2s")
        compare(page.treeLevels.count, 4)
        compare(page.treeBoardText, "Ks9d4c7h2s")
        compare(findChild(page, "strategyBoard").boardText, "Ks9d4c7h2s")
        compare(page.selectedPlayer, "OOP")
        verify(page.currentHandCombos.length > 0, "the river decision has combos")
        verify(Object.keys(page.handWeights).length > 0)
        page.navigateToBreadcrumb(2)
        compare(page.treeLevels.count, 3)
        compare(page.treeBoardText, "Ks9d4c7h", "going back drops the river")
    }
}
