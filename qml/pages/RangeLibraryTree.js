// The range library's trees as plain arrays: a node is a range {id, type: "range", name, value} or a folder
// {id, type: "folder", name, children}. Every function here returns new arrays and maps and never changes its
// arguments, so that assigning the result to a property is the one change a page has to watch.
.pragma library

const PATH_SEPARATOR = " / "
const ID_RANDOM_LENGTH = 6
const ID_RADIX = 36
const WEIGHT_SUFFIX = /:[+-]?(\d+\.?\d*|\.\d+)$/
const TOKEN_SEPARATORS = /[\s,]+/

// "n_" + the time in base 36 + "_" + six random base 36 characters.
function newNodeId() {
    const random = Math.random().toString(ID_RADIX).slice(2, 2 + ID_RANDOM_LENGTH).padEnd(ID_RANDOM_LENGTH, "0")
    return "n_" + Date.now().toString(ID_RADIX) + "_" + random
}

function _text(value) {
    return value === undefined || value === null ? "" : String(value)
}

function isFolder(node) {
    return !!node && node.type === "folder"
}

function _looksLikeFolder(entry) {
    return entry.type === "folder" || Array.isArray(entry.children)
}

// Accepts the stored shape and the older ones ({name, value} ranges, folders known only by their children).
// Nameless entries are dropped; an id that is missing or already used gets a new one.
function _sanitizeNodes(nodes, seenIds) {
    if (!Array.isArray(nodes))
        return []
    const result = []
    for (const entry of nodes) {
        if (!entry || typeof entry !== "object" || Array.isArray(entry))
            continue
        const name = _text(entry.name).trim()
        if (name === "")
            continue
        let id = typeof entry.id === "string" && entry.id.trim() !== "" ? entry.id : ""
        if (id === "" || seenIds[id])
            id = newNodeId()
        seenIds[id] = true
        if (_looksLikeFolder(entry))
            result.push({id: id, type: "folder", name: name, children: _sanitizeNodes(entry.children, seenIds)})
        else
            result.push({id: id, type: "range", name: name, value: _text(entry.value)})
    }
    return result
}

function sanitizeTree(nodes) {
    return _sanitizeNodes(nodes, {})
}

// A flat preset list keeps the entries that have a name; the value is kept as text.
function sanitizePresetList(list) {
    if (!Array.isArray(list))
        return []
    return list.filter(entry => entry && typeof entry === "object" && _text(entry.name).trim() !== "")
               .map(entry => ({name: _text(entry.name).trim(), value: _text(entry.value)}))
}

// The rows of the list. At each level an open folder hides its siblings, ranges included, and shows its own
// children one level deeper; with no open folder the whole level shows.
function flattenTree(nodes, openIds, displayNameOf) {
    const rows = []
    const open = openIds || {}
    const walk = (level, depth, parentId) => {
        const openFolder = level.find(node => isFolder(node) && open[node.id] === true)
        for (const node of openFolder ? [openFolder] : level) {
            const row = {
                id: node.id,
                kind: isFolder(node) ? "folder" : "range",
                name: node.name,
                displayName: displayNameOf ? displayNameOf(node.name) : node.name,
                depth: depth,
                parentFolderId: parentId
            }
            if (!isFolder(node))
                row.value = node.value
            rows.push(row)
        }
        if (openFolder)
            walk(openFolder.children, depth + 1, openFolder.id)
    }
    walk(Array.isArray(nodes) ? nodes : [], 0, "")
    return rows
}

// The chain of nodes from the top down to the node with this id, itself included; empty when it is not there.
function pathTo(nodes, id) {
    for (const node of Array.isArray(nodes) ? nodes : []) {
        if (node.id === id)
            return [node]
        if (isFolder(node)) {
            const below = pathTo(node.children, id)
            if (below.length > 0)
                return [node].concat(below)
        }
    }
    return []
}

function findNode(nodes, id) {
    const path = pathTo(nodes, id)
    return path.length > 0 ? path[path.length - 1] : null
}

// The nodes that stand beside the node with this id, itself included.
function _levelOf(nodes, id) {
    const path = pathTo(nodes, id)
    return path.length > 1 ? path[path.length - 2].children : nodes
}

function _withoutFolderIdsOf(level, openIds) {
    const next = Object.assign({}, openIds)
    for (const node of level) {
        if (isFolder(node))
            delete next[node.id]
    }
    return next
}

// Accordion: an open folder closes and its siblings show again; a closed one opens and every sibling closes.
function toggleOpenFolder(nodes, openIds, id) {
    const node = findNode(nodes, id)
    if (!isFolder(node))
        return Object.assign({}, openIds)
    const wasOpen = openIds && openIds[id] === true
    const next = _withoutFolderIdsOf(_levelOf(nodes, id), openIds || {})
    if (!wasOpen)
        next[id] = true
    return next
}

// Opens the way down to a node so that its row shows: every folder above it opens alone on its level, and no
// folder beside it stays open. With openItself a folder is opened as well.
function revealNode(nodes, openIds, id, openItself) {
    const path = pathTo(nodes, id)
    let next = Object.assign({}, openIds)
    let level = nodes
    for (const node of path) {
        next = _withoutFolderIdsOf(level, next)
        if (node.id !== id || (openItself && isFolder(node)))
            next[node.id] = true
        level = isFolder(node) ? node.children : []
    }
    return next
}

function _collectIds(nodes, into) {
    for (const node of nodes) {
        into[node.id] = true
        if (isFolder(node))
            _collectIds(node.children, into)
    }
    return into
}

// Keeps only the open ids that still name a folder of the tree.
function pruneOpenIds(nodes, openIds) {
    const present = _collectIds(Array.isArray(nodes) ? nodes : [], {})
    const next = {}
    for (const id in openIds || {}) {
        if (present[id] && openIds[id] === true)
            next[id] = true
    }
    return next
}

// Every node below a folder, subfolders at every depth included.
function countDescendants(node) {
    if (!isFolder(node))
        return 0
    return node.children.reduce((sum, child) => sum + 1 + countDescendants(child), 0)
}

// The children a new node joins: the selected folder's, the selected node's parent's, or the top level's.
// Answers the id of that folder, "" for the top level.
function insertionParentId(nodes, selectedId) {
    const path = pathTo(nodes, selectedId)
    if (path.length === 0)
        return ""
    const selected = path[path.length - 1]
    if (isFolder(selected))
        return selected.id
    return path.length > 1 ? path[path.length - 2].id : ""
}

function childrenOf(nodes, parentId) {
    if (parentId === "")
        return nodes
    const parent = findNode(nodes, parentId)
    return isFolder(parent) ? parent.children : []
}

// The trimmed name if no sibling has it, else the first free of "name (2)", "name (3)", ...
function uniqueName(siblings, raw) {
    const base = _text(raw).trim()
    const taken = (Array.isArray(siblings) ? siblings : []).map(node => node && typeof node === "object"
                                                                        ? _text(node.name) : _text(node))
    if (taken.indexOf(base) < 0)
        return base
    let n = 2
    while (taken.indexOf(base + " (" + n + ")") >= 0)
        ++n
    return base + " (" + n + ")"
}

// Copies every node through visit, which may change the copy's own fields, children included.
function _mapTree(nodes, visit) {
    return nodes.map(node => {
        const copy = visit(node)
        if (isFolder(copy))
            copy.children = _mapTree(copy.children, visit)
        return copy
    })
}

function insertNode(nodes, parentId, newNode) {
    if (parentId === "")
        return nodes.concat([newNode])
    return _mapTree(nodes, node => {
        const copy = Object.assign({}, node)
        if (node.id === parentId)
            copy.children = node.children.concat([newNode])
        return copy
    })
}

function removeNode(nodes, id) {
    return nodes.filter(node => node.id !== id).map(node => {
        const copy = Object.assign({}, node)
        if (isFolder(node))
            copy.children = removeNode(node.children, id)
        return copy
    })
}

function withValue(nodes, id, value) {
    return _mapTree(nodes, node => {
        const copy = Object.assign({}, node)
        if (node.id === id && !isFolder(node))
            copy.value = value
        return copy
    })
}

// The names from the top down to the node, joined: "6-max / No rake / RFI / UTG".
function pathKey(nodes, id) {
    return pathTo(nodes, id).map(node => node.name).join(PATH_SEPARATOR)
}

function _overrideFor(overrides, key) {
    for (const candidate of [key, "6-max" + PATH_SEPARATOR + key, "Heads up" + PATH_SEPARATOR + key]) {
        const value = overrides[candidate]
        if (value !== undefined && value !== null && String(value) !== "")
            return String(value)
    }
    return null
}

// The same tree with the same ids; a leaf takes the text stored under its path key, or under the keys of
// older versions, whose paths began with the table size.
function applyOverrides(nodes, overrides, path) {
    const map = overrides && typeof overrides === "object" ? overrides : {}
    const prefix = Array.isArray(path) ? path : []
    return (Array.isArray(nodes) ? nodes : []).map(node => {
        const here = prefix.concat([node.name])
        if (isFolder(node))
            return {id: node.id, type: "folder", name: node.name, children: applyOverrides(node.children, map, here)}
        const override = _overrideFor(map, here.join(PATH_SEPARATOR))
        return {id: node.id, type: "range", name: node.name, value: override !== null ? override : node.value}
    })
}

// The hands of a range text without their weights: "AA, KK:0.5" gives "AA, KK".
function stripWeightsText(text) {
    return _text(text).split(TOKEN_SEPARATORS).filter(token => token !== "")
                      .map(token => token.replace(WEIGHT_SUFFIX, "")).join(", ")
}

// A copy with new ids everywhere and, with stripWeights, every range's weights taken off.
function freshCopy(nodes, stripWeights) {
    return _mapTree(nodes, node => {
        const copy = Object.assign({}, node, {id: newNodeId()})
        if (!isFolder(node) && stripWeights)
            copy.value = stripWeightsText(node.value)
        return copy
    })
}

// The export shape: folders {type, name, children}, ranges {name, value}, no ids.
function withoutIds(nodes) {
    return (Array.isArray(nodes) ? nodes : []).map(node => isFolder(node)
        ? {type: "folder", name: node.name, children: withoutIds(node.children)}
        : {name: node.name, value: node.value})
}
