// The range library of both players: the three category trees, what each player's list shows (category, open
// folders, selection), the Custom lists kept in the settings store ("ranges/oopCustomRangesJson", ...), and the
// edits of those lists. Standard and Population come from the bundled data each start, with fresh ids, so that
// nothing stored refers to them by id: their overrides are kept by path instead.
import QtQuick
import Qt.labs.settings
import "RangeLibraryTree.js" as Tree
import "RangeLibraryStandard.js" as Standard
import "RangeLibraryPopulation.js" as Population
import "RangeLibraryNames.js" as Names
import "../components/RangeText.js" as RangeText

QtObject {
    id: store

    property var controller: null
    // The players' range texts as the page holds them; a choice goes back through rangeTextChosen.
    property string oopRangeText: ""
    property string ipRangeText: ""

    property int oopRangeCategory: customCategory
    property string oopSelectedId: ""
    property var oopOpenFolderIds: ({})
    property var oopStandardRanges: []
    property var oopExploitRanges: []
    property var oopCustomRanges: []
    property var oopStandardOverrides: ({})
    property var oopExploitOverrides: ({})

    property int ipRangeCategory: customCategory
    property string ipSelectedId: ""
    property var ipOpenFolderIds: ({})
    property var ipStandardRanges: []
    property var ipExploitRanges: []
    property var ipCustomRanges: []
    property var ipStandardOverrides: ({})
    property var ipExploitOverrides: ({})

    // Raised when the language changes, so that lists of translated names are built again.
    property int _i18nRev: 0
    property string _presetLoadError: ""
    // Set by the exports; no control shows them, so a failure is also written to the log.
    property string _exportStandardError: ""
    property string _exportExploitError: ""
    property string _saveRangeError: ""
    property string _addFolderError: ""
    property string _importError: ""
    // The range text taken when saving began, so that later edits do not change what is saved.
    property string _saveRangeText: ""
    // What the import name dialog works on: the cleaned text, the proposed name and the player it is for.
    property string _importText: ""
    property string _importName: ""
    property string _importFocusPlayer: "oop"
    property bool _customLoaded: false

    readonly property int standardCategory: 0
    readonly property int exploitCategory: 1
    readonly property int customCategory: 2
    readonly property bool developerMode: !!controller && controller.developerMode === true
    readonly property var _players: ["oop", "ip"]
    readonly property var _treeSuffixes: ["StandardRanges", "ExploitRanges", "CustomRanges"]
    readonly property var _overrideSuffixes: ["StandardOverrides", "ExploitOverrides"]
    readonly property string _missingStandardPresets:
        "Failed to load bundled standard presets (resource file missing/empty)."
    readonly property RangeLibraryPresets _presets: RangeLibraryPresets {
        controller: store.controller
    }
    readonly property Settings _settings: Settings {
        category: "ranges"
    }
    readonly property Connections _languageWatch: Connections {
        target: typeof languageManager !== "undefined" ? languageManager : null
        ignoreUnknownSignals: true

        function onCurrentLanguageChanged() {
            store._i18nRev += 1
        }
    }

    signal rangeTextChosen(string player, string text)

    // ---- Trees and lists

    function _isPlayer(player) {
        return _players.indexOf(player) >= 0
    }

    function _otherPlayer(player) {
        return player === "ip" ? "oop" : "ip"
    }

    function rangesFor(player, category) {
        const suffix = _treeSuffixes[category]
        return _isPlayer(player) && suffix ? store[player + suffix] : []
    }

    function categoryLabel(cat) {
        return Names.categoryLabel(cat)
    }

    function rangeDisplayName(category, rawName) {
        return Names.displayName(category, rawName)
    }

    function _rowsFor(player, category) {
        return Tree.flattenTree(rangesFor(player, category), store[player + "OpenFolderIds"],
                                name => rangeDisplayName(category, name))
    }

    function _flattenTreeFor(player) {
        return _isPlayer(player) ? _rowsFor(player, store[player + "RangeCategory"]) : []
    }

    // The rows of the player's list, for bindings. Reading the revision ties such a binding to the language, so
    // that the translated names are built again when it changes.
    function listModelFor(player) {
        return _i18nRev >= 0 ? _flattenTreeFor(player) : []
    }

    function _toggleOpenFolder(player, id) {
        const key = player + "OpenFolderIds"
        store[key] = Tree.toggleOpenFolder(rangesFor(player, store[player + "RangeCategory"]), store[key], id)
    }

    function setRangeCategory(player, category) {
        if (_isPlayer(player) && _treeSuffixes[category])
            store[player + "RangeCategory"] = category
    }

    function _clearView(player) {
        store[player + "SelectedId"] = ""
        store[player + "OpenFolderIds"] = {}
    }

    function selectedNode(player) {
        return _isPlayer(player) ? Tree.findNode(rangesFor(player, store[player + "RangeCategory"]),
                                                 store[player + "SelectedId"]) : null
    }

    // A click on a row: a folder opens or closes, a range becomes the player's range text.
    function chooseRow(player, id) {
        store[player + "SelectedId"] = id
        const node = selectedNode(player)
        if (Tree.isFolder(node))
            _toggleOpenFolder(player, id)
        else if (node)
            rangeTextChosen(player, node.value)
    }

    // ---- Tree functions

    function _newNodeId() {
        return Tree.newNodeId()
    }

    function _sanitizeCustomTree(nodes) {
        return Tree.sanitizeTree(nodes)
    }

    function _sanitizePresetList(list) {
        return Tree.sanitizePresetList(list)
    }

    function _buildStandardTree(list) {
        return Standard.buildStandardTree(list)
    }

    function _buildExploitTree(player, standardTree) {
        return Population.buildExploitTree(player, standardTree)
    }

    function _applyOverridesToTree(nodes, overrides, path) {
        return Tree.applyOverrides(nodes, overrides, path)
    }

    function _stripWeightsText(text) {
        return Tree.stripWeightsText(text)
    }

    function _uniqueRangeName(siblings, raw) {
        return Tree.uniqueName(siblings, raw)
    }

    function _flattenStandardForExport(tree) {
        return Standard.flattenStandardForExport(tree)
    }

    // ---- Settings store

    // A stored text that is blank or not JSON of the expected kind counts as empty.
    function _readJson(key, isExpected) {
        const text = String(_settings.value(key, ""))
        if (text.trim() === "")
            return null
        try {
            const parsed = JSON.parse(text)
            return isExpected(parsed) ? parsed : null
        } catch (error) {
            return null
        }
    }

    function _isMap(value) {
        return !!value && typeof value === "object" && !Array.isArray(value)
    }

    function _writeSetting(key, text) {
        _settings.setValue(key, text)
        _settings.sync()
    }

    function _overrideKey(player, category) {
        return player + _overrideSuffixes[category]
    }

    function loadOverrides() {
        for (const player of _players) {
            for (const category of [standardCategory, exploitCategory]) {
                const key = _overrideKey(player, category)
                const stored = _readJson(key + "Json", _isMap)
                store[key] = stored ? stored : {}
            }
        }
    }

    function _writeOverrides(player, category) {
        const key = _overrideKey(player, category)
        _writeSetting(key + "Json", JSON.stringify(store[key]))
    }

    // An absent, blank, corrupt or empty stored tree leaves the list empty.
    function loadCustomTrees() {
        for (const player of _players) {
            const stored = _readJson(player + "CustomRangesJson", Array.isArray)
            store[player + "CustomRanges"] = stored ? _sanitizeCustomTree(stored) : []
        }
        _customLoaded = true
    }

    function _writeCustomTree(player) {
        if (_customLoaded)
            _writeSetting(player + "CustomRangesJson", JSON.stringify(_sanitizeCustomTree(store[player + "CustomRanges"])))
    }

    // ---- Bundled presets

    function _standardTreeOf(document, player) {
        const entry = document && document[player]
        const list = _sanitizePresetList(entry ? entry.standard : [])
        if (list.length === 0)
            return []
        const tree = _sanitizeCustomTree(_buildStandardTree(list))
        return _applyOverridesToTree(tree, store[_overrideKey(player, standardCategory)], [])
    }

    function _exploitTreeOf(document, player, standardTree) {
        const entry = document && document[player]
        const fileTree = _sanitizeCustomTree(entry ? entry.exploit : [])
        const merged = Population.mergeWithTemplate(fileTree, _buildExploitTree(player, standardTree))
        return _applyOverridesToTree(merged, store[_overrideKey(player, exploitCategory)], [])
    }

    // Builds both players' trees first and assigns them only when all went well.
    function _applyPresetTexts(standardText, exploitText, missingStandardError) {
        const standardDocument = standardText === null ? null : JSON.parse(standardText)
        const exploitDocument = exploitText === null ? null : JSON.parse(exploitText)
        const built = {}
        for (const player of _players) {
            const standard = standardDocument ? _standardTreeOf(standardDocument, player) : []
            built[player] = {standard: standard, exploit: _exploitTreeOf(exploitDocument, player, standard)}
        }
        for (const player of _players) {
            store[player + "StandardRanges"] = built[player].standard
            store[player + "ExploitRanges"] = built[player].exploit
        }
        _presetLoadError = standardText === null ? missingStandardError : ""
    }

    function _failPresetLoad(error) {
        for (const player of _players) {
            store[player + "StandardRanges"] = []
            store[player + "ExploitRanges"] = []
        }
        _presetLoadError = "Failed to load bundled presets: " + error
    }

    function _fetchBundledPresets() {
        _presets.fetchFirst(_presets.standardUrls, "STANDARD", standardText => {
            _presets.fetchFirst(_presets.exploitUrls, "POPULATION", exploitText => {
                try {
                    _applyPresetTexts(standardText, exploitText, _presets.fetchFailure)
                } catch (error) {
                    _failPresetLoad(error)
                }
            })
        })
    }

    function _loadBundledPresetRanges() {
        _presetLoadError = ""
        if (!_presets.canReadResources()) {
            _fetchBundledPresets()
            return
        }
        try {
            _applyPresetTexts(_presets.readFirst(_presets.standardPaths, "STANDARD"),
                              _presets.readFirst(_presets.exploitPaths, "POPULATION"), _missingStandardPresets)
        } catch (error) {
            _failPresetLoad(error)
        }
    }

    // ---- Custom list edits

    // Puts a node into the player's Custom list beside or inside the selection, under a name its siblings do
    // not have, shows the list with the node revealed and selects it.
    function _placeInCustom(player, node, openItself) {
        const tree = store[player + "CustomRanges"]
        const parentId = Tree.insertionParentId(tree, store[player + "SelectedId"])
        const placed = Object.assign({}, node, {name: _uniqueRangeName(Tree.childrenOf(tree, parentId), node.name)})
        const next = Tree.insertNode(tree, parentId, placed)
        store[player + "RangeCategory"] = customCategory
        store[player + "CustomRanges"] = next
        store[player + "OpenFolderIds"] = Tree.revealNode(next, store[player + "OpenFolderIds"], placed.id,
                                                          openItself)
        store[player + "SelectedId"] = placed.id
    }

    function _appendTopLevel(player, node) {
        const tree = store[player + "CustomRanges"]
        store[player + "RangeCategory"] = customCategory
        store[player + "CustomRanges"] = tree.concat([Object.assign({}, node, {name: _uniqueRangeName(tree,
                                                                                                       node.name)})])
    }

    function _blank(text) {
        return text === undefined || text === null || String(text).trim() === ""
    }

    function beginSaveRange(player) {
        _saveRangeText = _isPlayer(player) ? store[player + "RangeText"] : ""
        _saveRangeError = ""
    }

    // Saves the given text, or without one the text taken when saving began.
    function commitSaveRange(player, rawName, rangeText) {
        const text = rangeText === undefined ? _saveRangeText : rangeText
        _saveRangeError = ""
        if (_blank(rawName))
            _saveRangeError = "Please enter a name."
        else if (_blank(text))
            _saveRangeError = "Current range is empty."
        else if (!_isPlayer(player))
            _saveRangeError = "Unknown player."
        if (_saveRangeError !== "")
            return false
        _placeInCustom(player, {id: _newNodeId(), type: "range", name: String(rawName).trim(), value: String(text)},
                       false)
        return true
    }

    function commitAddFolder(player, rawName) {
        _addFolderError = ""
        if (_blank(rawName))
            _addFolderError = "Please enter a folder name."
        else if (!_isPlayer(player))
            _addFolderError = "Unknown player."
        if (_addFolderError !== "")
            return false
        _placeInCustom(player, {id: _newNodeId(), type: "folder", name: String(rawName).trim(), children: []}, true)
        return true
    }

    function canDeleteSelected(player) {
        return _isPlayer(player) && Tree.findNode(store[player + "CustomRanges"], store[player + "SelectedId"]) !== null
    }

    // Removes the selected Custom node and selects the row that takes its place; a range there becomes the range
    // text, an empty list empties it, a folder leaves it.
    function deleteSelectedItem(player) {
        if (!canDeleteSelected(player))
            return false
        const id = store[player + "SelectedId"]
        const tree = store[player + "CustomRanges"]
        const index = Math.max(0, _rowsFor(player, customCategory).findIndex(row => row.id === id))
        const next = Tree.removeNode(tree, id)
        store[player + "CustomRanges"] = next
        store[player + "OpenFolderIds"] = Tree.pruneOpenIds(next, store[player + "OpenFolderIds"])
        const rows = _rowsFor(player, customCategory)
        const row = rows.length > 0 ? rows[Math.min(index, rows.length - 1)] : null
        store[player + "SelectedId"] = row ? row.id : ""
        if (!row)
            rangeTextChosen(player, "")
        else if (row.kind === "range")
            rangeTextChosen(player, row.value)
        return true
    }

    // ---- Import

    function beginImport(focusPlayer) {
        _importFocusPlayer = focusPlayer === "ip" ? "ip" : "oop"
        _importError = ""
        _importText = ""
        _importName = ""
    }

    function _baseNameOf(fileUrl) {
        const path = decodeURIComponent(String(fileUrl)).replace(/[?#].*$/, "")
        return path.slice(path.lastIndexOf("/") + 1).replace(/\.txt$/i, "")
    }

    // Reads and cleans the chosen file and proposes its name; a failure is kept in _importError for the name
    // dialog to show.
    function _readImportFile(fileUrl) {
        _importError = ""
        _importText = ""
        _importName = ""
        if (!controller || typeof controller.readTextFile !== "function") {
            _importError = qsTranslate("ProjectPage", "Import failed: appController.readTextFile unavailable.")
            return false
        }
        const result = controller.readTextFile(fileUrl)
        if (!result || !result.ok) {
            const reason = result && result.error ? String(result.error) : qsTranslate("ProjectPage", "unknown error")
            _importError = qsTranslate("ProjectPage", "Import failed: %1").arg(reason)
            return false
        }
        _importName = _baseNameOf(fileUrl)
        const text = RangeText.normalizeImportedRangeText(result.text)
        if (text.trim() === "") {
            _importError = qsTranslate("ProjectPage", "Import failed: file contained no recognizable hands.")
            return false
        }
        _importText = text
        return true
    }

    // The range joins both players' Custom lists, so that either side can take it; the focus player gets it
    // beside the selection, selected and as its range text, the other at the top.
    function commitImportRange(rawName) {
        if (_blank(rawName)) {
            _importError = qsTranslate("ProjectPage", "Please enter a name.")
            return false
        }
        if (_blank(_importText)) {
            _importError = qsTranslate("ProjectPage", "No range content to import.")
            return false
        }
        try {
            const focus = _importFocusPlayer
            const name = String(rawName).trim()
            _appendTopLevel(_otherPlayer(focus), {id: _newNodeId(), type: "range", name: name, value: _importText})
            _placeInCustom(focus, {id: _newNodeId(), type: "range", name: name, value: _importText}, false)
            rangeTextChosen(focus, _importText)
        } catch (error) {
            console.warn("Import failed:", error)
            _importError = qsTranslate("ProjectPage", "Import failed.")
            return false
        }
        _importError = ""
        return true
    }

    // ---- Developer maintenance of the bundled data

    function _isBuiltIn(category) {
        return category === standardCategory || category === exploitCategory
    }

    function canOverride(player, rangeText) {
        if (!_isPlayer(player) || !_isBuiltIn(store[player + "RangeCategory"]) || _blank(rangeText))
            return false
        const node = selectedNode(player)
        return !!node && !Tree.isFolder(node)
    }

    // Writes the text over the selected built-in leaf, keyed by its path so that it outlives the fresh ids.
    function overrideSelectedRange(player, rangeText) {
        if (!canOverride(player, rangeText))
            return false
        const category = store[player + "RangeCategory"]
        const treeKey = player + _treeSuffixes[category]
        const id = store[player + "SelectedId"]
        const overrides = Object.assign({}, store[_overrideKey(player, category)])
        overrides[Tree.pathKey(store[treeKey], id)] = String(rangeText)
        store[_overrideKey(player, category)] = overrides
        _writeOverrides(player, category)
        store[treeKey] = Tree.withValue(store[treeKey], id, String(rangeText))
        return true
    }

    // Empties the player's overrides of the category, in the store as well, and takes the bundled data again.
    function clearOverrides(player, category) {
        if (!_isPlayer(player) || !_isBuiltIn(category))
            return
        store[_overrideKey(player, category)] = {}
        _writeSetting(_overrideKey(player, category) + "Json", "")
        _clearView(player)
        rangeTextChosen(player, "")
        _loadBundledPresetRanges()
    }

    // The data file's own shape, so that an export can overwrite it.
    function _standardExportDocument() {
        return {
            oop: {standard: _flattenStandardForExport(oopStandardRanges)},
            ip: {standard: _flattenStandardForExport(ipStandardRanges)}
        }
    }

    // Standard left empty on purpose: the file can be kept without the Standard presets.
    function _exploitExportDocument() {
        return {
            format: "kelvane_ranges_export",
            version: 1,
            generatedAt: new Date().toISOString(),
            oop: {standard: [], exploit: Tree.withoutIds(oopExploitRanges)},
            ip: {standard: [], exploit: Tree.withoutIds(ipExploitRanges)}
        }
    }

    // Answers "" when written, else the message.
    function _writeDocument(fileUrl, document) {
        if (!controller || typeof controller.saveTextFile !== "function")
            return qsTranslate("ProjectPage", "Export failed: appController.saveTextFile unavailable.")
        const result = controller.saveTextFile(fileUrl, JSON.stringify(document, null, 2))
        if (result && result.ok)
            return ""
        const reason = result && result.error ? String(result.error) : qsTranslate("ProjectPage", "unknown error")
        return qsTranslate("ProjectPage", "Export failed: %1").arg(reason)
    }

    function _reportExport(error) {
        if (error !== "")
            console.warn("[ranges]", error)
        return error === ""
    }

    function exportStandardTo(fileUrl) {
        _exportStandardError = _writeDocument(fileUrl, _standardExportDocument())
        return _reportExport(_exportStandardError)
    }

    function exportPopulationTo(fileUrl) {
        _exportExploitError = _writeDocument(fileUrl, _exploitExportDocument())
        return _reportExport(_exportExploitError)
    }

    onOopRangeCategoryChanged: _clearView("oop")
    onIpRangeCategoryChanged: _clearView("ip")
    onOopCustomRangesChanged: _writeCustomTree("oop")
    onIpCustomRangesChanged: _writeCustomTree("ip")
}
