import QtQuick
import QtTest
import Kelvane

// The Standard tree built from flat preset names, its export back to those names, the Population template, and
// the bundled data files themselves.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "RangeLibraryStandard"
        when: windowShown

        property var page: null
        readonly property var rakes: ["No rake", "50nl rake", "100nl rake", "200nl rake", "500nl rake"]
        readonly property var scenarios: ["RFI", "vs RFI", "vs 3bet", "vs 4bet"]

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

        function init() {
            const controller = createTemporaryObject(emptyControllerComponent, root)
            page = createTemporaryObject(pageComponent, root, {controller: controller})
            verify(page !== null)
        }

        // The tree without ids, so that two builds compare.
        function shape(nodes) {
            return nodes.map(node => node.type === "folder" ? {type: "folder", name: node.name,
                                                               children: shape(node.children)}
                                                            : {type: node.type, name: node.name, value: node.value})
        }

        function folderNamed(nodes, name) {
            const found = nodes.find(node => node.type === "folder" && node.name === name)
            verify(found !== undefined, "a folder " + name)
            return found
        }

        function at(tree, path) {
            let nodes = tree
            let node = null
            for (const name of path) {
                node = folderNamed(nodes, name)
                nodes = node.children
            }
            return node
        }

        function count(nodes, type) {
            return nodes.reduce((sum, node) => sum + (node.type === type ? 1 : 0)
                                 + (node.type === "folder" ? count(node.children, type) : 0), 0)
        }

        function resourceText(path) {
            return appController.readTextResource(path)
        }

        // ---- Routing

        function test_routing_data() {
            return [
                {tag: "RFI", name: "No rake / RFI UTG", path: ["6-max", "No rake", "RFI"], leaf: "UTG"},
                {tag: "vs RFI with opener", name: "50nl rake / vs RFI HJ: 3bet BB",
                 path: ["6-max", "50nl rake", "vs RFI", "vs HJ RFI"], leaf: "3bet BB"},
                {tag: "vs RFI without colon", name: "No rake / vs RFI SB", path: ["6-max", "No rake", "vs RFI"],
                 leaf: "SB"},
                {tag: "vs RFI with empty tail", name: "No rake / vs RFI CO:", path: ["6-max", "No rake", "vs RFI"],
                 leaf: "CO:"},
                {tag: "opener decides vs 3bet", name: "100nl rake / UTG vs HJ 3bet: UTG 4bet",
                 path: ["6-max", "100nl rake", "vs 3bet", "UTG vs HJ 3bet"], leaf: "UTG 4bet"},
                {tag: "3bettor faces 4bet", name: "200nl rake / SB 3bet vs UTG 4bet: SB Call",
                 path: ["6-max", "200nl rake", "vs 4bet", "SB 3bet vs UTG 4bet"], leaf: "SB Call"},
                {tag: "vs 4bet without colon", name: "No rake / BB 3bet vs SB 4bet",
                 path: ["6-max", "No rake", "vs 4bet"], leaf: "BB 3bet vs SB 4bet"},
                {tag: "vs 3bet with empty action", name: "No rake / CO vs BTN 3bet:",
                 path: ["6-max", "No rake", "vs 3bet"], leaf: "CO vs BTN 3bet:"},
                {tag: "untagged without rake", name: "RFI CO", path: ["6-max", "No rake", "RFI"], leaf: "CO"},
                {tag: "other name under the rake", name: "500nl rake / Limp pot", path: ["6-max", "500nl rake"],
                 leaf: "Limp pot"},
                {tag: "unknown prefix is kept", name: "Mystery / Thing", path: ["6-max", "No rake"],
                 leaf: "Mystery / Thing"},
                {tag: "6-max tag", name: "6-max / 500nl rake / RFI SB", path: ["6-max", "500nl rake", "RFI"],
                 leaf: "SB"},
                {tag: "heads-up vs RFI", name: "Heads up / No rake / vs RFI SB: Call BB",
                 path: ["Heads up", "No rake"], leaf: "vs RFI SB: Call BB"},
                {tag: "heads-up RFI", name: "Heads up / 50nl rake / RFI SB", path: ["Heads up", "50nl rake"],
                 leaf: "RFI SB"},
                {tag: "heads-up tag anywhere", name: "No rake / Heads up / RFI SB", path: ["Heads up", "No rake"],
                 leaf: "RFI SB"},
                {tag: "heads-up without rake", name: "Heads up / SB limp", path: ["Heads up", "No rake"],
                 leaf: "SB limp"},
                {tag: "parts are trimmed", name: " 100nl rake  /  RFI HJ ", path: ["6-max", "100nl rake", "RFI"],
                 leaf: "HJ"}
            ]
        }

        function test_routing(data) {
            const tree = page._buildStandardTree([{name: data.name, value: "AA:0.5"}])
            const leaves = at(tree, data.path).children.filter(node => node.type !== "folder")
            compare(leaves.length, 1, "one leaf in " + data.path.join(" / "))
            compare(leaves[0].name, data.leaf)
            compare(leaves[0].value, "AA:0.5")
            compare(count(tree, "range"), 1, "and nowhere else")
        }

        function test_skeletonIsAlwaysThere() {
            const tree = page._buildStandardTree([])
            compare(tree.map(node => node.name), ["6-max", "Heads up"])
            for (const table of tree)
                compare(table.children.map(node => node.name), rakes)
            for (const rake of tree[0].children)
                compare(rake.children.map(node => node.name), scenarios, "six-max scenario folders in order")
            for (const rake of tree[1].children)
                compare(rake.children, [], "heads-up has no scenario folders")
        }

        function test_foldersOfOneOpenerCollect() {
            const tree = page._buildStandardTree([{name: "No rake / vs RFI UTG: Call SB", value: "A"},
                                                  {name: "No rake / vs RFI UTG: 3bet SB", value: "B"},
                                                  {name: "No rake / vs RFI HJ: Call SB", value: "C"}])
            const vsRfi = at(tree, ["6-max", "No rake", "vs RFI"])
            compare(vsRfi.children.map(node => node.name), ["vs UTG RFI", "vs HJ RFI"], "in order of appearance")
            compare(vsRfi.children[0].children.map(node => node.name), ["Call SB", "3bet SB"])
        }

        // ---- Export

        function canonicalNames() {
            return ["No rake / RFI UTG", "No rake / vs RFI UTG: Call SB", "No rake / vs RFI SB",
                    "No rake / UTG vs HJ 3bet: UTG Call", "No rake / SB 3bet vs UTG 4bet: SB Call",
                    "No rake / Limp pot", "50nl rake / RFI HJ", "500nl rake / BB 3bet vs SB 4bet",
                    "Heads up / No rake / RFI SB", "Heads up / 200nl rake / vs RFI SB: Call BB"]
        }

        function test_exportInvertsTheRouting() {
            const list = canonicalNames().map((name, i) => ({name: name, value: "value " + i}))
            compare(page._flattenStandardForExport(page._buildStandardTree(list)), list)
        }

        function test_exportOfAnyPathReadsBackToTheSameTree() {
            const tree = page._sanitizeCustomTree(page._buildStandardTree([{name: "No rake / RFI UTG", value: "A"}]))
            const rfi = at(tree, ["6-max", "No rake", "RFI"])
            rfi.children.push({id: "x", type: "folder", name: "Deep", children: [{id: "y", type: "range",
                                                                                  name: "Leaf", value: "B"}]})
            const names = page._flattenStandardForExport(tree).map(entry => entry.name)
            compare(names, ["No rake / RFI UTG", "No rake / RFI / Deep / Leaf"])
            const readBack = page._buildStandardTree(page._flattenStandardForExport(tree))
            compare(count(readBack, "range"), 2)
        }

        function test_exportWithoutTableFoldersIsEmpty() {
            compare(page._flattenStandardForExport([{type: "folder", name: "Other", children: [
                                                         {type: "range", name: "x", value: "AA"}]}]), [])
            compare(page._flattenStandardForExport([]), [])
        }

        // ---- Population template

        function standardTreeOf(player, text) {
            const document = JSON.parse(text)
            return page._sanitizeCustomTree(page._buildStandardTree(page._sanitizePresetList(document[player].standard)))
        }

        function fixtureText() {
            const result = appController.readTextFile(Qt.resolvedUrl("data/range_library_standard.json"))
            verify(result.ok, result.error)
            return result.text
        }

        function test_templateOfEachPlayer() {
            const template = {oop: page._buildExploitTree("oop", []), ip: page._buildExploitTree("ip", [])}
            for (const player of ["oop", "ip"]) {
                compare(template[player].map(node => node.name),
                        ["Passive (VPIP 18–65)", "Loose aggressive (VPIP 28–70)", "Weaker regs",
                         "Overfolder (10-22 VPIP)", "Other"])
                compare(template[player][0].children.map(node => node.name),
                        ["Passive tight (VPIP 18–25)", "Passive neutral (VPIP 25–35)", "Passive loose (VPIP 35–45)",
                         "Extreme loose (VPIP 45–65)"])
                compare(template[player][1].children.map(node => node.name),
                        ["Standard LAG (VPIP 28–40)", "Maniac (VPIP 45–70)"])
                compare(template[player][2].children.map(node => node.name), ["Tighter reg", "Looser reg"])
                compare(template[player][3].children.map(node => node.name), ["Nit"])
                compare(shape(template[player][4].children), [{type: "range", name: "Bomb pot", value: "100%"}])
            }
            compare(template.oop[0].children[0].children.map(node => node.name),
                    ["3b cold call", "UTG/HJ/CO", "SB", "BB"])
            compare(template.ip[0].children[0].children.map(node => node.name),
                    ["3b cold call", "UTG/HJ/CO", "BU", "BB"], "the button only for IP, the small blind only for OOP")
            compare(at(template.oop, ["Passive (VPIP 18–65)", "Passive loose (VPIP 35–45)", "BB"]).children
                    .map(node => node.name), ["Check back", "Call raise", "3b", "Call 4b"])
            compare(at(template.ip, ["Loose aggressive (VPIP 28–70)", "Maniac (VPIP 45–70)", "BB"]).children
                    .map(node => node.name), ["Call", "3b"])
            const checkBacks = JSON.stringify(template.ip).indexOf("Check back")
            compare(checkBacks, -1, "no check back for IP")
            verify(at(template.oop, ["Overfolder (10-22 VPIP)", "Nit", "SB"]).children.every(node => node.value === ""),
                   "the Nit leaves are blank")
        }

        function test_weakerRegsCopyTheNoRakePresetsWithoutWeights() {
            const standard = standardTreeOf("oop", fixtureText())
            const template = page._buildExploitTree("oop", standard)
            const noRake = at(standard, ["6-max", "No rake"])
            for (const reg of ["Tighter reg", "Looser reg"]) {
                const copy = at(template, ["Weaker regs", reg])
                compare(copy.children.map(node => node.name), scenarios)
                compare(at(copy.children, ["RFI"]).children.map(node => [node.name, node.value]),
                        [["UTG", "AA, KK, QQ, AKs"]], "the weights are stripped")
                compare(at(copy.children, ["vs RFI", "vs UTG RFI"]).children.map(node => node.name),
                        ["Call SB", "3bet SB"])
                verify(copy.children[0].id !== noRake.children[0].id, "the copy has fresh ids")
            }
            verify(at(template, ["Weaker regs", "Tighter reg"]).children[0].id
                   !== at(template, ["Weaker regs", "Looser reg"]).children[0].id, "each copy its own ids")
        }

        // ---- The bundled files

        function bundledText(name) {
            const text = resourceText(":/Kelvane/qml/data/" + name)
            if (text.trim() === "")
                skip("the bundled " + name + " is not in the resources yet")
            return text
        }

        function test_bundledStandardTreeHasTheTablesAndRakes() {
            const text = bundledText("standard_ranges.json")
            for (const player of ["oop", "ip"]) {
                const tree = standardTreeOf(player, text)
                compare(tree.map(node => node.name), ["6-max", "Heads up"])
                compare(folderNamed(tree, "6-max").children.map(node => node.name), rakes)
                compare(folderNamed(tree, "Heads up").children.map(node => node.name), rakes)
            }
            const document = JSON.parse(text)
            compare(document.oop.standard.length, 230)
            compare(document.ip.standard.length, 225)
        }

        function test_bundledStandardExportKeepsTheFile() {
            const document = JSON.parse(bundledText("standard_ranges.json"))
            for (const player of ["oop", "ip"]) {
                const list = page._sanitizePresetList(document[player].standard)
                compare(page._flattenStandardForExport(page._buildStandardTree(list)), list,
                        player + " exports to the same names in the same order")
            }
        }

        function test_bundledStandardGivesTheTemplateOfTheCounts() {
            const text = bundledText("standard_ranges.json")
            const expected = {oop: {folders: 81, ranges: 193}, ip: {folders: 81, ranges: 202}}
            for (const player of ["oop", "ip"]) {
                const template = page._buildExploitTree(player, standardTreeOf(player, text))
                compare(count(template, "folder"), expected[player].folders, player + " folders")
                compare(count(template, "range"), expected[player].ranges, player + " ranges")
            }
        }

        function test_bundledPopulationFileHasEveryTemplateFolder() {
            const document = JSON.parse(bundledText("exploit_ranges.json"))
            for (const player of ["oop", "ip"]) {
                const fileTree = page._sanitizeCustomTree(document[player].exploit)
                const template = page._buildExploitTree(player, [])
                compare(fileTree.map(node => node.name), template.map(node => node.name),
                        "the template adds nothing for " + player)
            }
        }
    }
}
