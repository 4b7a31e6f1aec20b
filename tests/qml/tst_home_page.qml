import QtQuick
import QtTest
import QtQuick.Dialogs
import Qt.labs.settings
import Kelvane

TestCase {
    id: testCase

    name: "HomePage"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 1000

    // Project files of this test; the folder is the system's, the names are ours.
    readonly property string fileFolder: "file:///tmp/"
    readonly property string filePrefix: "orvanthis_home_test_"

    Theme {
        id: darkTheme
    }

    Typography {
        id: typeScale
    }

    // The runner's private store, written under the same keys the controller reads and writes.
    Settings {
        id: store
    }

    Component {
        id: pageComponent

        HomePage {
            width: 1600
            height: 940
            theme: darkTheme
            type: typeScale
        }
    }

    Component {
        id: shellComponent

        AppShell {
            width: 1600
            height: 1000
        }
    }

    // A controller whose figures the test sets, with the two notify signals the page listens to.
    Component {
        id: scriptedControllerComponent

        QtObject {
            property var grid: []
            property int today: 0
            property var stats: ({})

            signal solveStatsChanged()
            signal playVsSolutionStatsChanged()

            function solveActivityGridLastYear() {
                return grid
            }

            function solvesToday() {
                return today
            }

            function playVsSolutionStats() {
                return stats
            }
        }
    }

    Component {
        id: heroComponent

        HomeHero {
            width: 1200
            theme: darkTheme
            type: typeScale
        }
    }

    Component {
        id: signalSpyComponent

        SignalSpy {}
    }

    // Answers every open with a solved project, as a file saved after a solve would.
    Component {
        id: loadingControllerComponent

        QtObject {
            function loadProject(url) {
                return {ok: true, project: {boardText: "QsJh2h7c"}, hasResults: true, error: ""}
            }
        }
    }

    Component {
        id: emptyControllerComponent

        QtObject {}
    }

    function makePage(properties) {
        const page = createTemporaryObject(pageComponent, testCase, properties || {})
        verify(page !== null)
        return page
    }

    function makeShell() {
        const shell = createTemporaryObject(shellComponent, testCase, {controller: appController})
        verify(shell !== null)
        return shell
    }

    function fileUrl(name) {
        return fileFolder + filePrefix + name
    }

    function isoDate(date) {
        return Qt.formatDate(date, "yyyy-MM-dd")
    }

    function daysAgo(count) {
        const now = new Date()
        return isoDate(new Date(now.getFullYear(), now.getMonth(), now.getDate() - count))
    }

    // What a finished solve adds to its day.
    function recordSolve(isoDay, iterations, exploitability) {
        const prefix = "solveActivity/" + isoDay + "/"
        store.setValue(prefix + "solves", Number(store.value(prefix + "solves", 0)) + 1)
        store.setValue(prefix + "iterationsSum", Number(store.value(prefix + "iterationsSum", 0)) + Math.max(iterations, 0))
        store.setValue(prefix + "exploitabilitySum", Number(store.value(prefix + "exploitabilitySum", 0)) + exploitability)
    }

    function statValue(page, name) {
        return findChild(page, name).value
    }

    function cleanup() {
        appController.clearPlayVsSolutionStats()
    }

    // Play statistics.

    function test_playFigures_data() {
        return [
            {tag: "nothing played", stats: {}, hands: "0 / 0", accuracy: "— / —", evLoss: "— / —"},
            {tag: "none today, five in total", stats: {todayHands: 0, totalHands: 5, todayAccuracyPct: 0,
                totalAccuracyPct: 80, todayAvgEvLoss: 0, totalAvgEvLoss: 0.1234},
             hands: "0 / 5", accuracy: "— / 80", evLoss: "— / 0.123"},
            {tag: "both periods", stats: {todayHands: 3, totalHands: 10, todayAccuracyPct: 66.666,
                totalAccuracyPct: 79.5, todayAvgEvLoss: 0.5, totalAvgEvLoss: 0.25},
             hands: "3 / 10", accuracy: "67 / 80", evLoss: "0.500 / 0.250"},
            {tag: "figures not finite", stats: {todayHands: 2, totalHands: 2, todayAccuracyPct: NaN,
                totalAccuracyPct: Infinity, todayAvgEvLoss: NaN, totalAvgEvLoss: 0.01},
             hands: "2 / 2", accuracy: "— / —", evLoss: "— / 0.010"},
            {tag: "keys missing", stats: {totalHands: 4}, hands: "0 / 4", accuracy: "— / —", evLoss: "— / —"}
        ]
    }

    function test_playFigures(data) {
        const controller = createTemporaryObject(scriptedControllerComponent, testCase, {stats: data.stats})
        const page = makePage({controller: controller})
        compare(statValue(page, "handsStat"), data.hands)
        compare(statValue(page, "accuracyStat"), data.accuracy)
        compare(statValue(page, "evLossStat"), data.evLoss)
        compare(findChild(page, "accuracyStat").unit, "%")
        compare(findChild(page, "evLossStat").unit, "EV")
    }

    function test_realTotalsWithoutTodaysHands() {
        // Five hands on an earlier day, one of them a mistake: nothing today, 80 in total.
        store.setValue("playVsSolution/total/hands", 5)
        store.setValue("playVsSolution/total/mistakes", 1)
        store.setValue("playVsSolution/total/evLossSum", 0.5)
        const page = makePage()
        compare(statValue(page, "handsStat"), "0 / 5")
        compare(statValue(page, "accuracyStat"), "— / 80")
        compare(statValue(page, "evLossStat"), "— / 0.100")
    }

    function test_clearAsksFirst() {
        appController.recordPlayVsSolutionHand(false, 0.0)
        appController.recordPlayVsSolutionHand(false, 0.25)
        const page = makePage()
        compare(statValue(page, "handsStat"), "2 / 2")
        const dialog = findChild(page, "clearStatsDialog")
        compare(dialog.title, "Clear Play vs. Solution Stats")
        compare(dialog.text, "Clear all Play vs. Solution statistics (today + total)?")

        mouseClick(findChild(page, "clearStatsButton"))
        tryVerify(() => dialog.visible)
        dialog.reject()
        compare(appController.playVsSolutionStats().totalHands, 2, "Cancel keeps them")
        compare(statValue(page, "handsStat"), "2 / 2")

        mouseClick(findChild(page, "clearStatsButton"))
        tryVerify(() => dialog.visible)
        dialog.accept()
        compare(appController.playVsSolutionStats().totalHands, 0, "Ok clears them")
        compare(statValue(page, "handsStat"), "0 / 0")
        compare(statValue(page, "accuracyStat"), "— / —")
    }

    // Loading the data.

    function test_reloadsOnTheNotifySignals() {
        const controller = createTemporaryObject(scriptedControllerComponent, testCase)
        const page = makePage({controller: controller})
        compare(page.solveActivityGrid.length, 0)

        controller.grid = [{isPadding: false, date: "2026-03-02", isFuture: false, solves: 2, avgIterations: 300,
                            avgExploitability: 0.2}]
        controller.today = 2
        compare(page.solveActivityGrid.length, 0, "nothing is read before the signal")
        controller.solveStatsChanged()
        compare(page.solveActivityGrid.length, 1)
        compare(page.solveActivityGrid[0].solves, 2)
        compare(page.solvesToday, 2)

        controller.stats = {todayHands: 1, totalHands: 1, todayAccuracyPct: 100, totalAccuracyPct: 100}
        controller.playVsSolutionStatsChanged()
        compare(statValue(page, "handsStat"), "1 / 1")
        compare(statValue(page, "accuracyStat"), "100 / 100")
    }

    function test_realControllerSignalReloads() {
        const page = makePage()
        compare(statValue(page, "handsStat"), "0 / 0")
        appController.recordPlayVsSolutionHand(true, 0.0)
        compare(statValue(page, "handsStat"), "1 / 1")
        compare(statValue(page, "accuracyStat"), "0 / 0")
        compare(statValue(page, "evLossStat"), "0.000 / 0.000")
    }

    function test_dataFallToEmptyWithoutInvokables_data() {
        return [{tag: "no invokables", empty: true}, {tag: "no controller", empty: false}]
    }

    function test_dataFallToEmptyWithoutInvokables(data) {
        const controller = data.empty ? createTemporaryObject(emptyControllerComponent, testCase) : null
        const page = makePage({controller: controller})
        compare(page.solveActivityGrid, [])
        compare(page.solvesToday, 0)
        compare(statValue(page, "handsStat"), "0 / 0")
        compare(findChild(findChild(page, "system_threads"), "value").text, "—")
        compare(findChild(findChild(page, "system_memory"), "value").text, "—")
        compare(findChild(findChild(page, "system_engine"), "value").text, "Orvanthis Core")
    }

    function test_activityOfRealSolves() {
        // Other documents of the same run may have solved today, so today is counted from what was there.
        const solvedBefore = appController.solvesToday()
        recordSolve(daysAgo(0), 300, 0.5)
        recordSolve(daysAgo(2), 300, 0.5)
        recordSolve(daysAgo(2), 500, 0.25)
        recordSolve(daysAgo(9), 0, 1.0)
        const page = makePage()
        compare(page.solveActivityGrid.length, 364)
        compare(page.solvesToday, solvedBefore + 1)
        const days = page.solveActivityGrid
        const index = days.findIndex(day => day.date === daysAgo(2))
        verify(index >= 350, "two days ago is in one of the last two columns")
        compare(days[index].solves, 2)
        compare(days[index].avgIterations, 400)
        compare(days[index].avgExploitability, 0.375)
        const earlier = days.find(day => day.date === daysAgo(9))
        compare(earlier.solves, 1)
        compare(earlier.avgIterations, 0)

        const grid = findChild(page, "activityGrid")
        compare(grid.days, days)
        verify(Qt.colorEqual(findChild(grid, "dayCell" + index).color, darkTheme.accentMuted), "two solves")
        compare(grid._tooltipText(days[index]), daysAgo(2) + "\nSolves: 2\nAvg iters: 400\nAvg expl: 0.3750")
    }

    function test_tooltipOverThePage() {
        recordSolve(daysAgo(3), 250, 0.125)
        const page = makePage()
        const grid = findChild(page, "activityGrid")
        const index = grid.days.findIndex(day => day.date === daysAgo(3))
        const tip = findChild(grid, "activityTooltip")
        waitForRendering(page)
        mouseMove(findChild(grid, "cellArea"), grid._cellX(index) + grid.cellSize / 2,
                  grid._cellY(index) + grid.cellSize / 2)
        tryVerify(() => tip.visible, 2000, "resting on a day shows its figures")
        const lines = tip.text.split("\n")
        compare(lines.length, 4)
        compare(lines[0], daysAgo(3))
        verify(/^Solves: [1-9]\d*$/.test(lines[1]), lines[1])
    }

    // The system card.

    function test_systemFiguresOfTheMachine() {
        const page = makePage()
        compare(findChild(findChild(page, "system_threads"), "value").text,
                appController.systemThreadCount + " available")
        compare(findChild(findChild(page, "system_memory"), "value").text,
                appController.systemMemoryText + " (" + appController.systemAvailableMemoryText + " free)")
    }

    // The hero band and the ways into a project.

    function test_heroBand() {
        const page = makePage()
        const hero = findChild(page, "homeHero")
        compare(hero.height, 180)
        compare(findChild(page, "heroNewSolveButton").text, "New Solve")
        compare(findChild(page, "heroNewSolveButton").iconText, "+")
        compare(findChild(page, "heroSaveButton").iconName, "save")
        compare(findChild(page, "heroOpenButton").text, "Open File")
        compare(findChild(page, "heroOpenButton").iconName, "folder-open")
        tryVerify(() => findChild(page, "heroLogo").status === Image.Ready, 2000, "the logo loads")
    }

    function test_projectFileDialogs_data() {
        return [
            {tag: "save", dialog: "saveProjectDialog", title: "Save Project", mode: FileDialog.SaveFile},
            {tag: "open", dialog: "openProjectDialog", title: "Open Project", mode: FileDialog.OpenFile}
        ]
    }

    function test_projectFileDialogs(data) {
        const page = makePage()
        const dialog = findChild(page, data.dialog)
        compare(dialog.title, data.title)
        compare(dialog.nameFilters, ["Kelvane Project (*.kelvaneproj)", "JSON (*.json)", "All Files (*)"])
        compare(dialog.fileMode, data.mode)
    }

    // The band alone: on a page its buttons would open the system's file dialog.
    function test_heroButtonsAskForTheDialogs_data() {
        return [
            {tag: "save", button: "heroSaveButton", signal: "saveClicked"},
            {tag: "open", button: "heroOpenButton", signal: "openClicked"},
            {tag: "new", button: "heroNewSolveButton", signal: "newSolveClicked"}
        ]
    }

    function test_heroButtonsAskForTheDialogs(data) {
        const hero = createTemporaryObject(heroComponent, testCase)
        const spy = createTemporaryObject(signalSpyComponent, testCase, {target: hero, signalName: data.signal})
        waitForRendering(hero)
        mouseClick(findChild(hero, data.button))
        compare(spy.count, 1)
    }

    function test_signalsReachTheShell_data() {
        return [
            {tag: "hero New Solve", button: "heroNewSolveButton", board: ""},
            {tag: "New Solve", button: "quickAction_newProject", board: ""},
            {tag: "Quick Solve", button: "quickAction_quickSolve", board: "QsJh2h"},
            {tag: "Import Range", button: "quickAction_importRange", board: ""}
        ]
    }

    function test_signalsReachTheShell(data) {
        const shell = makeShell()
        compare(shell.navIndex, 0)
        compare(shell.hasProject, false)
        const home = findChild(shell, "homePage")
        waitForRendering(home)
        mouseClick(findChild(home, data.button))
        compare(shell.navIndex, 1)
        compare(shell.hasProject, true)
        compare(shell.boardText, data.board)
        compare(shell.startingPot, 180, "a project's settings, not the blank start")
    }

    function test_quickActionRows() {
        const page = makePage()
        const expected = [["newProject", "New Solve", "Configure board, ranges, tree", "target"],
                          ["quickSolve", "Quick Solve", "Use default settings", "bolt"],
                          ["importRange", "Import Range", "Load from file", "chart"]]
        for (const [key, title, description, icon] of expected) {
            const row = findChild(page, "quickAction_" + key)
            compare(row.height, 56)
            compare(row.title, title)
            compare(row.description, description)
            compare(row.iconName, icon)
        }
    }

    // Project files through the real controller.

    function test_saveAndOpenRoundTrip() {
        const shell = makeShell()
        const home = findChild(shell, "homePage")
        shell._onQuickSolve()
        shell.applyProjectState({boardText: "AsKd7c", startingPot: 250, oopTurnBetSizesText: "33, 75"})
        const url = fileUrl("round_trip.kelvaneproj")
        verify(home._saveTo(url))

        shell.resetToStartupBlank()
        shell.navIndex = 0
        compare(shell.boardText, "")
        compare(shell.hasProject, false)

        verify(home._openFrom(url))
        compare(shell.boardText, "AsKd7c")
        compare(shell.startingPot, 250)
        compare(shell.oopTurnBetSizesText, "33, 75")
        compare(shell.ipRangeText, shell.quickSolvePreset().ipRangeText)
        compare(shell.hasProject, true)
        compare(shell.navIndex, 1, "no results: the Setup page")
    }

    function test_openWithResultsShowsResults() {
        const shell = makeShell()
        const home = findChild(shell, "homePage")
        home.controller = createTemporaryObject(loadingControllerComponent, testCase)
        verify(home._openFrom(fileUrl("solved.kelvaneproj")))
        compare(shell.boardText, "QsJh2h7c")
        compare(shell.hasProject, true)
        compare(shell.navIndex, 3)
    }

    function test_failedOpenKeepsProjectAndPage_data() {
        return [
            {tag: "missing file", name: "missing.kelvaneproj", content: null, error: "Failed to open file"},
            {tag: "corrupt file", name: "corrupt.kelvaneproj", content: "{ not json", error: "Invalid JSON"},
            {tag: "foreign file", name: "foreign.json", content: "{\"format\": \"other\", \"version\": 1}",
             error: "Unrecognized project format"}
        ]
    }

    function test_failedOpenKeepsProjectAndPage(data) {
        const url = fileUrl(data.name)
        if (data.content !== null)
            verify(appController.saveTextFile(url, data.content).ok)
        const shell = makeShell()
        const home = findChild(shell, "homePage")
        shell._onQuickSolve()
        shell.applyProjectState({boardText: "9c8c2d"})
        shell.navIndex = 0
        const before = shell.exportProjectState()

        ignoreWarning("Load failed: " + data.error)
        verify(!home._openFrom(url))
        compare(shell.exportProjectState(), before)
        compare(shell.navIndex, 0)
        compare(shell.hasProject, true)
    }

    function test_failedSaveIsLogged() {
        const page = makePage({projectStateProvider: () => ({boardText: "AsKd7c"})})
        const url = "https://example.invalid/project.kelvaneproj"
        ignoreWarning("Save failed: " + url)
        verify(!page._saveTo(url))
    }

    function test_saveUsesTheProvidedState() {
        let asked = 0
        const page = makePage({projectStateProvider: () => {
            ++asked
            return {boardText: "Th9h8h", startingPot: 77}
        }})
        const url = fileUrl("provided.kelvaneproj")
        verify(page._saveTo(url))
        compare(asked, 1)
        const loaded = appController.loadProject(url)
        verify(loaded.ok)
        compare(loaded.project.boardText, "Th9h8h")
        compare(loaded.project.startingPot, 77)
    }
}
