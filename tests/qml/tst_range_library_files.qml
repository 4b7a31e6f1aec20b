import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

// Range files: importing a text file into both Custom lists, the Import Range of Home, the developer exports
// of the bundled data read back as they would be at the next start, and the developer overrides. All through
// real files in the temporary folder.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "RangeLibraryFiles"
        when: windowShown

        property var page: null
        readonly property string folder: "file:///tmp/"
        readonly property string standardPath: ":/Kelvane/qml/data/standard_ranges.json"
        readonly property string exploitPath: ":/Kelvane/qml/data/exploit_ranges.json"
        readonly property var storedKeys: ["oopCustomRangesJson", "ipCustomRangesJson", "oopStandardOverridesJson",
            "ipStandardOverridesJson", "oopExploitOverridesJson", "ipExploitOverridesJson"]

        Settings {
            id: store
            category: "ranges"
        }

        // The real controller's files, the tests' own documents as the bundled ones, and a developer switch.
        Component {
            id: controllerComponent

            QtObject {
                property bool developerMode: false
                property var resources: ({})

                function readTextResource(path) {
                    return resources[path] !== undefined ? resources[path] : ""
                }

                function readTextFile(url) {
                    return appController.readTextFile(url)
                }

                function saveTextFile(url, text) {
                    return appController.saveTextFile(url, text)
                }
            }
        }

        // A controller that cannot touch files.
        Component {
            id: filelessControllerComponent

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

        Component {
            id: standInComponent

            StandInController {}
        }

        Component {
            id: shellComponent

            AppShell {
                width: root.width
                height: root.height
            }
        }

        function clearStore() {
            for (const key of storedKeys)
                store.setValue(key, "")
            store.sync()
        }

        function fixture(name) {
            const result = appController.readTextFile(Qt.resolvedUrl("data/" + name))
            verify(result.ok, result.error)
            return result.text
        }

        function makeController(developer) {
            const resources = {}
            resources[standardPath] = fixture("range_library_standard.json")
            resources[exploitPath] = fixture("range_library_exploit.json")
            return createTemporaryObject(controllerComponent, root, {developerMode: developer,
                                                                     resources: resources})
        }

        function makePage(controller) {
            const made = createTemporaryObject(pageComponent, root, {controller: controller})
            verify(made !== null)
            // The range cards stand below the first row; scrolled into view so that the pointer reaches them.
            const flick = findChild(made, "projectFlickable")
            flick.contentY = Math.max(0, flick.contentHeight - flick.height)
            waitForRendering(made)
            return made
        }

        function init() {
            clearStore()
            page = makePage(makeController(false))
        }

        function cleanupTestCase() {
            clearStore()
        }

        function part(parent, name) {
            const found = findChild(parent, name)
            verify(found !== null, "no " + name)
            return found
        }

        function library(player) {
            return part(page, player + "RangeLibrary")
        }

        function tempUrl(name) {
            return folder + "kelvane_range_library_" + Date.now() + "_" + name
        }

        function writeFile(name, text) {
            const url = tempUrl(name)
            verify(appController.saveTextFile(url, text).ok, "wrote " + url)
            return url
        }

        function names(nodes) {
            return nodes.map(node => node.name)
        }

        function at(tree, path) {
            let node = {children: tree}
            for (const name of path) {
                node = node.children.find(child => child.name === name)
                verify(node !== undefined, "a node " + name)
            }
            return node
        }

        // The tree without ids.
        function shape(nodes) {
            return nodes.map(node => node.type === "folder" ? {type: "folder", name: node.name,
                                                               children: shape(node.children)}
                                                            : {type: node.type, name: node.name, value: node.value})
        }

        function ids(nodes) {
            return nodes.reduce((all, node) => all.concat([node.id], node.type === "folder" ? ids(node.children)
                                                                                           : []), [])
        }

        // Chooses the file as the file dialog would and answers the name dialog.
        function importFile(focusPlayer, url) {
            page.openImportRangeDialog(focusPlayer)
            const fileDialog = part(page, "importFileDialog")
            tryVerify(() => fileDialog.visible, 2000, "the file dialog opens")
            fileDialog.close()
            part(page, "rangeDialogs")._importFrom(url)
            const dialog = part(page, "importRangeDialog")
            tryVerify(() => dialog.opened, 2000, "the name dialog opens")
            return dialog
        }

        // ---- Import

        function test_importFileDialog() {
            page.openImportRangeDialog("ip")
            const fileDialog = part(page, "importFileDialog")
            tryVerify(() => fileDialog.visible)
            compare(fileDialog.title, "Import Range")
            compare(fileDialog.nameFilters, ["Range text (*.txt)", "All Files (*)"])
            compare(page._rangeLibrary._importFocusPlayer, "ip")
            fileDialog.close()
            page.openImportRangeDialog("button")
            compare(page._rangeLibrary._importFocusPlayer, "oop", "anything but ip means oop")
            part(page, "importFileDialog").close()
        }

        function test_importOfHello() {
            const dialog = importFile("oop", writeFile("hello.txt", "hello"))
            compare(part(dialog.contentItem, "errorText").text, "Import failed: file contained no recognizable hands.")
            const importButton = part(dialog.footer, "confirmButton")
            compare(importButton.text, "Import")
            verify(!importButton.enabled, "Import stays disabled")
            verify(!part(dialog.contentItem, "nameField").activeFocus, "with an error the field does not take focus")
            dialog.close()
        }

        function test_importOfAMissingFile() {
            const dialog = importFile("oop", folder + "kelvane_range_library_no_such_file.txt")
            compare(part(dialog.contentItem, "errorText").text, "Import failed: File does not exist.")
            verify(!part(dialog.footer, "confirmButton").enabled)
            dialog.close()
        }

        function test_importWithoutTheFileReader() {
            page = makePage(createTemporaryObject(filelessControllerComponent, root))
            const dialog = importFile("oop", folder + "x.txt")
            compare(part(dialog.contentItem, "errorText").text,
                    "Import failed: appController.readTextFile unavailable.")
            dialog.close()
        }

        function test_importIntoBothLists() {
            page.ipRangeCategory = 0
            const url = writeFile("BTN open.txt", "AA,KK:0.5,QQ\r\nhello 72o")
            const dialog = importFile("oop", url)
            compare(page._rangeLibrary._importText, "AA:0.5, KK:0.5, QQ, 72o", "the file's weights apply to groups")
            const field = part(dialog.contentItem, "nameField")
            verify(field.text.endsWith("BTN open"), "the base name is proposed: " + field.text)
            verify(!field.text.endsWith(".txt"))
            verify(field.activeFocus, "the field takes focus")
            compare(field.placeholderText, "e.g., BTN open (custom)")
            field.text = "Button open"
            const importButton = part(dialog.footer, "confirmButton")
            verify(importButton.enabled)
            mouseClick(importButton)
            tryVerify(() => !dialog.visible, 2000, "importing closes the dialog")
            const mine = page.oopCustomRanges[0]
            const theirs = page.ipCustomRanges[0]
            compare([mine.name, mine.value], ["Button open", "AA:0.5, KK:0.5, QQ, 72o"])
            compare([theirs.name, theirs.value], ["Button open", "AA:0.5, KK:0.5, QQ, 72o"])
            verify(mine.id !== theirs.id, "each list has its own node")
            compare(page.oopSelectedId, mine.id, "selected for the focus player")
            compare(page.ipSelectedId, "", "not for the other")
            compare([page.oopRangeCategory, page.ipRangeCategory], [2, 2])
            compare(page.oopRangeText, "AA:0.5, KK:0.5, QQ, 72o")
            compare(page.ipRangeText, "")
        }

        function test_importingTwiceAddsANumberInBothLists() {
            const url = writeFile("twice.txt", "AKs, AQs")
            for (let i = 0; i < 2; ++i) {
                const dialog = importFile("ip", url)
                part(dialog.contentItem, "nameField").text = "Same"
                keyClick(Qt.Key_Return)
                tryVerify(() => !dialog.visible, 2000, "Return imports")
            }
            compare(names(page.oopCustomRanges), ["Same", "Same (2)"])
            compare(names(page.ipCustomRanges), ["Same", "Same (2)"])
            compare(page.ipSelectedId, page.ipCustomRanges[1].id)
        }

        function test_importGoesIntoTheSelectedFolderOfTheFocusPlayer() {
            verify(page.commitAddFolder("oop", "Box"))
            verify(page.commitAddFolder("ip", "Theirs"))
            const dialog = importFile("oop", writeFile("into.txt", "JJ"))
            verify(page.commitImportRange("Inside"))
            dialog.close()
            compare(names(at(page.oopCustomRanges, ["Box"]).children), ["Inside"])
            compare(names(page.ipCustomRanges), ["Theirs", "Inside"], "the other player's at the top")
        }

        function test_importCommitMessages() {
            const dialog = importFile("oop", writeFile("messages.txt", "TT"))
            verify(!page.commitImportRange("  "))
            compare(part(dialog.contentItem, "errorText").text, "Please enter a name.")
            page._rangeLibrary._importText = ""
            verify(!page.commitImportRange("Name"))
            compare(page._rangeLibrary._importError, "No range content to import.")
            verify(dialog.visible, "the dialog stays open")
            dialog.close()
            compare(page.oopCustomRanges, [])
        }

        function test_homeImportOpensTheImportOnSetup() {
            const shell = createTemporaryObject(shellComponent, root,
                                                {controller: createTemporaryObject(standInComponent, root)})
            part(shell, "homePage").importRange()
            compare(shell.navIndex, 1, "on the Setup page")
            const projectPage = part(shell, "projectPage")
            tryVerify(() => part(projectPage, "importFileDialog").visible, 2000, "the import file dialog opens")
            compare(projectPage._rangeLibrary._importFocusPlayer, "oop")
            part(projectPage, "importFileDialog").close()
        }

        // ---- Exports

        function test_standardExportReadsBackToTheSameTree() {
            const url = tempUrl("standard.json")
            verify(page._rangeLibrary.exportStandardTo(url))
            compare(page._exportStandardError, "")
            const read = appController.readTextFile(url)
            verify(read.ok, read.error)
            verify(read.text.indexOf("\n  \"oop\": {\n    \"standard\": [") >= 0, "two-space indentation")
            const document = JSON.parse(read.text)
            compare(Object.keys(document).sort(), ["ip", "oop"], "no format, version or time")
            for (const player of ["oop", "ip"]) {
                const again = page._sanitizeCustomTree(page._buildStandardTree(
                                                           page._sanitizePresetList(document[player].standard)))
                compare(shape(again), shape(page.rangesFor(player, 0)), player + " reads back the same")
            }
            compare(document.oop.standard[0], {name: "No rake / RFI UTG", value: "AA, KK, QQ:0.8, AKs"})
        }

        function test_populationExportReadsBackWithNewIds() {
            const url = tempUrl("population.json")
            verify(page._rangeLibrary.exportPopulationTo(url))
            compare(page._exportExploitError, "")
            const document = JSON.parse(appController.readTextFile(url).text)
            compare([document.format, document.version], ["kelvane_ranges_export", 1])
            verify(!isNaN(Date.parse(document.generatedAt)), "an ISO time")
            for (const player of ["oop", "ip"]) {
                compare(document[player].standard, [], "the Standard part is left empty")
                const readBack = page._sanitizeCustomTree(document[player].exploit)
                compare(shape(readBack), shape(page.rangesFor(player, 1)), player + " has the same structure")
                const before = ids(page.rangesFor(player, 1))
                verify(ids(readBack).every(id => before.indexOf(id) < 0), "with new ids")
            }
            const bombPot = at(document.oop.exploit, ["Other", "Bomb pot"])
            compare(bombPot, {name: "Bomb pot", value: "100%"}, "a range node has no type and no id")
            compare(Object.keys(document.oop.exploit[0]).sort(), ["children", "name", "type"])
        }

        function test_exportFailures() {
            verify(!page._rangeLibrary.exportStandardTo("http://example.invalid/ranges.json"))
            verify(page._exportStandardError.startsWith("Export failed: "), page._exportStandardError)
            verify(page._exportStandardError.length > "Export failed: ".length, "with the controller's reason")
            page = makePage(createTemporaryObject(filelessControllerComponent, root))
            verify(!page._rangeLibrary.exportPopulationTo(tempUrl("x.json")))
            compare(page._exportExploitError, "Export failed: appController.saveTextFile unavailable.")
        }

        // ---- Developer functions

        function test_developerControlsOnlyInDeveloperMode() {
            for (const name of ["overrideButton", "exportStandardButton", "exportPopulationButton",
                                "clearOverridesButton"])
                verify(!part(library("oop"), name).visible, name + " hidden for customers")
            page = makePage(makeController(true))
            page.oopRangeCategory = 0
            verify(part(library("oop"), "overrideButton").visible)
            verify(part(library("oop"), "exportStandardButton").visible)
            verify(!part(library("oop"), "exportPopulationButton").visible)
            verify(part(library("oop"), "clearOverridesButton").visible)
            page.oopRangeCategory = 1
            verify(part(library("oop"), "exportPopulationButton").visible)
            page.oopRangeCategory = 2
            verify(!part(library("oop"), "overrideButton").visible, "nothing to override in Custom")
        }

        function test_overrideAndClear() {
            page = makePage(makeController(true))
            page.oopRangeCategory = 0
            const leaf = at(page.oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"])
            const overrideButton = part(library("oop"), "overrideButton")
            page.oopRangeText = "22+"
            verify(!overrideButton.enabled, "no leaf selected")
            page.oopSelectedId = at(page.oopStandardRanges, ["6-max", "No rake"]).id
            verify(!overrideButton.enabled, "a folder cannot be overridden")
            page.oopSelectedId = leaf.id
            verify(overrideButton.enabled)
            waitForRendering(library("oop"))
            mouseClick(overrideButton)
            compare(page.oopStandardOverrides, {"6-max / No rake / RFI / UTG": "22+"})
            compare(JSON.parse(String(store.value("oopStandardOverridesJson", ""))), page.oopStandardOverrides)
            compare(at(page.oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"]).id, leaf.id, "updated in place")
            compare(at(page.oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"]).value, "22+")
            compare(at(makePage(makeController(true)).oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"]).value,
                    "22+", "a fresh page applies it")

            page.oopRangeCategory = 1
            page.oopSelectedId = at(page.oopExploitRanges, ["Other", "Bomb pot"]).id
            page.oopRangeText = "50%"
            verify(page._rangeLibrary.overrideSelectedRange("oop", page.oopRangeText))
            compare(page.oopExploitOverrides, {"Other / Bomb pot": "50%"})
            page.oopRangeText = " "
            verify(!overrideButton.enabled, "a blank text cannot override")

            page._rangeLibrary.clearOverrides("oop", 0)
            compare(page.oopStandardOverrides, {})
            compare(String(store.value("oopStandardOverridesJson", "x")), "")
            compare(page.oopSelectedId, "")
            compare(page.oopOpenFolderIds, {})
            compare(page.oopRangeText, "")
            compare(at(page.oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"]).value, "AA, KK, QQ:0.8, AKs",
                    "the bundled value is back")
            compare(at(page.oopExploitRanges, ["Other", "Bomb pot"]).value, "50%", "the other category keeps its own")
        }

        function test_clearOverridesAsks() {
            page = makePage(makeController(true))
            page.ipRangeCategory = 1
            waitForRendering(library("ip"))
            mouseClick(part(library("ip"), "clearOverridesButton"))
            const box = part(page, "clearOverridesDialog")
            tryVerify(() => box.visible, 2000, "the message box opens")
            compare(box.title, "Clear population overrides")
            compare(box.text, "Clear all locally overridden population ranges for IP?")
            box.close()
            page.oopRangeCategory = 0
            part(page, "rangeDialogs").openClearOverrides("oop", 0)
            compare(box.title, "Clear standard overrides")
            compare(box.text, "Clear all locally overridden standard ranges for OOP?")
            box.close()
        }

        function test_exportDialogs() {
            page = makePage(makeController(true))
            page.oopRangeCategory = 0
            waitForRendering(library("oop"))
            mouseClick(part(library("oop"), "exportStandardButton"))
            const standardDialog = part(page, "exportStandardDialog")
            tryVerify(() => standardDialog.visible)
            compare(standardDialog.title, "Export Standard Ranges")
            compare(standardDialog.nameFilters, ["JSON (*.json)", "All Files (*)"])
            standardDialog.close()
            tryVerify(() => !standardDialog.visible, 2000, "the first dialog has closed")
            part(page, "rangeDialogs").openExportPopulation()
            const populationDialog = part(page, "exportPopulationDialog")
            tryVerify(() => populationDialog.visible)
            compare(populationDialog.title, "Export Population Ranges")
            populationDialog.close()
        }
    }
}
