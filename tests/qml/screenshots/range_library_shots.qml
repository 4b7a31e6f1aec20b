// Renders the range library in the real window on the Setup page, scrolled to the range cards: each category
// (Standard opened two folders down with a leaf chosen, Population, Custom with saved ranges and a folder), the
// import dialog with an error and the save dialog, in dark and light. One PNG per state goes into the folder
// that KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest
import Qt.labs.settings

TestCase {
    id: shooter

    name: "RangeLibraryShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property var page: shell ? findChild(shell, "projectPage") : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int settleMs: 300
    readonly property string helloFile: "/tmp/kelvane_range_library_shots_hello.txt"

    readonly property var shots: [
        {file: "standard", step: () => openStandardLeaf()},
        {file: "population", step: () => openPopulation()},
        {file: "custom", step: () => openCustom()},
        {file: "import-error", step: () => openImportWithError()},
        {file: "save-dialog", step: () => openSaveDialog()}
    ]

    Settings {
        id: rangeStore
        category: "ranges"
    }

    function libraryOf(player) {
        return findChild(page, player + "RangeLibrary")
    }

    function rowNamed(player, name) {
        const rows = page.listModelFor(player)
        const index = rows.findIndex(row => row.name === name)
        verify(index >= 0, "a row " + name)
        return rows[index]
    }

    function clickRow(player, name) {
        const row = rowNamed(player, name)
        const list = findChild(libraryOf(player), "rangeList")
        const index = page.listModelFor(player).findIndex(entry => entry.id === row.id)
        list.positionViewAtIndex(index, 0)
        let item = null
        tryVerify(() => (item = findChild(list, "rangeRow_" + index)) !== null, 2000, "row " + name + " shows")
        mouseClick(item)
    }

    function closeDialogs() {
        for (const name of ["importRangeDialog", "saveRangeDialog"]) {
            const dialog = findChild(page, name)
            dialog.close()
            tryVerify(() => !dialog.visible, 2000, name + " closes")
        }
    }

    function openStandardLeaf() {
        mouseClick(findChild(libraryOf("oop"), "categoryButton_0"))
        clickRow("oop", "6-max")
        clickRow("oop", "No rake")
        clickRow("oop", "RFI")
        clickRow("oop", "CO")
        mouseClick(findChild(libraryOf("ip"), "categoryButton_0"))
        clickRow("ip", "Heads up")
    }

    function openPopulation() {
        mouseClick(findChild(libraryOf("oop"), "categoryButton_1"))
        clickRow("oop", "Passive (VPIP 18–65)")
        clickRow("oop", "Passive tight (VPIP 18–25)")
        mouseClick(findChild(libraryOf("ip"), "categoryButton_1"))
    }

    function openCustom() {
        shell.oopRangeText = "AA, KK, QQ, AKs, AKo:0.5"
        verify(page.commitAddFolder("oop", "Blind defence vs late position opens"))
        verify(page.commitSaveRange("oop", "BB vs BTN flat", shell.oopRangeText))
        verify(page.commitSaveRange("oop", "BB vs CO flat", "99-22, ATs+, KQo"))
        page.oopSelectedId = ""
        verify(page.commitSaveRange("oop", "Tight open", "TT+, AQs+"))
        mouseClick(findChild(libraryOf("ip"), "categoryButton_2"))
        hoverRow("oop", "Blind defence vs late position opens")
    }

    // Rests the pointer on a row whose name is cut short, so that its tooltip shows the whole name.
    function hoverRow(player, name) {
        const index = page.listModelFor(player).findIndex(row => row.name === name)
        const item = findChild(findChild(libraryOf(player), "rangeList"), "rangeRow_" + index)
        verify(findChild(item, "name").truncated, "the name is cut short")
        mouseMove(item, item.width / 2, item.height / 2)
        const tip = findChild(item, "nameToolTip")
        tryVerify(() => tip.opened, 3000, "the tooltip shows")
    }

    function openImportWithError() {
        mouseMove(page, 5, 5)
        verify(appController.saveTextFile("file://" + helloFile, "hello").ok)
        page.openImportRangeDialog("oop")
        const fileDialog = findChild(page, "importFileDialog")
        fileDialog.close()
        findChild(page, "rangeDialogs")._importFrom("file://" + helloFile)
        const dialog = findChild(page, "importRangeDialog")
        tryVerify(() => dialog.opened, 2000, "the import dialog opens")
    }

    function openSaveDialog() {
        closeDialogs()
        page.openSaveRangeDialog("oop")
        const dialog = findChild(page, "saveRangeDialog")
        tryVerify(() => dialog.opened, 2000, "the save dialog opens")
        mouseClick(findChild(dialog.footer, "confirmButton"))
        tryVerify(() => findChild(dialog.contentItem, "errorText").visible, 2000, "the empty name is refused")
    }

    // Brings the two range cards into view.
    function scrollToRanges() {
        const flick = findChild(page, "projectFlickable")
        const card = findChild(page, "oopRangePanel")
        const top = card.mapToItem(flick.contentItem, 0, 0).y
        flick.contentY = Math.max(0, Math.min(top - 16, flick.contentHeight - flick.height))
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
        for (const key of ["oopCustomRangesJson", "ipCustomRangesJson"])
            rangeStore.setValue(key, "")
        rangeStore.sync()
        const component = Qt.createComponent("qrc:/Kelvane/Main.qml")
        compare(component.status, Component.Ready, component.errorString())
        window = component.createObject(null, {width: shotWidth, height: shotHeight})
        verify(shell !== null)
        findChild(shell, "homePage").newProject()
        compare(shell.navIndex, 1, "the new project opens on Setup")
        waitForRendering(window.contentItem)
    }

    function cleanupTestCase() {
        window.destroy()
    }

    function test_shots() {
        let number = 1
        for (const dark of [true, false]) {
            shell.theme.dark = dark
            for (const key of ["oopCustomRangesJson", "ipCustomRangesJson"])
                rangeStore.setValue(key, "")
            page.oopCustomRanges = []
            page.ipCustomRanges = []
            for (const shot of shots) {
                scrollToRanges()
                shot.step()
                const name = "library-" + String(number).padStart(2, "0") + "-" + shot.file + (dark ? "-dark"
                                                                                                   : "-light")
                save(name)
                ++number
            }
            closeDialogs()
        }
    }
}
