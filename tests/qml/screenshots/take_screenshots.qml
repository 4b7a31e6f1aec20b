// Renders the real window, with the real controller, in a row of states and writes one PNG per state into
// the folder that KELVANE_SCREENSHOT_DIR names. A new state is one more entry in `shots`: a file name and a
// step that brings the window there (it may wait). Run by scripts/screenshots.sh.
import QtQuick
import QtTest

TestCase {
    id: shooter

    name: "Screenshots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int solveTimeoutMs: 180000
    // A river spot that solves in seconds, with iterations enough to be seen running.
    readonly property var riverSpot: ({boardText: "QsJh2h7c3d", startingStreet: "river", maxIterations: 20000,
                                       targetExploitability: 0})

    readonly property var shots: [
        {file: "01-startup-home-dark", step: () => {}},
        {file: "02-quick-solve-setup-dark", step: () => homePage().quickSolve()},
        {file: "03-quick-solve-home-dark", step: () => navigate(0)},
        {file: "04-quick-solve-solve-dark", step: () => {
            waitUntilSolvable()
            navigate(2)
        }},
        {file: "05-quick-solve-settings-dark", step: () => navigate(4)},
        {file: "06-quick-solve-setup-light", step: () => {
            shell.theme.dark = false
            navigate(1)
        }},
        {file: "07-quick-solve-home-light", step: () => navigate(0)},
        {file: "08-quick-solve-solve-light", step: () => navigate(2)},
        {file: "09-river-solving-solve-dark", step: () => {
            shell.theme.dark = true
            shell.applyProjectState(riverSpot)
            waitUntilSolvable()
            shell._solveNow()
            tryVerify(() => shell.running && /^Iter\s+\d+/.test(appController.statusText), solveTimeoutMs,
                      "the river solve is under way")
        }},
        {file: "10-river-solved-results-dark", step: () => {
            tryVerify(() => !shell.running, solveTimeoutMs, "the river solve ends")
            tryVerify(() => appController.resultIterations > 0, 5000, "the solve has results")
            navigate(3)
        }},
        {file: "11-river-solved-home-dark", step: () => navigate(0)}
    ]

    function homePage() {
        return findChild(shell, "homePage")
    }

    function navigate(index) {
        findChild(shell, "topBar").navigate(index)
        compare(shell.navIndex, index, "page " + index + " is reachable")
    }

    function waitUntilSolvable() {
        tryVerify(() => shell.canSolve, 60000, "the memory estimate arrives and fits")
    }

    function save(fileName) {
        let saved = false
        const path = screenshotDirectory + "/" + fileName + ".png"
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
