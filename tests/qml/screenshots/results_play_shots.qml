// Renders "Play vs solution" on the Results page in the real window after a solve of a small river spot: the
// table before a session, waiting for the hero, after a mistake with the hand details open, and a drill with its
// feedback, in dark and light. One PNG per state goes into the folder that KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest
import ".."
import "../../../qml/pages/PlayRules.js" as PlayRules

TestCase {
    id: shooter

    name: "ResultsPlayShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property var page: shell ? findChild(shell, "resultsPage") : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int resultsIndex: 3
    readonly property int solveTimeoutMs: 120000
    readonly property int settleMs: 400
    // The drill's verdict shows for 700 ms: taken sooner than the other states.
    readonly property int toastSettleMs: 150
    readonly property int handTimeoutMs: 10000
    readonly property int quickStepMs: 5
    readonly property int pausedStepMs: 600000

    readonly property var shots: [
        {file: "results-play-01-before-session-dark", step: () => {
            solveRiverSpot()
            navigate(resultsIndex)
            page.togglePlayMode()
        }},
        {file: "results-play-02-before-session-light", step: () => shell.theme.dark = false},
        {file: "results-play-03-hero-to-act-light", step: () => {
            page.playStepDelayMs = quickStepMs
            page.startPlaySession("IP")
            tryVerify(() => page.playAwaitingUserAction, handTimeoutMs, "IP to act")
            page.playStepDelayMs = pausedStepMs
        }},
        {file: "results-play-04-hero-to-act-dark", step: () => shell.theme.dark = true},
        {file: "results-play-05-mistake-details-dark", step: () => {
            makeNextChoiceAMistake()
            page.choosePlayAction(page.playActionNames().length - 1)
            verify(page.playHandComplete)
            page.selectPlayLog(0)
        }},
        {file: "results-play-06-mistake-details-light", step: () => shell.theme.dark = false},
        {file: "results-play-07-drill-feedback-light", settle: toastSettleMs, step: () => {
            page.selectPlayLog(-1)
            page.anotherHand()
            page.playStepDelayMs = quickStepMs
            tryVerify(() => page.playAwaitingUserAction, handTimeoutMs, "IP to act")
            page.startDrillSpot()
            makeNextChoiceAMistake()
            page.choosePlayAction(page.playActionNames().length - 1)
        }},
        {file: "results-play-08-drill-feedback-dark", settle: toastSettleMs, step: () => {
            shell.theme.dark = true
            tryVerify(() => page.playAwaitingUserAction, handTimeoutMs, "the next drill hand")
            makeNextChoiceAMistake()
            page.choosePlayAction(page.playActionNames().length - 1)
        }}
    ]

    ResultsSpots {
        id: spots
    }

    SignalSpy {
        id: resultsSpy

        target: appController
        signalName: "resultsChanged"
    }

    function solveRiverSpot() {
        const map = spots.river
        shell.applyProjectState({boardText: map.board, startingStreet: map.starting_street})
        appController.startSolveWithConfig(map)
        tryVerify(() => resultsSpy.count > 0 && !appController.running, solveTimeoutMs, "the river spot solves")
    }

    function navigate(index) {
        findChild(shell, "topBar").navigate(index)
        compare(shell.navIndex, index, "page " + index + " is reachable")
    }

    // The hero's EVs at the node, as the Strategy view's combos would give them, with the last action the worst.
    function makeNextChoiceAMistake() {
        const node = page.playDrillMode ? page.playDrillNodeIndex : page.playNodeIndex
        const seat = page.playActingSeat()
        const cards = seat === "IP" ? [page.ipCard1, page.ipCard2] : [page.oopCard1, page.oopCard2]
        const count = page.playActionNames().length
        const evs = []
        for (let i = 0; i < count; ++i)
            evs.push(i === count - 1 ? 12.5 - 4.75 : 12.5 - i)
        const byCombo = {}
        byCombo[PlayRules.cardKey(cards[0]) + PlayRules.cardKey(cards[1])] = evs
        const cache = {}
        cache[String(node)] = byCombo
        page._playHandComboEvCache = cache
    }

    function save(fileName, settle) {
        let saved = false
        const path = screenshotDirectory + "/" + fileName + ".png"
        wait(settle)
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
            save(shot.file, shot.settle !== undefined ? shot.settle : settleMs)
        }
    }
}
