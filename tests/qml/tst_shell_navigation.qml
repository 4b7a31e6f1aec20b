import QtQuick
import QtTest
import Kelvane

TestCase {
    id: testCase

    name: "ShellNavigation"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 1000

    Component {
        id: standInComponent

        StandInController {}
    }

    // A controller from before the solve map: it can only start a solve of its own settings.
    Component {
        id: legacyControllerComponent

        QtObject {
            property bool running: false
            property int resultIterations: 0
            property real solveRequiredMemoryBytes: 1000
            property real systemAvailableMemoryBytes: 2000
            property int startCount: 0

            function startSolve() {
                ++startCount
            }
        }
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

    // A filled spot with an estimate that fits: every tab may open.
    function makeSolvableShell() {
        const shell = makeShell()
        shell.controller.grantMemory()
        shell._onQuickSolve()
        verify(shell.canSolve)
        return shell
    }

    function topBar(shell) {
        return findChild(shell, "topBar")
    }

    function startRunOnSolve(shell) {
        shell.navIndex = 2
        shell.controller.running = true
        shell.controller.statusText = "Iter 12 | exploitability≈3.5"
    }

    function test_startUpWithTheRealController() {
        const shell = createTemporaryObject(shellComponent, testCase, {controller: appController})
        const bar = topBar(shell)
        compare(shell.hasProject, false)
        compare(shell.navIndex, 0)
        compare(shell.canSolve, false)
        compare(shell.threadCount, Math.max(1, appController.systemThreadCount))
        verify(bar.isTabEnabled(0))
        verify(!bar.isTabEnabled(1), "Setup")
        verify(!bar.isTabEnabled(2), "Solve")
        verify(!bar.isTabEnabled(3), "Results")
        verify(bar.isTabEnabled(4))
        compare(findChild(bar, "tab1").opacity, 0.45)
        compare(findChild(bar, "tab0").opacity, 1.0)

        const chip = findChild(bar, "statusChip")
        compare(findChild(bar, "statusLabel").text, "Ready")
        verify(Qt.colorEqual(chip.color, shell.theme.surface2))
        verify(Qt.colorEqual(chip.border.color, shell.theme.stroke))
        verify(Qt.colorEqual(findChild(bar, "statusLabel").color, shell.theme.textMuted))
        verify(Qt.colorEqual(findChild(bar, "statusDot").color, shell.theme.textFaint))
        verify(!findChild(bar, "statusPercent").visible)
    }

    function test_quickSolveWithTheRealControllerGetsAnEstimate() {
        const shell = createTemporaryObject(shellComponent, testCase, {controller: appController})
        shell._onQuickSolve()
        tryVerify(() => appController.solveRequiredMemoryBytes > 0, 20000, "the real estimate arrives")
        compare(shell.canSolve, appController.systemAvailableMemoryBytes > appController.solveRequiredMemoryBytes)
    }

    function test_openTabsNavigate() {
        const shell = makeShell()
        shell.navIndex = 4
        topBar(shell).navigate(0)
        compare(shell.navIndex, 0)
        topBar(shell).navigate(4)
        compare(shell.navIndex, 4)
    }

    function test_runOnSolveKeepsTheUserThere() {
        const shell = makeSolvableShell()
        shell.controller.resultIterations = 10
        startRunOnSolve(shell)
        for (const target of [0, 1, 3, 4]) {
            topBar(shell).navigate(target)
            compare(shell.navIndex, 2, "tab " + target)
        }
        topBar(shell).navigate(2)
        compare(shell.navIndex, 2)
        shell.controller.running = false
        topBar(shell).navigate(3)
        compare(shell.navIndex, 3, "free again after the run")
    }

    // A run started elsewhere does not trap the user on another page.
    function test_runElsewhereDoesNotLock() {
        const shell = makeSolvableShell()
        shell.navIndex = 4
        shell.controller.running = true
        topBar(shell).navigate(0)
        compare(shell.navIndex, 0)
    }

    function test_resultsNeedIterations() {
        const shell = makeSolvableShell()
        shell.navIndex = 0
        topBar(shell).navigate(3)
        compare(shell.navIndex, 0)
        shell.controller.resultIterations = 1
        topBar(shell).navigate(3)
        compare(shell.navIndex, 3)
    }

    function test_setupNeedsAProject() {
        const shell = makeShell()
        topBar(shell).navigate(1)
        compare(shell.navIndex, 0)
        shell.hasProject = true
        topBar(shell).navigate(1)
        compare(shell.navIndex, 1)
    }

    function test_solveNeedsASolvableSpot() {
        const shell = makeShell()
        shell._onQuickSolve()
        shell.navIndex = 0
        topBar(shell).navigate(2)
        compare(shell.navIndex, 0, "no estimate yet")
        shell.controller.grantMemory()
        topBar(shell).navigate(2)
        compare(shell.navIndex, 2)
    }

    function test_tabsOpenWithTheirRules() {
        const shell = makeShell()
        const bar = topBar(shell)
        shell.hasProject = true
        verify(bar.isTabEnabled(1))
        verify(!bar.isTabEnabled(2))
        shell._onQuickSolve()
        shell.controller.grantMemory()
        verify(bar.isTabEnabled(2))
        verify(!bar.isTabEnabled(3))
        shell.controller.resultIterations = 3
        verify(bar.isTabEnabled(3))
        startRunOnSolve(shell)
        verify(bar.lockOnSolve)
        for (const index of [0, 1, 3, 4])
            verify(!bar.isTabEnabled(index), "locked tab " + index)
        verify(bar.isTabEnabled(2))
    }

    function test_clickingTabs() {
        const shell = makeShell()
        const bar = topBar(shell)
        const settingsTab = findChild(bar, "tab4")
        mouseClick(settingsTab)
        compare(shell.navIndex, 4)
        mouseClick(findChild(bar, "tab1"))
        compare(shell.navIndex, 4, "a closed tab does nothing")
        mouseClick(findChild(bar, "tab0"))
        compare(shell.navIndex, 0)
    }

    function test_closedTabsExplainThemselves() {
        const shell = makeShell()
        const bar = topBar(shell)
        const expected = {
            1: "Start a new project (or load one) from Home to enable Project",
            2: "Fill board, ranges, and sizings to enable Solve",
            3: "Run a solve to enable Results"
        }
        for (const index in expected) {
            const tab = findChild(bar, "tab" + index)
            const tip = findChild(tab, "tabToolTip")
            compare(tip.text, expected[index])
            mouseMove(tab)
            tryVerify(() => tip.visible, 2000, "tooltip of tab " + index)
            mouseMove(findChild(bar, "tab0"))
            tryVerify(() => !tip.visible, 2000)
        }
        shell.hasProject = true
        const setupTab = findChild(bar, "tab1")
        mouseMove(setupTab)
        wait(shell.theme.durationNormal + 100)
        verify(!findChild(setupTab, "tabToolTip").visible, "an open tab shows no tooltip")
    }

    function test_dividerBeforeSettings() {
        const shell = makeShell()
        const bar = topBar(shell)
        const divider = findChild(bar, "tabDivider")
        verify(divider.visible)
        compare(divider.height, 22)
        compare(divider.width, 1)
        const settingsTab = findChild(bar, "tab4")
        const dividerRight = divider.mapToItem(bar, divider.width, 0).x
        compare(settingsTab.mapToItem(bar, 0, 0).x - dividerRight, 14)
        compare(settingsTab.height, 40)
        compare(bar.height, 60)
    }

    function test_ctrlShortcuts() {
        const shell = makeShell()
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        compare(shell.navIndex, 4)
        keyClick(Qt.Key_1, Qt.ControlModifier)
        compare(shell.navIndex, 0)
        keyClick(Qt.Key_2, Qt.ControlModifier)
        compare(shell.navIndex, 0, "no project yet")
        keyClick(Qt.Key_3, Qt.ControlModifier)
        compare(shell.navIndex, 0, "nothing to solve")
        keyClick(Qt.Key_4, Qt.ControlModifier)
        compare(shell.navIndex, 0, "no results")

        shell._onQuickSolve()
        shell.controller.grantMemory()
        shell.controller.resultIterations = 5
        shell.navIndex = 0
        keyClick(Qt.Key_2, Qt.ControlModifier)
        compare(shell.navIndex, 1)
        keyClick(Qt.Key_3, Qt.ControlModifier)
        compare(shell.navIndex, 2)
        keyClick(Qt.Key_4, Qt.ControlModifier)
        compare(shell.navIndex, 3)
    }

    function test_shortcutsDoNothingDuringARunOnSolve() {
        const shell = makeSolvableShell()
        shell.controller.resultIterations = 5
        startRunOnSolve(shell)
        for (const key of [Qt.Key_1, Qt.Key_2, Qt.Key_4, Qt.Key_Comma]) {
            keyClick(key, Qt.ControlModifier)
            compare(shell.navIndex, 2)
        }
        keyClick(Qt.Key_F5)
        compare(shell.controller.startedConfigs.length, 0, "F5 does not start a second run")
    }

    function test_f5StartsASolveWithTheSolveMap() {
        const shell = makeSolvableShell()
        shell.navIndex = 0
        keyClick(Qt.Key_F5)
        compare(shell.navIndex, 2)
        const started = shell.controller.startedConfigs
        compare(started.length, 1)
        compare(Object.keys(started[0]).length, 36)
        compare(started[0], shell._solveMemCfg())
    }

    function test_f5NeedsASolvableSpot() {
        const shell = makeShell()
        shell._onQuickSolve()
        keyClick(Qt.Key_F5)
        compare(shell.navIndex, 1)
        compare(shell.controller.startedConfigs.length, 0)
    }

    function test_f5FallsBackToAPlainStart() {
        const controller = createTemporaryObject(legacyControllerComponent, testCase)
        const shell = createTemporaryObject(shellComponent, testCase, {controller: controller})
        shell._onQuickSolve()
        verify(shell.canSolve)
        keyClick(Qt.Key_F5)
        compare(controller.startCount, 1)
        compare(shell.navIndex, 2)
    }

    function test_escapeWithoutARunDoesNothing() {
        const shell = makeShell()
        shell.navIndex = 4
        keyClick(Qt.Key_Escape)
        compare(shell.controller.cancelCount, 0)
        compare(shell.navIndex, 4)
        verify(testCase.Window.window.visible, "the window stays open")
    }

    function test_escapeCancelsARun() {
        const shell = makeSolvableShell()
        startRunOnSolve(shell)
        keyClick(Qt.Key_Escape)
        compare(shell.controller.cancelCount, 1)
    }

    // The run is still going while the result is built, so nothing unlocks early.
    function test_finalizingKeepsTheTabsLocked() {
        const shell = makeSolvableShell()
        shell.controller.resultIterations = 7
        startRunOnSolve(shell)
        shell.controller.statusText = "Finalizing: building result tree"
        const bar = topBar(shell)
        verify(bar.isFinalizing)
        compare(findChild(bar, "statusLabel").text, "Finalizing")
        for (const index of [0, 1, 3, 4]) {
            verify(!bar.isTabEnabled(index))
            bar.navigate(index)
            compare(shell.navIndex, 2)
        }
        keyClick(Qt.Key_1, Qt.ControlModifier)
        compare(shell.navIndex, 2)
    }

    function test_titles() {
        const shell = makeShell()
        const bar = topBar(shell)
        compare(bar.pageTitle, "Home")
        shell.navIndex = 4
        compare(bar.pageTitle, "Settings")
        compare(bar.pageSubtitle, "")
        startRunOnSolve(shell)
        compare(bar.pageTitle, "Solve")
        compare(bar.pageSubtitle, "Iter 12 | exploitability≈3.5")
    }
}
