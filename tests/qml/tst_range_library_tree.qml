import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

// The range library's tree functions as the Setup page offers them: ids, sanitising, the accordion list, names,
// weights and overrides.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "RangeLibraryTree"
        when: windowShown

        property var page: null

        Settings {
            id: store
            category: "ranges"
        }

        // Serves no bundled data, so that the page stands on the tests' own trees.
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

        function init() {
            for (const key of ["oopCustomRangesJson", "ipCustomRangesJson"])
                store.setValue(key, "")
            store.sync()
            const controller = createTemporaryObject(controllerComponent, root)
            page = createTemporaryObject(pageComponent, root, {controller: controller})
            verify(page !== null)
        }

        function range(id, name, value) {
            return {id: id, type: "range", name: name, value: value}
        }

        function folder(id, name, children) {
            return {id: id, type: "folder", name: name, children: children}
        }

        // F1 {A, F2 {B}}, F3 {C}, R1.
        function sampleTree() {
            return [folder("f1", "F1", [range("a", "A", "AA"), folder("f2", "F2", [range("b", "B", "KK")])]),
                    folder("f3", "F3", [range("c", "C", "QQ")]),
                    range("r1", "R1", "JJ")]
        }

        function showCustom(tree, openIds) {
            page.oopRangeCategory = 2
            page.oopCustomRanges = tree
            page.oopOpenFolderIds = openIds
        }

        function rowIds() {
            return page._flattenTreeFor("oop").map(row => row.id)
        }

        // ---- Ids

        function test_newNodeIdForm() {
            const before = Date.now()
            const id = page._newNodeId()
            const after = Date.now()
            const match = /^n_([0-9a-z]+)_([0-9a-z]{6})$/.exec(id)
            verify(match !== null, "form of " + id)
            const time = parseInt(match[1], 36)
            verify(time >= before && time <= after, "the time in base 36")
            verify(page._newNodeId() !== id, "two ids differ")
        }

        // ---- Sanitising

        function test_sanitizeKeepsTheStoredShape() {
            const tree = sampleTree()
            compare(page._sanitizeCustomTree(tree), tree, "a clean tree comes back unchanged, ids kept")
        }

        function test_sanitizeAcceptsLegacyShapes() {
            const result = page._sanitizeCustomTree([
                {name: " Open ", value: "AA"},
                {name: "Box", children: [{name: "Inner", value: "KK"}]},
                {type: "folder", name: "Empty"}
            ])
            compare(result.length, 3)
            compare(result[0].type, "range")
            compare(result[0].name, "Open", "names are trimmed")
            compare(result[0].value, "AA")
            verify(/^n_/.test(result[0].id), "a legacy node gets an id")
            compare(result[1].type, "folder", "an array of children makes a folder")
            compare(result[1].children[0].type, "range")
            compare(result[1].children[0].value, "KK")
            compare(result[2].type, "folder", "the folder type alone makes a folder")
            compare(result[2].children, [])
        }

        function test_sanitizeDropsWhatIsNoNode() {
            const result = page._sanitizeCustomTree([null, 5, "text", [], {name: "  "}, {value: "AA"},
                                                     {name: "Kept"}])
            compare(result.length, 1)
            compare(result[0].name, "Kept")
            compare(result[0].value, "", "a missing value is empty")
            compare(page._sanitizeCustomTree(null), [])
            compare(page._sanitizeCustomTree({name: "x"}), [], "not an array gives an empty list")
        }

        function test_sanitizeGivesNewIdsToBlankAndRepeatedOnes() {
            const result = page._sanitizeCustomTree([range("same", "One", "AA"), range("same", "Two", "KK"),
                                                     range(" ", "Three", "QQ")])
            compare(result[0].id, "same")
            verify(result[1].id !== "same", "a repeated id is replaced")
            verify(/^n_/.test(result[2].id), "a blank id is replaced")
        }

        function test_sanitizePresetList() {
            compare(page._sanitizePresetList([{name: " No rake / RFI UTG ", value: "AA"}, {name: ""}, null,
                                              {value: "KK"}, {name: "x"}]),
                    [{name: "No rake / RFI UTG", value: "AA"}, {name: "x", value: ""}])
            compare(page._sanitizePresetList(undefined), [])
        }

        // ---- The accordion list

        function test_flattenShowsTheTopLevelWhenNothingIsOpen() {
            showCustom(sampleTree(), {})
            const rows = page._flattenTreeFor("oop")
            compare(rows.map(row => row.id), ["f1", "f3", "r1"])
            compare(rows[0], {id: "f1", kind: "folder", name: "F1", displayName: "F1", depth: 0, parentFolderId: ""})
            compare(rows[2], {id: "r1", kind: "range", name: "R1", displayName: "R1", value: "JJ", depth: 0,
                              parentFolderId: ""})
            verify(!("value" in rows[0]), "a folder row has no value")
        }

        function test_flattenShowsOnlyTheOpenFolderOfALevel() {
            showCustom(sampleTree(), {f1: true})
            const rows = page._flattenTreeFor("oop")
            compare(rows.map(row => row.id), ["f1", "a", "f2"], "siblings of the open folder, ranges too, hide")
            compare(rows[1].depth, 1)
            compare(rows[1].parentFolderId, "f1")
            compare(rows[2].parentFolderId, "f1")
        }

        function test_flattenFollowsOpenFoldersDown() {
            showCustom(sampleTree(), {f1: true, f2: true})
            const rows = page._flattenTreeFor("oop")
            compare(rows.map(row => row.id), ["f1", "f2", "b"])
            compare(rows.map(row => row.depth), [0, 1, 2])
            compare(rows[2].parentFolderId, "f2")
        }

        function test_flattenIgnoresAnOpenFolderBelowAClosedOne() {
            showCustom(sampleTree(), {f2: true})
            compare(rowIds(), ["f1", "f3", "r1"])
        }

        function test_flattenOfAnUnknownPlayerIsEmpty() {
            compare(page._flattenTreeFor("btn"), [])
            compare(page.listModelFor("btn"), [])
        }

        function test_toggleOpenFolderIsAnAccordion() {
            showCustom(sampleTree(), {})
            page._toggleOpenFolder("oop", "f1")
            compare(page.oopOpenFolderIds, {f1: true})
            page._toggleOpenFolder("oop", "f3")
            compare(page.oopOpenFolderIds, {f3: true}, "opening a folder closes its sibling")
            compare(rowIds(), ["f3", "c"])
            page._toggleOpenFolder("oop", "f3")
            compare(page.oopOpenFolderIds, {}, "an open folder closes")
            compare(rowIds(), ["f1", "f3", "r1"], "and its siblings show again")
        }

        function test_toggleOpenFolderKeepsTheFoldersAbove() {
            showCustom(sampleTree(), {f1: true})
            page._toggleOpenFolder("oop", "f2")
            compare(page.oopOpenFolderIds, {f1: true, f2: true})
            page._toggleOpenFolder("oop", "r1")
            compare(page.oopOpenFolderIds, {f1: true, f2: true}, "a range does not open")
        }

        // ---- Names and weights

        function test_uniqueRangeName() {
            const siblings = [folder("x", "A", []), range("y", "B", "AA"), range("z", "B (2)", "KK")]
            compare(page._uniqueRangeName(siblings, "  C "), "C")
            compare(page._uniqueRangeName(siblings, "A"), "A (2)", "folders count as siblings")
            compare(page._uniqueRangeName(siblings, "B"), "B (3)")
            compare(page._uniqueRangeName([], "A"), "A")
        }

        function test_stripWeightsText() {
            compare(page._stripWeightsText("AA, KK:0.5 QQ:1,AKs:0.25"), "AA, KK, QQ, AKs")
            compare(page._stripWeightsText("22-66:0.5, KJo:0, A5s:.75"), "22-66, KJo, A5s")
            compare(page._stripWeightsText("  "), "")
            compare(page._stripWeightsText("100%"), "100%")
        }

        // ---- Overrides

        function rakeTree() {
            return [folder("t", "6-max", [folder("r", "No rake", [folder("s", "RFI", [range("u", "UTG", "AA"),
                                                                                    range("h", "HJ", "KK")])])])]
        }

        function test_overridesReplaceLeavesByPathAndKeepIds() {
            const result = page._applyOverridesToTree(rakeTree(), {"6-max / No rake / RFI / UTG": "22+"}, [])
            compare(result[0].id, "t")
            compare(result[0].children[0].children[0].id, "s")
            const leaves = result[0].children[0].children[0].children
            compare(leaves[0], range("u", "UTG", "22+"))
            compare(leaves[1], range("h", "HJ", "KK"), "a leaf without an override keeps its value")
        }

        function test_anEmptyOverrideCountsAsNone() {
            const result = page._applyOverridesToTree(rakeTree(), {"6-max / No rake / RFI / UTG": ""}, [])
            compare(result[0].children[0].children[0].children[0].value, "AA")
        }

        function test_overridesUnderOlderKeys() {
            const rakeLevel = rakeTree()[0].children
            const sixMaxKey = page._applyOverridesToTree(rakeLevel, {"6-max / No rake / RFI / UTG": "QQ+"}, [])
            compare(sixMaxKey[0].children[0].children[0].value, "QQ+", "a key that began with 6-max")
            const headsUpKey = page._applyOverridesToTree(rakeLevel, {"Heads up / No rake / RFI / HJ": "TT+"}, [])
            compare(headsUpKey[0].children[0].children[1].value, "TT+", "a key that began with Heads up")
            const both = page._applyOverridesToTree(rakeLevel, {"No rake / RFI / UTG": "new",
                                                                "6-max / No rake / RFI / UTG": "old"}, [])
            compare(both[0].children[0].children[0].value, "new", "the current key wins")
        }

        function test_overridesStartFromTheGivenPath() {
            const leaves = rakeTree()[0].children[0].children[0].children
            const result = page._applyOverridesToTree(leaves, {"6-max / No rake / RFI / HJ": "99+"},
                                                      ["6-max", "No rake", "RFI"])
            compare(result[1].value, "99+")
        }
    }
}
