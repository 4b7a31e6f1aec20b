import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

// The start of the range library: stored overrides, the bundled Standard and Population documents (here the
// tests' own, served as resources by a stand-in controller), the settings profiles and the stored Custom lists,
// in that order.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "RangeLibraryPresets"
        when: windowShown

        readonly property string standardPath: ":/Kelvane/qml/data/standard_ranges.json"
        readonly property string standardFallbackPath: ":/qt/qml/Kelvane/qml/data/standard_ranges.json"
        readonly property string exploitPath: ":/Kelvane/qml/data/exploit_ranges.json"
        readonly property var storedKeys: ["oopCustomRangesJson", "ipCustomRangesJson", "oopStandardOverridesJson",
            "ipStandardOverridesJson", "oopExploitOverridesJson", "ipExploitOverridesJson"]

        Settings {
            id: store
            category: "ranges"
        }

        Settings {
            id: profileStore
            category: "settings_profiles"
        }

        // Answers resource reads from its table and keeps the paths asked for.
        Component {
            id: controllerComponent

            QtObject {
                property var resources: ({})
                property var reads: []

                function readTextResource(path) {
                    reads = reads.concat([path])
                    return resources[path] !== undefined ? resources[path] : ""
                }
            }
        }

        // Has no resource reader, like the stand-in controllers of other tests.
        Component {
            id: resourcelessControllerComponent

            QtObject {
                property bool developerMode: false
            }
        }

        Component {
            id: pageComponent

            ProjectPage {
                width: root.width
                height: root.height
            }
        }

        // Notes, at each step of its start, what the page had loaded by then. Changes while the page is still
        // being made are noted too, with nothing loaded yet.
        Component {
            id: watchedPageComponent

            ProjectPage {
                id: watched

                property var steps: []

                function note(step) {
                    steps = steps.concat([{step: step,
                                           overrides: Object.keys(watched.oopStandardOverrides || {}).length,
                                           profiles: (watched.settingsProfiles || []).length,
                                           custom: (watched.oopCustomRanges || []).length}])
                }

                width: root.width
                height: root.height
                controller: QtObject {
                    function readTextResource(path) {
                        watched.note("presets")
                        return ""
                    }
                }
                onSettingsProfilesChanged: note("profiles")
                onOopCustomRangesChanged: note("custom")
            }
        }

        function init() {
            for (const key of storedKeys)
                store.setValue(key, "")
            store.sync()
            profileStore.setValue("profilesJson", "")
            profileStore.sync()
        }

        function cleanupTestCase() {
            init()
        }

        function fixture(name) {
            const result = appController.readTextFile(Qt.resolvedUrl("data/" + name))
            verify(result.ok, result.error)
            return result.text
        }

        function controllerWith(resources) {
            return createTemporaryObject(controllerComponent, root, {resources: resources})
        }

        function pageWith(resources) {
            const controller = controllerWith(resources)
            const page = createTemporaryObject(pageComponent, root, {controller: controller})
            verify(page !== null)
            return page
        }

        function bothFixtures() {
            const resources = {}
            resources[standardPath] = fixture("range_library_standard.json")
            resources[exploitPath] = fixture("range_library_exploit.json")
            return resources
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

        // ---- Standard

        function test_standardTreeFromTheDocument() {
            const page = pageWith(bothFixtures())
            compare(page._presetLoadError, "")
            compare(names(page.oopStandardRanges), ["6-max", "Heads up"])
            compare(at(page.oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"]).value, "AA, KK, QQ:0.8, AKs")
            compare(at(page.oopStandardRanges, ["Heads up", "500nl rake", "BB 3bet vs SB 4bet: BB Call"]).value,
                    "TT, AQo")
            compare(at(page.ipStandardRanges, ["6-max", "No rake", "vs RFI", "vs SB RFI", "3bet BB"]).value,
                    "AA, A5s:0.8")
            verify(/^n_/.test(page.oopStandardRanges[0].id), "the built tree has ids")
            compare(page.rangesFor("oop", 0), page.oopStandardRanges)
            compare(page.rangesFor("ip", 1), page.ipExploitRanges)
            compare(page.rangesFor("ip", 2), page.ipCustomRanges)
            compare(page.rangesFor("btn", 0), [])
            compare(page.rangesFor("oop", 7), [])
        }

        function test_idsAreNewAtEveryStart() {
            const first = pageWith(bothFixtures())
            const second = pageWith(bothFixtures())
            verify(first.oopStandardRanges[0].id !== second.oopStandardRanges[0].id)
            verify(first.oopExploitRanges[0].id !== second.oopExploitRanges[0].id)
        }

        function test_theSecondPathIsTriedWhenTheFirstIsBlank() {
            const resources = {}
            resources[standardPath] = "   "
            resources[standardFallbackPath] = fixture("range_library_standard.json")
            const page = pageWith(resources)
            compare(page.controller.reads.slice(0, 2), [standardPath, standardFallbackPath])
            compare(page._presetLoadError, "")
            compare(names(page.oopStandardRanges), ["6-max", "Heads up"])
        }

        function test_missingStandardFile() {
            const resources = {}
            resources[exploitPath] = fixture("range_library_exploit.json")
            const page = pageWith(resources)
            compare(page._presetLoadError, "Failed to load bundled standard presets (resource file missing/empty).")
            compare(page.oopStandardRanges, [])
            compare(page.ipStandardRanges, [])
            compare(names(page.oopExploitRanges)[0], "Passive (VPIP 18–65)", "the Population step still runs")
            compare(at(page.oopExploitRanges, ["Weaker regs", "Tighter reg"]).children, [],
                    "with nothing to copy the regs are empty")
        }

        function test_noFilesAtAll() {
            const page = pageWith({})
            compare(page.oopStandardRanges, [])
            compare(names(page.oopExploitRanges), names(page._buildExploitTree("oop", [])),
                    "the template stands alone")
            compare(names(page.ipExploitRanges), names(page._buildExploitTree("ip", [])))
        }

        function test_corruptDocument() {
            const resources = bothFixtures()
            resources[standardPath] = "{ not json"
            const page = pageWith(resources)
            verify(page._presetLoadError.startsWith("Failed to load bundled presets: "), page._presetLoadError)
            compare(page.oopStandardRanges, [])
            compare(page.oopExploitRanges, [])
            compare(page.ipExploitRanges, [])
        }

        function test_documentWithoutPlayersGivesEmptyLists() {
            const resources = {}
            resources[standardPath] = JSON.stringify({other: {standard: [{name: "No rake / RFI UTG", value: "AA"}]}})
            resources[exploitPath] = JSON.stringify({format: "kelvane_ranges_export", version: 1})
            const page = pageWith(resources)
            compare(page._presetLoadError, "")
            compare(page.oopStandardRanges, [])
            compare(page.ipStandardRanges, [])
            compare(names(page.oopExploitRanges), names(page._buildExploitTree("oop", [])),
                    "no file tree: the template whole")
        }

        function test_documentWithOnePlayer() {
            const resources = {}
            resources[standardPath] = JSON.stringify({ip: {standard: [{name: "No rake / RFI BTN", value: "AA"}]}})
            const page = pageWith(resources)
            compare(page.oopStandardRanges, [])
            compare(at(page.ipStandardRanges, ["6-max", "No rake", "RFI", "BTN"]).value, "AA")
        }

        function test_withoutAResourceReaderTheFilesAreRequested() {
            const controller = createTemporaryObject(resourcelessControllerComponent, root)
            const page = createTemporaryObject(pageComponent, root, {controller: controller})
            tryVerify(() => page.oopExploitRanges.length > 0, 20000, "the requests end")
            // Qt answers requests for its own resources only when QML_XHR_ALLOW_FILE_READ is set; without it every
            // request fails and the Population template stands alone.
            if (page.oopStandardRanges.length > 0) {
                compare(page._presetLoadError, "")
                compare(names(page.oopStandardRanges), ["6-max", "Heads up"])
            } else {
                compare(page._presetLoadError, "Failed to load bundled presets.")
                compare(names(page.oopExploitRanges), names(page._buildExploitTree("oop", [])))
            }
        }

        // ---- Population

        function test_populationFileWinsAndTheTemplateFillsIn() {
            const page = pageWith(bothFixtures())
            compare(names(page.oopExploitRanges), ["Passive (VPIP 18–65)", "Other", "Loose aggressive (VPIP 28–70)",
                                                   "Weaker regs", "Overfolder (10-22 VPIP)"])
            compare(names(at(page.oopExploitRanges, ["Passive (VPIP 18–65)"]).children),
                    ["Passive tight (VPIP 18–25)"], "a folder of the file is taken as it is")
            compare(at(page.oopExploitRanges, ["Passive (VPIP 18–65)", "Passive tight (VPIP 18–25)", "SB", "Limp"])
                    .value, "22-66, A2s-A5s:0.5")
            compare(names(at(page.oopExploitRanges, ["Weaker regs", "Looser reg", "RFI"]).children), ["UTG"])
            compare(at(page.oopExploitRanges, ["Weaker regs", "Looser reg", "RFI", "UTG"]).value, "AA, KK, QQ, AKs")
        }

        function test_populationFileWithoutFoldersTakesTheTemplate() {
            const page = pageWith(bothFixtures())
            compare(names(page.ipExploitRanges), names(page._buildExploitTree("ip", [])))
            verify(names(page.ipExploitRanges).indexOf("Loose leaf") < 0)
        }

        // ---- Overrides at start

        function test_storedOverridesAreApplied() {
            store.setValue("oopStandardOverridesJson", JSON.stringify({"6-max / No rake / RFI / UTG": "22+"}))
            store.setValue("ipExploitOverridesJson", JSON.stringify({"Other / Bomb pot": "50%"}))
            store.setValue("ipStandardOverridesJson", "{ corrupt")
            store.sync()
            const page = pageWith(bothFixtures())
            compare(page.oopStandardOverrides, {"6-max / No rake / RFI / UTG": "22+"})
            compare(at(page.oopStandardRanges, ["6-max", "No rake", "RFI", "UTG"]).value, "22+")
            compare(at(page.ipExploitRanges, ["Other", "Bomb pot"]).value, "50%")
            compare(page.ipStandardOverrides, {}, "a corrupt map counts as empty")
            compare(page.oopExploitOverrides, {})
        }

        function test_overridesKeepToTheirPlayer() {
            store.setValue("oopStandardOverridesJson", JSON.stringify({"6-max / No rake / RFI / BTN": "22+"}))
            store.sync()
            const page = pageWith(bothFixtures())
            compare(at(page.ipStandardRanges, ["6-max", "No rake", "RFI", "BTN"]).value, "AA, 22:0.4, K9s")
        }

        // ---- Custom lists at start

        function test_storedCustomListsLoadWithTheirIds() {
            const tree = [{id: "n_a", type: "folder", name: "Mine", children: [{id: "n_b", type: "range", name: "X",
                                                                                value: "AA"}]}]
            store.setValue("oopCustomRangesJson", JSON.stringify(tree))
            store.sync()
            const page = pageWith({})
            compare(page.oopCustomRanges, tree)
            compare(page.ipCustomRanges, [], "each player has a list of its own")
        }

        function test_unusableCustomListsAreEmpty_data() {
            return [{tag: "blank", text: "  "}, {tag: "corrupt", text: "[{"}, {tag: "empty", text: "[]"},
                    {tag: "not a list", text: "{\"name\": \"x\"}"}]
        }

        function test_unusableCustomListsAreEmpty(data) {
            store.setValue("oopCustomRangesJson", data.text)
            store.sync()
            const page = pageWith({})
            compare(page.oopCustomRanges, [])
            compare(page.oopRangeCategory, 2, "the list starts on Custom")
            compare(page.ipRangeCategory, 2)
        }

        function test_startOrder() {
            store.setValue("oopStandardOverridesJson", JSON.stringify({"6-max / No rake / RFI / UTG": "22+"}))
            store.setValue("oopCustomRangesJson", JSON.stringify([{id: "n_c", type: "range", name: "C",
                                                                   value: "AA"}]))
            store.sync()
            profileStore.setValue("profilesJson", JSON.stringify([{id: "p", name: "P", createdAt: "", data: {}}]))
            profileStore.sync()
            const page = createTemporaryObject(watchedPageComponent, root)
            verify(page !== null)
            const steps = page.steps
            const presetSteps = steps.filter(entry => entry.step === "presets")
            verify(presetSteps.length > 0, "the presets were read")
            for (const entry of presetSteps)
                compare(entry, {step: "presets", overrides: 1, profiles: 0, custom: 0},
                        "the overrides are in, and nothing else, when the presets are read")
            const lastPresets = steps.map(entry => entry.step).lastIndexOf("presets")
            const profiles = steps.findIndex(entry => entry.step === "profiles" && entry.profiles === 1)
            const custom = steps.findIndex(entry => entry.step === "custom" && entry.custom === 1)
            verify(lastPresets < profiles, "the profiles load after the presets")
            verify(profiles < custom, "the Custom lists load last")
            compare(steps[profiles].custom, 0)
        }
    }
}
