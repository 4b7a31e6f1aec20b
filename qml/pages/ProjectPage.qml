// The Setup page, where the spot is described: the board, the game settings, both players' sizes, saved settings
// profiles and, in the second row, the two ranges. The page keeps its own copies of the project state; the shell
// binds them from its state and takes every change back.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane
import "../components/RangeText.js" as RangeText

Item {
    id: page

    property var theme: null
    property var type: null
    // May be absent, as when the page stands alone: the memory line then shows "—".
    property var controller: null
    // Decided by the shell, which also knows whether the solve fits in memory.
    property bool canSolve: false

    // Seen only when the page stands without a shell; the shell's bindings overrule them.
    property string boardText: ""
    property string oopRangeText: ""
    property string ipRangeText: ""
    property string betSizesText: ""
    property int maxIterations: 2000
    property int startingPot: 100
    property int effectiveStack: 100
    property string startingStreet: "flop"
    property real targetExploitability: 0.10
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

    // The slot the card picker is choosing for; -1 while it is closed.
    property int editingCardIndex: -1
    readonly property var usedBoardCards: _boardCardsArray(boardText).filter(card => card !== "")
    // Saved game and sizing settings, in saved order; every change is written to the settings store.
    property var settingsProfiles: []
    property int sizingStreetColumnWidth: 70
    property int gameSettingsInputColumnWidth: 60
    readonly property int recommendedWindowWidth: flick ? Math.ceil(Math.max(_row1RequiredWidth,
                                                                             _rangesRequiredWidth))
                                                        : _fallbackWindowWidth
    property alias oopMatrix: oopRangePanel.matrix
    property alias ipMatrix: ipRangePanel.matrix
    // The weight, in percent, that a newly painted hand gets; each range card edits its own.
    property alias oopClickWeightPct: oopRangePanel.clickWeightPct
    property alias ipClickWeightPct: ipRangePanel.clickWeightPct

    // The range library beside each matrix; its state lives in the library store and is reached here by name.
    property alias oopRangeCategory: rangeLibrary.oopRangeCategory
    property alias oopSelectedId: rangeLibrary.oopSelectedId
    property alias oopOpenFolderIds: rangeLibrary.oopOpenFolderIds
    property alias oopStandardRanges: rangeLibrary.oopStandardRanges
    property alias oopExploitRanges: rangeLibrary.oopExploitRanges
    property alias oopCustomRanges: rangeLibrary.oopCustomRanges
    property alias oopStandardOverrides: rangeLibrary.oopStandardOverrides
    property alias oopExploitOverrides: rangeLibrary.oopExploitOverrides
    property alias ipRangeCategory: rangeLibrary.ipRangeCategory
    property alias ipSelectedId: rangeLibrary.ipSelectedId
    property alias ipOpenFolderIds: rangeLibrary.ipOpenFolderIds
    property alias ipStandardRanges: rangeLibrary.ipStandardRanges
    property alias ipExploitRanges: rangeLibrary.ipExploitRanges
    property alias ipCustomRanges: rangeLibrary.ipCustomRanges
    property alias ipStandardOverrides: rangeLibrary.ipStandardOverrides
    property alias ipExploitOverrides: rangeLibrary.ipExploitOverrides
    property alias _presetLoadError: rangeLibrary._presetLoadError
    property alias _exportStandardError: rangeLibrary._exportStandardError
    property alias _exportExploitError: rangeLibrary._exportExploitError
    property alias _i18nRev: rangeLibrary._i18nRev

    property string _saveProfileError: ""
    property string _loadProfileError: ""
    property string _loadProfileSelectedId: ""
    property string _deleteProfileId: ""
    property string _deleteProfileName: ""
    property bool _profilesLoaded: false

    readonly property SettingsProfileStore _profileStore: SettingsProfileStore {}
    readonly property RangeLibraryStore _rangeLibrary: RangeLibraryStore {
        id: rangeLibrary
        controller: page.controller
        oopRangeText: page.oopRangeText
        ipRangeText: page.ipRangeText
        onRangeTextChosen: (player, text) => page._storeSetting(player + "RangeText", text)
    }
    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property string _ranks: "AKQJT98765432"
    readonly property string _suits: "shdc"
    readonly property string _emptySlot: "__"
    readonly property int _slotCount: 5
    readonly property int _pickerMargin: 12
    readonly property int _pickerGap: 8
    readonly property int _fallbackWindowWidth: 1540
    readonly property int _pageMargin: 24
    readonly property int _columnGap: 16
    readonly property int _boardExtraWidth: 27
    readonly property int _boardMinWidth: 240
    readonly property int _fallbackGameCardWidth: 420
    readonly property int _fallbackSizingCardWidth: 520
    readonly property real _boardColumnWidth: Math.max(boardCard.boardDisplay.implicitWidth + _boardExtraWidth,
                                                        _boardMinWidth)
    readonly property real _row1RequiredWidth: 2 * _pageMargin + _boardColumnWidth
                                               + _columnGap + (gameSettingsCard ? gameSettingsCard.implicitWidth
                                                                                : _fallbackGameCardWidth)
                                               + _columnGap + (oopSizingCard ? oopSizingCard.width
                                                                             : _fallbackSizingCardWidth)
                                               + _columnGap + (ipSizingCard ? ipSizingCard.width
                                                                            : _fallbackSizingCardWidth)
    readonly property real _rangesRequiredWidth: 2 * _pageMargin + oopMatrix.implicitWidth + _columnGap
                                                 + ipMatrix.implicitWidth
    // Snapshot key to page property; the snapshot stores the target as a percentage, like the page.
    readonly property var _snapshotGameKeys: ({
        starting_pot: "startingPot",
        effective_stack: "effectiveStack",
        rake_percent: "rakePercent",
        rake_cap: "rakeCap",
        target_exploitability_pct: "targetExploitability",
        max_iterations: "maxIterations",
        starting_street: "startingStreet"
    })
    readonly property var _snapshotSizingKeys: _sizingKeysFor("oop", true).concat(_sizingKeysFor("ip", false))
    readonly property var _snapshotJamKeys: ({
        oop_add_all_in_jam_threshold_enabled: "oopAddAllInIfJamLtEnabled",
        oop_add_all_in_jam_threshold_pct: "oopAddAllInIfJamLtPct",
        ip_add_all_in_jam_threshold_enabled: "ipAddAllInIfJamLtEnabled",
        ip_add_all_in_jam_threshold_pct: "ipAddAllInIfJamLtPct"
    })

    signal goToSolve()

    // ---- Range library

    function rangesFor(player, category) { return rangeLibrary.rangesFor(player, category) }
    function categoryLabel(cat) { return rangeLibrary.categoryLabel(cat) }
    function rangeDisplayName(category, rawName) { return rangeLibrary.rangeDisplayName(category, rawName) }
    function listModelFor(player) { return rangeLibrary.listModelFor(player) }
    function openSaveRangeDialog(player) { rangeDialogs.openSaveRange(player) }
    function openAddFolderDialog(player) { rangeDialogs.openAddFolder(player) }
    function openImportRangeDialog(focusPlayer) { rangeDialogs.openImport(focusPlayer) }
    function openDeleteSelectedDialog(player) { rangeDialogs.openDeleteSelected(player) }
    function commitSaveRange(player, rawName, text) { return rangeLibrary.commitSaveRange(player, rawName, text) }
    function commitAddFolder(player, rawName) { return rangeLibrary.commitAddFolder(player, rawName) }
    function commitImportRange(rawName) { return rangeLibrary.commitImportRange(rawName) }
    function deleteSelectedItem(player) { return rangeLibrary.deleteSelectedItem(player) }
    function _newNodeId() { return rangeLibrary._newNodeId() }
    function _flattenTreeFor(player) { return rangeLibrary._flattenTreeFor(player) }
    function _toggleOpenFolder(player, id) { rangeLibrary._toggleOpenFolder(player, id) }
    function _sanitizeCustomTree(nodes) { return rangeLibrary._sanitizeCustomTree(nodes) }
    function _sanitizePresetList(list) { return rangeLibrary._sanitizePresetList(list) }
    function _buildStandardTree(list) { return rangeLibrary._buildStandardTree(list) }
    function _buildExploitTree(player, standardTree) { return rangeLibrary._buildExploitTree(player, standardTree) }
    function _applyOverridesToTree(nodes, overrides, path) {
        return rangeLibrary._applyOverridesToTree(nodes, overrides, path)
    }
    function _stripWeightsText(text) { return rangeLibrary._stripWeightsText(text) }
    function _uniqueRangeName(siblings, raw) { return rangeLibrary._uniqueRangeName(siblings, raw) }
    function _loadBundledPresetRanges() { rangeLibrary._loadBundledPresetRanges() }
    function _flattenStandardForExport(tree) { return rangeLibrary._flattenStandardForExport(tree) }

    // Range text helpers, shared with the range cards.
    function parseRangeWeights(text) {
        return RangeText.parseRangeWeights(text)
    }

    function expandHand(hand) {
        return RangeText.expandHand(hand)
    }

    function toggleHand(rangeText, hand, currentWeight, addWeight) {
        return RangeText.toggleHand(rangeText, hand, currentWeight, addWeight)
    }

    function normalizeImportedRangeText(rawText) {
        return RangeText.normalizeImportedRangeText(rawText)
    }

    // ---- Board

    function _cardFromPair(pair) {
        if (pair.length !== 2)
            return ""
        const rank = pair[0].toUpperCase()
        const suit = pair[1].toLowerCase()
        return _ranks.indexOf(rank) >= 0 && _suits.indexOf(suit) >= 0 ? rank + suit : ""
    }

    function validBoard(s) {
        const compact = String(s).replace(/\s+/g, "")
        if (compact.length < 6 || [6, 8, 10].indexOf(compact.length) < 0)
            return false
        for (let i = 0; i < compact.length; i += 2) {
            if (_cardFromPair(compact.substr(i, 2)) === "")
                return false
        }
        return true
    }

    // A placeholder counts nothing, so one real card in the turn slot is still a flop.
    function inferStreetFromBoardText(s) {
        const compact = String(s).replace(/\s+/g, "")
        let count = 0
        for (let i = 0; i + 1 < compact.length; i += 2) {
            if (_cardFromPair(compact.substr(i, 2)) !== "")
                ++count
        }
        if (count >= 5)
            return "river"
        return count === 4 ? "turn" : "flop"
    }

    // Five entries, "" for an empty slot.
    function _boardCardsArray(text) {
        const compact = String(text === undefined ? boardText : text).replace(/\s+/g, "")
        const cards = []
        for (let i = 0; i < _slotCount; ++i)
            cards.push(_cardFromPair(compact.substr(2 * i, 2)))
        return cards
    }

    // Writes the slots up to the last filled one, with a placeholder for each gap.
    function _setBoardFromCards(cards) {
        let last = -1
        for (let i = 0; i < cards.length && i < _slotCount; ++i) {
            if (cards[i])
                last = i
        }
        let text = ""
        for (let i = 0; i <= last; ++i)
            text += cards[i] ? cards[i] : _emptySlot
        if (boardText !== text)
            boardText = text
    }

    // A card that is no card, or one already in another slot, changes nothing.
    function setBoardCardAt(index, card) {
        const normalized = _cardFromPair(String(card).trim())
        if (normalized === "" || index < 0 || index >= _slotCount)
            return
        const cards = _boardCardsArray()
        if (cards.some((existing, i) => i !== index && existing === normalized))
            return
        cards[index] = normalized
        _setBoardFromCards(cards)
    }

    // Empties the slot and every later one: a turn or river cannot stand without what comes before it.
    function clearBoardFrom(index) {
        const cards = _boardCardsArray()
        for (let i = Math.max(0, index); i < _slotCount; ++i)
            cards[i] = ""
        _setBoardFromCards(cards)
    }

    // Just under the board, pushed inside the window when there is no room.
    function _openCardPicker(index) {
        editingCardIndex = index
        const display = boardCard.boardDisplay
        const corner = display.mapToItem(null, 0, display.height)
        const windowWidth = page.Window.width
        const windowHeight = page.Window.height
        cardPicker.x = Math.max(_pickerMargin, Math.min(corner.x, windowWidth - cardPicker.width - _pickerMargin))
        cardPicker.y = Math.max(_pickerMargin, Math.min(corner.y + _pickerGap,
                                                        windowHeight - cardPicker.height - _pickerMargin))
        cardPicker.open()
    }

    function _pickCard(card) {
        setBoardCardAt(editingCardIndex, card)
        cardPicker.close()
    }

    function _clearPickedSlot() {
        clearBoardFrom(editingCardIndex)
        cardPicker.close()
    }

    // ---- Settings

    function _storeSetting(key, value) {
        if (!Object.is(page[key], value))
            page[key] = value
    }

    // The solve takes its target as an absolute amount in chips.
    function targetExploitabilityAmount() {
        const pot = startingPot
        const pct = targetExploitability
        if (!isFinite(pot) || !isFinite(pct) || pot <= 0)
            return 0.0
        return pot * pct / 100
    }

    function _sizingKeysFor(side, withDontDonk) {
        const pairs = []
        const kinds = [["bet_sizes", "BetSizesText"], ["raise_sizes", "RaiseSizesText"], ["add_all_in", "AddAllIn"]]
                      .concat(withDontDonk ? [["dont_donk", "DontDonk"]] : [])
        for (const kind of kinds) {
            for (const street of ["flop", "turn", "river"]) {
                const streetName = street[0].toUpperCase() + street.slice(1)
                pairs.push({snapshot: side + "_" + street + "_" + kind[0], property: side + streetName + kind[1]})
            }
        }
        return pairs
    }

    // Game and sizing settings only: a profile carries no board and no ranges.
    function currentSettingsSnapshot() {
        const data = {}
        for (const key in _snapshotGameKeys)
            data[key] = page[_snapshotGameKeys[key]]
        for (const pair of _snapshotSizingKeys)
            data[pair.snapshot] = page[pair.property]
        for (const key in _snapshotJamKeys)
            data[key] = page[_snapshotJamKeys[key]]
        return data
    }

    function _applyNumber(property, value) {
        const number = Number(value)
        if (value !== undefined && value !== null && isFinite(number))
            _storeSetting(property, number)
    }

    // Older profiles stored the target as an amount in chips; it becomes a percentage of the pot just applied.
    function _applySnapshotTarget(data) {
        if (data.target_exploitability_pct !== undefined) {
            _applyNumber("targetExploitability", data.target_exploitability_pct)
            return
        }
        if (data.target_exploitability === undefined)
            return
        const amount = Number(data.target_exploitability)
        const pot = startingPot
        const convertible = isFinite(amount) && isFinite(pot) && pot > 0
        _applyNumber("targetExploitability", convertible ? amount * 100 / pot : amount)
    }

    // Older profiles had one jam threshold for both players.
    function _applySnapshotJam(data) {
        const sharedEnabled = data.add_all_in_jam_threshold_enabled
        for (const side of ["oop", "ip"]) {
            const enabled = sharedEnabled !== undefined ? sharedEnabled
                                                        : data[side + "_add_all_in_jam_threshold_enabled"]
            _storeSetting(side + "AddAllInIfJamLtEnabled", Boolean(enabled))
            const pct = data.add_all_in_jam_threshold_pct !== undefined ? data.add_all_in_jam_threshold_pct
                                                                        : data[side + "_add_all_in_jam_threshold_pct"]
            _applyNumber(side + "AddAllInIfJamLtPct", pct)
        }
    }

    // Game values are kept when absent; sizes and switches are reset by absence, so that a profile is whole.
    // The street is not inferred again here: it follows the board at the board's next change.
    function applySettingsSnapshot(data) {
        if (!data || typeof data !== "object")
            return
        for (const key of ["starting_pot", "effective_stack", "rake_percent", "rake_cap"])
            _applyNumber(_snapshotGameKeys[key], data[key])
        _applySnapshotTarget(data)
        _applyNumber("maxIterations", data.max_iterations)
        if (data.starting_street !== undefined && data.starting_street !== null)
            _storeSetting("startingStreet", String(data.starting_street))
        for (const pair of _snapshotSizingKeys) {
            const value = data[pair.snapshot]
            const isText = typeof page[pair.property] === "string"
            if (isText)
                _storeSetting(pair.property, value === undefined || value === null ? "" : String(value))
            else
                _storeSetting(pair.property, Boolean(value))
        }
        _applySnapshotJam(data)
    }

    // ---- Profiles

    function _uniqueProfileName(existing, raw) {
        return _profileStore.uniqueName(existing, raw)
    }

    function _sanitizeSettingsProfiles(arr) {
        return _profileStore.sanitize(arr)
    }

    function _profileById(id) {
        const found = settingsProfiles.filter(profile => profile && profile.id === id)
        return found.length > 0 ? found[0] : null
    }

    function _commitSaveProfile(raw) {
        if (String(raw).trim() === "") {
            _saveProfileError = qsTr("Please enter a name.")
            return false
        }
        const profile = {
            id: _profileStore.newId(),
            name: _uniqueProfileName(settingsProfiles, raw),
            createdAt: new Date().toISOString(),
            data: currentSettingsSnapshot()
        }
        settingsProfiles = settingsProfiles.concat([profile])
        return true
    }

    function _commitLoadProfile() {
        const found = _profileById(_loadProfileSelectedId)
        if (!found) {
            _loadProfileError = qsTr("Please select a profile.")
            return false
        }
        applySettingsSnapshot(found.data)
        return true
    }

    function _prepareDeleteProfile() {
        const found = _profileById(_loadProfileSelectedId)
        _deleteProfileId = found ? found.id : ""
        _deleteProfileName = found ? found.name : ""
    }

    function _confirmDeleteProfile() {
        settingsProfiles = settingsProfiles.filter(profile => profile.id !== _deleteProfileId)
        if (_loadProfileSelectedId === _deleteProfileId)
            _loadProfileSelectedId = ""
    }

    // ---- Scrolling

    function _clampScroll(value, extent) {
        return Math.max(0, Math.min(Math.max(0, extent), value))
    }

    // Shift turns the wheel sideways. A vertical turn is left unaccepted, so that a text area under the pointer
    // scrolls as well.
    function _onWheel(wheel) {
        const delta = wheel.angleDelta.y !== 0 ? wheel.angleDelta.y : wheel.angleDelta.x
        const step = delta / 2
        if (wheel.modifiers & Qt.ShiftModifier) {
            flick.contentX = _clampScroll(flick.contentX - step, flick.contentWidth - flick.width)
            wheel.accepted = true
            return
        }
        flick.contentY = _clampScroll(flick.contentY - step, flick.contentHeight - flick.height)
        wheel.accepted = false
    }

    // The starting street always follows the board; there is no selector for it.
    onBoardTextChanged: _storeSetting("startingStreet", inferStreetFromBoardText(boardText))
    onSettingsProfilesChanged: {
        if (_profilesLoaded)
            _profileStore.write(settingsProfiles)
    }
    // The library's overrides come first, as the bundled presets are built with them; the Custom lists last.
    Component.onCompleted: {
        rangeLibrary.loadOverrides()
        rangeLibrary._loadBundledPresetRanges()
        settingsProfiles = _profileStore.read()
        _profilesLoaded = true
        rangeLibrary.loadCustomTrees()
    }

    Flickable {
        id: flick
        objectName: "projectFlickable"
        anchors.fill: parent
        // Painting ranges and selecting text need the mouse; the wheel and the scroll bars move the page.
        interactive: false
        clip: true
        contentWidth: Math.max(width, page._row1RequiredWidth, page._rangesRequiredWidth)
        contentHeight: content.implicitHeight + 2 * page._pageMargin

        ScrollBar.vertical: ScrollBar {
            policy: flick.contentHeight > flick.height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }
        ScrollBar.horizontal: ScrollBar {
            objectName: "horizontalScrollBar"
            policy: flick.contentWidth > flick.width + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }

        ColumnLayout {
            id: content
            x: page._pageMargin
            y: page._pageMargin
            width: flick.contentWidth - 2 * page._pageMargin
            spacing: page._theme.spaceXl

            ProjectPageHeader {
                Layout.fillWidth: true
                theme: page._theme
                boardReady: page.validBoard(page.boardText)
                canSolve: page.canSolve
                onSaveSettingsClicked: profileDialogs.openSave()
                onLoadSettingsClicked: profileDialogs.openLoad()
                onContinueClicked: page.goToSolve()
            }

            // The cards share the height of the tallest.
            RowLayout {
                id: firstRow
                Layout.fillWidth: true
                spacing: page._columnGap

                ProjectBoardCard {
                    id: boardCard
                    objectName: "boardCard"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.minimumWidth: page._boardColumnWidth
                    Layout.preferredWidth: page._boardColumnWidth
                    leftPadding: page._theme.spaceMd
                    rightPadding: page._theme.spaceMd
                    theme: page._theme
                    type: page._type
                    boardText: page.boardText
                    controller: page.controller
                    onSlotClicked: index => page._openCardPicker(index)
                }

                GameSettingsCard {
                    id: gameSettingsCard
                    objectName: "gameSettingsCard"
                    Layout.fillHeight: true
                    theme: page._theme
                    type: page._type
                    startingPot: page.startingPot
                    effectiveStack: page.effectiveStack
                    rakePercent: page.rakePercent
                    rakeCap: page.rakeCap
                    targetExploitability: page.targetExploitability
                    inputColumnWidth: page.gameSettingsInputColumnWidth
                    onSettingEdited: (key, value) => page._storeSetting(key, value)
                }

                SizingGridCard {
                    id: oopSizingCard
                    objectName: "oopSizingCard"
                    Layout.fillHeight: true
                    theme: page._theme
                    type: page._type
                    player: "oop"
                    settings: page
                    streetColumnWidth: page.sizingStreetColumnWidth
                    onSettingEdited: (key, value) => page._storeSetting(key, value)
                }

                SizingGridCard {
                    id: ipSizingCard
                    objectName: "ipSizingCard"
                    Layout.fillHeight: true
                    theme: page._theme
                    type: page._type
                    player: "ip"
                    settings: page
                    streetColumnWidth: page.sizingStreetColumnWidth
                    onSettingEdited: (key, value) => page._storeSetting(key, value)
                }
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: page._columnGap

                RangePanel {
                    id: oopRangePanel
                    objectName: "oopRangePanel"
                    Layout.fillWidth: true
                    Layout.preferredWidth: implicitWidth
                    theme: page._theme
                    type: page._type
                    player: "oop"
                    rangeText: page.oopRangeText
                    onRangeTextEdited: text => page._storeSetting("oopRangeText", text)
                }

                RangePanel {
                    id: ipRangePanel
                    objectName: "ipRangePanel"
                    Layout.fillWidth: true
                    Layout.preferredWidth: implicitWidth
                    theme: page._theme
                    type: page._type
                    player: "ip"
                    rangeText: page.ipRangeText
                    onRangeTextEdited: text => page._storeSetting("ipRangeText", text)
                }
            }
        }
    }

    // Over the whole page, so that the wheel scrolls it wherever the pointer is; it takes no presses.
    MouseArea {
        anchors.fill: flick
        acceptedButtons: Qt.NoButton
        onWheel: wheel => page._onWheel(wheel)
    }

    BoardCardPickerDialog {
        id: cardPicker
        objectName: "cardPickerDialog"
        theme: page._theme
        type: page._type
        editingCardIndex: page.editingCardIndex
        usedCards: page.usedBoardCards
        onCardPicked: card => page._pickCard(card)
        onClearRequested: page._clearPickedSlot()
        onClosed: page.editingCardIndex = -1
    }

    RangeLibraryPanel {
        objectName: "oopRangeLibrary"
        parent: oopRangePanel.librarySlot
        anchors.fill: parent
        theme: page._theme
        type: page._type
        library: rangeLibrary
        dialogs: rangeDialogs
        player: "oop"
        rangeText: page.oopRangeText
    }

    RangeLibraryPanel {
        objectName: "ipRangeLibrary"
        parent: ipRangePanel.librarySlot
        anchors.fill: parent
        theme: page._theme
        type: page._type
        library: rangeLibrary
        dialogs: rangeDialogs
        player: "ip"
        rangeText: page.ipRangeText
    }

    RangeLibraryDialogs {
        id: rangeDialogs
        objectName: "rangeDialogs"
        theme: page._theme
        type: page._type
        library: rangeLibrary
    }

    SettingsProfileDialogs {
        id: profileDialogs
        theme: page._theme
        type: page._type
        setupPage: page
    }
}
