// Renders the real window at start-up on Home, with solves on a few days of the year and some hands played,
// in both themes, and writes one PNG per state into the folder that KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest
import Qt.labs.settings

TestCase {
    id: shooter

    name: "HomePageShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    // Days back from today and the solves each had: one of every colour, and a busy day among them.
    readonly property var solvedDays: [[0, 1], [1, 2], [3, 3], [4, 1], [8, 30], [15, 2], [22, 1], [40, 4],
                                       [41, 1], [75, 2], [120, 1], [200, 3], [300, 1]]
    // Hands played, as [mistake, EV loss].
    readonly property var playedHands: [[false, 0], [false, 0], [true, 0.4], [false, 0], [false, 0.15]]

    readonly property var shots: [
        {file: "home-01-startup-dark", step: () => {}},
        {file: "home-02-activity-tooltip-dark", step: () => hoverDay(3)},
        {file: "home-03-clear-stats-dialog-dark", step: () => {
            leaveGrid()
            openClearDialog()
        }},
        {file: "home-04-startup-light", step: () => {
            closeClearDialog()
            shell.theme.dark = false
        }},
        {file: "home-05-activity-tooltip-light", step: () => hoverDay(8)}
    ]

    Settings {
        id: store
    }

    function homePage() {
        return findChild(shell, "homePage")
    }

    function activityGrid() {
        return findChild(homePage(), "activityGrid")
    }

    function isoDaysAgo(count) {
        const now = new Date()
        return Qt.formatDate(new Date(now.getFullYear(), now.getMonth(), now.getDate() - count), "yyyy-MM-dd")
    }

    // What a finished solve adds to its day.
    function recordSolve(isoDay, iterations, exploitability) {
        const prefix = "solveActivity/" + isoDay + "/"
        store.setValue(prefix + "solves", Number(store.value(prefix + "solves", 0)) + 1)
        store.setValue(prefix + "iterationsSum", Number(store.value(prefix + "iterationsSum", 0)) + iterations)
        store.setValue(prefix + "exploitabilitySum",
                       Number(store.value(prefix + "exploitabilitySum", 0)) + exploitability)
    }

    function seedActivity() {
        for (const [daysAgo, solves] of solvedDays) {
            for (let i = 0; i < solves; ++i)
                recordSolve(isoDaysAgo(daysAgo), 300 + 50 * i, 0.4 / (i + 1))
        }
        for (const [mistake, loss] of playedHands)
            appController.recordPlayVsSolutionHand(mistake, loss)
    }

    function hoverDay(daysAgo) {
        const grid = activityGrid()
        const index = grid.days.findIndex(day => day.date === isoDaysAgo(daysAgo))
        verify(index >= 0, "the day is on the grid")
        const area = findChild(grid, "cellArea")
        mouseMove(area, grid._cellX(index) + grid.cellSize / 2, grid._cellY(index) + grid.cellSize / 2)
        const tip = findChild(grid, "activityTooltip")
        tryVerify(() => tip.visible && tip.opacity === 1, 2000, "the tooltip shows")
    }

    function leaveGrid() {
        mouseMove(homePage(), 5, 5)
        tryVerify(() => !findChild(activityGrid(), "activityTooltip").visible, 2000, "the tooltip hides")
    }

    function openClearDialog() {
        mouseClick(findChild(homePage(), "clearStatsButton"))
        const dialog = findChild(homePage(), "clearStatsDialog")
        tryVerify(() => dialog.visible, 2000, "the confirmation opens")
        wait(300)
    }

    function closeClearDialog() {
        const dialog = findChild(homePage(), "clearStatsDialog")
        dialog.reject()
        tryVerify(() => !dialog.visible, 2000, "the confirmation closes")
        wait(300)
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
        seedActivity()
        const component = Qt.createComponent("qrc:/Kelvane/Main.qml")
        compare(component.status, Component.Ready, component.errorString())
        window = component.createObject(null, {width: shotWidth, height: shotHeight})
        verify(shell !== null)
        compare(shell.controller, appController)
        compare(shell.navIndex, 0, "every start is on Home")
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
