import QtQuick
import QtTest
import Kelvane

// Every context of the catalogues reaches the screen: pages split into several files look their texts up under
// the page's context, a language change retranslates live pages at once, and "system" brings English back.
TestCase {
    id: testCase

    name: "Translations"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1600
    height: 1000

    readonly property var locales: ["de", "es", "fr", "it", "pl", "pt_BR", "ru"]
    readonly property int homeIndex: 0
    readonly property int setupIndex: 1
    readonly property int solveIndex: 2
    readonly property int resultsIndex: 3
    readonly property int settingsIndex: 4
    readonly property string maxThreads: "Max"

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
        id: rangeEditorComponent

        RangeEditor {
            rangeText: "AA, KK"
        }
    }

    Component {
        id: sidebarComponent

        Sidebar {
            height: 800
        }
    }

    Component {
        id: treeNodeComponent

        TreeNode {
            nodeType: "chance"
        }
    }

    function cleanup() {
        languageManager.setLanguage("system")
    }

    function makeShell(navIndex) {
        const controller = createTemporaryObject(standInComponent, testCase)
        const shell = createTemporaryObject(shellComponent, testCase, {controller: controller})
        shell.navIndex = navIndex
        waitForRendering(shell)
        return shell
    }

    // The first item under root, depth first, whose text is the given one.
    function itemWithText(root, text) {
        if (!root)
            return null
        if (root.text === text)
            return root
        for (let i = 0; i < root.children.length; ++i) {
            const found = itemWithText(root.children[i], text)
            if (found)
                return found
        }
        return null
    }

    // One text on screen: the item that shows it, the property that holds it, its catalogue key and the number
    // that fills its placeholder, if it has one.
    function probe(item, property, context, source, argument) {
        const entry = {item: item, property: property, context: context, source: source, argument: argument}
        verify(item !== null, context + " '" + source + "' is on the page")
        compare(item[property], filled(entry, source), context + " '" + source + "' starts in English")
        return entry
    }

    function filled(entry, text) {
        return entry.argument === undefined ? text : text.arg(entry.argument)
    }

    function textProbe(root, context, source) {
        return probe(itemWithText(root, source), "text", context, source)
    }

    // Texts of the Setup page from its own files and its cards, and of the shell's bar above it.
    function setupProbes(shell) {
        const setup = findChild(shell, "projectPage")
        const bar = findChild(shell, "topBar")
        return [
            probe(findChild(setup, "pageHeader"), "title", "ProjectPage", "Project Setup"),
            probe(findChild(setup, "continueButton"), "text", "ProjectPage", "Continue to Solve →"),
            probe(findChild(findChild(setup, "oopSizingCard"), "title"), "text", "ProjectPage", "OOP Sizing"),
            textProbe(findChild(setup, "gameSettingsCard"), "ProjectPage", "Game Settings"),
            textProbe(findChild(setup, "oopSizingCard"), "ProjectPage", "Add all-in if jam less than"),
            probe(findChild(bar, "statusLabel"), "text", "TopBar", "Ready"),
            textProbe(findChild(bar, "tab4"), "TopBar", "Settings")
        ]
    }

    // One text of each other page, each split into files of its own.
    function pageProbes(shell) {
        return [
            textProbe(findChild(shell, "homeHero"), "HomePage", "A modern, high-performance holdem solver"),
            probe(findChild(shell, "heroNewSolveButton"), "text", "HomePage", "New Solve"),
            textProbe(findChild(shell, "computeCard"), "SolvePage", "Compute"),
            probe(findChild(shell, "startSolveButton"), "text", "SolvePage", "Start Solve"),
            probe(findChild(shell, "resetDefaultsButton"), "text", "SettingsPage", "Reset to Defaults"),
            textProbe(findChild(shell, "resultsPage"), "ResultsPage", "Strategy View")
        ]
    }

    function componentProbes() {
        const editor = createTemporaryObject(rangeEditorComponent, testCase)
        const sidebar = createTemporaryObject(sidebarComponent, testCase)
        const node = createTemporaryObject(treeNodeComponent, testCase)
        return [
            probe(findChild(editor, "handCount"), "text", "RangeEditor", "%1 hands", 2),
            textProbe(sidebar, "Sidebar", "Poker Solver"),
            probe(findChild(node, "label"), "text", "TreeNode", "Deal")
        ]
    }

    // Each probe was chosen because every catalogue translates it differently from the English.
    function verifyTranslated(probes, code) {
        for (const entry of probes) {
            const expected = filled(entry, qsTranslate(entry.context, entry.source))
            verify(expected !== filled(entry, entry.source), code + ": the catalogue translates " + entry.context + " '"
                   + entry.source + "'")
            compare(entry.item[entry.property], expected, code + ": " + entry.context + " '" + entry.source + "'")
        }
    }

    function verifyEnglish(probes) {
        for (const entry of probes)
            compare(entry.item[entry.property], filled(entry, entry.source),
                    entry.context + " '" + entry.source + "' in English")
    }

    // The runner's own system language decides what "system" shows; English needs a system without a catalogue.
    function systemHasCatalogue() {
        const language = Qt.locale().name.split("_")[0]
        return locales.some(code => code.split("_")[0] === language)
    }

    function test_eachContextShowsTranslated_data() {
        return locales.map(code => ({tag: code, code: code}))
    }

    function test_eachContextShowsTranslated(data) {
        const shell = makeShell(setupIndex)
        const probes = setupProbes(shell).concat(pageProbes(shell), componentProbes())
        languageManager.setLanguage(data.code)
        compare(languageManager.currentLanguage, data.code)
        for (const index of [setupIndex, homeIndex, solveIndex, resultsIndex, settingsIndex]) {
            shell.navIndex = index
            waitForRendering(shell)
            verifyTranslated(probes, data.code)
        }
        // The sizing grid's row labels come from a list, whose rows are made anew in the new language.
        const rowLabel = qsTranslate("ProjectPage", "Bet sizes (%)")
        verify(rowLabel !== "Bet sizes (%)")
        verify(itemWithText(findChild(shell, "oopSizingCard"), rowLabel) !== null, data.code + ": " + rowLabel)
    }

    function test_switchingToEachLanguageRetranslatesTheSetupPageAtOnce() {
        const shell = makeShell(setupIndex)
        const setup = findChild(shell, "projectPage")
        const probes = setupProbes(shell)
        for (const code of locales) {
            languageManager.setLanguage(code)
            verifyTranslated(probes, code)
            verify(findChild(shell, "projectPage") === setup, code + ": the same page, not a new one")
        }
    }

    function test_systemRestoresEnglish() {
        if (systemHasCatalogue())
            skip("the system language of this machine has a catalogue")
        const shell = makeShell(setupIndex)
        const probes = setupProbes(shell).concat(pageProbes(shell), componentProbes())
        for (const code of locales) {
            languageManager.setLanguage(code)
            languageManager.setLanguage("system")
            compare(languageManager.currentLanguage, "system")
            verifyEnglish(probes)
        }
    }

    function test_englishRemovesTheCatalogue() {
        const shell = makeShell(setupIndex)
        const probes = setupProbes(shell)
        languageManager.setLanguage("ru")
        languageManager.setLanguage("en")
        verifyEnglish(probes)
    }

    // The thread list holds the English word, compared in code; only what the box shows is translated.
    function test_threadChoicesFollowTheLanguage() {
        const shell = makeShell(solveIndex)
        const box = findChild(shell, "threadChoiceBox")
        tryCompare(box, "currentIndex", 0)
        compare(box.model[0], maxThreads)
        compare(box.displayText, maxThreads)
        let translatedSomewhere = false
        for (const code of locales) {
            languageManager.setLanguage(code)
            compare(box.displayText, qsTranslate("SolvePage", maxThreads), code)
            compare(box.model[0], maxThreads, code + ": the stored choice stays English")
            translatedSomewhere = translatedSomewhere || box.displayText !== maxThreads
        }
        verify(translatedSomewhere, "at least one catalogue abbreviates the word")
        languageManager.setLanguage("system")
        compare(box.displayText, maxThreads)
    }

    function test_languageListFollowsTheLanguage() {
        const shell = makeShell(settingsIndex)
        const box = findChild(shell, "languageBox")
        box.popup.open()
        let option = null
        tryVerify(() => (option = findChild(box.popup.contentItem, "languageOption_system")) !== null)
        compare(option.contentItem.text, "System default")
        for (const code of locales) {
            languageManager.setLanguage(code)
            compare(option.contentItem.text, qsTranslate("SettingsPage", "System default"), code)
            verify(option.contentItem.text !== "System default", code)
            compare(box.displayText, box.labelAt(box.indexOfCode(code)), code + ": the box shows the language")
        }
        box.popup.close()
    }

    // The range library keeps stored names English and shows them in the language in force.
    function test_rangeListFollowsTheLanguage() {
        const setup = findChild(makeShell(setupIndex), "projectPage")
        if (typeof setup.listModelFor !== "function")
            skip("the Setup page has no range library")
        setup.oopRangeCategory = 0
        setup.oopStandardRanges = setup._sanitizeCustomTree(setup._buildStandardTree([]))
        setup._toggleOpenFolder("oop", setup.oopStandardRanges[0].id)
        const rowNamed = name => setup.listModelFor("oop").find(row => row.name === name)
        verify(rowNamed("No rake") !== undefined, "the first Standard folder is open")
        for (const code of locales) {
            languageManager.setLanguage(code)
            compare(rowNamed("No rake").displayName, qsTranslate("ProjectPage", "No rake"), code)
            verify(rowNamed("No rake").displayName !== "No rake", code)
        }
        languageManager.setLanguage("system")
        compare(rowNamed("No rake").displayName, "No rake")
    }
}
