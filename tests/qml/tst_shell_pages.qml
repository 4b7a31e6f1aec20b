import QtQuick
import QtTest
import Kelvane

TestCase {
    id: testCase

    name: "ShellPages"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true

    Component {
        id: standInComponent

        StandInController {}
    }

    Component {
        id: shellComponent

        AppShell {
            width: 1600
            height: 1000
        }
    }

    function makeShell(controllerProperties) {
        const controller = createTemporaryObject(standInComponent, testCase, controllerProperties || {})
        return createTemporaryObject(shellComponent, testCase, {controller: controller})
    }

    function page(shell, name) {
        return findChild(shell, name)
    }

    function test_theFivePagesInOrder() {
        const shell = makeShell()
        const names = ["homePage", "projectPage", "solvePage", "resultsPage", "settingsPage"]
        for (let i = 0; i < names.length; ++i) {
            shell.navIndex = i
            const current = page(shell, names[i])
            verify(current.visible, names[i] + " shows at index " + i)
            for (const other of names) {
                if (other !== names[i])
                    verify(!page(shell, other).visible, other + " hidden at index " + i)
            }
            compare(current.theme, shell.theme)
            compare(current.type, shell.type)
        }
    }

    function test_setupPageFollowsTheShellAndWritesBack() {
        const shell = makeShell()
        const setup = page(shell, "projectPage")
        shell.resetToDefaults()
        compare(setup.boardText, "QsJh2h")
        compare(setup.startingPot, 180)
        compare(setup.threadCount, undefined, "the Setup page has no thread count")
        setup.boardText = "AhKd2c"
        compare(shell.boardText, "AhKd2c")
        setup.oopRiverDontDonk = true
        compare(shell.oopRiverDontDonk, true)
        setup.ipAddAllInIfJamLtPct = 42.5
        compare(shell.ipAddAllInIfJamLtPct, 42.5)
        setup.maxIterations = 250
        compare(shell.maxIterations, 250)
    }

    function test_setupPageWritesBackEveryKeyButThreads() {
        const shell = makeShell()
        const setup = page(shell, "projectPage")
        const state = shell.exportProjectState()
        for (const key in state) {
            if (key === "threadCount")
                continue
            let value
            if (typeof state[key] === "boolean")
                value = !state[key]
            else if (typeof state[key] === "number")
                value = state[key] + 7
            else
                value = state[key] + "7c"
            setup[key] = value
            compare(shell[key], value, key)
        }
    }

    function test_solvePageWritesBackOnlyThreads() {
        const shell = makeShell({systemThreadCount: 8})
        const solve = page(shell, "solvePage")
        shell.resetToDefaults()
        compare(solve.boardText, "QsJh2h")
        compare(solve.threadCount, 8)
        shell.threadCount = 5
        compare(solve.threadCount, 5, "the thread count is bound from the start")
        solve.threadCount = 3
        compare(shell.threadCount, 3)
        solve.boardText = "2c3c4c"
        compare(shell.boardText, "QsJh2h", "the Solve page does not write the board")
        solve.startingPot = 5
        compare(shell.startingPot, 180)
    }

    function test_resultsAndSettingsPages() {
        const shell = makeShell()
        const results = page(shell, "resultsPage")
        const settings = page(shell, "settingsPage")
        shell.resetToDefaults()
        compare(results.controller, shell.controller)
        compare(results.boardText, "QsJh2h")
        compare(results.rakePercent, 5.0)
        compare(results.rakeCap, 30)
        compare(page(shell, "solvePage").controller, shell.controller)
        compare(settings.darkMode, true)
        settings.darkMode = false
        compare(shell.theme.dark, false, "the Settings page writes the mode back")
        shell.theme.dark = true
        compare(settings.darkMode, true)
    }

    function test_homePageGetsTheStateProvider() {
        const shell = makeShell()
        shell.resetToDefaults()
        const provided = page(shell, "homePage").projectStateProvider()
        compare(Object.keys(provided).length, 37)
        compare(provided.boardText, "QsJh2h")
    }

    // Assigning to a bound page property breaks the binding; a sync makes it live again.
    function test_syncRestoresBrokenBindings() {
        const shell = makeShell()
        const solve = page(shell, "solvePage")
        const setup = page(shell, "projectPage")
        solve.boardText = "stale"
        shell.boardText = "AhKsQd"
        compare(solve.boardText, "stale", "the binding is broken")
        setup.startingPot = 50
        compare(shell.startingPot, 50)
        shell.startingPot = 70
        compare(setup.startingPot, 50, "the binding is broken")

        shell.syncPagesFromRoot()
        compare(solve.boardText, "AhKsQd")
        compare(setup.startingPot, 70)
        shell.boardText = "2c3d4h"
        compare(solve.boardText, "2c3d4h", "a live binding, not a copy")
        shell.startingPot = 90
        compare(setup.startingPot, 90)
    }

    function test_syncLeavesTheSolvePageThreads() {
        const shell = makeShell()
        const solve = page(shell, "solvePage")
        solve.threadCount = 3
        compare(shell.threadCount, 3)
        shell.threadCount = 5
        compare(solve.threadCount, 3)
        shell.syncPagesFromRoot()
        compare(solve.threadCount, 3)
    }

    function test_newProjectRebindsTheSolvePage() {
        const shell = makeShell()
        const solve = page(shell, "solvePage")
        solve.boardText = "stale"
        page(shell, "homePage").newProject()
        compare(solve.boardText, "")
        page(shell, "projectPage").boardText = "Td9d8d"
        compare(solve.boardText, "Td9d8d", "a board set on Setup reaches the Solve page")
    }

    function test_resets() {
        const shell = makeShell({systemThreadCount: 8, developerMode: false})
        const controller = shell.controller
        const clearsAtStart = controller.clearCount

        shell.resetToDefaults()
        compare(shell.hasProject, true)
        compare(shell.exportProjectState(), shell.customerQuickSolvePreset)
        compare(controller.clearCount, clearsAtStart + 1)

        shell.resetToNewProject()
        compare(shell.hasProject, true)
        compare(shell.exportProjectState(), shell.newProjectPreset)
        compare(controller.clearCount, clearsAtStart + 2)

        shell.resetToStartupBlank()
        compare(shell.hasProject, false)
        compare(shell.exportProjectState(), shell.startupBlankPreset)
        compare(controller.clearCount, clearsAtStart + 3)
    }

    function test_newProjectSignal() {
        const shell = makeShell()
        page(shell, "homePage").newProject()
        compare(shell.hasProject, true)
        compare(shell.navIndex, 1)
        compare(shell.exportProjectState(), shell.newProjectPreset)
    }

    function test_quickSolveFillsSetupWithoutSolving() {
        const shell = makeShell({developerMode: false})
        shell.controller.grantMemory()
        page(shell, "homePage").quickSolve()
        compare(shell.hasProject, true)
        compare(shell.navIndex, 1)
        compare(shell.exportProjectState(), shell.customerQuickSolvePreset)
        verify(shell.canSolve)
        compare(shell.controller.startedConfigs.length, 0)
    }

    function test_importRangeStartsAProjectOnlyWhenNoneExists() {
        const shell = makeShell()
        const home = page(shell, "homePage")
        home.importRange()
        compare(shell.hasProject, true)
        compare(shell.navIndex, 1)
        compare(shell.exportProjectState(), shell.newProjectPreset)

        shell.boardText = "AhKd2c"
        shell.navIndex = 0
        const clears = shell.controller.clearCount
        home.importRange()
        compare(shell.navIndex, 1)
        compare(shell.boardText, "AhKd2c", "an open project is kept")
        compare(shell.controller.clearCount, clears)
    }

    function test_projectLoaded() {
        const shell = makeShell()
        const home = page(shell, "homePage")
        const clears = shell.controller.clearCount
        home.projectLoaded({boardText: "AhKd2c", startingPot: 77, notAKey: 1}, false)
        compare(shell.hasProject, true)
        compare(shell.navIndex, 1)
        compare(shell.boardText, "AhKd2c")
        compare(shell.startingPot, 77)
        compare(shell.controller.clearCount, clears, "loading keeps the loaded results")

        shell.navIndex = 0
        home.projectLoaded({boardText: "2c3c4c"}, true)
        compare(shell.navIndex, 3)
        compare(shell.boardText, "2c3c4c")
    }
}
