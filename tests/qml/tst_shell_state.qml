import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

TestCase {
    id: testCase

    name: "ShellState"
    when: windowShown
    // Interaction needs a visible tree; a test case is hidden by default.
    visible: true

    readonly property var projectStateKeys: ["boardText", "oopRangeText", "ipRangeText", "betSizesText",
        "maxIterations", "startingPot", "effectiveStack", "threadCount", "startingStreet", "targetExploitability",
        "rakePercent", "rakeCap", "oopFlopBetSizesText", "oopTurnBetSizesText", "oopRiverBetSizesText",
        "oopFlopRaiseSizesText", "oopTurnRaiseSizesText", "oopRiverRaiseSizesText", "oopFlopAddAllIn",
        "oopTurnAddAllIn", "oopRiverAddAllIn", "oopFlopDontDonk", "oopTurnDontDonk", "oopRiverDontDonk",
        "ipFlopBetSizesText", "ipTurnBetSizesText", "ipRiverBetSizesText", "ipFlopRaiseSizesText",
        "ipTurnRaiseSizesText", "ipRiverRaiseSizesText", "ipFlopAddAllIn", "ipTurnAddAllIn", "ipRiverAddAllIn",
        "oopAddAllInIfJamLtEnabled", "oopAddAllInIfJamLtPct", "ipAddAllInIfJamLtEnabled", "ipAddAllInIfJamLtPct"]
    readonly property var defaultOopRange: "88+,A8s+,A5s-A2s:0.5,AJo+,ATo:0.75,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,"
        + "QJo:0.5,J8s+,JTo:0.25,T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75,74s:0.45,65s:0.75,"
        + "64s:0.5,63s:0.45,54s:0.75,53s:0.5,52s:0.45,43s:0.5,42s:0.45,32s:0.45"
    readonly property var defaultIpRange: "AA:0.25,99-22,AJs-A2s,AQo-A8o,K2s+,K9o+,Q2s+,Q9o+,J6s+,J9o+,T6s+,T9o,"
        + "96s+,95s:0.5,98o,86s+,85s:0.5,75s+,74s:0.5,64s+,63s:0.5,54s,53s:0.5,43s"

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
        id: storedAppearanceComponent

        Settings {
            category: "ui"
        }
    }

    // Writes the "ui" group as the Settings page would, then restores the defaults afterwards.
    function storeAppearance(darkMode, accentHex) {
        const store = createTemporaryObject(storedAppearanceComponent, testCase)
        store.setValue("darkMode", darkMode)
        store.setValue("accentHex", accentHex)
        store.sync()
    }

    function cleanup() {
        storeAppearance(true, "")
    }

    function makeShell(controllerProperties) {
        const controller = createTemporaryObject(standInComponent, testCase, controllerProperties || {})
        return createTemporaryObject(shellComponent, testCase, {controller: controller})
    }

    function keysOf(map) {
        return Object.keys(map).sort()
    }

    function compareMaps(actual, expected, what) {
        compare(keysOf(actual), keysOf(expected), what + " keys")
        for (const key in expected)
            compare(actual[key], expected[key], what + " " + key)
    }

    // A spot that passes every check but the memory gate.
    function fillSolvableSpot(shell) {
        shell._onQuickSolve()
    }

    function test_startsBlank() {
        const shell = makeShell({systemThreadCount: 8})
        compare(shell.navIndex, 0)
        compare(shell.hasProject, false)
        const state = shell.exportProjectState()
        for (const key of projectStateKeys) {
            if (key === "threadCount")
                compare(state[key], 8, key)
            else if (key === "startingStreet")
                compare(state[key], "flop", key)
            else if (key.endsWith("Text"))
                compare(state[key], "", key)
            else if (/(AddAllIn|DontDonk|Enabled)$/.test(key))
                compare(state[key], false, key)
            else
                compare(state[key], 0, key)
        }
        compare(shell.controller.clearCount, 1, "every start clears the results")
    }

    function test_storedAppearanceIsReadAtStartUp() {
        storeAppearance(false, "  #FF8800  ")
        const light = makeShell({})
        compare(light.theme.dark, false)
        compare(light.theme.useAccentOverride, true)
        verify(Qt.colorEqual(light.theme.accent, "#FF8800"), "the stored accent, trimmed")

        storeAppearance(true, "   ")
        const plain = makeShell({})
        compare(plain.theme.dark, true)
        compare(plain.theme.useAccentOverride, false, "a blank accent is no override")
        verify(Qt.colorEqual(plain.theme.accent, "#3FB950"))
    }

    function test_exportHasExactlyTheStateKeys() {
        const shell = makeShell()
        compare(keysOf(shell.exportProjectState()), projectStateKeys.slice().sort())
        compare(Object.keys(shell.exportProjectState()).length, 37)
    }

    function test_defaultPreset() {
        const preset = makeShell({systemThreadCount: 6}).defaultPreset
        compare(keysOf(preset), projectStateKeys.slice().sort())
        compare(preset.boardText, "QsJh2h")
        compare(preset.betSizesText, "52")
        compare(preset.maxIterations, 400)
        compare(preset.startingPot, 180)
        compare(preset.effectiveStack, 910)
        compare(preset.threadCount, 6)
        compare(preset.startingStreet, "flop")
        compare(preset.targetExploitability, 0.5)
        compare(preset.rakePercent, 5.0)
        compare(preset.rakeCap, 30)
        compare(preset.oopRangeText, defaultOopRange)
        compare(preset.ipRangeText, defaultIpRange)
        for (const side of ["oop", "ip"]) {
            compare(preset[side + "FlopBetSizesText"], "52")
            compare(preset[side + "TurnBetSizesText"], "55")
            compare(preset[side + "RiverBetSizesText"], "70")
            for (const street of ["Flop", "Turn", "River"]) {
                compare(preset[side + street + "RaiseSizesText"], "45")
                compare(preset[side + street + "AddAllIn"], false)
            }
        }
        for (const street of ["Flop", "Turn", "River"])
            compare(preset["oop" + street + "DontDonk"], false)
        compare(preset.oopAddAllInIfJamLtEnabled, false)
        compare(preset.oopAddAllInIfJamLtPct, 0.0)
        compare(preset.ipAddAllInIfJamLtEnabled, false)
        compare(preset.ipAddAllInIfJamLtPct, 0.0)
    }

    function test_newProjectPresetTakesGameSettingsFromDefault() {
        const shell = makeShell({systemThreadCount: 6})
        const preset = shell.newProjectPreset
        const expected = Object.assign({}, shell.startupBlankPreset, {
            maxIterations: 400, startingPot: 180, effectiveStack: 910, threadCount: 6, startingStreet: "flop",
            targetExploitability: 0.5, rakePercent: 5.0, rakeCap: 30
        })
        compareMaps(preset, expected, "newProjectPreset")
        compare(preset.boardText, "")
        compare(preset.oopRangeText, "")
        compare(preset.oopFlopBetSizesText, "")
    }

    function test_startupBlankPreset() {
        const preset = makeShell({systemThreadCount: 6}).startupBlankPreset
        compare(keysOf(preset), projectStateKeys.slice().sort())
        compare(preset.threadCount, 6)
        compare(preset.maxIterations, 0)
        compare(preset.startingStreet, "flop")
        compare(preset.targetExploitability, 0.0)
        compare(preset.ipRiverRaiseSizesText, "")
        compare(preset.oopRiverDontDonk, false)
    }

    // The two fall-backs differ: a blank start takes one thread, a quick solve twelve.
    function test_threadFallbackWithoutProcessorCount() {
        const shell = makeShell({systemThreadCount: 0})
        compare(shell.threadCount, 1)
        compare(shell.startupBlankPreset.threadCount, 1)
        compare(shell.defaultPreset.threadCount, 12)
        compare(shell.newProjectPreset.threadCount, 12)
        shell._onQuickSolve()
        compare(shell.threadCount, 12)
        shell.resetToStartupBlank()
        compare(shell.threadCount, 1)
    }

    // The customer ranges, rewritten by hand from the default ones.
    // OOP: "A5s-A2s:0.5" widened to "A5s,A4s,A3s-A2s:0.5", "ATo:0.75" made full, six hands appended, and
    // 74s, 63s, 52s and 42s removed.
    // IP: "AJs-A2s", "AQo-A8o" and "Q2s+" rewritten in place, seven hands appended.
    function test_customerQuickSolvePreset() {
        const shell = makeShell({developerMode: false})
        const preset = shell.customerQuickSolvePreset
        compare(preset.oopRangeText, "88+,A8s+,A5s,A4s,A3s-A2s:0.5,AJo+,ATo,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,QJo:0.5,"
                + "J8s+,JTo:0.25,T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75,65s:0.75,64s:0.5,"
                + "54s:0.75,53s:0.5,43s:0.5,32s:0.45,A9o:0.5,K8s:0.5,Q8s:0.5,77:0.5,66:0.5,55:0.25")
        compare(preset.ipRangeText, "AA:0.25,99-22,AJs-A6s,A5s-A4s:0.5,A3s-A2s,AQo-A7o,K2s+,K9o+,Q4s+,"
                + "Q3s-Q2s:0.5,Q9o+,J6s+,J9o+,T6s+,T9o,96s+,95s:0.5,98o,86s+,85s:0.5,75s+,74s:0.5,64s+,63s:0.5,"
                + "54s,53s:0.5,43s,QQ:0.25,JJ:0.25,TT:0.5,A5o:0.5,A4o:0.5,J5s:0.5,T5s:0.5")
        const others = Object.assign({}, preset)
        delete others.oopRangeText
        delete others.ipRangeText
        const defaults = Object.assign({}, shell.defaultPreset)
        delete defaults.oopRangeText
        delete defaults.ipRangeText
        compareMaps(others, defaults, "customer preset beside its ranges")
        compare(shell.defaultPreset.oopRangeText, defaultOopRange, "the default preset stays as it was")
    }

    // The rewrite is a procedure over the default ranges, not a stored text.
    function test_customerRewriteIsAProcedure() {
        const shell = makeShell()
        const rewritten = shell._customerQuickSolvePreset({oopRangeText: " A5s-A2s:0.5 ,,42s:0.45,42s, 52s:1,KK",
                                                           ipRangeText: "Q2s+,AQo-A8o,AQo-A8o"})
        compare(rewritten.oopRangeText, "A5s,A4s,A3s-A2s:0.5,KK,A9o:0.5,K8s:0.5,Q8s:0.5,77:0.5,66:0.5,55:0.25")
        compare(rewritten.ipRangeText, "Q4s+,Q3s-Q2s:0.5,AQo-A7o,AQo-A8o,QQ:0.25,JJ:0.25,TT:0.5,A5o:0.5,"
                + "A4o:0.5,J5s:0.5,T5s:0.5")
    }

    function test_quickSolvePresetFollowsDeveloperMode() {
        const customer = makeShell({developerMode: false})
        compare(customer.developerMode, false)
        compareMaps(customer.quickSolvePreset(), customer.customerQuickSolvePreset, "customer")
        const developer = makeShell({developerMode: true})
        compareMaps(developer.quickSolvePreset(), developer.defaultPreset, "developer")
    }

    function test_applyProjectStateIgnoresUnknownAndKeepsAbsent() {
        const shell = makeShell()
        shell.resetToDefaults()
        shell.applyProjectState({boardText: "AhKd2c", rakeCap: 12, somethingElse: 5, undefinedKey: undefined,
                                 maxIterations: undefined})
        compare(shell.boardText, "AhKd2c")
        compare(shell.rakeCap, 12)
        compare(shell.maxIterations, 400, "an undefined value leaves the key alone")
        compare(shell.startingPot, 180, "absent keys keep their value")
        compare(shell.somethingElse, undefined)
        shell.applyProjectState(null)
        compare(shell.boardText, "AhKd2c")
    }

    function test_exportApplyRoundTrip() {
        const first = makeShell({systemThreadCount: 4})
        first.resetToDefaults()
        first.oopRiverDontDonk = true
        first.ipAddAllInIfJamLtPct = 33.5
        const saved = first.exportProjectState()
        const second = makeShell({systemThreadCount: 4})
        second.applyProjectState(saved)
        compareMaps(second.exportProjectState(), saved, "round trip")
    }

    function test_solveMemCfgHasTheSolveMapKeys() {
        const shell = makeShell({systemThreadCount: 4, developerMode: true})
        shell._onQuickSolve()
        shell.oopTurnAddAllIn = true
        shell.oopRiverDontDonk = true
        shell.ipAddAllInIfJamLtEnabled = true
        shell.ipAddAllInIfJamLtPct = 25.5
        const expected = {
            board: "QsJh2h", oop_range: defaultOopRange, ip_range: defaultIpRange, max_iterations: 400,
            target_exploitability: 0.9, starting_pot: 180, effective_stack: 910, rake_percent: 5.0, rake_cap: 30,
            starting_street: "flop", thread_count: 4,
            oop_flop_bet_sizes: "52", oop_turn_bet_sizes: "55", oop_river_bet_sizes: "70",
            oop_flop_raise_sizes: "45", oop_turn_raise_sizes: "45", oop_river_raise_sizes: "45",
            oop_flop_add_all_in: false, oop_turn_add_all_in: true, oop_river_add_all_in: false,
            oop_flop_dont_donk: false, oop_turn_dont_donk: false, oop_river_dont_donk: true,
            ip_flop_bet_sizes: "52", ip_turn_bet_sizes: "55", ip_river_bet_sizes: "70",
            ip_flop_raise_sizes: "45", ip_turn_raise_sizes: "45", ip_river_raise_sizes: "45",
            ip_flop_add_all_in: false, ip_turn_add_all_in: false, ip_river_add_all_in: false,
            oop_add_all_in_jam_threshold_enabled: false, oop_add_all_in_jam_threshold_pct: 0.0,
            ip_add_all_in_jam_threshold_enabled: true, ip_add_all_in_jam_threshold_pct: 25.5
        }
        const cfg = shell._solveMemCfg()
        compare(Object.keys(cfg).length, 36)
        compare(Object.keys(expected).length, 36)
        compare(keysOf(cfg), keysOf(expected))
        for (const key in expected) {
            if (key === "target_exploitability")
                fuzzyCompare(cfg[key], expected[key], 1e-9, key)
            else
                compare(cfg[key], expected[key], key)
        }
        compare(cfg.bet_sizes, undefined, "the legacy sizing text is never sent")
    }

    function test_targetExploitabilityAmount() {
        const shell = makeShell()
        shell.startingPot = 200
        shell.targetExploitability = 0.25
        compare(shell.targetExploitabilityAmount(), 0.5)
        shell.startingPot = 0
        compare(shell.targetExploitabilityAmount(), 0.0, "no pot")
        shell.startingPot = -40
        compare(shell.targetExploitabilityAmount(), 0.0, "negative pot")
        shell.startingPot = 200
        shell.targetExploitability = NaN
        compare(shell.targetExploitabilityAmount(), 0.0, "percent not a number")
        shell.targetExploitability = Infinity
        compare(shell.targetExploitabilityAmount(), 0.0, "percent not finite")
        shell.targetExploitability = 0
        compare(shell.targetExploitabilityAmount(), 0.0, "no target")
    }

    function test_boardReadiness_data() {
        return [
            {tag: "flop", board: "AhKsQd", ready: true},
            {tag: "turn", board: "AhKsQdJc", ready: true},
            {tag: "river", board: "AhKsQdJcTc", ready: true},
            {tag: "white space", board: " Ah Ks\tQd ", ready: true},
            {tag: "cases repaired", board: "aHkSqD", ready: true},
            {tag: "gap before the river", board: "AhKsQd__2c", ready: false},
            {tag: "gap in the flop", board: "Ah__Qd", ready: false},
            {tag: "two cards", board: "AhKs", ready: false},
            {tag: "odd length", board: "AhKsQ", ready: false},
            {tag: "bad pair", board: "AhKsXx", ready: false},
            {tag: "six cards", board: "AhKsQdJcTc9c", ready: false},
            {tag: "empty", board: "", ready: false}
        ]
    }

    function test_boardReadiness(data) {
        const shell = makeShell()
        shell.boardText = data.board
        compare(shell._isStrictBoardReady(), data.ready)
    }

    function test_normalizeBoardText() {
        const shell = makeShell()
        compare(shell._normalizeBoardText("as kd 7h"), "AsKd7h")
        compare(shell._normalizeBoardText("AxKd7h"), "Kd7h")
        compare(shell._normalizeBoardText("AhKsQd__2c"), "AhKsQd2c")
        compare(shell._normalizeBoardText("AhK"), "Ah")
    }

    function test_hasAnyHand() {
        const shell = makeShell()
        verify(shell._hasAnyHand("AA"))
        verify(shell._hasAnyHand("  akS "))
        verify(shell._hasAnyHand("22+"))
        verify(!shell._hasAnyHand("AhKs"), "exact combos hold no two ranks side by side")
        verify(!shell._hasAnyHand("   "))
        verify(!shell._hasAnyHand(""))
    }

    function test_gapInTheBoardLeavesSolvingOff() {
        const shell = makeShell()
        fillSolvableSpot(shell)
        shell.controller.grantMemory()
        verify(shell.canSolve, "the filled spot is solvable")
        shell.boardText = "AhKsQd__2c"
        verify(!shell._canSolveBase())
        verify(!shell.canSolve)
    }

    // A river spot still needs the flop and turn texts.
    function test_everySizingTextIsNeeded() {
        const shell = makeShell()
        fillSolvableSpot(shell)
        shell.controller.grantMemory()
        shell.boardText = "QsJh2h3c4d"
        verify(shell.canSolve)
        for (const key of ["oopFlopBetSizesText", "ipRiverRaiseSizesText", "ipTurnBetSizesText"]) {
            const kept = shell[key]
            shell[key] = "   "
            verify(!shell.canSolve, key)
            shell[key] = kept
            verify(shell.canSolve, key + " restored")
        }
    }

    function test_bothRangesNeedAHand() {
        const shell = makeShell()
        fillSolvableSpot(shell)
        shell.controller.grantMemory()
        shell.ipRangeText = "AhKs,QdQc"
        verify(!shell.canSolve)
        shell.ipRangeText = "QQ"
        verify(shell.canSolve)
        shell.oopRangeText = ""
        verify(!shell.canSolve)
    }

    function test_memoryGateIsStrict() {
        const shell = makeShell()
        fillSolvableSpot(shell)
        const controller = shell.controller
        verify(!shell.canSolve, "no estimate yet")
        controller.systemAvailableMemoryBytes = 4096
        controller.solveRequiredMemoryBytes = 4096
        verify(!shell.canSolve, "equal to what is free")
        controller.solveRequiredMemoryBytes = 4095
        verify(shell.canSolve, "one byte to spare")
        controller.solveRequiredMemoryBytes = 5000
        verify(!shell.canSolve, "more than what is free")
        controller.solveRequiredMemoryBytes = 0
        verify(!shell.canSolve, "no estimate")
        controller.solveRequiredMemoryBytes = 10
        controller.systemAvailableMemoryBytes = 0
        verify(!shell.canSolve, "nothing known to be free")
        controller.systemAvailableMemoryBytes = NaN
        verify(!shell.canSolve, "not a number")
    }

    function test_estimateIsDebounced() {
        const shell = makeShell()
        const controller = shell.controller
        fillSolvableSpot(shell)
        shell.startingPot = 200
        shell.effectiveStack = 800
        tryVerify(() => controller.estimateConfigs.length === 1, 2000)
        compare(controller.estimateConfigs[0].starting_pot, 200, "the estimate sees the last values")
        compare(controller.estimateConfigs[0].effective_stack, 800)
        compare(Object.keys(controller.estimateConfigs[0]).length, 36)
    }

    function test_estimateWaitsForTheQuietPeriod() {
        const shell = makeShell()
        const controller = shell.controller
        fillSolvableSpot(shell)
        tryVerify(() => controller.estimateConfigs.length === 1, 2000)
        shell.rakeCap = 10
        wait(300)
        shell.rakeCap = 11
        wait(300)
        compare(controller.estimateConfigs.length, 1, "each change restarts the wait")
        tryVerify(() => controller.estimateConfigs.length === 2, 2000)
    }

    // A loaded profile may change only the iteration cap or the target: neither changes the memory.
    function test_iterationsAndTargetRequestNoEstimate() {
        const shell = makeShell()
        const controller = shell.controller
        fillSolvableSpot(shell)
        tryVerify(() => controller.estimateConfigs.length === 1, 2000)
        shell.applyProjectState({maxIterations: 900})
        shell.applyProjectState({targetExploitability: 0.2})
        shell.betSizesText = "33"
        wait(800)
        compare(controller.estimateConfigs.length, 1)
        shell.applyProjectState({oopRiverDontDonk: true})
        tryVerify(() => controller.estimateConfigs.length === 2, 2000)
    }

    // Every state key but the legacy sizing text, the iteration cap and the target restarts the wait.
    function test_whichKeysRestartTheWait() {
        const shell = makeShell()
        const debounce = findChild(shell, "estimateDebounce")
        const quiet = ["betSizesText", "maxIterations", "targetExploitability"]
        const changed = {boardText: "QsJh3h", startingStreet: "turn", startingPot: 99, effectiveStack: 99,
                         threadCount: 3, rakePercent: 1.5, rakeCap: 3, maxIterations: 10, targetExploitability: 2,
                         oopAddAllInIfJamLtPct: 12.5, ipAddAllInIfJamLtPct: 12.5}
        for (const key of projectStateKeys) {
            debounce.stop()
            if (changed[key] !== undefined)
                shell[key] = changed[key]
            else if (typeof shell[key] === "boolean")
                shell[key] = !shell[key]
            else
                shell[key] = shell[key] + "x"
            compare(debounce.running, quiet.indexOf(key) < 0, key)
        }
    }

    function test_projectWidthComesFromTheSetupPage() {
        const shell = makeShell()
        compare(shell.projectRecommendedWidth, findChild(shell, "projectPage").recommendedWindowWidth)
    }

    function test_noEstimateForAnUnsolvableSpot() {
        const shell = makeShell()
        shell.startingPot = 10
        shell.boardText = "AhKs"
        wait(700)
        compare(shell.controller.estimateConfigs.length, 0)
    }
}
