// Renders the real window on the Settings page, in both themes, with the theme's own accent and a chosen one,
// with the language list open and with a swatch's tooltip, and writes one PNG per state into the folder that
// KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest

TestCase {
    id: shooter

    name: "SettingsPageShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int settingsIndex: 4

    readonly property var shots: [
        {file: "settings-01-dark", step: () => {}},
        {file: "settings-02-light", step: () => toggleDarkMode()},
        {file: "settings-03-light-custom-accent", step: () => chooseSwatch("Orange")},
        {file: "settings-04-dark-custom-accent", step: () => {
            toggleDarkMode()
            chooseSwatch("Purple")
        }},
        {file: "settings-05-swatch-tooltip-dark", step: () => hoverSwatch("Gold")},
        {file: "settings-06-language-open-dark", step: () => {
            resetAccent()
            openLanguageList()
        }},
        {file: "settings-07-language-open-light", step: () => {
            closeLanguageList()
            toggleDarkMode()
            openLanguageList()
        }}
    ]

    function page() {
        return findChild(shell, "settingsPage")
    }

    function toggleDarkMode() {
        const dark = shell.theme.dark
        mouseClick(findChild(page(), "darkModeSwitch"))
        compare(shell.theme.dark, !dark, "the switch changes the mode")
        // Lets the thumb finish its slide.
        wait(2 * shell.theme.durationFast)
    }

    function chooseSwatch(name) {
        mouseClick(findChild(page(), "accentSwatch_" + name))
        compare(shell.theme.useAccentOverride, true, name + " is the accent")
        mouseMove(page(), 5, 5)
    }

    function resetAccent() {
        mouseClick(findChild(page(), "accentResetButton"))
        compare(shell.theme.useAccentOverride, false, "the theme's own accent is back")
    }

    function hoverSwatch(name) {
        const swatch = findChild(page(), "accentSwatch_" + name)
        mouseMove(swatch, swatch.width / 2, swatch.height / 2)
        const tip = findChild(swatch, "swatchToolTip")
        tryVerify(() => tip.opened, 2000, "the tooltip shows")
        wait(400)
    }

    function openLanguageList() {
        const box = findChild(page(), "languageBox")
        mouseClick(box)
        tryVerify(() => box.popup.opened, 2000, "the list opens")
        tryVerify(() => findChild(box.popup.contentItem, "languageOption_ru") !== null, 2000, "every row is made")
        const hovered = findChild(box.popup.contentItem, "languageOption_fr")
        mouseMove(hovered, hovered.width / 2, hovered.height / 2)
        tryVerify(() => box.highlightedIndex === hovered.index, 2000, "the hovered row is highlighted")
        wait(300)
    }

    function closeLanguageList() {
        const box = findChild(page(), "languageBox")
        box.popup.close()
        tryVerify(() => !box.popup.visible, 2000, "the list closes")
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
        compare(shell.theme.dark, true, "the private store starts dark")
        shell.navIndex = settingsIndex
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
