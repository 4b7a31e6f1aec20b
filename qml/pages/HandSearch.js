// Which combos the hand list of the Results page shows: the noise cut-off, the hand and bucket filters and the
// search tokens ("JJ", "56s", "JcJd").
.pragma library
.import "ResultsStrategy.js" as ResultsStrategy

const _ranks = ResultsStrategy.rankOrder

function _isRank(c) {
    return c.length === 1 && _ranks.indexOf(c) >= 0
}

function _card(text) {
    return text.charAt(0).toUpperCase() + text.charAt(1).toLowerCase()
}

function _orderedRanks(r1, r2) {
    return _ranks.indexOf(r1) < _ranks.indexOf(r2) ? r1 + r2 : r2 + r1
}

function matchSearchTokenToCombo(token, c1, c2) {
    const t = String(token).trim()
    if (t.length === 4) {
        const wanted = [_card(t.substr(0, 2)), _card(t.substr(2, 2))]
        const combo = [_card(String(c1)), _card(String(c2))]
        return (wanted[0] === combo[0] && wanted[1] === combo[1]) || (wanted[0] === combo[1] && wanted[1] === combo[0])
    }
    if (t.length !== 2 && t.length !== 3)
        return false
    const r1 = t.charAt(0).toUpperCase()
    const r2 = t.charAt(1).toUpperCase()
    if (!_isRank(r1) || !_isRank(r2))
        return false
    const handClass = ResultsStrategy.handClassFromCards(c1, c2)
    if (t.length === 2) {
        if (r1 === r2)
            return handClass === r1 + r2
        const ranks = _orderedRanks(r1, r2)
        return handClass === ranks + "s" || handClass === ranks + "o"
    }
    const kind = t.charAt(2).toLowerCase()
    return r1 !== r2 && (kind === "s" || kind === "o") && handClass === _orderedRanks(r1, r2) + kind
}

function searchTokens(text) {
    return String(text).split(/[\s,]+/).filter(token => token.length > 0)
}

function _matchesAnyToken(tokens, combo) {
    for (let i = 0; i < tokens.length; ++i)
        if (matchSearchTokenToCombo(tokens[i], combo.c1, combo.c2))
            return true
    return false
}

// Combos too faint to matter, relative to the heaviest one; only on a solved turn or river board.
function noiseCutoff(combos) {
    let largest = 0
    for (let i = 0; i < combos.length; ++i)
        largest = Math.max(largest, Number(combos[i].weight) || 0)
    return Math.max(1e-10, 1e-6 * largest)
}

// filters: {noiseFilter (bool), handClass, bucket, searchText}
function visibleCombos(combos, filters) {
    const count = combos ? combos.length : 0
    const cutoff = filters.noiseFilter ? noiseCutoff(combos || []) : -Infinity
    const tokens = searchTokens(filters.searchText)
    const shown = []
    for (let i = 0; i < count; ++i) {
        const combo = combos[i]
        if (!(Number(combo.weight) > cutoff))
            continue
        if (filters.handClass !== "" && ResultsStrategy.handClassFromCards(combo.c1, combo.c2) !== filters.handClass)
            continue
        if (!ResultsStrategy.inBucket(combo, filters.bucket))
            continue
        if (tokens.length > 0 && !_matchesAnyToken(tokens, combo))
            continue
        shown.push(combo)
    }
    return shown
}
