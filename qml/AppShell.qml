// Root of everything the user sees: it owns the project state, decides when solving is allowed, navigates
// between the five pages and binds the global shortcuts. Pages read the state through bindings and write it
// back through their change handlers; this is the one canonical copy.
import QtQuick
import QtQuick.Layouts
import Qt.labs.settings

Item {
    id: shell

    property var controller: null
    property int navIndex: 0
    property bool hasProject: false
    property int projectRecommendedWidth: 1540

    property string boardText: ""
    property string oopRangeText: ""
    property string ipRangeText: ""
    property string betSizesText: ""
    property int maxIterations: 0
    property int startingPot: 0
    property int effectiveStack: 0
    property int threadCount: _systemThreads(_blankThreadFallback)
    property string startingStreet: "flop"
    property real targetExploitability: 0.0
    property real rakePercent: 0.0
    property int rakeCap: 0

    property string oopFlopBetSizesText: ""
    property string oopTurnBetSizesText: ""
    property string oopRiverBetSizesText: ""
    property string oopFlopRaiseSizesText: ""
    property string oopTurnRaiseSizesText: ""
    property string oopRiverRaiseSizesText: ""
    property bool oopFlopAddAllIn: false
    property bool oopTurnAddAllIn: false
    property bool oopRiverAddAllIn: false
    property bool oopFlopDontDonk: false
    property bool oopTurnDontDonk: false
    property bool oopRiverDontDonk: false

    property string ipFlopBetSizesText: ""
    property string ipTurnBetSizesText: ""
    property string ipRiverBetSizesText: ""
    property string ipFlopRaiseSizesText: ""
    property string ipTurnRaiseSizesText: ""
    property string ipRiverRaiseSizesText: ""
    property bool ipFlopAddAllIn: false
    property bool ipTurnAddAllIn: false
    property bool ipRiverAddAllIn: false

    property bool oopAddAllInIfJamLtEnabled: false
    property real oopAddAllInIfJamLtPct: 0.0
    property bool ipAddAllInIfJamLtEnabled: false
    property real ipAddAllInIfJamLtPct: 0.0

    readonly property Theme theme: Theme {}
    readonly property Typography type: Typography {}
    readonly property bool developerMode: _controllerValue("developerMode", false) === true
    readonly property bool running: _controllerValue("running", false) === true
    readonly property bool canSolve: _canSolveBase() && _hasEnoughRamToSolve()

    readonly property var startupBlankPreset: _blankPreset(_systemThreads(_blankThreadFallback))
    readonly property var defaultPreset: _defaultPresetFor(_systemThreads(_defaultThreadFallback))
    readonly property var newProjectPreset: _withGameSettings(startupBlankPreset, defaultPreset)
    readonly property var customerQuickSolvePreset: _customerQuickSolvePreset(defaultPreset)

    readonly property var _gameKeys: ["boardText", "oopRangeText", "ipRangeText", "betSizesText", "maxIterations",
        "startingPot", "effectiveStack", "threadCount", "startingStreet", "targetExploitability", "rakePercent",
        "rakeCap"]
    readonly property var _oopSizingKeys: ["oopFlopBetSizesText", "oopTurnBetSizesText", "oopRiverBetSizesText",
        "oopFlopRaiseSizesText", "oopTurnRaiseSizesText", "oopRiverRaiseSizesText", "oopFlopAddAllIn",
        "oopTurnAddAllIn", "oopRiverAddAllIn", "oopFlopDontDonk", "oopTurnDontDonk", "oopRiverDontDonk"]
    readonly property var _ipSizingKeys: ["ipFlopBetSizesText", "ipTurnBetSizesText", "ipRiverBetSizesText",
        "ipFlopRaiseSizesText", "ipTurnRaiseSizesText", "ipRiverRaiseSizesText", "ipFlopAddAllIn", "ipTurnAddAllIn",
        "ipRiverAddAllIn"]
    readonly property var _jamKeys: ["oopAddAllInIfJamLtEnabled", "oopAddAllInIfJamLtPct", "ipAddAllInIfJamLtEnabled",
        "ipAddAllInIfJamLtPct"]
    readonly property var _projectStateKeys: _gameKeys.concat(_oopSizingKeys, _ipSizingKeys, _jamKeys)
    // The settings a new project takes over from the default preset.
    readonly property var _presetGameSettingKeys: ["maxIterations", "startingPot", "effectiveStack", "threadCount",
        "startingStreet", "targetExploitability", "rakePercent", "rakeCap"]
    readonly property var _sizingTextKeys: ["oopFlopBetSizesText", "oopTurnBetSizesText", "oopRiverBetSizesText",
        "oopFlopRaiseSizesText", "oopTurnRaiseSizesText", "oopRiverRaiseSizesText", "ipFlopBetSizesText",
        "ipTurnBetSizesText", "ipRiverBetSizesText", "ipFlopRaiseSizesText", "ipTurnRaiseSizesText",
        "ipRiverRaiseSizesText"]
    // Neither the iteration cap nor the target changes what a solve needs in memory.
    readonly property var _estimateKeys: _projectStateKeys.filter(
        key => ["betSizesText", "maxIterations", "targetExploitability"].indexOf(key) < 0)
    readonly property var _pageTitles: [qsTranslate("TopBar", "Home"), qsTranslate("TopBar", "Setup"),
        qsTranslate("TopBar", "Solve"), qsTranslate("TopBar", "Results"), qsTranslate("TopBar", "Settings")]

    readonly property int _blankThreadFallback: 1
    readonly property int _defaultThreadFallback: 12
    readonly property int _homeIndex: 0
    readonly property int _setupIndex: 1
    readonly property int _solveIndex: 2
    readonly property int _resultsIndex: 3
    readonly property int _settingsIndex: 4
    readonly property string _rankChars: "AKQJT98765432"
    readonly property string _suitChars: "shdc"
    readonly property var _anyHandPattern: /[AKQJT98765432]{2}/i
    readonly property real _backgroundGlowAlpha: 0.02

    function _controllerValue(name, fallback) {
        return controller && controller[name] !== undefined ? controller[name] : fallback
    }

    function _controllerCan(name) {
        return !!controller && typeof controller[name] === "function"
    }

    function _systemThreads(fallback) {
        const count = Number(_controllerValue("systemThreadCount", 0))
        return count > 0 ? count : fallback
    }

    // Texts are empty, switches off and numbers zero; the names tell which is which.
    function _blankValue(key) {
        if (key.endsWith("Text"))
            return ""
        return /(AddAllIn|DontDonk|Enabled)$/.test(key) ? false : 0
    }

    function _blankPreset(threads) {
        const preset = {}
        for (const key of _projectStateKeys)
            preset[key] = _blankValue(key)
        preset.startingStreet = "flop"
        preset.threadCount = threads
        return preset
    }

    function _withGameSettings(base, source) {
        const preset = Object.assign({}, base)
        for (const key of _presetGameSettingKeys)
            preset[key] = source[key]
        return preset
    }

    function _defaultPresetFor(threads) {
        const preset = _blankPreset(threads)
        Object.assign(preset, {
            boardText: "QsJh2h",
            betSizesText: "52",
            maxIterations: 400,
            startingPot: 180,
            effectiveStack: 910,
            targetExploitability: 0.5,
            rakePercent: 5.0,
            rakeCap: 30,
            oopRangeText: "88+,A8s+,A5s-A2s:0.5,AJo+,ATo:0.75,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,QJo:0.5,J8s+,JTo:0.25,"
                          + "T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75,74s:0.45,65s:0.75,64s:0.5,"
                          + "63s:0.45,54s:0.75,53s:0.5,52s:0.45,43s:0.5,42s:0.45,32s:0.45",
            ipRangeText: "AA:0.25,99-22,AJs-A2s,AQo-A8o,K2s+,K9o+,Q2s+,Q9o+,J6s+,J9o+,T6s+,T9o,96s+,95s:0.5,98o,86s+,"
                         + "85s:0.5,75s+,74s:0.5,64s+,63s:0.5,54s,53s:0.5,43s"
        })
        for (const side of ["oop", "ip"]) {
            preset[side + "FlopBetSizesText"] = "52"
            preset[side + "TurnBetSizesText"] = "55"
            preset[side + "RiverBetSizesText"] = "70"
            for (const street of ["Flop", "Turn", "River"])
                preset[side + street + "RaiseSizesText"] = "45"
        }
        return preset
    }

    function _rangeTokens(text) {
        return text.split(",").map(token => token.trim()).filter(token => token.length > 0)
    }

    // Widens the default ranges for customers: both ranges gain hands, and OOP drops its weakest suited gappers.
    function _customerQuickSolvePreset(base) {
        const oopReplaced = base.oopRangeText.replace("A5s-A2s:0.5", "A5s,A4s,A3s-A2s:0.5")
                                             .replace("ATo:0.75", "ATo")
        const oopAdded = _rangeTokens(oopReplaced).concat(["A9o:0.5", "K8s:0.5", "Q8s:0.5", "77:0.5", "66:0.5",
                                                            "55:0.25"])
        const oopDropped = ["42s", "52s", "63s", "74s"]
        const oopTokens = oopAdded.filter(token => !oopDropped.some(hand => token === hand
                                                                    || token.startsWith(hand + ":")))
        const ipReplaced = base.ipRangeText.replace("AQo-A8o", "AQo-A7o")
                                           .replace("AJs-A2s", "AJs-A6s,A5s-A4s:0.5,A3s-A2s")
                                           .replace("Q2s+", "Q4s+,Q3s-Q2s:0.5")
        const ipTokens = _rangeTokens(ipReplaced).concat(["QQ:0.25", "JJ:0.25", "TT:0.5", "A5o:0.5", "A4o:0.5",
                                                          "J5s:0.5", "T5s:0.5"])
        return Object.assign({}, base, {
            oopRangeText: oopTokens.join(","),
            ipRangeText: ipTokens.join(",")
        })
    }

    function quickSolvePreset() {
        return developerMode ? defaultPreset : customerQuickSolvePreset
    }

    function exportProjectState() {
        const state = {}
        for (const key of _projectStateKeys)
            state[key] = shell[key]
        return state
    }

    // Keys the map lacks keep their value, so an older project with fewer keys still loads.
    function applyProjectState(p) {
        if (!p)
            return
        for (const key of _projectStateKeys) {
            if (p[key] !== undefined)
                shell[key] = p[key]
        }
    }

    function _normalizeBoardText(text) {
        const compact = String(text).replace(/\s+/g, "")
        let cards = ""
        for (let i = 0; i + 1 < compact.length; i += 2) {
            const rank = compact[i].toUpperCase()
            const suit = compact[i + 1].toLowerCase()
            if (_rankChars.indexOf(rank) >= 0 && _suitChars.indexOf(suit) >= 0)
                cards += rank + suit
        }
        return cards
    }

    // Placeholders such as "__" are dropped by the normalisation, so a board with a gap is never ready.
    function _isStrictBoardReady() {
        const compact = boardText.replace(/\s+/g, "")
        const cards = _normalizeBoardText(compact)
        return cards.length === compact.length && [6, 8, 10].indexOf(cards.length) >= 0
    }

    // Deliberately permissive: the solve itself validates the range text.
    function _hasAnyHand(text) {
        const trimmed = String(text).trim()
        return trimmed.length > 0 && _anyHandPattern.test(trimmed)
    }

    // All twelve texts, whatever the starting street.
    function _hasSizingFilled() {
        return _sizingTextKeys.every(key => shell[key].trim().length > 0)
    }

    // Strict: a solve that needs exactly what is free does not start. No estimate yet means no solve.
    function _hasEnoughRamToSolve() {
        const required = Number(_controllerValue("solveRequiredMemoryBytes", 0))
        const available = Number(_controllerValue("systemAvailableMemoryBytes", 0))
        if (!isFinite(required) || !isFinite(available) || required <= 0 || available <= 0)
            return false
        return available > required
    }

    function _canSolveBase() {
        return _isStrictBoardReady() && _hasSizingFilled() && _hasAnyHand(oopRangeText) && _hasAnyHand(ipRangeText)
    }

    // The solve takes its target as an absolute amount in chips.
    function targetExploitabilityAmount() {
        const pot = startingPot
        const pct = targetExploitability
        if (!isFinite(pot) || !isFinite(pct) || pot <= 0)
            return 0.0
        return pot * pct / 100
    }

    function _solveMemCfg() {
        return {
            board: boardText,
            oop_range: oopRangeText,
            ip_range: ipRangeText,
            max_iterations: maxIterations,
            target_exploitability: targetExploitabilityAmount(),
            starting_pot: startingPot,
            effective_stack: effectiveStack,
            rake_percent: rakePercent,
            rake_cap: rakeCap,
            starting_street: startingStreet,
            thread_count: threadCount,
            oop_flop_bet_sizes: oopFlopBetSizesText,
            oop_turn_bet_sizes: oopTurnBetSizesText,
            oop_river_bet_sizes: oopRiverBetSizesText,
            oop_flop_raise_sizes: oopFlopRaiseSizesText,
            oop_turn_raise_sizes: oopTurnRaiseSizesText,
            oop_river_raise_sizes: oopRiverRaiseSizesText,
            oop_flop_add_all_in: oopFlopAddAllIn,
            oop_turn_add_all_in: oopTurnAddAllIn,
            oop_river_add_all_in: oopRiverAddAllIn,
            oop_flop_dont_donk: oopFlopDontDonk,
            oop_turn_dont_donk: oopTurnDontDonk,
            oop_river_dont_donk: oopRiverDontDonk,
            ip_flop_bet_sizes: ipFlopBetSizesText,
            ip_turn_bet_sizes: ipTurnBetSizesText,
            ip_river_bet_sizes: ipRiverBetSizesText,
            ip_flop_raise_sizes: ipFlopRaiseSizesText,
            ip_turn_raise_sizes: ipTurnRaiseSizesText,
            ip_river_raise_sizes: ipRiverRaiseSizesText,
            ip_flop_add_all_in: ipFlopAddAllIn,
            ip_turn_add_all_in: ipTurnAddAllIn,
            ip_river_add_all_in: ipRiverAddAllIn,
            oop_add_all_in_jam_threshold_enabled: oopAddAllInIfJamLtEnabled,
            oop_add_all_in_jam_threshold_pct: oopAddAllInIfJamLtPct,
            ip_add_all_in_jam_threshold_enabled: ipAddAllInIfJamLtEnabled,
            ip_add_all_in_jam_threshold_pct: ipAddAllInIfJamLtPct
        }
    }

    function _requestMemoryEstimate() {
        if (_canSolveBase() && _controllerCan("requestSolveMemoryEstimate"))
            controller.requestSolveMemoryEstimate(_solveMemCfg())
    }

    function _startSolve() {
        if (_controllerCan("startSolveWithConfig"))
            controller.startSolveWithConfig(_solveMemCfg())
        else if (_controllerCan("startSolve"))
            controller.startSolve()
    }

    function _clearResults() {
        if (_controllerCan("clearResults"))
            controller.clearResults()
    }

    function _resetTo(preset, projectStarted) {
        applyProjectState(preset)
        hasProject = projectStarted
        _clearResults()
        syncPagesFromRoot()
    }

    function resetToStartupBlank() {
        _resetTo(startupBlankPreset, false)
    }

    function resetToNewProject() {
        _resetTo(newProjectPreset, true)
    }

    function resetToDefaults() {
        _resetTo(quickSolvePreset(), true)
    }

    function _bindToShell(page, keys) {
        for (const key of keys)
            page[key] = Qt.binding(() => shell[key])
    }

    // Only a real change is written back; a value that is not a number would otherwise never settle.
    function _writeBackFrom(page, keys) {
        for (const key of keys) {
            page[key + "Changed"].connect(() => {
                if (!Object.is(shell[key], page[key]))
                    shell[key] = page[key]
            })
        }
    }

    // A page that assigns to one of its bound properties breaks that binding; this makes them live again.
    function syncPagesFromRoot() {
        const allButThreads = _projectStateKeys.filter(key => key !== "threadCount")
        _bindToShell(projectPage, allButThreads)
        _bindToShell(solvePage, allButThreads)
    }

    // A tab click or shortcut; the checks run in this order, and each one ignores the request.
    function _navigate(target) {
        if (navIndex === _solveIndex && running && target !== _solveIndex)
            return
        if (target === _resultsIndex && !(Number(_controllerValue("resultIterations", 0)) > 0))
            return
        if (target === _setupIndex && !hasProject)
            return
        if (target === _solveIndex && !canSolve)
            return
        navIndex = target
    }

    function _solveNow() {
        if (!canSolve || running)
            return
        navIndex = _solveIndex
        _startSolve()
    }

    function _cancelSolve() {
        if (running && _controllerCan("cancelSolve"))
            controller.cancelSolve()
    }

    function _onNewProject() {
        resetToNewProject()
        navIndex = _setupIndex
    }

    function _onQuickSolve() {
        resetToDefaults()
        hasProject = true
        navIndex = _setupIndex
    }

    function _onImportRange() {
        if (!hasProject)
            resetToNewProject()
        hasProject = true
        navIndex = _setupIndex
        if (typeof projectPage.openImportRangeDialog === "function")
            projectPage.openImportRangeDialog("oop")
    }

    function _onProjectLoaded(projectState, hasResults) {
        applyProjectState(projectState)
        hasProject = true
        navIndex = hasResults ? _resultsIndex : _setupIndex
    }

    function _applyStoredAppearance() {
        theme.dark = uiSettings.darkMode
        const accent = String(uiSettings.accentHex).trim()
        theme.useAccentOverride = accent.length > 0
        if (accent.length > 0)
            theme.accentOverride = accent
    }

    Component.onCompleted: {
        _applyStoredAppearance()
        for (const key of _estimateKeys)
            shell[key + "Changed"].connect(() => estimateDebounce.restart())
        _bindToShell(solvePage, ["threadCount"])
        _writeBackFrom(projectPage, _projectStateKeys.filter(key => key !== "threadCount"))
        _writeBackFrom(solvePage, ["threadCount"])
        resetToStartupBlank()
    }

    Settings {
        id: uiSettings

        property string accentHex: ""
        property bool darkMode: true

        category: "ui"
    }

    // A Binding element, unlike a plain binding, survives the page's own assignments to the mode.
    Binding {
        target: settingsPage
        property: "darkMode"
        value: shell.theme.dark
    }

    Timer {
        id: estimateDebounce

        objectName: "estimateDebounce"
        interval: 450
        onTriggered: shell._requestMemoryEstimate()
    }

    Shortcut {
        sequence: "Ctrl+1"
        onActivated: shell._navigate(shell._homeIndex)
    }
    Shortcut {
        sequence: "Ctrl+2"
        onActivated: shell._navigate(shell._setupIndex)
    }
    Shortcut {
        sequence: "Ctrl+3"
        onActivated: shell._navigate(shell._solveIndex)
    }
    Shortcut {
        sequence: "Ctrl+4"
        onActivated: shell._navigate(shell._resultsIndex)
    }
    Shortcut {
        sequence: "Ctrl+,"
        onActivated: shell._navigate(shell._settingsIndex)
    }
    Shortcut {
        sequence: "F5"
        onActivated: shell._solveNow()
    }
    // Only while a run goes on, so that Escape otherwise still reaches dialogs and fields.
    Shortcut {
        sequence: "Escape"
        enabled: shell.running
        onActivated: shell._cancelSolve()
    }

    Rectangle {
        anchors.fill: parent
        color: shell.theme.bg0

        Rectangle {
            anchors.fill: parent
            gradient: Gradient {
                GradientStop {
                    position: 0.0
                    color: shell.theme.withOpacity(shell.theme.accent, shell._backgroundGlowAlpha)
                }
                GradientStop {
                    position: 1.0
                    color: "transparent"
                }
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TopBar {
            id: topBar

            objectName: "topBar"
            Layout.fillWidth: true
            theme: shell.theme
            type: shell.type
            controller: shell.controller
            currentIndex: shell.navIndex
            tabTitles: shell._pageTitles
            projectEnabled: shell.hasProject
            canSolve: shell.canSolve
            lockOnSolve: shell.navIndex === shell._solveIndex && shell.running
            maxIterations: shell.maxIterations
            targetExploitability: shell.targetExploitability
            pageTitle: shell._pageTitles[shell.navIndex]
            pageSubtitle: topBar.lockOnSolve ? topBar.statusText : ""
            onNavigate: index => shell._navigate(index)
        }

        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: shell.navIndex

            HomePage {
                id: homePage

                objectName: "homePage"
                theme: shell.theme
                type: shell.type
                controller: shell.controller
                projectStateProvider: shell.exportProjectState
                onNewProject: shell._onNewProject()
                onQuickSolve: shell._onQuickSolve()
                onImportRange: shell._onImportRange()
                onProjectLoaded: (projectState, hasResults) => shell._onProjectLoaded(projectState, hasResults)
            }

            ProjectPage {
                id: projectPage

                objectName: "projectPage"
                theme: shell.theme
                type: shell.type
                controller: shell.controller
                canSolve: shell.canSolve
                onGoToSolve: shell._navigate(shell._solveIndex)
                onRecommendedWindowWidthChanged: shell.projectRecommendedWidth = recommendedWindowWidth
                Component.onCompleted: shell.projectRecommendedWidth = recommendedWindowWidth
            }

            SolvePage {
                id: solvePage

                objectName: "solvePage"
                theme: shell.theme
                type: shell.type
                controller: shell.controller
                canSolve: shell.canSolve
                onGoToResults: shell._navigate(shell._resultsIndex)
            }

            ResultsPage {
                objectName: "resultsPage"
                theme: shell.theme
                type: shell.type
                controller: shell.controller
                boardText: shell.boardText
                rakePercent: shell.rakePercent
                rakeCap: shell.rakeCap
            }

            SettingsPage {
                id: settingsPage

                objectName: "settingsPage"
                theme: shell.theme
                type: shell.type
                onDarkModeChanged: shell.theme.dark = darkMode
            }
        }
    }
}
