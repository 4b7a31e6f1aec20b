import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

// The player's own list: saving the current range, adding folders, deleting, the dialogs of these, choosing from
// the list, changing the category, and keeping the lists in the settings store.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "RangeLibraryCustom"
        when: windowShown

        property var page: null

        Settings {
            id: store
            category: "ranges"
        }

        Component {
            id: controllerComponent

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

        function clearStore() {
            for (const key of ["oopCustomRangesJson", "ipCustomRangesJson"])
                store.setValue(key, "")
            store.sync()
        }

        function makePage() {
            const controller = createTemporaryObject(controllerComponent, root)
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
            page = makePage()
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

        function node(tree, name) {
            const found = tree.find(entry => entry.name === name)
            verify(found !== undefined, "a node " + name)
            return found
        }

        function names(nodes) {
            return nodes.map(entry => entry.name)
        }

        // The row of the list that shows this node, once laid out.
        function rowItem(player, id) {
            const index = page.listModelFor(player).findIndex(row => row.id === id)
            verify(index >= 0, "the node has a row")
            let item = null
            tryVerify(() => (item = findChild(library(player), "rangeRow_" + index)) !== null && item.width > 0,
                      2000, "row " + index + " is laid out")
            return item
        }

        function openedDialog(name) {
            const dialog = part(page, name)
            tryVerify(() => dialog.opened, 2000, name + " opens")
            return dialog
        }

        function typeText(text) {
            for (const ch of text)
                keyClick(ch)
        }

        // ---- Saving

        function test_saveMessages() {
            verify(!page.commitSaveRange("oop", "  ", "AA"))
            compare(page._rangeLibrary._saveRangeError, "Please enter a name.")
            verify(!page.commitSaveRange("oop", "Name", " "))
            compare(page._rangeLibrary._saveRangeError, "Current range is empty.")
            verify(!page.commitSaveRange("btn", "Name", "AA"))
            compare(page._rangeLibrary._saveRangeError, "Unknown player.")
            compare(page.oopCustomRanges, [])
        }

        function test_saveAtTheTopAndSelects() {
            page.oopRangeCategory = 0
            verify(page.commitSaveRange("oop", " Open ", "AA, KK"))
            compare(page.oopRangeCategory, 2, "the list turns to Custom")
            compare(page.oopCustomRanges.length, 1)
            const saved = page.oopCustomRanges[0]
            compare([saved.type, saved.name, saved.value], ["range", "Open", "AA, KK"])
            compare(page.oopSelectedId, saved.id)
            compare(page.ipCustomRanges, [], "the other player's list is its own")
        }

        function test_saveGoesIntoTheSelectedFolderOrBesideTheSelectedRange() {
            verify(page.commitAddFolder("oop", "Box"))
            const box = page.oopCustomRanges[0]
            verify(page.commitSaveRange("oop", "Inner", "AA"))
            compare(names(node(page.oopCustomRanges, "Box").children), ["Inner"], "inside the selected folder")
            verify(page.commitSaveRange("oop", "Beside", "KK"))
            compare(names(node(page.oopCustomRanges, "Box").children), ["Inner", "Beside"],
                    "beside the selected range")
            compare(page.oopOpenFolderIds, {[box.id]: true}, "the parent stays open")
            compare(page.listModelFor("oop").map(row => row.name), ["Box", "Inner", "Beside"])
        }

        function test_saveNamesAreUniqueAmongSiblings() {
            verify(page.commitAddFolder("oop", "A"))
            page.oopSelectedId = ""
            verify(page.commitSaveRange("oop", "A", "AA"))
            verify(page.commitSaveRange("oop", "A", "AA"))
            compare(names(page.oopCustomRanges), ["A", "A (2)", "A (3)"], "folders count as siblings")
        }

        function test_saveOpensTheWayToANewRange() {
            verify(page.commitAddFolder("oop", "Box"))
            page.oopSelectedId = ""
            verify(page.commitSaveRange("oop", "Top", "AA"))
            compare(page.oopOpenFolderIds, {}, "an open folder beside the new range closes, so that it shows")
            compare(names(page.listModelFor("oop")), ["Box", "Top"])
        }

        // ---- Folders

        function test_addFolder() {
            verify(!page.commitAddFolder("oop", " "))
            compare(page._rangeLibrary._addFolderError, "Please enter a folder name.")
            verify(page.commitAddFolder("ip", "Outer"))
            verify(page.commitAddFolder("ip", "Inner"))
            const outer = node(page.ipCustomRanges, "Outer")
            const inner = node(outer.children, "Inner")
            compare(page.ipSelectedId, inner.id, "the new folder is selected")
            compare(page.ipOpenFolderIds, {[outer.id]: true, [inner.id]: true}, "and opened")
            verify(page.commitAddFolder("ip", "Inner"))
            const innerNow = node(node(page.ipCustomRanges, "Outer").children, "Inner")
            compare(names(innerNow.children), ["Inner"], "a selected folder takes the next one inside")
        }

        // ---- Persistence

        function test_listsAreStoredAndComeBack() {
            verify(page.commitAddFolder("oop", "Box"))
            verify(page.commitSaveRange("oop", "Inner", "AA:0.5"))
            verify(page.commitSaveRange("ip", "Other", "KK"))
            const stored = JSON.parse(String(store.value("oopCustomRangesJson", "")))
            compare(stored, page.oopCustomRanges, "written at once, ids kept")
            const fresh = makePage()
            compare(fresh.oopCustomRanges, page.oopCustomRanges)
            compare(fresh.ipCustomRanges, page.ipCustomRanges)
            compare(fresh.oopRangeCategory, 2)
            compare(fresh.oopSelectedId, "", "the selection is not stored")
        }

        // ---- Choosing from the list

        function test_categoryChangeClearsTheView() {
            verify(page.commitAddFolder("oop", "Box"))
            verify(page.oopSelectedId !== "")
            mouseClick(part(library("oop"), "categoryButton_1"))
            compare(page.oopRangeCategory, 1)
            compare(page.oopSelectedId, "")
            compare(page.oopOpenFolderIds, {})
            page.ipSelectedId = "x"
            page.ipOpenFolderIds = {x: true}
            page.ipRangeCategory = 0
            compare(page.ipSelectedId, "")
            compare(page.ipOpenFolderIds, {})
        }

        function test_clickingRows() {
            page.oopCustomRanges = page._sanitizeCustomTree([{name: "Box", children: [{name: "Leaf",
                                                                                      value: "QQ+, AKs:0.5"}]},
                                                            {name: "Top", value: "22+"}])
            const box = node(page.oopCustomRanges, "Box")
            mouseClick(rowItem("oop", box.id))
            compare(page.oopSelectedId, box.id)
            compare(page.oopOpenFolderIds, {[box.id]: true}, "a folder opens")
            const leaf = box.children[0]
            mouseClick(rowItem("oop", leaf.id))
            compare(page.oopSelectedId, leaf.id)
            compare(page.oopRangeText, "QQ+, AKs:0.5", "a range becomes the range text")
            compare(page.ipRangeText, "")
            mouseClick(rowItem("oop", box.id))
            compare(page.oopOpenFolderIds, {}, "a second click closes the folder")
            compare(names(page.listModelFor("oop")), ["Box", "Top"])
            compare(page.oopRangeText, "QQ+, AKs:0.5", "a folder leaves the text")
        }

        function test_rowLook() {
            page.oopCustomRanges = page._sanitizeCustomTree([{name: "Box", children: [{name: "A long name that "
                + "cannot fit into the narrow library column", value: "AA"}]}])
            const box = page.oopCustomRanges[0]
            const boxRow = rowItem("oop", box.id)
            compare(boxRow.height, 26)
            compare(part(boxRow, "icon").name, "folder-open")
            compare(part(boxRow, "icon").iconOpacity, 0.75, "a closed folder's icon is dimmed")
            compare(part(boxRow, "icon").x, 10)
            mouseClick(boxRow)
            compare(part(rowItem("oop", box.id), "icon").iconOpacity, 1.0)
            const leafRow = rowItem("oop", box.children[0].id)
            compare(part(leafRow, "icon").name, "file-text")
            compare(part(leafRow, "icon").x, 24, "indented by 14 for each level")
            verify(part(leafRow, "name").truncated, "a long name is cut short")
            verify(leafRow.x + leafRow.width <= library("oop").width, "inside the column")
            const tip = part(leafRow, "nameToolTip")
            verify(!tip.visible)
            mouseMove(leafRow, leafRow.width / 2, leafRow.height / 2)
            tryVerify(() => tip.opened, 3000, "resting on it shows the whole name")
            compare(tip.text, box.children[0].name)
            const openBoxRow = rowItem("oop", box.id)
            mouseMove(openBoxRow, openBoxRow.width / 2, openBoxRow.height / 2)
            verify(!part(openBoxRow, "nameToolTip").visible, "a name that fits has no tooltip")
        }

        function test_emptyList() {
            const empty = part(library("ip"), "emptyListText")
            verify(empty.visible)
            compare(empty.text, "No ranges yet.")
            verify(page.commitSaveRange("ip", "X", "AA"))
            tryVerify(() => !empty.visible)
        }

        // ---- Deleting

        function test_deleteSelectsTheRowThatTakesThePlace() {
            page.oopCustomRanges = page._sanitizeCustomTree([{name: "A", value: "AA"}, {name: "B", value: "KK"},
                                                            {name: "C", value: "QQ"}])
            const [a, b, c] = page.oopCustomRanges
            page.oopSelectedId = b.id
            verify(page.deleteSelectedItem("oop"))
            compare(names(page.oopCustomRanges), ["A", "C"])
            compare(page.oopSelectedId, c.id, "the next row")
            compare(page.oopRangeText, "QQ", "a range there becomes the text")
            verify(page.deleteSelectedItem("oop"))
            compare(page.oopSelectedId, a.id, "the last row when the end is passed")
            compare(page.oopRangeText, "AA")
            verify(page.deleteSelectedItem("oop"))
            compare(page.oopCustomRanges, [])
            compare(page.oopSelectedId, "")
            compare(page.oopRangeText, "", "deleting the last node empties the range text")
            verify(!page.deleteSelectedItem("oop"), "nothing left to delete")
        }

        function test_deleteAFolderDropsItsOpenIdsAndKeepsTheText() {
            page.oopCustomRanges = page._sanitizeCustomTree([{name: "Box", children: [{name: "Sub", children: [
                                                                  {name: "L", value: "AA"}]}]},
                                                            {name: "Other", children: []}])
            const [box, other] = page.oopCustomRanges
            page.oopRangeText = "KK"
            page.oopOpenFolderIds = {[box.id]: true, [box.children[0].id]: true}
            page.oopSelectedId = box.id
            verify(page.deleteSelectedItem("oop"))
            compare(page.oopOpenFolderIds, {})
            compare(page.oopSelectedId, other.id)
            compare(page.oopRangeText, "KK", "a folder row leaves the text")
            compare(JSON.parse(String(store.value("oopCustomRangesJson", ""))), page.oopCustomRanges)
        }

        function test_deleteOnlyFromTheCustomList() {
            page.oopStandardRanges = page._sanitizeCustomTree([{name: "S", value: "AA"}])
            page.oopRangeCategory = 0
            page.oopSelectedId = page.oopStandardRanges[0].id
            verify(!part(library("oop"), "deleteSelectedButton").enabled)
            verify(!page.deleteSelectedItem("oop"))
            compare(page.oopStandardRanges.length, 1)
        }

        // ---- Dialogs

        function test_saveDialog() {
            const button = part(library("ip"), "saveRangeButton")
            verify(!button.enabled, "nothing to save")
            page.ipRangeText = "AA, KK:0.5"
            verify(button.enabled)
            compare(button.text, "Save current range…")
            mouseClick(button)
            const dialog = openedDialog("saveRangeDialog")
            compare(dialog.title, "Save IP range")
            compare(part(dialog.contentItem, "nameLabel").text, "Name this range:")
            const field = part(dialog.contentItem, "nameField")
            compare(field.placeholderText, "e.g., BTN vs BB (default)")
            verify(field.activeFocus, "the name field takes focus")
            keyClick(Qt.Key_Return)
            compare(part(dialog.contentItem, "errorText").text, "Please enter a name.")
            verify(dialog.visible, "an error keeps the dialog open")
            typeText("Mine")
            keyClick(Qt.Key_Return)
            tryVerify(() => !dialog.visible, 2000, "Return saves")
            compare(node(page.ipCustomRanges, "Mine").value, "AA, KK:0.5")
        }

        function test_saveDialogKeepsTheTextOfItsOpening() {
            page.oopRangeText = "AA"
            page.openSaveRangeDialog("oop")
            const dialog = openedDialog("saveRangeDialog")
            compare(dialog.title, "Save OOP range")
            page.oopRangeText = "KK"
            typeText("Kept")
            mouseClick(part(dialog.footer, "confirmButton"))
            tryVerify(() => !dialog.visible)
            compare(node(page.oopCustomRanges, "Kept").value, "AA")
        }

        function test_dialogsCloseOnEscape() {
            page.openAddFolderDialog("oop")
            const dialog = openedDialog("addFolderDialog")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !dialog.visible, 2000, "Escape closes")
            compare(page.oopCustomRanges, [])
            verify(dialog.modal)
        }

        function test_addFolderDialog() {
            mouseClick(part(library("ip"), "addFolderButton"))
            const dialog = openedDialog("addFolderDialog")
            compare(dialog.title, "Add folder (IP)")
            compare(part(dialog.contentItem, "nameLabel").text, "Folder name:")
            compare(part(dialog.contentItem, "nameField").placeholderText, "e.g., BTN vs BB")
            compare(part(dialog.footer, "confirmButton").text, "Add")
            mouseClick(part(dialog.footer, "confirmButton"))
            compare(part(dialog.contentItem, "errorText").text, "Please enter a folder name.")
            typeText("Blinds")
            keyClick(Qt.Key_Return)
            tryVerify(() => !dialog.visible)
            compare(page.ipCustomRanges[0].type, "folder")
            compare(page.ipCustomRanges[0].name, "Blinds")
        }

        function test_deleteDialogForAFolder() {
            page.oopCustomRanges = page._sanitizeCustomTree([{name: "Box", children: [
                                                                  {name: "Sub", children: [{name: "L", value: "A"}]},
                                                                  {name: "R", value: "K"}]}])
            const deleteButton = part(library("oop"), "deleteSelectedButton")
            verify(!deleteButton.enabled, "nothing selected")
            page.oopSelectedId = page.oopCustomRanges[0].id
            verify(deleteButton.enabled)
            mouseClick(deleteButton)
            const dialog = openedDialog("deleteRangeDialog")
            compare(dialog.title, "Delete range")
            compare(part(dialog.contentItem, "deleteQuestion").text, "Are you sure you want to delete this folder?")
            compare(part(dialog.contentItem, "deleteName").text, "“Box”")
            compare(part(dialog.contentItem, "deleteConsequence").text,
                    "This will also delete 3 range(s). This cannot be undone.")
            mouseClick(part(dialog.footer, "cancelButton"))
            tryVerify(() => !dialog.visible)
            compare(page.oopCustomRanges.length, 1, "Cancel keeps it")
            page.openDeleteSelectedDialog("oop")
            openedDialog("deleteRangeDialog")
            const confirm = part(dialog.footer, "confirmButton")
            compare(confirm.text, "Delete")
            verify(confirm.danger)
            mouseClick(confirm)
            tryVerify(() => !dialog.visible)
            compare(page.oopCustomRanges, [])
        }

        function test_deleteDialogForARangeAndAnEmptyFolder() {
            page.ipCustomRanges = page._sanitizeCustomTree([{name: "R", value: "K"}, {name: "Empty", children: []}])
            page.ipSelectedId = page.ipCustomRanges[0].id
            page.openDeleteSelectedDialog("ip")
            const dialog = openedDialog("deleteRangeDialog")
            compare(part(dialog.contentItem, "deleteQuestion").text, "Are you sure you want to delete this range?")
            compare(part(dialog.contentItem, "deleteConsequence").text, "This cannot be undone.")
            dialog.close()
            tryVerify(() => !dialog.visible)
            page.ipSelectedId = page.ipCustomRanges[1].id
            page.openDeleteSelectedDialog("ip")
            openedDialog("deleteRangeDialog")
            compare(part(dialog.contentItem, "deleteConsequence").text, "This cannot be undone.")
            dialog.close()
        }
    }
}
