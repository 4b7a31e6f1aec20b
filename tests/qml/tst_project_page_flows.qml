import QtQuick
import QtQuick.Controls
import QtTest
import Qt.labs.settings
import Kelvane

// Flows across the Setup page and its neighbours: the click weight of each range card, profiles that outlive the
// page, the solve map after Quick Solve and the memory estimates that a loaded profile asks for.
// TestCase itself is invisible, so the pages under test are placed in this visible item.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "ProjectPageFlows"
        when: windowShown

        readonly property int estimateDebounceMs: 450
        readonly property int defaultWindowWidth: 1540
        readonly property var sizingKinds: ({bet_sizes: "BetSizesText", raise_sizes: "RaiseSizesText",
                                             add_all_in: "AddAllIn", dont_donk: "DontDonk"})
        // Solve map key to project state key, for the keys that are not named after the sizing grid.
        readonly property var plainSolveKeys: ({
            board: "boardText", oop_range: "oopRangeText", ip_range: "ipRangeText", max_iterations: "maxIterations",
            starting_pot: "startingPot", effective_stack: "effectiveStack", rake_percent: "rakePercent",
            rake_cap: "rakeCap", starting_street: "startingStreet", thread_count: "threadCount",
            oop_add_all_in_jam_threshold_enabled: "oopAddAllInIfJamLtEnabled",
            oop_add_all_in_jam_threshold_pct: "oopAddAllInIfJamLtPct",
            ip_add_all_in_jam_threshold_enabled: "ipAddAllInIfJamLtEnabled",
            ip_add_all_in_jam_threshold_pct: "ipAddAllInIfJamLtPct"
        })

        Settings {
            id: store
            category: "settings_profiles"
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

        Component {
            id: pageComponent

            ProjectPage {
                width: root.width
                height: root.height
            }
        }

        // Every test starts from an empty store and leaves one behind.
        function init() {
            store.setValue("profilesJson", "")
            store.sync()
        }

        function cleanup() {
            init()
        }

        function makePage(properties) {
            const page = createTemporaryObject(pageComponent, root, properties || {})
            verify(page !== null)
            waitForRendering(page)
            return page
        }

        function quickSolvedShell(controllerProperties) {
            const controller = createTemporaryObject(standInComponent, root, controllerProperties || {})
            const shell = createTemporaryObject(shellComponent, root, {controller: controller})
            verify(shell !== null)
            shell._onQuickSolve()
            compare(shell.navIndex, 1, "Quick Solve shows the Setup page")
            const page = part(shell, "projectPage")
            waitForRendering(page)
            return {shell: shell, page: page, controller: controller}
        }

        function part(parent, name) {
            const found = findChild(parent, name)
            verify(found !== null, "no " + name)
            return found
        }

        // Scrolls the page so that the item stands inside the window: the page clips what lies outside.
        function bringIntoView(page, item) {
            const flick = part(page, "projectFlickable")
            const top = item.mapToItem(flick.contentItem, 0, 0).y
            flick.contentY = Math.max(0, Math.min(top - 24, flick.contentHeight - flick.height))
            waitForRendering(page)
        }

        function paint(page, panel, hand) {
            bringIntoView(page, panel)
            const cell = part(panel.matrix, "cell_" + hand)
            mouseClick(panel.matrix, cell.x + cell.width / 2, cell.y + cell.height / 2)
        }

        function typeWeight(page, panel, text) {
            bringIntoView(page, panel)
            const field = part(panel, "weightField")
            mouseClick(field)
            verify(field.activeFocus, "the weight field has focus")
            field.selectAll()
            keyClick(Qt.Key_Delete)
            for (const character of text)
                keyClick(character)
            return field
        }

        function saveThroughDialog(page, name) {
            mouseClick(part(page, "saveSettingsButton"))
            const save = part(page, "saveProfileDialog")
            tryVerify(() => save.opened, 2000, "the save dialog opens")
            for (const character of name)
                keyClick(character)
            mouseClick(part(save.footer, "saveProfileButton"))
            tryVerify(() => !save.visible, 2000, "saving closes the dialog")
        }

        function openLoad(page) {
            mouseClick(part(page, "loadSettingsButton"))
            const load = part(page, "loadProfileDialog")
            tryVerify(() => load.opened, 2000, "the load dialog opens")
            return load
        }

        function profileRow(load, index) {
            let row = null
            tryVerify(() => {
                row = findChild(load.contentItem, "profileRow_" + index)
                return row !== null && row.width > 0
            }, 2000, "row " + index + " is shown")
            return row
        }

        function loadThroughDialog(page, index) {
            const load = openLoad(page)
            mouseClick(profileRow(load, index))
            mouseClick(part(load.footer, "loadProfileButton"))
            tryVerify(() => !load.visible, 2000, "loading closes the dialog")
        }

        // The project state key that a solve map key carries.
        function stateKeyOf(solveKey) {
            if (plainSolveKeys[solveKey] !== undefined)
                return plainSolveKeys[solveKey]
            const match = /^(oop|ip)_(flop|turn|river)_(.+)$/.exec(solveKey)
            verify(match !== null && sizingKinds[match[3]] !== undefined, "a sizing key: " + solveKey)
            return match[1] + match[2][0].toUpperCase() + match[2].slice(1) + sizingKinds[match[3]]
        }

        // ---- Click weight

        function test_clickWeightStartsFull() {
            const page = makePage()
            compare(page.oopClickWeightPct, 100.0)
            compare(page.ipClickWeightPct, 100.0)
        }

        function test_pageClickWeightPaintsTheCell() {
            const page = makePage()
            const oopPanel = part(page, "oopRangePanel")
            const ipPanel = part(page, "ipRangePanel")
            page.oopClickWeightPct = 50
            compare(oopPanel.clickWeightPct, 50)
            compare(ipPanel.clickWeightPct, 100, "each player has its own weight")
            compare(part(oopPanel, "weightField").text, "50", "the unfocused field shows the page's value")
            paint(page, oopPanel, "88")
            compare(page.oopRangeText, "88:0.5")
            paint(page, ipPanel, "88")
            compare(page.ipRangeText, "88")
            page.ipClickWeightPct = 99.95
            paint(page, ipPanel, "AKs")
            compare(page.ipRangeText, "88, AKs", "99.95 counts as full")
        }

        function test_typedClickWeightReachesThePage() {
            const page = makePage()
            const ipPanel = part(page, "ipRangePanel")
            const field = typeWeight(page, ipPanel, "25")
            compare(page.ipClickWeightPct, 25, "taken while typing")
            keyClick(Qt.Key_Return)
            compare(page.ipClickWeightPct, 25)
            compare(field.text, "25")
            compare(page.oopClickWeightPct, 100, "the other player keeps its weight")
            paint(page, ipPanel, "QQ")
            compare(page.ipRangeText, "QQ:0.25")
            typeWeight(page, ipPanel, "abc")
            keyClick(Qt.Key_Return)
            compare(page.ipClickWeightPct, 100, "no number is the full weight")
        }

        function test_clickWeightOnTheShellsPage() {
            const s = quickSolvedShell()
            const oopPanel = part(s.page, "oopRangePanel")
            s.page.oopClickWeightPct = 40
            s.shell.oopRangeText = ""
            paint(s.page, oopPanel, "AA")
            compare(s.shell.oopRangeText, "AA:0.4", "the painted hand reaches the project state")
        }

        // ---- Width

        // The window opens 1540 pixels wide; the Setup page of a Quick Solve must fit it without scrolling.
        function test_quickSolveSetupFitsTheDefaultWindow() {
            const s = quickSolvedShell()
            verify(s.page.recommendedWindowWidth <= defaultWindowWidth,
                   "recommended " + s.page.recommendedWindowWidth)
            s.page.width = defaultWindowWidth
            compare(part(s.page, "horizontalScrollBar").policy, ScrollBar.AlwaysOff)
        }

        // ---- Profiles outlive the page

        function test_savedProfileSurvivesARestart() {
            const first = makePage({startingPot: 140, effectiveStack: 700, maxIterations: 1500,
                                    oopTurnBetSizesText: "40, 90", ipRiverAddAllIn: true})
            saveThroughDialog(first, "Deep stacks")
            compare(first.settingsProfiles.length, 1)
            const savedId = first.settingsProfiles[0].id
            first.destroy()
            tryVerify(() => findChild(root, "projectFlickable") === null, 2000, "the first page is gone")

            const second = makePage()
            compare(second.startingPot, 100, "a new page starts from its defaults")
            compare(second.settingsProfiles.length, 1, "the profile is read back from the store")
            compare(second.settingsProfiles[0].id, savedId)
            compare(second.settingsProfiles[0].name, "Deep stacks")
            const load = openLoad(second)
            compare(part(profileRow(load, 0), "profileName").text, "Deep stacks", "the profile is listed")
            mouseClick(profileRow(load, 0))
            mouseClick(part(load.footer, "loadProfileButton"))
            tryVerify(() => !load.visible, 2000, "loading closes the dialog")
            compare(second.startingPot, 140)
            compare(second.effectiveStack, 700)
            compare(second.maxIterations, 1500)
            compare(second.oopTurnBetSizesText, "40, 90")
            compare(second.ipRiverAddAllIn, true)
        }

        // ---- Solve map

        function test_solveMapAfterQuickSolveCarriesThePreset() {
            const s = quickSolvedShell({systemThreadCount: 6, developerMode: false})
            const preset = s.shell.quickSolvePreset()
            compare(preset, s.shell.customerQuickSolvePreset)
            const cfg = s.shell._solveMemCfg()
            const keys = Object.keys(cfg)
            compare(keys.length, 36)
            compare(keys.filter(key => key !== "target_exploitability").map(stateKeyOf).length, 35)
            for (const key of keys) {
                if (key === "target_exploitability")
                    continue
                const stateKey = stateKeyOf(key)
                compare(cfg[key], preset[stateKey], key)
                if (stateKey !== "threadCount")
                    compare(s.page[stateKey], cfg[key], "the page shows " + key)
            }
            fuzzyCompare(cfg.target_exploitability, preset.startingPot * preset.targetExploitability / 100, 1e-9)
            fuzzyCompare(cfg.target_exploitability, 0.9, 1e-9, "0.5 % of a pot of 180")
            compare(cfg.thread_count, 6, "the processors the controller counts")
            compare(cfg.board, "QsJh2h")
            compare(cfg.bet_sizes, undefined, "the legacy sizing text is never sent")
            compare(cfg.ip_flop_dont_donk, undefined, "IP has no donk switches")
        }

        function test_solveMapFollowsEditsOnThePage() {
            const s = quickSolvedShell()
            s.page.applySettingsSnapshot(Object.assign(s.page.currentSettingsSnapshot(),
                                                       {starting_pot: 200, target_exploitability_pct: 0.25,
                                                        ip_turn_raise_sizes: "60"}))
            const cfg = s.shell._solveMemCfg()
            compare(cfg.starting_pot, 200)
            fuzzyCompare(cfg.target_exploitability, 0.5, 1e-9)
            compare(cfg.ip_turn_raise_sizes, "60")
            compare(Object.keys(cfg).length, 36)
        }

        // ---- Memory estimates from loaded profiles

        function test_loadedProfileAsksForAnEstimateOnlyWhenTheTreeChanges() {
            const s = quickSolvedShell()
            tryVerify(() => s.controller.estimateConfigs.length === 1, 2000, "Quick Solve asks for an estimate")
            const debounce = part(s.shell, "estimateDebounce")
            compare(debounce.interval, estimateDebounceMs)
            const base = s.page.currentSettingsSnapshot()
            s.page.settingsProfiles = [
                {id: "n_iter", name: "Longer", createdAt: "", data: Object.assign({}, base, {max_iterations: 1200})},
                {id: "n_size", name: "Small flop bet", createdAt: "",
                 data: Object.assign({}, base, {oop_flop_bet_sizes: "33"})}
            ]

            loadThroughDialog(s.page, 0)
            compare(s.shell.maxIterations, 1200, "the profile was loaded")
            verify(!debounce.running, "the iteration cap starts no wait")
            wait(2 * estimateDebounceMs)
            compare(s.controller.estimateConfigs.length, 1, "no new estimate for the iteration cap")

            loadThroughDialog(s.page, 1)
            compare(s.shell.oopFlopBetSizesText, "33")
            verify(debounce.running, "a sizing change starts the wait")
            wait(estimateDebounceMs / 2)
            compare(s.controller.estimateConfigs.length, 1, "nothing before the wait ends")
            tryVerify(() => s.controller.estimateConfigs.length === 2, 2000, "the estimate follows the wait")
            const requested = s.controller.estimateConfigs[1]
            compare(requested.oop_flop_bet_sizes, "33")
            compare(requested.max_iterations, 400, "the second profile brought its own cap back")
            compare(Object.keys(requested).length, 36)
        }
    }
}
