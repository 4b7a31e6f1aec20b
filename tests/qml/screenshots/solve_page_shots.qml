// Renders the Solve page in the real window, with the real controller: idle after Quick Solve, during a turn run,
// after cancelling it and after a finished river run, in dark and light. One PNG per state goes into the folder
// that KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest

TestCase {
    id: shooter

    name: "SolvePageShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property var page: shell ? findChild(shell, "solvePage") : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int solveTimeoutMs: 180000
    // Longer than the wheel's value animation, so that a shot shows where it comes to rest.
    readonly property int settleMs: 500
    // Long enough to be caught mid-run; it is cancelled.
    readonly property var turnSpot: ({boardText: "Ks9d4c7h", startingStreet: "turn", maxIterations: 100000,
                                      targetExploitability: 0})
    // A river spot that solves in seconds.
    readonly property var riverSpot: ({boardText: "QsJh2h7c3d", startingStreet: "river", maxIterations: 2000,
                                       targetExploitability: 0.5})

    readonly property var shots: [
        {file: "solve-01-idle-dark", step: () => {
            findChild(shell, "homePage").quickSolve()
            waitUntilSolvable()
            navigate(2)
        }},
        {file: "solve-02-idle-light", step: () => shell.theme.dark = false},
        {file: "solve-03-running-light", step: () => {
            startOnPage(turnSpot)
            tryVerify(() => page.currentIteration > 60, solveTimeoutMs, "the turn run is past its first measure")
        }},
        {file: "solve-04-running-dark", step: () => shell.theme.dark = true},
        {file: "solve-05-cancelled-dark", step: () => {
            page.cancelSolve()
            tryVerify(() => !shell.running, solveTimeoutMs, "the turn run stops")
        }},
        {file: "solve-06-completed-dark", step: () => {
            startOnPage(riverSpot)
            tryVerify(() => !shell.running && appController.resultIterations > 0, solveTimeoutMs,
                      "the river run ends with results")
        }},
        {file: "solve-07-completed-light", step: () => shell.theme.dark = false}
    ]

    function navigate(index) {
        findChild(shell, "topBar").navigate(index)
        compare(shell.navIndex, index, "page " + index + " is reachable")
    }

    function waitUntilSolvable() {
        tryVerify(() => shell.canSolve, 60000, "the memory estimate arrives and fits")
    }

    function startOnPage(spot) {
        shell.applyProjectState(spot)
        waitUntilSolvable()
        const start = findChild(page, "startSolveButton")
        tryVerify(() => start.enabled, 5000, "Start Solve is enabled")
        mouseClick(start)
        verify(shell.running, "the run started")
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
