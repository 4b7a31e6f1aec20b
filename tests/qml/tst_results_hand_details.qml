import QtQuick
import QtTest
import Kelvane

// The Results page's combo list and bucket list across node changes: each row shows its combo's cards, EVs and
// strategy, and a node with a different number of combos refills the rows it has instead of building new ones.
TestCase {
    id: testCase

    name: "ResultsHandDetails"
    when: windowShown
    visible: true
    width: 1400
    height: 900

    readonly property var rootActions: [
        {name: "Check", actionType: "check", frequency: 0.6, childIndex: 1},
        {name: "Bet 50%", actionType: "bet", frequency: 0.4, childIndex: 2}
    ]
    readonly property var rootCombos: [
        {c1: "As", c2: "Ks", weight: 1, actionProbs: [0.25, 0.75], actionEvs: [1.5, 2.25], ev: 2, buckets: ["top pair"]},
        {c1: "Qh", c2: "Qd", weight: 1, actionProbs: [1, 0], actionEvs: [3, -1], ev: 3, buckets: ["overpair"]},
        {c1: "7c", c2: "6c", weight: 1, actionProbs: [0, 1], actionEvs: [0.5, 0.75], ev: 0.75, buckets: ["air"]}
    ]
    readonly property var checkedCombos: [
        {c1: "Td", c2: "9d", weight: 1, actionProbs: [0.5], actionEvs: [], ev: -0.5, buckets: ["air"]},
        {c1: "2c", c2: "2d", weight: 1, actionProbs: [1], actionEvs: [], ev: 1.25, buckets: ["set"]}
    ]
    readonly property var tree: ({
        0: {meta: {nodeType: "decision", player: "OOP", pot: 100, effectiveStack: 200, investedOop: 50, investedIp: 50},
            actions: rootActions,
            combos: rootCombos,
            buckets: [{name: "top pair", displayName: "Top pair", combos: 1, actionProbs: [0.25, 0.75]},
                      {name: "overpair", displayName: "Overpair", combos: 1, actionProbs: [1, 0]},
                      {name: "air", displayName: "Air", combos: 1, actionProbs: [0, 1]}],
            strategy: {dominantActionTypes: {AKs: "bet"}, actionTypeList: ["check", "bet"], actionProbs: {}}},
        1: {meta: {nodeType: "decision", player: "IP", pot: 100, effectiveStack: 200, investedOop: 50, investedIp: 50},
            actions: [{name: "Check", actionType: "check", frequency: 1, childIndex: 3}],
            combos: checkedCombos,
            buckets: [{name: "air", displayName: "Air", combos: 1, actionProbs: [1]}],
            strategy: {dominantActionTypes: {T9s: "check"}, actionTypeList: ["check"], actionProbs: {}}},
        2: {meta: {nodeType: "terminal", pot: 200}},
        3: {meta: {nodeType: "terminal", pot: 100}}
    })

    Component {
        id: controllerComponent

        ResultsStandInController {}
    }

    Component {
        id: pageComponent

        ResultsPage {
            width: testCase.width
            height: testCase.height
            theme: Theme {}
            type: Typography {}
            boardText: "Kd 8h 3s"
        }
    }

    function makePage() {
        const controller = createTemporaryObject(controllerComponent, testCase, {nodes: tree})
        const page = createTemporaryObject(pageComponent, testCase, {controller: controller})
        waitForRendering(page)
        return page
    }

    function comboRow(page, index) {
        const list = findChild(page, "handComboList")
        list.forceLayout()
        return list.itemAtIndex(index)
    }

    function bucketRow(page, index) {
        const list = findChild(page, "bucketList")
        list.forceLayout()
        return list.itemAtIndex(index)
    }

    function cardText(row, name) {
        const card = findChild(row, name)
        return card.rank + card.suit
    }

    // The texts of a row's EV column, top to bottom.
    function evTexts(row) {
        const texts = []
        const column = findChild(row, "evLines")
        for (let i = 0; i < column.children.length; ++i) {
            if (column.children[i].text !== undefined)
                texts.push(column.children[i].text)
        }
        return texts
    }

    function test_rowsShowCardsEvsAndStrategy() {
        const page = makePage()
        compare(findChild(page, "handComboList").count, 3)
        const row = comboRow(page, 0)
        compare(cardText(row, "firstCard"), "As")
        compare(cardText(row, "secondCard"), "Ks")
        compare(evTexts(row), ["Check 1.50", "Bet 50% 2.25"])
        const bar = findChild(row, "comboStrategy")
        compare(bar.actions.length, 2)
        fuzzyCompare(bar.actions[1].frequency, 0.75, 1e-6)
    }

    function test_aNodeWithFewerCombosRefillsTheRowsItKeeps() {
        const page = makePage()
        const first = comboRow(page, 0)
        const firstBucket = bucketRow(page, 0)
        page.selectActionAtLevel(0, 0)
        compare(page.currentNodeIndex, 1)
        waitForRendering(page)
        compare(findChild(page, "handComboList").count, 2)
        verify(comboRow(page, 0) === first, "the first row is the same item")
        compare(cardText(first, "firstCard"), "Td")
        compare(cardText(first, "secondCard"), "9d")
        compare(evTexts(first), ["-0.50"], "without action EVs the plain EV")
        compare(findChild(page, "bucketList").count, 1)
        verify(bucketRow(page, 0) === firstBucket, "the first bucket row is the same item")
        compare(firstBucket.modelData.name, "air")
    }

    function test_aNodeWithMoreCombosKeepsItsRowsAndAddsTheRest() {
        const page = makePage()
        page.selectActionAtLevel(0, 0)
        waitForRendering(page)
        const first = comboRow(page, 0)
        page.navigateToBreadcrumb(0)
        waitForRendering(page)
        compare(findChild(page, "handComboList").count, 3)
        verify(comboRow(page, 0) === first, "the first row is the same item")
        compare(cardText(first, "firstCard"), "As")
        compare(cardText(comboRow(page, 2), "secondCard"), "6c")
        compare(evTexts(comboRow(page, 1)), ["Check 3.00", "Bet 50% -1.00"])
    }

    // Pocket pairs and suited hands enough to overflow the list.
    function manyCombos() {
        const ranks = "AKQJT98765432"
        const combos = []
        for (let i = 0; i < ranks.length; ++i) {
            for (const suits of ["sh", "sd", "sc", "hd", "hc", "dc"])
                combos.push({c1: ranks[i] + suits[0], c2: ranks[i] + suits[1], weight: 1, actionProbs: [1, 0],
                             actionEvs: [1, 0], ev: 1, buckets: []})
        }
        return combos
    }

    function test_aNewNodeShowsItsListFromTheTop() {
        const nodes = Object.assign({}, tree)
        nodes[0] = Object.assign({}, tree[0], {combos: manyCombos()})
        const controller = createTemporaryObject(controllerComponent, testCase, {nodes: nodes})
        const page = createTemporaryObject(pageComponent, testCase, {controller: controller})
        const list = findChild(page, "handComboList")
        waitForRendering(page)
        list.positionViewAtEnd()
        verify(!list.atYBeginning, "the list scrolls")
        page.selectActionAtLevel(0, 0)
        verify(list.atYBeginning, "the next node starts at the top")
        list.positionViewAtEnd()
        page.navigateToBreadcrumb(0)
        verify(list.atYBeginning, "and so does the way back")
    }

    function test_filtersShrinkAndRestoreTheList() {
        const page = makePage()
        page.handSearchText = "QQ"
        compare(findChild(page, "handComboList").count, 1)
        compare(cardText(comboRow(page, 0), "firstCard"), "Qh")
        page.handSearchText = ""
        compare(findChild(page, "handComboList").count, 3)
        compare(cardText(comboRow(page, 0), "firstCard"), "As")
    }
}
