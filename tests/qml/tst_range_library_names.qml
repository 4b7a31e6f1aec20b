import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

// What the range library shows for stored names, in English and after a change of language.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "RangeLibraryNames"
        when: windowShown

        property var page: null
        property string languageBefore: ""

        Settings {
            id: store
            category: "ranges"
        }

        Component {
            id: emptyControllerComponent

            QtObject {
                function readTextResource(path) {
                    return ""
                }
            }
        }

        Component {
            id: pageComponent

            ProjectPage {
                width: root.width
                height: root.height
            }
        }

        function initTestCase() {
            languageBefore = languageManager.currentLanguage
        }

        function init() {
            languageManager.setLanguage("en")
            const controller = createTemporaryObject(emptyControllerComponent, root)
            page = createTemporaryObject(pageComponent, root, {controller: controller})
            verify(page !== null)
        }

        function cleanupTestCase() {
            languageManager.setLanguage(languageBefore)
        }

        function tr(text) {
            return qsTranslate("ProjectPage", text)
        }

        // ---- English

        function test_categoryLabels() {
            compare(page.categoryLabel(0), "Standard Ranges")
            compare(page.categoryLabel(1), "Population Ranges")
            compare(page.categoryLabel(2), "Custom Ranges")
            compare(page.categoryLabel(3), "")
        }

        function test_standardNames_data() {
            return [
                {tag: "table", raw: "6-max", shown: "6-max"},
                {tag: "heads up", raw: "Heads up", shown: "Heads up"},
                {tag: "rake", raw: "200nl rake", shown: "200nl rake"},
                {tag: "scenario", raw: "vs 3bet", shown: "vs 3bet"},
                {tag: "opener folder", raw: "vs UTG RFI", shown: "vs UTG RFI"},
                {tag: "3bet spot", raw: "UTG vs HJ 3bet", shown: "UTG vs HJ 3bet"},
                {tag: "4bet spot", raw: "SB 3bet vs UTG 4bet", shown: "SB 3bet vs UTG 4bet"},
                {tag: "two-word leaf", raw: "UTG Call", shown: "UTG Call"},
                {tag: "two words, action first", raw: "Call SB", shown: "Call SB"},
                {tag: "anything else", raw: "vs RFI SB: Call BB", shown: "vs RFI SB: Call BB"}
            ]
        }

        function test_standardNames(data) {
            compare(page.rangeDisplayName(0, data.raw), data.shown)
        }

        function test_populationNames_data() {
            return [
                {tag: "VPIP after the label", raw: "Passive (VPIP 18–65)", shown: "Passive (VPIP 18–65)"},
                {tag: "VPIP after the numbers", raw: "Overfolder (10-22 VPIP)", shown: "Overfolder (VPIP 10-22)"},
                {tag: "unknown label", raw: "Calling station (VPIP 50-60)", shown: "Calling station (VPIP 50-60)"},
                {tag: "position", raw: "UTG/HJ/CO", shown: "UTG/HJ/CO"},
                {tag: "button", raw: "BU", shown: "BU"},
                {tag: "action", raw: "Limp-3b", shown: "Limp-3b"},
                {tag: "falls to Standard", raw: "vs UTG RFI", shown: "vs UTG RFI"},
                {tag: "plain", raw: "Bomb pot", shown: "Bomb pot"}
            ]
        }

        function test_populationNames(data) {
            compare(page.rangeDisplayName(1, data.raw), data.shown)
        }

        function test_customNamesShowAsTyped() {
            for (const raw of ["6-max", "Overfolder (10-22 VPIP)", "my  range ", "UTG Call"])
                compare(page.rangeDisplayName(2, raw), raw)
        }

        // ---- German

        function test_germanStandardNames() {
            languageManager.setLanguage("de")
            for (const word of ["6-max", "Heads up", "RFI", "vs RFI", "vs 3bet", "vs 4bet", "No rake", "50nl rake",
                                "100nl rake", "200nl rake", "500nl rake"])
                compare(page.rangeDisplayName(0, word), tr(word))
            compare(page.rangeDisplayName(0, "vs CO RFI"), tr("vs %1 RFI").arg("CO"))
            compare(page.rangeDisplayName(0, "HJ vs BTN 3bet"), tr("%1 vs %2 3bet").arg("HJ").arg("BTN"))
            compare(page.rangeDisplayName(0, "BB 3bet vs SB 4bet"), tr("%1 3bet vs %2 4bet").arg("BB").arg("SB"))
            for (const action of ["Call", "Fold", "RFI", "3bet", "4bet"])
                compare(page.rangeDisplayName(0, "UTG " + action), tr("%1 %2").arg("UTG").arg(tr(action)))
            compare(page.rangeDisplayName(0, "Call SB"), tr("%1 %2").arg("Call").arg("SB"),
                    "only the second word is translated")
            verify(tr("No rake") !== "No rake", "the German catalogue is loaded")
            compare(page.rangeDisplayName(0, "No rake"), tr("No rake"))
        }

        function test_germanPopulationNames() {
            languageManager.setLanguage("de")
            compare(page.rangeDisplayName(1, "Passive tight (VPIP 18–25)"),
                    tr("%1 (VPIP %2)").arg(tr("Passive tight")).arg("18–25"))
            compare(page.rangeDisplayName(1, "Overfolder (10-22 VPIP)"),
                    tr("%1 (VPIP %2)").arg(tr("Overfolder")).arg("10-22"))
            for (const word of ["Limp", "Limp-call", "Limp-3b", "RFI", "Call", "Call raise", "Check back", "3b", "4b",
                                "Call 3b", "Call 4b", "3b cold call", "Bomb pot", "Weaker regs", "Tighter reg",
                                "Looser reg", "Other", "Nit", "Overfolder"])
                compare(page.rangeDisplayName(1, word), tr(word))
            for (const position of ["UTG/HJ/CO", "UTG", "HJ", "CO", "BTN", "BU", "SB", "BB"])
                compare(page.rangeDisplayName(1, position), position)
            compare(page.rangeDisplayName(2, "Nit"), "Nit", "Custom names are never translated")
            compare(page.categoryLabel(1), tr("Population Ranges"))
        }

        function test_listFollowsTheLanguage() {
            page.oopRangeCategory = 0
            page.oopStandardRanges = page._sanitizeCustomTree(page._buildStandardTree([]))
            page._toggleOpenFolder("oop", page.oopStandardRanges[0].id)
            const revision = page._i18nRev
            compare(page.listModelFor("oop")[1].displayName, "No rake")
            const library = findChild(page, "oopRangeLibrary")
            let nameText = null
            tryVerify(() => (nameText = findChild(findChild(library, "rangeRow_1"), "name")) !== null, 2000)
            compare(nameText.text, "No rake")
            languageManager.setLanguage("de")
            verify(page._i18nRev > revision, "the revision rises with the language")
            compare(page.listModelFor("oop")[1].displayName, tr("No rake"))
            tryCompare(findChild(findChild(library, "rangeRow_1"), "name"), "text", tr("No rake"))
            compare(page.listModelFor("oop")[1].name, "No rake", "the stored name stays")
        }

        function test_panelTextsFollowTheLanguage() {
            const library = findChild(page, "ipRangeLibrary")
            const category = findChild(library, "categoryButton_1")
            const empty = findChild(library, "emptyListText")
            compare(category.text, "Population Ranges")
            languageManager.setLanguage("de")
            compare(category.text, tr("Population Ranges"))
            verify(category.text !== "Population Ranges", "the label is German now")
            compare(empty.text, tr("No ranges yet."))
            compare(findChild(library, "addFolderButton").text, tr("Add folder…"))
        }
    }
}
