import QtQuick
import QtTest
import Kelvane

// The Results page's strategy reading on a hand-made tree: action colours by size rank, the hand class of a
// combo, reach and strategy per hand, ties, the bucket filter, the search tokens and the node facts.
TestCase {
    id: testCase

    name: "ResultsStrategy"
    when: windowShown
    visible: true
    width: 1400
    height: 900

    readonly property var rootActions: [
        {name: "Check", actionType: "check", frequency: 0.5, childIndex: 1},
        {name: "Bet 100%", actionType: "bet", frequency: 0.2, childIndex: 2},
        {name: "Bet 33%", actionType: "bet", frequency: 0.3, childIndex: 3}
    ]
    readonly property var rootCombos: [
        {c1: "As", c2: "Ks", weight: 1, actionProbs: [0.5, 0.5, 0], actionEvs: [1, 2, 3], ev: 2, buckets: ["top pair"]},
        {c1: "Ah", c2: "Kh", weight: 1, actionProbs: [0.5, 0.5, 0], actionEvs: [1, 2, 3], ev: 2, buckets: ["flush draw"]},
        {c1: "6s", c2: "5s", weight: 0.6, actionProbs: [0, 0, 1], actionEvs: [0, 0, 1], ev: 1, buckets: ["air"]},
        {c1: "6h", c2: "5h", weight: 0, actionProbs: [1, 0, 0], actionEvs: [0, 0, 1], ev: 1, buckets: ["air"]},
        {c1: "6d", c2: "5d", weight: 0.3, actionProbs: [0, 0, 1], actionEvs: [0, 0, 1], ev: 1, buckets: ["air"]},
        {c1: "6c", c2: "5c", weight: 0.3, actionProbs: [0, 0, 1], actionEvs: [0, 0, 1], ev: 1, buckets: ["air"]},
        {c1: "Jc", c2: "Jd", weight: 1, actionProbs: [0.2, -1, NaN], actionEvs: [0, 0, 1], ev: 1, buckets: ["overpair"]}
    ]
    readonly property var tree: ({
        0: {meta: {nodeType: "decision", player: "OOP", pot: 100, effectiveStack: 200, investedOop: 50, investedIp: 50},
            actions: rootActions,
            stats: rootActions.map(a => Object.assign({combos: 10, equity: 0.5, ev: 1.5}, a)),
            combos: rootCombos,
            buckets: [{name: "top pair", displayName: "top pair", combos: 1, actionProbs: [0.5, 0.5, 0]},
                      {name: "air", displayName: "air", combos: 3, actionProbs: [0, 0, 1]}],
            strategy: {dominantActionTypes: {AKs: "check", "65s": "bet", QQ: "bet"}, actionTypeList: ["check", "bet", "bet"],
                       actionProbs: {QQ: [0, 1, 0], AKs: [0, 0, 1]}}},
        1: {meta: {nodeType: "decision", player: "IP", pot: 100, effectiveStack: 200, investedOop: 50, investedIp: 50},
            actions: [{name: "Check", actionType: "check", frequency: 1, childIndex: 4}]},
        2: {meta: {nodeType: "decision", player: "IP", pot: 200, effectiveStack: 200, investedOop: 150, investedIp: 50},
            actions: [{name: "Fold", actionType: "fold", frequency: 0.5, childIndex: 4},
                      {name: "Call", actionType: "call", frequency: 0.5, childIndex: 4}]},
        3: {meta: {nodeType: "chance", chanceDeal: "river", pot: 133}, actions: [{name: "2c", actionType: "chance", childIndex: 4}]},
        4: {meta: {nodeType: "terminal", pot: 100}}
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
            boardText: "Qs Jh 2h"
        }
    }

    function makePage(nodes) {
        const controller = createTemporaryObject(controllerComponent, testCase, {nodes: nodes || tree})
        return createTemporaryObject(pageComponent, testCase, {controller: controller})
    }

    function test_colorizeRanksSizesWithinTheNode_data() {
        return [{tag: "dark", dark: true,
                 bets: ["#818CF8", "#A78BFA", "#C084FC", "#E879F9", "#F0ABFC"],
                 raises: ["#FDBA74", "#FB923C", "#F97316", "#EA580C", "#C2410C"]},
                {tag: "light", dark: false,
                 bets: ["#4F46E5", "#7C3AED", "#9333EA", "#C026D3", "#BE185D"],
                 raises: ["#F59E0B", "#F97316", "#EA580C", "#C2410C", "#9A3412"]}]
    }

    function test_colorizeRanksSizesWithinTheNode(data) {
        const page = makePage()
        page.theme.dark = data.dark
        const list = [{name: "Check", actionType: "check"}, {name: "Bet 100%", actionType: "bet"},
                      {name: "Bet 33%", actionType: "bet"}, {name: "Raise 250%", actionType: "raise"},
                      {name: "Raise 100.5%", actionType: "raise"}, {name: "Bet 75%", actionType: "bet"},
                      {name: "Bet", actionType: "bet"}, {name: "All-in", actionType: "allin"}]
        const colored = page._colorizeBetRaiseActions(list)
        compare(colored.length, list.length)
        compare(colored[0].color, undefined, "a check gets no colour")
        compare(colored[2].color, data.bets[0], "the smallest bet takes the first shade")
        compare(colored[5].color, data.bets[1])
        compare(colored[1].color, data.bets[2])
        compare(colored[4].color, data.raises[0])
        compare(colored[3].color, data.raises[1])
        compare(colored[6].color, undefined, "a bet without a size gets no colour")
        const typed = page._colorizeBetRaiseActions([{name: "Bet 75%", actionType: "bet 75%"},
                                                     {name: "Bet 25%", actionType: "bet 25%"}])
        compare(typed[1].color, data.bets[0], "type texts carry the size")
        compare(typed[0].color, data.bets[1])
        compare(colored[7].color, undefined)
        compare(list[1].color, undefined, "the input is copied, not changed")
    }

    function test_themeChangeRecolours() {
        const page = makePage()
        compare(page.currentActions[2].color, "#818CF8")
        page.theme.dark = false
        compare(page.currentActions[2].color, "#4F46E5", "the light palette takes over at once")
    }

    function test_colorizeWrapsAfterFiveSizes() {
        const page = makePage()
        const list = []
        for (let size = 10; size <= 60; size += 10)
            list.push({name: "Bet " + size + "%", actionType: "bet"})
        const colored = page._colorizeBetRaiseActions(list)
        compare(colored[5].color, colored[0].color, "the sixth size takes the first shade again")
    }

    function test_handClassFromCards_data() {
        return [{tag: "pair", c1: "Jc", c2: "Jd", want: "JJ"}, {tag: "suited", c1: "5s", c2: "6s", want: "65s"},
                {tag: "offsuit", c1: "Kd", c2: "Ah", want: "AKo"}, {tag: "ten", c1: "Ts", c2: "9s", want: "T9s"},
                {tag: "lower case", c1: "as", c2: "kS", want: "AKs"}]
    }

    function test_handClassFromCards(data) {
        compare(makePage()._handClassFromCards(data.c1, data.c2), data.want)
    }

    function test_searchTokens_data() {
        return [{tag: "AK suited", token: "AK", c1: "As", c2: "Ks", want: true},
                {tag: "AK offsuit", token: "AK", c1: "Ad", c2: "Ks", want: true},
                {tag: "KA", token: "KA", c1: "Ad", c2: "Ks", want: true},
                {tag: "AKx", token: "AKx", c1: "As", c2: "Ks", want: false},
                {tag: "AK not AQ", token: "AK", c1: "As", c2: "Qs", want: false},
                {tag: "pair", token: "JJ", c1: "Jc", c2: "Jd", want: true},
                {tag: "pair not AJ", token: "JJ", c1: "Ac", c2: "Jd", want: false},
                {tag: "56s", token: "56s", c1: "6s", c2: "5s", want: true},
                {tag: "56s not offsuit", token: "56s", c1: "6s", c2: "5d", want: false},
                {tag: "AKo", token: "AKo", c1: "Kd", c2: "As", want: true},
                {tag: "exact combo", token: "JcJd", c1: "Jd", c2: "Jc", want: true},
                {tag: "exact combo cases", token: "jCjD", c1: "Jc", c2: "Jd", want: true},
                {tag: "other combo", token: "JcJd", c1: "Jh", c2: "Jc", want: false},
                {tag: "bad rank", token: "AX", c1: "As", c2: "Ks", want: false},
                {tag: "one char", token: "A", c1: "As", c2: "Ks", want: false},
                {tag: "five chars", token: "AsKsx", c1: "As", c2: "Ks", want: false}]
    }

    function test_searchTokens(data) {
        compare(makePage()._matchSearchTokenToCombo(data.token, data.c1, data.c2), data.want)
    }

    function shownClasses(page) {
        const classes = {}
        for (let i = 0; i < page.visibleHandCombos.length; ++i)
            classes[page._handClassFromCards(page.visibleHandCombos[i].c1, page.visibleHandCombos[i].c2)] = true
        return Object.keys(classes).sort()
    }

    function test_searchFieldFiltersTheList() {
        const page = makePage()
        page.handSearchText = "JJ, 56s"
        compare(shownClasses(page), ["65s", "JJ"], "either token shows")
        page.handSearchText = "AK"
        compare(shownClasses(page), ["AKs"])
        page.handSearchText = "KA"
        compare(shownClasses(page), ["AKs"])
        page.handSearchText = "AKx"
        compare(page.visibleHandCombos.length, 0)
        compare(findChild(page, "handDetailsEmpty").text, "No combos match the current filters.")
    }

    function test_reachIsTheMeanOverCombos() {
        const page = makePage()
        fuzzyCompare(page.handWeights["65s"], 0.3, 1e-9, "0.6, 0, 0.3 and 0.3 average to 0.3")
        compare(page.handWeights["AKs"], 1)
    }

    function test_strategyIsReachWeighted() {
        const page = makePage()
        compare(page.handActionProbs["65s"], [0, 0, 1], "the zero-weight combo's check does not count")
        compare(page.handActionProbs["JJ"], [1, 0, 0], "negative and NaN count as zero, then it is normalised")
        compare(page.handActionProbs["QQ"], [0, 1, 0], "a hand without combos keeps the query's strategy")
    }

    function test_tieColoursByTheFirstAction() {
        const page = makePage()
        compare(page.handActionProbs["AKs"], [0.5, 0.5, 0])
        verify(Qt.colorEqual(page.handColors["AKs"], page.theme.actionColor("Check")))
        verify(Qt.colorEqual(page.handColors["65s"], "#818CF8"), "the smallest bet's shade")
        verify(Qt.colorEqual(page.handColors["22"], page.theme.textMuted), "no strategy at all")
    }

    function test_typeListMatchesTheActionCount() {
        const page = makePage()
        compare(page.handActionTypeList, ["check", "Bet 100%", "Bet 33%"], "sizes keep their names")
        const nodes = JSON.parse(JSON.stringify(tree))
        nodes[0].stats = []
        nodes[0].actions = [rootActions[0]]
        const fewer = makePage(nodes)
        compare(fewer.handActionTypeList, ["check", "bet", "bet"], "past the definitions the type list answers")
        nodes[0].strategy.actionTypeList = ["check"]
        compare(makePage(nodes).handActionTypeList, ["check", "none", "none"])
    }

    function test_bucketFilterLeavesHandsEmptyButLabelled() {
        const page = makePage()
        page.toggleBucketFilter("top pair")
        compare(page.selectedBucket, "top pair")
        compare(page.handWeights["65s"], undefined, "outside the bucket the hand has no reach")
        compare(page.handWeights["AKs"], 1)
        const cell = findChild(page, "cell_65s")
        compare(cell.weight, 0)
        verify(cell.labelVisible, "the label still shows")
        compare(shownClasses(page), ["AKs"])
        page.toggleBucketFilter("top pair")
        compare(page.selectedBucket, "")
        fuzzyCompare(page.handWeights["65s"], 0.3, 1e-9)
    }

    function test_handFilterFromTheMatrix() {
        const page = makePage()
        page._onMatrixClick("AKs")
        compare(page.selectedHandClass, "AKs")
        compare(page.visibleHandCombos.length, 2)
        compare(findChild(page, "handFilterRow").visible, true)
        mouseClick(findChild(page, "clearHandFilterButton"))
        compare(page.selectedHandClass, "")
    }

    function test_filtersArePerNode() {
        const page = makePage()
        page.toggleBucketFilter("air")
        page.toggleHandFilter("65s")
        page.handSearchText = "65"
        page.selectActionAtLevel(0, 1)
        compare(page.currentNodeIndex, 2)
        compare(page.selectedBucket, "")
        compare(page.selectedHandClass, "")
        compare(page.handSearchText, "")
    }

    function test_noiseFilterOnlyOnTurnAndRiverBoards() {
        const nodes = JSON.parse(JSON.stringify(tree))
        nodes[0].combos = [{c1: "As", c2: "Ks", weight: 1, actionProbs: [1, 0, 0], buckets: []},
                           {c1: "Ah", c2: "Kh", weight: 1e-7, actionProbs: [1, 0, 0], buckets: []}]
        const page = makePage(nodes)
        compare(page.visibleHandCombos.length, 2, "on a flop every combo shows")
        page.boardText = "Qs Jh 2h 3c"
        compare(page.visibleHandCombos.length, 1, "1e-7 is below a millionth of the largest weight")
    }

    function test_nodeFacts() {
        const page = makePage()
        compare(page._potSize(), 100)
        compare(page._stackRemaining(), 150)
        compare(page._toCallAmount(), 0)
        page.selectActionAtLevel(0, 1)
        compare(page.selectedPlayer, "IP")
        compare(page._potSize(), 200)
        compare(page._stackRemaining(), 150)
        compare(page._toCallAmount(), 100)
        compare(findChild(page, "fact_toCall").text, "100")
    }

    function test_chanceNodeHasOneRandomEntry() {
        const page = makePage()
        page.selectActionAtLevel(0, 2)
        compare(page.currentNodeIndex, 3)
        compare(page.currentActions.length, 1)
        compare(page.currentActions[0].name, "Random river card")
        compare(page.currentActions[0].actionType, "chance")
        compare(page.currentActions[0].frequency, 1.0)
        verify(isNaN(page.currentActions[0].combos) && isNaN(page.currentActions[0].equity) && isNaN(page.currentActions[0].ev))
        compare(page._stackRemaining(), 0, "a node without a player has no stack to show")
        compare(page._toCallAmount(), 0)
        compare(page.selectedPlayer, "OOP", "a chance node keeps the last player")
    }

    function test_bucketRowsAndTheirBars() {
        const page = makePage()
        const rows = page._handActionsForProbs([0.25, 0.75])
        compare(rows.length, 2)
        compare(rows[0].name, "Check")
        compare(rows[1].name, "Bet 100%")
        compare(rows[1].color, "#A78BFA", "bars keep each action's colour")
        compare(rows[1].frequency, 0.75)
        const list = findChild(page, "bucketList")
        compare(list.count, 2)
    }

    function test_withoutResultsThePageStands() {
        const page = makePage({})
        compare(page.treeLevels.count, 1)
        compare(Object.keys(page.handWeights).length, 0)
        compare(page.currentActions.length, 0)
        compare(page._safeActionAt(page.currentActions, 3), null)
        compare(findChild(page, "handDetailsEmpty").text, "No hand combos to display for this node.")
    }
}
