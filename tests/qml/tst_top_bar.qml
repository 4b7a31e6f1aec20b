import QtQuick
import QtTest
import Kelvane

TestCase {
    id: testCase

    name: "TopBar"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 200

    Component {
        id: standInComponent

        StandInController {}
    }

    Component {
        id: themeComponent

        Theme {}
    }

    Component {
        id: typographyComponent

        Typography {}
    }

    Component {
        id: barComponent

        TopBar {
            width: 1600
            tabTitles: ["Home", "Setup", "Solve", "Results", "Settings"]
        }
    }

    function makeBar(properties) {
        const controller = createTemporaryObject(standInComponent, testCase)
        return createTemporaryObject(barComponent, testCase, Object.assign({
            controller: controller,
            theme: createTemporaryObject(themeComponent, testCase),
            type: createTemporaryObject(typographyComponent, testCase)
        }, properties || {}))
    }

    function run(bar, statusText) {
        bar.controller.running = true
        bar.controller.statusText = statusText
    }

    function test_wheelTotal_data() {
        return [
            {tag: "no target", target: 0, maxIterations: 400, total: 400},
            {tag: "negative target", target: -1, maxIterations: 400, total: 400},
            {tag: "target not a number", target: NaN, maxIterations: 400, total: 400},
            {tag: "target 1.0", target: 1.0, maxIterations: 400, total: 150},
            {tag: "target 3", target: 3, maxIterations: 400, total: 150},
            {tag: "target 1.0 with few iterations", target: 1.0, maxIterations: 100, total: 100},
            {tag: "target 0.5", target: 0.5, maxIterations: 400, total: 200},
            {tag: "target 0.99", target: 0.99, maxIterations: 400, total: 200},
            {tag: "target 0.1", target: 0.1, maxIterations: 400, total: 300},
            {tag: "target 0.49", target: 0.49, maxIterations: 1000, total: 300},
            {tag: "target 0.05", target: 0.05, maxIterations: 1000, total: 1000},
            {tag: "no iteration cap", target: 0, maxIterations: 0, total: 1}
        ]
    }

    function test_wheelTotal(data) {
        const bar = makeBar({targetExploitability: data.target, maxIterations: data.maxIterations})
        compare(bar.progressWheelTotalIterations, data.total)
    }

    function test_iterationFromTheStatus() {
        const bar = makeBar({maxIterations: 400, targetExploitability: 0.5})
        run(bar, "Iter 40 | exploitability≈1.25")
        compare(bar.currentIteration, 40)
        compare(bar.progressPercent, 20, "40 of a full scale of 200")
        run(bar, "Iter   150 | exploitability≈0.75")
        compare(bar.currentIteration, 150)
        compare(bar.progressPercent, 75)
        run(bar, "Iter 260 | exploitability≈0.51")
        compare(bar.progressPercent, 100, "past the full scale the wheel stays full")
    }

    function test_finalizingHoldsTheLastIteration() {
        const bar = makeBar({maxIterations: 400, targetExploitability: 0.5})
        run(bar, "Iter 90 | exploitability≈0.6")
        bar.controller.progress = 0.9
        bar.controller.statusText = "Finalizing: building result tree"
        verify(bar.isFinalizing)
        compare(bar.currentIteration, 90)
        compare(bar.progressPercent, 45)
        bar.controller.running = false
        verify(!bar.isFinalizing)
        compare(bar._lastIterFromStatusText, 0, "the held iteration ends with the run")
    }

    function test_finalizingWithoutAnIterationUsesProgress() {
        const bar = makeBar({maxIterations: 400, targetExploitability: 0})
        run(bar, "Finalizing: building result tree")
        bar.controller.progress = 0.5
        compare(bar.currentIteration, 200)
        compare(bar.progressPercent, 50)
    }

    function test_progressFallback() {
        const bar = makeBar({maxIterations: 400, targetExploitability: 0.5})
        run(bar, "Building game tree")
        bar.controller.progress = 0.25
        compare(bar.currentIteration, 100, "floor(0.25 * 400)")
        compare(bar.progressPercent, 50, "100 of 200")
        bar.maxIterations = 0
        compare(bar.currentIteration, 0, "floor(0.25 * max(1, 0))")
        compare(bar.progressPercent, 0)
    }

    function test_onlyARunShowsProgress() {
        const bar = makeBar({maxIterations: 400})
        bar.controller.statusText = "Iter 40 | exploitability≈1.25"
        compare(bar.currentIteration, 0)
        compare(bar.progressPercent, 0)
        verify(!findChild(bar, "statusPercent").visible)
    }

    function test_chipWhenSolvable() {
        const bar = makeBar({canSolve: true})
        const chip = findChild(bar, "statusChip")
        compare(findChild(bar, "statusLabel").text, "Ready")
        verify(Qt.colorEqual(chip.color, bar.theme.withOpacity(bar.theme.success, 0.15)))
        verify(Qt.colorEqual(chip.border.color, bar.theme.success))
        verify(Qt.colorEqual(findChild(bar, "statusLabel").color, bar.theme.success))
        verify(Qt.colorEqual(findChild(bar, "statusDot").color, bar.theme.success))
        compare(chip.height, 32)
        compare(chip.radius, 16)
    }

    function test_chipWhileSolving() {
        const bar = makeBar({maxIterations: 400, targetExploitability: 0.5})
        run(bar, "Iter 40 | exploitability≈1.25")
        const chip = findChild(bar, "statusChip")
        const percent = findChild(bar, "statusPercent")
        compare(findChild(bar, "statusLabel").text, "Solving")
        verify(Qt.colorEqual(chip.border.color, bar.theme.success))
        verify(percent.visible)
        compare(percent.text, "20%")
        compare(percent.font.weight, Font.Bold)
    }

    function test_dotPulsesOnlyDuringARun() {
        const bar = makeBar()
        const dot = findChild(bar, "statusDot")
        wait(600)
        compare(dot.opacity, 1.0)
        run(bar, "Iter 1 | exploitability≈9")
        tryVerify(() => dot.opacity < 0.6, 1000, "dims towards 0.4 within half a second")
        tryVerify(() => dot.opacity > 0.9, 1000, "and comes back")
        verify(dot.opacity >= 0.4)
        bar.controller.running = false
        tryCompare(dot, "opacity", 1.0, 1500)
    }

    function descendants(item) {
        let found = [item]
        for (let i = 0; i < item.children.length; ++i)
            found = found.concat(descendants(item.children[i]))
        return found
    }

    function test_noTitleIsShown() {
        const bar = makeBar({pageTitle: "Distinctive title", pageSubtitle: "Distinctive subtitle"})
        const texts = descendants(bar).filter(item => item.text !== undefined).map(item => String(item.text))
        verify(texts.indexOf("Distinctive title") < 0)
        verify(texts.indexOf("Distinctive subtitle") < 0)
        verify(texts.indexOf("Results") >= 0, "the tab labels are there")
    }

    function test_tabsCarryIconAndLabel() {
        const bar = makeBar()
        const icons = ["home", "clipboard", "bolt", "chart", "gear"]
        const labels = ["Home", "Setup", "Solve", "Results", "Settings"]
        for (let i = 0; i < icons.length; ++i) {
            const parts = descendants(findChild(bar, "tab" + i))
            const icon = parts.filter(item => item.iconOpacity !== undefined)
            compare(icon.length, 1)
            compare(icon[0].name, icons[i])
            compare(icon[0].size, 16)
            const label = parts.filter(item => item.text === labels[i])
            compare(label.length, 1)
            compare(label[0].font.pixelSize, 13)
        }
    }
}
