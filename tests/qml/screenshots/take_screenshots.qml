// Renders the real window, with the real controller, in a row of states and writes one PNG per state into
// the folder that KELVANE_SCREENSHOT_DIR names. A new state is one more entry in `shots`: a file name and a
// step that brings the window there (it may wait). Run by scripts/screenshots.sh.
import QtQuick
import QtQuick.Controls
import QtTest

TestCase {
    id: shooter

    name: "Screenshots"
    when: windowShown

    property var window: null
    property string savedOopRange: ""
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    // The width the window opens with, and one where the Setup page has to scroll sideways.
    readonly property int defaultWindowWidth: 1540
    readonly property int narrowWindowWidth: 1200
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
        {file: "11-river-solved-home-dark", step: () => navigate(0)},
        {file: "12-quick-solve-setup-card-picker-dark", step: () => {
            homePage().quickSolve()
            openCardPicker(3)
        }}
    ].concat(setupPassShots(13, "dark"), [
        {file: "17-quick-solve-setup-card-picker-light", step: () => {
            shell.theme.dark = false
            openCardPicker(3)
        }}
    ], setupPassShots(18, "light"), [
        {file: "22-quick-solve-setup-width-1540-dark", step: () => {
            shell.theme.dark = true
            resizeWindow(defaultWindowWidth)
            verify(setupPage().recommendedWindowWidth <= defaultWindowWidth, "the Setup page fits the window")
            compare(findChild(setupPage(), "horizontalScrollBar").policy, ScrollBar.AlwaysOff)
        }},
        {file: "23-quick-solve-setup-width-1200-dark", step: () => {
            resizeWindow(narrowWindowWidth)
            compare(findChild(setupPage(), "horizontalScrollBar").policy, ScrollBar.AlwaysOn)
        }},
        {file: "24-quick-solve-setup-width-1200-scrolled-right-dark", step: () => {
            const flick = setupFlickable()
            flick.contentX = flick.contentWidth - flick.width
        }},
        {file: "25-quick-solve-setup-dark", step: () => {
            setupFlickable().contentX = 0
            resizeWindow(shotWidth)
        }}
    ])
    // OOP hands painted at half weight for the matrix shots, one stroke per list.
    readonly property var halfPaintedStrokes: [["AA", "AKs", "AQs", "AJs", "ATs"], ["KK", "KQs", "KJs"], ["QQ"],
                                               ["AKo"], ["KQo"]]
    readonly property int halfWeightPct: 50
    readonly property var profileNames: ["Deep 910, 5% rake", "Short 40 pot"]

    function homePage() {
        return findChild(shell, "homePage")
    }

    function setupPage() {
        return findChild(shell, "projectPage")
    }

    function setupFlickable() {
        return findChild(setupPage(), "projectFlickable")
    }

    function pad(number) {
        return number < 10 ? "0" + number : String(number)
    }

    // The Setup page after Quick Solve, with the card picker already shown: a painted matrix, the save dialog
    // with a name typed and the load dialog with two profiles. Each step closes what the one before opened.
    function setupPassShots(first, themeName) {
        return [
            {file: pad(first) + "-quick-solve-setup-half-painted-" + themeName, step: () => {
                closeDialog("cardPickerDialog")
                paintHalfWeightHands()
            }},
            {file: pad(first + 1) + "-quick-solve-setup-save-profile-" + themeName, step: () => {
                restoreOopRange()
                openSaveDialog(profileNames[0])
            }},
            {file: pad(first + 2) + "-quick-solve-setup-load-profile-" + themeName, step: () => {
                finishSaveDialog(themeName === "dark")
                if (setupPage().settingsProfiles.length < 2) {
                    openSaveDialog(profileNames[1])
                    finishSaveDialog(true)
                }
                openLoadDialog()
            }},
            {file: pad(first + 3) + "-quick-solve-setup-" + themeName, step: () => {
                closeDialog("loadProfileDialog")
            }}
        ]
    }

    function setupDialog(name) {
        return findChild(setupPage(), name)
    }

    function closeDialog(name) {
        const dialog = setupDialog(name)
        dialog.close()
        tryVerify(() => !dialog.visible, 2000, name + " closes")
    }

    function openCardPicker(index) {
        compare(shell.navIndex, 1, "the Setup page shows")
        mouseClick(findChild(setupPage(), "slot" + index))
        const picker = setupDialog("cardPickerDialog")
        tryVerify(() => picker.opened, 2000, "the card picker opens")
    }

    // Paints as a user does, one stroke per row, after scrolling the matrices into view.
    function paintHalfWeightHands() {
        const page = setupPage()
        const flick = setupFlickable()
        const panel = findChild(page, "oopRangePanel")
        flick.contentY = flick.contentHeight - flick.height
        // Through the page: after its own edits it no longer follows the shell's range.
        shooter.savedOopRange = page.oopRangeText
        page.oopRangeText = ""
        page.oopClickWeightPct = halfWeightPct
        waitForRendering(window.contentItem)
        for (const stroke of halfPaintedStrokes)
            paintStroke(panel.matrix, stroke)
        // Off the matrix, so that no cell shows the hover frame.
        mouseMove(panel, 1, 1)
        verify(shell.oopRangeText.indexOf(":0.5") > 0, "painted at half weight: " + shell.oopRangeText)
    }

    function paintStroke(matrix, hands) {
        const centres = hands.map(hand => {
            const cell = findChild(matrix, "cell_" + hand)
            return {x: cell.x + cell.width / 2, y: cell.y + cell.height / 2}
        })
        mousePress(matrix, centres[0].x, centres[0].y)
        for (const centre of centres.slice(1))
            mouseMove(matrix, centre.x, centre.y, -1, Qt.LeftButton)
        mouseRelease(matrix, centres[centres.length - 1].x, centres[centres.length - 1].y)
    }

    function restoreOopRange() {
        setupPage().oopRangeText = shooter.savedOopRange
        setupPage().oopClickWeightPct = 100
        setupFlickable().contentY = 0
    }

    function openSaveDialog(name) {
        mouseClick(findChild(setupPage(), "saveSettingsButton"))
        const dialog = setupDialog("saveProfileDialog")
        tryVerify(() => dialog.opened, 2000, "the save dialog opens")
        // Key events go to the test's own window, not to this one, so the name is put into the field.
        findChild(dialog.contentItem, "profileNameField").text = name
    }

    function finishSaveDialog(save) {
        const dialog = setupDialog("saveProfileDialog")
        mouseClick(findChild(dialog.footer, save ? "saveProfileButton" : "cancelSaveButton"))
        tryVerify(() => !dialog.visible, 2000, "the save dialog closes")
    }

    function openLoadDialog() {
        mouseClick(findChild(setupPage(), "loadSettingsButton"))
        const dialog = setupDialog("loadProfileDialog")
        tryVerify(() => dialog.opened, 2000, "the load dialog opens")
        let row = null
        tryVerify(() => {
            row = findChild(dialog.contentItem, "profileRow_0")
            return row !== null && row.width > 0
        }, 2000, "the first profile is listed")
        mouseClick(row)
    }

    function resizeWindow(width) {
        window.width = width
        tryCompare(window, "width", width)
        waitForRendering(window.contentItem)
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
