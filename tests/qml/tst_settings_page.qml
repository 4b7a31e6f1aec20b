import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

TestCase {
    id: testCase

    name: "SettingsPage"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 1000

    readonly property int settingsIndex: 4
    readonly property string purple: "#A371F7"
    readonly property var languageCodes: ["system", "en", "es", "fr", "de", "pt_BR", "it", "pl", "ru"]
    readonly property var languageNames: ["System default", "English", "Español", "Français", "Deutsch",
        "Português (Brasil)", "Italiano", "Polski", "Русский"]
    readonly property var swatchColors: [["Green", "#3FB950"], ["Blue", "#58A6FF"], ["Purple", "#A371F7"],
        ["Gold", "#F0B429"], ["Orange", "#F0883E"], ["Red", "#F85149"]]

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

    Component {
        id: pageComponent

        SettingsPage {
            width: 1200
            height: 1000
            theme: Theme {}
            type: Typography {}
        }
    }

    // Counts the calls of the two licence invokables and says whether oneTBB is in use.
    Component {
        id: licenceControllerComponent

        QtObject {
            property bool useTbb: false
            property int folderOpens: 0
            property int noticeOpens: 0

            function openLicensesFolder() {
                ++folderOpens
            }

            function openThirdPartyNotices() {
                ++noticeOpens
            }
        }
    }

    Component {
        id: storeComponent

        Settings {
            category: "ui"
        }
    }

    function store() {
        return createTemporaryObject(storeComponent, testCase)
    }

    function storeAppearance(darkMode, accentHex) {
        const ui = store()
        ui.setValue("darkMode", darkMode)
        ui.setValue("accentHex", accentHex)
        ui.sync()
    }

    function initTestCase() {
        storeAppearance(true, "")
    }

    function cleanup() {
        storeAppearance(true, "")
        languageManager.setLanguage("system")
    }

    // A shell on its Settings page, as the user sees it after start-up.
    function makeShell() {
        const controller = createTemporaryObject(standInComponent, testCase)
        const shell = createTemporaryObject(shellComponent, testCase, {controller: controller})
        shell.navIndex = settingsIndex
        waitForRendering(shell)
        return shell
    }

    function settingsOf(shell) {
        return findChild(shell, "settingsPage")
    }

    function makePage(properties) {
        const page = createTemporaryObject(pageComponent, testCase, properties || {})
        waitForRendering(page)
        return page
    }

    function swatch(page, name) {
        return findChild(page, "accentSwatch_" + name)
    }

    function languageBox(page) {
        return findChild(page, "languageBox")
    }

    function test_isValidHexColor_data() {
        return [
            {tag: "six digits", text: "#3FB950", valid: true},
            {tag: "six lower-case digits", text: "#a371f7", valid: true},
            {tag: "eight digits", text: "#80A371F7", valid: true},
            {tag: "spaces trimmed", text: "  #3FB950\t", valid: true},
            {tag: "no hash", text: "3FB950", valid: false},
            {tag: "five digits", text: "#3FB95", valid: false},
            {tag: "seven digits", text: "#3FB9501", valid: false},
            {tag: "nine digits", text: "#3FB950112", valid: false},
            {tag: "three digits", text: "#FFF", valid: false},
            {tag: "not hexadecimal", text: "#3FB95G", valid: false},
            {tag: "space inside", text: "#3FB 950", valid: false},
            {tag: "two hashes", text: "##3FB950", valid: false},
            {tag: "colour name", text: "green", valid: false},
            {tag: "empty", text: "", valid: false},
            {tag: "hash alone", text: "#", valid: false}
        ]
    }

    function test_isValidHexColor(data) {
        compare(makePage()._isValidHexColor(data.text), data.valid)
    }

    function test_isValidHexColorWithoutText() {
        const page = makePage()
        compare(page._isValidHexColor(undefined), false)
        compare(page._isValidHexColor(null), false)
    }

    function test_applyAccentHex() {
        const page = makePage()
        const theme = page.theme
        page.applyAccentHex("  " + purple + " ")
        compare(theme.useAccentOverride, true, "a valid colour applies, trimmed")
        verify(Qt.colorEqual(theme.accent, purple))

        page.applyAccentHex("#12345")
        page.applyAccentHex("F85149")
        page.applyAccentHex("#GG0000")
        compare(theme.useAccentOverride, true, "invalid texts are ignored")
        verify(Qt.colorEqual(theme.accent, purple), "and leave the accent as it was")

        page.applyAccentHex("#80F85149")
        verify(Qt.colorEqual(theme.accentOverride, "#80F85149"), "eight digits carry an alpha")

        page.applyAccentHex("   ")
        compare(theme.useAccentOverride, false, "a blank text clears the override")
        verify(Qt.colorEqual(theme.accent, "#3FB950"), "the dark default accent is back")

        page.applyAccentHex(purple)
        page.applyAccentHex("")
        compare(theme.useAccentOverride, false, "an empty text clears the override")
    }

    function test_saveSettingsWritesBothKeys() {
        const page = makePage()
        page.darkMode = false
        page.applyAccentHex(purple)
        page.saveSettings()
        const ui = store()
        compare(ui.value("darkMode"), false)
        verify(Qt.colorEqual(ui.value("accentHex"), purple), String(ui.value("accentHex")))

        page.applyAccentHex("")
        page.darkMode = true
        page.saveSettings()
        compare(ui.value("darkMode"), true)
        compare(ui.value("accentHex"), "", "no override is stored as an empty text")
    }

    function test_restartWithoutSavingBringsStoredValuesBack() {
        const shell = makeShell()
        const page = settingsOf(shell)
        mouseClick(findChild(page, "darkModeSwitch"))
        compare(shell.theme.dark, false, "light mode applies at once")
        mouseClick(swatch(page, "Purple"))
        verify(Qt.colorEqual(shell.theme.accent, purple), "the accent applies at once")

        const restarted = makeShell()
        compare(restarted.theme.dark, true, "unsaved light mode is gone after a restart")
        compare(restarted.theme.useAccentOverride, false, "and so is the unsaved accent")

        // Out of the way of the first window's buttons, which it covers.
        restarted.visible = false
        mouseClick(findChild(page, "saveSettingsButton"))
        const saved = makeShell()
        compare(saved.theme.dark, false, "a saved mode is kept")
        verify(Qt.colorEqual(saved.theme.accent, purple), "a saved accent is kept")
        compare(settingsOf(saved).darkMode, false, "the page shows the stored mode")
        compare(findChild(settingsOf(saved), "darkModeSwitch").checked, false)
    }

    // No rendering happens between the click and the checks.
    function test_accentRecoloursItsFollowersAtOnce() {
        const shell = makeShell()
        const theme = shell.theme
        mouseClick(swatch(settingsOf(shell), "Purple"))
        for (const token of ["accent", "success", "actionCheck", "suitClubs"])
            verify(Qt.colorEqual(theme[token], purple), token)
        verify(Qt.colorEqual(theme.suitColor("c"), purple))
        verify(Qt.colorEqual(theme.actionColor("check"), purple))
    }

    function test_currentSwatchHasTheFocusBorder() {
        const shell = makeShell()
        const page = settingsOf(shell)
        mouseClick(swatch(page, "Gold"))
        for (const [name, hex] of swatchColors) {
            const item = swatch(page, name)
            const ring = findChild(item, "swatchRing")
            compare(item.current, name === "Gold", name)
            verify(Qt.colorEqual(ring.border.color, name === "Gold" ? shell.theme.strokeFocus : shell.theme.stroke),
                   name + " border")
            verify(Qt.colorEqual(findChild(item, "swatchFill").color, hex), name + " fill")
            compare(item.width, 28)
            compare(item.height, 28)
        }
    }

    function test_swatchTooltipsNameTheColour() {
        const page = makePage()
        for (const [name, hex] of swatchColors) {
            const item = swatch(page, name)
            compare(item.toolTipText, name + " " + hex)
        }
        const gold = swatch(page, "Gold")
        const tip = findChild(gold, "swatchToolTip")
        mouseMove(gold, gold.width / 2, gold.height / 2)
        tryVerify(() => tip.visible, 2000, "hovering shows the tooltip")
        compare(tip.text, "Gold #F0B429")
        mouseMove(page, 1, 1)
        tryVerify(() => !tip.visible, 2000, "leaving hides it")
    }

    function test_lightDefaultAccentLeavesGreenUnmarked() {
        const shell = makeShell()
        const page = settingsOf(shell)
        const green = swatch(page, "Green")
        compare(green.current, true, "the dark default accent is the Green swatch")
        page.darkMode = false
        compare(shell.theme.dark, false)
        verify(Qt.colorEqual(shell.theme.accent, "#16A34A"), "the light default accent")
        compare(green.current, false, "Green is not the light default")
        verify(Qt.colorEqual(findChild(green, "swatchRing").border.color, shell.theme.stroke))
        for (const [name] of swatchColors)
            compare(swatch(page, name).current, false, name)
    }

    function test_darkModeSwitchFollowsTheShell() {
        const shell = makeShell()
        const toggle = findChild(settingsOf(shell), "darkModeSwitch")
        compare(toggle.checked, true)
        shell.theme.dark = false
        compare(toggle.checked, false, "the switch shows a mode set elsewhere")
        mouseClick(toggle)
        compare(shell.theme.dark, true, "the switch writes the mode back")
        mouseClick(toggle)
        compare(shell.theme.dark, false)
        shell.theme.dark = true
        compare(toggle.checked, true, "the switch still follows after being clicked")
    }

    function test_accentResetButton() {
        const page = makePage()
        const reset = findChild(page, "accentResetButton")
        compare(reset.enabled, false, "nothing to reset without an override")
        mouseClick(swatch(page, "Red"))
        compare(page.theme.useAccentOverride, true)
        compare(reset.enabled, true)
        mouseClick(reset)
        compare(page.theme.useAccentOverride, false)
        compare(reset.enabled, false)
    }

    function test_resetToDefaultsSavesAndKeepsTheLanguage() {
        const shell = makeShell()
        const page = settingsOf(shell)
        languageManager.setLanguage("de")
        page.darkMode = false
        page.applyAccentHex(purple)
        page.saveSettings()

        mouseClick(findChild(page, "resetDefaultsButton"))
        compare(shell.theme.dark, true)
        compare(shell.theme.useAccentOverride, false)
        const ui = store()
        compare(ui.value("darkMode"), true, "stored without a further save")
        compare(ui.value("accentHex"), "")
        compare(languageManager.currentLanguage, "de", "the language stays")
        compare(languageBox(page).currentIndex, languageCodes.indexOf("de"))

        const restarted = makeShell()
        compare(restarted.theme.dark, true)
        compare(restarted.theme.useAccentOverride, false)
    }

    function test_languageBoxOrderAndCodes() {
        const box = languageBox(makePage())
        compare(box.count, languageCodes.length)
        compare(box.languages.map(language => language.code), languageCodes)
        for (let i = 0; i < languageNames.length; ++i)
            compare(box.labelAt(i), languageNames[i], languageCodes[i])
    }

    function test_languageBoxFollowsTheCurrentLanguage() {
        const box = languageBox(makePage())
        compare(languageManager.currentLanguage, "system")
        compare(box.currentIndex, 0)
        compare(box.displayText, "System default")
        for (const code of ["fr", "pt_BR", "ru", "en"]) {
            languageManager.setLanguage(code)
            compare(box.currentIndex, languageCodes.indexOf(code), code)
            compare(box.displayText, languageNames[languageCodes.indexOf(code)], code)
        }
        languageManager.setLanguage("xx")
        compare(languageManager.currentLanguage, "xx")
        compare(box.currentIndex, 0, "an unknown code shows the first entry")
        compare(box.indexOfCode("pt_br"), 0, "codes are compared exactly")
    }

    function test_languageBoxStartsAtTheCurrentLanguage() {
        languageManager.setLanguage("it")
        const box = languageBox(makePage())
        compare(box.currentIndex, languageCodes.indexOf("it"))
    }

    function test_choosingALanguageSetsIt() {
        const box = languageBox(makePage())
        mouseClick(box)
        tryVerify(() => box.popup.opened, 2000, "the list opens")
        // The list makes its rows over a few frames.
        tryVerify(() => findChild(box.popup.contentItem, "languageOption_de") !== null, 2000)
        const option = findChild(box.popup.contentItem, "languageOption_de")
        mouseClick(option)
        tryVerify(() => !box.popup.visible, 2000, "the list closes")
        compare(languageManager.currentLanguage, "de")
        compare(box.currentIndex, languageCodes.indexOf("de"))
    }

    function test_licenseRowsFollowUseTbb() {
        const page = makePage()
        compare(findChild(page, "licenseRow_qt").visible, true)
        compare(findChild(page, "licenseRow_tbb").visible, appController.useTbb, "the application's controller")

        const withTbb = createTemporaryObject(licenceControllerComponent, testCase, {useTbb: true})
        compare(findChild(makePage({controller: withTbb}), "licenseRow_tbb").visible, true)
        const withoutTbb = createTemporaryObject(licenceControllerComponent, testCase, {useTbb: false})
        compare(findChild(makePage({controller: withoutTbb}), "licenseRow_tbb").visible, false)
    }

    function test_licenseTexts() {
        const page = makePage()
        const qt = findChild(page, "licenseRow_qt")
        compare(qt.name, "Qt Framework")
        compare(qt.note, "Runtime (dynamic linking)")
        compare(qt.licence, "LGPL v3")
        const tbb = findChild(page, "licenseRow_tbb")
        compare(tbb.name, "oneTBB")
        compare(tbb.note, "Threading")
        compare(tbb.licence, "Apache 2.0")
        compare(findChild(page, "licensesNote").text,
                "Third-party notices and license texts are included in the 'licenses' folder next to the executable.")
        compare(findChild(page, "openLicensesFolderButton").text, "Open licenses folder")
        compare(findChild(page, "openLicensesFolderButton").iconName, "folder-open")
        compare(findChild(page, "openNoticesButton").text, "Open notices")
        compare(findChild(page, "openNoticesButton").iconName, "file-text")
    }

    function test_licenseButtonsCallTheController() {
        const controller = createTemporaryObject(licenceControllerComponent, testCase)
        const page = makePage({controller: controller})
        mouseClick(findChild(page, "openLicensesFolderButton"))
        compare(controller.folderOpens, 1)
        compare(controller.noticeOpens, 0)
        mouseClick(findChild(page, "openNoticesButton"))
        compare(controller.noticeOpens, 1)
    }

    function test_pageTexts() {
        const page = makePage()
        compare(findChild(page, "settingsHeader").title, "Settings")
        const rows = [["darkModeRow", "Dark Mode", "Use dark color scheme throughout the interface"],
                      ["languageRow", "Language", "Change the app language (takes effect immediately)"],
                      ["accentRow", "Accent Color",
                       "Customize the app highlight color (buttons, accents, clubs/check)."]]
        for (const [objectName, title, description] of rows) {
            const row = findChild(page, objectName)
            compare(row.title, title)
            compare(row.description, description)
        }
        compare(findChild(page, "accentResetButton").text, "Reset")
        compare(findChild(page, "resetDefaultsButton").text, "Reset to Defaults")
        compare(findChild(page, "saveSettingsButton").text, "Save Settings")
    }
}
