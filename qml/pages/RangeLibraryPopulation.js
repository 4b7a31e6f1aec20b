// The Population category's template: the five player-type folders that the data file is expected to hold. It
// fills what a missing or partial file leaves out; the Weaker regs folders mirror the player's own six-max
// Standard presets without weights, so that they can be tuned from there.
.pragma library

.import "RangeLibraryTree.js" as Tree
.import "RangeLibraryStandard.js" as Standard

// Position folders and their leaves, per player.
const PASSIVE_SPOTS = {
    oop: [["UTG/HJ/CO", ["Limp", "Limp-call", "Limp-3b", "RFI", "Call 3b", "4b"]],
          ["SB", ["Limp", "Limp-3b", "RFI", "3b", "4b", "Call 3b", "Call 4b"]],
          ["BB", ["Check back", "Call raise", "3b", "Call 4b"]]],
    ip: [["UTG/HJ/CO", ["Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b"]],
         ["BU", ["Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b"]],
         ["BB", ["Call raise", "3b", "Call 4b"]]]
}
const AGGRESSIVE_SPOTS = {
    oop: [["UTG/HJ/CO", ["RFI", "Call 3b", "4b"]],
          ["SB", ["RFI", "3b", "4b", "Call 3b", "Call 4b"]],
          ["BB", ["Call raise", "3b", "Call 4b"]]],
    ip: [["UTG/HJ/CO", ["RFI", "3b", "Call 3b", "4b", "Call 4b"]],
         ["BU", ["RFI", "3b", "Call 3b", "4b", "Call 4b"]],
         ["BB", ["Call", "3b"]]]
}
const NIT_SPOTS = {
    oop: [["UTG/HJ/CO", ["RFI", "Call 3b", "4b"]],
          ["SB", ["RFI", "3b", "4b", "Call 3b", "Call 4b"]],
          ["BB", ["Check back", "Call raise", "3b", "Call 4b"]]],
    ip: [["UTG/HJ/CO", ["RFI", "3b", "Call 3b", "4b", "Call 4b"]],
         ["BU", ["RFI", "3b", "Call 3b", "4b", "Call 4b"]],
         ["BB", ["Call raise", "3b", "Call 4b"]]]
}
const PASSIVE_TYPES = ["Passive tight (VPIP 18–25)", "Passive neutral (VPIP 25–35)", "Passive loose (VPIP 35–45)",
                       "Extreme loose (VPIP 45–65)"]
const AGGRESSIVE_TYPES = ["Standard LAG (VPIP 28–40)", "Maniac (VPIP 45–70)"]
const REG_TYPES = ["Tighter reg", "Looser reg"]
const COLD_CALL_LEAF = "3b cold call"
const BOMB_POT_VALUE = "100%"

function _range(name, value) {
    return {id: Tree.newNodeId(), type: "range", name: name, value: value}
}

function _folder(name, children) {
    return {id: Tree.newNodeId(), type: "folder", name: name, children: children}
}

function _spotFolders(spots) {
    return spots.map(spot => _folder(spot[0], spot[1].map(leaf => _range(leaf, ""))))
}

function _playerKey(player) {
    return player === "ip" ? "ip" : "oop"
}

// The template of one player, with fresh ids and blank leaves except the bomb pot's.
function buildExploitTree(player, standardTree) {
    const key = _playerKey(player)
    const regPattern = Standard.sixMaxNoRakeChildren(standardTree)
    return [
        _folder("Passive (VPIP 18–65)", PASSIVE_TYPES.map(
                    name => _folder(name, [_range(COLD_CALL_LEAF, "")].concat(_spotFolders(PASSIVE_SPOTS[key]))))),
        _folder("Loose aggressive (VPIP 28–70)", AGGRESSIVE_TYPES.map(
                    name => _folder(name, _spotFolders(AGGRESSIVE_SPOTS[key])))),
        _folder("Weaker regs", REG_TYPES.map(name => _folder(name, Tree.freshCopy(regPattern, true)))),
        _folder("Overfolder (10-22 VPIP)", [_folder("Nit", _spotFolders(NIT_SPOTS[key]))]),
        _folder("Other", [_range("Bomb pot", BOMB_POT_VALUE)])
    ]
}

// The file's tree wins; the template fills in the top folders it lacks, or stands alone when the file has no
// folder at its top.
function mergeWithTemplate(fileTree, template) {
    const tops = Array.isArray(fileTree) ? fileTree : []
    if (!tops.some(Tree.isFolder))
        return template
    const names = tops.filter(Tree.isFolder).map(node => node.name)
    return tops.concat(template.filter(node => names.indexOf(node.name) < 0))
}
