import QtQuick
import QtTest
import Kelvane
import "../../qml/pages/PlayRules.js" as PlayRules

// Playing hands against a real solution on the Results page: dealing, the automatic seat, the mistake test and
// its tolerances, the end of a hand, its log entry and statistics, "Another hand", the runout and the drill.
TestCase {
    id: testCase

    name: "ResultsPlay"
    when: windowShown
    visible: true
    width: 1500
    height: 950

    readonly property int solveTimeoutMs: 120000
    readonly property int stepMs: 5
    readonly property int handTimeoutMs: 10000
    readonly property var logFields: ["time", "board", "role", "oop", "ip", "line", "endedReason", "mistakeActor",
        "mistakeAction", "correctAction", "chosenActionIndex", "correctActionIndex", "evLoss", "bestEv", "chosenEv",
        "pot", "investedOop", "investedIp", "isMistake"]
    property string solvedBoard: ""

    ResultsSpots {
        id: spots
    }

    SignalSpy {
        id: resultsSpy

        target: appController
        signalName: "resultsChanged"
    }

    SignalSpy {
        id: statsSpy

        target: appController
        signalName: "playVsSolutionStatsChanged"
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

    // One solve serves every test of the same spot.
    function solve(map) {
        if (solvedBoard === map.board)
            return
        resultsSpy.clear()
        appController.startSolveWithConfig(map)
        tryVerify(() => resultsSpy.count > 0 && !appController.running, solveTimeoutMs, "the solve ends")
        verify(appController.treeNodeCount() > 0, "results arrived: " + appController.statusText)
        solvedBoard = map.board
    }

    function playPage(map) {
        solve(map)
        const page = createTemporaryObject(pageComponent, testCase, {boardText: map.board})
        page.playStepDelayMs = stepMs
        page.togglePlayMode()
        verify(page.playMode)
        return page
    }

    function riverPage() {
        return playPage(spots.river)
    }

    function waitForHero(page) {
        tryVerify(() => page.playAwaitingUserAction || page.playHandComplete, handTimeoutMs, "the hero's turn")
    }

    function actionNamed(page, node, word) {
        const actions = page._actionsForNode(node)
        for (let i = 0; i < actions.length; ++i)
            if (String(actions[i].actionType).split(" ")[0] === word)
                return i
        fail("no " + word + " at node " + node)
    }

    function heroCards(page, actor) {
        return actor === "IP" ? page.ipCard1 + page.ipCard2 : page.oopCard1 + page.oopCard2
    }

    // The dealt combo's EVs at the node, as the Strategy view's combos would give them.
    function setComboEvs(page, node, actor, evs) {
        const byCombo = {}
        byCombo[PlayRules.cardKey(heroCards(page, actor).substr(0, 2))
                + PlayRules.cardKey(heroCards(page, actor).substr(2, 2))] = evs
        const cache = Object.assign({}, page._playHandComboEvCache)
        cache[String(node)] = byCombo
        page._playHandComboEvCache = cache
    }

    function actor(page) {
        return page._metaForNode(page.playNodeIndex).player
    }

    function test_enteringTheModeStartsWithNoSession() {
        const page = riverPage()
        compare(page.playSessionStarted, false)
        compare(page.playRole, "")
        compare(page.currentNodeIndex, 0)
        compare(page.treeLevels.count, 1)
        compare(page.playPotText(), "Pot: —")
        page.togglePlayMode()
        compare(page.playMode, false)
    }

    function test_theHeaderButtonSwapsThePanelsForTheTable() {
        solve(spots.river)
        const page = createTemporaryObject(pageComponent, testCase, {boardText: spots.river.board})
        waitForRendering(page)
        const button = findChild(page, "playModeButton")
        compare(button.text, "Play vs solution")
        page.selectActionAtLevel(0, 0)
        mouseClick(button)
        compare(page.playMode, true)
        compare(button.text, "Range view")
        compare(page.treeLevels.count, 1, "the tree went back to the root")
        verify(findChild(page, "playPanel").visible)
        verify(findChild(page, "actionFrequencies").visible)
        waitForRendering(page)
        const levels = findChild(page, "treeLevels")
        compare(levels.itemAtIndex(0).enabled, false, "the tree takes no clicks while playing")
        page.playStepDelayMs = stepMs
        mouseClick(findChild(page, "playRoleOop"))
        compare(page.playRole, "OOP")
        waitForHero(page)
        tryVerify(() => findChild(page, "playActionButton") !== null && findChild(page, "playActionButton").visible)
        mouseClick(button)
        compare(page.playMode, false)
        compare(page.playSessionStarted, false)
        verify(!findChild(page, "playPanel").visible)
        compare(levels.itemAtIndex(0).enabled, true)
    }

    function test_dealingTakesDistinctCardsOfTheRangesOffTheBoard() {
        const page = riverPage()
        const inRange = (seat, cards) => appController.nodeSeatHandCombos(0, seat).some(
                          c => PlayRules.cardKey(c.c1) + PlayRules.cardKey(c.c2) === cards && Number(c.weight) > 0)
        for (let hand = 0; hand < 10; ++hand) {
            page.startPlaySession("OOP")
            const cards = [page.oopCard1, page.oopCard2, page.ipCard1, page.ipCard2]
            const board = PlayRules.boardCards(page.boardText)
            for (const card of cards) {
                verify(PlayRules.isValidCard(card), card)
                verify(board.indexOf(card) < 0, card + " is on the board")
            }
            compare(new Set(cards).size, 4)
            verify(inRange("OOP", page.oopCard1 + page.oopCard2))
            verify(inRange("IP", page.ipCard1 + page.ipCard2))
            compare(page.playBoardText, "QsJh2h7c3d")
        }
    }

    function test_aDealWithNoEligibleComboLeavesTheSeatEmpty() {
        const page = riverPage()
        page.startPlaySession("OOP")
        const everyCard = {}
        for (const rank of "23456789TJQKA")
            for (const suit of "shdc")
                everyCard[rank + suit] = true
        compare(page._dealToSeat("IP", everyCard), [])
        compare(page.ipCard1, "")
        compare(page.ipCard2, "")
    }

    function test_scheduleDoesNothingOutsideASessionAndTheLastWins() {
        const page = riverPage()
        page._schedulePlayTick(0)
        wait(20)
        compare(page.playAwaitingUserAction, false, "no tick outside a session")
        page.startPlaySession("OOP")
        page._schedulePlayTick(60000)
        page._schedulePlayTick(NaN)
        waitForHero(page)
        compare(page.playAwaitingUserAction, true, "the schedule at 0 replaced the long one")
    }

    function test_theHeroWaitsAndTheOtherSeatActsAlone() {
        const page = riverPage()
        page.startPlaySession("IP")
        // OOP acts first on the river: the solution plays it, with a bubble, and the hand reaches IP.
        waitForHero(page)
        compare(actor(page), "IP")
        compare(page.playLastActionActor, "OOP")
        verify(page.playLastActionText !== "")
        compare(page.playActionLine, "OOP: " + page.playLastActionText)
        compare(page.treeLevels.count, 2, "the tree followed")
        compare(page.currentNodeIndex, page.playNodeIndex)
        compare(page.selectedPlayer, "IP")
        compare(page.playActionNames(), page._actionsForNode(page.playNodeIndex).map(a => String(a.name)))
    }

    function test_nearTieWithinTheRelativeToleranceIsNoMistake() {
        const page = riverPage()
        page.startPlaySession("OOP")
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [10.05, 10.0])
        const info = page._suboptimalEvInfoAtNode(0, "OOP", 1)
        verify(info.ok)
        compare(info.bestIndex, 0)
        fuzzyCompare(info.evLoss, 0.05, 1e-12)
        page.choosePlayAction(1)
        compare(page.playHandComplete, false, "a loss of 0.05 is inside 0.1005")
        compare(page.playHandLog.count, 0)
        compare(page.treeLevels.count, 2)
    }

    function test_lossAtTheAbsoluteToleranceIsNoMistakeAndTwiceItIsOne() {
        const page = riverPage()
        page.startPlaySession("OOP")
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [0.0, -0.000001])
        page.choosePlayAction(1)
        compare(page.playHandComplete, false, "a loss of 1e-6 does not exceed 1e-6")

        page.anotherHand()
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [0.0, -0.000002])
        page.choosePlayAction(1)
        compare(page.playHandComplete, true, "a loss of 2e-6 is a mistake")
        compare(page.playLastEndReason, "suboptimal")
        fuzzyCompare(page.playLastEvLoss, 0.000002, 1e-12)
    }

    function test_aMistakeByEitherSeatEndsTheHandInRoleBoth() {
        const page = riverPage()
        page.startPlaySession("BOTH")
        waitForHero(page)
        compare(actor(page), "OOP")
        const oopHand = page.oopCard1 + page.oopCard2
        setComboEvs(page, 0, "OOP", [5.0, 1.0])
        page.choosePlayAction(1)
        verify(page.playHandComplete)
        let entry = page.playHandLog.get(0)
        compare(entry.mistakeActor, "OOP")
        compare(entry.oop, oopHand)
        compare(entry.chosenActionIndex, 1)
        compare(entry.correctActionIndex, 0)
        compare(entry.correctAction, page._actionsForNode(0)[0].name)
        compare(entry.line, "OOP: " + page._actionsForNode(0)[1].name)

        page.anotherHand()
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [0.0, 0.0])
        page.choosePlayAction(actionNamed(page, 0, "check"))
        waitForHero(page)
        compare(actor(page), "IP")
        const ipNode = page.playNodeIndex
        const choices = page._actionsForNode(ipNode).length
        const evs = []
        for (let i = 0; i < choices; ++i)
            evs.push(i === 0 ? 3.0 : 0.0)
        setComboEvs(page, ipNode, "IP", evs)
        page.choosePlayAction(choices - 1)
        verify(page.playHandComplete)
        entry = page.playHandLog.get(0)
        compare(entry.mistakeActor, "IP")
        compare(entry.role, "BOTH")
        compare(entry.oop, page.oopCard1 + page.oopCard2, "the log shows the OOP hand")
        compare(page.playLogHeroCards(0), entry.oop)
        compare(page.playHandLog.count, 2)
    }

    function test_anotherHandAfterAMistakeStartsAtTheRootInTheSameRole() {
        const page = riverPage()
        page.startPlaySession("OOP")
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [5.0, 1.0])
        page.choosePlayAction(1)
        verify(page.playHandComplete)
        compare(page.treeLevels.count, 1, "a mistake does not walk on")
        page.anotherHand()
        compare(page.playHandComplete, false)
        compare(page.playRole, "OOP")
        compare(page.treeLevels.count, 1)
        compare(page.currentNodeIndex, 0)
        compare(page.playActionLine, "")
        verify(PlayRules.isValidCard(page.oopCard1) && PlayRules.isValidCard(page.ipCard2))
        waitForHero(page)
        compare(page.playAwaitingUserAction, true)
    }

    function test_everyLogEntryHasEveryFieldAndStatisticsCountEachHandOnce() {
        const page = riverPage()
        statsSpy.clear()
        const before = appController.playVsSolutionStats()
        page.startPlaySession("BOTH")
        page.playStopOnSuboptimalAction = false
        // Check and call down: the hand ends at the river showdown.
        waitForHero(page)
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "check"))
        waitForHero(page)
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "check"))
        tryVerify(() => page.playHandComplete, handTimeoutMs)
        wait(5 * stepMs)
        compare(statsSpy.count, 1, "one record per hand")
        compare(page.playHandLog.count, 1)
        const entry = page.playHandLog.get(0)
        for (const field of logFields)
            verify(entry[field] !== undefined, field)
        compare(entry.endedReason, "terminal")
        compare(entry.isMistake, false)
        verify(isNaN(entry.evLoss))
        compare(entry.chosenActionIndex, -1)
        compare(entry.mistakeAction, "")
        compare(entry.pot, 100)
        compare(page.playLogFooterText(0), "Perfect")
        compare(page.playSelectedLogIndex, 0, "the first entry is selected")
        compare(page.playSelectedDetails.winner, appController.showdownWinner(entry.board, entry.oop, entry.ip).winner)

        page.playStopOnSuboptimalAction = true
        page.anotherHand()
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [2.5, 1.25])
        page.choosePlayAction(1)
        compare(statsSpy.count, 2)
        const after = appController.playVsSolutionStats()
        compare(after.totalHands, before.totalHands + 2, "the Home page's figures count both hands")
        compare(after.totalMistakes, before.totalMistakes + 1)
        const mistake = page.playHandLog.get(0)
        for (const field of logFields)
            verify(mistake[field] !== undefined, field)
        compare(mistake.isMistake, true)
        compare(page.playLogFooterText(0), "EV -1.250")
        compare(page.playSelectedLogIndex, 0, "the selection is not shifted by an insert")
        compare(page.playSelectedLog.endedReason, "terminal")
    }

    function test_leavingTheModeKeepsTheLogAndClearsTheSession() {
        const page = riverPage()
        page.startPlaySession("OOP")
        waitForHero(page)
        setComboEvs(page, 0, "OOP", [5.0, 1.0])
        page.choosePlayAction(1)
        compare(page.playHandLog.count, 1)
        page.togglePlayMode()
        compare(page.playMode, false)
        compare(page.playSessionStarted, false)
        compare(page.playHandComplete, false)
        compare(page.oopCard1, "")
        compare(page.playHandLog.count, 1)
        compare(page.treeLevels.count, 1)
    }

    function test_aHandIsLoggedWithoutAController() {
        const page = createTemporaryObject(pageComponent, testCase, {controller: null})
        const entry = page._logPlayHand({endedReason: "suboptimal", evLoss: 0.5, mistakeActor: "OOP"})
        compare(page.playHandLog.count, 1)
        compare(entry.isMistake, true)
        compare(page.playHandLog.get(0).pot, 0)
        compare(page.playLastEndReason, "suboptimal")
        compare(page.playLastMistakeActor, "OOP")
        compare(page.playLogFooterText(0), "EV -0.500")
        compare(page._buildPlayHandDetails(page.playSelectedLog).winner, "")
    }

    function test_handDetailsOfAShowdownWithRake() {
        const page = riverPage()
        page.rakePercent = 5
        page.rakeCap = 3
        const entry = {board: "QsJh2h7c3d", oop: "AhAd", ip: "KhKd", role: "OOP", isMistake: false,
                       line: "OOP: Check → IP: Bet 50% → OOP: Call", pot: 200, investedOop: 100, investedIp: 100}
        const details = page._buildPlayHandDetails(entry)
        compare(details.flopBoard, "QsJh2h")
        compare(details.turnCard, "7c")
        compare(details.riverCard, "3d")
        compare(details.riverActions, ["OOP: Check", "IP: Bet 50%", "OOP: Call"], "a river spot plays on the river")
        compare(details.flopActions, [])
        compare(details.winner, "OOP")
        compare(details.wonAmount, 100)
        compare(details.rakeTaken, 3, "capped")
        compare(details.summaryLines, ["Winner: OOP", "Won: 100", "Rake: 3"])
        page.rakeCap = 0
        compare(page._buildPlayHandDetails(entry).rakeTaken, 10)
    }

    function test_handDetailsOfATieAndOfAMistake() {
        const page = riverPage()
        const tie = page._buildPlayHandDetails({board: "QsJh2h7c3d", oop: "AhKd", ip: "AsKc", isMistake: false,
                                                line: "OOP: Check → IP: Check", pot: 100, investedOop: 50,
                                                investedIp: 50})
        compare(tie.winner, "TIE")
        compare(tie.wonAmount, 0)
        const mistake = page._buildPlayHandDetails({board: "QsJh2h7c3d", oop: "AhKd", ip: "AsKc", isMistake: true,
                                                    line: "OOP: Bet 50%", pot: 100, investedOop: 50,
                                                    investedIp: 50, evLoss: 1.23456, mistakeAction: "Bet 50%",
                                                    correctAction: "Check"})
        compare(mistake.summaryLines.slice(3), ["EV lost: 1.235", "Incorrect: Bet 50%", "Correct: Check"])
    }

    function test_aFoldOnTheFlopEndsWithoutShowdown() {
        const map = spots.flop("Ks7d2c")
        const page = playPage(map)
        page.startPlaySession("BOTH")
        page.playStopOnSuboptimalAction = false
        waitForHero(page)
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "bet"))
        waitForHero(page)
        compare(actor(page), "IP")
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "fold"))
        tryVerify(() => page.playHandComplete, handTimeoutMs)
        const entry = page.playHandLog.get(0)
        compare(entry.board, "Ks7d2c")
        const details = page._buildPlayHandDetails(page.playSelectedLog)
        compare(details.turnCard, "")
        compare(details.riverCard, "")
        compare(details.turnActions, [])
        compare(details.riverActions, [])
        compare(details.flopActions.length, 2)
        compare(details.winner, "OOP", "the fold decides, no showdown on a flop board")
        compare(details.wonAmount, entry.pot - entry.investedOop)
    }

    function test_chanceCardsNeverDealAHoleCard() {
        const page = playPage(spots.flop("Ks7d2c"))
        page.startPlaySession("BOTH")
        page.playStopOnSuboptimalAction = false
        waitForHero(page)
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "check"))
        waitForHero(page)
        // Stop at the deal and try it many times, with the hole cards among the few cards left.
        page.playStepDelayMs = 60000
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "check"))
        const chanceLevel = page.treeLevels.count - 1
        const chanceNode = page.playNodeIndex
        compare(page._metaForNode(chanceNode).nodeType, "chance")
        const cards = page._actionsForNode(chanceNode).map(a => String(a.name))
        for (let round = 0; round < 40; ++round) {
            page.oopCard1 = cards[round % cards.length]
            page.oopCard2 = cards[(round + 1) % cards.length]
            page.ipCard1 = cards[(round + 2) % cards.length]
            page.ipCard2 = cards[(round + 3) % cards.length]
            page.playBoardText = "Ks7d2c"
            page._jumpToLevelForReselect(chanceLevel)
            page.playNodeIndex = chanceNode
            page._autoHandleChanceNode()
            const dealt = page.playBoardText.substr(6, 2)
            compare(page.playBoardText.length, 8)
            verify([page.oopCard1, page.oopCard2, page.ipCard1, page.ipCard2].indexOf(dealt) < 0, dealt)
        }
        // With every card but one in use, that one comes.
        const used = {}
        for (let i = 1; i < cards.length; ++i)
            used[cards[i]] = true
        for (let round = 0; round < 20; ++round)
            compare(page._pickWeightedActionIndex(page._actionsForNode(chanceNode), used), 0)
    }

    function test_newResultsEndARunningHand() {
        const page = riverPage()
        page.startPlaySession("OOP")
        waitForHero(page)
        solve(spots.flop("Ks7d2c"))
        compare(page.playSessionStarted, false)
        compare(page.playAwaitingUserAction, false)
        compare(page.currentNodeIndex, 0)
        verify(page.playMode, "the table stays, ready for a new session")
    }

    function test_theTurnOfARunningHandCanBeChanged() {
        const page = playPage(spots.flop("Ks7d2c"))
        page.startPlaySession("BOTH")
        page.playStopOnSuboptimalAction = false
        verify(!page.playCanChangeRunout("turn"))
        waitForHero(page)
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "check"))
        waitForHero(page)
        page.choosePlayAction(actionNamed(page, page.playNodeIndex, "check"))
        waitForHero(page)
        const turn = page.playBoardText.substr(6, 2)
        verify(page.playCanChangeRunout("turn"))
        verify(!page.playCanChangeRunout("river"))
        tryVerify(() => findChild(page, "playRunoutHint").visible, 2000, "the table offers the change")
        compare(page._findChanceLevel("turn"), 2)
        page.changePlayRunout("turn")
        tryVerify(() => page.chancePickerActions.length > 0)
        const other = page.chancePickerActions.map(a => String(a.name)).find(c => c !== turn && c.length === 2)
        page.chooseChanceCard(page._chanceCardIndexForSelection(other), other)
        compare(page.playBoardText, "Ks7d2c" + other)
        compare(page.treeBoardText, "Ks7d2c" + other)
        const steps = page.playActionLine.split(" → ")
        compare(steps.length, 3)
        compare(steps[2], "Chance: " + other)
        waitForHero(page)
        compare(page.treeLevels.count, 4)
    }

    function test_theDrillRepeatsOneDecisionWithFeedback() {
        const page = riverPage()
        page.startPlaySession("OOP")
        waitForHero(page)
        verify(page.playDrillAvailable())
        page.startDrillSpot()
        verify(page.playDrillMode)
        compare(page.playDrillNodeIndex, 0)
        compare(page.playDrillActor, "OOP")
        verify(page.playAwaitingUserAction)
        compare(page.playDrillContextText(), "")
        setComboEvs(page, 0, "OOP", [4.0, 1.5])
        page.choosePlayAction(1)
        compare(page.playDrillFeedbackText,
                "Wrong — best: " + page._actionsForNode(0)[0].name + " (EV -2.500)")
        verify(page.playDrillFeedbackWrong)
        compare(page.playDrillFeedbackEvLoss, 2.5)
        compare(page.treeLevels.count, 1, "the tree stays")
        compare(page.playHandLog.count, 0, "nothing is logged")
        tryVerify(() => page.playAwaitingUserAction, 2000, "the next hand comes")
        tryVerify(() => page.playDrillFeedbackText === "", 2000, "the toast clears")
        setComboEvs(page, 0, "OOP", [4.0, 1.5])
        page.choosePlayAction(0)
        compare(page.playDrillFeedbackText, "Correct")
        verify(!page.playDrillFeedbackWrong)
        page.stopDrillSpot()
        compare(page.playDrillMode, false)
        waitForHero(page)
        compare(page.playAwaitingUserAction, true, "play resumes")
    }

    function test_drillingAnIpSpotShowsOopsAction() {
        const page = riverPage()
        page.startPlaySession("IP")
        waitForHero(page)
        page.startDrillSpot()
        compare(page.playDrillActor, "IP")
        compare(page.playDrillContextText(), "OOP action: " + page._actionsForNode(0)[page.treeLevels.get(0).selectedActionIndex].name)
        verify(page.playSeatIsHero("IP"))
        verify(!page.playSeatIsHero("OOP"))
    }
}
