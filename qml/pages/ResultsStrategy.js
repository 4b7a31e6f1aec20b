// What the strategy matrix and the bars of the Results page show for one node: the action colours by size
// rank, the hand class of a combo, and the matrix inputs built from the node's combos.
.pragma library

const rankOrder = "AKQJT98765432"
const _sizePattern = /(\d+(?:\.\d+)?)\s*%/

// The first decimal number before a "%" in an action name, or NaN.
function sizeOf(name) {
    const match = _sizePattern.exec(String(name))
    return match ? Number(match[1]) : NaN
}

// "bet", "raise", ...: the first word of a type text, since sized actions carry their size ("bet 50%").
function actionKind(entry) {
    return String(entry.actionType).trim().toLowerCase().split(/\s+/)[0]
}

function isSizedBetOrRaise(entry) {
    const kind = actionKind(entry)
    return (kind === "bet" || kind === "raise") && !isNaN(sizeOf(entry.name))
}

function _paintByRank(sized, entries, palette) {
    sized.sort((a, b) => a.size - b.size)
    for (let i = 0; i < sized.length; ++i)
        entries[sized[i].index].color = palette[i % palette.length]
}

// Copies the list; sized bets and raises get a colour by their rank within the node, smallest first.
function colorizeBetRaiseActions(list, betColors, raiseColors) {
    const entries = []
    const bets = []
    const raises = []
    const count = list ? list.length : 0
    for (let i = 0; i < count; ++i) {
        const entry = Object.assign({}, list[i])
        entries.push(entry)
        if (!isSizedBetOrRaise(entry))
            continue
        const sized = {index: i, size: sizeOf(entry.name)}
        if (actionKind(entry) === "bet")
            bets.push(sized)
        else
            raises.push(sized)
    }
    _paintByRank(bets, entries, betColors)
    _paintByRank(raises, entries, raiseColors)
    return entries
}

function handClassFromCards(c1, c2) {
    const r1 = String(c1).charAt(0).toUpperCase()
    const r2 = String(c2).charAt(0).toUpperCase()
    if (r1 === r2)
        return r1 + r2
    const suited = String(c1).charAt(1).toLowerCase() === String(c2).charAt(1).toLowerCase()
    const high = rankOrder.indexOf(r1) < rankOrder.indexOf(r2) ? r1 + r2 : r2 + r1
    return high + (suited ? "s" : "o")
}

// Every combo is in the empty bucket, which means no filter.
function inBucket(combo, bucket) {
    if (bucket === "")
        return true
    const names = combo.buckets
    for (let i = 0; names && i < names.length; ++i)
        if (names[i] === bucket)
            return true
    return false
}

function combosOfBucket(combos, bucket) {
    const kept = []
    for (let i = 0; combos && i < combos.length; ++i)
        if (inBucket(combos[i], bucket))
            kept.push(combos[i])
    return kept
}

// The plain mean of the clamped weights of each label's combos, so that a class at 30% reads 0.30.
function reachByLabel(combos) {
    const sums = {}
    const counts = {}
    for (let i = 0; i < combos.length; ++i) {
        const label = handClassFromCards(combos[i].c1, combos[i].c2)
        const weight = Math.max(0, Math.min(1, Number(combos[i].weight) || 0))
        sums[label] = (sums[label] || 0) + weight
        counts[label] = (counts[label] || 0) + 1
    }
    const reach = {}
    for (const label in sums)
        reach[label] = sums[label] / counts[label]
    return reach
}

function actionCount(combos, definitions, typeList) {
    const first = combos.length > 0 && combos[0].actionProbs ? combos[0].actionProbs.length : 0
    if (first > 0)
        return first
    if (definitions.length > 0)
        return definitions.length
    return typeList ? typeList.length : 0
}

function _probability(value) {
    const p = Number(value)
    return isNaN(p) || p < 0 ? 0 : p
}

function _normalized(sums) {
    let total = 0
    for (let a = 0; a < sums.length; ++a)
        total += sums[a]
    if (!(total > 0))
        return sums
    return sums.map(p => p / total)
}

// The reach-weighted mean strategy of each label, over its combos of positive weight, summing to 1.
function reachWeightedProbs(combos, count) {
    const sums = {}
    for (let i = 0; i < combos.length; ++i) {
        const weight = Number(combos[i].weight)
        if (!(weight > 0))
            continue
        const label = handClassFromCards(combos[i].c1, combos[i].c2)
        const row = sums[label] || (sums[label] = new Array(count).fill(0))
        const probs = combos[i].actionProbs
        for (let a = 0; a < count; ++a)
            row[a] += weight * _probability(probs ? probs[a] : 0)
    }
    const result = {}
    for (const label in sums)
        result[label] = _normalized(sums[label])
    return result
}

// A lock shows at once: the locked action at its probability, the rest shared equally by the others.
function lockedProbs(lock, count) {
    if (count === 1)
        return [1.0]
    const raw = Number(lock.actionProb)
    const p = isNaN(raw) ? 1.0 : Math.max(0, Math.min(1, raw))
    const probs = new Array(count).fill((1 - p) / (count - 1))
    probs[lock.actionIndex] = p
    return probs
}

function applyLockPreview(probs, locks, count) {
    for (const hand in locks) {
        const index = Number(locks[hand].actionIndex)
        if (index >= 0 && index < count)
            probs[hand] = lockedProbs(locks[hand], count)
    }
}

function definitionColor(definition, theme) {
    if (definition.color)
        return definition.color
    return theme.actionColor(definition.name ? definition.name : definition.actionType)
}

// The most probable of the defined actions, the first one on a tie.
function dominantIndex(probs, definitionCount) {
    const n = Math.min(probs.length, definitionCount)
    let best = -1
    for (let a = 0; a < n; ++a)
        if (best < 0 || Number(probs[a]) > Number(probs[best]))
            best = a
    return best
}

function handColor(label, probs, dominantTypes, definitions, theme) {
    const row = probs[label]
    const best = row ? dominantIndex(row, definitions.length) : -1
    if (best >= 0)
        return definitionColor(definitions[best], theme)
    if (dominantTypes && dominantTypes[label])
        return theme.actionColor(dominantTypes[label])
    return theme.textMuted
}

// One key per action, so that mixed cells line up with the probabilities: sizes keep their own names.
function actionTypeKeys(definitions, typeList, count) {
    const keys = []
    for (let a = 0; a < count; ++a) {
        if (a < definitions.length)
            keys.push(isSizedBetOrRaise(definitions[a]) ? definitions[a].name : definitions[a].actionType)
        else
            keys.push(typeList && a < typeList.length ? typeList[a] : "none")
    }
    return keys
}

function _copyProbs(raw) {
    const probs = {}
    for (const label in raw)
        probs[label] = raw[label]
    return probs
}

// The matrix inputs of one node. `strategy` is the node's hand strategy, `definitions` its colourised actions,
// `combos` its combos, `locks` the previewed locks of the node (hand label to lock).
function matrixInputs(strategy, definitions, combos, bucket, locks, labels, theme) {
    const kept = combosOfBucket(combos, bucket)
    const reach = reachByLabel(kept)
    const count = actionCount(kept, definitions, strategy.actionTypeList)
    let probs = _copyProbs(strategy.actionProbs || {})
    if (kept.length > 0 && count > 0)
        Object.assign(probs, reachWeightedProbs(kept, count))
    applyLockPreview(probs, locks || {}, count)
    const colors = {}
    for (let i = 0; i < labels.length; ++i)
        colors[labels[i]] = handColor(labels[i], probs, strategy.dominantActionTypes, definitions, theme)
    return {
        weights: reach,
        colors: colors,
        typeList: actionTypeKeys(definitions, strategy.actionTypeList, count),
        probs: probs,
        dominantTypes: strategy.dominantActionTypes || {}
    }
}
