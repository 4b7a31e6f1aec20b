// Renders the real window on Home and on Setup, the Setup page at its top and scrolled to its end, in German and
// in Russian, the languages with the longest words, dark, and writes one PNG per state into the folder that
// KELVANE_SCREENSHOT_DIR names.
import QtQuick
import QtTest

TestCase {
    id: shooter

    name: "LanguagesShots"
    when: windowShown

    property var window: null
    readonly property var shell: window ? window.contentItem.children[0] : null
    readonly property int shotWidth: 1600
    readonly property int shotHeight: 1000
    readonly property int homeIndex: 0
    readonly property int setupIndex: 1
    readonly property var languages: ["de", "ru"]

    function setupFlickable() {
        return findChild(findChild(shell, "projectPage"), "projectFlickable")
    }

    function showHome() {
        shell.navIndex = homeIndex
    }

    function showSetupTop() {
        shell.navIndex = setupIndex
        setupFlickable().contentY = 0
    }

    function showSetupEnd() {
        const flickable = setupFlickable()
        flickable.contentY = Math.max(0, flickable.contentHeight - flickable.height)
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
        shell.theme.dark = true
    }

    function cleanupTestCase() {
        languageManager.setLanguage("system")
        window.destroy()
    }

    function test_shots() {
        for (const code of languages) {
            languageManager.setLanguage(code)
            compare(languageManager.currentLanguage, code)
            showHome()
            save("languages-" + code + "-01-home-dark")
            showSetupTop()
            save("languages-" + code + "-02-setup-dark")
            showSetupEnd()
            save("languages-" + code + "-03-setup-end-dark")
        }
    }
}
