// The Standard category: the data file's flat list of "rake / preset" names becomes a tree of table size, rake
// and scenario folders, and an export turns the tree back into the same flat names, so that an overwritten data
// file keeps its shape.
.pragma library

const SEPARATOR = " / "
const SIX_MAX = "6-max"
const HEADS_UP = "Heads up"
const NO_RAKE = "No rake"
const RAKE_FOLDERS = ["No rake", "50nl rake", "100nl rake", "200nl rake", "500nl rake"]
const RFI = "RFI"
const VS_RFI = "vs RFI"
const VS_3BET = "vs 3bet"
const VS_4BET = "vs 4bet"
const SCENARIO_FOLDERS = [RFI, VS_RFI, VS_3BET, VS_4BET]
const OPENER_FOLDER = /^vs (.+) RFI$/

function _folder(name) {
    return {type: "folder", name: name, children: []}
}

function _child(folder, name) {
    let found = folder.children.find(node => node.type === "folder" && node.name === name)
    if (!found) {
        found = _folder(name)
        folder.children.push(found)
    }
    return found
}

// The text on both sides of the first colon, trimmed; null unless both are there.
function _splitAtColon(text) {
    const colon = text.indexOf(":")
    if (colon < 0)
        return null
    const before = text.slice(0, colon).trim()
    const after = text.slice(colon + 1).trim()
    return before !== "" && after !== "" ? {before: before, after: after} : null
}

// Where a six-max preset goes below its rake folder: the folder names and the leaf name.
function _sixMaxPlace(n) {
    if (n.startsWith(RFI + " "))
        return {folders: [RFI], leaf: n.slice(RFI.length + 1).trim()}
    if (n.startsWith(VS_RFI + " ")) {
        const rest = n.slice(VS_RFI.length + 1).trim()
        const parts = _splitAtColon(rest)
        return parts ? {folders: [VS_RFI, "vs " + parts.before + " " + RFI], leaf: parts.after}
                     : {folders: [VS_RFI], leaf: rest}
    }
    // The 3bettor facing a 4bet; "UTG vs HJ 3bet: UTG 4bet" has no "3bet vs" and stays with the opener below.
    if (n.indexOf("3bet vs") >= 0 && n.indexOf("4bet") >= 0) {
        const parts = _splitAtColon(n)
        return parts ? {folders: [VS_4BET, parts.before], leaf: parts.after} : {folders: [VS_4BET], leaf: n}
    }
    if (n.indexOf("3bet") >= 0 && n.indexOf(":") >= 0) {
        const parts = _splitAtColon(n)
        return parts ? {folders: [VS_3BET, parts.before], leaf: parts.after} : {folders: [VS_3BET], leaf: n}
    }
    return {folders: [], leaf: n}
}

// A name's rake folder and the rest; a first part that is no rake folder means "No rake" and is kept.
function _splitRake(name) {
    const cut = name.indexOf(SEPARATOR)
    if (cut >= 0) {
        const prefix = name.slice(0, cut).trim()
        if (RAKE_FOLDERS.indexOf(prefix) >= 0)
            return {rake: prefix, rest: name.slice(cut + SEPARATOR.length).trim()}
    }
    return {rake: NO_RAKE, rest: name}
}

function _tableFolder(name, withScenarios) {
    const table = _folder(name)
    for (const rake of RAKE_FOLDERS) {
        const rakeFolder = _folder(rake)
        if (withScenarios)
            rakeFolder.children = SCENARIO_FOLDERS.map(_folder)
        table.children.push(rakeFolder)
    }
    return table
}

function _addLeaf(table, rake, folders, leaf, value) {
    if (leaf === "")
        return
    let folder = _child(table, rake)
    for (const name of folders)
        folder = _child(folder, name)
    folder.children.push({type: "range", name: leaf, value: value})
}

// The tree of one player's flat list, without ids: "6-max" with every rake and scenario folder, then "Heads up"
// with the rake folders, leaves named by what follows the rake.
function buildStandardTree(list) {
    const sixMax = _tableFolder(SIX_MAX, true)
    const headsUp = _tableFolder(HEADS_UP, false)
    for (const entry of Array.isArray(list) ? list : []) {
        const parts = String(entry.name).split(SEPARATOR).map(part => part.trim())
        const headsUpAt = parts.indexOf(HEADS_UP)
        const isHeadsUp = headsUpAt >= 0
        const tagAt = isHeadsUp ? headsUpAt : parts.indexOf(SIX_MAX)
        if (tagAt >= 0)
            parts.splice(tagAt, 1)
        const split = _splitRake(parts.join(SEPARATOR))
        if (isHeadsUp) {
            _addLeaf(headsUp, split.rake, [], split.rest, entry.value)
        } else {
            const place = _sixMaxPlace(split.rest)
            _addLeaf(sixMax, split.rake, place.folders, place.leaf, entry.value)
        }
    }
    return [sixMax, headsUp]
}

// The flat name below a rake folder for a leaf reached through these folder names.
function _flatRest(folders, leaf) {
    if (folders.length === 0)
        return leaf
    const scenario = folders[0]
    if (folders.length === 1 && scenario === RFI)
        return RFI + " " + leaf
    if (scenario === VS_RFI && folders.length <= 2) {
        const opener = folders.length === 2 ? OPENER_FOLDER.exec(folders[1]) : null
        if (opener)
            return VS_RFI + " " + opener[1] + ": " + leaf
        if (folders.length === 1)
            return VS_RFI + " " + leaf
    }
    if ((scenario === VS_3BET || scenario === VS_4BET) && folders.length <= 2)
        return folders.length === 2 ? folders[1] + ": " + leaf : leaf
    return folders.concat([leaf]).join(SEPARATOR)
}

function _flattenBelow(nodes, folders, prefix, into) {
    for (const node of nodes) {
        if (node.type === "folder")
            _flattenBelow(node.children, folders.concat([node.name]), prefix, into)
        else
            into.push({name: prefix + _flatRest(folders, node.name), value: node.value})
    }
}

// The inverse of buildStandardTree: one flat {name, value} list, six-max first, heads-up names prefixed.
function flattenStandardForExport(tree) {
    const list = []
    for (const tableName of [SIX_MAX, HEADS_UP]) {
        const table = (Array.isArray(tree) ? tree : []).find(node => node.type === "folder"
                                                                    && node.name === tableName)
        if (!table)
            continue
        const tablePrefix = tableName === HEADS_UP ? HEADS_UP + SEPARATOR : ""
        for (const rake of table.children.filter(node => node.type === "folder"))
            _flattenBelow(rake.children, [], tablePrefix + rake.name + SEPARATOR, list)
    }
    return list
}

// The children of the six-max "No rake" folder, the pattern that the Population template copies.
function sixMaxNoRakeChildren(tree) {
    const sixMax = (Array.isArray(tree) ? tree : []).find(node => node.type === "folder" && node.name === SIX_MAX)
    const noRake = sixMax ? sixMax.children.find(node => node.type === "folder" && node.name === NO_RAKE) : null
    return noRake ? noRake.children : []
}
