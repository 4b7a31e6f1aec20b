// The range text as the range cards see it: a lenient reading that only draws the matrix, the toggling of one
// painted hand, and the clean-up of range files written by other tools. The solver reads the text again, strictly,
// when a solve starts, so odd input may look different here than it plays there.
.pragma library

const RANKS = "AKQJT98765432"
// A weight this close to one is written as the bare hand.
const FULL_WEIGHT = 0.999
const WEIGHT_DECIMALS = 3
const TOKEN_SEPARATORS = /[\s,]+/
const BARE_PERCENTAGE = /^\d+(\.\d+)? ?%$/
const ADJACENT_RANKS = /[AKQJT98765432]{2}/i

function _isRank(character) {
    return character.length === 1 && RANKS.indexOf(character) >= 0
}

function _isPair(text) {
    return text.length === 2 && text[0] === text[1] && _isRank(text[0])
}

// A missing text reads as empty.
function _asText(value) {
    return value === undefined || value === null ? "" : String(value)
}

function _tokens(text) {
    return _asText(text).split(TOKEN_SEPARATORS).filter(token => token !== "")
}

function _isBarePercentage(text) {
    return BARE_PERCENTAGE.test(_asText(text).trim())
}

function _clamp01(value) {
    return Math.max(0, Math.min(1, value))
}

// Clamps to 0..1; anything that is not a number counts as the full weight.
function clampWeight(value) {
    const number = Number(value)
    return isNaN(number) ? 1.0 : _clamp01(number)
}

// The number after a token's first colon, or NaN when there is none or it does not read.
function _weightAfterColon(token) {
    const colon = token.indexOf(":")
    return colon < 0 ? NaN : parseFloat(token.slice(colon + 1))
}

function _baseOf(token) {
    const colon = token.indexOf(":")
    return colon < 0 ? token : token.slice(0, colon)
}

// Three decimals at most, with trailing zeros and a trailing point removed: 0.5 gives "0.5", 99.950 "99.95".
function formatWeight(value) {
    return Number(value).toFixed(WEIGHT_DECIMALS).replace(/\.?0+$/, "")
}

// A hand or token with its weight, written bare when the weight is full.
function weightedToken(token, weight) {
    const w = clampWeight(weight)
    return w >= FULL_WEIGHT ? token : token + ":" + formatWeight(w)
}

// The 169 hand labels in matrix order, row by row.
function allHands() {
    const hands = []
    for (let row = 0; row < RANKS.length; ++row) {
        for (let col = 0; col < RANKS.length; ++col)
            hands.push(handAt(row, col))
    }
    return hands
}

// The label of a matrix cell: pairs on the diagonal, suited hands above it, offsuit hands below.
function handAt(row, col) {
    if (row === col)
        return RANKS[row] + RANKS[row]
    if (row < col)
        return RANKS[row] + RANKS[col] + "s"
    return RANKS[col] + RANKS[row] + "o"
}

// Upper-case ranks and a lower-case suffix.
function _normalised(text) {
    return text.slice(0, 2).toUpperCase() + text.slice(2).toLowerCase()
}

// Every rank from one to the other, both included, in the order given.
function _rankWalk(from, to) {
    const start = RANKS.indexOf(from)
    const end = RANKS.indexOf(to)
    const step = start <= end ? 1 : -1
    const ranks = []
    for (let i = start; i !== end + step; i += step)
        ranks.push(RANKS[i])
    return ranks
}

function _expandDash(first, second) {
    const a = _normalised(first)
    const b = _normalised(second)
    if (_isPair(a) && _isPair(b))
        return _rankWalk(a[0], b[0]).map(rank => rank + rank)
    const sameShape = a.length === 3 && b.length === 3 && a[0] === b[0] && a[2] === b[2]
    if (sameShape && _isRank(a[0]) && _isRank(a[1]) && _isRank(b[1]))
        return _rankWalk(a[1], b[1]).map(kicker => a[0] + kicker + a[2])
    return expandHand(first)
}

function _expandPlus(hand) {
    const base = _normalised(hand.slice(0, -1))
    if (_isPair(base))
        return _rankWalk("A", base[0]).map(rank => rank + rank)
    if (base.length === 3 && _isRank(base[0]) && _isRank(base[1])) {
        const highest = RANKS.indexOf(base[0]) + 1
        if (RANKS.indexOf(base[1]) < highest)
            return []
        return _rankWalk(base[1], RANKS[highest]).map(kicker => base[0] + kicker + base[2])
    }
    return [hand]
}

// The hand labels that one written hand stands for: "99-22", "A5s-A2s", "QQ+", "A8s+", "AK", "aks". Anything
// else comes back unchanged and so matches no cell.
function expandHand(hand) {
    const text = _asText(hand)
    const parts = text.split("-")
    if (parts.length === 2)
        return _expandDash(parts[0], parts[1])
    if (text.endsWith("+"))
        return _expandPlus(text)
    if (text.length === 2) {
        const upper = text.toUpperCase()
        return upper[0] === upper[1] ? [upper] : [upper + "s", upper + "o"]
    }
    if (text.length === 3)
        return [_normalised(text)]
    return [text]
}

// Hand label to weight in 0..1, for drawing the matrix. A later token overwrites an earlier one.
function parseRangeWeights(text) {
    const weights = {}
    const source = _asText(text)
    if (source.trim() === "")
        return weights
    if (_isBarePercentage(source)) {
        const fraction = _clamp01(parseFloat(source) / 100)
        for (const hand of allHands())
            weights[hand] = fraction
        return weights
    }
    for (const token of _tokens(source)) {
        if (token.length < 2)
            continue
        const parsed = _weightAfterColon(token)
        const weight = isNaN(parsed) ? 1.0 : _clamp01(parsed)
        for (const hand of expandHand(_baseOf(token)))
            weights[hand] = weight
    }
    return weights
}

function _touchesAny(token, hands) {
    return expandHand(_baseOf(token)).some(hand => hands.indexOf(hand) >= 0)
}

// The range text after one click on a hand: a hand that is in the range takes every token that covers it out,
// whole; a hand that is not is added at the click weight.
function toggleHand(rangeText, hand, currentWeight, addWeight) {
    const inRange = currentWeight > 0
    if (_isBarePercentage(rangeText))
        return inRange ? "" : weightedToken(hand, addWeight)
    let tokens = _tokens(rangeText)
    if (inRange) {
        const clicked = expandHand(hand)
        tokens = tokens.filter(token => !_touchesAny(token, clicked))
    } else {
        tokens.push(weightedToken(hand, addWeight))
    }
    return tokens.join(", ")
}

// Range files of other tools put one weight after a group of hands: "AA,KK:0.5,QQ" means AA and KK at 0.5 and
// QQ in full. Tokens without two adjacent rank characters are dropped.
function normalizeImportedRangeText(rawText) {
    const output = []
    let pending = []
    const flush = weight => {
        for (const token of pending) {
            if (ADJACENT_RANKS.test(token))
                output.push(weightedToken(token, weight))
        }
        pending = []
    }
    const text = _asText(rawText).replace(/\r/g, "\n")
    for (const token of _tokens(text)) {
        if (token.indexOf(":") < 0) {
            pending.push(token)
            continue
        }
        const base = _baseOf(token)
        if (base !== "")
            pending.push(base)
        flush(_weightAfterColon(token))
    }
    flush(1.0)
    return output.join(", ")
}
